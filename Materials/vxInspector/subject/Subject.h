#pragma once

#include <vector>

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace vxInspector {

/// What the inspector shows. The pointers are valid until the next change of the projects.
struct Subject
{
    enum class Kind
    {
        Nothing,
        OtherObjects, ///< objects or projects without materials
        Project,      ///< `materials` are all materials of the selected projects
        Materials,
    };
    Kind kind = Kind::Nothing;
    std::vector<Mat::MaterialObject*> materials = {}; ///< in the order of their projects
};

} // namespace vxInspector
