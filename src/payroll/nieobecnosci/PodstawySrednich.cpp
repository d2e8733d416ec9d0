#include "payroll/nieobecnosci/PodstawySrednich.h"
#include "common/Daty.h"
#include "payroll/lista/SumaKwot.h"
#include "payroll/lista/WgPracownika.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/Stale.h"
#include "store/SchematPlac.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <string>

namespace tornel::payroll {

namespace podstawy {

/// Which of an employee's rows of the month counts, by the list's symbol.
enum class Ktory { Pierwszy, Ostatni };

struct SumySkladnikow {
    SumaKwot l4, urlopu;

    void dolicz(const SumySkladnikow& inne) {
        l4.dodaj(inne.l4);
        urlopu.dodaj(inne.urlopu);
    }
};

/// Three columns of one row.
template <Ktory ktory, typename T>
struct TrzyKolumny {
    std::string lista;
    std::array<T, 3> wartosci{};

    void dolicz(const TrzyKolumny& inne) {
        if (ktory == Ktory::Pierwszy ? inne.lista < lista : inne.lista > lista) *this = inne;
    }
};

/// The rows of one table of a month: those of the employee asked for, or all of them, read once.
template <typename Wynik>
class CzescMiesiaca {
public:
    using Wiersz = std::function<Wynik(const WierszeZapytania&)>;

    /// `zapytanie` reads the employee's number among others; `wiersz` makes something of a row.
    CzescMiesiaca(Polaczenie& baza, Zapytanie zapytanie, Kolumna prcId, Odczyt odczyt, Wiersz wiersz)
        : odczyt_(odczyt), prcId_(prcId),
          zapytanie_(baza, odczyt == Odczyt::PoJednym ? zapytanie.gdzie(prcId == Parametr{0}) : zapytanie),
          wiersz_(std::move(wiersz)) {
        if (odczyt == Odczyt::Wszystkich) czytaj(zapytanie_.uruchom());
    }

    [[nodiscard]] Wynik pracownika(qint64 prcId) {
        if (odczyt_ == Odczyt::PoJednym) czytaj(zapytanie_.uruchom(prcId));
        Wynik wynik;
        bool pierwszy = true;
        for (const Para& p : wszystkie_.pracownika(prcId)) {
            if (std::exchange(pierwszy, false))
                wynik = p.wynik;
            else
                wynik.dolicz(p.wynik);
        }
        return wynik;
    }

private:
    struct Para {
        qint64 prcId = 0;
        Wynik wynik;
    };

    void czytaj(WierszeZapytania wiersze) {
        wszystkie_.wyczysc();
        while (wiersze.nastepny())
            wszystkie_.dopisz(wiersze, prcId_, [&](Para& p) { p.wynik = wiersz_(wiersze); });
        wszystkie_.uloz();
    }

    Odczyt odczyt_;
    Kolumna prcId_;
    PrzygotowaneZapytanie zapytanie_;
    Wiersz wiersz_;
    WgPracownika<Para> wszystkie_;
};

} // namespace podstawy

using namespace podstawy;
using schemat::PLA;
using schemat::PLB;
using schemat::PLS;

/// One earlier month. A month that is not on the list gives nothing.
class PodstawySrednich::Miesiac {
public:
    Miesiac(Sesja& sesja, RokMies miesiac, const QList<int>& skladnikiL4, const QList<int>& skladnikiUrlopu,
            Odczyt odczyt)
        : nazwa(FormatRoku(miesiac.rok) + QLatin1Char(' ') + NazwaMiesiaca(miesiac.mies)), sesja_(sesja),
          miesiac_(miesiac), skladnikiL4_(skladnikiL4), skladnikiUrlopu_(skladnikiUrlopu), odczyt_(odczyt),
          jest_(JestMiesiac(sesja, miesiac, {"PLA", "PLB", "PLS"})) {}

    [[nodiscard]] SumySkladnikow skladniki(qint64 prcId) {
        if (!jest_) return {};
        if (!skladniki_) {
            Zapytanie kolumny(PLS);
            for (const int nr : skladnikiL4_ + skladnikiUrlopu_) kolumny.kolumny(schemat::SP(nr));
            otworz(skladniki_, kolumny, [this](const WierszeZapytania& w) {
                SumySkladnikow suma;
                for (const int nr : skladnikiL4_) suma.l4.dodaj(w.kwota(schemat::SP(nr)));
                for (const int nr : skladnikiUrlopu_) suma.urlopu.dodaj(w.kwota(schemat::SP(nr)));
                return suma;
            });
        }
        return skladniki_->pracownika(prcId);
    }
    using Stawki = TrzyKolumny<Ktory::Ostatni, Stawka>;
    using Dni = TrzyKolumny<Ktory::Pierwszy, qint64>;

