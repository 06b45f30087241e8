#include "documents/Diff.h"

#include "documents/Documents.h"
#include "documents/Measured.h"
#include "program/Files.h"
#include "units/ChosenUnits.h"
#include "vxConstitutive/record/Measurements.h"
#include "vxMaterial/json/Utf8.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <json/writer.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace commandline {

namespace {

using vxMat::MaterialProperty;

/// A value in one of the two files.
struct Side
{
    Json::Value json;
    std::string text;
};

/// The thing whose data differ.
enum class Subject
{
    Project,
    Material,
    Object, ///< of another class
};

/// One difference between the files.
struct Difference
{
    std::string title; ///< the label of the material or object, and its number if others have the label too
    Subject subject = Subject::Material;
    std::optional<std::int32_t> property{}; ///< the slot; absent for a whole material
    std::string quantity{};                 ///< the name of the property
    std::string field{};                    ///< empty if only one file has the material, object or property
    Side one{};
    Side other{};
};

using projectfile::ObjectRecord;

std::uint32_t numberOf(const FileMaterial& material)
{
    return material.number;
}

std::uint32_t numberOf(const ObjectRecord& object)
{
    return object.objectId;
}

/// Two materials or objects with the same label. One of them is null if only one file has it.
template <class Item>
struct Pair
{
    const Item* one = nullptr;
    const Item* other = nullptr;
    bool isAmbiguous = false; ///< others have the label too
};

/// The materials or objects with the same label, in both files, by number.
template <class Item>
struct Group
{
    std::map<std::uint32_t, const Item*> ones;
    std::map<std::uint32_t, const Item*> others;
};

/// Pairs items with the same number, and the remaining items in order.
template <class Item>
void pairUp(Group<Item> group, std::vector<Pair<Item>>& pairs)
{
    const bool isAmbiguous = group.ones.size() > 1 || group.others.size() > 1;
    for (auto one = group.ones.begin(); one != group.ones.end();) {
        const auto other = group.others.find(one->first);
        if (other == group.others.end()) {
            ++one;
            continue;
        }
        pairs.push_back({one->second, other->second, isAmbiguous});
        group.others.erase(other);
        one = group.ones.erase(one);
    }
    auto other = group.others.begin();
    for (const auto& [number, item] : group.ones)
        pairs.push_back({item, other != group.others.end() ? (other++)->second : nullptr, isAmbiguous});
    for (; other != group.others.end(); ++other)
        pairs.push_back({nullptr, other->second, isAmbiguous});
}

/// Returns pairs of items with the same label, sorted by number. Items that are only in the second file are last.
template <class Item>
std::vector<Pair<Item>> pairUp(const std::vector<Item>& ones, const std::vector<Item>& others)
{
    std::map<std::string, Group<Item>> groups;
    for (const Item& item : ones)
        groups[item.label].ones.emplace(numberOf(item), &item);
    for (const Item& item : others)
        groups[item.label].others.emplace(numberOf(item), &item);
    std::vector<Pair<Item>> pairs;
    for (auto& [label, group] : groups)
        pairUp(std::move(group), pairs);
    const auto order = [](const Pair<Item>& pair) {
        return std::pair(pair.one == nullptr, numberOf(pair.one != nullptr ? *pair.one : *pair.other));
    };
    std::sort(pairs.begin(), pairs.end(), [&](const auto& a, const auto& b) { return order(a) < order(b); });
    return pairs;
}

template <class Item>
std::string titleOf(const Pair<Item>& pair)
{
    const Item& item = pair.one != nullptr ? *pair.one : *pair.other;
    return item.label + (pair.isAmbiguous ? " [" + std::to_string(numberOf(item)) + "]" : "");
}

template <class Field>
bool isSame(const Field& one, const Field& other)
{
    return one == other;
}

/// Returns whether two numbers are the same. -0 differs from 0; NaN is the same as NaN.
bool isSame(double one, double other)
{
    return std::isnan(one) ? std::isnan(other) : one == other && std::signbit(one) == std::signbit(other);
}

bool isSame(const std::vector<double>& one, const std::vector<double>& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](double a, double b) { return isSame(a, b); });
}

Side sideOf(bool value)
{
    return {value, value ? "yes" : "no"};
}

Side sideOf(std::uint32_t value)
{
    return {value, std::to_string(value)};
}

Side sideOf(std::int32_t value)
{
    return {value, std::to_string(value)};
}

