#include "vxMaterial/gui/ItemDelegates.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

void storeText(const QComboBox& box, QAbstractItemModel& model, const QModelIndex& index)
{
    model.setData(index, box.currentText(), Qt::EditRole);
}

/// The date that a text gives; an invalid one for a text of another form than year-month-day, which Qt's reader of ISO
/// dates would let pass here and there.
QDate dateFrom(const QString& text)
{
    const QDate date = QDate::fromString(text, Qt::ISODate);
    return date.toString(Qt::ISODate) == text ? date : QDate();
}

/// Qt's editor ignores an invalid date and would go on showing another one as if it were the cell's; this one is empty.
void showNoDate(QDateTimeEdit& editor)
{
    // An editor with a text for a special value may be empty; others put their date back at once.
    editor.setSpecialValueText(QStringLiteral(" "));
    auto* const line = editor.findChild<QLineEdit*>();
    const QSignalBlocker blocker(line);
    line->clear();
}

/// The date that the user sees in the editor; an invalid one when that is none.
QDate shownDate(const QDateTimeEdit& editor)
{
    return editor.text().isEmpty() ? QDate() : editor.date();
}

} // namespace

ComboBoxItemDelegate::ComboBoxItemDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

QWidget* ComboBoxItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const
{
    if (index.column() != 1)
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto* const box = new QComboBox(parent);
    for (const QString& text : {tr("one in row %1"), tr("two in row %1"), tr("three in row %1")})
        box->addItem(text.arg(index.row()));
    return box;
}

void ComboBoxItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const box = qobject_cast<QComboBox*>(editor);
    if (box == nullptr) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    const int found = box->findText(index.data(Qt::EditRole).toString(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (found >= 0)
        box->setCurrentIndex(found);
}

void ComboBoxItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* const box = qobject_cast<QComboBox*>(editor))
        storeText(*box, *model, index);
    else
        QStyledItemDelegate::setModelData(editor, model, index);
}

namespace MatGui {

NotEditableDelegate::NotEditableDelegate(QObject* parent) : QItemDelegate(parent) {}

QWidget* NotEditableDelegate::createEditor(QWidget* /*parent*/, const QStyleOptionViewItem& /*option*/,
                                           const QModelIndex& /*index*/) const
{
    return nullptr;
}

bool NotEditableDelegate::editorEvent(QEvent* /*event*/, QAbstractItemModel* /*model*/,
                                      const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/)
{
    return false;
}

ComboDelegate::ComboDelegate(QObject* parent) : QItemDelegate(parent) {}

QWidget* ComboDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                     const QModelIndex& /*index*/) const
{
    auto* const box = new QComboBox(parent);
    box->addItems({tr("工人"), tr("农民"), tr("医生"), tr("律师"), tr("军人")});
    box->installEventFilter(const_cast<ComboDelegate*>(this)); // NOLINT(*-const-cast): Qt creates editors by const
    return box;
}

void ComboDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const box = qobject_cast<QComboBox*>(editor))
        box->setCurrentIndex(
            box->findText(index.data(Qt::DisplayRole).toString(), Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void ComboDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* const box = qobject_cast<QComboBox*>(editor))
        storeText(*box, *model, index);
}

void ComboDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

DateDelegate::DateDelegate(QObject* parent) : QItemDelegate(parent) {}

QWidget* DateDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                    const QModelIndex& /*index*/) const
{
    auto* const editor = new QDateTimeEdit(parent);
    editor->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    editor->setCalendarPopup(true);
    editor->installEventFilter(const_cast<DateDelegate*>(this)); // NOLINT(*-const-cast): Qt creates editors by const
    return editor;
}

void DateDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const dateEdit = qobject_cast<QDateTimeEdit*>(editor);
    if (dateEdit == nullptr)
        return;
    const QDate date = dateFrom(index.data(Qt::DisplayRole).toString());
    dateEdit->setDate(date);
    if (!date.isValid())
        showNoDate(*dateEdit);
}

void DateDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* const dateEdit = qobject_cast<QDateTimeEdit*>(editor))
        model->setData(index, shownDate(*dateEdit).toString(Qt::ISODate), Qt::EditRole);
}

void DateDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

SpinBoxDelegate::SpinBoxDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

QWidget* SpinBoxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                       const QModelIndex& /*index*/) const
{
    auto* const box = new QSpinBox(parent);
    box->setFrame(false);
    box->setRange(0, 100);
    return box;
}

void SpinBoxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const box = qobject_cast<QSpinBox*>(editor))
        box->setValue(index.data(Qt::EditRole).toInt());
}

void SpinBoxDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (auto* const box = qobject_cast<QSpinBox*>(editor)) {
        box->interpretText();
        model->setData(index, box->value(), Qt::EditRole);
    }
}

void SpinBoxDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                           const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

SpinDelegate::SpinDelegate(QObject* parent) : QItemDelegate(parent) {}

QWidget* SpinDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                    const QModelIndex& /*index*/) const
{
    auto* const box = new QSpinBox(parent);
    box->setRange(0, 10000);
    box->installEventFilter(const_cast<SpinDelegate*>(this)); // NOLINT(*-const-cast): Qt creates editors by const
    return box;
}

void SpinDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const box = qobject_cast<QSpinBox*>(editor))
        box->setValue(index.data(Qt::DisplayRole).toInt());
}

void SpinDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* const box = qobject_cast<QSpinBox*>(editor))
        model->setData(index, box->value(), Qt::EditRole);
}

void SpinDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

} // namespace MatGui
