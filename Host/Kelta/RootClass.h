#pragma once

#include "Kelta/KeltaExport.h"
#include "Kelta/TypeInfo.h"

#include <cstddef>
#include <memory>

namespace Kelta {

/// The root of every class that the host knows by a registered name. `Kelta/ClassRegistration.h` declares and defines
/// what a class needs for that.
class KELTA_EXPORT RootClass
{
public:
    RootClass() = default;
    RootClass(const RootClass&) = delete;
    RootClass& operator=(const RootClass&) = delete;

    static TypeInfo getClassTypeId();
    /// The type of the object itself.
    virtual TypeInfo getTypeId() const;
    // The type id is the first virtual operation, so the destructor comes after it.
    virtual ~RootClass();

    bool is_inherited_from(TypeInfo ancestor) const { return getTypeId().is_inherited_from(ancestor); }

    /// Registers a class under `name` with the name of its parent class, and fills `classTypeId`. `create` makes an object
    /// and returns the address of its RootClass; it is null for a class that is not created by its name. `objectSize` is
    /// the size of an object in bytes, 0 if it is not known.
    ///
    /// A name is registered once. Safe to call more than once for one class. Another class under the name is refused and
    /// reported to the message log, as is an empty name or a class that would descend from itself; `classTypeId` then
    /// stays as it is, because a class that was refused must not pass for the one that has its name.
    static void initSubclass(TypeInfo& classTypeId, const char* name, const char* parentName, void* (*create)(),
                             std::size_t objectSize = 0);

    /// Returns a new object of the class registered under `name`; null if there is none. What the constructor throws
    /// passes through.
    static std::unique_ptr<RootClass> createByName(const char* name);
};

} // namespace Kelta
