#pragma once

#include "Obj/Signal.h"
#include "vxMaterial/model/Material.h"

#include <memory>

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace desktop {

/// Returns a copy of a material with every field, the library group and the slots of its properties included.
std::unique_ptr<vxMat::CMaterial> copyOf(const vxMat::MaterialBase& material);

/// Whether two materials have the same fields and properties. A zero is not a negative zero, and
/// what is not a number is the same as what is none either.
bool areSame(const vxMat::MaterialBase& first, const vxMat::MaterialBase& second);

/// The material of an object is another than before: it has been changed by a step of the history, or one has been taken
/// back or made again.
Obj::Signal<void(Mat::MaterialObject&)>& materialChanged();

/// Makes a step of the history of what has been done to the material of `object`, which was `before`. Has the object
/// looked at anew. False when nothing has changed; there is then no step.
bool recordChange(Mat::MaterialObject& object, std::unique_ptr<vxMat::CMaterial> before);

} // namespace desktop
