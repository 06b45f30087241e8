#include "Gui/MainWindow.h"

#include "GuiTesting.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QTabBar>
#include <QToolBar>

namespace {

using Gui::MDIWindow;
using testing::HasSubstr;

class MainWindowTest : public vxtest::Host
{
protected:
    MDIWindow* addDocument(const char* title, Gui::GuiProject* project = nullptr) const
    {
        auto* const document = new MDIWindow(project, window.get());
        document->setWindowTitle(QLatin1String(title));
        window->add_mdi_window(document);
        return document;
    }
    QTabBar* tabs() const { return window->findChild<QMdiArea*>()->findChild<QTabBar*>(); }
    bool showsWelcome() const
    {
        const auto* const page = window->findChild<QWidget*>(QStringLiteral("welcomePage"));
        return page != nullptr && page->isVisible();
    }
};

TEST_F(MainWindowTest, IsKnownWhileItLives)
{
    EXPECT_EQ(Gui::MainWindow::get_main_window_inst(), window.get());
    window.reset();
    EXPECT_EQ(Gui::MainWindow::get_main_window_inst(), nullptr);
}

TEST_F(MainWindowTest, HasExplorerAndPropertiesBesideTheDocuments)
{
    for (const char* const name : {"ProjectExplorer", "PropertyPanel"}) {
        const auto* const dock = window->findChild<QDockWidget*>(QLatin1String(name));
        ASSERT_NE(dock, nullptr) << name;
        EXPECT_TRUE(dock->isVisible());
    }
}

TEST_F(MainWindowTest, FitsIntoTheScreenAtItsFirstStart)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    ASSERT_LT(screen.width(), Gui::MainWindow::usualSize.width()) << "the screen of the test is small";
    EXPECT_LE(window->frameGeometry().width(), screen.width());
    EXPECT_LE(window->frameGeometry().height(), screen.height());
}

/// Adds a document that needs much space, with fields at its top and bottom.
struct TallDocument
{
    explicit TallDocument(Gui::MainWindow& window) : document(new MDIWindow(nullptr, &window))
    {
        auto* const content = new QWidget(document);
        content->setMinimumSize(1500, 1500);
        top->setParent(content);
        bottom->setParent(content);
        bottom->move(0, 1450);
        document->setCentralWidget(content);
        window.add_mdi_window(document);
        window.set_active_mdi_window(document);
    }

    MDIWindow* document;
    QLineEdit* top = new QLineEdit;
    QLineEdit* bottom = new QLineEdit;
};

TEST_F(MainWindowTest, FitsIntoASmallScreenWithAnyDocumentAndAllDocks)
{
    const TallDocument tall(*window);
    makeProject();
    window->showMessages();
    QCoreApplication::processEvents();
    // A screen of 1024 x 700 at 200 %, without the frame of the window.
    window->resize(500, 310);
    EXPECT_EQ(window->size(), QSize(500, 310));
    EXPECT_LE(window->minimumSizeHint().width(), 500);
    EXPECT_LE(window->minimumSizeHint().height(), 310);
}

TEST_F(MainWindowTest, ScrollsADocumentThatDoesNotFitToTheFieldWithTheKeyboard)
{
    const TallDocument tall(*window);
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    window->resize(500, 310);
    QCoreApplication::processEvents();
    for (const auto& [focused, hidden] : {std::pair(tall.bottom, tall.top), std::pair(tall.top, tall.bottom)}) {
        focused->setFocus();
        EXPECT_FALSE(focused->visibleRegion().isEmpty());
        EXPECT_TRUE(hidden->visibleRegion().isEmpty());
    }
}

