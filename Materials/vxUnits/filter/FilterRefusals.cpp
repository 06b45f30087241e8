// What a filter expression that cannot be read is refused for, and what is suggested in its place.

#include "filter/FilterParser.h"
#include "units/Texts.h"

#include <algorithm>

namespace vxUnits {

/// Suggests the comparisons of "1 GPa < E < 5 GPa" one after the other.
bool FilterParser::refuseValueFirst(std::size_t first, std::size_t last)
{
    const auto endOfWords = [this](std::size_t at) {
        while (m_tokens[at].kind == FilterToken::Kind::Word)
            ++at;
        return at;
    };
    const std::size_t afterSign = m_next + 1;
    const NamedWords named = quantityAtStart(m_names, m_text, m_tokens, afterSign, endOfWords(afterSign));
    const Part value{m_tokens[first].begin, m_tokens[last - 1].end};
    std::size_t end = afterSign + named.count;
    std::string suggestion;
    if (named.count > 0) {
        const std::string name = m_names.nameOf(named.quantity);
        suggestion = name + " " + spellingOf(mirrored(token().comparison)) + " " + excerpt(textOf(value));
        const std::size_t lastOfSecond =
            m_tokens[end].kind == FilterToken::Kind::Comparison ? endOfWords(end + 1) : end;
        if (lastOfSecond > end + 1) {
            const Part second{m_tokens[end + 1].begin, m_tokens[lastOfSecond - 1].end};
            suggestion.append(" and ").append(name).append(" ").append(spellingOf(m_tokens[end].comparison));
            suggestion.append(" ").append(excerpt(textOf(second)));
            end = lastOfSecond;
        }
    }
    return fail({value.begin, m_tokens[end - 1].end},
                makeFailure(FaultCode::MalformedFilter, FilterText::QuantityFirst, {}, suggestion));
}

bool FilterParser::refuseComparison(std::size_t first, std::size_t last)
{
    if (beginsNumber(m_tokens[first].text))
        return refuseValueFirst(first, last);
    const std::size_t count = std::min(last - first, m_names.longest());
    const FilterToken& lastWord = m_tokens[last - 1];
    for (std::size_t words = count; words > 0; --words) {
        const Part part{m_tokens[last - words].begin, lastWord.end};
        const std::string nearest = m_names.nearest(textOf(part));
        if (!nearest.empty())
            return fail(part, makeFailure(FaultCode::UnknownQuantity, FilterText::UnknownQuantity,
                                          {excerpt(textOf(part))}, nearest));
    }
    return fail(partOf(lastWord),
                makeFailure(FaultCode::UnknownQuantity, FilterText::UnknownQuantity, {excerpt(lastWord.text)}));
}

/// Suggests the keyword before the quantity of the second comparison: "E > 1 GPa and rho" for "E > 1 GPa und rho".
bool FilterParser::refuseSecondComparison(std::size_t first)
{
    const auto failure = [this](const std::string& suggestion) {
        return makeFailure(FaultCode::MalformedFilter, FilterText::TwoComparisons, {std::string(token().text)},
                           suggestion);
    };
    const std::size_t firstOfName = m_next - quantityAtEnd(m_names, m_text, m_tokens, first, m_next).count;
    const char* const keyword = firstOfName > first ? keywordOfWord(m_tokens[firstOfName - 1].text) : nullptr;
    const std::size_t endOfValue = firstOfName - (keyword != nullptr ? 1 : 0);
    if (firstOfName == m_next || endOfValue <= first)
        return fail(partOf(token()), failure({}));
    std::string_view condition = textOf({m_beginOfCondition, m_tokens[endOfValue - 1].end});
    condition = condition.substr(0, condition.find_last_not_of(",;&|") + 1);
    const Part name{m_tokens[firstOfName].begin, m_tokens[m_next - 1].end};
    // The suggestion replaces the first condition and the name.
    return fail(
        {m_beginOfCondition, name.end},
        failure(excerpt(condition) + " " + (keyword != nullptr ? keyword : "and") + " " + excerpt(textOf(name))));
}

/// Suggests "and" before the words behind a value if the unit is not like a known one, or the keyword that one of them means.
bool FilterParser::refuseValue(const FilterQuantity& quantity, Part value, Failure failure)
{
    if (failure.code != FaultCode::UnknownUnit || !failure.suggestion.empty())
        return fail(value, std::move(failure));
    constexpr std::size_t longestUnitStart = 3; // a user who has typed "100 G" has not finished
    constexpr std::size_t mostWords = 8;        // of a value that can be read; so that long texts take linear time
    const auto first = static_cast<std::size_t>(
        std::lower_bound(m_tokens.begin(), m_tokens.end(), value.begin,
                         [](const FilterToken& token, std::size_t place) { return token.begin < place; }) -
        m_tokens.begin());
    for (std::size_t last = std::min(first + mostWords, m_next - 1); last > first; --last) {
        const Part before{value.begin, m_tokens[last - 1].end};
        const Part rest{m_tokens[last].begin, value.end};
        const char* const keyword = keywordOfWord(m_tokens[last].text);
        const bool hasUnit = textOf(before).find_first_not_of("0123456789.+-eE") != std::string_view::npos;
        const bool mayBeUnit = !hasUnit && keyword == nullptr && m_tokens[last].text.size() <= longestUnitStart;
        if (m_tokens[last].kind != FilterToken::Kind::Word || mayBeUnit || !readOne(quantity, textOf(before)))
            continue;
        // The suggestion replaces the whole condition.
        const std::string next =
            keyword == nullptr
                ? "and " + excerpt(textOf(rest))
                : keyword + excerpt(textOf({m_tokens[last].end, std::max(m_tokens[last].end, value.end)}));
        return fail({m_beginOfCondition, value.end},
                    makeFailure(FaultCode::UnknownUnit, FilterText::UnitOrCondition, {excerpt(textOf(rest))},
                                excerpt(textOf({m_beginOfCondition, before.end})) + " " + next));
    }
    return fail(value, std::move(failure));
}

} // namespace vxUnits
