#include "vxUnits/Reading.h"

#include "units/NumberScan.h"
#include "units/Reader.h"
#include "units/ScaleArithmetic.h"
#include "units/Spelling.h"
#include "units/Texts.h"
#include "units/UnitParser.h"
#include "units/UnitReading.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <cmath>

namespace vxUnits {

using vxMat::formatNumber;

namespace {

/// Returns "210 GPa", or "0.3" for a pure number.
std::string joined(const std::string& number, const std::string& unit)
{
    return unit == "1" ? number : number + " " + unit;
}

/// A number that was read, in its unit and in the unit in which it was typed.
struct TypedNumber
{
    double value = 0.0;          ///< in the unit of the target
    std::optional<double> typed; ///< absent if a double cannot hold it
    std::string unit;            ///< text of the unit that it was typed in
    Message note;
};

/// Reads one number for a target.
class NumberReader
{
public:
    /// Messages quote `typed` in place of `text`, if it is given.
    NumberReader(const ReadingTarget& target, std::string_view text, std::string_view typed = {})
        : m_target(target), m_text(text), m_typed(typed.empty() ? text : typed)
    {}

    Result<TypedNumber> read()
    {
        const FoldedText folded = fold(m_text);
        if (folded.fault != FoldedText::Fault::None)
            return failureOf(folded, m_typed);
        Result<ScannedNumber> number = scanNumber(folded.text, m_typed);
        if (!number)
            return number.failure();
        m_number = *std::move(number);
        if (m_number.rest.empty())
            return valueIn(m_target.plain);
        m_numberText = std::string_view(folded.text).substr(0, folded.text.size() - m_number.rest.size());
        return readWithUnit();
    }

private:
    Failure failure(FaultCode code, Text text, std::vector<std::string> arguments = {},
                    std::string suggestion = {}) const
    {
        arguments.insert(arguments.begin(), excerpt(m_typed));
        return makeFailure(code, text, std::move(arguments), std::move(suggestion));
    }

    /// Returns the number as it was typed, with another unit; empty if `unit` is empty.
    std::string typedWith(const std::string& unit) const
    {
        if (unit.empty())
            return {};
        const std::string number(m_numberText.substr(0, m_numberText.find_last_not_of(' ') + 1));
        return joined(number, unit);
    }

    Result<TypedNumber> readWithUnit()
    {
        ParsedUnit parsed = parseUnit(m_number.rest, m_typed);
        const Dimension& wanted = m_target.unit.dimension();
        if (!parsed.valid) {
            parsed.failure.suggestion = typedWith(suggestUnit(m_number.rest, &wanted));
            return std::move(parsed.failure);
        }
        if (m_target.unitFault)
            return *m_target.unitFault; // no suggestion: the number in the typed unit is another number
        const Unit unit = UnitBuilder::build(parsed.terms);
        if (unit.dimension() != wanted)
            return refuseDimension(unit, parsed.terms);
        if (unit.isTemperatureScale() && m_target.meaning == TemperatureMeaning::Refused)
            return failure(FaultCode::TemperatureScale, Text::TemperatureScale, {},
                           typedWith(unit.text() == "degF" ? "delta_degF" : "K"));
        return valueIn(unit);
    }

    Failure refuseDimension(const Unit& unit, const std::vector<Term>& terms) const
    {
        const Dimension& wanted = m_target.unit.dimension();
        if (wanted == dimensions::electricalConductivity && unit.dimension() == dimensions::electricalResistivity)
            return refuseResistivity(unit);
        std::string unitMeant = suggestTerms(terms, wanted);
        if (unitMeant.empty())
            unitMeant = suggestUnit(m_number.rest, &wanted);
        if (unitMeant.empty() && isStressForItsReciprocal(unit, wanted))
            unitMeant = Unit::parse("1/(" + unit.text() + ")")->text();
        const std::string suggestion = typedWith(unitMeant);
        const std::string measure = measureOf(unit.dimension());
        if (m_target.name.empty())
            return failure(FaultCode::WrongDimension, Text::WrongDimension, {measure, m_target.unit.text()},
                           suggestion);
        if (wanted.isNone())
            return failure(FaultCode::WrongDimension, Text::NotPure, {measure, m_target.name}, suggestion);
        return failure(FaultCode::WrongDimension, Text::WrongDimensionOf,
                       {measure, m_target.unit.text(), m_target.name}, suggestion);
    }

