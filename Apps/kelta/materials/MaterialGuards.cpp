#include "MaterialGuards.h"

#include "FileReplacing.h"
#include "MaterialExport.h"
#include "MaterialProjects.h"

#include "Gui/CommandController.h"
#include "Gui/FileDialog.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "kelta/OpeningGuard.h"
#include "kelta/UnappliedEdits.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QDir>
#include <QMessageBox>

#include <algorithm>

namespace desktop {

namespace {

using Run = std::function<void()>;

constexpr std::ptrdiff_t mostUnasked = 10;
constexpr std::ptrdiff_t mostAtOnce = 100;

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::MaterialGuards", text);
}

/// Shows a box. Return takes its preferred button.
int showBox(QMessageBox::Icon icon, const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
            QMessageBox::StandardButton preferred)
{
    QMessageBox box(icon, title, text, buttons, Gui::MainWindow::get_main_window_inst());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(preferred);
    return box.exec();
}

/// Asks a question. Return, which users press by habit, means No.
bool confirm(const QString& title, const QString& text)
{
    return showBox(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

void refuse(const QString& title, const QString& text)
{
    showBox(QMessageBox::Warning, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

/// Closes the open material projects and asks about changes that are not saved. Returns whether all are closed.
bool closeProjects()
{
    for (const Obj::Project* const project : materialProjects())
        if (!vxMsg::MessageProxy::instance().closeProject(project->get_name()))
            return false;
    return materialProjects().empty();
}

/// Asks whether to close the open material project before another is opened from a file.
bool mayOpen(const QString& path)
{
    const auto open = materialProjects();
    return open.empty() ||
           (consent({tr("Open project"),
                     tr(R"(Only one material project can be used at a time. Close "%1" and open "%2"?)")
                         .arg(QString::fromUtf8(open.front()->get_name()), QDir::toNativeSeparators(path))},
                    tr("&Close and open"), *Gui::MainWindow::get_main_window_inst()) &&
            closeProjects());
}

void guardNewProject(const Run& run)
{
    const auto open = materialProjects();
    const bool mayRun =
        open.empty() || (confirm(tr("New material project"),
                                 tr("Only one material project can be used at a time. Close \"%1\" and make a new one?")
                                     .arg(QString::fromUtf8(open.front()->get_name()))) &&
                         closeProjects());
    if (mayRun)
        run();
}

/// Asks for the file with the same dialog as the command, and passes the file to the command.
QString askForFile()
{
    constexpr const char* context = "CmdMatExport";
    return Gui::FileDialog::getSaveFileName(Gui::MainWindow::get_main_window_inst(),
                                            QCoreApplication::translate(context, "Export materials"), {},
                                            QCoreApplication::translate(context, "JSON file(*.json)") +
                                                QStringLiteral(";;") + QStringLiteral("All files(*.*)"));
}

/// Returns the reason if no file can be exported under any name; an empty text otherwise.
QString findObstacle()
{
    const auto open = materialProjects();
    if (open.empty())
        return tr("No material project is open. Open one, then export it.");
    if (open.size() > 1)
        return tr("Material projects that are open: %1. Only one project can be exported. Close the other projects "
                  "first.")
            .arg(open.size());
    return {};
}

void exportTo(const QString& path, const Mat::DocumentMaterial& project, const Run& run)
{
    const std::uint32_t projectId = project.getProjectId();
    Gui::FileDialog::answerNext(path);
    run();
    if (const Obj::Project* const exported = Obj::Application::instance().get_project(projectId))
        reportExport(static_cast<const Mat::DocumentMaterial&>(*exported), path);
}

void guardExport(const Run& run)
{
    const QString title = tr("Export materials");
    Gui::MainWindow& mainWindow = *Gui::MainWindow::get_main_window_inst();
    if (const QString obstacle = findObstacle(); !obstacle.isEmpty())
        return refuse(title, obstacle);
    const std::uint32_t projectId = materialProjects().front()->getProjectId();
    if (!askToApply(mainWindow, *materialProjects().front(),
                    {title, tr("The export contains only applied changes."), tr("&Export without them")}))
        return;
    const QString path = askForFile();
    // The project may have been closed while the user answered.
    const auto open = materialProjects();
    if (path.isEmpty() || open.size() != 1 || open.front()->getProjectId() != projectId)
        return;
    for (const QString& obstacle : {findExportObstacle(*open.front()), findWriteObstacle(path)})
        if (!obstacle.isEmpty())
            return refuse(title, obstacle);
    if (!mayReplace(path, {title, tr("Replace it by an exchange document?")}, mainWindow) ||
        Obj::Application::instance().get_project(projectId) == nullptr)
        return;
    exportTo(path, *open.front(), run);
}

/// Returns the number of editors that the command would open.
std::ptrdiff_t countNewEditors()
{
    const auto selected =
        Gui::TreeSelectionSingleton::instance().get_objects_of_type(Mat::MaterialObject::getClassTypeId());
    // Does not subtract editors that are open already, because searching them would take too long.
    if (static_cast<std::ptrdiff_t>(selected.size()) > 2 * mostAtOnce)
        return static_cast<std::ptrdiff_t>(selected.size());
    const Gui::MainWindow& mainWindow = *Gui::MainWindow::get_main_window_inst();
    return std::count_if(selected.begin(), selected.end(), [&mainWindow](const Obj::ProjectObject* object) {
        return mainWindow.editorOf(*object) == nullptr;
    });
}

void guardEdit(const Run& run)
{
    const QString title = tr("Edit materials");
    const std::ptrdiff_t count = countNewEditors();
    if (count > mostAtOnce)
        return refuse(title, tr("Materials selected: %1. At most %2 can be opened at a time. Select fewer.")
                                 .arg(QString::number(count), QString::number(mostAtOnce)));
    if (count <= mostUnasked || confirm(title, tr("Open %1 editors?").arg(count)))
        run();
}

bool areOnlyMaterialsSelected()
{
    const Gui::TreeSelectionSingleton& selection = Gui::TreeSelectionSingleton::instance();
    return selection.get_objects_of_type(Mat::MaterialObject::getClassTypeId()).size() ==
           selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId()).size();
}

/// Materials are deleted by the command of their module, with its own question.
void guardDelete(Gui::CommandController& commands, const Run& run)
{
    if (areOnlyMaterialsSelected())
        commands.runCommand("Mat_Delete");
    else
        run();
}

} // namespace

void addMaterialGuards(Gui::CommandController& commands)
{
    commands.addGuard("Mat_NewDoc", guardNewProject);
    registerOpeningGuard("Mat::DocumentMaterial", mayOpen);
    commands.addGuard("Mat_Export", guardExport);
    commands.addGuard("Mat_Edit", guardEdit);
    commands.addCondition("Mat_Edit", isMaterialSelected);
    commands.addGuard("Std_Delete", [&commands](const Run& run) { guardDelete(commands, run); });
}

} // namespace desktop
