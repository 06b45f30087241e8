#pragma once

#include "fit/LeastSquares.h"
#include "vxConstitutive/fit/Fit.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vxConstitutive {

/// Returns the tests without points that are not finite or outside the domain of the mode, and without tests whose weight is
/// not greater than 0.
std::vector<TestData> usableTests(const std::vector<TestData>& tests, std::vector<Finding>& findings);

/// A point of a test, or the average of neighbours, for a fit.
struct FitPoint
{
    const TestData* test = nullptr;
    double x = 0.0;
    double y = 0.0;
    double factor = 1.0; ///< of the difference: root of the weight by the divisor of the error measure
};

/// The points of several tests. Their weights add up to 1, so that the sum of the squared residuals is a mean.
struct FitSet
{
    std::vector<FitPoint> points;
    std::size_t total = 0;        ///< points before averaging
    double largestOrdinate = 0.0; ///< of all tests, by magnitude
    std::vector<Finding> findings;

    bool usable() const { return total > 0 && largestOrdinate > 0.0; }
};

FitSet makeFitSet(const std::vector<const TestData*>& tests, ErrorMeasure error);

/// Returns the ordinate that a model predicts at an abscissa of a test.
using Prediction = std::function<double(const TestData& test, double abscissa)>;

/// Sets residuals, tests and coefficients of determination of a result, over all points. `freedoms` is the number of free
/// constants.
void judge(FitResult& result, const std::vector<const TestData*>& tests, ErrorMeasure error, const FitSet& set,
           const Prediction& predict, std::size_t freedoms);

/// A constant of a fit, before its determination is known.
struct ConstantOfFit
{
    std::int32_t propertyId = 0;
    std::string symbol;
    std::string unit;
    double value = 0.0;
    double error = 0.0; ///< for residuals of standard deviation 1; infinite if undetermined
    Bounds bounds;
    std::string determinedInstead; ///< the combination that the data determine; empty if they determine the constant
};

/// Adds a constant with its standard error and determination to a result, with findings about doubts. Needs the residuals of
/// the result.
void addConstant(FitResult& result, const ConstantOfFit& constant, std::size_t points, std::size_t freedoms);

/// Returns the bounds of a property, in rising order; `fallback` if there are none.
Bounds boundsOf(const BoundsById& bounds, std::int32_t propertyId, Bounds fallback);

/// Returns the number of parameters that are not fixed by their bounds.
std::size_t countFree(const std::vector<Bounds>& bounds);

/// Reports the progress of a number of equal jobs and asks for cancellation. The functions that it returns refer to it.
class Jobs
{
public:
    Jobs(const FitControl& control, std::size_t count) : m_control(control), m_count(count) {}

    /// Begins the next job.
    void begin(std::string name);
    /// Returns a function that takes the finished part of the current job.
    std::function<void(double)> progress();
    /// Returns whether the fit is cancelled. After the first true, does not ask again.
    bool cancelled();
    std::function<bool()> cancelledFunction();

private:
    void report(double partOfJob) const;

    const FitControl& m_control;
    std::size_t m_count;
    std::size_t m_begun = 0;
    bool m_cancelled = false;
    std::string m_name;
};

/// Adds the findings about the points to a result. Returns false and adds a finding if there is nothing to fit.
bool hasData(FitResult& result, const FitSet& set);

/// Sets the status to Done, or to Cancelled with a finding.
void setStatus(FitResult& result, Jobs& jobs);

/// Returns the result of a fit of a model, or a failed result with a finding if the library of the solver is missing.
FitResult fitWithSolver(const std::string& model, const std::function<FitResult()>& fit);

/// Stores the fitted model in a result and adds its findings.
void setFitted(FitResult& result, std::shared_ptr<const Model> model);

} // namespace vxConstitutive
