#pragma once

#include "Kelta/RootClass.h"

#include <new>

/// The members by which the type system knows a class, declared by one line in its body and defined by one line in its
/// source file. That line is the only place that tells the name of the class, its parent, and whether an object can be
/// created by the name. `Obj/ClassRegistration.h` does the same for classes with host properties.
///
///     class Workbench : public Gui::StdSimModule          // header
///     {
///         KELTA_CLASS;
///         ...
///     };
///
///     KELTA_REGISTER_CLASS(Fastening::Workbench, Gui::StdSimModule)          // source file
///
/// Both arguments are written with all their namespaces: their spelling is the registered name. The class is known once
/// its static `init()` has been called.

/// Declares the members of a class that is not created by its name. Ends in a private section.
#define KELTA_ABSTRACT_CLASS                                                                                           \
public:                                                                                                                \
    static void init();                                                                                                \
    static Kelta::TypeInfo getClassTypeId();                                                                           \
    Kelta::TypeInfo getTypeId() const override;                                                                        \
                                                                                                                       \
private:                                                                                                               \
    static Kelta::TypeInfo classTypeId

/// Declares the members of a class that is created by its name, with its default constructor.
#define KELTA_CLASS                                                                                                    \
public:                                                                                                                \
    static void* create();                                                                                             \
    KELTA_ABSTRACT_CLASS

/// Defines what KELTA_ABSTRACT_CLASS declares.
#define KELTA_REGISTER_ABSTRACT_CLASS(Class, Parent)                                                                   \
    KELTA_DEFINE_TYPE_ID(Class)                                                                                        \
    void Class::init()                                                                                                 \
    {                                                                                                                  \
        initSubclass(classTypeId, #Class, #Parent, nullptr, sizeof(Class));                                            \
    }

/// Defines what KELTA_CLASS declares.
#define KELTA_REGISTER_CLASS(Class, Parent)                                                                            \
    KELTA_DEFINE_TYPE_ID_AND_CREATE(Class)                                                                             \
    void Class::init()                                                                                                 \
    {                                                                                                                  \
        initSubclass(classTypeId, #Class, #Parent, &Class::create, sizeof(Class));                                     \
    }

// Parts of the macros above and of those in Obj.

#define KELTA_DEFINE_TYPE_ID(Class)                                                                                    \
    Kelta::TypeInfo Class::classTypeId;                                                                                \
    Kelta::TypeInfo Class::getClassTypeId()                                                                            \
    {                                                                                                                  \
        return classTypeId;                                                                                            \
    }                                                                                                                  \
    Kelta::TypeInfo Class::getTypeId() const                                                                           \
    {                                                                                                                  \
        return classTypeId;                                                                                            \
    }

#define KELTA_DEFINE_TYPE_ID_AND_CREATE(Class)                                                                         \
    KELTA_DEFINE_TYPE_ID(Class)                                                                                        \
    void* Class::create()                                                                                              \
    {                                                                                                                  \
        return Kelta::createObject<Class>();                                                                           \
    }

namespace Kelta {

/// Returns the address of the RootClass of a new object; null if memory is exhausted. The caller owns the object. What
/// the constructor throws passes through.
template <typename Class>
void* createObject()
{
    return static_cast<RootClass*>(new (std::nothrow) Class);
}

} // namespace Kelta
