#include "Startup.h"

#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Kelta/MessageLog.h"
#include "Kelta/PluginLoader.h"
#include "Obj/Application.h"
#include "kelta/FileService.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>

namespace kelta {

bool loadMaterials()
{
    static Kelta::PluginLoader loader;
    Gui::MainWindow& window = *Gui::MainWindow::get_main_window_inst();
    const Kelta::PluginLoader::Outcome modules = loader.loadAll();
    const bool loaded = modules.loaded.contains(QStringLiteral("KeltaMaterials"));
    if (modules.loaded.isEmpty() && modules.failed.empty())
        Kelta::MessageLog::error(QCoreApplication::translate("kelta", "No module was found in %1.")
                                     .arg(Kelta::PluginLoader::standardFolders().join(QStringLiteral(", "))));
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