    /// Returns whether a unit lacks "1/", or has it too much: "0.4 MPa" for an incompressibility parameter.
    static bool isStressForItsReciprocal(const Unit& unit, const Dimension& wanted)
    {
        const bool isStress = wanted == dimensions::pressure || wanted == dimensions::compressibility;
        return isStress && unit.dimension() == dimensions::none / wanted;
    }

    Failure refuseResistivity(const Unit& unit) const
    {
        const double reciprocal = 1.0 / m_number.times(unit.scale() * m_target.unit.scale()).value_or(0.0);
        const std::string suggestion =
            std::isfinite(reciprocal) ? joined(formatNumber(reciprocal), m_target.unit.text()) : std::string();
        const std::string name = m_target.name.empty() ? measureOf(m_target.unit.dimension()) : m_target.name;
        return failure(FaultCode::WrongDimension, Text::Reciprocal,
                       {measureOf(unit.dimension()), m_target.unit.text(), name}, suggestion);
    }

    bool isTemperature() const
    {
        return m_target.meaning == TemperatureMeaning::Absolute && m_target.unit.dimension() == dimensions::temperature;
    }

    /// Returns whether a unit is that of differences of temperatures, and of nothing else.
    static bool isDifference(const Unit& unit) { return unit.text().substr(0, 6) == "delta_"; }

    /// Refuses a difference for a temperature of a scale, and such a temperature for a difference.
    Failure refuseMeaning(const Unit& unit) const
    {
        if (isDifference(unit))
            return failure(FaultCode::TemperatureScale, Text::TemperatureDifference, {},
                           typedWith(unit.text().substr(6)));
        return failure(FaultCode::TemperatureScale, Text::TemperatureScale, {}, typedWith("delta_" + unit.text()));
    }

    Result<TypedNumber> valueIn(const Unit& unit) const
    {
        const bool difference = isDifference(unit);
        if (isTemperature() && difference != isDifference(m_target.unit) &&
            (difference ? m_target.unit : unit).isTemperatureScale())
            return refuseMeaning(unit);
        if (isTemperature() && (m_number.exact() + exactZero(unit)).high < 0.0)
            return failure(FaultCode::BelowAbsoluteZero, Text::BelowAbsoluteZero);
        const auto value = isTemperature() ? temperatureIn(unit) : m_number.times(unit.scale() / m_target.unit.scale());
        if (!value)
            return failure(FaultCode::OutOfRange, Text::OutOfRange);
        return TypedNumber{*value, m_number.times(Scale()), unit.text(), unit.note()};
    }

    std::optional<double> temperatureIn(const Unit& unit) const
    {
        const DoubleDouble kelvin = times(m_number.exact() + exactZero(unit), unit.scale());
        const DoubleDouble value = dividedBy(kelvin, m_target.unit.scale()) + -exactZero(m_target.unit);
        return std::isfinite(value.high) ? std::optional<double>(value.high) : std::nullopt;
    }

