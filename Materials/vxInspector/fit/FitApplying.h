#pragma once

#include "vxConstitutive/fit/Fit.h"

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace MatGui {
class MaterialView;
} // namespace MatGui

namespace vxInspector {

/// Writes fitted constants into a material: adds and changes the properties of the model, and removes those that
/// contradict it. If `editor`, the open editor of the material, is not null, changes its rows as one step of its own undo
/// stack; otherwise changes the material as one step of the history.
void applyFit(const vxConstitutive::MaterialChange& change, Mat::MaterialObject& object, MatGui::MaterialView* editor);

} // namespace vxInspector
