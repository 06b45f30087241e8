#include "KeptEdits.h"

#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "kelta/UnappliedEdits.h"
#include "vxMsg/MessageProxy.h"

#include <QTimer>
#include <QUndoStack>

#include <iterator>

namespace desktop {

namespace {

Obj::ProjectObject* findObject(std::uint32_t projectId, std::uint32_t objectId)
{
    const Obj::Project* const project = Obj::Application::instance().get_project(projectId);
    return project != nullptr ? project->get_object(objectId) : nullptr;
}

} // namespace

KeptEdits::KeptEdits(QObject* parent) : QObject(parent)
{
    connect(&vxMsg::MessageProxy::instance().undoStack(), &QUndoStack::indexChanged, this, &KeptEdits::historyMoved);
}

KeptEdits::~KeptEdits() = default;

void KeptEdits::keep(Obj::Project& project, std::uint32_t objectId, Json::Value edits)
{
    if (edits.isNull())
        return;
    const std::uint32_t projectId = project.getProjectId();
    m_edits[{projectId, objectId}] = std::move(edits);
    if (m_connections.count(projectId) != 0)
        return;
    m_connections[projectId] = project.objectAdded.connect([this, projectId](const Obj::ProjectObject& added) {
        const Place place(projectId, added.getObjectId());
        // The editor is opened after the step of undo or redo.
        if (m_edits.count(place) != 0)
            QTimer::singleShot(0, this, [this, place] { bringBack(place); });
    });
}

void KeptEdits::bringBack(const Place& place)
{
    Kelta::guarded(tr("Changes that were not applied cannot be shown again"), [&] {
        Obj::ProjectObject* const object = findObject(place.first, place.second);
        const auto kept = m_edits.find(place);
        if (object == nullptr || kept == m_edits.end())
            return;
        const Json::Value edits = std::move(kept->second);
        m_edits.erase(kept);
        static_cast<void>(showEdits(*object, edits));
    });
}

void KeptEdits::historyMoved()
{
    if (vxMsg::MessageProxy::instance().undoStack().count() != 0)
        return;
    m_connections.clear();
    for (auto kept = m_edits.begin(); kept != m_edits.end();) {
        // A restored material shows its edits when the event loop is next idle.
        const bool isBack = findObject(kept->first.first, kept->first.second) != nullptr;
        kept = isBack ? std::next(kept) : m_edits.erase(kept);
    }
}

} // namespace desktop
