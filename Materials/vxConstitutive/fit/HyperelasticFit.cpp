#include "vxConstitutive/fit/HyperelasticFit.h"

#include "fit/HyperelasticFitParts.h"
#include "response/PrincipalStress.h"
#include "response/TestResponse.h"
#include "vxConstitutive/fit/EstimateText.h"
#include "vxConstitutive/fit/Ranking.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vxConstitutive {

namespace {

using vxMat::PropertyId;

const std::vector<HyperelasticFormRecord>& formTable()
{
    static const std::vector<HyperelasticFormRecord> table{
        {HyperelasticForm::NeoHooke, "neo-hooke", "Neo-Hookean"},
        {HyperelasticForm::MooneyRivlin, "mooney-rivlin", "Mooney-Rivlin"},
        {HyperelasticForm::MooneyRivlinC11, "mooney-rivlin-c11", "Mooney-Rivlin with C11"},
        {HyperelasticForm::ArrudaBoyce, "arruda-boyce", "Arruda-Boyce"},
    };
    return table;
}

constexpr std::array<Mode, 3> stretchModes{Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar};

VolumetricEnergy incompressible()
{
    return {VolumetricEnergy::Form::Quadratic, 0.0};
}

bool isShapeTest(Mode mode)
{
    return mode == Mode::SimpleShear || std::find(stretchModes.begin(), stretchModes.end(), mode) != stretchModes.end();
}

/// Returns the range of stretches of the tests. The stretch of simple shear is its greatest principal stretch.
Range stretchesOf(const std::vector<const TestData*>& tests)
{
    Range range{1.0, 1.0};
    for (const TestData* test : tests) {
        for (const double abscissa : test->abscissas) {
            const double stretch =
                test->mode == Mode::SimpleShear ? std::exp(logStretchOfShear(std::fabs(abscissa))) : abscissa;
            range = {std::min(range.from, stretch), std::max(range.to, stretch)};
        }
    }
    return range;
}

std::optional<Range> demandedRange(const HyperelasticFitRequest& request, const std::vector<const TestData*>& tests)
{
    if (request.stability == StabilityDemand::None)
        return std::nullopt;
    if (request.stability == StabilityDemand::OverData)
        return stretchesOf(tests);
    const Range& range = request.stableRange;
    return Range{std::min({range.from, range.to, 1.0}), std::max({range.from, range.to, 1.0})};
}

HyperelasticFitData collect(const HyperelasticFitRequest& request, const std::vector<TestData>& tests)
{
    HyperelasticFitData data;
    for (const TestData& test : tests) {
        if (isShapeTest(test.mode))
            data.shapeTests.push_back(&test);
        if (test.mode == Mode::Volumetric)
            data.volumeTests.push_back(&test);
    }
    data.error = request.error;
    data.shape = makeFitSet(data.shapeTests, request.error);
    data.volume = makeFitSet(data.volumeTests, request.error);
    data.bounds = request.bounds;
    data.stableRange = demandedRange(request, data.shapeTests);
    return data;
}

/// Sums over the points of volumetric tests, with the stress that they would have if D1 were 1.
struct VolumeSums
{
    double product = 0.0;  ///< of both stresses
    double square = 0.0;   ///< of the stress for D1 = 1
    double measured = 0.0; ///< square of the measured stress
};

VolumeSums sumVolume(const FitSet& volume, ModelKind kind)
{
    const auto form =
        kind == ModelKind::ArrudaBoyce ? VolumetricEnergy::Form::Logarithmic : VolumetricEnergy::Form::Quadratic;
    const VolumetricEnergy unit(form, 1.0);
    VolumeSums sums;
    for (const FitPoint& point : volume.points) {
        const double stress = point.factor * unit.kirchhoffStress(std::log(point.x)).value / point.x;
        sums.product += stress * point.factor * point.y;
        sums.square += stress * stress;
        sums.measured += point.factor * point.factor * point.y * point.y;
    }
    return sums;
}

/// Fits D1 by linear least squares in 1/D1, to which the stress is proportional.
void fitVolume(const HyperelasticFitData& data, HyperelasticConstants& constants, FitResult& result)
{
    if (!data.volume.usable())
        return;
    const VolumeSums sums = sumVolume(data.volume, constants.kind);
    if (!(sums.product > 0.0)) {
        result.findings.push_back(makeFinding(FindingId::VolumetricIgnored));
        return;
    }
    constants.d1 = sums.square / sums.product;
    FittedConstant d1{
        PropertyId::IncompressibilityParameterD1, "D1", "1/Pa", constants.d1, std::nullopt, Determination::Determined};
    const double freedom = static_cast<double>(data.volume.total) - 1.0;
    const double rest = std::max(0.0, sums.measured - sums.product * sums.product / sums.square);
    if (freedom > 0.0)
        d1.standardError = std::sqrt(rest / freedom / sums.square) * constants.d1 * constants.d1;
    result.constants.push_back(d1);
}

StrainEnergy energyOf(const HyperelasticConstants& constants)
{
    if (constants.kind == ModelKind::ArrudaBoyce)
        return StrainEnergy::arrudaBoyce(constants.mu, constants.limitingStretch);
    return StrainEnergy::mooneyRivlin(constants.c10, constants.c01, constants.c11);
}

/// Returns the stable ranges between the stretches 0.1 and 10.
std::vector<StableRange> stableRangesOf(const HyperelasticModel& model)
{
    constexpr Range looked{0.1, 10.0};
    std::vector<StableRange> ranges;
    for (const Mode mode : stretchModes) {
        const StabilityReport report = model.stability(mode, looked, Compressibility::Incompressible);
        ranges.push_back({mode,
                          {report.firstBelow.value_or(looked.from), report.firstAbove.value_or(looked.to)},
                          report.firstBelow.has_value(),
                          report.firstAbove.has_value()});
    }
    return ranges;
}

MaterialChange changeOf(HyperelasticForm form, const HyperelasticConstants& constants)
{
    const bool arrudaBoyce = form == HyperelasticForm::ArrudaBoyce;
    const bool neoHooke = form == HyperelasticForm::NeoHooke;
    MaterialChange change;
    const auto place = [&](std::int32_t id, bool wanted, double value) {
        if (wanted)
            change.set.push_back({id, value, {}, {}});
        else
            change.remove.push_back(id);
    };
    place(PropertyId::NeoHooke, neoHooke, 1.0);
    place(PropertyId::MooneyRivlin, !neoHooke && !arrudaBoyce, 1.0);
    place(PropertyId::ArrudaBoyce, arrudaBoyce, 1.0);
    place(PropertyId::IsotropicElasticity, false, 0.0);
    place(PropertyId::MaterialConstantC10, !arrudaBoyce, constants.c10);
    place(PropertyId::MaterialConstantC01, !neoHooke && !arrudaBoyce, constants.c01);
    place(PropertyId::MaterialConstantC11, form == HyperelasticForm::MooneyRivlinC11, constants.c11);
    place(PropertyId::InitialShearModulusMu, arrudaBoyce, constants.mu);
    place(PropertyId::LimitingNetworkStretch, arrudaBoyce, constants.limitingStretch);
    if (constants.d1 > 0.0)
        place(PropertyId::IncompressibilityParameterD1, true, constants.d1);
    return change;
}

HyperelasticMinimum minimumOf(HyperelasticForm form, const HyperelasticFitData& data,
                              const std::function<void(double)>& progress)
{
    switch (form) {
    case HyperelasticForm::NeoHooke:
        return fitMooneyRivlin(data, form, 1);
    case HyperelasticForm::MooneyRivlin:
        return fitMooneyRivlin(data, form, 2);
    case HyperelasticForm::MooneyRivlinC11:
        return fitMooneyRivlin(data, form, 3);
    case HyperelasticForm::ArrudaBoyce:
        break;
    }
    return fitArrudaBoyce(data, progress);
}

Prediction predictionOf(const HyperelasticConstants& constants)
{
    return [energy = energyOf(constants)](const TestData& test, double abscissa) {
        return incompressibleStress(energy, test.mode, abscissa);
    };
}

void judgeShape(const HyperelasticFitData& data, const HyperelasticMinimum& minimum, FitResult& result)
{
    judge(result, data.shapeTests, data.error, data.shape, predictionOf(minimum.constants), minimum.freedoms);
    for (const ConstantOfFit& constant : minimum.fitted)
        addConstant(result, constant, data.shape.total, minimum.freedoms);
    if (!minimum.withoutStability)
        return;
    FitResult free;
    judge(free, data.shapeTests, data.error, data.shape, predictionOf(*minimum.withoutStability), minimum.freedoms);
    result.residualWithoutStability = free.residual;
    result.findings.push_back(makeFinding(FindingId::StabilityCost, {roundedText(result.residual, residualDigits),
                                                                     roundedText(free.residual, residualDigits)}));
}

/// Completes the result of a form that has a minimum.
void useMinimum(HyperelasticForm form, const HyperelasticFitData& data, HyperelasticMinimum& minimum, FitResult& result)
{
    judgeShape(data, minimum, result);
    if (data.shape.total <= minimum.freedoms)
        result.findings.push_back(
            makeFinding(FindingId::FewPoints, {result.model, static_cast<double>(data.shape.total)}));
    fitVolume(data, minimum.constants, result);
    auto model = std::make_shared<HyperelasticModel>(minimum.constants);
    if (data.stableRange && !minimum.isStable && !isStable(minimum.constants, *data.stableRange))
        result.findings.push_back(makeFinding(FindingId::StabilityNotReached, {result.model}));
    result.stable = stableRangesOf(*model);
    result.change = changeOf(form, minimum.constants);
    setFitted(result, std::move(model));
}

FitResult fitForm(HyperelasticForm form, const HyperelasticFitData& data, Jobs& jobs)
{
    FitResult result;
    result.model = hyperelasticFormRecord(form).name;
    HyperelasticMinimum minimum = minimumOf(form, data, jobs.progress());
    result.findings = minimum.findings;
    setStatus(result, jobs);
    if (minimum.found)
        useMinimum(form, data, minimum, result);
    else if (result.status == FitStatus::Done)
        result.status = FitStatus::Failed;
    return result;
}

/// Returns the result for a form that cannot be fitted.
FitResult refused(HyperelasticForm form, const HyperelasticFitData& data)
{
    FitResult result;
    result.model = hyperelasticFormRecord(form).name;
    result.findings = data.shape.findings;
    if (data.shape.total == 0)
        result.findings.push_back(makeFinding(FindingId::DataMissing, {result.model}));
    else
        result.findings.push_back(makeFinding(FindingId::NoMinimum, {result.model}));
    return result;
}

} // namespace

