#include "rules/frmStaleKarta.h"
#include "okna/Wiazanie.h"
#include "okna/Wyglad.h"
#include "rules/frmStalePola.h"
#include "rules/UstawianieStalych.h"
#include <algorithm>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tornel::rules {

using namespace ekranStalych;

namespace {

constexpr int kSzerokoscOpisu = 14 * Wyglad::kSiatka;
constexpr int kZnakiNumeru = 2;
constexpr int kZnakiNominalu = 6;
/// Longer captions are broken into lines; beside the help there is less room for them.
constexpr int kNajszerszyPodpis = 46 * Wyglad::kSiatka;
constexpr int kNajszerszyObokPomocy = 36 * Wyglad::kSiatka;

/// Where a frame stands, seen from the one before it.
enum class Miejsce {
    Pod,       ///< below it
    Obok,      ///< in a new column to its right
    NowyRzad,  ///< in a new row below all columns
    PodPomoca, ///< in a new row that runs below the help as well
};

/// The frame that begins with constant `num`. Frames not named stand below each other, in one column of
/// fields.
struct Ulozenie {
    int num;
    Miejsce miejsce = Miejsce::Pod;
    int kolumn = 1;
};

constexpr Ulozenie kUlozenia[] = {
    {4, Miejsce::Obok},     {150, Miejsce::Pod, 3},   {151, Miejsce::Pod, 3}, {206, Miejsce::PodPomoca, 5},
    {207, Miejsce::Pod, 5}, {104, Miejsce::Pod, 2},   {105, Miejsce::Pod, 2}, {106, Miejsce::PodPomoca},
    {107, Miejsce::Pod, 5}, {252, Miejsce::NowyRzad}, {253, Miejsce::Obok},   {254, Miejsce::NowyRzad},
    {300, Miejsce::Pod, 2}, {311, Miejsce::Pod, 2},   {330, Miejsce::Pod, 2}, {350, Miejsce::Pod, 2},
    {370, Miejsce::Pod, 2}, {412, Miejsce::Pod, 2},   {510, Miejsce::Pod, 2}, {210, Miejsce::Pod, 2},
};

Ulozenie ulozenie(const Ramka& ramka) {
    const int num = ramka.stale.first()->num;
    const auto* ta = std::ranges::find(kUlozenia, num, &Ulozenie::num);
    return ta == std::end(kUlozenia) ? Ulozenie{num} : *ta;
}

struct WierszPomocy {
    QStringView znak;
    QStringView opis;
};
constexpr WierszPomocy kOperatory[] = {
    {u"( )", u"Nawiasy"},
    {u"^", u"Operator potęgowania (np. 2^3 = 8)"},
    {u"#", u"Pierwiastek kwadratowy (np. #9 = 3)"},
    {u"%", u"Operator procenta (20% = 0,2)"},
    {u"*", u"Operator mnożenia"},
    {u"/", u"Operator dzielenia"},
    {u"+", u"Operator dodawania"},
    {u"-", u"Operator odejmowania"},
};
// Deliberate: the formulas know DU1 to DU15 only, and LU reads the same ones; the help keeps its words.
constexpr WierszPomocy kZmienne[] = {
    {u"SGP", u"Podstawowa stawka nadgodzinowa"},
    {u"STZ", u"Stawka zasadnicza"},
    {u"STC", u"Podstawowa stawka czasowa"},
    {u"WS1, WS2", u"Wskaźniki dodatkowe zapisane w kadrach"},
    {u"DD1..DD30", u"Dodatnie składniki płac zapisane w kadrach"},
    {u"DU1..DU30", u"Ujemne składniki płac zapisane w kadrach"},
    {u"LD1..LD30", u"Dodatnie składniki płac zapisane na liście"},
    {u"LU1..LU30", u"Ujemne składniki płac zapisane na liście"},
};

QLabel* napis(const QString& tekst) {
    auto* etykieta = new QLabel(tekst);
    etykieta->setTextFormat(Qt::PlainText);
    return etykieta;
}

void dodajWiersze(QGridLayout& siatka, std::span<const WierszPomocy> wiersze) {
    for (const WierszPomocy& w : wiersze) {
        const int wiersz = siatka.rowCount();
        siatka.addWidget(napis(w.znak.toString()), wiersz, 0);
        siatka.addWidget(napis(w.opis.toString()), wiersz, 1);
    }
}

QGroupBox* pomoc() {
    auto* ramka = new QGroupBox(QStringLiteral("Wzory"));
    ramka->setObjectName(QStringLiteral("fraPomoc"));
    auto* uklad = new QVBoxLayout(ramka);
    auto* siatka = new QGridLayout;
    siatka->setVerticalSpacing(0);
    siatka->setColumnStretch(1, 1);
    dodajWiersze(*siatka, kOperatory);
    siatka->setRowMinimumHeight(siatka->rowCount(), Wyglad::kSiatka / 2);
    dodajWiersze(*siatka, kZmienne);
    uklad->addLayout(siatka);
    QLabel* uwaga = napis(QStringLiteral("Znakiem dziesiętnym jest przecinek.\n"
                                         "Liczby ujemne muszą stać w nawiasach."));
    uwaga->setProperty("podpowiedz", true);
    uklad->addWidget(uwaga);
    uklad->addStretch();
    return ramka;
}

bool numerSkladnika(const StalaDef& stala) {
    return stala.sprawdzenie == SprawdzenieStalej::Numer ||
           stala.sprawdzenie == SprawdzenieStalej::NumerJedyny;
}

/// A field that is narrower than the texts it takes.
void zwez(QWidget& pole, int znaki) {
    pole.setFixedWidth(pole.fontMetrics().horizontalAdvance(QLatin1Char('0')) * znaki + 2 * Wyglad::kSiatka);
}

void wykoncz(const StalaDef& stala, std::size_t element, Wiazanie& wiazanie) {
    const QString nazwa = nazwaPola(stala, element);
    QWidget* kontrolka = wiazanie.kontrolka(nazwa);
    kontrolka->setToolTip(podpowiedz(stala));
    auto* linia = qobject_cast<QLineEdit*>(kontrolka);
    const bool numer = numerSkladnika(stala);
    if (numer || stala.sprawdzenie == SprawdzenieStalej::Zaokraglenie) zwez(*kontrolka, kZnakiNumeru);
    if (stala.sprawdzenie == SprawdzenieStalej::Nominal) zwez(*kontrolka, kZnakiNominalu);
    if (linia && linia->maximumWidth() < QWIDGETSIZE_MAX && stala.sprawdzenie != SprawdzenieStalej::Znak &&
        stala.sprawdzenie != SprawdzenieStalej::Data)
        linia->setAlignment(Qt::AlignRight);
    if (numer) wiazanie.dolacz(nazwa, new OpisPola(QStringLiteral("lab") + nazwa.mid(3)));
    // What a screen reader says has to be more than the number of an element.
    QString opis = stala.napis.isEmpty() ? stala.ramka.toString() : stala.napis.toString();
    if (tablica(stala)) opis += QStringLiteral(" %1").arg(element + 1);
    kontrolka->setAccessibleName(nazwaDostepna(opis));
}

void wykoncz(const Ramka& ramka, Wiazanie& wiazanie) {
    for (const StalaDef* stala : ramka.stale)
        for (std::size_t i = 0; i < ileElementow(*stala); ++i) wykoncz(*stala, i, wiazanie);
}

/// Arrays whose elements have captions of their own, side by side in one frame.
QGroupBox* ramkaTablic(const Ramka& ramka, Wiazanie& wiazanie) {
    auto* pudlo = new QGroupBox(ramka.tytul);
    auto* uklad = new QHBoxLayout(pudlo);
    for (const StalaDef* stala : ramka.stale)
        uklad->addWidget(wiazanie.grupa(stala->napis.toString(), pola(*stala, Podpisy::Kolejne)), 1);
    return pudlo;
}

QGroupBox* zbudujRamke(const Ramka& ramka, int kolumn, Wiazanie& wiazanie) {
    const bool tablice = std::ranges::all_of(ramka.stale, [](const StalaDef* s) { return tablica(*s); });
    if (tablice && !ramka.stale.first()->opcje.empty()) return ramkaTablic(ramka, wiazanie);
    QList<Pole> wszystkie;
    for (const StalaDef* stala : ramka.stale)
        wszystkie += pola(*stala, stala->ramka.isEmpty() ? Podpisy::Kolejne : Podpisy::Wspolny, ramka.tytul);
    return wiazanie.grupa(ramka.tytul, wszystkie, kolumn, BezPodpisu::PodPodpisami);
}

/// Whether a frame's fields stand below those of its neighbours. The rows of an array have short captions
/// and need the room.
enum class Wyrownanie { Wspolne, Wlasne };

Wyrownanie wyrownanie(const Ramka& ramka) {
    return tablica(*ramka.stale.first()) ? Wyrownanie::Wlasne : Wyrownanie::Wspolne;
}

/// The rows and columns of one tab.
class Kartka {
public:
    explicit Kartka(QWidget& strona) : strona_(new QVBoxLayout(&strona)) {
        auto* gora = new QHBoxLayout;
        rzedy_ = new QVBoxLayout;
        gora->addLayout(rzedy_, 1);
        strona_->addLayout(gora);
        gora_ = gora;
    }

