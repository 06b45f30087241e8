#include "Opening.h"

#include "FilePaths.h"
#include "PlaceholderRecord.h"
#include "ProjectRecording.h"
#include "ProjectRestoring.h"
#include "Questions.h"
#include "RecentFiles.h"
#include "Sessions.h"

#include "Gui/MainWindow.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "Obj/Placeholder.h"
#include "kelta/BusyCursor.h"
#include "kelta/OpeningGuard.h"
#include "projectfile/ExchangeImport.h"
#include "vxMsg/MessageProxy.h"

#include <QFileInfo>

#include <exception>
#include <memory>
#include <utility>

namespace desktop {

namespace {

void select(Obj::Project& project)
{
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
}

/// Returns a new project of the class of a record; a placeholder if there is no such class of projects.
Obj::OwnedProject createProject(const projectfile::ProjectRecord& record)
{
    const Kelta::TypeInfo type = Kelta::TypeInfo::find(record.className.c_str());
    void* const created = type.is_inherited_from(Obj::Project::getClassTypeId()) ? type.create() : nullptr;
    if (created != nullptr)
        return Obj::OwnedProject(static_cast<Obj::Project*>(static_cast<Kelta::RootClass*>(created)));
    return std::make_unique<Obj::PlaceholderProject>(record.className, recordOfProject(record));
}

/// Returns the name of a project, up to its first zero character, which names of open projects cannot have.
std::string nameOf(const projectfile::ProjectRecord& record)
{
    return record.name.substr(0, record.name.find('\0'));
}

/// Reads a project file. Returns nothing if the file is an exchange document.
std::optional<projectfile::ProjectRecord> readRecord(const QString& path, projectfile::FileStamp& stamp)
{
    const BusyCursor busy;
    const std::string text = projectfile::readFile(path, &stamp);
    try {
        return projectfile::readProject(text);
    } catch (const projectfile::ContentError&) {
        if (!projectfile::isMaterialDocument(text))
            throw;
    }
    return std::nullopt;
}

} // namespace

bool Opening::open(const QString& path)
{
    return openOrComplain(path, [&] { return openFile(canonicalPath(path)); });
}

bool Opening::openCopy(const QString& path)
{
    return openOrComplain(path, [&] {
        projectfile::ProjectRecord record = projectfile::readProject(projectfile::readFile(path));
        if (!mayOpen(record, path))
            return false;
        m_sessions.noteOpened(openProject(record, path));
        m_mainWindow.updateCommands();
        return true;
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
    projectfile::FileStamp stamp;
    // Read before the guard may close another project, which stays open if the file is wrong.
    std::optional<projectfile::ProjectRecord> record = readRecord(path, stamp);
    if (!record)
        return m_onDocument(path);
    if (!mayOpen(*record, path))
        return false;
    Obj::Project& project = openProject(*record, path);
    Session& session = *m_sessions.find(project);
    session.path = path;
    session.stamp = stamp;
    session.lock = std::move(lock);
    session.isModified = !record->doubts.empty();
    m_sessions.noteOpened(project);
    // The next key acts on the opened project.
    m_mainWindow.getProjectExplorer().setFocus(Qt::OtherFocusReason);
    RecentFiles::add(path);
    m_mainWindow.updateCommands();
    return true;
}

bool Opening::mayOpen(const projectfile::ProjectRecord& record, const QString& path)
{
    const OpeningGuard* const guard = findOpeningGuard(record.className);
    return guard == nullptr || (*guard)(path);
}

Obj::Project& Opening::openProject(projectfile::ProjectRecord& record, const QString& path)
{
    const BusyCursor busy;
    Obj::Project* const project = makeProject(record, path);
    if (project == nullptr)
        throw projectfile::ContentError(tr("The message log gives the reason.").toStdString());
    return *project;
}

Obj::Project* Opening::makeProject(projectfile::ProjectRecord& record, const QString& source)
{
    KeptMembers kept;
    std::vector<std::string> warnings;
    Obj::Project* project = nullptr;
    {
        const Sessions::Filling filling(m_sessions);
        project = vxMsg::MessageProxy::instance().openProject(
            createProject(record), nameOf(record),
            [&](Obj::Project& opened) { restoreProject(opened, record, kept, warnings); });
    }
    if (project == nullptr)
        return nullptr;
    if (record.name != project->get_name()) {
        // The file keeps its name, although the open project cannot have it.
        kept.name = {record.name, project->get_name()};
        warnings.push_back(tr(R"(The project "%1" is shown as "%2".)")
                               .arg(QString::fromStdString(record.name), QString::fromUtf8(project->get_name()))
                               .toStdString());
    }
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
