#pragma once

#include <cstdint>
#include <string>

namespace vxmat {

/// The unsigned number that is part of an argument, in decimal digits alone.
/// \throws Failure, which names the argument, when it is none
std::uint32_t parseNumber(const std::string& argument, const std::string& text);

} // namespace vxmat
