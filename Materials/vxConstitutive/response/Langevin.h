#pragma once

#include "vxConstitutive/ConstitutiveExport.h"

namespace vxConstitutive {

/// A value and its derivative.
struct ValueAndSlope
{
    double value = 0.0;
    double slope = 0.0;
};

/// Returns the inverse of the Langevin function L(b) = coth(b) - 1/b to the precision of a double, and its derivative.
///
/// This is the force on a freely jointed chain (in kT per length of a link) if the distance of its ends is the part `x` of its
/// full length. Valid for -1 < x < 1; NaN elsewhere.
///
/// Source: W. Kuhn, F. Gruen, "Beziehungen zwischen elastischen Konstanten und Dehnungsdoppelbrechung hochelastischer
/// Stoffe", Kolloid-Zeitschrift 101 (1942), 248-271.
VXCONSTITUTIVE_EXPORT ValueAndSlope inverseLangevin(double x);

} // namespace vxConstitutive
