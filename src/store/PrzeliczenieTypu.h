// A stored value carried over to a column of another type, where nothing of it is lost.
#pragma once
#include "store/Tabela.h"
#include "store/Wartosc.h"
#include <optional>
#include <QString>

namespace tornel::store {

/// The type that stands in the file as "TEXT(20)", "MEMO TEXT" or "SHORT"; nothing for a foreign one. The
/// width of texts goes to `szerokosc`, 0 for the other types.
[[nodiscard]] std::optional<Typ> TypZPliku(const QString& tekst, int& szerokosc);

/// `wartosc` as a column of `typ` and `szerokosc` holds it; nothing when something would be cut or lost. Text
/// of amounts has a decimal comma, that of dates is dd-mm-yyyy; an empty text is null for other types.
[[nodiscard]] std::optional<Wartosc> PrzeliczWartosc(const Wartosc& wartosc, Typ typ, int szerokosc);

} // namespace tornel::store
