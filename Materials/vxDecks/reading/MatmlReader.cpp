#include "reading/DeckReader.h"
#include "reading/MaterialReading.h"
#include "reading/MatmlDeclarations.h"
#include "reading/TextOfDeck.h"
#include "texts/BulkTexts.h"
#include "texts/DeckTexts.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Quantity.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::Converter;
using vxUnits::CreepExponents;
using vxUnits::QuantityForm;
using vxUnits::Unit;
using vxUnits::UnitSystem;

/// The largest document that is read, because the whole document is in memory.
constexpr std::size_t mostBytes = std::size_t(64) << 20U;

/// The largest number of elements and attributes of a document. In memory, each of them has up to 64 bytes.
constexpr std::ptrdiff_t mostNodes = 8000000;

std::string readBounded(std::istream& file)
{
    std::string text;
    std::vector<char> part(std::size_t(1) << 16U);
    while (file.read(part.data(), static_cast<std::streamsize>(part.size())) || file.gcount() > 0) {
        text.append(part.data(), static_cast<std::size_t>(file.gcount()));
        if (text.size() > mostBytes)
            throw DeckError(makeMessage(BulkText::XmlTooLarge, {std::to_string(mostBytes >> 20U)}), 0);
    }
    if (file.bad())
        throw DeckError(makeMessage(ReadText::StreamFailed), 0);
    return text;
}

/// Refuses a document with so many elements and attributes that its tree would be much larger than the document. The text of
/// an element or an attribute is usually longer than 8 characters.
void requireModestTree(const std::string& text)
{
    const auto isNode = [](char c) { return c == '<' || c == '='; };
    if (std::count_if(text.begin(), text.end(), isNode) > mostNodes)
        throw DeckError(makeMessage(BulkText::XmlTooManyNodes, {std::to_string(mostNodes)}), 0);
}

/// Parses a document in its text, which the document then needs and which has no other use. Its entities are only those of XML
/// itself.
void parseDocument(std::string& text, pugi::xml_document& document)
{
    requireModestTree(text);
    // The parser may replace the last character.
    const auto last = text.begin() + static_cast<std::ptrdiff_t>(text.empty() ? 0 : text.size() - 1);
    const auto lines = std::count(text.begin(), last, '\n');
    const pugi::xml_parse_result result = document.load_buffer_inplace(
        text.data(), text.size(), pugi::parse_default | pugi::parse_doctype | pugi::parse_embed_pcdata);
    const auto children = document.children();
    const bool hasDoctype = std::any_of(children.begin(), children.end(),
                                        [](const pugi::xml_node& node) { return node.type() == pugi::node_doctype; });
    if (hasDoctype || result.status == pugi::status_bad_doctype)
        throw DeckError(makeMessage(BulkText::XmlDoctype), 0);
    if (result)
        return;
    // It has changed the text in front of the fault only.
    const auto fault = std::min(text.begin() + std::max<std::ptrdiff_t>(result.offset, 0), last);
    const auto line = static_cast<std::size_t>(lines - std::count(fault, last, '\n')) + 1;
    throw DeckError(makeMessage(BulkText::XmlNotWellFormed, {result.description()}), line);
}

/// Returns the node behind another one in the order of the document; null at the end.
pugi::xml_node nextNode(pugi::xml_node node)
{
    if (!node.first_child().empty())
        return node.first_child();
    while (!node.empty() && node.next_sibling().empty())
        node = node.parent();
    return node.next_sibling();
}

/// Returns the element MatML_Doc, which other programs put into elements of their own; null if there is none.
pugi::xml_node findMatml(const pugi::xml_document& document)
{
    pugi::xml_node node = document.first_child();
    while (!node.empty() && matmlName(node) != "MatML_Doc")
        node = nextNode(node);
    return node;
}

std::string textOf(const pugi::xml_node& element)
{
    return std::string(trimmed(element.text().get()));
}

