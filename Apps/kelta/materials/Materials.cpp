#include "EditorWatch.h"
#include "MaterialContributions.h"
#include "MaterialCounts.h"
#include "MaterialFiles.h"
#include "MaterialGuards.h"
#include "MaterialVerbs.h"
#include "UnitsDisplay.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "kelta/KeltaShellExport.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Requests.h"
#include "vxMsg/MessageProxy.h"

#include <utility>

namespace {

/// Fills a new material with structural steel, so that the user has values to change.
void fillNewMaterial(Obj::ProjectObject& object)
{
    if (auto* const material = dynamic_cast<Mat::MaterialObject*>(&object))
        material->initCMaterial(vxMat::eMaterialType::StructuralSteel);
}

/// Adds menus, commands and their guards for materials to the window.
void addToWindows(Gui::GuiApplication& application)
{
    desktop::registerMaterialContributions(application);
    desktop::addMaterialGuards(application.get_command_manager());
}

} // namespace

/// The entry function of this module, called after those of the materials module. Safe to call more than once. Throws
/// nothing; errors are reported to the message log.
extern "C" __attribute__((visibility("default"))) void initKeltaMaterials()
{
    static bool done = false;
    if (std::exchange(done, true))
        return;
    Kelta::guarded(QStringLiteral("initKeltaMaterials"), [] {
        Mat::registerRequests();
        desktop::registerMaterialFiles();
        desktop::registerMaterialVerbs();
        if (Gui::GuiApplication::Instance != nullptr)
            addToWindows(*Gui::GuiApplication::Instance);
        if (Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst()) {
            // The main window owns them.
            new desktop::EditorWatch(*mainWindow);
            new desktop::MaterialCounts(*mainWindow);
            new desktop::UnitsDisplay(*mainWindow);
        }
        vxMsg::MessageProxy::instance().objectCreated.connect(fillNewMaterial);
    });
}
