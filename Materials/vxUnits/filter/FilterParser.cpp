#include "filter/FilterParser.h"

#include "filter/FoldedLabel.h"
#include "filter/MeantExpression.h"
#include "filter/QuantityNames.h"
#include "units/Reader.h"
#include "units/Spelling.h"
#include "units/Texts.h"
#include "units/UnitReading.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vxUnits {

namespace {

using Kind = FilterToken::Kind;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr std::string_view rangeSign = "..";

/// The numbers that are equal to a typed one.
struct Interval
{
    double lowest;
    double highest;
};

Interval around(double number)
{
    if (!std::isfinite(number))
        return {number, number};
    const double tolerance = filterTolerance * std::abs(number);
    return {number - tolerance, number + tolerance};
}

Interval accepted(Comparison comparison, double number)
{
    const Interval equal = around(number);
    switch (comparison) {
    case Comparison::Less:
        return {-infinity, std::nextafter(equal.lowest, -infinity)};
    case Comparison::LessOrEqual:
        return {-infinity, equal.highest};
    case Comparison::Greater:
        return {std::nextafter(equal.highest, infinity), infinity};
    case Comparison::GreaterOrEqual:
        return {equal.lowest, infinity};
    case Comparison::Equal:
    case Comparison::Unequal:
        break;
    }
    return equal;
}

bool isEquality(Comparison comparison)
{
    return comparison == Comparison::Equal || comparison == Comparison::Unequal;
}

QuantityForm formOf(const FilterQuantity& quantity)
{
    return quantity.derived != nullptr ? QuantityForm::Number : findQuantity(quantity.id)->form;
}

std::string joinedWords(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

/// Returns the word of a quantity that is meant by a text with few errors; empty if none is near.
std::string nearestWord(const std::vector<std::string>& words, const std::string& folded)
{
    constexpr std::size_t longest = 60;
    constexpr std::size_t lettersPerError = 3;
    std::string nearest;
    std::size_t fewest = folded.size() / lettersPerError + 1;
    for (const std::string& word : words) {
        const std::string one = foldName(word);
        const bool begins = !folded.empty() && one.compare(0, folded.size(), folded) == 0;
        const std::size_t errors = begins ? 0 : editDistance(folded.substr(0, longest), one);
        if (errors >= fewest)
            continue;
        fewest = errors;
        nearest = word;
    }
    return nearest;
}

bool isUtf8(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = readCodePoint(text, at);
        if (!point.valid)
            return false;
        at += point.length;
    }
    return true;
}

/// Returns the unit system of plain numbers.
const UnitSystem& systemOf(const ReadingContext& context)
{
    return context.plainNumbers != nullptr ? *context.plainNumbers : UnitSystem::si();
}

ReadingTarget targetOf(const DerivedQuantity& derived, const ReadingContext& context)
{
    return {UnitSystem::si().unitOf(derived.dimension),
            systemOf(context).unitOf(derived.dimension),
            TemperatureMeaning::Refused,
            derived.name,
            {}};
}

} // namespace

bool beginsNumber(std::string_view text)
{
    const std::size_t at = text.find_first_not_of("+-.");
    return at != std::string_view::npos && isDigit(text[at]);
}

NamedWords quantityAtEnd(const QuantityNames& names, std::string_view text, const std::vector<FilterToken>& tokens,
                         std::size_t first, std::size_t last)
{
    for (std::size_t count = std::min(last - first, names.longest()); count > 0; --count) {
        const std::size_t begin = tokens[last - count].begin;
        if (const auto quantity = names.find(text.substr(begin, tokens[last - 1].end - begin)))
            return {count, *quantity};
    }
    return {};
}

NamedWords quantityAtStart(const QuantityNames& names, std::string_view text, const std::vector<FilterToken>& tokens,
                           std::size_t first, std::size_t last)
{
    for (std::size_t count = std::min(last - first, names.longest()); count > 0; --count) {
        const std::size_t begin = tokens[first].begin;
        if (const auto quantity = names.find(text.substr(begin, tokens[first + count - 1].end - begin)))
            return {count, *quantity};
    }
    return {};
}

