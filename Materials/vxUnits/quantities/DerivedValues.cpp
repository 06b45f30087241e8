#include "vxUnits/DerivedValues.h"

#include "vxMaterial/model/PropertyId.h"

#include <cmath>

namespace vxUnits {

namespace {

namespace d = dimensions;
using Id = vxMat::PropertyId;

/// Returns NaN if the material does not have the quantity or if its number is infinite, so that everything computed from it
/// is NaN too.
double numberOrNone(const MaterialValues& values, std::int32_t id)
{
    const auto number = values.number(id);
    return number && std::isfinite(*number) ? *number : std::nan("");
}

/// The values from which derived values are computed.
struct Inputs
{
    explicit Inputs(const MaterialValues& values)
        : rho(numberOrNone(values, Id::Density)),
          e(numberOrNone(values, Id::YoungsModulus)),
          nu(numberOrNone(values, Id::PoissonsRatio)),
          cp(numberOrNone(values, Id::SpecificHeat)),
          k(numberOrNone(values, Id::ThermalConductivity)),
          viscosity(numberOrNone(values, Id::DynamicViscosity)),
          sigma(numberOrNone(values, Id::ElectricalConductivity)),
          c(numberOrNone(values, Id::SpeedOfSound)),
          g(numberOrNone(values, Id::ShearRelaxationModulus)),
          tangent(numberOrNone(values, Id::PlasticHardeningFactor))
    {
        const auto moduli = initialModuli(values);
        shear = moduli ? moduli->shear : std::nan("");
        bulk = moduli && moduli->bulk ? *moduli->bulk : std::nan("");
        youngs = moduli ? moduli->youngs() : std::nan("");
    }

    double rho, e, nu, cp, k, viscosity, sigma, c, g, tangent;
    double shear, bulk, youngs; ///< initial moduli of a hyperelastic material

