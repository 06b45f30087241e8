#pragma once

#include <vector>

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace desktop {

/// Returns the open material projects. The application owns them.
std::vector<Mat::DocumentMaterial*> materialProjects();

/// Returns the current project if it is a material project; null otherwise.
Mat::DocumentMaterial* currentMaterialProject();

/// Returns whether the user has selected a material.
bool isMaterialSelected();

} // namespace desktop