RangeWords findRange(const QuantityNames& names, std::string_view text, const std::vector<FilterToken>& tokens,
                     std::size_t first, std::size_t last)
{
    if (first == last || tokens[first].kind != Kind::Word)
        return {};
    const std::string_view words = text.substr(tokens[first].begin, tokens[last - 1].end - tokens[first].begin);
    if (words.find(rangeSign) == std::string_view::npos)
        return {};
    for (std::size_t i = first + 1; i < last; ++i) {
        if (!beginsNumber(tokens[i].text))
            continue;
        const NamedWords named = quantityAtEnd(names, text, tokens, first, i);
        if (named.count > 0)
            return {i - named.count, i, named.quantity};
    }
    return {};
}

FilterParser::FilterParser(std::string_view text, const ReadingContext& context, const QuantityNames& names)
    : m_text(text), m_context(context), m_names(names)
{}

FilterReading FilterParser::read()
{
    if (!isUtf8(m_text)) {
        fail({0, m_text.size()}, makeFailure(FaultCode::BadEncoding, Text::BadEncoding));
        return std::move(m_reading);
    }
    m_tokens = splitFilter(m_text);
    bool isReadable = true;
    while (isReadable && token().kind != Kind::End)
        isReadable = readNext();
    if (isReadable && finish())
        m_reading.filter = std::move(m_filter);
    return std::move(m_reading);
}

bool FilterParser::readNext()
{
    const FilterToken& next = token();
    switch (next.kind) {
    case Kind::Word:
    case Kind::Quoted:
        return readWords();
    case Kind::Has:
        return readHas();
    case Kind::And:
    case Kind::Or:
    case Kind::Not:
        return readKeyword(next);
    case Kind::Open:
        ++m_next;
        return beginOperand(partOf(next)) && push(Kind::Open, partOf(next));
    case Kind::Close:
        ++m_next;
        return close(next);
    case Kind::Comparison:
        return fail(partOf(next), makeFailure(FaultCode::MalformedFilter, FilterText::QuantityMissingBefore,
                                              {std::string(next.text)}));
    case Kind::UnclosedQuote:
        return fail(partOf(next), makeFailure(FaultCode::MalformedFilter, FilterText::QuoteNotClosed, {},
                                              excerpt(textOf(partOf(next))) + "\""));
    case Kind::End:
        break;
    }
    return true;
}

bool FilterParser::readKeyword(const FilterToken& next)
{
    ++m_next;
    if (next.kind == Kind::Not)
        return beginOperand(partOf(next)) && push(Kind::Not, partOf(next));
    return combine(next.kind, partOf(next));
}

bool FilterParser::readHas()
{
    const FilterToken& has = token();
    ++m_next;
    const std::size_t first = m_next;
    while (token().kind == Kind::Word || (token().kind == Kind::Quoted && m_next == first))
        ++m_next;
    if (first == m_next)
        return fail(partOf(has),
                    makeFailure(FaultCode::MalformedFilter, FilterText::QuantityMissingAfter, {std::string(has.text)}));
    NamedWords named = quantityAtStart(m_names, m_text, m_tokens, first, m_next);
    if (m_tokens[first].kind == Kind::Quoted)
        if (const auto quantity = m_names.find(m_tokens[first].text))
            named = {1, *quantity};
    if (named.count == 0) {
        const Part part{m_tokens[first].begin, m_tokens[m_next - 1].end};
        return fail(part, makeFailure(FaultCode::UnknownQuantity, FilterText::UnknownQuantity, {excerpt(textOf(part))},
                                      m_names.nearest(textOf(part))));
    }
    m_next = first + named.count;
    if (!beginOperand(partOf(has)))
        return false;
    addHasTest(named.quantity);
    return true;
}

/// Reads words up to a comparison, keyword, quote or parenthesis. The last of them may be the name of a quantity.
bool FilterParser::readWords()
{
    const std::size_t first = m_next;
    if (token().kind == Kind::Quoted)
        ++m_next;
    else
        while (token().kind == Kind::Word)
            ++m_next;
    const std::size_t last = m_next;
    if (!beginOperand(partOf(m_tokens[first])))
        return false;
    if (token().kind != Kind::Comparison)
        return readRangeOrLabel(first, last);
    NamedWords named = quantityAtEnd(m_names, m_text, m_tokens, first, last);
    if (m_tokens[first].kind == Kind::Quoted)
        if (const auto quantity = m_names.find(m_tokens[first].text))
            named = {1, *quantity};
    if (named.count == 0)
        return refuseComparison(first, last);
    const std::size_t firstOfName = last - named.count;
    if (findRange(m_names, m_text, m_tokens, first, firstOfName).value != 0)
        return fail(partOf(token()),
                    makeFailure(FaultCode::MalformedFilter, FilterText::TwoComparisons, {std::string(token().text)}));
    if (firstOfName > first) {
        addLabelTests(first, firstOfName);
        if (!beginOperand(partOf(m_tokens[firstOfName])))
            return false;
    }
    return readComparison(firstOfName, named.quantity, token());
}

