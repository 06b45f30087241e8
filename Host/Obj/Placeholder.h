#pragma once

#include "Obj/ObjExport.h"
#include "Obj/Project.h"
#include "Obj/ProjectObject.h"

#include <json/value.h>

#include <memory>
#include <string>
#include <vector>

namespace Obj {

/// The data that a placeholder keeps of an object or project of a file whose module is missing: the name of its class,
/// and its record from the file, which is written back unchanged.
class OBJ_EXPORT Placeholder
{
public:
    Placeholder(std::string className, Json::Value record);
    ~Placeholder();

    const std::string& getOriginalClass() const { return m_className; }
    const Json::Value& getRecord() const { return m_record; }

protected:
    /// Registers the read-only properties of the placeholder `owner`: id, original class, and the properties of the
    /// record whose names are free. `classData` describes the properties of the owner's class;
    /// `registerProperty` calls the function of that name of the owner.
    template <class Owner, class Register>
    void registerShown(Owner& owner, PropertyCoreData& classData, const Register& registerProperty);

private:
    /// A value of the member "properties" of the record, an object of names and values.
    struct ShownProperty
    {
        std::string name;
        PropertyString value;
    };

    std::string m_className;
    Json::Value m_record;
    std::vector<std::unique_ptr<ShownProperty>> m_shown;
    PropertyCoreData m_ownData; ///< describes the properties of the record
};

/// An object of a class that is not registered. It can be deleted, copied, pasted and saved. Its properties are
/// read-only, and it is never executed or checked.
///
///     project.add_object(std::make_unique<Obj::PlaceholderObject>("Fastening::Bolt", record), "Bolt", 7);
class OBJ_EXPORT PlaceholderObject : public ProjectObject, public Placeholder
{
    OBJ_ABSTRACT_CLASS;

public:
    PlaceholderObject(std::string className, Json::Value record);
    ~PlaceholderObject() override;

    std::size_t get_memory_usage() const override;
    /// Describes the object under its original class.
    void save_jsonDB(Json::Value& record) override;
};

/// A project of a class that is not registered. Its objects are placeholders too.
class OBJ_EXPORT PlaceholderProject : public Project, public Placeholder
{
    OBJ_ABSTRACT_CLASS;

public:
    PlaceholderProject(std::string className, Json::Value record);
    ~PlaceholderProject() override;

    std::size_t get_memory_usage() const override;
};

} // namespace Obj
