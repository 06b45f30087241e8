#pragma once

#include "vxConstitutive/Finding.h"
#include "vxUnits/Message.h"
#include "vxUnits/UnitSystem.h"

#include <QString>

#include <string_view>

namespace vxInspector {

/// Returns the translator of the texts of models, curves and plots into the user's language. A word that these do not have
/// may be the name of a quantity of the catalogue.
vxUnits::Translator constitutiveTranslator();

/// Returns a word of the library of models, such as the name of a model, in the user's language.
QString constitutiveWord(std::string_view english);

/// Returns the text of a finding in the user's language, with its numbers in the units of a system.
QString translated(const vxConstitutive::Finding& finding,
                   const vxUnits::UnitSystem& system = vxUnits::UnitSystem::si());

/// Returns "Note", "Warning" or "Error" in the user's language.
QString severityText(vxConstitutive::Severity severity);

} // namespace vxInspector
