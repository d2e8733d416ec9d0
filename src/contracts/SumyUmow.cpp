#include "contracts/SumyUmow.h"
#include "store/Schemat.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <algorithm>
#include <utility>

namespace tornel::contracts {

namespace {

constexpr std::pair<std::string_view, Waluta SumyKwot::*> kSumowane[] = {
    {"Brutto", &SumyKwot::brutto}, {"koszt_uz", &SumyKwot::koszty}, {"Podatek", &SumyKwot::podatek},
    {"Feprc", &SumyKwot::feprc},   {"Frprc", &SumyKwot::frprc},     {"FcPrc", &SumyKwot::fcprc},
    {"Ubzdr", &SumyKwot::ubzdr},
};

/// The kind's contracts that were paid in the days, one after the other.
template <typename Przyjmij>
void czytajZaplacone(Sesja& sesja, const RodzajUmowy& rodzaj, QDate od, QDate dokad,
                     std::optional<qint64> prcId, Przyjmij przyjmij) {
    const Kolumna osoba = rodzaj.kolumna("prc_id"), zaplacona = rodzaj.kolumna("data_wyp");
    Zapytanie pytanie(*rodzaj.tabela);
    pytanie.kolumny(osoba, zaplacona, rodzaj.numer)
        .gdzie(zaplacona >= Wartosc(od) && zaplacona <= Wartosc(dokad));
    if (prcId) pytanie.gdzie(osoba == Wartosc(*prcId));
    QList<std::pair<Kolumna, Waluta SumyKwot::*>> sumowane;
    for (const auto& [nazwa, suma] : kSumowane) {
        const Kolumna kolumna = rodzaj.kolumna(nazwa);
        if (!kolumna.tabela) continue;
        sumowane.append({kolumna, suma});
        pytanie.kolumny(kolumna);
    }
    PrzygotowaneZapytanie gotowe(sesja.cnPlace, pytanie);
    for (auto w = gotowe.uruchom(); w.nastepny();) {
        SumyKwot kwoty;
        for (const auto& [kolumna, suma] : std::as_const(sumowane)) kwoty.*suma = w.kwota(kolumna);
        przyjmij(w, kwoty);
    }
}

} // namespace

SumyKwot& SumyKwot::operator+=(const SumyKwot& b) {
    for (const auto& [kolumna, suma] : kSumowane) this->*suma += b.*suma;
    return *this;
}

QHash<qint64, SumyKwot> SumujUmowy(Sesja& sesja, const RodzajUmowy& rodzaj, QDate od, QDate dokad,
                                   std::optional<qint64> prcId) {
    QHash<qint64, SumyKwot> wynik;
    czytajZaplacone(sesja, rodzaj, od, dokad, prcId, [&](const WierszeZapytania& w, const SumyKwot& kwoty) {
        wynik[w.liczba(rodzaj.kolumna("prc_id"))] += kwoty;
    });
    return wynik;
}

QList<ZaplaconaUmowa> ZaplaconeUmowy(Sesja& sesja, const RodzajUmowy& rodzaj, QDate od, QDate dokad,
                                     qint64 prcId) {
    QList<ZaplaconaUmowa> wynik;
    czytajZaplacone(sesja, rodzaj, od, dokad, prcId, [&](const WierszeZapytania& w, const SumyKwot& kwoty) {
        wynik.append({w.tekst(rodzaj.numer), w.data(rodzaj.kolumna("data_wyp")), kwoty});
    });
    std::ranges::stable_sort(wynik, {}, &ZaplaconaUmowa::zaplacona);
    return wynik;
}

SumyKwot SumyUZL(Sesja& sesja, qint64 prcId, QDate od, QDate dokad) {
    return SumujUmowy(sesja, *ZnajdzRodzajUmowy(QStringLiteral("UZL")), od, dokad, prcId).value(prcId);
}

} // namespace tornel::contracts
