#include "vxUnits/Quantity.h"

#include "units/Texts.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace vxUnits {

namespace {

namespace d = dimensions;
using Id = vxMat::PropertyId;
using Form = QuantityForm;

constexpr std::optional<KnownRange> unknown = std::nullopt;

constexpr const char* byDefinition = "by definition";
constexpr const char* holzapfel = "Holzapfel, Nonlinear Solid Mechanics, 2000";
constexpr const char* arrudaBoyce = "Arruda and Boyce, J. Mech. Phys. Solids 41, 1993";
constexpr const char* simo = "Simo and Hughes, Computational Inelasticity, 1998";
constexpr const char* rubberSource = "Treloar, The Physics of Rubber Elasticity, 1975; Fung, Biomechanics, 1993";
constexpr const char* yieldSource = "Ashby, Materials Selection in Mechanical Design, 2011; MMPDS";
constexpr const char* noRange = "";

constexpr Quantity modelSwitch(std::int32_t id, const char* meaning, const char* source)
{
    return {id, Form::Switch, d::none, "", CatalogueUnit::Right, meaning, source, unknown, unknown, unknown, noRange};
}

constexpr Quantity word(std::int32_t id, const char* meaning)
{
    return {id, Form::Word, d::none, "", CatalogueUnit::Right, meaning, simo, unknown, unknown, unknown, noRange};
}

constexpr Form number = Form::Number;
constexpr Form list = Form::NumberList;
constexpr CatalogueUnit right = CatalogueUnit::Right;
constexpr CatalogueUnit missing = CatalogueUnit::Missing;
constexpr CatalogueUnit wrong = CatalogueUnit::Wrong;

/// The 36 quantities, sorted by id.
constexpr std::array<Quantity, quantityCount> table{{
    // Mechanics and fluids
    {Id::Density, number, d::density, "kg/m^3", right, "mass per volume", byDefinition,
     KnownRange{0.16, 22590, "graphene aerogel", "osmium"}, KnownRange{70, 13600, "liquid hydrogen", "mercury"},
     KnownRange{0.08, 13, "hydrogen", "tungsten hexafluoride"},
     "CRC Handbook of Chemistry and Physics; Sun et al., Advanced Materials 25, 2013 (aerogel)"},
    {Id::YoungsModulus, number, d::pressure, "Pa", right,
     "stress over strain in uniaxial tension at small strain, of an isotropic solid", byDefinition,
     KnownRange{10, 1.22e12, "gel", "diamond"}, unknown, unknown,
     "Ashby, Materials Selection in Mechanical Design, 2011; Levental et al., Soft Matter 3, 2007 (gels)"},
    {Id::PoissonsRatio, number, d::none, "1", right, "transverse over axial strain in uniaxial tension", byDefinition,
     KnownRange{-0.7, 0.49995, "auxetic foam", "rubber"}, unknown, unknown,
     "Greaves et al., Nature Materials 10, 2011"},
    {Id::DynamicViscosity, number, d::dynamicViscosity, "Pa s", right,
     "shear stress over shear rate, of a Newtonian fluid", byDefinition, unknown,
     KnownRange{3e-6, 3e8, "liquid helium", "pitch"}, KnownRange{5e-6, 1e-4, "hydrocarbon vapour", "hot neon"},
     "CRC Handbook of Chemistry and Physics; Edgeworth et al., Eur. J. Phys. 5, 1984 (pitch)"},

    // Hyperelasticity
    {Id::InitialShearModulusMu, number, d::pressure, "Pa", right,
     "coefficient mu of the series of the eight-chain model; the initial shear modulus is mu (1 + 3/(5 lm^2) + "
     "99/(175 lm^4) + 513/(875 lm^6) + 42039/(67375 lm^8)), up to a third more",
     arrudaBoyce, KnownRange{10, 1e9, "gel", "filled rubber"}, unknown, unknown, rubberSource},
    {Id::IncompressibilityParameterD1, number, d::compressibility, "1/Pa", right,
     "2 over the initial bulk modulus; energy (J - 1)^2 / D1; 0 is exactly incompressible", holzapfel,
     KnownRange{2e-10, 2e-3, "stiff polymer", "soft foam"}, unknown, unknown, rubberSource},
    {Id::MaterialConstantC10, number, d::pressure, "Pa", right,
     "factor of I1 - 3; half the initial shear modulus of a neo-Hookean solid", holzapfel,
     KnownRange{10, 5e8, "gel", "filled rubber"}, unknown, unknown, rubberSource},
    {Id::MaterialConstantC01, number, d::pressure, "Pa", right, "factor of I2 - 3; may be negative", holzapfel,
     KnownRange{-5e8, 5e8, "fitted constant", "fitted constant"}, unknown, unknown, rubberSource},
    modelSwitch(Id::NeoHooke, "on: W = C10 (I1 - 3) + (J - 1)^2 / D1", holzapfel),
    modelSwitch(Id::MooneyRivlin, "on: W = C10 (I1 - 3) + C01 (I2 - 3) + (J - 1)^2 / D1", holzapfel),
    modelSwitch(Id::ArrudaBoyce, "on: eight-chain model by mu, limiting stretch and D1", arrudaBoyce),
    modelSwitch(Id::IsotropicElasticity,
                "on: linear elasticity by Young's modulus and Poisson's ratio; the number is without meaning",
                "Timoshenko and Goodier, Theory of Elasticity, 1970"),

    // Plasticity
    modelSwitch(Id::Plasticity, "on: plasticity by yield and hardening type", simo),
    word(Id::PlasticYieldType, "yield criterion"),
    {Id::PlasticViscosity, number, d::dynamicViscosity, "Pa s", missing,
     "viscosity of viscoplastic flow: overstress over plastic strain rate; no cohesion, which the catalogue lacks",
     "Perzyna, Adv. Appl. Mech. 9, 1966; Carter and Hansen, Tectonophysics 92, 1983 (rock salt)",
     KnownRange{1e-3, 1e21, "slurry", "rock"}, unknown, unknown, "Turcotte and Schubert, Geodynamics, 2014"},
    {Id::PlasticFAI, number, d::angle, "deg", missing, "angle of internal friction; degrees, not radians",
     "Chen and Mizuno, Nonlinear Analysis in Soil Mechanics, 1990", KnownRange{5, 60, "bentonite", "railway ballast"},
     unknown, unknown, "Lambe and Whitman, Soil Mechanics, 1969; Indraratna et al., ASTM Geotech. Test. J. 21, 1998"},
    {Id::PlasticHardeningFactor, number, d::pressure, "Pa", missing,
     "plastic modulus: slope of true stress over plastic strain, not over total strain", simo,
     KnownRange{0, 1e11, "ideal plasticity", "metal at first yield"}, unknown, unknown, yieldSource},
    word(Id::PlasticHardeningType, "hardening law"),
    {Id::PlasticYieldStress, list, d::pressure, "Pa", missing, "true yield stresses, one for each plastic strain", simo,
     KnownRange{1e2, 2.5e10, "gel", "whisker"}, unknown, unknown, yieldSource},
    {Id::PlasticStrain, list, d::none, "1", right, "logarithmic plastic strains, ascending, the first one 0", simo,
     KnownRange{0, 2, "first yield", "torsion at high temperature"}, unknown, unknown,
     "Dieter, Mechanical Metallurgy, 1988"},
    {Id::PlasticInitialYieldStress, number, d::pressure, "Pa", missing, "true stress at the first yield", simo,
     KnownRange{1e2, 2.5e10, "gel", "whisker"}, unknown, unknown, yieldSource},

    // Visco-elasticity
    modelSwitch(Id::ViscoElasticity, "on: one term of a Prony series, G(t) / G(0) = 1 - g (1 - exp(-t / tau))",
                "Ferry, Viscoelastic Properties of Polymers, 1980"),
    {Id::ShearRelaxationModulus, number, d::none, "1", right,
     "g: the share of the instantaneous shear modulus that relaxes; a ratio, not a modulus",
     "Ferry, Viscoelastic Properties of Polymers, 1980", KnownRange{0, 1, "elastic solid", "fluid"}, unknown, unknown,
     byDefinition},
    {Id::RelaxationTime, number, d::time, "s", missing, "tau of the Prony term",
     "Ferry, Viscoelastic Properties of Polymers, 1980", KnownRange{1e-12, 1e12, "glass transition of a fluid", "rock"},
     unknown, unknown, "Ferry, Viscoelastic Properties of Polymers, 1980"},

    // Creep
    modelSwitch(Id::Creep, "on: creep strain rate = A stress^N time^M",
                "Norton, The Creep of Steel at High Temperatures, 1929"),
    {Id::CreepModulusA, number, d::none, "Pa^-N s^-(M+1)", missing,
     "factor of the creep law in its rate form; the unit depends on N and M",
     "Boyle and Spence, Stress Analysis for Creep, 1983", unknown, unknown, unknown, noRange},
    {Id::CreepModulusN, number, d::none, "1", right, "exponent of the stress",
     "Boyle and Spence, Stress Analysis for Creep, 1983",
     KnownRange{1, 40, "diffusion creep", "dispersion-strengthened alloy"}, unknown, unknown,
     "Frost and Ashby, Deformation-Mechanism Maps, 1982"},
    {Id::CreepModulusM, number, d::none, "1", right, "exponent of the time in the rate form; 0 is secondary creep",
     "Boyle and Spence, Stress Analysis for Creep, 1983", KnownRange{-0.9, 0.5, "primary creep", "tertiary creep"},
     unknown, unknown, "Boyle and Spence, Stress Analysis for Creep, 1983"},

    // Hyperelasticity, continued
    {Id::LimitingNetworkStretch, number, d::none, "1", wrong,
     "lm: the stretch at which the chains are extended fully; a ratio, whatever the unit text says", arrudaBoyce,
     KnownRange{1.02, 30, "tissue", "gel"}, unknown, unknown, rubberSource},
    {Id::MaterialConstantC11, number, d::pressure, "Pa", right, "factor of (I1 - 3)(I2 - 3); may be negative",
     holzapfel, KnownRange{-5e8, 5e8, "fitted constant", "fitted constant"}, unknown, unknown, rubberSource},

    // Heat
    {Id::SpecificHeat, number, d::specificHeat, "J/(kg K)", right, "heat per mass and change of temperature",
     byDefinition, KnownRange{100, 4300, "uranium", "hydrogel"}, KnownRange{139, 9700, "mercury", "liquid hydrogen"},
     KnownRange{94, 14320, "radon", "hydrogen"}, "CRC Handbook of Chemistry and Physics"},
    {Id::ThermalConductivity, number, d::thermalConductivity, "W/(m K)", right,
     "heat flux over gradient of temperature", byDefinition,
     KnownRange{0.004, 3300, "vacuum insulation", "pure diamond"},
     KnownRange{0.03, 90, "liquid helium", "liquid sodium"}, KnownRange{0.005, 0.19, "xenon", "hydrogen"},
     "CRC Handbook of Chemistry and Physics; Anthony et al., Phys. Rev. B 42, 1990 (diamond)"},

    // Electromagnetics
    {Id::ElectricalConductivity, number, d::electricalConductivity, "S/m", wrong,
     "current density over electric field; the W of the unit text is an Omega; 0 is a perfect insulator", byDefinition,
     KnownRange{1e-25, 1e10, "polytetrafluoroethylene", "pure copper at 4 K"},
     KnownRange{1e-18, 1.1e7, "hexane", "liquid sodium"}, KnownRange{0, 1e-9, "dry gas", "ionised air"},
     "CRC Handbook of Chemistry and Physics"},
    {Id::RelativePermittivity, number, d::none, "1", right, "permittivity over that of vacuum, static", byDefinition,
     KnownRange{1, 1e5, "aerogel", "calcium copper titanate"},
     KnownRange{1.05, 190, "liquid helium", "N-methylformamide"}, KnownRange{1, 1.02, "helium", "vapour"},
     "CRC Handbook of Chemistry and Physics; Subramanian et al., J. Solid State Chem. 151, 2000"},
    {Id::RelativePermeability, number, d::none, "1", right, "permeability over that of vacuum, initial", byDefinition,
     KnownRange{0, 1e6, "superconductor", "metallic glass"}, KnownRange{0.999, 20, "water", "ferrofluid"},
     KnownRange{0.999, 1.001, "nitrogen", "oxygen"}, "Kaye and Laby, Tables of Physical and Chemical Constants, 1995"},

    // Acoustics
    {Id::SpeedOfSound, number, d::speed, "m/s", right, "speed of longitudinal waves", byDefinition,
     KnownRange{20, 18500, "soft foam", "diamond"}, KnownRange{180, 4700, "liquid helium", "liquid aluminium"},
     KnownRange{80, 1320, "tungsten hexafluoride", "hydrogen"},
     "Kaye and Laby, Tables of Physical and Chemical Constants, 1995; CRC Handbook of Chemistry and Physics"},
}};

/// Returns the name of a quantity of the catalogue.
std::string nameOf(std::int32_t id)
{
    return vxMat::findPropertyRecord(id)->name;
}

/// Returns whether a unit can have the power of a creep exponent. Exponents of known materials are below 30.
bool isPower(double exponent)
{
    constexpr double largest = 50.0;
    return std::abs(exponent) <= largest; // false if not a number
}

Failure refuse(std::int32_t id, FaultCode code, Text text)
{
    return makeFailure(code, text, {nameOf(id)});
}

/// Returns the reason why the unit of the creep factor is not known; absent if it is known.
std::optional<Failure> refuseCreepUnit(const CreepExponents& creep)
{
    const std::string factor = nameOf(Id::CreepModulusA);
    const std::string n = nameOf(Id::CreepModulusN);
    const std::string m = nameOf(Id::CreepModulusM);
    const auto isUnread = [](const std::optional<double>& exponent) { return exponent && std::isnan(*exponent); };
    if (isUnread(creep.n) || isUnread(creep.m))
        return makeFailure(FaultCode::UnitNotKnown, Text::UnitOfCreepUnread, {factor, isUnread(creep.n) ? n : m});
    if (!creep.n && !creep.m)
        return makeFailure(FaultCode::UnitNotKnown, Text::UnitOfCreep, {factor, n, m});
    if (!creep.areBothGiven())
        return makeFailure(FaultCode::UnitNotKnown, Text::UnitOfCreepPart, {factor, creep.n ? m : n});
    if (!isPower(*creep.n) || !isPower(*creep.m))
        return makeFailure(FaultCode::UnitNotKnown, Text::UnitOfCreepRange, {factor, isPower(*creep.n) ? m : n});
    return std::nullopt;
}

} // namespace

