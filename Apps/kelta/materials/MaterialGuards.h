#pragma once

namespace Gui {
class CommandController;
} // namespace Gui

namespace desktop {

/// Puts the application's questions and reports around commands of the materials module, which asks and reports nothing:
/// - "Mat_NewDoc" asks to close the open material project first, since only one can be used at a time.
/// - "Mat_Export" asks about edits that are not applied, says why a project cannot be exported, and tells afterwards what
///   was written and what was not.
/// - "Mat_Edit" asks before it opens more than ten editors, and refuses more than a hundred.
/// - "Std_Delete" of the host runs "Mat_Delete" if materials alone are selected.
/// To be called once, after the commands are registered.
void addMaterialGuards(Gui::CommandController& commands);

} // namespace desktop
