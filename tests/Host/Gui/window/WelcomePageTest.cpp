#include "GuiTesting.h"

#include "Gui/Contributions.h"

#include <QLabel>
#include <QPushButton>

namespace {

using Gui::WelcomeStep;

/// The page as the user sees it.
class Page : public vxtest::Host
{
protected:
    QWidget* page() const { return window->findChild<QWidget*>(QStringLiteral("welcomePage")); }
    QString title() const { return page()->findChildren<QLabel*>()[0]->text(); }
    QString text() const { return page()->findChildren<QLabel*>()[1]->text(); }
    QPushButton* button(const char* name) const { return page()->findChild<QPushButton*>(QLatin1String(name)); }
    QStringList visibleButtons() const
    {
        QStringList names;
        for (const QPushButton* const shown : page()->findChildren<QPushButton*>())
            if (shown->isVisible())
                names << shown->objectName();
        return names;
    }
    bool waitForButtons(const QStringList& names) const
    {
        return QTest::qWaitFor([&] { return visibleButtons() == names; });
    }
    void click(const char* name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
};

using WithoutModule = Page;

TEST_F(WithoutModule, TheWelcomePageNamesTheMissingModule)
{
    window->updateCommands();
    EXPECT_EQ(title(), "No module is loaded");
    EXPECT_EQ(text(), "The message log names the modules that could not be loaded, and the reasons.");
    EXPECT_EQ(visibleButtons(), QStringList());
}

/// A module that offers a first step for every project, and further steps for its own class of projects.
class Welcome : public Page
{
protected:
    Welcome()
    {
        addCommand("Test_New", [] { makeProject(); });
        addCommand("Test_Add", [] { addObject(*Obj::Application::get_current_project()); });
        addCommand("Test_Edit", [] {
            Gui::MainWindow::get_main_window_inst()->add_mdi_window(new Gui::MDIWindow(nullptr, nullptr));
        });
        const auto hasSelection = [] { return selection().getCount() != 0; };
        contributions.addWelcomeEntry({WelcomeStep::NoProject,
                                       "",
                                       {"Test", "No probes yet"},
                                       {"Test", "Begin with a project of probes."},
                                       {"Test_New", "No_Such"}});
        contributions.addWelcomeEntry({WelcomeStep::EmptyProject,
                                       "Test::Project",
                                       {"Test", "The project has no probes"},
                                       {"Test", "Add one."},
                                       {"Test_Add"}});
        contributions.addWelcomeEntry({WelcomeStep::NoDocument,
                                       "Test::Project",
                                       {"Test", "No probe is open"},
                                       {"Test", "Select one & open it."},
                                       {"Test_Edit"},
                                       hasSelection});
        window->setWorkbench("Gui::StdSimModule");
    }

    static void addCommand(const char* name, std::function<void()> action)
    {
        if (commands().findCommand(name) == nullptr)
            commands().new_command(new vxtest::TestCommand(name, std::move(action)));
    }
};

TEST_F(Welcome, LeadsFromNothingToAnOpenDocument)
{
    ASSERT_TRUE(waitForButtons({"Test_New"}));
    EXPECT_EQ(title(), "No probes yet");
    EXPECT_EQ(text(), "Begin with a project of probes.");
    click("Test_New");
    ASSERT_TRUE(waitForButtons({"Test_Add"}));
    EXPECT_EQ(title(), "The project has no probes");
    click("Test_Add");
    ASSERT_TRUE(waitForButtons({"Test_Edit"}));
    EXPECT_EQ(title(), "No probe is open");
    EXPECT_EQ(text(), "Select one & open it.");

    EXPECT_FALSE(button("Test_Edit")->isEnabled());
    selection().setSelection({}, Obj::Application::get_current_project()->getObjects());
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("Test_Edit")->isEnabled(); }));
    click("Test_Edit");
    EXPECT_FALSE(page()->isVisible());
    window->close_current_window();
    EXPECT_TRUE(QTest::qWaitFor([this] { return page()->isVisible(); }));
}

TEST_F(Welcome, FollowsUndo)
{
    ASSERT_TRUE(waitForButtons({"Test_New"}));
    click("Test_New");
    ASSERT_TRUE(waitForButtons({"Test_Add"}));
    click("Test_Add");
    ASSERT_TRUE(waitForButtons({"Test_Edit"}));
    undoStack().undo();
    EXPECT_TRUE(waitForButtons({"Test_Add"}));
}

