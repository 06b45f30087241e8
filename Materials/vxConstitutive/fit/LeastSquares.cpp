#include "fit/LeastSquares.h"

#include "fit/SolverLibrary.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <new>
#include <optional>
#include <utility>

namespace vxConstitutive {

namespace {

using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

void moveInside(const std::vector<Bounds>& bounds, std::vector<double>& parameters)
{
    for (std::size_t i = 0; i < bounds.size(); ++i)
        parameters[i] = std::max(bounds[i].lower, std::min(parameters[i], bounds[i].upper));
}

/// Returns whether each parameter is finite and within its bounds.
bool isInside(const std::vector<Bounds>& bounds, const std::vector<double>& parameters)
{
    for (std::size_t i = 0; i < bounds.size(); ++i) {
        const double value = parameters[i];
        if (!std::isfinite(value) || value < bounds[i].lower || value > bounds[i].upper)
            return false;
    }
    return true;
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

/// Returns the parameters at the minimum of linear residuals; nothing if it is not determined or not within the bounds.
std::optional<std::vector<double>> solveDirectly(const LeastSquares& problem, std::vector<double> start)
{
    const std::vector<std::size_t> free = freeParameters(problem);
    if (free.empty() || problem.residuals == 0)
        return std::nullopt;
    Eigen::VectorXd residuals(static_cast<Eigen::Index>(problem.residuals));
    RowMajor full(residuals.size(), static_cast<Eigen::Index>(start.size()));
    if (!problem.evaluate(start.data(), residuals.data(), full.data()))
        return std::nullopt;
    const auto [columns, lengths] = normalised(full, free);
    const Eigen::ColPivHouseholderQR<Eigen::MatrixXd> decomposition(columns);
    if (decomposition.rank() < columns.cols())
        return std::nullopt;
    const Eigen::VectorXd step = decomposition.solve(residuals).cwiseQuotient(lengths);
    for (std::size_t i = 0; i < free.size(); ++i)
        start[free[i]] -= step(static_cast<Eigen::Index>(i));
    return isInside(problem.bounds, start) ? std::optional(std::move(start)) : std::nullopt;
}

} // namespace

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

Minimum minimise(const LeastSquares& problem, std::vector<double> start, const std::function<bool()>& cancelled)
{
    moveInside(problem.bounds, start);
    const bool isFixed = freeParameters(problem).empty();
    Minimum result;
    result.parameters = start;
    result.cost = costAt(problem, start);
    result.converged = isFixed;
    if (isFixed || !std::isfinite(result.cost))
        return result;

    const SolverResult solved = loadedSolver()(problem, cancelled, start);
    if (solved == SolverExhausted)
        throw std::bad_alloc();
    result.converged = solved == SolverConverged;
    const double cost = costAt(problem, start);
    if (cost <= result.cost) {
        result.parameters = std::move(start);
        result.cost = cost;
    }
    return result;
}

Minimum minimiseLinear(const LeastSquares& problem, std::vector<double> start, const std::function<bool()>& cancelled)
{
    moveInside(problem.bounds, start);
    const auto parameters = solveDirectly(problem, start);
    return parameters ? Minimum{*parameters, costAt(problem, *parameters), true} : minimise(problem, start, cancelled);
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

namespace {

/// Stores the covariances of the free parameters, from the eigenvalues of the normal equations: infinite for parameters without
/// influence.
void setCovariances(const NormalisedJacobian& jacobian, const std::vector<std::size_t>& free, Certainty& certainty)
{
    const std::size_t count = certainty.errors.size();
    const Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd> solver(jacobian.columns.transpose() * jacobian.columns);
    const Eigen::ArrayXd squares = solver.eigenvalues().cwiseMax(0.0).array();
    for (Eigen::Index i = 0; i < jacobian.columns.cols(); ++i) {
        const std::size_t row = free[static_cast<std::size_t>(i)];
        for (Eigen::Index k = 0; k < jacobian.columns.cols(); ++k) {
            const Eigen::ArrayXd product = solver.eigenvectors().row(i).array() * solver.eigenvectors().row(k).array();
            certainty.covariances[row * count + free[static_cast<std::size_t>(k)]] =
                (product / squares).sum() / (jacobian.lengths(i) * jacobian.lengths(k));
        }
        certainty.errors[row] = std::sqrt(certainty.covariance(row, row));
    }
}

} // namespace

Certainty certaintyAt(const LeastSquares& problem, const std::vector<double>& parameters)
{
    const std::size_t count = parameters.size();
    Certainty certainty;
    certainty.errors.assign(count, 0.0);
    certainty.covariances.assign(count * count, 0.0);
    std::vector<double> residuals(problem.residuals);
    RowMajor full(static_cast<Eigen::Index>(problem.residuals), static_cast<Eigen::Index>(count));
    const std::vector<std::size_t> free = freeParameters(problem);
    if (!free.empty() && problem.evaluate(parameters.data(), residuals.data(), full.data()))
        setCovariances(normalised(full, free), free, certainty);
    return certainty;
}

} // namespace vxConstitutive
