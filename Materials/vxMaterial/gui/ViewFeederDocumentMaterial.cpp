#include "vxMaterial/gui/ViewFeederDocumentMaterial.h"

#include <new>

namespace MatGui {

Kelta::TypeInfo ViewFeederDocumentMaterial::classTypeId;
Obj::PropertyCoreData ViewFeederDocumentMaterial::propertyData;

ViewFeederDocumentMaterial::ViewFeederDocumentMaterial()
{
    pixmapName = "norvex_materialproject";
}

ViewFeederDocumentMaterial::~ViewFeederDocumentMaterial() = default;

void* ViewFeederDocumentMaterial::create()
{
    return static_cast<Kelta::RootClass*>(new (std::nothrow) ViewFeederDocumentMaterial);
}

Kelta::TypeInfo ViewFeederDocumentMaterial::getClassTypeId()
{
    return classTypeId;
}

Kelta::TypeInfo ViewFeederDocumentMaterial::getTypeId() const
{
    return classTypeId;
}

void ViewFeederDocumentMaterial::init()
{
    initSubclass(classTypeId, "MatGui::ViewFeederDocumentMaterial", "Gui::ViewFeederProject",
                 &ViewFeederDocumentMaterial::create);
    propertyData.set_parent(Gui::ViewFeederProject::get_property_data_ref());
}

bool ViewFeederDocumentMaterial::onDelete(const std::vector<std::string>&)
{
    return true;
}

bool ViewFeederDocumentMaterial::on_double_clicked()
{
    return true;
}

void ViewFeederDocumentMaterial::build_context_menu(const char*, Gui::MenuItem* menu)
{
    *menu << "Mat_AddMaterial"
          << "Separator"
          << "Mat_Export";
}

void ViewFeederDocumentMaterial::build_context_menu(QMenu*, QObject*, const char*) {}

const Obj::PropertyCoreData& ViewFeederDocumentMaterial::get_property_data() const
{
    return propertyData;
}

const Obj::PropertyCoreData* ViewFeederDocumentMaterial::get_property_data_ref()
{
    return &propertyData;
}

} // namespace MatGui
