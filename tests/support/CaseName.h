#pragma once

#include <string>

namespace vxtest {

/// The name of a case of a parameterised test: its number, by which cases differ, and the words and numbers of `text`.
/// GoogleTest takes letters, digits and underscores: "[-1, \"\xFF\"]" of number 4 is "04_list_minus1_xFF".
std::string caseName(std::size_t number, const std::string& text);

} // namespace vxtest
