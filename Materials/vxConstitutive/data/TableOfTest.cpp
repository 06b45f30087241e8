#include "data/MeasureConversion.h"
#include "vxConstitutive/data/TestReading.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxConstitutive {

namespace {

/// The column of an axis, with the factor of its unit to SI.
struct AxisColumn
{
    MeasuredColumn column;
    double factor = 1.0;
};

/// Returns the column of an axis that is in SI.
AxisColumn siColumn(Measure measure)
{
    constexpr const char* units[]{"1", "Pa", "s", "1/s"}; // in the order of Dimension
    return {{{}, units[static_cast<std::size_t>(measureRecord(measure).dimension)], measure}};
}

AxisColumn axisColumn(const std::optional<MeasuredColumn>& column, const std::vector<Measure>& possible, Measure usual,
                      const UnitFactor& units)
{
    if (!column || std::find(possible.begin(), possible.end(), column->measure) == possible.end())
        return siColumn(usual);
    if (column->unit == "1" || column->unit == "-")
        return {*column};
    const auto factor = units(column->unit, measureRecord(column->measure).dimension);
    return factor && *factor > 0.0 && std::isfinite(*factor) ? AxisColumn{*column, *factor} : siColumn(usual);
}

/// Returns the table of the points without the cells.
TableColumn emptyColumn(const AxisColumn& axis)
{
    return {axis.column.name, axis.column.unit, {}};
}

} // namespace

TableOfTest tableOfTest(const TestData& test, const UnitFactor& units)
{
    const Mode mode = test.mode;
    // The first measures are those of TestData, except that a pressure has the other sign.
    const Measure usual = mode == Mode::Volumetric ? Measure::TrueStress : ordinateMeasures(mode).front();
    const AxisColumn abscissa =
        axisColumn(test.abscissaColumn, abscissaMeasures(mode), abscissaMeasures(mode).front(), units);
    const AxisColumn ordinate = axisColumn(test.ordinateColumn, ordinateMeasures(mode), usual, units);
    TableOfTest made;
    made.table.columns = {emptyColumn(abscissa), emptyColumn(ordinate)};
    for (std::size_t i = 0; i < test.abscissas.size(); ++i) {
        const double x = test.abscissas[i];
        made.table.columns[0].cells.push_back(measuredAbscissa(mode, abscissa.column.measure, x) / abscissa.factor);
        made.table.columns[1].cells.push_back(measuredOrdinate(mode, ordinate.column.measure, test.ordinates[i], x) /
                                              ordinate.factor);
    }
    made.request.name = test.name;
    made.request.mode = mode;
    made.request.abscissa = {0, abscissa.column.measure, abscissa.column.unit};
    made.request.ordinate = {1, ordinate.column.measure, ordinate.column.unit};
    made.request.weight = test.weight;
    if (mode == Mode::Creep)
        made.request.stress = test.parameter;
    return made;
}

} // namespace vxConstitutive
