#pragma once

#include "JsonPath.h"
#include "RecordMembers.h"
#include "TextSource.h"

#include "projectfile/MaterialRecord.h"

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// How the fields of records are read, from a source of JSON values: a text (TextSource) or a Json::Value (ValueSource).
/// What is wrong with a value is a RecordError.
namespace projectfile::detail {

template <class Source>
[[noreturn]] void refuse(const Source& source, const char* needed)
{
    const std::string path = source.path();
    throw RecordError((path.empty() ? "the whole" : "\"" + path + "\"") + " is " + source.shown() + " but must be " +
                      needed);
}

template <class Source>
void demand(Source& source, JsonKind kind, const char* needed)
{
    if (source.kind() != kind)
        refuse(source, needed);
}

template <class Source>
std::int64_t readWholeBetween(Source& source, std::int64_t least, std::int64_t most, const char* needed)
{
    demand(source, JsonKind::Number, needed);
    const auto number = source.readWhole();
    if (!number || *number < least || *number > most)
        refuse(source, needed);
    return *number;
}

/// Reads the members of an object into the fields that `visitMembers(visit)` names, and others into `further`, when
/// there is one.
template <class Source, class VisitMembers>
void readMembers(Source& source, const VisitMembers& visitMembers, Json::Value* further);

template <class Source>
void readField(Source& source, std::int32_t& field)
{
    using limits = std::numeric_limits<std::int32_t>;
    field =
        static_cast<std::int32_t>(readWholeBetween(source, limits::min(), limits::max(), "a whole number of 32 bits"));
}

template <class Source>
void readField(Source& source, std::uint32_t& field)
{
    constexpr std::uint32_t most = std::numeric_limits<std::uint32_t>::max();
    field =
        static_cast<std::uint32_t>(readWholeBetween(source, 1, most, "the number of an object, from 1 to 4294967295"));
}

template <class Source>
void readField(Source& source, std::uint64_t& field)
{
    constexpr std::int64_t most = std::int64_t{1} << 32U;
    field = static_cast<std::uint64_t>(
        readWholeBetween(source, 1, most, "the number of the next object, from 1 to 4294967296"));
}

template <class Source>
void readField(Source& source, std::string& field)
{
    demand(source, JsonKind::Text, "a text");
    source.readText(field);
}

template <class Source>
void readField(Source& source, bool& field)
{
    demand(source, JsonKind::Boolean, "true or false");
    field = source.readBoolean();
}

template <class Source>
void readField(Source& source, double& field)
{
    constexpr const char* needed = "a number";
    const JsonKind kind = source.kind();
    if (kind == JsonKind::Number) {
        field = source.readNumber();
        return;
    }
    std::string word;
    if (kind == JsonKind::Text)
        source.readText(word);
    if (word == infinityWord)
        field = std::numeric_limits<double>::infinity();
    else if (word == minusInfinityWord)
        field = -std::numeric_limits<double>::infinity();
    else if (word == notANumberWord)
        field = std::numeric_limits<double>::quiet_NaN();
    else
        refuse(source, needed);
}

template <class Source>
void readField(Source& source, std::vector<double>& field)
{
    demand(source, JsonKind::Array, "an array of numbers");
    source.readArray([&] { readField(source, field.emplace_back()); });
}

template <class Source>
void readField(Source& source, std::array<float, 4>& field)
{
    constexpr const char* needed = "an array of four numbers: red, green, blue and opacity";
    demand(source, JsonKind::Array, needed);
    std::size_t count = 0;
    source.readArray([&] {
        double part = 0.0;
        demand(source, JsonKind::Number, "a number from 0 to 1");
        part = source.readNumber();
        if (part < 0.0 || part > 1.0)
            refuse(source, "a number from 0 to 1");
        if (count < field.size())
            field[count] = static_cast<float>(part);
        ++count;
    });
    if (count != field.size())
        throw RecordError("\"" + source.path() + "\" has " + std::to_string(count) + " elements but must be " + needed);
}

template <class Source>
void readField(Source& source, vxMat::ePropertyCategory& field)
{
    const auto last = static_cast<std::int64_t>(vxMat::ePropertyCategory::Undefined);
    field =
        static_cast<vxMat::ePropertyCategory>(readWholeBetween(source, 0, last, "the number of a category, 0 to 9"));
}

template <class Source>
void readField(Source& source, Json::Value& field)
{
    field = source.readAny();
}

template <class Source, class Field>
void readField(Source& source, std::optional<Field>& field)
{
    readField(source, field.emplace());
}

template <class Source, class Field>
void readField(Source& source, const Required<Field>& required)
{
    readField(source, required.field);
}

/// The properties of a material that is being read, which has none so far. `further` takes what is not known, by key;
/// null when that is not wanted.
template <class Source>
void readField(Source& source, const Properties<vxMat::MaterialBase::PropertyMap, Json::Value*>& properties)
{
    demand(source, JsonKind::Array, "an array of objects");
    source.readArray([&] {
        auto property = std::make_unique<vxMat::MaterialProperty>();
        std::optional<std::int32_t> heldAs;
        Json::Value unknown;
        readMembers(
            source, [&](const auto& visit) { visitPropertyMembers(heldAs, *property, visit); },
            properties.further != nullptr ? &unknown : nullptr);
        const std::int32_t key = heldAs.value_or(property->id);
        if (!properties.map.emplace(key, std::move(property)).second)
            throw RecordError("\"" + source.path() + ".held_as\" " + std::to_string(key) + " is there twice");
        if (!unknown.isNull())
            (*properties.further)[std::to_string(key)] = std::move(unknown);
    });
}

/// Keeps a member that is not known, or passes over it.
template <class Source>
void readUnknown(Source& source, std::string_view name, Json::Value* further)
{
    if (further != nullptr && further->isObject() && further->find(name.data(), name.data() + name.size()) != nullptr)
        throw RecordError("\"" + source.path() + "\" is there twice");
    const std::string kept(name);
    Json::Value value = source.readAny();
    if (further != nullptr)
        (*further)[kept] = std::move(value);
}

/// Reads the value of the member `name` into its field. Answers false when no field has this name.
template <class Source, class VisitMembers>
bool readKnown(Source& source, std::string_view name, const VisitMembers& visitMembers, std::uint32_t& seen)
{
    bool isKnown = false;
    std::uint32_t bit = 1;
    visitMembers([&](std::string_view fieldName, auto&& field) {
        // The name is not to be looked at any more once the value has been read.
        if (!isKnown && name == fieldName) {
            isKnown = true;
            if ((seen & bit) != 0U)
                throw RecordError("\"" + source.path() + "\" is there twice");
            seen |= bit;
            readField(source, field);
        }
        bit <<= 1U;
    });
    return isKnown;
}

template <class Field>
inline constexpr bool isRequired = false;
template <class Field>
inline constexpr bool isRequired<Required<Field>> = true;

template <class Source, class VisitMembers>
void readMembers(Source& source, const VisitMembers& visitMembers, Json::Value* further)
{
    demand(source, JsonKind::Object, "an object");
    std::uint32_t seen = 0;
    source.readObject([&](std::string_view name) {
        if (!readKnown(source, name, visitMembers, seen))
            readUnknown(source, name, further);
    });
    std::uint32_t bit = 1;
    visitMembers([&](std::string_view name, auto&& field) {
        if (isRequired<std::decay_t<decltype(field)>> && (seen & bit) == 0U) {
            const std::string path = source.path();
            throw RecordError("\"" + path + (path.empty() ? "" : ".") + std::string(name) + "\" is missing");
        }
        bit <<= 1U;
    });
}

/// Reads a material, which is new. The two objects take the members that are not known; null when these are not wanted.
template <class Source>
void readMaterialRecord(Source& source, vxMat::MaterialBase& material, Json::Value* further,
                        Json::Value* furtherOfProperties)
{
    material.name.clear(); // which is the name of its class at first
    readMembers(
        source, [&](const auto& visit) { visitMaterialMembers(material, furtherOfProperties, visit); }, further);
}

} // namespace projectfile::detail
