#pragma once

#include "fit/solver/LeastSquaresSolver.h"

#include <stdexcept>

namespace vxConstitutive {

/// The library of the solver, or its entry, is missing. what() is the message of the loader, in English.
class SolverMissing : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Returns the entry of the solver. The first call loads the library, which stays loaded. Throws SolverMissing. Any thread may
/// call it.
SolveLeastSquares& loadedSolver();

} // namespace vxConstitutive
