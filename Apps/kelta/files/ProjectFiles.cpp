#include "ProjectFiles.h"

#include "MaterialChange.h"
#include "MaterialImport.h"

#include "Gui/FileDialog.h"
#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "projectfile/ProjectFile.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QAbstractButton>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>

#include <algorithm>
#include <exception>
#include <limits>
#include <utility>

namespace kelta {

namespace {

constexpr const char* recentKey = "files/recent";
constexpr int recentCount = 10;
constexpr int copyInterval = 60 * 1000;

/// A file under the one name that all ways to it share.
QString canonical(const QString& path)
{
    QFileInfo info(path);
    // The end of a chain of links that lead nowhere yet; a circle has none.
    for (int links = 0; !info.exists() && info.isSymLink() && links < 40; ++links)
        info.setFile(info.symLinkTarget());
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? info.absoluteFilePath() : QDir(folder).filePath(info.fileName());
}

QString shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

QString nameOf(const Obj::Project& project)
{
    return QString::fromUtf8(project.get_name());
}

Mat::DocumentMaterial* asMaterials(Obj::Project* project)
{
    return dynamic_cast<Mat::DocumentMaterial*>(project);
}

/// What tells two contents of a project from each other. The host's record is left out, since it says which number the
/// project has in this run, and so is the next number: one that was used and taken back is no change to be saved.
QByteArray contentOf(projectfile::ProjectRecord record)
{
    record.database = Json::Value();
    record.nextObjectId = std::uint64_t{std::numeric_limits<std::uint32_t>::max()} + 1;
    const std::string text = projectfile::writeProject(record);
    return QCryptographicHash::hash(QByteArray::fromRawData(text.data(), static_cast<int>(text.size())),
                                    QCryptographicHash::Md5);
}

/// A question with buttons of their own texts; answers the number of the one that was chosen, the last one for none.
int ask(QWidget& parent, QMessageBox::Icon icon, const QString& title, const QString& text, const QString& details,
        const std::vector<std::pair<QString, QMessageBox::ButtonRole>>& choices)
{
    QMessageBox box(icon, title, text, QMessageBox::NoButton, &parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(details);
    std::vector<QAbstractButton*> buttons;
    buttons.reserve(choices.size());
    for (const auto& [label, role] : choices)
        buttons.push_back(box.addButton(label, role));
    box.setDefaultButton(static_cast<QPushButton*>(buttons.front()));
    box.setEscapeButton(buttons.back());
    box.exec();
    const auto chosen = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    return static_cast<int>(chosen != buttons.end() ? chosen - buttons.begin() : buttons.end() - buttons.begin() - 1);
}

/// While one lives, the pointer says that the program is at work.
class Busy
{
public:
    Busy() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace

ProjectFiles::ProjectFiles(Gui::MainWindow& mainWindow) : m_mainWindow(mainWindow)
{
    Obj::Application& application = Obj::Application::instance();
    vxMsg::MessageProxy& proxy = vxMsg::MessageProxy::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        add(*project);
    m_connections.emplace_back(application.projectAdded.connect([this](Obj::Project& project) { add(project); }));
    m_connections.emplace_back(application.projectRemoved.connect([this](Obj::Project& project) { remove(project); }));
    m_connections.emplace_back(proxy.projectClosing.connect(
        [this](Obj::Project& project, bool& refused) { refused = refused || !mayClose(project); }));
    m_connections.emplace_back(materialChanged().connect([this](Mat::MaterialObject& object) {
        markModified(*object.get_project());
        keepCopies();
    }));
    const QUndoStack& history = proxy.undoStack();
    connect(&history, &QUndoStack::indexChanged, this, [this, &history] {
        // A history that ends leaves what has been changed changed.
        if (history.count() == 0)
            m_cleanProject = std::exchange(m_openedProject, 0);
    });
    connect(&history, &QUndoStack::cleanChanged, this, [this, &history](bool clean) {
        const auto session = m_sessions.find(m_cleanProject);
        if (!clean || history.count() == 0 || session == m_sessions.end())
            return;
        reconsider(session->second, m_cleanProject);
    });
    connect(&m_timer, &QTimer::timeout, this, &ProjectFiles::keepCopies);
    m_timer.start(copyInterval);
}

ProjectFiles::~ProjectFiles() = default;

void ProjectFiles::end()
{
    for (auto& [id, session] : m_sessions)
        forgetCopy(session);
}

void ProjectFiles::add(Obj::Project& project)
{
    // A project that undo brings back is known already; its file may have got another user meanwhile.
    Session& session = m_sessions[project.getProjectId()];
    session.isCopyDue = session.isModified;
    if (!session.path.isEmpty() && !session.lock)
        takeLock(session);
    if (!session.connections.empty())
        return;
    const auto changed = [this, &project](auto&&...) { markModified(project); };
    session.connections.emplace_back(project.objectAdded.connect([this, &project](Obj::ProjectObject& object) {
        if (Session* const found = find(project))
            found->looks[object.getObjectId()] = {object.isSuppressed(),
                                                  colourOf(object).value_or(std::array<float, 4>())};
        markModified(project);
    }));
    session.connections.emplace_back(project.objectRemoved.connect(changed));
    session.connections.emplace_back(project.changed.connect(changed));
    session.connections.emplace_back(project.objectChanged.connect(
        [this](Obj::ProjectObject& object, const Obj::Property* property) { objectChanged(object, property); }));
}

void ProjectFiles::takeLock(Session& session)
{
    try {
        session.lock.emplace(session.path);
        if (!session.lock->tryLock() && !session.lock->holder().isEmpty())
            Kelta::MessageLog::warning(tr("\"%1\" is in use by %2.").arg(shown(session.path), session.lock->holder()));
    } catch (const projectfile::StoreError& error) {
        Kelta::MessageLog::warning(QString::fromUtf8(error.what()));
    }
}

void ProjectFiles::reconsider(Session& session, std::uint32_t projectId)
{
    // Not everything is a step of the history, so the content has the last word.
    Mat::DocumentMaterial* const project = asMaterials(Obj::Application::instance().get_project(projectId));
    if (project == nullptr || contentOf(makeRecord(*project, session.further)) != session.content)
        return;
    session.isModified = false;
    forgetCopy(session);
}

void ProjectFiles::remove(Obj::Project& project)
{
    if (Session* const session = find(project)) {
        session->lock.reset();
        forgetCopy(*session);
    }
}

void ProjectFiles::objectChanged(Obj::ProjectObject& object, const Obj::Property* property)
{
    Session* const session = object.get_project() != nullptr ? find(*object.get_project()) : nullptr;
    if (session == nullptr)
        return;
    if (property != nullptr)
        return markModified(*object.get_project());
    // The state is no part of the file.
    const Look look{object.isSuppressed(), colourOf(object).value_or(std::array<float, 4>())};
    Look& known = session->looks[object.getObjectId()];
    if (known.suppressed == look.suppressed && known.colour == look.colour)
        return;
    known = look;
    markModified(*object.get_project());
}

void ProjectFiles::markModified(const Obj::Project& project)
{
    Session* const session = find(project);
    if (session == nullptr)
        return;
    // The title shows it, also of what is no step of the history.
    if (!std::exchange(session->isModified, true))
        QTimer::singleShot(0, &m_mainWindow, &Gui::MainWindow::update_commands);
    session->isCopyDue = true;
}

ProjectFiles::Session* ProjectFiles::find(const Obj::Project& project)
{
    const auto found = m_sessions.find(project.getProjectId());
    return found != m_sessions.end() ? &found->second : nullptr;
}

const ProjectFiles::Session* ProjectFiles::find(const Obj::Project& project) const
{
    const auto found = m_sessions.find(project.getProjectId());
    return found != m_sessions.end() ? &found->second : nullptr;
}

QString ProjectFiles::get_file(const Obj::Project& project) const
{
    const Session* const session = find(project);
    return session != nullptr ? session->path : QString();
}

bool ProjectFiles::is_modified(const Obj::Project& project) const
{
    const Session* const session = find(project);
    return session != nullptr && session->isModified;
}

bool ProjectFiles::open(const QString& path)
{
    try {
        return openFile(canonical(path));
    } catch (const projectfile::StoreError& error) {
        if (!QFileInfo::exists(path))
            forget(path);
        complain(tr("Open project"), QString::fromUtf8(error.what()));
    } catch (const std::exception& error) {
        complain(tr("Open project"),
                 tr("\"%1\" cannot be opened.").arg(shown(path)) + QLatin1Char('\n') + QString::fromUtf8(error.what()));
    }
    return false;
}

bool ProjectFiles::openFile(const QString& path)
{
    if (Mat::DocumentMaterial* const project = findOpen(path)) {
        Gui::TreeSelectionSingleton::instance().set_selection({project}, {});
        return true;
    }
    projectfile::FileLock lock(path);
    if (QFileInfo::exists(path) && !mayUse(lock, path))
        return false;
    const Busy busy;
    projectfile::FileStamp stamp;
    projectfile::ProjectRecord record = projectfile::readProject(projectfile::readFile(path, &stamp));
    FurtherMembers further;
    Obj::Project* const project = openRecord(record, further);
    if (project == nullptr)
        return false;
    Session& session = *find(*project);
    session.path = path;
    session.stamp = stamp;
    session.lock = std::move(lock);
    session.further = std::move(further);
    session.content = contentOf(makeRecord(*asMaterials(project), session.further));
    session.isModified = !record.doubts.empty();
    session.isCopyDue = session.isModified;
    // The history before ends with this command, if there is any.
    const bool historyEnds = vxMsg::MessageProxy::instance().undoStack().count() != 0;
    (historyEnds ? m_openedProject : m_cleanProject) = session.isModified ? 0 : project->getProjectId();
    warn(path, record.doubts);
    remember(path);
    m_mainWindow.update_commands();
    return true;
}

void ProjectFiles::warn(const QString& path, const std::vector<std::string>& doubts)
{
    for (const std::string& doubt : doubts)
        Kelta::MessageLog::warning(shown(path) + QStringLiteral(": ") + QString::fromStdString(doubt));
    if (!doubts.empty())
        m_mainWindow.show_messages();
}

Obj::Project* ProjectFiles::openRecord(projectfile::ProjectRecord& record, FurtherMembers& further)
{
    return vxMsg::MessageProxy::instance().openProject(
        "Mat::DocumentMaterial", record.name, [&](Obj::Project& project) { fillProject(project, record, further); });
}

Mat::DocumentMaterial* ProjectFiles::findOpen(const QString& path)
{
    for (Obj::Project* const project : Obj::Application::get_projects())
        if (const Session* const session = find(*project); session != nullptr && session->path == path)
            return asMaterials(project);
    return nullptr;
}

bool ProjectFiles::mayUse(projectfile::FileLock& lock, const QString& path)
{
    if (lock.tryLock() || lock.holder().isEmpty())
        return true;
    return ask(m_mainWindow, QMessageBox::Warning, tr("File in use"),
               tr("\"%1\" is in use by %2.").arg(shown(path), lock.holder()),
               tr("What is saved by one of the programs replaces what the other one saved."),
               {{tr("&Use all the same"), QMessageBox::AcceptRole}, {tr("Cancel"), QMessageBox::RejectRole}}) == 0;
}

bool ProjectFiles::save(Mat::DocumentMaterial& project)
{
    const Session* const session = find(project);
    if (session == nullptr)
        return false;
    return session->path.isEmpty() ? saveAs(project) : saveTo(project, session->path);
}

bool ProjectFiles::saveAs(Mat::DocumentMaterial& project)
{
    const Session* const session = find(project);
    if (session == nullptr)
        return false;
    const QString start = session->path.isEmpty() ? QString() : session->path;
    const QString chosen =
        Gui::FileDialog::getSaveFileName(&m_mainWindow, tr("Save project"), start, tr("Material project (*.vxmat)"));
    return !chosen.isEmpty() && saveTo(project, canonical(chosen));
}

bool ProjectFiles::saveTo(Mat::DocumentMaterial& project, const QString& path)
{
    if (!applyEditors(project))
        return false;
    Session& session = *find(project);
    try {
        if (!mayWrite(session, path))
            return false;
        const Busy busy;
        projectfile::ProjectRecord record = makeRecord(project, session.further);
        session.stamp = projectfile::writeFile(path, projectfile::writeProject(record));
        session.content = contentOf(std::move(record));
        session.path = canonical(path);
    } catch (const std::exception& error) {
        complain(tr("Save project"), QString::fromUtf8(error.what()));
        return false;
    }
    session.isRecovered = false;
    session.isModified = false;
    // Not possible while a step of the history is being made, as when editors have been applied for this.
    QUndoStack& history = vxMsg::MessageProxy::instance().undoStack();
    m_cleanProject = 0;
    history.setClean();
    m_cleanProject = history.isClean() ? project.getProjectId() : 0;
    forgetCopy(session);
    remember(session.path);
    m_mainWindow.statusBar()->showMessage(tr("\"%1\" has been saved.").arg(shown(session.path)), 5000);
    m_mainWindow.update_commands();
    return true;
}

bool ProjectFiles::mayWrite(Session& session, const QString& path)
{
    if (path == session.path) {
        // Another program that had it may have let go of it.
        if (session.lock && !session.lock->isLocked())
            static_cast<void>(session.lock->tryLock());
        return mayReplace(session, path);
    }
    if (const Mat::DocumentMaterial* const other = findOpen(path)) {
        complain(tr("Save project"),
                 tr(R"("%1" is the file of the project "%2", which is open.)").arg(shown(path), nameOf(*other)));
        return false;
    }
    projectfile::FileLock lock(path);
    if (!mayUse(lock, path))
        return false;
    session.lock = std::move(lock);
    return true;
}

bool ProjectFiles::mayReplace(const Session& session, const QString& path)
{
    if (!QFileInfo::exists(path) || !projectfile::hasChanged(path, session.stamp))
        return true;
    const QString time = QLocale().toString(QFileInfo(path).lastModified(), QLocale::ShortFormat);
    const QString text = session.isRecovered ? tr("\"%1\" has been there since %2, before the project was recovered.")
                                             : tr("\"%1\" has been changed by another program, on %2.");
    return ask(m_mainWindow, QMessageBox::Warning, tr("Save project"), text.arg(shown(path), time),
               tr("What is in the file now is lost when it is replaced."),
               {{tr("&Replace"), QMessageBox::AcceptRole}, {tr("Cancel"), QMessageBox::RejectRole}}) == 0;
}

std::vector<QPointer<Gui::MDIWindow>> ProjectFiles::changedEditors(const Obj::Project& project) const
{
    std::vector<QPointer<Gui::MDIWindow>> editors;
    for (Gui::MDIWindow* const window : m_mainWindow.get_mdi_windows())
        if (window->isWindowModified() && window->get_gui_project() != nullptr &&
            &window->get_gui_project()->get_project() == &project)
            editors.emplace_back(window);
    return editors;
}

bool ProjectFiles::applyEditors(const Obj::Project& project)
{
    // Each question runs the event loop, and an editor may go meanwhile.
    for (const QPointer<Gui::MDIWindow>& editor : changedEditors(project)) {
        if (editor == nullptr)
            continue;
        m_mainWindow.set_active_mdi_window(editor);
        const QString title = editor->windowTitle().remove(QStringLiteral("[*]"));
        const int choice = ask(m_mainWindow, QMessageBox::Question, tr("Save project"),
                               tr("The changes of \"%1\" in its editor have not been applied.").arg(title),
                               tr("Only what has been applied is saved."),
                               {{tr("&Apply"), QMessageBox::AcceptRole},
                                {tr("&Save without them"), QMessageBox::DestructiveRole},
                                {tr("Cancel"), QMessageBox::RejectRole}});
        if (choice == 2)
            return false;
        if (choice == 1)
            continue;
        // The editor applies as if the user had pressed its button, and says itself what cannot be applied.
        auto* const apply =
            editor != nullptr ? editor->findChild<QAbstractButton*>(QStringLiteral("btnApply")) : nullptr;
        if (apply != nullptr)
            apply->click();
        if (editor != nullptr && editor->isWindowModified())
            return false;
    }
    return true;
}

bool ProjectFiles::mayClose(Obj::Project& project)
{
    Mat::DocumentMaterial* const materials = asMaterials(&project);
    const bool hasChanges = is_modified(project);
    const bool hasEditors = !changedEditors(project).empty();
    if (materials == nullptr || (!hasChanges && !hasEditors))
        return true;
    const int choice =
        ask(m_mainWindow, QMessageBox::Question, tr("Unsaved changes"),
            hasChanges ? tr("The changes of the project \"%1\" have not been saved.").arg(nameOf(project))
                       : tr("Changes in open editors have not been applied."),
            hasChanges && hasEditors ? tr("Changes in open editors have not been applied.") : QString(),
            {{tr("&Save"), QMessageBox::AcceptRole},
             {tr("&Discard"), QMessageBox::DestructiveRole},
             {tr("Cancel"), QMessageBox::RejectRole}});
    return choice == 0 ? save(*materials) : choice == 1;
}

bool ProjectFiles::may_end()
{
    const std::vector<Obj::Project*> projects = Obj::Application::get_projects();
    return std::all_of(projects.begin(), projects.end(), [this](Obj::Project* project) { return mayClose(*project); });
}

void ProjectFiles::keepCopies()
{
    for (Obj::Project* const project : Obj::Application::get_projects()) {
        Session* const session = find(*project);
        Mat::DocumentMaterial* const materials = asMaterials(project);
        if (session == nullptr || materials == nullptr || !session->isModified || !session->isCopyDue)
            continue;
        try {
            projectfile::ProjectRecord record = makeRecord(*materials, session->further);
            record.recoveredFile = session->path.toStdString();
            const std::string text = projectfile::writeProject(record);
            auto first = session->copy == nullptr ? std::make_unique<RecoveryCopy>() : nullptr;
            (first != nullptr ? *first : *session->copy).write(text);
            if (first != nullptr)
                session->copy = std::move(first);
            session->isCopyDue = false;
        } catch (const std::exception& error) {
            // Asked for by nobody, so it does not interrupt either.
            Kelta::MessageLog::warning(
                tr("No copy for recovery could be kept: %1").arg(QString::fromUtf8(error.what())));
        }
    }
}

void ProjectFiles::forgetCopy(Session& session)
{
    session.isCopyDue = false;
    if (session.copy != nullptr)
        session.copy->remove();
    session.copy.reset();
}

void ProjectFiles::offer_recovery()
{
    std::vector<RecoveryCopy> copies = RecoveryCopy::findAbandoned();
    if (copies.empty())
        return;
    QStringList times;
    for (const RecoveryCopy& copy : copies)
        times << QLocale().toString(copy.time(), QLocale::ShortFormat);
    const int choice =
        ask(m_mainWindow, QMessageBox::Question, tr("Recovery"), tr("The program ended before projects were saved."),
            tr("There are copies from %1.").arg(times.join(QStringLiteral(", "))),
            {{tr("&Recover"), QMessageBox::AcceptRole},
             {tr("&Discard"), QMessageBox::DestructiveRole},
             {tr("Later"), QMessageBox::RejectRole}});
    for (RecoveryCopy& copy : copies)
        if (choice == 1 || (choice == 0 && recover(copy)))
            copy.remove();
}

bool ProjectFiles::recover(RecoveryCopy& copy)
{
    try {
        projectfile::ProjectRecord record = projectfile::readProject(copy.read());
        FurtherMembers further;
        const Obj::Project* const project = openRecord(record, further);
        if (project == nullptr)
            return false;
        Session& session = *find(*project);
        const QString path = QString::fromStdString(record.recoveredFile.value_or(std::string()));
        // Of two copies of a file one alone can go back into it.
        if (!path.isEmpty() && findOpen(path) == nullptr) {
            session.path = path;
            takeLock(session);
        }
        session.further = std::move(further);
        session.isRecovered = true;
        session.isModified = true;
        session.isCopyDue = true;
        // The old copy goes only when there is a new one.
        keepCopies();
        m_mainWindow.update_commands();
        return !session.isCopyDue;
    } catch (const std::exception& error) {
        complain(tr("Recovery"), tr("\"%1\" cannot be recovered.").arg(shown(copy.path())) + QLatin1Char('\n') +
                                     QString::fromUtf8(error.what()));
    }
    return false;
}

bool ProjectFiles::importDocument(Mat::DocumentMaterial& project, const QString& path)
{
    try {
        const Busy busy;
        const ImportOutcome outcome = kelta::importDocument(project, path);
        warn(path, outcome.doubts);
        Gui::TreeSelectionSingleton::instance().set_selection({}, outcome.objects);
        m_mainWindow.statusBar()->showMessage(tr("Materials imported: %1").arg(outcome.objects.size()), 5000);
        return true;
    } catch (const std::exception& error) {
        complain(tr("Import"), QString::fromUtf8(error.what()));
    }
    return false;
}

QStringList ProjectFiles::recentFiles()
{
    return QSettings().value(QLatin1String(recentKey)).toStringList();
}

void ProjectFiles::remember(const QString& path)
{
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    QSettings().setValue(QLatin1String(recentKey), QStringList(files.mid(0, recentCount)));
}

void ProjectFiles::forget(const QString& path)
{
    QStringList files = recentFiles();
    if (files.removeAll(path) != 0)
        QSettings().setValue(QLatin1String(recentKey), files);
}

void ProjectFiles::complain(const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok, &m_mainWindow);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace kelta
