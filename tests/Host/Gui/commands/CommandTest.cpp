#include "Gui/Command.h"

#include "GuiTesting.h"
#include "VirtualOrder.h"

#include <QAction>

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using vxtest::TestCommand;

using CommandTest = vxtest::Host;

TEST(Command, HasItsVirtualOperationsInTheOrderOfTheInterface)
{
    using Gui::CommandBase;
    using vxtest::slotOf;
    const std::vector<std::size_t> places = {
        slotOf(&CommandBase::new_action),       slotOf(&CommandBase::on_language_changed),
        slotOf(&CommandBase::getClassName),     slotOf(&CommandBase::get_menu_info),
        slotOf(&CommandBase::get_tooltip_info), slotOf(&CommandBase::get_statustip),
        slotOf(&CommandBase::get_pixmap),       slotOf(&CommandBase::get_shortcut),
        slotOf(&CommandBase::activated),        slotOf(&CommandBase::is_applicable),
    };
    EXPECT_THAT(places, ElementsAre(2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
}

TEST_F(CommandTest, RunsWithTheIndexItIsGiven)
{
    TestCommand command("Test_Run", {});
    EXPECT_TRUE(command.invoke(4));
    EXPECT_EQ(command.lastIndex, 4);
}

TEST_F(CommandTest, DoesNotRunWhenItIsNotApplicable)
{
    TestCommand command("Test_Run", {});
    command.applicable = false;
    EXPECT_FALSE(command.invoke());
    EXPECT_EQ(command.lastIndex, -1);
}

TEST_F(CommandTest, ReportsWhatItThrows)
{
    TestCommand command("Test_Run", [] { throw std::runtime_error("out of paper"); });
    EXPECT_FALSE(command.invoke());
    EXPECT_EQ(lastMessage(), "The command \"Do it\" failed: out of paper");
}

TEST_F(CommandTest, ReportsWhatIsNoExceptionOfTheStandardLibrary)
{
    TestCommand command("Test_Run", [] { throw 42; });
    EXPECT_FALSE(command.invoke());
    EXPECT_THAT(lastMessage(), HasSubstr("an exception of an unknown kind"));
}

TEST_F(CommandTest, IsUndoneInOneStepThatHasItsName)
{
    Obj::Project& project = makeProject();
    TestCommand command("Test_Run", [&project] {
        for (int i = 0; i < 3; ++i)
            addObject(project);
    });
    undoStack().clear();
    EXPECT_TRUE(command.invoke());
    ASSERT_EQ(undoStack().count(), 1);
    EXPECT_EQ(undoStack().undoText(), "Do it");
    undoStack().undo();
    EXPECT_EQ(project.getObjectCount(), 0U);
    undoStack().redo();
    EXPECT_EQ(project.getObjectCount(), 3U);
}

TEST_F(CommandTest, LeavesNoStepWhenItChangesNothing)
{
    TestCommand command("Test_Run", {});
    EXPECT_TRUE(command.invoke());
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(CommandTest, CanUndoWhatItDidBeforeItThrew)
{
    Obj::Project& project = makeProject();
    TestCommand command("Test_Run", [&project] {
        addObject(project);
        throw std::runtime_error("half way");
    });
    undoStack().clear();
    EXPECT_FALSE(command.invoke());
    EXPECT_EQ(project.getObjectCount(), 1U);
    undoStack().undo();
    EXPECT_EQ(project.getObjectCount(), 0U);
}

TEST_F(CommandTest, ShowsItsFieldsInItsAction)
{
    TestCommand command("Test_Run", {}, Gui::CommandType::none, QKeySequence(QStringLiteral("Ctrl+J")));
    const QAction* const action = command.new_action(window.get());
    EXPECT_EQ(action->objectName(), "Test_Run");
    EXPECT_EQ(action->text(), "&Do it");
    EXPECT_EQ(action->toolTip(), "Does it");
    EXPECT_EQ(action->statusTip(), "Does it at once");
    EXPECT_EQ(action->whatsThis(), "What it does");
    EXPECT_EQ(action->shortcut(), QKeySequence(QStringLiteral("Ctrl+J")));
    EXPECT_TRUE(action->icon().isNull());
}

TEST_F(CommandTest, RunsWhenItsActionIsTriggered)
{
    TestCommand command("Test_Run", {});
    command.new_action(window.get())->trigger();
    EXPECT_EQ(command.lastIndex, 0);
}

TEST_F(CommandTest, LosesItsActionWithTheActionsParent)
{
    TestCommand command("Test_Run", {});
    {
        QObject parent;
        command.new_action(&parent);
        EXPECT_NE(command.action(), nullptr);
    }
    EXPECT_EQ(command.action(), nullptr);
    command.on_language_changed();
}

TEST_F(CommandTest, KnowsTheKeysOfThePlatform)
{
    EXPECT_EQ(Gui::Command::get_shortcut_from_keys(QKeySequence::Delete), QKeySequence(QKeySequence::Delete));
}

TEST_F(CommandTest, NamesObjectsAsNoObjectOfTheCurrentProjectHasOrHad)
{
    EXPECT_EQ(Gui::Command::get_unique_object_name("Beam"), "");
    Obj::Project& project = makeProject();
    const std::string first = Gui::Command::get_unique_object_name("Beam");
    EXPECT_EQ(first, "Beam");
    Obj::ProjectObject* const object = project.add_object("Test::Object", first);
    const std::string second = Gui::Command::get_unique_object_name("Beam");
    EXPECT_NE(second, first);
    EXPECT_EQ(second.rfind("Beam", 0), 0U);
    project.removeObject(object->getObjectId());
    EXPECT_NE(Gui::Command::get_unique_object_name("Beam"), first);
}

/// A command with the text of an entry in a menu.
class Entry final : public TestCommand
{
public:
    Entry(const char* text, std::function<void()> action) : TestCommand("Test_Entry", std::move(action))
    {
        menuText = text;
    }
};

TEST_F(CommandTest, GivesItsStepANameWithoutTheMarksOfAMenu)
{
    vxtest::TestProject& project = makeProject();
    const std::vector<std::pair<const char*, const char*>> names{
        {"I&mport document...", "Import document"},
        {"Import \u2026", "Import"},
        {"\u5bfc\u5165\u6587\u6863(&M)...", "\u5bfc\u5165\u6587\u6863"},
        {"Save && close", "Save & close"},
        {"Version 1.0", "Version 1.0"}};
    for (const auto& [text, name] : names) {
        Entry command(text, [&] { addObject(project); });
        EXPECT_TRUE(command.invoke());
        EXPECT_EQ(undoStack().undoText(), QString::fromUtf8(name));
    }
}

} // namespace
