#include "fit/FitTables.h"

#include "curves/ConstitutiveTexts.h"
#include "vxConstitutive/fit/EstimateText.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxPlot/CurvePlot.h"
#include "vxPlot/drawing/PlotItems.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Writing.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <deque>
#include <map>
#include <optional>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::Determination;
using vxConstitutive::FitResult;
using vxConstitutive::FitStatus;
using vxConstitutive::Mode;
using vxConstitutive::TestData;

constexpr Mode rubberModes[]{Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar};
constexpr int digits = 6;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::FitTables", text);
}

QString modeText(Mode mode)
{
    return QString::fromStdString(vxPlot::shortModeName(mode, constitutiveTranslator()));
}

QString percent(double part)
{
    constexpr double hundred = 100.0;
    return QString::number(part * hundred, 'g', 3) + QStringLiteral(" %");
}

bool isStable(const vxConstitutive::StableRange& stable)
{
    return !stable.unstableBelow && !stable.unstableAbove;
}

/// Returns the stable range in each test in which the model is unstable somewhere, then that of the other tests, which is the
/// range of the search.
QString stableText(const FitResult& result)
{
    constexpr int shownDigits = 3;
    const auto number = [](double stretch) { return vxPlot::numberText(stretch, shownDigits); };
    QStringList parts;
    for (const vxConstitutive::StableRange& stable : result.stable) {
        const QString from = (stable.unstableBelow ? QString() : QStringLiteral("≤ ")) + number(stable.range.from);
        const QString to = (stable.unstableAbove ? QString() : QStringLiteral("≥ ")) + number(stable.range.to);
        if (!isStable(stable))
            parts << tr("%1 %2 to %3").arg(modeText(stable.mode), from, to);
    }
    const auto stable = std::find_if(result.stable.begin(), result.stable.end(), isStable);
    if (stable != result.stable.end())
        parts << (parts.isEmpty() ? tr("%1 to %2 in all tests") : tr("otherwise %1 to %2"))
                     .arg(number(stable->range.from), number(stable->range.to));
    return parts.join(QStringLiteral("; "));
}

QString statusText(const FitResult& result)
{
    if (result.status == FitStatus::Cancelled)
        return tr("cancelled");
    return result.status == FitStatus::Failed ? tr("failed") : percent(result.residual);
}

QString determinationText(Determination determination)
{
    switch (determination) {
    case Determination::Poor:
        return tr("poorly determined");
    case Determination::AtBound:
        return tr("at its bound");
    case Determination::Undetermined:
        return tr("not determined by the data");
    case Determination::Fixed:
        return tr("fixed");
    case Determination::Determined:
        break;
    }
    return {};
}

/// A constant in a unit system, with the digits that its standard error justifies; the factor of creep stays in SI units, since its unit depends on the exponents.
Row constantRow(const vxConstitutive::FittedConstant& constant, const vxUnits::UnitSystem& system)
{
    const auto si = vxUnits::Unit::parse(constant.unit);
    const vxUnits::Unit unit = si ? system.unitOf(si->dimension()) : vxUnits::Unit();
    const auto converted = [&](double number) { return si ? vxUnits::convertNumber(number, *si, unit) : number; };
    std::optional<double> error;
    if (constant.standardError)
        error = converted(*constant.standardError);
    QString value = QString::fromStdString(vxConstitutive::estimateText(converted(constant.value), error));
    if (error)
        value += QStringLiteral(" ± ") +
                 QString::fromStdString(vxConstitutive::roundedText(*error, vxConstitutive::errorDigits));
    const QString unitText = QString::fromStdString(si ? unit.text() : constant.unit);
    return {{{QString::fromStdString(constant.symbol)},
             {value},
             {unitText == QLatin1String("1") ? QString() : unitText},
             textCell(determinationText(constant.determination))}};
}

/// Returns the list that a fit gives to a quantity; empty if there is none.
std::vector<double> listOf(const FitResult& result, std::int32_t propertyId)
{
    for (const vxConstitutive::PropertyValue& value : result.change.set)
        if (value.propertyId == propertyId)
            return value.values;
    return {};
}