bool FilterParser::readRangeOrLabel(std::size_t first, std::size_t last)
{
    const RangeWords range = findRange(m_names, m_text, m_tokens, first, last);
    if (range.value == 0) {
        addLabelTests(first, last);
        return true;
    }
    addLabelTests(first, range.name);
    m_next = range.value;
    m_beginOfCondition = m_tokens[range.name].begin;
    Part value{};
    return beginOperand(partOf(m_tokens[range.name])) && takeValue(m_names.nameOf(range.quantity), value) &&
           addNumberTest(range.quantity, Comparison::Equal, value);
}

bool FilterParser::readComparison(std::size_t firstWord, const FilterQuantity& quantity, const FilterToken& sign)
{
    ++m_next;
    const QuantityForm form = formOf(quantity);
    const Part comparison{m_tokens[firstWord].begin, sign.end};
    m_beginOfCondition = comparison.begin;
    if (form == QuantityForm::Switch)
        return fail(comparison, makeFailure(FaultCode::TakesNoNumber, FilterText::SwitchHasNoValue,
                                            {m_names.nameOf(quantity)}, "has " + m_names.nameOf(quantity)));
    if (form == QuantityForm::Word && !isEquality(sign.comparison))
        return fail(partOf(sign),
                    makeFailure(FaultCode::TakesNoNumber, FilterText::OnlyEqual, {m_names.nameOf(quantity)}, "="));
    Part value{};
    if (!takeValue(std::string(sign.text), value))
        return false;
    return form == QuantityForm::Word ? addWordTest(quantity, sign.comparison, value)
                                      : addNumberTest(quantity, sign.comparison, value);
}

/// Takes the tokens up to a keyword, the end, or the parenthesis that closes the condition. Parentheses of units belong to
/// the value.
bool FilterParser::takeValue(const std::string& after, Part& value)
{
    const std::size_t first = m_next;
    if (token().kind == Kind::Quoted) {
        const FilterToken& quoted = token();
        const auto begin = static_cast<std::size_t>(quoted.text.data() - m_text.data());
        value = {begin, begin + quoted.text.size()};
        ++m_next;
        return true;
    }
    std::size_t open = 0;
    while (token().kind == Kind::Word || token().kind == Kind::Open || (token().kind == Kind::Close && open > 0)) {
        open += token().kind == Kind::Open ? 1 : 0;
        open -= token().kind == Kind::Close ? 1 : 0;
        ++m_next;
    }
    if (first == m_next) {
        const std::size_t place = m_tokens[first - 1].end;
        return fail({place, place},
                    makeFailure(FaultCode::MalformedFilter, FilterText::ValueMissing, {excerpt(after)}));
    }
    if (token().kind == Kind::Comparison)
        return refuseSecondComparison(first);
    value = {m_tokens[first].begin, m_tokens[m_next - 1].end};
    return true;
}

Result<double> FilterParser::readOne(const FilterQuantity& quantity, std::string_view text) const
{
    const Result<Reading> reading = quantity.derived != nullptr ? readFor(targetOf(*quantity.derived, m_context), text)
                                                                : readQuantity(quantity.id, text, m_context);
    if (!reading)
        return reading.failure();
    return reading->value;
}

Result<std::vector<double>> FilterParser::readNumbers(const FilterQuantity& quantity, const std::string& list) const
{
    Result<ListReading> reading = quantity.derived != nullptr
                                      ? readListFor(targetOf(*quantity.derived, m_context), list)
                                      : readQuantityList(quantity.id, list, m_context);
    if (!reading)
        return reading.failure();
    return (*std::move(reading)).values;
}

