#pragma once

#include "vxMaterial/model/Material.h"
#include "vxUnits/Message.h"

#include <cstdint>
#include <vector>

namespace vxDecks {

/// A value with which no solver can compute, or one that excludes another one.
struct ValueFault
{
    std::int32_t id = 0; ///< the quantity
    vxUnits::Message message;
};

/// Returns the faults of the values of a material, whose numbers are finite: negative densities, Poisson's ratios of 0.5 or
/// above, plastic strains that do not ascend, linear elasticity beside a hyperelastic model. The messages have the numbers as
/// they stand.
std::vector<ValueFault> findImpossibleValues(const vxMat::MaterialBase& material);

} // namespace vxDecks
