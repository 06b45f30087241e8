#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Finding.h"
#include "vxConstitutive/fit/Fit.h"
#include "vxMaterial/model/Material.h"

#include <optional>

namespace vxConstitutive {

/// What happens to the D1 of a material that gets the constants of an incompressible fit.
enum class D1Treatment
{
    Keep,   ///< the material keeps its D1
    Remove, ///< the material has no D1 and is incompressible; the check of materials reports that D1 is missing
    Set     ///< D1 is set by the ratio of bulk to shear modulus
};

/// The ratio of bulk to shear modulus of D1Treatment::Set if the user has not chosen another one: Poisson's ratio is 0.499.
inline constexpr double usualBulkRatio = 500.0;

/// The change of volume of a material that gets the constants of a fit which does not determine D1.
struct FittedVolume
{
    double shearModulus = 0.0; ///< Pa; initial, of the fitted model
    std::optional<double>
        bulkRatio; ///< initial bulk by shear modulus with the D1 of the material; absent if it has no D1
    std::optional<Finding> finding; ///< what the D1 of the material means for the fit; absent if it has none

    /// Returns whether the D1 of the material contradicts an incompressible fit: the bulk modulus is negative, or less than
    /// 20 times the shear modulus.
    VXCONSTITUTIVE_EXPORT bool contradictsFit() const;

    /// Returns what happens to D1 if the user has not chosen: it is kept unless it is missing or contradicts the fit. Then it is
    /// set by usualBulkRatio, because the check of materials reports a rubber without D1, and some solvers take another ratio for it.
    D1Treatment usualTreatment() const { return bulkRatio && !contradictsFit() ? D1Treatment::Keep : D1Treatment::Set; }
};

/// Returns what the D1 of a material, in SI units, means for the constants of a fit. A D1 of 0 is none. Absent if the fit has no
/// hyperelastic model with an initial shear modulus greater than 0, or if it determines D1.
VXCONSTITUTIVE_EXPORT std::optional<FittedVolume> fittedVolume(const FitResult& result,
                                                               const vxMat::MaterialBase& material);

/// Returns the change of a material to the constants of a fit, and to a D1. With D1Treatment::Set, the initial bulk modulus 2/D1
/// becomes `bulkRatio` times the shear modulus of the fit. `bulkRatio` must be greater than 0.
VXCONSTITUTIVE_EXPORT MaterialChange changeOf(const FitResult& result, const FittedVolume& volume,
                                              D1Treatment treatment, double bulkRatio = usualBulkRatio);

} // namespace vxConstitutive
