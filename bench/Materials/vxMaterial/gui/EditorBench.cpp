// Measures the time until the window of the material editor has been painted, and the time to show a material. Compares
// them with the times of Qt alone for the empty form and for an empty table of the same size.

#include "Contest.h"
#include "ui_MaterialWidget.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Obj/Application.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <QMainWindow>
#include <QStandardItemModel>
#include <QTableView>

#include <algorithm>
#include <memory>

namespace {

using vxbench::timed;

constexpr double openLimit = 50.0; // milliseconds
constexpr double fillLimit = 2.0;

/// Returns the material of a project. The first call makes both.
Mat::MaterialObject& materialObject()
{
    static Mat::MaterialObject* const object = [] {
        auto* const project = Obj::Application::instance().createProject("Mat::DocumentMaterial", "Bench");
        auto* const made = static_cast<Mat::MaterialObject*>(project->add_object("Mat::MaterialObject", "Steel"));
        made->initCMaterial(vxMat::eMaterialType::StructuralSteel);
        return made;
    }();
    return *object;
}

/// Returns the library material with the most properties.
vxMat::MaterialBase& largestMaterial()
{
    const auto& materials = materialObject().getMatMgr().materials;
    return *std::max_element(materials.begin(), materials.end(), [](const auto& one, const auto& other) {
                return one.second->properties.size() < other.second->properties.size();
            })->second;
}

/// Waits until a widget has been painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }
    void wait() const
    {
        while (!m_painted)
            QCoreApplication::processEvents();
    }

private:
    bool m_painted = false;
};

template <class Window>
std::unique_ptr<Window> shown(std::unique_ptr<Window> window)
{
    const PaintWatch watch(*window->centralWidget());
    window->show();
    watch.wait();
    return window;
}

std::unique_ptr<QMainWindow> makeForm()
{
    auto window = std::make_unique<QMainWindow>();
    auto* const host = new QWidget(window.get());
    Ui::MaterialWidget().setupUi(host);
    window->setCentralWidget(host);
    return window;
}

std::chrono::nanoseconds openEditor()
{
    Mat::MaterialObject& object = materialObject();
    Gui::GuiProject* const project = Gui::GuiApplication::Instance->get_current_project();
    return timed([&] { return shown(std::make_unique<MatGui::MaterialView>(project, &object, nullptr)); });
}

std::chrono::nanoseconds openForm()
{
    return timed([] { return shown(makeForm()); });
}

std::chrono::nanoseconds fillTable()
{
    // The window is never destroyed, because a static object would be destroyed after the application.
    static const auto* const window =
        shown(std::make_unique<MatGui::MaterialView>(nullptr, &materialObject(), nullptr)).release();
    static auto* const table = window->findChild<MatGui::SheetTableView*>();
    vxMat::MaterialBase& material = largestMaterial();
    return timed([&] {
        table->showMaterial(&material);
        return 0;
    });
}

std::chrono::nanoseconds fillBareTable()
{
    static auto& view = *new QTableView;
    static auto& model = *new QStandardItemModel(&view);
    view.setModel(&model);
    view.show();
    const auto rows = static_cast<int>(largestMaterial().properties.size());
    return timed([&] {
        model.clear();
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < MatGui::SheetTableView::ColumnCount; ++column)
                model.setItem(row, column, new QStandardItem(QStringLiteral("text")));
        return 0;
    });
}

/// Returns the shortest of several times, in milliseconds.
double best(const vxbench::Measured& measured)
{
    double shortest = 1e9;
    for (int i = 0; i < 20; ++i)
        shortest = std::min(shortest, std::chrono::duration<double, std::milli>(measured()).count());
    return shortest;
}

int report(const char* what, double milliseconds, double limit)
{
    const bool within = milliseconds <= limit;
    std::printf("%-50s %8.3f ms  %s %.0f ms\n", what, milliseconds, within ? "within" : "OVER", limit);
    return within ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.debug=false;*.info=false;default.warning=false");
    Gui::GuiApplication application(argc, argv);
    initMat();
    initMatGui();
    Mat::registerRequests();
    vxbench::addContest({"opening the editor / the empty form", openEditor, openForm, 0.0});
    vxbench::addContest({"showing a material / filling an empty table", fillTable, fillBareTable, 0.0});
    const int contests = vxbench::runContests(argc, argv);
    if (argc > 1)
        return contests;
    return contests + report("opening the editor to its first paint", best(openEditor), openLimit) +
           report("showing the material with the most properties", best(fillTable), fillLimit);
}
