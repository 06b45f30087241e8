#pragma once

#include "Kelta/TypeInfo.h"
#include "Obj/ObjExport.h"

#include <string>

namespace Obj {

/// Says that projects of `projectClass`, or of a class that descends from it, take objects of `objectClass` and of the
/// classes that descend from it. An object class may have several homes. One without a home is taken by every project.
///
///     Obj::registerHome("Fastening::Bolt", "Fastening::Assembly");
///
/// The classes need not be registered yet. Safe to call more than once.
OBJ_EXPORT void registerHome(const std::string& objectClass, const std::string& projectClass);

/// Whether projects of `projectType` take objects of `objectType`. Homes of the nearest ancestor that has some count.
OBJ_EXPORT bool isHome(Kelta::TypeInfo projectType, Kelta::TypeInfo objectType);

} // namespace Obj
