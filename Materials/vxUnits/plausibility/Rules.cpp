#include "plausibility/Rules.h"

#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/DerivedValues.h"
#include "vxUnits/Quantity.h"

#include <algorithm>
#include <cmath>

namespace vxUnits {

namespace {

using Id = vxMat::PropertyId;

/// Room temperature, at which the ranges hold, in kelvin.
constexpr double roomTemperature = 293.15;

/// Factor by which a value may lie beyond the extreme material that is known.
constexpr double rangeMargin = 1.5;

/// The signs that a quantity may have besides positive.
struct SignRule
{
    std::int32_t id;
    bool zero;     ///< whether 0 is sensible: an insulator, ideal plasticity
    bool negative; ///< whether negative numbers are, as with fitted constants
};
constexpr SignRule signRules[] = {
    {Id::Density, false, false},
    {Id::YoungsModulus, false, false},
    {Id::DynamicViscosity, true, false},
    {Id::InitialShearModulusMu, false, false},
    {Id::IncompressibilityParameterD1, true, false},
    {Id::MaterialConstantC10, true, true},
    {Id::MaterialConstantC01, true, true},
    {Id::MaterialConstantC11, true, true},
    {Id::PlasticViscosity, true, false},
    {Id::PlasticFAI, true, false},
    {Id::PlasticYieldStress, false, false},
    {Id::PlasticStrain, true, false},
    {Id::PlasticInitialYieldStress, false, false},
    {Id::ShearRelaxationModulus, true, false},
    {Id::RelaxationTime, false, false},
    {Id::CreepModulusA, true, false},
    {Id::CreepModulusN, false, false},
    {Id::LimitingNetworkStretch, false, false},
    {Id::SpecificHeat, false, false},
    {Id::ThermalConductivity, false, false},
    {Id::ElectricalConductivity, true, false},
    {Id::RelativePermittivity, false, false},
    {Id::RelativePermeability, true, false},
    {Id::SpeedOfSound, false, false},
};

/// The bounds of a quantity by its definition. A value outside them is impossible.
struct HardBound
{
    std::int32_t id;
    double lowest;
    double highest;
};
constexpr HardBound hardBounds[] = {
    {Id::RelativePermittivity, 1.0, HUGE_VAL}, // static; a medium weakens a field
    {Id::ShearRelaxationModulus, 0.0, 1.0},    // no more than all can relax
    {Id::LimitingNetworkStretch, 1.0, HUGE_VAL},
    {Id::PlasticFAI, 0.0, 90.0},
};

/// The rows of the table of relations.
enum class Row : std::size_t
{
    WaveInGel,
    WaveInSoil,
    WaveInFilledRubber,
    WaveInDense,
    LightModulus,
    HeatOfDense,
    HeatOfLight,
    Diffusivity,
    DiffusivityOfGas,
    Lorenz,
    Sound,
    ModulusOfLiquid,
    ModulusOfGas,
    Water,
    YieldOfStiff,
    YieldOfSoft,
    Hardening,
    InitialModulus,
    BulkOverShear,
    RatioOfStiff,
    RatioLocks,
    CreepRate,
    Count
};

constexpr const char* cellular = "Gibson and Ashby, Cellular Solids, 1997; Schaedler et al., Science 334, 2011";
constexpr const char* selection = "Ashby, Materials Selection in Mechanical Design, 2011";
constexpr const char* crc = "CRC Handbook of Chemistry and Physics";

constexpr Relation relationTable[] = {
    {"wave speed in a bar", "sqrt(E / rho)", "up to 1500 kg/m^3: gels and lighter", 0.03, 20500, "m/s", selection},
    {"wave speed in a bar", "sqrt(E / rho)", "1500 to 2800 kg/m^3: soils", 5, 20500, "m/s", selection},
    {"wave speed in a bar", "sqrt(E / rho)", "2800 to 6000 kg/m^3: rubbers filled with metal", 12, 20500, "m/s",
     selection},
    {"wave speed in a bar", "sqrt(E / rho)", "above 6000 kg/m^3: metals", 60, 20500, "m/s", selection},
    {"modulus of lattices", "E / (rho / 60 kg/m^3)^2", "below 60 kg/m^3", 0, 2e9, "Pa", cellular},
    {"heat capacity per volume", "rho speHeat", "above 1500 kg/m^3", 0.35, 6.5, "MJ/(m^3 K)",
     "Dulong and Petit; caesium to steel at 650 degC (EN 1993-1-2)"},
    {"heat capacity per volume", "rho speHeat", "up to 1500 kg/m^3", 0, 6.5, "MJ/(m^3 K)",
     "Dulong and Petit; water 4.2"},
    {"thermal diffusivity", "k / (rho speHeat)", "solids and liquids", 1.2e-8, 2.5e-3, "m^2/s", crc},
    {"thermal diffusivity", "k / (rho speHeat)", "gases", 5e-8, 2e-2, "m^2/s", crc},
    {"Lorenz number at 20 degC", "k / (sigma 293 K)", "above 1 MS/m", 4e-10, 3e-7, "W Ohm/K^2",
     "Wiedemann and Franz: 2.4e-8; Kittel, Introduction to Solid State Physics, 2005"},
    {"speed of sound over wave speeds", "sspeed / sqrt(E / rho) to sspeed / sqrt((K + 4/3 G) / rho)", "solids", 0.5, 2,
     "1", "Achenbach, Wave Propagation in Elastic Solids, 1973"},
    {"acoustic bulk modulus", "rho sspeed^2", "liquids, above 400 kg/m^3", 3e7, 2e11, "Pa", crc},
    {"acoustic bulk modulus", "rho sspeed^2", "gases, below 30 kg/m^3", 5e3, 2.5e7, "Pa", crc},
    {"viscosity of water", "dv", "if density, specific heat and conductivity are those of water", 2e-4, 3e-3, "Pa s",
     "IAPWS, Viscosity of Ordinary Water Substance, 2008"},
    {"yield stress over modulus", "PYStress / E, PIYStress / E", "from 0.5 GPa", 2e-6, 0.4, "1",
     "Kelly and Macmillan, Strong Solids, 1986"},
    {"yield stress over modulus", "PYStress / E, PIYStress / E", "below 0.5 GPa", 2e-6, 20, "1", selection},
    {"hardening factor over modulus", "PHFactor / E", "unless 0", 2e-6, 1, "1", "Dieter, Mechanical Metallurgy, 1988"},
    {"initial modulus over Young's modulus", "9 K0 mu0 / (3 K0 + mu0) / E", "hyperelastic models beside E", 1.0 / 3.0,
     3, "1", "by definition, within scatter"},
    {"initial bulk over shear modulus", "K0 / mu0", "hyperelastic models", 2.2, 3e8, "1",
     "Treloar, The Physics of Rubber Elasticity, 1975; 2.2 is a Poisson's ratio of 0.3"},
    {"Poisson's ratio of stiff solids", "nu", "E above 5 GPa", -0.7, 0.47, "1",
     "Greaves et al., Nature Materials 10, 2011"},
    {"Poisson's ratio near 0.5", "nu", "linear elasticity", -0.7, 0.4996, "1",
     "Hughes, The Finite Element Method, 1987: elements lock"},
    {"creep rate at E / 1000 after an hour", "CreepA (E / 1000)^CreepN (3600 s)^CreepM", "100 MPa if there is no E",
     1e-30, 1e3, "1/s", "Frost and Ashby, Deformation-Mechanism Maps, 1982"},
};
static_assert(std::size(relationTable) == static_cast<std::size_t>(Row::Count));

const Relation& relation(Row row)
{
    return relationTable[static_cast<std::size_t>(row)];
}

class Rules
{
public:
    explicit Rules(const MaterialValues& values)
        : m_values(values),
          m_moduli(initialModuli(values)),
          m_rho(number(Id::Density)),
          m_e(number(Id::YoungsModulus)),
          m_nu(number(Id::PoissonsRatio)),
          m_cp(number(Id::SpecificHeat)),
          m_k(number(Id::ThermalConductivity)),
          m_sigma(number(Id::ElectricalConductivity)),
          m_c(number(Id::SpeedOfSound))
    {}

