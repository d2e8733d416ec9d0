#include "personnel/frmUS.h"
#include "personnel/KsiazkiAdresowe.h"

namespace tornel::personnel {

using schemat::US;

namespace {

Pole poleUrzedu(const QString& nazwa, const QString& podpis, Kolumna kolumna) {
    return {nazwa, podpis, kolumna};
}

OpisListyPol opisUrzedow() {
    OpisListyPol o;
    o.nazwa = QStringLiteral("frmUS");
    o.tytul = QStringLiteral("Urzędy skarbowe");
    o.kolumny = {{QStringLiteral("NR"), Qt::AlignRight}, {QStringLiteral("NAZWA")}};
    o.udzialy = {18, 82};
    o.pustaLista =
        QStringLiteral("Nie ma jeszcze żadnego urzędu skarbowego.\nPrzycisk „Nowy” dopisuje pierwszy.");
    o.szukaj = QStringLiteral("Szukaj: numer lub nazwa");
    o.grupy = {
        {QStringLiteral("URZĄD"),
         {{QStringLiteral("txtUSID"), QStringLiteral("Numer:"), US("US_ID"), Rodzaj::Liczba, Dostep::Odczyt},
          poleUrzedu(QStringLiteral("txtNazwa"), QStringLiteral("Nazwa:"), US("Nazwa"))}},
        {QStringLiteral("ADRES"),
         {poleUrzedu(QStringLiteral("txtUlica"), QStringLiteral("Ulica:"), US("ulica")),
          poleUrzedu(QStringLiteral("txtNrDomu"), QStringLiteral("Nr domu:"), US("nr_domu")),
          poleUrzedu(QStringLiteral("txtNrLokalu"), QStringLiteral("Nr lokalu:"), US("nr_lokalu")),
          poleUrzedu(QStringLiteral("txtTelefon"), QStringLiteral("Telefon:"), US("telefon")),
          poleUrzedu(QStringLiteral("txtKod"), QStringLiteral("Kod pocztowy:"), US("Kod")),
          poleUrzedu(QStringLiteral("txtMiasto"), QStringLiteral("Miejscowość:"), US("miasto")),
          poleUrzedu(QStringLiteral("txtFaks"), QStringLiteral("Faks:"), US("faks"))},
         2},
        {QStringLiteral("RACHUNEK BANKOWY"),
         {poleUrzedu(QStringLiteral("txtBank"), QStringLiteral("Nazwa banku:"), US("bank")),
          poleUrzedu(QStringLiteral("txtKonto"), QStringLiteral("Numer konta:"), US("konto"))}},
        {QStringLiteral("INFORMACJE OPISOWE"),
         {{QStringLiteral("txtOpis"), QString(), US("inf_opis"), Rodzaj::Notatka}}},
    };
    return o;
}

} // namespace

frmUS::frmUS(Otoczenie& otoczenie, QWidget* rodzic)
    : frmKartoteka(otoczenie, UrzedySkarbowe(), opisUrzedow(), {US("US_ID"), US("Nazwa")}, rodzic) {
    Wczytaj();
}

} // namespace tornel::personnel
