#include "MaterialFiles.h"
#include "MaterialFilter.h"
#include "ProjectFiles.h"

#include "Gui/FileDialog.h"
#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/ProjectTreeModel.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"
#include "vxMsg/MessageProxy.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QUndoStack>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

/// Measures the times for which the user waits: commands on 10,000 materials, by the longest time in which the
/// interface does not react, a filter of as many, and project files of 1,000 materials.
namespace {

constexpr int materialCount = 10000;
constexpr int fileCount = 1000;
constexpr double freezeLimit = 100.0; ///< milliseconds

double millisecondsOf(const std::function<void()>& action)
{
    QElapsedTimer clock;
    clock.start();
    action();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// Runs a command, and then the event loop until all events are processed. Returns the time of the longest turn of
/// the loop, or of the command.
double longestTurn(const std::function<void()>& command)
{
    double longest = millisecondsOf(command);
    // Delayed work uses timers with an interval of 0, so that a few turns do all of it.
    for (int turn = 0; turn < 50; ++turn)
        longest = std::max(longest, millisecondsOf([] { QCoreApplication::processEvents(); }));
    return longest;
}

void run(const char* command)
{
    Gui::GuiApplication::Instance->get_command_manager().runCommand(command);
}

/// Shows a project with many materials and measures commands on them. Each measurement also checks the result, because
/// a command that does nothing would be fast.
class Commands
{
public:
    explicit Commands(Gui::MainWindow& window) : m_tree(window.getProjectExplorer())
    {
        m_project = Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials");
        for (int i = 0; i < materialCount; ++i)
            m_project->add_object("Mat::MaterialObject", "Material");
        vxMsg::MessageProxy::instance().undoStack().clear();
        longestTurn([] {});
    }

    /// Runs and measures a command. Checks the numbers of materials that are present, selected and suppressed
    /// afterwards.
    void measure(const char* name, const char* command, int present, int selected, int suppressed)
    {
        const double longest = longestTurn([command] { run(command); });
        const bool within = longest <= freezeLimit;
        const bool done = countObjects() == present && countRows() == present && countSelected() == selected &&
                          countSuppressed() == suppressed;
        std::printf("%-50s %8.1f ms   %s %.0f%s\n", name, longest, within ? "within" : "OVER", freezeLimit,
                    done ? "" : "   FAILED: it did not do its work");
        if (!done)
            std::printf("    %d materials, %d rows, %d selected, %d suppressed\n", countObjects(), countRows(),
                        countSelected(), countSuppressed());
        std::fflush(stdout);
        m_passed = m_passed && within && done;
    }

    bool passed() const { return m_passed; }

private:
    int countObjects() const { return static_cast<int>(m_project->getObjectCount()); }
    int countRows() const
    {
        const auto& model = dynamic_cast<const Gui::ProjectTreeModel&>(*m_tree.model());
        return model.rowCount(model.indexOf(*m_project));
    }
    int countSelected() const
    {
        const auto objects =
            Gui::TreeSelectionSingleton::instance().get_objects_of_type(Obj::ProjectObject::getClassTypeId());
        // The commands must act on the objects that are highlighted in the tree.
        const QModelIndexList highlighted = m_tree.selectionModel()->selectedIndexes();
        const auto inProject = std::count_if(highlighted.begin(), highlighted.end(),
                                             [](const QModelIndex& index) { return index.parent().isValid(); });
        return objects.size() == static_cast<std::size_t>(inProject) ? static_cast<int>(objects.size()) : -1;
    }
    int countSuppressed() const
    {
        const std::vector<Obj::ProjectObject*> objects = m_project->getObjects();
        return static_cast<int>(std::count_if(objects.begin(), objects.end(),
                                              [](const Obj::ProjectObject* object) { return object->isSuppressed(); }));
    }

    Gui::ProjectExplorer& m_tree;
    Obj::Project* m_project = nullptr;
    bool m_passed = true;
};

/// Runs `action`, and then the event loop until the window shows its result. Prints the time, and returns whether it is
/// within the limit and whether the action succeeded.
bool measureFile(const char* name, const std::function<bool()>& action)
{
    bool done = false;
    const double time = millisecondsOf([&] {
        done = action();
        QCoreApplication::processEvents();
    });
    const bool within = time <= freezeLimit;
    std::printf("%-50s %8.1f ms   %s %.0f%s\n", name, time, within ? "within" : "OVER", freezeLimit,
                done ? "" : "   FAILED: it did not do its work");
    return within && done;
}

/// Measures saving and opening a project file of materials, as the user waits for it.
bool measureFiles(Gui::MainWindow& window)
{
    Obj::Application& application = Obj::Application::instance();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("materials.vxmat"));
    desktop::registerMaterialFiles();
    desktop::ProjectFiles files(window, {});
    Obj::Project& project = *application.createProject("Mat::DocumentMaterial", "Materials");
    for (int i = 0; i < fileCount; ++i)
        dynamic_cast<Mat::MaterialObject&>(*project.add_object("Mat::MaterialObject", "Material"))
            .initCMaterial(vxMat::eMaterialType::StructuralSteel);
    const bool saved = measureFile("save a project of 1,000 materials", [&] {
        Gui::FileDialog::answerNext(path);
        return files.saveAs(project);
    });
    vxMsg::MessageProxy::instance().undoStack().clear();
    application.closeAllProjects();
    const bool opened = measureFile("open a project of 1,000 materials", [&] {
        return files.open(path) && Obj::Application::get_current_project()->getObjectCount() == fileCount;
    });
    vxMsg::MessageProxy::instance().undoStack().clear();
    application.closeAllProjects();
    files.end();
    return saved && opened;
}

/// Returns a project of many materials, of which every second one is stiff.
Obj::Project& makeStiffAndSoft()
{
    Obj::Project& project = *Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials");
    for (int i = 0; i < materialCount; ++i) {
        auto& object = dynamic_cast<Mat::MaterialObject&>(*project.add_object("Mat::MaterialObject", "Material"));
        object.initCMaterial(vxMat::eMaterialType::StructuralSteel);
        if (i % 2 == 0)
            object.getCMaterial()->setProperty(vxMat::PropertyId::YoungsModulus,
                                               std::make_unique<vxMat::YoungsModulus>(1e9));
    }
    vxMsg::MessageProxy::instance().undoStack().clear();
    longestTurn([] {});
    return project;
}

/// Types an expression into the field above the tree, and clears the field. Prints the time of the slowest keystroke, until
/// the tree shows its result. Returns whether it is within its limit and the tree shows what was found.
bool measureFilter(Gui::MainWindow& window)
{
    constexpr double filterLimit = 50.0; // milliseconds
    const QString expression = QStringLiteral("E > 100 GPa and rho > 3 g/cm3");
    const Obj::Project& project = makeStiffAndSoft();
    auto& field = *window.findChild<QLineEdit*>(QStringLiteral("treeFilter"));
    const auto& model = dynamic_cast<const Gui::ProjectTreeModel&>(*window.getProjectExplorer().model());
    const auto countRows = [&] { return model.rowCount(model.indexOf(project)); };
    double slowest = 0.0;
    QString slowestText;
    const auto measure = [&](const std::function<void()>& action) {
        const double time = millisecondsOf([&] {
            action();
            QCoreApplication::processEvents();
        });
        if (time > slowest)
            slowestText = field.text();
        slowest = std::max(slowest, time);
    };
    for (const QChar letter : expression)
        measure([&] {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
            QCoreApplication::sendEvent(&field, &press);
        });
    const bool found = countRows() == materialCount / 2;
    measure([&] { field.clear(); });
    const bool done = found && countRows() == materialCount;
    const bool within = slowest <= filterLimit;
    std::printf("%-50s %8.1f ms   %s %.0f%s   \"%s\"\n", "slowest keystroke of a filter of 10,000 materials", slowest,
                within ? "within" : "OVER", filterLimit, done ? "" : "   FAILED: it did not do its work",
                qPrintable(slowestText));
    vxMsg::MessageProxy::instance().undoStack().clear();
    Obj::Application::instance().closeAllProjects();
    return within && done;
}

bool measureCommands(int& argc, char** argv)
{
    Gui::GuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("gui_bench"));
    Gui::MainWindow window;
    initMat();
    initMatGui();
    Mat::registerRequests();
    window.setWorkbench("MatGui::SimModule");
    window.show();
    desktop::registerMaterialFilter(application.contributions());
    const bool files = measureFiles(window);
    const bool filter = measureFilter(window);
    Commands commands(window);
    constexpr int all = materialCount;
    commands.measure("select all of 10,000 materials", "Std_SelectAll", all, all, 0);
    commands.measure("suppress them", "Std_Suppress", all, all, all);
    commands.measure("delete them", "Mat_Delete", 0, 0, 0);
    commands.measure("undo", "Std_Undo", all, all, all);
    commands.measure("undo the suppression", "Std_Undo", all, all, 0);
    commands.measure("redo it", "Std_Redo", all, all, all);
    commands.measure("redo the deletion", "Std_Redo", 0, 0, 0);
    vxMsg::MessageProxy::instance().undoStack().clear();
    Obj::Application::instance().closeAllProjects();
    return commands.passed() && files && filter;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return measureCommands(argc, argv) ? 0 : 1;
}
