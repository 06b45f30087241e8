#pragma once

#include "Gui/CommandController.h"
#include "Gui/GuiExport.h"
#include "vxMsg/PropertyPlace.h"

#include <QApplication>
#include <boost/signals2/connection.hpp>

#include <cstdint>
#include <map>
#include <memory>

namespace Obj {
class Project;
class ProjectObject;
class PropertyDS;
} // namespace Obj

namespace vxMsg {
class MessageProxy;
} // namespace vxMsg

namespace Gui {

class BaseView;
class Contributions;
class GuiProject;
class ObjectClipboard;
struct NodeProperties;
class ViewFeederProjectObject;

/// Registers the classes of this library and of the libraries below it. Safe to call more than once.
GUI_EXPORT void initGui();

/// The program with its windows. An exception that a window throws does not end it: an exception that reaches the event
/// loop is reported to the message log.
class GUI_EXPORT GuiApplication : public QApplication
{
    Q_OBJECT

public:
    /// As for QApplication, `argc` and `argv` must live as long as the application. Adds the commands of the host.
    GuiApplication(int& argc, char** argv);
    ~GuiApplication() override;

    /// Returns the application; null in a program without windows.
    static GuiApplication* Instance;

    CommandController& get_command_manager() { return m_commands; }
    /// Contributions of modules to the window.
    Contributions& contributions() { return *m_contributions; }
    /// Carries out undoable requests.
    vxMsg::MessageProxy& requests() { return m_requests; }
    ObjectClipboard& objectClipboard() { return *m_clipboard; }

    /// Returns the GUI side of a project, or of the current project; null if the project is not open.
    GuiProject* get_project(const Obj::Project* project) const;
    GuiProject* get_current_project() const;
    /// Returns the tree node of an object; null if its project is not open.
    ViewFeederProjectObject* get_view_feeder(Obj::ProjectObject* object) const;

    /// Returns the place from which requests find a set of properties again. `owner` is a project, an object of a
    /// project or a tree node.
    vxMsg::PropertyPlace placeOf(const Obj::PropertyDS& owner) const;

    /// Removes all references to a view, which is about to be destroyed.
    void disconnect_view(BaseView* view);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void addProject(Obj::Project& project);
    void removeProject(Obj::Project& project);
    void historyMoved();

    CommandController m_commands;
    std::unique_ptr<Contributions> m_contributions;
    vxMsg::MessageProxy& m_requests;
    std::unique_ptr<ObjectClipboard> m_clipboard;
    std::map<const Obj::Project*, std::unique_ptr<GuiProject>> m_projects;
    std::map<std::uint32_t, NodeProperties> m_closedProjects; ///< by the ids of projects that undo can restore
    boost::signals2::scoped_connection m_projectAdded;
    boost::signals2::scoped_connection m_projectRemoved;
};

} // namespace Gui
