#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxUnits/Message.h"

#include <string>
#include <string_view>
#include <vector>

namespace vxConstitutive {

/// Returns every word of the library that a user interface shows, for translators: names of models, modes, quantities,
/// measures and constants, and the patterns of columnName().
VXCONSTITUTIVE_EXPORT const std::vector<std::string>& wordTexts();

/// Returns the translation of a word in the context "vxConstitutive::Word", or of each word of a list with commas. Returns
/// the word itself if there is no translator.
VXCONSTITUTIVE_EXPORT std::string translatedWord(std::string_view english, const vxUnits::Translator& translator);

} // namespace vxConstitutive
