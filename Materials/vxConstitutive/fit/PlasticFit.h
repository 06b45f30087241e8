#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/fit/Fit.h"

#include <optional>
#include <vector>

namespace vxConstitutive {

struct PlasticFitRequest
{
    std::vector<TestData> tests;         ///< tensile tests, and curves of true stress against plastic strain
    std::optional<double> youngsModulus; ///< Pa; taken from the first part of the curves if absent
    double poissonsRatio = 0.5;          ///< for the true stress; 0.5 is the usual sigma = s (1 + e)
    double offset = 0.002;               ///< plastic strain at which the material is said to yield, 0.2 % by custom
    double tolerance = 0.005;            ///< of a multilinear curve, by its largest stress
    BoundsById bounds;                   ///< of the initial yield stress 41 and the hardening factor 36 (bilinear)
};

/// Fits a multilinear hardening curve: the fewest of the measured points between which straight lines stay within the
/// tolerance of all of them.
///
/// Of a tensile curve, the part behind the largest force is left out, since the bar necks there. Young's modulus is the
/// slope between a tenth and half of the offset yield stress, if none is given; the strain at the foot of this line
/// becomes 0. The first row is the offset yield stress at plastic strain 0; behind it ep = ln(1 + e) - sigma/E at the
/// true stress sigma. Where noise makes the stress fall with the plastic strain, neighbours are averaged until it no
/// longer does. Throws nothing but std::bad_alloc.
VXCONSTITUTIVE_EXPORT FitResult fitMultilinear(const PlasticFitRequest& request, const FitControl& control = {});

/// Fits an initial yield stress and a hardening modulus to the same points, by least squares of the true stress.
VXCONSTITUTIVE_EXPORT FitResult fitBilinear(const PlasticFitRequest& request, const FitControl& control = {});

} // namespace vxConstitutive
