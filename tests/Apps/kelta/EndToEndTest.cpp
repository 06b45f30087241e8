#include "KeltaTesting.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QtEndian>

#include <functional>
#include <thread>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

using vxtest::patience;

/// The time, in milliseconds, before a key or a click is repeated. An early repetition does no harm.
constexpr int again = 3000;

/// Checks the condition repeatedly until it is true or the time is over. Returns whether it is true.
bool waitUntil(const std::function<bool()>& condition, qint64 milliseconds = patience)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds) {
        if (condition())
            return true;
        std::this_thread::yield();
    }
    return false;
}

/// A virtual display whose picture can be read.
class Display
{
public:
    explicit Display(const QString& folder) : m_folder(folder)
    {
        // Without "-noreset" the server disconnects a program that starts while the last other one ends.
        m_server.start(QStringLiteral("Xvfb"), {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp",
                                                "-noreset", "-fbdir", folder});
        QByteArray number;
        while (!number.contains('\n') && m_server.waitForReadyRead(patience))
            number += m_server.readAllStandardOutput();
        m_name = QStringLiteral(":%1").arg(QString::fromLatin1(number.trimmed()));
    }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;
    ~Display()
    {
        m_server.terminate();
        m_server.waitForFinished(patience);
    }

    const QString& name() const { return m_name; }

    /// Ends the display at once, like a desktop that crashes.
    void end()
    {
        m_server.kill();
        m_server.waitForFinished(patience);
    }

    /// Sends events like a keyboard and a mouse. Returns the output of the sending program.
    QString ask(const QStringList& arguments) const
    {
        QProcess tool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), m_name);
        tool.setProcessEnvironment(environment);
        tool.start(QStringLiteral("xdotool"), arguments);
        tool.waitForFinished(patience);
        return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
    }

    /// Returns the visible windows with this title.
    QStringList windows(const QString& title) const
    {
        return ask({"search", "--onlyvisible", "--name", title}).split('\n', Qt::SkipEmptyParts);
    }

    /// Waits for a window and gives it the keyboard focus, like a window manager.
    bool focus(const QString& title) const
    {
        // Windows change their titles, and take the keyboard focus when they are ready.
        return waitUntil([&] {
            const QStringList found = windows(title);
            if (found.isEmpty())
                return false;
            ask({"windowfocus", found.last()});
            return ask({"getwindowfocus"}) == found.last();
        });
    }

    /// Returns the picture on the screen. The server keeps it as a file: a header of 32-bit numbers, colours, pixels.
    QImage picture() const
    {
        const QByteArray data = vxtest::readFile(m_folder + QStringLiteral("/Xvfb_screen0"));
        const auto number = [&data](int index) { return qFromBigEndian<quint32>(data.constData() + 4 * index); };
        const auto begin = static_cast<int>(number(0) + number(19) * 12);
        return QImage(reinterpret_cast<const uchar*>(data.constData()) + begin, static_cast<int>(number(4)),
                      static_cast<int>(number(5)), static_cast<int>(number(12)), QImage::Format_RGB32)
            .copy();
    }

private:
    QString m_folder;
    QProcess m_server;
    QString m_name;
};

class EndToEnd : public testing::Test
{
protected:
    EndToEnd() : display(screen.path()) {}

    void install() const
    {
        QProcess cmake;
        cmake.start(QStringLiteral(CMAKE_PROGRAM),
                    {"--install", BUILD_FOLDER, "--prefix", installed.path(), "--config", BUILD_CONFIG});
        ASSERT_TRUE(cmake.waitForFinished(patience));
        ASSERT_EQ(cmake.exitCode(), 0) << cmake.readAllStandardError().toStdString();
    }

