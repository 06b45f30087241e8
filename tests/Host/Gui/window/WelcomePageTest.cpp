#include "GuiTesting.h"

#include "Gui/TreeSelectionSingleton.h"

#include <QLabel>
#include <QPushButton>

namespace {

using WithoutModule = vxtest::Host;

TEST_F(WithoutModule, TheWelcomePageSaysWhatIsMissing)
{
    if (commands().find_command("Mat_NewDoc") != nullptr)
        GTEST_SKIP() << "another test of this process has brought the commands";
    window->update_commands();
    const auto* const page = window->findChild<QWidget*>(QStringLiteral("welcomePage"));
    EXPECT_EQ(page->findChildren<QLabel*>()[0]->text(), "The materials module is missing");
    EXPECT_EQ(page->findChildren<QLabel*>()[1]->text(), "The messages tell why it could not be loaded.");
    for (const QPushButton* const button : page->findChildren<QPushButton*>())
        EXPECT_FALSE(button->isVisible());
}

/// The page offers commands that a module brings; here they are small ones.
class Welcome : public vxtest::Host
{
protected:
    Welcome()
    {
        if (commands().find_command("Mat_NewDoc") == nullptr) {
            commands().new_command(new vxtest::TestCommand("Mat_NewDoc", [] { makeProject(); }));
            commands().new_command(new vxtest::TestCommand(
                "Mat_AddMaterial", [] { addObject(*Obj::Application::get_current_project()); }));
            commands().new_command(new vxtest::TestCommand("Mat_Edit", [] {
                Gui::MainWindow::get_main_window_inst()->add_mdi_window(new Gui::MDIWindow(nullptr, nullptr));
            }));
        }
        window->set_workbench("Gui::StdSimModule");
    }

    QWidget* page() const { return window->findChild<QWidget*>(QStringLiteral("welcomePage")); }
    QStringList visibleButtons() const
    {
        QStringList names;
        for (const QPushButton* const button : page()->findChildren<QPushButton*>())
            if (button->isVisible())
                names << button->objectName();
        return names;
    }
    bool waitForButton(const char* name) const
    {
        return QTest::qWaitFor([&] { return visibleButtons() == QStringList(QLatin1String(name)); });
    }
    void click(const char* name) const
    {
        QTest::mouseClick(page()->findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }
    QString title() const { return page()->findChild<QLabel*>()->text(); }
};

TEST_F(Welcome, LeadsFromNothingToAnOpenDocument)
{
    ASSERT_TRUE(waitForButton("Mat_NewDoc"));
    EXPECT_EQ(title(), "No project is open");
    click("Mat_NewDoc");
    ASSERT_TRUE(waitForButton("Mat_AddMaterial"));
    EXPECT_EQ(title(), "The project has no materials yet");
    click("Mat_AddMaterial");
    ASSERT_TRUE(waitForButton("Mat_Edit"));
    EXPECT_EQ(title(), "No material is open");

    const auto* const edit = page()->findChild<QPushButton*>(QStringLiteral("Mat_Edit"));
    EXPECT_FALSE(edit->isEnabled());
    Gui::TreeSelectionSingleton::instance().set_selection({}, Obj::Application::get_current_project()->get_objects());
    ASSERT_TRUE(QTest::qWaitFor([edit] { return edit->isEnabled(); }));
    click("Mat_Edit");
    EXPECT_FALSE(page()->isVisible());
    window->close_current_window();
    EXPECT_TRUE(QTest::qWaitFor([this] { return page()->isVisible(); }));
}

TEST_F(Welcome, FollowsUndo)
{
    ASSERT_TRUE(waitForButton("Mat_NewDoc"));
    click("Mat_NewDoc");
    ASSERT_TRUE(waitForButton("Mat_AddMaterial"));
    click("Mat_AddMaterial");
    ASSERT_TRUE(waitForButton("Mat_Edit"));
    undoStack().undo();
    EXPECT_TRUE(waitForButton("Mat_AddMaterial"));
}

TEST_F(Welcome, HasTheKeyboardOnItsButton)
{
    ASSERT_TRUE(waitForButton("Mat_NewDoc"));
    auto* const button = page()->findChild<QPushButton*>(QStringLiteral("Mat_NewDoc"));
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(Obj::Application::get_projects().size(), 1U);
}

TEST_F(Welcome, OffersTheEditingOfWhatIsSelectedAlone)
{
    vxtest::TestProject& project = makeProject();
    addObject(project);
    ASSERT_TRUE(waitForButton("Mat_Edit"));
    auto* const button = page()->findChild<QPushButton*>(QStringLiteral("Mat_Edit"));
    EXPECT_FALSE(button->isEnabled());
    select({project.get_objects()[0]});
    EXPECT_TRUE(QTest::qWaitFor([button] { return button->isEnabled(); }));
}

// The last one: the command stays in the program.
TEST_F(Welcome, OffersToOpenAProjectWhereThereIsSuchACommand)
{
    ASSERT_TRUE(waitForButton("Mat_NewDoc"));
    int opened = 0;
    commands().new_command(new vxtest::TestCommand("Std_Open", [&opened] { ++opened; }));
    window->update_commands();
    EXPECT_EQ(visibleButtons(), QStringList({"Mat_NewDoc", "Std_Open"}));
    EXPECT_EQ(page()->focusProxy()->objectName(), "Mat_NewDoc");
    EXPECT_TRUE(page()->findChildren<QLabel*>()[1]->text().contains("open a saved one"));
    click("Std_Open");
    EXPECT_EQ(opened, 1);
    makeProject();
    EXPECT_TRUE(waitForButton("Mat_AddMaterial"));
}

} // namespace
