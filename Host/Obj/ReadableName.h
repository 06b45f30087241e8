#pragma once

#include "Obj/ObjExport.h"

#include <QString>

namespace Obj {

/// Returns the name of a property as the user reads it: its translation, or the words of the name: "Material color" for
/// "MaterialColor".
OBJ_EXPORT QString readableName(const char* propertyName);

} // namespace Obj