Side sideOf(double value)
{
    return {toJsonNumber(value), vxMat::formatNumber(value)};
}

Side sideOf(const std::string& value)
{
    return {value, "\"" + printable(value) + "\""};
}

template <class Numbers>
Side sideOfNumbers(const Numbers& numbers)
{
    Side side{Json::arrayValue, ""};
    for (const auto number : numbers) {
        side.json.append(toJsonNumber(static_cast<double>(number)));
        side.text += (side.text.empty() ? "" : ", ") + vxMat::formatNumber(static_cast<double>(number));
    }
    side.text = "[" + side.text + "]";
    return side;
}

Side sideOf(const std::vector<double>& values)
{
    return sideOfNumbers(values);
}

Side sideOf(const std::vector<std::uint32_t>& numbers)
{
    return sideOfNumbers(numbers);
}

/// Returns a value of any kind as one line, shortened.
Side sideOf(const Json::Value& value)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return {value, value.isNull() ? "none" : printable(vxjson::shortened(Json::writeString(builder, value)))};
}

Side sideOf(const std::optional<std::array<float, 4>>& colour)
{
    return colour ? sideOfNumbers(*colour) : Side{Json::Value(), "none"};
}

/// Returns a setting; an empty text if it is missing.
std::string textOf(const std::map<std::string, std::string>& settings, const std::string& name)
{
    const auto setting = settings.find(name);
    return setting != settings.end() ? setting->second : std::string();
}

/// Returns a setting, which may be very long, as one line, shortened. An empty setting is the same as a missing one.
Side sideOfSetting(const std::string& text)
{
    return text.empty() ? Side{Json::Value(), "none"} : Side{text, sideOf(vxjson::shortened(text)).text};
}

/// Shows the tests and fits in place of the beginning of their text, if these differ.
void summarise(Side& one, Side& other)
{
    const auto text = [](const Side& side) {
        const auto measured = summariseMeasurements(side.json.asString());
        return measured ? measured->text : side.text;
    };
    std::string left = text(one);
    std::string right = text(other);
    if (left == right)
        return;
    one.text = std::move(left);
    other.text = std::move(right);
}

Side sideOf(vxMat::ePropertyCategory category)
{
    return sideOf(std::string(vxMat::getPropertyCategoryName(static_cast<std::int32_t>(category))));
}

/// Returns one property for each slot that at least one of two materials uses, in the order of the catalogue.
std::vector<vxMat::HeldProperty> propertiesOfEither(const vxMat::MaterialBase& one, const vxMat::MaterialBase& other)
{
    const auto left = vxMat::propertiesInCatalogueOrder(one);
    const auto right = vxMat::propertiesInCatalogueOrder(other);
    const auto place = [](const vxMat::HeldProperty& held) {
        return std::pair(vxMat::getCataloguePosition(held.slot), held.slot);
    };
    std::vector<vxMat::HeldProperty> all;
    std::set_union(left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(all),
                   [place](const auto& a, const auto& b) { return place(a) < place(b); });
    return all;
}

/// A property and the material that has it.
struct PropertyOf
{
    const vxMat::MaterialBase& material;
    const MaterialProperty& property;
};

/// Compares the materials and other objects of two files. Compares the stored numbers, and shows them in the given units.
class Comparison
{
public:
    Comparison(vxCAE::MaterialSource extent, const ChosenUnits& units) : m_extent(extent), m_units(units) {}

    void compareSettings(const MaterialFile& one, const MaterialFile& other);
    void compare(const Pair<FileMaterial>& pair);
    void compare(const Pair<ObjectRecord>& pair);

    std::vector<Difference> differences;

private:
    void add(const char* field, Side one, Side other);
    template <class Field>
    void compareField(const char* field, const Field& one, const Field& other)
    {
        if (!isSame(one, other))
            add(field, sideOf(one), sideOf(other));
    }
    void compareObjects(const ObjectRecord& one, const ObjectRecord& other);
    void compareSettings(const ObjectRecord& one, const ObjectRecord& other);
    void compareProperties(const vxMat::MaterialBase& one, const vxMat::MaterialBase& other);
    void compareProperty(const PropertyOf& one, const PropertyOf& other);
    void compareWhatDocumentsLeaveBehind(const PropertyOf& left, const PropertyOf& right);
    template <class Numbers>
    void compareNumbers(const char* field, Numbers MaterialProperty::*numbers, const PropertyOf& one,
                        const PropertyOf& other);
    template <class Numbers>
    Side shown(const Numbers& numbers, const vxMat::MaterialBase& material) const;
    bool isComplete() const { return m_extent == vxCAE::MaterialSource::Complete; }