    std::vector<Finding> apply()
    {
        for (const std::int32_t id : m_values.numericIds())
            checkNumbers(id);
        checkPoissonsRatio();
        checkStiffness();
        checkHeat();
        checkSound();
        checkWater();
        checkPlasticity();
        checkHyperelasticity();
        checkLists();
        checkCreep();
        return std::move(m_findings);
    }

private:
    using Ids = std::array<std::int32_t, 3>;

    /// Returns NaN if the material does not have the quantity, or if it is not positive and therefore reported already.
    double number(std::int32_t id) const
    {
        const double value = m_values.number(id).value_or(std::nan(""));
        return value > 0.0 && std::isfinite(value) ? value : std::nan("");
    }

    void add(Rule rule, const Ids& ids, double related, double lowest, double highest,
             Severity severity = Severity::Unlikely)
    {
        const auto& list = m_values.list(ids[0]);
        const double value = m_values.number(ids[0]).value_or(list.empty() ? 0.0 : list.front());
        m_findings.push_back({rule, severity, ids, value, related, lowest, highest});
    }

    /// Adds a finding if the value of a relation is outside its bounds. NaN is not outside.
    void expect(Rule rule, const Ids& ids, double value, Row row)
    {
        expect(rule, ids, value, relation(row).lowest, relation(row).highest);
    }
    void expect(Rule rule, const Ids& ids, double value, double lowest, double highest)
    {
        if (value < lowest || value > highest)
            add(rule, ids, value, lowest, highest);
    }

