#include "vxConstitutive/fit/Ranking.h"

#include "vxConstitutive/fit/EstimateText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <tuple>

namespace vxConstitutive {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

bool isUndetermined(const FitResult& result)
{
    return std::any_of(result.constants.begin(), result.constants.end(), [](const FittedConstant& constant) {
        return constant.determination == Determination::Undetermined;
    });
}

/// Returns the number of constants that are doubtful, and one for a model that is not as stable as requested.
std::size_t doubtsOf(const FitResult& result)
{
    const auto constants =
        std::count_if(result.constants.begin(), result.constants.end(), [](const FittedConstant& constant) {
            return constant.determination == Determination::Poor || constant.determination == Determination::AtBound;
        });
    const bool unstable = std::any_of(result.findings.begin(), result.findings.end(), [](const Finding& finding) {
        return finding.id == FindingId::StabilityNotReached;
    });
    return static_cast<std::size_t>(constants) + (unstable ? 1 : 0);
}

/// Returns the residual, not less than the tests can tell.
double visibleResidual(const FitResult& result)
{
    return std::hypot(result.residual, result.resolution);
}

/// Returns the number of points that counts for all results.
double countedPoints(const std::vector<FitResult>& results)
{
    constexpr std::size_t most = 100;
    constexpr std::size_t mostOfEach = 10;
    std::size_t points = 0;
    std::size_t constants = 0;
    for (const FitResult& result : results) {
        points = std::max(points, result.points);
        constants = std::max(constants, result.freeConstants + doubtsOf(result));
    }
    return static_cast<double>(std::min(points, std::max(most, mostOfEach * constants)));
}

double criterionOf(const FitResult& result, std::size_t constants, double points)
{
    const double freedom = points - static_cast<double>(constants) - 2.0;
    const double residual = visibleResidual(result);
    if (!result.fitted || !(freedom > 0.0) || !(residual > 0.0))
        return infinity;
    const double price = static_cast<double>(constants) * std::log(points) / freedom;
    return points * (2.0 * std::log(residual) + price);
}

std::string residualText(double residual)
{
    return roundedText(residual, residualDigits);
}

/// Adds why a model is not first, although its residual is less than that of the first.
void explain(const FitResult& first, double points, FitResult& result)
{
    const bool lower = result.fitted && visibleResidual(result) < visibleResidual(first);
    if (!lower || residualText(visibleResidual(result)) == residualText(visibleResidual(first)))
        return;
    const std::string firstResidual = residualText(first.residual);
    const std::string ownResidual = residualText(result.residual);
    const double withoutDoubts = criterionOf(result, result.freeConstants, points);
    const bool isDoubtful = isUndetermined(result) || withoutDoubts < first.criterion;
    if (isDoubtful)
        result.findings.push_back(makeFinding(FindingId::RankedForDoubts, {first.model, firstResidual, ownResidual}));
    else
        result.findings.push_back(makeFinding(FindingId::RankedForConstants, {first.model, firstResidual, ownResidual,
                                                                              std::to_string(first.freeConstants),
                                                                              std::to_string(result.freeConstants)}));
}

} // namespace

void rankFits(std::vector<FitResult>& results)
{
    const double points = countedPoints(results);
    for (FitResult& result : results)
        result.criterion = criterionOf(result, result.freeConstants + doubtsOf(result), points);
    const auto key = [](const FitResult& result) {
        return std::tuple(!result.fitted, isUndetermined(result), result.criterion, result.freeConstants,
                          result.residual);
    };
    std::stable_sort(results.begin(), results.end(),
                     [&](const FitResult& a, const FitResult& b) { return key(a) < key(b); });
    for (std::size_t i = 1; i < results.size(); ++i)
        explain(results.front(), points, results[i]);
}

} // namespace vxConstitutive
