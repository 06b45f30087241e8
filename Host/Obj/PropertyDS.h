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

/// A set of properties, which belong to it as members. The classes of a line register theirs in their constructors,
/// the base class first; that order is the one in which the user sees them.
///
/// Operations "by property" answer for a property of another set, as those "by name" do for an unknown name: null, an
/// empty text, 0 or false.
class OBJ_EXPORT PropertyDS : public Kelta::DataPersistence
{
    KELTA_ABSTRACT_CLASS;

public:
    PropertyDS();
    ~PropertyDS() override;

    virtual Property* get_property_by_name(const char* name) const;
    virtual const char* get_property_name(const Property* property) const;
    /// All properties by name.
    virtual void get_property_dataset(std::map<std::string, Property*>& properties) const;
    /// All properties in the order of their registration.
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
    /// A registered property has a new value.
    virtual void on_changed(const Property* property);
    /// A registered property is about to get one.
    virtual void on_change_before(const Property* property);
    /// What the class of the object says of its own properties; those of its parents follow by the parent link.
    virtual const PropertyCoreData& get_property_data() const;
    static const PropertyCoreData* get_property_data_ref();

    /// Makes `property`, a member of this object, known under `name` and notifying from now on, and describes it in
    /// `data`, the record of the class that registers. A property that a base class has registered already is known as
    /// the derived class says from then on, at its old place.
    void register_property(PropertyCoreData& data, Property& property, const char* name, const char* group,
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
