// The start of the program with a user: with all its modules, and input before they are loaded.

#include "Start.h"

#include "Startup.h"
#include "Waiting.h"

#include "Gui/CommandController.h"
#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Obj/Application.h"

#include <QDockWidget>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <functional>
#include <memory>

namespace {

/// Calls a function when a label with this text is painted for the first time.
class Reader : public QObject
{
public:
    Reader(QString text, std::function<void()> read) : m_text(std::move(text)), m_read(std::move(read))
    {
        qApp->installEventFilter(this);
    }
    bool wasRead() const { return !m_read; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const label = qobject_cast<const QLabel*>(watched);
        if (m_read && event->type() == QEvent::Paint && label != nullptr && label->text() == m_text)
            std::exchange(m_read, {})();
        return false;
    }

private:
    QString m_text;
    std::function<void()> m_read;
};

bool hasProject()
{
    return Obj::Application::get_current_project() != nullptr;
}

/// The second start of a user, whose settings have the outline of the first.
class Start : public testing::Test
{
protected:
    Start()
    {
        const auto store = [](const char* key, const QStringList& fields) {
            QSettings().setValue(QStringLiteral("window/outline/") + QLatin1String(key), fields);
        };
        QSettings().setValue("window/outline/language", "en");
        store("menus", {"&File", "&Material"});
        store("bars", {"File", "4", "200", "30"});
        store("docks", {"ProjectExplorer", "Project explorer", "Inspector", "Inspector"});
        store("page", {"Remembered title", "Remembered text", "Mat_NewDoc", "&New"});
        QSettings().setValue("window/state", QMainWindow().saveState());
        window = std::make_unique<Gui::MainWindow>(Gui::MainWindow::Parts::OutlineFirst);
        desktop::startFiles(*window, {});
        start = std::make_unique<desktop::Start>(*window, [this] { ++completions; });
    }
    ~Start() override
    {
        start.reset();
        window.reset();
        desktop::shutDown();
    }

    static bool hasModules()
    {
        return Gui::GuiApplication::Instance->get_command_manager().findCommand("Mat_NewDoc") != nullptr;
    }
    bool waitUntilComplete() const
    {
        return vxtest::waitFor([this] { return completions == 1; });
    }

