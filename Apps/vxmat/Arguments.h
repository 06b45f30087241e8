#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace vxmat {

/// An argument NAME or NAME=VALUE.
struct NameAndValue
{
    std::string name;
    std::optional<std::string> value;
};

/// Splits an argument at the place of its equals sign; std::string::npos means that it has none.
NameAndValue splitAt(const std::string& argument, std::size_t sign);

/// Returns the unsigned number in a part of an argument, which must be decimal digits.
/// \throws Failure, which names the argument, if it is not a number
std::uint32_t parseNumber(const std::string& argument, const std::string& text);

} // namespace vxmat
