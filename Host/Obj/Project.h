#pragma once

#include "Kelta/DocumentTag.h"
#include "Obj/ClassRegistration.h"
#include "Obj/ObjExport.h"
#include "Obj/ObjectState.h"
#include "Obj/ProjectObject.h"
#include "Obj/ProjectObjectExecReturn.h"
#include "Obj/PropertyDS.h"
#include "Obj/Removal.h"
#include "Obj/Settings.h"
#include "Obj/Signal.h"
#include "Obj/UniqueNames.h"

#include <json/value.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Obj {

class ObjectIndex;

/// A project: a top-level node of the project tree, and the owner of its objects.
///
/// Objects are in the order of their ids, which is the order of their first addition. Ids begin at 1 and
/// increase up to 4294967295. Finding by id or by name is not a linear search.
class OBJ_EXPORT Project : public PropertyDS
{
    OBJ_ABSTRACT_CLASS;

public:
    Project();
    ~Project() override;

    /// Content that a module holds besides the properties of the project and its objects is not counted.
    std::size_t get_memory_usage() const override;

    /// Returns the registered class of the project's node in the tree; empty for the standard node.
    virtual const char* get_viewfeeder_name() const;
    virtual eVXObjectState check_input();
    /// Passes the data of the project to the solver side.
    virtual void collect_frontend_data();
    /// Determines the state of each object again.
    virtual void update();
    /// Describes the project and its objects in a record of the project database.
    virtual void save_jsonDB(Json::Value& record);
    /// Reads nothing: the application restores projects.
    virtual void load_jsonDB(Json::Value& record);
    /// Hooks of modules for an XML file, by names that modules use. They do nothing: projects are kept in JSON files.
    // NOLINTBEGIN(bugprone-virtual-near-miss): modules use these names besides save and load of the properties.
    virtual void Save(Kelta::FileWriter& writer) const;
    virtual void Load(Kelta::XMLFileReader& reader);
    // NOLINTEND(bugprone-virtual-near-miss)

    /// Returns the number of the project in the application; 0 before the project is in it.
    std::uint32_t getProjectId() const { return m_projectId; }
    /// Returns the name of the project, which the user sees too. No other open project has it.
    const char* get_name() const { return m_name.c_str(); }
    Kelta::eDocumentTag getDocumentTag() const { return documentTag; }

    /// Returns an object, which the project owns; null if there is none.
    ProjectObject* get_object(std::uint32_t objectId) const;
    ProjectObject* get_object(std::string_view name) const;
    std::vector<ProjectObject*> getObjects() const;
    /// Returns the objects of this type or of a type that descends from it, in the project's order.
    std::vector<ProjectObject*> get_objects_of_type(Kelta::TypeInfo type) const;
    std::size_t getObjectCount() const { return m_objects.size(); }

    /// Returns the settings of the project: texts that modules keep with it, by names such as "unit_system".
    const std::map<std::string, std::string>& getSettings() const { return m_settings.getAll(); }
    /// Returns a setting; an empty text if the project does not have it. The text is valid until the setting changes.
    const std::string& getSetting(const std::string& name) const { return m_settings.get(name); }
    /// Stores a setting, or removes it if `text` is empty, and sends `changed` with null. The present text makes no change.
    void setSetting(const std::string& name, std::string text);

    /// Returns a name from `stem` that no object of the project has or has had. Each call returns a different name.
    std::string get_unique_object_name(std::string_view stem);

    /// Returns whether the project takes objects of this type, see registerHome.
    bool canTake(Kelta::TypeInfo objectType) const;

    /// Makes an object of a registered class and adds it, with its name as its label. If an object has the name,
    /// derives a unique name from it. Returns null, with the reason in the message log, if the class is not registered,
    /// is not a ProjectObject, cannot be created or is not taken by this project, or if the ids are used up; and null
    /// if a listener has removed the object at once. Exceptions of the object's constructor and on_configuring_project
    /// pass through; the project is then unchanged.
    ProjectObject* add_object(const char* className, std::string_view name);
    /// Adds an object under an id, for reading a project from a file. Returns null also if the id is 0, beyond 32 bits
    /// or the id that an object has or had, or if the name is empty or taken.
    ProjectObject* add_object(const char* className, std::string_view name, std::uint64_t objectId);
    /// Adds an existing object in the same ways. It must not be null, nor have been in a project before.
    ProjectObject* add_object(OwnedObject object, std::string_view name);
    ProjectObject* add_object(OwnedObject object, std::string_view name, std::uint64_t objectId);

