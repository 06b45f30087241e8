#include "vxMaterial/gui/SimModule.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "vxMaterial/gui/MaterialView.h"

#include <QColor>
#include <QToolBar>

#include <memory>
#include <utility>

namespace MatGui {

namespace {

/// Returns whether a material editor is active. Only a material editor could use colours.
bool isMaterialEditorActive()
{
    const Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    if (Gui::GuiApplication::Instance == nullptr || mainWindow == nullptr ||
        Gui::GuiApplication::Instance->get_current_project() == nullptr)
        return false;
    const Gui::MDIWindow* const window = mainWindow->get_active_mdi_window();
    return window != nullptr && window->is_inherited_from(MaterialView::getClassTypeId());
}

template <typename Item>
std::unique_ptr<Item> makeGroup(const char* text, std::initializer_list<const char*> commands)
{
    auto group = std::make_unique<Item>();
    group->setCommand(text);
    for (const char* command : commands)
        *group << command;
    return group;
}

} // namespace

WorkbenchHelper::WorkbenchHelper() = default;

WorkbenchHelper::~WorkbenchHelper() = default;

void WorkbenchHelper::setForegroundColor(const QColor&)
{
    static_cast<void>(isMaterialEditorActive());
}

void WorkbenchHelper::setBackgroundColor(const QColor&)
{
    static_cast<void>(isMaterialEditorActive());
}

KELTA_REGISTER_CLASS(MatGui::SimModule, Gui::StdSimModule)

SimModule::SimModule() : workbenchHelper(new WorkbenchHelper) {}

SimModule::SimModule(SimModule& other)
    : StdSimModule(), toolbarFound(other.toolbarFound), workbenchHelper(std::exchange(other.workbenchHelper, nullptr))
{}

// NOLINTNEXTLINE(misc-unconventional-assign-operator): takes the helper of the other workbench
SimModule& SimModule::operator=(SimModule& other)
{
    if (&other == this)
        return *this;
    delete workbenchHelper;
    workbenchHelper = std::exchange(other.workbenchHelper, nullptr);
    toolbarFound = other.toolbarFound;
    return *this;
}

SimModule::~SimModule()
{
    delete workbenchHelper;
}

void SimModule::activated()
{
    const Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    if (toolbarFound || mainWindow == nullptr)
        return;
    // The flag would end the search. It is never set, since toolbars may be added later.
    if (mainWindow->findChildren<QToolBar*>(QStringLiteral("MaterialGUI")).size() == 1)
        toolbarFound = false;
}

Gui::MenuItem* SimModule::build_menu_bar() const
{
    Gui::MenuItem* const menuBar = StdSimModule::build_menu_bar();
    menuBar->insert_item(menuBar->look_for_item("&Windows"),
                         makeGroup<Gui::MenuItem>("&Material", {"Mat_Export"}).release());
    return menuBar;
}

Gui::ToolBarGadget* SimModule::build_toolbars() const
{
    Gui::ToolBarGadget* const toolbars = StdSimModule::build_toolbars();
    *toolbars << makeGroup<Gui::ToolBarGadget>("Material", {"Mat_Export"}).release();
    return toolbars;
}

Gui::ToolBarGadget* SimModule::build_message_bars() const
{
    auto bars = std::make_unique<Gui::ToolBarGadget>();
    *bars << makeGroup<Gui::ToolBarGadget>("Material", {"Mat_Import", "Mat_Export"}).release();
    return bars.release();
}

} // namespace MatGui