    vxCAE::MaterialSource m_extent;
    const ChosenUnits& m_units;
    Difference m_place; ///< the material and property that are being compared
};

void Comparison::add(const char* field, Side one, Side other)
{
    Difference difference = m_place;
    difference.field = field;
    difference.one = std::move(one);
    difference.other = std::move(other);
    differences.push_back(std::move(difference));
}

void Comparison::compareSettings(const MaterialFile& one, const MaterialFile& other)
{
    const auto valueOf = [](const std::string& setting) {
        return setting.empty() ? Json::Value() : Json::Value(setting);
    };
    m_place = Difference{"", Subject::Project};
    compareField("unit system", valueOf(one.unitSystem), valueOf(other.unitSystem));
}

void Comparison::compare(const Pair<FileMaterial>& pair)
{
    m_place = Difference{titleOf(pair)};
    if (pair.one == nullptr || pair.other == nullptr) {
        add("", sideOf(pair.one != nullptr), sideOf(pair.other != nullptr));
        return;
    }
    compareField("number", pair.one->number, pair.other->number);
    if (isComplete())
        compareObjects(pair.one->object, pair.other->object);
    compareProperties(*pair.one->entry->material, *pair.other->entry->material);
}

void Comparison::compare(const Pair<ObjectRecord>& pair)
{
    m_place = Difference{titleOf(pair), Subject::Object};
    if (pair.one == nullptr || pair.other == nullptr) {
        add("", sideOf(pair.one != nullptr), sideOf(pair.other != nullptr));
        return;
    }
    compareField("number", pair.one->objectId, pair.other->objectId);
    compareField("class", pair.one->className, pair.other->className);
    compareObjects(*pair.one, *pair.other);
    compareField("content", pair.one->content, pair.other->content);
}

/// Compares the fields that all objects have.
void Comparison::compareObjects(const ObjectRecord& one, const ObjectRecord& other)
{
    compareField("suppressed", one.suppressed, other.suppressed);
    compareField("colour", one.colour, other.colour);
    compareField("properties", one.properties, other.properties);
    compareField("node", one.node, other.node);
    compareField("links", one.links, other.links);
    compareSettings(one, other);
}

/// Compares the texts that modules keep with an object, such as the measurements of a material.
void Comparison::compareSettings(const ObjectRecord& one, const ObjectRecord& other)
{
    std::set<std::string> names;
    for (const ObjectRecord* const object : {&one, &other})
        for (const auto& [name, text] : object->settings)
            names.insert(name);
    for (const std::string& name : names) {
        Side left = sideOfSetting(textOf(one.settings, name));
        Side right = sideOfSetting(textOf(other.settings, name));
        if (left.json == right.json)
            continue;
        if (name == vxConstitutive::measurementsSetting)
            summarise(left, right);
        add(("settings." + name).c_str(), std::move(left), std::move(right));
    }
}

void Comparison::compareProperties(const vxMat::MaterialBase& one, const vxMat::MaterialBase& other)
{
    for (const auto& [slot, property] : propertiesOfEither(one, other)) {
        const MaterialProperty* const left = one.findProperty(slot);
        const MaterialProperty* const right = other.findProperty(slot);
        m_place.property = slot;
        const vxMat::PropertyRecord* const quantity = vxMat::findPropertyRecord(slot);
        m_place.quantity = quantity != nullptr ? quantity->name : property->name;
        if (left == nullptr || right == nullptr)
            add("", sideOf(left != nullptr), sideOf(right != nullptr));
        else
            compareProperty({one, *left}, {other, *right});
    }
}

double convert(double number, const ChosenUnits& units, std::int32_t slot, const vxMat::MaterialBase& material)
{
    return units.convert(number, slot, material);
}

std::vector<double> convert(std::vector<double> numbers, const ChosenUnits& units, std::int32_t slot,
                            const vxMat::MaterialBase& material)
{
    for (double& number : numbers)
        number = units.convert(number, slot, material);
    return numbers;
}

