#include "data/CreepStresses.h"

#include "data/MeasureWords.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxConstitutive {

namespace {

/// The part by which neighbouring readings of the load of one test may differ. Loads of different tests differ by more.
constexpr double scatter = 0.02;

std::vector<double> risingStresses(const std::vector<double>& cells, double factor)
{
    std::vector<double> stresses;
    for (const double cell : cells) {
        if (std::isfinite(cell * factor))
            stresses.push_back(cell * factor);
    }
    std::sort(stresses.begin(), stresses.end());
    return stresses;
}

/// Returns the groups of stresses in rising order; none if there are more than `mostCreepStresses`.
std::vector<StressGroup> groupsOf(const std::vector<double>& stresses)
{
    std::vector<StressGroup> groups;
    std::size_t count = 0;
    double sum = 0.0;
    for (const double stress : stresses) {
        const bool isNear = !groups.empty() && stress - groups.back().most <=
                                                   scatter * std::min(std::fabs(stress), std::fabs(groups.back().most));
        if (!isNear) {
            if (groups.size() == mostCreepStresses)
                return {};
            groups.push_back({stress, stress, stress});
            count = 0;
            sum = 0.0;
        }
        StressGroup& group = groups.back();
        group.most = stress;
        sum += stress;
        ++count;
        group.mean = group.least == group.most ? stress : sum / static_cast<double>(count);
    }
    return groups;
}

} // namespace

const StressGroup* StressColumn::findGroup(double stress) const
{
    const StressGroup* nearest = nullptr;
    const auto distance = [stress](const StressGroup& group) {
        return std::max({group.least - stress, stress - group.most, 0.0});
    };
    for (const StressGroup& group : groups) {
        if (nearest == nullptr || distance(group) < distance(*nearest))
            nearest = &group;
    }
    return nearest != nullptr && distance(*nearest) <= scatter * std::fabs(stress) ? nearest : nullptr;
}

std::optional<StressColumn> findStressColumn(const TestTable& table, const UnitFactor& units)
{
    static const std::vector<Measure> stress{Measure::NominalStress, Measure::TrueStress};
    const auto found = std::find_if(table.columns.begin(), table.columns.end(), [](const TableColumn& column) {
        return recognise(column.name, stress).has_value() && !recognise(column.name, {Measure::CreepStrain}) &&
               !recognise(column.name, {Measure::Time});
    });
    if (found == table.columns.end())
        return std::nullopt;
    StressColumn column;
    column.column = static_cast<std::size_t>(found - table.columns.begin());
    column.factor = units && !found->unit.empty() ? units(found->unit, Dimension::Stress) : std::nullopt;
    if (column.factor && (!(*column.factor > 0.0) || !std::isfinite(*column.factor)))
        column.factor.reset();
    if (column.factor)
        column.groups = groupsOf(risingStresses(found->cells, *column.factor));
    return column;
}

std::vector<double> creepStresses(const TestTable& table, const UnitFactor& units)
{
    std::vector<double> stresses;
    if (const auto column = findStressColumn(table, units)) {
        for (const StressGroup& group : column->groups)
            stresses.push_back(group.mean);
    }
    return stresses;
}

} // namespace vxConstitutive
