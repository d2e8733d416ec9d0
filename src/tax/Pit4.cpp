#include "tax/Pit4.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "payroll/miesiace/Miesiace.h"
#include "store/Sesja.h"
#include "tax/Platnik.h"

namespace tornel::tax {

using schemat::PIT4;

namespace {

constexpr int kKolumnZrodla = 6;
constexpr int kKolumnPozycji = 2;
constexpr Kolumna kPierwszeZrodlo = PIT4("nr_p_1");
constexpr Kolumna kPierwszaPozycja = PIT4("nr_p_10");

/// Lines by what they do to the amount to pay.
constexpr int kDodawane[] = {11, 12, 16};
constexpr int kOdejmowane[] = {10, 13, 14, 15};
constexpr int kPotracane = 17;

KluczPit4 klucz(const Wiersz& w) {
    return {{static_cast<int>(w.liczba(PIT4("Rok"))), static_cast<int>(w.liczba(PIT4("Mies")))},
            static_cast<int>(w.liczba(PIT4("id_dekl")))};
}

int pozycja(int n) {
    if (n < wierszPit4::OdPozycji || n > wierszPit4::DoPozycji) throw std::out_of_range("no such line");
    return n - wierszPit4::OdPozycji;
}

} // namespace

Kolumna wierszPit4::zrodlo(int n, Kolumny ktora) {
    if (n < 1 || n > Zrodel) throw std::out_of_range("no such line");
    return PIT4.nr(kPierwszeZrodlo.nr + (n - 1) * kKolumnZrodla + ktora);
}
Kolumna wierszPit4::numerPozycji(int n) { return PIT4.nr(kPierwszaPozycja.nr + pozycja(n) * kKolumnPozycji); }
Kolumna wierszPit4::kwotaPozycji(int n) { return PIT4.nr(numerPozycji(n).nr + 1); }

namespace {

template <typename W>
SumyPit4 zsumuj(const W& deklaracja) {
    SumyPit4 s;
    for (int n = 1; n <= wierszPit4::Zrodel; ++n)
        s.SUMA1 += deklaracja.kwota(wierszPit4::zrodlo(n, wierszPit4::pob_zal));
    s.SUMA2 = s.SUMA1;
    for (const int n : kDodawane) s.SUMA2 += deklaracja.kwota(wierszPit4::kwotaPozycji(n));
    for (const int n : kOdejmowane) s.SUMA2 -= deklaracja.kwota(wierszPit4::kwotaPozycji(n));
    s.SUMA3 = s.SUMA2 - deklaracja.kwota(wierszPit4::kwotaPozycji(kPotracane));
    return s;
}

} // namespace

SumyPit4 SumyDeklaracji(const Wiersz& deklaracja) { return zsumuj(deklaracja); }
SumyPit4 SumyDeklaracji(const WierszDeklaracji& deklaracja) { return zsumuj(deklaracja); }

Pit4::Pit4(Otoczenie& otoczenie) : o_(otoczenie), rs_(otoczenie.sesja.rsPIT4) {
    rs_.Open(o_.sesja.cnPlace);
    rs_.Sort({PIT4("Rok"), PIT4("Mies"), PIT4("id_dekl")});
}

QList<KluczPit4> Pit4::lista() const {
    QList<KluczPit4> wynik;
    for (const Wiersz w : rs_.wiersze()) wynik.append(klucz(w));
    return wynik;
}

bool Pit4::zaznacz(const KluczPit4& szukany) {
    for (const Wiersz w : rs_.wiersze()) {
        if (klucz(w) != szukany) continue;
        rs_.Bookmark(w.zakladka());
        return true;
    }
    return false;
}

// Three finds, each from where the last one ended, so that the number of a later month or year refuses too:
// deliberate.
bool Pit4::jestNaLiscie(const KluczPit4& szukany) {
    if (rs_.RecordCount() == 0) return false;
    const auto znajdz = [&](Kolumna kolumna, int wartosc, Skad skad) {
        return rs_.Find({kolumna, Kryterium::Operator::Rowne, static_cast<qint64>(wartosc)}, skad);
    };
    return znajdz(PIT4("Rok"), szukany.miesiac.rok, Skad::Poczatek) &&
           znajdz(PIT4("Mies"), szukany.miesiac.mies, Skad::Biezacy) &&
           znajdz(PIT4("id_dekl"), szukany.numer, Skad::Biezacy);
}

std::optional<Wiersz1Pit4> Pit4::sumyNowej(RokMies miesiac) {
    const bool jest = JestMiesiac(o_.sesja, miesiac, {"PLA", "PLB"});
    if (jest)
        if (const auto sumy = PodsumujMiesiac(o_.sesja, miesiac)) return sumy;
    const QString powod = jest ? QStringLiteral("Brak pracowników na liście w podanym miesiącu.")
                               : QStringLiteral("Brak miesiąca na Liście Płac.");
    if (!o_.rozmowa.pytanie(powod + QStringLiteral(" Czy utworzyć pustą deklarację ?"))) return std::nullopt;
    return Wiersz1Pit4{};
}

std::optional<KluczPit4> Pit4::Nowy(const KluczPit4& nowy, const QString& listy, QDate dzis) {
    const bool byl = rs_.naWierszu();
    const Zakladka biezacy = byl ? rs_.Bookmark() : Zakladka{};
    const bool zajety = jestNaLiscie(nowy);
    if (byl) rs_.Bookmark(biezacy);
    if (zajety) {
        o_.rozmowa.komunikat(QStringLiteral("Podana pozycja jest już na liście !"), Styl::Wykrzyknik);
        return std::nullopt;
    }
    const auto sumy = sumyNowej(nowy.miesiac);
    if (!sumy) return std::nullopt;
    try {
        wpiszNowa(nowy, listy, *sumy, dzis);
        rs_.UpdateBatch(QStringLiteral("Nowa deklaracja PIT-4 za %1").arg(nowy.miesiac.napis()));
    } catch (...) {
        rs_.CancelBatch();
        throw;
    }
    return nowy;
}

void Pit4::wpiszNowa(const KluczPit4& nowy, const QString& listy, const Wiersz1Pit4& sumy, QDate dzis) {
    WierszDeklaracji d(Deklaracja::Pit4);
    for (const auto& [pole, liczba] : {std::pair{"Rok", nowy.miesiac.rok},
                                       {"Mies", nowy.miesiac.mies},
                                       {"id_dekl", nowy.numer},
                                       {"rok_tyt", nowy.miesiac.rok},
                                       {"mies_tyt", nowy.miesiac.mies},
                                       {"przy_1", sumy.podatnikow}})
        d.ustaw(pole, qint64{liczba});
    d.ustaw("Listy", listy);
    for (int n = 1; n <= wierszPit4::DoPozycji; ++n)
        if (n <= wierszPit4::Zrodel || n >= wierszPit4::OdPozycji) d.ustaw("nr_p_", n, qint64{n});
    d.ustaw("kup_1", sumy.przychod);
    d.ustaw("pob_zal_1", sumy.zaliczka);
    d.ustaw("ubzdr_pob1", sumy.ubzdr);
    d.ustaw("ubzdr_odl1", sumy.ubzdr);
    WpiszPlatnika(d, o_.stale);
    d.ustaw("us", o_.stale.PITUs);
    d.ustaw("pla_niefiz", QString(o_.stale.OsFizyczna ? u' ' : u'x'));
    d.ustaw("pla_fiz", QString(o_.stale.OsFizyczna ? u'x' : u' '));
    d.ustaw("Data", dzis);
    rs_.AddNewZero();
    d.przepisz(rs_);
}

bool Pit4::Usun(const KluczPit4& usuwany) {
    if (!zaznacz(usuwany)) throw Blad(QStringLiteral("Nie ma deklaracji PIT-4 %1.").arg(usuwany.napis()));
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy na pewno usunąć wybraną pozycję ?"))) return false;
    rs_.Delete();
    try {
        rs_.UpdateBatch(QStringLiteral("Usunięcie deklaracji PIT-4 %1").arg(usuwany.napis()));
    } catch (...) {
        rs_.CancelBatch();
        throw;
    }
    return true;
}

Wiersz1Pit4 Pit4::zapisane() const {
    return {static_cast<int>(rs_.liczba(PIT4("przy_1"))), rs_.kwota(PIT4("kup_1")),
            rs_.kwota(PIT4("pob_zal_1")), rs_.kwota(PIT4("ubzdr_pob1"))};
}

std::optional<Wiersz1Pit4> Pit4::dzisiejsze() const {
    const RokMies miesiac = klucz(rs_.biezacyWiersz()).miesiac;
    if (!JestMiesiac(o_.sesja, miesiac, {"PLA", "PLB"})) return std::nullopt;
    return PodsumujMiesiac(o_.sesja, miesiac);
}

QList<KontrolaPit4> KontrolaRoku(Otoczenie& o, int rok) {
    Recordset deklaracje(PIT4);
    deklaracje.Open(o.sesja.cnPlace);
    deklaracje.Sort({PIT4("Rok"), PIT4("Mies"), PIT4("id_dekl")});
    QList<KontrolaPit4> wynik;
    for (int mies = 1; mies <= 12; ++mies) {
        KontrolaPit4 k{{rok, mies}, {}, {}};
        // A second declaration of the month was made from the same rows.
        for (const Wiersz w : deklaracje.wiersze())
            if (!k.pit4 && klucz(w).miesiac == k.miesiac) k.pit4 = w.kwota(PIT4("pob_zal_1"));
        if (JestMiesiac(o.sesja, k.miesiac, {"PLA", "PLB"}))
            k.place = SprawdzMiesiac(o.sesja, k.miesiac, o.stale.ZaokZal);
        wynik.append(k);
    }
    return wynik;
}

} // namespace tornel::tax