TEST_F(MainWindowTest, DoesNotScrollADocumentUnderTheMouse)
{
    const TallDocument tall(*window);
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    window->resize(500, 310);
    QCoreApplication::processEvents();
    tall.top->setFocus();
    auto& scrolled = dynamic_cast<QScrollArea&>(*window->centralWidget());
    // A part of the field is visible.
    scrolled.verticalScrollBar()->setValue(tall.top->height() / 2 + 40);
    const int value = scrolled.verticalScrollBar()->value();
    window->getProjectExplorer().setFocus();
    QTest::mousePress(tall.top, Qt::LeftButton, {}, QPoint(5, tall.top->height() - 2));
    EXPECT_EQ(QApplication::focusWidget(), tall.top);
    EXPECT_EQ(scrolled.verticalScrollBar()->value(), value);
    QTest::mouseRelease(tall.top, Qt::LeftButton, {}, QPoint(5, tall.top->height() - 2));
}

TEST_F(MainWindowTest, HidesTheMessagesUntilThereIsAWarning)
{
    Kelta::MessageLog::instance().clear();
    window.reset();
    window = std::make_unique<Gui::MainWindow>(contributions);
    window->setWorkbench("Gui::StdSimModule");
    window->show();
    const auto* const messages = window->findChild<QDockWidget*>(QStringLiteral("MessageLog"));
    EXPECT_FALSE(messages->isVisible());
    Kelta::MessageLog::information(QStringLiteral("done"));
    EXPECT_FALSE(messages->isVisible());
    Kelta::MessageLog::warning(QStringLiteral("look"));
    EXPECT_TRUE(messages->isVisible());
    window->saveLayout();

    Kelta::MessageLog::instance().clear();
    window->restoreLayout();
    EXPECT_FALSE(messages->isVisible()) << "there is nothing to read yet";
}

TEST_F(MainWindowTest, HasCheckMarksForItsDocksInView)
{
    QAction* const properties = commands().findCommand("Std_PropertyPanel")->action();
    EXPECT_TRUE(properties->isCheckable());
    EXPECT_TRUE(vxtest::waitFor([&] { return properties->isChecked(); }));
    properties->trigger();
    EXPECT_FALSE(window->findChild<QDockWidget*>(QStringLiteral("PropertyPanel"))->isVisible());
    EXPECT_TRUE(vxtest::waitFor([&] { return !properties->isChecked(); }));
    window->findChild<QDockWidget*>(QStringLiteral("PropertyPanel"))->show();
    EXPECT_TRUE(vxtest::waitFor([&] { return properties->isChecked(); }));
}

TEST_F(MainWindowTest, ShowsAndHidesItsToolbarsFromView)
{
    QMenu* const bars = commands().findCommand("Std_ToolBars")->action()->menu();
    ASSERT_NE(bars, nullptr);
    Q_EMIT bars->aboutToShow();
    QStringList titles;
    for (const QAction* const action : bars->actions())
        titles << action->text();
    EXPECT_EQ(titles, QStringList({"Edit", "Messages (below)"}));
    const auto* const edit = window->findChild<QToolBar*>(QStringLiteral("Edit"));
    EXPECT_TRUE(bars->actions()[0]->isChecked());
    bars->actions()[0]->trigger();
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(run("Std_ToolBars"));
    EXPECT_TRUE(edit->isVisible());
}

TEST_F(MainWindowTest, ShowsLabelsInTabsAsTheyAre)
{
    vxtest::TestProject& project = makeProject();
    for (const char* const label : {"A & B", "x[*]y", "<b>bold</b>", "&Save[*]"}) {
        vxtest::TestObject& object = addObject(project, label);
        object.label.setValue(label);
        auto* const editor = new vxtest::TestEditor;
        editor->editObject(*Gui::GuiApplication::Instance->get_project(&project), object);
        window->add_mdi_window(editor);
        const int tab = tabs()->count() - 1;
        const QString shown = QString(label).replace(QLatin1Char('&'), QStringLiteral("&&"));
        EXPECT_EQ(tabs()->tabText(tab), shown) << "a tab shows && as &";
        editor->setWindowModified(true);
        EXPECT_EQ(tabs()->tabText(tab), shown + QLatin1Char('*'));
        editor->setWindowModified(false);
        EXPECT_EQ(tabs()->tabText(tab), shown);
    }
    window->tileWindows();
    window->tabWindows();
    EXPECT_EQ(tabs()->tabText(0), "A && B");
}

