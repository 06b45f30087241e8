#include "GuiTesting.h"

#include "Gui/Translator.h"

#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QSettings>
#include <QStandardPaths>
#include <QStatusBar>
#include <QToolBar>

#include <map>
#include <string>

namespace {

using Gui::MainWindow;

/// A window with the contributions of a module, and the window of the next start.
class StartPicture : public vxtest::Host
{
protected:
    StartPicture()
    {
        addModule(contributions);
        window->setWorkbench("Gui::StdSimModule");
        window->resize(700, 520);
        window->show();
        window->updateCommands();
        settle();
    }

    static void addModule(Gui::Contributions& contributions)
    {
        contributions.addToMenu("&Probes", "Begin", "Std_Copy");
        contributions.addDock({"Gauges", {"Test", "All gauges"}, Gui::DockArea::Right, [] { return new QLabel("7"); }});
        contributions.addWelcomeEntry({Gui::WelcomeStep::NoProject,
                                       "",
                                       {"Test", "No probes yet"},
                                       {"Test", "Begin with a project of probes."},
                                       {"Std_Copy"}});
    }
    static void settle() { QCoreApplication::processEvents(); }

    /// As the user closes the program.
    void close() const
    {
        window->saveLayout();
        window->hide();
        window->keepStartPicture();
    }
    void startNext()
    {
        window.reset();
        window = std::make_unique<MainWindow>(contributionsOfNextStart, MainWindow::Parts::OutlineFirst);
        window->updateCommands();
        window->show();
        settle();
    }
    void complete()
    {
        addModule(contributionsOfNextStart);
        window->complete([this] { window->setWorkbench("Gui::StdSimModule"); });
    }

