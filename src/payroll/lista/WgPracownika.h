// Rows of many employees, read ahead and kept so that each employee's stand together.
#pragma once
#include "common/Przestrzenie.h"
#include <algorithm>
#include <QtGlobal>
#include <span>
#include <vector>

namespace tornel::payroll {

/// `T` has a member `prcId`. Made for a batch, which asks for one employee after the other: the next one is
/// found without a search, any other one by halving.
template <typename T>
class WgPracownika {
public:
    void wyczysc() { wiersze_.clear(), nastepny_ = 0; }
    [[nodiscard]] T& dopisz(qint64 prcId) {
        T& nowy = wiersze_.emplace_back();
        nowy.prcId = prcId;
        return nowy;
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

    [[nodiscard]] std::span<T> pracownika(qint64 prcId) {
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
    std::size_t nastepny_ = 0; // behind the employee asked for last
};

} // namespace tornel::payroll