TEST_F(MainWindowTest, ShowsDocumentsAsTabsWithTheirTitles)
{
    addDocument("Beam[*]");
    MDIWindow* const second = addDocument("Plate[*]");
    ASSERT_EQ(tabs()->count(), 2);
    EXPECT_EQ(tabs()->tabText(0), "Beam");
    EXPECT_EQ(window->get_active_mdi_window(), second);
    second->setWindowTitle(QStringLiteral("Shell[*]"));
    EXPECT_EQ(tabs()->tabText(1), "Shell");
    second->setWindowModified(true);
    EXPECT_EQ(tabs()->tabText(1), "Shell*");
}

TEST_F(MainWindowTest, BringsADocumentToTheFront)
{
    MDIWindow* const first = addDocument("A");
    MDIWindow* const second = addDocument("B");
    window->set_active_mdi_window(first);
    EXPECT_EQ(window->get_active_mdi_window(), first);
    QTest::mouseClick(tabs(), Qt::LeftButton, {}, tabs()->tabRect(1).center());
    EXPECT_EQ(window->get_active_mdi_window(), second);
    window->set_active_mdi_window(nullptr);
    EXPECT_EQ(window->get_active_mdi_window(), second);
}

TEST_F(MainWindowTest, ListsDocumentsInTheOrderInWhichTheyCame)
{
    MDIWindow* const first = addDocument("A");
    MDIWindow* const second = addDocument("B");
    window->set_active_mdi_window(first);
    EXPECT_EQ(window->getMdiWindows(), QList<MDIWindow*>({first, second}));
}

TEST_F(MainWindowTest, RemovesADocumentAtOnce)
{
    const QPointer<MDIWindow> document = addDocument("A");
    window->remove_mdi_window(document);
    EXPECT_EQ(document, nullptr);
    EXPECT_EQ(window->get_active_mdi_window(), nullptr);
    MDIWindow stranger(nullptr, nullptr);
    window->remove_mdi_window(&stranger);
    window->remove_mdi_window(nullptr);
}

TEST_F(MainWindowTest, DestroysADocumentThatTheUserCloses)
{
    const QPointer<MDIWindow> document = addDocument("A");
    window->close_current_window();
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
    EXPECT_EQ(window->get_active_mdi_window(), nullptr);
    EXPECT_TRUE(vxtest::waitFor([&document] { return document == nullptr; }));
    EXPECT_TRUE(vxtest::waitFor([this] { return showsWelcome(); }));
    window->close_current_window();
}

TEST_F(MainWindowTest, ClosesADocumentByTheButtonOfItsTab)
{
    const QPointer<MDIWindow> document = addDocument("A");
    QWidget* const button = tabs()->tabButton(0, QTabBar::RightSide) != nullptr
                                ? tabs()->tabButton(0, QTabBar::RightSide)
                                : tabs()->tabButton(0, QTabBar::LeftSide);
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(vxtest::waitFor([&document] { return document == nullptr; }));
}

