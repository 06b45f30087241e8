#pragma once

#include <cstdint>
#include <vector>

namespace vxDecks {

/// The quantities of a material model, with its switch.
const std::vector<std::int32_t>& hyperelasticIds();
const std::vector<std::int32_t>& creepIds();
const std::vector<std::int32_t>& pronyIds();

} // namespace vxDecks