    const ReadingTarget& m_target;
    std::string_view m_text;
    std::string_view m_typed; ///< for messages
    ScannedNumber m_number;
    std::string_view m_numberText; ///< the folded text up to the unit
};

Reading toReading(const TypedNumber& number, const std::string& unit)
{
    const std::string result = joined(formatNumber(number.value), unit);
    if (number.unit == unit || !number.typed)
        return {number.value, result, number.note};
    return {number.value, joined(formatNumber(*number.typed), number.unit) + " = " + result, number.note};
}

/// Reads by `read`. Keeps a suggestion in the failure only if it can be read; otherwise tries the suggestion for it.
template <class Read>
auto readWithSuggestion(std::string_view text, Read read) -> decltype(read(text))
{
    auto reading = read(text);
    if (reading || reading.failure().suggestion.empty())
        return reading;
    Failure failure = reading.failure();
    for (int left = 2; left > 0 && !failure.suggestion.empty(); --left) {
        const auto again = read(failure.suggestion);
        if (again)
            return failure;
        failure.suggestion = again.failure().suggestion;
    }
    failure.suggestion.clear();
    return failure;
}

/// Returns the target for a quantity, or the reason why its value is not a number.
Result<ReadingTarget> targetOf(std::int32_t id, const ReadingContext& context)
{
    const Result<Unit> unit = unitOfQuantity(id, UnitSystem::si(), context.creep);
    const bool unknown = !unit && unit.failure().code == FaultCode::UnitNotKnown;
    const bool other = context.plainNumbers != nullptr && *context.plainNumbers != UnitSystem::si();
    if (!unit && (!unknown || other)) // a plain number of another system cannot be converted without the unit
        return unit.failure();
    ReadingTarget target;
    target.name = vxMat::findPropertyRecord(id)->name;
    if (unknown) {
        target.unitFault = unit.failure();
        return target;
    }
    target.unit = *unit;
    target.plain = context.plainNumbers != nullptr ? *unitOfQuantity(id, *context.plainNumbers, context.creep) : *unit;
    return target;
}

// --- Lists ---

struct Item
{
    std::string_view text;
    std::size_t begin; ///< in the list
};

/// Returns the length of a separator of list items, ASCII or full-width, at a place of a text; 0 if there is none.
std::size_t separatorLength(std::string_view text, std::size_t at, bool commas)
{
    const char c = text[at];
    if (c == ';' || c == '\n' || c == '\r' || c == '\t' || (commas && c == ','))
        return 1;
    const std::string_view wide = text.substr(at, 3);
    if (wide == "\xEF\xBC\x9B" || wide == "\xE3\x80\x81" || (commas && wide == "\xEF\xBC\x8C"))
        return 3;
    return 0;
}

/// Returns the item between two places of a list, without blanks around it.
Item itemOf(std::string_view text, std::size_t begin, std::size_t end)
{
    while (begin < end && text[begin] == ' ')
        ++begin;
    return {trimmed(text.substr(begin, end - begin)), begin};
}

/// Splits a list. If there are semicolons, commas do not separate: they can only be decimal commas.
std::vector<Item> splitList(std::string_view text)
{
    const bool commas = text.find(';') == std::string_view::npos;
    std::vector<Item> items;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = separatorLength(text, at, commas);
        if (length > 0) {
            items.push_back(itemOf(text, begin, at));
            begin = at + length;
        }
        at += std::max<std::size_t>(length, 1);
    }
    items.push_back(itemOf(text, begin, text.size()));
    while (items.size() > 1 && items.back().text.empty())
        items.pop_back();
    return items;
}

/// Returns whether an item begins with a superfluous 0 directly after a comma, as decimals do.
bool looksLikeDecimals(std::string_view list, const Item& item)
{
    const bool behindComma = item.begin > 0 && list[item.begin - 1] == ',';
    return behindComma && item.text.size() > 1 && item.text[0] == '0' && isDigit(item.text[1]);
}

/// Returns whether a separator between two digits is at a place of a text.
bool isBetweenDigits(std::string_view text, std::size_t at)
{
    return at > 0 && at + 1 < text.size() && isDigit(text[at - 1]) && isDigit(text[at + 1]);
}

/// Returns the list with a point for every comma without a blank after it.
std::string withPoints(std::string_view text)
{
    std::string changed(text.substr(0, text.find_last_not_of(", ") + 1));
    for (std::size_t i = 0; i + 1 < changed.size(); ++i) {
        if (changed[i] == ',' && changed[i + 1] != ' ')
            changed[i] = '.';
    }
    return changed;
}

/// Returns the list with a comma between numbers that only a blank separates; empty if a number would begin with a
/// superfluous 0, as the groups of thousands do.
std::string withCommas(std::string_view text)
{
    std::string changed;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool between = text[i] == ' ' && isBetweenDigits(text, i);
        if (between && text[i + 1] == '0' && i + 2 < text.size() && isDigit(text[i + 2]))
            return {};
        changed += between ? ", " : std::string(1, text[i]);
    }
    return changed;
}

