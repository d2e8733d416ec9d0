#include "reports/deklaracje/StronaFormularza.h"
#include "druk/Pisma.h"
#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace tornel::reports {

namespace {

constexpr double kMargines = 1.2;
constexpr double kPodpis = 2.8; ///< height of a caption's line
constexpr double kZnak = 4;     ///< side of a little square

/// Tenths of a millimetre, so that a line is where its box ends.
int jednostki(double mm) { return static_cast<int>(std::lround(mm * 10)); }

QByteArray prostokat(const Miejsce& m) {
    return QByteArrayLiteral("<rect x=\"") + QByteArray::number(jednostki(m.x)) + "\" y=\"" +
           QByteArray::number(jednostki(m.y)) + "\" width=\"" + QByteArray::number(jednostki(m.szer)) +
           "\" height=\"" + QByteArray::number(jednostki(m.wys)) + "\"/>\n";
}

} // namespace

StronaFormularza::StronaFormularza(const TabelaDef& tabela, QList<std::string_view> sumy, QStringView obraz,
                                   int pierwszy)
    : tabela_(tabela), sumy_(std::move(sumy)), obraz_(obraz), numer_(pierwszy) {}

void StronaFormularza::tytul(QStringView symbol, QStringView nazwa, QStringView stopka) {
    napis({0, y_ + 2, 40, 7}, symbol.toString(), Pismo::Tytul);
    napis({40, y_ + 1, kSzer - 40, 5.5}, nazwa.toString(), Pismo::Podtytul, Ulozenie::Srodek);
    napis({40, y_ + 6.5, kSzer - 40, 3.4}, stopka.toString(), Pismo::Drobne, Ulozenie::Srodek);
    y_ += 12;
}

void StronaFormularza::czesc(QStringView tekst) {
    const Miejsce pasek{0, y_, kSzer, 5.2};
    tla_.append(pasek);
    ramki_.append(pasek);
    napis({kMargines, y_ + 0.6, kSzer - 2 * kMargines, 4}, tekst.toString(), Pismo::Naglowek);
    y_ += pasek.wys;
}

void StronaFormularza::podczesc(QStringView tekst) {
    const Miejsce pasek{0, y_, kSzer, 4.4};
    ramki_.append(pasek);
    napis({kMargines, y_ + 0.5, kSzer - 2 * kMargines, 3.4}, tekst.toString(), Pismo::Drobne);
    y_ += pasek.wys;
}

void StronaFormularza::rzad(const QList<Kratka>& kratki, double wys) {
    double razem = 0, x = 0;
    for (const Kratka& k : kratki) razem += k.szer;
    for (const Kratka& k : kratki) {
        // The last one ends at the edge, whatever was rounded on the way.
        const double szer = &k == &kratki.last() ? kSzer - x : std::round(kSzer * k.szer / razem * 10) / 10;
        const Miejsce ramka{x, y_, szer, wys};
        ramki_.append(ramka);
        if (!k.podpis.isEmpty()) podpis(ramka, zNumerem(k.podpis));
        if (!k.kolumna.empty())
            pole({x + kMargines, y_ + kPodpis + 0.8, szer - 2 * kMargines, wys - kPodpis - 1.4}, k.kolumna,
                 k.format, k.format == Format::Kwota ? Ulozenie::Prawo : Ulozenie::Lewo, k.akapit);
        x += szer;
    }
    y_ += wys;
}

void StronaFormularza::wybor(QStringView naglowek, const QList<Kratka>& mozliwosci) {
    const double wys = 9.5;
    const Miejsce ramka{0, y_, kSzer, wys};
    ramki_.append(ramka);
    podpis(ramka, zNumerem(naglowek));
    double x = 30;
    const double krok = (kSzer - x) / static_cast<double>(mozliwosci.size());
    int nr = 1;
    for (const Kratka& k : mozliwosci) {
        const Miejsce znak{x, y_ + (wys - kZnak) / 2 + 0.6, kZnak, kZnak};
        ramki_.append(znak);
        pole({znak.x, znak.y - 0.2, kZnak, kZnak}, k.kolumna, Format::Tekst, Ulozenie::Srodek);
        napis({x + kZnak + kMargines, znak.y + 0.3, krok - kZnak - 2 * kMargines, 3.6},
              QStringLiteral("%1. %2").arg(nr++).arg(k.podpis), Pismo::Zwykle);
        x += krok;
    }
    y_ += wys;
}

