// The fonts of prints and their measures.
#pragma once
#include "druk/Opis.h"
#include <QFont>
#include <QStringList>

namespace tornel::druk {

/// Units of a painter's scale in a millimetre: a tenth of a point, in which fonts are measured.
inline constexpr double kJednostekWMm = 720.0 / 25.4;

/// The font in units of the scale.
[[nodiscard]] const QFont& pismo(Pismo rola);
/// Height of a line, mm.
[[nodiscard]] double wysLinii(Pismo rola);
/// Width of the text, mm; exact for figures, near enough for words.
[[nodiscard]] double szerTekstu(QStringView tekst, Pismo rola);
/// The text broken into lines of this width, mm; a word longer than a line is broken within.
[[nodiscard]] QStringList zlam(const QString& tekst, Pismo rola, double szer);

} // namespace tornel::druk