/// Returns the list without the separators between digits.
std::string withoutGroups(std::string_view text, char separator)
{
    std::string changed;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != separator || !isBetweenDigits(text, i))
            changed += text[i];
    }
    return changed;
}

/// The commas of a list that are directly between the digits of two whole numbers: each may be a decimal comma.
struct DoubtfulCommas
{
    std::size_t count = 0;
    std::size_t first = 0; ///< the place of the first one
    bool thousands = true; ///< whether groups of three digits follow all of them
    bool others = false;   ///< whether other signs separate numbers too
};

std::size_t digitsBehind(std::string_view text, std::size_t at)
{
    std::size_t end = at;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return end - at;
}

/// Returns whether the number that ends at a place, or the one that begins behind it, has a decimal point.
bool hasPointBeside(std::string_view text, std::size_t at)
{
    std::size_t begin = at;
    while (begin > 0 && isDigit(text[begin - 1]))
        --begin;
    const std::size_t end = at + 1 + digitsBehind(text, at + 1);
    return (begin > 0 && text[begin - 1] == '.') || (end < text.size() && text[end] == '.');
}

DoubtfulCommas findDoubtfulCommas(std::string_view text)
{
    constexpr std::size_t group = 3;
    DoubtfulCommas commas;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool comma = text[i] == ',';
        if (comma && isBetweenDigits(text, i) && !hasPointBeside(text, i)) {
            commas.first = commas.count == 0 ? i : commas.first;
            ++commas.count;
            commas.thousands = commas.thousands && digitsBehind(text, i + 1) == group;
        } else if (comma || text[i] == '\n' || text[i] == '\t' || (text[i] == ' ' && isBetweenDigits(text, i))) {
            commas.others = commas.others || i + 1 < text.size();
        }
    }
    return commas;
}

class ListReader
{
public:
    ListReader(const ReadingTarget& target, std::string_view text)
        : m_target(target), m_text(text), m_items(splitList(text))
    {}

    Result<ListReading> read()
    {
        if (!checkCommas() || !readLast())
            return std::move(m_failure);
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            auto number = readItem(i);
            if (!number)
                return std::move(m_failure);
            m_numbers.push_back(*std::move(number));
        }
        return summary();
    }

