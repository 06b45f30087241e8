#include "vxConstitutive/response/HyperelasticModel.h"

#include "CurveBuilder.h"

#include "response/TestResponse.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>

namespace vxConstitutive {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Above this ratio, the incompressible and the compressible curve are not compared.
constexpr double practicallyIncompressible = 100.0;

StrainEnergy energyOf(const HyperelasticConstants& constants, ChainStatistics chains)
{
    if (constants.kind == ModelKind::ArrudaBoyce)
        return StrainEnergy::arrudaBoyce(constants.mu, constants.limitingStretch, chains);
    if (constants.kind == ModelKind::MooneyRivlin)
        return StrainEnergy::mooneyRivlin(constants.c10, constants.c01, constants.c11);
    return StrainEnergy::mooneyRivlin(constants.c10);
}

VolumetricEnergy volumetricOf(const HyperelasticConstants& constants, Compressibility compressibility)
{
    const auto form = constants.kind == ModelKind::ArrudaBoyce ? VolumetricEnergy::Form::Logarithmic
                                                               : VolumetricEnergy::Form::Quadratic;
    return {form, compressibility == Compressibility::Incompressible ? 0.0 : constants.d1};
}

double restOf(Mode mode)
{
    return mode == Mode::SimpleShear ? 0.0 : 1.0;
}

bool isInDomain(Mode mode, double abscissa)
{
    return std::isfinite(abscissa) && (mode == Mode::SimpleShear || abscissa > 0.0);
}

void addColumns(CurveBuilder& builder, Mode mode, Detail detail)
{
    const bool shear = mode == Mode::SimpleShear;
    builder.add(modeRecord(mode).abscissa);
    builder.add(shear ? Quantity::NominalShearStress : Quantity::NominalStress);
    builder.add(shear ? Quantity::TrueShearStress : Quantity::TrueStress);
    if (detail == Detail::Stresses)
        return;
    builder.add(Quantity::Slope, "Pa");
    builder.add(shear ? Quantity::NormalStressDifference : Quantity::LateralStretch);
    builder.add(Quantity::VolumeRatio);
}

void addRow(CurveBuilder& builder, Mode mode, double abscissa, const TestPoint& point)
{
    if (!point.inEquilibrium) {
        builder.noEquilibrium(abscissa);
        return;
    }
    const double fifth = mode == Mode::SimpleShear ? point.normalStressDifference : point.lateralStretch;
    builder.row({abscissa, point.nominalStress, point.trueStress, point.slope, fifth, point.volumeRatio});
}

/// Returns a number for a sentence, with three digits.
std::string rounded(double number)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::setprecision(3) << number;
    return text.str();
}

/// Notes the largest factor between the incompressible curve and the compressible one.
void compareWithCompressible(CurveBuilder& builder, TestResponse compressible)
{
    double largest = 1.0;
    double where = 1.0;
    const auto& abscissas = builder.values(0);
    const auto& stresses = builder.values(1);
    for (std::size_t i = 0; i < abscissas.size(); ++i) {
        const double other = compressible.at(abscissas[i]).nominalStress;
        const double ratio = std::fabs(stresses[i]) / std::fabs(other);
        const double factor = std::max(ratio, 1.0 / ratio);
        if (std::isfinite(factor) && factor > largest) {
            largest = factor;
            where = abscissas[i];
        }
    }
    builder.note(makeFinding(FindingId::DrawnIncompressible, {largest, where}));
}

} // namespace

double poissonsRatio(double bulk, double shear)
{
    return std::isinf(bulk) ? 0.5 : (3.0 * bulk - 2.0 * shear) / (6.0 * bulk + 2.0 * shear);
}

HyperelasticModel::HyperelasticModel(const HyperelasticConstants& constants)
    : Model(constants.kind),
      m_constants(constants),
      m_energy(energyOf(constants, ChainStatistics::FiveTermSeries)),
      m_volumetric(volumetricOf(constants, Compressibility::AsGiven))
{
    examine();
}

