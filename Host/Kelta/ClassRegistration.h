#pragma once

#include "Kelta/RootClass.h"

#include <new>

/// The members by which the type system identifies a class. One line in its body declares them, and one line in its
/// source file defines them. That line names the class and its parent, and states whether an object can be
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
/// Both arguments include all their namespaces: their spelling is the registered name. The class is registered when
/// its static `init()` has been called.

/// Declares the members of a class that cannot be created by its name. Ends in a private section.
#define KELTA_ABSTRACT_CLASS                                                                                           \
public:                                                                                                                \
    static void init();                                                                                                \
    static Kelta::TypeInfo getClassTypeId();                                                                           \
    Kelta::TypeInfo getTypeId() const override;                                                                        \
                                                                                                                       \
private:                                                                                                               \
    static Kelta::TypeInfo classTypeId

/// Declares the members of a class that can be created by its name, with its default constructor.
#define KELTA_CLASS                                                                                                    \
public:                                                                                                                \
    static void* create();                                                                                             \
    KELTA_ABSTRACT_CLASS

/// Defines the members that KELTA_ABSTRACT_CLASS declares.
#define KELTA_REGISTER_ABSTRACT_CLASS(Class, Parent)                                                                   \
    KELTA_DEFINE_TYPE_ID(Class)                                                                                        \
    void Class::init()                                                                                                 \
    {                                                                                                                  \
        initSubclass(classTypeId, #Class, #Parent, nullptr, sizeof(Class));                                            \
    }

/// Defines the members that KELTA_CLASS declares.
#define KELTA_REGISTER_CLASS(Class, Parent)                                                                            \
    KELTA_DEFINE_TYPE_ID_AND_CREATE(Class)                                                                             \
    void Class::init()                                                                                                 \
    {                                                                                                                  \
        initSubclass(classTypeId, #Class, #Parent, &Class::create, sizeof(Class));                                     \
    }

// Parts of the macros above and of the macros in Obj.

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

/// Returns the address of the RootClass of a new object; null if memory is exhausted. The caller owns the object.
/// Exceptions of the constructor pass through.
template <typename Class>
void* createObject()
{
    return static_cast<RootClass*>(new (std::nothrow) Class);
}

} // namespace Kelta
