#pragma once

#include "Kelta/DocumentTag.h"
#include "Obj/ClassRegistration.h"
#include "Obj/ObjExport.h"
#include "Obj/ObjectState.h"
#include "Obj/ProjectObject.h"
#include "Obj/PropertyDS.h"
#include "Obj/Signal.h"
#include "Obj/UniqueNames.h"

#include <json/value.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Obj {

class NameIndex;

/// A project: a top-level node of the project tree, and the owner of its objects.
///
/// Objects stand in the order of their ids, which is the order in which they were first added. Ids begin at 1 and go
/// up to the largest number of 32 bits; the id of an object that is gone is given to no other. Finding by id or by name
/// does not walk the project.
class OBJ_EXPORT Project : public PropertyDS
{
    OBJ_ABSTRACT_CLASS;

public:
    Project();
    ~Project() override;

    /// The registered class of the node that shows the project in the tree; empty for none.
    virtual const char* get_viewfeeder_name() const;
    virtual eVXObjectState check_input();
    /// Hands what the project knows to the solver side.
    virtual void collect_frontend_data();
    /// Looks anew how far each object has come.
    virtual void update();
    /// Describes the project and its objects in a record of the project database.
    virtual void save_jsonDB(Json::Value& record);
    virtual void load_jsonDB(Json::Value& record);
    /// Hooks of modules for an XML file, by names that modules know. Here nothing: projects are kept in JSON files.
    // NOLINTBEGIN(bugprone-virtual-near-miss): modules know these names, beside save and load of the properties.
    virtual void Save(Kelta::FileWriter& writer) const;
    virtual void Load(Kelta::XMLFileReader& reader);
    // NOLINTEND(bugprone-virtual-near-miss)

    /// The number of the project in the application; 0 before it is in it.
    std::uint32_t getProjectId() const { return m_projectId; }
    /// The name of the project, which no other one has; what the user sees too.
    const char* get_name() const { return m_name.c_str(); }
    Kelta::eDocumentTag get_document_tag() const { return documentTag; }

    /// Null when there is none. The project keeps what it answers.
    ProjectObject* get_object(std::uint32_t objectId) const;
    ProjectObject* get_object(std::string_view name) const;
    std::vector<ProjectObject*> get_objects() const;
    /// The objects of this type or one that descends from it, in the project's order.
    std::vector<ProjectObject*> get_objects_of_type(Kelta::TypeInfo type) const;
    std::size_t get_object_count() const { return m_objects.size(); }

    /// A name that no object of the project has, and that was not answered before.
    std::string get_unique_object_name(std::string_view stem);

    /// Makes an object of a registered class and adds it, with its name as its label. When an object has the name, a
    /// unique one is made from it. Null, with the reason in the message log, when the class is not registered, is no
    /// ProjectObject or makes none, or when the ids are used up. What the object's constructor or its
    /// on_configuring_project throws passes through; the project has then no object more.
    ProjectObject* add_object(const char* className, std::string_view name);
    /// Likewise with an id of the caller's, as when a project is read from a file. Null also when the id is 0, beyond 32
    /// bits or one that an object has or had, or when the name is empty or taken.
    ProjectObject* add_object(const char* className, std::string_view name, std::uint64_t objectId);

    /// Takes an object out, and answers it to be kept for undo or destroyed; null when the project has no such object.
    /// Those that need it are told.
    [[nodiscard]] std::unique_ptr<ProjectObject> take_object(std::uint32_t objectId);
    /// Puts back what take_object answered, at its place, under its id and name; answers the object. When another object
    /// has got its name meanwhile, it comes back under a unique one, and the message log says so. Null, with a report,
    /// when it has not come from this project; it is then destroyed.
    ProjectObject* restore_object(std::unique_ptr<ProjectObject> object);
    /// Destroys an object; false when the project has none of this id.
    bool remove_object(std::uint32_t objectId);

    /// The id that the next object gets; may be beyond 32 bits, when no further object can be added.
    std::uint64_t get_next_object_id() const { return m_nextObjectId; }
    /// Leaves out ids: those below `nextId` are given to no new object, unless it asks for one of them itself. A smaller
    /// number than the present one changes nothing.
    void skip_object_ids(std::uint64_t nextId);

    /// Changes of the project's objects and properties. Objects are there when they are added and still there, outside
    /// the project, when they have been removed. Whoever listens may add, remove and change others, but destroy neither
    /// the object nor the project that he is told of. No signal is sent while a project is destroyed.
    Signal<void(ProjectObject&)> objectAdded;
    Signal<void(ProjectObject&)> objectRemoved;
    /// The property that changed is null when the change is another: state, suppression.
    Signal<void(ProjectObject&, const Property*)> objectChanged;
    Signal<void(const Property*)> changed;

    PropertyInteger id;        ///< "ID"
    PropertyString classLabel; ///< "ClassLabel"

protected:
    void on_changed(const Property* property) override;

    Kelta::eDocumentTag documentTag = Kelta::eDocumentTag::Undefined;

private:
    friend class Application;
    std::unique_ptr<ProjectObject> createObject(const char* className) const;
    ProjectObject* insertNew(std::unique_ptr<ProjectObject> object, std::string name, std::uint32_t objectId);
    using Objects = std::map<std::uint32_t, std::unique_ptr<ProjectObject>>;
    ProjectObject* insert(std::unique_ptr<ProjectObject> object);
    std::unique_ptr<ProjectObject> withdraw(Objects::iterator place);
    void listById(ProjectObject& object);
    void unlistById(std::uint32_t objectId);
    bool isUnused(std::uint64_t objectId) const;
    void useId(std::uint64_t objectId);

    /// Tells projects apart also after their end, when another one may stand at the same place in memory.
    std::uint64_t m_serial;
    std::uint32_t m_projectId = 0;
    std::string m_name;
    // Ids grow, so that inserting at the end is the rule, which a map does in constant time.
    Objects m_objects;
    std::vector<ProjectObject*> m_objectsById; ///< those whose ids follow each other, without the tree's long way
    std::unique_ptr<NameIndex> m_objectsByName;
    std::uint64_t m_nextObjectId = 1;
    std::map<std::uint64_t, std::uint64_t> m_unusedIds; ///< below the next id, by first: one behind the last
    UniqueNames m_names;
};

} // namespace Obj
