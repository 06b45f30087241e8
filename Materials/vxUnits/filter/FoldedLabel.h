#pragma once

#include <string>
#include <string_view>

namespace vxUnits {

/// Returns a text without differences of case: Latin, Greek and Cyrillic letters become small ones. Invalid bytes stay.
std::string foldLabel(std::string_view text);

/// Returns the name of a quantity or a word in the form in which names are compared: as foldLabel, without apostrophes, and
/// with one blank for each sequence of blanks and hyphens.
std::string foldName(std::string_view text);

} // namespace vxUnits
