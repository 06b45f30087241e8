#include "curves/ConstitutiveTexts.h"

#include <QCoreApplication>

namespace vxInspector {

namespace {

constexpr const char* context = "vxConstitutive";

QString translatedName(const std::string& english)
{
    const QString name = QCoreApplication::translate(context, english.c_str());
    return name == QString::fromStdString(english) ? QCoreApplication::translate("vxMat::PropertyName", english.c_str())
                                                   : name;
}

} // namespace

vxUnits::Translator constitutiveTranslator()
{
    return [](const char* place, const char* english) {
        return QCoreApplication::translate(place, english).toStdString();
    };
}

QString translated(const vxConstitutive::Finding& finding)
{
    const QString text = QCoreApplication::translate(context, vxConstitutive::findingRecord(finding.id).text);
    QString filled;
    for (int i = 0; i < text.size(); ++i) {
        const int argument = text[i] == QLatin1Char('%') && i + 1 < text.size() ? text[i + 1].digitValue() : -1;
        if (argument < 1 || static_cast<std::size_t>(argument) > finding.arguments.size()) {
            filled += text[i];
            continue;
        }
        filled += translatedName(finding.arguments[static_cast<std::size_t>(argument - 1)]);
        ++i;
    }
    return filled;
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
