#include "fit/LeastSquares.h"

#include <Eigen/Dense>
#include <algorithm>
#include <ceres/ceres.h>
#include <cmath>

namespace vxConstitutive {

namespace {

using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

/// Returns the indices of the parameters that are not fixed.
std::vector<std::size_t> freeParameters(const LeastSquares& problem)
{
    std::vector<std::size_t> free;
    for (std::size_t i = 0; i < problem.bounds.size(); ++i) {
        if (problem.bounds[i].lower < problem.bounds[i].upper)
            free.push_back(i);
    }
    return free;
}

void moveInside(const std::vector<Bounds>& bounds, std::vector<double>& parameters)
{
    for (std::size_t i = 0; i < bounds.size(); ++i)
        parameters[i] = std::max(bounds[i].lower, std::min(parameters[i], bounds[i].upper));
}

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
        std::vector<double> full(m_problem.residuals * all.size());
        if (!m_problem.evaluate(all.data(), residuals, full.data()))
            return false;
        double* target = jacobians[0];
        for (std::size_t row = 0; row < m_problem.residuals; ++row) {
            for (const std::size_t column : m_free)
                *target++ = full[row * all.size() + column];
        }
        return true;
    }

private:
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

double costAt(const LeastSquares& problem, const std::vector<double>& parameters)
{
    std::vector<double> residuals(problem.residuals);
    if (!problem.evaluate(parameters.data(), residuals.data(), nullptr))
        return std::numeric_limits<double>::infinity();
    double sum = 0.0;
    for (const double residual : residuals)
        sum += residual * residual;
    return std::isfinite(sum) ? sum / 2.0 : std::numeric_limits<double>::infinity();
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

struct Solution
{
    std::vector<double> parameters;
    bool converged = false;
};

/// Minimises over the free parameters by the Levenberg-Marquardt method.
Solution solve(const LeastSquares& problem, const std::vector<std::size_t>& free, const std::vector<double>& start,
               const std::function<bool()>& cancelled)
{
    std::vector<double> values;
    values.reserve(free.size());
    for (const std::size_t index : free)
        values.push_back(start[index]);
    Cost cost(problem, free, start);
    ceres::Problem::Options ownership;
    ownership.cost_function_ownership = ceres::DO_NOT_TAKE_OWNERSHIP;
    ceres::Problem ceresProblem(ownership);
    ceresProblem.AddResidualBlock(&cost, nullptr, values.data());
    setBounds(problem, free, values.data(), ceresProblem);
    Watch watch(cancelled);
    ceres::Solver::Summary summary;
    ceres::Solve(optionsFor(watch), &ceresProblem, &summary);

    Solution solution{start, summary.termination_type == ceres::CONVERGENCE};
    for (std::size_t i = 0; i < free.size(); ++i)
        solution.parameters[free[i]] = values[i];
    return solution;
}

/// The derivatives by the free parameters, in columns of length 1.
struct NormalisedJacobian
{
    Eigen::MatrixXd columns;
    Eigen::VectorXd lengths; ///< before the normalisation
};

NormalisedJacobian normalised(const RowMajor& jacobian, const std::vector<std::size_t>& free)
{
    const auto count = static_cast<Eigen::Index>(free.size());
    NormalisedJacobian result{Eigen::MatrixXd(jacobian.rows(), count), Eigen::VectorXd(count)};
    for (Eigen::Index i = 0; i < count; ++i) {
        result.columns.col(i) = jacobian.col(static_cast<Eigen::Index>(free[static_cast<std::size_t>(i)]));
        result.lengths(i) = result.columns.col(i).norm();
        if (result.lengths(i) > 0.0)
            result.columns.col(i) /= result.lengths(i);
    }
    return result;
}

} // namespace

Minimum minimise(const LeastSquares& problem, std::vector<double> start, const std::function<bool()>& cancelled)
{
    moveInside(problem.bounds, start);
    const std::vector<std::size_t> free = freeParameters(problem);
    Minimum result;
    result.parameters = start;
    result.cost = costAt(problem, start);
    result.converged = free.empty();
    if (free.empty() || !std::isfinite(result.cost))
        return result;

    Solution solution = solve(problem, free, start, cancelled);
    result.converged = solution.converged;
    const double cost = costAt(problem, solution.parameters);
    if (cost <= result.cost) {
        result.parameters = std::move(solution.parameters);
        result.cost = cost;
    }
    return result;
}

Minimum minimiseFromMany(const LeastSquares& problem, const std::vector<std::vector<double>>& starts,
                         const std::function<bool()>& cancelled, const std::function<void(double)>& progress)
{
    Minimum best;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        if (cancelled && cancelled())
            break;
        const Minimum found = minimise(problem, starts[i], cancelled);
        if (best.parameters.empty() || found.cost < best.cost)
            best = found;
        if (progress)
            progress(static_cast<double>(i + 1) / static_cast<double>(starts.size()));
    }
    return best;
}

Certainty certaintyAt(const LeastSquares& problem, const std::vector<double>& parameters)
{
    const std::size_t count = parameters.size();
    Certainty certainty;
    certainty.errors.assign(count, 0.0);
    certainty.covariances.assign(count * count, 0.0);
    std::vector<double> residuals(problem.residuals);
    RowMajor full(static_cast<Eigen::Index>(problem.residuals), static_cast<Eigen::Index>(count));
    if (!problem.evaluate(parameters.data(), residuals.data(), full.data()))
        return certainty;
    const std::vector<std::size_t> free = freeParameters(problem);
    if (free.empty())
        return certainty;

    const auto [columns, lengths] = normalised(full, free);
    const Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd> solver(columns.transpose() * columns);
    const Eigen::ArrayXd squares = solver.eigenvalues().cwiseMax(0.0).array();
    for (Eigen::Index i = 0; i < columns.cols(); ++i) {
        const std::size_t row = free[static_cast<std::size_t>(i)];
        for (Eigen::Index k = 0; k < columns.cols(); ++k) {
            const Eigen::ArrayXd product = solver.eigenvectors().row(i).array() * solver.eigenvectors().row(k).array();
            certainty.covariances[row * count + free[static_cast<std::size_t>(k)]] =
                (product / squares).sum() / (lengths(i) * lengths(k));
        }
        certainty.errors[row] = std::sqrt(certainty.covariance(row, row));
    }
    return certainty;
}

} // namespace vxConstitutive