    void addAbout(Rule rule, std::int32_t id, double value, double lowest, double highest, Severity severity)
    {
        m_findings.push_back({rule, severity, {id, 0, 0}, value, value, lowest, highest});
    }

    // --- Each number alone ---

    void checkNumbers(std::int32_t id)
    {
        const std::size_t before = m_findings.size();
        if (const auto one = m_values.number(id))
            checkNumber(id, *one);
        const auto& list = m_values.list(id);
        const auto broken = std::find_if(list.begin(), list.end(), [](double one) { return !std::isfinite(one); });
        for (auto one = broken == list.end() ? list.begin() : broken; one != list.end(); ++one) {
            if (m_findings.size() == before) // one finding for a list
                checkNumber(id, *one);
        }
    }

    void checkNumber(std::int32_t id, double value)
    {
        if (!std::isfinite(value))
            addAbout(Rule::NotFinite, id, value, 0.0, 0.0, Severity::Impossible);
        else if (!hasRightSign(id, value))
            addAbout(value == 0.0 ? Rule::NotPositive : Rule::Negative, id, value, 0.0, 0.0, Severity::Impossible);
        else if (id != Id::PoissonsRatio && !(value == 0.0 && signOf(id).zero))
            checkRange(id, value);
    }

    static SignRule signOf(std::int32_t id)
    {
        const auto* const found = std::find_if(std::begin(signRules), std::end(signRules),
                                               [id](const SignRule& one) { return one.id == id; });
        return found == std::end(signRules) ? SignRule{id, true, true} : *found;
    }

    static bool hasRightSign(std::int32_t id, double value)
    {
        const SignRule sign = signOf(id);
        return value > 0.0 || (value == 0.0 && sign.zero) || (value < 0.0 && sign.negative);
    }

    /// Returns whether the material may be a solid. Without a viscosity and a modulus it may also be a fluid.
    bool mayBeSolid() const { return !m_values.has(Id::DynamicViscosity) || isSolid(); }
    bool isSolid() const
    {
        return m_values.has(Id::YoungsModulus) || m_moduli || m_values.has(Id::Plasticity) ||
               m_values.has(Id::IsotropicElasticity);
    }

    /// Returns the range of a quantity over the states that the material may have.
    KnownRange rangeOf(const Quantity& quantity) const
    {
        KnownRange range{HUGE_VAL, -HUGE_VAL, "", ""};
        const auto join = [&range](const std::optional<KnownRange>& state) {
            if (state && state->lowest < range.lowest)
                range.lowest = state->lowest;
            if (state && state->highest > range.highest)
                range.highest = state->highest;
        };
        if (mayBeSolid())
            join(quantity.solids);
        if (!isSolid()) {
            join(quantity.liquids);
            join(quantity.gases);
        }
        return range;
    }

    void checkRange(std::int32_t id, double value)
    {
        for (const HardBound& bound : hardBounds) {
            if (bound.id == id && (value < bound.lowest || value > bound.highest)) {
                const Rule rule = value < bound.lowest ? Rule::BelowRange : Rule::AboveRange;
                const KnownRange known = rangeOf(*findQuantity(id));
                addAbout(rule, id, value, known.lowest, known.highest, Severity::Impossible);
                return;
            }
        }
        const KnownRange known = rangeOf(*findQuantity(id));
        if (known.lowest > known.highest)
            return;
        const double lowest = known.lowest > 0.0 ? known.lowest / rangeMargin : known.lowest * rangeMargin;
        if (value < lowest)
            addAbout(Rule::BelowRange, id, value, known.lowest, known.highest, Severity::Unlikely);
        else if (value > known.highest * rangeMargin)
            addAbout(Rule::AboveRange, id, value, known.lowest, known.highest, Severity::Unlikely);
    }

