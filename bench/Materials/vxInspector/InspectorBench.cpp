// Measures the time from a change of a material until the inspector shows it, painting included, for the library material
// with the most properties. Compares the making of a table of values with plain reads of the values.

#include "Contest.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "plot/PlotView.h"
#include "plugin/Inspector.h"
#include "subject/InspectedMaterial.h"
#include "subject/SubjectWatch.h"
#include "values/ValueTable.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <QTabWidget>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

using vxbench::timed;

constexpr double refreshLimit = 16.0; // milliseconds

/// Returns a material with the values of the library material with the most properties. The first call makes it.
Mat::MaterialObject& materialObject()
{
    static Mat::MaterialObject* const object = [] {
        auto* const project = static_cast<Mat::DocumentMaterial*>(
            Obj::Application::instance().createProject("Mat::DocumentMaterial", "Bench"));
        auto* const made = static_cast<Mat::MaterialObject*>(project->add_object("Mat::MaterialObject", "Largest"));
        const auto& library = project->getMatMgr().materials;
        const auto largest = std::max_element(library.begin(), library.end(), [](const auto& one, const auto& other) {
            return one.second->properties.size() < other.second->properties.size();
        });
        made->getCMaterial()->copyPropertiesFrom(*largest->second);
        return made;
    }();
    return *object;
}

std::chrono::nanoseconds makeTable()
{
    static const vxUnits::UnitSystem system = *vxUnits::UnitSystem::parse("mm-t-s");
    return timed([] { return valueTable(vxInspector::inspect(materialObject(), nullptr), system); });
}

std::chrono::nanoseconds readValues()
{
    return timed([] { return vxUnits::MaterialValues(*materialObject().getCMaterial()); });
}

/// Returns the shortest of several times to show a tab again, in milliseconds.
double refreshTime(vxInspector::Inspector& inspector)
{
    double shortest = 1e9;
    for (int i = 0; i < 20; ++i) {
        materialObject().getCMaterial()->properties.begin()->second->value += 1.0;
        const auto time = timed([&inspector] {
            inspector.refresh();
            inspector.repaint();
            return 0;
        });
        shortest = std::min(shortest, std::chrono::duration<double, std::milli>(time).count());
    }
    return shortest;
}

int report(const QString& tab, double milliseconds)
{
    const bool within = milliseconds <= refreshLimit;
    const QByteArray what = "updating the tab " + tab.toUtf8();
    std::printf("%-50s %8.3f ms  %s %.0f ms\n", what.constData(), milliseconds, within ? "within" : "OVER",
                refreshLimit);
    return within ? 0 : 1;
}

/// A value of several rubbers is dragged while the tab of the curves is visible.
int reportCurves()
{
    auto& project = static_cast<Mat::DocumentMaterial&>(*materialObject().get_project());
    std::vector<Obj::ProjectObject*> rubbers;
    for (const char* const label : {"Seal", "Pad", "Mount", "Hose"}) {
        auto* const rubber = static_cast<Mat::MaterialObject*>(project.add_object("Mat::MaterialObject", label));
        rubber->getCMaterial()->copyPropertiesFrom(
            *project.getMatMgr().materials.at(static_cast<std::int32_t>(vxMat::eMaterialType::Elastomer1)));
        rubbers.push_back(rubber);
    }
    vxInspector::SubjectWatch watch(nullptr);
    vxInspector::Inspector inspector(watch);
    inspector.resize(400, 800);
    inspector.findChild<QTabWidget*>()->setCurrentIndex(4);
    inspector.show();
    int failures = 0;
    for (const std::size_t count : {std::size_t(1), rubbers.size()}) {
        Gui::TreeSelectionSingleton::instance().setSelection({}, {rubbers.begin(), rubbers.begin() + long(count)});
        inspector.refresh();
        QCoreApplication::processEvents();
        auto& dragged = *static_cast<Mat::MaterialObject*>(rubbers.front())->getCMaterial();
        double shortest = 1e9;
        for (int i = 0; i < 20; ++i) {
            for (auto& [slot, property] : dragged.properties)
                property->value *= 1.01;
            const auto time = timed([&inspector] {
                inspector.refresh();
                inspector.repaint();
                return 0;
            });
            shortest = std::min(shortest, std::chrono::duration<double, std::milli>(time).count());
        }
        failures += report(QString::number(3 * count) + " curves, a value dragged", shortest);
    }
    return failures;
}

/// Returns the shortest of ten times of an action, in milliseconds.
template <class Action>
double shortestTime(const Action& action)
{
    double shortest = 1e9;
    for (int i = 0; i < 10; ++i) {
        const auto time = timed([&action] {
            action();
            return 0;
        });
        shortest = std::min(shortest, std::chrono::duration<double, std::milli>(time).count());
    }
    return shortest;
}

/// A plot with a million noisy points and a curve is painted again: as it is, and with another curve.
int reportMillion()
{
    vxPlot::PlotData plot;
    plot.series.push_back({"curve", vxPlot::SeriesKind::Line, 0, {1.0, 4.0}, {0.0, 3.0}});
    plot.series.push_back({"test", vxPlot::SeriesKind::Symbols, 0, {}, {}});
    for (std::size_t i = 0; i < 1000000; ++i) {
        const double stretch = 1.0 + 3e-6 * double(i);
        plot.series[1].x.push_back(stretch);
        plot.series[1].y.push_back(stretch - 1.0 + 0.3 * std::sin(double(i * 7919)));
    }
    vxInspector::PlotView view;
    view.resize(400, 300);
    view.show();
    view.setPlot(plot);
    QCoreApplication::processEvents();
    view.repaint();
    int failures = report("a million points, painted again", shortestTime([&view] {
                              view.replot();
                              view.repaint();
                          }));
    std::vector<vxPlot::PlotData> others(10, plot);
    std::size_t i = 0;
    const double time = shortestTime([&] {
        others[i].series[0].y[1] = double(i);
        view.setPlot(std::move(others[i]));
        view.repaint();
        ++i;
    });
    failures += report("a million points, another curve", time);
    return failures;
}

int reportTabs()
{
    Gui::MainWindow window;
    Gui::TreeSelectionSingleton::instance().setSelection({}, {&materialObject()});
    vxInspector::SubjectWatch watch(nullptr);
    vxInspector::Inspector inspector(watch);
    inspector.resize(400, 800);
    inspector.show();
    QCoreApplication::processEvents();
    auto& tabs = *inspector.findChild<QTabWidget*>();
    int failures = 0;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        failures += report(tabs.tabText(tab), refreshTime(inspector));
    }
    return failures;
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
    vxbench::addContest({"table of values in another unit system / plain reads", makeTable, readValues, 0.0});
    const int contests = vxbench::runContests(argc, argv);
    return argc > 1 ? contests : contests + reportTabs() + reportCurves() + reportMillion();
}
