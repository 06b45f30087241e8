#pragma once

#include "fit/FitSupport.h"
#include "vxConstitutive/fit/HyperelasticFit.h"
#include "vxConstitutive/response/HyperelasticModel.h"

#include <functional>
#include <optional>
#include <vector>

namespace vxConstitutive {

/// The data of the fits of all hyperelastic forms.
struct HyperelasticFitData
{
    std::vector<const TestData*> shapeTests;
    std::vector<const TestData*> volumeTests;
    FitSet shape;
    FitSet volume;
    ErrorMeasure error = ErrorMeasure::OfLargest;
    BoundsById bounds;
    std::optional<Range> stableRange; ///< absent without a demand for stability
    std::function<bool()> cancelled;
};

/// The fitted constants of a form, before they are judged.
struct HyperelasticMinimum
{
    HyperelasticConstants constants;
    std::vector<ConstantOfFit> fitted;
    std::size_t freedoms = 0;
    std::optional<HyperelasticConstants> withoutStability; ///< if the demand for stability changed the result
    bool found = false;
    bool isStable = false; ///< known to be stable over the demanded range
    std::vector<Finding> findings;
};

/// Returns the nominal stress of an incompressible material in a test.
double incompressibleStress(const StrainEnergy& energy, Mode mode, double abscissa);

/// Returns the first invariant of an incompressible material in a test.
double incompressibleInvariant(Mode mode, double abscissa);

/// Returns whether a model is stable in uniaxial, equibiaxial and planar tests.
bool isStable(const HyperelasticConstants& constants, Range range);

/// Fits the first `count` of C10, C01 and C11. The shape tests must be usable.
HyperelasticMinimum fitMooneyRivlin(const HyperelasticFitData& data, HyperelasticForm form, std::size_t count);

/// Fits Mu and the limiting stretch. The shape tests must be usable.
HyperelasticMinimum fitArrudaBoyce(const HyperelasticFitData& data, const std::function<void(double)>& progress);

} // namespace vxConstitutive