TEST_F(Welcome, HasTheKeyboardOnItsButton)
{
    ASSERT_TRUE(waitForButtons({"Test_New"}));
    EXPECT_EQ(page()->focusProxy(), button("Test_New"));
    button("Test_New")->setFocus();
    QTest::keyClick(button("Test_New"), Qt::Key_Space);
    EXPECT_EQ(Obj::Application::get_projects().size(), 1U);
}

TEST_F(Welcome, OffersTheEditingOfWhatIsSelectedAlone)
{
    vxtest::TestProject& project = makeProject();
    addObject(project);
    ASSERT_TRUE(waitForButtons({"Test_Edit"}));
    EXPECT_FALSE(button("Test_Edit")->isEnabled());
    select({project.getObjects()[0]});
    EXPECT_TRUE(QTest::qWaitFor([this] { return button("Test_Edit")->isEnabled(); }));
}

TEST_F(Welcome, SaysWhatTheHostCanSayOfProjectsOfOtherClasses)
{
    Obj::Project* const project = Obj::Application::instance().createProject("Test::OtherProject", "Other");
    ASSERT_NE(project, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return title() == "The project is empty"; }));
    EXPECT_EQ(visibleButtons(), QStringList());
    addObject(*project);
    window->updateCommands();
    EXPECT_EQ(title(), "No document is open");
    EXPECT_EQ(text(), "Double-click an object in the project explorer.");
}

// The application owns the commands of these tests, so these tests are the last.
TEST_F(Welcome, OffersToOpenAProjectWhereThereIsSuchACommand)
{
    ASSERT_TRUE(waitForButtons({"Test_New"}));
    int opened = 0;
    commands().new_command(new vxtest::TestCommand("Std_Open", [&opened] { ++opened; }));
    window->updateCommands();
    EXPECT_EQ(visibleButtons(), QStringList({"Test_New", "Std_Open"}));
    EXPECT_EQ(page()->focusProxy(), button("Test_New"));
    click("Std_Open");
    EXPECT_EQ(opened, 1);
    makeProject();
    EXPECT_TRUE(waitForButtons({"Test_Add"}));
}

TEST_F(Welcome, OffersWhatSeveralModulesOfferUnderATitleOfItsOwn)
{
    addCommand("Test_NewOther", [] {});
    contributions.addWelcomeEntry({WelcomeStep::NoProject,
                                   "",
                                   {"Test", "No sensors yet"},
                                   {"Test", "Or with sensors."},
                                   {"Test_NewOther", "Test_New"}});
    ASSERT_TRUE(QTest::qWaitFor([this] { return visibleButtons().contains(QStringLiteral("Test_NewOther")); }));
    EXPECT_EQ(visibleButtons().count(QStringLiteral("Test_New")), 1);
    EXPECT_EQ(title(), "No project is open");
    EXPECT_EQ(text(), "Begin with a project of probes.\nOr with sensors.");
}

TEST_F(Welcome, ListsWhatModulesListUnderItsButtons)
{
    QStringList entries{"a & b.txt"};
    QString opened;
    contributions.addWelcomeList({WelcomeStep::NoProject, {"Test", "Recent probes"}, [&] {
                                      std::vector<Gui::WelcomeLink> links;
                                      for (const QString& entry : entries)
                                          links.push_back({entry, "<i>" + entry, [&opened, entry] { opened = entry; }});
                                      return links;
                                  }});
    window->updateCommands();
    const auto links = [this] {
        QList<QPushButton*> shown;
        for (QPushButton* const link : page()->findChildren<QPushButton*>(QStringLiteral("welcomeLink")))
            if (link->isVisible())
                shown << link;
        return shown;
    };
    ASSERT_EQ(links().size(), 1);
    EXPECT_EQ(links()[0]->text(), "a && b.txt");
    EXPECT_TRUE(links()[0]->toolTip().contains(QStringLiteral("&lt;i&gt;")));
    QTest::mouseClick(links()[0], Qt::LeftButton);
    EXPECT_EQ(opened, "a & b.txt");
    EXPECT_TRUE(page()->findChildren<QLabel*>()[2]->isVisible());
    entries.clear();
    window->updateCommands();
    EXPECT_TRUE(links().isEmpty());
    EXPECT_FALSE(page()->findChildren<QLabel*>()[2]->isVisible());
}

} // namespace
