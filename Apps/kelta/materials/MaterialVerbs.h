#pragma once

namespace desktop {

/// Adds the verbs about materials to Batch: "use", "set", "clear", "check" and "cards". Adds "Mat_Check", "Mat_NewDoc",
/// "Mat_Export", "Mat_ExportDeck", "Mat_Import", "Mat_Edit", "Mat_Delete" and "Mat_DelDoc" too, which replace the commands of
/// these names in lists: they fail with a reason if the commands would ask the user or would do nothing.
void registerMaterialVerbs();

} // namespace desktop
