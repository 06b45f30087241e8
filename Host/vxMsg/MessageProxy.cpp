#include "vxMsg/MessageProxy.h"

#include "UndoCommands.h"

#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"

#include <QCoreApplication>

#include <utility>

namespace vxMsg {

namespace {

constexpr const char* materialProjectClass = "Mat::DocumentMaterial";
constexpr const char* materialObjectClass = "Mat::MaterialObject";

QString tr(const char* text)
{
    return QCoreApplication::translate("vxMsg", text);
}

QString shown(const std::string& text)
{
    return QString::fromStdString(text);
}

bool report(const QString& text)
{
    Kelta::MessageLog::error(text);
    return false;
}

bool reportUnknownCode(int code)
{
    return report(tr("The request %1 is not known; nothing was done.").arg(code));
}

Obj::Project* findProject(const std::string& name)
{
    Obj::Project* const project = Obj::Application::instance().get_project(name);
    if (project == nullptr)
        report(tr("There is no project \"%1\"; nothing was done.").arg(shown(name)));
    return project;
}

/// A request that a listener makes while a command of the stack is at work would pull the stack from under it.
bool mayAct()
{
    return !Undoing::underWay() ||
           report(tr("Nothing can be requested while something is undone or redone; nothing was done."));
}

/// The boundary of the requests: what is thrown inside is reported, and the request counts as not done.
template <typename Request>
bool isDone(const Request& request)
{
    bool done = false;
    return Kelta::guarded(tr("A request failed"), [&] { done = request(); }) && done;
}

} // namespace

bool runCommand(int code, int count, const std::vector<std::string>& names)
{
    return isDone([&] {
        if (code != vxCommand::NewMaterialProject && code != vxCommand::CloseProject)
            return reportUnknownCode(code);
        if (count != 1 || names.size() != 1)
            return report(tr("The request %1 takes one name; nothing was done.").arg(code));
        MessageProxy& proxy = MessageProxy::instance();
        return code == vxCommand::NewMaterialProject ? proxy.newProject(names[0]) : proxy.closeProject(names[0]);
    });
}

bool doCommand(const MessageData& message)
{
    return isDone([&] {
        MessageProxy& proxy = MessageProxy::instance();
        if (message.code == vxCommand::AddMaterial)
            return proxy.addMaterial(message.projectName, message.objectName);
        if (message.code == vxCommand::DeleteObject)
            return proxy.deleteObject(message.projectName, message.objectName);
        return reportUnknownCode(message.code);
    });
}

MessageProxy& MessageProxy::instance()
{
    static MessageProxy proxy;
    return proxy;
}

MessageProxy::MessageProxy()
{
    Obj::Application& application = Obj::Application::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        watchProject(*project);
    m_connections.emplace_back(
        application.projectAdded.connect([this](Obj::Project& project) { watchProject(project); }));
    m_connections.emplace_back(
        application.projectRemoved.connect([this](Obj::Project& project) { projectWasRemoved(project); }));
    QObject::connect(&m_undoStack, &QUndoStack::indexChanged, [this] { endHistoryIfDue(); });
}

MessageProxy::~MessageProxy() = default;

bool MessageProxy::newProject(const std::string& name)
{
    if (!mayAct())
        return false;
    Obj::Project* project = nullptr;
    {
        // Objects that come with the project belong to its creation.
        const OwnDoing doing(&Obj::Application::instance());
        project = Obj::Application::instance().create_project(materialProjectClass, name);
    }
    if (project == nullptr)
        return false;
    pushDone(std::make_unique<ProjectCommand>(tr("New project \"%1\"").arg(QString::fromUtf8(project->get_name())),
                                              *project));
    projectCreated(*project);
    return true;
}

bool MessageProxy::closeProject(const std::string& name)
{
    Obj::Project* const project = mayAct() ? findProject(name) : nullptr;
    if (project == nullptr)
        return false;
    bool refused = false;
    projectClosing(*project, refused);
    if (refused)
        return false;
    const Group group(tr("Close project \"%1\"").arg(shown(name)));
    const OwnDoing doing(project);
    pushDone(std::make_unique<ProjectCommand>(tr("Close project \"%1\"").arg(shown(name)),
                                              Obj::Application::instance().take_project(*project)));
    return true;
}

bool MessageProxy::addMaterial(const std::string& projectName, const std::string& objectName)
{
    Obj::Project* const project = mayAct() ? findProject(projectName) : nullptr;
    if (project == nullptr)
        return false;
    // The addition is noticed as any other; what listeners make of it is part of the same step.
    const Group group{QString()};
    Obj::ProjectObject* const object = project->add_object(materialObjectClass, objectName);
    if (object == nullptr)
        return false;
    objectCreated(*object);
    return true;
}

bool MessageProxy::deleteObject(const std::string& projectName, const std::string& objectName)
{
    Obj::Project* const project = mayAct() ? findProject(projectName) : nullptr;
    if (project == nullptr)
        return false;
    const Obj::ProjectObject* const object = project->get_object(objectName);
    if (object == nullptr)
        return report(
            tr(R"(The project "%1" has no object "%2"; nothing was done.)").arg(shown(projectName), shown(objectName)));
    const QString text = tr("Delete \"%1\"").arg(shown(object->label.getValue()));
    const Group group(text);
    const OwnDoing doing(object);
    pushDone(std::make_unique<ObjectCommand>(text, *project, project->take_object(object->getObjectId())));
    return true;
}

Obj::Project* MessageProxy::openProject(const std::string& name, const std::function<void(Obj::Project&)>& fill)
{
    if (!mayAct())
        return nullptr;
    Obj::Application& application = Obj::Application::instance();
    const OwnDoing doing(&application);
    Obj::Project* const before = Obj::Application::get_current_project();
    Obj::Project* const project = application.create_project(materialProjectClass, name);
    if (project == nullptr)
        return nullptr;
    try {
        fill(*project);
    } catch (...) {
        const OwnDoing closing(project);
        m_watches.erase(project->getProjectId());
        application.close_project(*project);
        if (before != nullptr)
            application.set_current_project(*before);
        throw;
    }
    endHistory();
    return project;
}

MessageProxy::Group::Group(QString text)
{
    MessageProxy& proxy = instance();
    if (proxy.m_groupDepth++ == 0)
        proxy.m_groupText = std::move(text);
}

MessageProxy::Group::~Group()
{
    MessageProxy& proxy = instance();
    if (--proxy.m_groupDepth > 0)
        return;
    if (std::exchange(proxy.m_groupBegun, false))
        proxy.m_undoStack.endMacro();
    proxy.endHistoryIfDue();
}

void MessageProxy::pushDone(std::unique_ptr<QUndoCommand> command)
{
    if (Undoing::underWay())
        return endHistory();
    if (m_groupDepth > 0 && !std::exchange(m_groupBegun, true))
        m_undoStack.beginMacro(m_groupText.isEmpty() ? command->text() : m_groupText);
    m_undoStack.push(command.release());
}

void MessageProxy::watchProject(Obj::Project& project)
{
    // A project that comes back is watched once all the same.
    Watch& watch = m_watches[project.getProjectId()];
    watch.added = project.objectAdded.connect([this](Obj::ProjectObject& object) { objectWasAdded(object); });
    watch.removed = project.objectRemoved.connect([this](Obj::ProjectObject& object) { objectWasRemoved(object); });
}

void MessageProxy::projectWasRemoved(Obj::Project& project)
{
    if (OwnDoing::concerns(&project))
        return;
    m_watches.erase(project.getProjectId());
    endHistory();
}

void MessageProxy::objectWasAdded(Obj::ProjectObject& object)
{
    // What undo brings back is history already, and what somebody adds meanwhile is not to be undone.
    if (!Undoing::underWay() && !OwnDoing::concerns(&Obj::Application::instance()))
        pushDone(std::make_unique<ObjectCommand>(tr("Add \"%1\"").arg(shown(object.label.getValue())), object));
}

void MessageProxy::objectWasRemoved(Obj::ProjectObject& object)
{
    if (!OwnDoing::concerns(&object))
        endHistory();
}

void MessageProxy::endHistory()
{
    m_historyEnds = true;
    endHistoryIfDue();
}

void MessageProxy::endHistoryIfDue()
{
    // Neither a macro that is being made nor a command that is at work can be cleared.
    if (m_groupDepth == 0 && !Undoing::underWay() && std::exchange(m_historyEnds, false))
        m_undoStack.clear();
}

} // namespace vxMsg
