#pragma once

#include "Kelta/KeltaExport.h"
#include "Kelta/TypeInfo.h"

#include <memory>

namespace Kelta {

/// The root of every class that can be created by its registered name.
///
/// A class keeps a static TypeInfo, which its static init() has filled by initSubclass, and answers it from
/// getTypeId(). Objects come to life through the class's static create().
class KELTA_EXPORT RootClass
{
public:
    RootClass() = default;
    RootClass(const RootClass&) = delete;
    RootClass& operator=(const RootClass&) = delete;

    static TypeInfo getClassTypeId();
    /// The type of the object itself.
    virtual TypeInfo getTypeId() const;
    // The type id is the first virtual operation, so the destructor stands behind it.
    virtual ~RootClass();

    bool is_inherited_from(TypeInfo ancestor) const { return getTypeId().is_inherited_from(ancestor); }

    /// Registers a class under `name`, with the name of its parent class and what makes an object: an operation that
    /// answers the address of the object's RootClass, or null for a class that is not made this way. Fills
    /// `classTypeId`.
    ///
    /// A name is registered once. The same class again changes nothing; another one under the name is refused and
    /// reported to the message log, as is an empty name or a class that would descend from itself. `classTypeId` is
    /// then left as it was: a class that was refused must not be taken for the one that has its name.
    static void initSubclass(TypeInfo& classTypeId, const char* name, const char* parentName, void* (*create)());

    /// A new object of the class registered under `name`; null when there is none. What the constructor throws passes
    /// through.
    static std::unique_ptr<RootClass> create_by_name(const char* name);
};

} // namespace Kelta
