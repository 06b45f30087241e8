#include "Application.h"

#include "FileCommands.h"
#include "Fuzzing.h"
#include "ProjectFiles.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "kelta/FileService.h"
#include "vxMaterial/project/Module.h"
#include "vxMsg/MessageProxy.h"

#include <QUndoStack>

#include <memory>

extern "C" void initKeltaMaterials();

namespace vxfuzz {

namespace {

Gui::MainWindow* window = nullptr;

} // namespace

void startApplication()
{
    useNoDisplay();
    enterOwnFolder();
    static int count = 1;
    static char name[] = "fuzzer";
    static char* arguments[] = {name, nullptr};
    auto* const application = new Gui::GuiApplication(count, arguments); // lives as long as the process
    window = new Gui::MainWindow();                                      // so does the window
    auto files = std::make_unique<desktop::ProjectFiles>(*window, desktop::ProjectFiles::Options());
    desktop::addFileCommands(application->get_command_manager(), *files);
    desktop::FileService::setInstance(std::move(files));
    initMat();
    initMatGui();
    initKeltaMaterials();
    window->setDefaultWorkbench();
    window->show();
}

Gui::MainWindow& mainWindow()
{
    return *window;
}

void resetApplication()
{
    window->closeAllWindows();
    vxMsg::MessageProxy::instance().undoStack().clear();
    Obj::Application::instance().closeAllProjects();
    Gui::TreeSelectionSingleton::instance().clear();
    Kelta::MessageLog::instance().clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    emptyOwnFolder();
    window->show();
}

} // namespace vxfuzz
