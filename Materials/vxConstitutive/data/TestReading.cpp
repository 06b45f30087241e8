#include "vxConstitutive/data/TestReading.h"

#include "data/CreepStresses.h"
#include "data/MeasureConversion.h"
#include "data/MeasureWords.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxConstitutive {

namespace {

const std::vector<MeasureRecord>& measureTable()
{
    static const std::vector<MeasureRecord> table{
        {Measure::Stretch, "stretch", "stretch", Dimension::Number},
        {Measure::EngineeringStrain, "engineering-strain", "engineering strain", Dimension::Number},
        {Measure::TrueStrain, "true-strain", "true strain", Dimension::Number},
        {Measure::VolumeRatio, "volume-ratio", "volume ratio", Dimension::Number},
        {Measure::VolumetricStrain, "volumetric-strain", "volumetric strain", Dimension::Number},
        {Measure::AmountOfShear, "amount-of-shear", "amount of shear", Dimension::Number},
        {Measure::PlasticStrain, "plastic-strain", "plastic strain", Dimension::Number},
        {Measure::NominalStress, "nominal-stress", "nominal stress", Dimension::Stress},
        {Measure::TrueStress, "true-stress", "true stress", Dimension::Stress},
        {Measure::Pressure, "pressure", "pressure", Dimension::Stress},
        {Measure::Time, "time", "time", Dimension::Time},
        {Measure::CreepStrain, "creep-strain", "creep strain", Dimension::Number},
        {Measure::StrainRate, "strain-rate", "strain rate", Dimension::Rate},
        {Measure::Modulus, "modulus", "modulus", Dimension::Stress},
    };
    return table;
}

/// The possible measures of each axis of a mode, the usual one first.
struct Axes
{
    Mode mode;
    std::vector<Measure> abscissa;
    std::vector<Measure> ordinate;
};

const std::vector<Axes>& axesTable()
{
    const std::vector<Measure> length{Measure::Stretch, Measure::EngineeringStrain, Measure::TrueStrain};
    const std::vector<Measure> stress{Measure::NominalStress, Measure::TrueStress};
    static const std::vector<Axes> table{
        {Mode::Uniaxial, length, stress},
        {Mode::Equibiaxial, length, stress},
        {Mode::Planar, length, stress},
        {Mode::SimpleShear, {Measure::AmountOfShear}, stress},
        {Mode::Volumetric, {Measure::VolumeRatio, Measure::VolumetricStrain}, {Measure::Pressure, Measure::TrueStress}},
        {Mode::Tensile, {Measure::EngineeringStrain, Measure::TrueStrain, Measure::Stretch}, stress},
        {Mode::Plastic, {Measure::PlasticStrain}, {Measure::TrueStress}},
        {Mode::Creep, {Measure::Time}, {Measure::CreepStrain}},
        {Mode::CreepRate, {Measure::TrueStress}, {Measure::StrainRate}},
        {Mode::Relaxation, {Measure::Time}, {Measure::Modulus}},
    };
    return table;
}

const Axes* findAxes(Mode mode)
{
    const auto found =
        std::find_if(axesTable().begin(), axesTable().end(), [mode](const Axes& axes) { return axes.mode == mode; });
    return found == axesTable().end() ? nullptr : &*found;
}

/// Chooses the column, measure and unit of each axis. Adds questions for those that the table does not tell.
class AxisReader
{
public:
    AxisReader(const TestTable& table, const TestReadRequest& request, const UnitFactor& units, TestReading& reading)
        : m_table(table), m_request(request), m_units(units), m_reading(reading)
    {}

    /// Returns the factor from the unit of an axis to SI; 0 if there are questions.
    double read(Axis axis)
    {
        const bool abscissa = axis == Axis::Abscissa;
        ColumnChoice& choice = abscissa ? m_reading.abscissa : m_reading.ordinate;
        choice = abscissa ? m_request.abscissa : m_request.ordinate;
        const std::vector<Measure>& possible =
            abscissa ? abscissaMeasures(m_request.mode) : ordinateMeasures(m_request.mode);
        if (!chooseColumn(choice, axis, possible))
            return ask(QuestionKind::WhichColumn, axis, makeFinding(FindingId::ColumnNeeded, {namesOf(possible)}));
        if (!chooseMeasure(choice, axis, possible))
            return ask(QuestionKind::WhichMeasure, axis,
                       makeFinding(FindingId::MeasureNeeded, {nameOf(*choice.column), namesOf(possible)}));
        return chooseUnit(choice, axis);
    }

private:
    double ask(QuestionKind kind, Axis axis, Finding why)
    {
        m_reading.questions.push_back({kind, axis});
        m_reading.findings.push_back(std::move(why));
        return 0.0;
    }

    bool chooseColumn(ColumnChoice& choice, Axis axis, const std::vector<Measure>& possible)
    {
        if (choice.column)
            return *choice.column < m_table.columns.size();
        std::size_t found = 0;
        for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
            if (!recognise(m_table.columns[i].name, possible) || isTaken(i, axis))
                continue;
            if (found++ == 0)
                choice.column = i;
        }
        if (found > 1)
            m_reading.findings.push_back(makeFinding(FindingId::ColumnRepeated, {nameOf(*choice.column)}));
        if (found == 0 && m_table.columns.size() == 2 && m_table.headerLine == 0)
            choice.column = axis == Axis::Abscissa ? 0 : 1;
        return choice.column.has_value();
    }

