#include "RecordReading.h"

#include "JsonPath.h"
#include "RecordMembers.h"

#include "projectfile/MaterialRecord.h"

#include <json/writer.h>

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace projectfile::detail {

namespace {

/// A value of a document and the way to it.
struct Node
{
    const Json::Value& value;
    const Node* parent = nullptr; ///< null for the document
    std::string_view name{};      ///< of a member; empty in an array
    Json::ArrayIndex index = 0;   ///< of an element
};

/// "materials[3].material.name"; empty for the document.
std::string pathOf(const Node& node) // NOLINT(misc-no-recursion): as deep as the records are
{
    if (node.parent == nullptr)
        return {};
    const std::string path = pathOf(*node.parent);
    if (node.parent->value.isArray())
        return path + "[" + std::to_string(node.index) + "]";
    return path + (path.empty() ? "" : ".") + shortened(node.name);
}

std::string shown(const Json::Value& value)
{
    if (value.isObject())
        return "an object";
    if (value.isArray())
        return "an array";
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return shortened(Json::writeString(builder, value));
}

[[noreturn]] void refuse(const Node& node, const char* needed)
{
    const std::string path = pathOf(node);
    throw RecordError((path.empty() ? "the whole" : "\"" + path + "\"") + " is " + shown(node.value) + " but must be " +
                      needed);
}

void demand(const Node& node, bool isRight, const char* needed)
{
    if (!isRight)
        refuse(node, needed);
}

std::int64_t readWholeBetween(const Node& node, std::int64_t least, std::int64_t most, const char* needed)
{
    demand(node, node.value.isInt64() && node.value.asInt64() >= least && node.value.asInt64() <= most, needed);
    return node.value.asInt64();
}

/// The characters of a text, which belong to the value.
std::string_view textOf(const Json::Value& value)
{
    const char* begin = nullptr;
    const char* end = nullptr;
    if (!value.getString(&begin, &end))
        return {};
    return {begin, static_cast<std::size_t>(end - begin)};
}

template <class OnElement>
void forEachElement(const Node& array, const OnElement& onElement)
{
    Json::ArrayIndex index = 0;
    for (const Json::Value& element : array.value)
        onElement(Node{element, &array, {}, index++});
}

void readField(const Node& node, std::int32_t& field)
{
    using limits = std::numeric_limits<std::int32_t>;
    field =
        static_cast<std::int32_t>(readWholeBetween(node, limits::min(), limits::max(), "a whole number of 32 bits"));
}

void readField(const Node& node, std::uint32_t& field)
{
    constexpr std::int64_t most = std::numeric_limits<std::uint32_t>::max();
    field =
        static_cast<std::uint32_t>(readWholeBetween(node, 1, most, "the number of an object, from 1 to 4294967295"));
}

void readField(const Node& node, std::uint64_t& field)
{
    constexpr std::int64_t most = std::int64_t{1} << 32U;
    field = static_cast<std::uint64_t>(
        readWholeBetween(node, 1, most, "the number of the next object, from 1 to 4294967296"));
}

void readField(const Node& node, bool& field)
{
    demand(node, node.value.isBool(), "true or false");
    field = node.value.asBool();
}

void readField(const Node& node, std::string& field)
{
    demand(node, node.value.isString(), "a text");
    field = textOf(node.value);
}

void readField(const Node& node, double& field)
{
    if (node.value.isNumeric()) {
        field = node.value.asDouble();
        return;
    }
    const std::string_view word = textOf(node.value);
    if (word == infinityWord)
        field = std::numeric_limits<double>::infinity();
    else if (word == minusInfinityWord)
        field = -std::numeric_limits<double>::infinity();
    else if (word == notANumberWord)
        field = std::numeric_limits<double>::quiet_NaN();
    else
        refuse(node, "a number");
}

void readField(const Node& node, std::vector<double>& field)
{
    demand(node, node.value.isArray(), "an array of numbers");
    field.reserve(node.value.size());
    forEachElement(node, [&field](const Node& element) { readField(element, field.emplace_back()); });
}

void readField(const Node& node, std::array<float, 4>& field)
{
    demand(node, node.value.isArray() && node.value.size() == field.size(),
           "an array of four numbers: red, green, blue and opacity");
    forEachElement(node, [&field](const Node& element) {
        const bool isNumber = element.value.isNumeric();
        const double part = isNumber ? element.value.asDouble() : 0.0;
        demand(element, isNumber && part >= 0.0 && part <= 1.0, "a number from 0 to 1");
        field[element.index] = static_cast<float>(part);
    });
}

void readField(const Node& node, vxMat::ePropertyCategory& field)
{
    const auto last = static_cast<std::int64_t>(vxMat::ePropertyCategory::Undefined);
    field = static_cast<vxMat::ePropertyCategory>(readWholeBetween(node, 0, last, "the number of a category, 0 to 9"));
}

void readField(const Node& node, Json::Value& field)
{
    field = node.value;
}

template <class Field>
void readField(const Node& node, std::optional<Field>& field)
{
    readField(node, field.emplace());
}

using ReadProperties = Properties<vxMat::MaterialBase::PropertyMap, Json::Value*>;

/// What stands for the material of an object while that is read.
struct MaterialOfObject
{
    ProjectRecord& project;
    ObjectRecord& object;
};

/// What stands for the array of materials while that is read.
struct Materials
{
    ProjectRecord& project;
};

void readField(const Node& node, const ReadProperties& properties);
void readField(const Node& node, const MaterialOfObject& field);
void readField(const Node& node, const Materials& field);

template <class Field>
void readField(const Node& node, const Required<Field>& required)
{
    readField(node, required.field);
}

template <class Field>
inline constexpr bool isRequired = false;
template <class Field>
inline constexpr bool isRequired<Required<Field>> = true;

/// Reads the members of an object into the fields that `visitMembers(visit)` names, and others into `further`, when
/// that is not null.
template <class VisitMembers>
void readMembers(const Node& node, const VisitMembers& visitMembers, Json::Value* further)
{
    demand(node, node.value.isObject(), "an object");
    std::uint32_t seen = 0;
    for (auto member = node.value.begin(); member != node.value.end(); ++member) {
        const char* end = nullptr;
        const char* const begin = member.memberName(&end);
        const Node child{*member, &node, {begin, static_cast<std::size_t>(end - begin)}};
        const std::uint32_t before = seen;
        std::uint32_t bit = 1;
        visitMembers([&](std::string_view name, auto&& field) {
            if (name == child.name) {
                readField(child, field);
                seen |= bit;
            }
            bit <<= 1U;
        });
        if (seen == before && further != nullptr)
            (*further)[std::string(child.name)] = child.value;
    }
    std::uint32_t bit = 1;
    visitMembers([&](std::string_view name, auto&& field) {
        if (isRequired<std::decay_t<decltype(field)>> && (seen & bit) == 0U)
            throw RecordError("\"" + pathOf(Node{Json::Value::nullSingleton(), &node, name}) + "\" is missing");
        bit <<= 1U;
    });
}

void readField(const Node& node, const ReadProperties& properties)
{
    demand(node, node.value.isArray(), "an array of objects");
    properties.map.reserve(node.value.size());
    forEachElement(node, [&](const Node& element) {
        auto property = std::make_unique<vxMat::MaterialProperty>();
        std::optional<std::int32_t> heldAs;
        Json::Value unknown;
        readMembers(
            element, [&](const auto& visit) { visitPropertyMembers(heldAs, *property, visit); },
            properties.further != nullptr ? &unknown : nullptr);
        const std::int32_t key = heldAs.value_or(property->id);
        if (!properties.map.emplace(key, std::move(property)).second)
            throw RecordError("\"" + pathOf(element) + ".held_as\" " + std::to_string(key) + " is there twice");
        if (!unknown.isNull())
            (*properties.further)[std::to_string(key)] = std::move(unknown);
    });
}

/// The two objects take what is not known; null when that is not wanted.
void readMaterial(const Node& node, vxMat::MaterialBase& material, Json::Value* further, Json::Value* ofProperties)
{
    material.name.clear(); // which is the name of its class at first
    readMembers(
        node, [&](const auto& visit) { visitMaterialMembers(material, ofProperties, visit); }, further);
}

void readField(const Node& node, const MaterialOfObject& field)
{
    Json::Value further;
    Json::Value ofProperties;
    auto material = std::make_unique<vxMat::MaterialBase>();
    readMaterial(node, *material, &further, &ofProperties);
    field.object.material = material.get();
    field.project.materials.push_back(std::move(material));
    if (!further.isNull())
        field.object.further[partOfMaterial] = std::move(further);
    if (!ofProperties.isNull())
        field.object.further[partOfProperties] = std::move(ofProperties);
}

void readField(const Node& node, const Materials& field)
{
    demand(node, node.value.isArray(), "an array of objects");
    forEachElement(node, [&](const Node& element) {
        ObjectRecord& object = field.project.objects.emplace_back();
        const MaterialOfObject material{field.project, object};
        Json::Value further;
        readMembers(
            element, [&](const auto& visit) { visitObjectMembers(object, material, visit); }, &further);
        if (!further.isNull())
            object.further[partOfObject] = std::move(further);
    });
}

} // namespace

void readMaterialRecord(const Json::Value& record, vxMat::MaterialBase& material)
{
    readMaterial(Node{record}, material, nullptr, nullptr);
}

ProjectRecord readProjectRecord(const Json::Value& document)
{
    ProjectRecord project;
    std::string format;
    std::int32_t version = 0;
    const Materials materials{project};
    readMembers(
        Node{document}, [&](const auto& visit) { visitProjectMembers(format, version, project, materials, visit); },
        &project.further);
    if (version < 1)
        throw RecordError("\"format_version\" is " + std::to_string(version) + " but must be from 1 to " +
                          std::to_string(formatVersion));
    return project;
}

} // namespace projectfile::detail
