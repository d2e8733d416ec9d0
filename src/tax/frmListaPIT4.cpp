#include "tax/frmListaPIT4.h"
#include "common/Liczby.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "rules/Stale.h"
#include "tax/frmKontrolaPIT4.h"
#include "tax/frmListaPIT4Nowy.h"
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace tornel::tax {

using schemat::PIT4;

namespace {

constexpr int kSzerokosc = 142 * Wyglad::kSiatka, kWysokosc = 84 * Wyglad::kSiatka;

const QString kNaglowekKarta = QStringLiteral("Nagłówek");
const QString kZrodlaKarta = QStringLiteral("Źródła przychodów");
const QString kPozycjeKarta = QStringLiteral("Pozycje 10 do 17");
const QString kWplataKarta = QStringLiteral("Wpłata");

Pole polePIT4(const char16_t* nazwa, const char16_t* podpis, std::string_view kolumna,
              Rodzaj rodzaj = Rodzaj::Tekst) {
    return {QString::fromUtf16(nazwa), QString::fromUtf16(podpis), PIT4.nr(PIT4.numer(kolumna)), rodzaj};
}

QList<GrupaPol> grupyNaglowka() {
    return {
        {QStringLiteral("DEKLARACJA"),
         {polePIT4(u"txtMiesTyt", u"Nagłówek - miesiąc:", "mies_tyt", Rodzaj::Liczba),
          polePIT4(u"txtRokTyt", u"Nagłówek - rok:", "rok_tyt", Rodzaj::Liczba),
          polePIT4(u"txtUs", u"Urząd skarbowy:", "us")},
         1,
         kNaglowekKarta},
        {QStringLiteral("PŁATNIK"),
         {polePIT4(u"txtNip", u"NIP:", "Nip"), polePIT4(u"txtNazwa", u"Nazwa:", "Nazwa"),
          polePIT4(u"txtPlaNiefiz", u"Niebędący osobą fizyczną (x):", "pla_niefiz"),
          polePIT4(u"txtPlaFiz", u"Osoba fizyczna (x):", "pla_fiz"), polePIT4(u"txtKraj", u"Kraj:", "kraj"),
          polePIT4(u"txtWoj", u"Województwo:", "woj"), polePIT4(u"txtPowiat", u"Powiat:", "powiat"),
          polePIT4(u"txtGmina", u"Gmina:", "gmina"), polePIT4(u"txtUlica", u"Ulica:", "ulica"),
          polePIT4(u"txtNrDom", u"Nr domu:", "nr_dom"), polePIT4(u"txtNrLok", u"Nr lokalu:", "nr_lok"),
          polePIT4(u"txtMiejsc", u"Miejscowość:", "miejsc"),
          polePIT4(u"txtKodPocz", u"Kod pocztowy:", "kod_pocz"),
          polePIT4(u"txtPoczta", u"Poczta:", "poczta")},
         2,
         kNaglowekKarta},
        {QStringLiteral("INFORMACJE OPISOWE:"),
         {polePIT4(u"txtInfOpis", u"", "inf_opis", Rodzaj::Notatka)},
         1,
         kNaglowekKarta},
    };
}

Wiazanie::Rzad rzadZrodla(int n) {
    using namespace wierszPit4;
    static constexpr std::pair<const char16_t*, Rodzaj> kolumny[] = {{u"txtPrzy", Rodzaj::Liczba},
                                                                     {u"txtKup", Rodzaj::Kwota},
                                                                     {u"txtPobZal", Rodzaj::Kwota},
                                                                     {u"txtUbzdrPob", Rodzaj::Kwota},
                                                                     {u"txtUbzdrOdl", Rodzaj::Kwota}};
    Wiazanie::Rzad rzad{QString::number(n) + u'.', {}};
    int kolumna = przy;
    for (const auto& [nazwa, rodzaj] : kolumny)
        rzad.pola.append({QString::fromUtf16(nazwa) + QString::number(n),
                          {},
                          zrodlo(n, static_cast<Kolumny>(kolumna++)),
                          rodzaj});
    return rzad;
}

GrupaPol grupaZrodel() {
    GrupaPol g{QStringLiteral("ZALICZKI NA PODATEK"), {}, 1, kZrodlaKarta};
    g.naglowki = {QStringLiteral("Liczba poda- tników"),
                  QStringLiteral("Suma wypłat podlegających opodatkowaniu z wyjątkiem zwol"),
                  QStringLiteral("Należne zaliczki"), QStringLiteral("pobrane"), QStringLiteral("odliczone")};
    for (int n = 1; n <= wierszPit4::Zrodel; ++n) g.rzedy.append(rzadZrodla(n));
    return g;
}

GrupaPol grupaPozycji() {
    // The words are the form's of the year, spelled as the system always had them.
    static constexpr const char16_t* kPodpisy[] = {
        u"Kwota zaliczek, których pobór został ograniczony na podstawie art. 32 ust. 2 ustawy",
        u"Kwota przypadająca do pobrania w związku z ogr. poboru zaliczek w poprzednich miesiącach, "
        u"dokonanym "
        u"na podstawie art. 32 ust. 2 ust.",
        u"Kwota dodatkowo pobranego podatku z rozliczenia za rok ubiegły",
        u"Zaliczenie nadpłaty wynikającej z rozliczenia za rok ubiegły",
        u"Zwrot nadpłaty w gotówce z rozliczenia za rok ubiegły",
        u"Kwota pobranego podatku, przekazana na PFRON oraz zakładowy fundusz rehabilitacji osób "
        u"niepełnosprawnych",
        u"Kwota pobr. zaliczek na pod. dochodowy od wypłat należności  z tytułu działalności określonej w "
        u"art.13 pkt 2 i 5-9 ustawy, z praw autorskich i praw pokrewnych, o  których mowa w art.42 ust.1 pkt "
        u"1 "
        u"ustawy",
        u"Kwta potrąc. wynagrodzenia z tytułu terminowego wpłacania podatku dochodowego z poz. 66 - zgodnie "
        u"z "
        u"art. 28 ust. - Ordynacja podatkowa",
    };
    GrupaPol g{QStringLiteral("ROZLICZENIE"), {}, 1, kPozycjeKarta, {QStringLiteral("kwota")}};
    for (int n = wierszPit4::OdPozycji; n <= wierszPit4::DoPozycji; ++n)
        g.rzedy.append(
            {QStringLiteral("%1.  %2").arg(n).arg(QString::fromUtf16(kPodpisy[n - wierszPit4::OdPozycji])),
             {{QStringLiteral("txtPobZal%1").arg(n), {}, wierszPit4::kwotaPozycji(n), Rodzaj::Kwota}}});
    return g;
}

QList<GrupaPol> grupyWplaty() {
    Pole sposob = polePIT4(u"cboPrzekazano", u"Sposób przekazania należności:", "przekazano", Rodzaj::Wybor);
    const QString sposoby[] = {QStringLiteral("0 - "), QStringLiteral("1 - do kasy urzędu"),
                               QStringLiteral("2 - przekazem pocztowym"),
                               QStringLiteral("3 - z rachunku bankowego")};
    for (const QString& opis : sposoby) sposob.pozycje.append({qint64{sposob.pozycje.size()}, opis});
    return {
        {QStringLiteral("OSOBA WYPEŁNIAJĄCA"),
         {polePIT4(u"txtImie", u"Osoba wypełniająca PIT-4:", "Imie"), polePIT4(u"txtNazw", u"", "Nazw"),
          polePIT4(u"txtDataWyp", u"Data wypełnienia PIT-4:", "data_wyp", Rodzaj::Data)},
         1,
         kWplataKarta},
        {QStringLiteral("PRZEKAZANIE"),
         {polePIT4(u"txtDataWplaty", u"Data wypłaty (przekazania) należności:", "datawplaty", Rodzaj::Data),
          polePIT4(u"txtKwotaZapl", u"Wysokość kwoty przekazanej do urzędu skarbowego:", "kwota_zapl",
                   Rodzaj::Kwota),
          sposob},
         1,
         kWplataKarta},
        {QStringLiteral("Wyjaśnienie różnicy między kwotą pobranego podatku a kwotą wpłacanego  podatku:") +
             QStringLiteral(" ") + QStringLiteral("(po 140 znaków w lini)"),
         {polePIT4(u"txtRoznica", u"", "roznica", Rodzaj::Notatka)},
         1,
         kWplataKarta},
    };
}

OpisListyPol opisPIT4(const QList<QPushButton*>& przyciski) {
    OpisListyPol o;
    o.nazwa = QStringLiteral("frmListaPIT4");
    o.tytul = QStringLiteral("Lista deklaracji PIT-4");
    o.kolumny = {{QStringLiteral("DEKLARACJA"), Qt::AlignLeft},
                 {QStringLiteral("MIESIĄC"), Qt::AlignLeft, Porzadek::Data},
                 {QStringLiteral("ZALICZKI"), Qt::AlignRight}};
    o.udzialy = {36, 28, 36};
    o.szerokosc = 300;
    o.pustaLista =
        QStringLiteral("Nie ma jeszcze żadnej deklaracji.\nPrzycisk „Nowy” tworzy ją z list płac miesiąca.");
    o.szukaj = QStringLiteral("Szukaj: 200105 lub miesiąc");
    o.kolumnaNumeru = 0;
    o.kolumnaNazwy = 1;
    o.zakladki = QStringLiteral("tabPIT4");
    o.grupy = grupyNaglowka() + QList{grupaZrodel(), grupaPozycji()} + grupyWplaty();
    o.przyciski = przyciski;
    return o;
}

/// Line 1, as people read it.
QString opisWiersza1(const Wiersz1Pit4& w) {
    return QStringLiteral("podatników %1, wypłaty %2, zaliczki %3, ub. zdrowotne %4")
        .arg(w.podatnikow)
        .arg(FormatKwoty(w.przychod), FormatKwoty(w.zaliczka), FormatKwoty(w.ubzdr));
}

} // namespace

frmListaPIT4::frmListaPIT4(Otoczenie& otoczenie, PortWydrukowDeklaracji port, QWidget* rodzic)
    : frmListaPIT4(otoczenie, std::move(port), rodzic,
                   przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj"),
                   przycisk(QStringLiteral("cmdKontrola"), QStringLiteral("&Kontrola roku"))) {}

frmListaPIT4::frmListaPIT4(Otoczenie& otoczenie, PortWydrukowDeklaracji port, QWidget* rodzic,
                           QPushButton* druk, QPushButton* kontrola)
    : frmListaPol(otoczenie.rozmowa,
                  std::make_unique<ZrodloWierszy>(std::initializer_list<Recordset*>{&otoczenie.sesja.rsPIT4}),
                  opisPIT4({druk, kontrola}), rodzic),
      o_(otoczenie), port_(std::move(port)), pit4_(otoczenie), labNieaktualne_(Wyglad::baner({}, this)),
      cmdDrukuj_(druk) {
    labNieaktualne_->setObjectName(QStringLiteral("labNieaktualne"));
    labNieaktualne_->setWordWrap(true);
    dodajNadPolami(labNieaktualne_);
    druk->setVisible(static_cast<bool>(port_.drukuj));
    connect(druk, &QPushButton::clicked, this, &frmListaPIT4::drukuj);
    connect(kontrola, &QPushButton::clicked, this, &frmListaPIT4::kontroluj);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, druk, &QPushButton::click);
    resize(std::max(width(), kSzerokosc), std::max(height(), kWysokosc)); // whole tabs without scrolling
    Wczytaj();
}

