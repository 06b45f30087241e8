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

/// Carries out the requests of modules and commands, all of them through one undo stack and with or without windows.
///
/// Undo brings back the very project or object that a request removed, with its id, name, label and links; redo of a
/// creation brings back the one that the creation made. What listeners request or add because of a request, a project
/// included, is undone with it in one step. Objects that are added without a request can be undone too, except those
/// that are added during an undo or redo. While a step is undone or redone, requests are refused. If a project is closed
/// or an object destroyed without a request, the history ends.
class VXMSG_EXPORT MessageProxy
{
public:
    static MessageProxy& instance();

    MessageProxy(const MessageProxy&) = delete;
    MessageProxy& operator=(const MessageProxy&) = delete;

    /// The requests. Each returns whether it was done; if not, the reason is in the message log. What the constructor of a
    /// new project or object throws passes through.

    /// Makes a project of a registered class. If a project has the name, a unique one is made from it.
    bool newProject(const std::string& className, const std::string& name);
    /// Closes a project, unless a listener of projectClosing refuses.
    bool closeProject(const std::string& name);
    /// Adds an object of a registered class. If an object has the name, a unique one is made from it.
    bool addObject(const std::string& projectName, const std::string& className, const std::string& objectName);
    bool deleteObject(const std::string& projectName, const std::string& objectName);
    /// Sets a property from a text. Refused if there is no such property, if it is read-only, if it cannot read the text,
    /// and for a label that is empty or blank. The present text makes no step.
    bool setProperty(const PropertyPlace& place, const std::string& propertyName, const std::string& text);
    /// Suppresses an object of a project, or takes it into use again. The present state makes no step.
    bool setSuppressed(Obj::ProjectObject& object, bool suppressed);
    /// Executes the objects of a project that are due, and hands its data to the solver side. Not a step: nothing that can
    /// be undone changes.
    bool handOver(const std::string& projectName);

    /// Opens a project of a registered class that `fill` fills, as from a file, and then calls on_project_restored of each
    /// object. This cannot be undone: a new history begins. Returns null, with the reason in the message log, if there can
    /// be no such project. What `fill` throws passes through; the project is then not there, and the history is as it was.
    Obj::Project* openProject(const std::string& className, const std::string& name,
                              const std::function<void(Obj::Project&)>& fill);
    /// Opens a project that code has made, such as a placeholder, in the same way.
    Obj::Project* openProject(Obj::OwnedProject project, const std::string& name,
                              const std::function<void(Obj::Project&)>& fill);

    /// The undo stack. A listener that undoes or redoes while a step is at work changes nothing; it must not clear the stack
    /// then.
    QUndoStack& undoStack();

    /// What is requested while a group lives is undone in one step with the text `text`, or with that of the first request
    /// if it is empty. Groups may be nested; the outermost gives the text. A group in which nothing happens makes no step.
    /// The step is on the stack when the outermost group has ended. What is removed meanwhile stays in memory until then.
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

    /// Records a command that has been carried out already: its first redo must do nothing. While something is undone or
    /// redone nothing can be recorded: the history then ends, and the command is destroyed.
    void pushDone(std::unique_ptr<QUndoCommand> command);

    /// A request has made an object, which is in its project; the application may give it content. Not sent if undo or
    /// redo bring an object back, nor if a listener has removed the object at once.
    Obj::Signal<void(Obj::ProjectObject&)> objectCreated;
    /// A request has made a project. Not sent for a project that is opened, nor if undo or redo bring one back.
    Obj::Signal<void(Obj::Project&)> projectCreated;
    /// A project is to be closed on request. A listener that sets `refused` keeps it open.
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
    std::set<std::uint32_t> m_closingProjects; ///< those whose listeners are being asked
    Opening* m_opening = nullptr;              ///< the innermost project that is being opened
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace vxMsg