template <class Numbers>
Side Comparison::shown(const Numbers& numbers, const vxMat::MaterialBase& material) const
{
    Side side = sideOf(convert(numbers, m_units, *m_place.property, material));
    const auto unit = m_units.unitOf(*m_place.property, material);
    if (unit && unit->text() != "1")
        side.text += " " + unit->text();
    return side;
}

template <class Numbers>
void Comparison::compareNumbers(const char* field, Numbers MaterialProperty::*numbers, const PropertyOf& one,
                                const PropertyOf& other)
{
    if (!isSame(one.property.*numbers, other.property.*numbers))
        add(field, shown(one.property.*numbers, one.material), shown(other.property.*numbers, other.material));
}

void Comparison::compareProperty(const PropertyOf& one, const PropertyOf& other)
{
    compareField("name", one.property.name, other.property.name);
    compareField("key", one.property.key, other.property.key);
    compareNumbers("value", &MaterialProperty::value, one, other);
    if (isComplete())
        compareWhatDocumentsLeaveBehind(one, other);
}

void Comparison::compareWhatDocumentsLeaveBehind(const PropertyOf& left, const PropertyOf& right)
{
    const MaterialProperty& one = left.property;
    const MaterialProperty& other = right.property;
    compareField("word", one.text, other.text);
    compareNumbers("list", &MaterialProperty::values, left, right);
    compareField("unit", one.unit, other.unit);
    compareField("description", one.description, other.description);
    compareField("id", one.id, other.id);
    compareField("category", one.category, other.category);
}

std::string toText(const Difference& difference, const std::string& one, const std::string& other)
{
    std::string text = difference.subject == Subject::Project ? "" : printable(difference.title) + ": ";
    if (difference.property)
        text += printable(difference.quantity) + " (" + std::to_string(*difference.property) + "): ";
    if (difference.field.empty())
        return text + "only in " + (difference.one.json.asBool() ? one : other) + "\n";
    return text + printable(difference.field) + ": " + difference.one.text + " -> " + difference.other.text + "\n";
}

Json::Value toJson(const Difference& difference)
{
    Json::Value json;
    json["material"] = difference.subject == Subject::Material ? Json::Value(difference.title) : Json::Value();
    json["object"] = difference.subject == Subject::Object ? Json::Value(difference.title) : Json::Value();
    json["property"] = difference.property ? Json::Value(*difference.property) : Json::Value();
    json["property_name"] = difference.property ? Json::Value(difference.quantity) : Json::Value();
    json["field"] = difference.field.empty() ? Json::Value() : Json::Value(difference.field);
    json["a"] = difference.one.json;
    json["b"] = difference.other.json;
    return json;
}

} // namespace

Answer diffFiles(const std::string& one, const std::string& other, Form form, const ChosenUnits& given)
{
    const MaterialFile left = readMaterials(one);
    const MaterialFile right = readMaterials(other);
    Answer answer;
    answer.add(left.doubts);
    answer.add(right.doubts);
    const std::string shared = left.unitSystem == right.unitSystem ? left.unitSystem : std::string();
    const ChosenUnits units = given.orOfProject(shared, one, answer.messages);
    if (left.source != right.source)
        answer.messages.push_back("note: " + (left.source == vxCAE::MaterialSource::Document ? one : other) +
                                  " is an exchange document, which carries only the key, name and number of a "
                                  "property: words, lists, units, descriptions, categories, colours, suppression and "
                                  "other objects are not compared");

    const bool complete = left.source == vxCAE::MaterialSource::Complete && right.source == left.source;
    Comparison comparison(complete ? vxCAE::MaterialSource::Complete : vxCAE::MaterialSource::Document, units);
    if (complete)
        comparison.compareSettings(left, right);
    for (const auto& pair : pairUp(left.materials, right.materials))
        comparison.compare(pair);
    if (complete) {
        for (const auto& pair : pairUp(left.others, right.others))
            comparison.compare(pair);
    }

    Json::Value document;
    if (units.areGiven()) {
        document["units"] = units.name();
        answer.messages.push_back("note: numbers are in " + units.name());
    }
    document["a"] = one;
    document["b"] = other;
    document["differences"] = Json::arrayValue;
    for (const Difference& difference : comparison.differences) {
        document["differences"].append(toJson(difference));
        answer.text += toText(difference, one, other);
    }
    if (form == Form::Json)
        answer.text = toJsonText(document);
    answer.status = comparison.differences.empty() ? Status::Clean : Status::Findings;
    return answer;
}

} // namespace commandline
