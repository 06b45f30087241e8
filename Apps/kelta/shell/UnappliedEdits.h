#pragma once

#include "kelta/KeltaShellExport.h"

#include <QPointer>
#include <QString>

#include <vector>

namespace Gui {
class MDIWindow;
class MainWindow;
} // namespace Gui

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

/// Returns the document windows of a project that have unapplied edits, typed text included. Ends edits in
/// progress.
KELTA_SHELL_EXPORT std::vector<QPointer<Gui::MDIWindow>> findUnapplied(const Gui::MainWindow& mainWindow,
                                                                       const Obj::Project& project);

/// The texts of a question about edits that are not applied.
struct UnappliedQuestion
{
    QString title;   ///< of the box
    QString details; ///< the consequence of continuing without the edits
    QString without; ///< text of the button that continues without the edits
};

/// Asks the user about each window of findUnapplied: applies its edits, continues without them, or stops. Returns false
/// if the user stops, or if a window cannot apply its edits; the window then tells the user the reason. The project may
/// have been closed while the user answered.
KELTA_SHELL_EXPORT bool askToApply(Gui::MainWindow& mainWindow, const Obj::Project& project,
                                   const UnappliedQuestion& question);

} // namespace desktop
