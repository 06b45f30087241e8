#include "Start.h"
#include "Startup.h"
#include "TitleUpdate.h"
#include "UserSettings.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/PictureFactory.h"
#include "Gui/Translator.h"
#include "Kelta/MessageLog.h"
#include "kelta/Batch.h"
#include "kelta/FileService.h"

#include <CLI/CLI.hpp>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace {

struct Options
{
    std::string batch;
    std::string screenshot;
    std::string language;
    bool keepsCopies = false;
    bool takesLocksOver = false;
    std::vector<std::string> files;
};

void describe(CLI::App& program, Options& options)
{
    program.description("Materials for finite-element simulation: make a material project, take materials from the "
                        "library or build them by quantities, and hand them to the solver.");
    program.set_version_flag("--version", "kelta " KELTA_VERSION);
    program
        .add_option("--batch", options.batch,
                    "run the commands of a file, one per line, without a display; - is standard input")
        ->type_name("FILE");
    program.add_option("--screenshot", options.screenshot, "save the main window as a PNG file, then exit")
        ->type_name("FILE");
    program.add_option("--language", options.language, "en, de or zh_CN; the default is the language of the system")
        ->type_name("LANGUAGE");
    program.add_flag(
        "--keep-copies", options.keepsCopies,
        "with --batch: keep copies of modified projects, which the next start offers if this one is killed");
    program.add_flag("--force", options.takesLocksOver,
                     "take over the locks that programs on other computers have on files, without a question");
    program.add_option("files", options.files, "project files to open")->type_name("FILE");
    program.footer("Example: kelta --batch examples/tour.batch\n"
                   "Exit status: 0 for success, 1 if a command failed, 2 if a file cannot be read or written.");
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

bool runsAlone(const Options& options)
{
    return !options.batch.empty() || !options.screenshot.empty();
}

/// Writes each message of the message log to standard error too, because a program without a user shows no log.
void echoMessages()
{
    QObject::connect(&Kelta::MessageLog::instance(), &Kelta::MessageLog::reported,
                     [](const Kelta::LogMessage& message) {
                         QTextStream(stderr) << "kelta: " << desktop::Batch::printable(message.text) << '\n';
                     });
}

int saveScreenshot(Gui::MainWindow& window, const std::string& path)
{
    QCoreApplication::processEvents();
    const auto failure = desktop::Batch::saveScreenshot(window, QFile::decodeName(path.c_str()));
    if (failure)
        QTextStream(stderr) << "kelta: " << *failure << '\n';
    return failure ? 2 : 0;
}

int runRequests(Gui::MainWindow& window, const Options& options)
{
    int status = 0;
    if (!options.batch.empty())
        status = desktop::Batch::runFile(QFile::decodeName(options.batch.c_str()));
    if (status == 0 && !options.screenshot.empty())
        status = saveScreenshot(window, options.screenshot);
    return status;
}

void askBeforeClosing(const Gui::MainWindow& window, bool& refused)
{
    refused = !desktop::FileService::instance()->mayEnd();
    if (!refused)
        window.saveLayout();
}

/// Offers the copies for recovery of earlier runs, then opens the files of the command line.
void openFiles(const std::vector<std::string>& paths)
{
    desktop::FileService& files = *desktop::FileService::instance();
    files.offerRecovery();
    for (const std::string& path : paths)
        files.open(QFile::decodeName(path.c_str()));
}

/// Opens the files of the command line in a program without a user. Stops at the first that cannot be opened, writes
/// the reason to standard error, and returns false.
bool openFilesAlone(const std::vector<std::string>& paths)
{
    for (const std::string& path : paths) {
        const auto failure = desktop::Batch::runCommand(QStringLiteral("Std_Open"), {QFile::decodeName(path.c_str())});
        if (failure)
            QTextStream(stderr) << "kelta: " << *failure << '\n';
        if (failure)
            return false;
    }
    return true;
}

QtMessageHandler defaultHandler = nullptr;

/// Drops two messages that users cannot act on: the offscreen platform writes one for each window, since it has no window
/// manager to pass size hints to; and Qt writes one if the folder of the running session is not set, which is so on
/// servers, and then uses another folder.
void writeUsefulMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool isUseless =
        message.contains(QLatin1String("propagateSizeHints")) || message.contains(QLatin1String("XDG_RUNTIME_DIR"));
    if (!isUseless)
        defaultHandler(type, context, message);
}

