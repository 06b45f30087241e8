#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Model.h"
#include "vxMaterial/model/Material.h"

namespace vxConstitutive {

/// Returns the part of the abscissa that shows what is typical of a model in a mode, in SI units: up to the rows of a
/// hardening table, to the necking of a bar, to the limit of the chains, around the relaxation time. `material` holds
/// the constants of the model.
VXCONSTITUTIVE_EXPORT Range usualRange(const Model& model, Mode mode, const vxMat::MaterialBase& material);

} // namespace vxConstitutive
