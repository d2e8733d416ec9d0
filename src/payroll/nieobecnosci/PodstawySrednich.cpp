#include "payroll/nieobecnosci/PodstawySrednich.h"
#include "common/Daty.h"
#include "payroll/lista/SumaKwot.h"
#include "payroll/lista/WgPracownika.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
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
template <Ktory ktory>
struct TrzyKolumny {
    std::string lista;
    std::array<qint64, 3> wartosci{};

    void dolicz(const TrzyKolumny& inne) {
        if (ktory == Ktory::Pierwszy ? inne.lista < lista : inne.lista > lista) *this = inne;
    }
    static TrzyKolumny zWiersza(const Instrukcja& wiersz) {
        return {std::string(wiersz.utf8(1)), {wiersz.liczba(2), wiersz.liczba(3), wiersz.liczba(4)}};
    }
};

/// The rows of one table of a month: those of the employee asked for, or all of them, read once.
template <typename Wynik>
class CzescMiesiaca {
public:
    using Wiersz = std::function<Wynik(const Instrukcja&)>;

    /// `kolumny`: what follows `PRC_ID`. `wiersz` makes something of a row.
    CzescMiesiaca(Polaczenie& baza, const QString& tabela, const QByteArray& kolumny, Odczyt odczyt,
                  Wiersz wiersz)
        : odczyt_(odczyt),
          wiersze_(baza, ("SELECT PRC_ID, " + kolumny + " FROM " + nazwaSql(tabela.toStdString()) +
                          (odczyt == Odczyt::PoJednym ? " WHERE PRC_ID = ?1" : ""))
                             .toStdString()),
          wiersz_(std::move(wiersz)) {
        if (odczyt == Odczyt::Wszystkich) czytaj();
    }

    [[nodiscard]] Wynik pracownika(qint64 prcId) {
        if (odczyt_ == Odczyt::PoJednym) {
            wiersze_.wiaz(0, prcId);
            czytaj();
        }
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

    void czytaj() {
        wszystkie_.wyczysc();
        while (wiersze_.wiersz()) wszystkie_.dopisz(wiersze_.liczba(0)).wynik = wiersz_(wiersze_);
        wiersze_.od_nowa();
        wszystkie_.uloz();
    }

    Odczyt odczyt_;
    Instrukcja wiersze_;
    Wiersz wiersz_;
    WgPracownika<Para> wszystkie_;
};

} // namespace podstawy

using namespace podstawy;

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
            QByteArrayList kolumny{"LISTA"};
            for (const int nr : skladnikiL4_ + skladnikiUrlopu_)
                kolumny.append("SP_" + QByteArray::number(nr));
            const auto wiersz = [l4 = skladnikiL4_.size(), razem = kolumny.size() - 1](const Instrukcja& w) {
                SumySkladnikow suma;
                for (qsizetype i = 0; i < razem; ++i)
                    (i < l4 ? suma.l4 : suma.urlopu)
                        .dodaj(Waluta::zSurowej(w.liczba(static_cast<int>(i) + 2)));
                return suma;
            };
            otworz(skladniki_, "PLS", kolumny.join(", "), wiersz);
        }
        return skladniki_->pracownika(prcId);
    }
    using Stawki = TrzyKolumny<Ktory::Ostatni>;
    using Dni = TrzyKolumny<Ktory::Pierwszy>;

    [[nodiscard]] Stawki stawki(qint64 prcId) {
        if (!jest_) return {};
        if (!stawki_) otworz(stawki_, "PLB", "LISTA, WSK_FEPRC, WSK_FRPRC, WSK_FCPRC", Stawki::zWiersza);
        return stawki_->pracownika(prcId);
    }
    [[nodiscard]] Dni dni(qint64 prcId) {
        if (!jest_) return {};
        if (!dni_) otworz(dni_, "PLA", "LISTA, DN_RO, DN_SO, DN_NI", Dni::zWiersza);
        return dni_->pracownika(prcId);
    }

    const QString nazwa;

private:
    template <typename Wynik>
    void otworz(std::unique_ptr<CzescMiesiaca<Wynik>>& czesc, std::string_view tabela,
                const QByteArray& kolumny, typename CzescMiesiaca<Wynik>::Wiersz wiersz) {
        czesc = std::make_unique<CzescMiesiaca<Wynik>>(
            sesja_.cnPlace, Sesja::nazwaMiesiaca(tabela, miesiac_.rok, miesiac_.mies), kolumny, odczyt_,
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
        const QDate pierwszy =
            PierwszyDzien(sesja_.rok(), sesja_.mies()).addMonths(-static_cast<int>(miesiace_.size()) - 1);
        miesiace_.push_back(std::make_unique<Miesiac>(sesja_, RokMies{pierwszy.year(), pierwszy.month()},
                                                      skladnikiL4_, skladnikiUrlopu_, odczyt_));
    }
    return *miesiace_[static_cast<std::size_t>(wstecz)];
}

QList<PodstawaL4> PodstawySrednich::doL4(qint64 prcId, int ile) {
    QList<PodstawaL4> wynik;
    for (int i = 0; i < ile; ++i) {
        Miesiac& m = miesiac(i);
        const auto [fe, fr, fc] = m.stawki(prcId).wartosci;
        wynik.append({m.nazwa, m.skladniki(prcId).l4.kwota(), Waluta::zSurowej(fe), Waluta::zSurowej(fr),
                      Waluta::zSurowej(fc)});
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
