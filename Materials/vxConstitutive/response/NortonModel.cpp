#include "vxConstitutive/response/NortonModel.h"

#include "CurveBuilder.h"

#include <cmath>

namespace vxConstitutive {

namespace {

/// CalculiX replaces a smaller A by this value.
constexpr double smallestOfSolver = 1e-20;

/// Returns a |x|^n with the sign of x. Uses logarithms, since a and x^n alone may be outside the range of a double.
double signedPower(double a, double x, double n)
{
    if (x == 0.0 || a == 0.0)
        return n == 0.0 ? a : 0.0;
    return std::copysign(std::exp(std::log(std::fabs(a)) + n * std::log(std::fabs(x))), a * std::copysign(1.0, x));
}

/// Notes the largest strain if it is above 1. The stress is that of its column.
void noteLargeStrain(CurveBuilder& builder)
{
    constexpr double largestValid = 1.0;
    const std::vector<double>& stresses = builder.request().stresses;
    double largest = largestValid;
    double stress = 0.0;
    for (std::size_t i = 0; i < stresses.size(); ++i)
        for (const double strain : builder.values(i + 1))
            if (std::isfinite(strain) && std::fabs(strain) > largest) {
                largest = std::fabs(strain);
                stress = stresses[i];
            }
    if (largest > largestValid)
        builder.note(makeFinding(FindingId::CreepStrainLarge, {largest, stress}));
}

} // namespace

NortonModel::NortonModel(double a, double stressExponent, double timeExponent)
    : Model(ModelKind::NortonCreep), m_a(a), m_stressExponent(stressExponent), m_timeExponent(timeExponent)
{
    if (!(a > 0.0))
        note(makeFinding(FindingId::ConstantNotPositive,
                         {std::string(modelRecord(kind()).name), std::string("creep constant"), a}));
    else if (a < smallestOfSolver)
        note(makeFinding(FindingId::CreepConstantSmall, {a}));
    if (!(stressExponent > 0.0))
        note(makeFinding(FindingId::CreepStressExponent, {stressExponent}));
    if (!(timeExponent > -1.0 && timeExponent <= 0.0))
        note(makeFinding(FindingId::CreepTimeExponent, {timeExponent}));
}

NortonModel::~NortonModel() = default;

std::vector<Mode> NortonModel::modes() const
{
    return {Mode::Creep, Mode::CreepRate};
}

double NortonModel::rate(double stress, double time) const
{
    return signedPower(m_a, stress, m_stressExponent) * std::pow(time, m_timeExponent);
}

double NortonModel::strain(double stress, double time) const
{
    return signedPower(m_a, stress, m_stressExponent) * std::pow(time, m_timeExponent + 1.0) / (m_timeExponent + 1.0);
}

Curve NortonModel::curve(const CurveRequest& request) const
{
    return request.mode == Mode::CreepRate ? rates(request) : strains(request);
}

Curve NortonModel::strains(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    if (builder.refused())
        return builder.take();
    if (request.stresses.empty()) {
        builder.note(makeFinding(FindingId::StressesMissing));
        return builder.take();
    }
    const bool full = request.detail == Detail::Full;
    builder.add(Quantity::Time);
    for (const double stress : request.stresses)
        builder.add(Quantity::CreepStrain, nullptr, stress);
    for (std::size_t i = 0; full && i < request.stresses.size(); ++i)
        builder.add(Quantity::Slope, "1/s", request.stresses[i]);
    for (const double time : request.abscissas) {
        // If m <= -1, the strain is infinite immediately after loading.
        if (!builder.checkDomain(time, time >= 0.0 && std::isfinite(time) && m_timeExponent > -1.0))
            continue;
        std::vector<double> row{time};
        for (const double stress : request.stresses)
            row.push_back(strain(stress, time));
        for (std::size_t i = 0; full && i < request.stresses.size(); ++i)
            row.push_back(rate(request.stresses[i], time));
        builder.row(row);
    }
    noteLargeStrain(builder);
    return builder.take();
}

Curve NortonModel::rates(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    builder.add(Quantity::Stress);
    builder.add(Quantity::CreepStrainRate, nullptr, request.time);
    if (request.detail == Detail::Full)
        builder.add(Quantity::Slope, "1/(Pa.s)", request.time);
    for (const double stress : request.abscissas) {
        if (!builder.checkDomain(stress, std::isfinite(stress)))
            continue;
        const double value = rate(stress, request.time);
        builder.row({stress, value, m_stressExponent * value / stress});
    }
    return builder.take();
}

std::vector<Constant> NortonModel::constants() const
{
    return {
        {"creep constant", "A", "Pa^-n s^-(m+1)", m_a, Origin::Given},
        {"stress exponent", "n", "1", m_stressExponent, Origin::Given},
        {"time exponent", "m", "1", m_timeExponent, Origin::Given},
    };
}

} // namespace vxConstitutive
