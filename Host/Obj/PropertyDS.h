#pragma once

#include "Kelta/ClassRegistration.h"
#include "Kelta/DataPersistence.h"
#include "Obj/ObjExport.h"
#include "Obj/Property.h"
#include "Obj/PropertyCoreData.h"

#include <map>
#include <string>
#include <vector>

namespace Obj {

/// A set of properties, which are its members. Each class registers its properties in its constructor, a base class
/// before the classes that derive from it; the user sees the properties in that order.
///
/// If a property belongs to another set, operations "by property" return the same as operations "by name" do for an
/// unknown name: null, an empty text, 0 or false.
class OBJ_EXPORT PropertyDS : public Kelta::DataPersistence
{
    KELTA_ABSTRACT_CLASS;

public:
    PropertyDS();
    ~PropertyDS() override;

    /// Returns the size of an object of the class, plus the size of the values of the properties.
    std::size_t get_memory_usage() const override;

    virtual Property* get_property_by_name(const char* name) const;
    virtual const char* get_property_name(const Property* property) const;
    /// Returns all properties by name.
    virtual void get_property_dataset(std::map<std::string, Property*>& properties) const;
    /// Returns all properties in the order of their registration.
    virtual void get_property_array(std::vector<Property*>& properties) const;
    virtual short get_property_type(const char* name) const; ///< PropertyType values
    virtual short get_property_type(const Property* property) const;
    virtual const char* get_property_group(const char* name) const;
    virtual const char* get_property_group(const Property* property) const;
    virtual const char* get_property_description(const char* name) const;
    virtual const char* get_property_description(const Property* property) const;
    virtual bool is_read_only(const char* name) const;
    virtual bool is_read_only(const Property* property) const;
    virtual bool is_hidden(const char* name) const;
    virtual bool is_hidden(const Property* property) const;

protected:
    /// Called after a registered property has got a new value.
    virtual void on_changed(const Property* property);
    /// Called before a registered property gets a new value.
    virtual void on_change_before(const Property* property);
    /// Returns the descriptions of the properties that the object's class itself registers; the parent link leads to
    /// the descriptions of its parent class.
    virtual const PropertyCoreData& get_property_data() const;
    static const PropertyCoreData* get_property_data_ref();

    /// Registers `property`, a member of this object, under `name`, and describes it in `data`, the record of the class
    /// that registers it. The property then notifies this object. A property that a base class has registered gets
    /// the name and description of the derived class, and keeps its place in the order.
    void registerProperty(PropertyCoreData& data, Property& property, const char* name, const char* group,
                          short attributes, const char* description);

private:
    friend class Property;

    struct Entry
    {
        Property* property;
        const PropertyDescription* description;
    };
    const Entry* find(const char* name) const;
    const Entry* find(const Property* property) const;

    static PropertyCoreData propertyData;
    std::vector<Entry> m_entries;
};

} // namespace Obj
