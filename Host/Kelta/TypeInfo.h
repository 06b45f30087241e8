#pragma once

#include "Kelta/KeltaExport.h"

namespace Kelta {

struct TypeRecord;

/// A registered class: what objects are asked for by, compared with and created from. A handle of the size of a
/// pointer, copied freely; what it refers to lives as long as the program.
///
///     Kelta::TypeInfo type = Kelta::TypeInfo::find("Mat::MaterialObject");
///     if (type.is_inherited_from(Obj::ProjectObject::getClassTypeId())) ...
class KELTA_EXPORT TypeInfo
{
public:
    /// Names no type: its name is empty, it has no parent, and it creates nothing.
    TypeInfo() = default;

    /// The type registered under `name`, which may be null; one that names no type when there is none.
    static TypeInfo find(const char* name);

    const char* get_name() const;
    /// The type that it was registered under; names no type for a root, and while the parent is not registered.
    TypeInfo get_parent() const;
    /// Whether it is `ancestor` or descends from it. False when either names no type.
    bool is_inherited_from(TypeInfo ancestor) const;
    bool names_a_type() const { return m_record != nullptr; }

    /// A new object, as the address of its RootClass; null when the class is abstract or memory runs out. The caller
    /// owns it. What the constructor throws passes through.
    void* create() const;

    friend bool operator==(TypeInfo a, TypeInfo b) { return a.m_record == b.m_record; }
    friend bool operator!=(TypeInfo a, TypeInfo b) { return a.m_record != b.m_record; }

private:
    friend class RootClass;
    const TypeRecord* m_record = nullptr;
};

} // namespace Kelta
