#pragma once

#include "vxConstitutive/fit/Bounds.h"

#include <cstddef>
#include <functional>
#include <limits>
#include <vector>

namespace vxConstitutive {

/// Residuals as a function of parameters of order 1, within bounds.
struct LeastSquares
{
    std::size_t residuals = 0;
    std::vector<Bounds> bounds; ///< one for each parameter; equal bounds fix it

    /// Stores the residuals and, unless `jacobian` is null, their derivatives row by row. Returns false if the residuals do
    /// not exist at these parameters.
    std::function<bool(const double* parameters, double* residuals, double* jacobian)> evaluate;
};

/// Returns the indices of the parameters that are not fixed.
inline std::vector<std::size_t> freeParameters(const LeastSquares& problem)
{
    std::vector<std::size_t> free;
    for (std::size_t i = 0; i < problem.bounds.size(); ++i) {
        if (problem.bounds[i].lower < problem.bounds[i].upper)
            free.push_back(i);
    }
    return free;
}

struct Minimum
{
    std::vector<double> parameters;
    double cost = std::numeric_limits<double>::infinity(); ///< half of the sum of squares
    bool converged = false;
};

/// Minimises from one start, which is moved inside the bounds. Ends soon after `cancelled` has returned true, with the best
/// parameters so far. Throws SolverMissing (SolverLibrary.h).
Minimum minimise(const LeastSquares& problem, std::vector<double> start, const std::function<bool()>& cancelled);

/// Minimises residuals that are linear in the parameters: by a direct solution if the minimum is within the bounds, otherwise as
/// minimise() does.
Minimum minimiseLinear(const LeastSquares& problem, std::vector<double> start, const std::function<bool()>& cancelled);

/// Returns half of the sum of the squared residuals; infinite if they do not exist.
double costAt(const LeastSquares& problem, const std::vector<double>& parameters);

/// Returns the best minimum of several starts. Calls `progress` with the finished part after each start.
/// Throws SolverMissing.
Minimum minimiseFromMany(const LeastSquares& problem, const std::vector<std::vector<double>>& starts,
                         const std::function<bool()>& cancelled, const std::function<void(double)>& progress);

/// The certainty of the parameters at a minimum, from the derivatives of the residuals.
struct Certainty
{
    /// The standard error of each parameter for residuals of standard deviation 1: 0 for a fixed parameter, infinite for a
    /// parameter without influence.
    std::vector<double> errors;

    /// The covariances for the same residuals, row by row; 0 for fixed parameters.
    std::vector<double> covariances;

    double covariance(std::size_t i, std::size_t k) const { return covariances[i * errors.size() + k]; }
};

Certainty certaintyAt(const LeastSquares& problem, const std::vector<double>& parameters);

} // namespace vxConstitutive