/// The points of a multilinear hardening curve.
std::vector<Row> hardeningRows(const FitResult& result, const vxUnits::UnitSystem& system)
{
    const std::vector<double> strains = listOf(result, vxMat::PropertyId::PlasticStrain);
    const std::vector<double> stresses = listOf(result, vxMat::PropertyId::PlasticYieldStress);
    const vxUnits::Unit unit = system.unitOf(vxUnits::Unit::parse("Pa")->dimension());
    std::vector<Row> rows;
    for (std::size_t i = 0; i < std::min(strains.size(), stresses.size()); ++i)
        rows.push_back({{{tr("Yield stress %1").arg(i + 1)},
                         {QString::fromStdString(vxUnits::writeNumber(stresses[i], unit, digits))},
                         {QString::fromStdString(unit.text())},
                         textCell(tr("at plastic strain %1").arg(vxPlot::numberText(strains[i], digits)))}});
    return rows;
}

Row agreementRow(const vxConstitutive::TestAgreement& test)
{
    return {{textCell(QString::fromStdString(test.test)),
             {percent(test.relativeError)},
             {},
             {tr("R² %1, %2 points").arg(vxPlot::numberText(test.rSquared, digits)).arg(test.points)}}};
}

Row findingRow(const vxConstitutive::Finding& finding, const vxUnits::UnitSystem& system)
{
    const QString text = translated(finding, system);
    Cell cell = textCell(text);
    cell.text = text;
    return {{{severityText(vxConstitutive::findingRecord(finding.id).severity)}, {}, {}, cell}};
}

/// The abscissas of the tests of each mode.
std::map<Mode, vxConstitutive::Range> rangesOf(const std::vector<const TestData*>& tests)
{
    std::map<Mode, vxConstitutive::Range> ranges;
    for (const TestData* const test : tests) {
        if (test->abscissas.empty())
            continue;
        const auto [least, most] = std::minmax_element(test->abscissas.begin(), test->abscissas.end());
        const auto [range, isNew] = ranges.emplace(test->mode, vxConstitutive::Range{*least, *most});
        if (!isNew)
            range->second = {std::min(range->second.from, *least), std::max(range->second.to, *most)};
    }
    return ranges;
}

bool hasMode(const vxConstitutive::Model& model, Mode mode)
{
    const std::vector<Mode> modes = model.modes();
    return std::find(modes.begin(), modes.end(), mode) != modes.end();
}

/// Returns the modes in which rubber is usually tested and was not, over the range of the tests.
std::map<Mode, vxConstitutive::Range> notMeasured(const std::map<Mode, vxConstitutive::Range>& measured)
{
    std::map<Mode, vxConstitutive::Range> others;
    std::optional<vxConstitutive::Range> all;
    for (const Mode mode : rubberModes) {
        const auto found = measured.find(mode);
        if (found == measured.end())
            continue;
        const vxConstitutive::Range& one = found->second;
        all = all ? vxConstitutive::Range{std::min(all->from, one.from), std::max(all->to, one.to)} : one;
    }
    for (const Mode mode : rubberModes)
        if (all && measured.count(mode) == 0)
            others.emplace(mode, *all);
    return others;
}

/// Curves begin where the test begins: at stretch 1, or at 0.
vxConstitutive::Range withStart(Mode mode, vxConstitutive::Range range)
{
    const bool isStretch = vxConstitutive::modeRecord(mode).abscissa == vxConstitutive::Quantity::Stretch;
    const double start = isStretch ? 1.0 : 0.0;
    if (mode == Mode::Volumetric)
        range = {std::cbrt(range.from), std::cbrt(range.to)};
    return {std::min(range.from, start), std::max(range.to, start)};
}

vxConstitutive::CurveRequest requestOf(Mode mode, const vxConstitutive::Range& range,
                                       const std::vector<const TestData*>& tests)
{
    constexpr std::size_t count = 200;
    vxConstitutive::CurveRequest request;
    request.mode = mode;
    request.abscissas = vxConstitutive::evenlySpaced(range.from, range.to, count);
    request.compressibility = vxConstitutive::Compressibility::Incompressible;
    for (const TestData* const test : tests)
        if (test->mode == Mode::Creep &&
            std::find(request.stresses.begin(), request.stresses.end(), test->parameter) == request.stresses.end())
            request.stresses.push_back(test->parameter);
    if (mode == Mode::Volumetric)
        request.compressibility = vxConstitutive::Compressibility::AsGiven;
    return request;
}

} // namespace

