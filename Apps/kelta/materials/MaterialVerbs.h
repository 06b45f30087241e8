#pragma once

namespace desktop {

/// Adds the verbs about materials to lists of commands: "use", "set", "clear", "check", "collect" and "cards"; and
/// "Mat_Check", "Mat_NewDoc" and "Mat_Export", which are used in place of the commands of these names: they fail with a
/// reason where the commands ask the user.
void registerMaterialVerbs();

} // namespace desktop
