#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vxCAE {

/// How an analysis is solved: solver, limits, and the load-step table. A field bears the name of its JSON member.
///
/// The seven lists form the table: element i of each belongs to load step i + 1. `n_load_steps` bounds every walk
/// over them, and each list must hold at least that many elements.
class VXCAE_EXPORT CAESolve : public CAEBase
{
public:
    const char* typeName() const override;
    /// \throws std::out_of_range when a list is shorter than `n_load_steps`; the document is unchanged
    void writeJson(Json::Value& document) const override;
    /// Elements that the arrays lack are read as 0 or false; a column that is not an array is refused.
    /// \throws Json::RuntimeError when "n_load_steps" asks for a million steps more than the longest array has, which
    /// no analysis has and no memory holds
    void readJson(const Json::Value& document) override;

    /// The settings of load step `step`, counted from 1. Sets the first two to 0 first; a step that the table does
    /// not have sets nothing more.
    /// \throws std::out_of_range when a list is shorter than `n_load_steps`
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
