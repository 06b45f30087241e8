#include "MaterialVerbs.h"

#include "ImportUnits.h"
#include "MaterialCheck.h"
#include "MaterialProjects.h"
#include "ProjectUnitsDialog.h"

#include "Gui/TreeSelectionSingleton.h"
#include "cells/CellReading.h"
#include "cells/TypedValue.h"
#include "decks/DeckExport.h"
#include "decks/DeckMaking.h"
#include "kelta/Batch.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/gui/FindingText.h"
#include "vxMaterial/gui/MaterialChange.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyRules.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxUnits/Filter.h"
#include "vxUnits/Quantity.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace desktop {

namespace {

using Failure = std::optional<QString>;

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::Batch", text);
}

/// Returns the first material project; null if none is open.
Mat::DocumentMaterial* findProject()
{
    const auto projects = materialProjects();
    return projects.empty() ? nullptr : projects.front();
}

/// Returns the selected object; null unless exactly one material of a material project is selected.
Mat::MaterialObject* selectedMaterial()
{
    const auto objects =
        Gui::TreeSelectionSingleton::instance().get_objects_of_type(Mat::MaterialObject::getClassTypeId());
    if (objects.size() != 1 || dynamic_cast<Mat::DocumentMaterial*>(objects.front()->get_project()) == nullptr)
        return nullptr;
    return static_cast<Mat::MaterialObject*>(objects.front());
}

bool isSame(const std::string& name, const QString& typed)
{
    return QString::fromStdString(name).compare(typed, Qt::CaseInsensitive) == 0;
}

Failure useLibraryMaterial(const QStringList& arguments)
{
    Mat::MaterialObject* const object = selectedMaterial();
    if (object == nullptr || arguments.size() != 1)
        return tr("give the name of a library material, and select exactly one material");
    for (const auto& [type, material] : object->getMatMgr().materials) {
        if (!isSame(material->name, arguments[0]))
            continue;
        auto before = MatGui::copyOf(*object->getCMaterial());
        object->setCMaterial(material.get());
        MatGui::recordChange(*object, std::move(before));
        return std::nullopt;
    }
    return tr("the library has no material \"%1\"").arg(arguments[0]);
}

/// Returns the reason if a value breaks a rule of the quantity, or if a part of its text would be ignored.
Failure findFault(std::int32_t id, const std::string& value)
{
    // The rules read "7850 kg" as 0, so the ignored text is the better reason.
    if (const auto ignored = vxMat::findIgnoredText(id, value))
        return tr(R"(the value "%1" would be read as "%2"; "%3" would be ignored; give the value without it)")
            .arg(QString::fromStdString(value), QString::fromStdString(ignored->readAs),
                 QString::fromStdString(ignored->text));
    if (const char* const wrong = vxMat::checkRow(id, value))
        return QString::fromUtf8(vxMat::withoutRowNumber(wrong).data());
    return std::nullopt;
}

bool isFinite(const vxMat::MaterialProperty& property)
{
    return std::isfinite(property.value) && std::all_of(property.values.begin(), property.values.end(),
                                                        [](double number) { return std::isfinite(number); });
}

/// Gives a material a quantity of the catalogue. Takes the value from a text of the editor's table, and name, unit and
/// description from the catalogue.
Failure setValue(Mat::MaterialObject& object, const vxMat::MaterialProperty& quantity, const std::string& value)
{
    if (Failure fault = findFault(quantity.id, value))
        return fault;
    auto property = std::make_unique<vxMat::MaterialProperty>(quantity.id, quantity.name, value, quantity.key,
                                                              quantity.description);
    if (!isFinite(*property))
        return tr("the value \"%1\" is not a finite number").arg(QString::fromStdString(value));
    property->unit = quantity.unit;
    property->category = quantity.category;
    auto before = MatGui::copyOf(*object.getCMaterial());
    object.getCMaterial()->setProperty(quantity.id, std::move(property));
    MatGui::recordChange(object, std::move(before));
    return std::nullopt;
}

/// Gives a material a quantity of the catalogue. Reads a number as the editor does: with a unit, or in SI.
Failure setQuantity(Mat::MaterialObject& object, const vxMat::MaterialProperty& quantity, const std::string& value)
{
    if (!takesNumbers(quantity.id))
        return setValue(object, quantity, value);
    const auto typed = readTyped(quantity.id, value, vxUnits::creepExponents(*object.getCMaterial()));
    return typed ? setValue(object, quantity, typed->stored) : reasonOf(typed.failure(), QString::fromStdString(value));
}

