#pragma once

#include "vxUnits/Plausibility.h"

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace MatGui {
class MaterialView;
} // namespace MatGui

namespace vxInspector {

/// Applies a remedy to a material. If `editor`, the open editor of the material, is not null, changes its rows as one
/// step of its own undo stack; otherwise changes the material as one step of the history. Does nothing if the material
/// no longer has the quantities.
void applyRemedy(const vxUnits::Remedy& remedy, Mat::MaterialObject& object, MatGui::MaterialView* editor);

} // namespace vxInspector
