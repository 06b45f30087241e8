#pragma once

#include "Kelta/TypeInfo.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Kelta {

/// One line of the register of classes.
struct TypeRecord
{
    std::string name;
    std::string parentName;
    void* (*create)() = nullptr;
    std::size_t objectSize = 0; ///< 0 if it is unknown
    /// Filled on first use, because a module may register a class before its parent.
    mutable const TypeRecord* parent = nullptr;
};

/// Returns null if the name is not registered.
const TypeRecord* findTypeRecord(std::string_view name);

/// Adds a record. Its name must be free, and it must not be among its own ancestors.
const TypeRecord* addTypeRecord(TypeRecord record);

} // namespace Kelta
