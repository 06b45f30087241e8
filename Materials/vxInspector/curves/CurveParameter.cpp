#include "curves/CurveParameter.h"

#include "vxUnits/Quantity.h"
#include "vxUnits/Reading.h"
#include "vxUnits/Writing.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace vxInspector {

namespace {

using vxConstitutive::Mode;

vxUnits::Unit unitOf(CurveParameter parameter, const vxUnits::UnitSystem& system)
{
    return system.unitOf(parameter == CurveParameter::Time ? vxUnits::dimensions::time : vxUnits::dimensions::pressure);
}

} // namespace

CurveParameter parameterOf(Mode mode, bool hasFriction)
{
    if (mode == Mode::Creep)
        return CurveParameter::Stresses;
    if (mode == Mode::CreepRate)
        return CurveParameter::Time;
    return mode == Mode::Yield && hasFriction ? CurveParameter::Cohesion : CurveParameter::None;
}

std::optional<std::vector<double>> readParameter(CurveParameter parameter, const QString& text,
                                                 const vxUnits::UnitSystem& system)
{
    static const QRegularExpression separator(QStringLiteral("[;,]"));
    const vxUnits::Unit unit = unitOf(parameter, system);
    std::vector<double> numbers;
    for (const QString& part : text.split(separator, Qt::SkipEmptyParts)) {
        if (part.trimmed().isEmpty())
            continue;
        const auto read = vxUnits::readNumber(part.trimmed().toStdString(), unit);
        const double number = read ? read->value * unit.factor() : std::nan("");
        const bool isValid = std::isfinite(number) && (parameter == CurveParameter::Stresses || number > 0.0);
        if (!isValid)
            return std::nullopt;
        numbers.push_back(number);
    }
    if (numbers.empty() || (parameter != CurveParameter::Stresses && numbers.size() > 1))
        return std::nullopt;
    return numbers;
}

QString parameterText(CurveParameter parameter, const std::vector<double>& numbers, const vxUnits::UnitSystem& system)
{
    constexpr int digits = 6;
    const vxUnits::Unit unit = unitOf(parameter, system);
    QStringList texts;
    for (const double number : numbers)
        texts << QString::fromStdString(vxUnits::writeNumber(number, unit, digits));
    return texts.isEmpty() ? QString()
                           : texts.join(QStringLiteral("; ")) + QLatin1Char(' ') + QString::fromStdString(unit.text());
}

} // namespace vxInspector
