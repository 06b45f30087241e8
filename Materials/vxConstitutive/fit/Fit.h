#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Finding.h"
#include "vxConstitutive/Model.h"
#include "vxConstitutive/data/TestData.h"
#include "vxConstitutive/fit/Bounds.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vxConstitutive {

/// The differences that a fit minimises.
enum class ErrorMeasure
{
    OfLargest, ///< differences by the largest ordinate of their test: all tests have equal weight
    OfEach,    ///< differences by each ordinate, but at least 1 % of the largest: all strains have equal weight
    Absolute   ///< differences in SI units: tests with large ordinates have more weight
};

/// Bounds by vxMat::PropertyId, in SI units.
using BoundsById = std::map<std::int32_t, Bounds>;

/// The progress of a fit.
struct FitProgress
{
    std::string model; ///< English: "Mooney-Rivlin"
    double part = 0.0; ///< of the whole request, 0 to 1
};

/// The functions by which a caller observes and cancels a fit. Both are called in the thread of the fit, some hundred times a
/// second or more. They must not throw.
struct FitControl
{
    std::function<void(const FitProgress&)> progress;
    std::function<bool()> cancelled; ///< the fit ends soon after this has returned true
};

enum class FitStatus
{
    Done,
    Cancelled, ///< the constants are the best ones so far, if there are any
    Failed     ///< there are no constants; a finding has the reason
};

/// How well the data determine a constant.
enum class Determination
{
    Determined,
    Poor,         ///< the standard error is more than half of the constant
    AtBound,      ///< the constant is at a bound; its standard error has no meaning
    Undetermined, ///< other values fit equally well; the value is arbitrary
    Fixed         ///< fixed by equal bounds
};

/// A constant that a fit found.
struct FittedConstant
{
    std::int32_t propertyId = 0; ///< vxMat::PropertyId; 0 for a quantity without a property
    std::string symbol;          ///< "C10"
    std::string unit;            ///< SI
    double value = 0.0;
    std::optional<double> standardError; ///< absent if there are no more points than constants
    Determination determination = Determination::Determined;
};

/// The agreement of a fitted model with a test.
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

/// The range in which a model is stable in a mode. The search is from the stretch 0.1 to 10.
struct StableRange
{
    Mode mode = Mode::Uniaxial;
    Range range;
    bool unstableBelow = false; ///< the model is unstable below the range
    bool unstableAbove = false; ///< the model is unstable above the range
};

/// A property of a material.
struct PropertyValue
{
    std::int32_t propertyId = 0;
    double value = 0.0;
    std::string text;           ///< of words
    std::vector<double> values; ///< of lists
};

/// The change of a material to a fitted model.
struct MaterialChange
{
    std::vector<PropertyValue> set;
    std::vector<std::int32_t> remove; ///< properties that contradict the model; the material need not have them
};

/// A fitted model.
struct FitResult
{
    std::string model; ///< English, the source of translations: "Mooney-Rivlin with C11"
    FitStatus status = FitStatus::Failed;
    std::vector<FittedConstant> constants;
    std::vector<TestAgreement> tests;
    double residual = 0.0; ///< root of the weighted mean square of the differences (ErrorMeasure) over all points
    double residualPerFreedom = 0.0; ///< residual for the number of points less the number of constants
    double rSquared = 0.0;           ///< over all tests
    std::size_t points = 0;          ///< of all tests together
    std::size_t freeConstants = 0;   ///< constants that are not fixed; points of a multilinear curve
    double resolution = 0.0; ///< residuals of this size tell nothing: 0.1 % of the largest ordinate (of each ordinate)
    double criterion = std::numeric_limits<double>::infinity(); ///< ranks models, the least first (Ranking.h)
    std::optional<double> residualWithoutStability;             ///< if the demand for stability changed the result
    std::optional<double> youngsModulus; ///< Pa; with which the elastic part of tensile tests was taken off
    std::vector<StableRange> stable;     ///< of hyperelastic models
    std::shared_ptr<const Model> fitted; ///< null if the fit failed
    MaterialChange change;               ///< the fit itself changes no material
    std::vector<Finding> findings;

    /// Returns the constant of a property; null if there is none.
    VXCONSTITUTIVE_EXPORT const FittedConstant* find(std::int32_t propertyId) const;
};

} // namespace vxConstitutive
