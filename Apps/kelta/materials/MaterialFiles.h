#pragma once

namespace desktop {

/// Registers the storage of materials in project files, the clipboard and copies for recovery. Registers the import of
/// exchange documents into material projects. Must be called once, after the classes of materials are registered.
void registerMaterialFiles();

} // namespace desktop
