#pragma once

#include "Obj/ClassRegistration.h"
#include "Obj/ObjExport.h"
#include "Obj/ObjectState.h"
#include "Obj/PropertyDS.h"
#include "Obj/Settings.h"

#include <json/value.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Obj {

class Project;
class ProjectObjectGroup;
class PropertyReference;
struct ProjectObjectExecReturn;

/// An object of a project: a node of the project tree. Its project owns it. No other object of the project gets the id
/// of the object, even after its deletion, and no other object has its internal name. The user identifies the
/// object by its label.
///
/// Derived classes register the inherited "ID" and "ClassLabel" in their constructors, with their own class label.
class OBJ_EXPORT ProjectObject : public PropertyDS
{
    OBJ_ABSTRACT_CLASS;

public:
    ProjectObject();
    ~ProjectObject() override;

    /// Returns the size that PropertyDS counts, plus the internal name, the links and the settings. Content that a module
    /// holds besides the properties is not counted.
    std::size_t get_memory_usage() const override;

    /// Returns the registered class of the object's node in the tree; empty for the standard node.
    virtual const char* get_viewfeeder_name() const;
    /// Determines the state again.
    virtual void refresh();
    /// Makes views of the object read all its properties again. Determines the state first if `stateToo`.
    virtual void refreshProperties(bool stateToo);
    /// Returns 0 if Project::executeDue executes the object only after a change of it or of an object that it needs.
    virtual short always_run() const;
    /// Called when `linked`, which this object needs, has left the project, or when unlinkFrom has removed the link. If
    /// `linked` returns, links to it and references that this operation has removed are restored. Exceptions
    /// when `linked` leaves are reported to the message log.
    virtual void on_break_object_link(ProjectObject* linked);
    /// Describes the object in a record of the project database: "obj_id", "class", "name_internal", "label".
    virtual void save_jsonDB(Json::Value& record);
    /// Reads nothing: the application restores projects.
    virtual void load_jsonDB(Json::Value& record);
    /// Determines the state, passes it to setObjectState and returns it.
    virtual eVXObjectState check_input();
    virtual void setObjectState(eVXObjectState state);
    /// Returns the registered class of the window that edits the object; empty if the node opens it.
    virtual const char* getCoreEditor() const;
    /// Executes the object. The caller owns the result; null if there is none.
    virtual ProjectObjectExecReturn* execute();
    /// Tells the listeners of the project that the object has changed.
    virtual void notifyChange();
    /// Called when the object is in its project again after an undo, and when it has been read from a file. Exceptions
    /// are reported to the message log.
    virtual void on_project_restored();

protected:
    /// Called when the object has been made for the project and is in it, before listeners are notified. If it throws,
    /// the exception passes through to the code that adds the object, and the project does not keep the object.
    virtual void on_configuring_project();

    void on_changed(const Property* property) override;

public:
    /// Returns the number of the object in its project; 0 before it is in a project.
    std::uint32_t getObjectId() const { return m_objectId; }
    /// Returns the internal name; empty before the object is in a project.
    const char* get_name_in_project() const { return m_name.c_str(); }
    /// Returns the project that holds the object; null before it is in a project and while it is kept for undo.
    Project* get_project() const { return m_project; }
    eVXObjectState getObjectState() const { return m_state; }

    /// Declares that this object needs `other`. The link is kept while one of them is kept for undo. Returns false if
    /// `other` is this object itself, or belongs to another project, which is reported to the message log.
    virtual bool linkTo(ProjectObject& other);
    /// Removes such a link; a link in the other direction is kept. Does nothing if there is none.
    void unlinkFrom(ProjectObject& other);
    /// Returns the objects of the project that this object needs by a link or a PropertyReference, in order of linking.
    std::vector<ProjectObject*> getNeededObjects() const;
    /// Returns the objects of the project that this object needs by linkTo, in the order of linking.
    std::vector<ProjectObject*> getLinks() const;
    /// Returns the objects of the project that need this object or that this object needs, in the order of linking.
    std::vector<ProjectObject*> get_linked_objects() const;

    /// Returns the group of the project that has this object as a member; null if there is none.
    ProjectObjectGroup* getParentGroup() const;

    /// Returns whether the user has suppressed the object: it is unused, but not deleted.
    bool isSuppressed() const { return m_suppressed; }
    void setSuppressed(bool suppressed);

    /// Returns the settings of the object: texts that modules keep with it, by names such as "measurements". Project
    /// files and copies contain them, also if no module knows them.
    const std::map<std::string, std::string>& getSettings() const { return m_settings.getAll(); }
    /// Returns a setting; an empty text if the object does not have it. The text is valid until the setting changes.
    const std::string& getSetting(const std::string& name) const { return m_settings.get(name); }
    /// Stores a setting, or removes it if `text` is empty, and calls notifyChange. The present text makes no change.
    void setSetting(const std::string& name, std::string text);

    PropertyInteger id;        ///< "ID"
    PropertyString classLabel; ///< "ClassLabel"
    PropertyString label;      ///< "Label", which the user sees and edits

private:
    friend class Project;
    friend class PropertyReference;

    enum class Direction
    {
        Needs,
        IsNeededBy
    };
    /// One end of a link; both objects keep one.
    struct Link
    {
        ProjectObject* other = nullptr;
        Direction direction = Direction::Needs;
        bool isDeclared = false; ///< by linkTo
        int references = 0;      ///< properties that refer to `other`; counted only by the object that needs `other`
    };
    using Links = std::vector<Link>;

    /// The links and references of another object to this one, to be restored together with this one.
    struct Dependent
    {
        std::uint32_t objectId;
        bool isDeclared;
        std::vector<std::string> references; ///< names of properties
    };

    Links::iterator findLink(const ProjectObject& other, Direction direction);
    bool hasLink(const ProjectObject& other, Direction direction) const;
    bool needs(const ProjectObject& other) const;
    bool isOfSameProject(const ProjectObject& other) const;
    Link& needLink(ProjectObject& other);
    void setDeclared(ProjectObject& other, bool declared);
    bool dropIfUnused(Links::iterator link);
    void eraseLink(const ProjectObject& other, Direction direction);
    void addReference(ProjectObject& target);
    void removeReference(std::uint32_t targetId);
    std::vector<PropertyReference*> findReferences(std::uint32_t targetId) const;
    void notifyReferences(std::uint32_t targetId) const;

    /// Notifies the objects that need this object that it has left, and returns their links and references to it.
    std::vector<Dependent> breakLinks();
    void mendLinks(const std::vector<Dependent>& dependents);
    static void mendLink(ProjectObject& dependent, ProjectObject& target, const Dependent& before);
    Dependent describeDependent(const Link& link) const;
    /// Called when the project ends: objects that are kept elsewhere drop their links to this object.
    void forgetLinks();

    Project* m_project = nullptr;
    std::uint32_t m_objectId = 0;
    std::uint64_t m_origin = 0; ///< the serial of the project that holds or held it
    std::string m_name;
    Links m_links;
    Settings m_settings;
    eVXObjectState m_state = eVXObjectState::Initial;
    bool m_suppressed = false;
    bool m_isDue = true; ///< to be executed
};

} // namespace Obj
