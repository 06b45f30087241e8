#pragma once

namespace desktop {

/// Makes the files, the clipboard and the recovery of the application carry materials, and adds the import of exchange
/// documents to material projects. To be called after the classes of materials are registered, and once.
void registerMaterialFiles();

} // namespace desktop
