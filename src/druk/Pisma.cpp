#include "druk/Pisma.h"
#include <array>
#include <QFontMetricsF>
#include <QHash>

namespace tornel::druk {

namespace {

struct OpisPisma {
    int dziesiateCzesciPunktu;
    bool grube;
    double wysLinii; // mm
};

/// By `Pismo`.
constexpr OpisPisma kPisma[] = {
    {140, true, 6.5}, // Tytul
    {100, true, 5.0}, // Podtytul
    {75, true, 3.8},  // Naglowek
    {80, false, 3.9}, // Zwykle
    {80, true, 3.9},  // Wazne
    {65, false, 3.2}, // Drobne
    {90, false, 4.4}, // Formularz
};

/// A font with the widths of the characters met so far.
struct ZmierzonePismo {
    explicit ZmierzonePismo(const OpisPisma& opis)
        : font(QStringLiteral("DejaVu Sans Condensed")), miary(font) {
        font.setStyleHint(QFont::SansSerif);
        font.setPixelSize(opis.dziesiateCzesciPunktu);
        font.setBold(opis.grube);
        font.setHintingPreference(QFont::PreferNoHinting);
        miary = QFontMetricsF(font);
        for (std::size_t znak = 0; znak < lacinskie.size(); ++znak)
            lacinskie[znak] = miary.horizontalAdvance(QChar(static_cast<ushort>(znak)));
    }
    [[nodiscard]] double szer(QChar znak) {
        if (znak.unicode() < lacinskie.size()) return lacinskie[znak.unicode()];
        auto znany = dalsze.constFind(znak);
        if (znany == dalsze.constEnd()) znany = dalsze.insert(znak, miary.horizontalAdvance(znak));
        return *znany;
    }

    QFont font;
    QFontMetricsF miary;
    std::array<double, 0x180> lacinskie{}; // Polish letters included
    QHash<QChar, double> dalsze;
};

ZmierzonePismo& zmierzone(Pismo rola) {
    static std::array<ZmierzonePismo, std::size(kPisma)> pisma = [] {
        return [&]<std::size_t... i>(std::index_sequence<i...>) {
            return std::array{ZmierzonePismo(kPisma[i])...};
        }
        (std::make_index_sequence<std::size(kPisma)>());
    }();
    return pisma[static_cast<std::size_t>(rola)];
}

} // namespace

const QFont& pismo(Pismo rola) { return zmierzone(rola).font; }

double wysLinii(Pismo rola) { return kPisma[static_cast<std::size_t>(rola)].wysLinii; }

double szerTekstu(QStringView tekst, Pismo rola) {
    ZmierzonePismo& p = zmierzone(rola);
    double suma = 0;
    for (const QChar znak : tekst) suma += p.szer(znak);
    return suma / kJednostekWMm;
}

QStringList zlam(const QString& tekst, Pismo rola, double szer) {
    QStringList linie;
    for (const QString& ustep : tekst.split(QLatin1Char('\n'))) {
        QStringView reszta(ustep);
        do {
            qsizetype miesci = 0, poSlowie = 0;
            double zajete = 0;
            for (; miesci < reszta.size(); ++miesci) {
                if (reszta[miesci] == QLatin1Char(' ')) poSlowie = miesci;
                zajete += szerTekstu(reszta.mid(miesci, 1), rola);
                if (zajete > szer && miesci > 0) break;
            }
            if (miesci < reszta.size() && poSlowie > 0) miesci = poSlowie;
            linie.append(reszta.first(miesci).trimmed().toString());
            reszta = reszta.mid(miesci).trimmed();
        } while (!reszta.isEmpty());
    }
    return linie;
}

} // namespace tornel::druk
