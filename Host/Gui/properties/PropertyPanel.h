#pragma once

#include "Gui/GuiExport.h"

#include <QTimer>
#include <QTreeWidget>
#include <boost/signals2/connection.hpp>

#include <vector>

namespace Obj {
class PropertyDS;
} // namespace Obj

namespace Gui {

class GuiApplication;
class TreeSelectionSingleton;

/// The properties of what is selected in the project tree, by group: those of the project or object and those of its
/// node. Editable ones are edited in place, undoably. With several selected it says how many.
class GUI_EXPORT PropertyPanel : public QTreeWidget
{
    Q_OBJECT

public:
    PropertyPanel(GuiApplication& application, TreeSelectionSingleton& selection, QWidget* parent = nullptr);
    ~PropertyPanel() override;

    /// Shows at once what is selected now.
    void showSelection();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void addProperties(Obj::PropertyDS& owner);
    QTreeWidgetItem* groupItem(const QString& group);
    void takeOverEdit(QTreeWidgetItem* item, int column);
    Obj::PropertyDS* ownerOf(const QTreeWidgetItem* item) const;
    void watch();

    GuiApplication& m_application;
    TreeSelectionSingleton& m_selection;
    QTimer m_refresh;
    bool m_filling = false;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace Gui
