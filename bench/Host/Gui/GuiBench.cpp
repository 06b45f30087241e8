#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "vxMaterial/project/Module.h"
#include "vxMsg/MessageProxy.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QUndoStack>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

/// What the user waits for: commands on 10,000 materials, by the longest time in which the interface does not answer;
/// and the start of the program until its window is painted, beside that of an empty window.
namespace {

constexpr int materialCount = 10000;
constexpr double freezeLimit = 100.0; ///< milliseconds
constexpr double startLimit = 1.5;

double millisecondsOf(const std::function<void()>& action)
{
    QElapsedTimer clock;
    clock.start();
    action();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// Runs a command, and then the event loop until nothing is left to do; answers the longest of these turns.
double longestTurn(const std::function<void()>& command)
{
    double longest = millisecondsOf(command);
    // What is delayed is delayed by timers without a wait, so a few turns see the end of it.
    for (int turn = 0; turn < 50; ++turn)
        longest = std::max(longest, millisecondsOf([] { QCoreApplication::processEvents(); }));
    return longest;
}

bool printFreeze(const char* name, const std::function<void()>& command)
{
    const double longest = longestTurn(command);
    std::printf("%-50s %8.1f ms   %s %.0f\n", name, longest, longest <= freezeLimit ? "within" : "OVER", freezeLimit);
    std::fflush(stdout);
    return longest <= freezeLimit;
}

void run(const char* command)
{
    Gui::GuiApplication::Instance->get_command_manager().run_command(command);
}

bool measureCommands(int& argc, char** argv)
{
    Gui::GuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("gui_bench"));
    Gui::MainWindow window;
    initMat();
    initMatGui();
    window.set_workbench("MatGui::SimModule");
    window.show();
    Obj::Project* const project = Obj::Application::instance().create_project("Mat::DocumentMaterial", "Materials");
    for (int i = 0; i < materialCount; ++i)
        project->add_object("Mat::MaterialObject", "Material");
    vxMsg::MessageProxy::instance().undoStack().clear();
    longestTurn([] {});

    bool within = printFreeze("select all of 10,000 materials", [] { run("Std_SelectAll"); });
    within = printFreeze("suppress them", [] { run("Std_Suppress"); }) && within;
    within = printFreeze("delete them", [] { run("Mat_Delete"); }) && within;
    within = printFreeze("undo", [] { run("Std_Undo"); }) && within;
    within = printFreeze("redo", [] { run("Std_Redo"); }) && within;
    vxMsg::MessageProxy::instance().undoStack().clear();
    Obj::Application::instance().close_all_projects();
    return within;
}

/// Paints `window` once, and ends.
int paintOnce(QWidget& window)
{
    window.show();
    QCoreApplication::processEvents();
    window.grab();
    return 0;
}

int startEmpty(int& argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1180, 760);
    return paintOnce(window);
}

int startOurs(int& argc, char** argv)
{
    Gui::GuiApplication application(argc, argv);
    Gui::MainWindow window;
    initMat();
    initMatGui();
    window.set_workbench("MatGui::SimModule");
    return paintOnce(window);
}

/// The time of a program from its start to its end, the shortest of several.
bool printStart(const std::string& program)
{
    double best[] = {1e9, 1e9};
    const char* const flags[] = {"--start-ours", "--start-empty"};
    for (int repetition = 0; repetition < 15; ++repetition)
        for (const int side : {0, 1})
            best[side] =
                std::min(best[side], millisecondsOf([&] {
                             QProcess::execute(QString::fromStdString(program), {QString::fromLatin1(flags[side])});
                         }));
    const double ratio = best[0] / best[1];
    std::printf("%-50s %8.1f ms %8.1f ms   %.2f   %s %.2f\n", "start to the first picture, beside an empty window",
                best[0], best[1], ratio, ratio <= startLimit ? "within" : "OVER", startLimit);
    return ratio <= startLimit;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string flag = argc > 1 ? argv[1] : "";
    if (flag == "--start-ours")
        return startOurs(argc, argv);
    if (flag == "--start-empty")
        return startEmpty(argc, argv);
    const bool commands = measureCommands(argc, argv);
    const bool start = printStart(argv[0]);
    return commands && start ? 0 : 1;
}
