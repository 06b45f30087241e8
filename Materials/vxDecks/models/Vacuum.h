#pragma once

#include "vxUnits/UnitSystem.h"

namespace vxDecks {

/// A constant of vacuum, of which the catalogue has the multiple in a material. Solvers may have the absolute value.
struct VacuumConstant
{
    double inSi = 1.0;
    vxUnits::Dimension dimension;

    /// Returns the constant in the unit of a system.
    double in(const vxUnits::UnitSystem& units) const { return inSi / units.unitOf(dimension).factor(); }
};

/// Returns the permittivity of vacuum in F/m, and the permeability in H/m: CODATA 2018.
inline VacuumConstant vacuumPermittivity()
{
    return {8.8541878128e-12, {-3, -1, 4, 0, 2}};
}
inline VacuumConstant vacuumPermeability()
{
    return {1.25663706212e-6, {1, 1, -2, 0, -2}};
}

} // namespace vxDecks