void StronaFormularza::tabela(QStringView naglowek, const QList<KolumnaTabeli>& kolumny,
                              const QList<WierszTabeli>& wiersze, double wys) {
    double szerPodpisu = kSzer;
    for (const KolumnaTabeli& k : kolumny) szerPodpisu -= k.szer;
    const auto kolumnami = [&](double wysokosc, auto rysuj) {
        double x = szerPodpisu;
        for (qsizetype i = 0; i < kolumny.size(); ++i) {
            const Miejsce ramka{x, y_, kolumny[i].szer, wysokosc};
            ramki_.append(ramka);
            rysuj(i, ramka);
            x += kolumny[i].szer;
        }
        y_ += wysokosc;
    };
    constexpr double wysNaglowka = 10;
    tla_.append({0, y_, kSzer, wysNaglowka});
    ramki_.append({0, y_, szerPodpisu, wysNaglowka});
    napis({kMargines, y_ + 3, szerPodpisu - 2 * kMargines, 4}, naglowek.toString(), Pismo::Drobne);
    kolumnami(wysNaglowka, [&](qsizetype i, const Miejsce& m) {
        const QStringList linie = zlam(kolumny[i].naglowek.toString(), Pismo::Drobne, m.szer - 2 * kMargines);
        double y = m.y + (wysNaglowka - kPodpis * static_cast<double>(linie.size())) / 2;
        for (const QString& linia : linie) {
            napis({m.x + kMargines, y, m.szer - 2 * kMargines, kPodpis}, linia, Pismo::Drobne,
                  Ulozenie::Srodek);
            y += kPodpis;
        }
    });
    for (const WierszTabeli& w : wiersze) {
        const Miejsce opis{0, y_, szerPodpisu, wys};
        ramki_.append(opis);
        const Pismo pismo = w.razem ? Pismo::Naglowek : Pismo::Drobne;
        const QStringList linie = zlam(w.podpis.toString(), pismo, szerPodpisu - 2 * kMargines);
        double y = y_ + (wys - kPodpis * static_cast<double>(linie.size())) / 2;
        for (const QString& linia : linie) {
            napis({kMargines, y, szerPodpisu - 2 * kMargines, w.razem ? kPodpis + 0.8 : kPodpis}, linia,
                  pismo);
            y += kPodpis;
        }
        kolumnami(wys, [&](qsizetype i, const Miejsce& m) {
            if (i >= w.kolumny.size() || w.kolumny[i].empty()) {
                tla_.append(m);
                return;
            }
            podpis(m, zNumerem({}));
            pole({m.x + kMargines, m.y + wys - 5, m.szer - 2 * kMargines, 4.6}, w.kolumny[i],
                 kolumny[i].format, Ulozenie::Prawo);
        });
    }
}

void StronaFormularza::napis(const Miejsce& miejsce, const QString& tekst, Pismo pismo, Ulozenie ulozenie) {
    teksty_.push_back(tekst);
    napisy_.append({miejsce, teksty_.back(), pismo, ulozenie});
}

void StronaFormularza::podpis(const Miejsce& ramka, const QString& tekst) {
    napis({ramka.x + kMargines, ramka.y + 0.5, ramka.szer - 2 * kMargines, kPodpis}, tekst, Pismo::Drobne);
}

void StronaFormularza::pole(const Miejsce& miejsce, std::string_view kolumna, Format format,
                            Ulozenie ulozenie, bool akapit) {
    pola_.append({numerPola(kolumna), miejsce, format, ulozenie, Pismo::Formularz, 0, akapit});
}

QString StronaFormularza::zNumerem(QStringView podpis) {
    return QStringLiteral("%1. %2").arg(numer_++).arg(podpis).trimmed();
}

int StronaFormularza::numerPola(std::string_view kolumna) const {
    if (const int nr = tabela_.numer(kolumna); nr >= 0) return nr;
    const auto suma = std::ranges::find(sumy_, kolumna);
    if (suma == sumy_.end()) throw std::logic_error("no field " + std::string(kolumna));
    return static_cast<int>(tabela_.kolumny.size()) + static_cast<int>(suma - sumy_.begin());
}

const Formularz& StronaFormularza::formularz() {
    formularz_ = {obraz_,
                  kSzer,
                  kWys,
                  {napisy_.constData(), static_cast<std::size_t>(napisy_.size())},
                  {pola_.constData(), static_cast<std::size_t>(pola_.size())}};
    return formularz_;
}

QByteArray StronaFormularza::svg() const {
    QByteArray wynik = QByteArrayLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 ") +
                       QByteArray::number(jednostki(kSzer)) + ' ' + QByteArray::number(jednostki(kWys)) +
                       "\">\n<g fill=\"#ececec\">\n";
    for (const Miejsce& m : tla_) wynik += prostokat(m);
    wynik += "</g>\n<g fill=\"none\" stroke=\"#000\" stroke-width=\"2\">\n";
    for (const Miejsce& m : ramki_) wynik += prostokat(m);
    return wynik + "</g>\n</svg>\n";
}

} // namespace tornel::reports