    double shearModulus() const { return e / (2.0 * (1.0 + nu)); }
    double bulkModulus() const { return e / (3.0 * (1.0 - 2.0 * nu)); }
};

/// One derived value and its computation.
struct Derivation
{
    const char* id = "";
    const char* name = "";
    const char* symbol = "";
    const char* formula = "";
    Dimension dimension;
    double (*compute)(const Inputs&) = nullptr;
};

constexpr Derivation derivations[] = {
    {"shear-modulus", "Shear modulus", "G", "E / (2 (1 + nu))", d::pressure,
     [](const Inputs& in) { return in.shearModulus(); }},
    {"bulk-modulus", "Bulk modulus", "K", "E / (3 (1 - 2 nu))", d::pressure,
     [](const Inputs& in) { return in.bulkModulus(); }},
    {"lame-constant", "First Lam\xC3\xA9 constant", "lambda", "E nu / ((1 + nu) (1 - 2 nu))", d::pressure,
     [](const Inputs& in) { return in.e * in.nu / ((1.0 + in.nu) * (1.0 - 2.0 * in.nu)); }},
    {"constrained-modulus", "Constrained modulus", "M", "K + 4/3 G", d::pressure,
     [](const Inputs& in) { return in.bulkModulus() + 4.0 / 3.0 * in.shearModulus(); }},
    {"bar-wave-speed", "Wave speed in a bar", "c0", "sqrt(E / rho)", d::speed,
     [](const Inputs& in) { return std::sqrt(in.e / in.rho); }},
    {"longitudinal-wave-speed", "Longitudinal wave speed", "cL", "sqrt((K + 4/3 G) / rho)", d::speed,
     [](const Inputs& in) { return std::sqrt((in.bulkModulus() + 4.0 / 3.0 * in.shearModulus()) / in.rho); }},
    {"shear-wave-speed", "Shear wave speed", "cT", "sqrt(G / rho)", d::speed,
     [](const Inputs& in) { return std::sqrt(in.shearModulus() / in.rho); }},
    {"tangent-modulus", "Tangent modulus beyond yield", "Et", "E H / (E + H)", d::pressure,
     [](const Inputs& in) { return in.e * in.tangent / (in.e + in.tangent); }},
    {"relaxed-shear-modulus", "Relaxed shear modulus", "Ginf", "(1 - g) G", d::pressure,
     [](const Inputs& in) { return (1.0 - in.g) * in.shearModulus(); }},
    {"initial-shear-modulus", "Initial shear modulus", "mu0", "2 C10; 2 (C10 + C01); mu (1 + 3/(5 lm^2) + ...)",
     d::pressure, [](const Inputs& in) { return in.shear; }},
    {"initial-bulk-modulus", "Initial bulk modulus", "K0", "2 / D1", d::pressure,
     [](const Inputs& in) { return in.bulk; }},
    {"initial-youngs-modulus", "Initial Young's modulus", "E0", "9 K0 mu0 / (3 K0 + mu0)", d::pressure,
     [](const Inputs& in) { return in.youngs; }},
    {"initial-poissons-ratio", "Initial Poisson's ratio", "nu0", "(3 K0 - 2 mu0) / (6 K0 + 2 mu0)", d::none,
     [](const Inputs& in) { return (3.0 * in.bulk - 2.0 * in.shear) / (6.0 * in.bulk + 2.0 * in.shear); }},
    {"volumetric-heat-capacity", "Heat capacity per volume", "rho cp", "rho cp", d::density* d::specificHeat,
     [](const Inputs& in) { return in.rho * in.cp; }},
    {"thermal-diffusivity", "Thermal diffusivity", "a", "k / (rho cp)", d::kinematicViscosity,
     [](const Inputs& in) { return in.k / (in.rho * in.cp); }},
    {"kinematic-viscosity", "Kinematic viscosity", "kv", "dv / rho", d::kinematicViscosity,
     [](const Inputs& in) { return in.viscosity / in.rho; }},
    {"prandtl-number", "Prandtl number", "Pr", "dv cp / k", d::none,
     [](const Inputs& in) { return in.viscosity * in.cp / in.k; }},
    {"acoustic-bulk-modulus", "Acoustic bulk modulus", "Ka", "rho c^2", d::pressure,
     [](const Inputs& in) { return in.rho * in.c * in.c; }},
    {"acoustic-impedance", "Acoustic impedance", "Z", "rho c", d::density* d::speed,
     [](const Inputs& in) { return in.rho * in.c; }},
    {"electrical-resistivity", "Electrical resistivity", "rhoe", "1 / sigma", d::electricalResistivity,
     [](const Inputs& in) { return 1.0 / in.sigma; }},
};

/// Returns the initial shear modulus of the eight-chain model, with five terms of the inverse Langevin function.
double arrudaBoyceShear(double mu, double limitingStretch)
{
    constexpr double coefficients[] = {1.0, 3.0 / 5.0, 99.0 / 175.0, 513.0 / 875.0, 42039.0 / 67375.0};
    const double square = limitingStretch * limitingStretch;
    double sum = 0.0;
    for (int i = 4; i >= 0; --i)
        sum = sum / square + coefficients[i];
    return mu * sum;
}

std::optional<double> initialShear(const MaterialValues& values)
{
    const auto c10 = values.number(Id::MaterialConstantC10);
    const auto mu = values.number(Id::InitialShearModulusMu);
    const auto stretch = values.number(Id::LimitingNetworkStretch);
    if (mu && (values.has(Id::ArrudaBoyce) || !c10))
        return stretch ? arrudaBoyceShear(*mu, *stretch) : *mu;
    if (!c10)
        return std::nullopt;
    const bool neoHooke = values.has(Id::NeoHooke) && !values.has(Id::MooneyRivlin);
    return 2.0 * (*c10 + (neoHooke ? 0.0 : values.number(Id::MaterialConstantC01).value_or(0.0)));
}

} // namespace

double InitialModuli::youngs() const
{
    return bulk ? 9.0 * *bulk * shear / (3.0 * *bulk + shear) : 3.0 * shear;
}

std::optional<InitialModuli> initialModuli(const MaterialValues& values)
{
    const auto shear = initialShear(values);
    if (!shear || *shear == 0.0 || !std::isfinite(*shear))
        return std::nullopt;
    const double d1 = values.number(Id::IncompressibilityParameterD1).value_or(0.0);
    return InitialModuli{*shear, d1 != 0.0 ? std::optional<double>(2.0 / d1) : std::nullopt};
}

const std::vector<DerivedQuantity>& derivedQuantities()
{
    static const std::vector<DerivedQuantity> all = [] {
        std::vector<DerivedQuantity> listed;
        for (const Derivation& one : derivations)
            listed.push_back({one.id, one.name, one.symbol, one.formula, one.dimension});
        return listed;
    }();
    return all;
}

std::vector<DerivedValue> derivedValues(const MaterialValues& values)
{
    const Inputs inputs(values);
    std::vector<DerivedValue> derived;
    std::int32_t position = 0;
    for (const Derivation& one : derivations) {
        const double value = one.compute(inputs);
        if (std::isfinite(value))
            derived.push_back({one.id, one.name, one.symbol, one.formula, value, one.dimension, position});
        ++position;
    }
    return derived;
}

} // namespace vxUnits
