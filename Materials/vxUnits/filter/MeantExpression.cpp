#include "filter/MeantExpression.h"

#include "filter/FilterParser.h"
#include "units/Reader.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <vector>

namespace vxUnits {

namespace {

using Kind = FilterToken::Kind;

/// A sign or word that users write for a comparison, and its spelling in filters.
struct Spelling
{
    const char* typed;
    const char* meant;
};
constexpr Spelling comparisons[] = {
    {"~", "="},      {":", "="},     {"\xE2\x89\x88", "="}, {"is", "="},    {"equals", "="}, {"about", "="},
    {"around", "="}, {"above", ">"}, {"over", ">"},         {"below", "<"}, {"under", "<"},  {"..", "<="},
};
constexpr const char* rangeStarts[] = {"between", "from"};
constexpr const char* rangeSigns[] = {"to", "-", "\xE2\x80\x93"};

template <std::size_t count>
const char* meaningOf(const Spelling (&spellings)[count], std::string_view typed)
{
    for (const Spelling& one : spellings)
        if (typed == one.typed)
            return one.meant;
    return nullptr;
}

template <std::size_t count>
bool isOneOf(const char* const (&words)[count], std::string_view typed)
{
    return std::any_of(std::begin(words), std::end(words), [typed](const char* word) { return typed == word; });
}

bool hasLetter(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return !isDigit(c) && c != '.' && c != '-' && c != '+'; });
}

/// Finds one part of an expression that is probably meant as a condition, and writes the expression with it.
class Mending
{
public:
    Mending(std::string_view text, const ReadingContext& context, const QuantityNames& names)
        : m_text(text), m_context(context), m_names(names), m_parser(text, context, names)
    {
        m_isReadable = static_cast<bool>(m_parser.read());
        const auto& tokens = m_parser.tokens();
        m_hasComparison = std::any_of(tokens.begin(), tokens.end(),
                                      [](const FilterToken& one) { return one.kind == Kind::Comparison; });
    }

    /// Returns the expression; empty if there is no such part.
    std::string mend()
    {
        if (!m_isReadable)
            return {};
        for (const LabelWords& words : m_parser.labelWords()) {
            for (std::size_t at = words.first; at < words.last && m_mended.empty(); ++at)
                mendOperator(at);
        }
        for (const LabelWords& words : m_parser.labelWords()) {
            m_last = words.last;
            for (std::size_t at = words.first; at < words.last && m_mended.empty(); ++at)
                mendCondition(at);
        }
        return m_mended;
    }

private:
    /// Whether a number without a unit is a value, or part of a label: "A 36".
    enum class Plain
    {
        Taken,
        Refused
    };

    const FilterToken& token(std::size_t at) const { return m_parser.tokens()[at]; }
    std::string_view before(std::size_t at) const { return m_text.substr(0, token(at).begin); }
    /// Returns the text from a word on.
    std::string_view from(std::size_t at) const { return m_text.substr(token(at).begin); }
    std::string_view between(std::size_t first, std::size_t last) const
    {
        return m_text.substr(token(first).begin, token(last - 1).end - token(first).begin);
    }

    /// Takes a text if it can be read.
    bool offer(std::initializer_list<std::string_view> parts)
    {
        std::string text;
        for (const std::string_view part : parts)
            text += part;
        if (m_mended.empty() && FilterParser(text, m_context, m_names).read())
            m_mended = std::move(text);
        return !m_mended.empty();
    }

    void mendCondition(std::size_t at)
    {
        if (mendRepeatedName(at))
            return;
        for (std::size_t count = std::min(m_last - at, m_names.longest()); count > 0; --count)
            if (mendName(at, at + count))
                return;
        for (std::size_t count = std::min(m_last - at, m_names.longest()); count > 0; --count)
            if (mendMisspeltName(at, at + count))
                return;
    }

    /// Beside a comparison, "und" is more likely an operator than a part of a label.
    void mendOperator(std::size_t at)
    {
        const std::string_view word = token(at).text;
        const std::string_view behind = m_text.substr(token(at).end);
        if (const char* const meant = m_hasComparison ? keywordOfWord(word) : keywordOfSign(word))
            offer({before(at), meant, behind});
        else if (word.front() == '!')
            offer({before(at), "not ", word.substr(1), behind});
    }

