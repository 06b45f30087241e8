#pragma once

#include "Gui/MDIWindow.h"
#include "Kelta/ClassRegistration.h"
#include "vxMaterial/project/PluginExport.h"

#include <QListWidgetItem>

#include <map>
#include <memory>
#include <vector>

class QListWidget;

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace Ui {
class MaterialWidget;
} // namespace Ui

namespace vxMat {
class MaterialBase;
class MaterialProperty;
} // namespace vxMat

namespace MatGui {

/// The window in which the user gives a material object its material: picked from the library or put together from the
/// catalogue, and its values edited in the table.
///
/// The table is the working copy. Apply and OK alone write it into the material, wholly or not at all. Who closes the
/// window otherwise than by Cancel while changes are not applied is asked what is to become of them, and it stays open
/// until the answer; it goes without a question with its material.
class VXMATERIAL_EXPORT MaterialView : public Gui::MDIWindow
{
    Q_OBJECT
    KELTA_ABSTRACT_CLASS;

public:
    /// The window for `object`, which must be a Mat::MaterialObject in a material project and outlive the window.
    MaterialView(Gui::GuiProject* project, Obj::ProjectObject* object, QWidget* parent);
    ~MaterialView() override;

    /// Null: windows are made by their constructor alone.
    static void* create();

    Mat::MaterialObject* getMaterialObject() const { return m_materialObject; }

    /// Appends the materials of the library to the lists of the Library tab. One of a group without a page is nowhere.
    void preloadMaterialLibrary();
    /// Appends the quantities of the catalogue to the lists of the Build tab, those that the material has checked.
    void preloadMaterialProperties();

    const char* getName() const override; ///< "MaterialView"
    bool has_message_handler(const char* message) const override;
    bool message_handler(const char* message, const char** answer) override;
    void remove_viewself() override;
    QModelIndex currentIndex() const override;
    QModelIndexList selectedIndexes() const override;
    void resizeColumn(int column, int width) override;
    void resizeRow(int row, int height) override;
    void updateCell(const Obj::Property* property) override;

protected Q_SLOTS:
    void on_btnOK_clicked();
    bool on_btnApply_clicked();
    void on_btnCancel_clicked();
    void on_btnClear_clicked();
    void on_btnAddMat_clicked();
    void currentTagChangedSlot(int index);
    void on_property_itemChanged(QListWidgetItem* item);
    void on_material_double_clicked(QListWidgetItem* item);
    void on_property_double_clicked(QListWidgetItem* item);

protected:
    /// Checks the quantities on the Build tab that `material` has; the table stays. Nothing for null.
    void updatePropertyList(vxMat::MaterialBase* material);

    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void initUI();
    void makeToolBoxesReachable();
    void connectSignals();
    void markChanges();
    void retranslateItems();
    std::vector<QListWidget*> libraryLists() const;
    std::vector<QListWidget*> buildLists() const;
    QListWidget* libraryList(int group) const;
    QListWidget* buildList(int category) const;
    bool apply();
    void clear();
    bool keepsFromHost(const QKeyEvent& key) const;
    void askAboutChanges();
    void openQuestion();
    void answerQuestion(int answer);
    void closeUnasked();
    void requestClose();

    std::unique_ptr<Ui::MaterialWidget> m_ui;
    Mat::MaterialObject* m_materialObject;
    // Not owning: the lists own the items, the database of the project what they stand for.
    std::map<QListWidgetItem*, vxMat::MaterialBase*> m_libraryItems;
    std::map<QListWidgetItem*, vxMat::MaterialProperty*> m_propertyItems;
    std::vector<std::unique_ptr<QListWidgetItem>> m_itemsWithoutPage;
    bool m_closesUnasked = false;
};

} // namespace MatGui
