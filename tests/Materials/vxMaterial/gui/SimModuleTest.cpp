#include "vxMaterial/gui/SimModule.h"

#include "Mnemonics.h"
#include "VirtualOrder.h"
#include "WorkbenchTesting.h"

#include "Gui/ProjectExplorer.h"
#include "Gui/Translator.h"

#include <QAction>
#include <QMenuBar>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QToolBar>

#include <map>

namespace {

using MatGui::SimModule;
using MatGui::WorkbenchHelper;
using testing::ElementsAre;
using vxtest::slotOf;

template <typename Item>
std::vector<std::string> childrenOf(const Item& item)
{
    std::vector<std::string> names;
    for (const auto& child : item.items())
        names.push_back(child->command());
    return names;
}

using SimModuleTest = vxtest::Workbench;

TEST_F(SimModuleTest, IsRegisteredUnderTheStandardWorkbench)
{
    const auto type = Kelta::TypeInfo::find("MatGui::SimModule");
    EXPECT_EQ(type, SimModule::getClassTypeId());
    EXPECT_STREQ(type.getParent().get_name(), "Gui::StdSimModule");
    const auto created = Kelta::RootClass::createByName("MatGui::SimModule");
    ASSERT_NE(dynamic_cast<SimModule*>(created.get()), nullptr);
    EXPECT_EQ(created->getTypeId(), type);
}

TEST(SimModule, HasTheVirtualOperationsInTheOrderOfTheHost)
{
    using Gui::StdSimModule;
    const std::vector<std::size_t> places = {
        slotOf(&StdSimModule::getTypeId),
        slotOf(&StdSimModule::build_context_menu),
        slotOf(&StdSimModule::build_context_popup_menu),
        slotOf(&StdSimModule::activated),
        slotOf(&StdSimModule::deactivated),
        slotOf(&StdSimModule::build_menu_bar),
        slotOf(&StdSimModule::build_toolbars),
        slotOf(&StdSimModule::build_message_bars),
        slotOf(&StdSimModule::build_docking_windows),
    };
    // Two destructors follow the type id.
    EXPECT_THAT(places, ElementsAre(0, 3, 4, 5, 6, 7, 8, 9, 10));
    EXPECT_EQ(slotOf(&SimModule::build_message_bars), slotOf(&StdSimModule::build_message_bars));
}

TEST_F(SimModuleTest, PutsItsMenuImmediatelyBeforeWindows)
{
    const std::unique_ptr<Gui::MenuItem> menus(SimModule().build_menu_bar());
    const auto names = childrenOf(*menus);
    const auto windows = std::find(names.begin(), names.end(), "&Windows");
    ASSERT_NE(windows, names.end());
    ASSERT_NE(windows, names.begin());
    EXPECT_EQ(*(windows - 1), "&Material");
    EXPECT_THAT(childrenOf(*menus->look_for_item("&Material")), ElementsAre("Mat_Export"));
}

TEST_F(SimModuleTest, KeepsTheMenusOfTheStandardWorkbench)
{
    const std::unique_ptr<Gui::MenuItem> standard(Gui::StdSimModule().build_menu_bar());
    const std::unique_ptr<Gui::MenuItem> menus(SimModule().build_menu_bar());
    auto names = childrenOf(*menus);
    names.erase(std::find(names.begin(), names.end(), "&Material"));
    EXPECT_EQ(names, childrenOf(*standard));
}

TEST_F(SimModuleTest, AddsOneToolbarToTheStandardOnes)
{
    const std::unique_ptr<Gui::ToolBarGadget> standard(Gui::StdSimModule().build_toolbars());
    const std::unique_ptr<Gui::ToolBarGadget> bars(SimModule().build_toolbars());
    auto expected = childrenOf(*standard);
    expected.emplace_back("Material");
    EXPECT_EQ(childrenOf(*bars), expected);
    EXPECT_THAT(childrenOf(*bars->items().back()), ElementsAre("Mat_Export"));
}

TEST_F(SimModuleTest, HasMessageBarsOfItsOwnAlone)
{
    const std::unique_ptr<Gui::ToolBarGadget> bars(SimModule().build_message_bars());
    EXPECT_THAT(childrenOf(*bars), ElementsAre("Material"));
    EXPECT_THAT(childrenOf(*bars->items()[0]), ElementsAre("Mat_Import", "Mat_Export"));
}

TEST_F(SimModuleTest, BuildsNewTreesEachTime)
{
    const SimModule module;
    const std::unique_ptr<Gui::MenuItem> first(module.build_menu_bar());
    const std::unique_ptr<Gui::MenuItem> second(module.build_menu_bar());
    EXPECT_NE(first, second);
    EXPECT_EQ(childrenOf(*first), childrenOf(*second));
}

TEST_F(SimModuleTest, ShowsItsMenuAndToolbarsInTheMainWindow)
{
    QStringList menus;
    for (const QAction* const action : window->menuBar()->actions())
        menus << action->text();
    EXPECT_EQ(menus.indexOf("&Material") + 1, menus.indexOf("&Windows"));
    EXPECT_GE(menus.indexOf("&Material"), 0);
    const auto bars = window->findChildren<QToolBar*>(QRegularExpression(QStringLiteral("^(Bottom)?Material$")));
    ASSERT_EQ(bars.size(), 2);
    EXPECT_EQ(window->toolBarArea(bars[0]), Qt::TopToolBarArea);
    EXPECT_EQ(window->toolBarArea(bars[1]), Qt::BottomToolBarArea);
}

TEST_F(SimModuleTest, HasDifferentKeysAndMnemonicsInEachMenu)
{
    // "Mat_Delete" has the key of "Std_Delete". Only "Std_Delete" gets the key.
    std::map<QKeySequence, std::string> users;
    for (const QAction* const action : window->actions() + window->getProjectExplorer().actions())
        if (!action->shortcut().isEmpty()) {
            EXPECT_TRUE(users.emplace(action->shortcut(), action->objectName().toStdString()).second)
                << action->objectName().toStdString();
        }
    EXPECT_EQ(users[QKeySequence(QKeySequence::Delete)], "Std_Delete");
    for (const char* const language : {"de", "zh_CN", "en"}) {
        Gui::Translator::instance()->setLanguage(QLatin1String(language));
        QCoreApplication::processEvents();
        EXPECT_EQ(vxtest::mnemonicClashes(*window->menuBar()), QStringList()) << language;
    }
}

TEST_F(SimModuleTest, NeverFindsItsToolbar)
{
    SimModule module;
    module.activated();
    EXPECT_FALSE(module.isToolbarFound());
    QToolBar* const bar = window->addToolBar(QStringLiteral("Material"));
    bar->setObjectName(QStringLiteral("MaterialGUI"));
    module.activated();
    EXPECT_FALSE(module.isToolbarFound());
    window->addToolBar(QStringLiteral("Material"))->setObjectName(QStringLiteral("MaterialGUI"));
    module.activated();
    EXPECT_FALSE(module.isToolbarFound());
}

TEST_F(SimModuleTest, IsActivatedWithoutAMainWindowToo)
{
    window.reset();
    SimModule module;
    module.activated();
    EXPECT_FALSE(module.isToolbarFound());
}

TEST(SimModule, HandsItsHelperOverWhenItIsCopied)
{
    SimModule source;
    WorkbenchHelper* const helper = source.getWorkbenchHelper();
    ASSERT_NE(helper, nullptr);
    EXPECT_EQ(helper->parent(), nullptr);
    const SimModule copy(source); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.getWorkbenchHelper(), helper);
    EXPECT_EQ(source.getWorkbenchHelper(), nullptr);
    EXPECT_FALSE(copy.isToolbarFound());
}

