// Handles whose rows correspond one to one: opened, moved, written and dropped together.
#pragma once
#include "store/Recordset.h"
#include <array>
#include <span>

namespace tornel::store {

class Grupa {
public:
    /// The handles of these tables among `uchwyty`, in the order of the tables.
    Grupa(std::span<Recordset* const> uchwyty, std::span<const TabelaDef* const> tabele);

    [[nodiscard]] auto begin() const { return uchwyty_.begin(); }
    [[nodiscard]] auto end() const { return uchwyty_.begin() + static_cast<std::ptrdiff_t>(ile_); }

    [[nodiscard]] std::size_t ile() const { return ile_; }
    /// The handle of the group's table number `i`, from 0.
    [[nodiscard]] Recordset& operator[](std::size_t i) const { return *uchwyty_[i]; }

    /// Opens the tables, those of the month `koncowka` ("200107") if it is given, sorted by their keys and
    /// standing on the first rows. Throws `BladBazy`.
    void Open(Polaczenie& polaczenie, const QString& koncowka = {}) const;
    void Close() const;
    [[nodiscard]] bool otwarta() const; ///< all of them
    /// Moves all of them; false when one has no such row.
    template <typename... Klucz>
    bool Znajdz(const Klucz&... klucz) const {
        bool wszystkie = true;
        for (Recordset* rs : *this) wszystkie = rs->Znajdz(klucz...) && wszystkie;
        return wszystkie;
    }
    /// Whether all of them stand on a row.
    [[nodiscard]] bool naWierszu() const;
    /// So many rows will be added to each.
    void zapowiedzNowe(qsizetype ile) const {
        for (Recordset* rs : *this) rs->zapowiedzNowe(ile);
    }
    /// A new row in each, with its key.
    template <typename... Klucz>
    void AddNewZero(const Klucz&... klucz) const {
        for (Recordset* rs : *this) rs->AddNewZero(klucz...);
    }
    /// Takes away the rows where the handles stand; one without a row stays as it is.
    void Delete() const;
    /// Writes what is pending in all of them, as a part of `akcja` or as an action of this name.
    void UpdateBatch(const Transakcja& akcja) const;
    void UpdateBatch(Polaczenie& polaczenie, QStringView czynnosc) const;
    void CancelBatch() const;
    [[nodiscard]] bool zmieniona() const;

private:
    static constexpr std::size_t kNajwiecej = 5;
    std::array<Recordset*, kNajwiecej> uchwyty_{};
    std::size_t ile_ = 0;
};

} // namespace tornel::store
