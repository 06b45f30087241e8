#pragma once

#include "Kelta/ClassRegistration.h"
#include "Obj/PropertyCoreData.h"

/// The registration of classes with host properties: the members of `Kelta/ClassRegistration.h`, and the class's record
/// of its properties, which links to that of the parent class.
///
///     class Bolt : public Obj::ProjectObject          // header
///     {
///         OBJ_CLASS;
///         ...
///     };
///
///     OBJ_REGISTER_CLASS(Fastening::Bolt, Obj::ProjectObject)          // source file

/// Declares the members of a class that cannot be created by its name. Ends in a private section.
#define OBJ_ABSTRACT_CLASS                                                                                             \
    KELTA_ABSTRACT_CLASS;                                                                                              \
    OBJ_DECLARE_PROPERTY_DATA

/// Declares the members of a class that can be created by its name, with its default constructor.
#define OBJ_CLASS                                                                                                      \
    KELTA_CLASS;                                                                                                       \
    OBJ_DECLARE_PROPERTY_DATA

/// Defines the members that OBJ_ABSTRACT_CLASS declares.
#define OBJ_REGISTER_ABSTRACT_CLASS(Class, Parent)                                                                     \
    KELTA_DEFINE_TYPE_ID(Class)                                                                                        \
    OBJ_DEFINE_PROPERTY_DATA(Class)                                                                                    \
    void Class::init()                                                                                                 \
    {                                                                                                                  \
        initSubclass(classTypeId, #Class, #Parent, nullptr, sizeof(Class));                                            \
        propertyData.setParent(Parent::get_property_data_ref());                                                       \
    }

/// Defines the members that OBJ_CLASS declares.
#define OBJ_REGISTER_CLASS(Class, Parent)                                                                              \
    KELTA_DEFINE_TYPE_ID_AND_CREATE(Class)                                                                             \
    OBJ_DEFINE_PROPERTY_DATA(Class)                                                                                    \
    void Class::init()                                                                                                 \
    {                                                                                                                  \
        initSubclass(classTypeId, #Class, #Parent, &Class::create, sizeof(Class));                                     \
        propertyData.setParent(Parent::get_property_data_ref());                                                       \
    }

// Parts of the macros above.

#define OBJ_DECLARE_PROPERTY_DATA                                                                                      \
protected:                                                                                                             \
    const Obj::PropertyCoreData& get_property_data() const override;                                                   \
    static const Obj::PropertyCoreData* get_property_data_ref();                                                       \
                                                                                                                       \
private:                                                                                                               \
    static Obj::PropertyCoreData propertyData

#define OBJ_DEFINE_PROPERTY_DATA(Class)                                                                                \
    Obj::PropertyCoreData Class::propertyData;                                                                         \
    const Obj::PropertyCoreData& Class::get_property_data() const                                                      \
    {                                                                                                                  \
        return propertyData;                                                                                           \
    }                                                                                                                  \
    const Obj::PropertyCoreData* Class::get_property_data_ref()                                                        \
    {                                                                                                                  \
        return &propertyData;                                                                                          \
    }
