// A field of a screen as a row of a table: its control, caption, column and kind, and what each kind does
// with text and value.
#pragma once
#include "store/Tabela.h"
#include "store/Wartosc.h"
#include <QList>
#include <QString>

namespace tornel::okna {

enum class Rodzaj {
    Tekst,   ///< one line, as long as the column at most
    Notatka, ///< several lines
    Kwota,   ///< money or percent: "0,00", read as `Zapis::Pole`, a non-number becomes 0
    Liczba,  ///< whole number within the column's type, 16 bits without one; anything else becomes 0
    Data,    ///< dd-mm-yyyy; empty is null, a text that is no date becomes empty
    Flaga,   ///< "T" or "N", a check box
    Wybor,   ///< one of `Pole::pozycje`
};

/// Whether a field is typed into or only shows what was computed.
enum class Dostep { Edycja, Odczyt };

/// How an amount typed with more than two decimals becomes grosze: as it is shown (half away from zero), or
/// by the payroll's `Round` (half to even).
enum class Grosze { JakPokazane, Round };

/// One choice: what is stored and what is shown.
struct Pozycja {
    Wartosc wartosc;
    QString opis;
};

struct Pole {
    QString nazwa; ///< objectName of the control
    /// Caption, mnemonic included. A field without one stands to the right of the field before it, under the
    /// same caption.
    QString podpis;
    Kolumna kolumna; ///< empty for a source other than table rows
    Rodzaj rodzaj = Rodzaj::Tekst;
    Dostep dostep = Dostep::Edycja;
    QList<Pozycja> pozycje = {};         ///< of `Wybor`
    int klucz = 0;                       ///< by which a source other than table rows finds the value
    int rozmiar = 0;                     ///< longest text, where no column tells it; 0 sets no bound
    Grosze grosze = Grosze::JakPokazane; ///< of `Kwota`
    QString opis = {}; ///< accessible name and tool tip, where the caption does not tell enough
};

/// The longest text the field takes, 0 for no bound. Room for more than any number or date needs, so that
/// none is cut into another one.
[[nodiscard]] int najdluzszy(const Pole& pole);
/// The value as the field shows it. Null is an empty date or text, "0,00", "0" or "N".
[[nodiscard]] QString tekstWartosci(const Pole& pole, const Wartosc& wartosc);
/// What becomes of a typed text when the field is left.
[[nodiscard]] QString uporzadkuj(const Pole& pole, const QString& wpisany);
/// What a field says of a typed text that it could not take: a sentence that quotes the text and tells what
/// stands in the field instead. Empty for a text that it took; an empty text is 0 or no date on purpose.
[[nodiscard]] QString nieZrozumiano(const Pole& pole, const QString& wpisany);
/// The value to store for a text that `uporzadkuj` gave: `Waluta`, whole number, date or null, text; for
/// `Wybor` the chosen one's stored value, null for a text that is none of the choices.
[[nodiscard]] Wartosc wartoscTekstu(const Pole& pole, const QString& tekst);
/// Caption without mnemonic and colon, as a screen reader says it.
[[nodiscard]] QString nazwaDostepna(const QString& podpis);

} // namespace tornel::okna