    bool isTaken(std::size_t column, Axis axis) const
    {
        return axis == Axis::Ordinate && m_reading.abscissa.column == column;
    }

    bool chooseMeasure(ColumnChoice& choice, Axis axis, const std::vector<Measure>& possible)
    {
        if (choice.measure)
            return contains(possible, *choice.measure);
        const auto recognised = recognise(m_table.columns[*choice.column].name, possible);
        if (recognised)
            choice.measure = recognised->measure;
        else if (possible.size() == 1)
            choice.measure = possible.front();
        const bool matters = possible.size() > 1 && m_request.mode != Mode::SimpleShear;
        if (recognised && !recognised->stated && matters)
            m_reading.findings.push_back(
                makeFinding(FindingId::MeasureAssumed,
                            {nameOf(*choice.column), std::string(measureRecord(recognised->measure).name)}));
        if (!choice.measure && axis == Axis::Ordinate && m_request.mode == Mode::SimpleShear)
            choice.measure = Measure::NominalStress; // equal to the true stress
        return choice.measure.has_value();
    }

    double chooseUnit(ColumnChoice& choice, Axis axis)
    {
        const std::string& fromHeader = m_table.columns[*choice.column].unit;
        if (!choice.unit && !fromHeader.empty())
            choice.unit = fromHeader;
        const bool plain = choice.measure == Measure::Stretch || choice.measure == Measure::VolumeRatio;
        if (!choice.unit && plain)
            choice.unit = "1";
        if (!choice.unit)
            return ask(QuestionKind::WhichUnit, axis, makeFinding(FindingId::UnitNeeded, {nameOf(*choice.column)}));
        const Dimension dimension = measureRecord(*choice.measure).dimension;
        if (dimension == Dimension::Number && (*choice.unit == "1" || *choice.unit == "-"))
            return 1.0;
        const std::optional<double> factor = m_units ? m_units(*choice.unit, dimension) : std::nullopt;
        if (!factor || !(*factor > 0.0) || !std::isfinite(*factor))
            return ask(QuestionKind::WhichUnit, axis,
                       makeFinding(FindingId::UnitUnknown, {nameOf(*choice.column), *choice.unit}));
        return *factor;
    }

    static std::string namesOf(const std::vector<Measure>& measures)
    {
        std::string names;
        for (const Measure measure : measures)
            names += (names.empty() ? "" : ", ") + std::string(measureRecord(measure).name);
        return names;
    }

    std::string nameOf(std::size_t column) const
    {
        const std::string& name = m_table.columns[column].name;
        return name.empty() ? std::to_string(column + 1) : name;
    }

    const TestTable& m_table;
    const TestReadRequest& m_request;
    const UnitFactor& m_units;
    TestReading& m_reading;
};

/// Returns the abscissa of the unloaded state.
double restOf(Mode mode)
{
    const bool ratio =
        mode == Mode::Uniaxial || mode == Mode::Equibiaxial || mode == Mode::Planar || mode == Mode::Volumetric;
    return ratio ? 1.0 : 0.0;
}

void countUnusual(TestReading& reading)
{
    const TestData& data = *reading.data;
    std::vector<std::pair<double, double>> points;
    points.reserve(data.abscissas.size());
    const double rest = restOf(data.mode);
    for (std::size_t i = 0; i < data.abscissas.size(); ++i) {
        if (i > 0 && data.abscissas[i] < data.abscissas[i - 1])
            ++reading.unsorted;
        if (data.abscissas[i] < rest || data.ordinates[i] < 0.0)
            ++reading.negative;
        points.emplace_back(data.abscissas[i], data.ordinates[i]);
    }
    std::sort(points.begin(), points.end());
    const auto end = std::unique(points.begin(), points.end());
    reading.repeated = static_cast<std::size_t>(points.end() - end);
    const auto note = [&](FindingId id, std::size_t number) {
        if (number > 0)
            reading.findings.push_back(makeFinding(id, {static_cast<double>(number)}));
    };
    note(FindingId::PointsOutside, reading.leftOut);
    note(FindingId::PointsUnsorted, reading.unsorted);
    note(FindingId::PointsRepeated, reading.repeated);
    note(FindingId::PointsNegative, reading.negative);
}

/// The stress of a creep test, and the rows that have it.
struct StressOfRows
{
    double stress = 0.0;
    const std::vector<double>* cells = nullptr; ///< null for all rows
    double factor = 1.0;
    StressGroup group;

    bool isIn(std::size_t row) const { return cells == nullptr || group.has((*cells)[row] * factor); }
};

/// Adds a question for the stress of a creep test, with its reason.
void askForStress(Finding why, TestReading& reading)
{
    reading.findings.push_back(std::move(why));
    reading.questions.push_back({QuestionKind::WhichStress, Axis::Ordinate});
}

