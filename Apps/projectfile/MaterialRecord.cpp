#include "projectfile/MaterialRecord.h"

#include "RecordReading.h"
#include "RecordWriting.h"

#include <algorithm>
#include <utility>

namespace projectfile {

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
    detail::readMaterialRecord(record, read);
    material.id = read.id;
    material.name = std::move(read.name);
    material.libraryGroup = read.libraryGroup;
    material.properties = std::move(read.properties);
}

} // namespace projectfile