private:
    void refuse(const Item& item, Failure failure)
    {
        m_failure = std::move(failure);
        const bool several =
            m_failure.code == FaultCode::SeveralNumbers || m_failure.code == FaultCode::ThousandsSeparator;
        const bool grouped = m_failure.code == FaultCode::ThousandsSeparator &&
                             (m_items.size() > 1 || digitsBehind(item.text, 0) < 3 || withCommas(item.text).empty());
        const bool unitAlone = m_failure.code == FaultCode::NumberMissing && m_items.size() > 1 &&
                               item.begin == m_items.back().begin && isLetter(item.text.front());
        if (unitAlone)
            m_failure.suggestion = withUnitOfLast();
        else if (const std::string separated = withCommaAfterUnit(item); !separated.empty())
            m_failure = makeFailure(FaultCode::SeveralNumbers, Text::SeveralNumbers, {excerpt(item.text)}, separated);
        else if (several && item.text.find(' ') != std::string_view::npos)
            m_failure.suggestion = grouped ? withoutGroups(m_text, ' ') : withCommas(m_text);
        else if (!m_failure.suggestion.empty())
            m_failure.suggestion = std::string(m_text.substr(0, item.begin)) + m_failure.suggestion +
                                   std::string(m_text.substr(item.begin + item.text.size()));
    }

    /// Returns "250 MPa, 300 MPa" for "250 MPa 300 MPa"; empty if no number follows a unit in the item.
    std::string withCommaAfterUnit(const Item& item) const
    {
        constexpr std::size_t longest = 200; // each blank takes a reading of the text
        const std::string_view text = item.text.size() <= longest ? item.text : std::string_view();
        for (std::size_t at = text.find(' '); at != std::string_view::npos; at = text.find(' ', at + 1)) {
            const std::string_view before = text.substr(0, at);
            const std::string_view after = text.substr(at + 1);
            const bool isBetween =
                at > 0 && (isLetter(before.back()) || before.back() == ')') && !after.empty() && isDigit(after.front());
            if (isBetween && NumberReader(m_target, before).read() && NumberReader(m_target, after).read())
                return std::string(m_text.substr(0, item.begin + at)) + "," +
                       std::string(m_text.substr(item.begin + at));
        }
        return {};
    }

    /// Returns "250, 300 MPa" for "250, 300, MPa".
    std::string withUnitOfLast() const
    {
        const Item& before = m_items[m_items.size() - 2];
        return std::string(m_text.substr(0, before.begin + before.text.size())) + " " +
               std::string(m_items.back().text);
    }

    /// Refuses a list with commas that may be decimal commas, unless commas alone, and more than one, separate its numbers.
    bool checkCommas()
    {
        const DoubtfulCommas commas = findDoubtfulCommas(m_text);
        const bool semicolons = m_text.find(';') != std::string_view::npos; // commas are then errors of the numbers
        if (semicolons || commas.count == 0 || (commas.count > 1 && !commas.others))
            return true;
        const std::string decimals = withPoints(m_text);
        if (!commas.others)
            m_failure = makeFailure(FaultCode::DecimalComma, Text::ListCommaNotClear,
                                    {excerpt(m_text), decimals, withBlank(commas.first)});
        else if (commas.thousands)
            refuseThousands();
        else
            m_failure = makeFailure(FaultCode::DecimalComma, Text::ListDecimalComma,
                                    {excerpt(m_text.substr(commas.first + 1, digitsBehind(m_text, commas.first + 1)))},
                                    decimals);
        return false;
    }

    void refuseThousands()
    {
        const std::string whole = withCommas(withoutGroups(m_text, ','));
        m_failure = makeFailure(FaultCode::ThousandsSeparator, Text::CommaNotClear,
                                {excerpt(m_text), whole, withCommas(withPoints(m_text))}, whole);
    }

    /// Returns the list with a blank after a comma.
    std::string withBlank(std::size_t comma) const
    {
        std::string text(m_text.substr(0, m_text.find_last_not_of(", ") + 1));
        return text.insert(comma + 1, " ");
    }

    /// Finds out whether all numbers have the unit of the last one.
    bool readLast()
    {
        const Item& last = m_items.back();
        auto [unit, failure] = unitOf(last);
        if (!unit) {
            refuse(last, std::move(*failure));
            return false;
        }
        m_lastUnit = std::move(*unit);
        if (m_items.size() == 1)
            return true;
        auto [first, firstFailure] = unitOf(m_items.front());
        m_oneUnit = first && first->empty() && !m_lastUnit.empty();
        return !m_oneUnit || checkLast();
    }

    /// Reports a fault in the unit of all numbers at the last number, where it is typed, not at the first one.
    bool checkLast()
    {
        const auto number = NumberReader(m_target, m_items.back().text).read();
        if (!number)
            refuse(m_items.back(), number.failure());
        return number.hasValue();
    }

    /// Returns the text of the unit of an item, or the reason why there is no number.
    std::pair<std::optional<std::string>, std::optional<Failure>> unitOf(const Item& item) const
    {
        const FoldedText folded = fold(item.text);
        if (folded.fault != FoldedText::Fault::None)
            return {std::nullopt, failureOf(folded, item.text)};
        const auto number = scanNumber(folded.text, item.text);
        if (!number)
            return {std::nullopt, number.failure()};
        return {std::string(number->rest), std::nullopt};
    }

    std::optional<TypedNumber> readItem(std::size_t index)
    {
        const Item& item = m_items[index];
        if (item.text.empty() && m_items.size() > 1) {
            m_failure = makeFailure(FaultCode::Empty, Text::ListItemEmpty, {std::to_string(index + 1)});
            return std::nullopt;
        }
        if (looksLikeDecimals(m_text, item)) {
            m_failure =
                makeFailure(FaultCode::DecimalComma, Text::ListDecimalComma, {excerpt(item.text)}, withPoints(m_text));
            return std::nullopt;
        }
        return readNumberOf(item, index + 1 == m_items.size());
    }

    std::optional<TypedNumber> readNumberOf(const Item& item, bool last)
    {
        std::string text(item.text);
        if (!last) {
            const auto unit = unitOf(item).first;
            const bool needed = !m_lastUnit.empty() && !m_oneUnit;
            if (unit && unit->empty() == needed) {
                const Item& without = needed ? item : m_oneUnit ? m_items.front() : m_items.back();
                refuse(item, makeFailure(FaultCode::UnitMissing, Text::ListUnitMissing, {excerpt(without.text)}));
                return std::nullopt;
            }
            if (m_oneUnit)
                text += " " + m_lastUnit;
        }
        auto reading = NumberReader(m_target, text, item.text).read();
        if (reading)
            return *std::move(reading);
        refuse(item, reading.failure());
        return std::nullopt;
    }

    ListReading summary() const
    {
        ListReading list;
        for (const TypedNumber& number : m_numbers)
            list.values.push_back(number.value);
        list.note = m_numbers.back().note;
        const std::string unit = m_target.unit.text();
        const std::string typed = typedText();
        const std::string result = joined(vxMat::formatNumberList(list.values), unit);
        list.understood = typed == result ? result : typed + " = " + result;
        return list;
    }

    /// Returns the numbers as typed, with one unit for all of them or one for each.
    std::string typedText() const
    {
        const std::string& unit = m_numbers.back().unit;
        const bool one = std::all_of(m_numbers.begin(), m_numbers.end(),
                                     [&](const TypedNumber& number) { return number.unit == unit; });
        std::string text;
        for (const TypedNumber& number : m_numbers) {
            const std::string digits = formatNumber(number.typed.value_or(number.value));
            text += (text.empty() ? "" : ", ") + (one ? digits : joined(digits, number.unit));
        }
        return one ? joined(text, unit) : text;
    }

    const ReadingTarget& m_target;
    std::string_view m_text;
    std::vector<Item> m_items;
    std::string m_lastUnit; ///< as typed; empty if the last number has none
    bool m_oneUnit = false; ///< whether it is the unit of all
    std::vector<TypedNumber> m_numbers;
    Failure m_failure;
};

} // namespace

