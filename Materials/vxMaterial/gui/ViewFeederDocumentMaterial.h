#pragma once

#include "Gui/ViewFeeder.h"
#include "vxMaterial/project/PluginExport.h"

namespace MatGui {

/// The node of a material project. It is made by its registered name alone, so create and init stay inside the module.
class ViewFeederDocumentMaterial : public Gui::ViewFeederProject
{
public:
    VXMATERIAL_EXPORT ViewFeederDocumentMaterial();
    VXMATERIAL_EXPORT ~ViewFeederDocumentMaterial() override;

    static void* create();
    static Kelta::TypeInfo getClassTypeId();
    Kelta::TypeInfo getTypeId() const override;
    static void init();

    /// Always true.
    VXMATERIAL_EXPORT bool onDelete(const std::vector<std::string>& subElements) override;
    /// Nothing is opened; true.
    VXMATERIAL_EXPORT bool on_double_clicked() override;
    VXMATERIAL_EXPORT void build_context_menu(const char* recipient, Gui::MenuItem* menu) override;
    /// Adds nothing.
    VXMATERIAL_EXPORT void build_context_menu(QMenu* menu, QObject* receiver, const char* slot) override;

protected:
    const Obj::PropertyCoreData& get_property_data() const override;
    static const Obj::PropertyCoreData* get_property_data_ref();

private:
    static Kelta::TypeInfo classTypeId;
    static Obj::PropertyCoreData propertyData;
};

} // namespace MatGui
