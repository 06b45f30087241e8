// Makes pictures of the material editor: both tabs and a refused value, in one language and one colour scheme.
// Usage: editor_screenshots FOLDER LANGUAGE light|dark SUFFIX

#include "Screenshots.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Obj/Application.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <QListWidget>
#include <QStyleFactory>
#include <QTabWidget>
#include <QToolBox>

namespace {

using vxtest::Shooting;

void shootAll(const Shooting& shooting, MatGui::MaterialView& view)
{
    auto& table = *view.findChild<MatGui::SheetTableView*>();
    auto& library = *view.findChild<QToolBox*>(QStringLiteral("toolBoxLibrary"));
    auto& nonlinear = *view.findChild<QListWidget*>(QStringLiteral("lw_lib_nonlinear"));
    library.setCurrentIndex(1);
    for (int row = 0; row < nonlinear.count(); ++row) {
        nonlinear.setCurrentRow(row);
        Q_EMIT nonlinear.itemDoubleClicked(nonlinear.item(row));
        if (!table.model()->match(table.model()->index(0, 2), Qt::DisplayRole, ", ", 1, Qt::MatchContains).isEmpty())
            break; // the example with lists
    }
    table.setCurrentIndex(table.model()->index(1, 2));
    table.setFocus();
    shooting.take("library");

    view.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(1);
    view.findChild<QToolBox*>(QStringLiteral("toolBoxBuild"))->setCurrentIndex(3);
    table.edit(table.model()->index(2, 2));
    shooting.take("build");
    table.setEnabled(false);
    shooting.take("disabled");
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
    Gui::Translator::instance()->setLanguage(QString::fromLocal8Bit(argv[2]));
    auto* const project = Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials");
    auto& object = *static_cast<Mat::MaterialObject*>(project->add_object("Mat::MaterialObject", "Steel"));
    object.initCMaterial(vxMat::eMaterialType::StructuralSteel);
    {
        MatGui::MaterialView view(Gui::GuiApplication::Instance->get_project(project), &object, nullptr);
        view.resize(960, 600);
        view.show();
        shootAll({QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[4]), view}, view);
    }
    Obj::Application::instance().closeAllProjects();
    return 0;
}