Failure failureOf(const FoldedText& folded, std::string_view text)
{
    if (folded.fault == FoldedText::Fault::BadEncoding)
        return makeFailure(FaultCode::BadEncoding, Text::BadEncoding);
    return makeFailure(FaultCode::IllegalCharacter, Text::IllegalCharacter, {excerpt(text), folded.illegal});
}

std::string measureOf(const Dimension& dimension)
{
    const std::string name = dimension.name();
    return name.empty() ? UnitSystem::si().unitOf(dimension).text() : name;
}

DoubleDouble exactZero(const Unit& unit)
{
    constexpr double hundredths = 100.0; // 273.15 and 459.67 have two decimals
    return DoubleDouble{std::round(unit.zero() * hundredths), 0.0} / DoubleDouble{hundredths, 0.0};
}

Result<Reading> readFor(const ReadingTarget& target, std::string_view text)
{
    return readWithSuggestion(text, [&](std::string_view one) -> Result<Reading> {
        const auto number = NumberReader(target, one).read();
        if (!number)
            return number.failure();
        return toReading(*number, target.unit.text());
    });
}

Result<ListReading> readListFor(const ReadingTarget& target, std::string_view text)
{
    return readWithSuggestion(text, [&](std::string_view one) { return ListReader(target, one).read(); });
}

Result<Reading> readNumber(std::string_view text, const Unit& unit, TemperatureMeaning meaning)
{
    return readFor({unit, unit, meaning, {}, {}}, text);
}

Result<Reading> readQuantity(std::int32_t id, std::string_view text, const ReadingContext& context)
{
    const auto target = targetOf(id, context);
    return target ? readFor(*target, text) : Result<Reading>(target.failure());
}

Result<ListReading> readQuantityList(std::int32_t id, std::string_view text, const ReadingContext& context)
{
    const auto target = targetOf(id, context);
    return target ? readListFor(*target, text) : Result<ListReading>(target.failure());
}

} // namespace vxUnits
