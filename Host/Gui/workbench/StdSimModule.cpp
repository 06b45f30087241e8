#include "Gui/StdSimModule.h"

#include <initializer_list>
#include <memory>

namespace Gui {

namespace {

template <typename Item>
struct Branch
{
    const char* text = "";
    std::initializer_list<const char*> commands;
};

template <typename Item>
std::unique_ptr<Item> makeTree(std::initializer_list<Branch<Item>> branches)
{
    auto root = std::make_unique<Item>();
    for (const Branch<Item>& branch : branches) {
        auto item = std::make_unique<Item>();
        item->set_command(branch.text);
        for (const char* command : branch.commands)
            *item << command;
        *root << item.release();
    }
    return root;
}

} // namespace

KELTA_REGISTER_CLASS(Gui::StdSimModule, Kelta::RootClass)

StdSimModule::StdSimModule() = default;

StdSimModule::~StdSimModule() = default;

void StdSimModule::build_context_menu(const char*, MenuItem*) const {}

void StdSimModule::build_context_popup_menu(MenuItem*) const {}

void StdSimModule::activated() {}

void StdSimModule::deactivated() {}

MenuItem* StdSimModule::build_menu_bar() const
{
    return makeTree<MenuItem>(
               {
                   {"&File",
                    {"Mat_NewDoc", "Std_Open", "Std_OpenRecent", "Separator", "Std_Save", "Std_SaveAs", "Separator",
                     "Std_ImportDocument", "Separator", "Mat_DelDoc", "Std_Quit"}},
                   {"&Edit",
                    {"Std_Undo", "Std_Redo", "Separator", "Std_Copy", "Std_Paste", "Std_DuplicateSelection",
                     "Mat_Delete", "Separator", "Std_SelectAll", "Std_Rename", "Separator", "Std_Suppress",
                     "Std_Unsuppress"}},
                   {"&Project", {"Mat_AddMaterial", "Mat_Edit", "Separator", "Mat_Import"}},
                   {"&View",
                    {"Std_ProjectExplorer", "Std_PropertyPanel", "Std_MessageLog", "Separator", "Std_ClearMessages"}},
                   {"&Windows",
                    {"Std_TabWindows", "Std_TileWindows", "Std_CascadeWindows", "Separator", "Std_CloseWindow",
                     "Std_CloseAllWindows"}},
                   {"&Help", {"Std_About"}},
               })
        .release();
}

ToolBarGadget* StdSimModule::build_toolbars() const
{
    return makeTree<ToolBarGadget>({
                                       {"File", {"Mat_NewDoc", "Std_Open", "Std_Save", "Mat_AddMaterial"}},
                                       {"Edit", {"Std_Undo", "Std_Redo", "Separator", "Std_Copy", "Std_Paste"}},
                                   })
        .release();
}

ToolBarGadget* StdSimModule::build_message_bars() const
{
    return makeTree<ToolBarGadget>({{"Messages", {"Std_ClearMessages"}}}).release();
}

ToolBarGadget* StdSimModule::build_docking_windows() const
{
    return makeTree<ToolBarGadget>({{"ProjectExplorer", {}}, {"PropertyPanel", {}}, {"MessageLog", {}}}).release();
}

} // namespace Gui
