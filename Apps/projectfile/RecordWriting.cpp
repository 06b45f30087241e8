#include "RecordWriting.h"

#include "RecordMembers.h"

#include "vxMaterial/json/NumberWords.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace projectfile::detail {

namespace {

using vxjson::JsonLayout;
using vxjson::JsonWriter;

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

/// Returns a part of the unknown members; null if it is missing.
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

void writeField(JsonWriter& writer, const std::map<std::string, std::string>& field)
{
    writer.beginObject(JsonLayout::Block);
    for (const auto& [name, text] : field) {
        writer.name(name);
        writer.text(text);
    }
    writer.endObject();
}

void writeField(JsonWriter& writer, double field)
{
    const std::string_view word = vxjson::wordOfNumber(field);
    if (word.empty())
        writer.number(field);
    else
        writer.text(word);
}

template <class Number>
void writeField(JsonWriter& writer, const std::vector<Number>& field)
{
    writer.beginArray(JsonLayout::Line);
    for (const Number number : field) {
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
        // Not `part < 0.0F || part > 1.0F`, which is false for NaN.
        if (!(part >= 0.0F && part <= 1.0F))
            writer.fail(QT_TRANSLATE_NOOP("vxjson::JsonError", "\"%1\" must be a number from 0 to 1"));
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

/// The objects of a project that are materials.
struct Materials
{
    const ProjectRecord& project;
};

/// The other objects of a project.
struct OtherObjects
{
    const ProjectRecord& project;
};

void writeField(JsonWriter& writer, const WrittenProperties& properties);
void writeField(JsonWriter& writer, const WrittenMaterial& field);
void writeField(JsonWriter& writer, const Materials& field);
void writeField(JsonWriter& writer, const OtherObjects& field);

bool isMaterial(const ObjectRecord& object)
{
    return object.material != nullptr;
}

// These functions return whether an optional member is written.

bool isThere(const std::vector<std::uint32_t>& links)
{
    return !links.empty();
}

bool isThere(const std::map<std::string, std::string>& settings)
{
    return !settings.empty();
}

bool isThere(const OtherObjects& field)
{
    return !std::all_of(field.project.objects.begin(), field.project.objects.end(), isMaterial);
}

template <class Field>
bool isThere(const Field& /*field*/)
{
    return true;
}

/// Writes members of a record.
struct MemberWriter
{
    JsonWriter& writer;

    template <class Field>
    void operator()(std::string_view name, const Field& field) const
    {
        if (!isThere(field))
            return;
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
    void operator()(std::string_view name, const Optional<const Json::Value>& field) const
    {
        if (!field.value.isNull())
            (*this)(name, field.value);
    }
    void operator()(std::string_view name, const OptionalObject<const Json::Value>& field) const
    {
        if (!field.value.isNull())
            (*this)(name, field.value);
    }
};

std::vector<std::int32_t> sortedNumbers(const vxMat::MaterialBase::PropertyMap& properties)
{
    std::vector<std::int32_t> numbers;
    numbers.reserve(properties.size());
    for (const auto& [number, property] : properties)
        numbers.push_back(number);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

void writeField(JsonWriter& writer, const WrittenProperties& properties)
{
    writer.beginArray(JsonLayout::Block);
    for (const std::int32_t heldAs : sortedNumbers(properties.map)) {
        writer.element();
        writer.beginObject(JsonLayout::Line);
        visitPropertyMembers(heldAs, std::as_const(*properties.map.at(heldAs)), MemberWriter{writer});
        if (!properties.further.isNull())
            writeFurther(writer, partOf(properties.further, std::to_string(heldAs)));
        writer.endObject();
    }
    writer.endArray();
}

void writeMaterial(JsonWriter& writer, const vxMat::MaterialBase& material, const Json::Value& further)
{
    writer.beginObject(JsonLayout::Block);
    visitMaterialMembers(material, partOf(further, partOfProperties), MemberWriter{writer});
    writeFurther(writer, partOf(further, partOfMaterial));
    writer.endObject();
}

void writeField(JsonWriter& writer, const WrittenMaterial& field)
{
    writeMaterial(writer, *field.object.material, field.object.further);
}

/// Writes the objects for which `isOfKind` returns true, with the members that `visitMembers(object, visit)` visits.
template <class IsOfKind, class VisitMembers>
void writeObjects(JsonWriter& writer, const std::vector<ObjectRecord>& objects, const IsOfKind& isOfKind,
                  const VisitMembers& visitMembers)
{
    writer.beginArray(JsonLayout::Block);
    for (const ObjectRecord& object : objects) {
        if (!isOfKind(object))
            continue;
        writer.element();
        writer.beginObject(JsonLayout::Block);
        visitMembers(object, MemberWriter{writer});
        writeFurther(writer, partOf(object.further, partOfObject));
        writer.endObject();
    }
    writer.endArray();
}

void writeField(JsonWriter& writer, const Materials& field)
{
    writeObjects(writer, field.project.objects, isMaterial, [](const ObjectRecord& object, const auto& visit) {
        const WrittenMaterial material{object};
        visitMaterialObjectMembers(object, material, visit);
    });
}

void writeField(JsonWriter& writer, const OtherObjects& field)
{
    const auto isOther = [](const ObjectRecord& object) { return !isMaterial(object); };
    writeObjects(writer, field.project.objects, isOther,
                 [](const ObjectRecord& object, const auto& visit) { visitOtherObjectMembers(object, visit); });
}

} // namespace

void writeMaterialRecord(JsonWriter& writer, const vxMat::MaterialBase& material)
{
    writeMaterial(writer, material, Json::Value::nullSingleton());
}

void writeProjectRecord(JsonWriter& writer, const ProjectRecord& project)
{
    const Materials materials{project};
    const OtherObjects others{project};
    std::optional<std::string> className;
    if (project.className != materialProjectClass)
        className = project.className;
    writer.beginObject(JsonLayout::Block);
    visitProjectMembers(projectFormat, formatVersion, className, project, materials, others, MemberWriter{writer});
    writeFurther(writer, project.further);
    writer.endObject();
}

} // namespace projectfile::detail
