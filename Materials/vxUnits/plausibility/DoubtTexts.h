#pragma once

#include "plausibility/MaterialKinds.h"
#include "plausibility/Rules.h"
#include "plausibility/Slips.h"
#include "vxUnits/Message.h"
#include "vxUnits/Plausibility.h"

#include <string>
#include <vector>

namespace vxUnits {

/// Returns the doubt for a finding, with its numbers in the units of `shown`. `blamed` is one of its quantities.
Doubt toDoubt(const Finding& finding, std::int32_t blamed, const MaterialValues& values, const UnitSystem& shown);

/// Returns the message of a remedy, "206900 MPa is usual for steel: multiply by 1e6". `kind` is the kind of the material
/// after the remedy, or null. `shown` is the unit system of the numbers in the doubt.
Message remedyMessage(const Slip& slip, const MaterialValues& values, const MaterialKind* kind,
                      const UnitSystem& shown);

/// Adds the texts of doubts and remedies.
void addDoubtTexts(std::vector<MessageText>& texts);

} // namespace vxUnits
