#include "reading/KeywordCard.h"

#include "reading/KeywordNames.h"
#include "reading/TextOfDeck.h"
#include "texts/ReadingTexts.h"
#include "vxDecks/DeckReading.h"
#include "vxMaterial/json/Utf8.h"

#include <algorithm>

namespace vxDecks {

namespace {

/// Returns the text up to the next comma that is not in quotation marks, and removes it from `rest` with its comma.
std::string_view takeField(std::string_view& rest)
{
    bool isQuoted = false;
    std::size_t end = 0;
    for (; end < rest.size() && (isQuoted || rest[end] != ','); ++end)
        isQuoted = isQuoted != (rest[end] == '"');
    const std::string_view field = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return trimmed(field);
}

std::string_view withoutQuotes(std::string_view text)
{
    const bool isQuoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return isQuoted ? trimmed(text.substr(1, text.size() - 2)) : text;
}

std::optional<double> readField(KeywordCard& card, std::string_view field, std::size_t line)
{
    if (field.empty())
        return std::nullopt;
    if (field.front() == '<') {
        card.hasParametersAsNumbers = true;
        return std::nullopt;
    }
    const auto number = readFortranNumber(field);
    if (!number)
        throw DeckError(makeMessage(ReadText::BadNumber, {vxjson::shortened(toUtf8(field))}), line);
    return number;
}

} // namespace

KeywordParameters parametersOf(std::string_view keywordLine)
{
    KeywordParameters parameters;
    takeField(keywordLine);
    while (!keywordLine.empty()) {
        const std::string_view field = takeField(keywordLine);
        const std::size_t equals = std::min(field.find('='), field.size());
        const std::string name = foldedKeyword(field.substr(0, equals));
        if (!name.empty())
            parameters[name] = withoutQuotes(trimmed(field.substr(std::min(equals + 1, field.size()))));
    }
    return parameters;
}

std::string KeywordCard::word(const char* parameter) const
{
    const auto found = parameters.find(parameter);
    return found == parameters.end() ? std::string() : foldedKeyword(found->second);
}

std::string addRow(KeywordCard& card, std::string_view line, std::size_t number)
{
    if (card.rows.size() == mostRows)
        throw DeckError(makeMessage(ReadText::TooManyLines, {card.name, std::to_string(mostRows)}), number);
    std::string longField;
    KeywordCard::Row row;
    while (!line.empty()) {
        const std::string_view field = takeField(line);
        const auto value = readField(card, field, number);
        if (row.size() < mostFields)
            row.push_back(value);
        else if (value)
            row.back() = value;
        if (field.size() > readCharacters && value && longField.empty())
            longField = field;
    }
    while (!row.empty() && !row.back())
        row.pop_back();
    row.shrink_to_fit();
    card.rows.push_back(std::move(row));
    return longField;
}

} // namespace vxDecks
