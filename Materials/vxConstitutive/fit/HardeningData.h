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
    std::vector<TestData> tests;             ///< true stress against plastic strain, one for each test that has it
    std::optional<MeasuredModulus> modulus;  ///< if it was taken from the curves
    std::optional<ElasticConstants> elastic; ///< absent if there are no tensile tests and no given modulus
    std::vector<Finding> findings;

    double largestStress() const;
};

HardeningData takeHardening(const PlasticFitRequest& request);

/// All points in rising order of strain, averaged so that the stress does not fall. Notes where it fell by more than
/// the tolerance.
std::vector<HardeningPoint> risingPoints(const HardeningData& data, double tolerance, std::vector<Finding>& findings);

/// The fewest of the points, the first and last among them, between which straight lines stay within `tolerance` (Pa)
/// of all of them.
std::vector<HardeningPoint> reducePoints(const std::vector<HardeningPoint>& points, double tolerance);

} // namespace vxConstitutive
