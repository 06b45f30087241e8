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

/// All of them, simple ones first.
VXCONSTITUTIVE_EXPORT const std::vector<HyperelasticForm>& hyperelasticForms();

/// The key on command lines ("mooney-rivlin-c11") and the English name of a form.
struct HyperelasticFormRecord
{
    HyperelasticForm form;
    const char* key;
    const char* name;
};
VXCONSTITUTIVE_EXPORT const HyperelasticFormRecord& hyperelasticFormRecord(HyperelasticForm form);

/// Where a fitted model must be stable.
enum class StabilityDemand
{
    OverData, ///< in uniaxial, equibiaxial and planar tests over the stretches of all data, from 1 on
    OverRange,
    None
};

struct HyperelasticFitRequest
{
    std::vector<TestData> tests; ///< uniaxial, equibiaxial, planar, simple shear and volumetric
    std::vector<HyperelasticForm> forms = hyperelasticForms();
    ErrorMeasure error = ErrorMeasure::OfLargest;
    StabilityDemand stability = StabilityDemand::OverData;
    Range stableRange{1.0, 1.0}; ///< stretches, with StabilityDemand::OverRange
    BoundsById bounds;           ///< of C10 26, C01 27, C11 128, Mu 23 and the limiting stretch 127
};

/// Fits hyperelastic models to tests and returns them best first: those that failed last, and among the others by the
/// residual per freedom.
///
/// The tests are compared with the incompressible responses of HyperelasticModel; tests of volume determine D1 alone.
/// Neo-Hookean and Mooney-Rivlin are linear in their constants and have one minimum; Arruda-Boyce starts from many
/// limiting stretches. Least squares by the Levenberg-Marquardt method of Ceres with exact derivatives.
///
/// Stability is Drucker's criterion (HyperelasticModel.h). Where it binds, the constants are the best ones inside the
/// stable region, and `residualWithoutStability` tells its price. Standard errors come from the derivatives at the
/// result and the scatter of the data; they hold for independent errors and a model that can follow the data.
///
/// A test of more than 2000 points is fitted by 2000 averages of neighbours; residuals are of all points. The result
/// does not depend on the order of points. Throws nothing but std::bad_alloc.
VXCONSTITUTIVE_EXPORT std::vector<FitResult> fitHyperelastic(const HyperelasticFitRequest& request,
                                                             const FitControl& control = {});

} // namespace vxConstitutive
