#pragma once

#include "Obj/Signal.h"
#include "vxMaterial/model/Material.h"
#include "vxMaterial/project/PluginExport.h"

#include <cstddef>
#include <memory>

namespace Mat {
class MaterialObject;
} // namespace Mat

/// Changes of materials as steps of the history of the host:
///
///     auto before = MatGui::copyOf(*object.getCMaterial());
///     change(*object.getCMaterial());
///     MatGui::recordChange(object, std::move(before));
namespace MatGui {

/// Returns a copy of a material with all fields, the library group and the slots of the properties included.
VXMATERIAL_EXPORT std::unique_ptr<vxMat::CMaterial> copyOf(const vxMat::MaterialBase& material);

/// Returns whether two materials have the same fields and properties. Zero and negative zero are different; all NaN
/// values are equal.
VXMATERIAL_EXPORT bool areSame(const vxMat::MaterialBase& first, const vxMat::MaterialBase& second);

/// Gives a material the numbers of its switches in `before`, if it differs from `before` in nothing else: these numbers
/// have no meaning, so replacing them is not a change.
VXMATERIAL_EXPORT void keepSwitchNumbers(vxMat::MaterialBase& material, const vxMat::MaterialBase& before);

/// The numbers of properties in which a material differs from another.
struct ChangeCount
{
    std::size_t added = 0;
    std::size_t changed = 0;
    std::size_t removed = 0;
};

VXMATERIAL_EXPORT ChangeCount countChanges(const vxMat::MaterialBase& before, const vxMat::MaterialBase& after);

/// Sent after a step of the history has changed the material of an object, and after such a step was undone or redone.
VXMATERIAL_EXPORT Obj::Signal<void(Mat::MaterialObject&)>& materialChanged();

/// Records a change of the material of `object` as a step of the history, and updates the object. `before` is a copy of
/// the material before the change. Returns false, and makes no step, if the material has not changed.
VXMATERIAL_EXPORT bool recordChange(Mat::MaterialObject& object, std::unique_ptr<vxMat::CMaterial> before);

} // namespace MatGui
