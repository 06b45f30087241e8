#pragma once

#include <cstddef>
#include <string>

namespace vxDecks {

/// Returns the shortest text of a finite number with at most `longest` characters. If the number needs more, its last digits
/// are rounded, as few as possible. 20 characters suffice for at least 13 digits of any number.
std::string writeWithin(double number, std::size_t longest);

} // namespace vxDecks
