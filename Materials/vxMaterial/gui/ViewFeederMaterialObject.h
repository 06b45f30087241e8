#pragma once

#include "Gui/ViewFeeder.h"
#include "Obj/ClassRegistration.h"
#include "vxMaterial/project/PluginExport.h"

#include <QPointer>
#include <boost/signals2/connection.hpp>

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace MatGui {

class MaterialView;

/// The node of a material. It opens the editor of the material, has access to the open editor, and closes it when the
/// material leaves the tree.
class VXMATERIAL_EXPORT ViewFeederMaterialObject : public Gui::ViewFeederProjectObject
{
    OBJ_CLASS;

public:
    ViewFeederMaterialObject();
    /// Removes the editor from the main window if it is open.
    ~ViewFeederMaterialObject() override;

    bool useNewSelectionModel() const override; ///< false
    /// Returns true: materials can be deleted.
    bool onDelete(const std::vector<std::string>& subElements) override;
    void setDisplayMode(const char* mode) override;
    std::vector<std::string> getDisplayModes() const override; ///< "MaterialObject" alone
    bool isShow() const override;                              ///< true
    /// Opens the editor if `mode` is 0. Always returns false, so that the tree does not wait for the end of the
    /// edit.
    bool setEdit(int mode) override;
    /// Opens the editor, or brings it to the front if it is open. Returns true.
    bool on_double_clicked() override;
    void build_context_menu(const char* recipient, Gui::MenuItem* menu) override;
    /// Adds "Show material".
    void build_context_menu(QMenu* menu, QObject* receiver, const char* slot) override;

    /// Returns the material that the node shows; null if it shows none.
    Mat::MaterialObject* getMaterialObject() const;

    Obj::PropertyColor materialColor; ///< "MaterialColor"

protected:
    /// Passes the change to the editor if it is open.
    void updateData(const Obj::Property* changed) override;
    /// Returns the open editor, or a new one in the main window; null if the node shows no material, or if the material
    /// is not in a material project.
    MaterialView* showMaterialView();

private:
    bool isOpen() const;
    void openEditor();
    void showLabel(const Mat::MaterialObject& object);

    QPointer<MaterialView> materialView;
    boost::signals2::scoped_connection m_labelChanged;
};

} // namespace MatGui