    std::unique_ptr<Gui::MainWindow> window;
    std::unique_ptr<desktop::Start> start;
    int completions = 0;
};

TEST_F(Start, ShowsThePageOfTheLastRunBeforeModulesAreLoaded)
{
    bool hadModules = true;
    start->show();
    const Reader reader("Remembered title", [&] { hadModules = hasModules(); });
    ASSERT_TRUE(waitUntilComplete());
    EXPECT_TRUE(reader.wasRead());
    EXPECT_FALSE(hadModules);
    EXPECT_TRUE(hasModules());
    EXPECT_TRUE(window->isComplete());
    EXPECT_EQ(window->findChild<QWidget*>("welcomePage")->findChild<QLabel*>()->text(), "No project is open");
    EXPECT_TRUE(window->findChild<QDockWidget*>("Inspector")->isVisible());
}

TEST_F(Start, LosesNoKeyThatIsPressedAtOnce)
{
    start->show();
    QApplication::setActiveWindow(window.get());
    ASSERT_FALSE(hasModules());
    QTest::keyClick(window.get(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(hasProject()) << "the key belongs to a command of a module";
    EXPECT_TRUE(waitUntilComplete());
    EXPECT_EQ(Obj::Application::get_projects().size(), 1U);
}

TEST_F(Start, AsksTheCompleteWindowBeforeItCloses)
{
    bool wasComplete = false;
    QObject::connect(window.get(), &Gui::MainWindow::closing, [&](bool& refused) {
        wasComplete = window->isComplete();
        refused = true;
    });
    start->show();
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(wasComplete);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Start, LoadsTheModulesOfAWindowThatIsNeverPainted)
{
    window->setAttribute(Qt::WA_DontShowOnScreen);
    start->show();
    EXPECT_TRUE(waitUntilComplete());
    EXPECT_TRUE(hasModules());
}

TEST_F(Start, ReportsADamagedModuleWhenTheWindowIsComplete)
{
    const QTemporaryDir folder;
    QFile descriptor(folder.filePath("Broken.module.json"));
    ASSERT_TRUE(descriptor.open(QIODevice::WriteOnly));
    descriptor.write("{");
    descriptor.close();
    qputenv("KELTA_PLUGIN_PATH", QFile::encodeName(folder.path()));
    start->show();
    ASSERT_TRUE(waitUntilComplete());
    EXPECT_TRUE(window->findChild<QDockWidget*>("MessageLog")->isVisible());
    EXPECT_TRUE(hasModules());
}

/// Shows the window of a start, calls `use` at once, and `end` when the window is complete and its layout is stored.
void runOnce(
    const std::function<void(Gui::MainWindow&)>& use,
    const std::function<void(Gui::MainWindow&)>& end = [](Gui::MainWindow&) {})
{
    Gui::MainWindow window(Gui::MainWindow::Parts::OutlineFirst);
    desktop::startFiles(window, {});
    int completions = 0;
    desktop::Start start(window, [&] { ++completions; });
    start.show();
    use(window);
    EXPECT_TRUE(vxtest::waitFor([&] { return completions == 1; }));
    window.saveLayout();
    end(window);
}

TEST(SecondStart, LosesNoClickOnAButtonOfThePage)
{
    runOnce([](const Gui::MainWindow&) {});
    runOnce([](Gui::MainWindow& window) {
        ASSERT_FALSE(window.isComplete());
        const auto* const button = window.findChild<QPushButton*>("Mat_NewDoc");
        ASSERT_NE(button, nullptr);
        const QPoint place = button->mapTo(&window, button->rect().center());
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
        EXPECT_TRUE(window.isComplete());
        EXPECT_NE(Obj::Application::get_current_project(), nullptr);
    });
    desktop::shutDown();
}

TEST(StartFromAPicture, LosesNoClickOnAButtonThatThePictureShows)
{
    QPoint place;
    const auto startWindow = [](const std::function<void(Gui::MainWindow&)>& use) {
        runOnce(use, [](Gui::MainWindow& window) {
            window.hide();
            desktop::keepStartPicture(window);
        });
    };
    startWindow([](const Gui::MainWindow&) {});
    startWindow([&](Gui::MainWindow& window) {
        EXPECT_EQ(window.findChild<QPushButton*>(), nullptr) << "the window is a picture";
        ASSERT_TRUE(vxtest::waitFor([&] { return window.isComplete(); }));
        const auto* const button = window.findChild<QPushButton*>("Mat_NewDoc");
        place = button->mapTo(&window, button->rect().center());
        // The next start has this project no more.
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
        EXPECT_TRUE(hasProject());
    });
    EXPECT_FALSE(hasProject());
    startWindow([&](Gui::MainWindow& window) {
        ASSERT_FALSE(window.isComplete());
        EXPECT_EQ(window.findChild<QPushButton*>(), nullptr) << "the window is a picture";
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
        EXPECT_TRUE(window.isComplete());
        EXPECT_TRUE(hasProject());
    });
    desktop::shutDown();
}

TEST(FirstStart, LoadsModulesBeforeThePicture)
{
    {
        Gui::MainWindow window(Gui::MainWindow::Parts::OutlineFirst);
        desktop::startFiles(window, {});
        int completions = 0;
        desktop::Start start(window, [&] { ++completions; });
        bool wasComplete = false;
        const Reader reader("No project is open", [&] { wasComplete = window.isComplete(); });
        start.show();
        EXPECT_TRUE(vxtest::waitFor([&] { return completions == 1 && reader.wasRead(); }));
        EXPECT_TRUE(wasComplete);
    }
    desktop::shutDown();
}

} // namespace
