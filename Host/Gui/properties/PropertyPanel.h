#pragma once

#include "Gui/GuiExport.h"
#include "vxMsg/PropertyPlace.h"

#include <QTimer>
#include <QTreeWidget>
#include <boost/signals2/connection.hpp>

#include <array>
#include <optional>
#include <vector>

namespace Obj {
class Property;
class PropertyDS;
} // namespace Obj

namespace Gui {

class GuiApplication;
class TreeSelectionSingleton;

/// The properties of the selected entry of the project tree, by group: those of the project or object and those of its
/// node. The user edits them in place, undoably, with an editor for each type; a colour is chosen in a dialog. A value that is being edited is not
/// overwritten by other changes; it is kept if another entry is selected. If several entries are selected, the panel
/// shows their number.
class GUI_EXPORT PropertyPanel : public QTreeWidget
{
    Q_OBJECT

public:
    /// Shows the selection. `application` provides the nodes and carries out the edits. Both must outlive the panel.
    PropertyPanel(GuiApplication& application, TreeSelectionSingleton& selection, QWidget* parent = nullptr);
    ~PropertyPanel() override;

    /// Shows the present selection at once. A value that is being edited is kept.
    void showSelection();
    /// Ends the editing of a value, and keeps the typed or chosen value.
    void finishEditing();

protected:
    using QTreeWidget::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// If the focus comes by the Tab key, makes the value of the first property current unless another one is.
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    /// The selected project or object, and its node; null if there is none.
    using Owners = std::array<Obj::PropertyDS*, 2>;
    enum OwnerIndex
    {
        Shown,
        Node
    };

    void configure();
    void makeValueCurrent();
    void fitColumns();
    void refresh();
    void retranslate();
    Owners owners() const;
    const Obj::Property* propertyAt(const QModelIndex& index) const;
    bool isColor(const QModelIndex& index) const;
    bool editColor(const QModelIndex& index);
    /// Returns the place of the owner of a row that shows a property.
    const std::optional<vxMsg::PropertyPlace>& placeOf(const QModelIndex& index) const;
    void showCount(std::size_t count);
    void addProperties(OwnerIndex ownerIndex, const Obj::PropertyDS& owner);
    QTreeWidgetItem* makeItem(const Obj::PropertyDS& owner, const Obj::Property& property);
    void showValue(QTreeWidgetItem& item, const Obj::Property& property, bool isReadOnly) const;
    QTreeWidgetItem* groupItem(const QString& group);
    void takeOverEdit(QTreeWidgetItem* item, int column);
    void watch();

    GuiApplication& m_application;
    TreeSelectionSingleton& m_selection;
    QTimer m_refresh;
    bool m_filling = false;
    QPersistentModelIndex m_edited;
    Owners m_shown = {};
    std::array<std::optional<vxMsg::PropertyPlace>, 2> m_places; ///< places of the shown property sets
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace Gui
