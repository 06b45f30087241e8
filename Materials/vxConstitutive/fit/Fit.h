#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Finding.h"
#include "vxConstitutive/Model.h"
#include "vxConstitutive/data/TestData.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vxConstitutive {

/// What a fit makes small.
enum class ErrorMeasure
{
    OfLargest, ///< differences by the largest ordinate of their test: each test counts alike
    OfEach,    ///< differences by each ordinate, but at least 1 % of the largest: small strains count alike
    Absolute   ///< differences as they are, in SI units: tests with large ordinates count most
};

/// Where a constant may lie; equal bounds hold it fixed.
struct Bounds
{
    double lower = -std::numeric_limits<double>::infinity();
    double upper = std::numeric_limits<double>::infinity();
};

/// Bounds by vxMat::PropertyId, in SI units.
using BoundsById = std::map<std::int32_t, Bounds>;

/// How far a fit is.
struct FitProgress
{
    std::string model; ///< English: "Mooney-Rivlin"
    double part = 0.0; ///< of all that was asked for, 0 to 1
};

/// How a caller follows and ends a fit. Both functions are called in the thread of the fit, some hundred times a second
/// or more; they must not throw.
struct FitControl
{
    std::function<void(const FitProgress&)> progress;
    std::function<bool()> cancelled; ///< the fit ends soon after this returns true
};

enum class FitStatus
{
    Done,
    Cancelled, ///< the constants are those of the best start so far, if there is any
    Failed     ///< there are no constants; a finding says why
};

/// How well the data fix a constant.
enum class Determination
{
    Determined,
    Poor,         ///< the standard error is more than half of the constant
    AtBound,      ///< the constant lies at a bound; the standard error has no meaning
    Undetermined, ///< other values fit as well; the value was chosen
    Fixed         ///< by equal bounds
};

struct FittedConstant
{
    std::int32_t propertyId = 0; ///< vxMat::PropertyId; 0 for a quantity that no property holds
    std::string symbol;          ///< "C10"
    std::string unit;            ///< SI
    double value = 0.0;
    std::optional<double> standardError; ///< absent if there are no more points than constants
    Determination determination = Determination::Determined;
};

/// How well one test is met.
struct TestAgreement
{
    std::string test;
    Mode mode = Mode::Uniaxial;
    std::size_t points = 0;
    double rms = 0.0;           ///< root of the mean square of the differences, in the unit of the ordinate
    double relativeError = 0.0; ///< rms by the largest ordinate
    double largestError = 0.0;  ///< largest difference by the largest ordinate
    double rSquared = 0.0;      ///< 1 is perfect; less than 0 is worse than the mean of the test
};

/// Where a model is stable in one mode, as far as it was looked at.
struct StableRange
{
    Mode mode = Mode::Uniaxial;
    Range range;
    bool unstableBelow = false; ///< whether the model is unstable below the range, or it was not looked at
    bool unstableAbove = false; ///< likewise above
};

/// A property as a material would hold it.
struct PropertyValue
{
    std::int32_t propertyId = 0;
    double value = 0.0;
    std::string text;           ///< of words
    std::vector<double> values; ///< of lists
};

/// What a material needs to hold a fitted model.
struct MaterialChange
{
    std::vector<PropertyValue> set;
    std::vector<std::int32_t> remove; ///< properties that contradict the model, whether or not the material has them
};

/// One fitted model.
struct FitResult
{
    std::string model; ///< English, the source of translations: "Mooney-Rivlin with C11"
    FitStatus status = FitStatus::Failed;
    std::vector<FittedConstant> constants;
    std::vector<TestAgreement> tests;
    double residual = 0.0; ///< root of the mean square of what the fit makes small, over all points with their weights
    double residualPerFreedom = 0.0; ///< the same by the number of points less that of constants; ranks the models
    double rSquared = 0.0;           ///< over all tests
    std::optional<double> residualWithoutStability; ///< if the demand for stability changed the result
    std::vector<StableRange> stable;                ///< of hyperelastic models
    std::shared_ptr<const Model> fitted;            ///< null if the fit failed
    MaterialChange change;                          ///< what a material must be given; nothing is written by the fit
    std::vector<Finding> findings;

    VXCONSTITUTIVE_EXPORT const FittedConstant* find(std::int32_t propertyId) const; ///< null if there is none
};

} // namespace vxConstitutive
