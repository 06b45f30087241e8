#include "reading/MatmlDeclarations.h"

#include "reading/TextOfDeck.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <vector>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::Unit;

/// Returns the letters and digits of a name as small letters.
std::string plainName(std::string_view name)
{
    std::string plain;
    for (const char c : name) {
        if (c >= 'A' && c <= 'Z')
            plain += static_cast<char>(c - 'A' + 'a');
        else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
            plain += c;
    }
    return plain;
}

/// Names of quantities that documents use in place of the names of the catalogue.
constexpr std::pair<const char*, std::int32_t> otherNames[] = {
    {"massdensity", Id::Density},
    {"youngmodulus", Id::YoungsModulus},
    {"elasticmodulus", Id::YoungsModulus},
    {"modulusofelasticity", Id::YoungsModulus},
    {"tensilemodulus", Id::YoungsModulus},
    {"poissonratio", Id::PoissonsRatio},
    {"specificheatcapacity", Id::SpecificHeat},
    {"specificheatconstantpressure", Id::SpecificHeat},
    {"heatcapacity", Id::SpecificHeat},
    {"heatconductivity", Id::ThermalConductivity},
    {"isotropicthermalconductivity", Id::ThermalConductivity},
    {"viscosity", Id::DynamicViscosity},
    {"soundspeed", Id::SpeedOfSound},
    {"soundvelocity", Id::SpeedOfSound},
    {"electricconductivity", Id::ElectricalConductivity},
    {"isotropicelectricalconductivity", Id::ElectricalConductivity},
    {"dielectricconstant", Id::RelativePermittivity},
    {"isotropicrelativepermittivity", Id::RelativePermittivity},
    {"isotropicrelativepermeability", Id::RelativePermeability},
};

const std::map<std::string, std::int32_t, std::less<>>& quantitiesByName()
{
    static const std::map<std::string, std::int32_t, std::less<>> all = [] {
        std::map<std::string, std::int32_t, std::less<>> made;
        for (const vxMat::PropertyRecord& record : vxMat::propertyRecords())
            made.emplace(plainName(record.name), record.id);
        for (const auto& [name, id] : otherNames)
            made.emplace(name, id);
        return made;
    }();
    return all;
}

/// A unit of a product and its power, as the document has them.
struct UnitTerm
{
    std::string name;
    std::string power; ///< empty for 1
};

std::vector<UnitTerm> termsOf(const pugi::xml_node& units)
{
    std::vector<UnitTerm> terms;
    for (const pugi::xml_node& unit : units.children()) {
        if (matmlName(unit) != "Unit")
            continue;
        const std::string_view name = trimmed(matmlChild(unit, "Name").text().get());
        terms.push_back(
            {name.empty() ? "?" : std::string(name), std::string(trimmed(unit.attribute("power").value()))});
    }
    return terms;
}

std::string productOf(const std::vector<UnitTerm>& terms)
{
    std::string product;
    for (const UnitTerm& term : terms) {
        product += (product.empty() ? "" : " ") + term.name;
        if (!term.power.empty() && term.power != "1")
            product += "^" + term.power;
    }
    return product;
}

std::optional<Unit> parsed(const std::string& text)
{
    auto unit = Unit::parse(text);
    return unit ? std::optional<Unit>(*std::move(unit)) : std::nullopt;
}

/// Replaces C and F, which some programs write for degrees of temperature, and returns whether there are any.
bool replaceDegrees(std::vector<UnitTerm>& terms)
{
    bool hasDegrees = false;
    for (UnitTerm& term : terms) {
        if (term.name != "C" && term.name != "F")
            continue;
        term.name.insert(0, "deg");
        hasDegrees = true;
    }
    return hasDegrees;
}

void readUnits(const pugi::xml_node& details, MatmlDeclaration& declaration)
{
    const pugi::xml_node units = matmlChild(details, "Units");
    if (units.empty()) {
        declaration.unitText = "1";
        declaration.unit = Unit();
        return;
    }
    std::vector<UnitTerm> terms = termsOf(units);
    declaration.unitText = terms.empty() ? units.attribute("name").value() : productOf(terms);
    declaration.unit = parsed(declaration.unitText);
    if (replaceDegrees(terms))
        declaration.degree = parsed(productOf(terms));
    const pugi::xml_attribute factor = units.attribute("factor");
    const auto number = factor ? readDeckNumber(factor.value()) : std::optional<double>(1.0);
    if (number && *number > 0.0)
        declaration.factor = *number;
    else
        declaration.unit.reset(); // the unit is not known without its factor
}

} // namespace

std::string_view matmlName(const pugi::xml_node& element)
{
    const std::string_view name = element.name();
    return name.substr(name.find(':') + 1);
}

pugi::xml_node matmlChild(const pugi::xml_node& parent, std::string_view name)
{
    return parent.find_child([name](const pugi::xml_node& child) { return matmlName(child) == name; });
}

MatmlDeclarations readMatmlDeclarations(const pugi::xml_node& metadata, std::string_view element)
{
    MatmlDeclarations all;
    for (const pugi::xml_node& details : metadata.children()) {
        if (matmlName(details) != element)
            continue;
        MatmlDeclaration declaration;
        declaration.id = details.attribute("id").value();
        declaration.name = trimmed(matmlChild(details, "Name").text().get());
        if (declaration.name.empty())
            declaration.name = declaration.id;
        declaration.quantity = matmlQuantity(declaration.name);
        readUnits(details, declaration);
        all.emplace(declaration.id, std::move(declaration));
    }
    return all;
}

std::optional<std::int32_t> matmlQuantity(std::string_view name)
{
    const auto found = quantitiesByName().find(plainName(name));
    return found == quantitiesByName().end() ? std::nullopt : std::optional<std::int32_t>(found->second);
}

} // namespace vxDecks
