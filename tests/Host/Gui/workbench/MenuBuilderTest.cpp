#include "GuiTesting.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

/// Menus and toolbars made from trees of command names. The workbench has all kinds of items.
class Bars : public vxtest::Host
{
protected:
    Bars() { EXPECT_TRUE(window->setWorkbench("Test::Workbench")); }

    static QStringList textsOf(const QWidget& bar)
    {
        QStringList texts;
        for (const QAction* const action : bar.actions())
            texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
        return texts;
    }
    QMenu* menu() const { return window->menuBar()->actions().first()->menu(); }
};

TEST_F(Bars, HaveMenusInMenus)
{
    EXPECT_EQ(textsOf(*window->menuBar()), QStringList({"&Test"}));
    // Menus without commands are left out, together with the line before them.
    EXPECT_EQ(textsOf(*menu()), QStringList({"&Copy", "-", "&More"}));
    EXPECT_EQ(textsOf(*menu()->actions().last()->menu()), QStringList({"&Undo", "-", "&Redo"}));
}

TEST_F(Bars, RunTheCommandsOfMenusInMenus)
{
    addObject(makeProject());
    window->updateCommands();
    menu()->actions().last()->menu()->actions().first()->trigger();
    EXPECT_EQ(Obj::Application::get_current_project()->getObjectCount(), 0U);
}

TEST_F(Bars, HaveButtonsThatOpenMenus)
{
    const auto* const bar = window->findChild<QToolBar*>(QStringLiteral("Test"));
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(textsOf(*bar), QStringList({"&Copy", "&More"}));
    EXPECT_EQ(textsOf(*bar->actions().last()->menu()), QStringList({"&Undo"}));
}

TEST_F(Bars, ShareTheActionOfACommand)
{
    const auto* const bar = window->findChild<QToolBar*>(QStringLiteral("Test"));
    EXPECT_EQ(menu()->actions().first(), commands().findCommand("Std_Copy")->action());
    EXPECT_EQ(bar->actions().first(), commands().findCommand("Std_Copy")->action());
}

TEST_F(Bars, EnableAtOnceWhatAppliesAlone)
{
    EXPECT_FALSE(menu()->actions().first()->isEnabled());
    select({&addObject(makeProject())});
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_TRUE(menu()->actions().first()->isEnabled());
}

TEST_F(Bars, LeaveNoOldWidgetsWhenTheyAreRebuilt)
{
    const auto count = [this] { return window->findChildren<QMenu*>().size(); };
    const int menus = count();
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_EQ(count(), menus);
    EXPECT_EQ(textsOf(*window->menuBar()), QStringList({"&Test"}));
}

TEST_F(Bars, OfOneTitleAboveAndBelowHaveDifferentNames)
{
    const auto* const above = window->findChild<QToolBar*>(QStringLiteral("Messages"));
    const auto* const below = window->findChild<QToolBar*>(QStringLiteral("BottomMessages"));
    ASSERT_TRUE(above != nullptr && below != nullptr);
    EXPECT_EQ(above->windowTitle(), "Messages");
    EXPECT_EQ(below->windowTitle(), "Messages (below)");
    EXPECT_EQ(textsOf(*above), QStringList({"&Paste"}));
    EXPECT_EQ(textsOf(*below), QStringList({"C&lear messages"}));
}

} // namespace
