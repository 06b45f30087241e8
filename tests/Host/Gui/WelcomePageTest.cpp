#include "GuiTesting.h"

#include "Gui/TreeSelectionSingleton.h"

#include <QLabel>
#include <QPushButton>

namespace {

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

} // namespace