/// Returns the numbers of a list; absent if one of them is none.
std::optional<std::vector<double>> readNumbers(std::string_view list, std::string_view delimiter)
{
    std::vector<double> numbers;
    for (std::size_t end = 0; end != std::string_view::npos;
         list.remove_prefix(std::min(end + delimiter.size(), list.size())))
    {
        end = list.find(delimiter);
        const auto number = readDeckNumber(list.substr(0, end));
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
    }
    return numbers;
}

/// A value in a property of a material: its data, or a parameter.
struct MatmlValue
{
    const MatmlDeclaration* declaration = nullptr; ///< not null
    std::string text;
    std::optional<std::vector<double>> numbers; ///< absent if the text is no list of numbers
};

/// One property of a material: its data and its parameters.
struct MatmlProperty
{
    MatmlValue data;
    std::vector<MatmlValue> parameters;
};

/// Reads one material.
class MatmlMaterial
{
public:
    MatmlMaterial(const pugi::xml_node& bulk, const MatmlDeclarations& properties, const MatmlDeclarations& parameters,
                  const ReadUnits& units, MaterialReading& material)
        : m_bulk(bulk), m_properties(properties), m_parameters(parameters), m_units(units), m_material(material)
    {}

    void read();

private:
    std::optional<MatmlProperty> propertyOf(const pugi::xml_node& element);
    std::optional<MatmlValue> valueOf(const MatmlDeclarations& all, const std::string& id, const pugi::xml_node& data,
                                      std::string_view delimiter);
    void take(const MatmlProperty& property);
    void takeParameters(const MatmlProperty& property);
    void takeStrains(const MatmlProperty& property);
    void loseParameter(const MatmlProperty& property, const MatmlValue& parameter);
    void takeNumbers(const MatmlValue& value);
    void takeWord(const MatmlValue& value, const vxUnits::Quantity& quantity);
    void takeValue(const MatmlValue& value);
    bool dependsOnParameter(const MatmlProperty& property);
    const Unit* unitOf(const MatmlDeclaration& declaration, const Unit& target) const;
    void lose(const MatmlValue& value, vxUnits::Message why)
    {
        m_material.lose(value.declaration->name, std::move(why));
    }
    /// Reports a value as not taken although the catalogue has its quantity.
    void refuse(const MatmlValue& value, vxUnits::Message why)
    {
        m_material.refuse(value.declaration->name, std::move(why));
    }

    const pugi::xml_node& m_bulk;
    const MatmlDeclarations& m_properties;
    const MatmlDeclarations& m_parameters;
    const ReadUnits& m_units;
    MaterialReading& m_material;
    std::vector<MatmlValue> m_last; ///< the factor of creep, whose unit depends on the exponents
};

std::optional<MatmlValue> MatmlMaterial::valueOf(const MatmlDeclarations& all, const std::string& id,
                                                 const pugi::xml_node& data, std::string_view delimiter)
{
    const auto declaration = all.find(id);
    if (declaration == all.end()) {
        m_material.lose(id.empty() ? "PropertyData" : id, makeMessage(BulkText::PropertyNotDeclared));
        return std::nullopt;
    }
    MatmlValue value{&declaration->second, textOf(data), {}};
    value.numbers = readNumbers(value.text, delimiter);
    return value;
}

std::optional<MatmlProperty> MatmlMaterial::propertyOf(const pugi::xml_node& element)
{
    const std::string_view given = element.attribute("delimiter").value();
    const std::string delimiter(given.empty() ? "," : given);
    auto data = valueOf(m_properties, element.attribute("property").value(), matmlChild(element, "Data"), delimiter);
    if (!data)
        return std::nullopt;
    MatmlProperty property{*std::move(data), {}};
    for (const pugi::xml_node& child : element.children()) {
        if (matmlName(child) != "ParameterValue")
            continue;
        if (auto one =
                valueOf(m_parameters, child.attribute("parameter").value(), matmlChild(child, "Data"), delimiter))
            property.parameters.push_back(*std::move(one));
    }
    return property;
}

