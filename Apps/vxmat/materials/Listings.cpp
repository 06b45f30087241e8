#include "materials/Listings.h"

#include "documents/Documents.h"
#include "documents/MaterialNames.h"
#include "documents/Measured.h"
#include "program/Files.h"
#include "program/TextTable.h"
#include "units/ChosenUnits.h"
#include "vxConstitutive/record/Measurements.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Quantity.h"

#include <algorithm>
#include <vector>

namespace commandline {

namespace {

using vxMat::MaterialProperty;
using vxMat::PropertyRecord;
using vxMat::ValueKind;

const char* kindName(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Word:
        return "word";
    case ValueKind::NumberList:
        return "list";
    case ValueKind::ModelSwitch:
        return "switch";
    default:
        return "number";
    }
}

/// Returns the kind in the catalogue, in which the two switches that are typed as numbers are switches too.
ValueKind kindOf(const MaterialProperty& property)
{
    const PropertyRecord* const record = vxMat::findPropertyRecord(property.id);
    return record != nullptr ? record->kind : ValueKind::Number;
}

/// Returns the value of a property in the form of its quantity.
Json::Value valueJson(const MaterialProperty& property)
{
    switch (vxMat::getValueKind(property.id)) {
    case ValueKind::Word:
        return property.text;
    case ValueKind::NumberList: {
        Json::Value list(Json::arrayValue);
        for (const double number : property.values)
            list.append(toJsonNumber(number));
        return list;
    }
    default:
        return toJsonNumber(property.value);
    }
}

std::string joinedWords(std::int32_t id)
{
    std::string text;
    for (const std::string& word : vxMat::getAllowedWords(id))
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

std::vector<const PropertyRecord*> recordsById()
{
    std::vector<const PropertyRecord*> records;
    for (const PropertyRecord& record : vxMat::propertyRecords())
        records.push_back(&record);
    std::sort(records.begin(), records.end(), [](const auto* a, const auto* b) { return a->id < b->id; });
    return records;
}

/// `property` has the default of the quantity.
Json::Value toJson(const PropertyRecord& record, const MaterialProperty& property)
{
    Json::Value json;
    json["id"] = record.id;
    json["name"] = record.name;
    json["key"] = record.key;
    json["unit"] = property.unit;
    json["category"] = vxMat::getPropertyCategoryName(static_cast<std::int32_t>(record.category));
    json["kind"] = kindName(record.kind);
    json["default"] = valueJson(property);
    json["words"] = Json::arrayValue;
    for (const std::string& word : vxMat::getAllowedWords(record.id))
        json["words"].append(word);
    json["description"] = record.description;
    return json;
}

Json::Value toJson(std::int32_t slot, const MaterialProperty& property)
{
    Json::Value json;
    json["held_under"] = slot;
    json["id"] = property.id;
    json["name"] = property.name;
    json["key"] = property.key;
    json["kind"] = kindName(kindOf(property));
    json["value"] = valueJson(property);
    json["unit"] = property.unit;
    json["description"] = property.description;
    return json;
}

/// The properties of a material, as rows of a table and as JSON.
struct PropertyListing
{
    TextTable table{{"Name", "Value", "Unit", "Description"}};
    Json::Value json{Json::arrayValue};
};

/// Lists the properties of a material. `title` is the beginning of notes about it.
PropertyListing listProperties(const vxMat::MaterialBase& material, const std::string& title, Answer& answer)
{
    PropertyListing listing;
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material)) {
        listing.table.add({printable(property->name), printable(vxMat::formatValue(*property)),
                           printable(property->unit), printable(property->description)});
        listing.json.append(toJson(slot, *property));
        if (slot == property->id)
            continue;
        const PropertyRecord* const quantity = vxMat::findPropertyRecord(slot);
        answer.messages.push_back(
            "note: " + title + " holds its " +
            (quantity != nullptr ? "\"" + std::string(quantity->name) + "\"" : "property " + std::to_string(slot)) +
            " as a property named \"" + property->name + "\"");
    }
    return listing;
}

