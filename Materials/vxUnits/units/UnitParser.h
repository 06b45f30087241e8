#pragma once

#include "units/UnitDefinitions.h"
#include "vxUnits/Result.h"
#include "vxUnits/Unit.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// A unit of a product, with its power.
struct Term
{
    Atom atom;
    double power = 1.0;
    bool behindSlash = false; ///< whether it comes after the first "/"
};

/// The place of a spelling in a folded text.
struct Place
{
    std::size_t begin = 0;
    std::size_t length = 0;
};

/// The terms of a unit, or the reason why the text is not a unit.
struct ParsedUnit
{
    std::vector<Term> terms;
    bool valid = false;
    Failure failure;  ///< if not valid
    Place unresolved; ///< the spelling that is unknown or ambiguous; of length 0 for another failure
};

/// Reads the terms of a folded text. Unit describes the grammar. Messages quote `whole`.
ParsedUnit parseUnit(std::string_view folded, std::string_view whole);

/// Makes a unit of a product of terms. Its text is the usual one, "W/(m K)", with terms of the same symbol combined.
class UnitBuilder
{
public:
    static Unit build(const std::vector<Term>& terms);
};

/// Returns the dimension of a product of terms.
Dimension dimensionOf(const std::vector<Term>& terms);

} // namespace vxUnits
