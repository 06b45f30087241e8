#pragma once

#include "Gui/MDIWindow.h"
#include "Kelta/ClassRegistration.h"
#include "vxMaterial/project/PluginExport.h"

#include <QListWidgetItem>
#include <json/value.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
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

class EditorHistory;
struct EditorState;
struct SheetRow;

/// The window in which the user selects the material of a material object: a material of the library, or quantities of
/// the catalogue, whose values the user edits in the table.
///
/// The table is the working copy. Only Apply and OK write it into the material, either completely or not at all; then
/// the table shows the properties of the material. Until then every edit can be undone in the window. If the user
/// closes the window with unapplied edits, and not by Cancel, it asks what to do with them and stays open until the
/// user decides. It closes without a question when its material is removed.
class VXMATERIAL_EXPORT MaterialView : public Gui::MDIWindow
{
    Q_OBJECT
    KELTA_ABSTRACT_CLASS;

public:
    /// Makes the window for `object`, which must be a Mat::MaterialObject in a material project and must outlive the
    /// window.
    MaterialView(Gui::GuiProject* project, Obj::ProjectObject* object, QWidget* parent);
    ~MaterialView() override;

    /// Returns null: only the constructor makes windows.
    static void* create();

    Mat::MaterialObject* getMaterialObject() const { return m_materialObject; }

    /// Appends the materials of the library to the lists of the Library tab, in the order of the library. A material
    /// whose group has no page is not shown.
    void preloadMaterialLibrary();
    /// Appends the quantities of the catalogue to the lists of the Build tab, in the order of the catalogue, and checks
    /// the quantities of the material.
    void preloadMaterialProperties();

    /// Shows the user the row of a property, by its id: scrolls to it, selects it and takes the keyboard focus. Returns
    /// false if the table does not have this row.
    bool showRow(int propertyId) override;

    /// Writes values into rows of the table, by their numbers from 0, as one step of the undo stack with the text
    /// `step`. First ends the edit of a cell. Ignores numbers without a row.
    void setValues(const std::map<int, QString>& values, const QString& step);

    /// Replaces the rows of the table, and checks their quantities on the Build tab, as one step of the undo stack with the
    /// text `step`. First ends the edit of a cell.
    void setRows(const std::vector<SheetRow>& rows, const QString& step);

    /// Returns the name, in the user's language, of the library material that the user has taken since the last Apply;
    /// empty if there is none, or if the user has cleared the rows afterwards.
    const QString& getPickedName() const { return m_picked; }

    /// Returns the reason, in the user's language, against applying values of which a part would be ignored ("210
    /// GPa"); absent if there is no reason. Apply itself accepts such values; an application that refuses them returns
    /// this text in Gui::MDIWindow::applying.
    std::optional<Gui::ApplyRefusal> findIgnoredText() const;

    const char* getName() const override; ///< "MaterialView"
    bool has_message_handler(const char* message) const override;
    bool message_handler(const char* message, const char** answer) override;
    void remove_viewself() override;
    QModelIndex currentIndex() const override;
    QModelIndexList selectedIndexes() const override;
    void resizeColumn(int column, int width) override;
    void resizeRow(int row, int height) override;
    void updateCell(const Obj::Property* property) override;
    void finishEditing() override;
    QUndoStack* getUndoStack() override;
    bool applyEdits() override;
    Json::Value unappliedEdits() const override;
    Json::Value editSteps() const override;
    bool restoreEdits(const Json::Value& record) override;

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
    /// Checks the quantities of `material` on the Build tab, and no others; does not change the table. Ignores null.
    void updatePropertyList(vxMat::MaterialBase* material);

    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void initUI();
    void makeToolBoxesReachable();
    void chooseFocus();
    void keepTabsVisible();
    void connectSignals();
    void watchEdits();
    void retranslate();
    std::vector<QListWidget*> libraryLists() const;
    std::vector<QListWidget*> buildLists() const;
    QListWidget* libraryList(int group) const;
    QListWidget* buildList(int category) const;

    bool edit(const QString& step, const std::function<void()>& action);
    void asOneEdit(const std::function<void()>& action);
    void noteEdit(const QString& step);
    EditorState state() const;
    std::optional<EditorState> typedState() const;
    void showState(const EditorState& shown);
    void checkQuantities(const std::function<bool(int id)>& isChecked);
    void clear();

    bool apply();
    bool refuse(const QString& title, const QString& reason, int row = -1, const QString& details = {});
    /// Returns the real reason if the rules refuse a row because of text after its number; otherwise an empty text.
    QString reasonOf(int refusedRow) const;
    void showApplied();
    bool keepsFromHost(const QKeyEvent& key) const;

    void askAboutChanges();
    void openQuestion();
    void answerQuestion(int answer);
    void closeUnasked();
    void requestClose();

    std::unique_ptr<Ui::MaterialWidget> m_ui;
    Mat::MaterialObject* m_materialObject;
    // Not owning: the lists own the items; the database of the project owns the materials and properties.
    std::map<QListWidgetItem*, vxMat::MaterialBase*> m_libraryItems;
    std::map<QListWidgetItem*, vxMat::MaterialProperty*> m_propertyItems;
    std::vector<std::unique_ptr<QListWidgetItem>> m_itemsWithoutPage;
    std::unique_ptr<EditorHistory> m_history;
    QString m_picked;    ///< see getPickedName
    int m_openEdits = 0; ///< edits in progress, which become one step of the undo stack
    bool m_closesUnasked = false;
};

} // namespace MatGui
