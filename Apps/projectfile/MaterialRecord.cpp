#include "projectfile/MaterialRecord.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace projectfile {

namespace {

Json::Value writeNumber(double number)
{
    if (std::isnan(number))
        return "NaN";
    if (std::isinf(number))
        return number > 0 ? "Infinity" : "-Infinity";
    return number;
}

[[noreturn]] void refuse(const char* member, const Json::Value& value, const char* needed)
{
    throw RecordError(std::string("\"") + member + "\" is " + value.toStyledString() + "but must be " + needed);
}

double readNumber(const Json::Value& value, const char* member)
{
    if (value.isNumeric())
        return value.asDouble();
    if (value == "Infinity")
        return std::numeric_limits<double>::infinity();
    if (value == "-Infinity")
        return -std::numeric_limits<double>::infinity();
    if (value == "NaN")
        return std::numeric_limits<double>::quiet_NaN();
    refuse(member, value, "a number");
}

const Json::Value& memberOf(const Json::Value& record, const char* member)
{
    static const Json::Value missing;
    const Json::Value* const found = record.find(member, member + std::char_traits<char>::length(member));
    return found != nullptr ? *found : missing;
}

std::int32_t readInteger(const Json::Value& record, const char* member, std::int32_t defaultValue)
{
    const Json::Value& value = memberOf(record, member);
    if (value.isNull())
        return defaultValue;
    if (!value.isInt())
        refuse(member, value, "a whole number of 32 bits");
    return value.asInt();
}

std::string readText(const Json::Value& record, const char* member)
{
    const Json::Value& value = memberOf(record, member);
    if (value.isNull())
        return {};
    if (!value.isString())
        refuse(member, value, "a text");
    return value.asString();
}

std::vector<double> readList(const Json::Value& record, const char* member)
{
    const Json::Value& value = memberOf(record, member);
    if (!value.isNull() && !value.isArray())
        refuse(member, value, "an array of numbers");
    std::vector<double> numbers;
    for (const Json::Value& element : value)
        numbers.push_back(readNumber(element, member));
    return numbers;
}

vxMat::ePropertyCategory readCategory(const Json::Value& record)
{
    const auto last = static_cast<std::int32_t>(vxMat::ePropertyCategory::Undefined);
    const std::int32_t category = readInteger(record, "category", last);
    if (category < 0 || category > last)
        refuse("category", memberOf(record, "category"), "the number of a category");
    return static_cast<vxMat::ePropertyCategory>(category);
}

Json::Value writeProperty(std::int32_t heldAs, const vxMat::MaterialProperty& property)
{
    Json::Value record;
    record["held_as"] = heldAs;
    record["id"] = property.id;
    record["name"] = property.name;
    record["key"] = property.key;
    record["value"] = writeNumber(property.value);
    record["text"] = property.text;
    Json::Value& values = record["values"] = Json::Value(Json::arrayValue);
    for (const double number : property.values)
        values.append(writeNumber(number));
    record["description"] = property.description;
    record["unit"] = property.unit;
    record["category"] = static_cast<std::int32_t>(property.category);
    return record;
}

std::unique_ptr<vxMat::MaterialProperty> readProperty(const Json::Value& record)
{
    auto property = std::make_unique<vxMat::MaterialProperty>();
    property->id = readInteger(record, "id", 0);
    property->name = readText(record, "name");
    property->key = readText(record, "key");
    property->value = memberOf(record, "value").isNull() ? 0.0 : readNumber(memberOf(record, "value"), "value");
    property->text = readText(record, "text");
    property->values = readList(record, "values");
    property->description = readText(record, "description");
    property->unit = readText(record, "unit");
    property->category = readCategory(record);
    return property;
}

} // namespace

RecordError::~RecordError() = default;

Json::Value writeMaterial(const vxMat::MaterialBase& material)
{
    std::vector<std::int32_t> keys;
    for (const auto& [key, property] : material.properties)
        keys.push_back(key);
    std::sort(keys.begin(), keys.end());

    Json::Value record;
    record["id"] = material.id;
    record["name"] = material.name;
    record["library_group"] = material.libraryGroup;
    Json::Value& properties = record["properties"] = Json::Value(Json::arrayValue);
    for (const std::int32_t key : keys)
        properties.append(writeProperty(key, *material.findProperty(key)));
    return record;
}

void readMaterial(vxMat::MaterialBase& material, const Json::Value& record)
{
    if (!record.isObject())
        throw RecordError("A material must be an object");
    const Json::Value& properties = memberOf(record, "properties");
    if (!properties.isNull() && !properties.isArray())
        refuse("properties", properties, "an array");

    const std::int32_t id = readInteger(record, "id", 0);
    std::string name = readText(record, "name");
    const std::int32_t libraryGroup = readInteger(record, "library_group", 0);
    vxMat::MaterialBase::PropertyMap read;
    for (const Json::Value& element : properties) {
        if (!element.isObject())
            refuse("properties", element, "an array of objects");
        auto property = readProperty(element);
        const std::int32_t heldAs = readInteger(element, "held_as", property->id);
        if (!read.emplace(heldAs, std::move(property)).second)
            throw RecordError("\"held_as\" " + std::to_string(heldAs) + " is there twice");
    }
    material.id = id;
    material.name = std::move(name);
    material.libraryGroup = libraryGroup;
    material.properties = std::move(read);
}

} // namespace projectfile
