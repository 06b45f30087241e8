#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/fit/Fit.h"

#include <vector>

namespace vxConstitutive {

/// A request for a fit of creep.
struct NortonFitRequest
{
    std::vector<TestData> tests; ///< creep curves, or rates of secondary creep against stress
    ErrorMeasure error = ErrorMeasure::OfLargest;
    BoundsById bounds; ///< of A 46, n 47 and m 48; by default n from 0.1 to 50 and m from -0.99 to 0
};

/// Fits Norton's law with a time exponent (NortonModel.h) to creep curves at several stresses, or with m = 0 to rates. If there
/// are curves, rates are left out. Curves at a single stress do not determine n; fix it by equal bounds. Starts from the
/// logarithms of the data and from several exponents. Throws only std::bad_alloc.
VXCONSTITUTIVE_EXPORT FitResult fitNorton(const NortonFitRequest& request, const FitControl& control = {});

/// A request for a fit of relaxation.
struct RelaxationFitRequest
{
    std::vector<TestData> tests; ///< shear modulus, or a quantity proportional to it, against time
    ErrorMeasure error = ErrorMeasure::OfLargest;
    BoundsById bounds; ///< of g 43 and the relaxation time 44
};

/// Fits the relaxing part and the relaxation time (ViscoElasticModel.h), and the instantaneous modulus, which is a constant
/// without a property. Starts from many relaxation times. Throws only std::bad_alloc.
VXCONSTITUTIVE_EXPORT FitResult fitRelaxation(const RelaxationFitRequest& request, const FitControl& control = {});

} // namespace vxConstitutive
