#include "personnel/frmRejZwoln.h"
#include "personnel/frmData.h"
#include "store/Sesja.h"

namespace tornel::personnel {

using schemat::ZW;

namespace {

QList<Pole> polaZwolnienia() {
    Pole kwota{QStringLiteral("txtKwota"), QStringLiteral("Kwota:"), ZW("Kwota"), Rodzaj::Kwota};
    kwota.grosze = Grosze::Round;
    return {
        {QStringLiteral("txtSeria"), QStringLiteral("Seria:"), ZW("l4_seria")},
        {QStringLiteral("txtNumer"), QStringLiteral("Numer:"), ZW("l4_nr")},
        {QStringLiteral("txtStProc"), QStringLiteral("Stawka %:"), ZW("st_proc"), Rodzaj::Kwota},
        {QStringLiteral("txtKodChor"), QStringLiteral("Kod choroby:"), ZW("kodchor")},
        {QStringLiteral("txtKodSwPrz"), QStringLiteral("Kod świadczenia/przerwy:"), ZW("kodswprz")},
        kwota,
    };
}

OpisListyPol opisZwolnien() {
    OpisListyPol o = frmRejestr::opisListy();
    o.nazwa = QStringLiteral("frmRejZwoln");
    o.tytul = QStringLiteral("Zwolnienia lekarskie");
    o.pustaLista = QStringLiteral("Nie ma jeszcze żadnego zwolnienia.\nPrzycisk „Nowy” rejestruje pierwsze.");
    o.grupy = {
        frmRejestr::grupaOkresu(ZW, {},
                                {{QStringLiteral("txtCzasTrwania"),
                                  QStringLiteral("Czas trwania:"),
                                  {},
                                  Rodzaj::Liczba,
                                  Dostep::Odczyt}}),
        {QStringLiteral("ZWOLNIENIE"), polaZwolnienia(), 2},
        {QStringLiteral("INFORMACJE OPISOWE"),
         {{QStringLiteral("txtInfOpis"), QString(), ZW("inf_opis"), Rodzaj::Notatka}}},
    };
    return o;
}

} // namespace

frmRejZwoln::frmRejZwoln(Otoczenie& otoczenie, QWidget* rodzic)
    : frmRejZwoln(otoczenie, rodzic, std::make_shared<RejestrZwolnien>(otoczenie)) {
    wiazanie().ustawDopisek(QStringLiteral("txtCzasTrwania"), QStringLiteral("dni"));
    Wczytaj();
}

frmRejZwoln::frmRejZwoln(Otoczenie& otoczenie, QWidget* rodzic, std::shared_ptr<RejestrZwolnien> zwolnienia)
    : frmRejestr(
          otoczenie, zwolnienia, [zwolnienia](int) -> Wartosc { return zwolnienia->CzasTrwania(); },
          opisZwolnien(), rodzic),
      zwolnienia_(std::move(zwolnienia)) {}

std::optional<qint64> frmRejZwoln::Zarejestruj(qint64 prcId, const frmData& dane) {
    return zwolnienia_->Zarejestruj({prcId, dane.zakres()});
}

} // namespace tornel::personnel
