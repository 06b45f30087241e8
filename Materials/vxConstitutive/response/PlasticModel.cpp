#include "vxConstitutive/response/PlasticModel.h"

#include "CurveBuilder.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace vxConstitutive {

namespace {

/// No metal has a hardening modulus above this part of Young's modulus.
constexpr double stiffPart = 0.1;

} // namespace

/// A state of a bar in tension; magnitudes.
struct PlasticModel::State
{
    double stress = 0.0;
    double plasticStrain = 0.0;
    double stressSlope = 0.0; ///< of the true stress by the logarithmic strain
};

PlasticModel::PlasticModel(double initialYieldStress, double hardeningModulus, std::optional<ElasticConstants> elastic)
    : Model(ModelKind::MisesPlasticity),
      m_points{{0.0, initialYieldStress}},
      m_lastModulus(hardeningModulus),
      m_bilinear(true),
      m_elastic(elastic)
{
    examine();
}

PlasticModel::PlasticModel(const std::vector<HardeningPoint>& points, std::optional<ElasticConstants> elastic)
    : Model(ModelKind::MisesPlasticity), m_elastic(elastic)
{
    double row = 0.0;
    for (const HardeningPoint& point : points) {
        row += 1.0;
        const bool rises = m_points.empty() || point.plasticStrain > m_points.back().plasticStrain;
        if (rises)
            m_points.push_back(point);
        else
            note(makeFinding(FindingId::TableStrainsNotRising, {row, point.plasticStrain}));
    }
    if (m_points.front().plasticStrain != 0.0)
        note(makeFinding(FindingId::TableFirstStrain, {m_points.front().plasticStrain}));
    examine();
}

PlasticModel::~PlasticModel() = default;

void PlasticModel::examine()
{
    const std::string name = modelRecord(kind()).name;
    if (!(m_points.front().stress > 0.0))
        note(makeFinding(FindingId::ConstantNotPositive, {name, std::string("yield stress"), m_points.front().stress}));
    double stiffest = 0.0;
    bool falls = false;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        stiffest = std::max(stiffest, modulusOf(i));
        if (modulusOf(i) < 0.0 && !falls) {
            note(makeFinding(FindingId::HardeningFalls, {m_points[i].plasticStrain}));
            falls = true;
        }
    }
    if (m_elastic && stiffest > stiffPart * m_elastic->youngsModulus)
        note(makeFinding(FindingId::HardeningStiff, {stiffest, m_elastic->youngsModulus}));
}

std::vector<Mode> PlasticModel::modes() const
{
    return {Mode::Plastic, Mode::Tensile, Mode::Yield};
}

double PlasticModel::modulusOf(std::size_t segment) const
{
    if (segment + 1 >= m_points.size())
        return m_lastModulus;
    const HardeningPoint& from = m_points[segment];
    const HardeningPoint& to = m_points[segment + 1];
    return (to.stress - from.stress) / (to.plasticStrain - from.plasticStrain);
}

std::size_t PlasticModel::segmentAt(double plasticStrain) const
{
    const auto above =
        std::upper_bound(m_points.begin() + 1, m_points.end(), plasticStrain,
                         [](double strain, const HardeningPoint& point) { return strain < point.plasticStrain; });
    return static_cast<std::size_t>(above - m_points.begin()) - 1;
}

double PlasticModel::stressAt(double plasticStrain) const
{
    const std::size_t segment = segmentAt(plasticStrain);
    const HardeningPoint& from = m_points[segment];
    return from.stress + modulusOf(segment) * std::max(0.0, plasticStrain - from.plasticStrain);
}

Curve PlasticModel::curve(const CurveRequest& request) const
{
    if (request.mode == Mode::Plastic)
        return hardeningCurve(request);
    if (request.mode == Mode::Tensile)
        return tensileCurve(request);
    return yieldCurve(request);
}

Curve PlasticModel::hardeningCurve(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    builder.add(Quantity::PlasticStrain);
    builder.add(Quantity::TrueStress);
    if (request.detail == Detail::Full)
        builder.add(Quantity::Slope, "Pa");
    for (const double strain : request.abscissas) {
        if (builder.checkDomain(strain, strain >= 0.0 && std::isfinite(strain)))
            builder.row({strain, stressAt(strain), modulusOf(segmentAt(strain))});
    }
    const auto range = builder.abscissaRange();
    if (!m_bilinear && range && range->to > m_points.back().plasticStrain)
        builder.note(makeFinding(FindingId::PastLastRow, {m_points.back().plasticStrain}));
    return builder.take();
}

