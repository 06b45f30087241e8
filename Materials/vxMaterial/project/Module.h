#pragma once

#include "vxMaterial/project/PluginExport.h"

/// The entries of the plug-in, by which the host makes the module's classes known. They throw nothing; what goes wrong
/// is reported to the message log. Calling one again changes nothing.
extern "C" {

/// Registers the project classes. To be called before a material project is made.
VXMATERIAL_EXPORT void initMat();

/// Registers what the user interface needs, after initMat; nothing in a program without windows.
VXMATERIAL_EXPORT void initMatGui();

} // extern "C"

/// Stands for the module; there is nothing to it.
class VXMATERIAL_EXPORT vxMaterial
{
public:
    vxMaterial();
    vxMaterial& operator=(const vxMaterial& other);
    ~vxMaterial(); // NOLINT(performance-trivially-destructible): hosts call it by name
};