bool FilterParser::addNumberTest(const FilterQuantity& quantity, Comparison comparison, Part value)
{
    const bool isCreepFactor = quantity.id == vxMat::PropertyId::CreepModulusA;
    if (isCreepFactor && systemOf(m_context) != UnitSystem::si())
        return fail(value, makeFailure(FaultCode::UnitNotKnown, FilterText::CreepInSystem, {m_names.nameOf(quantity)}));
    if (textOf(value).find(rangeSign) != std::string_view::npos)
        return addRangeTest(quantity, comparison, value);
    const Result<double> number = readOne(quantity, textOf(value));
    if (!number)
        return refuseValue(quantity, value, number.failure());
    const Interval interval = accepted(comparison, *number);
    Filter::Test test;
    test.kind = Filter::Test::Kind::Number;
    test.quantity = quantity;
    test.lowest = interval.lowest;
    test.highest = interval.highest;
    test.isInside = comparison != Comparison::Unequal;
    addTest(std::move(test));
    return true;
}

bool FilterParser::addRangeTest(const FilterQuantity& quantity, Comparison comparison, Part value)
{
    const std::string_view text = textOf(value);
    if (!isEquality(comparison))
        return fail(value, makeFailure(FaultCode::MalformedFilter, FilterText::RangeIsNotCompared, {excerpt(text)}));
    const std::size_t sign = text.find(rangeSign);
    const std::string_view low = text.substr(0, sign);
    const std::string_view high = text.substr(sign + rangeSign.size());
    if (!beginsNumber(low) || high.find_first_of("0123456789") == std::string_view::npos)
        return fail(value, makeFailure(FaultCode::MalformedFilter, FilterText::RangeEndMissing, {excerpt(text)}));
    const auto ends = readNumbers(quantity, std::string(low).append("; ").append(high));
    if (!ends || ends->size() != 2) {
        Failure failure = ends ? makeFailure(FaultCode::MalformedFilter, FilterText::RangeEndMissing, {excerpt(text)})
                               : ends.failure();
        if (const std::size_t semicolon = failure.suggestion.find(';'); semicolon != std::string::npos)
            failure.suggestion.replace(semicolon, 1, " ..");
        return fail(value, std::move(failure));
    }
    Filter::Test test;
    test.kind = Filter::Test::Kind::Number;
    test.quantity = quantity;
    test.lowest = around(std::min(ends->front(), ends->back())).lowest;
    test.highest = around(std::max(ends->front(), ends->back())).highest;
    test.isInside = comparison == Comparison::Equal;
    addTest(std::move(test));
    return true;
}

bool FilterParser::addWordTest(const FilterQuantity& quantity, Comparison comparison, Part value)
{
    const std::vector<std::string>& words = vxMat::getAllowedWords(quantity.id);
    Filter::Test test;
    test.kind = Filter::Test::Kind::Word;
    test.quantity = quantity;
    test.isInside = comparison == Comparison::Equal;
    test.text = foldName(textOf(value));
    const bool isKnown = std::any_of(words.begin(), words.end(),
                                     [&test](const std::string& word) { return foldName(word) == test.text; });
    if (!isKnown)
        return fail(value, makeFailure(FaultCode::UnknownWord, FilterText::UnknownWord,
                                       {excerpt(textOf(value)), m_names.nameOf(quantity), joinedWords(words)},
                                       nearestWord(words, test.text)));
    addTest(std::move(test));
    return true;
}

void FilterParser::addHasTest(const FilterQuantity& quantity)
{
    Filter::Test test;
    test.kind = quantity.derived != nullptr ? Filter::Test::Kind::HasDerived : Filter::Test::Kind::Has;
    test.quantity = quantity;
    addTest(std::move(test));
}

/// Words beside each other must all occur in the label.
void FilterParser::addLabelTests(std::size_t first, std::size_t last)
{
    if (first < last && m_tokens[first].kind == Kind::Word)
        m_labelWords.push_back({first, last});
    for (std::size_t i = first; i < last; ++i) {
        if (i > first)
            beginOperand(partOf(m_tokens[i]));
        Filter::Test test;
        test.kind = Filter::Test::Kind::Label;
        test.text = foldLabel(m_tokens[i].text);
        addTest(std::move(test));
    }
}

