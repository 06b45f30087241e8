#pragma once

#include "program/Answer.h"
#include "vxUnits/Unit.h"

#include <string>

namespace commandline {

/// `vxmat convert TEXT UNIT [--difference]`: prints the number of a text with a unit, in another unit. Remarks about the
/// units are written to standard error. The status is Findings, with the reason, if the text cannot be converted.
Answer convertText(const std::string& text, const std::string& unit, vxUnits::TemperatureMeaning meaning, Form form);

} // namespace commandline
