#pragma once

#include "vxConstitutive/fit/PlasticFit.h"
#include "vxConstitutive/response/PlasticModel.h"

#include <optional>
#include <vector>

namespace vxConstitutive {

/// A slope with its standard error.
struct MeasuredModulus
{
    double value = 0.0;
    std::optional<double> standardError;
};

/// The plastic part of all tests of a request.
struct HardeningData
{
    std::vector<TestData> tests; ///< true stress against plastic strain, one for each test with a plastic part
    std::optional<MeasuredModulus> modulus;  ///< if it was taken from the curves
    std::optional<ElasticConstants> elastic; ///< absent if there are no tensile tests and no given modulus
    bool hasTensile = false; ///< there are tensile tests, whose elastic part was taken off with `elastic`
    std::vector<Finding> findings;

    double largestStress() const;
};

/// Returns the plastic part of the tests of a request.
HardeningData takeHardening(const PlasticFitRequest& request);

/// Returns all points in rising order of strain, averaged so that the stress does not fall. Adds a finding if it fell by more
/// than the tolerance.
std::vector<HardeningPoint> risingPoints(const HardeningData& data, double tolerance, std::vector<Finding>& findings);

/// Returns the fewest points, with the first and the last, such that straight lines between them are within `tolerance` (Pa) of
/// all points.
std::vector<HardeningPoint> reducePoints(const std::vector<HardeningPoint>& points, double tolerance);

} // namespace vxConstitutive
