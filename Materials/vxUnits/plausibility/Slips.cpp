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

/// Returns whether a number may be in percent. Exponents and stretches are not.
bool mayBePercent(std::int32_t id)
{
    return id == Id::PoissonsRatio || id == Id::PlasticStrain || id == Id::ShearRelaxationModulus;
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
void addOwn(std::vector<Slip>& slips, std::int32_t id, const Quantity& quantity)
{
    for (const ParsedUnit& unit : parsedUnits()) {
        if (unit.dimension != quantity.dimension || (quantity.dimension.isNone() && !mayBePercent(id)))
            continue;
        slips.push_back({{{id, unit.text, unit.factor, unit.reciprocal}}, "", "", unit.rareness});
    }
}

/// Returns the change of the creep factor from other units of stress and time; absent if there is no such unit.
std::optional<Change> creepChange(const CreepExponents& creep, const std::string& stress, const std::string& time)
{
    const auto power = [](double exponent) { return "^(" + vxMat::formatNumber(exponent) + ") "; };
    const auto unit = Unit::parse(stress + power(-creep.n) + time + power(-creep.m - 1.0));
    if (!unit)
        return std::nullopt;
    return Change{Id::CreepModulusA, unit->text(), unit->factor(), false};
}

void addCreep(std::vector<Slip>& slips, const CreepExponents& creep)
{
    struct Usual
    {
        const char* stress;
        const char* time;
        double rareness;
    };
    constexpr Usual usual[] = {{"MPa", "s", 0.0}, {"MPa", "h", 0.4}, {"ksi", "h", 1.0}, {"kPa", "s", 1.2}};
    for (const Usual& one : usual) {
        if (auto change = creepChange(creep, one.stress, one.time))
            slips.push_back({{*std::move(change)}, "", "", one.rareness});
    }
}

/// Adds slips of all stresses, and of quantities in units of stress, to one unit.
void addStresses(std::vector<Slip>& slips, const MaterialValues& values)
{
    for (const ParsedUnit& unit : parsedUnits()) {
        if (unit.dimension != d::pressure)
            continue;
        Slip slip{{}, "", unit.text, unit.rareness};
        for (const std::int32_t id : values.numericIds()) {
            const Dimension& dimension = findQuantity(id)->dimension;
            if (dimension == d::pressure)
                slip.changes.push_back({id, unit.text, unit.factor, false});
            if (dimension == d::compressibility)
                slip.changes.push_back({id, "1/(" + unit.text + ")", 1.0 / unit.factor, false});
        }
        const auto creep = values.creepExponents();
        if (creep && values.has(Id::CreepModulusA)) {
            if (auto change = creepChange(*creep, "(" + unit.text + ")", "s"))
                slip.changes.push_back(*std::move(change));
        }
        if (slip.changes.size() > 1)
            slips.push_back(std::move(slip));
    }
}

/// The changes from a unit system to the catalogue's units, apart from the creep factor.
struct SystemChanges
{
    const UnitSystem* system;
    std::vector<Change> changes; ///< of all quantities that have a unit
};

const std::vector<SystemChanges>& systemChanges()
{
    static const std::vector<SystemChanges> all = [] {
        std::vector<SystemChanges> made;
        for (const UnitSystem& system : UnitSystem::builtIn()) {
            SystemChanges& row = made.emplace_back(SystemChanges{&system, {}});
            for (const Quantity& quantity : quantities()) {
                const Unit unit = system.unitOf(quantity.dimension);
                if (!quantity.dimension.isNone())
                    row.changes.push_back({quantity.id, unit.text(), unit.factor(), false});
            }
        }
        return made;
    }();
    return all;
}

void addSystem(std::vector<Slip>& slips, const MaterialValues& values, const SystemChanges& system)
{
    Slip slip{{}, system.system->text(), "", 0.0};
    std::copy_if(system.changes.begin(), system.changes.end(), std::back_inserter(slip.changes),
                 [&](const Change& change) { return values.has(change.id); });
    const auto creep = values.creepExponents();
    if (creep && values.has(Id::CreepModulusA)) {
        const Unit unit = system.system->unitOfCreep(*creep);
        slip.changes.push_back({Id::CreepModulusA, unit.text(), unit.factor(), false});
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
    for (const std::int32_t id : values.numericIds())
        addOwn(slips, id, *findQuantity(id));
    const auto creep = values.creepExponents();
    if (creep && values.has(Id::CreepModulusA))
        addCreep(slips, *creep);
    addStresses(slips, values);
    for (const SystemChanges& system : systemChanges())
        addSystem(slips, values, system); // SI itself changes nothing and is left out
    return slips;
}

MaterialValues corrected(const MaterialValues& values, const Slip& slip)
{
    MaterialValues result = values;
    for (const Change& change : slip.changes) {
        if (const auto number = values.number(change.id))
            result.setNumber(change.id, changed(*number, change));
        std::vector<double> list = values.list(change.id);
        if (list.empty())
            continue;
        std::transform(list.begin(), list.end(), list.begin(), [&](double one) { return changed(one, change); });
        result.setList(change.id, std::move(list));
    }
    return result;
}

} // namespace vxUnits
