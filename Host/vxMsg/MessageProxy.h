#pragma once

#include "Obj/Application.h"
#include "Obj/Signal.h"
#include "vxMsg/vxMsgExport.h"

#include <QString>
#include <QUndoStack>
#include <boost/signals2/connection.hpp>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vxMsg {

/// What can be requested; the numbers are part of the interface to modules.
struct vxCommand
{
    enum : int
    {
        DeleteObject = 3,
        CloseProject = 22,
        AddMaterial = 1027,
        NewMaterialProject = 1030,
    };
};

/// One request: a command code, the names of the project and the object that it is about, and a number.
struct MessageData
{
    MessageData(int commandCode, std::string project, std::string object, double number)
        : code(commandCode), projectName(std::move(project)), objectName(std::move(object)), value(number)
    {}

    int code;
    std::string projectName;
    std::string objectName;
    double value;
};

/// Carries out a request about projects: NewMaterialProject or CloseProject with one name. `count` is that of the names.
/// Answers whether it was done; a code that is no such request, a wrong count and a name that is not known are reported
/// to the message log and change nothing. Nothing is thrown.
VXMSG_EXPORT bool runCommand(int code, int count, const std::vector<std::string>& names);

/// Carries out a request about an object: AddMaterial or DeleteObject. As runCommand otherwise.
VXMSG_EXPORT bool doCommand(const MessageData& message);

/// Carries out what modules and commands request, all of it through one undo stack.
///
/// What leaves the tree stays on the stack: undo brings back the very object, with its id, name and label, and redo of a
/// creation brings back the object that the creation made. Objects that are added to a project without a request are
/// noticed and made undoable too, unless an undo is just under way. When projects are closed or objects destroyed past
/// the proxy, the history ends. What listeners request, or add, because of a request is undone with it in one step; while
/// something is undone or redone they can request nothing.
class VXMSG_EXPORT MessageProxy
{
public:
    static MessageProxy& instance();

    MessageProxy(const MessageProxy&) = delete;
    MessageProxy& operator=(const MessageProxy&) = delete;

    /// The requests themselves. False, with the reason in the message log, when nothing was done; what the constructor of
    /// a new project or object throws passes through.
    bool newProject(const std::string& name);
    bool closeProject(const std::string& name);
    bool addMaterial(const std::string& projectName, const std::string& objectName);
    bool deleteObject(const std::string& projectName, const std::string& objectName);

    /// Opens a material project that `fill` gives its content, as from a file: that cannot be undone, and a new history
    /// begins. Null, with the reason in the message log, when there can be none. What `fill` throws passes through; the
    /// project is then not there, and the history is as it was.
    Obj::Project* openProject(const std::string& name, const std::function<void(Obj::Project&)>& fill);

    QUndoStack& undoStack() { return m_undoStack; }

    /// What is requested while a group lives is undone in one step, named by `text`, or as the first step in it when that
    /// is empty. Groups may be nested; the outermost gives the name. A group in which nothing happens leaves no trace.
    class VXMSG_EXPORT Group
    {
    public:
        explicit Group(QString text);
        Group(const Group&) = delete;
        Group& operator=(const Group&) = delete;
        ~Group();
    };

    /// Puts a command on the stack that has been carried out already: its first redo must do nothing. While something is
    /// undone or redone nothing can be put there: the history then ends, and the command is destroyed.
    void pushDone(std::unique_ptr<QUndoCommand> command);

    /// A request has made an object, which stands in its project: the application may give it content. Not sent when
    /// undo or redo bring an object back.
    Obj::Signal<void(Obj::ProjectObject&)> objectCreated;
    /// A request has made a new project. Not sent for one that is opened, nor when undo or redo bring one back.
    Obj::Signal<void(Obj::Project&)> projectCreated;
    /// A project is to be closed on request; who sets `refused` keeps it open.
    Obj::Signal<void(Obj::Project&, bool& refused)> projectClosing;

private:
    MessageProxy();
    ~MessageProxy();
    void watchProject(Obj::Project& project);
    void projectWasRemoved(Obj::Project& project);
    void objectWasAdded(Obj::ProjectObject& object);
    void objectWasRemoved(Obj::ProjectObject& object);
    void endHistory();
    void endHistoryIfDue();

    struct Watch
    {
        boost::signals2::scoped_connection added;
        boost::signals2::scoped_connection removed;
    };

    QUndoStack m_undoStack;
    QString m_groupText;
    int m_groupDepth = 0;
    bool m_groupBegun = false;
    bool m_historyEnds = false;
    std::map<std::uint32_t, Watch> m_watches; ///< by project id
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace vxMsg
