#include "MaterialExport.h"

#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"
#include "Obj/ReadableName.h"
#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectStore.h"
#include "vxMaterial/exchange/ExportCheck.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
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

/// Returns the name of a property in the language of the user. A name that is not of the catalogue is returned as it is.
QString shownName(const vxMat::MaterialProperty& property)
{
    return QCoreApplication::translate("vxMat::PropertyName", property.name.c_str());
}

/// Returns the sentence about a property of an object for which readers refuse a document.
QString describe(const vxCAE::ExportObstacle& obstacle, const Mat::MaterialObject& object)
{
    const auto& [slot, property] = obstacle.held;
    const QString name = shownName(*property);
    if (obstacle.fault == vxCAE::ExportFault::NegativeSlot)
        return tr("The property \"%1\" of \"%2\" has the number %3. Readers of exchange documents refuse numbers below "
                  "0. Make the material again without this property, then export again.")
            .arg(name, labelOf(object), QString::number(slot));
    return tr("The value of \"%1\" of \"%2\" is %3. An exchange document contains only finite numbers. Change the "
              "value, "
              "then export again.")
        .arg(name, labelOf(object), QString::fromStdString(vxMat::formatNumber(property->value)));
}

QString quoted(const QStringList& names)
{
    return QLatin1Char('"') + names.join(QStringLiteral("\", \"")) + QLatin1Char('"');
}

void reportLosses(const Mat::MaterialObject& object)
{
    QStringList lost;
    for (const auto& [slot, property] : vxCAE::findLostValues(*object.getCMaterial()))
        lost << shownName(*property);
    if (!lost.isEmpty())
        Kelta::MessageLog::warning(tr("\"%1\": An exchange document carries no words and lists. Not written: %2.")
                                       .arg(labelOf(object), quoted(lost)));
}

/// Reports the texts that the project keeps beside a material, such as its measurements.
void reportLostSettings(const Mat::MaterialObject& object)
{
    QStringList lost;
    for (const auto& [name, text] : object.getSettings())
        lost << Obj::readableName(name.c_str());
    if (!lost.isEmpty())
        Kelta::MessageLog::warning(tr("\"%1\": An exchange document carries no data that a project keeps beside a "
                                      "material. Not written: %2.")
                                       .arg(labelOf(object), quoted(lost)));
}

} // namespace

QString findExportObstacle(const Mat::DocumentMaterial& project)
{
    for (const Mat::MaterialObject* const object : Mat::materialsOf(project))
        if (const auto obstacles = vxCAE::findExportObstacles(*object->getCMaterial()); !obstacles.empty())
            return describe(obstacles.front(), *object);
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
        for (const Mat::MaterialObject* const object : materials) {
            reportLosses(*object);
            reportLostSettings(*object);
        }
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
