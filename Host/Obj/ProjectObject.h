#pragma once

#include "Obj/ClassRegistration.h"
#include "Obj/ObjExport.h"
#include "Obj/ObjectState.h"
#include "Obj/PropertyDS.h"

#include <json/value.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Obj {

class Project;
struct ProjectObjectExecReturn;

/// An object of a project: a node of the project tree. Its project owns it, under an id that no other object of the
/// project ever has and an internal name that no other one has; the user knows it by its label.
///
/// Derived classes register the inherited "ID" and "ClassLabel" in their constructors, with a class label of their
/// own.
class OBJ_EXPORT ProjectObject : public PropertyDS
{
    OBJ_ABSTRACT_CLASS;

public:
    ProjectObject();
    ~ProjectObject() override;

    /// The registered class of the node that shows the object in the tree; empty for none.
    virtual const char* get_viewfeeder_name() const;
    /// Looks anew how far the object has come.
    virtual void refresh();
    /// Has those who show the object read all its properties anew; with `stateToo`, its state as well.
    virtual void refreshProperties(bool stateToo);
    /// Not 0 when the object is to be executed even if nothing it depends on has changed.
    virtual short always_run() const;
    /// `linked`, to which this object links, has left the project, or the link to it has been taken back. What is thrown
    /// is reported to the message log.
    virtual void on_break_object_link(ProjectObject* linked);
    /// Describes the object in a record of the project database: "obj_id", "class", "name_internal", "label".
    virtual void save_jsonDB(Json::Value& record);
    virtual void load_jsonDB(Json::Value& record);
    /// Finds out how far the object has come, and says so to setObjectState.
    virtual eVXObjectState check_input();
    virtual void setObjectState(eVXObjectState state);
    /// The registered class of the window that edits the object; empty when the node knows.
    virtual const char* getCoreEditor() const;
    /// Executes the object. The caller owns the result; null when there is none.
    virtual ProjectObjectExecReturn* execute();
    /// Tells those who observe the project that the object is not what it was.
    virtual void notifyChange();
    /// The object is in its project again, after an undo or when a file is opened. What is thrown is reported to the
    /// message log.
    virtual void on_project_restored();

protected:
    /// The object has just been made for the project, in which it stands, and nobody has been told yet. What is thrown
    /// passes through to whoever asked for the object, and there is then none.
    virtual void on_configuring_project();

    void on_changed(const Property* property) override;

public:
    /// The number under which the project has the object; 0 before it is in one.
    std::uint32_t getObjectId() const { return m_objectId; }
    /// The internal name; empty before the object is in a project.
    const char* get_name_in_project() const { return m_name.c_str(); }
    /// The project that has the object; null before it is in one and while a deleted object waits for undo.
    Project* get_project() const { return m_project; }
    eVXObjectState getObjectState() const { return m_state; }

    /// Says that this object needs `other`, of the same project. A link stays while one of the two is away for undo.
    void link_to(ProjectObject& other);
    /// Takes back that it does; a link in the other direction stays. Nothing when there is none.
    void unlink_from(ProjectObject& other);
    /// The objects of the project that this one needs, in the order of linking.
    std::vector<ProjectObject*> get_needed_objects() const;
    /// The objects of the project that are linked with this one, whichever needs the other, in the order of linking.
    std::vector<ProjectObject*> get_linked_objects() const;

    /// Whether the user has taken the object out of use without deleting it.
    bool isSuppressed() const { return m_suppressed; }
    void setSuppressed(bool suppressed);

    PropertyInteger id;        ///< "ID"
    PropertyString classLabel; ///< "ClassLabel"
    PropertyString label;      ///< "Label", what the user sees and edits

private:
    friend class Project;
    struct Link
    {
        ProjectObject* other;
        bool needsOther;
    };
    bool needs(const ProjectObject& other) const;
    bool hasLink(const ProjectObject* other, bool needsOther) const;
    void eraseLink(const ProjectObject* other, bool needsOther);
    /// Tells those that need this object that it has gone.
    void breakLinks();
    /// Of an object whose project ends: the others of the project forget theirs too.
    void forgetLinks();

    Project* m_project = nullptr;
    std::uint32_t m_objectId = 0;
    std::uint64_t m_origin = 0; ///< the serial of the project that made it, also while it is away
    std::string m_name;
    std::vector<Link> m_links;
    eVXObjectState m_state = eVXObjectState::Initial;
    bool m_suppressed = false;
};

} // namespace Obj
