#include "Gui/CommandController.h"

#include "GuiTesting.h"

#include <QAction>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using vxtest::TestCommand;

using CommandControllerTest = vxtest::Host;

TEST_F(CommandControllerTest, FindsCommandsByTheirNames)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    EXPECT_EQ(controller.findCommand("Test_A"), command);
    EXPECT_EQ(controller.findCommand("Test_B"), nullptr);
    EXPECT_EQ(controller.findCommand(""), nullptr);
}

TEST_F(CommandControllerTest, IgnoresNull)
{
    Gui::CommandController controller;
    controller.new_command(nullptr);
    EXPECT_TRUE(controller.getCommands().empty());
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
        EXPECT_EQ(controller.findCommand("Test_A"), first);
        EXPECT_THAT(controller.getCommands(), ElementsAre(first));
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
    EXPECT_THAT(controller.getCommands(), ElementsAre(b, a));
}

TEST_F(CommandControllerTest, RunsACommandByItsName)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    EXPECT_TRUE(controller.runCommand("Test_A"));
    EXPECT_EQ(command->lastIndex, 0);
    command->applicable = false;
    EXPECT_FALSE(controller.runCommand("Test_A"));
}

TEST_F(CommandControllerTest, RunsACommandOnlyUnderItsConditions)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    const QAction* const action = command->new_action(window.get());
    bool first = true;
    bool second = true;
    EXPECT_TRUE(controller.addCondition("Test_A", [&first] { return first; }));
    EXPECT_TRUE(controller.addCondition("Test_A", [&second] { return second; }));
    EXPECT_FALSE(controller.addCondition("Test_B", [] { return true; }));
    EXPECT_TRUE(controller.runCommand("Test_A"));
    second = false;
    EXPECT_FALSE(controller.runCommand("Test_A"));
    controller.updateActions();
    EXPECT_FALSE(action->isEnabled());
    second = true;
    command->applicable = false;
    EXPECT_FALSE(controller.runCommand("Test_A"));
}

TEST_F(CommandControllerTest, ReportsACommandThatItDoesNotHave)
{
    Gui::CommandController controller;
    EXPECT_FALSE(controller.runCommand("Test_Grün"));
    EXPECT_EQ(lastMessage(), "There is no command \"Test_Grün\".");
}

TEST_F(CommandControllerTest, RunsACommandThroughItsGuardsTheLastFirst)
{
    Gui::CommandController controller;
    std::vector<std::string> order;
    controller.new_command(new TestCommand("Test_A", [&order] { order.emplace_back("command"); }));
    for (const char* const name : {"first", "last"})
        EXPECT_TRUE(controller.addGuard("Test_A", [&order, name](const std::function<void()>& run) {
            order.push_back(std::string("before ") + name);
            run();
            order.push_back(std::string("after ") + name);
        }));
    EXPECT_TRUE(controller.runCommand("Test_A"));
    EXPECT_THAT(order, ElementsAre("before last", "before first", "command", "after first", "after last"));
}

TEST_F(CommandControllerTest, RunsNoCommandThatItsGuardRefuses)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    EXPECT_TRUE(controller.addGuard("Test_A", [](const std::function<void()>&) {}));
    command->new_action(window.get())->trigger();
    EXPECT_TRUE(controller.runCommand("Test_A"));
    EXPECT_EQ(command->lastIndex, -1);
}

TEST_F(CommandControllerTest, ReportsWhatAGuardThrows)
{
    Gui::CommandController controller;
    controller.new_command(new TestCommand("Test_A", {}));
    controller.addGuard("Test_A", [](const std::function<void()>&) { throw std::runtime_error("out of ink"); });
    EXPECT_FALSE(controller.runCommand("Test_A"));
    EXPECT_THAT(lastMessage(), testing::HasSubstr("out of ink"));
}

TEST_F(CommandControllerTest, AsksNoGuardOfACommandThatIsNotApplicable)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    command->applicable = false;
    bool asked = false;
    controller.addGuard("Test_A", [&asked](const std::function<void()>&) { asked = true; });
    EXPECT_FALSE(controller.runCommand("Test_A"));
    EXPECT_FALSE(asked);
}

TEST_F(CommandControllerTest, TakesNoGuardForACommandThatItDoesNotHave)
{
    Gui::CommandController controller;
    EXPECT_FALSE(controller.addGuard("Test_A", [](const std::function<void()>& run) { run(); }));
}

TEST_F(CommandControllerTest, EnablesOnlyApplicableCommands)
{
    Gui::CommandController controller;
    auto* const command = new TestCommand("Test_A", {});
    controller.new_command(command);
    controller.new_command(new TestCommand("Test_WithoutAction", {}));
    const QAction* const action = command->new_action(window.get());
    command->applicable = false;
    controller.updateActions();
    EXPECT_FALSE(action->isEnabled());
    command->applicable = true;
    controller.updateActions();
    EXPECT_TRUE(action->isEnabled());
}

} // namespace
