#pragma once

namespace Gui {
class CommandController;
} // namespace Gui

namespace desktop {

/// Adds questions and reports to commands of the materials module. The module itself does not ask or report:
/// - "Mat_NewDoc" asks whether to close the open material project first, since only one can be used at a time.
/// - Opening a material project from a file asks the same.
/// - "Mat_Export" asks about edits that are not applied, and before it replaces the file of an open project. It says why
///   a project cannot be exported, and reports afterwards which data was written and which was not.
/// - "Mat_Edit" can be run only while a material is selected. It asks before it opens more than ten editors, and refuses
///   more than a hundred.
/// - "Std_Delete" of the host runs "Mat_Delete" if only materials are selected.
/// Must be called once, after the commands are registered.
void addMaterialGuards(Gui::CommandController& commands);

} // namespace desktop
