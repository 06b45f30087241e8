#include "vxMaterial/gui/ViewFeederMaterialObject.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/PictureFactory.h"
#include "Gui/WindowTitle.h"
#include "Obj/Project.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

namespace MatGui {

OBJ_REGISTER_CLASS(MatGui::ViewFeederMaterialObject, Gui::ViewFeederProjectObject)

ViewFeederMaterialObject::ViewFeederMaterialObject()
    : materialColor(Obj::Color{0.5058824F, 0.57254905F, 0.6431373F, 0.0F})
{
    pixmapName = "norvex_materialobject";
    registerProperty(propertyData, materialColor, "MaterialColor", "Definition", 8, "Color of material.");
}

ViewFeederMaterialObject::~ViewFeederMaterialObject()
{
    Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    if (materialView != nullptr && mainWindow != nullptr)
        mainWindow->remove_mdi_window(materialView);
}

bool ViewFeederMaterialObject::useNewSelectionModel() const
{
    return false;
}

bool ViewFeederMaterialObject::onDelete(const std::vector<std::string>&)
{
    return true;
}

void ViewFeederMaterialObject::setDisplayMode(const char* mode)
{
    Gui::ViewFeeder::setDisplayMode(mode);
}

std::vector<std::string> ViewFeederMaterialObject::getDisplayModes() const
{
    return {"MaterialObject"};
}

bool ViewFeederMaterialObject::isShow() const
{
    return true;
}

bool ViewFeederMaterialObject::setEdit(int mode)
{
    if (mode == 0)
        openEditor();
    return false;
}

bool ViewFeederMaterialObject::on_double_clicked()
{
    openEditor();
    return true;
}

void ViewFeederMaterialObject::build_context_menu(const char*, Gui::MenuItem* menu)
{
    for (const char* command : {"Mat_Edit", "Separator", "Mat_AddMaterial", "Std_Copy", "Std_Paste",
                                "Std_DuplicateSelection", "Mat_Delete", "Separator"})
        *menu << command;
    const Mat::MaterialObject* const object = getMaterialObject();
    *menu << (object != nullptr && object->isSuppressed() ? "Std_Unsuppress" : "Std_Suppress");
}

void ViewFeederMaterialObject::build_context_menu(QMenu* menu, QObject* receiver, const char* slot)
{
    QAction* const action =
        menu->addAction(QCoreApplication::translate("MatGui::ViewFeederMaterialObject", "Show material"), receiver,
                        slot, QKeySequence());
    action->setData(0);
}

Mat::MaterialObject* ViewFeederMaterialObject::getMaterialObject() const
{
    Obj::ProjectObject* const object = getObject();
    return object != nullptr && object->is_inherited_from(Mat::MaterialObject::getClassTypeId())
               ? static_cast<Mat::MaterialObject*>(object)
               : nullptr;
}

void ViewFeederMaterialObject::updateData(const Obj::Property* changed)
{
    if (materialView != nullptr)
        materialView->updateCell(changed);
}

MaterialView* ViewFeederMaterialObject::showMaterialView()
{
    if (isOpen())
        return materialView;
    materialView = nullptr;
    Mat::MaterialObject* const object = getMaterialObject();
    Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    if (object == nullptr || mainWindow == nullptr || Gui::GuiApplication::Instance == nullptr)
        return nullptr;
    // Projects of other modules may take materials too. Only a material project has a database for the editor.
    if (!object->get_project()->is_inherited_from(Mat::DocumentMaterial::getClassTypeId()))
        return nullptr;
    materialView =
        new MaterialView(Gui::GuiApplication::Instance->get_project(object->get_project()), object, mainWindow);
    materialView->setWindowIcon(Gui::PictureFactory::get_pixmap(":icons/norvex_materialobject.svg"));
    showLabel(*object);
    m_labelChanged = object->get_project()->objectChanged.connect(
        [this, object](Obj::ProjectObject& changed, const Obj::Property* property) {
            if (&changed == object && property == &object->label)
                showLabel(*object);
        });
    mainWindow->add_mdi_window(materialView);
    return materialView;
}

void ViewFeederMaterialObject::showLabel(const Mat::MaterialObject& object)
{
    if (materialView == nullptr)
        return;
    materialView->setWindowTitle(Gui::markedTitle(QString::fromStdString(object.label.getValue())));
}

bool ViewFeederMaterialObject::isOpen() const
{
    // The event loop destroys a window some time after the user closes it.
    const Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    return materialView != nullptr && mainWindow != nullptr && mainWindow->getMdiWindows().contains(materialView);
}

void ViewFeederMaterialObject::openEditor()
{
    if (!isOpen() && showMaterialView() != nullptr)
        materialView->viewAll();
    if (materialView != nullptr)
        Gui::MainWindow::get_main_window_inst()->set_active_mdi_window(materialView);
}

} // namespace MatGui