    bool showsPicture() const { return !window->isComplete() && window->centralWidget() == nullptr; }
    QDockWidget* dock(const char* name) const { return window->findChild<QDockWidget*>(QLatin1String(name)); }
    QImage shown() const { return window->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    /// Returns the names and places of the visible parts.
    std::map<std::string, QRect> places() const
    {
        std::map<std::string, QRect> places;
        for (const QWidget* const part : window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (part->isVisible())
                places[part->metaObject()->className() + part->objectName().toStdString()] = part->geometry();
        return places;
    }
    static QString file()
    {
        return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/start-picture");
    }

    Gui::Contributions contributionsOfNextStart;
};

/// Returns the part of the pixels that differ: focus frames and the colours of inactive windows.
double differenceOf(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return 1.0;
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    return double(count) / (double(one.width()) * one.height());
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void overwrite(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

TEST_F(StartPicture, ShowsTheWholeWindowBeforeItsPartsAreThere)
{
    const QImage before = shown();
    close();
    startNext();
    EXPECT_FALSE(window->isComplete());
    EXPECT_EQ(window->findChild<QLabel*>(), nullptr);
    EXPECT_LT(differenceOf(shown(), before), 0.01);
}

TEST_F(StartPicture, IsReplacedWithTheSamePartsAtTheSamePlaces)
{
    const auto placesBefore = places();
    ASSERT_GE(placesBefore.size(), 6U);
    const QImage before = shown();
    close();
    startNext();
    ASSERT_TRUE(showsPicture());
    complete();
    EXPECT_TRUE(window->isComplete());
    EXPECT_EQ(places(), placesBefore) << "although the event loop has not run";
    settle();
    EXPECT_EQ(places(), placesBefore);
    EXPECT_LT(differenceOf(shown(), before), 0.01);
}

TEST_F(StartPicture, ShowsAMaximizedWindow)
{
    window->showMaximized();
    settle();
    const QImage before = shown();
    const auto placesBefore = places();
    ASSERT_GT(before.width(), 700);
    close();
    startNext();
    ASSERT_TRUE(showsPicture());
    EXPECT_LT(differenceOf(shown(), before), 0.01);
    complete();
    EXPECT_EQ(places(), placesBefore);
}

TEST_F(StartPicture, KeepsHiddenPartsHidden)
{
    dock("PropertyPanel")->hide();
    window->findChild<QToolBar*>("Edit")->hide();
    settle();
    const QImage before = shown();
    close();
    startNext();
    ASSERT_TRUE(showsPicture());
    EXPECT_LT(differenceOf(shown(), before), 0.01);
    complete();
    settle();
    EXPECT_FALSE(dock("PropertyPanel")->isVisible());
    EXPECT_FALSE(window->findChild<QToolBar*>("Edit")->isVisible());
    EXPECT_TRUE(dock("Gauges")->isVisible());
}

TEST_F(StartPicture, ShowsNoMessageOfTheLastRun)
{
    Kelta::MessageLog::warning(QStringLiteral("an old warning"));
    window->statusBar()->showMessage(QStringLiteral("an old result"));
    settle();
    ASSERT_TRUE(dock("MessageLog")->isVisible());
    close();
    Kelta::MessageLog::instance().clear();
    startNext();
    const QImage picture = shown();
    complete();
    settle();
    ASSERT_FALSE(dock("MessageLog")->isVisible());
    EXPECT_LT(differenceOf(picture, shown()), 0.01);
}

TEST_F(StartPicture, FollowsTheUserWhoResizesTheWindowMeanwhile)
{
    close();
    startNext();
    window->resize(620, 500);
    settle();
    ASSERT_TRUE(showsPicture());
    complete();
    settle();
    EXPECT_EQ(window->size(), QSize(620, 500));
    EXPECT_EQ(window->centralWidget()->window()->size(), QSize(620, 500));
}

TEST_F(StartPicture, IsNotUsedWithOtherSettings)
{
    close();
    QSettings().setValue("files/recent", QStringList{"/home/ann/bridge.vxmat"});
    startNext();
    EXPECT_FALSE(window->isComplete()) << "there is an outline";
    EXPECT_FALSE(showsPicture());
}

TEST_F(StartPicture, IsNotUsedWithAnotherLook)
{
    close();
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::black));
    startNext();
    EXPECT_FALSE(showsPicture()) << "dark colours";
    QApplication::setPalette(light);
    const QFont font = QApplication::font();
    QFont larger = font;
    larger.setPointSize(2 * font.pointSize());
    QApplication::setFont(larger);
    startNext();
    EXPECT_FALSE(showsPicture()) << "a larger font";
    QApplication::setFont(font);
    startNext();
    EXPECT_TRUE(showsPicture()) << "the same look again";
}

TEST_F(StartPicture, IsNotUsedInAnotherLanguage)
{
    close();
    Gui::Translator::instance()->setLanguage(QStringLiteral("de"));
    startNext();
    EXPECT_FALSE(showsPicture());
    Gui::Translator::instance()->setLanguage(QStringLiteral("en"));
}

TEST_F(StartPicture, IsNotUsedInAnotherVersionOfTheProgram)
{
    close();
    const QString version = QCoreApplication::applicationVersion();
    QCoreApplication::setApplicationVersion(QStringLiteral("99"));
    startNext();
    EXPECT_FALSE(showsPicture());
    QCoreApplication::setApplicationVersion(version);
}

TEST_F(StartPicture, IsNotUsedIfTheFileIsDamaged)
{
    close();
    const QByteArray whole = contentOf(file());
    ASSERT_GT(whole.size(), 1000);
    const auto isRefused = [this](const QByteArray& content) {
        overwrite(file(), content);
        startNext();
        return !showsPicture() && !window->isComplete();
    };
    EXPECT_TRUE(isRefused(QByteArray()));
    EXPECT_TRUE(isRefused(whole.left(4)));
    EXPECT_TRUE(isRefused(whole.left(36))) << "no runs";
    EXPECT_TRUE(isRefused(whole.left(whole.size() - 8)));
    EXPECT_TRUE(isRefused(whole + QByteArray(8, '\1')));
    for (const int place : {0, 4, 8, 12, 32, 36, 40, 500, whole.size() - 1}) {
        QByteArray changed = whole;
        changed[place] = static_cast<char>(changed[place] ^ 0x40);
        EXPECT_TRUE(isRefused(changed)) << "byte " << place;
    }
    EXPECT_FALSE(isRefused(whole));
}

TEST_F(StartPicture, IsNotReadFromAFolder)
{
    close();
    QFile::remove(file());
    QDir().mkpath(file());
    startNext();
    EXPECT_FALSE(showsPicture());
}

TEST_F(StartPicture, IsForTheUserAlone)
{
    close();
    EXPECT_EQ(QFileInfo(file()).permissions() &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());
    EXPECT_LT(QFileInfo(file()).size(), 1 << 20) << "a fraction of the pixels";
}

TEST_F(StartPicture, IsNotKeptWithoutAFolderOfTheUser)
{
    const QByteArray home = qgetenv("HOME");
    const QByteArray cache = qgetenv("XDG_CACHE_HOME");
    qunsetenv("HOME");
    qunsetenv("XDG_CACHE_HOME");
    const QString inRootFolder = file();
    close();
    EXPECT_FALSE(QFileInfo::exists(inRootFolder));
    startNext();
    EXPECT_FALSE(showsPicture());
    qputenv("HOME", home);
    qputenv("XDG_CACHE_HOME", cache);
}

TEST_F(StartPicture, IsNotKeptWithoutSettings)
{
    QFile::remove(QSettings().fileName());
    window->hide();
    window->keepStartPicture();
    EXPECT_FALSE(QFileInfo::exists(file()));
}

} // namespace
