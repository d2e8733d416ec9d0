#include "contracts/SumyUmow.h"
#include "store/Schemat.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <utility>

namespace tornel::contracts {

namespace {

constexpr std::pair<std::string_view, Waluta SumyKwot::*> kSumowane[] = {
    {"Brutto", &SumyKwot::brutto}, {"koszt_uz", &SumyKwot::koszty}, {"Podatek", &SumyKwot::podatek},
    {"Feprc", &SumyKwot::feprc},   {"Frprc", &SumyKwot::frprc},     {"FcPrc", &SumyKwot::fcprc},
    {"Ubzdr", &SumyKwot::ubzdr},
};

} // namespace

SumyKwot& SumyKwot::operator+=(const SumyKwot& b) {
    for (const auto& [kolumna, suma] : kSumowane) this->*suma += b.*suma;
    return *this;
}

QHash<qint64, SumyKwot> SumujUmowy(Sesja& sesja, const RodzajUmowy& rodzaj, QDate od, QDate dokad,
                                   std::optional<qint64> prcId) {
    const Kolumna osoba = rodzaj.kolumna("prc_id"), zaplacona = rodzaj.kolumna("data_wyp");
    Zapytanie pytanie(*rodzaj.tabela);
    pytanie.kolumny(osoba).gdzie(zaplacona >= Wartosc(od) && zaplacona <= Wartosc(dokad));
    if (prcId) pytanie.gdzie(osoba == Wartosc(*prcId));
    QList<std::pair<Kolumna, Waluta SumyKwot::*>> sumowane;
    for (const auto& [nazwa, suma] : kSumowane) {
        const Kolumna kolumna = rodzaj.kolumna(nazwa);
        if (!kolumna.tabela) continue;
        sumowane.append({kolumna, suma});
        pytanie.kolumny(kolumna);
    }
    QHash<qint64, SumyKwot> wynik;
    PrzygotowaneZapytanie gotowe(sesja.cnPlace, pytanie);
    for (auto w = gotowe.uruchom(); w.nastepny();) {
        SumyKwot& sumy = wynik[w.liczba(osoba)];
        for (const auto& [kolumna, suma] : std::as_const(sumowane)) sumy.*suma += w.kwota(kolumna);
    }
    return wynik;
}

SumyKwot SumyUZL(Sesja& sesja, qint64 prcId, QDate od, QDate dokad) {
    return SumujUmowy(sesja, *ZnajdzRodzajUmowy(QStringLiteral("UZL")), od, dokad, prcId).value(prcId);
}

} // namespace tornel::contracts
