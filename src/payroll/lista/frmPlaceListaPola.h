// The fields of the payroll row's tabs as tables: group, caption, control, column, kind, rate in the caption.
#pragma once
#include "okna/Pole.h"
#include <span>

namespace tornel::payroll {

/// A sum of the row that no column holds: the bases are shown from the last calculation, the others from what
/// the row has.
enum class SumaEkranu { Brak, PodstawaZUS, PodstawaUbzdr, Skladki, PoPodatku, Pozostale };

struct PoleEkranu {
    QStringView nazwa;
    QStringView podpis;   ///< "%1" stands for the rate
    Kolumna kolumna = {}; ///< left out where `polaListy()` tells it
    Rodzaj rodzaj = Rodzaj::Kwota;
    Dostep dostep = Dostep::Edycja;
    Kolumna stawka = {}; ///< the rate that the caption carries
    SumaEkranu suma = SumaEkranu::Brak;
};

struct GrupaEkranu {
    QStringView tytul;
    std::span<const PoleEkranu> pola;
};

/// What each tab's column of groups holds, from the top.
using KolumnaEkranu = std::span<const GrupaEkranu>;

namespace ekranListy {

/// The way from the components to the amount to pay, part by part: to the income and the tax, the additions,
/// the deductions, the end. Components of the row stand before the first part, and before the additions and
/// the deductions that they make up.
enum class CzescDrogi { DoPodatku, Dodatki, Potracenia, DoWyplaty };
[[nodiscard]] std::span<const PoleEkranu> drogaWyplaty(CzescDrogi czesc);
/// What stands beside that way.
[[nodiscard]] KolumnaEkranu placaPrawa();
/// The tab "CZAS PRACY".
[[nodiscard]] KolumnaEkranu dniMiesiaca();
[[nodiscard]] KolumnaEkranu dniUrlopow();
[[nodiscard]] KolumnaEkranu swiadczenia();
/// What the employer pays, the pension plan, the bank file.
[[nodiscard]] KolumnaEkranu inneLewa();
[[nodiscard]] KolumnaEkranu innePrawa();

/// The group with the bank file's marks, shown only with constant 600.
inline constexpr QStringView kMultiCash = u"MULTICASH";

/// The amount shown only where there is one.
inline constexpr QStringView kPozostale = u"txtPozostale";
inline constexpr QStringView kDrogaPlus = u"txtDrogaPlus";
inline constexpr QStringView kDrogaMinus = u"txtDrogaMinus";

/// The row of a table as the binding takes it.
[[nodiscard]] Pole pole(const PoleEkranu& p);

/// `txtPlus(i)` with its period `txtDataPocz(i)`, `txtDataKonc(i)` for i from 1 to 30.
[[nodiscard]] QList<Pole> polaDodatnie();
/// `txtMinus(j)` for j from 1 to 15.
[[nodiscard]] QList<Pole> polaUjemne();
/// The same amounts on the way, only to be read: `txtDrogaPlus(i)`, `txtDrogaMinus(j)`.
[[nodiscard]] Pole skladnikDrogi(QStringView tablica, int nr);
[[nodiscard]] QString nazwaPola(QStringView tablica, int nr);

} // namespace ekranListy

} // namespace tornel::payroll
