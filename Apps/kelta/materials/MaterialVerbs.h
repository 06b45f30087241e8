#pragma once

namespace desktop {

/// Adds the verbs about materials to Batch: "use", "set", "clear", "check" and "cards". Adds "Mat_Check", "Mat_NewDoc"
/// and "Mat_Export" too, which replace the commands of these names in lists: they fail with a reason if the commands
/// would ask the user.
void registerMaterialVerbs();

} // namespace desktop
