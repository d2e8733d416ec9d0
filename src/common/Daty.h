// Months, weekdays and dates typed or shown as text, free of the machine's locale.
#pragma once
#include "common/Przestrzenie.h"
#include <optional>
#include <QDate>
#include <QList>
#include <QString>

namespace tornel::common {

/// Days of the month, 28 to 31; 0 for a month outside 1 to 12.
[[nodiscard]] int DniWMiesiacu(int rok, int mies);
[[nodiscard]] QDate PierwszyDzien(int rok, int mies);
[[nodiscard]] QDate OstatniDzien(int rok, int mies);

/// "Styczeń" to "Grudzień" for 1 to 12, otherwise empty.
[[nodiscard]] QString NazwaMiesiaca(int mies);
/// The months that a typed text may become, in their order: by number with or without the leading zero ("1"
/// is 1, 10, 11 or 12), or by the beginning of the name ("lipiec", "lipca"), in any letters and also without
/// Polish marks.
[[nodiscard]] QList<int> PasujaceMiesiace(const QString& tekst);
/// The month that a text names by itself: "7", "07", "lip", "Lipiec", "paz". Nothing for a text that is none,
/// or begins more than one name.
[[nodiscard]] std::optional<int> CzytajMiesiac(const QString& tekst);
/// "Poniedziałek" to "Niedziela", empty for an invalid date.
[[nodiscard]] QString Nazwa_dnia(QDate data);
/// The weekday as overtime stores it; the same names.
[[nodiscard]] inline QString DzienT(QDate data) { return Nazwa_dnia(data); }

/// "dd-mm-yyyy", empty for an invalid date.
[[nodiscard]] QString FormatDaty(QDate data);
/// Reads exactly dd-mm-yyyy, dd/mm/yyyy, dd.mm.yyyy or yyyy-mm-dd, years 100 to 9999. Nothing for any other
/// text, a day that the month has not included.
[[nodiscard]] std::optional<QDate> CzytajDate(const QString& tekst);
/// "00".
[[nodiscard]] QString FormatMiesiaca(int mies);
/// "0000".
[[nodiscard]] QString FormatRoku(int rok);
/// "00.0000", month and year as titles and lists show them.
[[nodiscard]] inline QString NapisMiesiaca(int rok, int mies) {
    return FormatMiesiaca(mies) + QLatin1Char('.') + FormatRoku(rok);
}

/// Reads a date as the clerk may type it: day, month and year with "-", "/" or "." between them, also without
/// their leading zeros; ddmmyyyy; yyyy-mm-dd. Blanks around it, and what follows a date and a blank, are left
/// aside. Years 1900 to 2100. Nothing for any other text.
[[nodiscard]] std::optional<QDate> CzytajWpisanaDate(const QString& tekst);
/// The text of a date field while it is typed, rebuilt: split at "/" (also "-" and "."), at most three parts,
/// a part that is no number becomes empty, the separators stay as typed.
[[nodiscard]] QString MaskaDaty(const QString& tekst);
/// The text of a date field on leaving: "dd-mm-yyyy" of what `CzytajWpisanaDate` reads, otherwise empty.
[[nodiscard]] QString SprawdzDate(const QString& tekst);

} // namespace tornel::common