/// Converts a material to the given units, and notes the quantities that stay unchanged.
void convert(vxMat::MaterialBase& material, const ChosenUnits& units, const std::string& title, Answer& answer)
{
    const std::string note = units.apply(material);
    if (!note.empty())
        answer.messages.push_back("note: " + title + ": " + note);
}

/// Names the unit system in a document, if one is given.
void addUnits(Json::Value& document, const ChosenUnits& units)
{
    if (units.areGiven())
        document["units"] = units.name();
}

Answer showLibraryMaterial(const vxMat::MaterialBase& original, vxMat::eMaterialType type, Form form,
                           const ChosenUnits& units)
{
    Answer answer;
    vxMat::MaterialBase material;
    material.copyAllFrom(original);
    convert(material, units, material.name, answer);
    const PropertyListing listing = listProperties(material, material.name, answer);
    Json::Value document;
    addUnits(document, units);
    document["name"] = material.name;
    document["type"] = static_cast<std::int32_t>(type);
    document["group"] = material.libraryGroup;
    document["group_name"] = vxMat::getLibraryGroupName(material.libraryGroup);
    document["properties"] = listing.json;
    answer.text =
        form == Form::Json ? toJsonText(document) : material.name + units.suffix() + "\n\n" + listing.table.text();
    return answer;
}

Json::Value toJson(const projectfile::ObjectRecord& object)
{
    Json::Value json;
    json["number"] = object.objectId;
    json["name"] = object.label;
    json["class"] = object.className;
    json["suppressed"] = object.suppressed;
    json["properties"] = object.properties;
    json["links"] = Json::arrayValue;
    for (const std::uint32_t number : object.links)
        json["links"].append(number);
    json["content"] = object.content;
    return json;
}

/// Returns a table of the objects of a project that are not materials.
std::string listOthers(const std::vector<projectfile::ObjectRecord>& objects)
{
    TextTable table({"Number", "Name", "Class", "Suppressed"});
    for (const projectfile::ObjectRecord& object : objects) {
        table.add({std::to_string(object.objectId), printable(object.label), printable(object.className),
                   object.suppressed ? "yes" : "no"});
    }
    return "Objects of other classes\n\n" + table.text();
}

/// Adds the measurements of a material of a project to its listing, and a note if they are unreadable.
void addMeasurements(const FileMaterial& material, const std::string& place, Answer& answer, Json::Value& json)
{
    const auto setting = material.object.settings.find(vxConstitutive::measurementsSetting);
    const auto measured =
        setting != material.object.settings.end() ? summariseMeasurements(setting->second) : std::nullopt;
    if (!measured)
        return;
    json["measurements"] = measured->json;
    answer.text += "\nMeasurements: " + measured->text + "\n";
    if (!measured->fault.empty())
        answer.messages.push_back("note: " + place + ": the measurements are unreadable: " + measured->fault);
}

Answer showFile(const std::string& path, Form form, const ChosenUnits& given)
{
    const MaterialFile file = readMaterials(path);
    Answer answer;
    answer.messages = file.doubts;
    const ChosenUnits units = given.orOfProject(file.unitSystem, path, answer.messages);
    Json::Value document;
    addUnits(document, units);
    document["file"] = path;
    document["materials"] = Json::arrayValue;
    for (const FileMaterial& material : file.materials) {
        const std::string title = std::to_string(material.number) + " " + printable(material.label);
        const std::string place = std::string(path).append(": ").append(title);
        convert(*material.entry->material, units, place, answer);
        const PropertyListing listing = listProperties(*material.entry->material, place, answer);
        answer.text += (answer.text.empty() ? "" : "\n") + title + units.suffix() + "\n\n" + listing.table.text();
        Json::Value json;
        json["number"] = material.number;
        json["name"] = material.label;
        json["suppressed"] = material.object.suppressed;
        json["properties"] = listing.json;
        addMeasurements(material, place, answer, json);
        document["materials"].append(std::move(json));
    }
    document["objects"] = Json::arrayValue;
    for (const projectfile::ObjectRecord& object : file.others)
        document["objects"].append(toJson(object));
    if (!file.others.empty())
        answer.text += (answer.text.empty() ? "" : "\n") + listOthers(file.others);
    if (form == Form::Json)
        answer.text = toJsonText(document);
    return answer;
}

