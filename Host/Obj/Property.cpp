#include "Obj/Property.h"

#include "Obj/PropertyDS.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <set>
#include <stdexcept>

namespace Obj {

namespace {

QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

/// Returns the shortest text that reads back to the same number.
QString toShortestText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString toShortestText(float number)
{
    // As a double, a float would show the digits of its binary tail: 0.1 as 0.10000000149011612.
    for (int digits = 6; digits < 9; ++digits) {
        QString text = QString::number(static_cast<double>(number), 'g', digits);
        if (text.toFloat() == number)
            return text;
    }
    return QString::number(static_cast<double>(number), 'g', 9);
}

std::optional<double> readNumber(const QString& text)
{
    bool ok = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<double> readNumber(const Json::Value& json)
{
    return json.isNumeric() && std::isfinite(json.asDouble()) ? std::optional(json.asDouble()) : std::nullopt;
}

using Numbers = std::optional<std::vector<double>>;

/// Reads `count` numbers from a list of texts or of JSON values; absent if one is not a number or their count differs.
template <typename List>
Numbers readAll(const List& list, std::size_t count)
{
    std::vector<double> numbers;
    for (const auto& element : list)
        if (const auto number = readNumber(element))
            numbers.push_back(*number);
    return numbers.size() == count && static_cast<std::size_t>(list.size()) == count ? Numbers(numbers) : std::nullopt;
}

/// Reads "1, 2.5, 3".
Numbers readNumbers(const QString& text, std::size_t count)
{
    return readAll(text.split(QLatin1Char(',')), count);
}

Numbers readNumbers(const Json::Value& json, std::size_t count)
{
    return json.isArray() ? readAll(json, count) : std::nullopt;
}

std::optional<Color> toColor(const Numbers& numbers)
{
    const auto isOutside = [](double number) { return number < 0.0 || number > 1.0; };
    if (!numbers || std::any_of(numbers->begin(), numbers->end(), isOutside))
        return std::nullopt;
    const auto component = [&numbers](std::size_t index) { return static_cast<float>((*numbers)[index]); };
    return Color{component(0), component(1), component(2), component(3)};
}

/// Reads couples from a list of texts or of JSON values; absent if one of them is not a couple.
template <typename List>
std::optional<PropertyCoupleArray::Couples> readCouples(const List& list)
{
    PropertyCoupleArray::Couples couples;
    for (const auto& element : list) {
        const Numbers numbers = readNumbers(element, 2);
        if (!numbers)
            return std::nullopt;
        couples.emplace_back((*numbers)[0], (*numbers)[1]);
    }
    return couples;
}

double checkedFinite(double value)
{
    if (!std::isfinite(value))
        throw std::invalid_argument("a real property must be finite");
    return value;
}

std::vector<std::string> checkedWords(std::vector<std::string> words)
{
    if (words.empty() || std::set<std::string>(words.begin(), words.end()).size() != words.size())
        throw std::invalid_argument("the words of a choice must be there, each once");
    return words;
}

std::size_t checkedIndex(std::size_t index, std::size_t count)
{
    if (index >= count)
        throw std::out_of_range("a choice has no word of this index");
    return index;
}

/// Sets a property from the value that was read, if there is one.
template <typename Typed, typename Value>
bool setRead(Typed& property, std::optional<Value> value)
{
    if (value)
        property.setValue(std::move(*value));
    return value.has_value();
}

} // namespace

std::size_t heapSizeOf(const std::string& text)
{
    // Short texts are kept in the string itself.
    const auto* const object = reinterpret_cast<const char*>(&text);
    const bool isInside = text.data() >= object && text.data() < object + sizeof(std::string);
    return isInside ? 0 : text.capacity() + 1;
}

Property::~Property() = default;

Json::Value Property::toJson() const
{
    return toText();
}

bool Property::fromJson(const Json::Value& json)
{
    return json.isString() && fromText(json.asString());
}

std::size_t Property::get_memory_usage() const
{
    return 0;
}

void Property::notifyBefore() const
{
    if (m_owner != nullptr)
        m_owner->on_change_before(this);
}

void Property::notifyAfter() const
{
    if (m_owner != nullptr)
        m_owner->on_changed(this);
}

// --- Text ---

bool PropertyString::fromText(std::string_view text)
{
    setValue(std::string(text));
    return true;
}

std::size_t PropertyString::get_memory_usage() const
{
    return heapSizeOf(m_value);
}

// --- Whole number ---

std::string PropertyInteger::toText() const
{
    return std::to_string(m_value);
}

bool PropertyInteger::fromText(std::string_view text)
{
    bool ok = false;
    const qlonglong value = toQString(text).trimmed().toLongLong(&ok);
    if (ok)
        setValue(value);
    return ok;
}

Json::Value PropertyInteger::toJson() const
{
    return Json::Value::Int64(m_value);
}

bool PropertyInteger::fromJson(const Json::Value& json)
{
    return setRead(*this, json.isInt64() ? std::optional(json.asInt64()) : std::nullopt);
}

// --- Real number ---

PropertyReal::PropertyReal(double value) : m_value(checkedFinite(value)) {}

void PropertyReal::setValue(double value)
{
    change(m_value, checkedFinite(value));
}

std::string PropertyReal::toText() const
{
    return toShortestText(m_value).toStdString();
}

bool PropertyReal::fromText(std::string_view text)
{
    return setRead(*this, readNumber(toQString(text)));
}

Json::Value PropertyReal::toJson() const
{
    return m_value;
}

bool PropertyReal::fromJson(const Json::Value& json)
{
    return setRead(*this, readNumber(json));
}

// --- Yes or no ---

std::string PropertyBool::toText() const
{
    return m_value ? "true" : "false";
}

bool PropertyBool::fromText(std::string_view text)
{
    const bool isTrue = text == "true";
    return setRead(*this, isTrue || text == "false" ? std::optional(isTrue) : std::nullopt);
}

Json::Value PropertyBool::toJson() const
{
    return m_value;
}

bool PropertyBool::fromJson(const Json::Value& json)
{
    return setRead(*this, json.isBool() ? std::optional(json.asBool()) : std::nullopt);
}

// --- Choice ---

PropertyChoice::PropertyChoice(std::vector<std::string> words, std::size_t index)
    : m_words(checkedWords(std::move(words))), m_index(checkedIndex(index, m_words.size()))
{}

void PropertyChoice::setValue(std::size_t index)
{
    change(m_index, checkedIndex(index, m_words.size()));
}

bool PropertyChoice::fromText(std::string_view text)
{
    const auto found = std::find(m_words.begin(), m_words.end(), text);
    if (found == m_words.end())
        return false;
    setValue(static_cast<std::size_t>(found - m_words.begin()));
    return true;
}

std::size_t PropertyChoice::get_memory_usage() const
{
    std::size_t bytes = m_words.capacity() * sizeof(std::string);
    for (const std::string& word : m_words)
        bytes += heapSizeOf(word);
    return bytes;
}

// --- Colour ---

std::string PropertyColor::toText() const
{
    QStringList parts;
    for (const float component : {m_value.red, m_value.green, m_value.blue, m_value.alpha})
        parts << toShortestText(component);
    return parts.join(QStringLiteral(", ")).toStdString();
}

bool PropertyColor::fromText(std::string_view text)
{
    return setRead(*this, toColor(readNumbers(toQString(text), 4)));
}

Json::Value PropertyColor::toJson() const
{
    Json::Value json(Json::arrayValue);
    for (const float component : {m_value.red, m_value.green, m_value.blue, m_value.alpha})
        json.append(toShortestText(component).toDouble());
    return json;
}

bool PropertyColor::fromJson(const Json::Value& json)
{
    return setRead(*this, toColor(readNumbers(json, 4)));
}

// --- Couples ---

std::string PropertyCoupleArray::toText() const
{
    QStringList couples;
    for (const auto& [first, second] : m_value)
        couples << toShortestText(first) + QStringLiteral(", ") + toShortestText(second);
    return couples.join(QStringLiteral("; ")).toStdString();
}

bool PropertyCoupleArray::fromText(std::string_view text)
{
    const QString all = toQString(text).trimmed();
    return setRead(*this, readCouples(all.isEmpty() ? QStringList() : all.split(QLatin1Char(';'))));
}

Json::Value PropertyCoupleArray::toJson() const
{
    Json::Value json(Json::arrayValue);
    for (const auto& [first, second] : m_value) {
        Json::Value& couple = json.append(Json::Value(Json::arrayValue));
        couple.append(first);
        couple.append(second);
    }
    return json;
}

bool PropertyCoupleArray::fromJson(const Json::Value& json)
{
    return json.isArray() && setRead(*this, readCouples(json));
}

std::size_t PropertyCoupleArray::get_memory_usage() const
{
    return m_value.capacity() * sizeof(Couples::value_type);
}

} // namespace Obj
