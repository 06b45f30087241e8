#pragma once

#include <string>
#include <vector>

namespace vxUnits {

/// Each function adds the arguments of messages that one table has.
void addDimensionWords(std::vector<std::string>& words);
void addMaterialWords(std::vector<std::string>& words);

} // namespace vxUnits
