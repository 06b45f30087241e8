#include "reading/BulkTitles.h"

#include "reading/TextOfDeck.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <charconv>

namespace vxDecks {

namespace {

constexpr const char* digits = "0123456789";

bool beginsWith(std::string_view text, std::string_view beginning)
{
    return vxMat::equalIgnoringAsciiCase(text.substr(0, beginning.size()), beginning);
}

/// Removes a word at the beginning of a text and the blanks behind it, and returns whether it is there.
bool takeWord(std::string_view& text, std::string_view word)
{
    const bool isThere = beginsWith(text, word) && (text.size() == word.size() ||
                                                    text.find_first_of(" \t:=0123456789", word.size()) == word.size());
    if (isThere)
        text = trimmed(text.substr(word.size()));
    return isThere;
}

/// Removes a number at the beginning of a text and the blanks behind it.
std::optional<std::uint32_t> takeNumber(std::string_view& text)
{
    const std::size_t end = std::min(text.find_first_not_of(digits), text.size());
    const auto number = readBulkId(text.substr(0, end));
    if (number)
        text = trimmed(text.substr(end));
    return number;
}

std::optional<BulkTitle> titleOf(std::optional<std::uint32_t> number, std::string_view name)
{
    name = trimmed(name);
    return name.empty() ? std::nullopt : std::optional<BulkTitle>({number, std::string(name)});
}

/// Reads `HMNAME MAT 7"Steel" "MAT1"`.
std::optional<BulkTitle> readQuotedTitle(std::string_view text)
{
    if (!takeWord(text, "HMNAME") || !takeWord(text, "MAT"))
        return std::nullopt;
    const auto number = takeNumber(text);
    if (!number || text.substr(0, 1) != "\"")
        return std::nullopt;
    text.remove_prefix(1);
    return titleOf(number, text.substr(0, text.find('"')));
}

/// Returns the part of a list in front of its first semicolon, and removes both from the list.
std::string_view takePart(std::string_view& list)
{
    const std::size_t end = std::min(list.find(';'), list.size());
    const std::string_view part = list.substr(0, end);
    list.remove_prefix(std::min(end + 1, list.size()));
    return part;
}

/// Reads "ANSA_NAME_COMMENT;7;MAT1;Steel;NO;".
std::optional<BulkTitle> readListedTitle(std::string_view text)
{
    if (takePart(text) != "ANSA_NAME_COMMENT")
        return std::nullopt;
    const auto number = readBulkId(takePart(text));
    const bool isMaterial = beginsWith(takePart(text), "MAT");
    return number && isMaterial ? titleOf(number, takePart(text)) : std::nullopt;
}

std::string_view withoutFirstWord(std::string_view text)
{
    return trimmed(text.substr(std::min(text.find_first_of(" \t"), text.size())));
}

/// Reads "Material 7: Steel", or "Material Record : Steel".
std::optional<BulkTitle> readTitleAtBeginning(std::string_view text)
{
    if (!takeWord(text, "Material"))
        return std::nullopt;
    if (!takeWord(text, "Record"))
        takeWord(text, "Name");
    const auto number = takeNumber(text);
    if (text.empty() || (text.front() != ':' && text.front() != '='))
        return std::nullopt;
    return titleOf(number, text.substr(1));
}

/// Reads such a title behind one word at most, or behind several words if it has a number.
std::optional<BulkTitle> readPlainTitle(std::string_view text)
{
    for (int words = 0; !text.empty(); text = withoutFirstWord(text), ++words)
        if (auto title = readTitleAtBeginning(text); title && (words < 2 || title->number))
            return title;
    return std::nullopt;
}

} // namespace

std::optional<BulkTitle> readBulkTitle(std::string_view comment)
{
    comment.remove_prefix(std::min(comment.find_first_not_of("$* \t"), comment.size()));
    for (const auto read : {readQuotedTitle, readListedTitle, readPlainTitle})
        if (auto title = read(comment))
            return title;
    return std::nullopt;
}

std::optional<std::uint32_t> readBulkId(std::string_view field)
{
    std::uint32_t number = 0;
    const char* const end = field.data() + field.size();
    const auto [rest, error] = std::from_chars(field.data(), end, number);
    return error == std::errc() && rest == end && number > 0 ? std::optional<std::uint32_t>(number) : std::nullopt;
}

} // namespace vxDecks
