#include "units/UnitListing.h"

#include "program/Files.h"
#include "program/TextTable.h"
#include "units/ChosenUnits.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Quantity.h"

#include <algorithm>
#include <vector>

namespace commandline {

namespace {

using vxUnits::Dimension;
using vxUnits::Quantity;
using vxUnits::UnitSystem;

struct Base
{
    Dimension::Base base;
    const char* title;
    const char* member; ///< in JSON
};

constexpr Base bases[] = {
    {Dimension::Length, "Length", "length"},    {Dimension::Mass, "Mass", "mass"},
    {Dimension::Time, "Time", "time"},          {Dimension::Temperature, "Temperature", "temperature"},
    {Dimension::Current, "Current", "current"},
};

std::vector<UnitSystem> systemsWith(const std::optional<std::string>& text)
{
    std::vector<UnitSystem> systems = UnitSystem::builtIn();
    if (!text)
        return systems;
    const auto system = UnitSystem::parse(*text);
    if (!system)
        throw Failure(system.failure().text());
    if (std::find(systems.begin(), systems.end(), *system) == systems.end())
        systems.push_back(*system);
    return systems;
}

std::string listSystems(const std::vector<UnitSystem>& systems)
{
    TextTable::Row heading{"System"};
    for (const Base& base : bases)
        heading.emplace_back(base.title);
    TextTable table(heading);
    for (const UnitSystem& system : systems) {
        TextTable::Row row{system.isBuiltIn() ? system.text() : "own"};
        for (const Base& base : bases)
            row.push_back(system.baseUnit(base.base));
        table.add(row);
    }
    return table.text();
}

/// Returns the unit of a quantity. The unit of the creep factor has its exponents as letters.
std::string unitOf(const Quantity& quantity, const UnitSystem& system)
{
    if (const auto unit = vxUnits::unitOfQuantity(quantity.id, system))
        return textOf(*unit);
    const std::string stress = system.unitOf(vxUnits::dimensions::pressure).text();
    const bool isProduct = stress.find_first_of("/ ^") != std::string::npos;
    return (isProduct ? "(" + stress + ")" : stress) + "^-N " + system.baseUnit(Dimension::Time) + "^-(M+1)";
}

std::string listQuantities(const std::vector<UnitSystem>& systems)
{
    TextTable::Row heading{"Quantity", "Key"};
    for (const UnitSystem& system : systems)
        heading.push_back(system.isBuiltIn() ? system.text() : "own");
    TextTable table(heading);
    for (const Quantity& quantity : vxUnits::quantities()) {
        if (!quantity.hasNumber())
            continue;
        const vxMat::PropertyRecord& record = *vxMat::findPropertyRecord(quantity.id);
        TextTable::Row row{record.name, record.key};
        for (const UnitSystem& system : systems)
            row.push_back(unitOf(quantity, system));
        table.add(row);
    }
    return table.text();
}

Json::Value toJson(const UnitSystem& system)
{
    Json::Value json;
    json["system"] = system.text();
    for (const Base& base : bases)
        json["base"][base.member] = system.baseUnit(base.base);
    return json;
}

Json::Value toJson(const Quantity& quantity, const std::vector<UnitSystem>& systems)
{
    const vxMat::PropertyRecord& record = *vxMat::findPropertyRecord(quantity.id);
    Json::Value json;
    json["id"] = quantity.id;
    json["name"] = record.name;
    json["key"] = record.key;
    json["meaning"] = quantity.meaning;
    for (const UnitSystem& system : systems)
        json["units"][system.text()] = unitOf(quantity, system);
    return json;
}

} // namespace

Answer listUnits(const std::optional<std::string>& system, Form form)
{
    const std::vector<UnitSystem> systems = systemsWith(system);
    if (form == Form::Text)
        return {listSystems(systems) + "\n" + listQuantities(systems), {}, Status::Clean};
    Json::Value document;
    for (const UnitSystem& one : systems)
        document["systems"].append(toJson(one));
    for (const Quantity& quantity : vxUnits::quantities()) {
        if (quantity.hasNumber())
            document["quantities"].append(toJson(quantity, systems));
    }
    return {toJsonText(document), {}, Status::Clean};
}

} // namespace commandline
