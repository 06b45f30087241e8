#include "fit/solver/LeastSquaresSolver.h"

#include <ceres/ceres.h>
#include <cmath>
#include <new>
#include <utility>

namespace {

using vxConstitutive::Bounds;
using vxConstitutive::LeastSquares;
using vxConstitutive::SolverResult;

/// The residuals as a function of the free parameters.
class Cost final : public ceres::CostFunction
{
public:
    Cost(const LeastSquares& problem, std::vector<std::size_t> free, std::vector<double> all)
        : m_problem(problem), m_free(std::move(free)), m_all(std::move(all))
    {
        set_num_residuals(static_cast<int>(problem.residuals));
        mutable_parameter_block_sizes()->push_back(static_cast<int>(m_free.size()));
    }

    bool Evaluate(double const* const* parameters, double* residuals, double** jacobians) const override
    {
        std::vector<double> all = m_all;
        for (std::size_t i = 0; i < m_free.size(); ++i)
            all[m_free[i]] = parameters[0][i];
        if (jacobians == nullptr || jacobians[0] == nullptr)
            return m_problem.evaluate(all.data(), residuals, nullptr);
        if (m_free.size() == all.size())
            return m_problem.evaluate(all.data(), residuals, jacobians[0]);
        return evaluateFreeColumns(all, residuals, jacobians[0]);
    }

private:
    bool evaluateFreeColumns(const std::vector<double>& all, double* residuals, double* columns) const
    {
        std::vector<double> full(m_problem.residuals * all.size());
        if (!m_problem.evaluate(all.data(), residuals, full.data()))
            return false;
        for (std::size_t row = 0; row < m_problem.residuals; ++row) {
            for (const std::size_t column : m_free)
                *columns++ = full[row * all.size() + column];
        }
        return true;
    }

    const LeastSquares& m_problem;
    std::vector<std::size_t> m_free;
    std::vector<double> m_all;
};

/// Stops a cancelled minimisation.
class Watch final : public ceres::IterationCallback
{
public:
    explicit Watch(const std::function<bool()>& cancelled) : m_cancelled(cancelled) {}

    ceres::CallbackReturnType operator()(const ceres::IterationSummary& /*summary*/) override
    {
        return m_cancelled && m_cancelled() ? ceres::SOLVER_ABORT : ceres::SOLVER_CONTINUE;
    }

private:
    const std::function<bool()>& m_cancelled;
};

ceres::Solver::Options optionsFor(Watch& watch)
{
    ceres::Solver::Options options;
    options.linear_solver_type = ceres::DENSE_QR;
    options.max_num_iterations = 200;
    options.function_tolerance = 1e-15;
    options.gradient_tolerance = 1e-14;
    options.parameter_tolerance = 1e-12;
    options.logging_type = ceres::SILENT;
    options.callbacks.push_back(&watch);
    options.update_state_every_iteration = true; // so that a cancelled fit has its best parameters
    return options;
}

void setBounds(const LeastSquares& problem, const std::vector<std::size_t>& free, double* values,
               ceres::Problem& ceresProblem)
{
    for (std::size_t i = 0; i < free.size(); ++i) {
        const Bounds& bounds = problem.bounds[free[i]];
        if (std::isfinite(bounds.lower))
            ceresProblem.SetParameterLowerBound(values, static_cast<int>(i), bounds.lower);
        if (std::isfinite(bounds.upper))
            ceresProblem.SetParameterUpperBound(values, static_cast<int>(i), bounds.upper);
    }
}

SolverResult solve(const LeastSquares& problem, const std::function<bool()>& cancelled, std::vector<double>& parameters)
{
    const std::vector<std::size_t> free = freeParameters(problem);
    std::vector<double> values;
    values.reserve(free.size());
    for (const std::size_t index : free)
        values.push_back(parameters[index]);
    Cost cost(problem, free, parameters);
    ceres::Problem::Options ownership;
    ownership.cost_function_ownership = ceres::DO_NOT_TAKE_OWNERSHIP;
    ceres::Problem ceresProblem(ownership);
    ceresProblem.AddResidualBlock(&cost, nullptr, values.data());
    setBounds(problem, free, values.data(), ceresProblem);
    Watch watch(cancelled);
    ceres::Solver::Summary summary;
    ceres::Solve(optionsFor(watch), &ceresProblem, &summary);

    for (std::size_t i = 0; i < free.size(); ++i)
        parameters[free[i]] = values[i];
    return summary.termination_type == ceres::CONVERGENCE ? vxConstitutive::SolverConverged
                                                          : vxConstitutive::SolverStopped;
}

} // namespace

extern "C" __attribute__((visibility("default"))) SolverResult
vxSolveLeastSquares(const LeastSquares& problem, const std::function<bool()>& cancelled,
                    std::vector<double>& parameters) noexcept
{
    try {
        return solve(problem, cancelled, parameters);
    } catch (const std::bad_alloc&) {
        return vxConstitutive::SolverExhausted;
    } catch (...) {
        return vxConstitutive::SolverStopped;
    }
}
