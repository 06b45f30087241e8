#pragma once

#include "JsonPath.h"
#include "TextSource.h"

#include <json/value.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace projectfile::detail {

/// Reads a Json::Value as TextSource reads a text.
class ValueSource
{
public:
    /// The value must live as long as the source.
    explicit ValueSource(const Json::Value& value) : m_value(&value) {}

    JsonKind kind() const;
    bool readBoolean() const { return m_value->asBool(); }
    double readNumber() const { return m_value->asDouble(); }
    std::optional<std::int64_t> readWhole() const;
    void readText(std::string& text) const { text = m_value->asString(); }
    template <class OnMember>
    void readObject(const OnMember& onMember);
    template <class OnElement>
    void readArray(const OnElement& onElement);
    Json::Value readAny() const { return *m_value; }

    std::string path() const { return m_path.toText(); }
    std::string shown() const;

private:
    const Json::Value* m_value;
    JsonPath m_path;
};

template <class OnMember>
void ValueSource::readObject(const OnMember& onMember)
{
    const Json::Value* const object = m_value;
    m_path.enter();
    for (auto member = object->begin(); member != object->end(); ++member) {
        char const* end = nullptr;
        char const* const begin = member.memberName(&end);
        const std::string_view name(begin, static_cast<std::size_t>(end - begin));
        m_path.setName(name);
        m_value = &*member;
        onMember(name);
    }
    m_value = object;
    m_path.leave();
}

template <class OnElement>
void ValueSource::readArray(const OnElement& onElement)
{
    const Json::Value* const array = m_value;
    m_path.enter();
    for (Json::ArrayIndex i = 0; i < array->size(); ++i) {
        m_path.setIndex(i);
        m_value = &(*array)[i];
        onElement();
    }
    m_value = array;
    m_path.leave();
}

} // namespace projectfile::detail
