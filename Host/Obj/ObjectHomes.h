#pragma once

#include "Kelta/TypeInfo.h"
#include "Obj/ObjExport.h"

#include <string>

namespace Obj {

/// Declares that projects of `projectClass`, or of a class that descends from it, take objects of `objectClass` and
/// classes that descend from it. An object class may have several homes. Every project takes a class without a home.
///
///     Obj::registerHome("Fastening::Bolt", "Fastening::Assembly");
///
/// The classes need not be registered yet. Safe to call more than once.
OBJ_EXPORT void registerHome(const std::string& objectClass, const std::string& projectClass);

/// Returns whether projects of `projectType` take objects of `objectType`. The nearest ancestor with homes decides.
OBJ_EXPORT bool isHome(Kelta::TypeInfo projectType, Kelta::TypeInfo objectType);

} // namespace Obj