Failure setNamedQuantity(const QStringList& arguments)
{
    Mat::MaterialObject* const object = selectedMaterial();
    if (object == nullptr || arguments.size() != 2)
        return tr("give a quantity and its value, and select exactly one material");
    const std::string name = arguments[0].toStdString();
    const auto& catalogue = object->getMatMgr().propertyCatalogue;
    const auto named = vxUnits::findQuantityNamed(name);
    if (const auto found = catalogue.find(named ? named->id : 0); found != catalogue.end())
        return setQuantity(*object, *found->second, arguments[1].toStdString());
    const std::vector<std::string> nearest = vxUnits::nearestQuantityNames(name);
    return nearest.empty() ? tr("the catalogue has no quantity \"%1\"").arg(arguments[0])
                           : tr(R"(the catalogue has no quantity "%1"; did you mean "%2"?)")
                                 .arg(arguments[0], QString::fromStdString(nearest.front()));
}

Failure clearMaterial(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return tr("arguments are not allowed here");
    Mat::MaterialObject* const object = selectedMaterial();
    if (object == nullptr)
        return tr("one selected material is needed");
    auto before = MatGui::copyOf(*object->getCMaterial());
    object->getCMaterial()->clearProperties();
    MatGui::recordChange(*object, std::move(before));
    return std::nullopt;
}

/// Fails if any material has a finding.
Failure checkMaterials(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return tr("arguments are not allowed here");
    const Mat::DocumentMaterial* const project = findProject();
    if (project == nullptr)
        return tr("there is no material project");
    const CheckSummary summary = checkAndReport(*project);
    return summary.isReady() ? Failure() : Failure(summary.toText(QString::fromUtf8(project->get_name())));
}

/// The command asks whether to close the open project. A list cannot ask the user, and must not lose the project.
Failure makeProject(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return tr("arguments are not allowed here");
    if (const Obj::Project* const open = findProject())
        return tr("the material project \"%1\" is open; close it first with select-project and Mat_DelDoc")
            .arg(QString::fromUtf8(open->get_name()));
    return Batch::invokeCommand(QStringLiteral("Mat_NewDoc"), {});
}

Failure exportMaterials(const QStringList& arguments)
{
    if (arguments.size() != 1 || arguments.front().isEmpty())
        return tr("Mat_Export needs one argument, the name of the file to write");
    return Batch::invokeCommand(QStringLiteral("Mat_Export"), arguments);
}

QString namesOfFormats()
{
    QStringList names;
    for (const vxDecks::FormatInfo& format : vxDecks::formats())
        names << QString::fromLatin1(format.name);
    return names.join(QStringLiteral(", "));
}

/// The command opens a dialog.
Failure exportDeck(const QStringList& arguments)
{
    Mat::DocumentMaterial* const project = findProject();
    if (project == nullptr)
        return tr("there is no material project");
    if (arguments.size() < 2 || arguments.size() > 3 || arguments[1].isEmpty())
        return tr("give a solver, the name of the file to write, and the unit system of the deck if it is not that of "
                  "the project");
    const vxDecks::FormatInfo* const format = vxDecks::findFormat(arguments[0].toStdString());
    if (format == nullptr)
        return tr("there is no solver \"%1\"; the solvers are: %2").arg(arguments[0], namesOfFormats());
    DeckRequest request{vxInspector::deckForm(format->format, {}), vxInspector::shownSystem(*project)};
    if (arguments.size() > 2) {
        const auto system = vxUnits::UnitSystem::parse(arguments[2].toStdString());
        if (!system)
            return vxInspector::translated(system.failure());
        request.units = *system;
    }
    return exportForSolver(*project, request, arguments[1]);
}

Failure printCards(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return tr("arguments are not allowed here");
    const Mat::DocumentMaterial* const project = findProject();
    if (project == nullptr)
        return tr("there is no material project");
    QString text;
    QTextStream output(&text);
    for (const Mat::MaterialObject* const object : Mat::materialsOf(*project)) {
        vxCAE::MaterialEntry entry;
        object->getCMaterial()->copyTo(entry.material.get());
        entry.classifyKind();
        const vxCAE::CardSet cards = vxCAE::makeCardSet(entry, vxCAE::MaterialSource::Complete);
        const QString label = QString::fromStdString(object->label.getValue());
        output << label << '\n';
        for (const vxCAE::SolverCard& card : cards.cards)
            output << QString::fromStdString(card.name + ":\n" + card.text) << '\n';
        for (const vxMat::MaterialFinding& doubt : cards.doubts)
            QTextStream(stderr) << Batch::printable(label + QStringLiteral(": ") + MatGui::findingText(doubt)) << '\n';
    }
    return Batch::print(text);
}

