#include "texts/DeckTexts.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Quantity.h"
#include "writing/DeckWriter.h"

#include <algorithm>
#include <map>
#include <optional>
#include <pugixml.hpp>
#include <sstream>
#include <utility>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::Quantity;
using vxUnits::QuantityForm;

constexpr std::size_t longestText = 10000;
constexpr const char* strainParameter = "PStrain_parameter";

void addText(pugi::xml_node parent, const char* element, const std::string& text)
{
    parent.append_child(element).text().set(commentText(text, longestText).c_str());
}

std::string printed(const pugi::xml_node& node, unsigned depth)
{
    std::ostringstream text;
    node.print(text, "  ", pugi::format_default, pugi::encoding_utf8, depth);
    return text.str();
}

std::string joinedNumbers(const std::vector<double>& numbers)
{
    std::string text;
    for (const double number : numbers)
        text += (text.empty() ? "" : ",") + vxMat::formatNumber(number);
    return text;
}

/// A unit of a product and its power, as the text of a unit has it.
struct UnitTerm
{
    std::string name;
    std::string power; ///< empty for 1
};

/// Reads a term, "mm^3" or "MPa^-4.5"; behind a slash its power changes its sign.
UnitTerm readTerm(const std::string& text, bool isBehindSlash)
{
    const std::size_t sign = text.find('^');
    std::string power = sign == std::string::npos ? "1" : text.substr(sign + 1);
    if (isBehindSlash)
        power = power[0] == '-' ? power.substr(1) : "-" + power;
    return {text.substr(0, sign), power == "1" ? std::string() : power};
}

/// Returns the terms of a unit as it is written by the library of units: "W/(m K)", "lbf s^2/in^4", "1/(MPa^5 s)". At most
/// one slash is in the text, and everything behind it is divided by.
std::vector<UnitTerm> termsOf(std::string unit)
{
    unit.erase(std::remove_if(unit.begin(), unit.end(), [](char c) { return c == '(' || c == ')'; }), unit.end());
    std::vector<UnitTerm> terms;
    bool isBehindSlash = false;
    std::istringstream sides(unit);
    for (std::string side; std::getline(sides, side, '/'); isBehindSlash = true) {
        std::istringstream words(side);
        for (std::string word; words >> word;) {
            if (word != "1")
                terms.push_back(readTerm(word, isBehindSlash));
        }
    }
    return terms;
}

void addUnits(pugi::xml_node details, const std::string& unit)
{
    const std::vector<UnitTerm> terms = termsOf(unit);
    if (terms.empty()) {
        details.append_child("Unitless");
        return;
    }
    pugi::xml_node units = details.append_child("Units");
    units.append_attribute("name") = unit.c_str();
    for (const UnitTerm& term : terms) {
        pugi::xml_node one = units.append_child("Unit");
        if (!term.power.empty())
            one.append_attribute("power") = term.power.c_str();
        addText(one, "Name", term.name);
    }
}

/// The writer of MatML, which declares each property with its unit behind the materials.
class MatmlWriter : public DeckWriter
{
public:
    NameRules names() const override { return anyText(longestText); }
    std::string begin(const vxUnits::UnitSystem& units) override;
    void write(MaterialDeck& deck) override;
    std::string end() override;

private:
    /// A declaration of a property: the quantity and its unit.
    using Declared = std::pair<std::int32_t, std::string>;

    bool hasStrainsAsParameter(const MaterialDeck& deck) const;
    void addProperty(MaterialDeck& deck, pugi::xml_node bulk, const Quantity& quantity);
    std::string declare(const MaterialDeck& deck, const Quantity& quantity);

    std::map<Declared, std::string> m_declared; ///< the ids of the declarations
    std::map<std::int32_t, int> m_counts;       ///< of the declarations of each quantity
    bool m_hasParameter = false;
};

/// Returns the reason why a quantity has nothing to write; absent if it has.
std::optional<vxUnits::Message> emptinessOf(const MaterialDeck& deck, const Quantity& quantity)
{
    if (quantity.form == QuantityForm::Word && deck.values().word(quantity.id).empty())
        return makeMessage(Text::NoWord);
    if (quantity.form == QuantityForm::NumberList && deck.values().list(quantity.id).empty())
        return makeMessage(Text::CurveEmpty);
    return std::nullopt;
}

std::string MatmlWriter::begin(const vxUnits::UnitSystem& units)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- Units: " + baseUnits(units) + " -->\n<MatML_Doc>\n";
}

