#pragma once

namespace kelta {

/// Adds the verbs about materials to lists of commands: "use", "set", "check", "collect" and "cards".
void registerMaterialVerbs();

} // namespace kelta
