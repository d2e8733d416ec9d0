#include "app/frmOstatnieBazy.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::app {

frmOstatnieBazy::frmOstatnieBazy(const QStringList& bazy, QWidget* rodzic)
    : Okno(QStringLiteral("frmOstatnieBazy"), rodzic), bazy_(bazy),
      lvwBazy_(new WidokListy({{QStringLiteral("PLIK")},
                               {QStringLiteral("KATALOG")},
                               {QStringLiteral("OSTATNIA ZMIANA"), Qt::AlignLeft, Porzadek::Data}},
                              {24, 56, 20})) {
    setWindowTitle(QStringLiteral("Ostatnie bazy"));
    lvwBazy_->setObjectName(QStringLiteral("lvwBazy"));
    lvwBazy_->setAccessibleName(QStringLiteral("Ostatnio otwarte bazy danych"));
    lvwBazy_->ustawPodpowiedz(
        QStringLiteral("Nie otwierano jeszcze innej bazy danych.\nWskaż ją wejściem „Plik”, „Otwórz bazę”."));
    QList<WierszListy> wiersze;
    for (qsizetype i = 0; i < bazy_.size(); ++i) {
        const QFileInfo plik(bazy_[i]);
        const bool jest = plik.isFile();
        wiersze.append({i,
                        {plik.fileName(), QDir::toNativeSeparators(plik.absolutePath()),
                         jest ? plik.lastModified().toString(QStringLiteral("dd-MM-yyyy")) : QString()},
                        jest ? QString() : QStringLiteral("Nie ma takiego pliku.")});
    }
    lvwBazy_->ustaw(wiersze);
    connect(lvwBazy_, &WidokListy::wejscie, this, &QDialog::accept);
    auto* cmdOtworz = przycisk(QStringLiteral("cmdOtworz"), QStringLiteral("&Otwórz"));
    auto* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    connect(cmdOtworz, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
    cmdOtworz->setEnabled(!bazy_.isEmpty());
    cmdOtworz->setDefault(true);
    auto* labOpis =
        new QLabel(QStringLiteral("Program zapyta o zakończenie pracy i uruchomi się na wybranej bazie."));
    labOpis->setObjectName(QStringLiteral("labOpis"));
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(labOpis);
    uklad->addWidget(lvwBazy_, 1);
    uklad->addWidget(rzadPrzyciskow({cmdOtworz, cmdAnuluj, przyciskPomocy()}));
    resize(90 * Wyglad::kSiatka, 44 * Wyglad::kSiatka);
    lvwBazy_->setFocus();
}

QString frmOstatnieBazy::wybrana() const {
    const qint64 id = lvwBazy_->wybrany();
    return id < 0 ? QString() : bazy_.at(id);
}

} // namespace tornel::app
