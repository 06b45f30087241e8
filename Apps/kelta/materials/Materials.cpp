#include "EditorWatch.h"
#include "FileCommands.h"
#include "FileDrops.h"
#include "MaterialContributions.h"
#include "MaterialGuards.h"
#include "MaterialVerbs.h"
#include "ProjectFiles.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "Obj/ContentCodec.h"
#include "kelta/KeltaBatchExport.h"
#include "projectfile/MaterialRecord.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Requests.h"
#include "vxMsg/MessageProxy.h"

#include <memory>
#include <utility>

namespace {

/// A material that the user adds begins as structural steel, so that there is something to change.
void fillNewMaterial(Obj::ProjectObject& object)
{
    if (auto* const material = dynamic_cast<Mat::MaterialObject*>(&object))
        material->initCMaterial(vxMat::eMaterialType::StructuralSteel);
}

Json::Value writeContent(const Obj::ProjectObject& object)
{
    return projectfile::writeMaterial(*static_cast<const Mat::MaterialObject&>(object).getCMaterial());
}

void readContent(Obj::ProjectObject& object, const Json::Value& content)
{
    projectfile::readMaterial(*static_cast<Mat::MaterialObject&>(object).getCMaterial(), content);
}

/// Files, and a history of what is applied in editors, for as long as there is the main window.
void addFiles(Gui::MainWindow& mainWindow)
{
    auto files = std::make_unique<kelta::ProjectFiles>(mainWindow);
    kelta::addFileCommands(Gui::GuiApplication::Instance->get_command_manager(), *files);
    mainWindow.setAcceptDrops(true);
    mainWindow.installEventFilter(new kelta::FileDrops(*files, mainWindow));
    new kelta::EditorWatch(mainWindow); // the main window owns it
    kelta::FileService::set_instance(std::move(files));
}

/// What the user sees of materials in the window.
void addToWindows(Gui::GuiApplication& application)
{
    kelta::registerMaterialContributions(application);
    kelta::addMaterialGuards(application.get_command_manager());
}

} // namespace

/// The entry by which the program loads this side, after the plug-in. Safe to call more than once. Throws nothing; errors
/// are reported to the message log.
extern "C" __attribute__((visibility("default"))) void initKeltaMaterials()
{
    static bool done = false;
    if (std::exchange(done, true))
        return;
    Kelta::guarded(QStringLiteral("initKeltaMaterials"), [] {
        Mat::registerRequests();
        Obj::registerContentCodec("Mat::MaterialObject", {writeContent, readContent});
        kelta::registerMaterialVerbs();
        if (Gui::GuiApplication::Instance != nullptr)
            addToWindows(*Gui::GuiApplication::Instance);
        if (Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst())
            addFiles(*mainWindow);
        vxMsg::MessageProxy::instance().objectCreated.connect(fillNewMaterial);
    });
}
