#include "vxConstitutive/response/ViscoElasticModel.h"

#include "CurveBuilder.h"

#include <cmath>
#include <limits>

namespace vxConstitutive {

namespace {

constexpr double twoPi = 6.28318530717958647692;

/// The columns of a mode, with and without a shear modulus.
struct Columns
{
    Quantity response;
    const char* unit;
    const char* slopeUnit;
    const char* relativeSlopeUnit;
};

Columns columnsOf(Mode mode)
{
    if (mode == Mode::ShearCreep)
        return {Quantity::CreepCompliance, "1/Pa", "1/(Pa.s)", "1/s"};
    if (mode == Mode::Dynamic)
        return {Quantity::StorageModulus, "Pa", "Pa.s", "s"};
    return {Quantity::RelaxationModulus, "Pa", "Pa/s", "1/s"};
}

} // namespace

ViscoElasticModel::ViscoElasticModel(double ratio, double relaxationTime, std::optional<double> shearModulus)
    : Model(ModelKind::ViscoElasticity), m_ratio(ratio), m_time(relaxationTime), m_shearModulus(shearModulus)
{
    const std::string name = modelRecord(kind()).name;
    if (ratio > 1.0)
        note(makeFinding(FindingId::RelaxationRatioModulus, {ratio}));
    else if (!(ratio >= 0.0 && ratio < 1.0))
        note(makeFinding(FindingId::RelaxationRatioOutside, {ratio}));
    if (!(relaxationTime > 0.0))
        note(makeFinding(FindingId::ConstantNotPositive, {name, std::string("relaxation time"), relaxationTime}));
    if (shearModulus && !(*shearModulus > 0.0))
        note(makeFinding(FindingId::ConstantNotPositive, {name, std::string("shear modulus"), *shearModulus}));
    if (!shearModulus)
        note(makeFinding(FindingId::ModulusMissing, {name}));
}

ViscoElasticModel::~ViscoElasticModel() = default;

std::vector<Mode> ViscoElasticModel::modes() const
{
    return {Mode::Relaxation, Mode::ShearCreep, Mode::Dynamic};
}

std::vector<double> ViscoElasticModel::row(Mode mode, double abscissa) const
{
    const double modulus = m_shearModulus.value_or(1.0);
    const double rest = 1.0 - m_ratio;
    if (mode == Mode::Relaxation) {
        const double relaxing = m_ratio * std::exp(-abscissa / m_time);
        return {abscissa, modulus * (rest + relaxing), -modulus * relaxing / m_time};
    }
    if (mode == Mode::ShearCreep) {
        // This form keeps the digits for g near 1: (1 - exp(-rest x))/rest tends to x.
        const double x = abscissa / m_time;
        const double flow = rest == 0.0 ? x : -std::expm1(-rest * x) / rest;
        return {abscissa, (1.0 + m_ratio * flow) / modulus, m_ratio * std::exp(-rest * x) / (m_time * modulus)};
    }
    const double x = twoPi * abscissa * m_time;
    const double square = x * x;
    const double inPhase = std::isinf(square) ? 1.0 : square / (1.0 + square);
    const double outOfPhase = 1.0 / (1.0 / x + x);
    const double storage = modulus * (rest + m_ratio * inPhase);
    const double loss = x == 0.0 ? 0.0 : modulus * m_ratio * outOfPhase;
    const double slope = modulus * m_ratio * 2.0 * x * twoPi * m_time / ((1.0 + square) * (1.0 + square));
    return {abscissa, storage, loss, loss / storage, slope};
}

Curve ViscoElasticModel::curve(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    if (builder.refused())
        return builder.take();
    const Columns columns = columnsOf(request.mode);
    const Relative relative = m_shearModulus ? Relative::No : Relative::ToShearModulus;
    const auto add = [&](Quantity quantity, const char* unit) {
        builder.add(quantity, m_shearModulus ? unit : "1", std::nullopt, relative);
    };
    builder.add(modeRecord(request.mode).abscissa);
    add(columns.response, columns.unit);
    if (request.mode == Mode::Dynamic) {
        add(Quantity::LossModulus, "Pa");
        builder.add(Quantity::LossFactor);
    }
    if (request.detail == Detail::Full)
        builder.add(Quantity::Slope, m_shearModulus ? columns.slopeUnit : columns.relativeSlopeUnit, std::nullopt,
                    relative);
    if (!m_shearModulus)
        builder.note(makeFinding(FindingId::NormalisedByModulus));

    const bool usable = m_time > 0.0 && std::isfinite(m_time);
    for (const double abscissa : request.abscissas) {
        if (builder.checkDomain(abscissa, usable && abscissa >= 0.0 && std::isfinite(abscissa)))
            builder.row(row(request.mode, abscissa));
    }
    return builder.take();
}

std::vector<Constant> ViscoElasticModel::constants() const
{
    std::vector<Constant> list{
        {"relaxing part", "g", "1", m_ratio, Origin::Given},
        {"relaxation time", "tau", "s", m_time, Origin::Given},
    };
    if (m_shearModulus) {
        list.push_back({"instantaneous shear modulus", "G0", "Pa", *m_shearModulus, Origin::Derived});
        list.push_back({"long-term shear modulus", "Ginf", "Pa", *m_shearModulus * (1.0 - m_ratio), Origin::Derived});
    }
    return list;
}

} // namespace vxConstitutive
