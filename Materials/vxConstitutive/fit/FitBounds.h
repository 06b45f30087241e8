#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/fit/Fit.h"
#include "vxUnits/Message.h"
#include "vxUnits/UnitSystem.h"

#include <string>
#include <string_view>

namespace vxConstitutive {

/// Bounds of constants as a user has typed them.
struct BoundsReading
{
    BoundsById bounds;
    std::string problem; ///< why the text cannot be read, in the language of the translator; empty if it can
};

/// Reads a bound, "C10=0:1 MPa" or "C10=0.5 MPa" for a fixed value, of the models that are fitted to tests of a mode, and adds it
/// to `bounds`. One side of the colon may be empty. The symbols are those of FittedConstant: C10, C01, C11, Mu and lm of rubber,
/// sigma0 and H of metals, A, n and m of creep, g and tau of relaxation. A number without a unit is in a unit of `system`; A is
/// in SI units, since its unit depends on the exponents.
/// Returns why the text cannot be read; empty if it can.
VXCONSTITUTIVE_EXPORT std::string readBound(std::string_view text, Mode mode, const vxUnits::UnitSystem& system,
                                            BoundsById& bounds, const vxUnits::Translator& translator = {});

/// Reads bounds that are separated by semicolons. An empty text has none.
VXCONSTITUTIVE_EXPORT BoundsReading readBounds(std::string_view text, Mode mode, const vxUnits::UnitSystem& system,
                                               const vxUnits::Translator& translator = {});

} // namespace vxConstitutive
