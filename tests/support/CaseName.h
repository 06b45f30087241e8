#pragma once

#include <string>

namespace vxtest {

/// Returns a name for a case of a parameterised test, in the characters that GoogleTest allows: the number of the case,
/// which makes it unique, and the words and numbers of `text`. For case 4 with [-1, "\xFF"] it is "04_list_minus1_xFF".
std::string caseName(std::size_t number, const std::string& text);

} // namespace vxtest