desktop::ProjectFiles::Options optionsOfFiles(const Options& options)
{
    using desktop::ProjectFiles;
    using Locks = desktop::Questions::ForeignLocks;
    const bool keeps = !runsAlone(options) || options.keepsCopies;
    return {keeps ? ProjectFiles::Copies::Keep : ProjectFiles::Copies::None,
            options.takesLocksOver ? Locks::TakeOver : Locks::Ask};
}

/// Adds files and their rules to a window.
void prepare(Gui::MainWindow& window, const Options& options)
{
    desktop::startFiles(window, optionsOfFiles(options));
    QObject::connect(&window, &Gui::MainWindow::updated, [&window] { desktop::updateTitle(window); });
    QObject::connect(&window, &Gui::MainWindow::closing,
                     [&window](bool& refused) { askBeforeClosing(window, refused); });
}

int runAlone(const Options& options)
{
    Gui::MainWindow window;
    prepare(window, options);
    const bool loaded = desktop::loadModules(window);
    // A picture does not depend on the screen.
    window.resizeWithDocks(Gui::MainWindow::usualSize);
    // The reason is in the message log, which the user may have hidden.
    if (!loaded)
        window.showMessages();
    window.show();
    const int status = openFilesAlone(options.files) ? runRequests(window, options) : 2;
    // A module is missing, so a part of the requested work may not have been done.
    return status == 0 && !loaded ? 1 : status;
}

int runForUser(const Options& options)
{
    Gui::MainWindow window(Gui::MainWindow::Parts::OutlineFirst);
    prepare(window, options);
    desktop::Start start(window, [&options] { openFiles(options.files); });
    start.show();
    const int status = QApplication::exec();
    desktop::keepStartPicture(window);
    return status;
}

/// Throws CLI::ValidationError if there are no texts in the language. The language of a country is that of its texts: de for
/// de_AT.
void setLanguage(const QString& language)
{
    Gui::Translator& translator = *Gui::Translator::instance();
    const QStringList available = translator.languages();
    const QStringList wanted = Gui::Translator::fileLanguagesOf(language);
    if (std::none_of(wanted.begin(), wanted.end(), [&](const QString& name) { return available.contains(name); })) {
        const QString reason = QStringLiteral("\"%1\" is not one of %2")
                                   .arg(desktop::Batch::printable(language), available.join(QStringLiteral(", ")));
        throw CLI::ValidationError("--language", reason.toStdString());
    }
    translator.setLanguage(language);
}

int runWithWindows(int& argc, char** argv, const Options& options)
{
    if (runsAlone(options) && !hasDisplay() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!options.batch.empty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    defaultHandler = qInstallMessageHandler(writeUsefulMessage);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    Gui::GuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelta"));
    QCoreApplication::setOrganizationName(QStringLiteral("vxMaterial"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELTA_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("kelta"));
    QGuiApplication::setWindowIcon(Gui::PictureFactory::getIcon(QStringLiteral("kelta")));
    if (!options.language.empty())
        setLanguage(QString::fromStdString(options.language));
    std::optional<QTemporaryDir> settings;
    QString doubt;
    if (runsAlone(options)) {
        settings.emplace();
        desktop::chooseOwnSettings(settings->isValid() ? settings->path() : QString());
        echoMessages();
    } else {
        doubt = desktop::chooseUserSettings();
        if (options.language.empty())
            Gui::Translator::instance()->restoreLanguage();
    }

    if (!doubt.isEmpty())
        Kelta::MessageLog::warning(doubt);
    const int status = runsAlone(options) ? runAlone(options) : runForUser(options);
    desktop::shutDown();
    return status;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): nothing can report an exception of the report itself
int main(int argc, char** argv)
{
    CLI::App program;
    Options options;
    try {
        describe(program, options);
        program.parse(argc, argv);
        return runWithWindows(argc, argv, options);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? 0 : 2;
    } catch (const std::exception& exception) {
        QTextStream(stderr) << "kelta: " << QString::fromUtf8(exception.what()) << '\n';
        return 2;
    }
}
