#pragma once

#include <json/value.h>

#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>

/// Member lists map the fields of an object to the keys of its JSON object, with the conversion. Each list exists once,
/// as a tuple of rows (SectionMembers.h). Writers, readers and the check of documents use the same list.
namespace vxCAE::detail {

/// The conversion that a reader applies to a value.
enum class Conversion
{
    Signed,
    Unsigned,
    Count, ///< an unsigned number for a signed field: a number above 2147483647 becomes negative
    Real,
    Boolean,
    Text,
};
template <class Field>
constexpr Conversion naturalConversion()
{
    if constexpr (std::is_same_v<Field, bool>)
        return Conversion::Boolean;
    else if constexpr (std::is_same_v<Field, std::int32_t>)
        return Conversion::Signed;
    else if constexpr (std::is_same_v<Field, std::uint32_t>)
        return Conversion::Unsigned;
    else if constexpr (std::is_same_v<Field, double>)
        return Conversion::Real;
    else
        return Conversion::Text;
}

/// One row. A field is written as the JSON kind of its type.
template <class Object, class Field>
struct Member
{
    const char* key;
    Field Object::*field;
    Conversion conversion;
    const char* readKey;
};

/// A row whose field is read by the conversion of its type.
template <class Object, class Field>
constexpr Member<Object, Field> member(const char* key, Field Object::*field)
{
    return {key, field, naturalConversion<Field>(), key};
}

/// A row whose signed field is read as an unsigned number: types and counts, which are never negative.
template <class Object>
constexpr Member<Object, std::int32_t> count(const char* key, std::int32_t Object::*field)
{
    return {key, field, Conversion::Count, key};
}

/// Like `count`, for a field whose keys for reading and writing differ.
template <class Object>
constexpr Member<Object, std::int32_t> countReadAs(const char* key, std::int32_t Object::*field, const char* readKey)
{
    return {key, field, Conversion::Count, readKey};
}

template <class Field>
Field readValue(const Json::Value& value, Conversion conversion)
{
    if constexpr (std::is_same_v<Field, bool>)
        return value.asBool();
    else if constexpr (std::is_same_v<Field, std::int32_t>)
        return conversion == Conversion::Count ? static_cast<std::int32_t>(value.asUInt()) : value.asInt();
    else if constexpr (std::is_same_v<Field, std::uint32_t>)
        return value.asUInt();
    else if constexpr (std::is_same_v<Field, double>)
        return value.asDouble();
    else
        return value.asString();
}

/// Calls `visit` with each row of a list.
template <class Members, class Visit>
void forEachMember(const Members& members, Visit visit)
{
    std::apply([&visit](const auto&... member) { (visit(member), ...); }, members);
}

/// Sets a member of `json` for each row of the list.
template <class Object, class Members>
void writeMembers(const Object& object, const Members& members, Json::Value& json)
{
    forEachMember(
        members, [&](const auto& member) { json[Json::StaticString(member.key)] = Json::Value(object.*member.field); });
}

/// Reads each field of the list from `json`.
template <class Object, class Members>
void readMembers(Object& object, const Members& members, const Json::Value& json)
{
    forEachMember(members, [&](const auto& member) {
        using Field = std::decay_t<decltype(object.*member.field)>;
        object.*member.field = readValue<Field>(json[member.readKey], member.conversion);
    });
}

/// Calls `visit` with each element of an array in the order of the indices, with null for an unused index. Uses an
/// iterator, since looking up every index costs n log n. A value that is not an array has no elements.
/// \throws Json::LogicError if `array` is an object that is not empty
template <class Visit>
void forEachElement(const Json::Value& array, Visit visit)
{
    if (array.isObject() && !array.empty())
        throw Json::LogicError("Value is an object where an array is needed.");
    if (!array.isArray())
        return;
    Json::ArrayIndex index = 0;
    for (auto element = array.begin(); element != array.end(); ++element, ++index) {
        for (; index < element.index(); ++index)
            visit(Json::Value::nullSingleton());
        visit(*element);
    }
}

/// Returns a list as a JSON array; null if it is empty, like an array without appended elements.
template <class List>
Json::Value toArray(const List& list)
{
    Json::Value array;
    for (const auto element : list)
        array.append(Json::Value(element));
    return array;
}

} // namespace vxCAE::detail
