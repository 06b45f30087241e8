#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vxCAE {

/// The settings of the solution: solver, limits, and the load-step table. A field has the name of its JSON member.
///
/// The seven lists form the table: element i of each belongs to load step i + 1. `n_load_steps` is the number of steps,
/// and each list must have at least as many elements.
class VXCAE_EXPORT CAESolve : public CAEBase
{
public:
    const char* typeName() const override;
    /// \throws std::out_of_range if a list is shorter than `n_load_steps`; the document is unchanged
    void writeJson(Json::Value& document) const override;
    /// Reads missing elements of the arrays as 0 or false; refuses a column that is not an array.
    /// \throws Json::RuntimeError if "n_load_steps" exceeds the length of the longest array by more than a million: no
    /// analysis has so many steps without values, and their lists could exhaust the memory
    void readJson(const Json::Value& document) override;

    /// Writes the settings of load step `step`, from 1, to the arguments. Sets the first two to 0 and leaves the third
    /// unchanged if the table does not have the step.
    /// \throws std::out_of_range if a list is shorter than `n_load_steps`
    void getLoadStep(std::uint32_t step, std::int32_t& substeps, double& absoluteTolerance,
                     std::int32_t& iterationLimit) const;

    std::string solver;
    std::string solver_method = "UnknownSolver";
    std::uint32_t n_iterations = 10000;
    double residual_thold = 1e-8;
    std::uint32_t n_load_steps = 1;

    std::vector<double> times{1.0};           ///< end times
    std::vector<bool> auto_timing{true};      ///< automatic time stepping
    std::vector<std::int32_t> n_substeps{25}; ///< substeps
    std::vector<double> time_inc{1.0};        ///< time increments
    std::vector<double> nl_abs_tol{1e-8};     ///< absolute tolerance of the nonlinear solver
    std::vector<double> nl_rel_tol{1e-6};     ///< relative tolerance of the nonlinear solver
    std::vector<std::int32_t> nl_max_its{25}; ///< iteration limit of the nonlinear solver
};

} // namespace vxCAE
