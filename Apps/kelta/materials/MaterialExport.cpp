#include "MaterialExport.h"

#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"
#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectStore.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <exception>
#include <vector>

namespace desktop {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::MaterialExport", text);
}

QString labelOf(const Obj::ProjectObject& object)
{
    return QString::fromStdString(object.label.getValue());
}

bool travels(const vxMat::MaterialProperty& property)
{
    const vxMat::ValueKind kind = vxMat::getValueKind(property.id);
    const bool isNumber = kind == vxMat::ValueKind::Number || kind == vxMat::ValueKind::ModelSwitch;
    return isNumber && property.text.empty() && property.values.empty();
}

void reportLosses(const Mat::MaterialObject& object)
{
    const QStringList lost = findLostValues(*object.getCMaterial());
    if (!lost.isEmpty())
        Kelta::MessageLog::warning(
            tr("\"%1\": An exchange document carries no words and lists. Not written: %2.")
                .arg(labelOf(object), QLatin1Char('"') + lost.join(QStringLiteral("\", \"")) + QLatin1Char('"')));
}

} // namespace

QStringList findLostValues(const vxMat::MaterialBase& material)
{
    QStringList names;
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material))
        if (!travels(*property))
            names << QString::fromStdString(property->name);
    return names;
}

QString findExportObstacle(const Mat::DocumentMaterial& project)
{
    for (const Mat::MaterialObject* const object : Mat::materialsOf(project))
        for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(*object->getCMaterial()))
            if (!std::isfinite(property->value))
                return tr("The value of \"%1\" of \"%2\" is %3. An exchange document contains only finite numbers. "
                          "Change the value, then export again.")
                    .arg(QString::fromStdString(property->name), labelOf(*object),
                         QString::fromStdString(vxMat::formatNumber(property->value)));
    return {};
}

QString findWriteObstacle(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    QFile file(path);
    const bool isNew = !file.exists();
    // Opening a pipe would wait for a reader.
    if (!isNew && !QFileInfo(path).isFile())
        return tr("\"%1\" is not a regular file. Choose another name.").arg(shown);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return tr("\"%1\" cannot be written: %2.").arg(shown, file.errorString());
    file.close();
    if (isNew)
        file.remove();
    return {};
}

void reportExport(const Mat::DocumentMaterial& project, const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    try {
        const std::size_t written = projectfile::importExchange(projectfile::readFile(path)).materials.size();
        const auto materials = Mat::materialsOf(project);
        for (const Mat::MaterialObject* const object : materials)
            reportLosses(*object);
        QString text = tr("Materials written to \"%1\": %2.").arg(shown, QString::number(written));
        const auto suppressed = std::count_if(materials.begin(), materials.end(),
                                              [](const auto* object) { return object->isSuppressed(); });
        if (suppressed != 0)
            text += QLatin1Char(' ') + tr("Suppressed materials among them: %1.").arg(suppressed);
        Gui::MainWindow::announce(text);
    } catch (const std::exception& error) {
        Gui::MainWindow::announce(tr("The export to \"%1\" is not complete: %2 Export again to another place.")
                                      .arg(shown, QString::fromUtf8(error.what())),
                                  Kelta::LogMessage::Severity::Error);
    }
}

} // namespace desktop
