// Rows of many employees, read ahead and kept so that each employee's stand together.
#pragma once
#include "common/Blad.h"
#include "store/Zapytanie.h"
#include <algorithm>
#include <map>
#include <QtGlobal>
#include <span>
#include <vector>

namespace tornel::payroll {

/// What became of a row that was read.
enum class Dopisanie { Przyjete, Pominiete };

/// `T` has a member `prcId`. Made for a batch, which asks for one employee after the other: the next one is
/// found without a search, any other one by halving.
template <typename T>
class WgPracownika {
public:
    void wyczysc() { wiersze_.clear(), uszkodzone_.clear(), nastepny_ = 0; }
    /// The employee's next row, filled by `wypelnij`, which may skip it. A damaged value is told when he is
    /// asked for, so that it stops him alone.
    template <typename F>
    void dopisz(qint64 prcId, F&& wypelnij) {
        T& nowy = wiersze_.emplace_back();
        nowy.prcId = prcId;
        try {
            if constexpr (std::is_void_v<std::invoke_result_t<F&, T&>>)
                wypelnij(nowy);
            else if (wypelnij(nowy) == Dopisanie::Pominiete)
                wiersze_.pop_back();
        } catch (const UszkodzonaWartosc& uszkodzona) {
            wiersze_.pop_back();
            uszkodzone_.emplace(prcId, uszkodzona);
        }
    }
    /// The same for a row of a query. One with a damaged number is nobody's, as when employees are read one
    /// by one.
    template <typename F>
    void dopisz(const WierszeZapytania& wiersz, Kolumna prcId, F&& wypelnij) {
        qint64 numer = 0;
        try {
            numer = wiersz.liczba(prcId);
        } catch (const UszkodzonaWartosc&) {
            return;
        }
        dopisz(numer, std::forward<F>(wypelnij));
    }
    /// To be called once all rows are there: brings each employee's together, in the order they came.
    void uloz() {
        nastepny_ = 0;
        if (std::ranges::is_sorted(wiersze_, {}, &T::prcId)) return;
        const auto [najmniejszy, najwiekszy] = std::ranges::minmax(wiersze_, {}, &T::prcId);
        const auto rozpietosc = static_cast<quint64>(najwiekszy.prcId - najmniejszy.prcId);
        constexpr quint64 kZwykleNumery = 1'000'000;
        if (rozpietosc <= kZwykleNumery)
            rozlozWgNumerow(najmniejszy.prcId, static_cast<std::size_t>(rozpietosc) + 1);
        else
            std::ranges::stable_sort(wiersze_, {}, &T::prcId);
    }

    /// Throws `UszkodzonaWartosc` when one of his rows is damaged.
    [[nodiscard]] std::span<T> pracownika(qint64 prcId) {
        if (const auto szkoda = uszkodzone_.find(prcId); szkoda != uszkodzone_.end()) throw szkoda->second;
        std::size_t od = nastepny_;
        if (od >= wiersze_.size() || wiersze_[od].prcId != prcId)
            od = static_cast<std::size_t>(std::ranges::lower_bound(wiersze_, prcId, {}, &T::prcId) -
                                          wiersze_.begin());
        std::size_t dokad = od;
        while (dokad < wiersze_.size() && wiersze_[dokad].prcId == prcId) ++dokad;
        nastepny_ = dokad;
        return std::span(wiersze_).subspan(od, dokad - od);
    }

private:
    /// In time proportional to the rows: months come one behind the other, each in the order of the numbers.
    void rozlozWgNumerow(qint64 pierwszy, std::size_t numerow) {
        std::vector<std::size_t> miejsca(numerow + 1);
        const auto numer = [&](const T& wiersz) { return static_cast<std::size_t>(wiersz.prcId - pierwszy); };
        for (const T& wiersz : wiersze_) ++miejsca[numer(wiersz) + 1];
        for (std::size_t i = 1; i < miejsca.size(); ++i) miejsca[i] += miejsca[i - 1];
        std::vector<T> ulozone(wiersze_.size());
        for (T& wiersz : wiersze_) ulozone[miejsca[numer(wiersz)]++] = std::move(wiersz);
        wiersze_ = std::move(ulozone);
    }

    std::vector<T> wiersze_;
    std::map<qint64, UszkodzonaWartosc> uszkodzone_;
    std::size_t nastepny_ = 0; // behind the employee asked for last
};

} // namespace tornel::payroll