void MatmlMaterial::read()
{
    for (const pugi::xml_node& element : m_bulk.children()) {
        if (matmlName(element) != "PropertyData")
            continue;
        if (const auto property = propertyOf(element))
            take(*property);
    }
    for (const MatmlValue& value : std::exchange(m_last, {}))
        takeNumbers(value);
}

/// Takes the data of a property, or if its name is no quantity or it has no data, the quantities among its parameters.
void MatmlMaterial::take(const MatmlProperty& property)
{
    const auto quantity = property.data.declaration->quantity;
    const auto isQuantity = [](const MatmlValue& one) { return one.declaration->quantity.has_value(); };
    const bool hasQuantities = std::any_of(property.parameters.begin(), property.parameters.end(), isQuantity);
    const bool hasData = !property.data.text.empty() && property.data.text != "-";
    if (quantity && hasData) {
        if (dependsOnParameter(property))
            return;
        takeValue(property.data);
        takeStrains(property);
    } else if (hasQuantities) {
        takeParameters(property);
    } else if (quantity) {
        refuse(property.data, makeMessage(BulkText::PropertyWithoutValue));
    } else {
        lose(property.data, makeMessage(Text::NotInCatalogue));
    }
}

/// Returns whether a property has several values over a parameter that is no quantity, and reports it as lost.
bool MatmlMaterial::dependsOnParameter(const MatmlProperty& property)
{
    const auto found = std::find_if(property.parameters.begin(), property.parameters.end(), [](const MatmlValue& one) {
        return !one.declaration->quantity && one.numbers && one.numbers->size() > 1;
    });
    if (found == property.parameters.end())
        return false;
    refuse(property.data, makeMessage(BulkText::ValueOverParameter, {toUtf8(found->declaration->name)}));
    return true;
}

/// Reports a parameter that is no quantity: the temperature of the values, or another one.
void MatmlMaterial::loseParameter(const MatmlProperty& property, const MatmlValue& parameter)
{
    // Some programs write this number if there is no temperature.
    constexpr double noTemperature = 1e-30;
    const bool isTemperature = vxMat::equalIgnoringAsciiCase(parameter.declaration->name, "Temperature");
    if (!isTemperature || !parameter.numbers || parameter.numbers->size() != 1)
        lose(parameter, makeMessage(Text::NotInCatalogue));
    else if (const double number = parameter.numbers->front(); number == 0.0 || std::abs(number) > noTemperature)
        m_material.noteTemperature(toUtf8(property.data.declaration->name), number);
}

/// Takes the plastic strains, which are a parameter of the yield stresses.
void MatmlMaterial::takeStrains(const MatmlProperty& property)
{
    for (const MatmlValue& one : property.parameters) {
        if (one.declaration->quantity != Id::PlasticStrain) {
            if (one.declaration->quantity)
                takeValue(one);
            else
                loseParameter(property, one);
            continue;
        }
        takeValue(one);
        if (m_material.has(Id::PlasticStrain))
            m_material.convert(Id::PlasticStrain, makeMessage(Text::AsParameter));
    }
}

/// Takes the parameters that are quantities, if they do not depend on the other ones.
void MatmlMaterial::takeParameters(const MatmlProperty& property)
{
    if (dependsOnParameter(property))
        return;
    for (const MatmlValue& one : property.parameters) {
        if (one.declaration->quantity)
            takeValue(one);
        else
            loseParameter(property, one);
    }
}

void MatmlMaterial::takeValue(const MatmlValue& value)
{
    const vxUnits::Quantity& quantity = *vxUnits::findQuantity(*value.declaration->quantity);
    if (m_material.has(quantity.id))
        refuse(value, makeMessage(BulkText::PropertyRepeated));
    else if (quantity.id == Id::CreepModulusA)
        m_last.push_back(value);
    else if (quantity.hasNumber())
        takeNumbers(value);
    else
        takeWord(value, quantity);
}

