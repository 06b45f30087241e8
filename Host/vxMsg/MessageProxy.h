#pragma once

#include "Obj/Application.h"
#include "Obj/Removal.h"
#include "Obj/Signal.h"
#include "vxMsg/CommandCodes.h"
#include "vxMsg/PropertyPlace.h"
#include "vxMsg/vxMsgExport.h"

#include <QString>
#include <QUndoStack>
#include <boost/signals2/connection.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace vxMsg {

class History;

/// Carries out the requests of modules and commands through one undo stack, with or without windows.
///
/// Undo restores the same project or object that a request removed, with its id, name, label and links. Redo of a
/// creation restores the same project or object. Requests and additions of listeners because of a request, a project
/// included, are undone with it in one step. Objects that are added without a request can be undone too, except those
/// that are added during an undo or redo. While a step is undone or redone, requests are refused. If a project is
/// closed or an object destroyed without a request, the history ends.
class VXMSG_EXPORT MessageProxy
{
public:
    static MessageProxy& instance();

    MessageProxy(const MessageProxy&) = delete;
    MessageProxy& operator=(const MessageProxy&) = delete;

    /// The requests. Each returns whether it succeeded; if not, the reason is in the message log. Exceptions of the
    /// constructor of a new project or object pass through.

    /// Makes a project of a registered class. If a project has the name, derives a unique name from it.
    bool newProject(const std::string& className, const std::string& name);
    /// Closes a project, unless a listener of projectClosing refuses.
    bool closeProject(const std::string& name);
    /// Gives a project another name. Refused if the name would be blank, or if another open project has it. The present
    /// name makes no step.
    bool renameProject(const std::string& name, const std::string& newName);
    /// Adds an object of a registered class. If an object has the name, derives a unique name from it.
    bool addObject(const std::string& projectName, const std::string& className, const std::string& objectName);
    bool deleteObject(const std::string& projectName, const std::string& objectName);
    /// Sets a property from a text. Refused if there is no such property, if it is read-only, if it cannot read the
    /// text, or if a label would be empty or blank. Setting the present text is not a step.
    bool setProperty(const PropertyPlace& place, const std::string& propertyName, const std::string& text);
    /// Sets a setting of a project (Obj::Project::setSetting); an empty text removes it. The present text makes no step.
    bool setSetting(const std::string& projectName, const std::string& name, const std::string& text);
    /// Sets a setting of an object of a project (Obj::ProjectObject::setSetting) in the same way.
    bool setSetting(Obj::ProjectObject& object, const std::string& name, const std::string& text);
    /// Suppresses an object of a project, or ends the suppression. Setting the present state is not a step.
    bool setSuppressed(Obj::ProjectObject& object, bool suppressed);
    /// Executes the due objects of a project, and passes its data to the solver side. Not a step: it changes nothing
    /// that can be undone.
    bool handOver(const std::string& projectName);

    /// Opens a project of a registered class that `fill` fills, as from a file, and calls on_project_restored of each
    /// object. Cannot be undone: a new history begins. Returns null, with the reason in the message log, if the project
    /// cannot be made. If `fill` throws, removes the project, leaves the history unchanged and rethrows.
    Obj::Project* openProject(const std::string& className, const std::string& name,
                              const std::function<void(Obj::Project&)>& fill);
    /// Opens an existing project, such as a placeholder, in the same way.
    Obj::Project* openProject(Obj::OwnedProject project, const std::string& name,
                              const std::function<void(Obj::Project&)>& fill);

    /// Returns the undo stack. A listener that undoes or redoes while a step is running changes nothing; it must not
    /// clear the stack then.
    QUndoStack& undoStack();

    /// Requests while a group lives are undone in one step with the text `text`, or with the text of the first request
    /// if `text` is empty. Groups may be nested; the outermost group provides the text. An empty group makes no step.
    /// The step is on the stack when the outermost group has ended. Removed objects stay in memory until then.
    class VXMSG_EXPORT Group
    {
    public:
        explicit Group(const QString& text);
        Group(const Group&) = delete;
        Group& operator=(const Group&) = delete;
        ~Group();

    private:
        Obj::RemovalGuard m_guard;
    };

    /// Gives the step in progress the text of its first request in place of the text of its outermost group. A command
    /// that cannot be undone itself, such as an export, calls this after it has applied edits. Does nothing without a
    /// group.
    void nameStepByItsFirstRequest();

    /// Records a command that has been carried out already: its first redo must do nothing. During an undo or
    /// redo nothing can be recorded: the history then ends, and the command is destroyed.
    void pushDone(std::unique_ptr<QUndoCommand> command);

    /// Sent after a request has made an object, which is in its project; the application may then set its content. Not
    /// sent if undo or redo restore an object, or if a listener has removed the object at once.
    Obj::Signal<void(Obj::ProjectObject&)> objectCreated;
    /// Sent after a request has made a project. Not sent for a project that is opened, or if undo or redo restore one.
    Obj::Signal<void(Obj::Project&)> projectCreated;
    /// Sent before a project is closed on request. A listener that sets `refused` keeps it open.
    Obj::Signal<void(Obj::Project&, bool& refused)> projectClosing;

private:
    MessageProxy();
    ~MessageProxy();

    class Opening;
    using Act = std::function<std::unique_ptr<QUndoCommand>()>;
    bool carryOut(const QString& text, const Act& act);
    bool mayClose(Obj::Project& project);
    Obj::Project* open(const std::function<Obj::Project*()>& make, const std::function<void(Obj::Project&)>& fill);
    void takeBack(const Obj::Project& opened, Obj::Project* before);

    void projectWasAdded(Obj::Project& project);
    void projectWasRemoved(Obj::Project& project);
    void objectWasAdded(Obj::ProjectObject& object);
    void objectWasRemoved(Obj::ProjectObject& object);

    struct Watch
    {
        boost::signals2::scoped_connection added;
        boost::signals2::scoped_connection removed;
    };

    std::unique_ptr<History> m_history;
    std::map<std::uint32_t, Watch> m_watches;  ///< by project id
    std::set<std::uint32_t> m_closingProjects; ///< projects whose listeners are being called
    Opening* m_opening = nullptr;              ///< the innermost project that is being opened
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace vxMsg
