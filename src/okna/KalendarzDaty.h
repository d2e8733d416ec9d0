// The calendar of a date field, opened by a key.
#pragma once
#include "common/Przestrzenie.h"
#include <QDate>

class QLineEdit;

namespace tornel::okna {

/// Opens the calendar below the field, at its date or, without one, at `wstepna`. Enter or a click types the
/// day into the field, Escape leaves it as it is. The calendar deletes itself.
void OtworzKalendarz(QLineEdit& pole, QDate wstepna);

} // namespace tornel::okna