/// Takes a word, or a switch, which any text but a negation switches on.
void MatmlMaterial::takeWord(const MatmlValue& value, const vxUnits::Quantity& quantity)
{
    static constexpr std::array<const char*, 4> negations{"off", "no", "false", "0"};
    const auto isText = [&value](const std::string& one) { return vxMat::equalIgnoringAsciiCase(one, value.text); };
    if (quantity.form == QuantityForm::Switch) {
        if (std::none_of(negations.begin(), negations.end(), isText))
            m_material.setSwitch(quantity.id);
        return;
    }
    const auto& words = vxMat::getAllowedWords(quantity.id);
    if (std::any_of(words.begin(), words.end(), isText))
        m_material.setWord(quantity.id, value.text);
    else
        refuse(value, makeMessage(BulkText::DataWithoutWord, {toUtf8(value.text)}));
}

/// Returns the unit of a declaration that has the dimension of the unit of the catalogue; null if there is none.
const Unit* MatmlMaterial::unitOf(const MatmlDeclaration& declaration, const Unit& target) const
{
    for (const auto* const unit : {&declaration.unit, &declaration.degree})
        if (*unit && (*unit)->dimension() == target.dimension())
            return &**unit;
    return nullptr;
}

void MatmlMaterial::takeNumbers(const MatmlValue& value)
{
    const MatmlDeclaration& declaration = *value.declaration;
    const vxUnits::Quantity& quantity = *vxUnits::findQuantity(*declaration.quantity);
    const bool isList = quantity.form == QuantityForm::NumberList;
    if (!value.numbers || (!isList && value.numbers->size() != 1)) {
        refuse(value, makeMessage(ReadText::BadNumber, {toUtf8(value.text)}));
        return;
    }
    const CreepExponents creep{m_material.number(Id::CreepModulusN), m_material.number(Id::CreepModulusM)};
    const auto& target = m_units.catalogueUnit(quantity.id, creep);
    const Unit* const unit = target ? unitOf(declaration, *target) : nullptr;
    if (unit == nullptr) {
        const bool isKnown = declaration.unit || declaration.degree;
        refuse(value, target ? makeMessage(isKnown ? BulkText::UnitOfOtherKind : BulkText::UnitNotReadable,
                                           {toUtf8(declaration.unitText)})
                             : makeMessage(Text::FactorNeedsExponents));
        return;
    }
    const auto converter = Converter::between(*unit, *target);
    std::vector<double> numbers = *value.numbers;
    for (double& number : numbers)
        number = converter ? (*converter)(number * declaration.factor) : number;
    if (isList)
        m_material.setList(quantity.id, std::move(numbers));
    else
        m_material.setNumber(quantity.id, numbers.front());
    if (unit->factor() * declaration.factor != target->factor())
        m_material.convert(quantity.id, makeMessage(ReadText::ReadOtherUnit, {unit->text(), target->text()}));
}

/// Counts the elements of a material that are not read.
void countForeign(const pugi::xml_node& parent, std::initializer_list<std::string_view> read, ReadDeck& deck)
{
    constexpr std::size_t mostForeign = 100;
    for (const pugi::xml_node& child : parent.children()) {
        const std::string_view name = matmlName(child);
        if (child.type() != pugi::node_element || std::find(read.begin(), read.end(), name) != read.end())
            continue;
        const std::string shown = toUtf8(name);
        const auto known = std::find_if(deck.foreign.begin(), deck.foreign.end(),
                                        [&shown](const ForeignCard& one) { return one.name == shown; });
        if (known != deck.foreign.end())
            ++known->count;
        else if (deck.foreign.size() < mostForeign)
            deck.foreign.push_back({shown, 1, 0});
        else
            ++deck.moreForeign;
    }
}

