#include "ProjectFiles.h"

#include "FilePaths.h"

#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "kelta/BusyCursor.h"
#include "kelta/UnappliedEdits.h"
#include "vxMsg/MessageProxy.h"

#include <QFileInfo>
#include <QStatusBar>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <vector>

namespace desktop {

namespace {

constexpr int copyInterval = 60 * 1000; // ms

/// Returns a project that takes documents, the current one if possible; null if none is open.
Obj::Project* findTarget()
{
    std::vector<Obj::Project*> projects = Obj::Application::get_projects();
    if (Obj::Project* const current = Obj::Application::get_current_project())
        projects.insert(projects.begin(), current);
    const auto found = std::find_if(projects.begin(), projects.end(), [](const Obj::Project* project) {
        return findDocumentImport(project->getTypeId()) != nullptr;
    });
    return found != projects.end() ? *found : nullptr;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::ProjectFiles", text);
}

/// Returns a sentence about objects with another label than in their document; empty if there is none.
QString describe(const std::vector<NewLabel>& labels)
{
    if (labels.empty())
        return {};
    constexpr std::size_t mostNames = 10;
    QStringList names;
    for (std::size_t i = 0; i < std::min(labels.size(), mostNames); ++i)
        names << tr(R"("%1" is now "%2")").arg(labels[i].inDocument, labels[i].inProject);
    if (labels.size() > mostNames)
        names << tr("%1 more").arg(labels.size() - mostNames);
    return tr("Objects with a label that was in use have got another one: %1.").arg(names.join(QStringLiteral(", ")));
}

/// Returns the result of an import for the status bar.
QString summaryOf(const ImportOutcome& outcome)
{
    if (outcome.newLabels.empty())
        return tr("Objects imported: %1").arg(outcome.objects.size());
    return tr("Objects imported: %1, with another label: %2")
        .arg(QString::number(outcome.objects.size()), QString::number(outcome.newLabels.size()));
}

} // namespace

ProjectFiles::ProjectFiles(Gui::MainWindow& mainWindow, Options options)
    : m_mainWindow(mainWindow),
      m_copies(options.copies),
      m_questions(mainWindow, options.foreignLocks),
      m_opening(mainWindow, m_sessions, m_questions, [this](const QString& path) { return offerImport(path); }),
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
    const std::uint32_t projectId = project.getProjectId();
    const ImportStep add = readDocument(project.getTypeId(), path);
    // The project may have been closed while the user answered.
    return add && Obj::Application::instance().get_project(projectId) == &project && addDocument(project, add, path);
}

ImportStep ProjectFiles::readDocument(Kelta::TypeInfo projectClass, const QString& path)
{
    const DocumentImport* const import = findDocumentImport(projectClass);
    if (import == nullptr)
        return {};
    try {
        return (*import)(path);
    } catch (const std::exception& error) {
        m_questions.complain(tr("Import"), QString::fromUtf8(error.what()));
    }
    return {};
}

bool ProjectFiles::addDocument(Obj::Project& project, const ImportStep& add, const QString& path)
{
    try {
        const BusyCursor busy;
        const ImportOutcome outcome = add(project);
        m_opening.warn(path, outcome.doubts);
        Gui::TreeSelectionSingleton::instance().setSelection({}, outcome.objects);
        if (const QString labels = describe(outcome.newLabels); !labels.isEmpty())
            Kelta::MessageLog::information(shownPath(path) + QStringLiteral(": ") + labels);
        m_mainWindow.statusBar()->showMessage(summaryOf(outcome), 5000);
        return true;
    } catch (const std::exception& error) {
        m_questions.complain(tr("Import"), QString::fromUtf8(error.what()));
    }
    return false;
}

bool ProjectFiles::offerImport(const QString& path)
{
    Obj::Project* const target = findTarget();
    const std::vector<std::string> classes = documentImportClasses();
    if (target == nullptr && classes.empty()) {
        m_questions.complain(tr("Open project"),
                             tr("\"%1\" is an exchange document, not a project file. No module that "
                                "imports such documents is loaded.")
                                 .arg(shownPath(path)));
        return false;
    }
    const std::uint32_t projectId = target != nullptr ? target->getProjectId() : 0;
    if (!m_questions.mayImport(path, target != nullptr ? QString::fromUtf8(target->get_name()) : QString()))
        return false;
    if (projectId == 0)
        return importIntoNewProject(classes.front(), path);
    // The project may have been closed while the user answered.
    Obj::Project* const project = Obj::Application::instance().get_project(projectId);
    return project != nullptr && importDocument(*project, path);
}

bool ProjectFiles::importIntoNewProject(const std::string& projectClass, const QString& path)
{
    // Nothing is made for a document that cannot be read.
    const ImportStep add = readDocument(Kelta::TypeInfo::find(projectClass.c_str()), path);
    if (!add)
        return false;
    vxMsg::MessageProxy& requests = vxMsg::MessageProxy::instance();
    const vxMsg::MessageProxy::Group oneStep(tr("Import \"%1\"").arg(QFileInfo(path).fileName()));
    const std::string name =
        Obj::Application::get_unique_project_name(QFileInfo(path).completeBaseName().toStdString());
    if (!requests.newProject(projectClass, name))
        return false;
    Obj::Project* const project = Obj::Application::instance().get_project(name);
    if (project != nullptr && addDocument(*project, add, path))
        return true;
    requests.closeProject(name);
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
    if (choice != Questions::ClosingChoice::Save)
        return choice == Questions::ClosingChoice::Discard;
    // The user has decided about the edits already.
    const std::uint32_t projectId = project.getProjectId();
    return applyAll(m_mainWindow, project) && Obj::Application::instance().get_project(projectId) == &project &&
           save(project);
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
    if (m_copies == Copies::Keep)
        m_recovery.keepCopies();
}

void ProjectFiles::offerRecovery()
{
    m_recovery.offer();
}

} // namespace desktop
