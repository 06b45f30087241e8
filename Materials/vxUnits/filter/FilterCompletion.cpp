#include "vxUnits/FilterCompletion.h"

#include "filter/FilterParser.h"
#include "filter/FilterTokens.h"
#include "filter/FoldedLabel.h"
#include "filter/QuantityNames.h"
#include "units/Reader.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <initializer_list>
#include <optional>

namespace vxUnits {

namespace {

using Kind = FilterToken::Kind;
using Completions = std::vector<Completion>;

/// Units that engineers write and that are not in the lists of units: with prefixes, or products.
constexpr const char* usualUnits[] = {"GPa",
                                      "MPa",
                                      "kPa",
                                      "Pa",
                                      "N/mm^2",
                                      "psi",
                                      "ksi",
                                      "1/MPa",
                                      "1/GPa",
                                      "g/cm^3",
                                      "kg/m^3",
                                      "t/mm^3",
                                      "lb/in^3",
                                      "lb/ft^3",
                                      "km/s",
                                      "mm/s",
                                      "mPa s",
                                      "kJ/(kg K)",
                                      "J/(kg K)",
                                      "W/(m K)",
                                      "W/(cm K)",
                                      "mW/(m K)",
                                      "MS/m",
                                      "S/m",
                                      "S/cm",
                                      "Ohm m",
                                      "mm^2/s",
                                      "cSt",
                                      "MRayl",
                                      "ms",
                                      "us",
                                      "MJ/(m^3 K)",
                                      "Btu/(lb degF)",
                                      "Btu/(h ft degF)"};

void addUnit(std::vector<Unit>& units, const Unit& unit)
{
    const bool isKnown =
        std::any_of(units.begin(), units.end(), [&unit](const Unit& one) { return one.text() == unit.text(); });
    if (!isKnown && unit.text() != "1")
        units.push_back(unit);
}

/// Returns the units that are offered, of all dimensions.
const std::vector<Unit>& offeredUnits()
{
    static const std::vector<Unit> units = [] {
        std::vector<Unit> offered;
        for (const char* const text : usualUnits)
            if (const auto unit = Unit::parse(text))
                addUnit(offered, *unit);
        for (const UnitSystem& system : UnitSystem::builtIn()) {
            for (const Quantity& quantity : quantities())
                if (const auto unit = unitOfQuantity(quantity.id, system))
                    addUnit(offered, *unit);
            for (const DerivedQuantity& derived : derivedQuantities())
                addUnit(offered, system.unitOf(derived.dimension));
        }
        for (const Unit& unit : builtInUnits())
            addUnit(offered, unit);
        return offered;
    }();
    return units;
}

bool begins(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

/// Returns the length of the decimal number at the start of a text.
std::size_t numberLength(std::string_view text)
{
    Reader reader(text);
    reader.takeWhile([](char c) { return isDigit(c) || c == '.' || c == '+' || c == '-'; });
    const char sign = reader.peek(1);
    const bool hasExponent = (reader.peek() == 'e' || reader.peek() == 'E') &&
                             (isDigit(sign) || ((sign == '-' || sign == '+') && isDigit(reader.peek(2))));
    if (hasExponent) {
        reader.skip(2);
        reader.takeWhile(isDigit);
    }
    return reader.position();
}

Dimension dimensionOfQuantity(const FilterQuantity& quantity)
{
    return quantity.derived != nullptr ? quantity.derived->dimension : findQuantity(quantity.id)->dimension;
}

class Completer
{
public:
    Completer(std::string_view text, const FilterNames& names)
        : m_text(text), m_names(names), m_tokens(splitFilter(text))
    {
        m_end = m_tokens.size() - 1;
        m_isTyping = m_end > 0 && m_tokens[m_end - 1].end == m_text.size();
        // A keyword that is being typed may become a longer word.
        if (m_isTyping && m_tokens[m_end - 1].isKeyword())
            m_tokens[m_end - 1].kind = Kind::Word;
    }

    Completions complete()
    {
        if (m_end > 0 && m_tokens[m_end - 1].kind == Kind::UnclosedQuote)
            return {};
        if (const auto comparison = findComparison())
            completeValue(*comparison);
        else
            completeCondition();
        return std::move(m_all);
    }

private:
    std::size_t firstOfWords(std::size_t last) const
    {
        std::size_t first = last;
        while (first > 0 && m_tokens[first - 1].kind == Kind::Word)
            --first;
        return first;
    }

    /// Returns the comparison whose value the cursor is in.
    std::optional<std::size_t> findComparison() const
    {
        std::size_t closed = 0;
        for (std::size_t i = m_end; i > 0; --i) {
            const Kind kind = m_tokens[i - 1].kind;
            if (kind == Kind::Comparison)
                return closed == 0 ? std::optional<std::size_t>(i - 1) : std::nullopt;
            if (kind == Kind::Close)
                ++closed;
            else if (kind == Kind::Open && closed > 0)
                --closed;
            else if (kind != Kind::Word && kind != Kind::Open)
                return std::nullopt;
        }
        return std::nullopt;
    }

    void add(std::size_t begin, std::string text, CompletionKind kind, std::string meaning = {})
    {
        if (m_text.substr(begin) != text)
            m_all.push_back({begin, m_text.size() - begin, std::move(text), kind, std::move(meaning)});
    }

    void addKeywords(std::size_t begin, std::initializer_list<const char*> keywords)
    {
        const std::string typed = foldName(m_text.substr(begin));
        for (const char* const keyword : keywords)
            if (begins(keyword, typed))
                add(begin, keyword, CompletionKind::Keyword);
    }

    // --- Values ---

    void completeValue(std::size_t comparison)
    {
        const NamedWords named = quantityAtEnd(m_names, m_text, m_tokens, firstOfWords(comparison), comparison);
        if (named.count == 0 || (comparison + 1 == m_end && m_isTyping))
            return;
        const std::size_t begin = comparison + 1 < m_end ? m_tokens[comparison + 1].begin : m_text.size();
        const bool isWord =
            named.quantity.derived == nullptr && findQuantity(named.quantity.id)->form == QuantityForm::Word;
        if (isWord)
            completeWord(named.quantity, begin);
        else if (begin < m_text.size())
            completeNumber(named.quantity, begin);
    }

    void completeWord(const FilterQuantity& quantity, std::size_t begin)
    {
        const std::string typed = foldName(m_text.substr(begin));
        for (const std::string& word : vxMat::getAllowedWords(quantity.id)) {
            const std::string folded = foldName(word);
            if (folded == typed && !m_isTyping)
                addKeywords(m_text.size(), {"and", "or"});
            else if (folded != typed && begins(folded, typed))
                add(begin, word, CompletionKind::Word);
        }
    }

    void completeNumber(const FilterQuantity& quantity, std::size_t begin)
    {
        const std::size_t range = m_text.rfind("..");
        if (range != std::string_view::npos && range >= begin)
            begin = std::min(m_text.find_first_not_of(' ', range + 2), m_text.size());
        const std::size_t number = numberLength(m_text.substr(begin));
        if (number == 0 || (begin + number == m_text.size() && m_isTyping))
            return;
        const std::size_t unit = std::min(m_text.find_first_not_of(' ', begin + number), m_text.size());
        addUnits(quantity, unit);
        const std::size_t word = m_isTyping ? m_tokens[m_end - 1].begin : m_text.size();
        if (word >= unit && isUnit(quantity, m_text.substr(unit, word - unit)))
            addKeywords(word, {"and", "or"});
    }

    /// A value without a unit is complete too.
    static bool isUnit(const FilterQuantity& quantity, std::string_view text)
    {
        text = text.substr(0, text.find_last_not_of(' ') + 1);
        if (text.empty())
            return true;
        constexpr std::size_t longest = 60;
        const auto unit = text.size() <= longest ? Unit::parse(text) : Result<Unit>(Failure());
        return unit && unit->dimension() == dimensionOfQuantity(quantity);
    }

    /// Units that begin with the typed text in another case are less likely.
    void addUnits(const FilterQuantity& quantity, std::size_t begin)
    {
        const std::string_view typed = m_text.substr(begin);
        const Dimension dimension = dimensionOfQuantity(quantity);
        if (dimension.isNone() || (!typed.empty() && isUnit(quantity, typed) && !m_isTyping))
            return;
        const std::string folded = foldLabel(typed);
        for (const bool isExact : {true, false}) {
            for (const Unit& unit : offeredUnits()) {
                const bool fits = unit.dimension() == dimension && begins(foldLabel(unit.text()), folded);
                if (fits && begins(unit.text(), typed) == isExact)
                    add(begin, unit.text(), CompletionKind::Unit);
            }
        }
    }

    // --- Conditions ---

    void completeCondition()
    {
        const std::size_t first = firstOfWords(m_end);
        const bool isAfterHas = first > 0 && m_tokens[first - 1].kind == Kind::Has;
        if (first == m_end) {
            const bool isExpected = first > 0 && m_tokens[first - 1].kind >= Kind::Open &&
                                    m_tokens[first - 1].kind != Kind::Close && !m_isTyping;
            if (isExpected)
                addQuantities(m_text.size());
            if (first > 0 && m_tokens[first - 1].kind == Kind::Close && !m_isTyping)
                addKeywords(m_text.size(), {"and", "or"});
            return;
        }
        if (const RangeWords range = findRange(m_names, m_text, m_tokens, first, m_end); range.value != 0)
            return completeNumber(range.quantity, m_tokens[range.value].begin);
        const NamedWords named = quantityAtEnd(m_names, m_text, m_tokens, first, m_end);
        if (named.count > 0 && !m_isTyping)
            addAfterQuantity(named.quantity, isAfterHas);
        for (std::size_t count = std::min(m_end - first, m_names.longest()); count > 0 && m_all.empty(); --count)
            addQuantities(m_tokens[m_end - count].begin);
        if (!m_isTyping || isAfterHas)
            return;
        const std::size_t word = m_tokens[m_end - 1].begin;
        if (m_end > 1 && (first + 1 < m_end || m_tokens[first - 1].kind == Kind::Close))
            addKeywords(word, {"and", "or"});
        addKeywords(word, {"not", "has"});
    }

    void addAfterQuantity(const FilterQuantity& quantity, bool isAfterHas)
    {
        if (isAfterHas)
            return addKeywords(m_text.size(), {"and", "or"});
        const QuantityForm form = quantity.derived != nullptr ? QuantityForm::Number : findQuantity(quantity.id)->form;
        if (form == QuantityForm::Switch)
            return;
        for (const Comparison comparison : {Comparison::Less, Comparison::LessOrEqual, Comparison::Greater,
                                            Comparison::GreaterOrEqual, Comparison::Equal, Comparison::Unequal})
        {
            const bool isEquality = comparison == Comparison::Equal || comparison == Comparison::Unequal;
            if (isEquality || form != QuantityForm::Word)
                add(m_text.size(), spellingOf(comparison), CompletionKind::Comparison);
        }
    }

    /// Offers each quantity once: by its name, by a symbol, or by a later word of its name.
    void addQuantities(std::size_t begin)
    {
        constexpr std::size_t fewestOfLaterWord = 3;
        std::string typed = foldName(m_text.substr(begin));
        if (!m_isTyping && !typed.empty())
            typed += ' ';
        std::vector<FilterQuantity> offered;
        const auto offer = [&](const QuantityName& name) {
            if (std::find(offered.begin(), offered.end(), name.quantity) != offered.end())
                return;
            offered.push_back(name.quantity);
            add(begin, name.text, CompletionKind::Quantity, name.isSymbol ? m_names.nameOf(name.quantity) : "");
        };
        for (const auto* const names : {&m_names.added(), &englishNames()})
            for (const QuantityName& name : *names)
                if (!name.isSymbol && begins(name.folded, typed))
                    offer(name);
        for (const QuantityName& name : englishNames())
            if (name.isSymbol && !typed.empty() && !isDigit(name.text.front()) && begins(name.folded, typed))
                offer(name);
        for (const auto* const names : {&m_names.added(), &englishNames()})
            for (const QuantityName& name : *names)
                if (!name.isSymbol && typed.size() >= fewestOfLaterWord &&
                    name.folded.find(" " + typed) != std::string::npos)
                    offer(name);
    }

    std::string_view m_text; ///< up to the cursor
    QuantityNames m_names;
    std::vector<FilterToken> m_tokens;
    std::size_t m_end; ///< the token End
    bool m_isTyping;   ///< whether the cursor touches the last token
    Completions m_all;
};

} // namespace

std::vector<Completion> completionsFor(std::string_view text, std::size_t cursor, const FilterNames& names)
{
    return Completer(text.substr(0, cursor), names).complete();
}

} // namespace vxUnits
