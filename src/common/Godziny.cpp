#include "common/Godziny.h"
#include "common/Liczby.h"

namespace tornel::common {

QString FormatGodzin(Waluta godziny) {
    const bool ujemne = godziny < Waluta{};
    const auto bezwzgledne = (ujemne ? -godziny : godziny).surowa();
    const auto dziesiate = bezwzgledne / 1000 + (bezwzgledne % 1000 >= 500 ? 1 : 0);
    const QString tekst =
        QString::number(dziesiate / 10) + QLatin1Char(',') + QString::number(dziesiate % 10);
    return ujemne && dziesiate != 0 ? QLatin1Char('-') + tekst : tekst;
}

std::optional<Waluta> CzytajGodziny(const QString& tekst, Waluta najwiecej) {
    if (tekst.trimmed().isEmpty()) return Waluta{};
    const auto godziny = CzytajKwote(tekst);
    if (!godziny || *godziny < -najwiecej || *godziny > najwiecej || godziny->surowa() % 100 != 0) return {};
    return godziny;
}

} // namespace tornel::common
