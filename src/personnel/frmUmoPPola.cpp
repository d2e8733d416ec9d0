#include "personnel/frmUmoPPola.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "store/Sesja.h"
#include <QComboBox>
#include <QHBoxLayout>

namespace tornel::personnel {

using schemat::M_PRACY;
using schemat::UMOP;

namespace {

constexpr int kSzerokoscListyUmoP = 102 * Wyglad::kSiatka;

const QString kZakladkaUmowa = QStringLiteral("Umowa"), kZakladkaKoniec = QStringLiteral("Rozwiązanie");

constexpr PozycjaDrukuUmoP kDrukUmoP[] = {
    {PismoOPrace::Umowa, u"Umowa o pracę"},
    {PismoOPrace::Zmiana, u"Zmiana warunków umowy"},
    {PismoOPrace::Wypowiedzenie, u"Wypowiedzenie umowy"},
    {PismoOPrace::Swiadectwo, u"Świadectwo pracy"},
};

constexpr OkresKonczacych kOkresyKonczacych[] = {
    {u"Wszystkie umowy", 0},
    {u"Kończące się w ciągu miesiąca", 1},
    {u"Kończące się w ciągu 2 miesięcy", 2},
    {u"Kończące się w ciągu 3 miesięcy", 3},
    {u"Kończące się w ciągu pół roku", 6},
};

constexpr QStringView kRodzajeNaLiscie[] = {u"próbny", u"określony", u"nieokreślony", u"dana praca"};

Pole poleUmoP(const char16_t* nazwa, const char16_t* podpis, std::string_view kolumna,
              Rodzaj rodzaj = Rodzaj::Tekst) {
    return {QString::fromUtf16(nazwa), QString::fromUtf16(podpis), UMOP.nr(UMOP.numer(kolumna)), rodzaj};
}

Pole wyborUmoP(const char16_t* nazwa, const char16_t* podpis, std::string_view kolumna,
               const QList<Pozycja>& pozycje) {
    Pole p = poleUmoP(nazwa, podpis, kolumna, Rodzaj::Wybor);
    p.pozycje = pozycje;
    return p;
}

QList<Pozycja> rodzajeDoWyboru() {
    QList<Pozycja> wynik;
    for (const QStringView nazwa : RodzajeUmowOPrace())
        wynik.append({qint64{wynik.size()}, nazwa.toString()});
    return wynik;
}

QList<Pozycja> sposobyDoWyboru() {
    QList<Pozycja> wynik;
    for (const OpisSposobu& sposob : SposobyRozwiazania())
        wynik.append({qint64{wynik.size()}, sposob.napis.toString()});
    return wynik;
}

QList<Pozycja> miejscaDoWyboru(Sesja& sesja) {
    QList<Pozycja> wynik{{qint64{0}, QString()}};
    Recordset miejsca(M_PRACY);
    miejsca.Open(sesja.cnPlace);
    miejsca.Sort({M_PRACY("MP_ID")});
    for (const Wiersz w : miejsca.wiersze())
        wynik.append({w.liczba(M_PRACY("MP_ID")), w.tekst(M_PRACY("Nazwa"))});
    return wynik;
}

QList<GrupaPol> grupyUmoP(Otoczenie& o) {
    Pole etat2 = poleUmoP(u"txtetat2", u"", "etat2", Rodzaj::Liczba);
    etat2.opis = QStringLiteral("Wymiar etatu, mianownik");
    Pole wypowiadalna =
        poleUmoP(u"chkwyp_2tyg", u"Za 2-tygodniowym wypowiedzeniem", "wyp_2tyg", Rodzaj::Flaga);
    wypowiadalna.opis = QStringLiteral("Umowę na czas określony dłuższy niż 6 miesięcy można rozwiązać za "
                                       "dwutygodniowym wypowiedzeniem (art. 33 Kodeksu pracy)");
    return {
        {QStringLiteral("UMOWA"),
         {poleUmoP(u"txtumop_nr", u"Numer umowy:", "umop_nr"),
          wyborUmoP(u"cborodzaj", u"Rodzaj:", "rodzaj", rodzajeDoWyboru()),
          poleUmoP(u"dtpdata_zaw", u"Data zawarcia:", "data_zaw", Rodzaj::Data),
          poleUmoP(u"dtpdata_od", u"Od dnia:", "data_od", Rodzaj::Data),
          poleUmoP(u"dtpdata_do", u"Do dnia:", "data_do", Rodzaj::Data), wypowiadalna},
         1,
         kZakladkaUmowa},
        {QStringLiteral("WARUNKI PRACY I PŁACY"),
         {poleUmoP(u"txtstanow", u"Stanowisko:", "stanow"), poleUmoP(u"txtdzial", u"Dział:", "dzial"),
          wyborUmoP(u"cbomp_id", u"Miejsce pracy:", "mp_id", miejscaDoWyboru(o.sesja)),
          poleUmoP(u"txtetat", u"Wymiar etatu:", "etat", Rodzaj::Liczba), etat2,
          poleUmoP(u"txtplaca_zas", u"Płaca zasadnicza:", "placa_zas", Rodzaj::Kwota),
          poleUmoP(u"txtSgp", u"Stawka godzinowa:", "Sgp", Rodzaj::Kwota),
          poleUmoP(u"txtPremia_pr", u"Premia procentowa:", "Premia_pr", Rodzaj::Kwota)},
         1,
         kZakladkaUmowa},
        {QStringLiteral("INNE WARUNKI"),
         {poleUmoP(u"txtinne_war", u"", "inne_war", Rodzaj::Notatka)},
         1,
         kZakladkaUmowa},
        {QStringLiteral("ROZWIĄZANIE UMOWY"),
         {wyborUmoP(u"cbosposob", u"Sposób:", "sposob", sposobyDoWyboru()),
          poleUmoP(u"dtpdata_wyp", u"Wypowiedziana:", "data_wyp", Rodzaj::Data),
          poleUmoP(u"dtpdata_roz", u"Ostatni dzień:", "data_roz", Rodzaj::Data)},
         1,
         kZakladkaKoniec},
        {QStringLiteral("PRZYCZYNA WYPOWIEDZENIA"),
         {poleUmoP(u"txtprzyczyna", u"", "przyczyna", Rodzaj::Notatka)},
         1,
         kZakladkaKoniec},
        {QStringLiteral("INFORMACJE OPISOWE"),
         {poleUmoP(u"txtinf_opis", u"", "inf_opis", Rodzaj::Notatka)},
         1,
         kZakladkaKoniec},
    };
}

/// What the list is filtered by.
QWidget* rzadFiltruUmoP() {
    auto* rzad = new QWidget;
    auto* uklad = new QHBoxLayout(rzad);
    uklad->setContentsMargins(0, 0, 0, 0);
    const std::pair<QStringView, QStringView> wybory[] = {
        {u"cboOsoba", u"Osoba"}, {u"cboRodzaj", u"Rodzaj umowy"}, {u"cboKoncza", u"Kończące się"}};
    for (const auto& [nazwa, opis] : wybory) {
        auto* wybor = new QComboBox;
        wybor->setObjectName(nazwa.toString());
        wybor->setAccessibleName(opis.toString());
        wybor->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        uklad->addWidget(wybor, 1);
    }
    return rzad;
}

} // namespace

std::span<const PozycjaDrukuUmoP> MenuDrukuUmoP() { return kDrukUmoP; }
std::span<const OkresKonczacych> OkresyKonczacych() { return kOkresyKonczacych; }

QString RodzajNaLiscie(const UmowaOPrace& umowa) {
    if (umowa.zmienia > 0) return QStringLiteral("zmiana");
    return umowa.rodzaj >= 0 && umowa.rodzaj < std::ssize(kRodzajeNaLiscie)
               ? kRodzajeNaLiscie[umowa.rodzaj].toString()
               : QString();
}

OpisListyPol OpisUmoP(Otoczenie& o) {
    OpisListyPol opis;
    opis.nazwa = QStringLiteral("frmUmoP");
    opis.tytul = QStringLiteral("Lista umów o pracę");
    opis.kolumny = {{QStringLiteral("NUMER")},
                    {QStringLiteral("PRACOWNIK")},
                    {QStringLiteral("RODZAJ")},
                    {QStringLiteral("OD"), Qt::AlignLeft, Porzadek::Data},
                    {QStringLiteral("DO"), Qt::AlignLeft, Porzadek::Data},
                    {QStringLiteral("STANOWISKO")},
                    {QStringLiteral("DZIAŁ")},
                    {QStringLiteral("MIEJSCE")},
                    {QStringLiteral("ETAT")},
                    {QStringLiteral("PŁACA"), Qt::AlignRight}};
    opis.udzialy = {9, 15, 12, 11, 11, 11, 9, 8, 5, 9};
    opis.pustaLista =
        QStringLiteral("Nie ma jeszcze umów o pracę.\nPrzycisk „Nowy” zakłada pierwszą z danymi "
                       "z kartoteki pracownika.");
    opis.szerokosc = kSzerokoscListyUmoP;
    opis.nadLista = rzadFiltruUmoP();
    opis.szukaj = QStringLiteral("Szukaj: numer umowy lub nazwisko");
    opis.grupy = grupyUmoP(o);
    opis.zakladki = QStringLiteral("tabUmoP");
    opis.przyciski = {
        przycisk(QStringLiteral("cmdZmiana"), QStringLiteral("&Zmiana warunków"), u"kopiuj"),
        przycisk(QStringLiteral("cmdKartoteka"), QStringLiteral("Do &kartoteki"), u"pracownicy"),
        przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj")};
    return opis;
}

} // namespace tornel::personnel
