#include "vxConstitutive/response/LinearElasticModel.h"

#include "CurveBuilder.h"

#include <algorithm>
#include <cmath>

namespace vxConstitutive {

namespace {

/// The largest strain for which Hooke's law is valid.
constexpr double smallStrain = 0.05;

} // namespace

LinearElasticModel::LinearElasticModel(double youngsModulus, double poissonsRatio)
    : Model(ModelKind::LinearElasticity), m_youngsModulus(youngsModulus), m_poissonsRatio(poissonsRatio)
{
    if (!(youngsModulus > 0.0))
        note(makeFinding(FindingId::ConstantNotPositive,
                         {std::string(modelRecord(kind()).name), std::string("Young's modulus"), youngsModulus}));
    if (!(poissonsRatio > -1.0 && poissonsRatio < 0.5))
        note(makeFinding(FindingId::PoissonsRatioOutside, {poissonsRatio}));
}

LinearElasticModel::~LinearElasticModel() = default;

std::vector<Mode> LinearElasticModel::modes() const
{
    return {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar, Mode::SimpleShear, Mode::Volumetric};
}

double LinearElasticModel::stiffness(Mode mode, double poissonsRatio) const
{
    const double nu = poissonsRatio;
    switch (mode) {
    case Mode::Equibiaxial:
        return m_youngsModulus / (1.0 - nu);
    case Mode::Planar:
        return m_youngsModulus / (1.0 - nu * nu);
    case Mode::SimpleShear:
        return m_youngsModulus / (2.0 * (1.0 + nu));
    case Mode::Volumetric:
        return m_youngsModulus / (1.0 - 2.0 * nu);
    default:
        return m_youngsModulus;
    }
}

Curve LinearElasticModel::curve(const CurveRequest& request) const
{
    CurveBuilder builder(*this, request);
    if (builder.refused())
        return builder.take();
    const bool incompressible = request.compressibility == Compressibility::Incompressible;
    if (incompressible && request.mode == Mode::Volumetric) {
        builder.note(makeFinding(FindingId::VolumetricNeedsD1, {std::string(modelRecord(kind()).name)}));
        return builder.take();
    }

    const bool shear = request.mode == Mode::SimpleShear;
    const double modulus = stiffness(request.mode, incompressible ? 0.5 : m_poissonsRatio);
    const double rest = shear ? 0.0 : 1.0;
    builder.add(modeRecord(request.mode).abscissa);
    builder.add(shear ? Quantity::NominalShearStress : Quantity::NominalStress);
    builder.add(shear ? Quantity::TrueShearStress : Quantity::TrueStress);
    if (request.detail == Detail::Full)
        builder.add(Quantity::Slope, "Pa");
    for (const double abscissa : request.abscissas) {
        const double stress = modulus * (abscissa - rest);
        if (builder.checkDomain(abscissa, std::isfinite(abscissa) && (shear || abscissa > 0.0)))
            builder.row({abscissa, stress, stress, modulus});
    }
    if (const auto range = builder.abscissaRange()) {
        const double largest = std::max(std::fabs(range->from - rest), std::fabs(range->to - rest));
        if (largest > smallStrain)
            builder.note(makeFinding(FindingId::SmallStrainExceeded, {largest}));
    }
    return builder.take();
}

std::vector<Constant> LinearElasticModel::constants() const
{
    return {
        {"Young's modulus", "E", "Pa", m_youngsModulus, Origin::Given},
        {"Poisson's ratio", "nu", "1", m_poissonsRatio, Origin::Given},
        {"shear modulus", "G", "Pa", stiffness(Mode::SimpleShear, m_poissonsRatio), Origin::Derived},
        {"bulk modulus", "K", "Pa", stiffness(Mode::Volumetric, m_poissonsRatio) / 3.0, Origin::Derived},
    };
}

} // namespace vxConstitutive
