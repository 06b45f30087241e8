#pragma once

#include "Kelta/KeltaExport.h"

#include <cstddef>

namespace Kelta {

struct TypeRecord;

/// A registered class, used to find, compare and create objects. A handle of the size of a pointer, cheap to copy. The
/// registration that it refers to lives as long as the program.
///
///     Kelta::TypeInfo type = Kelta::TypeInfo::find("Fastening::Bolt");
///     if (type.is_inherited_from(Obj::ProjectObject::getClassTypeId())) ...
class KELTA_EXPORT TypeInfo
{
public:
    /// Names no type: its name is empty, it has no parent, and it creates nothing.
    TypeInfo() = default;

    /// Returns the type registered under `name`, which may be null; a handle that names no type if there is none.
    static TypeInfo find(const char* name);

    const char* get_name() const;
    /// Returns the type of the parent class; names no type for a root, or if the parent is not registered yet.
    TypeInfo getParent() const;
    /// Returns whether this is `ancestor` or descends from it. False if either names no type.
    bool is_inherited_from(TypeInfo ancestor) const;
    bool namesAType() const { return m_record != nullptr; }

    /// Returns the size of an object in bytes, without memory that it owns elsewhere; 0 if it is unknown.
    std::size_t getObjectSize() const;

    /// Returns a new object, as the address of its RootClass; null if the class cannot be created by its name or memory
    /// is exhausted. The caller owns the object. Exceptions of the constructor pass through.
    void* create() const;

    friend bool operator==(TypeInfo a, TypeInfo b) { return a.m_record == b.m_record; }
    friend bool operator!=(TypeInfo a, TypeInfo b) { return a.m_record != b.m_record; }

private:
    friend class RootClass;
    const TypeRecord* m_record = nullptr;
};

} // namespace Kelta
