#include "personnel/frmRodzina.h"
#include "common/Daty.h"

namespace tornel::personnel {

using schemat::RODZINA;

namespace {

Pole poleRodziny(const char16_t* nazwa, const char16_t* podpis, std::string_view kolumna,
                 Rodzaj rodzaj = Rodzaj::Tekst) {
    return {QString::fromUtf16(nazwa), QString::fromUtf16(podpis), RODZINA.nr(RODZINA.numer(kolumna)),
            rodzaj};
}

/// The marking of one document: which kind of notice it sends.
Pole poleZnaku(const char16_t* nazwa, const char16_t* podpis, std::string_view kolumna) {
    Pole p = poleRodziny(nazwa, podpis, kolumna, Rodzaj::Wybor);
    p.pozycje = {{qint64{0}, QStringLiteral("0 - pomijane")},
                 {qint64{1}, QStringLiteral("1 - zgłoszenie")},
                 {qint64{2}, QStringLiteral("2 - zmiana lub korekta")}};
    return p;
}

OpisListyPol opisRodziny(const QString& pracownik) {
    OpisListyPol o;
    o.nazwa = QStringLiteral("frmRodzina");
    o.tytul = QStringLiteral("Rodzina pracownika: ") + pracownik;
    o.kolumny = {{QStringLiteral("NR"), Qt::AlignRight},
                 {QStringLiteral("NAZWISKO I IMIĘ")},
                 {QStringLiteral("URODZENIE"), Qt::AlignLeft, Porzadek::Data}};
    o.udzialy = {12, 58, 30};
    o.szerokosc = 320;
    o.pustaLista =
        QStringLiteral("Nikt z rodziny nie jest wpisany.\nPrzycisk „Nowy” dopisuje pierwszą osobę.");
    o.szukaj = QStringLiteral("Szukaj: numer lub nazwisko");
    o.grupy = {
        {QStringLiteral("CZŁONEK RODZINY"),
         {poleRodziny(u"txtNaz", u"Nazwisko:", "Naz"), poleRodziny(u"txtImie", u"Imię:", "Imie"),
          poleRodziny(u"txtDataUr", u"Data urodzenia:", "data_ur", Rodzaj::Data),
          poleRodziny(u"txtPesel", u"PESEL:", "pesel"), poleRodziny(u"txtNip", u"NIP:", "Nip"),
          poleRodziny(u"txtDowodSer", u"Seria dowodu:", "dowod_ser"),
          poleRodziny(u"txtDowodNr", u"Numer dowodu:", "dowod_nr"),
          poleRodziny(u"txtKodPokr", u"Kod pokrewieństwa:", "kod_pokr")},
         2},
        {QStringLiteral("UBEZPIECZENIE ZDROWOTNE"),
         {poleRodziny(u"txtDUbZdr", u"Uprawniony od:", "d_ub_zdr", Rodzaj::Data),
          poleRodziny(u"txtStNiespr", u"Stopień niepełnosprawności:", "st_niespr"),
          poleRodziny(u"chkWylUtrz", u"Na wyłącznym utrzymaniu", "wyl_utrz", Rodzaj::Flaga),
          poleRodziny(u"chkWspGosp", u"Wspólne gospodarstwo domowe", "wsp_gosp", Rodzaj::Flaga)},
         2},
        {QStringLiteral("DOKUMENTY ZUS"),
         {poleZnaku(u"cboZcna", u"ZUS ZCNA (adres inny niż ubezpieczonego):", "zcna"),
          poleZnaku(u"cboZcza", u"ZUS ZCZA (ten sam adres):", "zcza")}},
        {QStringLiteral("ADRES ZAMIESZKANIA"),
         {poleRodziny(u"txtKod", u"Kod pocztowy:", "Kod"),
          poleRodziny(u"txtMiasto", u"Miejscowość:", "miasto"),
          poleRodziny(u"txtGmDz", u"Gmina / Dzielnica:", "gm_dz"),
          poleRodziny(u"txtUlica", u"Ulica:", "ulica"), poleRodziny(u"txtNrDomu", u"Nr domu:", "nr_domu"),
          poleRodziny(u"txtNrMiesz", u"Nr mieszkania:", "nr_miesz"),
          poleRodziny(u"txtTelefon", u"Telefon:", "telefon"), poleRodziny(u"txtFaks", u"Faks:", "faks")},
         2},
    };
    return o;
}

} // namespace

frmRodzina::frmRodzina(Otoczenie& otoczenie, qint64 prcId, QWidget* rodzic)
    : frmListaPol(
          otoczenie.rozmowa,
          std::make_unique<ZrodloWierszy>(std::initializer_list<Recordset*>{&otoczenie.sesja.rsRODZINA}),
          opisRodziny(Rodzina(otoczenie, prcId).pracownik()), rodzic),
      o_(otoczenie), rodzina_(otoczenie, prcId) {
    Wczytaj();
}

QStringList frmRodzina::tekstyWiersza(qint64 id) {
    (void)rodzina_.Ustaw(id);
    const Recordset& rs = o_.sesja.rsRODZINA;
    const QString nazwisko =
        (rs.tekst(RODZINA("Naz")) + QLatin1Char(' ') + rs.tekst(RODZINA("Imie"))).trimmed();
    return {QString::number(id), nazwisko.isEmpty() ? QStringLiteral("(bez nazwiska)") : nazwisko,
            FormatDaty(rs.data(RODZINA("data_ur")))};
}

bool frmRodzina::zapisz(qint64 id) {
    Q_UNUSED(id)
    rodzina_.Wpisz();
    return true;
}

void frmRodzina::porzuc() { o_.sesja.rsRODZINA.CancelBatch(); }

} // namespace tornel::personnel
