#include "vxMaterial/json/JsonTree.h"

#include "RapidTree.h"

#include <cmath>
#include <utility>

namespace vxjson {

namespace {

using detail::TreeValue;

const TreeValue& valueOf(const void* value)
{
    return *static_cast<const TreeValue*>(value);
}

std::string_view textOf(const TreeValue& value)
{
    return {value.GetString(), value.GetStringLength()};
}

Json::Value textToJson(std::string_view text)
{
    return {text.data(), text.data() + text.size()};
}

Json::Value numberToJson(const TreeValue& value)
{
    if (value.IsInt64())
        return Json::Value::Int64{value.GetInt64()};
    if (value.IsUint64())
        return Json::Value::UInt64{value.GetUint64()};
    return value.GetDouble();
}

Json::Value toJson(const TreeValue& value) // NOLINT(misc-no-recursion): no deeper than deepestNesting
{
    switch (value.GetType()) {
    case rapidjson::kNullType:
        return {};
    case rapidjson::kFalseType:
        return false;
    case rapidjson::kTrueType:
        return true;
    case rapidjson::kStringType:
        return textToJson(textOf(value));
    case rapidjson::kNumberType:
        return numberToJson(value);
    case rapidjson::kArrayType: {
        Json::Value array(Json::arrayValue);
        for (const TreeValue& element : value.GetArray())
            array.append(toJson(element));
        return array;
    }
    case rapidjson::kObjectType:
        break;
    }
    Json::Value object(Json::objectValue);
    for (const auto& member : value.GetObject()) {
        const std::string_view name = textOf(member.name);
        *object.demand(name.data(), name.data() + name.size()) = toJson(member.value);
    }
    return object;
}

} // namespace

JsonTree::JsonTree(std::unique_ptr<detail::RapidTree> content) : m_content(std::move(content)) {}

JsonTree::JsonTree(JsonTree&&) noexcept = default;
JsonTree& JsonTree::operator=(JsonTree&&) noexcept = default;
JsonTree::~JsonTree() = default;

JsonTree JsonTree::read(std::string_view text, JsonDialect dialect)
{
    auto content = std::make_unique<detail::RapidTree>();
    detail::readTree(text, dialect, *content);
    return JsonTree(std::move(content));
}

JsonNode JsonTree::root() const
{
    const TreeValue& root = m_content->document;
    return JsonNode(&root);
}

const std::optional<JsonError>& JsonTree::error() const
{
    return m_content->error;
}

const std::vector<std::string>& JsonTree::repeatedMembers() const
{
    return m_content->repeatedMembers;
}

JsonKind JsonNode::kind() const
{
    const TreeValue& value = valueOf(m_value);
    if (value.IsString())
        return JsonKind::Text;
    if (value.IsNumber())
        return JsonKind::Number;
    if (value.IsObject())
        return JsonKind::Object;
    if (value.IsArray())
        return JsonKind::Array;
    return value.IsBool() ? JsonKind::Boolean : JsonKind::Null;
}

bool JsonNode::boolean() const
{
    return valueOf(m_value).IsTrue();
}

double JsonNode::number() const
{
    return isNumber() ? valueOf(m_value).GetDouble() : 0.0;
}

std::optional<std::int64_t> JsonNode::whole() const
{
    const TreeValue& value = valueOf(m_value);
    if (value.IsInt64())
        return value.GetInt64();
    if (!value.IsDouble())
        return std::nullopt;
    const double number = value.GetDouble();
    constexpr double limit = 9223372036854775808.0; // 2 to the power of 63
    if (number < -limit || number >= limit || number != std::trunc(number))
        return std::nullopt;
    return static_cast<std::int64_t>(number);
}

std::string_view JsonNode::text() const
{
    return isText() ? textOf(valueOf(m_value)) : std::string_view();
}

std::size_t JsonNode::size() const
{
    const TreeValue& value = valueOf(m_value);
    if (value.IsArray())
        return value.Size();
    return value.IsObject() ? value.MemberCount() : 0;
}

JsonNode JsonNode::element(std::size_t index) const
{
    return JsonNode(valueOf(m_value).Begin() + index);
}

std::string_view JsonNode::memberName(std::size_t index) const
{
    return textOf((valueOf(m_value).MemberBegin() + static_cast<std::ptrdiff_t>(index))->name);
}

JsonNode JsonNode::member(std::size_t index) const
{
    return JsonNode(&(valueOf(m_value).MemberBegin() + static_cast<std::ptrdiff_t>(index))->value);
}

JsonNode JsonNode::operator[](std::string_view name) const
{
    static const TreeValue missing;
    for (std::size_t index = isObject() ? size() : 0; index > 0; --index) {
        if (memberName(index - 1) == name)
            return member(index - 1);
    }
    return JsonNode(&missing);
}

Json::Value JsonNode::toJsonValue() const
{
    return toJson(valueOf(m_value));
}

} // namespace vxjson
