#include "ValueCellDelegate.h"

#include "CellReading.h"
#include "ShownNumber.h"
#include "TableColours.h"
#include "ValueEditing.h"

#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/PropertyId.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <utility>

namespace desktop {

namespace {

/// Returns whether a key stores the text of an editor and closes it. A line of text leaves the vertical keys to the table,
/// which then moves to another row.
bool endsEditing(const QKeyEvent& event)
{
    constexpr std::array<int, 8> keys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab,    Qt::Key_Backtab,
                                      Qt::Key_Up,     Qt::Key_Down,  Qt::Key_PageUp, Qt::Key_PageDown};
    return std::find(keys.begin(), keys.end(), event.key()) != keys.end();
}

/// Returns whether the user leaves an editor for another program, or for the menus by the keyboard; a menu that is opened
/// with the mouse does not take the focus.
bool leavesForWhile(const QEvent& event)
{
    if (event.type() != QEvent::FocusOut)
        return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason;
}

void markAsUnreadable(QStyleOptionViewItem& option)
{
    option.font.setUnderline(true);
    const QColor dark(0xb3, 0x26, 0x1e);
    const QColor bright(0xff, 0xb4, 0xab);
    const QColor brightest(0xff, 0xd6, 0xd2);
    option.palette.setColor(QPalette::Text, isDark(option.palette) ? bright : dark);
    // A selection is dark only while the table has the keyboard.
    constexpr int middle = 128;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const bool isLight = option.palette.color(group, QPalette::Highlight).lightness() > middle;
        option.palette.setColor(group, QPalette::HighlightedText, isLight ? dark : brightest);
    }
}

/// Returns the place of a warning sign: after the text of a cell, or at the end of the cell if the text is long.
QRect signPlace(const QStyleOptionViewItem& option, const QString& text)
{
    constexpr int margin = 2;
    constexpr int mostMeasured = 200; // characters; a list may be long
    constexpr int distance = 10;      // from the begin of the cell and from the text, together
    const int size = std::min(option.rect.height() - 2 * margin, option.fontMetrics.height());
    const int after = option.rect.left() + option.fontMetrics.horizontalAdvance(text.left(mostMeasured)) + distance;
    return {std::min(after, option.rect.right() - size - margin), option.rect.center().y() - size / 2, size, size};
}

void paintSign(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place)
{
    const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->standardIcon(QStyle::SP_MessageBoxWarning, &option, option.widget).paint(&painter, place);
}

} // namespace

ValueCellDelegate::ValueCellDelegate(QObject* parent) : SheetTableDelegate(parent) {}

QWidget* ValueCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    QWidget* const editor = SheetTableDelegate::createEditor(parent, option, index);
    auto* const line = qobject_cast<QLineEdit*>(editor);
    if (line != nullptr && readCell(index, line->text()))
        new ValueEditing(*line, index); // the editor owns it
    return editor;
}

bool ValueCellDelegate::eventFilter(QObject* object, QEvent* event)
{
    ValueEditing* const editing = ValueEditing::of(*object);
    if (editing == nullptr || editing->isRead())
        return SheetTableDelegate::eventFilter(object, event);
    if (leavesForWhile(*event))
        return false; // the base class would close the editor
    if (event->type() != QEvent::KeyPress || !endsEditing(static_cast<const QKeyEvent&>(*event)))
        return SheetTableDelegate::eventFilter(object, event);
    editing->insist();
    event->accept();
    return true;
}

QString ValueCellDelegate::textToStore(const QLineEdit& editor, const QModelIndex& index) const
{
    const auto reading = readCell(index, editor.text());
    return reading ? reading->stored : SheetTableDelegate::textToStore(editor, index);
}

QString ValueCellDelegate::findFault(const QModelIndex& index) const
{
    const auto reading = readCell(index, index.data(Qt::EditRole).toString());
    return reading && !reading->isRead ? reading->remark : QString();
}

/// A list may have thousands of numbers, and is painted often.
bool ValueCellDelegate::isUnreadable(const QModelIndex& index) const
{
    const int id = index.sibling(index.row(), MatGui::SheetTableView::Id).data().toInt();
    if (id == vxMat::PropertyId::CreepModulusA) // its unit depends on other rows
        return !findFault(index).isEmpty();
    Painted& last = m_painted[id];
    if (QString text = index.data(Qt::EditRole).toString(); last.text != text || last.text.isNull())
        last = {std::move(text), !findFault(index).isEmpty()};
    return last.isUnreadable;
}

void ValueCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem marked(option);
    const bool isDoubtful = !isUnreadable(index) && !m_doubts.about(index).isEmpty();
    if (isUnreadable(index))
        markAsUnreadable(marked);
    const QRect place = isDoubtful ? signPlace(option, index.data().toString()) : QRect();
    // The sign does not cover the end of a number, which may be its exponent.
    if (isDoubtful)
        marked.rect.setRight(place.left() - 1);
    SheetTableDelegate::paint(painter, marked, index);
    if (isDoubtful)
        paintSign(*painter, option, place);
}

void ValueCellDelegate::drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                                    const QString& text) const
{
    const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
    const QString shown = withMagnitudeInSight(text, QFontMetrics(option.font), option.rect.width() - 2 * margin);
    SheetTableDelegate::drawDisplay(painter, option, rect, shown);
}

bool ValueCellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                  const QModelIndex& index)
{
    QString fault = event->type() == QEvent::ToolTip ? findFault(index) : QString();
    if (event->type() == QEvent::ToolTip && fault.isEmpty())
        fault = m_doubts.about(index);
    if (fault.isEmpty())
        return SheetTableDelegate::helpEvent(event, view, option, index);
    // A tool tip shows a text with markup otherwise.
    QToolTip::showText(event->globalPos(), QStringLiteral("<p>%1</p>").arg(fault.toHtmlEscaped()), view);
    return true;
}

} // namespace desktop
