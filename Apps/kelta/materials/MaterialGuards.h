#pragma once

namespace Gui {
class CommandController;
} // namespace Gui

namespace desktop {

/// Adds questions and reports to commands of the materials module, which itself neither asks nor reports:
/// - "Mat_NewDoc" asks whether to close the open material project first, since only one can be used at a time.
/// - "Mat_Export" asks about edits that are not applied, says why a project cannot be exported, and reports afterwards
///   what was written and what was not.
/// - "Mat_Edit" asks before it opens more than ten editors, and refuses more than a hundred.
/// - "Std_Delete" of the host runs "Mat_Delete" if materials alone are selected.
/// To be called once, after the commands are registered.
void addMaterialGuards(Gui::CommandController& commands);

} // namespace desktop
