#include "Obj/Property.h"

#include "Obj/PropertyDS.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <cmath>
#include <optional>

namespace Obj {

namespace {

QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

/// The shortest text that reads back to the same number.
template <typename Number>
QString toShortestText(Number number)
{
    return QString::number(static_cast<double>(number), 'g', QLocale::FloatingPointShortest);
}

QString toShortestText(float number)
{
    // By way of double a float would show the digits of its binary tail: 0.1 as 0.10000000149011612.
    for (int digits = 6; digits < 9; ++digits) {
        QString text = QString::number(static_cast<double>(number), 'g', digits);
        if (text.toFloat() == number)
            return text;
    }
    return QString::number(static_cast<double>(number), 'g', 9);
}

/// The numbers of "1, 2.5, 3"; absent when one is none or their count is another.
std::optional<std::vector<double>> readNumbers(const QString& text, int count)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != count)
        return std::nullopt;
    std::vector<double> numbers;
    for (const QString& part : parts) {
        bool ok = false;
        numbers.push_back(QLocale::c().toDouble(part.trimmed(), &ok));
        if (!ok || !std::isfinite(numbers.back()))
            return std::nullopt;
    }
    return numbers;
}

} // namespace

Property::~Property() = default;

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

bool PropertyString::from_text(std::string_view text)
{
    setValue(std::string(text));
    return true;
}

std::string PropertyInteger::to_text() const
{
    return std::to_string(m_value);
}

bool PropertyInteger::from_text(std::string_view text)
{
    bool ok = false;
    const qlonglong value = toQString(text).trimmed().toLongLong(&ok);
    if (ok)
        setValue(value);
    return ok;
}

std::string PropertyColor::to_text() const
{
    QStringList parts;
    for (const float component : {m_value.red, m_value.green, m_value.blue, m_value.alpha})
        parts << toShortestText(component);
    return parts.join(QStringLiteral(", ")).toStdString();
}

bool PropertyColor::from_text(std::string_view text)
{
    const auto numbers = readNumbers(toQString(text), 4);
    if (!numbers)
        return false;
    for (const double number : *numbers)
        if (number < 0.0 || number > 1.0)
            return false;
    const auto component = [&numbers](std::size_t index) { return static_cast<float>((*numbers)[index]); };
    setValue({component(0), component(1), component(2), component(3)});
    return true;
}

std::string PropertyCoupleArray::to_text() const
{
    QStringList couples;
    for (const auto& [first, second] : m_value)
        couples << toShortestText(first) + QStringLiteral(", ") + toShortestText(second);
    return couples.join(QStringLiteral("; ")).toStdString();
}

bool PropertyCoupleArray::from_text(std::string_view text)
{
    Couples couples;
    const QString all = toQString(text).trimmed();
    for (const QString& part : all.isEmpty() ? QStringList() : all.split(QLatin1Char(';'))) {
        const auto numbers = readNumbers(part, 2);
        if (!numbers)
            return false;
        couples.emplace_back((*numbers)[0], (*numbers)[1]);
    }
    setValue(std::move(couples));
    return true;
}

} // namespace Obj
