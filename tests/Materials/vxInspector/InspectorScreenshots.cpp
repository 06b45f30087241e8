// Makes pictures of the main window with each tab of the inspector, in one language and one colour scheme.
// Usage: inspector_screenshots FOLDER LANGUAGE light|dark SUFFIX

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

#include <QPixmap>
#include <QStyleFactory>
#include <QTabWidget>
#include <QtTest/QtTestGui>

namespace {

using Type = vxMat::eMaterialType;

QPalette darkColours()
{
    QPalette colours(QColor(53, 53, 53));
    colours.setColor(QPalette::Base, QColor(35, 35, 35));
    colours.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    colours.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return colours;
}

Mat::MaterialObject& add(Mat::DocumentMaterial& project, const char* label, Type type)
{
    auto& object = dynamic_cast<Mat::MaterialObject&>(*project.add_object("Mat::MaterialObject", label));
    object.getCMaterial()->copyPropertiesFrom(*project.getMatMgr().materials.at(static_cast<std::int32_t>(type)));
    object.refreshProperties(true);
    return object;
}

struct Shooting
{
    QString folder;
    QString suffix;
    QWidget& window;

    void take(const char* name) const
    {
        QTest::qWait(300); // until the window is laid out, which no signal reports
        window.grab().save(QStringLiteral("%1/inspector-%2-%3.png").arg(folder, QLatin1String(name), suffix));
    }
};

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
    shooting.take("values");
    auto& tabs = *shooting.window.findChild<QTabWidget*>(QStringLiteral("inspectorTabs"));
    select({&shaft});
    tabs.setCurrentIndex(1);
    shooting.take("findings");
    tabs.setCurrentIndex(2);
    shooting.take("cards");
    select({&frame, &shaft, &skin});
    tabs.setCurrentIndex(3);
    shooting.take("compare");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5)
        return 2;
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Gui::GuiApplication application(argc, argv);
    if (qstrcmp(argv[3], "dark") == 0)
        QApplication::setPalette(darkColours());
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
