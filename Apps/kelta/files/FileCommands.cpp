#include "FileCommands.h"

#include "ProjectFiles.h"
#include "RecentFiles.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/Contributions.h"
#include "Gui/FileDialog.h"
#include "Gui/MainWindow.h"
#include "Gui/WindowTitle.h"
#include "Obj/Application.h"
#include "kelta/Batch.h"
#include "kelta/DocumentImport.h"
#include "kelta/FileService.h"
#include "kelta/UnappliedEdits.h"

#include <QDir>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QMenu>

#include <cstdint>
#include <functional>
#include <optional>

namespace desktop {

namespace {

constexpr const char* context = "FileCommand";

bool hasProject()
{
    return Obj::Application::get_current_project() != nullptr;
}

/// Returns whether the module of the current project imports documents.
bool canImport()
{
    return hasProject() && findDocumentImport(Obj::Application::get_current_project()->getTypeId()) != nullptr;
}

QString askForFile(const char* title, const QString& filter)
{
    return Gui::FileDialog::getOpenFileName(Gui::MainWindow::get_main_window_inst(),
                                            QCoreApplication::translate(context, title), {}, filter);
}

void open(ProjectFiles& files)
{
    const QString path = askForFile(QT_TRANSLATE_NOOP("FileCommand", "Open project"),
                                    QCoreApplication::translate(context, "Project (*.vxmat)") + QStringLiteral(";;") +
                                        QCoreApplication::translate(context, "All files (*)"));
    if (!path.isEmpty())
        files.open(path);
}

void importDocument(ProjectFiles& files)
{
    Obj::Project* const project = Obj::Application::get_current_project();
    QStringList filters = documentFilters(project->getTypeId());
    if (filters.isEmpty())
        filters << QCoreApplication::translate(context, "Exchange document (*.json)");
    filters << QCoreApplication::translate(context, "All files (*)");
    const QString path =
        askForFile(QT_TRANSLATE_NOOP("FileCommand", "Import document or deck"), filters.join(QStringLiteral(";;")));
    // The project may have been closed while the dialog was open.
    if (!path.isEmpty() && project == Obj::Application::get_current_project())
        files.importDocument(*project, path);
}

void openLatest(ProjectFiles& files)
{
    const QStringList paths = RecentFiles::list();
    if (!paths.isEmpty())
        files.open(paths.front());
}

/// Adds an entry for each recent file. The digits 1 to 9 choose the first nine.
void listRecentFiles(ProjectFiles& files, QMenu& menu)
{
    const QStringList paths = RecentFiles::list();
    for (int index = 0; index < paths.size(); ++index) {
        const QString text = Gui::escapedForMnemonics(QDir::toNativeSeparators(paths[index]));
        const QString number = index < 9 ? QStringLiteral("&%1 ").arg(index + 1) : QString();
        QObject::connect(menu.addAction(number + text), &QAction::triggered, &menu,
                         [&files, path = paths[index]] { files.open(path); });
    }
}

/// Returns the latest files, with their folders.
std::vector<Gui::WelcomeLink> recentLinks(ProjectFiles& files)
{
    constexpr int most = 5;
    std::vector<Gui::WelcomeLink> links;
    for (const QString& path : RecentFiles::list().mid(0, most)) {
        const QFileInfo file(path);
        const QString folder = QFontMetrics(QGuiApplication::font())
                                   .elidedText(QDir::toNativeSeparators(file.path()), Qt::ElideMiddle, 300);
        links.push_back({QStringLiteral("%1  (%2)").arg(file.fileName(), folder), QDir::toNativeSeparators(path),
                         [&files, path] { files.open(path); }});
    }
    return links;
}

/// Asks about edits that are not applied before the command hands the current project over.
void guardHandOver(const std::function<void()>& run)
{
    const Obj::Project& project = *Obj::Application::get_current_project();
    const std::uint32_t projectId = project.getProjectId();
    if (!askToApply(*Gui::MainWindow::get_main_window_inst(), project,
                    {QCoreApplication::translate(context, "Hand over to the solver"),
                     QCoreApplication::translate(context, "Only what has been applied is handed over."),
                     QCoreApplication::translate(context, "&Hand over without them")}))
        return;
    // The project may have been closed while the user answered.
    const Obj::Project* const current = Obj::Application::get_current_project();
    if (current != nullptr && current->getProjectId() == projectId)
        run();
}

/// Saves the current project in a list of commands, where nobody can be asked before another file is replaced.
std::optional<QString> saveInList(const QString& command, const QStringList& arguments)
{
    const Obj::Project* const project = Obj::Application::get_current_project();
    const QFileInfo file(arguments.value(0));
    if (project != nullptr && file.isFile() && file.canonicalFilePath() != FileService::instance()->getFile(*project))
        return QCoreApplication::translate(context, "\"%1\" exists already. A list of commands does not replace other "
                                                    "files; delete the file, or give another name.")
            .arg(QDir::toNativeSeparators(arguments[0]));
    return Batch::invokeCommand(command, arguments);
}

std::vector<Gui::CommandRow> makeRows(ProjectFiles& files)
{
    constexpr int none = Gui::CommandType::none;
    return {
        {"Std_Open", QT_TRANSLATE_NOOP("FileCommand", "&Open..."),
         QT_TRANSLATE_NOOP("FileCommand", "Open a project from a file"), "kelta_open", QKeySequence::Open, none,
         [&files] { open(files); }},
        {"Std_Save", QT_TRANSLATE_NOOP("FileCommand", "&Save"),
         QT_TRANSLATE_NOOP("FileCommand", "Save the project in its file"), "kelta_save", QKeySequence::Save, none,
         [&files] { files.save(*Obj::Application::get_current_project()); }, hasProject},
        {"Std_SaveAs", QT_TRANSLATE_NOOP("FileCommand", "Save &as..."),
         QT_TRANSLATE_NOOP("FileCommand", "Save the project in another file"), "", Qt::CTRL + Qt::SHIFT + Qt::Key_S,
         none, [&files] { files.saveAs(*Obj::Application::get_current_project()); }, hasProject},
        {"Std_ImportDocument",
         QT_TRANSLATE_NOOP("FileCommand", "I&mport document or deck..."),
         QT_TRANSLATE_NOOP("FileCommand",
                           "Add the content of an exchange document or of the deck of a solver to the project"),
         "kelta_import",
         {},
         none,
         [&files] { importDocument(files); },
         canImport},
        {"Std_OpenRecent",
         QT_TRANSLATE_NOOP("FileCommand", "Open &recent"),
         QT_TRANSLATE_NOOP("FileCommand", "Open one of the projects last used"),
         "",
         {},
         none,
         [&files] { openLatest(files); },
         [] { return !RecentFiles::list().isEmpty(); },
         {},
         [&files](QMenu& menu) { listRecentFiles(files, menu); }},
    };
}

} // namespace

void addFileCommands(Gui::CommandController& commands, ProjectFiles& files)
{
    Gui::addCommands(commands, context, makeRows(files));
    commands.addGuard("Std_Collect", guardHandOver);
    for (const QString& name : {QStringLiteral("Std_Save"), QStringLiteral("Std_SaveAs")})
        Batch::registerVerb(name, [name](const QStringList& arguments) { return saveInList(name, arguments); });
}

void listRecentFilesOnWelcomePage(Gui::Contributions& contributions, ProjectFiles& files)
{
    contributions.addWelcomeList({Gui::WelcomeStep::NoProject,
                                  {context, QT_TRANSLATE_NOOP("FileCommand", "Recent projects")},
                                  [&files] { return recentLinks(files); }});
}

} // namespace desktop