    /// Starts the program, and waits for the window with this title.
    void start(const char* title = "^kelta$", const QStringList& files = {})
    {
        QProcessEnvironment environment = vxtest::cleanEnvironment(home.path());
        environment.insert(QStringLiteral("DISPLAY"), display.name());
        kelta.setProcessEnvironment(environment);
        kelta.setWorkingDirectory(home.path());
        kelta.start(installed.filePath(QStringLiteral("bin/kelta")), files);
        ASSERT_TRUE(kelta.waitForStarted(patience)) << kelta.errorString().toStdString();
        ASSERT_TRUE(display.focus(title));
    }

    void key(const char* keys) const { display.ask({"key", "--clearmodifiers", keys}); }

    /// Presses keys in a window. Repeats keys without effect: a window may have the focus before it accepts keys.
    bool press(const char* title, const char* keys, const std::function<bool()>& effect) const
    {
        return waitUntil([&] {
            if (effect())
                return true;
            if (!display.windows(title).isEmpty() && display.focus(title))
                key(keys);
            return waitUntil(effect, again);
        });
    }

    bool hasMenu() const { return display.ask({"search", "--onlyvisible", "--class", "kelta"}).split('\n').size() > 1; }

    /// Opens a menu of the main window by its key and chooses the first entry.
    bool chooseFirst(const char* title, const char* keys) const
    {
        if (!press(title, keys, [this] { return hasMenu(); }))
            return false;
        key("Return");
        return true;
    }

    /// Types the name of a file into a dialog. Repeats this if it has no effect.
    bool answerWithFile(const char* title, const QString& file) const
    {
        return display.focus(title) && waitUntil([&] {
                   if (!hasTitle(title))
                       return true;
                   key("ctrl+a");
                   display.ask({"type", "--delay", "5", file});
                   key("Return");
                   return waitUntil([&] { return !hasTitle(title); }, again);
               });
    }

    bool hasTitle(const QString& title) const { return !display.windows(title).isEmpty(); }

    /// Double-clicks in the project explorer, row by row, until the editor is open.
    bool doubleClickMaterial(const char* title = "^Material - Materials\\*? - kelta$") const
    {
        int y = 60;
        return waitUntil([this, &y, title] {
            y = y > 300 ? 60 : y + 8;
            display.ask({"mousemove", "80", QString::number(y), "click", "--repeat", "2", "--delay", "60", "1"});
            return hasTitle(title);
        });
    }

    /// Types a value into the first row of the editor that has the focus, and applies it.
    void applyFirstValue(const char* value) const
    {
        key("Return");
        key("ctrl+a");
        display.ask({"type", value});
        for (const char* const next : {"Return", "Tab", "Tab", "space"})
            key(next);
    }

    QTemporaryDir installed;
    QTemporaryDir home;
    QTemporaryDir screen;
    Display display;
    QProcess kelta;
};

/// Returns the number of colours in a picture.
int countColours(const QImage& picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); y += 2)
        for (int x = 0; x < picture.width(); x += 2)
            colours.insert(picture.pixel(x, y));
    return colours.size();
}

