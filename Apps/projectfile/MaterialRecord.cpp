#include "projectfile/MaterialRecord.h"

#include "RecordReading.h"
#include "RecordWriting.h"
#include "ValueSource.h"

#include <json/writer.h>

#include <algorithm>
#include <utility>

namespace projectfile {

namespace detail {

JsonKind ValueSource::kind() const
{
    switch (m_value->type()) {
    case Json::nullValue:
        break;
    case Json::intValue:
    case Json::uintValue:
    case Json::realValue:
        return JsonKind::Number;
    case Json::stringValue:
        return JsonKind::Text;
    case Json::booleanValue:
        return JsonKind::Boolean;
    case Json::arrayValue:
        return JsonKind::Array;
    case Json::objectValue:
        return JsonKind::Object;
    }
    return JsonKind::Null;
}

std::optional<std::int64_t> ValueSource::readWhole() const
{
    return m_value->isInt64() ? std::optional<std::int64_t>(m_value->asInt64()) : std::nullopt;
}

std::string ValueSource::shown() const
{
    if (m_value->isObject())
        return "an object";
    if (m_value->isArray())
        return "an array";
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return shortened(Json::writeString(builder, *m_value));
}

} // namespace detail

namespace {

Json::Value toJson(double number)
{
    const std::string_view word = detail::wordOfNumber(number);
    return word.empty() ? Json::Value(number) : Json::Value(word.data(), word.data() + word.size());
}

Json::Value toJson(std::int32_t number)
{
    return number;
}

Json::Value toJson(const std::string& text)
{
    return text;
}

Json::Value toJson(vxMat::ePropertyCategory category)
{
    return static_cast<std::int32_t>(category);
}

Json::Value toJson(const std::vector<double>& numbers)
{
    Json::Value array(Json::arrayValue);
    for (const double number : numbers)
        array.append(toJson(number));
    return array;
}

Json::Value toJson(const detail::Properties<const vxMat::MaterialBase::PropertyMap, const Json::Value>& properties);

/// Sets the members of a record.
struct MemberSetter
{
    Json::Value& record;

    template <class Field>
    void operator()(const char* name, const Field& field) const
    {
        record[name] = toJson(field);
    }
};

Json::Value toJson(const detail::Properties<const vxMat::MaterialBase::PropertyMap, const Json::Value>& properties)
{
    Json::Value array(Json::arrayValue);
    for (const std::int32_t key : detail::sortedKeys(properties.map))
        detail::visitPropertyMembers(key, std::as_const(*properties.map.at(key)),
                                     MemberSetter{array.append(Json::Value())});
    return array;
}

} // namespace

RecordError::~RecordError() = default;

Json::Value writeMaterial(const vxMat::MaterialBase& material)
{
    Json::Value record;
    detail::visitMaterialMembers(material, Json::Value::nullSingleton(), MemberSetter{record});
    return record;
}

void readMaterial(vxMat::MaterialBase& material, const Json::Value& record)
{
    vxMat::MaterialBase read;
    detail::ValueSource source(record);
    detail::readMaterialRecord(source, read, nullptr, nullptr);
    material.id = read.id;
    material.name = std::move(read.name);
    material.libraryGroup = read.libraryGroup;
    material.properties = std::move(read.properties);
}

} // namespace projectfile
