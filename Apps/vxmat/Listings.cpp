#include "Listings.h"

#include "Files.h"
#include "MaterialNames.h"
#include "TextTable.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <vector>

namespace vxmat {

namespace {

using vxMat::eValueKind;
using vxMat::MaterialProperty;
using vxMat::PropertyRecord;

const char* kindName(eValueKind kind)
{
    switch (kind) {
    case eValueKind::Word:
        return "word";
    case eValueKind::NumberList:
        return "list";
    case eValueKind::ModelSwitch:
        return "switch";
    default:
        return "number";
    }
}

/// The value of a property as the editor shows it.
Json::Value valueJson(const MaterialProperty& property)
{
    switch (vxMat::getValueKind(property.id)) {
    case eValueKind::Word:
        return property.text;
    case eValueKind::NumberList: {
        Json::Value list(Json::arrayValue);
        for (const double number : property.values)
            list.append(number);
        return list;
    }
    default:
        return property.value;
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

Json::Value toJson(const PropertyRecord& record)
{
    Json::Value json;
    json["id"] = record.id;
    json["name"] = record.name;
    json["key"] = record.key;
    json["unit"] = record.unit;
    json["category"] = vxMat::getPropertyCategoryName(static_cast<std::int32_t>(record.category));
    json["kind"] = kindName(record.kind);
    json["default"] = valueJson(*record.create());
    json["words"] = Json::arrayValue;
    for (const std::string& word : vxMat::getAllowedWords(record.id))
        json["words"].append(word);
    json["description"] = record.description;
    return json;
}

/// The keys of a material's properties in the order of the catalogue.
std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& material)
{
    std::vector<std::int32_t> keys;
    for (const PropertyRecord& record : vxMat::propertyRecords()) {
        if (material.hasProperty(record.id))
            keys.push_back(record.id);
    }
    return keys;
}

Json::Value toJson(std::int32_t key, const MaterialProperty& property)
{
    Json::Value json;
    json["held_under"] = key;
    json["id"] = property.id;
    json["name"] = property.name;
    json["key"] = property.key;
    json["kind"] = kindName(vxMat::findPropertyRecord(property.id)->kind);
    json["value"] = valueJson(property);
    json["unit"] = property.unit;
    json["description"] = property.description;
    return json;
}

} // namespace

Answer listLibrary(Form form)
{
    const MaterialNames names;
    TextTable table({"Name", "Group", "Quantities"});
    Json::Value list(Json::arrayValue);
    for (const vxMat::eMaterialType type : names.types()) {
        const vxMat::MaterialBase& material = names.get(type);
        const char* const group = vxMat::getLibraryGroupName(material.libraryGroup);
        table.add({material.name, group, std::to_string(material.properties.size())});
        Json::Value json;
        json["type"] = static_cast<std::int32_t>(type);
        json["name"] = material.name;
        json["group"] = material.libraryGroup;
        json["group_name"] = group;
        json["quantities"] = static_cast<Json::UInt>(material.properties.size());
        list.append(std::move(json));
    }
    Json::Value document;
    document["materials"] = std::move(list);
    return {form == Form::Json ? toJsonText(document) : table.text(), {}, Status::Clean};
}

Answer listCatalogue(Form form)
{
    TextTable table({"Id", "Name", "Key", "Unit", "Category", "Default", "Words", "Description"});
    Json::Value document;
    for (const PropertyRecord* const record : recordsById()) {
        table.add({std::to_string(record->id), record->name, record->key, record->unit,
                   vxMat::getPropertyCategoryName(static_cast<std::int32_t>(record->category)),
                   vxMat::formatValue(*record->create()), joinedWords(record->id), record->description});
        document["quantities"].append(toJson(*record));
    }
    return {form == Form::Json ? toJsonText(document) : table.text(), {}, Status::Clean};
}

Answer showMaterial(const std::string& name, Form form)
{
    const MaterialNames names;
    const vxMat::MaterialBase& material = names.get(name);
    Answer answer;
    TextTable table({"Name", "Value", "Unit", "Description"});
    Json::Value document;
    document["name"] = material.name;
    document["type"] = static_cast<std::int32_t>(*names.find(name));
    document["group"] = material.libraryGroup;
    document["group_name"] = vxMat::getLibraryGroupName(material.libraryGroup);
    for (const std::int32_t key : keysOf(material)) {
        const MaterialProperty& property = *material.findProperty(key);
        table.add({property.name, vxMat::formatValue(property), property.unit, property.description});
        document["properties"].append(toJson(key, property));
        if (key != property.id)
            answer.messages.push_back("note: " + material.name + " keeps its \"" +
                                      vxMat::findPropertyRecord(key)->name + "\" as a property named \"" +
                                      property.name + "\"");
    }
    answer.text = form == Form::Json ? toJsonText(document) : material.name + "\n\n" + table.text();
    return answer;
}

} // namespace vxmat
