#include "Opening.h"

#include "BusyCursor.h"
#include "FilePaths.h"
#include "PlaceholderRecord.h"
#include "ProjectRecording.h"
#include "ProjectRestoring.h"
#include "Questions.h"
#include "RecentFiles.h"
#include "Sessions.h"

#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "Obj/Placeholder.h"
#include "vxMsg/MessageProxy.h"

#include <QFileInfo>

#include <exception>
#include <functional>
#include <memory>
#include <utility>

namespace desktop {

namespace {

void select(Obj::Project& project)
{
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
}

/// Returns null, with the reason in the message log, if the project cannot be made.
Obj::Project* requestProject(const projectfile::ProjectRecord& record, const std::function<void(Obj::Project&)>& fill)
{
    vxMsg::MessageProxy& requests = vxMsg::MessageProxy::instance();
    if (Kelta::TypeInfo::find(record.className.c_str()).namesAType())
        return requests.openProject(record.className, record.name, fill);
    return requests.openProject(std::make_unique<Obj::PlaceholderProject>(record.className, recordOfProject(record)),
                                record.name, fill);
}

} // namespace

bool Opening::open(const QString& path)
{
    return openOrComplain(path, [&] { return openFile(canonicalPath(path)); });
}

bool Opening::openCopy(const QString& path)
{
    return openOrComplain(path, [&] {
        const BusyCursor busy;
        projectfile::ProjectRecord record = projectfile::readProject(projectfile::readFile(path));
        Obj::Project* const project = makeProject(record, path);
        if (project != nullptr)
            m_sessions.noteOpened(*project);
        m_mainWindow.updateCommands();
        return project != nullptr;
    });
}

bool Opening::openOrComplain(const QString& path, const std::function<bool()>& action)
{
    try {
        return action();
    } catch (const projectfile::StoreError& error) {
        if (!QFileInfo::exists(path))
            RecentFiles::remove(path);
        m_questions.complain(tr("Open project"), QString::fromUtf8(error.what()));
    } catch (const std::exception& error) {
        m_questions.complain(tr("Open project"), tr("\"%1\" cannot be opened.").arg(shownPath(path)) +
                                                     QLatin1Char('\n') + QString::fromUtf8(error.what()));
    }
    return false;
}

bool Opening::openFile(const QString& path)
{
    if (Obj::Project* const project = m_sessions.findOpen(path)) {
        select(*project);
        return true;
    }
    projectfile::FileLock lock(path);
    if (QFileInfo::exists(path) && !m_questions.mayUse(lock, path))
        return false;
    const BusyCursor busy;
    projectfile::FileStamp stamp;
    projectfile::ProjectRecord record = projectfile::readProject(projectfile::readFile(path, &stamp));
    Obj::Project* const project = makeProject(record, path);
    if (project == nullptr)
        throw projectfile::ContentError(tr("The message log says why.").toStdString());
    Session& session = *m_sessions.find(*project);
    session.path = path;
    session.stamp = stamp;
    session.lock = std::move(lock);
    session.isModified = !record.doubts.empty();
    m_sessions.noteOpened(*project);
    RecentFiles::add(path);
    m_mainWindow.updateCommands();
    return true;
}

Obj::Project* Opening::makeProject(projectfile::ProjectRecord& record, const QString& source)
{
    KeptMembers kept;
    std::vector<std::string> warnings;
    Obj::Project* project = nullptr;
    {
        const Sessions::Filling filling(m_sessions);
        project = requestProject(record, [&](Obj::Project& opened) { restoreProject(opened, record, kept, warnings); });
    }
    if (project == nullptr)
        return nullptr;
    Session& session = *m_sessions.find(*project);
    session.kept = std::move(kept);
    rememberText(*project, session);
    warnings.insert(warnings.end(), record.doubts.begin(), record.doubts.end());
    warn(source, warnings);
    select(*project);
    return project;
}

void Opening::rememberText(Obj::Project& project, Session& session) const
{
    try {
        const projectfile::ProjectRecord record = recordProject(project, session.kept);
        session.rememberText(projectfile::writeProject(record), record.nextObjectId);
    } catch (...) {
        // Changes of a project that cannot be written would be lost.
        Obj::Application::instance().closeProject(project);
        throw;
    }
}

void Opening::warn(const QString& path, const std::vector<std::string>& doubts)
{
    for (const std::string& doubt : doubts)
        Kelta::MessageLog::warning(shownPath(path) + QStringLiteral(": ") + QString::fromStdString(doubt));
    if (!doubts.empty())
        m_mainWindow.showMessages();
}

} // namespace desktop
