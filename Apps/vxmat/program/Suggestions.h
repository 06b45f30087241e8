#pragma once

#include <string>
#include <vector>

namespace commandline {

/// Returns up to three of the names that a typed text probably means, the nearest first, without regard to case. Empty if
/// more than a third of the typed letters would be wrong. Looks at the first 100 bytes of each text.
std::vector<std::string> nearestNames(const std::string& typed, const std::vector<std::string>& names);

/// Returns a question for names: 'did you mean "A", "B" or "C"?'; empty if there are none.
std::string didYouMean(const std::vector<std::string>& names);

} // namespace commandline