double incompressibleStress(const StrainEnergy& energy, Mode mode, double abscissa)
{
    return TestResponse(mode, energy, incompressible()).at(abscissa).nominalStress;
}

double incompressibleInvariant(Mode mode, double abscissa)
{
    return TestResponse(mode, StrainEnergy::mooneyRivlin(1.0), incompressible()).firstInvariant(abscissa);
}

bool isStable(const HyperelasticConstants& constants, Range range)
{
    const HyperelasticModel model(constants);
    return std::all_of(stretchModes.begin(), stretchModes.end(), [&](Mode mode) {
        const StabilityReport report = model.stability(mode, range, Compressibility::Incompressible);
        return report.isStable();
    });
}

const std::vector<HyperelasticForm>& hyperelasticForms()
{
    static const std::vector<HyperelasticForm> forms{HyperelasticForm::NeoHooke, HyperelasticForm::MooneyRivlin,
                                                     HyperelasticForm::MooneyRivlinC11, HyperelasticForm::ArrudaBoyce};
    return forms;
}

const HyperelasticFormRecord& hyperelasticFormRecord(HyperelasticForm form)
{
    return formTable()[static_cast<std::size_t>(form)];
}

std::vector<FitResult> fitHyperelastic(const HyperelasticFitRequest& request, const FitControl& control)
{
    std::vector<Finding> findings;
    const std::vector<TestData> tests = usableTests(request.tests, findings);
    HyperelasticFitData data = collect(request, tests);
    Jobs jobs(control, request.forms.size());
    data.cancelled = jobs.cancelledFunction();
    std::vector<FitResult> results;
    for (const HyperelasticForm form : request.forms) {
        const char* const name = hyperelasticFormRecord(form).name;
        jobs.begin(name);
        results.push_back(data.shape.usable() ? fitWithSolver(name, [&] { return fitForm(form, data, jobs); })
                                              : refused(form, data));
        auto& own = results.back().findings;
        own.insert(own.begin(), findings.begin(), findings.end());
        if (data.shape.usable())
            own.insert(own.begin(), data.shape.findings.begin(), data.shape.findings.end());
    }
    rankFits(results);
    return results;
}

} // namespace vxConstitutive
