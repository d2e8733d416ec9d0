// The papers of an employment as a port: the screen offers what it is given, and knows nothing of paper.
#pragma once
#include "personnel/UmowyOPrace.h"
#include <functional>

class QWidget;

namespace tornel::personnel {

/// Prints or shows a paper of the row `id`, which has it. Empty where none are offered.
using DrukUmowyOPrace = std::function<void(PismoOPrace pismo, qint64 id, QWidget* rodzic)>;

} // namespace tornel::personnel