    void dodaj(QGroupBox* ramka, Miejsce miejsce, Wyrownanie wyrownanie) {
        if (miejsce == Miejsce::PodPomoca) {
            zamknijKolumny();
            rzedy_ = strona_;
        }
        if (!rzad_ || miejsce == Miejsce::NowyRzad || miejsce == Miejsce::PodPomoca) {
            zamknijKolumny();
            rzedy_->addLayout(rzad_ = new QHBoxLayout);
            nowaKolumna();
        } else if (miejsce == Miejsce::Obok) {
            nowaKolumna();
        }
        kolumny_.last()->addWidget(ramka);
        if (wyrownanie == Wyrownanie::Wspolne) ramki_.last().append(ramka);
    }
    void dodajPomoc(QGroupBox* ramka) {
        gora_->addWidget(ramka, 0, Qt::AlignTop);
        najszerszyPodpis_ = kNajszerszyObokPomocy;
    }

    void zakoncz() {
        zamknijKolumny();
        strona_->addStretch();
        for (const QList<QGroupBox*>& kolumna : std::as_const(ramki_))
            wyrownajPodpisy(kolumna, najszerszyPodpis_);
    }

private:
    void nowaKolumna() {
        auto* kolumna = new QVBoxLayout;
        rzad_->addLayout(kolumna, 1);
        kolumny_.append(kolumna);
        ramki_.append(QList<QGroupBox*>());
    }
    void zamknijKolumny() {
        for (QVBoxLayout* kolumna : std::as_const(kolumny_)) kolumna->addStretch();
        kolumny_.clear();
    }

