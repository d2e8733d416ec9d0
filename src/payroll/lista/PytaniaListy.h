// The questions that calculations of payroll rows can raise, as a table, and the answers as a value.
#pragma once
#include "payroll/lista/Uwagi.h"
#include <bitset>
#include <initializer_list>
#include <optional>

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::payroll {

/// In the order in which they are asked.
enum class Pytanie {
    ZastapicWpisane,      ///< write over component amounts that the clerk typed
    IloscZasilkow,        ///< copy the counts of family, nursing and childcare benefits
    LiczycDni,            ///< count the month's days
    DniZKalendarza,       ///< ... by the employees' own calendars
    SzukacOgolnych,       ///< ... or by the general one where the own one lacks the month
    PrzenosicNadgodziny,  ///< add the overtime to the components
    LiczycL4,             ///< price sick leaves
    ObowiazekZKalendarza, ///< days on which work was due by the employees' own calendars
    ZasadniczaPoL4,       ///< compute the base salary anew after sick leave
    PremiaPoL4,           ///< compute the percentage bonus anew after sick leave
    LiczycUrlop,          ///< price vacations
    UrlopZKalendarza,     ///< ... by the employees' own calendars
    JedenSkladnik,        ///< several vacation periods go to one component
    SkladnikiPoUrlopie,   ///< reduce other components for the vacation days
    ZwiekszycPPE,         ///< raise the pension plan's average to the contribution
    PomniejszycZasilek,   ///< `PomniejszacZasilek`: take the sick benefit off the amount to pay
    Ile
};

/// A set of questions: those that can arise, or those answered Yes.
class ZbiorPytan {
public:
    ZbiorPytan() = default;
    ZbiorPytan(std::initializer_list<Pytanie> pytania) {
        for (const Pytanie p : pytania) dodaj(p);
    }
    [[nodiscard]] bool ma(Pytanie p) const { return bity_.test(static_cast<std::size_t>(p)); }
    [[nodiscard]] bool pusty() const { return bity_.none(); }
    void dodaj(Pytanie p, bool ma = true) { bity_.set(static_cast<std::size_t>(p), ma); }
    ZbiorPytan& operator|=(const ZbiorPytan& inny) {
        bity_ |= inny.bity_;
        return *this;
    }
    friend bool operator==(const ZbiorPytan&, const ZbiorPytan&) = default;

private:
    std::bitset<static_cast<std::size_t>(Pytanie::Ile)> bity_;
};
/// Those answered Yes.
using Odpowiedzi = ZbiorPytan;

/// Settles the questions of the action `tytul` that can arise, in the words for one row or for a batch. A
/// question without words for a batch is Yes there. Nothing when the clerk cancels.
[[nodiscard]] std::optional<Odpowiedzi> Zapytaj(Rozmowa& rozmowa, const QString& tytul,
                                                const ZbiorPytan& moga, Zakres zakres);

} // namespace tornel::payroll
