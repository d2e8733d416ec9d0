// How long the notice of an employment contract is, and on which day it ends, by the Labour Code of 2001.
#pragma once
#include "personnel/WarunkiPracy.h"
#include <optional>

namespace tornel::personnel {

struct OkresWypowiedzenia {
    enum class Miara { DniRobocze, Tygodnie, Miesiace };
    int ile = 0;
    Miara miara = Miara::Tygodnie;

    /// "3 dni robocze", "2 tygodnie", "1 miesiąc".
    [[nodiscard]] QString napis() const;
    /// The last day of a notice given on `dzien`. Weeks end on a Saturday, months on their last day; working
    /// days are those that are neither a Sunday nor a public holiday.
    [[nodiscard]] QDate koniec(QDate dzien) const;
    /// Working days that somebody whom the employer gives notice may take to look for work, 0 for none.
    [[nodiscard]] int dniNaSzukaniePracy() const;

    friend bool operator==(const OkresWypowiedzenia&, const OkresWypowiedzenia&) = default;
};

/// The notice of this contract given on `dzien`; `zatrudniony` is the first day of the employment. The
/// employment that the notice itself adds counts. Nothing for a contract that notice cannot end: one for a
/// task, or a fixed term that was not made for more than six months with that clause.
[[nodiscard]] std::optional<OkresWypowiedzenia> OkresDlaUmowy(const UmowaOPrace& umowa, QDate zatrudniony,
                                                              QDate dzien);

/// Whether the term lasts longer than so many months; true without an end.
[[nodiscard]] bool DluzszaNiz(const WarunkiPracy& warunki, int miesiecy);

} // namespace tornel::personnel
