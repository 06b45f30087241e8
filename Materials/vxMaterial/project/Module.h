#pragma once

#include "vxMaterial/project/PluginExport.h"

/// The entry functions of the plug-in. The host calls them when it loads the module. They do not throw, and report
/// errors to the message log. Safe to call more than once.
extern "C" {

/// Registers the project classes. Must be called before a material project is made.
VXMATERIAL_EXPORT void initMat();

/// Registers commands, workbench, tree nodes and icons. Must be called after initMat. Does nothing in a program without
/// windows.
VXMATERIAL_EXPORT void initMatGui();

} // extern "C"

/// The class of the module, which has no content. Hosts may create it.
class VXMATERIAL_EXPORT vxMaterial
{
public:
    vxMaterial();
    vxMaterial& operator=(const vxMaterial& other);
    ~vxMaterial(); // NOLINT(performance-trivially-destructible): hosts call it by its name
};
