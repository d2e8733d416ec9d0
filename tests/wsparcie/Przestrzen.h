// Tests see every folder.
#pragma once
#include "common/Przestrzenie.h"

namespace tornel::testy {
using namespace app;
using namespace cli;
} // namespace tornel::testy
