#include "Gui/GuiApplication.h"

#include "Gui/Contributions.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/StdSimModule.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "application/HostStyle.h"
#include "commands/StandardCommands.h"
#include "vxMsg/MessageProxy.h"

namespace Gui {

GuiApplication* GuiApplication::Instance = nullptr;

void initGui()
{
    Obj::initObj();
    BaseView::init();
    MDIWindow::init();
    StdSimModule::init();
    ViewFeeder::init();
    ViewFeederProject::init();
    ViewFeederProjectObject::init();
}

GuiApplication::GuiApplication(int& argc, char** argv)
    : QApplication(argc, argv), m_contributions(std::make_unique<Contributions>())
{
    Instance = this;
    setStyle(new HostStyle);
    initGui();
    // Made now, so that it is told of everything that happens to projects.
    vxMsg::MessageProxy::instance();
    addStandardCommands(m_commands, TreeSelectionSingleton::instance());
    Obj::Application& application = Obj::Application::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        addProject(*project);
    m_projectAdded = application.projectAdded.connect([this](Obj::Project& project) { addProject(project); });
    m_projectRemoved = application.projectRemoved.connect([this](Obj::Project& project) { removeProject(project); });
}

GuiApplication::~GuiApplication()
{
    Instance = nullptr;
}

GuiProject* GuiApplication::get_project(const Obj::Project* project) const
{
    const auto found = m_projects.find(project);
    return found != m_projects.end() ? found->second.get() : nullptr;
}

GuiProject* GuiApplication::get_current_project() const
{
    return get_project(Obj::Application::get_current_project());
}

ViewFeederProjectObject* GuiApplication::get_view_feeder(Obj::ProjectObject* object) const
{
    GuiProject* const project = object != nullptr ? get_project(object->get_project()) : nullptr;
    return project != nullptr ? project->get_view_feeder(object) : nullptr;
}

void GuiApplication::disconnect_view(BaseView* view)
{
    for (const auto& [project, guiProject] : m_projects)
        guiProject->disconnect_view(view);
}

bool GuiApplication::notify(QObject* receiver, QEvent* event)
{
    bool handled = false;
    Kelta::guarded(tr("Something went wrong"), [&] { handled = QApplication::notify(receiver, event); });
    return handled;
}

void GuiApplication::addProject(Obj::Project& project)
{
    m_projects.emplace(&project, std::make_unique<GuiProject>(project));
}

void GuiApplication::removeProject(Obj::Project& project)
{
    TreeSelectionSingleton& selection = TreeSelectionSingleton::instance();
    selection.forget(project);
    for (const Obj::ProjectObject* const object : project.get_objects())
        selection.forget(*object);
    // Taken out first: what is destroyed with it must not find a project that is partly destroyed.
    const auto found = m_projects.find(&project);
    if (found == m_projects.end())
        return;
    const std::unique_ptr<GuiProject> removed = std::move(found->second);
    m_projects.erase(found);
}

} // namespace Gui
