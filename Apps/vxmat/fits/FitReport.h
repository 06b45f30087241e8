#pragma once

#include "fits/TestFiles.h"
#include "units/ChosenUnits.h"
#include "vxConstitutive/fit/Fit.h"

#include <json/value.h>

#include <string>
#include <vector>

namespace commandline {

/// Returns what was understood of the tests, and a table of the fitted models, best first, side by side: constants with
/// standard errors, residuals, the error of each test, R2, stable ranges. Hardening curves follow as tables.
std::string fitText(const std::vector<MeasuredTest>& tests, const std::vector<vxConstitutive::FitResult>& results,
                    const vxUnits::UnitSystem& system);

/// Returns the same for --json: the members "tests", "units" and "fits".
Json::Value fitToJson(const std::vector<MeasuredTest>& tests, const std::vector<vxConstitutive::FitResult>& results,
                      const vxUnits::UnitSystem& system);

/// Returns the messages about the findings of fits, with numbers in the units of `system`. A finding that several models
/// share is one message.
std::vector<std::string> messagesAbout(const std::vector<vxConstitutive::FitResult>& results,
                                       const vxUnits::UnitSystem& system);

} // namespace commandline
