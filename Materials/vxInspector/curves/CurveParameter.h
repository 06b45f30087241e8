#pragma once

#include "vxConstitutive/Curve.h"
#include "vxUnits/UnitSystem.h"

#include <QString>

#include <optional>
#include <vector>

namespace vxInspector {

/// What the curves of a mode need besides constants and abscissas.
enum class CurveParameter
{
    None,
    Stresses, ///< of creep curves
    Time,     ///< of creep rates
    Cohesion  ///< of a yield surface with friction, since the catalogue has no cohesion
};

/// Returns the parameter of a mode. `hasFriction` tells whether a drawn model has friction.
CurveParameter parameterOf(vxConstitutive::Mode mode, bool hasFriction);

/// Returns the numbers of a parameter in SI units: several stresses, or one number. A number without a unit is in a unit of
/// `system`. Absent if the text cannot be read, or if a number has no meaning: a time or cohesion must be greater than 0.
std::optional<std::vector<double>> readParameter(CurveParameter parameter, const QString& text,
                                                 const vxUnits::UnitSystem& system);

/// Returns the text of numbers in SI units, as readParameter() reads it, with the unit behind the last one.
QString parameterText(CurveParameter parameter, const std::vector<double>& numbers, const vxUnits::UnitSystem& system);

} // namespace vxInspector
