#include "vxMaterial/gui/ViewFeederDocumentMaterial.h"

namespace MatGui {

OBJ_REGISTER_CLASS(MatGui::ViewFeederDocumentMaterial, Gui::ViewFeederProject)

ViewFeederDocumentMaterial::ViewFeederDocumentMaterial()
{
    pixmapName = "norvex_materialproject";
}

ViewFeederDocumentMaterial::~ViewFeederDocumentMaterial() = default;

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

} // namespace MatGui
