#pragma once

#include "fit/LeastSquares.h"
#include "vxConstitutive/fit/Fit.h"

#include <functional>
#include <string>
#include <vector>

namespace vxConstitutive {

/// The tests with their unusable points left out: those that are not finite or outside the domain of the mode. Tests
/// whose weight is not greater than 0 are left out as a whole.
std::vector<TestData> usableTests(const std::vector<TestData>& tests, std::vector<Finding>& findings);

/// A point of a test, or the average of neighbours, as a fit takes it.
struct FitPoint
{
    const TestData* test = nullptr;
    double x = 0.0;
    double y = 0.0;
    double factor = 1.0; ///< of the difference: root of the point's weight by what the error measure divides by
};

/// The points of several tests. The weights add up to 1, so that the sum of the squared residuals is a mean.
struct FitSet
{
    std::vector<FitPoint> points;
    std::size_t total = 0;        ///< points before averaging
    double largestOrdinate = 0.0; ///< of all tests, by magnitude
    std::vector<Finding> findings;

    bool usable() const { return total > 0 && largestOrdinate > 0.0; }
};

FitSet makeFitSet(const std::vector<const TestData*>& tests, ErrorMeasure error);

/// The ordinate that a model predicts at an abscissa of a test.
using Prediction = std::function<double(const TestData& test, double abscissa)>;

/// Sets residuals, tests and coefficients of determination of a result, over all points. `freedoms` is the number of
/// constants that were free.
void judge(FitResult& result, const std::vector<const TestData*>& tests, ErrorMeasure error, const FitSet& set,
           const Prediction& predict, std::size_t freedoms);

/// A constant of a fit before it is judged.
struct ConstantOfFit
{
    std::int32_t propertyId = 0;
    std::string symbol;
    std::string unit;
    double value = 0.0;
    double error = 0.0; ///< for residuals of standard deviation 1; infinite if undetermined
    Bounds bounds;
    std::string determinedInstead; ///< not empty if the data determine only this
};

/// Adds a constant with its standard error and how well it is determined, and notes what is doubtful about it. Needs
/// the residuals of the result.
void addConstant(FitResult& result, const ConstantOfFit& constant, std::size_t points, std::size_t freedoms);

/// Bounds of a property, `fallback` if a caller gave none. Crossed bounds are sorted.
Bounds boundsOf(const BoundsById& bounds, std::int32_t propertyId, Bounds fallback);

/// Returns how many parameters are not fixed by their bounds.
std::size_t countFree(const std::vector<Bounds>& bounds);

/// Reports the progress of a number of equal jobs, and asks whether to go on. The functions that it hands out refer to
/// it.
class Jobs
{
public:
    Jobs(const FitControl& control, std::size_t count) : m_control(control), m_count(count) {}

    void begin(std::string name);              ///< begins the next job
    std::function<void(double)> progress();    ///< takes the part done of the current job
    bool cancelled();                          ///< once true, true for ever, and the caller is no longer asked
    std::function<bool()> cancelledFunction(); ///< the same as a function

private:
    void report(double partOfJob) const;

    const FitControl& m_control;
    std::size_t m_count;
    std::size_t m_begun = 0;
    bool m_cancelled = false;
    std::string m_name;
};

/// Sorts results: those that failed last, then those with undetermined constants, then by residual per freedom.
void rank(std::vector<FitResult>& results);

} // namespace vxConstitutive