QList<qint64> frmListaPIT4::numery() {
    QList<qint64> wynik;
    for (const KluczPit4& k : pit4_.lista()) wynik.append(k.id());
    return wynik;
}

QStringList frmListaPIT4::tekstyWiersza(qint64 id) {
    const KluczPit4 klucz = KluczPit4::zId(id);
    (void)pit4_.zaznacz(klucz);
    return {klucz.napis(), klucz.miesiac.napis(), FormatKwoty(SumyDeklaracji(rs().biezacyWiersz()).SUMA1)};
}

bool frmListaPIT4::zapisz(qint64 id) {
    rs().UpdateBatch(QStringLiteral("Deklaracja PIT-4 %1").arg(KluczPit4::zId(id).napis()));
    return true;
}

std::optional<qint64> frmListaPIT4::utworz() {
    frmListaPIT4Nowy pytanie(
        QDate::currentDate(),
        o_.stale.AktOpWieluList ? frmListaPIT4Nowy::Listy::Pytaj : frmListaPIT4Nowy::Listy::Nie, this);
    if (pytanie.exec() != Accepted || pytanie.mies() == 0 || pytanie.rok() == 0) return std::nullopt;
    const auto nowa =
        pit4_.Nowy({{pytanie.rok(), pytanie.mies()}, pytanie.numer()}, pytanie.listy(), QDate::currentDate());
    return nowa ? std::optional(nowa->id()) : std::nullopt;
}

