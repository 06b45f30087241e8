#include "MaterialGenerator.h"

#include "DataFile.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace vxtest {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::MaterialValues;
using Row = std::vector<std::string>;

constexpr double mega = 1e6;
constexpr double giga = 1e9;

/// Relative scatter of a group, as handbooks and data sheets of one grade differ.
struct Scatter
{
    double density, modulus, strength, heat, conductivity, electrical;
};

const std::map<std::string, Scatter>& scatters()
{
    static const std::map<std::string, Scatter> all{
        {"metal", {0.01, 0.03, 0.2, 0.04, 0.12, 0.12}},
        {"ceramic", {0.02, 0.06, 0.3, 0.05, 0.15, 0.6}},
        {"mineral", {0.04, 0.15, 0.3, 0.06, 0.15, 0.0}},
        {"soil", {0.06, 0.4, 0.4, 0.1, 0.2, 0.0}},
        {"wood", {0.08, 0.15, 0.2, 0.06, 0.12, 0.0}},
        {"polymer", {0.02, 0.12, 0.15, 0.06, 0.12, 0.6}},
        {"composite", {0.03, 0.1, 0.2, 0.06, 0.2, 0.4}},
        {"rubber", {0.04, 0.3, 0.0, 0.06, 0.15, 0.0}},
        {"foam", {0.12, 0.2, 0.2, 0.05, 0.1, 0.0}},
        {"tissue", {0.02, 0.4, 0.2, 0.05, 0.08, 0.0}},
        {"liquid", {0.02, 0.03, 0.25, 0.04, 0.06, 0.3}},
        {"gas", {0.03, 0.02, 0.03, 0.02, 0.03, 0.0}},
        {"hyper", {0.03, 0.25, 0.0, 0.0, 0.0, 0.0}},
        {"unusual", {0.02, 0.05, 0.1, 0.04, 0.08, 0.1}},
        {"unusual-fluid", {0.02, 0.02, 0.1, 0.03, 0.05, 0.1}},
        {"creep", {0.01, 0.05, 0.0, 0.04, 0.1, 0.0}},
    };
    return all;
}

/// Random numbers that are the same on every machine.
class Random
{
public:
    explicit Random(std::uint32_t seed) : m_engine(seed) {}

    double between(double lowest, double highest)
    {
        return lowest + (highest - lowest) * (static_cast<double>(m_engine()) / 4294967296.0);
    }
    /// A factor near 1.
    double factor(double scatter) { return between(1.0 - scatter, 1.0 + scatter); }
    bool chance(double share) { return between(0.0, 1.0) < share; }

private:
    std::mt19937 m_engine;
};

class Maker
{
public:
    Maker(const Row& row, std::uint32_t seed, bool varied)
        : m_row(row), m_random(seed), m_scatter(scatters().at(row[0])), m_varied(varied)
    {}

    SampleMaterial make()
    {
        const std::string& group = m_row[0];
        if (group == "liquid" || group == "gas" || group == "unusual-fluid")
            makeFluid();
        else if (group == "hyper")
            makeHyperelastic();
        else if (group == "creep")
            makeCreep();
        else
            makeSolid();
        return {group, m_row[1], std::move(m_values)};
    }

private:
    bool has(std::size_t column) const { return column < m_row.size() && m_row[column] != "-"; }
    double cell(std::size_t column) const { return vxMat::readNumber(m_row[column]); }
    double scattered(double scatter) { return m_varied ? m_random.factor(scatter) : 1.0; }

    void set(std::int32_t id, std::size_t column, double unit, double factor)
    {
        if (has(column))
            m_values.setNumber(id, cell(column) * unit * factor);
    }

    void makeElastic(double stiffness)
    {
        m_values.setSwitch(Id::IsotropicElasticity);
        set(Id::YoungsModulus, 3, giga, stiffness);
        const double nu = cell(4) + (m_varied && cell(4) < 0.44 ? m_random.between(-0.01, 0.01) : 0.0);
        m_values.setNumber(Id::PoissonsRatio, nu);
    }

