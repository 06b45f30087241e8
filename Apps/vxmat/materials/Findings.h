#pragma once

#include "vxConstitutive/Finding.h"
#include "vxUnits/UnitSystem.h"

#include <json/value.h>

#include <string>
#include <vector>

namespace commandline {

/// Returns the messages about findings for standard error, each with the text `title` of its subject in front. A finding
/// that is only worth knowing begins with "note: ". Stresses and times are in the units of `system`.
std::vector<std::string> messagesAbout(const std::string& title, const std::vector<vxConstitutive::Finding>& findings,
                                       const vxUnits::UnitSystem& system);

/// Returns findings for --json: id, severity ("note", "warning", "error") and message.
Json::Value findingsToJson(const std::vector<vxConstitutive::Finding>& findings, const vxUnits::UnitSystem& system);

} // namespace commandline
