#include "Gui/Contributions.h"

#include "GuiTesting.h"

#include "Gui/CommandTree.h"
#include "Gui/Translator.h"

#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QToolBar>

#include <stdexcept>

namespace {

using Gui::Contributions;
using testing::HasSubstr;

/// Contributions of modules to the window. The commands stay in the application, so each test uses its own names.
class Contributed : public vxtest::Host
{
protected:
    static void addCommand(const char* name)
    {
        if (commands().findCommand(name) == nullptr)
            commands().new_command(new vxtest::TestCommand(name, {}));
    }

    QMenu* menu(const QString& title) const
    {
        for (const QAction* const action : window->menuBar()->actions())
            if (action->text() == title)
                return action->menu();
        return nullptr;
    }
    QStringList menus() const
    {
        QStringList titles;
        for (const QAction* const action : window->menuBar()->actions())
            titles << action->text();
        return titles;
    }
    /// Returns the commands of a menu or toolbar; "-" for a line.
    static QStringList namesIn(const QWidget* widget)
    {
        QStringList names;
        for (const QAction* const action : widget->actions())
            names << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
        return names;
    }
    bool waitForMenu(const QString& title, const QStringList& names) const
    {
        return QTest::qWaitFor([&] { return menu(title) != nullptr && namesIn(menu(title)) == names; });
    }
    QToolBar* bar(const char* name) const { return window->findChild<QToolBar*>(QLatin1String(name)); }
    QDockWidget* dock(const char* name) const { return window->findChild<QDockWidget*>(QLatin1String(name)); }
};

TEST_F(Contributed, CommandsStandAtTheEndOfTheirSections)
{
    addCommand("A_New");
    addCommand("A_Add");
    addCommand("A_Second");
    contributions.addToMenu("&File", "New", "A_New");
    contributions.addToMenu("&Edit", "Clipboard", "A_Add");
    contributions.addToMenu("&Edit", "Clipboard", "A_Second");
    EXPECT_TRUE(waitForMenu("&Edit", {"Std_Undo", "Std_Redo", "-", "Std_Copy", "Std_Paste", "Std_DuplicateSelection",
                                      "Std_Delete", "A_Add", "A_Second", "-", "Std_Find", "Std_SelectAll", "Std_Rename",
                                      "Std_Color", "-", "Std_Suppress", "Std_Unsuppress", "-", "Std_Preferences"}));
    EXPECT_EQ(namesIn(menu("&File")).front(), "A_New");
    EXPECT_EQ(namesIn(menu("&File")).back(), "Std_Quit");
}

TEST_F(Contributed, MenusAndSectionsThatDoNotExistAreMade)
{
    addCommand("B_One");
    addCommand("B_Two");
    contributions.addToMenu("&Beams", "First", "B_One");
    contributions.addToMenu("&Beams", "Second", "B_Two");
    EXPECT_TRUE(waitForMenu("&Beams", {"B_One", "-", "B_Two"}));
    EXPECT_EQ(menus().indexOf("&Beams") + 1, menus().indexOf("&Windows"));
}

TEST_F(Contributed, ToolbarsAndTheirSectionsGetCommands)
{
    addCommand("C_New");
    addCommand("C_Add");
    addCommand("C_Own");
    contributions.addToToolBar("File", "New", "C_New");
    contributions.addToToolBar("File", "Add", "C_Add");
    contributions.addToToolBar("Cables", "All", "C_Own");
    ASSERT_TRUE(QTest::qWaitFor([this] { return bar("Cables") != nullptr; }));
    EXPECT_EQ(namesIn(bar("File")).front(), "C_New");
    EXPECT_EQ(namesIn(bar("File")).back(), "C_Add");
    EXPECT_EQ(namesIn(bar("Cables")), QStringList({"C_Own"}));
}

TEST_F(Contributed, CommandsOfAWorkbenchAreShownWithItAlone)
{
    addCommand("D_Only");
    contributions.addToMenu("&Ducts", "All", "D_Only", "Test::Workbench");
    EXPECT_TRUE(window->setWorkbench("Gui::StdSimModule"));
    EXPECT_EQ(menu("&Ducts"), nullptr);
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_NE(menu("&Ducts"), nullptr);
}

TEST_F(Contributed, EntriesThatExistAreIgnored)
{
    contributions.addToMenu("&File", "New", "E_Once");
    const std::size_t count = contributions.menuPlaces().size();
    QSignalSpy spy(&contributions, &Contributions::changed);
    contributions.addToMenu("&File", "New", "E_Once");
    EXPECT_EQ(contributions.menuPlaces().size(), count);
    EXPECT_EQ(spy.count(), 0);
    contributions.addToMenu("&Edit", "Undo", "E_Once");
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(Contributed, ToolbarsKeepTheirPlacesWhenOthersCome)
{
    window->addToolBar(Qt::LeftToolBarArea, bar("Edit"));
    addCommand("F_New");
    contributions.addToToolBar("Frames", "All", "F_New");
    ASSERT_TRUE(QTest::qWaitFor([this] { return bar("Frames") != nullptr; }));
    EXPECT_EQ(window->toolBarArea(bar("Edit")), Qt::LeftToolBarArea);
    EXPECT_EQ(window->toolBarArea(bar("Frames")), Qt::TopToolBarArea);
}

Gui::DockEntry dockEntry(const char* name, const char* title, Gui::DockVisibility visibility)
{
    return {
        name, {"Test", title}, Gui::DockArea::Right, [] { return new QLabel(QStringLiteral("inside")); }, visibility};
}

TEST_F(Contributed, DocksAppearAndAreShownAndHiddenFromView)
{
    contributions.addDock(dockEntry("Gauges", "All gauges", Gui::DockVisibility::ShownAtFirst));
    ASSERT_TRUE(QTest::qWaitFor([this] { return dock("Gauges") != nullptr; }));
    EXPECT_TRUE(dock("Gauges")->isVisible());
    EXPECT_EQ(dock("Gauges")->windowTitle(), "All gauges");
    EXPECT_EQ(window->dockWidgetArea(dock("Gauges")), Qt::RightDockWidgetArea);
    EXPECT_EQ(qobject_cast<QLabel*>(dock("Gauges")->widget())->text(), "inside");
    QAction* const toggle = commands().findCommand("Dock_Gauges")->action();
    EXPECT_EQ(toggle->text(), "All gauges");
    EXPECT_TRUE(menu("&View")->actions().contains(toggle));
    toggle->trigger();
    EXPECT_FALSE(dock("Gauges")->isVisible());
    toggle->trigger();
    EXPECT_TRUE(dock("Gauges")->isVisible());
}

TEST_F(Contributed, DocksBesideTheDocumentsAreHiddenAtFirstInANarrowWindow)
{
    window->resizeWithDocks({500, 310}); // a screen of 1024 x 700 at 200 %
    contributions.addDock(dockEntry("Gauges", "All gauges", Gui::DockVisibility::ShownAtFirst));
    ASSERT_TRUE(QTest::qWaitFor([this] { return dock("Gauges") != nullptr; }));
    EXPECT_FALSE(dock("Gauges")->isVisible());
    EXPECT_TRUE(run("Dock_Gauges"));
    EXPECT_TRUE(dock("Gauges")->isVisible());
}

TEST_F(Contributed, DocksBesideTheDocumentsAreHiddenAtFirstOnAScreenThatHasNoRoomForThreeColumns)
{
    window->resizeWithDocks({921, 630}); // a screen of 1024 x 700
    contributions.addDock({"Gauges", {"Test", "All gauges"}, Gui::DockArea::Right, [] {
                               return new QLabel(QString(60, QLatin1Char('0')));
                           }});
    ASSERT_TRUE(QTest::qWaitFor([this] { return dock("Gauges") != nullptr; }));
    EXPECT_FALSE(dock("Gauges")->isVisible());
}

TEST_F(Contributed, DocksBesideTheDocumentsAreHiddenAtFirstInANarrowWindowWithASmallFontToo)
{
    QFont font = window->font();
    font.setPixelSize(7);
    window->setFont(font);
    window->resizeWithDocks({576, 340}); // a screen of 1280 x 800 at 200 %
    contributions.addDock(dockEntry("Gauges", "All gauges", Gui::DockVisibility::ShownAtFirst));
    ASSERT_TRUE(QTest::qWaitFor([this] { return dock("Gauges") != nullptr; }));
    EXPECT_FALSE(dock("Gauges")->isVisible());
}

TEST_F(Contributed, DocksThatAreHiddenAtFirstAreShownWhenAWorkbenchWantsThem)
{
    contributions.addDock(dockEntry("NoSuchDock", "Wanted by the test workbench", Gui::DockVisibility::HiddenAtFirst));
    ASSERT_TRUE(QTest::qWaitFor([this] { return dock("NoSuchDock") != nullptr; }));
    EXPECT_FALSE(dock("NoSuchDock")->isVisible());
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_TRUE(dock("NoSuchDock")->isVisible());
}

TEST_F(Contributed, DocksKeepTheirPlaceInTheLayout)
{
    contributions.addDock(dockEntry("Hinges", "Hinges", Gui::DockVisibility::ShownAtFirst));
    ASSERT_TRUE(QTest::qWaitFor([this] { return dock("Hinges") != nullptr; }));
    window->addDockWidget(Qt::BottomDockWidgetArea, dock("Hinges"));
    window->saveLayout();
    window.reset();
    window = std::make_unique<Gui::MainWindow>(contributions);
    window->setWorkbench("Gui::StdSimModule");
    window->restoreLayout();
    window->show();
    EXPECT_EQ(window->dockWidgetArea(dock("Hinges")), Qt::BottomDockWidgetArea);
    EXPECT_TRUE(dock("Hinges")->isVisible());
}

TEST_F(Contributed, DocksThatComeAfterTheLayoutGetTheirPlaceToo)
{
    auto* const before = new QDockWidget(window.get());
    before->setObjectName(QStringLiteral("Irons"));
    window->addDockWidget(Qt::BottomDockWidgetArea, before);
    window->saveLayout();
    delete before;
    window->restoreLayout();
    contributions.addDock(dockEntry("Irons", "Irons", Gui::DockVisibility::ShownAtFirst));
    ASSERT_TRUE(QTest::qWaitFor([this] { return dock("Irons") != nullptr; }));
    EXPECT_EQ(window->dockWidgetArea(dock("Irons")), Qt::BottomDockWidgetArea);
}

TEST_F(Contributed, DocksWhoseContentCannotBeMadeAreReportedOnce)
{
    contributions.addDock({"Joints", {"Test", "Joints"}, Gui::DockArea::Left, []() -> QWidget* {
                               throw std::runtime_error("no joints");
                           }});
    const std::size_t errors = Kelta::MessageLog::instance().errorCount();
    ASSERT_TRUE(QTest::qWaitFor([errors] { return Kelta::MessageLog::instance().errorCount() != errors; }));
    EXPECT_THAT(lastMessage(), HasSubstr("The docking window \"Joints\" cannot be made: no joints"));
    EXPECT_EQ(dock("Joints"), nullptr);
    EXPECT_FALSE(isApplicable("Dock_Joints"));
    EXPECT_TRUE(window->setWorkbench("Gui::StdSimModule"));
    EXPECT_EQ(Kelta::MessageLog::instance().errorCount(), errors + 1);
}

TEST_F(Contributed, TextsFollowTheLanguage)
{
    contributions.addDock({"Keys", {"Gui::MainWindow", "Messages"}, Gui::DockArea::Left, [] { return new QLabel; }});
    ASSERT_TRUE(QTest::qWaitFor([this] { return dock("Keys") != nullptr; }));
    Gui::Translator::instance()->setLanguage(QStringLiteral("de"));
    QCoreApplication::processEvents();
    EXPECT_EQ(dock("Keys")->windowTitle(), "Meldungen");
    Gui::Translator::instance()->setLanguage(QStringLiteral("en"));
    QCoreApplication::processEvents();
    EXPECT_EQ(dock("Keys")->windowTitle(), "Messages");
}

TEST_F(Contributed, AboutTextsAreParagraphsOfTheBox)
{
    contributions.addAboutText({"Test", "Probes for every purpose."});
    const vxtest::MessageBoxes boxes;
    EXPECT_TRUE(run("Std_About"));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(boxes.shown()[0].text.contains("<p>Probes for every purpose.</p>"));
}

/// Two workbenches. The second one is the workbench of test projects.
class Workbenches : public Contributed
{
protected:
    Workbenches()
    {
        contributions.addWorkbench({"Gui::StdSimModule", {"Test", "Plain"}, ""});
        contributions.addWorkbench({"Test::Workbench", {"Test", "Testing"}, "Test::Project"});
        // The test workbench has no such menu.
        contributions.addToMenu("&View", "Docks", "Std_MessageLog", "Test::Workbench");
        window->setWorkbench("Gui::StdSimModule");
    }

    std::string active() const { return window->getWorkbench()->getTypeId().get_name(); }
    bool waitFor(const std::string& workbench) const
    {
        return QTest::qWaitFor([&] { return active() == workbench; });
    }
    /// Returns the entries of the switch in "View".
    QList<QAction*> choices() const
    {
        for (const QAction* const action : menu("&View")->actions())
            if (action->menu() != nullptr && action->text() == "&Workbench")
                return action->menu()->actions();
        return {};
    }
};

TEST_F(Contributed, OneWorkbenchNeedsNoSwitch)
{
    contributions.addWorkbench({"Gui::StdSimModule", {"Test", "Plain"}, ""});
    QCoreApplication::processEvents();
    for (const QAction* const action : menu("&View")->actions())
        EXPECT_NE(action->text(), "&Workbench");
}

TEST_F(Workbenches, AreSwitchedFromView)
{
    ASSERT_EQ(choices().size(), 2);
    EXPECT_EQ(choices()[0]->text(), "Plain");
    EXPECT_TRUE(choices()[0]->isChecked());
    EXPECT_FALSE(choices()[1]->isChecked());
    choices()[1]->trigger();
    ASSERT_TRUE(waitFor("Test::Workbench"));
    ASSERT_EQ(choices().size(), 2);
    EXPECT_FALSE(choices()[0]->isChecked());
    EXPECT_TRUE(choices()[1]->isChecked());
    EXPECT_TRUE(run("Workbench_Gui::StdSimModule"));
    EXPECT_TRUE(waitFor("Gui::StdSimModule"));
}

TEST_F(Workbenches, OfTheCurrentProjectAreChosen)
{
    vxtest::TestProject& project = makeProject();
    EXPECT_TRUE(waitFor("Test::Workbench"));
    // The user may choose another workbench until another project becomes the current one.
    EXPECT_TRUE(run("Workbench_Gui::StdSimModule"));
    ASSERT_TRUE(waitFor("Gui::StdSimModule"));
    addObject(project);
    QCoreApplication::processEvents();
    EXPECT_EQ(active(), "Gui::StdSimModule");
    makeProject("Other");
    EXPECT_TRUE(waitFor("Test::Workbench"));
}

TEST_F(Workbenches, StayWhenTheCurrentProjectHasNone)
{
    makeProject();
    ASSERT_TRUE(waitFor("Test::Workbench"));
    Obj::Application::instance().createProject("Test::OtherProject", "Plain");
    QCoreApplication::processEvents();
    EXPECT_EQ(active(), "Test::Workbench");
}

TEST_F(Workbenches, AreNotReplacedWhileTheirOwnCommandRuns)
{
    // The command is in a menu of the workbench that the command's project replaces.
    if (commands().findCommand("L_New") == nullptr)
        commands().new_command(new vxtest::TestCommand("L_New", [] { makeProject(); }));
    contributions.addToMenu("&File", "New", "L_New", "Gui::StdSimModule");
    window->setWorkbench("Gui::StdSimModule");
    menu("&File")->actions().first()->trigger();
    EXPECT_EQ(active(), "Gui::StdSimModule");
    EXPECT_TRUE(waitFor("Test::Workbench"));
}

TEST_F(Workbenches, BeginWithTheProjectsOwnOrTheFirst)
{
    EXPECT_TRUE(window->setDefaultWorkbench());
    EXPECT_EQ(active(), contributions.workbenches().front().className);
    makeProject();
    EXPECT_TRUE(window->setDefaultWorkbench());
    EXPECT_EQ(active(), "Test::Workbench");
}

TEST_F(Workbenches, LeaveADockHiddenThatTheUserHasHidden)
{
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_TRUE(dock("MessageLog")->isVisible());
    dock("MessageLog")->hide();
    EXPECT_TRUE(window->setWorkbench("Gui::StdSimModule"));
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_FALSE(dock("MessageLog")->isVisible());
}

} // namespace
