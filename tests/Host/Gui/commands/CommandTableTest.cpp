#include "Gui/CommandTable.h"

#include "GuiTesting.h"

#include <QAction>
#include <QMenu>

namespace {

/// Commands made from the rows of a table.
class Table : public vxtest::Host
{
protected:
    Gui::Command& add(Gui::CommandRow row)
    {
        const std::string name = row.name;
        Gui::addCommands(controller, "TestTable", {std::move(row)});
        return *controller.findCommand(name);
    }

    Gui::CommandController controller;
};

TEST_F(Table, GivesACommandTheFieldsOfItsRow)
{
    Gui::Command& command =
        add({"T_One", "&One", "Does one", "kelta_copy", Qt::CTRL + Qt::Key_J, Gui::CommandType::onTree, [] {}});
    EXPECT_STREQ(command.getClassName(), "TestTable");
    EXPECT_EQ(command.get_menu_info(), "&One");
    EXPECT_EQ(command.get_tooltip_info(), "Does one");
    EXPECT_EQ(command.get_statustip(), "Does one");
    EXPECT_STREQ(command.get_pixmap(), "kelta_copy");
    EXPECT_EQ(command.get_shortcut(), QKeySequence(QStringLiteral("Ctrl+J")));
    EXPECT_EQ(command.getTypeFlags(), Gui::CommandType::onTree);
    EXPECT_EQ(command.new_action(window.get())->whatsThis(), "Does one");
}

TEST_F(Table, KeepsTheOrderOfItsRows)
{
    Gui::addCommands(controller, "TestTable", {{"T_B", "", ""}, {"T_A", "", ""}});
    ASSERT_EQ(controller.getCommands().size(), 2U);
    EXPECT_EQ(controller.getCommands()[0]->getName(), "T_B");
}

TEST_F(Table, RunsWhatTheRowSaysIfItApplies)
{
    int runs = 0;
    bool applies = false;
    Gui::Command& command =
        add({"T_Run", "", "", "", {}, Gui::CommandType::none, [&] { ++runs; }, [&] { return applies; }});
    EXPECT_FALSE(command.invoke());
    applies = true;
    EXPECT_TRUE(command.invoke());
    EXPECT_EQ(runs, 1);
}

TEST_F(Table, AppliesAlwaysWithoutACondition)
{
    EXPECT_TRUE(add({"T_Always", "", "", "", {}, Gui::CommandType::none, [] {}}).is_applicable());
}

TEST_F(Table, ShowsACheckMarkWhereTheRowHasOne)
{
    bool checked = false;
    Gui::Command& plain = add({"T_Plain", "", "", "", {}, Gui::CommandType::none, [] {}});
    Gui::Command& marked =
        add({"T_Marked", "", "", "", {}, Gui::CommandType::none, [] {}, {}, [&] { return checked; }});
    const QAction* const plainAction = plain.new_action(window.get());
    const QAction* const action = marked.new_action(window.get());
    controller.updateActions();
    EXPECT_FALSE(plainAction->isCheckable());
    EXPECT_TRUE(action->isCheckable());
    EXPECT_FALSE(action->isChecked());
    checked = true;
    controller.updateActions();
    EXPECT_TRUE(action->isChecked());
}

TEST_F(Table, FillsAMenuEachTimeItOpens)
{
    int opened = 0;
    Gui::Command& command = add({"T_Menu",
                                 "",
                                 "",
                                 "",
                                 {},
                                 Gui::CommandType::none,
                                 [] {},
                                 {},
                                 {},
                                 [&](QMenu& menu) { menu.addAction(QString::number(++opened)); }});
    QMenu* const menu = command.new_action(window.get())->menu();
    ASSERT_NE(menu, nullptr);
    Q_EMIT menu->aboutToShow();
    Q_EMIT menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().front()->text(), "2");
}

} // namespace
