#include "Saving.h"

#include "FilePaths.h"
#include "ProjectRecording.h"
#include "Questions.h"
#include "RecentFiles.h"
#include "Sessions.h"

#include "Gui/FileDialog.h"
#include "Gui/MainWindow.h"
#include "Obj/Application.h"
#include "kelta/BusyCursor.h"
#include "kelta/UnappliedEdits.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStatusBar>

#include <exception>
#include <utility>

namespace desktop {

namespace {

/// Returns a name for the file of a project.
QString proposedName(const Obj::Project& project)
{
    // Some systems allow none of these characters in names of files.
    static const QRegularExpression unusable(QStringLiteral("[\\x00-\\x1f\\x7f\"*/:<>?\\\\|]"));
    const QString name = QString::fromUtf8(project.get_name()).replace(unusable, QStringLiteral("_")).trimmed();
    return name + QStringLiteral(".vxmat");
}

} // namespace

bool Saving::save(Obj::Project& project)
{
    const Session* const session = m_sessions.find(project);
    if (session == nullptr)
        return false;
    if (session->path.isEmpty())
        return saveAs(project);
    return mayLeaveEdits(project) && saveTo(project, m_sessions.find(project)->path);
}

bool Saving::saveAs(Obj::Project& project)
{
    // This question comes first, because a name is of no use if the user cancels.
    if (m_sessions.find(project) == nullptr || !mayLeaveEdits(project))
        return false;
    const Session& session = *m_sessions.find(project);
    const std::uint32_t projectId = project.getProjectId();
    const QString proposed = session.path.isEmpty() ? proposedName(project) : session.path;
    const QString chosen =
        Gui::FileDialog::getSaveFileName(&m_mainWindow, tr("Save project"), proposed, tr("Project (*.vxmat)"));
    // The project may have been closed while the user chose.
    const bool isOpen = Obj::Application::instance().get_project(projectId) != nullptr;
    return isOpen && !chosen.isEmpty() && saveTo(project, canonicalPath(chosen));
}

bool Saving::mayLeaveEdits(Obj::Project& project) const
{
    const std::uint32_t projectId = project.getProjectId();
    const bool mayContinue =
        askToApply(m_mainWindow, project,
                   {tr("Save project"), tr("The file contains only applied changes."), tr("&Save without them")});
    // The project may have been closed while the user answered.
    return mayContinue && Obj::Application::instance().get_project(projectId) != nullptr;
}

bool Saving::saveTo(Obj::Project& project, const QString& path)
{
    Session& session = *m_sessions.find(project);
    try {
        if (!mayWrite(session, path))
            return false;
        write(project, session, path);
    } catch (const std::exception& error) {
        m_questions.complain(tr("Save project"), QString::fromUtf8(error.what()));
        return false;
    }
    m_sessions.noteSaved(project);
    RecentFiles::add(session.path);
    m_mainWindow.statusBar()->showMessage(tr("\"%1\" has been saved.").arg(shownPath(session.path)), 5000);
    m_mainWindow.updateCommands();
    return true;
}

void Saving::write(Obj::Project& project, Session& session, const QString& path) const
{
    const BusyCursor busy;
    const projectfile::ProjectRecord record = recordProject(project, session.kept);
    const std::string text = projectfile::writeProject(record);
    session.stamp = projectfile::writeFile(path, text);
    session.rememberText(text, record.nextObjectId);
    session.path = canonicalPath(path);
}

bool Saving::mayWrite(Session& session, const QString& path) const
{
    if (path == session.path) {
        // The program that had the file may have released it.
        if (session.lock && !session.lock->isLocked())
            static_cast<void>(session.lock->tryLock());
        return mayReplace(session, path);
    }
    if (const Obj::Project* const other = m_sessions.findOpen(path)) {
        m_questions.complain(tr("Save project"), tr(R"("%1" is the file of the project "%2", which is open.)")
                                                     .arg(shownPath(path), QString::fromUtf8(other->get_name())));
        return false;
    }
    projectfile::FileLock lock(path);
    if (!m_questions.mayUse(lock, path))
        return false;
    session.lock = std::move(lock);
    return true;
}

bool Saving::mayReplace(const Session& session, const QString& path) const
{
    using Difference = Questions::Difference;
    if (!QFileInfo::exists(path) || !projectfile::hasChanged(path, session.stamp))
        return true;
    return m_questions.mayReplace(path, session.isRecovered ? Difference::OlderThanRecoveredProject
                                                            : Difference::ChangedByAnotherProgram);
}

} // namespace desktop