QString recordText(const vxConstitutive::FitRecord& fit, const vxUnits::UnitSystem& system)
{
    QStringList constants;
    for (const vxConstitutive::FittedConstant& constant : fit.constants) {
        const Row row = constantRow(constant, system);
        constants
            << QStringLiteral("%1 = %2 %3").arg(row.cells[0].text, row.cells[1].text, row.cells[2].text).trimmed();
    }
    const QString text =
        tr("The material was fitted to these tests: %1, residual %2, R² %3.")
            .arg(constitutiveWord(fit.model), percent(fit.residual), vxPlot::numberText(fit.rSquared, digits));
    return constants.isEmpty() ? text : text + QLatin1Char('\n') + constants.join(QStringLiteral(", "));
}

QString modelName(const FitResult& result)
{
    return constitutiveWord(result.model);
}

TableContent testTable(const std::vector<LoadedTest>& tests)
{
    TableContent table{{}, {tr("Test"), tr("Kind"), tr("Points"), tr("Weight")}, {}};
    for (const LoadedTest& test : tests)
        table.rows.push_back(
            {{textCell(QString::fromStdString(test.request.name)),
              {test.mode ? modeText(*test.mode) : tr("to be chosen")},
              {test.reading.data ? QString::number(test.reading.data->abscissas.size()) : QString(QChar(0x2013))},
              {vxPlot::numberText(test.request.weight, digits)}}});
    if (tests.empty())
        table.headers.clear();
    return table;
}

TableContent modelTable(const std::vector<FitResult>& results)
{
    const bool hasPrice = std::any_of(results.begin(), results.end(), [](const FitResult& result) {
        return result.residualWithoutStability.has_value();
    });
    TableContent table{{}, {tr("Model"), tr("Residual"), tr("R²")}, {}};
    if (hasPrice)
        table.headers << tr("Without stability");
    table.headers << tr("Stable");
    for (const FitResult& result : results) {
        const bool isDone = result.status != FitStatus::Failed;
        Row row{{textCell(modelName(result)),
                 {statusText(result)},
                 {isDone ? vxPlot::numberText(result.rSquared, digits) : QString()}}};
        if (hasPrice)
            row.cells.push_back(
                {result.residualWithoutStability ? percent(*result.residualWithoutStability) : QString()});
        row.cells.push_back(textCell(stableText(result)));
        table.rows.push_back(std::move(row));
    }
    if (results.empty())
        table.headers.clear();
    return table;
}

TableContent constantTable(const FitResult& result, const vxUnits::UnitSystem& system)
{
    TableContent table{{}, {tr("Constant"), tr("Value"), tr("Unit"), tr("Remark")}, {}};
    for (const vxConstitutive::FittedConstant& constant : result.constants)
        table.rows.push_back(constantRow(constant, system));
    for (Row& row : hardeningRows(result, system))
        table.rows.push_back(std::move(row));
    for (const vxConstitutive::TestAgreement& test : result.tests)
        table.rows.push_back(agreementRow(test));
    for (const vxConstitutive::Finding& finding : result.findings)
        table.rows.push_back(findingRow(finding, system));
    return table;
}

vxPlot::PlotData fitPlot(const std::vector<const TestData*>& tests, const std::vector<const FitResult*>& results,
                         const vxUnits::UnitSystem& system)
{
    vxPlot::CurvePlotRequest request;
    request.system = system;
    request.translator = constitutiveTranslator();
    std::deque<vxConstitutive::Curve> curves; // which does not move them
    const auto add = [&](Mode mode, const vxConstitutive::Range& range, bool isMeasured) {
        for (const FitResult* const result : results) {
            if (result->fitted == nullptr || (!isMeasured && !hasMode(*result->fitted, mode)))
                continue;
            curves.push_back(result->fitted->curve(requestOf(mode, withStart(mode, range), tests)));
            request.curves.push_back({modelName(*result).toStdString(), &curves.back(), isMeasured});
        }
    };
    const std::map<Mode, vxConstitutive::Range> measured = rangesOf(tests);
    for (const auto& [mode, range] : measured)
        add(mode, range, true);
    for (const auto& [mode, range] : notMeasured(measured))
        add(mode, range, false);
    for (const TestData* const test : tests)
        request.tests.push_back({test->name, test});
    return vxPlot::curvePlot(request);
}

} // namespace vxInspector
