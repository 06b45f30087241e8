#include "ProjectFiles.h"

#include "BusyCursor.h"

#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "kelta/DocumentImport.h"
#include "kelta/UnappliedEdits.h"
#include "vxMsg/MessageProxy.h"

#include <QStatusBar>

#include <algorithm>
#include <exception>

namespace desktop {

namespace {

constexpr int copyInterval = 60 * 1000; // ms

} // namespace

ProjectFiles::ProjectFiles(Gui::MainWindow& mainWindow)
    : m_mainWindow(mainWindow),
      m_questions(mainWindow),
      m_opening(mainWindow, m_sessions, m_questions),
      m_saving(mainWindow, m_sessions, m_questions),
      m_recovery(mainWindow, m_sessions, m_questions, m_opening),
      m_projectClosing(vxMsg::MessageProxy::instance().projectClosing.connect(
          [this](Obj::Project& project, bool& refused) { refused = refused || !mayClose(project); }))
{
    // The title shows whether the project is modified. Changes outside the history modify a project too.
    connect(&m_sessions, &Sessions::becameModified, &mainWindow, &Gui::MainWindow::updateCommands,
            Qt::QueuedConnection);
    connect(&m_timer, &QTimer::timeout, this, &ProjectFiles::keepCopies);
    m_timer.start(copyInterval);
}

ProjectFiles::~ProjectFiles() = default;

bool ProjectFiles::open(const QString& path)
{
    return m_opening.open(path);
}

bool ProjectFiles::openCopy(const QString& path)
{
    return m_opening.openCopy(path);
}

bool ProjectFiles::save(Obj::Project& project)
{
    return m_saving.save(project);
}

bool ProjectFiles::saveAs(Obj::Project& project)
{
    return m_saving.saveAs(project);
}

bool ProjectFiles::importDocument(Obj::Project& project, const QString& path)
{
    const DocumentImport* const import = findDocumentImport(project);
    if (import == nullptr)
        return false;
    try {
        const BusyCursor busy;
        const ImportOutcome outcome = (*import)(project, path);
        m_opening.warn(path, outcome.doubts);
        Gui::TreeSelectionSingleton::instance().setSelection({}, outcome.objects);
        m_mainWindow.statusBar()->showMessage(tr("Objects imported: %1").arg(outcome.objects.size()), 5000);
        return true;
    } catch (const std::exception& error) {
        m_questions.complain(tr("Import"), QString::fromUtf8(error.what()));
    }
    return false;
}

QString ProjectFiles::getFile(const Obj::Project& project) const
{
    const Session* const session = m_sessions.find(project);
    return session != nullptr ? session->path : QString();
}

bool ProjectFiles::isModified(const Obj::Project& project) const
{
    const Session* const session = m_sessions.find(project);
    return session != nullptr && session->isModified;
}

void ProjectFiles::contentChanged(Obj::ProjectObject& object)
{
    if (object.get_project() == nullptr)
        return;
    m_sessions.markModified(*object.get_project());
    keepCopies();
}

bool ProjectFiles::mayClose(Obj::Project& project)
{
    const Questions::Unsaved unsaved{isModified(project), !findUnapplied(m_mainWindow, project).empty()};
    if (!unsaved.inProject && !unsaved.inEditors)
        return true;
    const auto choice = m_questions.askBeforeClosing(QString::fromUtf8(project.get_name()), unsaved);
    return choice == Questions::ClosingChoice::Save ? save(project) : choice == Questions::ClosingChoice::Discard;
}

bool ProjectFiles::mayEnd()
{
    const std::vector<Obj::Project*> projects = Obj::Application::get_projects();
    return std::all_of(projects.begin(), projects.end(), [this](Obj::Project* project) { return mayClose(*project); });
}

void ProjectFiles::end()
{
    m_sessions.forgetCopies();
}

void ProjectFiles::keepCopies()
{
    m_recovery.keepCopies();
}

void ProjectFiles::offerRecovery()
{
    m_recovery.offer();
}

} // namespace desktop
