#pragma once

#include "kelta/KeltaShellExport.h"

#include <QPointer>
#include <QString>
#include <json/value.h>

#include <vector>

namespace Gui {
class MDIWindow;
class MainWindow;
} // namespace Gui

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace desktop {

/// Returns the document windows of a project that have unapplied edits, typed text included. Ends edits in
/// progress.
KELTA_SHELL_EXPORT std::vector<QPointer<Gui::MDIWindow>> findUnapplied(const Gui::MainWindow& mainWindow,
                                                                       const Obj::Project& project);

/// Returns the unapplied edits of the document windows of a project as a record for showUnapplied: an array with an
/// element {"object_id": 4, "edits": ...} for each window, where "edits" is the result of MDIWindow::unappliedEdits.
/// Returns null if there are none. Does not end edits in progress.
KELTA_SHELL_EXPORT Json::Value recordUnapplied(const Gui::MainWindow& mainWindow, const Obj::Project& project);

/// Shows edits from a record of MDIWindow::unappliedEdits or MDIWindow::editSteps in the editor of an object, which it
/// opens if it is not open. Returns false if the object has no editor, or if the record is not valid.
KELTA_SHELL_EXPORT bool showEdits(Obj::ProjectObject& object, const Json::Value& edits);

/// Shows the edits of a record of recordUnapplied in the editors of the project's objects. Reports each object to the
/// message log: as information if its edits are shown, and as a warning if they cannot be shown.
KELTA_SHELL_EXPORT void showUnapplied(const Obj::Project& project, const Json::Value& record);

/// The texts of a question about edits that are not applied.
struct UnappliedQuestion
{
    QString title;   ///< of the box
    QString details; ///< the consequence of continuing without the edits
    QString without; ///< text of the button that continues without the edits
};

/// Applies the edits of each window of findUnapplied, without a question. Returns false if a window cannot apply its edits;
/// it is then in front, and has told the user the reason.
KELTA_SHELL_EXPORT bool applyAll(Gui::MainWindow& mainWindow, const Obj::Project& project);

/// Asks the user about each window of findUnapplied: applies its edits, continues without them, or stops. Returns false
/// if the user stops, or if a window cannot apply its edits; the window then tells the user the reason. The project may
/// have been closed while the user answered.
KELTA_SHELL_EXPORT bool askToApply(Gui::MainWindow& mainWindow, const Obj::Project& project,
                                   const UnappliedQuestion& question);

} // namespace desktop
