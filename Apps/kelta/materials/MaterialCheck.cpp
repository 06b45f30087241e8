#include "MaterialCheck.h"

#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"
#include "kelta/UnappliedEdits.h"
#include "vxMaterial/gui/FindingText.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>

#include <vector>

namespace desktop {

namespace {

constexpr std::size_t mostReported = 1000;

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::MaterialCheck", text);
}

/// Returns the link to a material, and to the row of a finding. The table of the editor knows a property by its id, which
/// may differ from its slot.
Kelta::LogLink linkTo(const Mat::MaterialObject& object, std::int32_t slot)
{
    const vxMat::MaterialProperty* const property = object.getCMaterial()->findProperty(slot);
    return {object.get_project()->getProjectId(), object.getObjectId(), property != nullptr ? property->id : slot};
}

/// Checks one material and writes its findings to the message log, up to the limit for all materials together.
void checkMaterial(const Mat::MaterialObject& object, CheckSummary& summary)
{
    const std::vector<vxMat::MaterialFinding> findings = vxMat::checkMaterial(*object.getCMaterial());
    const QString label = QString::fromStdString(object.label.getValue());
    ++summary.materials;
    summary.notReady += findings.empty() ? 0 : 1;
    for (const vxMat::MaterialFinding& finding : findings)
        if (++summary.findings <= mostReported)
            Kelta::MessageLog::warning(tr("\"%1\": %2").arg(label, MatGui::findingText(finding)),
                                       linkTo(object, finding.slot));
}

} // namespace

QString CheckSummary::toText(const QString& projectName) const
{
    QString text =
        isReady()
            ? tr("All materials of \"%1\" are ready (%2 checked).").arg(projectName, QString::number(materials))
            : tr("Not ready in \"%1\": %2 of %3 materials. Findings: %4.")
                  .arg(projectName, QString::number(notReady), QString::number(materials), QString::number(findings));
    if (unapplied == 0)
        return text;
    // The doubt is first, because a narrow window cuts the end.
    return tr("Changes in open editors that are not applied were not checked: %1.").arg(unapplied) + QLatin1Char(' ') +
           text;
}

Gui::ObjectStatus judgeMaterial(const Mat::MaterialObject& object)
{
    using Level = Gui::ObjectStatus::Level;
    const vxMat::CMaterial& material = *object.getCMaterial();
    if (material.properties.empty())
        return {Level::Empty};
    QStringList findings;
    for (const vxMat::MaterialFinding& finding : vxMat::checkMaterial(material))
        findings << MatGui::findingText(finding);
    return {findings.isEmpty() ? Level::Ready : Level::WithFindings, findings};
}

CheckSummary checkAndReport(const Mat::DocumentMaterial& project)
{
    CheckSummary summary;
    for (const Mat::MaterialObject* const object : Mat::materialsOf(project))
        checkMaterial(*object, summary);
    if (summary.findings > mostReported)
        Kelta::MessageLog::warning(tr("Further findings are not listed: %1.").arg(summary.findings - mostReported));
    if (const Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst())
        summary.unapplied = findUnapplied(*mainWindow, project).size();
    return summary;
}

} // namespace desktop
