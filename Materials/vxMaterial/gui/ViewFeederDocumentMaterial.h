#pragma once

#include "Gui/ViewFeeder.h"
#include "Obj/ClassRegistration.h"
#include "vxMaterial/project/PluginExport.h"

namespace MatGui {

/// The node of a material project. It is made by its registered name alone, so create and init stay inside the module.
class ViewFeederDocumentMaterial : public Gui::ViewFeederProject
{
    OBJ_CLASS;

public:
    VXMATERIAL_EXPORT ViewFeederDocumentMaterial();
    VXMATERIAL_EXPORT ~ViewFeederDocumentMaterial() override;

    /// Always true.
    VXMATERIAL_EXPORT bool onDelete(const std::vector<std::string>& subElements) override;
    /// Nothing is opened; true.
    VXMATERIAL_EXPORT bool on_double_clicked() override;
    VXMATERIAL_EXPORT void build_context_menu(const char* recipient, Gui::MenuItem* menu) override;
    /// Adds nothing.
    VXMATERIAL_EXPORT void build_context_menu(QMenu* menu, QObject* receiver, const char* slot) override;

private:
};

} // namespace MatGui
