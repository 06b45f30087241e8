#include "curves/ConstitutiveTexts.h"

#include "vxConstitutive/Texts.h"

#include <QCoreApplication>

namespace vxInspector {

vxUnits::Translator constitutiveTranslator()
{
    return [](const char* context, const char* english) {
        const QString text = QCoreApplication::translate(context, english);
        const bool isUnknownWord =
            text == QLatin1String(english) && QLatin1String(context) == QLatin1String("vxConstitutive::Word");
        return (isUnknownWord ? QCoreApplication::translate("vxMat::PropertyName", english) : text).toStdString();
    };
}

QString constitutiveWord(std::string_view english)
{
    return QString::fromStdString(vxConstitutive::translatedWord(english, constitutiveTranslator()));
}

QString translated(const vxConstitutive::Finding& finding, const vxUnits::UnitSystem& system)
{
    return QString::fromStdString(vxConstitutive::describe(finding, constitutiveTranslator(), system));
}

QString severityText(vxConstitutive::Severity severity)
{
    const auto tr = [](const char* text) { return QCoreApplication::translate("vxInspector::FindingTable", text); };
    if (severity == vxConstitutive::Severity::Error)
        return tr(QT_TRANSLATE_NOOP("vxInspector::FindingTable", "Error"));
    return severity == vxConstitutive::Severity::Warning ? tr(QT_TRANSLATE_NOOP("vxInspector::FindingTable", "Warning"))
                                                         : tr(QT_TRANSLATE_NOOP("vxInspector::FindingTable", "Note"));
}

} // namespace vxInspector
