#pragma once

namespace kelta {

/// Loads the plug-in and the side of the application that knows it, and makes the materials workbench the active one.
/// What cannot be loaded is reported to the message log; the program then goes on with the standard workbench.
bool loadMaterials();

/// Lets go of all that the plug-in made, while the plug-in is still there.
void shutDown();

} // namespace kelta