    void makeSolid()
    {
        const double density = scattered(m_scatter.density);
        set(Id::Density, 2, 1.0, density);
        // In foams and woods the modulus rises with the density, by its square in foams.
        const double exponent = m_row[0] == "foam" ? 2.0 : 1.0;
        const double follows = m_row[0] == "foam" || m_row[0] == "wood" ? std::pow(density, exponent) : 1.0;
        makeElastic(follows * scattered(m_scatter.modulus));
        set(Id::SpecificHeat, 6, 1.0, scattered(m_scatter.heat));
        const double conducts = scattered(m_scatter.conductivity); // heat and electricity by the same electrons
        set(Id::ThermalConductivity, 7, 1.0, conducts);
        set(Id::ElectricalConductivity, 8, 1.0, m_row[0] == "metal" ? conducts : scattered(m_scatter.electrical));
        if (has(8) && cell(8) > 1e5) {
            m_values.setNumber(Id::RelativePermittivity, 1.0);
            m_values.setNumber(Id::RelativePermeability, 1.0);
        }
        makePlastic();
        makeViscoelastic();
        if (m_row[0] == "soil")
            m_values.setNumber(Id::PlasticFAI, m_random.between(18.0, 42.0));
    }

    void makePlastic()
    {
        if (!has(5))
            return;
        const double yield = cell(5) * mega * scattered(m_scatter.strength);
        m_values.setSwitch(Id::Plasticity);
        m_values.setWord(Id::PlasticYieldType, "Mises");
        const bool table = m_row[0] == "metal" && m_random.chance(0.5);
        m_values.setWord(Id::PlasticHardeningType, table ? "Multilinear" : "Bilinear");
        if (table) {
            makeHardeningTable(yield);
            return;
        }
        m_values.setNumber(Id::PlasticInitialYieldStress, yield);
        const double modulus = *m_values.number(Id::YoungsModulus);
        const bool hardens = m_row[0] == "metal" || m_row[0] == "polymer";
        m_values.setNumber(Id::PlasticHardeningFactor, hardens ? modulus * m_random.between(0.001, 0.03) : 0.0);
    }

    /// Swift's law.
    void makeHardeningTable(double yield)
    {
        const std::vector<double> strains{0.0, 0.01, 0.02, 0.05, 0.1, 0.2};
        const double start = m_random.between(0.002, 0.01);
        const double exponent = m_random.between(0.04, 0.25);
        std::vector<double> stresses;
        for (const double strain : strains)
            stresses.push_back(yield * std::pow(1.0 + strain / start, exponent));
        m_values.setList(Id::PlasticStrain, strains);
        m_values.setList(Id::PlasticYieldStress, stresses);
    }

    void makeViscoelastic()
    {
        if (m_row[0] != "polymer" && m_row[0] != "rubber")
            return;
        m_values.setSwitch(Id::ViscoElasticity);
        m_values.setNumber(Id::ShearRelaxationModulus, m_random.between(0.05, 0.9));
        m_values.setNumber(Id::RelaxationTime, std::pow(10.0, m_random.between(-3.0, 6.0)));
    }

    void makeFluid()
    {
        set(Id::Density, 2, 1.0, scattered(m_scatter.density));
        set(Id::SpeedOfSound, 3, 1.0, scattered(m_scatter.modulus));
        set(Id::SpecificHeat, 4, 1.0, scattered(m_scatter.heat));
        set(Id::ThermalConductivity, 5, 1.0, scattered(m_scatter.conductivity));
        set(Id::DynamicViscosity, 6, 1e-3, scattered(m_scatter.strength));
        set(Id::ElectricalConductivity, 7, 1.0, scattered(m_scatter.electrical));
    }

    void makeHyperelastic()
    {
        set(Id::Density, 2, 1.0, scattered(m_scatter.density));
        const std::string& model = m_row[3];
        if (model == "ArrudaBoyce") {
            m_values.setSwitch(Id::ArrudaBoyce);
            set(Id::InitialShearModulusMu, 4, mega, scattered(m_scatter.modulus));
            set(Id::LimitingNetworkStretch, 5, 1.0, scattered(0.1));
        } else {
            m_values.setSwitch(model == "NeoHooke" ? Id::NeoHooke : Id::MooneyRivlin);
            set(Id::MaterialConstantC10, 4, mega, scattered(m_scatter.modulus));
            set(Id::MaterialConstantC01, 5, mega, scattered(m_scatter.modulus));
        }
        m_values.setNumber(Id::IncompressibilityParameterD1, 2.0 / (cell(6) * mega * scattered(0.1)));
    }

