#pragma once

#include "Gui/ViewFeeder.h"
#include "Obj/ClassRegistration.h"
#include "vxMaterial/project/PluginExport.h"

namespace MatGui {

/// The node of a material project. Hosts make it only by its registered name, so that create and init are not exported.
class ViewFeederDocumentMaterial : public Gui::ViewFeederProject
{
    OBJ_CLASS;

public:
    VXMATERIAL_EXPORT ViewFeederDocumentMaterial();
    VXMATERIAL_EXPORT ~ViewFeederDocumentMaterial() override;

    /// Returns true.
    VXMATERIAL_EXPORT bool onDelete(const std::vector<std::string>& subElements) override;
    /// Opens nothing and returns true.
    VXMATERIAL_EXPORT bool on_double_clicked() override;
    VXMATERIAL_EXPORT void build_context_menu(const char* recipient, Gui::MenuItem* menu) override;
    /// Adds nothing.
    VXMATERIAL_EXPORT void build_context_menu(QMenu* menu, QObject* receiver, const char* slot) override;
};

} // namespace MatGui
