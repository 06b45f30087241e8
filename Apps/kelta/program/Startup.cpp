#include "Startup.h"

#include "FileCommands.h"
#include "FileDrops.h"
#include "Help.h"

#include "Gui/Contributions.h"
#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Kelta/MessageLog.h"
#include "Kelta/PluginLoader.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>

#include <memory>
#include <utility>

namespace desktop {

void startFiles(Gui::MainWindow& window, ProjectFiles::Options options)
{
    auto files = std::make_unique<ProjectFiles>(window, options);
    Gui::GuiApplication& application = *Gui::GuiApplication::Instance;
    addFileCommands(application.get_command_manager(), *files);
    listRecentFilesOnWelcomePage(application.contributions(), *files);
    addHelp(application, *files);
    window.setAcceptDrops(true);
    window.installEventFilter(new FileDrops(*files, window)); // the window owns it
    FileService::setInstance(std::move(files));
}

bool loadModules(Gui::MainWindow& window)
{
    static Kelta::PluginLoader loader;
    const Kelta::PluginLoader::Outcome modules = loader.loadAll();
    if (modules.loaded.isEmpty() && modules.failed.empty())
        Kelta::MessageLog::error(QCoreApplication::translate("kelta", "No module was found in %1.")
                                     .arg(Kelta::PluginLoader::standardFolders().join(QStringLiteral(", "))));
    const bool hasWorkbench = window.setDefaultWorkbench();
    return hasWorkbench && !modules.loaded.isEmpty() && modules.failed.empty();
}

void keepStartPicture(Gui::MainWindow& window)
{
    // Otherwise the user has not closed the window, and its layout is not stored.
    if (window.isVisible() || !window.isComplete())
        return;
    FileService::instance()->end();
    vxMsg::MessageProxy::instance().undoStack().clear();
    Obj::Application::instance().closeAllProjects();
    window.keepStartPicture();
}

void shutDown()
{
    if (FileService* const files = FileService::instance())
        files->end();
    FileService::setInstance(nullptr);
    vxMsg::MessageProxy::instance().undoStack().clear();
    Obj::Application::instance().closeAllProjects();
    Gui::Translator::instance()->clear();
}

} // namespace desktop
