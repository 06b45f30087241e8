#pragma once

#include "Kelta/KeltaExport.h"
#include "Kelta/TypeInfo.h"

#include <cstddef>
#include <memory>

namespace Kelta {

/// The root of every class that the host identifies by a registered name. `Kelta/ClassRegistration.h` declares and
/// defines the members that a class needs for that.
class KELTA_EXPORT RootClass
{
public:
    RootClass() = default;
    RootClass(const RootClass&) = delete;
    RootClass& operator=(const RootClass&) = delete;

    static TypeInfo getClassTypeId();
    /// Returns the type of the object itself.
    virtual TypeInfo getTypeId() const;
    // The type id is the first virtual operation, so the destructor comes after it.
    virtual ~RootClass();

    bool is_inherited_from(TypeInfo ancestor) const { return getTypeId().is_inherited_from(ancestor); }

    /// Registers a class under `name` with the name of its parent class, and fills `classTypeId`. `create` makes an
    /// object and returns the address of its RootClass; null if the class cannot be created by its name. `objectSize`
    /// is the size of an object in bytes, 0 if it is unknown.
    ///
    /// A name is registered once. Safe to call more than once for one class. Another class under the same name, an
    /// empty name, and a class that would descend from itself are refused and reported to the message log.
    /// `classTypeId` is then unchanged, because a refused class must not be mistaken for the class that has its name.
    static void initSubclass(TypeInfo& classTypeId, const char* name, const char* parentName, void* (*create)(),
                             std::size_t objectSize = 0);

    /// Returns a new object of the class registered under `name`; null if there is none. Exceptions of the constructor
    /// pass through.
    static std::unique_ptr<RootClass> createByName(const char* name);
};

} // namespace Kelta