    /// Removes an object and returns it, for undo or destruction; null if the project has no such object.
    /// Objects that need it are notified.
    [[nodiscard]] OwnedObject takeObject(std::uint32_t objectId);
    /// Puts back an object that takeObject returned, at its place, under its id and name, with the links and references
    /// of other objects to it. If another object has its name meanwhile, it gets a unique name, which is
    /// reported. Returns the object; null, with a report, if it does not come from this project, and it is then
    /// destroyed; also null if a listener has removed it at once.
    ProjectObject* restoreObject(OwnedObject object);
    /// Destroys an object; returns false if the project has no object of this id.
    bool removeObject(std::uint32_t objectId);

    /// Calls on_project_restored of each object, for a project that has been read from a file.
    void notifyRestored();

    /// Executes the due objects, each after the objects that it needs. An object is due if it is not suppressed, and it
    /// has changed since its last execution, needs an object that is executed now, or always_run requests it. Returns
    /// the results in order of execution. Exceptions of an object are reported to the message log; it then stays due.
    std::vector<std::unique_ptr<ProjectObjectExecReturn>> executeDue();

    /// Returns the id of the next object. If it is beyond 32 bits, no further object can be added without an id.
    std::uint64_t getNextObjectId() const { return m_nextObjectId; }
    /// Skips ids: an object that is added without an id gets `nextId` or a higher id. A number below the present one
    /// changes nothing.
    void skipObjectIds(std::uint64_t nextId);

    /// Changes of the project's objects and properties. An object is in the project when it is added. It is outside,
    /// but complete, when it has been removed. Listeners may change everything, and may remove the same object or close
    /// the project; later listeners are still called. No signal is sent while a project is destroyed.
    Signal<void(ProjectObject&)> objectAdded;
    Signal<void(ProjectObject&)> objectRemoved;
    /// Sent with the changed property; null for another change: state, suppression, membership in a group.
    Signal<void(ProjectObject&, const Property*)> objectChanged;
    /// Sent with the changed property of the project; null for a new name and for a setting.
    Signal<void(const Property*)> changed;

    PropertyInteger id;        ///< "ID"
    PropertyString classLabel; ///< "ClassLabel"

protected:
    void on_changed(const Property* property) override;

    Kelta::eDocumentTag documentTag = Kelta::eDocumentTag::Undefined;

private:
    friend class Application;
    using Objects = std::map<std::uint32_t, std::unique_ptr<ProjectObject>>;

    class Execution;

    OwnedObject createObject(const char* className) const;
    bool mayTake(const ProjectObject& object) const;
    bool mayUse(std::string_view name, std::uint64_t objectId) const;
    bool hasFreeId() const;
    std::string freeName(std::string_view name);
    ProjectObject* insertNew(OwnedObject object, std::string name, std::uint32_t objectId);
    ProjectObject* insert(OwnedObject object);
    OwnedObject withdraw(Objects::iterator place);
    void giveFreeName(ProjectObject& object);
    ProjectObject* ifStillThere(std::uint32_t objectId) const;

    /// Distinguishes projects even after their end, when another project may have the same address.
    std::uint64_t m_serial;
    std::uint32_t m_projectId = 0;
    std::string m_name;
    Settings m_settings;
    Objects m_objects;
    std::unique_ptr<ObjectIndex> m_index; ///< of the objects in m_objects
    std::uint64_t m_nextObjectId = 1;
    // A removed object may return under its id and name, so no other object gets them.
    std::unordered_map<std::uint32_t, std::vector<ProjectObject::Dependent>> m_goneObjects; ///< by id
    std::unordered_set<std::string> m_goneNames;
    UniqueNames m_names;
};

} // namespace Obj
