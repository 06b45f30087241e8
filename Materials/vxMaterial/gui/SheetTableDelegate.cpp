#include "vxMaterial/gui/SheetTableDelegate.h"

#include "CatalogueText.h"
#include "CellText.h"

#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>
#include <limits>
#include <string>

namespace MatGui {

namespace {

bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Returns the words that a quantity takes, in the language of the user.
QStringList wordsOf(int id)
{
    QStringList words;
    for (const std::string& word : vxMat::getAllowedWords(id))
        words << translatePropertyText(word, PropertyText::Value);
    return words;
}

/// Makes the list of completions wide enough for its words, since it has the width of the cell otherwise.
void widenToWords(QAbstractItemView& list)
{
    const int border = 2 * list.frameWidth() + list.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
    list.setMinimumWidth(list.sizeHintForColumn(0) + border);
}

/// Returns whether the typed text is the beginning of a single word.
bool isBeginningOfOne(const QCompleter& completer, const QString& typed)
{
    return completer.completionCount() == 1 && !typed.isEmpty() && completer.currentCompletion().size() > typed.size();
}

/// Writes the selected word of the list of completions into the line if the list is open; without a selection, the
/// only word that begins as typed.
void takeChosenWord(QLineEdit& line)
{
    const QCompleter* const completer = line.completer();
    if (completer == nullptr || !completer->popup()->isVisible())
        return;
    const QModelIndex chosen = completer->popup()->currentIndex();
    completer->popup()->hide();
    if (chosen.isValid())
        line.setText(chosen.data().toString());
    else if (isBeginningOfOne(*completer, line.text()))
        line.setText(completer->currentCompletion());
}

} // namespace

SheetTableDelegate::SheetTableDelegate(QObject* parent) : QItemDelegate(parent) {}

QWidget* SheetTableDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                          const QModelIndex& index) const
{
    auto* const editor = new QLineEdit(parent);
    // Lists may be longer than the default limit, which cuts them without a message.
    editor->setMaxLength(std::numeric_limits<int>::max());
    const QStringList words = wordsOf(index.sibling(index.row(), SheetTableView::Id).data().toInt());
    if (!words.isEmpty()) {
        auto* const completer = new QCompleter(words, editor);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        widenToWords(*completer->popup());
        editor->setCompleter(completer);
    }
    connect(editor, SIGNAL(returnPressed()), this, SLOT(commitAndCloseEditor()));
    return editor;
}

void SheetTableDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const line = qobject_cast<QLineEdit*>(editor))
        line->setText(index.data(Qt::EditRole).toString());
}

void SheetTableDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* const line = qobject_cast<QLineEdit*>(editor))
        model->setData(index, textToStore(*line, index), Qt::EditRole);
}

QString SheetTableDelegate::textToStore(const QLineEdit& editor, const QModelIndex& /*index*/) const
{
    return editor.text();
}

QString SheetTableDelegate::findFault(const QModelIndex& /*index*/) const
{
    return {};
}

void SheetTableDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                              const QModelIndex& /*index*/) const
{
    const int line = editor->sizeHint().height();
    const bool isHigh = option.rect.height() >= 2 * line;
    editor->setGeometry(QRect(option.rect.topLeft(), QSize(option.rect.width(), isHigh ? line : option.rect.height())));
}

QSize SheetTableDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return {};
}

void SheetTableDelegate::drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& /*rect*/,
                                     const QString& text) const
{
    QItemDelegate::drawDisplay(painter, option, option.rect, wrappedForCell(text, option));
}

bool SheetTableDelegate::eventFilter(QObject* object, QEvent* event)
{
    // The base class would commit once more on Return, after the editor is closed. The view must not get the key
    // either: it would open the editor again.
    auto* const line = qobject_cast<QLineEdit*>(object);
    if (line != nullptr && event->type() == QEvent::KeyPress && isReturn(static_cast<QKeyEvent&>(*event))) {
        line->event(event);
        event->accept();
        return true;
    }
    return QItemDelegate::eventFilter(object, event);
}

void SheetTableDelegate::commitAndCloseEditor()
{
    auto* const editor = qobject_cast<QLineEdit*>(sender());
    if (editor == nullptr)
        return;
    takeChosenWord(*editor);
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, NoHint);
}

} // namespace MatGui