    // --- Elasticity ---

    void checkPoissonsRatio()
    {
        const auto nu = m_values.number(Id::PoissonsRatio);
        if (!nu || !std::isfinite(*nu))
            return;
        constexpr double stiff = 5e9; // above every rubber and gel
        const double lowest = findQuantity(Id::PoissonsRatio)->solids->lowest;
        const double locks = relation(Row::RatioLocks).highest;
        if (*nu > 0.5 || *nu < -1.0)
            addAbout(Rule::RatioOutside, Id::PoissonsRatio, *nu, -1.0, 0.5, Severity::Impossible);
        else if (*nu < lowest)
            addAbout(Rule::BelowRange, Id::PoissonsRatio, *nu, lowest, 0.5, Severity::Unlikely);
        else if (m_e > stiff && *nu > relation(Row::RatioOfStiff).highest)
            expect(Rule::RatioOfStiff, {Id::PoissonsRatio, Id::YoungsModulus, 0}, *nu, Row::RatioOfStiff);
        else if (*nu > locks)
            addAbout(Rule::RatioNearHalf, Id::PoissonsRatio, *nu, 0.0, locks, Severity::Unlikely);
    }

    /// Returns the modulus that decides about the stiffness of the material, and the id of its quantity.
    std::pair<double, std::int32_t> stiffness() const
    {
        if (m_e > 0.0)
            return {m_e, Id::YoungsModulus};
        if (!m_moduli || !(m_moduli->shear > 0.0))
            return {std::nan(""), 0};
        const bool chains = m_values.has(Id::InitialShearModulusMu) && !m_values.has(Id::MaterialConstantC10);
        const std::int32_t id = chains ? Id::InitialShearModulusMu : Id::MaterialConstantC10;
        return {3.0 * m_moduli->shear, id};
    }

    /// Returns the bounds of the wave speed by the density. Gels have the lowest speeds and about the density of water. Soils
    /// are denser, and rubbers that are filled with iron or lead are denser than soils. Materials as dense as steel are
    /// metals or plastics filled with tungsten.
    Row waveRow() const
    {
        if (m_rho <= 1500.0)
            return Row::WaveInGel;
        if (m_rho <= 2800.0)
            return Row::WaveInSoil;
        return m_rho <= 6000.0 ? Row::WaveInFilledRubber : Row::WaveInDense;
    }

    void checkStiffness()
    {
        const auto [modulus, id] = stiffness();
        const Ids ids{id, Id::Density, 0};
        constexpr double light = 60.0; // kg/m3; honeycomb and balsa are above
        const double speed = std::sqrt(modulus / m_rho);
        expect(Rule::WaveSpeed, ids, speed, waveRow());
        // Lattices and aerogels: the modulus falls at least with the square of the density.
        const double stiffest = relation(Row::LightModulus).highest * (m_rho / light) * (m_rho / light);
        if (m_rho < light && speed <= relation(waveRow()).highest)
            expect(Rule::LightAndStiff, ids, modulus, 0.0, stiffest);
    }

    // --- Heat and electricity ---

    bool isGas() const { return m_rho < 30.0 && !isSolid(); }

    void checkHeat()
    {
        constexpr double dense = 1500.0;
        expect(Rule::HeatPerVolume, {Id::SpecificHeat, Id::Density, 0}, m_rho * m_cp / 1e6,
               m_rho > dense ? Row::HeatOfDense : Row::HeatOfLight);
        expect(Rule::Diffusivity, {Id::ThermalConductivity, Id::Density, Id::SpecificHeat}, m_k / (m_rho * m_cp),
               isGas() ? Row::DiffusivityOfGas : Row::Diffusivity);
        constexpr double metallic = 1e6; // S/m
        if (m_sigma > metallic)
            expect(Rule::LorenzNumber, {Id::ThermalConductivity, Id::ElectricalConductivity, 0},
                   m_k / (m_sigma * roomTemperature), Row::Lorenz);
    }

    // --- Sound ---

    void checkSound()
    {
        if (isSolid())
            checkSoundInSolid();
        else
            checkSoundInFluid();
    }

