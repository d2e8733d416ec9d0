// The namespaces of the house, a folder each. A folder's names are seen by those that may include it: the
// arrows of the layers, told to the compiler.
#pragma once

namespace tornel {

namespace common {}
namespace store {
using namespace common;
}
namespace druk { // prints as data and their pages
using namespace store;
}
namespace okna { // what screens share
using namespace druk;
}
namespace rules {
using namespace store;
using namespace druk;
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
namespace contracts {
using namespace bank; // which pays them
}
namespace tax {
using namespace bank;
using namespace contracts;
} // namespace tax
namespace zus { // beside tax: neither sees the other
using namespace bank;
using namespace contracts;
} // namespace zus
namespace reports {
using namespace tax;
using namespace zus;
} // namespace reports
namespace start {
using namespace reports;
}
namespace app {
using namespace start;
}
namespace cli {
using namespace start;
}

} // namespace tornel