    QVBoxLayout* strona_;
    QHBoxLayout* gora_;
    QVBoxLayout* rzedy_;
    QHBoxLayout* rzad_ = nullptr;
    int najszerszyPodpis_ = kNajszerszyPodpis;
    QList<QVBoxLayout*> kolumny_;
    QList<QList<QGroupBox*>> ramki_;
};

} // namespace

OpisPola::OpisPola(const QString& nazwa) {
    setObjectName(nazwa);
    setTextFormat(Qt::PlainText);
    setProperty("podpowiedz", true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize OpisPola::sizeHint() const { return {kSzerokoscOpisu, QLabel::sizeHint().height()}; }

void OpisPola::paintEvent(QPaintEvent*) {
    QPainter malarz(this);
    malarz.setPen(palette().color(foregroundRole()));
    malarz.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                    fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
}

QScrollArea* zbudujKarte(KartaStalych karta, Wiazanie& wiazanie) {
    auto* strona = new QWidget;
    Kartka kartka(*strona);
    bool wzory = false;
    for (const Ramka& ramka : ramki(karta)) {
        const Ulozenie u = ulozenie(ramka);
        kartka.dodaj(zbudujRamke(ramka, u.kolumn, wiazanie), u.miejsce, wyrownanie(ramka));
        wykoncz(ramka, wiazanie);
        wzory |= std::ranges::any_of(
            ramka.stale, [](const StalaDef* s) { return s->sprawdzenie == SprawdzenieStalej::Wzor; });
    }
    if (wzory) kartka.dodajPomoc(pomoc());
    kartka.zakoncz();
    auto* przewijanie = new QScrollArea;
    przewijanie->setWidget(strona);
    przewijanie->setWidgetResizable(true);
    przewijanie->setFrameShape(QFrame::NoFrame);
    return przewijanie;
}

void NadgSzczeg(Wiazanie& wiazanie, bool szczegolowa) {
    const StalaDef& grupy = wymaganaStala(kRowNGGr);
    std::size_t rzad = 0;
    for (const int num : {kRowNGRob, kRowNGSob, kRowNGNie}) {
        const StalaDef& dni = wymaganaStala(num);
        const QString podpis = (szczegolowa ? dni.napis : grupy.opcje[rzad]).toString();
        wiazanie.ustawPodpis(nazwaPola(dni), podpis);
        for (std::size_t i = 0; i < kRownanWRzedzie; ++i) {
            QWidget* okienko = wiazanie.kontrolka(nazwaPola(dni, i));
            okienko->setAccessibleName(nazwaDostepna(podpis) + QStringLiteral(" %1").arg(i + 1));
            const bool uzywane = szczegolowa || rzad * kRownanWRzedzie + i < ileElementow(grupy);
            QSizePolicy miejsce = okienko->sizePolicy();
            miejsce.setRetainSizeWhenHidden(true);
            okienko->setSizePolicy(miejsce);
            okienko->setVisible(uzywane);
        }
        ++rzad;
    }
}

} // namespace tornel::rules
