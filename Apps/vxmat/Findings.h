#pragma once

#include "vxConstitutive/Finding.h"

#include <json/value.h>

#include <string>
#include <vector>

namespace commandline {

/// Returns the messages about findings for standard error, each with the text `title` of its subject in front. A finding
/// that is only worth knowing begins with "note: ".
std::vector<std::string> messagesAbout(const std::string& title, const std::vector<vxConstitutive::Finding>& findings);

/// Returns findings for --json: id, severity ("note", "warning", "error") and message.
Json::Value findingsToJson(const std::vector<vxConstitutive::Finding>& findings);

} // namespace commandline