/// Counts the elements of a property and its parameters that are not read.
void countForeignOfProperty(const pugi::xml_node& property, ReadDeck& deck)
{
    countForeign(property, {"Data", "ParameterValue"}, deck);
    for (const pugi::xml_node& child : property.children())
        if (matmlName(child) == "ParameterValue")
            countForeign(child, {"Data"}, deck);
}

/// Returns the number in the id of a material as the writer writes it, "material_7".
std::optional<std::uint32_t> numberOfId(std::string_view id)
{
    constexpr std::string_view beginning = "material_";
    if (id.substr(0, beginning.size()) != beginning)
        return std::nullopt;
    const auto number = readDeckNumber(id.substr(beginning.size()));
    constexpr double largest = 999999999;
    const bool isNumber = number && *number >= 1.0 && *number <= largest &&
                          id.find_first_not_of("0123456789", 9) == std::string_view::npos;
    return isNumber ? std::optional<std::uint32_t>(static_cast<std::uint32_t>(*number)) : std::nullopt;
}

/// Switches linear elasticity on if a document of another program has E and Poisson's ratio, and no model.
void addElasticity(const MatmlDeclarations& properties, MaterialReading& material)
{
    const auto isOfWriter = [](const MatmlDeclarations::value_type& one) {
        return one.second.quantity == Id::YoungsModulus &&
               one.first == vxMat::findPropertyRecord(Id::YoungsModulus)->key;
    };
    const bool hasModel = material.has(Id::IsotropicElasticity) || material.has(Id::NeoHooke) ||
                          material.has(Id::MooneyRivlin) || material.has(Id::ArrudaBoyce);
    if (!hasModel && material.has(Id::YoungsModulus) && material.has(Id::PoissonsRatio) &&
        std::none_of(properties.begin(), properties.end(), isOfWriter))
        material.setSwitch(Id::IsotropicElasticity);
}

void readMatml(std::istream& file, const UnitSystem& units, DeclaredUnits& /*declared*/, ReadDeck& deck)
{
    std::string text = readBounded(file);
    pugi::xml_document document; // is in the text
    parseDocument(text, document);
    const pugi::xml_node root = findMatml(document);
    if (root.empty())
        throw DeckError(makeMessage(BulkText::XmlNoMatml), 0);
    const pugi::xml_node metadata = matmlChild(root, "Metadata");
    const MatmlDeclarations properties = readMatmlDeclarations(metadata, "PropertyDetails");
    const MatmlDeclarations parameters = readMatmlDeclarations(metadata, "ParameterDetails");
    const ReadUnits readUnits(units);
    for (const pugi::xml_node& element : root.children()) {
        if (matmlName(element) != "Material")
            continue;
        const pugi::xml_node bulk = matmlChild(element, "BulkDetails");
        MaterialReading material(Format::Matml, textOf(matmlChild(bulk, "Name")),
                                 numberOfId(element.attribute("id").value()));
        MatmlMaterial(bulk, properties, parameters, readUnits, material).read();
        addElasticity(properties, material);
        material.finish(readUnits, deck);
        countForeign(element, {"BulkDetails"}, deck);
        countForeign(bulk, {"Name", "PropertyData"}, deck);
        for (const pugi::xml_node& property : bulk.children())
            if (matmlName(property) == "PropertyData")
                countForeignOfProperty(property, deck);
    }
    countForeign(root, {"Material", "Metadata"}, deck);
    deck.report.notes.push_back(makeMessage(BulkText::XmlOwnUnits));
}

/// Returns whether a file begins as XML and has the element of MatML, in UTF-8 or UTF-16.
bool isMatml(std::string_view beginning)
{
    std::string text(beginning);
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    const std::size_t first = text.find_first_not_of(" \t\r\n\xEF\xBB\xBF\xFE\xFF");
    return first != std::string::npos && text[first] == '<' && text.find("MatML_Doc") != std::string::npos;
}

} // namespace

const DeckReader& matmlReader()
{
    static const DeckReader reader{Format::Matml, isMatml, readMatml, {}};
    return reader;
}

} // namespace vxDecks
