#pragma once

#include <string>

namespace commandline {

/// Returns the English name of the quantity that has a name in another language of the desktop application. Upper and lower
/// case do not matter. Empty if no quantity has the name, or if the translations are not installed, which are read then.
std::string findEnglishName(const std::string& foreign);

} // namespace commandline
