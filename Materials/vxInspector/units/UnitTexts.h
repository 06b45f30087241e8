#pragma once

#include "vxUnits/Message.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Result.h"

#include <QString>

#include <string>

namespace vxInspector {

/// Return the texts of messages about units and values in the user's language, with the names of quantities. What the user
/// typed is quoted as it was typed, even if it is such a name.
QString translated(const vxUnits::Message& message);
QString translated(const vxUnits::Failure& failure); ///< with the suggestion
QString translated(const vxUnits::Doubt& doubt);     ///< with the remedy

/// Translates a text of a message, or the name of a quantity in it (vxUnits::Translator).
std::string translateWithNames(const char* context, const char* english);

/// Returns a word of the library of units, such as the name of a derived value, in the user's language.
QString translatedWord(const char* english);

} // namespace vxInspector
