#include "Gui/GuiApplication.h"

#include "Gui/Contributions.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/ObjectClipboard.h"
#include "Gui/StdSimModule.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "application/HostStyle.h"
#include "commands/StandardCommands.h"
#include "vxMsg/MessageProxy.h"

#include <QUndoStack>

namespace Gui {

GuiApplication* GuiApplication::Instance = nullptr;

namespace {

/// Returns the node of an object, or of the project if the object is null. Safe to call while the program ends.
Obj::PropertyDS* findNode(const Obj::Project& project, Obj::ProjectObject* object)
{
    GuiProject* const guiProject =
        GuiApplication::Instance != nullptr ? GuiApplication::Instance->get_project(&project) : nullptr;
    if (guiProject == nullptr)
        return nullptr;
    return object != nullptr ? static_cast<Obj::PropertyDS*>(guiProject->get_view_feeder(object))
                             : guiProject->get_view_feeder();
}

} // namespace

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
    : QApplication(argc, argv),
      m_contributions(std::make_unique<Contributions>()),
      m_requests(vxMsg::MessageProxy::instance()),
      m_clipboard(std::make_unique<ObjectClipboard>(*this))
{
    Instance = this;
    setStyle(new HostStyle);
    initGui();
    addStandardCommands(*this, TreeSelectionSingleton::instance());
    Obj::Application& application = Obj::Application::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        addProject(*project);
    m_projectAdded = application.projectAdded.connect([this](Obj::Project& project) { addProject(project); });
    m_projectRemoved = application.projectRemoved.connect([this](Obj::Project& project) { removeProject(project); });
    // Queued: a step that ends the history is recorded after the history has been cleared.
    connect(&m_requests.undoStack(), &QUndoStack::indexChanged, this, &GuiApplication::historyMoved,
            Qt::QueuedConnection);
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

vxMsg::PropertyPlace GuiApplication::placeOf(const Obj::PropertyDS& owner) const
{
    if (const auto* const object = dynamic_cast<const Obj::ProjectObject*>(&owner))
        return vxMsg::PropertyPlace(*object);
    if (const auto* const project = dynamic_cast<const Obj::Project*>(&owner))
        return vxMsg::PropertyPlace(*project);
    if (const auto* const node = dynamic_cast<const ViewFeederProjectObject*>(&owner))
        return vxMsg::PropertyPlace(*node->getObject(), findNode);
    return vxMsg::PropertyPlace(*dynamic_cast<const ViewFeederProject&>(owner).getProject(), findNode);
}

void GuiApplication::disconnect_view(BaseView* view)
{
    for (const auto& [project, guiProject] : m_projects)
        guiProject->disconnect_view(view);
}

bool GuiApplication::notify(QObject* receiver, QEvent* event)
{
    bool handled = false;
    Kelta::guarded(tr("An error occurred"), [&] { handled = QApplication::notify(receiver, event); });
    return handled;
}

void GuiApplication::addProject(Obj::Project& project)
{
    const auto closed = m_closedProjects.extract(project.getProjectId());
    m_projects.emplace(&project, std::make_unique<GuiProject>(project, closed ? closed.mapped() : NodeProperties()));
}

void GuiApplication::removeProject(Obj::Project& project)
{
    TreeSelectionSingleton& selection = TreeSelectionSingleton::instance();
    selection.forget(project);
    for (const Obj::ProjectObject* const object : project.getObjects())
        selection.forget(*object);
    // Removed first: objects that are destroyed with it must not find a project that is partly destroyed.
    const auto found = m_projects.find(&project);
    if (found == m_projects.end())
        return;
    const std::unique_ptr<GuiProject> removed = std::move(found->second);
    m_projects.erase(found);
    m_closedProjects[project.getProjectId()] = removed->recordNodes();
}

void GuiApplication::historyMoved()
{
    // When the history has ended, closed projects and deleted objects cannot be restored.
    if (m_requests.undoStack().count() != 0)
        return;
    m_closedProjects.clear();
    for (const auto& [project, guiProject] : m_projects)
        guiProject->forgetDeletedNodes();
}

} // namespace Gui