HyperelasticModel::~HyperelasticModel() = default;

void HyperelasticModel::examine()
{
    const std::string name = modelRecord(kind()).name;
    const double shear = m_energy.initialShearModulus();
    if (!(shear > 0.0))
        note(makeFinding(FindingId::InitialModulusNegative, {name, shear}));
    if (kind() == ModelKind::ArrudaBoyce) {
        if (!(m_constants.limitingStretch > 1.0))
            note(makeFinding(FindingId::LimitingStretchTooLow, {m_constants.limitingStretch}));
        note(makeFinding(FindingId::InitialModulusDerived, {m_constants.mu, shear}));
    }
    const double ratio = m_volumetric.initialBulkModulus() / shear;
    if (ratio > 0.0 && ratio < nearlyIncompressible)
        note(makeFinding(FindingId::FarFromIncompressible, {ratio, poissonsRatio(ratio, 1.0)}));
}

std::vector<Mode> HyperelasticModel::modes() const
{
    return {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar, Mode::SimpleShear, Mode::Volumetric};
}

Curve HyperelasticModel::curve(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    const VolumetricEnergy volumetric = volumetricOf(m_constants, request.compressibility);
    if (builder.refused())
        return builder.take();
    if (request.mode == Mode::Volumetric && volumetric.isIncompressible()) {
        builder.note(makeFinding(FindingId::VolumetricNeedsD1, {std::string(modelRecord(kind()).name)}));
        return builder.take();
    }

    TestResponse response(request.mode, energyOf(m_constants, request.chains), volumetric);
    addColumns(builder, request.mode, request.detail);
    for (const double abscissa : request.abscissas) {
        if (builder.checkDomain(abscissa, isInDomain(request.mode, abscissa)))
            addRow(builder, request.mode, abscissa, response.at(abscissa));
    }
    noteInstability(builder, response);
    noteChains(builder, response);
    const double ratio = m_volumetric.initialBulkModulus() / m_energy.initialShearModulus();
    const bool changesVolume = request.mode != Mode::SimpleShear && request.mode != Mode::Volumetric;
    if (request.compressibility == Compressibility::Incompressible && changesVolume && ratio > 0.0 &&
        ratio < practicallyIncompressible)
        compareWithCompressible(builder,
                                TestResponse(request.mode, energyOf(m_constants, request.chains), m_volumetric));
    return builder.take();
}

void HyperelasticModel::noteInstability(CurveBuilder& builder, TestResponse& response) const
{
    const Mode mode = builder.request().mode;
    const std::optional<Range> range = builder.abscissaRange();
    if (!range || response.isStableEverywhere())
        return;
    const auto margin = [&](double abscissa) { return response.stabilityMargin(abscissa); };
    const StabilityReport report = findInstability(margin, restOf(mode), *range);
    builder.setUnstable(report.unstable);
    const auto tell = [&](FindingId id, double abscissa) {
        const ModeRecord& record = modeRecord(mode);
        builder.note(makeFinding(
            id, {std::string(record.name), rounded(abscissa), std::string(quantityRecord(record.abscissa).name)}));
    };
    if (report.firstBelow)
        tell(FindingId::UnstableBelow, *report.firstBelow);
    if (report.firstAbove)
        tell(FindingId::UnstableFrom, *report.firstAbove);
}