/// A document that refuses to be closed.
class Stubborn final : public MDIWindow
{
public:
    Stubborn() : MDIWindow(nullptr, nullptr) {}

protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

TEST_F(MainWindowTest, SelectsTheObjectOfADocumentThatRefusesToCloseWithTheOthers)
{
    vxtest::TestProject& project = makeProject();
    Gui::GuiProject& side = *Gui::GuiApplication::Instance->get_project(&project);
    vxtest::TestObject& kept = addObject(project, "Kept");
    vxtest::TestObject& other = addObject(project, "Other");
    auto* const stubborn = new Stubborn;
    auto* const willing = new MDIWindow(nullptr, nullptr);
    window->add_mdi_window(stubborn);
    window->add_mdi_window(willing);
    stubborn->editObject(side, kept);
    willing->editObject(side, other);
    select({&other});
    window->closeAllWindows();
    EXPECT_EQ(window->get_active_mdi_window(), stubborn);
    EXPECT_TRUE(selection().is_selected(&kept, nullptr));
    EXPECT_FALSE(selection().is_selected(&other, nullptr));
}

TEST_F(MainWindowTest, GivesTheExplorerRoomForLabelsOnASmallScreen)
{
    for (const QSize& size : {QSize(460, 315), QSize(920, 630)}) {
        window->resizeWithDocks(size);
        QCoreApplication::processEvents();
        const int letters = window->getProjectExplorer().viewport()->width() / window->fontMetrics().averageCharWidth();
        EXPECT_GE(letters, 20) << size.width();
        EXPECT_LE(window->getProjectExplorer().width(), window->width() * 2 / 5);
    }
}

TEST_F(MainWindowTest, KeepsADocumentThatRefusesToClose)
{
    window->add_mdi_window(new Stubborn);
    window->close_current_window();
    window->closeAllWindows();
    QCoreApplication::processEvents();
    EXPECT_EQ(window->getMdiWindows().size(), 1);
    EXPECT_FALSE(showsWelcome());
}

TEST_F(MainWindowTest, TakesTheDocumentsOfAProjectWithIt)
{
    vxtest::TestProject& project = makeProject();
    Gui::GuiProject* const guiProject = Gui::GuiApplication::Instance->get_project(&project);
    const QPointer<MDIWindow> document = addDocument("A", guiProject);
    MDIWindow* const other = addDocument("B");
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(document, nullptr);
    EXPECT_EQ(window->getMdiWindows(), QList<MDIWindow*>({other}));
}

TEST_F(MainWindowTest, DestroysItsDocumentsWhileItCanStillBeAskedFor)
{
    const QPointer<MDIWindow> document = addDocument("A");
    bool asked = false;
    QObject::connect(document, &QObject::destroyed,
                     [&asked] { asked = Gui::MainWindow::get_main_window_inst() != nullptr; });
    window.reset();
    EXPECT_TRUE(asked);
}

TEST_F(MainWindowTest, ReportsAWorkbenchThatThereIsNot)
{
    const Gui::StdSimModule* const before = window->getWorkbench();
    EXPECT_FALSE(window->setWorkbench("No::Such"));
    EXPECT_THAT(lastMessage(), HasSubstr("There is no workbench \"No::Such\"."));
    EXPECT_FALSE(window->setWorkbench("Test::Object"));
    EXPECT_EQ(window->getWorkbench(), before);
}

TEST_F(MainWindowTest, RebuildsItsBarsWithoutKeepingOldOnes)
{
    const int bars = window->findChildren<QToolBar*>().size();
    const int menus = window->menuBar()->actions().size();
    EXPECT_TRUE(window->setWorkbench("Gui::StdSimModule"));
    EXPECT_EQ(window->findChildren<QToolBar*>().size(), bars);
    EXPECT_EQ(window->menuBar()->actions().size(), menus);
    EXPECT_EQ(window->menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly).size(), menus);
}

TEST_F(MainWindowTest, KeepsItsLayoutForTheNextStart)
{
    const auto dockOf = [this](const char* name) { return window->findChild<QDockWidget*>(QLatin1String(name)); };
    const auto barOf = [this](const char* name) { return window->findChild<QToolBar*>(QLatin1String(name)); };
    window->resize(900, 600);
    dockOf("PropertyPanel")->hide();
    barOf("Edit")->hide();
    window->addDockWidget(Qt::RightDockWidgetArea, dockOf("MessageLog"));
    window->saveLayout();

    window.reset();
    window = std::make_unique<Gui::MainWindow>(contributions);
    window->setWorkbench("Gui::StdSimModule");
    window->restoreLayout();
    window->show();
    EXPECT_EQ(window->size(), QSize(900, 600));
    EXPECT_FALSE(dockOf("PropertyPanel")->isVisible());
    EXPECT_TRUE(dockOf("ProjectExplorer")->isVisible());
    EXPECT_EQ(window->dockWidgetArea(dockOf("MessageLog")), Qt::RightDockWidgetArea);
    EXPECT_FALSE(barOf("Edit")->isVisible());
    EXPECT_TRUE(barOf("BottomMessages")->isVisible());
}

