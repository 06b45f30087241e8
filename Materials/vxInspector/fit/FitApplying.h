#pragma once

#include "vxConstitutive/fit/Fit.h"

#include <QString>

#include <optional>
#include <string>

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace MatGui {
class MaterialView;
} // namespace MatGui

namespace vxInspector {

/// What is written into a material.
struct AppliedFit
{
    vxConstitutive::MaterialChange change;
    std::optional<std::string> measurements; ///< the new text of the measurements; absent to leave them as they are
};

/// Writes fitted constants into a material: adds and changes the properties of the model, and removes those that
/// contradict it. Stores the measurements with the material. Both are one step of the history. If `editor`, the open editor
/// of the material, is not null, changes its rows instead of the material, as one step of its own undo stack; only the
/// measurements are then a step of the history.
void applyFit(const AppliedFit& fit, Mat::MaterialObject& object, MatGui::MaterialView* editor);

/// Stores the measurements `text` with a material, as a step of the history with the text `step`. An empty text removes them.
void setMeasurements(Mat::MaterialObject& object, const std::string& text, const QString& step);

} // namespace vxInspector