    void makeCreep()
    {
        set(Id::Density, 2, 1.0, scattered(m_scatter.density));
        makeElastic(scattered(m_scatter.modulus));
        m_values.setSwitch(Id::Creep);
        const double n = cell(7);
        m_values.setNumber(Id::CreepModulusN, n);
        m_values.setNumber(Id::CreepModulusM, cell(8));
        const double spread = m_varied ? std::pow(10.0, m_random.between(-0.4, 0.4)) : 1.0;
        m_values.setNumber(Id::CreepModulusA, cell(5) * spread / std::pow(cell(6) * mega, n));
        set(Id::SpecificHeat, 9, 1.0, scattered(m_scatter.heat));
        set(Id::ThermalConductivity, 10, 1.0, scattered(m_scatter.conductivity));
    }

    const Row& m_row;
    Random m_random;
    const Scatter& m_scatter;
    bool m_varied;
    MaterialValues m_values;
};

/// A slip of one quantity. The factors are those of the definitions of the units.
struct UsualSlip
{
    std::int32_t id = 0;
    const char* unit = "";
    double factor = 1.0;
    const char* groups = ""; ///< groups in which it is realistic, separated by blanks; empty for all
    const char* hidden = ""; ///< groups whose other values cannot tell
    bool reciprocal = false;
};

constexpr double psi = 6894.757293168361;
constexpr double calorie = 4186.8;

// What is hidden, and why: the factor lies within what materials of this kind span, or nothing else depends on the value.
//  - A density by 16 (lb/ft3): porous solids, gels and rubbers without heat values, gases at another pressure.
//  - A modulus by 1000 (kPa): soils, rubbers and tissues span more than that.
//  - Strengths in ksi by 6.9 beside MPa: alloys of one metal span more than that.
//  - The viscosity by 1000 (mPa s) or 10 (P): liquids other than water span twelve decades.
//  - Conductivities of insulators, relaxation times in hours, C01 beside a larger C10: nothing depends on them.
const UsualSlip usualSlips[] = {
    {Id::Density, "g/cm^3", 1e3, ""},
    {Id::Density, "t/mm^3", 1e12, ""},
    {Id::Density, "kg/mm^3", 1e9, ""},
    {Id::Density, "lb/ft^3", 16.01846337396014, "", "foam tissue rubber hyper creep soil gas unusual"},
    {Id::Density, "lb/in^3", 27679.90471020312, "metal ceramic polymer composite"},
    {Id::YoungsModulus, "MPa", 1e6, ""},
    {Id::YoungsModulus, "GPa", 1e9, ""},
    {Id::YoungsModulus, "kPa", 1e3, "soil rubber tissue", "soil rubber tissue"},
    {Id::YoungsModulus, "psi", psi, "metal mineral polymer wood composite"},
    {Id::YoungsModulus, "ksi", psi * 1e3, "metal ceramic"},
    {Id::PoissonsRatio, "%", 0.01, ""},
    {Id::PlasticInitialYieldStress, "MPa", 1e6, ""},
    {Id::PlasticInitialYieldStress, "psi", psi, "metal polymer"},
    {Id::PlasticInitialYieldStress, "ksi", psi * 1e3, "metal", "metal"},
    {Id::PlasticYieldStress, "MPa", 1e6, ""},
    {Id::PlasticYieldStress, "GPa", 1e9, ""},
    {Id::PlasticYieldStress, "ksi", psi * 1e3, "metal", "metal"},
    {Id::PlasticStrain, "%", 0.01, ""},
    {Id::PlasticHardeningFactor, "MPa", 1e6, ""},
    {Id::PlasticHardeningFactor, "GPa", 1e9, ""},
    {Id::PlasticFAI, "rad", 57.29577951308232, ""},
    {Id::ShearRelaxationModulus, "%", 0.01, ""},
    {Id::RelaxationTime, "h", 3600.0, "", "polymer rubber"},
    {Id::SpecificHeat, "kJ/(kg K)", 1e3, ""},
    {Id::SpecificHeat, "cal/(g K)", calorie, ""},
    {Id::ThermalConductivity, "W/(cm K)", 1e2, ""},
    {Id::ThermalConductivity, "mW/(m K)", 1e-3, ""},
    {Id::ElectricalConductivity, "MS/m", 1e6, "metal"},
    {Id::ElectricalConductivity, "S/cm", 1e2, "metal polymer ceramic", "polymer ceramic"},
    {Id::ElectricalConductivity, "Ohm m", 1.0, "metal", "", true},
    {Id::SpeedOfSound, "km/s", 1e3, ""},
    {Id::SpeedOfSound, "ft/s", 0.3048, ""},
    {Id::DynamicViscosity, "mPa s", 1e-3, "", "liquid unusual-fluid"},
    {Id::DynamicViscosity, "uPa s", 1e-6, "gas"},
    {Id::MaterialConstantC10, "MPa", 1e6, ""},
    {Id::MaterialConstantC01, "MPa", 1e6, "", "hyper"},
    {Id::InitialShearModulusMu, "MPa", 1e6, ""},
    {Id::IncompressibilityParameterD1, "1/MPa", 1e-6, ""},
};

