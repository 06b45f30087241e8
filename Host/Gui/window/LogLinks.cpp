#include "window/LogLinks.h"

#include "Gui/GuiApplication.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"

#include <QListWidget>
#include <QStatusBar>

namespace Gui {

namespace {

enum LinkRole : int
{
    ProjectRole = Qt::UserRole + 10,
    ObjectRole,
    PartRole,
};

QString tr(const char* text)
{
    return QCoreApplication::translate("Gui::MessageLogView", text);
}

Kelta::LogLink linkOf(const QListWidgetItem& line)
{
    return {line.data(ProjectRole).toUInt(), line.data(ObjectRole).toUInt(), line.data(PartRole).toInt()};
}

Obj::ProjectObject* findObject(const Kelta::LogLink& link)
{
    const Obj::Project* const project = Obj::Application::instance().get_project(link.projectId);
    return project != nullptr ? project->get_object(link.objectId) : nullptr;
}

void show(Obj::ProjectObject& object, int part)
{
    MainWindow& window = *MainWindow::get_main_window_inst();
    TreeSelectionSingleton::instance().setSelection({}, {&object});
    if (ViewFeeder* const node = GuiApplication::Instance->get_view_feeder(&object))
        node->setEdit(0);
    MDIWindow* const editor = window.editorOf(object);
    if (editor == nullptr)
        return;
    window.set_active_mdi_window(editor);
    if (part != 0)
        editor->showRow(part);
}

} // namespace

void setLink(QListWidgetItem& line, const Kelta::LogLink& link)
{
    if (!link.isSet())
        return;
    line.setData(ProjectRole, link.projectId);
    line.setData(ObjectRole, link.objectId);
    line.setData(PartRole, link.part);
    line.setToolTip(tr("Double-click the message, or press Return, to go to the object."));
}

void followLinksOf(QListWidget& list)
{
    QObject::connect(&list, &QListWidget::itemActivated, &list, [](const QListWidgetItem* line) {
        const Kelta::LogLink link = linkOf(*line);
        if (link.isSet())
            Kelta::guarded(tr("The object of a message cannot be shown"), [&link] { followLink(link); });
    });
}

void followLink(const Kelta::LogLink& link)
{
    MainWindow* const window = MainWindow::get_main_window_inst();
    if (window == nullptr)
        return;
    if (Obj::ProjectObject* const object = findObject(link))
        show(*object, link.part);
    else
        window->statusBar()->showMessage(tr("The object of this message has been deleted or closed."), 10000);
}

} // namespace Gui
