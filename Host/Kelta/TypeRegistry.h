#pragma once

#include "Kelta/TypeInfo.h"

#include <string>
#include <string_view>

namespace Kelta {

/// One line of the register of classes.
struct TypeRecord
{
    std::string name;
    std::string parentName;
    void* (*create)() = nullptr;
    /// Filled when it is first asked for: a module may register a class before the parent is there.
    mutable const TypeRecord* parent = nullptr;
};

/// Null when the name is not registered.
const TypeRecord* findTypeRecord(std::string_view name);

/// Adds a record whose name is free, and whose line of parents does not come back to it.
const TypeRecord* addTypeRecord(TypeRecord record);

} // namespace Kelta
