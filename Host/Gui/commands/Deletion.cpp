#include "commands/Deletion.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QMessageBox>

#include <algorithm>
#include <string>
#include <vector>

namespace Gui {

namespace {

/// The maximum number of objects that a question names.
constexpr int mostNames = 10;

QString tr(const char* text)
{
    return QCoreApplication::translate("StandardCommand", text);
}

bool needsSelected(const Obj::ProjectObject& object, const TreeSelectionSingleton& selection)
{
    const std::vector<Obj::ProjectObject*> needed = object.getNeededObjects();
    return std::any_of(needed.begin(), needed.end(),
                       [&selection](const auto* other) { return selection.is_selected(other, nullptr); });
}

/// Returns the quoted labels of the objects that need a selected object and are not selected themselves.
QStringList labelsOfNeedy(const TreeSelectionSingleton& selection)
{
    QStringList labels;
    for (const Obj::Project* const project : Obj::Application::get_projects())
        for (const Obj::ProjectObject* const object : project->getObjects())
            if (!selection.is_selected(object, nullptr) && needsSelected(*object, selection))
                labels << QStringLiteral("\"%1\"").arg(QString::fromStdString(object->label.getValue()));
    return labels;
}

QString listOf(const QStringList& labels)
{
    const QString first = QStringList(labels.mid(0, mostNames)).join(QStringLiteral(", "));
    return labels.size() <= mostNames ? first : tr("%1 and %2 more").arg(first).arg(labels.size() - mostNames);
}

bool mayDelete(const TreeSelectionSingleton& selection)
{
    const QStringList needy = labelsOfNeedy(selection);
    if (needy.isEmpty())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Delete objects"),
                    tr("These objects refer to the objects to be deleted, and lose the references: %1.\nDelete anyway?")
                        .arg(listOf(needy)),
                    QMessageBox::Yes | QMessageBox::No, MainWindow::get_main_window_inst());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void deleteEntry(vxMsg::MessageProxy& requests, const CSelectionType& entry)
{
    // The deletion of one object may delete another object, or close the project.
    Obj::ProjectObject* const object = entry.get_object();
    if (object == nullptr)
        return;
    ViewFeeder* const node = GuiApplication::Instance->get_view_feeder(object);
    if (node == nullptr || node->onDelete(entry.getSubelementNames()))
        requests.deleteObject(entry.getProjectName(), entry.getObjectName());
}

std::vector<const Obj::Project*> projectsToClose(const TreeSelectionSingleton& selection)
{
    const std::vector<Obj::Project*> selected = selection.get_projects();
    std::vector<const Obj::Project*> projects(selected.begin(), selected.end());
    if (!projects.empty())
        return projects;
    for (const Obj::ProjectObject* const object : selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId()))
        if (projects.empty() || projects.back() != object->get_project())
            projects.push_back(object->get_project());
    if (projects.empty() && Obj::Application::get_current_project() != nullptr)
        projects.push_back(Obj::Application::get_current_project());
    return projects;
}

} // namespace

void deleteSelected(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection)
{
    const auto entries = selection.get_selection2(nullptr, Obj::ProjectObject::getClassTypeId());
    if (!mayDelete(selection))
        return;
    for (const CSelectionType& entry : entries)
        deleteEntry(requests, entry);
}

void closeSelected(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection)
{
    std::vector<std::uint32_t> projectIds;
    for (const Obj::Project* const project : projectsToClose(selection))
        projectIds.push_back(project->getProjectId());
    for (const std::uint32_t projectId : projectIds) {
        // The project may be closed while the user replies to a question about another project.
        const Obj::Project* const project = Obj::Application::instance().get_project(projectId);
        if (project != nullptr && !requests.closeProject(project->get_name()))
            return;
    }
}

} // namespace Gui