TEST_F(EndToEnd, AUserMakesAMaterialOpensItAndExportsIt)
{
    install();
    start();
    ASSERT_TRUE(chooseFirst("^kelta$", "alt+f"));
    ASSERT_TRUE(waitUntil([this] { return hasTitle("^Materials - kelta"); }));
    ASSERT_TRUE(waitUntil([this] { return !hasMenu(); }));

    ASSERT_TRUE(chooseFirst("^Materials\\*? - kelta", "alt+p"));
    ASSERT_TRUE(waitUntil([this] { return !hasMenu(); }));
    ASSERT_TRUE(doubleClickMaterial());
    EXPECT_GT(countColours(display.picture()), 50);

    ASSERT_TRUE(chooseFirst("^Material - Materials\\*? - kelta$", "alt+m"));
    const QString file = home.filePath(QStringLiteral("materials.json"));
    ASSERT_TRUE(answerWithFile("^Export materials$", file));
    ASSERT_TRUE(waitUntil([&file] { return QFile(file).size() > 0; }));
    const QJsonObject document = QJsonDocument::fromJson(vxtest::readFile(file)).object();
    EXPECT_EQ(document["proj_type"].toInt(), 2);
    const QJsonArray materials = document["material"].toArray();
    ASSERT_EQ(materials.size(), 1);
    EXPECT_EQ(materials[0].toObject()["mat_name"].toString(), "Material");
    EXPECT_EQ(materials[0].toObject()["Props"].toArray().size(), 9);

    ASSERT_TRUE(
        press("^Material - Materials\\*? - kelta$", "ctrl+q", [this] { return hasTitle("^Unsaved changes$"); }));
    EXPECT_TRUE(press("^Unsaved changes$", "alt+d", [this] { return kelta.waitForFinished(10); }));
    EXPECT_EQ(kelta.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(kelta.exitCode(), 0);
}

TEST_F(EndToEnd, AUserRecoversAProjectAfterACrash)
{
    install();
    const QString program = installed.filePath(QStringLiteral("bin/kelta"));
    const QString work = home.filePath(QStringLiteral("beams.vxmat"));
    QProcess crashing;
    crashing.setProcessEnvironment(vxtest::cleanEnvironment(home.path()));
    crashing.setWorkingDirectory(home.path());
    vxtest::writeFile(home.filePath(QStringLiteral("list.batch")),
                      "Mat_NewDoc\nMat_AddMaterial\nlabel Beam\nStd_SaveAs beams.vxmat\nset Density 4321\nsay kept\n" +
                          QByteArray("screenshot a.png\n").repeated(1000));
    crashing.start(program, {"--keep-copies", "--batch", "list.batch"});
    ASSERT_TRUE(crashing.waitForReadyRead(patience)) << crashing.readAllStandardError().toStdString();
    crashing.kill();
    ASSERT_TRUE(crashing.waitForFinished(patience));
    EXPECT_FALSE(vxtest::readFile(work).contains("4321"));

    start("^Recovery$");
    ASSERT_TRUE(press("^Recovery$", "Return", [this] { return hasTitle("^beams.vxmat\\* - kelta$"); }));
    // The file is older than the recovered project, so the program asks.
    ASSERT_TRUE(press("^beams.vxmat\\* - kelta$", "ctrl+s", [this] { return hasTitle("^Save project$"); }));
    ASSERT_TRUE(press("^Save project$", "Return", [this] { return hasTitle("^beams.vxmat - kelta$"); }));
    EXPECT_TRUE(vxtest::readFile(work).contains("4321"));
    EXPECT_TRUE(press("^beams.vxmat - kelta$", "ctrl+q", [this] { return kelta.waitForFinished(10); }));
    EXPECT_EQ(kelta.exitCode(), 0);
}

TEST_F(EndToEnd, AUserWhoseDesktopDiesFindsACopyTheNextTime)
{
    install();
    vxtest::writeFile(home.filePath(QStringLiteral("list.batch")),
                      "Mat_NewDoc\nMat_AddMaterial\nStd_SaveAs beams.vxmat\n");
    ASSERT_EQ(vxtest::runKelta(installed.filePath(QStringLiteral("bin/kelta")), {"--batch", "list.batch"}, home.path(),
                               vxtest::cleanEnvironment(home.path()))
                  .status,
              0);
    start("^beams.vxmat - kelta$", {"beams.vxmat"});
    const QDir recovery(home.filePath(QStringLiteral("vxMaterial/kelta/recovery")));
    const auto hasCopy = [&recovery] { return !recovery.entryList({"*.vxmat"}, QDir::Files).isEmpty(); };
    ASSERT_TRUE(doubleClickMaterial("^Material - beams.vxmat\\*? - kelta$"));
    ASSERT_TRUE(display.focus("^Material - beams.vxmat\\*? - kelta$"));
    // Applying another value writes a copy at once.
    ASSERT_TRUE(waitUntil([&] {
        applyFirstValue("4321");
        return waitUntil(hasCopy, again);
    }));
    display.end();
    ASSERT_TRUE(kelta.waitForFinished(patience));
    EXPECT_TRUE(hasCopy());
}

} // namespace
