#include "GuiTesting.h"

#include "Gui/Translator.h"

#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QToolBar>

namespace {

using Gui::MainWindow;
using Gui::WelcomeStep;

/// A window that was closed by the user with the contributions of a module, and the window of the next start.
class WindowOutline : public vxtest::Host
{
protected:
    WindowOutline()
    {
        if (commands().findCommand("Test_Begin") == nullptr)
            commands().new_command(new vxtest::TestCommand("Test_Begin", {}));
        addModule(contributions);
        window->setWorkbench("Gui::StdSimModule");
        window->resize(780, 560);
        window->resizeDocks({dock("Gauges")}, {150}, Qt::Horizontal);
        settle();
    }

    static void addModule(Gui::Contributions& contributions)
    {
        contributions.addToMenu("&Probes", "Begin", "Test_Begin");
        contributions.addToToolBar("Edit", "Begin", "Test_Begin");
        contributions.addDock({"Gauges", {"Test", "All gauges"}, Gui::DockArea::Right, [] { return new QLabel("7"); }});
        contributions.addWelcomeEntry({WelcomeStep::NoProject,
                                       "",
                                       {"Test", "No probes yet"},
                                       {"Test", "Begin with a project of probes."},
                                       {"Test_Begin"}});
    }
    static void settle() { QCoreApplication::processEvents(); }

    /// Closes the window and shows that of the next start, before its modules are loaded.
    void startAgain()
    {
        window->saveLayout();
        window.reset();
        window = std::make_unique<MainWindow>(contributionsOfNextStart, MainWindow::Parts::OutlineFirst);
        window->updateCommands();
        window->show();
        settle();
    }
    void complete()
    {
        window->complete([this] { window->setWorkbench("Gui::StdSimModule"); });
        settle();
    }

    QDockWidget* dock(const char* name) const { return window->findChild<QDockWidget*>(QLatin1String(name)); }
    bool shows(const char* name) const { return dock(name) != nullptr && dock(name)->isVisible(); }
    QStringList menus() const
    {
        QStringList titles;
        for (const QAction* const action : window->menuBar()->actions())
            if (action->isVisible())
                titles << action->text();
        return titles;
    }
    /// Returns the names and places of all visible docks, bars and buttons, and of the documents.
    std::map<std::string, std::string> places() const
    {
        std::map<std::string, std::string> places;
        for (const QWidget* const widget : window->findChildren<QWidget*>()) {
            const bool isPart =
                qobject_cast<const QDockWidget*>(widget) != nullptr || widget == window->centralWidget() ||
                (qobject_cast<const QToolBar*>(widget) != nullptr && widget->parent() == window.get()) ||
                qobject_cast<const QMenuBar*>(widget) != nullptr || widget->objectName() == "Test_Begin";
            const QRect place(widget->mapTo(window.get(), QPoint()), widget->size());
            if (isPart && widget->isVisible())
                places[widget->metaObject()->className() + widget->objectName().toStdString()] =
                    QStringLiteral("%1,%2 %3x%4")
                        .arg(place.x())
                        .arg(place.y())
                        .arg(place.width())
                        .arg(place.height())
                        .toStdString();
        }
        return places;
    }
    QStringList pageTexts() const
    {
        QStringList texts;
        const auto* const page = window->findChild<QWidget*>(QStringLiteral("welcomePage"));
        for (const QLabel* const label : page->findChildren<QLabel*>())
            texts << label->text();
        for (const QPushButton* const button : page->findChildren<QPushButton*>())
            if (button->isVisible())
                texts << button->objectName() + QStringLiteral(": ") + button->text();
        return texts;
    }

    Gui::Contributions contributionsOfNextStart;
};

TEST_F(WindowOutline, ShowsThePageOfAModuleBeforeTheModuleIsThere)
{
    const QStringList texts = pageTexts();
    ASSERT_EQ(texts[0], "No probes yet");
    ASSERT_EQ(texts[1], "Begin with a project of probes.");
    startAgain();
    EXPECT_FALSE(window->isComplete());
    EXPECT_EQ(pageTexts(), texts);
    addModule(contributionsOfNextStart);
    complete();
    EXPECT_TRUE(window->isComplete());
    EXPECT_EQ(pageTexts(), texts);
}

TEST_F(WindowOutline, KeepsThePlacesOfAllPartsWhenTheyGetTheirContents)
{
    const auto before = places();
    const QStringList titles = menus();
    ASSERT_TRUE(titles.contains("&Probes"));
    ASSERT_EQ(dock("Gauges")->width(), 150);
    startAgain();
    EXPECT_EQ(window->findChild<Gui::PropertyPanel*>(), nullptr) << "an outline has no contents";
    EXPECT_EQ(menus(), titles);
    EXPECT_EQ(dock("Gauges")->windowTitle(), "All gauges");
    auto withoutClass = [](const auto& map) {
        std::map<std::string, std::string> places;
        for (const auto& [name, place] : map)
            places[name.substr(name.find_last_of(':') + 1)] = place;
        return places;
    };
    EXPECT_EQ(withoutClass(places()), withoutClass(before));
    addModule(contributionsOfNextStart);
    complete();
    EXPECT_EQ(places(), before);
    EXPECT_EQ(menus(), titles);
    EXPECT_NE(dock("Gauges")->widget(), nullptr);
}

TEST_F(WindowOutline, IsLaidOutWhenItIsCompleteBeforeTheEventLoopMayPaintIt)
{
    const auto before = places();
    startAgain();
    addModule(contributionsOfNextStart);
    window->complete([this] { window->setWorkbench("Gui::StdSimModule"); });
    EXPECT_EQ(places(), before);
}

TEST_F(WindowOutline, KeepsHiddenPartsHidden)
{
    dock("PropertyPanel")->hide();
    window->findChild<QToolBar*>("Edit")->hide();
    settle();
    startAgain();
    EXPECT_FALSE(shows("PropertyPanel"));
    EXPECT_FALSE(window->findChild<QToolBar*>("Edit")->isVisible());
    addModule(contributionsOfNextStart);
    complete();
    EXPECT_FALSE(shows("PropertyPanel")) << "although the workbench wants it at its first start";
    EXPECT_FALSE(window->findChild<QToolBar*>("Edit")->isVisible());
    EXPECT_TRUE(shows("Gauges"));
}

TEST_F(WindowOutline, FollowsTheUserWhoResizesTheWindowMeanwhile)
{
    startAgain();
    window->resize(700, 500);
    settle();
    complete();
    EXPECT_EQ(window->size(), QSize(700, 500));
}

TEST_F(WindowOutline, GivesTheFocusToTheWidgetThatWouldHaveItInACompleteWindow)
{
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    window->saveLayout();
    window.reset();
    window = std::make_unique<MainWindow>(contributions);
    window->complete([this] { window->setWorkbench("Gui::StdSimModule"); });
    window->show();
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    const QString expected = QApplication::focusWidget()->objectName();
    startAgain();
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
    addModule(contributionsOfNextStart);
    complete();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), expected);
}

