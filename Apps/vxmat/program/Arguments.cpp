#include "program/Arguments.h"

#include "program/Answer.h"

#include <charconv>
#include <system_error>

namespace commandline {

NameAndValue splitAt(const std::string& argument, std::size_t sign)
{
    if (sign == std::string::npos)
        return {argument, std::nullopt};
    return {argument.substr(0, sign), argument.substr(sign + 1)};
}

std::uint32_t parseNumber(const std::string& argument, const std::string& text)
{
    std::uint32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end)
        throw Failure(argument + ": \"" + text + "\" is not a number; a whole number from 0 to 4294967295 is needed");
    return number;
}

} // namespace commandline
