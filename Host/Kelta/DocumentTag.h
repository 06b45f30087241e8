#pragma once

#include <cstdint>

namespace Kelta {

/// The kind of a project. The number is part of saved records. Each module has a number for its projects.
///
///     constexpr Kelta::eDocumentTag assemblyTag{4711};
enum class eDocumentTag : std::uint32_t
{
    Undefined = 0,
};

} // namespace Kelta