/// Adds a question for the stress of a creep test that the table does not tell.
void askForStress(const TestTable& table, const std::optional<StressColumn>& column, TestReading& reading)
{
    const std::string name = column ? table.columns[column->column].name : std::string();
    if (!column)
        askForStress(makeFinding(FindingId::StressOfTestNeeded), reading);
    else if (!column->factor)
        askForStress(makeFinding(FindingId::StressUnitNeeded, {name}), reading);
    else if (column->groups.empty())
        askForStress(makeFinding(FindingId::StressNotConstant, {name, static_cast<double>(mostCreepStresses)}),
                     reading);
    else
        askForStress(makeFinding(FindingId::SeveralStresses, {name, static_cast<double>(column->groups.size())}),
                     reading);
}

/// Returns the stress of a creep test: from the request, or from a column that has a single one.
StressOfRows chooseStress(const TestTable& table, const TestReadRequest& request, const UnitFactor& units,
                          TestReading& reading)
{
    const std::optional<StressColumn> column = findStressColumn(table, units);
    const bool isUsable = column && !column->groups.empty();
    const bool isSingle = isUsable && column->groups.size() == 1;
    if (!request.stress && !isSingle) {
        askForStress(table, column, reading);
        return {};
    }
    StressOfRows chosen;
    chosen.stress = request.stress ? *request.stress : column->groups.front().mean;
    if (!isUsable)
        return chosen;
    const StressGroup* const group = column->findGroup(chosen.stress);
    const std::string& name = table.columns[column->column].name;
    if (group == nullptr && isSingle) {
        reading.findings.push_back(
            makeFinding(FindingId::StressDiffers, {name, column->groups.front().mean, chosen.stress}));
        return chosen;
    }
    if (group == nullptr) {
        askForStress(makeFinding(FindingId::StressNotInColumn, {name, chosen.stress}), reading);
        return chosen;
    }
    reading.stressColumn = column->column;
    chosen.cells = &table.columns[column->column].cells;
    chosen.factor = *column->factor;
    chosen.group = *group;
    return chosen;
}

/// How the cells of a table become points.
struct PointReading
{
    double abscissaFactor = 1.0;
    double ordinateFactor = 1.0;
    StressOfRows stress;
};

MeasuredColumn measuredColumn(const TestTable& table, const ColumnChoice& choice)
{
    return {table.columns[*choice.column].name, *choice.unit, *choice.measure};
}

void takePoints(const TestTable& table, const TestReadRequest& request, const PointReading& how, TestReading& reading)
{
    TestData data;
    data.name = request.name;
    data.mode = request.mode;
    data.parameter = request.mode == Mode::Creep ? how.stress.stress : request.stress.value_or(0.0);
    data.weight = request.weight;
    data.abscissaColumn = measuredColumn(table, reading.abscissa);
    data.ordinateColumn = measuredColumn(table, reading.ordinate);
    const std::vector<double>& x = table.columns[*reading.abscissa.column].cells;
    const std::vector<double>& y = table.columns[*reading.ordinate.column].cells;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (!how.stress.isIn(i))
            continue;
        const double abscissa = canonicalAbscissa(request.mode, *reading.abscissa.measure, x[i] * how.abscissaFactor);
        const double ordinate =
            canonicalOrdinate(request.mode, *reading.ordinate.measure, y[i] * how.ordinateFactor, abscissa);
        if (!isInDomain(request.mode, abscissa, ordinate)) {
            ++reading.leftOut;
            continue;
        }
        data.abscissas.push_back(abscissa);
        data.ordinates.push_back(ordinate);
    }
    reading.data = std::move(data);
    countUnusual(reading);
    if (reading.data->abscissas.empty())
        reading.findings.push_back(makeFinding(FindingId::NoPoints, {request.name}));
}

} // namespace

const std::vector<MeasureRecord>& measureRecords()
{
    return measureTable();
}

const MeasureRecord& measureRecord(Measure measure)
{
    return measureTable()[static_cast<std::size_t>(measure)];
}

const std::vector<Measure>& abscissaMeasures(Mode mode)
{
    static const std::vector<Measure> none;
    const Axes* const axes = findAxes(mode);
    return axes != nullptr ? axes->abscissa : none;
}

const std::vector<Measure>& ordinateMeasures(Mode mode)
{
    static const std::vector<Measure> none;
    const Axes* const axes = findAxes(mode);
    return axes != nullptr ? axes->ordinate : none;
}

TestReading takeTest(const TestTable& table, const TestReadRequest& request, const UnitFactor& units)
{
    TestReading reading;
    AxisReader axes(table, request, units, reading);
    const double abscissaFactor = axes.read(Axis::Abscissa);
    const double ordinateFactor = axes.read(Axis::Ordinate);
    const StressOfRows stress =
        request.mode == Mode::Creep ? chooseStress(table, request, units, reading) : StressOfRows();
    if (reading.questions.empty())
        takePoints(table, request, {abscissaFactor, ordinateFactor, stress}, reading);
    return reading;
}

} // namespace vxConstitutive
