#pragma once

#include "vxConstitutive/fit/Fit.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace vxConstitutive {

/// Residuals as a function of parameters of order 1, within bounds.
struct LeastSquares
{
    std::size_t residuals = 0;
    std::vector<Bounds> bounds; ///< one for each parameter; equal ones hold it fixed

    /// Writes the residuals and, unless `jacobian` is null, their derivatives row by row; returns false if the
    /// residuals do not exist at these parameters.
    std::function<bool(const double* parameters, double* residuals, double* jacobian)> evaluate;
};

struct Minimum
{
    std::vector<double> parameters;
    double cost = std::numeric_limits<double>::infinity(); ///< half of the sum of squares
    bool converged = false;
};

/// Minimises from one start, which is moved inside the bounds. Ends soon after `cancelled` returns true, with the best
/// parameters so far.
Minimum minimise(const LeastSquares& problem, std::vector<double> start, const std::function<bool()>& cancelled);

/// The best of several starts; each is tried unless cancelled. Calls `progress` after each with the part done.
Minimum minimiseFromMany(const LeastSquares& problem, const std::vector<std::vector<double>>& starts,
                         const std::function<bool()>& cancelled, const std::function<void(double)>& progress);

/// What the derivatives at a minimum say of its parameters.
struct Certainty
{
    /// For each parameter, its standard error if the residuals had the standard deviation 1; 0 for one that is fixed,
    /// infinite for one that the residuals do not depend on.
    std::vector<double> errors;

    /// The covariances behind the errors, row by row; 0 where a parameter is fixed.
    std::vector<double> covariances;

    double covariance(std::size_t i, std::size_t k) const { return covariances[i * errors.size() + k]; }
};

Certainty certaintyAt(const LeastSquares& problem, const std::vector<double>& parameters);

} // namespace vxConstitutive
