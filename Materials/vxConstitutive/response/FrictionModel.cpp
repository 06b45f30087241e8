#include "vxConstitutive/response/FrictionModel.h"

#include "CurveBuilder.h"

#include <cmath>
#include <limits>

namespace vxConstitutive {

namespace {

constexpr double pi = 3.14159265358979323846;

/// The line q = slope p + cohesive c.
struct Meridian
{
    double slope;
    double cohesive;
};

struct Meridians
{
    Meridian compression;
    Meridian extension;
    Meridian planeStrain;
};

Meridians meridiansOf(double angleInDegrees)
{
    const double angle = angleInDegrees * pi / 180.0;
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    const double tangent = std::tan(angle);
    const double root = std::sqrt(9.0 + 12.0 * tangent * tangent);
    return {{6.0 * sine / (3.0 - sine), 6.0 * cosine / (3.0 - sine)},
            {6.0 * sine / (3.0 + sine), 6.0 * cosine / (3.0 + sine)},
            {std::sqrt(3.0) * 3.0 * tangent / root, std::sqrt(3.0) * 3.0 / root}};
}

/// Sums that cancel to less than this part of their terms are 0.
constexpr double resolution = 8.0 * std::numeric_limits<double>::epsilon();

/// Returns the Mises stress on a meridian; exactly 0 at the apex.
double stressOn(const Meridian& meridian, double pressure, double cohesion)
{
    const double frictional = meridian.slope * pressure;
    const double cohesive = meridian.cohesive * cohesion;
    const double stress = frictional + cohesive;
    return std::fabs(stress) <= resolution * std::fabs(cohesive) ? 0.0 : stress;
}

bool isAngle(double angle)
{
    return angle >= 0.0 && angle < 90.0;
}

} // namespace

FrictionModel::FrictionModel(const FrictionConstants& constants) : Model(constants.kind), m_constants(constants)
{
    const std::string name = modelRecord(kind()).name;
    const double angle = constants.frictionAngle;
    if (!isAngle(angle))
        note(makeFinding(FindingId::FrictionAngleOutside, {angle}));
    else if (angle > 0.0 && angle < pi / 2.0)
        note(makeFinding(FindingId::FrictionAngleRadian, {angle}));
    note(makeFinding(FindingId::CohesionMissing, {name}));
    note(makeFinding(FindingId::DilationMissing, {name}));
    if (kind() == ModelKind::DruckerPrager)
        note(makeFinding(FindingId::FrictionMatchMissing));
    if (constants.viscosity)
        note(makeFinding(FindingId::ViscosityAmbiguous, {*constants.viscosity}));
}

FrictionModel::~FrictionModel() = default;

std::vector<Mode> FrictionModel::modes() const
{
    return {Mode::Yield};
}

void FrictionModel::addColumns(CurveBuilder& builder) const
{
    const bool known = builder.request().cohesion.has_value();
    const auto add = [&](Quantity quantity) {
        builder.add(quantity, known ? "Pa" : "1", std::nullopt, known ? Relative::No : Relative::ToCohesion);
    };
    const bool cone = kind() == ModelKind::DruckerPrager;
    add(Quantity::Pressure);
    add(cone ? Quantity::MisesStressOuter : Quantity::MisesStressCompression);
    add(cone ? Quantity::MisesStressInner : Quantity::MisesStressExtension);
    if (cone)
        add(Quantity::MisesStressPlaneStrain);
    if (!known)
        builder.note(makeFinding(FindingId::NormalisedByCohesion, {std::string(modelRecord(kind()).name)}));
}

Curve FrictionModel::curve(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    if (builder.refused() || !isAngle(m_constants.frictionAngle))
        return builder.take();
    addColumns(builder);

    const double cohesion = request.cohesion.value_or(1.0);
    const double apex = -cohesion / std::tan(m_constants.frictionAngle * pi / 180.0);
    const Meridians meridians = meridiansOf(m_constants.frictionAngle);
    for (const double pressure : request.abscissas) {
        const auto stress = [&](const Meridian& meridian) { return stressOn(meridian, pressure, cohesion); };
        if (!builder.checkDomain(pressure, std::isfinite(pressure)))
            continue;
        if (pressure < apex - 0.5 * resolution * std::fabs(apex))
            builder.gap(pressure);
        else
            builder.row(
                {pressure, stress(meridians.compression), stress(meridians.extension), stress(meridians.planeStrain)});
    }
    if (std::isfinite(builder.largestGap()))
        builder.note(
            makeFinding(request.cohesion ? FindingId::NoYieldBeyondApex : FindingId::NoYieldBeyondMultiple, {apex}));
    return builder.take();
}

std::vector<Constant> FrictionModel::constants() const
{
    std::vector<Constant> list{{"friction angle", "phi", "degree", m_constants.frictionAngle, Origin::Given}};
    if (m_constants.hardeningModulus)
        list.push_back({"hardening modulus", "H", "Pa", *m_constants.hardeningModulus, Origin::Given});
    return list;
}

} // namespace vxConstitutive
