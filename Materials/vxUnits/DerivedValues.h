#pragma once

#include "vxUnits/MaterialValues.h"
#include "vxUnits/Unit.h"
#include "vxUnits/UnitsExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vxUnits {

/// A quantity that is computed from the quantities of a material.
struct DerivedQuantity
{
    const char* id = "";      ///< "shear-modulus"; never changes
    const char* name = "";    ///< "Shear modulus"; a source of translation
    const char* symbol = "";  ///< "G"
    const char* formula = ""; ///< "E / (2 (1 + nu))"
    Dimension dimension;      ///< UnitSystem::unitOf gives its unit
};

/// Returns all derived quantities, in the order of derivedValues(). The list lives as long as the program.
VXUNITS_EXPORT const std::vector<DerivedQuantity>& derivedQuantities();

/// A value that is computed from the values of a material.
struct DerivedValue
{
    const char* id = "";       ///< "shear-modulus"; never changes
    const char* name = "";     ///< "Shear modulus"; a source of translation
    const char* symbol = "";   ///< "G"
    const char* formula = "";  ///< "E / (2 (1 + nu))"
    double value = 0.0;        ///< finite, in coherent SI units
    Dimension dimension;       ///< UnitSystem::unitOf gives its unit
    std::int32_t position = 0; ///< in the fixed order of all derived values
};

/// Returns the derived values of a material: moduli, wave speeds, diffusivity and others, in a fixed order. Omits values
/// that need a quantity that the material does not have, and values that are not finite.
VXUNITS_EXPORT std::vector<DerivedValue> derivedValues(const MaterialValues& values);

/// The initial moduli of a hyperelastic material in Pa.
struct InitialModuli
{
    double shear = 0.0;         ///< not 0
    std::optional<double> bulk; ///< absent if the material is incompressible: D1 is 0 or missing

    VXUNITS_EXPORT double youngs() const; ///< Returns 9 K G / (3 K + G), or 3 G without K.
};

/// Returns the initial moduli of the model that is switched on, neo-Hookean, Mooney-Rivlin or Arruda-Boyce. If none is
/// switched on, the constants of the material decide which model it is. Absent if it has no such constants.
VXUNITS_EXPORT std::optional<InitialModuli> initialModuli(const MaterialValues& values);

} // namespace vxUnits
