#include "Gui/CommandController.h"

#include "GuiTesting.h"

#include <QAction>

namespace {

using testing::ElementsAre;
using vxtest::TestCommand;

using CommandControllerTest = vxtest::Host;

TEST_F(CommandControllerTest, FindsCommandsByTheirNames)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    EXPECT_EQ(controller.find_command("Test_A"), command);
    EXPECT_EQ(controller.find_command("Test_B"), nullptr);
    EXPECT_EQ(controller.find_command(""), nullptr);
}

TEST_F(CommandControllerTest, IgnoresNull)
{
    Gui::CommandController controller;
    controller.new_command(nullptr);
    EXPECT_TRUE(controller.get_commands().empty());
}

/// Sets a flag when it is destroyed.
class Mortal final : public TestCommand
{
public:
    Mortal(const char* name, int& dead) : TestCommand(name, {}), m_dead(dead) {}
    ~Mortal() override { ++m_dead; }

private:
    int& m_dead;
};

TEST_F(CommandControllerTest, KeepsTheFirstOfTwoWithOneName)
{
    int dead = 0;
    {
        Gui::CommandController controller;
        auto* const first = new Mortal("Test_A", dead);
        controller.new_command(first);
        controller.new_command(new Mortal("Test_A", dead));
        EXPECT_EQ(dead, 1);
        EXPECT_EQ(controller.find_command("Test_A"), first);
        EXPECT_THAT(controller.get_commands(), ElementsAre(first));
    }
    EXPECT_EQ(dead, 2);
}

TEST_F(CommandControllerTest, KeepsTheOrderInWhichCommandsCame)
{
    Gui::CommandController controller;
    auto* const b = new TestCommand("Test_B", {});
    auto* const a = new TestCommand("Test_A", {});
    controller.new_command(b);
    controller.new_command(a);
    EXPECT_THAT(controller.get_commands(), ElementsAre(b, a));
}

TEST_F(CommandControllerTest, RunsACommandByItsName)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    EXPECT_TRUE(controller.run_command("Test_A"));
    EXPECT_EQ(command->lastIndex, 0);
    command->applicable = false;
    EXPECT_FALSE(controller.run_command("Test_A"));
}

TEST_F(CommandControllerTest, ReportsACommandThatItDoesNotHave)
{
    Gui::CommandController controller;
    EXPECT_FALSE(controller.run_command("Test_Grün"));
    EXPECT_EQ(lastMessage(), "There is no command \"Test_Grün\".");
}

TEST_F(CommandControllerTest, EnablesWhatIsApplicableAlone)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    controller.new_command(new TestCommand("Test_WithoutAction", {}));
    const QAction* const action = command->new_action(window.get());
    command->applicable = false;
    controller.update_actions();
    EXPECT_FALSE(action->isEnabled());
    command->applicable = true;
    controller.update_actions();
    EXPECT_TRUE(action->isEnabled());
}

} // namespace
