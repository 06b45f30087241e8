#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/fit/Fit.h"

#include <optional>
#include <vector>

namespace vxConstitutive {

/// A request for a fit of hardening.
struct PlasticFitRequest
{
    std::vector<TestData> tests;         ///< tensile tests, and curves of true stress against plastic strain
    std::optional<double> youngsModulus; ///< Pa; from the first part of the curves if absent
    double poissonsRatio = 0.5;          ///< for the true stress; 0.5 is the usual sigma = s (1 + e)
    double offset = 0.002;               ///< plastic strain of the offset yield stress, usually 0.2 %
    double tolerance = 0.005;            ///< of a multilinear curve, by its largest stress
    BoundsById bounds;                   ///< of the initial yield stress 41 and the hardening factor 36 (bilinear)
};

/// Fits a multilinear hardening curve: the fewest measured points such that straight lines between them are within the
/// tolerance of all points.
///
/// The part of a tensile curve after the largest force is left out, since the bar necks there. If no Young's modulus is given,
/// it is the slope between a tenth and half of the offset yield stress; the foot of this line becomes strain 0. The first row
/// is the offset yield stress at plastic strain 0. After it, ep = ln(1 + e) - sigma/E at the true stress sigma. If noise makes
/// the stress fall with the plastic strain, neighbours are averaged until it rises. A given Young's modulus that differs by more
/// than 1 % from that of the curve has a finding. FitResult::change sets the Young's modulus with which the elastic part was taken
/// off, because the hardening curve belongs to it. Throws only std::bad_alloc.
VXCONSTITUTIVE_EXPORT FitResult fitMultilinear(const PlasticFitRequest& request, const FitControl& control = {});

/// Fits an initial yield stress and a hardening modulus to the same points, by least squares of the true stress.
VXCONSTITUTIVE_EXPORT FitResult fitBilinear(const PlasticFitRequest& request, const FitControl& control = {});

} // namespace vxConstitutive