void frmListaPIT4::pokazano(qint64 id) {
    cmdDrukuj_->setEnabled(id >= 0);
    const auto dzis = id >= 0 ? pit4_.dzisiejsze() : std::nullopt;
    const bool nieaktualne = dzis && *dzis != pit4_.zapisane();
    Wyglad::ustawBaner(
        *labNieaktualne_,
        nieaktualne ? QStringLiteral("Listy płac tego miesiąca dają dziś w wierszu 1 inne kwoty: %1.\n"
                                     "Deklaracja ma: %2. Miesiąc albo wiersz zmieniono po jej utworzeniu.")
                          .arg(opisWiersza1(*dzis), opisWiersza1(pit4_.zapisane()))
                    : QString());
}

void frmListaPIT4::drukuj() {
    if (!port_.drukuj || !Wpisz() || biezacy() < 0 || !przejdz(biezacy())) return;
    if (o_.rozmowa.pytanie(QStringLiteral("Czy drukować pierwszą stronę PIT-4 ?"))) DrukStr1();
    if (o_.rozmowa.pytanie(QStringLiteral("Czy drukować drugą stronę PIT-4 ?"))) DrukStr2();
}

void frmListaPIT4::drukujStrone(int strona) {
    if (przejdz(biezacy())) port_.drukuj(WierszDeklaracji(Deklaracja::Pit4, rs()), strona, this);
}

void frmListaPIT4::kontroluj() {
    if (!Wpisz()) return;
    const int rok = biezacy() >= 0 ? KluczPit4::zId(biezacy()).miesiac.rok : QDate::currentDate().year();
    frmKontrolaPIT4(o_, rok, this).exec();
}

} // namespace tornel::tax
