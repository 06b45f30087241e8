#include "MaterialImport.h"

#include "ImportUnits.h"
#include "MaterialCheck.h"

#include "Gui/CopyLabels.h"
#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"
#include "decks/DeckImport.h"
#include "kelta/BusyCursor.h"
#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectStore.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <utility>

namespace desktop {

namespace {

projectfile::ImportedMaterials read(const QString& path)
{
    const BusyCursor busy;
    try {
        return projectfile::importExchange(projectfile::readFile(path), projectfile::Numbering::Anew);
    } catch (const projectfile::ContentError& error) {
        throw std::runtime_error(path.toStdString() + ": " + error.what());
    }
}

Obj::ProjectObject* addMaterial(Obj::Project& project, const projectfile::ImportedMaterial& entry,
                                const std::string& label)
{
    auto* const object =
        static_cast<Mat::MaterialObject*>(project.add_object("Mat::MaterialObject", entry.label.c_str()));
    object->label.setValue(label);
    vxMat::CMaterial& material = *object->getCMaterial();
    material.name = entry.material->name;
    material.properties = std::move(entry.material->properties);
    object->refreshProperties(true);
    return object;
}

void requireNumbers(const Obj::Project& project, std::size_t count)
{
    constexpr std::uint64_t lastNumber = std::numeric_limits<std::uint32_t>::max();
    if (project.getNextObjectId() + count > lastNumber + 1)
        throw std::runtime_error(QCoreApplication::translate("desktop::ProjectFiles",
                                                             "The project has no numbers left for so many materials.")
                                     .toStdString());
}

ImportOutcome addMaterials(Obj::Project& project, const projectfile::ImportedMaterials& imported, const QString& path)
{
    requireNumbers(project, imported.materials.size());
    ImportOutcome outcome;
    const vxMsg::MessageProxy::Group group(
        QCoreApplication::translate("desktop::ProjectFiles", "Import \"%1\"").arg(QFileInfo(path).fileName()));
    Gui::CopyLabels labels(project);
    for (const projectfile::ImportedMaterial& entry : imported.materials) {
        const QString wanted = QString::fromStdString(entry.label);
        const QString label = labels.make(wanted);
        outcome.objects.push_back(addMaterial(project, entry, label.toStdString()));
        if (label != wanted)
            outcome.newLabels.push_back({wanted, label});
    }
    outcome.doubts = imported.doubts;
    return outcome;
}

/// Returns the step that adds materials, and then reports sentences about their file.
ImportStep makeStep(projectfile::ImportedMaterials materials, const QString& path, const QStringList& reports)
{
    // The step is a function object that can be copied; the materials cannot be.
    const auto imported = std::make_shared<projectfile::ImportedMaterials>(std::move(materials));
    return [imported, path, reports](Obj::Project& project) {
        ImportOutcome outcome = addMaterials(project, *imported, path);
        for (const QString& report : reports)
            if (!report.isEmpty())
                Kelta::MessageLog::information(path + QStringLiteral(": ") + report);
        return outcome;
    };
}

/// Shows the findings about the materials of a deck.
void reportFindings(const ImportOutcome& outcome, const std::vector<std::vector<CheckedValue>>& findings)
{
    std::vector<const Mat::MaterialObject*> objects;
    for (const Obj::ProjectObject* const object : outcome.objects)
        objects.push_back(static_cast<const Mat::MaterialObject*>(object));
    Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    if (reportImported(objects, findings) > 0 && mainWindow != nullptr)
        mainWindow->showMessages();
}

ImportStep readDeck(const DeckFile& file)
{
    auto deck = importDeck(file);
    if (!deck)
        return {};
    return [add = makeStep(std::move(deck->materials), file.path, deck->reports),
            findings = std::move(deck->findings)](Obj::Project& project) {
        ImportOutcome outcome = add(project);
        reportFindings(outcome, findings);
        return outcome;
    };
}

} // namespace

ImportStep readMaterialDocument(const QString& path)
{
    if (const auto deck = recogniseDeck(path))
        return readDeck(*deck);
    projectfile::ImportedMaterials imported = read(path);
    const auto units = chooseImportUnits(path, imported);
    if (!units)
        return {};
    const QString report = convertToCatalogue(imported, *units);
    return makeStep(std::move(imported), path, {report});
}

} // namespace desktop