    void checkSoundInSolid()
    {
        const Ids ids{Id::SpeedOfSound, stiffness().second, Id::Density};
        const double slowest = std::sqrt(stiffness().first / m_rho);
        const double bulk = m_moduli ? m_moduli->bulk.value_or(std::nan("")) : m_e / (3.0 * (1.0 - 2.0 * m_nu));
        const double shear = m_moduli ? m_moduli->shear : m_e / (2.0 * (1.0 + m_nu));
        const double fastest = std::sqrt((bulk + 4.0 / 3.0 * shear) / m_rho);
        const Relation& margin = relation(Row::Sound); // for anisotropy, temperature, kind of wave
        expect(Rule::SoundInSolid, ids, m_c, slowest * margin.lowest, fastest * margin.highest);
    }

    /// Checks rho c^2, from liquefied gases to liquid metals for liquids. For gases it is the ratio of the specific heats times
    /// the pressure.
    void checkSoundInFluid()
    {
        constexpr double lightestLiquid = 400.0;
        const Ids ids{Id::SpeedOfSound, Id::Density, 0};
        const double modulus = m_rho * m_c * m_c;
        if (m_rho > lightestLiquid)
            expect(Rule::AcousticModulus, ids, modulus, Row::ModulusOfLiquid);
        else if (isGas())
            expect(Rule::AcousticModulus, ids, modulus, Row::ModulusOfGas);
    }

    /// Checks the viscosity of a fluid with the density, heat and conductivity of water. Such a fluid is nearly water, because
    /// water that is thickened with a polymer is not a Newtonian fluid.
    void checkWater()
    {
        const bool water =
            m_rho > 950.0 && m_rho < 1005.0 && m_cp > 4100.0 && m_cp < 4300.0 && m_k > 0.54 && m_k < 0.69;
        if (water)
            expect(Rule::WaterViscosity, {Id::DynamicViscosity, Id::SpecificHeat, Id::ThermalConductivity},
                   number(Id::DynamicViscosity), Row::Water);
    }

    // --- Plasticity ---

    double firstYield() const
    {
        const auto& list = m_values.list(Id::PlasticYieldStress);
        return m_values.has(Id::PlasticYieldStress) && !list.empty() ? list.front()
                                                                     : number(Id::PlasticInitialYieldStress);
    }

    void checkPlasticity()
    {
        const std::int32_t id =
            m_values.list(Id::PlasticYieldStress).empty() ? Id::PlasticInitialYieldStress : Id::PlasticYieldStress;
        // The theoretical strength is a tenth of the modulus. Only rubber bears more than its modulus.
        constexpr double soft = 0.5e9;
        const Row row = m_e < soft ? Row::YieldOfSoft : Row::YieldOfStiff;
        expect(Rule::YieldRatio, {id, Id::YoungsModulus, 0}, firstYield() / m_e, row);
        if (id == Id::PlasticYieldStress)
            expect(Rule::YieldRatio, {Id::PlasticInitialYieldStress, Id::YoungsModulus, 0},
                   number(Id::PlasticInitialYieldStress) / m_e, row);
        const auto hardening = m_values.number(Id::PlasticHardeningFactor);
        const Ids ids{Id::PlasticHardeningFactor, Id::YoungsModulus, 0};
        if (hardening && *hardening < 0.0)
            add(Rule::HardeningFalls, {Id::PlasticHardeningFactor, 0, 0}, *hardening, 0.0, m_e);
        else // 0 is ideal plasticity; number() returns NaN for it
            expect(Rule::HardeningRatio, ids, number(Id::PlasticHardeningFactor) / m_e, Row::Hardening);
    }

    void checkLists()
    {
        const auto& stresses = m_values.list(Id::PlasticYieldStress);
        const auto& strains = m_values.list(Id::PlasticStrain);
        const bool both = m_values.has(Id::PlasticYieldStress) && m_values.has(Id::PlasticStrain);
        if (both && stresses.size() != strains.size())
            add(Rule::ListLengths, {Id::PlasticStrain, Id::PlasticYieldStress, 0}, static_cast<double>(strains.size()),
                static_cast<double>(stresses.size()), static_cast<double>(stresses.size()));
        if (!strains.empty() && strains.front() != 0.0)
            add(Rule::StrainStart, {Id::PlasticStrain, 0, 0}, strains.front(), 0.0, 0.0);
        checkOrder(Rule::StrainOrder, Id::PlasticStrain, strains, [](double one, double next) { return one < next; });
        checkOrder(Rule::HardeningFalls, Id::PlasticYieldStress, stresses,
                   [](double one, double next) { return one <= next; });
    }

