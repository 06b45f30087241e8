#pragma once

#include "fit/LeastSquares.h"

#include <functional>
#include <vector>

namespace vxConstitutive {

/// The library of the solver and its entry. The library is beside the one of the fits, which loads it for the first fit that
/// needs it: Ceres Solver brings a dozen libraries, which would double the time in which a program starts.
inline constexpr const char* solverLibrary = "libvxLeastSquaresSolver.so";
inline constexpr const char* solverEntry = "vxSolveLeastSquares";

/// The result of the entry.
enum SolverResult : int
{
    SolverConverged = 0,
    SolverStopped = 1,  ///< at the largest number of steps, by `cancelled`, or where the residuals do not exist
    SolverExhausted = 2 ///< the memory is exhausted; the parameters are unchanged
};

/// Minimises over the parameters that are not fixed, by the Levenberg-Marquardt method of Ceres Solver, and stores the best
/// ones. The parameters must be within the bounds, at least one of them must be free, and their residuals must exist. Ends
/// soon after `cancelled`, unless empty, has returned true. Does not throw; the functions of the caller may throw only
/// std::bad_alloc.
extern "C" {
using SolveLeastSquares = SolverResult(const LeastSquares& problem, const std::function<bool()>& cancelled,
                                       std::vector<double>& parameters) noexcept;
}

} // namespace vxConstitutive
