#pragma once

#include "vxMaterial/project/PluginExport.h"

namespace Mat {

/// Codes of the module's own requests to the message proxy. The numbers are part of the interface to the host.
struct Request
{
    enum : int
    {
        AddMaterial = 1027,        ///< adds a material to a project: doCommand
        NewMaterialProject = 1030, ///< makes a material project: runCommand
    };
};

/// Registers the requests, and the rule that materials belong into material projects. The application calls it after
/// initMat, whose content is fixed. Safe to call more than once.
VXMATERIAL_EXPORT void registerRequests();

} // namespace Mat
