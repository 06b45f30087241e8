#include "Sessions.h"

#include "ProjectRecording.h"

#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QUndoStack>

#include <utility>

namespace desktop {

Sessions::Sessions()
{
    Obj::Application& application = Obj::Application::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        add(*project);
    m_connections.emplace_back(application.projectAdded.connect([this](Obj::Project& project) { add(project); }));
    m_connections.emplace_back(application.projectRemoved.connect([this](Obj::Project& project) { remove(project); }));
    const QUndoStack& history = vxMsg::MessageProxy::instance().undoStack();
    connect(&history, &QUndoStack::indexChanged, this, &Sessions::historyMoved);
    connect(&history, &QUndoStack::cleanChanged, this, &Sessions::historyIsClean);
}

Sessions::~Sessions() = default;

Session* Sessions::find(const Obj::Project& project)
{
    const auto found = m_sessions.find(project.getProjectId());
    return found != m_sessions.end() ? &found->second : nullptr;
}

const Session* Sessions::find(const Obj::Project& project) const
{
    const auto found = m_sessions.find(project.getProjectId());
    return found != m_sessions.end() ? &found->second : nullptr;
}

Obj::Project* Sessions::findOpen(const QString& path) const
{
    for (Obj::Project* const project : Obj::Application::get_projects())
        if (const Session* const session = find(*project); session != nullptr && session->path == path)
            return project;
    return nullptr;
}

void Sessions::forgetCopies()
{
    for (auto& [id, session] : m_sessions)
        session.forgetCopy();
}

// --- Projects are added and removed ---

void Sessions::add(Obj::Project& project)
{
    // A project that undo restores has a session already. Another program may use its file now.
    Session& session = m_sessions[project.getProjectId()];
    session.isCopyDue = session.isModified;
    if (!session.path.isEmpty() && !session.lock)
        session.takeLock();
    if (m_fillings == 0)
        for (Obj::ProjectObject* const object : project.getObjects())
            session.looks[object->getObjectId()] = Look::of(*object);
    if (session.connections.empty())
        watch(project, session);
}

void Sessions::watch(Obj::Project& project, Session& session)
{
    const auto changed = [this, &project](auto&&...) { markModified(project); };
    session.connections.emplace_back(
        project.objectAdded.connect([this](Obj::ProjectObject& object) { objectAdded(object); }));
    session.connections.emplace_back(project.objectRemoved.connect(changed));
    session.connections.emplace_back(project.changed.connect(changed));
    session.connections.emplace_back(project.objectChanged.connect(
        [this](Obj::ProjectObject& object, const Obj::Property* property) { objectChanged(object, property); }));
}

void Sessions::remove(const Obj::Project& project)
{
    Session* const session = find(project);
    if (session == nullptr)
        return;
    session->lock.reset();
    session->forgetCopy();
    session->looks.clear();
}

void Sessions::noteOpened(Obj::Project& project)
{
    Session& session = *find(project);
    session.isCopyDue = session.isModified;
    for (Obj::ProjectObject* const object : project.getObjects())
        session.looks[object->getObjectId()] = Look::of(*object);
    // If there is a history, it ends with the command that opens the file.
    const bool historyEnds = vxMsg::MessageProxy::instance().undoStack().count() != 0;
    (historyEnds ? m_openedProject : m_cleanProject) = session.isModified ? 0 : project.getProjectId();
}

// --- Changes ---

void Sessions::objectAdded(Obj::ProjectObject& object)
{
    Session* const session = object.get_project() != nullptr ? find(*object.get_project()) : nullptr;
    if (session == nullptr || m_fillings != 0)
        return;
    session->looks[object.getObjectId()] = Look::of(object);
    markModified(*object.get_project());
}

void Sessions::objectChanged(Obj::ProjectObject& object, const Obj::Property* property)
{
    Session* const session = object.get_project() != nullptr ? find(*object.get_project()) : nullptr;
    if (session == nullptr || m_fillings != 0)
        return;
    if (property != nullptr)
        return markModified(*object.get_project());
    // The state is not a part of the file.
    Look look = Look::of(object);
    Look& known = session->looks[object.getObjectId()];
    if (known == look)
        return;
    known = std::move(look);
    markModified(*object.get_project());
}

void Sessions::markModified(const Obj::Project& project)
{
    Session* const session = find(project);
    if (session == nullptr || m_fillings != 0)
        return;
    session->isCopyDue = true;
    if (!std::exchange(session->isModified, true))
        Q_EMIT becameModified();
}

void Sessions::noteSaved(Obj::Project& project)
{
    Session& session = *find(project);
    session.isRecovered = false;
    session.isModified = false;
    session.forgetCopy();
    // Fails during a step of the history, for example if saving has applied edits.
    QUndoStack& history = vxMsg::MessageProxy::instance().undoStack();
    m_cleanProject = 0;
    history.setClean();
    m_cleanProject = history.isClean() ? project.getProjectId() : 0;
}

// --- The history ---

void Sessions::historyMoved()
{
    if (vxMsg::MessageProxy::instance().undoStack().count() != 0)
        return;
    // When the history ends, modified projects stay modified, and closed projects cannot be restored.
    m_cleanProject = std::exchange(m_openedProject, 0);
    for (auto session = m_sessions.begin(); session != m_sessions.end();) {
        const bool isOpen = Obj::Application::instance().get_project(session->first) != nullptr;
        session = isOpen ? std::next(session) : m_sessions.erase(session);
    }
}

void Sessions::historyIsClean(bool clean)
{
    const auto session = m_sessions.find(m_cleanProject);
    Obj::Project* const project = Obj::Application::instance().get_project(m_cleanProject);
    const bool isEmpty = vxMsg::MessageProxy::instance().undoStack().count() == 0;
    if (clean && !isEmpty && session != m_sessions.end() && project != nullptr)
        Kelta::guarded(tr("Changes of a project cannot be determined"), [&] { reconsider(session->second, *project); });
}

void Sessions::reconsider(Session& session, Obj::Project& project)
{
    // Some changes are not steps of the history, so the content is compared.
    projectfile::ProjectRecord record = recordProject(project, session.kept);
    if (!record.objects.empty() && record.objects.back().objectId >= session.nextObjectId)
        return;
    // An id that was used meanwhile, and is free again, is not a change.
    record.nextObjectId = session.nextObjectId;
    if (!session.isRememberedText(projectfile::writeProject(record)))
        return;
    session.isModified = false;
    session.forgetCopy();
}

} // namespace desktop
