// The namespaces of the house, a folder each. A folder's names are seen by those that may include it: the
// arrows of the layers, told to the compiler.
#pragma once

namespace tornel {

namespace common {}
namespace store {
using namespace common;
}
namespace okna { // what screens share
using namespace store;
}
namespace rules {
using namespace store;
using namespace okna; // by its screens only, as in the folders below
} // namespace rules
namespace personnel {
using namespace rules;
}
namespace payroll {
using namespace personnel;
}
namespace bank {
using namespace payroll;
}
namespace start {
using namespace bank;
}
namespace app {
using namespace start;
}
namespace cli {
using namespace start;
}

} // namespace tornel
