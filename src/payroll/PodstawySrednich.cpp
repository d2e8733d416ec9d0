#include "payroll/PodstawySrednich.h"
#include "common/Daty.h"
#include "payroll/Miesiace.h"
#include "payroll/SumaKwot.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <optional>
#include <QHash>

namespace {

/// Which of an employee's rows of the month counts, by the list's symbol.
enum class Ktory { Pierwszy, Ostatni };

struct SumySkladnikow {
    SumaKwot l4, urlopu;
};

/// Three columns of one row of each employee.
struct TrzyKolumny {
    std::optional<std::string> lista; // none before the first row
    std::array<qint64, 3> wartosci{};
};

/// The rows of one table of a month: those of the employee asked for, or all of them, read once.
template <typename Wynik>
class CzescMiesiaca {
public:
    using Dolicz = std::function<void(Wynik&, const Instrukcja&)>;

    /// `kolumny`: what follows `PRC_ID`. `dolicz` takes a row in.
    CzescMiesiaca(Polaczenie& baza, const QString& tabela, const QByteArray& kolumny, Odczyt odczyt,
                  Dolicz dolicz)
        : wiersze_(baza, ("SELECT PRC_ID, " + kolumny + " FROM " + nazwaSql(tabela.toStdString()) +
                          (odczyt == Odczyt::PoJednym ? " WHERE PRC_ID = ?1" : ""))
                             .toStdString()),
          dolicz_(std::move(dolicz)) {
        if (odczyt == Odczyt::PoJednym) return;
        wszyscy_.emplace();
        while (wiersze_.wiersz()) dolicz_((*wszyscy_)[wiersze_.liczba(0)], wiersze_);
    }

    [[nodiscard]] Wynik pracownika(qint64 prcId) {
        if (wszyscy_) return wszyscy_->value(prcId);
        Wynik wynik;
        wiersze_.wiaz(0, prcId);
        while (wiersze_.wiersz()) dolicz_(wynik, wiersze_);
        wiersze_.od_nowa();
        return wynik;
    }

private:
    Instrukcja wiersze_;
    Dolicz dolicz_;
    std::optional<QHash<qint64, Wynik>> wszyscy_;
};

CzescMiesiaca<TrzyKolumny>::Dolicz wybierz(Ktory ktory) {
    return [ktory](TrzyKolumny& cel, const Instrukcja& wiersz) {
        const std::string_view lista = wiersz.utf8(1);
        if (cel.lista && (ktory == Ktory::Pierwszy ? *cel.lista <= lista : *cel.lista >= lista)) return;
        cel.lista = lista;
        for (int i = 0; i < 3; ++i) cel.wartosci[static_cast<std::size_t>(i)] = wiersz.liczba(i + 2);
    };
}

} // namespace

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
            const auto dolicz = [l4 = skladnikiL4_.size(),
                                 razem = kolumny.size() - 1](SumySkladnikow& suma, const Instrukcja& wiersz) {
                for (qsizetype i = 0; i < razem; ++i)
                    (i < l4 ? suma.l4 : suma.urlopu)
                        .dodaj(Waluta::zSurowej(wiersz.liczba(static_cast<int>(i) + 2)));
            };
            otworz(skladniki_, "PLS", kolumny.join(", "), dolicz);
        }
        return skladniki_->pracownika(prcId);
    }
    [[nodiscard]] TrzyKolumny stawki(qint64 prcId) {
        if (!jest_) return {};
        if (!stawki_)
            otworz(stawki_, "PLB", "LISTA, WSK_FEPRC, WSK_FRPRC, WSK_FCPRC", wybierz(Ktory::Ostatni));
        return stawki_->pracownika(prcId);
    }
    [[nodiscard]] TrzyKolumny dni(qint64 prcId) {
        if (!jest_) return {};
        if (!dni_) otworz(dni_, "PLA", "LISTA, DN_RO, DN_SO, DN_NI", wybierz(Ktory::Pierwszy));
        return dni_->pracownika(prcId);
    }

    const QString nazwa;

private:
    template <typename Wynik>
    void otworz(std::unique_ptr<CzescMiesiaca<Wynik>>& czesc, std::string_view tabela,
                const QByteArray& kolumny, typename CzescMiesiaca<Wynik>::Dolicz dolicz) {
        czesc = std::make_unique<CzescMiesiaca<Wynik>>(
            sesja_.cnPlace, Sesja::nazwaMiesiaca(tabela, miesiac_.rok, miesiac_.mies), kolumny, odczyt_,
            std::move(dolicz));
    }

    Sesja& sesja_;
    RokMies miesiac_;
    const QList<int>&skladnikiL4_, &skladnikiUrlopu_;
    Odczyt odczyt_;
    bool jest_;
    std::unique_ptr<CzescMiesiaca<SumySkladnikow>> skladniki_;
    std::unique_ptr<CzescMiesiaca<TrzyKolumny>> stawki_, dni_;
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
