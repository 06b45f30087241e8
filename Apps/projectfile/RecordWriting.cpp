#include "RecordWriting.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace projectfile::detail {

namespace {

void writeFurther(JsonWriter& writer, const Json::Value& further)
{
    if (!further.isObject())
        return;
    const Json::Value::Members names = further.getMemberNames();
    for (const std::string& name : names) {
        writer.name(name);
        writer.any(further[name]);
    }
}

/// What a record holds of members that are not known; null when it holds none.
const Json::Value& partOf(const Json::Value& further, std::string_view name)
{
    const Json::Value* const part = further.isObject() ? further.find(name.data(), name.data() + name.size()) : nullptr;
    return part != nullptr ? *part : Json::Value::nullSingleton();
}

void writeField(JsonWriter& writer, std::int32_t field)
{
    writer.whole(std::int64_t{field});
}

void writeField(JsonWriter& writer, std::uint32_t field)
{
    writer.whole(std::uint64_t{field});
}

void writeField(JsonWriter& writer, std::uint64_t field)
{
    writer.whole(field);
}

void writeField(JsonWriter& writer, bool field)
{
    writer.boolean(field);
}

void writeField(JsonWriter& writer, const std::string& field)
{
    writer.text(field);
}

void writeField(JsonWriter& writer, double field)
{
    const std::string_view word = wordOfNumber(field);
    if (word.empty())
        writer.number(field);
    else
        writer.text(word);
}

void writeField(JsonWriter& writer, const std::vector<double>& field)
{
    writer.beginArray(JsonLayout::Line);
    for (const double number : field) {
        writer.element();
        writeField(writer, number);
    }
    writer.endArray();
}

void writeField(JsonWriter& writer, const std::array<float, 4>& field)
{
    writer.beginArray(JsonLayout::Line);
    for (const float part : field) {
        writer.element();
        // Not the other way round, since nothing is less than what is not a number.
        if (!(part >= 0.0F && part <= 1.0F))
            throw ProjectFileError("\"" + writer.path() + "\" is " + std::to_string(part) + " but must be from 0 to 1");
        writer.number(part);
    }
    writer.endArray();
}

void writeField(JsonWriter& writer, vxMat::ePropertyCategory field)
{
    writer.whole(static_cast<std::int64_t>(field));
}

void writeField(JsonWriter& writer, const Json::Value& field)
{
    writer.any(field);
}

void writeField(JsonWriter& writer, std::string_view field)
{
    writer.text(field);
}

using WrittenProperties = Properties<const vxMat::MaterialBase::PropertyMap, const Json::Value>;

struct WrittenMaterial
{
    const ObjectRecord& object;
};

void writeField(JsonWriter& writer, const WrittenProperties& properties);
void writeField(JsonWriter& writer, const WrittenMaterial& field);
void writeField(JsonWriter& writer, const std::vector<ObjectRecord>& objects);

/// Writes members of a record.
struct MemberWriter
{
    JsonWriter& writer;

    template <class Field>
    void operator()(std::string_view name, const Field& field) const
    {
        writer.name(name);
        writeField(writer, field);
    }
    template <class Field>
    void operator()(std::string_view name, const Required<Field>& required) const
    {
        (*this)(name, required.field);
    }
    template <class Field>
    void operator()(std::string_view name, const std::optional<Field>& field) const
    {
        if (field)
            (*this)(name, *field);
    }
};

void writeField(JsonWriter& writer, const WrittenProperties& properties)
{
    writer.beginArray(JsonLayout::Block);
    for (const std::int32_t key : sortedKeys(properties.map)) {
        writer.element();
        writer.beginObject(JsonLayout::Line);
        visitPropertyMembers(key, std::as_const(*properties.map.at(key)), MemberWriter{writer});
        if (!properties.further.isNull())
            writeFurther(writer, partOf(properties.further, std::to_string(key)));
        writer.endObject();
    }
    writer.endArray();
}

void writeField(JsonWriter& writer, const WrittenMaterial& field)
{
    assert(field.object.material != nullptr);
    writer.beginObject(JsonLayout::Block);
    visitMaterialMembers(*field.object.material, partOf(field.object.further, partOfProperties), MemberWriter{writer});
    writeFurther(writer, partOf(field.object.further, partOfMaterial));
    writer.endObject();
}

void writeField(JsonWriter& writer, const std::vector<ObjectRecord>& objects)
{
    writer.beginArray(JsonLayout::Block);
    for (const ObjectRecord& object : objects) {
        writer.element();
        writer.beginObject(JsonLayout::Block);
        const WrittenMaterial material{object};
        visitObjectMembers(object, material, MemberWriter{writer});
        writeFurther(writer, partOf(object.further, partOfObject));
        writer.endObject();
    }
    writer.endArray();
}

} // namespace

void writeProjectRecord(JsonWriter& writer, const ProjectRecord& project)
{
    writer.beginObject(JsonLayout::Block);
    visitProjectMembers(projectFormat, formatVersion, project, project.objects, MemberWriter{writer});
    writeFurther(writer, project.further);
    writer.endObject();
}

std::string_view wordOfNumber(double number)
{
    if (std::isfinite(number))
        return {};
    if (std::isnan(number))
        return notANumberWord;
    return number > 0.0 ? infinityWord : minusInfinityWord;
}

std::vector<std::int32_t> sortedKeys(const vxMat::MaterialBase::PropertyMap& properties)
{
    std::vector<std::int32_t> keys;
    keys.reserve(properties.size());
    for (const auto& [key, property] : properties)
        keys.push_back(key);
    std::sort(keys.begin(), keys.end());
    return keys;
}

} // namespace projectfile::detail
