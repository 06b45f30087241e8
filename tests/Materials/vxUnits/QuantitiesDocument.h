#pragma once

#include <string>

namespace vxtest {

/// The text of docs/quantities.md, out of the tables of the library.
std::string quantitiesDocument();

} // namespace vxtest
