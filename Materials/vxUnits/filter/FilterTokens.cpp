#include "filter/FilterTokens.h"

#include "units/FoldedText.h"
#include "vxMaterial/model/NumberText.h"

#include <iterator>

namespace vxUnits {

namespace {

using Kind = FilterToken::Kind;

struct Sign
{
    std::string_view text;
    Comparison comparison;
};
/// The longer ones first.
constexpr Sign signs[] = {
    {"<=", Comparison::LessOrEqual},
    {"=<", Comparison::LessOrEqual},
    {"\xE2\x89\xA4", Comparison::LessOrEqual}, // U+2264
    {"\xE2\x89\xA6", Comparison::LessOrEqual}, // U+2266
    {">=", Comparison::GreaterOrEqual},
    {"=>", Comparison::GreaterOrEqual},
    {"\xE2\x89\xA5", Comparison::GreaterOrEqual}, // U+2265
    {"\xE2\x89\xA7", Comparison::GreaterOrEqual}, // U+2267
    {"!=", Comparison::Unequal},
    {"<>", Comparison::Unequal},
    {"\xE2\x89\xA0", Comparison::Unequal}, // U+2260
    {"==", Comparison::Equal},
    {"=", Comparison::Equal},
    {"\xEF\xBC\x9D", Comparison::Equal}, // U+FF1D
    {"<", Comparison::Less},
    {"\xEF\xBC\x9C", Comparison::Less}, // U+FF1C
    {">", Comparison::Greater},
    {"\xEF\xBC\x9E", Comparison::Greater}, // U+FF1E
};

struct Keyword
{
    const char* text;
    Kind kind;
};
constexpr Keyword keywords[] = {{"and", Kind::And}, {"or", Kind::Or}, {"not", Kind::Not}, {"has", Kind::Has}};

/// A sign or word that users write for a keyword.
struct OtherKeyword
{
    const char* typed;
    const char* meant;
};
constexpr OtherKeyword signsForKeywords[] = {{"&", "and"}, {"&&", "and"}, {"|", "or"}, {"||", "or"}, {"!", "not"}};
constexpr OtherKeyword wordsForKeywords[] = {
    {",", "and"},  {";", "and"},  {"+", "and"},    {"und", "and"}, {"oder", "or"}, {"nicht", "not"}, {"且", "and"},
    {"和", "and"}, {"与", "and"}, {"并且", "and"}, {"或", "or"},   {"或者", "or"}, {"非", "not"},    {"不", "not"},
};

template <std::size_t count>
const char* keywordIn(const OtherKeyword (&table)[count], std::string_view typed)
{
    for (const OtherKeyword& one : table)
        if (vxMat::equalIgnoringAsciiCase(typed, one.typed))
            return one.meant;
    return nullptr;
}

bool isBlank(std::uint32_t character)
{
    return character <= ' ' || character == 0x7F || character == 0xA0 || character == 0x3000 || character == 0x202F ||
           (character >= 0x2000 && character <= 0x200B);
}

bool isOpen(std::uint32_t character)
{
    return character == '(' || character == 0xFF08;
}

bool isClose(std::uint32_t character)
{
    return character == ')' || character == 0xFF09;
}

bool isQuote(std::uint32_t character)
{
    return character == '"' || character == 0x201C || character == 0x201D || character == 0x201E || character == 0xFF02;
}

const Sign* signAt(std::string_view text, std::size_t at)
{
    for (const Sign& sign : signs)
        if (text.substr(at, sign.text.size()) == sign.text)
            return &sign;
    return nullptr;
}

class Splitter
{
public:
    explicit Splitter(std::string_view text) : m_text(text) {}

    std::vector<FilterToken> split()
    {
        while (m_at < m_text.size())
            takeNext();
        add(Kind::End, m_at);
        return std::move(m_tokens);
    }

private:
    FilterToken& add(Kind kind, std::size_t end)
    {
        m_tokens.push_back({kind, m_at, end, m_text.substr(m_at, end - m_at), Comparison::Equal});
        m_at = end;
        return m_tokens.back();
    }

    void takeNext()
    {
        const CodePoint point = readCodePoint(m_text, m_at);
        const Sign* const sign = signAt(m_text, m_at);
        if (isBlank(point.value))
            m_at += point.length;
        else if (sign != nullptr)
            add(Kind::Comparison, m_at + sign->text.size()).comparison = sign->comparison;
        else if (isOpen(point.value))
            add(Kind::Open, m_at + point.length);
        else if (isClose(point.value))
            add(Kind::Close, m_at + point.length);
        else if (isQuote(point.value))
            takeQuoted(point.length);
        else
            takeWord();
    }

    void takeQuoted(std::size_t quoteLength)
    {
        const std::size_t inside = m_at + quoteLength;
        std::size_t at = inside;
        while (at < m_text.size()) {
            const CodePoint point = readCodePoint(m_text, at);
            if (isQuote(point.value)) {
                add(Kind::Quoted, at + point.length).text = m_text.substr(inside, at - inside);
                return;
            }
            at += point.length;
        }
        add(Kind::UnclosedQuote, at).text = m_text.substr(inside);
    }

    void takeWord()
    {
        std::size_t end = m_at;
        while (end < m_text.size()) {
            const CodePoint point = readCodePoint(m_text, end);
            const bool ends = isBlank(point.value) || isOpen(point.value) || isClose(point.value) ||
                              isQuote(point.value) || signAt(m_text, end) != nullptr;
            if (ends)
                break;
            end += point.length;
        }
        FilterToken& word = add(Kind::Word, end);
        for (const Keyword& keyword : keywords)
            if (vxMat::equalIgnoringAsciiCase(word.text, keyword.text))
                word.kind = keyword.kind;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    std::vector<FilterToken> m_tokens;
};

} // namespace

const char* keywordOfSign(std::string_view sign)
{
    return keywordIn(signsForKeywords, sign);
}

const char* keywordOfWord(std::string_view word)
{
    const char* const meant = keywordOfSign(word);
    return meant != nullptr ? meant : keywordIn(wordsForKeywords, word);
}

const char* spellingOf(Comparison comparison)
{
    constexpr const char* spellings[] = {"<", "<=", ">", ">=", "=", "!="};
    return spellings[static_cast<std::size_t>(comparison)];
}

Comparison mirrored(Comparison comparison)
{
    constexpr Comparison mirror[] = {Comparison::Greater,     Comparison::GreaterOrEqual, Comparison::Less,
                                     Comparison::LessOrEqual, Comparison::Equal,          Comparison::Unequal};
    return mirror[static_cast<std::size_t>(comparison)];
}

std::vector<FilterToken> splitFilter(std::string_view text)
{
    return Splitter(text).split();
}

} // namespace vxUnits
