#pragma once

namespace desktop {

/// Registers how project files, the clipboard and copies for recovery store materials, and the import of exchange documents
/// into material projects. To be called once, after the classes of materials are registered.
void registerMaterialFiles();

} // namespace desktop
