#pragma once

#include "vxUnits/MaterialValues.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/UnitSystem.h"

#include <QString>

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace MatGui {
class MaterialView;
} // namespace MatGui

namespace vxInspector {

/// Applies a remedy to a material. If `editor`, the open editor of the material, is not null, changes its rows as one
/// step of its own undo stack; otherwise changes the material as one step of the history, and announces what it has changed,
/// in units of `system`, because no editor shows it. Does nothing if the material no longer has the quantities.
void applyRemedy(const vxUnits::Remedy& remedy, Mat::MaterialObject& object, MatGui::MaterialView* editor,
                 const vxUnits::UnitSystem& system);

/// Returns what a remedy changes, in a unit system: "Young's modulus: 206900 becomes 2.069e+11 Pa"; several changes with
/// `separator` between them.
QString changesText(const vxUnits::Remedy& remedy, const vxUnits::MaterialValues& before,
                    const vxUnits::UnitSystem& system, const QString& separator);

} // namespace vxInspector
