#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/fit/Fit.h"

#include <optional>
#include <vector>

namespace vxConstitutive {

/// The hyperelastic models that can be fitted.
enum class HyperelasticForm
{
    NeoHooke,
    MooneyRivlin,    ///< C10 and C01
    MooneyRivlinC11, ///< C10, C01 and C11
    ArrudaBoyce
};

/// Returns all forms, simple ones first.
VXCONSTITUTIVE_EXPORT const std::vector<HyperelasticForm>& hyperelasticForms();

/// The key on command lines ("mooney-rivlin-c11") and the English name of a form.
struct HyperelasticFormRecord
{
    HyperelasticForm form;
    const char* key;
    const char* name;
};
VXCONSTITUTIVE_EXPORT const HyperelasticFormRecord& hyperelasticFormRecord(HyperelasticForm form);

/// The range in which a fitted model must be stable.
enum class StabilityDemand
{
    OverData,  ///< uniaxial, equibiaxial and planar tests over the stretches of all data and 1
    OverRange, ///< the same tests over `stableRange`
    None
};

/// A request for a fit of hyperelastic models.
struct HyperelasticFitRequest
{
    std::vector<TestData> tests; ///< uniaxial, equibiaxial, planar, simple shear and volumetric
    std::vector<HyperelasticForm> forms = hyperelasticForms();
    ErrorMeasure error = ErrorMeasure::OfLargest;
    StabilityDemand stability = StabilityDemand::OverData;
    Range stableRange{1.0, 1.0}; ///< stretches, with StabilityDemand::OverRange
    BoundsById bounds;           ///< of C10 26, C01 27, C11 128, Mu 23 and the limiting stretch 127
};

/// Fits hyperelastic models to tests. Returns them best first (Ranking.h).
///
/// The tests are compared with the incompressible responses of HyperelasticModel; volumetric tests determine only D1.
/// Neo-Hookean and Mooney-Rivlin are linear in their constants and have one minimum, which is computed directly unless bounds or
/// stability are active. Arruda-Boyce starts from the best of many limiting stretches. Other least squares are by the
/// Levenberg-Marquardt method of Ceres with exact derivatives.
///
/// Stability is Drucker's criterion (HyperelasticModel.h). If it is active, the constants are the best stable ones, and
/// `residualWithoutStability` is the residual without it. Standard errors follow from the derivatives at the result and the
/// scatter of the data. They are valid for independent errors and a model that can follow the data.
///
/// A test of more than 2000 points is fitted by 2000 averages of neighbours; residuals are over all points. The result does not
/// depend on the order of the points. Throws only std::bad_alloc.
VXCONSTITUTIVE_EXPORT std::vector<FitResult> fitHyperelastic(const HyperelasticFitRequest& request,
                                                             const FitControl& control = {});

} // namespace vxConstitutive
