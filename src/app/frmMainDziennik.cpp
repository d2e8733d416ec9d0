#include "app/frmMainDziennik.h"
#include "app/frmDziennik.h"
#include "app/frmMain.h"
#include "app/Uprawnienia.h"
#include "common/Rozmowa.h"
#include "okna/Aplikacja.h"
#include "okna/Klepsydra.h"
#include "rules/CofanieCzynnosci.h"
#include "start/Foldery.h"
#include "store/Sesja.h"

namespace tornel::app {

namespace {

/// Longer names of actions are cut in the menu.
constexpr int kDlugoscNapisu = 60;

QString napisCofania(const Otoczenie& o, Kierunek kierunek) {
    if (!o.sesja.cnPlace.dziennik()) return {};
    const auto wpis = Cofanie(o.sesja.cnPlace).nastepna(kierunek);
    if (!wpis || !cofniecieDozwolone(*wpis, o.sesja.uzytkownik)) return {};
    QString nazwa = wpis->czynnosc;
    if (nazwa.size() > kDlugoscNapisu) nazwa = nazwa.left(kDlugoscNapisu).trimmed() + QStringLiteral("...");
    // An ampersand would become a key of the menu.
    return (kierunek == Kierunek::Cofnij ? QStringLiteral("Cofnij: ") : QStringLiteral("Ponów: ")) +
           nazwa.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

/// What was undone, for the foot of the window; nothing when it was refused, after a message.
QString przesun(Otoczenie& o, Kierunek kierunek) {
    const auto odmow = [&](const QString& powod) {
        o.rozmowa.komunikat(powod, Styl::Wykrzyknik);
        return QString();
    };
    try {
        const auto wpis = Cofanie(o.sesja.cnPlace).nastepna(kierunek);
        if (wpis && !cofniecieDozwolone(*wpis, o.sesja.uzytkownik))
            return odmow(QStringLiteral("Czynność „%1” wykonał użytkownik „%2”. Cofnąć ją może on albo "
                                        "administrator.")
                             .arg(wpis->czynnosc, wpis->kto));
        const Klepsydra klepsydra;
        const auto wynik = CofnijLubPonow(o, FolderDanych(QCoreApplication::applicationDirPath()), kierunek);
        if (!wynik) return {};
        return (kierunek == Kierunek::Cofnij ? QStringLiteral("Cofnięto: ") : QStringLiteral("Ponowiono: ")) +
               wynik->czynnosc;
    } catch (const OdmowaCofniecia& odmowa) {
        return odmow(odmowa.komunikat());
    }
}

} // namespace

void ZarejestrujDziennik(frmMain& okno, Otoczenie& otoczenie) {
    for (const auto& [wejscie, kierunek] :
         {std::pair(Wejscie::Cofnij, Kierunek::Cofnij), std::pair(Wejscie::Ponow, Kierunek::Ponow)}) {
        okno.rejestruj(wejscie, [&, k = kierunek] {
            if (const QString tekst = przesun(otoczenie, k); !tekst.isEmpty()) okno.pokazZnalezione(tekst);
        });
        okno.ustawNapis(wejscie, [&, k = kierunek] { return napisCofania(otoczenie, k); });
    }
    okno.rejestruj(Wejscie::DziennikZmian, [&] { frmDziennik(otoczenie, &okno).exec(); });
    auto* program = qobject_cast<Aplikacja*>(qApp);
    if (!program) return;
    program->ustawCofanie([&otoczenie](Kierunek kierunek) { return przesun(otoczenie, kierunek); });
    QObject::connect(&okno, &QObject::destroyed, program, [program] { program->ustawCofanie({}); });
}

} // namespace tornel::app