const std::array<Quantity, quantityCount>& quantities()
{
    return table;
}

const Quantity* findQuantity(std::int32_t id)
{
    const auto& all = quantities();
    const auto* const found = std::find_if(all.begin(), all.end(), [id](const Quantity& one) { return one.id == id; });
    return found == all.end() ? nullptr : found;
}

std::optional<CreepExponents> creepExponents(const vxMat::MaterialBase& material)
{
    const auto valueOf = [&material](std::int32_t id) {
        double value = 0.0;
        return material.getPropertyValue(id, value) ? std::optional<double>(value) : std::nullopt;
    };
    const CreepExponents exponents{valueOf(Id::CreepModulusN), valueOf(Id::CreepModulusM)};
    return exponents.n || exponents.m ? std::optional<CreepExponents>(exponents) : std::nullopt;
}

Result<Unit> unitOfQuantity(std::int32_t id, const UnitSystem& system, const std::optional<CreepExponents>& creep)
{
    const Quantity* const quantity = findQuantity(id);
    if (quantity == nullptr)
        return makeFailure(FaultCode::TakesNoNumber, Text::NoQuantity, {std::to_string(id)});
    if (quantity->form == Form::Word)
        return refuse(id, FaultCode::TakesNoNumber, Text::TakesWord);
    if (quantity->form == Form::Switch)
        return refuse(id, FaultCode::TakesNoNumber, Text::TakesSwitch);
    if (id != Id::CreepModulusA)
        return system.unitOf(quantity->dimension);
    const CreepExponents exponents = creep.value_or(CreepExponents());
    if (auto failure = refuseCreepUnit(exponents))
        return *std::move(failure);
    return system.unitOfCreep(exponents);
}

Result<Converter> converterOfQuantity(std::int32_t id, const UnitSystem& from, const UnitSystem& to,
                                      const std::optional<CreepExponents>& creep)
{
    const auto one = unitOfQuantity(id, from, creep);
    const auto other = unitOfQuantity(id, to, creep);
    if (!one || !other)
        return one ? other.failure() : one.failure();
    return Converter::between(*one, *other);
}

} // namespace vxUnits
