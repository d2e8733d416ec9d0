// Program constants between memory and table KON, where every value is a text of at most 60 characters.
#pragma once
#include "rules/TabelaStalych.h"
#include <QString>
#include <span>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::rules {

/// The longest text that KON holds; what is longer is cut without a word, deliberately.
inline constexpr int kDlugoscStalej = 60;

/// Reads all constants into `stale`, once at program start. Opens `rsKON` if it is closed; a table found
/// empty first gets the version record, number 0; a missing record is added with its default, for the folders
/// with `folderProgramu`. One read of the table and at most one write. Reads and writes KON. Throws
/// `BladBazy`; `stale` then stays as it was.
void WczytajKonfiguracje(Sesja& sesja, Stale& stale, const QString& folderProgramu);

/// Writes all constants as one action. Reads and writes KON. Throws `BladBazy`.
void ZapiszKonfiguracje(Sesja& sesja, const Stale& stale);

/// Writes the one constant `num`. Reads and writes KON. Throws `Blad` for a number that no constant has,
/// `BladBazy`.
void ZapiszStala(Sesja& sesja, const Stale& stale, int num);

/// The value in its text form: numbers plain, "True" or "False", money "0.00" with a decimal comma (what
/// stands past the second decimal is lost), dates dd-mm-yyyy, arrays joined; trimmed and cut to 60
/// characters.
[[nodiscard]] QString TekstWartosci(const StalaDef& stala, const Stale& stale);

/// Sets the value from its text form. A text that is no number or date of the kind gives the empty value.
void WartoscZTekstu(const StalaDef& stala, const QString& tekst, Stale& stale);

/// The elements in order, trimmed, a comma behind each.
[[nodiscard]] QString ZlaczTablice(std::span<const int> tablica);
[[nodiscard]] QString ZlaczTablice(std::span<const QString> tablica);

/// Splits `tekst` at every comma and assigns the pieces in order. Extra pieces are ignored, elements without
/// a piece keep what they hold. So a comma inside a text element comes back as two elements: deliberate.
void RozbijTablice(const QString& tekst, std::span<int> tablica);
void RozbijTablice(const QString& tekst, std::span<QString> tablica);

/// The text stored under `num`, whether or not a constant has that number; empty without a record. Reads KON.
[[nodiscard]] QString TekstStalej(Sesja& sesja, int num);

/// The text form of constant `num` as it is stored, or as it would be if the record is missing. Reads KON.
/// Throws `Blad` for a number that neither the table of constants nor KON has.
[[nodiscard]] QString PodajStala(Sesja& sesja, const Stale& stale, int num);

/// Sets constant `num` from a text, in memory and in KON. An array takes its elements separated by commas;
/// those left out become empty. Throws `Blad` that says what the constant takes, and changes nothing, when
/// the text is not of its kind or out of its range.
void UstawStala(Sesja& sesja, Stale& stale, int num, const QString& tekst);

} // namespace tornel::rules