bool names(const std::string& groups, const SampleMaterial& material)
{
    return groups.find(material.group) != std::string::npos;
}

bool isRealistic(const UsualSlip& slip, const SampleMaterial& material)
{
    const std::string groups = slip.groups;
    if (!groups.empty() && !names(groups, material))
        return false;
    const auto number = material.values.number(slip.id);
    return (number && *number != 0.0) || !material.values.list(slip.id).empty();
}

bool isVisible(const UsualSlip& slip, const SampleMaterial& material)
{
    return material.name == "water" || !names(slip.hidden, material);
}

} // namespace

std::vector<SampleMaterial> makeMaterials(int variations)
{
    const std::vector<Row> rows = readTable("units/materials.tsv");
    std::vector<SampleMaterial> materials;
    std::uint32_t seed = 1;
    for (const Row& row : rows) {
        for (int i = 0; i <= variations; ++i)
            materials.push_back(Maker(row, seed++, i > 0).make());
    }
    return materials;
}

std::vector<SampleSlip> slipsOf(const SampleMaterial& material)
{
    std::vector<SampleSlip> slips;
    for (const UsualSlip& slip : usualSlips) {
        if (isRealistic(slip, material))
            slips.push_back({slip.id, slip.unit, slip.factor, slip.reciprocal, isVisible(slip, material)});
    }
    if (const auto n = material.values.number(Id::CreepModulusN))
        slips.push_back({Id::CreepModulusA, "MPa^-N s^-(M+1)", std::pow(mega, -*n), false, true});
    return slips;
}

MaterialValues inSystem(const MaterialValues& values, const std::string& system)
{
    // Of one unit of length, mass and time in m, kg and s; K and A are the same, but for degF.
    struct Bases
    {
        double length, mass, time, temperature;
    };
    constexpr double lbf = 4.4482216152605;
    const std::map<std::string, Bases> systems{
        {"mm-t-s", {1e-3, 1e3, 1.0, 1.0}},
        {"mm-kg-ms", {1e-3, 1.0, 1e-3, 1.0}},
        {"cm-g-s", {1e-2, 1e-3, 1.0, 1.0}},
        {"ft-slug-s", {0.3048, lbf / 0.3048, 1.0, 5.0 / 9.0}},
        {"in-lbf-s", {0.0254, lbf / 0.0254, 1.0, 5.0 / 9.0}},
    };
    const Bases& bases = systems.at(system);
    const auto creep = values.creepExponents();
    MaterialValues changed = values;
    for (const std::int32_t id : values.numericIds()) {
        vxUnits::Dimension dimension = vxUnits::findQuantity(id)->dimension;
        if (id == Id::CreepModulusA && creep && creep->areBothGiven())
            dimension =
                vxUnits::dimensions::pressure.power(-*creep->n) * vxUnits::dimensions::time.power(-*creep->m - 1.0);
        const double factor = std::pow(bases.length, dimension.exponent(vxUnits::Dimension::Length)) *
                              std::pow(bases.mass, dimension.exponent(vxUnits::Dimension::Mass)) *
                              std::pow(bases.time, dimension.exponent(vxUnits::Dimension::Time)) *
                              std::pow(bases.temperature, dimension.exponent(vxUnits::Dimension::Temperature));
        changed = withSlip(changed, {id, system, factor, false, true});
    }
    return changed;
}

MaterialValues withSlip(const MaterialValues& values, const SampleSlip& slip)
{
    const auto wrong = [&](double number) { return (slip.reciprocal ? 1.0 / number : number) / slip.factor; };
    MaterialValues changed = values;
    if (const auto number = values.number(slip.id))
        changed.setNumber(slip.id, wrong(*number));
    std::vector<double> list = values.list(slip.id);
    if (!list.empty()) {
        std::transform(list.begin(), list.end(), list.begin(), wrong);
        changed.setList(slip.id, list);
    }
    return changed;
}

} // namespace vxtest
