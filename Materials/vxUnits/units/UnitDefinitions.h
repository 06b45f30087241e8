#pragma once

#include "units/Texts.h"
#include "vxUnits/Dimension.h"
#include "vxUnits/Unit.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// A unit with its exact definition: its size is numerator / denominator * 10^exponent coherent SI units. All definitions
/// are rational numbers: the inch is 254e-4 m, the pound 45359237e-8 kg, the standard
/// acceleration of gravity 980665e-5 m/s2 (International Yard and Pound Agreement, 1959; 3rd CGPM, 1901).
struct UnitDefinition
{
    const char* symbols = "";  ///< spellings that take prefixes like "M", separated by blanks; the first is written
    const char* names = "";    ///< words that take prefixes like "mega", in any case
    const char* prefixes = ""; ///< the prefixes that it takes; D is deca
    std::uint64_t numerator = 1;
    std::uint64_t denominator = 1;
    int exponent = 0;
    Dimension dimension;
    double zero = 0.0;       ///< the distance of zero of a temperature scale from the absolute zero
    Text note = Text::Count; ///< a remark for the user; Count if there is none
    bool perPi = false;      ///< whether the value is also divided by pi, as for the radian
};

/// A unit with its prefix.
struct Atom
{
    std::string symbol; ///< as it is written
    Scale scale;
    Dimension dimension;
    double zero = 0.0;
    Message note; ///< id is empty if there is none
};

/// Returns the built-in unit of a spelling, with a prefix or without; absent if there is none.
std::optional<Atom> findBuiltIn(std::string_view spelling);

/// Returns the built-in units without prefixes, in the order of their table.
std::vector<Atom> builtInAtoms();

/// A spelling that people use for different units.
struct AmbiguousSpelling
{
    const char* spelling;
    const char* choices;    ///< what to write instead
    const char* suggestion; ///< the likeliest of them
};
const AmbiguousSpelling* findAmbiguous(std::string_view spelling);

/// Returns common spellings of units, the most frequent first, for suggestions.
const std::vector<std::string>& commonSpellings();

} // namespace vxUnits
