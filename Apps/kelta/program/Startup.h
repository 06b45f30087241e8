#pragma once

namespace kelta {

/// Loads all modules and makes the materials workbench the active one. Returns whether there is the materials module.
/// What cannot be loaded is reported to the message log; the program then shows the standard workbench.
bool loadMaterials();

/// Lets go of all that the plug-in made, while the plug-in is still there.
void shutDown();

} // namespace kelta