void FilterParser::addTest(Filter::Test test)
{
    if (test.kind == Filter::Test::Kind::Number && test.quantity.derived != nullptr)
        test.kind = Filter::Test::Kind::Derived;
    else if (test.kind == Filter::Test::Kind::Number && formOf(test.quantity) == QuantityForm::NumberList)
        test.kind = Filter::Test::Kind::List;
    std::vector<FilterQuantity>& named = m_filter.m_quantities;
    if (test.kind != Filter::Test::Kind::Label && std::find(named.begin(), named.end(), test.quantity) == named.end())
        named.push_back(test.quantity);
    m_filter.m_steps.push_back({Filter::Step::Kind::Test, m_filter.m_tests.size()});
    m_filter.m_tests.push_back(std::move(test));
    m_isComplete = true;
    completeNots();
}

/// Conditions beside each other are combined by "and".
bool FilterParser::beginOperand(Part part)
{
    return !m_isComplete || combine(Kind::And, part);
}

bool FilterParser::push(FilterToken::Kind kind, Part part)
{
    if (++m_depth > deepestFilter)
        return fail(part,
                    makeFailure(FaultCode::MalformedFilter, FilterText::TooDeep, {std::to_string(deepestFilter)}));
    m_pending.push_back({kind, part.begin});
    m_isComplete = false;
    return true;
}

bool FilterParser::combine(FilterToken::Kind kind, Part part)
{
    if (!m_isComplete)
        return fail(part, makeFailure(FaultCode::MalformedFilter, FilterText::ConditionMissingBefore,
                                      {std::string(textOf(part))}));
    const auto bindsBefore = [kind](Kind pending) { return pending == Kind::And || pending == kind; };
    while (!m_pending.empty() && m_pending.back().kind != Kind::Open && bindsBefore(m_pending.back().kind))
        completeBinary();
    m_pending.push_back({kind, m_filter.m_steps.size()});
    const bool isAnd = kind == Kind::And;
    m_filter.m_steps.push_back({isAnd ? Filter::Step::Kind::JumpIfFalse : Filter::Step::Kind::JumpIfTrue, 0});
    m_isComplete = false;
    return true;
}

/// The jump of the operator leads behind its right side.
void FilterParser::completeBinary()
{
    m_filter.m_steps[m_pending.back().place].index = m_filter.m_steps.size();
    m_pending.pop_back();
}

void FilterParser::completeNots()
{
    while (!m_pending.empty() && m_pending.back().kind == Kind::Not) {
        m_filter.m_steps.push_back({Filter::Step::Kind::Not, 0});
        m_pending.pop_back();
        --m_depth;
    }
}

bool FilterParser::close(const FilterToken& token)
{
    if (!m_isComplete && m_depth > 0)
        return fail(partOf(token), makeFailure(FaultCode::MalformedFilter, FilterText::ConditionMissingBefore,
                                               {std::string(token.text)}));
    while (!m_pending.empty() && m_pending.back().kind != Kind::Open)
        completeBinary();
    if (m_pending.empty())
        return fail(partOf(token), makeFailure(FaultCode::MalformedFilter, FilterText::ParenthesisNotOpened));
    m_pending.pop_back();
    --m_depth;
    completeNots();
    return true;
}

bool FilterParser::finish()
{
    const std::size_t end = token().begin;
    if (!m_isComplete && m_next > 0) {
        const FilterToken& last = m_tokens[m_next - 1];
        return fail({last.end, last.end}, makeFailure(FaultCode::MalformedFilter, FilterText::ConditionMissingAfter,
                                                      {std::string(last.text)}));
    }
    for (; !m_pending.empty(); completeBinary()) {
        if (m_pending.back().kind == Kind::Open)
            return fail({m_pending.back().place, end},
                        makeFailure(FaultCode::MalformedFilter, FilterText::ParenthesisNotClosed));
    }
    return true;
}

/// Keeps a suggestion only if it differs from the typed text.
bool FilterParser::fail(Part part, Failure failure)
{
    if (failure.suggestion == textOf(part))
        failure.suggestion.clear();
    m_reading.failure = std::move(failure);
    m_reading.position = part.begin;
    m_reading.length = part.end - part.begin;
    return false;
}

FilterReading readFilter(std::string_view text, const ReadingContext& context, const FilterNames& names)
{
    const QuantityNames all(names);
    FilterParser parser(text, context, all);
    FilterReading reading = parser.read();
    if (!reading || parser.labelWords().empty())
        return reading;
    const std::string meant = meantExpression(text, context, all);
    if (!meant.empty())
        reading.remark = makeMessage(FilterText::SearchedInLabels, {meant});
    return reading;
}

} // namespace vxUnits
