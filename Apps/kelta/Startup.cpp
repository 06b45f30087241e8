#include "Startup.h"

#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Kelta/MessageLog.h"
#include "Kelta/PluginLoader.h"
#include "Obj/Application.h"
#include "kelta/FileService.h"
#include "vxMsg/MessageProxy.h"

namespace kelta {

bool loadMaterials()
{
    static Kelta::PluginLoader loader;
    Gui::MainWindow& window = *Gui::MainWindow::get_main_window_inst();
    const bool loaded = loader.load(QStringLiteral("vxMaterial"), {"initMat", "initMatGui"}) &&
                        loader.load(QStringLiteral("KeltaMaterials"), {"initKeltaMaterials"});
    if (!loaded)
        Kelta::MessageLog::error(loader.errorText());
    return window.set_workbench(loaded ? "MatGui::SimModule" : "Gui::StdSimModule") && loaded;
}

void shutDown()
{
    if (FileService* const files = FileService::instance())
        files->end();
    FileService::set_instance(nullptr);
    vxMsg::MessageProxy::instance().undoStack().clear();
    Obj::Application::instance().close_all_projects();
    Gui::Translator::instance()->clear();
}

} // namespace kelta