/// Returns the id of the declaration of a quantity. A factor of creep has one for each unit.
std::string MatmlWriter::declare(const MaterialDeck& deck, const Quantity& quantity)
{
    std::string unit = "1";
    if (const auto known = deck.unitsOf(quantity.id).written)
        unit = known->text();
    std::string& id = m_declared[{quantity.id, unit}];
    if (id.empty()) {
        id = vxMat::findPropertyRecord(quantity.id)->key;
        if (const int count = ++m_counts[quantity.id]; count > 1)
            id += "_" + std::to_string(count);
    }
    return id;
}

bool MatmlWriter::hasStrainsAsParameter(const MaterialDeck& deck) const
{
    const std::size_t count = deck.values().list(Id::PlasticStrain).size();
    return count > 0 && count == deck.values().list(Id::PlasticYieldStress).size();
}

void MatmlWriter::addProperty(MaterialDeck& deck, pugi::xml_node bulk, const Quantity& quantity)
{
    const bool isParameter = quantity.id == Id::PlasticStrain && hasStrainsAsParameter(deck);
    if (isParameter)
        return;
    pugi::xml_node property = bulk.append_child("PropertyData");
    property.append_attribute("property") = declare(deck, quantity).c_str();
    pugi::xml_node data = property.append_child("Data");
    data.append_attribute("format") = quantity.hasNumber() ? "float" : "string";
    if (const auto number = deck.values().number(quantity.id))
        data.text().set(vxMat::formatNumber(*number).c_str());
    else if (quantity.form == QuantityForm::NumberList)
        data.text().set(joinedNumbers(deck.values().list(quantity.id)).c_str());
    else
        data.text().set(quantity.form == QuantityForm::Switch
                            ? "on"
                            : commentText(deck.values().word(quantity.id), longestText).c_str());
    if (quantity.id == Id::PlasticYieldStress && hasStrainsAsParameter(deck)) {
        m_hasParameter = true;
        pugi::xml_node parameter = property.append_child("ParameterValue");
        parameter.append_attribute("parameter") = strainParameter;
        parameter.append_attribute("format") = "float";
        parameter.append_child("Data").text().set(joinedNumbers(deck.values().list(Id::PlasticStrain)).c_str());
        deck.convert(Id::PlasticStrain, makeMessage(Text::AsParameter));
    }
}

void MatmlWriter::write(MaterialDeck& deck)
{
    pugi::xml_document document;
    pugi::xml_node material = document.append_child("Material");
    material.append_attribute("id") = ("material_" + std::to_string(deck.heading().number)).c_str();
    pugi::xml_node bulk = material.append_child("BulkDetails");
    addText(bulk, "Name", deck.heading().name);
    const bool hasCreepUnit = deck.values().creepExponents().has_value();
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
        if (!deck.values().has(record.id))
            continue;
        if (record.id == Id::CreepModulusA && !hasCreepUnit) {
            deck.refuse({record.id}, makeMessage(Text::FactorNeedsExponents));
            continue;
        }
        const Quantity& quantity = *vxUnits::findQuantity(record.id);
        if (const auto reason = emptinessOf(deck, quantity)) {
            deck.refuse({record.id}, *reason);
            continue;
        }
        addProperty(deck, bulk, quantity);
        deck.carry(record.id);
    }
    std::string text = printed(material, 1);
    text.pop_back(); // the end of the line
    deck.line(text);
}

std::string MatmlWriter::end()
{
    pugi::xml_document document;
    pugi::xml_node metadata = document.append_child("Metadata");
    if (m_hasParameter) {
        pugi::xml_node details = metadata.append_child("ParameterDetails");
        details.append_attribute("id") = strainParameter;
        addText(details, "Name", vxMat::findPropertyRecord(Id::PlasticStrain)->name);
        details.append_child("Unitless");
    }
    for (const auto& [declared, id] : m_declared) {
        pugi::xml_node details = metadata.append_child("PropertyDetails");
        details.append_attribute("id") = id.c_str();
        addText(details, "Name", vxMat::findPropertyRecord(declared.first)->name);
        addUnits(details, declared.second);
        addText(details, "Notes", vxUnits::findQuantity(declared.first)->meaning);
    }
    return (metadata.first_child() ? printed(metadata, 1) : std::string()) + "</MatML_Doc>\n";
}

} // namespace

std::unique_ptr<DeckWriter> makeMatmlWriter()
{
    return std::make_unique<MatmlWriter>();
}

} // namespace vxDecks
