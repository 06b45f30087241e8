#pragma once

#include "vxUnits/UnitSystem.h"

namespace Obj {
class Project;
} // namespace Obj

/// The unit systems in which values are shown. Materials, project files and exchange documents always have the units of
/// the catalogue.
namespace vxInspector {

/// The name of the setting of a project that holds the text of its unit system, see UnitSystem::parse.
inline constexpr const char* unitSystemSetting = "unit_system";

/// Returns the unit system in which the values of a project are shown: its own one, or the default if it has none or if
/// its text is not that of a unit system.
vxUnits::UnitSystem shownSystem(const Obj::Project& project);

/// Returns the unit system that the user prefers for projects without one; SI if there is none in the user's settings.
vxUnits::UnitSystem defaultSystem();
void setDefaultSystem(const vxUnits::UnitSystem& system);

} // namespace vxInspector
