#pragma once

#include <QString>

namespace Gui {
class GuiApplication;
} // namespace Gui

namespace desktop {

class ProjectFiles;

/// Adds the help to the program: a dock with the guide, and the commands "Std_Help" (the guide), "Std_Keys" (the keys of
/// the commands) and "Std_OpenExample" (a copy of the example project). `files` opens the example, and must outlive the
/// window. Must be called once.
void addHelp(Gui::GuiApplication& application, ProjectFiles& files);

/// Returns the path of an installed file of the program, such as "doc/vxMaterial/kelta.md", in the build tree and in an
/// installation.
QString sharedFile(const QString& path);

} // namespace desktop
