#include "bank/frmKonta.h"
#include "bank/Konta.h"

namespace tornel::bank {

using schemat::KONTA;

namespace {

OpisListyPol opis() {
    OpisListyPol o;
    o.nazwa = QStringLiteral("frmKonta");
    o.tytul = QStringLiteral("Konta bankowe użytkownika");
    o.kolumny = {{QStringLiteral("SKRÓT KONTA")}};
    o.udzialy = {100};
    o.pustaLista =
        QStringLiteral("Nie ma jeszcze żadnego konta bankowego.\nPrzycisk „Nowy” dopisuje pierwsze.");
    o.szukaj = QStringLiteral("Szukaj: skrót konta");
    o.kolumnaNazwy = 0;
    Pole zba{QStringLiteral("cboZba"), QStringLiteral("ZUS ZBA:"), KONTA("zba"), Rodzaj::Wybor};
    zba.pozycje = {{qint64{0}, QStringLiteral("0 - pomijane")},
                   {qint64{1}, QStringLiteral("1 - nowy rachunek")},
                   {qint64{2}, QStringLiteral("2 - zamknięcie rachunku")}};
    o.grupy = {
        {QStringLiteral("KONTO BANKOWE"),
         {{QStringLiteral("txtNr"), QStringLiteral("Nr wewn. konta:"), KONTA("NR"), Rodzaj::Liczba,
           Dostep::Odczyt},
          {QStringLiteral("txtSkrot"), QStringLiteral("Skrót konta:"), KONTA("skrot")},
          {QStringLiteral("txtNazwa"), QStringLiteral("Nazwa banku:"), KONTA("Nazwa")},
          {QStringLiteral("txtKonto"), QStringLiteral("Numer konta:"), KONTA("konto")}}},
        {QStringLiteral("DOKUMENTY ZUS"), {zba}},
    };
    return o;
}

} // namespace

frmKonta::frmKonta(Otoczenie& otoczenie, QWidget* rodzic)
    : frmKartoteka(otoczenie, KontaBankowe(), opis(), {KONTA("skrot")}, rodzic) {
    Wczytaj();
}

} // namespace tornel::bank
