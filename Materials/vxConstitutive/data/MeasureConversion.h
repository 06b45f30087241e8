#pragma once

#include "vxConstitutive/data/TestData.h"

/// The axes of tests between the quantities that are measured, in SI units, and the meaning of TestData.
namespace vxConstitutive {

/// Returns the abscissa in the meaning of TestData.
double canonicalAbscissa(Mode mode, Measure measure, double value);
/// Returns the ordinate in the meaning of TestData. Nominal stresses follow from true ones at constant volume. `abscissa` is
/// in the meaning of TestData.
double canonicalOrdinate(Mode mode, Measure measure, double value, double abscissa);

/// Return the value that was measured; the inverse functions.
double measuredAbscissa(Mode mode, Measure measure, double abscissa);
double measuredOrdinate(Mode mode, Measure measure, double ordinate, double abscissa);

} // namespace vxConstitutive
