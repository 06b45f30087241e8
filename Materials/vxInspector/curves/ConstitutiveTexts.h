#pragma once

#include "vxConstitutive/Finding.h"
#include "vxUnits/Message.h"

#include <QString>

namespace vxInspector {

/// Returns the translator of the texts of models, curves and plots into the user's language.
vxUnits::Translator constitutiveTranslator();

/// Returns the text of a finding in the user's language. Arguments that are names, such as those of models, are
/// translated too.
QString translated(const vxConstitutive::Finding& finding);

/// Returns "Note", "Warning" or "Error" in the user's language.
QString severityText(vxConstitutive::Severity severity);

} // namespace vxInspector
