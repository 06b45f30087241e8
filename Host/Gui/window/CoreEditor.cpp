#include "window/CoreEditor.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"
#include "Obj/ProjectObject.h"

#include <memory>

namespace Gui {

namespace {

/// Returns null, with the reason in the message log, if there is no such window.
MDIWindow* makeEditor(MainWindow& mainWindow, GuiProject& project, Obj::ProjectObject& object, const char* className)
{
    std::unique_ptr<Kelta::RootClass> created = Kelta::RootClass::createByName(className);
    auto* const window = dynamic_cast<MDIWindow*>(created.get());
    if (window == nullptr) {
        Kelta::MessageLog::error(
            QCoreApplication::translate(
                "Gui::CoreEditor",
                R"("%1" cannot be opened: its editor "%2" is missing. The module of the editor may not be loaded.)")
                .arg(QString::fromStdString(object.label.getValue()), QString::fromUtf8(className)));
        return nullptr;
    }
    window->editObject(project, object);
    created.release(); // NOLINT(bugprone-unused-return-value): the main window owns it
    mainWindow.add_mdi_window(window);
    return window;
}

} // namespace

bool openCoreEditor(MainWindow& mainWindow, GuiApplication& application, Obj::ProjectObject& object)
{
    const char* const className = object.getCoreEditor();
    GuiProject* const project = application.get_project(object.get_project());
    if (className == nullptr || *className == '\0' || project == nullptr)
        return false;
    MDIWindow* window = mainWindow.editorOf(object);
    if (window == nullptr)
        window = makeEditor(mainWindow, *project, object, className);
    mainWindow.set_active_mdi_window(window);
    return true;
}

} // namespace Gui