TEST_F(WindowOutline, DropsTheDockOfAModuleThatIsGone)
{
    startAgain();
    ASSERT_NE(dock("Gauges"), nullptr);
    complete();
    EXPECT_EQ(dock("Gauges"), nullptr);
    EXPECT_EQ(pageTexts()[0], "No module is loaded");
    EXPECT_FALSE(menus().contains("&Probes"));
}

TEST_F(WindowOutline, ShowsWarningsOfModulesWhenItIsComplete)
{
    Kelta::MessageLog::instance().clear();
    startAgain();
    EXPECT_FALSE(shows("MessageLog"));
    window->complete([this] {
        Kelta::MessageLog::warning(QStringLiteral("a module is broken"));
        window->setWorkbench("Gui::StdSimModule");
    });
    EXPECT_TRUE(shows("MessageLog"));
    Kelta::MessageLog::instance().clear();
}

TEST_F(WindowOutline, IsNotUsedInAnotherLanguage)
{
    window->saveLayout();
    Gui::Translator::instance()->setLanguage(QStringLiteral("de"));
    window = std::make_unique<MainWindow>(contributionsOfNextStart, MainWindow::Parts::OutlineFirst);
    EXPECT_TRUE(window->isComplete());
    Gui::Translator::instance()->setLanguage(QStringLiteral("en"));
}

/// Stores the layout as it is, with a window that fits into a smaller screen.
class SmallerScreen : public WindowOutline
{
protected:
    void storeNarrowWindow()
    {
        window->saveLayout();
        window->resize(400, 560);
        QSettings().setValue("window/geometry", window->saveGeometry());
    }
};

TEST_F(SmallerScreen, HidesTheDocksThatWouldLeaveDocumentsNoRoom)
{
    storeNarrowWindow();
    addModule(contributionsOfNextStart);
    window = std::make_unique<MainWindow>(contributionsOfNextStart, MainWindow::Parts::OutlineFirst);
    window->updateCommands();
    window->show();
    settle();
    EXPECT_FALSE(shows("Gauges"));
    complete();
    EXPECT_FALSE(shows("Gauges"));
    EXPECT_TRUE(shows("ProjectExplorer"));
}

TEST_F(SmallerScreen, KeepsTheDocksThatTheUserHasShownThere)
{
    window->resize(400, 560);
    settle();
    addModule(contributionsOfNextStart);
    startAgain();
    complete();
    EXPECT_LE(window->width(), 420);
    EXPECT_TRUE(shows("Gauges"));
}

TEST_F(WindowOutline, IsNotUsedAtTheFirstStart)
{
    window = std::make_unique<MainWindow>(contributionsOfNextStart, MainWindow::Parts::OutlineFirst);
    EXPECT_TRUE(window->isComplete());
    EXPECT_NE(window->findChild<Gui::PropertyPanel*>(), nullptr);
}

TEST_F(WindowOutline, SurvivesSettingsThatWereEdited)
{
    window->saveLayout();
    QSettings settings;
    settings.setValue("window/outline/bars",
                      QStringList{"Edit", "x", "-7", "3000", "Edit", "4", "99999999999", "half"});
    settings.setValue("window/outline/docks", QStringList{"ProjectExplorer", "A", "ProjectExplorer", "B", "half"});
    settings.setValue("window/geometry", QByteArray("no geometry"));
    window = std::make_unique<MainWindow>(contributionsOfNextStart, MainWindow::Parts::OutlineFirst);
    ASSERT_FALSE(window->isComplete());
    window->updateCommands();
    window->show();
    settle();
    complete();
    EXPECT_TRUE(window->getProjectExplorer().isVisible());
    EXPECT_LE(window->height(), 600);
}

TEST_F(WindowOutline, IsNotUsedIfThePlacesOfItsPartsCannotBeRead)
{
    window->saveLayout();
    QSettings().setValue("window/state", QByteArray("no state"));
    addModule(contributionsOfNextStart);
    window = std::make_unique<MainWindow>(contributionsOfNextStart, MainWindow::Parts::OutlineFirst);
    window->show();
    complete();
    EXPECT_EQ(window->dockWidgetArea(dock("Gauges")), Qt::RightDockWidgetArea);
    EXPECT_EQ(window->dockWidgetArea(dock("ProjectExplorer")), Qt::LeftDockWidgetArea);
}

} // namespace
