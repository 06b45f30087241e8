#pragma once

#include "models/ModelQuantities.h"
#include "writing/MaterialDeck.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace vxDecks {

/// Reports several quantities as carried.
void carryAll(MaterialDeck& deck, const std::vector<std::int32_t>& ids);

/// Reports linear elasticity as carried.
void reportElastic(MaterialDeck& deck);

/// Reports the quantities of a plastic model as written. `modulusForm` tells how the hardening factor is written, if it is
/// in another form.
void reportPlastic(MaterialDeck& deck, const PlasticModel& model, const std::optional<vxUnits::Message>& modulusForm);

/// Reports the switches and the constants of a hyperelastic model as carried, D1 excepted.
void reportConstants(MaterialDeck& deck, const HyperelasticModel& model);

/// The bulk modulus of an incompressible solid over its shear modulus, for solvers that have no incompressible solid;
/// Poisson's ratio is then 0.499.
inline constexpr double bulkOverShear = 500.0;

/// Returns the initial bulk modulus of a model, and reports D1: as `form`, if it is written in another form, or as
/// approximated if the solid is incompressible.
double takeBulkModulus(MaterialDeck& deck, const HyperelasticModel& model, const std::optional<vxUnits::Message>& form);

} // namespace vxDecks