    /// Mends "rho rho > 1".
    bool mendRepeatedName(std::size_t at)
    {
        std::size_t end = m_last;
        while (token(end).kind == Kind::Word)
            ++end;
        if (token(end).kind != Kind::Comparison || end == m_last)
            return false;
        const auto one = m_names.find(between(at, m_last));
        const auto other = m_names.find(between(m_last, end));
        return one && other && *one == *other && offer({before(at), from(m_last)});
    }

    /// Mends a condition that begins with the name in the words [first, last).
    bool mendName(std::size_t first, std::size_t last)
    {
        std::string_view name = between(first, last);
        const bool hasColon = token(last - 1).text.size() > 1 && name.back() == ':';
        name = name.substr(0, name.size() - (hasColon ? 1 : 0));
        const auto quantity = isDigit(name.front()) ? std::nullopt : m_names.find(name);
        if (!quantity || last == m_last)
            return false;
        const std::string start = std::string(before(first)).append(name) + " ";
        const std::string_view joint = token(last).text;
        const char* const comparison = meaningOf(comparisons, joint);
        if (isOneOf(rangeStarts, joint) && last + 1 < m_last)
            return mendRange(start, last + 1);
        if (comparison != nullptr && last + 1 < m_last)
            return mendValue(start + comparison + " ", last + 1, Plain::Taken);
        if (hasColon || !beginsNumber(joint))
            return mendValue(start + "= ", last, Plain::Taken);
        return mendRange(start, last) || mendValue(start + "= ", last, name.size() > 1 ? Plain::Taken : Plain::Refused);
    }

    /// Mends "Densty 1..2" and "Densty 5 g/cm3".
    bool mendMisspeltName(std::size_t first, std::size_t last)
    {
        if (last == m_last || !beginsNumber(token(last).text) || beginsNumber(token(first).text))
            return false;
        const std::string name = m_names.nearest(between(first, last));
        const std::string_view value = between(last, m_last);
        if (name.empty())
            return false;
        const std::string start = std::string(before(first)).append(name);
        if (value.find("..") != std::string_view::npos)
            return offer({start, " ", from(last)});
        return hasLetter(value) && mendValue(start + " = ", last, Plain::Taken);
    }

    /// Mends "1 to 2 GPa" and "1 and 2 GPa".
    bool mendRange(const std::string& start, std::size_t first)
    {
        if (!beginsNumber(token(first).text))
            return false;
        for (std::size_t at = first + 1; at + 1 < m_last; ++at)
            if (isOneOf(rangeSigns, token(at).text))
                return offer({start, between(first, at), "..", from(at + 1)});
        const bool isBetween = token(m_last).kind == Kind::And && beginsNumber(token(m_last + 1).text) &&
                               token(first - 1).text == rangeStarts[0];
        return isBetween && offer({start, between(first, m_last), "..", from(m_last + 1)});
    }

    /// Mends a value that begins at a word; the words behind it are the next condition.
    bool mendValue(const std::string& start, std::size_t first, Plain plain)
    {
        constexpr std::size_t mostWords = 6;
        for (std::size_t last = std::min(m_last, first + mostWords); last > first; --last) {
            if (plain == Plain::Refused && !hasLetter(between(first, last)))
                return false;
            const std::string_view behind = m_text.substr(token(last - 1).end);
            if ((last == m_last && offer({start, from(first)})) || offer({start, between(first, last), " and", behind}))
                return true;
        }
        return false;
    }

    std::string_view m_text;
    const ReadingContext& m_context;
    const QuantityNames& m_names;
    FilterParser m_parser;
    bool m_isReadable = false;
    bool m_hasComparison = false;
    std::size_t m_last = 0; ///< end of the words that are mended
    std::string m_mended;
};

} // namespace

std::string meantExpression(std::string_view text, const ReadingContext& context, const QuantityNames& names)
{
    constexpr std::size_t longest = 200;
    constexpr int mostMends = 4;
    std::string meant;
    for (int i = 0; i < mostMends && text.size() <= longest; ++i) {
        std::string mended = Mending(text, context, names).mend();
        if (mended.empty())
            break;
        meant = std::move(mended);
        text = meant;
    }
    return meant;
}

} // namespace vxUnits
