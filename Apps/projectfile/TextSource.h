#pragma once

#include "JsonPath.h"

#include <json/value.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace projectfile::detail {

enum class JsonKind
{
    Null,
    Boolean,
    Number,
    Text,
    Array,
    Object,
};

/// Reads a JSON text value by value, from its beginning to its end, straight into what the values are for. It takes
/// what the standard calls JSON and no more, besides a byte order mark: no comments, no control characters in texts,
/// no member twice, nothing but UTF-8, no number that a double cannot hold, no nesting of more than 1000 levels.
///
/// The JSON library is not used here: it takes longer for its tree of values alone than all of this takes, reads -0 as
/// 0 and "-" as a number, and depends on the global locale.
///
/// All functions throw ProjectFileError, with line and column, where the text is not JSON.
class TextSource
{
public:
    /// The text must live as long as the source.
    explicit TextSource(std::string_view text);

    /// What the value ahead is.
    JsonKind kind();

    // Each reads the value ahead, of whose kind the caller has made sure.
    bool readBoolean();
    double readNumber();
    std::optional<std::int64_t> readWhole(); ///< absent when the number is not whole or has more than 64 bits
    void readText(std::string& text);
    /// `onMember(name)` must read the value of the member. The name lives until then.
    template <class OnMember>
    void readObject(const OnMember& onMember);
    /// `onElement()` must read the element.
    template <class OnElement>
    void readArray(const OnElement& onElement);

    /// Reads the value ahead, whatever it is.
    Json::Value readAny();
    /// Nothing but blanks may stand behind the document.
    void readEnd();

    /// Where the value is that was looked at last: "materials[3].material.name".
    std::string path() const { return m_path.toText(); }
    /// The value whose kind was asked last, as it stands in the text, for messages.
    std::string shown() const;

private:
    void skipBlanks();
    bool take(char c);
    void expect(char c, const char* message);
    void enter();
    std::string_view readName();
    std::string_view readNumberToken();
    void readEscape(std::string& text);
    unsigned readFourHexDigits();
    unsigned readCodePoint();
    std::string_view readPlainText();
    Json::Value readAnyNumber();
    Json::Value readAnyObject();
    double toDouble(std::string_view token) const;
    [[noreturn]] void fail(std::size_t at, const std::string& message) const;

    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_valueAt = 0; ///< where the value begins whose kind was asked last
    std::string m_name;        ///< of a member, when it is not written plainly
    JsonPath m_path;
};

template <class OnMember>
void TextSource::readObject(const OnMember& onMember)
{
    enter();
    skipBlanks();
    if (!take('}')) {
        do {
            onMember(readName());
            skipBlanks();
        } while (take(','));
        expect('}', "a comma or the end of the object is missing");
    }
    m_path.leave();
}

template <class OnElement>
void TextSource::readArray(const OnElement& onElement)
{
    enter();
    skipBlanks();
    if (!take(']')) {
        std::size_t index = 0;
        do {
            m_path.setIndex(index++);
            onElement();
            skipBlanks();
        } while (take(','));
        expect(']', "a comma or the end of the array is missing");
    }
    m_path.leave();
}

} // namespace projectfile::detail
