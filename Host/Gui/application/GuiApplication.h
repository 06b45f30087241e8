#pragma once

#include "Gui/CommandController.h"
#include "Gui/GuiExport.h"

#include <QApplication>
#include <boost/signals2/connection.hpp>

#include <map>
#include <memory>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

class BaseView;
class GuiProject;
class ViewFeederProjectObject;

/// Registers the classes of this library, and those of the libraries below it. Again changes nothing.
GUI_EXPORT void initGui();

/// The program with its windows. Nothing that a window throws ends it: what reaches the event loop is reported to the
/// message log.
class GUI_EXPORT GuiApplication : public QApplication
{
    Q_OBJECT

public:
    /// As QApplication: `argc` and `argv` must live as long as the application. Has the commands of the host.
    GuiApplication(int& argc, char** argv);
    ~GuiApplication() override;

    /// The one application; null in a program without windows.
    static GuiApplication* Instance;

    CommandController& get_command_manager() { return m_commands; }

    /// The side that the user sees of a project, and of the current one; null when it is not open.
    GuiProject* get_project(const Obj::Project* project) const;
    GuiProject* get_current_project() const;
    /// The tree node of an object; null when its project is not open.
    ViewFeederProjectObject* get_view_feeder(Obj::ProjectObject* object) const;

    /// A view is about to go; nothing refers to it any more.
    void disconnect_view(BaseView* view);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void addProject(Obj::Project& project);
    void removeProject(Obj::Project& project);

    CommandController m_commands;
    std::map<const Obj::Project*, std::unique_ptr<GuiProject>> m_projects;
    boost::signals2::scoped_connection m_projectAdded;
    boost::signals2::scoped_connection m_projectRemoved;
};

} // namespace Gui
