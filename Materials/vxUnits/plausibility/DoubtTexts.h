#pragma once

#include "plausibility/MaterialKinds.h"
#include "plausibility/Rules.h"
#include "plausibility/Slips.h"
#include "vxUnits/Message.h"
#include "vxUnits/Plausibility.h"

#include <optional>
#include <string>
#include <vector>

namespace vxUnits {

/// Returns the doubt for a finding, with its numbers in the units of `shown`. `blamed` is one of its quantities.
Doubt toDoubt(const Finding& finding, std::int32_t blamed, const MaterialValues& values, const UnitSystem& shown);

/// Returns what the other values of a material say about the wrong value of a relation: they are those of a kind, which has
/// other values of this quantity. `kind` is null if any value of the relation may be the wrong one. Absent if the kind has no
/// known values of the quantity.
std::optional<Message> blameMessage(std::int32_t blamed, const MaterialKind* kind, const UnitSystem& shown);

/// Whether a remedy is more likely than all others, or one of several that explain the values about as well.
enum class Certainty
{
    Likely,
    Possible
};

/// Returns the message of a remedy, "206900 MPa is usual for steel: multiply by 1e6". `kind` is the kind of the material
/// after the remedy, or null. `shown` is the unit system of the numbers in the doubt.
Message remedyMessage(const Slip& slip, Certainty certainty, const MaterialValues& values, const MaterialKind* kind,
                      const UnitSystem& shown);

/// Adds the texts of doubts and remedies.
void addDoubtTexts(std::vector<MessageText>& texts);

} // namespace vxUnits