    template <class InOrder>
    void checkOrder(Rule rule, std::int32_t id, const std::vector<double>& list, InOrder inOrder)
    {
        for (std::size_t i = 1; i < list.size(); ++i) {
            if (inOrder(list[i - 1], list[i]) || !std::isfinite(list[i - 1]) || !std::isfinite(list[i]))
                continue;
            m_findings.push_back({rule, Severity::Unlikely, {id, 0, 0}, list[i], list[i], list[i - 1], HUGE_VAL});
            return;
        }
    }

    // --- Hyperelasticity, creep ---

    void checkHyperelasticity()
    {
        if (!m_moduli)
            return;
        const std::int32_t shear = stiffness().second != Id::YoungsModulus && stiffness().second != 0
                                       ? stiffness().second
                                       : static_cast<std::int32_t>(Id::MaterialConstantC10);
        if (m_moduli->shear < 0.0) {
            add(Rule::InitialShear, {shear, Id::MaterialConstantC01, 0}, m_moduli->shear, 0.0, HUGE_VAL,
                Severity::Impossible);
            return;
        }
        // The models are made for rubber, which hardly changes its volume: rubber has 500 to 1e4, gels reach 1e7.
        if (m_moduli->bulk)
            expect(Rule::BulkOverShear, {Id::IncompressibilityParameterD1, shear, 0}, *m_moduli->bulk / m_moduli->shear,
                   Row::BulkOverShear);
        expect(Rule::InitialModulus, {shear, Id::YoungsModulus, 0}, m_moduli->youngs() / m_e, Row::InitialModulus);
    }

    /// Checks the strain rate at a thousandth of the modulus after an hour. It is 1e-10 to 1e-3 per second for metals at
    /// working temperature, lower for rocks, higher for solder.
    void checkCreep()
    {
        const auto exponents = m_values.creepExponents();
        const double a = number(Id::CreepModulusA);
        if (!exponents || !exponents->areBothGiven())
            return;
        constexpr double usualStress = 1e8;
        constexpr double hour = 3600.0;
        const double stress = m_e > 0.0 ? m_e / 1000.0 : usualStress;
        const double rate = std::log10(a) + *exponents->n * std::log10(stress) + *exponents->m * std::log10(hour);
        const Ids ids{Id::CreepModulusA, Id::CreepModulusN,
                      m_e > 0.0 ? static_cast<std::int32_t>(Id::YoungsModulus) : 0};
        const Relation& known = relation(Row::CreepRate);
        if (rate < std::log10(known.lowest) || rate > std::log10(known.highest)) // the rate itself may be out of range
            add(Rule::CreepRate, ids, std::pow(10.0, rate), known.lowest, known.highest);
    }

    const MaterialValues& m_values;
    std::optional<InitialModuli> m_moduli;
    double m_rho, m_e, m_nu, m_cp, m_k, m_sigma, m_c; ///< not a number if missing or at fault
    std::vector<Finding> m_findings;
};

/// Returns the square of the distance of a relation from a span, in decades; 0 if the relation is not positive.
double distanceSquared(double relation, double lowest, double highest)
{
    if (!(relation > 0.0))
        return 0.0;
    const double decades = std::max(std::log10(lowest / relation), std::log10(relation / highest));
    return decades > 0.0 ? decades * decades : 0.0;
}

} // namespace

const std::vector<Relation>& relations()
{
    static const std::vector<Relation> all(std::begin(relationTable), std::end(relationTable));
    return all;
}

std::vector<Finding> applyRules(const MaterialValues& values)
{
    return Rules(values).apply();
}

double unusualness(const MaterialValues& values)
{
    const double modulus = values.number(Id::YoungsModulus).value_or(std::nan(""));
    const double hardening = values.number(Id::PlasticHardeningFactor).value_or(std::nan(""));
    double sum = 2.0 * distanceSquared(hardening / modulus, 2e-4, 0.3);
    const auto moduli = initialModuli(values);
    if (moduli && moduli->bulk)
        sum += distanceSquared(*moduli->bulk / moduli->shear, 50.0, 1e7);
    return sum;
}

} // namespace vxUnits
