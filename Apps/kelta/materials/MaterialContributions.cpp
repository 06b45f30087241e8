#include "MaterialContributions.h"

#include "MaterialCheck.h"
#include "MaterialFilter.h"
#include "MaterialProjects.h"
#include "ProjectUnitsDialog.h"
#include "UnitsPage.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/Contributions.h"
#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "decks/DeckExport.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>
#include <QKeySequence>

#include <algorithm>
#include <utility>
#include <vector>

namespace desktop {

namespace {

constexpr const char* commandContext = "MaterialCommand";
constexpr const char* projectClass = "Mat::DocumentMaterial";
constexpr const char* workbenchClass = "MatGui::SimModule";

void checkMaterials()
{
    const Mat::DocumentMaterial& project = *currentMaterialProject();
    const CheckSummary summary = checkAndReport(project);
    using Severity = Kelta::LogMessage::Severity;
    Gui::MainWindow::announce(summary.toText(QString::fromUtf8(project.get_name())),
                              summary.isReady() ? Severity::Information : Severity::Warning);
    if (!summary.isReady())
        Gui::MainWindow::get_main_window_inst()->showMessages();
}

void chooseUnits()
{
    openProjectUnits(*currentMaterialProject(), *Gui::MainWindow::get_main_window_inst());
}

bool hasMaterials(const Mat::DocumentMaterial& project)
{
    const std::vector<Obj::ProjectObject*> objects = project.getObjects();
    return std::any_of(objects.begin(), objects.end(), [](const Obj::ProjectObject* object) {
        return dynamic_cast<const Mat::MaterialObject*>(object) != nullptr;
    });
}

/// Returns the reason why there is nothing to export; empty if there is something.
QString whyNotExported()
{
    const Mat::DocumentMaterial* const project = currentMaterialProject();
    if (project == nullptr)
        return QCoreApplication::translate("MaterialCommand", "no material project is open");
    return hasMaterials(*project) ? QString()
                                  : QCoreApplication::translate("MaterialCommand", "the project has no materials");
}

void addMaterialCommands(Gui::CommandController& commands)
{
    Gui::addCommands(
        commands, commandContext,
        {{"Mat_Check", QT_TRANSLATE_NOOP("MaterialCommand", "&Check materials"),
          QT_TRANSLATE_NOOP("MaterialCommand", "Check whether all materials of the project are ready"), "", Qt::Key_F7,
          Gui::CommandType::none, checkMaterials, [] { return currentMaterialProject() != nullptr; }},
         {"Mat_Units",
          QT_TRANSLATE_NOOP("MaterialCommand", "&Units..."),
          QT_TRANSLATE_NOOP("MaterialCommand", "Choose the unit system in which the project is shown"),
          "",
          {},
          Gui::CommandType::none,
          chooseUnits,
          [] { return currentMaterialProject() != nullptr; }},
         {"Mat_ExportDeck",
          QT_TRANSLATE_NOOP("MaterialCommand", "&Export for solver..."),
          QT_TRANSLATE_NOOP("MaterialCommand", "Write the materials in the input format of a solver"),
          "",
          Qt::CTRL + Qt::SHIFT + Qt::Key_E,
          Gui::CommandType::none,
          [] { exportForSolver(); },
          [] { return currentMaterialProject() != nullptr && hasMaterials(*currentMaterialProject()); },
          {},
          {},
          whyNotExported}});
}

/// The keys of commands of the materials module, which has none for them.
void addKeys(Gui::CommandController& commands)
{
    constexpr std::pair<const char*, int> keys[] = {
        {"Mat_NewDoc", Qt::CTRL + Qt::Key_N},
        {"Mat_AddMaterial", Qt::CTRL + Qt::Key_M},
        {"Mat_Export", Qt::CTRL + Qt::Key_E},
    };
    for (const auto& [name, key] : keys)
        if (Gui::Command* const command = commands.findCommand(name))
            command->setShortcut(QKeySequence(key));
}

void addToBars(Gui::Contributions& contributions)
{
    contributions.addToMenu("&File", "New", "Mat_NewDoc");
    contributions.addToMenu("&File", "Import", "Std_ImportDocument");
    contributions.addToMenu("&File", "Import", "Mat_ExportDeck");
    contributions.addToMenu("&Project", "Add", "Mat_AddMaterial");
    contributions.addToMenu("&Project", "Add", "Mat_Edit");
    contributions.addToMenu("&Project", "Import", "Std_ImportDocument");
    contributions.addToMenu("&Project", "Import", "Mat_Import");
    contributions.addToMenu("&Project", "Units", "Mat_Units");
    contributions.addToMenu("&Material", "Export", "Mat_ExportDeck", workbenchClass);
    contributions.addToMenu("&Material", "Check", "Mat_Check", workbenchClass);
    contributions.addToToolBar("File", "New", "Mat_NewDoc");
    contributions.addToToolBar("File", "Add", "Mat_AddMaterial");
    contributions.addToToolBar("File", "Add", "Std_ImportDocument");
    contributions.addToTreeMenu("Mat_NewDoc");
}

constexpr const char* welcomeContext = "MaterialWelcome";

void addWelcome(Gui::Contributions& contributions)
{
    using Gui::WelcomeStep;
    contributions.addWelcomeEntry(
        {WelcomeStep::NoProject,
         "",
         {welcomeContext, QT_TRANSLATE_NOOP("MaterialWelcome", "No project is open")},
         {welcomeContext,
          QT_TRANSLATE_NOOP("MaterialWelcome",
                            "A material project holds the materials of a model. Make a new one, or open a saved one.")},
         {"Mat_NewDoc"}});
    contributions.addWelcomeEntry(
        {WelcomeStep::EmptyProject,
         projectClass,
         {welcomeContext, QT_TRANSLATE_NOOP("MaterialWelcome", "The project has no materials yet")},
         {welcomeContext,
          QT_TRANSLATE_NOOP("MaterialWelcome", "Add a material. It has the values of structural steel; the editor "
                                               "offers 25 other materials and all quantities.")},
         {"Mat_AddMaterial", "Std_ImportDocument"}});
    contributions.addWelcomeEntry(
        {WelcomeStep::NoDocument,
         projectClass,
         {welcomeContext, QT_TRANSLATE_NOOP("MaterialWelcome", "No material is open")},
         {welcomeContext, QT_TRANSLATE_NOOP("MaterialWelcome", "Double-click a material in the project explorer, or "
                                                               "select one and choose Edit.")},
         {"Mat_Edit"},
         isMaterialSelected});
}

} // namespace

void registerMaterialContributions(Gui::GuiApplication& application)
{
    addMaterialCommands(application.get_command_manager());
    Gui::registerObjectJudge("Mat::MaterialObject", [](const Obj::ProjectObject& object) {
        return judgeMaterial(static_cast<const Mat::MaterialObject&>(object));
    });
    addKeys(application.get_command_manager());
    Gui::Contributions& contributions = application.contributions();
    addToBars(contributions);
    addWelcome(contributions);
    registerMaterialFilter(contributions);
    contributions.addAboutText(
        {"MaterialAbout",
         QT_TRANSLATE_NOOP("MaterialAbout", "Materials for finite-element simulation: 26 ready-made materials, 36 "
                                            "quantities, and the documents and cards that the solver reads.")});
    contributions.addPreferencesPage({"Units",
                                      {"desktop::UnitsPage", QT_TRANSLATE_NOOP("desktop::UnitsPage", "Units")},
                                      [] { return new UnitsPage; }});
    contributions.addWorkbench(
        {workbenchClass, {"Workbench", QT_TRANSLATE_NOOP("Workbench", "Material")}, projectClass});
}

} // namespace desktop
