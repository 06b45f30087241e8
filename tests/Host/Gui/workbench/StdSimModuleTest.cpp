#include "Gui/StdSimModule.h"

#include "GuiTesting.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <set>
#include <string>

namespace {

using StdSimModuleTest = vxtest::Host;

TEST_F(StdSimModuleTest, HasTheMenuWindowsBeforeHelp)
{
    const std::unique_ptr<Gui::MenuItem> menus(Gui::StdSimModule().build_menu_bar());
    QStringList names;
    for (const auto& item : menus->items())
        names << QString::fromStdString(item->command());
    EXPECT_EQ(names, QStringList({"&File", "&Edit", "&Project", "&View", "&Windows", "&Help"}));
}

TEST_F(StdSimModuleTest, NamesCommandsOfTheHostAlone)
{
    const std::unique_ptr<Gui::MenuItem> menus(Gui::StdSimModule().build_menu_bar());
    // The program adds these commands, because only the program uses files.
    const std::set<std::string> ofTheProgram = {"Std_Open", "Std_OpenRecent", "Std_Save", "Std_SaveAs"};
    for (const auto& menu : menus->items())
        for (const auto& item : menu->items()) {
            if (!item->isSection() && ofTheProgram.count(item->command()) == 0) {
                EXPECT_NE(commands().findCommand(item->command()), nullptr) << item->command();
                EXPECT_EQ(item->command().rfind("Std_", 0), 0U) << item->command();
            }
        }
}

TEST_F(StdSimModuleTest, LeavesOutInTheMenusWhatThereIsNoCommandFor)
{
    for (const QAction* const action : window->menuBar()->actions())
        for (const QAction* const entry : action->menu()->actions())
            EXPECT_TRUE(entry->isSeparator() || entry->objectName().startsWith(QLatin1String("Std_")))
                << entry->text().toStdString();
}

TEST_F(StdSimModuleTest, PutsSeparatorsBetweenCommandsAlone)
{
    for (const QAction* const action : window->menuBar()->actions()) {
        const QList<QAction*> entries = action->menu()->actions();
        if (entries.isEmpty())
            continue;
        EXPECT_FALSE(entries.first()->isSeparator()) << action->text().toStdString();
        EXPECT_FALSE(entries.last()->isSeparator()) << action->text().toStdString();
        for (int i = 1; i < entries.size(); ++i)
            EXPECT_FALSE(entries[i]->isSeparator() && entries[i - 1]->isSeparator());
    }
}

TEST_F(StdSimModuleTest, HidesMenusWithoutCommands)
{
    for (const QAction* const action : window->menuBar()->actions())
        EXPECT_EQ(action->isVisible(), !action->menu()->isEmpty()) << action->text().toStdString();
}

TEST_F(StdSimModuleTest, OffersToClearTheMessagesInItsMenus)
{
    Kelta::MessageLog::information(QStringLiteral("hello"));
    QAction* const clear = commands().findCommand("Std_ClearMessages")->action();
    bool isInMenus = false;
    for (const QAction* const action : window->menuBar()->actions())
        isInMenus = isInMenus || action->menu()->actions().contains(clear);
    EXPECT_TRUE(isInMenus);
    clear->trigger();
    EXPECT_TRUE(Kelta::MessageLog::instance().messages().empty());
}

TEST_F(StdSimModuleTest, HasBarsForEditingAndForMessages)
{
    const auto* const edit = window->findChild<QToolBar*>(QStringLiteral("Edit"));
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->actions().size(), 5);
    const auto* const messages = window->findChild<QToolBar*>(QStringLiteral("BottomMessages"));
    ASSERT_NE(messages, nullptr);
    EXPECT_EQ(messages->actions().size(), 1);
}

} // namespace