    [[nodiscard]] Stawki stawki(qint64 prcId) {
        if (!jest_) return {};
        constexpr Kolumna fe = PLB("WSK_FEPRC"), fr = PLB("WSK_FRPRC"), fc = PLB("WSK_FCPRC");
        if (!stawki_)
            otworz(stawki_, Zapytanie(PLB).kolumny(PLB("LISTA"), fe, fr, fc), [=](const WierszeZapytania& w) {
                return Stawki{std::string(w.utf8(PLB("LISTA"))),
                              {Stawka(w.kwota(fe)), Stawka(w.kwota(fr)), Stawka(w.kwota(fc))}};
            });
        return stawki_->pracownika(prcId);
    }
    [[nodiscard]] Dni dni(qint64 prcId) {
        if (!jest_) return {};
        constexpr Kolumna robocze = PLA("DN_RO"), soboty = PLA("DN_SO"), niedziele = PLA("DN_NI");
        if (!dni_)
            otworz(dni_, Zapytanie(PLA).kolumny(PLA("LISTA"), robocze, soboty, niedziele),
                   [=](const WierszeZapytania& w) {
                       return Dni{std::string(w.utf8(PLA("LISTA"))),
                                  {w.liczba(robocze), w.liczba(soboty), w.liczba(niedziele)}};
                   });
        return dni_->pracownika(prcId);
    }

    const QString nazwa;

private:
    template <typename Wynik>
    void otworz(std::unique_ptr<CzescMiesiaca<Wynik>>& czesc, Zapytanie zapytanie,
                typename CzescMiesiaca<Wynik>::Wiersz wiersz) {
        const TabelaDef& tabela = zapytanie.tabela();
        const Kolumna prcId = tabela.nr(tabela.numer("PRC_ID"));
        zapytanie.kolumny(prcId).zTabel({Sesja::nazwaMiesiaca(tabela.nazwa, miesiac_)});
        czesc = std::make_unique<CzescMiesiaca<Wynik>>(sesja_.cnPlace, std::move(zapytanie), prcId, odczyt_,
                                                       std::move(wiersz));
    }

    Sesja& sesja_;
    RokMies miesiac_;
    const QList<int>&skladnikiL4_, &skladnikiUrlopu_;
    Odczyt odczyt_;
    bool jest_;
    std::unique_ptr<CzescMiesiaca<SumySkladnikow>> skladniki_;
    std::unique_ptr<CzescMiesiaca<Stawki>> stawki_;
    std::unique_ptr<CzescMiesiaca<Dni>> dni_;
};

PodstawySrednich::PodstawySrednich(Sesja& sesja, const Stale& stale, Odczyt odczyt)
    : sesja_(sesja), odczyt_(odczyt) {
    for (const int nr : stale.SklSrL4)
        if (nr >= 1 && nr <= 30) skladnikiL4_.append(nr);
    for (const int nr : stale.SkSumDoSrURL)
        if (nr >= 1 && nr <= 30) skladnikiUrlopu_.append(nr);
}

PodstawySrednich::~PodstawySrednich() = default;

PodstawySrednich::Miesiac& PodstawySrednich::miesiac(int wstecz) {
    while (static_cast<std::size_t>(wstecz) >= miesiace_.size()) {
        const RokMies wczesniejszy = sesja_.miesiac().plus(-static_cast<int>(miesiace_.size()) - 1);
        miesiace_.push_back(
            std::make_unique<Miesiac>(sesja_, wczesniejszy, skladnikiL4_, skladnikiUrlopu_, odczyt_));
    }
    return *miesiace_[static_cast<std::size_t>(wstecz)];
}

QList<PodstawaL4> PodstawySrednich::doL4(qint64 prcId, int ile) {
    QList<PodstawaL4> wynik;
    for (int i = 0; i < ile; ++i) {
        Miesiac& m = miesiac(i);
        const auto [fe, fr, fc] = m.stawki(prcId).wartosci;
        wynik.append({m.nazwa, m.skladniki(prcId).l4.kwota(), fe, fr, fc});
    }
    return wynik;
}

QList<PodstawaUrlopu> PodstawySrednich::doUrlopu(qint64 prcId, int ile) {
    QList<PodstawaUrlopu> wynik;
    for (int i = 0; i < ile; ++i) {
        Miesiac& m = miesiac(i);
        const auto [robocze, soboty, niedziele] = m.dni(prcId).wartosci;
        wynik.append({m.nazwa, m.skladniki(prcId).urlopu.kwota(), robocze + soboty + niedziele});
    }
    return wynik;
}

} // namespace tornel::payroll
