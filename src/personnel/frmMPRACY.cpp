#include "personnel/frmMPRACY.h"
#include "personnel/KsiazkiAdresowe.h"

namespace tornel::personnel {

using schemat::M_PRACY;

namespace {

Pole poleMiejsca(const QString& nazwa, const QString& podpis, Kolumna kolumna) {
    return {nazwa, podpis, kolumna};
}

/// The marking is a text in this table.
Pole poleZza() {
    Pole p{QStringLiteral("cboZza"), QStringLiteral("ZUS ZAA:"), M_PRACY("zza"), Rodzaj::Wybor};
    p.pozycje = {{QStringLiteral("0"), QStringLiteral("0 - pomijane")},
                 {QStringLiteral("1"), QStringLiteral("1 - nowy adres")},
                 {QStringLiteral("2"), QStringLiteral("2 - zamknięcie adresu")}};
    return p;
}

OpisListyPol opisMiejscPracy() {
    OpisListyPol o;
    o.nazwa = QStringLiteral("frmMPRACY");
    o.tytul = QStringLiteral("Adresy działalności");
    o.kolumny = {{QStringLiteral("NR"), Qt::AlignRight}, {QStringLiteral("NAZWA")}};
    o.udzialy = {18, 82};
    o.pustaLista =
        QStringLiteral("Nie ma jeszcze żadnego adresu działalności.\nPrzycisk „Nowy” dopisuje pierwszy.");
    o.szukaj = QStringLiteral("Szukaj: numer lub nazwa");
    o.grupy = {
        {QStringLiteral("MIEJSCE PRACY"),
         {{QStringLiteral("txtMPID"), QStringLiteral("Numer:"), M_PRACY("MP_ID"), Rodzaj::Liczba,
           Dostep::Odczyt},
          poleMiejsca(QStringLiteral("txtNazwa"), QStringLiteral("Nazwa:"), M_PRACY("Nazwa"))}},
        {QStringLiteral("ADRES"),
         {poleMiejsca(QStringLiteral("txtUlica"), QStringLiteral("Ulica:"), M_PRACY("ulica")),
          poleMiejsca(QStringLiteral("txtNrDomu"), QStringLiteral("Nr domu:"), M_PRACY("nr_domu")),
          poleMiejsca(QStringLiteral("txtNrLokalu"), QStringLiteral("Nr lokalu:"), M_PRACY("nr_lokalu")),
          poleMiejsca(QStringLiteral("txtTelefon"), QStringLiteral("Telefon:"), M_PRACY("telefon")),
          poleMiejsca(QStringLiteral("txtKod"), QStringLiteral("Kod pocztowy:"), M_PRACY("Kod")),
          poleMiejsca(QStringLiteral("txtMiasto"), QStringLiteral("Miejscowość:"), M_PRACY("miasto")),
          poleMiejsca(QStringLiteral("txtGmina"), QStringLiteral("Gmina / Dzielnica:"), M_PRACY("gmina")),
          poleMiejsca(QStringLiteral("txtFaks"), QStringLiteral("Faks:"), M_PRACY("faks"))},
         2},
        {QStringLiteral("DOKUMENTY ZUS"), {poleZza()}},
    };
    return o;
}

} // namespace

frmMPRACY::frmMPRACY(Otoczenie& otoczenie, QWidget* rodzic)
    : frmKartoteka(otoczenie, MiejscaPracy(), opisMiejscPracy(), {M_PRACY("MP_ID"), M_PRACY("Nazwa")},
                   rodzic) {
    Wczytaj();
}

} // namespace tornel::personnel