void HyperelasticModel::noteChains(CurveBuilder& builder, TestResponse& response) const
{
    const std::optional<Range> range = builder.abscissaRange();
    const Mode mode = builder.request().mode;
    if (kind() != ModelKind::ArrudaBoyce || mode == Mode::Volumetric || !range || !(m_constants.limitingStretch > 1.0))
        return;

    // The stretch of the chains is largest at one end of the range.
    const double low = m_energy.partOfLimit(response.firstInvariant(range->from));
    const double high = m_energy.partOfLimit(response.firstInvariant(range->to));
    const double part = std::max(low, high);
    const double abscissa = low > high ? range->from : range->to;
    if (part >= 1.0) {
        const double above = lockingStretch(mode);
        builder.note(makeFinding(FindingId::LockingInsideRange, {std::string(modeRecord(mode).name), above, abscissa}));
        return;
    }
    const double limit = m_constants.limitingStretch;
    const double invariant = 3.0 * part * part * limit * limit;
    const double series = m_energy.slopes(invariant, 0.0).w1;
    const double exact = energyOf(m_constants, ChainStatistics::InverseLangevin).slopes(invariant, 0.0).w1;
    constexpr double percent = 100.0;
    const double deviation = percent * (1.0 - series / exact);
    if (deviation > 1.0)
        builder.note(makeFinding(FindingId::SeriesFarFromLangevin, {abscissa, deviation, part}));
}

double HyperelasticModel::initialShearModulus() const
{
    return m_energy.initialShearModulus();
}

StabilityReport HyperelasticModel::stability(Mode mode, Range range, Compressibility compressibility) const
{
    TestResponse response(mode, m_energy, volumetricOf(m_constants, compressibility));
    if (response.isStableEverywhere())
        return {};
    return findInstability([&](double abscissa) { return response.stabilityMargin(abscissa); }, restOf(mode), range);
}

double HyperelasticModel::lockingStretch(Mode mode) const
{
    if (kind() != ModelKind::ArrudaBoyce || mode == Mode::Volumetric)
        return infinity;
    if (!(m_constants.limitingStretch > 1.0))
        return restOf(mode);
    const double limit = 3.0 * m_constants.limitingStretch * m_constants.limitingStretch;
    if (mode == Mode::SimpleShear)
        return std::sqrt(limit - 3.0);

    // The first invariant rises with the stretch and is not less than the square of the stretch.
    double low = 0.0;
    double high = 0.5 * std::log(limit);
    for (int step = 0; step < 60; ++step) {
        const double middle = 0.5 * (low + high);
        const Triple shape = testPath(mode).shape(middle, 0.0);
        const double invariant = shape[0] * shape[0] + shape[1] * shape[1] + shape[2] * shape[2];
        (invariant < limit ? low : high) = middle;
    }
    return std::exp(high);
}

std::vector<Constant> HyperelasticModel::constants() const
{
    std::vector<Constant> list;
    const auto given = [&](const char* name, const char* symbol, const char* unit, double value) {
        list.push_back({name, symbol, unit, value, Origin::Given});
    };
    if (kind() == ModelKind::ArrudaBoyce) {
        given("factor of the series", "mu", "Pa", m_constants.mu);
        given("limiting stretch", "lm", "1", m_constants.limitingStretch);
    } else {
        given("first constant", "C10", "Pa", m_constants.c10);
    }
    if (kind() == ModelKind::MooneyRivlin) {
        given("second constant", "C01", "Pa", m_constants.c01);
        given("mixed constant", "C11", "Pa", m_constants.c11);
    }
    if (!m_volumetric.isIncompressible())
        given("compressibility", "D1", "1/Pa", m_constants.d1);

    const double shear = m_energy.initialShearModulus();
    const double bulk = m_volumetric.initialBulkModulus();
    const double poisson = poissonsRatio(bulk, shear);
    const auto derived = [&](const char* name, const char* symbol, const char* unit, double value) {
        list.push_back({name, symbol, unit, value, Origin::Derived});
    };
    derived("initial shear modulus", "mu0", "Pa", shear);
    derived("initial Young's modulus", "E0", "Pa", 2.0 * shear * (1.0 + poisson));
    derived("initial Poisson's ratio", "nu0", "1", poisson);
    if (!m_volumetric.isIncompressible())
        derived("initial bulk modulus", "K0", "Pa", bulk);
    return list;
}

} // namespace vxConstitutive
