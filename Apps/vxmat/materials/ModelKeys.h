#pragma once

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Model.h"

#include <string>

namespace commandline {

/// Returns the kind of model with a key, for `option`.
/// \throws Failure if there is none
vxConstitutive::ModelKind readModelKind(const std::string& option, const std::string& key);

/// Returns the mode with a key, for `option`.
/// \throws Failure if there is none; the message lists the modes
vxConstitutive::Mode readMode(const std::string& option, const std::string& key);

} // namespace commandline
