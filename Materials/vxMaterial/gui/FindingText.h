#pragma once

#include "vxMaterial/model/MaterialCheck.h"
#include "vxMaterial/project/PluginExport.h"

#include <QString>

namespace MatGui {

/// Returns the message of a finding in the language of the user.
VXMATERIAL_EXPORT QString findingText(vxMat::MaterialFinding finding);

} // namespace MatGui
