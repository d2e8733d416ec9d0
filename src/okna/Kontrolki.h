// The controls behind the kinds of fields: each shows and gives one text, whatever it looks like.
#pragma once
#include "okna/Pole.h"

class QWidget;

namespace tornel::okna {

/// The control of the field's kind, with name, length, width and look set. The caller owns it.
[[nodiscard]] QWidget* zbudujKontrolke(const Pole& pole);
/// What stands in the control; null for a widget that no `zbudujKontrolke` made or that is being destroyed.
[[nodiscard]] QString tekstKontrolki(const QWidget& kontrolka);
/// Shows `tekst`; no signal of the control takes that for the clerk's doing. A choice that has no such value
/// shows the text and keeps it.
void wpiszDoKontrolki(QWidget& kontrolka, const QString& tekst);
/// Fills a choice anew; what it holds stays, if only as a text.
void wypelnijWybor(QWidget& kontrolka, const Pole& pole);

} // namespace tornel::okna
