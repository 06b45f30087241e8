#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/MaterialModels.h"
#include "vxMaterial/model/Material.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace vxConstitutive {

/// A doubt about the constants of a material that a model gives rise to.
struct ModelDoubt
{
    Finding finding;
    std::int32_t propertyId{}; ///< vxMat::PropertyId of the quantity that it is about
};

/// Returns a curve of a model.
using CurveSource = std::function<std::shared_ptr<const Curve>(const Model&, const CurveRequest&)>;

/// Returns those findings about a material whose constants a user should doubt before a solver fails with them:
///
///  - C10 and half of Mu that differ
///  - a hardening type for which the catalogue has no constants
///  - hardening that falls
///  - rubber that is unstable by Drucker's criterion, in each mode: the first unstable abscissa below and above the unloaded
///    state, inside usualRange(). A rubber that is unstable without load has one doubt that says so, instead of these
///  - chains whose limit is inside usualRange(), or at rest
///
/// The findings about curves are those of Model::curve(). `curves` can keep curves between calls; if it is empty, they are
/// computed. Throws what `curves` throws, and std::bad_alloc.
VXCONSTITUTIVE_EXPORT std::vector<ModelDoubt> doubtsAboutModels(const vxMat::MaterialBase& material,
                                                                const CurveSource& curves = {});

} // namespace vxConstitutive
