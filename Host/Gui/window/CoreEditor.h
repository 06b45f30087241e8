#pragma once

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace Gui {

class GuiApplication;
class MainWindow;

/// Opens the window that the object names as its editor, or brings it to the front if it is open. Returns false if the
/// object names none. An editor that no module has registered is reported to the message log.
bool openCoreEditor(MainWindow& mainWindow, GuiApplication& application, Obj::ProjectObject& object);

} // namespace Gui
