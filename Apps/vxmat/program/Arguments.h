#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace commandline {

/// An argument NAME or NAME=VALUE.
struct NameAndValue
{
    std::string name;
    std::optional<std::string> value;
};

/// Splits an argument at the position `sign` of an equals sign; std::string::npos means that there is none.
NameAndValue splitAt(const std::string& argument, std::size_t sign);

/// Returns the unsigned number in `text`, a part of `argument`, which must consist of decimal digits.
/// \throws Failure if it is not such a number; the message names the argument
std::uint32_t parseNumber(const std::string& argument, const std::string& text);

} // namespace commandline
