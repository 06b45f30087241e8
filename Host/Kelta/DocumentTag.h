#pragma once

#include <cstdint>

namespace Kelta {

/// What kind of project a document is. The number is part of saved records; modules may use numbers that have no name
/// here.
enum class eDocumentTag : std::uint32_t
{
    Undefined = 0,
    Analysis = 1,
    Material = 2,
};

} // namespace Kelta