TEST(SimModule, HandsItsHelperOverWhenItIsAssigned)
{
    SimModule source;
    SimModule target;
    WorkbenchHelper* const helper = source.getWorkbenchHelper();
    const QPointer<WorkbenchHelper> replaced = target.getWorkbenchHelper();
    target = source;
    EXPECT_EQ(target.getWorkbenchHelper(), helper);
    EXPECT_EQ(source.getWorkbenchHelper(), nullptr);
    EXPECT_EQ(replaced, nullptr);
}

TEST(SimModule, KeepsItsHelperWhenItIsAssignedToItself)
{
    SimModule module;
    WorkbenchHelper* const helper = module.getWorkbenchHelper();
    SimModule& same = module;
    module = same;
    EXPECT_EQ(module.getWorkbenchHelper(), helper);
}

TEST(WorkbenchHelper, DeclaresTwoSlotsAndNothingElse)
{
    const QMetaObject& meta = WorkbenchHelper::staticMetaObject;
    EXPECT_STREQ(meta.className(), "MatGui::WorkbenchHelper");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 2);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "setForegroundColor(QColor)");
    EXPECT_EQ(meta.method(meta.methodOffset() + 1).methodSignature(), "setBackgroundColor(QColor)");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    EXPECT_EQ(meta.method(meta.methodOffset() + 1).methodType(), QMetaMethod::Slot);
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

class Colours : public vxtest::Workbench
{
protected:
    /// Returns a picture of the whole window.
    QImage lookAfter(const char* slot, const QColor& colour) const
    {
        WorkbenchHelper helper;
        EXPECT_TRUE(QMetaObject::invokeMethod(&helper, slot, Q_ARG(QColor, colour)));
        QCoreApplication::processEvents();
        return window->grab().toImage();
    }
    void expectNothingChanges() const
    {
        // A table adapts its rows to its width one turn of the event loop after it is laid out.
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
        const QImage before = window->grab().toImage();
        EXPECT_EQ(lookAfter("setForegroundColor", Qt::red), before);
        EXPECT_EQ(lookAfter("setBackgroundColor", Qt::green), before);
    }
};

TEST_F(Colours, ChangeNothingWithoutAProject)
{
    expectNothingChanges();
}

TEST_F(Colours, ChangeNothingWithoutAnEditor)
{
    makeProject();
    expectNothingChanges();
}

TEST_F(Colours, ChangeNothingInAnotherWindow)
{
    makeProject();
    window->add_mdi_window(new Gui::MDIWindow(nullptr, nullptr));
    expectNothingChanges();
}

TEST_F(Colours, ChangeNothingInAnEditorEither)
{
    nodeOf(addMaterial(makeProject())).on_double_clicked();
    expectNothingChanges();
}

TEST_F(Colours, ChangeNothingWithoutAMainWindow)
{
    window.reset();
    WorkbenchHelper helper;
    helper.setForegroundColor(Qt::red);
    helper.setBackgroundColor(Qt::red);
    EXPECT_EQ(Gui::MainWindow::get_main_window_inst(), nullptr);
}

} // namespace
