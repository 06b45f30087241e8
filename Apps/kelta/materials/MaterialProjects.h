#pragma once

#include <vector>

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace desktop {

/// The material projects that are open. The application keeps them.
std::vector<Mat::DocumentMaterial*> materialProjects();

/// The current project, if it is a material project; null otherwise.
Mat::DocumentMaterial* currentMaterialProject();

} // namespace desktop
