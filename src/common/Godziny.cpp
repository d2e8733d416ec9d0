#include "common/Godziny.h"
#include "common/Liczby.h"

namespace tornel::common {

Waluta KwotaZaGodziny(Godziny godziny, Waluta stawkaGodzinowa) {
    return Iloczyn(stawkaGodzinowa, godziny.dziesietnie());
}

QString FormatGodzin(Godziny godziny) {
    const bool ujemne = godziny < Godziny{};
    const auto bezwzgledne = (ujemne ? -godziny : godziny).dziesietnie().surowa();
    const auto dziesiate = bezwzgledne / 1000 + (bezwzgledne % 1000 >= 500 ? 1 : 0);
    const QString tekst =
        QString::number(dziesiate / 10) + QLatin1Char(',') + QString::number(dziesiate % 10);
    return ujemne && dziesiate != 0 ? QLatin1Char('-') + tekst : tekst;
}

QString TekstGodzin(Godziny godziny) { return TekstKwoty(godziny.dziesietnie()); }

std::optional<Godziny> CzytajGodziny(const QString& tekst, Godziny najwiecej) {
    if (tekst.trimmed().isEmpty()) return Godziny{};
    const auto liczba = CzytajKwote(tekst);
    if (!liczba || liczba->surowa() % 100 != 0) return {};
    const Godziny godziny(*liczba);
    if (godziny < -najwiecej || godziny > najwiecej) return {};
    return godziny;
}

} // namespace tornel::common
