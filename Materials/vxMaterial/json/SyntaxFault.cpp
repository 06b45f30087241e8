#include "SyntaxFault.h"

#include "vxMaterial/json/Utf8.h"

#include <algorithm>

namespace vxjson::detail {

namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view delimiters = " \t\r\n,:[]{}\"/";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Removes one of `letters` from the start of `text` if it begins with one.
bool take(std::string_view& text, std::string_view letters)
{
    if (text.empty() || letters.find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

bool takeDigits(std::string_view& text)
{
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count > 0;
}

/// Returns whether a token is a number by the grammar of JSON.
bool isJsonNumber(std::string_view token)
{
    take(token, "-");
    if (!take(token, "0") && !takeDigits(token))
        return false;
    if (take(token, ".") && !takeDigits(token))
        return false;
    if (take(token, "eE")) {
        take(token, "+-");
        if (!takeDigits(token))
            return false;
    }
    return token.empty();
}

bool looksLikeNumber(std::string_view token)
{
    return !token.empty() && std::string_view("0123456789+-.").find(token.front()) != std::string_view::npos;
}

/// Returns the word or number around a place, between the nearest delimiters.
std::string_view tokenAround(std::string_view text, std::size_t offset)
{
    const std::size_t begin = text.substr(0, offset).find_last_of(delimiters) + 1; // 0 if there is none before
    const std::size_t end = std::min(text.find_first_of(delimiters, offset), text.size());
    return text.substr(begin, end - begin);
}

const char* need(Expected expected)
{
    switch (expected) {
    case Expected::Value:
        return QT_TRANSLATE_NOOP("vxjson::JsonError", "a value is needed here");
    case Expected::MemberName:
        return QT_TRANSLATE_NOOP("vxjson::JsonError", "the name of a member, in double quotes, is needed here");
    case Expected::Colon:
        return QT_TRANSLATE_NOOP("vxjson::JsonError", "a colon is needed after the name of a member");
    case Expected::CommaOrBracket:
        return QT_TRANSLATE_NOOP("vxjson::JsonError", "a comma or ] is needed here");
    case Expected::CommaOrBrace:
        return QT_TRANSLATE_NOOP("vxjson::JsonError", "a comma or } is needed here");
    case Expected::End:
        break;
    }
    return QT_TRANSLATE_NOOP("vxjson::JsonError", "there is more text after the end of the document");
}

} // namespace

JsonError errorAt(std::string_view text, std::size_t offset, const char* reason, std::string_view shown)
{
    std::string_view before = text.substr(0, offset);
    JsonError error;
    error.line = static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1;
    before.remove_prefix(before.rfind('\n') + 1); // 0 if there is no line before
    if (before.substr(0, byteOrderMark.size()) == byteOrderMark)
        before.remove_prefix(byteOrderMark.size());
    error.column =
        static_cast<int>(std::count_if(before.begin(), before.end(), [](char byte) { return !isContinuation(byte); })) +
        1;
    error.reason = reason;
    error.shown = shortened(shown);
    return error;
}

JsonError explainSyntaxError(std::string_view text, std::size_t offset, Expected expected)
{
    if (text.find_first_not_of(blanks, offset) == std::string_view::npos && expected != Expected::End)
        return errorAt(text, offset, QT_TRANSLATE_NOOP("vxjson::JsonError", "the text ends too early"));
    if (text[offset] == '/')
        return errorAt(text, offset,
                       QT_TRANSLATE_NOOP("vxjson::JsonError", "a comment, which a file of this kind does not have"));
    const std::string_view token = tokenAround(text, offset);
    const auto begin = static_cast<std::size_t>(token.data() - text.data());
    if (looksLikeNumber(token) && !isJsonNumber(token))
        return errorAt(text, begin, QT_TRANSLATE_NOOP("vxjson::JsonError", "'%1' is not a number"), token);
    if (expected == Expected::Value && !token.empty())
        return errorAt(text, begin, QT_TRANSLATE_NOOP("vxjson::JsonError", "'%1' is not a JSON value"), token);
    return errorAt(text, offset, need(expected));
}

} // namespace vxjson::detail
