#pragma once

#include <QPointer>
#include <QString>

#include <vector>

namespace Gui {
class MDIWindow;
} // namespace Gui

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

/// Returns the editors of a project's objects that have edits which are not applied, typed text included; none without a
/// main window. Ends edits in progress.
std::vector<QPointer<Gui::MDIWindow>> findUnapplied(const Obj::Project& project);

/// The texts of a question about edits that are not applied.
struct UnappliedQuestion
{
    QString title;   ///< of the box
    QString details; ///< what happens without them
    QString without; ///< text of the button that continues without them
};

/// Asks the user about each editor of findUnapplied: applies its edits, continues without them, or stops. Returns false if
/// the user stops, or if an editor refuses to apply its edits, after it has told the user the reason.
bool askToApply(const Obj::Project& project, const UnappliedQuestion& question);

} // namespace desktop