/// The command adds an empty material, because materials are imported from exchange documents only.
Failure importMaterials(const QStringList&)
{
    return tr("Mat_Import reads no files; import an exchange document with Std_ImportDocument");
}

/// The command asks for the units of the document.
Failure importDocument(const QStringList& arguments)
{
    if (arguments.size() > 2)
        return tr(
            "give the name of a document or deck, and the unit system of its numbers if it is not SI or declared");
    std::optional<vxUnits::UnitSystem> units;
    if (arguments.size() == 2) {
        const auto system = vxUnits::UnitSystem::parse(arguments[1].toStdString());
        if (!system)
            return vxInspector::translated(system.failure());
        units = *system;
    }
    const UnaskedImport unasked(std::move(units));
    return Batch::invokeCommand(QStringLiteral("Std_ImportDocument"), arguments.mid(0, 1));
}

/// The command opens a dialog.
Failure setUnits(const QStringList& arguments)
{
    const Mat::DocumentMaterial* const project = currentMaterialProject();
    if (project == nullptr || arguments.size() > 1)
        return tr("give one unit system at most, and make a material project the current one");
    if (arguments.isEmpty()) {
        setProjectUnits(*project, {});
        return std::nullopt;
    }
    const auto system = vxUnits::UnitSystem::parse(arguments.front().toStdString());
    if (!system)
        return vxInspector::translated(system.failure());
    // If the request is refused, the reason is in the message log, and Batch fails with this reason.
    setProjectUnits(*project, QString::fromStdString(system->text()));
    return std::nullopt;
}

/// Runs a command on the selected objects. Fails if none of the class is selected, because it would do nothing.
Failure runOnSelection(const char* command, Kelta::TypeInfo type, const QStringList& arguments)
{
    if (Gui::TreeSelectionSingleton::instance().get_objects_of_type(type).empty())
        return tr("nothing is selected that %1 acts on").arg(QString::fromLatin1(command));
    return Batch::invokeCommand(QString::fromLatin1(command), arguments);
}

Failure editMaterials(const QStringList& arguments)
{
    return runOnSelection("Mat_Edit", Mat::MaterialObject::getClassTypeId(), arguments);
}

Failure deleteObjects(const QStringList& arguments)
{
    return runOnSelection("Mat_Delete", Obj::ProjectObject::getClassTypeId(), arguments);
}

Failure closeProject(const QStringList& arguments)
{
    const auto tag = static_cast<std::uint32_t>(Mat::materialProjectTag);
    if (Gui::TreeSelectionSingleton::instance().get_projects(tag).size() != 1)
        return tr("one selected material project is needed");
    return Batch::invokeCommand(QStringLiteral("Mat_DelDoc"), arguments);
}

} // namespace

void registerMaterialVerbs()
{
    Batch::registerVerb(QStringLiteral("use"), useLibraryMaterial);
    Batch::registerVerb(QStringLiteral("set"), setNamedQuantity);
    Batch::registerVerb(QStringLiteral("clear"), clearMaterial);
    Batch::registerVerb(QStringLiteral("check"), checkMaterials);
    // The commands of the same names ask the user for data that a list must contain.
    Batch::registerVerb(QStringLiteral("Mat_Check"), checkMaterials);
    Batch::registerVerb(QStringLiteral("Mat_NewDoc"), makeProject);
    Batch::registerVerb(QStringLiteral("Mat_Export"), exportMaterials);
    Batch::registerVerb(QStringLiteral("Mat_ExportDeck"), exportDeck);
    Batch::registerVerb(QStringLiteral("cards"), printCards);
    Batch::registerVerb(QStringLiteral("Mat_Import"), importMaterials);
    Batch::registerVerb(QStringLiteral("Mat_Units"), setUnits);
    Batch::registerVerb(QStringLiteral("Std_ImportDocument"), importDocument);
    // The commands of the same names do nothing if nothing is selected.
    Batch::registerVerb(QStringLiteral("Mat_Edit"), editMaterials);
    Batch::registerVerb(QStringLiteral("Mat_Delete"), deleteObjects);
    Batch::registerVerb(QStringLiteral("Mat_DelDoc"), closeProject);
}

} // namespace desktop
