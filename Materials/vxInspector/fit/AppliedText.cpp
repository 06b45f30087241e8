#include "fit/AppliedText.h"

#include "curves/ConstitutiveTexts.h"
#include "table/TableContent.h"
#include "values/ValueText.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxUnits/Writing.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace vxInspector {

namespace {

using vxConstitutive::PropertyValue;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::AppliedText", text);
}

/// The symbol of a fitted constant is shorter than the name of the quantity.
QString nameOf(const PropertyValue& value, const vxConstitutive::FitResult& result)
{
    const vxConstitutive::FittedConstant* const constant = result.find(value.propertyId);
    return constant != nullptr ? QString::fromStdString(constant->symbol) : quantityName(value.propertyId);
}

QString numberText(const PropertyValue& value, const InspectedMaterial& material, const vxUnits::UnitSystem& system)
{
    constexpr int digits = 6;
    const auto written =
        vxUnits::writeQuantity(value.propertyId, value.value, system, material.values.creepExponents(), digits);
    if (!written)
        return QString::number(value.value, 'g', digits);
    const QString number = QString::fromStdString(written->number);
    return written->unit.empty() ? number : number + QLatin1Char(' ') + QString::fromStdString(written->unit);
}

/// Returns "C10 = 0.5 MPa"; a model that is switched on has only its name.
QString writtenText(const PropertyValue& value, const vxConstitutive::FitResult& result,
                    const InspectedMaterial& material, const vxUnits::UnitSystem& system)
{
    const QString name = nameOf(value, result);
    if (vxMat::getValueKind(value.propertyId) == vxMat::ValueKind::ModelSwitch)
        return quantityName(value.propertyId);
    if (!value.values.empty())
        return tr("%1: %2 values").arg(name).arg(value.values.size());
    return tr("%1 = %2").arg(name,
                             value.text.empty() ? numberText(value, material, system) : constitutiveWord(value.text));
}

QString keptText(const std::optional<QStringList>& tests)
{
    if (!tests)
        return tr("The tests are not kept.");
    QStringList quoted;
    for (const QString& test : *tests)
        quoted << QStringLiteral("\"%1\"").arg(shortened(test, 30));
    return tr("Kept tests: %1.").arg(quoted.join(QStringLiteral(", ")));
}

} // namespace

QString appliedText(const AppliedResult& applied, const InspectedMaterial& material, const vxUnits::UnitSystem& system)
{
    QStringList written;
    for (const PropertyValue& value : applied.change.set)
        written << writtenText(value, applied.result, material, system);
    const QString sentence = applied.isInEditor ? tr("Written to the table of \"%1\", which is not applied yet: %2.")
                                                : tr("Written to \"%1\": %2.");
    QStringList sentences{sentence.arg(shortened(material.label, 30), written.join(QStringLiteral(", ")))};
    if (!applied.removed.isEmpty())
        sentences << tr("Removed: %1.").arg(applied.removed.join(QStringLiteral(", ")));
    sentences << keptText(applied.tests);
    return sentences.join(QLatin1Char(' '));
}

bool hasWritten(const vxConstitutive::MaterialChange& change, const InspectedMaterial& material)
{
    constexpr double tolerance = 1e-12; // of the text of a number in a table
    return std::all_of(change.set.begin(), change.set.end(), [&material](const PropertyValue& value) {
        const vxMat::MaterialProperty* const property = material.material->findProperty(value.propertyId);
        if (property == nullptr)
            return false;
        const bool isNumber = vxMat::getValueKind(value.propertyId) == vxMat::ValueKind::Number;
        return !isNumber || std::fabs(property->value - value.value) <= tolerance * std::fabs(value.value);
    });
}

QStringList removedBy(const vxConstitutive::MaterialChange& change, const InspectedMaterial& material)
{
    QStringList names;
    for (const std::int32_t id : change.remove)
        if (material.material->hasProperty(id))
            names << quantityName(id);
    return names;
}

} // namespace vxInspector