TEST_F(MainWindowTest, StartsAsItIsWithoutALayoutOfBefore)
{
    QSettings().clear();
    const QSize size = window->size();
    window->restoreLayout();
    EXPECT_EQ(window->size(), size);
    EXPECT_TRUE(window->findChild<QDockWidget*>(QStringLiteral("PropertyPanel"))->isVisible());
}

TEST_F(MainWindowTest, TellsWorkbenchesWhenTheyBecomeActiveAndNoLongerAre)
{
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_EQ(vxtest::TestWorkbench::activations, 1);
    EXPECT_EQ(vxtest::TestWorkbench::deactivations, 0);
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_EQ(vxtest::TestWorkbench::activations, 2);
    EXPECT_EQ(vxtest::TestWorkbench::deactivations, 1);
    EXPECT_FALSE(window->setWorkbench("No::Such"));
    EXPECT_EQ(vxtest::TestWorkbench::deactivations, 1);
    EXPECT_TRUE(window->setWorkbench("Gui::StdSimModule"));
    EXPECT_EQ(vxtest::TestWorkbench::activations, 2);
    EXPECT_EQ(vxtest::TestWorkbench::deactivations, 2);
}

TEST_F(MainWindowTest, ShowsTheDocksThatTheWorkbenchWants)
{
    auto* const messages = window->findChild<QDockWidget*>(QStringLiteral("MessageLog"));
    auto* const properties = window->findChild<QDockWidget*>(QStringLiteral("PropertyPanel"));
    messages->hide();
    properties->hide();
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_TRUE(messages->isVisible());
    EXPECT_FALSE(properties->isVisible());
}

TEST_F(MainWindowTest, OffersWhatTheWorkbenchAddsInTheMenuOfItsBars)
{
    const auto offers = [this](const char* command) {
        const std::unique_ptr<QMenu> menu(window->createPopupMenu());
        return menu->actions().contains(commands().findCommand(command)->action());
    };
    EXPECT_FALSE(offers("Std_About"));
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_TRUE(offers("Std_About"));
}

TEST_F(MainWindowTest, ShowsTheMessagesInFrontEvenIfTheUserHidThem)
{
    auto* const messages = window->findChild<QDockWidget*>(QStringLiteral("MessageLog"));
    messages->hide();
    window->showMessages();
    EXPECT_TRUE(messages->isVisible());
    auto* const properties = window->findChild<QDockWidget*>(QStringLiteral("PropertyPanel"));
    window->tabifyDockWidget(messages, properties);
    properties->raise();
    ASSERT_TRUE(vxtest::waitFor([&] { return messages->visibleRegion().isEmpty(); }));
    window->showMessages();
    EXPECT_TRUE(vxtest::waitFor([&] { return !messages->visibleRegion().isEmpty(); }));
}

TEST_F(MainWindowTest, SelectsAProjectThatTheUserMakes)
{
    vxtest::TestProject& other = makeProject("Other");
    vxtest::TestProject& project = makeProject();
    addObject(project);
    Obj::Application::instance().setCurrentProject(other);
    vxMsg::MessageProxy::instance().projectCreated(project);
    EXPECT_THAT(selection().get_projects(), testing::ElementsAre(&project));
    EXPECT_EQ(selection().getCount(), 1U);
    EXPECT_EQ(Obj::Application::get_current_project(), &project);
}

TEST_F(MainWindowTest, SelectsAnObjectThatTheUserMakesOnce)
{
    vxtest::TestObject& object = addObject(makeProject());
    int changes = 0;
    const auto counting =
        QObject::connect(&selection(), &Gui::TreeSelectionSingleton::selectionChanged, [&changes] { ++changes; });
    vxMsg::MessageProxy::instance().objectCreated(object);
    QObject::disconnect(counting);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(selection().is_selected(&object, nullptr));
}

TEST_F(MainWindowTest, StaysOpenWhenClosingIsRefused)
{
    const auto refuse =
        QObject::connect(window.get(), &Gui::MainWindow::closing, [](bool& refused) { refused = true; });
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    QObject::disconnect(refuse);
    EXPECT_TRUE(window->close());
}

} // namespace