PlasticModel::State PlasticModel::stateAt(double logStrain) const
{
    const double modulus = m_elastic->youngsModulus;
    const double trial = modulus * logStrain;
    if (trial <= m_points.front().stress)
        return {trial, 0.0, modulus};

    // In each segment, the elastic and the plastic strain rise linearly with the stress.
    std::size_t segment = 0;
    while (segment + 1 < m_points.size() &&
           m_points[segment + 1].stress / modulus + m_points[segment + 1].plasticStrain < logStrain)
        ++segment;
    const HardeningPoint& from = m_points[segment];
    const double hardening = modulusOf(segment);
    const double start = from.plasticStrain + from.stress / modulus;
    const double plasticStrain = from.plasticStrain + (logStrain - start) / (1.0 + hardening / modulus);
    const double stress = from.stress + hardening * (plasticStrain - from.plasticStrain);
    return {stress, plasticStrain, hardening / (1.0 + hardening / modulus)};
}

std::optional<PlasticModel::Necking> PlasticModel::necking() const
{
    if (!m_elastic)
        return std::nullopt;
    const double lateral = 2.0 * m_elastic->poissonsRatio / m_elastic->youngsModulus;
    // The force can be largest within several segments: a plateau after yield is one, and hardening passes it.
    std::optional<Necking> largest;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const double modulus = modulusOf(i);
        const HardeningPoint& from = m_points[i];
        // The stress at which the force would be largest if this segment had no end.
        const double critical = modulus > 0.0 ? 1.0 / (1.0 / modulus + lateral) : 0.0;
        const double stress = std::max(critical, from.stress);
        const bool inside = i + 1 == m_points.size() || stress < m_points[i + 1].stress || modulus <= 0.0;
        if (!inside)
            continue;
        const double plastic = from.plasticStrain + (modulus > 0.0 ? (stress - from.stress) / modulus : 0.0);
        const Necking result{std::expm1(plastic + stress / m_elastic->youngsModulus),
                             stress * std::exp(-plastic - lateral * stress), stress};
        if (!largest || result.engineeringStress > largest->engineeringStress)
            largest = result;
    }
    return largest && std::isfinite(largest->engineeringStrain) ? largest : std::nullopt;
}

void PlasticModel::addTensileRow(CurveBuilder& builder, double strain) const
{
    const double lateral = 2.0 * m_elastic->poissonsRatio / m_elastic->youngsModulus;
    const double sign = strain < 0.0 ? -1.0 : 1.0;
    const State state = stateAt(std::fabs(std::log1p(strain)));
    const double area = std::exp(-sign * (state.plasticStrain + lateral * state.stress));
    // The rate at which the logarithm of the cross section decreases.
    const double plasticSlope = 1.0 - state.stressSlope / m_elastic->youngsModulus;
    const double shrinkage = plasticSlope + lateral * state.stressSlope;
    const double slope = area * (state.stressSlope - sign * state.stress * shrinkage) / (1.0 + strain);
    builder.row({strain, sign * state.stress * area, sign * state.stress, slope, sign * state.plasticStrain});
}

Curve PlasticModel::tensileCurve(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    if (!m_elastic) {
        builder.note(makeFinding(FindingId::ModulusMissing, {std::string(modelRecord(kind()).name)}));
        return builder.take();
    }
    builder.add(Quantity::EngineeringStrain);
    builder.add(Quantity::NominalStress);
    builder.add(Quantity::TrueStress);
    if (request.detail == Detail::Full) {
        builder.add(Quantity::Slope, "Pa");
        builder.add(Quantity::PlasticStrain);
    }

    const std::optional<Necking> neck = necking();
    const double end = neck ? neck->engineeringStrain : std::numeric_limits<double>::infinity();
    for (const double strain : request.abscissas) {
        if (!builder.checkDomain(strain, strain > -1.0 && std::isfinite(strain)))
            continue;
        if (strain > end)
            builder.gap(strain);
        else
            addTensileRow(builder, strain);
    }
    if (neck)
        builder.note(makeFinding(FindingId::NeckingAt, {neck->engineeringStrain, neck->engineeringStress}));
    if (builder.largestGap() > end)
        builder.setUnstable({{end, builder.largestGap()}});
    return builder.take();
}

Curve PlasticModel::yieldCurve(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    if (builder.refused())
        return builder.take();
    builder.add(Quantity::Pressure);
    builder.add(Quantity::MisesStress);
    for (const double pressure : request.abscissas) {
        if (builder.checkDomain(pressure, std::isfinite(pressure)))
            builder.row({pressure, m_points.front().stress});
    }
    return builder.take();
}

std::vector<Constant> PlasticModel::constants() const
{
    std::vector<Constant> list{{"initial yield stress", "sigma0", "Pa", m_points.front().stress, Origin::Given}};
    if (m_bilinear)
        list.push_back({"hardening modulus", "H", "Pa", m_lastModulus, Origin::Given});
    if (m_bilinear && m_elastic)
        list.push_back({"tangent modulus", "Et", "Pa", m_lastModulus / (1.0 + m_lastModulus / m_elastic->youngsModulus),
                        Origin::Derived});
    if (const auto neck = necking()) {
        list.push_back({"engineering strain at necking", "Ag", "1", neck->engineeringStrain, Origin::Derived});
        list.push_back({"tensile strength", "Rm", "Pa", neck->engineeringStress, Origin::Derived});
    }
    return list;
}

} // namespace vxConstitutive
