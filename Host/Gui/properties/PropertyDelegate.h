#pragma once

#include <QStyledItemDelegate>

#include <functional>

class QComboBox;

namespace Obj {
class Property;
class PropertyChoice;
class PropertyReference;
} // namespace Obj

namespace Gui {

/// Makes the editors of the property panel, each for the type of its property: a list to choose from for choices and
/// references, a number field for real numbers, and a text field for all other types. Values are exchanged as the
/// texts of Obj::Property.
class PropertyDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The role under which the rows keep the text of the value. The displayed text may differ.
    static constexpr int valueRole = Qt::UserRole;

    /// `propertyAt` returns the property whose value a cell shows; null if the cell shows no value.
    using PropertyAt = std::function<const Obj::Property*(const QModelIndex&)>;
    explicit PropertyDelegate(PropertyAt propertyAt, QObject* parent = nullptr);
    ~PropertyDelegate() override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

    /// Returns the value of a property as the user reads it.
    static QString shownText(const Obj::Property& property);

private:
    QComboBox* makeList(QWidget* parent) const;
    QComboBox* makeChoice(QWidget* parent, const Obj::PropertyChoice& property) const;
    QComboBox* makeReference(QWidget* parent, const Obj::PropertyReference& property) const;

    PropertyAt m_propertyAt;
};

} // namespace Gui
