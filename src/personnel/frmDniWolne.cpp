#include "personnel/frmDniWolne.h"
#include "okna/WidokListy.h"

namespace tornel::personnel {

frmDniWolne::frmDniWolne(Otoczenie& otoczenie, QWidget* rodzic)
    : frmKalendarz(otoczenie, QStringLiteral("frmDniWolne"), {}, rodzic) {
    WczytajMiesiace();
    listaMiesiecy().setFocus();
}

void frmDniWolne::pokazano(const std::optional<MiesiacKalendarza>& miesiac) {
    const QString nazwa = miesiac ? nazwaMiesiaca(*miesiac) : QString();
    setWindowTitle((QStringLiteral("Dni Wolne (lista ogólna) ") + nazwa).trimmed());
    ustawTytulDni(nazwa);
}

} // namespace tornel::personnel
