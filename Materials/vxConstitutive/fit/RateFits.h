#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/fit/Fit.h"

#include <vector>

namespace vxConstitutive {

struct NortonFitRequest
{
    std::vector<TestData> tests; ///< creep curves, or rates of secondary creep against stress
    ErrorMeasure error = ErrorMeasure::OfLargest;
    BoundsById bounds; ///< of A 46, n 47 and m 48; n from 0.1 to 50 and m from -0.99 to 0 if not given
};

/// Fits Norton's law with a time exponent (NortonModel.h) to creep curves at several stresses, or with m = 0 to rates.
/// If there are curves, rates are left out. Curves at one stress alone do not determine n; hold it by equal bounds.
/// Starts from the logarithms of the data and from several exponents. Throws nothing but std::bad_alloc.
VXCONSTITUTIVE_EXPORT FitResult fitNorton(const NortonFitRequest& request, const FitControl& control = {});

struct RelaxationFitRequest
{
    std::vector<TestData> tests; ///< shear modulus, or what is proportional to it, against time
    ErrorMeasure error = ErrorMeasure::OfLargest;
    BoundsById bounds; ///< of g 43 and the relaxation time 44
};

/// Fits the part that relaxes and the relaxation time (ViscoElasticModel.h), and the modulus at once after loading,
/// which is a constant without a property. Starts from many relaxation times. Throws nothing but std::bad_alloc.
VXCONSTITUTIVE_EXPORT FitResult fitRelaxation(const RelaxationFitRequest& request, const FitControl& control = {});

} // namespace vxConstitutive
