#include "plausibility/Slips.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>

namespace vxUnits {

namespace {

namespace d = dimensions;
using Id = vxMat::PropertyId;

/// A unit that is common for a dimension, besides the unit of the catalogue.
struct UsualUnit
{
    Dimension dimension;
    const char* unit = "";
    double rareness = 0.0;
};

constexpr UsualUnit usualUnits[] = {
    {d::pressure, "MPa", 0.0},
    {d::pressure, "GPa", 0.2},
    {d::pressure, "psi", 0.6},
    {d::pressure, "ksi", 0.7},
    {d::pressure, "kPa", 0.8},
    {d::pressure, "Msi", 1.2},
    {d::pressure, "kgf/mm^2", 1.5},
    {d::pressure, "kgf/cm^2", 1.6},
    {d::pressure, "bar", 1.8},
    {d::compressibility, "1/MPa", 0.0},
    {d::compressibility, "1/GPa", 0.4},
    {d::compressibility, "1/psi", 0.8},
    {d::compressibility, "1/kPa", 0.9},
    {d::density, "g/cm^3", 0.0},
    {d::density, "t/mm^3", 0.2},
    {d::density, "lb/ft^3", 0.5},
    {d::density, "lb/in^3", 0.5},
    {d::density, "kg/mm^3", 0.6},
    {d::density, "lbf s^2/in^4", 0.9},
    {d::density, "slug/ft^3", 1.5},
    {d::specificHeat, "kJ/(kg K)", 0.0},
    {d::specificHeat, "cal/(g K)", 0.3}, // the same number as in Btu/(lb degF)
    {d::specificHeat, "mJ/(t K)", 0.6},
    {d::thermalConductivity, "W/(cm K)", 0.0},
    {d::thermalConductivity, "mW/(m K)", 0.3},
    {d::thermalConductivity, "W/(mm K)", 0.6},
    {d::thermalConductivity, "kW/(m K)", 0.9},
    {d::thermalConductivity, "cal/(s cm K)", 1.0},
    {d::dynamicViscosity, "mPa s", 0.0}, // the centipoise
    {d::dynamicViscosity, "uPa s", 0.4},
    {d::dynamicViscosity, "P", 0.9},
    {d::electricalConductivity, "MS/m", 0.0},
    {d::electricalConductivity, "S/cm", 0.2},
    {d::electricalConductivity, "%IACS", 0.9},
    {d::electricalConductivity, "uS/cm", 0.9},
    {d::electricalResistivity, "Ohm m", 0.5},
    {d::electricalResistivity, "uOhm cm", 0.8},
    {d::speed, "km/s", 0.0},
    {d::speed, "mm/s", 0.5},
    {d::speed, "ft/s", 0.6},
    {d::speed, "cm/s", 0.9},
    {d::angle, "rad", 0.0},
    {d::none, "%", 0.0},
};

/// Returns whether the number of a quantity may be in percent. Exponents and stretches are not; a Poisson's ratio and a
/// share are only if they are too large otherwise.
bool mayBePercent(std::int32_t id, const MaterialValues& values)
{
    constexpr double largestRatio = 0.5;
    constexpr double largestShare = 1.0;
    const double size = std::abs(values.number(id).value_or(0.0));
    return id == Id::PlasticStrain || (id == Id::PoissonsRatio && size > largestRatio) ||
           (id == Id::ShearRelaxationModulus && size > largestShare);
}

struct ParsedUnit
{
    Dimension dimension; ///< of the quantities that use the unit
    std::string text;
    double factor;
    bool reciprocal;
    double rareness;
};

const std::vector<ParsedUnit>& parsedUnits()
{
    static const std::vector<ParsedUnit> parsed = [] {
        std::vector<ParsedUnit> units;
        for (const UsualUnit& one : usualUnits) {
            const Unit unit = *Unit::parse(one.unit);
            const bool reciprocal = one.dimension == d::electricalResistivity;
            units.push_back({reciprocal ? d::electricalConductivity : one.dimension, one.unit, unit.factor(),
                             reciprocal, one.rareness});
        }
        return units;
    }();
    return parsed;
}

/// Adds the slips of one quantity.
void addOwn(std::vector<Slip>& slips, std::int32_t id, const MaterialValues& values)
{
    const Dimension& dimension = findQuantity(id)->dimension;
    if (dimension.isNone() && !mayBePercent(id, values))
        return;
    for (const ParsedUnit& unit : parsedUnits()) {
        if (unit.dimension != dimension)
            continue;
        slips.push_back({{{id, unit.text, unit.factor, unit.reciprocal}}, "", "", unit.rareness, ""});
    }
}

/// Adds errors by one or two digits of a number. They compete with units whose factors happen to fit.
void addTypingErrors(std::vector<Slip>& slips, std::int32_t id)
{
    constexpr std::pair<double, double> factors[] = {{10.0, 1.0}, {0.1, 1.0}, {100.0, 1.8}, {0.01, 1.8}};
    const Dimension& dimension = findQuantity(id)->dimension;
    if (dimension.isNone() || dimension == d::angle)
        return;
    for (const auto& [factor, rareness] : factors)
        slips.push_back({{{id, "", factor, false}}, "", "", rareness, "", true});
}

/// Returns the change of the creep factor from other units of stress and time; absent if the material has no factor, or if
/// there is no such unit.
std::optional<Change> creepChange(const MaterialValues& values, const std::string& stress, const std::string& time)
{
    const auto creep = values.creepExponents();
    if (!creep || !creep->areBothGiven() || !values.has(Id::CreepModulusA))
        return std::nullopt;
    const auto power = [](double exponent) { return "^(" + vxMat::formatNumber(exponent) + ") "; };
    const auto unit = Unit::parse(stress + power(-*creep->n) + time + power(-*creep->m - 1.0));
    if (!unit)
        return std::nullopt;
    return Change{Id::CreepModulusA, unit->text(), unit->factor(), false};
}

void addCreep(std::vector<Slip>& slips, const MaterialValues& values)
{
    struct Usual
    {
        const char* stress;
        const char* time;
        double rareness;
    };
    constexpr Usual usual[] = {{"MPa", "s", 0.0}, {"MPa", "h", 0.4}, {"ksi", "h", 1.0}, {"kPa", "s", 1.2}};
    for (const Usual& one : usual) {
        if (auto change = creepChange(values, one.stress, one.time))
            slips.push_back({{*std::move(change)}, "", "", one.rareness, ""});
    }
}

/// Returns "1/MPa" for "MPa", and "1/(kgf/mm^2)" for "kgf/mm^2".
std::string reciprocalOf(const std::string& unit)
{
    return Unit::parse("1/(" + unit + ")")->text();
}

/// Returns the changes of all stresses, and of quantities in units of stress, from one unit.
std::vector<Change> stressChanges(const MaterialValues& values, const std::string& unit, double factor)
{
    std::vector<Change> changes;
    for (const std::int32_t id : values.numericIds()) {
        const Dimension& dimension = findQuantity(id)->dimension;
        if (dimension == d::pressure)
            changes.push_back({id, unit, factor, false});
        if (dimension == d::compressibility)
            changes.push_back({id, reciprocalOf(unit), 1.0 / factor, false});
    }
    if (auto change = creepChange(values, "(" + unit + ")", "s"))
        changes.push_back(*std::move(change));
    return changes;
}

/// Adds slips of all stresses to one unit.
void addStresses(std::vector<Slip>& slips, const MaterialValues& values)
{
    for (const ParsedUnit& unit : parsedUnits()) {
        if (unit.dimension != d::pressure)
            continue;
        auto changes = stressChanges(values, unit.text, unit.factor);
        if (changes.size() > 1)
            slips.push_back({std::move(changes), "", unit.text, unit.rareness, ""});
    }
}

/// Adds slips of the density and all stresses, and of the specific heat too, as data sheets give them.
void addDataSheets(std::vector<Slip>& slips, const MaterialValues& values)
{
    struct Sheet
    {
        const char* stress = nullptr;
        const char* density = nullptr;
        double rareness = 0.0;
        const char* heat = nullptr; ///< null for the unit of the catalogue
    };
    constexpr Sheet sheets[] = {{"MPa", "g/cm^3", 0.2},  {"MPa", "g/cm^3", 0.2, "kJ/(kg K)"},
                                {"GPa", "g/cm^3", 0.4},  {"psi", "lb/in^3", 0.0},
                                {"psi", "lb/ft^3", 0.6}, {"ksi", "lb/in^3", 0.7}};
    if (!values.has(Id::Density))
        return;
    for (const Sheet& sheet : sheets) {
        auto changes = stressChanges(values, sheet.stress, Unit::parse(sheet.stress)->factor());
        if (changes.empty() || (sheet.heat != nullptr && !values.has(Id::SpecificHeat)))
            continue;
        if (sheet.heat != nullptr)
            changes.push_back({Id::SpecificHeat, sheet.heat, Unit::parse(sheet.heat)->factor(), false});
        changes.push_back({Id::Density, sheet.density, Unit::parse(sheet.density)->factor(), false});
        slips.push_back({std::move(changes), "", sheet.stress, sheet.rareness, sheet.density});
    }
}

/// The changes from a unit system to the catalogue's units, apart from the creep factor.
struct SystemChanges
{
    UnitSystem system;
    std::vector<Change> changes; ///< of all quantities that have a unit
    double rareness;
};

SystemChanges changesOf(const UnitSystem& system, double rareness)
{
    SystemChanges row{system, {}, rareness};
    for (const Quantity& quantity : quantities()) {
        const Unit unit = system.unitOf(quantity.dimension);
        if (!quantity.dimension.isNone())
            row.changes.push_back({quantity.id, unit.text(), unit.factor(), false});
    }
    return row;
}

const std::vector<SystemChanges>& systemChanges()
{
    static const std::vector<SystemChanges> all = [] {
        std::vector<SystemChanges> made;
        for (const UnitSystem& system : UnitSystem::builtIn())
            made.push_back(changesOf(system, 0.0));
        for (const char* const other : {"length m, mass t, time s", "length mm, mass kg, time s",
                                        "length mm, mass g, time ms", "length cm, mass g, time us"})
            made.push_back(changesOf(*UnitSystem::parse(other), 0.8));
        return made;
    }();
    return all;
}

void addSystem(std::vector<Slip>& slips, const MaterialValues& values, const SystemChanges& system)
{
    Slip slip{{}, system.system.text(), "", system.rareness, ""};
    std::copy_if(system.changes.begin(), system.changes.end(), std::back_inserter(slip.changes),
                 [&](const Change& change) { return values.has(change.id); });
    if (values.has(Id::CreepModulusA)) {
        if (const auto unit = unitOfQuantity(Id::CreepModulusA, system.system, values.creepExponents()))
            slip.changes.push_back({Id::CreepModulusA, unit->text(), unit->factor(), false});
    }
    const auto other = std::count_if(slip.changes.begin(), slip.changes.end(),
                                     [](const Change& change) { return change.factor != 1.0; });
    if (other > 1)
        slips.push_back(std::move(slip));
}

double changed(double number, const Change& change)
{
    const double multiplied = number * change.factor;
    return change.reciprocal ? 1.0 / multiplied : multiplied;
}

} // namespace

std::vector<Slip> possibleSlips(const MaterialValues& values)
{
    std::vector<Slip> slips;
    for (const std::int32_t id : values.numericIds()) {
        addOwn(slips, id, values);
        addTypingErrors(slips, id);
    }
    addCreep(slips, values);
    addStresses(slips, values);
    addDataSheets(slips, values);
    for (const SystemChanges& system : systemChanges())
        addSystem(slips, values, system); // SI itself changes nothing and is left out
    return slips;
}

MaterialValues corrected(const MaterialValues& values, const Slip& slip)
{
    MaterialValues result = values;
    for (const Change& change : slip.changes)
        result.transform(change.id, [&change](double number) { return changed(number, change); });
    return result;
}

} // namespace vxUnits
