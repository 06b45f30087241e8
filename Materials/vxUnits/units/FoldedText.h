#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vxUnits {

/// One character of a UTF-8 text, and the bytes that it takes. An invalid sequence takes one byte.
struct CodePoint
{
    std::uint32_t value = 0;
    std::size_t length = 1;
    bool valid = false;
};
CodePoint readCodePoint(std::string_view text, std::size_t at);

/// Returns "U+2192", the name of a character for messages.
std::string nameOf(std::uint32_t character);

/// A text in the characters of the grammar of numbers and units.
struct FoldedText
{
    enum class Fault
    {
        None,
        BadEncoding,
        IllegalCharacter
    };

    std::string text;          ///< ASCII; complete if there is no fault
    Fault fault = Fault::None; ///< the first one
    std::string illegal;       ///< "U+2192", the character that is at fault
};

/// Writes in ASCII what users paste and type: every kind of blank as ' ', "·" as '*', "−" as '-', "m³" as "m^3", "µm"
/// as "um", "Ω" as "Ohm", "°C" as "degC", "%" as "percent", full-width letters and digits as plain ones. Blanks around
/// the text are removed. Takes linear time.
FoldedText fold(std::string_view text);

} // namespace vxUnits
