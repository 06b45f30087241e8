#include "Startup.h"

#include "Gui/GuiApplication.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "kelta/Batch.h"

#include <CLI/CLI.hpp>
#include <QMessageBox>
#include <QTextStream>
#include <QTimer>

#include <string>

namespace {

struct Options
{
    std::string batch;
    std::string screenshot;
    std::string language;
};

void describe(CLI::App& program, Options& options)
{
    program.description("Materials for finite-element simulation: make a material project, take materials from the "
                        "library or build them by quantities, and hand them to the solver.");
    program.set_version_flag("--version", "kelta " KELTA_VERSION);
    program
        .add_option("--batch", options.batch,
                    "run the commands of a file, one a line, without a display; - is standard input")
        ->type_name("FILE");
    program.add_option("--screenshot", options.screenshot, "save the main window as PNG, and end")->type_name("FILE");
    program.add_option("--language", options.language, "en, de or zh_CN; that of the system when it is not given")
        ->type_name("LANGUAGE");
    program.footer(
        "Example: kelta --batch examples/tour.batch\n"
        "Exit status: 0 when all went well, 1 when a command failed, 2 when a file cannot be read or written.");
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

bool runsAlone(const Options& options)
{
    return !options.batch.empty() || !options.screenshot.empty();
}

/// A program without windows of its own says on standard error what others read in the message log.
void echoMessages()
{
    QObject::connect(
        &Kelta::MessageLog::instance(), &Kelta::MessageLog::reported,
        [](const Kelta::LogMessage& message) { QTextStream(stderr) << "kelta: " << message.text << '\n'; });
}

int saveScreenshot(Gui::MainWindow& window, const std::string& path)
{
    QCoreApplication::processEvents();
    if (window.grab().save(QString::fromStdString(path), "PNG"))
        return 0;
    QTextStream(stderr) << "kelta: " << QString::fromStdString(path) << " cannot be written\n";
    return 2;
}

int runAlone(Gui::MainWindow& window, const Options& options)
{
    int status = 0;
    if (!options.batch.empty())
        status = kelta::Batch::run_file(QString::fromStdString(options.batch));
    if (status == 0 && !options.screenshot.empty())
        status = saveScreenshot(window, options.screenshot);
    return status;
}

/// What would be lost if the program ended now; empty for nothing.
QString describeLoss(const Gui::MainWindow& window)
{
    for (const Gui::MDIWindow* const document : window.get_mdi_windows())
        if (document->isWindowModified())
            return QCoreApplication::translate("kelta", "Changes in open editors have not been applied.");
    for (const Obj::Project* const project : Obj::Application::get_projects())
        if (project->get_object_count() != 0)
            return QCoreApplication::translate("kelta", "The project \"%1\" and its materials are not kept.")
                .arg(QString::fromUtf8(project->get_name()));
    return {};
}

void askBeforeClosing(Gui::MainWindow& window, bool& refused)
{
    const QString loss = describeLoss(window);
    if (!loss.isEmpty()) {
        const auto answer = QMessageBox::question(
            &window, QCoreApplication::translate("kelta", "Close the program"),
            loss + QLatin1Char('\n') + QCoreApplication::translate("kelta", "Close the program all the same?"),
            QMessageBox::Close | QMessageBox::Cancel, QMessageBox::Cancel);
        refused = answer != QMessageBox::Close;
    }
    if (!refused)
        window.save_layout();
}

/// The document in front, its project and the program.
QString titleOf(const Gui::MainWindow& window)
{
    QStringList parts;
    if (const Gui::MDIWindow* const document = window.get_active_mdi_window())
        parts << document->windowTitle().remove(QStringLiteral("[*]"));
    if (const Obj::Project* const project = Obj::Application::get_current_project())
        parts << QString::fromUtf8(project->get_name());
    parts << QCoreApplication::applicationName();
    return parts.join(QStringLiteral(" - "));
}

void keepTitle(Gui::MainWindow& window)
{
    QObject::connect(&window, &Gui::MainWindow::updated, [&window] { window.setWindowTitle(titleOf(window)); });
}

QtMessageHandler passOn = nullptr;

/// The platform without a display says for each window that it cannot pass hints to a window manager, which there is
/// none of.
void leaveOutSizeHints(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.contains(QLatin1String("propagateSizeHints")))
        passOn(type, context, message);
}

int runWithWindows(int& argc, char** argv, const Options& options)
{
    if (runsAlone(options) && !hasDisplay() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!options.batch.empty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    Gui::GuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelta"));
    QCoreApplication::setOrganizationName(QStringLiteral("vxMaterial"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELTA_VERSION));
    if (!options.language.empty())
        Gui::Translator::instance()->setLanguage(QString::fromStdString(options.language));
    if (runsAlone(options)) {
        passOn = qInstallMessageHandler(leaveOutSizeHints);
        echoMessages();
    }

    int status = 0;
    {
        Gui::MainWindow window;
        keepTitle(window);
        const bool loaded = kelta::loadMaterials();
        QObject::connect(&window, &Gui::MainWindow::closing,
                         [&window](bool& refused) { askBeforeClosing(window, refused); });
        if (!runsAlone(options))
            window.restore_layout();
        window.show();
        status = runsAlone(options) ? runAlone(window, options) : QApplication::exec();
        // What needs the module has not been done.
        if (runsAlone(options) && !loaded && status == 0)
            status = 1;
    }
    kelta::shutDown();
    return status;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): what reporting an exception throws has nowhere else to go
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
