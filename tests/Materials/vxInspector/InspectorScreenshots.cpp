// Makes pictures of the main window with each tab of the inspector, and those of two tabs for the guide, in one language
// and one colour scheme.
// Usage: inspector_screenshots FOLDER LANGUAGE light|dark SUFFIX

#include "Screenshots.h"
#include "Waiting.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "fit/FitPage.h"
#include "plugin/Module.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <QComboBox>
#include <QDockWidget>
#include <QHash>
#include <QImage>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTabWidget>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

using vxtest::Shooting;
using Type = vxMat::eMaterialType;

Mat::MaterialObject& add(Mat::DocumentMaterial& project, const char* label, Type type)
{
    auto& object = dynamic_cast<Mat::MaterialObject&>(*project.add_object("Mat::MaterialObject", label));
    object.getCMaterial()->copyPropertiesFrom(*project.getMatMgr().materials.at(static_cast<std::int32_t>(type)));
    object.refreshProperties(true);
    return object;
}

/// Fits models to points of a Neo-Hookean rubber with C10 = 0.5 MPa, to which a scatter is added.
void fitRubber(const Shooting& shooting, vxInspector::FitPage& page)
{
    std::string text = "stretch;nominal stress [MPa]\n";
    for (int i = 1; i <= 20; ++i) {
        const double stretch = 1.0 + 0.1 * i;
        const double scatter = i % 2 == 0 ? 0.02 : -0.02;
        text += std::to_string(stretch) + ';' + std::to_string(stretch - 1.0 / (stretch * stretch) + scatter) + '\n';
    }
    vxInspector::LoadedTest test = vxInspector::loadTest(QStringLiteral("tension"), text);
    test.mode = vxConstitutive::Mode::Uniaxial;
    readAgain(test);
    page.addTest(std::move(test));
    shooting.take("inspector-fit-tests");
    page.findChild<QPushButton*>(QStringLiteral("fitStart"))->click();
    while (page.isFitting())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Returns a picture in the 256 colours that it has most, which makes its file small.
QImage withFewColours(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    QVector<QRgb> colours = counts.keys().toVector();
    std::sort(colours.begin(), colours.end(), [&](QRgb one, QRgb other) {
        return std::make_pair(counts[other], one) < std::make_pair(counts[one], other);
    });
    constexpr int most = 256;
    colours.resize(std::min(colours.size(), most));
    return picture.convertToFormat(QImage::Format_Indexed8, colours, Qt::ThresholdDither);
}

/// Takes a small picture of the inspector alone, for the guide.
void takeInspector(const Shooting& shooting, const char* name, const QSize& size)
{
    auto& dock = *shooting.window.findChild<QDockWidget*>(QStringLiteral("Inspector"));
    dock.setFloating(true);
    dock.resize(size);
    Shooting{shooting.folder, shooting.suffix, *dock.widget()}.take(name);
    const QString file = QStringLiteral("%1/%2-%3.png").arg(shooting.folder, QLatin1String(name), shooting.suffix);
    withFewColours(QImage(file)).save(file);
}

void shootTabs(const Shooting& shooting, Mat::DocumentMaterial& project)
{
    Mat::MaterialObject& frame = add(project, "Frame", Type::StructuralSteelNL);
    Mat::MaterialObject& shaft = add(project, "Shaft", Type::PlasticMaterial1);
    Mat::MaterialObject& skin = add(project, "Skin", Type::AluminumAlloyNL);
    const auto select = [](std::vector<Obj::ProjectObject*> objects) {
        Gui::TreeSelectionSingleton::instance().setSelection({}, objects);
    };
    select({&frame});
    Gui::GuiApplication::Instance->get_view_feeder(&frame)->on_double_clicked();
    // The inspector loads its tabs after its first picture, which takes longer on a busy machine.
    const auto find = [&] { return shooting.window.findChild<QTabWidget*>(QStringLiteral("inspectorTabs")); };
    if (!vxtest::waitFor([&] { return find() != nullptr; }))
        throw std::runtime_error("the inspector has no tabs");
    shooting.take("inspector-values");
    QTabWidget& tabs = *find();
    select({&shaft});
    tabs.setCurrentIndex(1);
    shooting.take("inspector-findings");
    tabs.setCurrentIndex(2);
    shooting.take("inspector-cards");
    tabs.findChild<QComboBox*>(QStringLiteral("cardFormats"))->setCurrentText(QStringLiteral("CalculiX"));
    shooting.take("inspector-cards-deck");
    select({&frame, &shaft, &skin});
    tabs.setCurrentIndex(3);
    shooting.take("inspector-compare");
    Mat::MaterialObject& seal = add(project, "Seal", Type::Elastomer1);
    Mat::MaterialObject& pad = add(project, "Pad", Type::Elastomer2);
    select({&seal});
    tabs.setCurrentIndex(4);
    shooting.take("inspector-curves");
    select({&seal, &pad});
    shooting.take("inspector-curves-two");
    select({&frame, &skin});
    shooting.take("inspector-curves-metals");
    select({&seal});
    tabs.setCurrentIndex(5);
    shooting.take("inspector-fit-empty");
    fitRubber(shooting, *tabs.findChild<vxInspector::FitPage*>());
    shooting.take("inspector-fit");
    QScrollBar& bar = *tabs.findChild<vxInspector::FitPage*>()->findChild<QScrollArea*>()->verticalScrollBar();
    bar.setValue(bar.maximum());
    shooting.take("inspector-fit-apply");
    takeInspector(shooting, "fit-tab", {560, 1620});
    tabs.setCurrentIndex(4);
    takeInspector(shooting, "curves-tab", {480, 800});
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5)
        return 2;
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Gui::GuiApplication application(argc, argv);
    if (qstrcmp(argv[3], "dark") == 0)
        QApplication::setPalette(vxtest::darkColours());
    initMat();
    initMatGui();
    Mat::registerRequests();
    initInspector();
    Gui::Translator::instance()->setLanguage(QLatin1String(argv[2]));
    Gui::MainWindow window;
    window.setWorkbench("MatGui::SimModule");
    window.resize(1024, 700);
    window.show();
    // A narrow screen hides the dock at first.
    for (QDockWidget* const dock : window.findChildren<QDockWidget*>())
        dock->show();
    auto& project = static_cast<Mat::DocumentMaterial&>(
        *Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials"));
    shootTabs({QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[4]), window}, project);
    Obj::Application::instance().closeAllProjects();
    return 0;
}
