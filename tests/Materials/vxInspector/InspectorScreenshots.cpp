// Makes pictures of the main window with each tab of the inspector, in one language and one colour scheme.
// Usage: inspector_screenshots FOLDER LANGUAGE light|dark SUFFIX

#include "Screenshots.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "plugin/Module.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <QStyleFactory>
#include <QTabWidget>

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
    shooting.take("inspector-values");
    auto& tabs = *shooting.window.findChild<QTabWidget*>(QStringLiteral("inspectorTabs"));
    select({&shaft});
    tabs.setCurrentIndex(1);
    shooting.take("inspector-findings");
    tabs.setCurrentIndex(2);
    shooting.take("inspector-cards");
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
    window.show();
    auto& project = static_cast<Mat::DocumentMaterial&>(
        *Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials"));
    shootTabs({QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[4]), window}, project);
    Obj::Application::instance().closeAllProjects();
    return 0;
}
