#include "QuantitiesDocument.h"

#include "MarkdownTable.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/DerivedValues.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/UnitSystem.h"

#include <optional>
#include <vector>

namespace vxtest {

namespace {

using vxUnits::KnownRange;
using vxUnits::Quantity;
using vxUnits::QuantityForm;
using vxUnits::UnitSystem;

using Cells = std::vector<std::string>;

std::string number(double value)
{
    return vxMat::formatNumber(value);
}

std::string nameOf(const Quantity& quantity)
{
    return vxMat::findPropertyRecord(quantity.id)->name;
}

std::string unitOf(const Quantity& quantity)
{
    switch (quantity.form) {
    case QuantityForm::Word:
        return "word";
    case QuantityForm::Switch:
        return "switch";
    case QuantityForm::NumberList:
        return std::string(quantity.siUnit) + " (list)";
    default:
        return quantity.siUnit;
    }
}

std::string catalogueUnitOf(const Quantity& quantity)
{
    const std::string text = vxMat::findPropertyRecord(quantity.id)->unit;
    switch (quantity.catalogueUnit) {
    case vxUnits::CatalogueUnit::Missing:
        return "\"" + text + "\": missing";
    case vxUnits::CatalogueUnit::Wrong:
        return "\"" + text + "\": **another unit**";
    default:
        return "\"" + text + "\"";
    }
}

std::string meanings()
{
    std::string text = tableHeader(
        {"id", "quantity", "key", "unit", "unit in the catalogue", "what the number means to a solver", "source"});
    for (const Quantity& one : vxUnits::quantities())
        text += tableRow({std::to_string(one.id), nameOf(one),
                          "`" + std::string(vxMat::findPropertyRecord(one.id)->key) + "`", unitOf(one),
                          catalogueUnitOf(one), one.meaning, one.meaningSource});
    return text;
}

std::string rangeText(const std::optional<KnownRange>& range)
{
    if (!range)
        return "-";
    return number(range->lowest) + " (" + range->lowestIs + ") to " + number(range->highest) + " (" + range->highestIs +
           ")";
}

std::string ranges()
{
    std::string text = tableHeader({"quantity", "unit", "solids", "liquids", "gases", "source"});
    for (const Quantity& one : vxUnits::quantities()) {
        if (*one.rangeSource != '\0')
            text += tableRow({nameOf(one), one.siUnit, rangeText(one.solids), rangeText(one.liquids),
                              rangeText(one.gases), one.rangeSource});
    }
    return text;
}

std::string relations()
{
    std::string text = tableHeader({"relation", "of", "for", "lowest", "highest", "unit", "source"});
    for (const vxUnits::Relation& one : vxUnits::relations())
        text += tableRow({one.name, "`" + std::string(one.formula) + "`", one.condition,
                          vxMat::formatGeneral(one.lowest), vxMat::formatGeneral(one.highest), one.unit, one.source});
    return text;
}

std::string systems()
{
    Cells titles{"quantity"};
    for (const UnitSystem& system : UnitSystem::builtIn())
        titles.push_back(system.text());
    std::string text = tableHeader(titles);
    const vxUnits::CreepExponents fifthPower{5.0, 0.0};
    for (const Quantity& one : vxUnits::quantities()) {
        if (!one.hasNumber() || (one.dimension.isNone() && one.id != vxMat::PropertyId::CreepModulusA))
            continue;
        Cells cells{nameOf(one) + (one.id == vxMat::PropertyId::CreepModulusA ? ", N = 5, M = 0" : "")};
        for (const UnitSystem& system : UnitSystem::builtIn())
            cells.push_back(vxUnits::unitOfQuantity(one.id, system, fifthPower)->text());
        text += tableRow(cells);
    }
    return text;
}

std::string units()
{
    std::string text = tableHeader({"unit", "in SI units", "measures"});
    for (const vxUnits::Unit& unit : vxUnits::builtInUnits()) {
        const std::string coherent = UnitSystem::si().unitOf(unit.dimension()).text();
        std::string value = number(unit.factor());
        if (coherent != "1")
            value += " " + coherent;
        if (unit.isTemperatureScale())
            value += ", from -" + number(unit.zero());
        text += tableRow({"`" + unit.text() + "`", value, unit.dimension().name()});
    }
    return text;
}

std::string derivedValues()
{
    std::string text = tableHeader({"value", "symbol", "formula", "unit"});
    vxUnits::MaterialValues all; // of a material that has everything
    for (const Quantity& one : vxUnits::quantities()) {
        if (one.form == QuantityForm::Number)
            all.setNumber(one.id, one.id == vxMat::PropertyId::PoissonsRatio ? 0.3 : 1.5);
    }
    for (const vxUnits::DerivedValue& one : vxUnits::derivedValues(all))
        text += tableRow({one.name, one.symbol, "`" + std::string(one.formula) + "`",
                          UnitSystem::si().unitOf(one.dimension).text()});
    return text;
}

} // namespace

std::string quantitiesDocument()
{
    return R"(# The 36 quantities

This page is made from the tables of `vxMaterial::units` by `ninja vx_quantities_document`; do not edit it.

## Units and meanings

The unit is the unit of the stored number, of documents, and of numbers that are typed without a unit. The unit text of the
catalogue never changes, even where it is missing or wrong.

)" + meanings() +
           R"(
## What known materials have

Ranges at room temperature and atmospheric pressure, with the materials at both ends. A value that is more than a factor of
1.5 outside its range is in doubt.

)" + ranges() +
           R"(
## Relations between quantities

A material whose values are outside one of these bounds is in doubt. In addition, plastic strains must begin with 0 and
ascend, each of them needs one yield stress, and yield stresses must not fall. A material that is like none of about a hundred
kinds of materials is in doubt if a usual error of one unit makes it like one of them.

A doubt is about the value without which the other ones are those of a known kind. A remedy is the most likely error of units:
powers of ten before other factors, common kinds of materials before exotic ones. It is called one possibility if an unrelated
error explains the values about as well, and is not named if a missing or additional digit explains them better.

)" + relations() +
           R"(
Errors by less than a factor of about two are not found, nor errors that stay within the span of the kind of material:
strengths in ksi taken for MPa, the modulus of soils, rubbers and tissues in kPa, the density of gases, foams, gels and rubbers
in lb/ft^3, the viscosity of liquids other than water in mPa s. Neither are errors in values that no other value depends on:
relaxation times, the conductivity of insulators, C01 with a larger C10.

## Unit systems

Angles are in degrees in all of them. The unit of Creep Modulus A depends on its exponents: stress^-N time^-(M+1).

)" + systems() +
           R"(
A system of the user's own is written as its base units: "length cm, mass g, time us, temperature K, current A".

## Derived values

)" + derivedValues() +
           R"(
## Built-in units

Each takes the usual prefixes. Any other name is looked up in the database of UDUNITS-2.

)" + units();
}

} // namespace vxtest
