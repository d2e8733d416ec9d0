#include "reports/umowy/Pismo.h"

namespace tornel::reports {

namespace {

constexpr double kPodpis = 66, kKwota = 140, kKomorka = 31, kMiejscePodpisu = 70; // mm
const QString kKropki(48, QLatin1Char('.'));

} // namespace

QString zlote(Waluta kwota) { return tekstPola(kwota, Format::Kwota) + QStringLiteral(" zł"); }

QString dataPisma(QDate data) {
    return data.isValid() ? data.toString(QStringLiteral("dd/MM/yyyy")) : QString();
}

PismoDoPodpisu::PismoDoPodpisu(const QString& nazwa, const QString& tytul, double linia) : linia_(linia) {
    opis_.nazwa = nazwa;
    opis_.tytul = tytul;
    opis_.strona.lewy = opis_.strona.prawy = 18;
    opis_.strona.gorny = opis_.strona.dolny = 14;
}

QList<Wartosc>& PismoDoPodpisu::nowa() {
    QList<Wartosc> pusta;
    for (int i = 0; i < kKolumnPisma; ++i) pusta.append(QString());
    wiersze_.append(std::move(pusta));
    return wiersze_.last();
}

void PismoDoPodpisu::dodaj(Kolumny kolumna, const QString& tekst) { nowa()[kolumna] = tekst; }

void PismoDoPodpisu::para(QStringView podpis, const QString& wartosc) {
    QList<Wartosc>& w = nowa();
    w[KolPodpis] = podpis.toString();
    w[KolWartosc] = wartosc.trimmed();
}

void PismoDoPodpisu::kwota(QStringView podpis, Waluta kwota) {
    QList<Wartosc>& w = nowa();
    w[KolOpisKwoty] = podpis.toString();
    w[KolKwota] = zlote(kwota);
}

void PismoDoPodpisu::wiersz(QStringView podpis, const QString& a, const QString& b, const QString& c) {
    QList<Wartosc>& w = nowa();
    w[KolOpis] = podpis.toString();
    w[KolA] = a;
    w[KolB] = b;
    w[KolC] = c;
}

void PismoDoPodpisu::podpisy(QStringView lewy, QStringView prawy) {
    odstep();
    QList<Wartosc>& kropki = nowa();
    if (!lewy.isEmpty()) kropki[KolLewy] = kKropki;
    if (!prawy.isEmpty()) kropki[KolPrawy] = kKropki;
    QList<Wartosc>& w = nowa();
    w[KolLewy] = lewy.toString();
    w[KolPrawy] = prawy.toString();
}

std::shared_ptr<const Uklad> PismoDoPodpisu::uloz() {
    const double szer = opis_.strona.szerTresci();
    const auto element = [this](Element::Rodzaj rodzaj, int pole, double x, double szerokosc,
                                Pismo pismo = Pismo::Zwykle, Ulozenie ulozenie = Ulozenie::Lewo) {
        return Element{.rodzaj = rodzaj,
                       .miejsce = {x, 0, szerokosc, linia_},
                       .pole = pole,
                       .pismo = pismo,
                       .ulozenie = ulozenie};
    };
    using enum Element::Rodzaj;
    const double trzy = szer - 3 * kKomorka;
    opis_.arkusze = {
        {{.rola = Rola::Wiersz,
          .wys = linia_,
          .elementy = {element(Pole, KolTytul, 0, szer, Pismo::Podtytul, Ulozenie::Srodek),
                       element(Pole, KolSrodtytul, 0, szer, Pismo::Wazne),
                       element(Akapit, KolAkapit, 0, szer),
                       element(Pole, KolPrawa, 0, szer, Pismo::Zwykle, Ulozenie::Prawo),
                       element(Akapit, KolPodpis, 0, kPodpis - 2),
                       element(Akapit, KolWartosc, kPodpis, szer - kPodpis, Pismo::Wazne),
                       element(Pole, KolOpisKwoty, 0, kKwota - 2),
                       element(Pole, KolKwota, kKwota, szer - kKwota, Pismo::Wazne, Ulozenie::Prawo),
                       element(Pole, KolOpis, 0, trzy - 2),
                       element(Pole, KolA, trzy, kKomorka, Pismo::Zwykle, Ulozenie::Prawo),
                       element(Pole, KolB, trzy + kKomorka, kKomorka, Pismo::Zwykle, Ulozenie::Prawo),
                       element(Pole, KolC, trzy + 2 * kKomorka, kKomorka, Pismo::Zwykle, Ulozenie::Prawo),
                       element(Pole, KolLewy, 0, kMiejscePodpisu, Pismo::Drobne, Ulozenie::Srodek),
                       element(Pole, KolPrawy, szer - kMiejscePodpisu, kMiejscePodpisu, Pismo::Drobne,
                               Ulozenie::Srodek)}}}};
    for (const char16_t* nazwa : {u"TYTUL", u"SRODTYTUL", u"AKAPIT", u"PRAWA", u"PODPIS", u"WARTOSC",
                                  u"OPIS_KWOTY", u"KWOTA", u"OPIS", u"A", u"B", u"C", u"LEWY", u"PRAWY"})
        opis_.nazwyPol.append(QString::fromUtf16(nazwa));
    return std::make_shared<Uklad>(opis_, std::make_shared<WierszeWPamieci>(wiersze_));
}

} // namespace tornel::reports
