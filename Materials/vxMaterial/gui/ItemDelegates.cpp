#include "vxMaterial/gui/ItemDelegates.h"

#include "CellText.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

void storeText(const QComboBox& box, QAbstractItemModel& model, const QModelIndex& index)
{
    model.setData(index, box.currentText(), Qt::EditRole);
}

/// Returns the date in a text; an invalid date if the text does not have the form year-month-day. Qt's reader of ISO
/// dates accepts some other forms too.
QDate dateFrom(const QString& text)
{
    const QDate date = QDate::fromString(text, Qt::ISODate);
    return date.toString(Qt::ISODate) == text ? date : QDate();
}

/// Shows no date in an editor. Qt's editor ignores an invalid date and would show another date as the date of the cell.
/// It can show a blank only for its earliest date.
void showNoDate(QDateTimeEdit& editor)
{
    editor.setSpecialValueText(QStringLiteral(" "));
    editor.setDate(editor.minimumDate());
    auto* const line = editor.findChild<QLineEdit*>();
    const QSignalBlocker blocker(line);
    line->clear();
}

/// Returns the date that an editor shows; an invalid date if the editor shows none.
QDate shownDate(const QDateTimeEdit& editor)
{
    return editor.text().trimmed().isEmpty() ? QDate() : editor.date();
}

/// Returns whether a key changes a date: a digit, or an arrow that steps.
bool changesDate(const QKeyEvent& key)
{
    const QString text = key.text();
    return key.key() == Qt::Key_Up || key.key() == Qt::Key_Down || (text.size() == 1 && text.front().isDigit());
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

void NotEditableDelegate::drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& /*rect*/,
                                      const QString& text) const
{
    QItemDelegate::drawDisplay(painter, option, option.rect, wrappedForCell(text, option));
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
    if (date.isValid())
        dateEdit->setDate(date);
    else
        showNoDate(*dateEdit);
}

void DateDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const auto* const dateEdit = qobject_cast<QDateTimeEdit*>(editor);
    const QDate date = dateEdit != nullptr ? shownDate(*dateEdit) : QDate();
    if (date.isValid())
        model->setData(index, date.toString(Qt::ISODate), Qt::EditRole);
}

void DateDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

bool DateDelegate::eventFilter(QObject* object, QEvent* event)
{
    // The editor treats typed digits as parts of the date that it shows. If it shows none, it starts with today.
    auto* const editor = qobject_cast<QDateTimeEdit*>(object);
    if (editor != nullptr && event->type() == QEvent::KeyPress && changesDate(static_cast<QKeyEvent&>(*event)) &&
        !shownDate(*editor).isValid())
    {
        editor->setDate(QDate::currentDate());
        editor->setSelectedSection(QDateTimeEdit::YearSection);
    }
    return QItemDelegate::eventFilter(object, event);
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
