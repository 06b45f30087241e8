#include "MaterialCheck.h"

#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"
#include "kelta/UnappliedEdits.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/gui/FindingText.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxUnits/Plausibility.h"

#include <QCoreApplication>

#include <algorithm>
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

/// Returns the slot of a doubt, which knows its quantity by the id.
std::int32_t slotOf(const vxUnits::Doubt& doubt, const vxMat::MaterialBase& material)
{
    for (const auto& [slot, property] : material.properties)
        if (property->id == doubt.id)
            return slot;
    return doubt.id;
}

void tellOmitted(std::size_t findings)
{
    if (findings > mostReported)
        Kelta::MessageLog::warning(tr("Further findings are not listed: %1.").arg(findings - mostReported));
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

std::vector<CheckedValue> doubtsBesides(const std::vector<CheckedValue>& findings, const vxMat::MaterialBase& material,
                                        const vxUnits::UnitSystem& shown)
{
    std::vector<CheckedValue> doubts;
    for (const vxUnits::Doubt& doubt : vxUnits::checkPlausibility(material, shown)) {
        const std::int32_t slot = slotOf(doubt, material);
        const bool isFound =
            std::any_of(findings.begin(), findings.end(), [slot](const CheckedValue& one) { return one.slot == slot; });
        if (!isFound)
            doubts.push_back({slot, vxInspector::translated(doubt)});
    }
    return doubts;
}

std::size_t reportImported(const std::vector<const Mat::MaterialObject*>& objects,
                           const std::vector<std::vector<CheckedValue>>& findings)
{
    std::size_t found = 0;
    std::size_t materials = 0;
    for (std::size_t i = 0; i < std::min(objects.size(), findings.size()); ++i) {
        const Mat::MaterialObject& object = *objects[i];
        const auto doubts =
            doubtsBesides(findings[i], *object.getCMaterial(), vxInspector::shownSystem(*object.get_project()));
        const QString label = QString::fromStdString(object.label.getValue());
        materials += findings[i].empty() && doubts.empty() ? 0 : 1;
        for (const auto& list : {findings[i], doubts})
            for (const CheckedValue& one : list)
                if (++found <= mostReported)
                    Kelta::MessageLog::warning(tr("\"%1\": %2").arg(label, one.text), linkTo(object, one.slot));
    }
    tellOmitted(found);
    return materials;
}

CheckSummary checkAndReport(const Mat::DocumentMaterial& project)
{
    CheckSummary summary;
    for (const Mat::MaterialObject* const object : Mat::materialsOf(project))
        checkMaterial(*object, summary);
    tellOmitted(summary.findings);
    if (const Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst())
        summary.unapplied = findUnapplied(*mainWindow, project).size();
    return summary;
}

} // namespace desktop