/// The quantities whose values the list of the library shows in a unit system.
struct KeyQuantity
{
    std::int32_t id;
    const char* title;
    const char* member; ///< in JSON
};
constexpr KeyQuantity keyQuantities[] = {
    {vxMat::PropertyId::Density, "Density", "density"},
    {vxMat::PropertyId::YoungsModulus, "Young's modulus", "youngs_modulus"},
};

TextTable::Row libraryHeading(const ChosenUnits& units)
{
    TextTable::Row heading{"Name", "Group", "Quantities"};
    for (const KeyQuantity& quantity : keyQuantities) {
        if (const auto unit = units.unitOf(quantity.id, vxMat::MaterialBase()))
            heading.push_back(std::string(quantity.title) + " [" + unit->text() + "]" + units.suffix());
    }
    return heading;
}

/// Adds the values of the key quantities to a row of the list of the library, and to its JSON.
void addKeyValues(const vxMat::MaterialBase& material, const ChosenUnits& units, TextTable::Row& row, Json::Value& json)
{
    for (const KeyQuantity& quantity : keyQuantities) {
        double number = 0.0;
        if (!material.getPropertyValue(quantity.id, number)) {
            row.emplace_back();
            json[quantity.member] = Json::Value();
            continue;
        }
        const double shown = units.convert(number, quantity.id, material);
        row.push_back(vxMat::formatNumber(shown));
        json[quantity.member] = toJsonNumber(shown);
    }
}

} // namespace

Answer listLibrary(Form form, const ChosenUnits& units)
{
    const MaterialNames names;
    TextTable table(libraryHeading(units));
    Json::Value list(Json::arrayValue);
    for (const vxMat::eMaterialType type : names.types()) {
        const vxMat::MaterialBase& material = names.get(type);
        const char* const group = vxMat::getLibraryGroupName(material.libraryGroup);
        TextTable::Row row{material.name, group, std::to_string(material.properties.size())};
        Json::Value json;
        json["type"] = static_cast<std::int32_t>(type);
        json["name"] = material.name;
        json["group"] = material.libraryGroup;
        json["group_name"] = group;
        json["quantities"] = static_cast<Json::UInt>(material.properties.size());
        if (units.areGiven())
            addKeyValues(material, units, row, json);
        table.add(std::move(row));
        list.append(std::move(json));
    }
    Json::Value document;
    addUnits(document, units);
    document["materials"] = std::move(list);
    return {form == Form::Json ? toJsonText(document) : table.text(), {}, Status::Clean};
}

Answer listCatalogue(Form form, const ChosenUnits& units)
{
    Answer answer;
    vxMat::MaterialBase defaults;
    for (const PropertyRecord& record : vxMat::propertyRecords())
        defaults.setProperty(record.id, record.create());
    units.apply(defaults);
    TextTable table({"Id", "Name", "Key", "Unit" + units.suffix(), "Category", "Default", "Words", "Description"});
    Json::Value document;
    addUnits(document, units);
    for (const PropertyRecord* const record : recordsById()) {
        const MaterialProperty& property = *defaults.findProperty(record->id);
        table.add({std::to_string(record->id), record->name, record->key, property.unit,
                   vxMat::getPropertyCategoryName(static_cast<std::int32_t>(record->category)),
                   vxMat::formatValue(property), joinedWords(record->id), record->description});
        document["quantities"].append(toJson(*record, property));
    }
    if (units.areGiven())
        answer.messages.emplace_back("note: the unit of Creep Modulus A depends on Creep Modulus N and M; it is listed "
                                     "for their defaults");
    answer.text = form == Form::Json ? toJsonText(document) : table.text();
    return answer;
}

Answer showMaterial(const std::string& name, Form form, const ChosenUnits& units)
{
    const MaterialNames names;
    if (const auto type = names.find(name))
        return showLibraryMaterial(names.get(*type), *type, form, units);
    if (isFile(name))
        return showFile(name, form, units);
    throw Failure(names.unknown(name));
}

} // namespace commandline
