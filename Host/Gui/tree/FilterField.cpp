#include "tree/FilterField.h"

#include "Kelta/Exceptions.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QStyle>
#include <QTextCharFormat>

#include <algorithm>
#include <utility>

namespace Gui {

FilterField::FilterField(Source source, QWidget* parent)
    : QLineEdit(parent),
      m_source(std::move(source)),
      m_list(new QStandardItemModel(this)),
      m_completer(new QCompleter(m_list, this)),
      m_warning(addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition))
{
    setClearButtonEnabled(true);
    m_warning->setVisible(false);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWidget(this);
    m_completer->popup()->setObjectName(QStringLiteral("treeFilterCompletions"));
    connect(m_completer, QOverload<const QModelIndex&>::of(&QCompleter::activated), this,
            [this](const QModelIndex& index) { take(index.row()); });
    connect(this, &QLineEdit::textEdited, this, &FilterField::offer);
}

FilterField::~FilterField() = default;

void FilterField::keepListBelow(const QWidget& widget)
{
    QRect anchor = rect();
    if (widget.isVisible())
        anchor.setBottom(mapFromGlobal(widget.mapToGlobal(QPoint(0, widget.height()))).y());
    const bool isElsewhere = anchor != m_anchor;
    m_anchor = anchor;
    if (isElsewhere && isOffering())
        showList();
}

/// The list begins below the anchor, or ends above it if the screen has no room there.
void FilterField::showList()
{
    m_completer->complete(m_anchor);
}

void FilterField::mark(const std::optional<FilterFault>& fault)
{
    m_warning->setVisible(fault.has_value());
    m_warning->setToolTip(fault ? fault->reason : QString());
    QList<QInputMethodEvent::Attribute> marks;
    if (fault && fault->length > 0) {
        QTextCharFormat format;
        format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
        format.setUnderlineColor(Qt::red);
        marks.append({QInputMethodEvent::TextFormat, fault->position - cursorPosition(), fault->length, format});
    }
    // A line edit formats parts of its text only for input methods.
    QInputMethodEvent event(QString(), marks);
    QLineEdit::inputMethodEvent(&event);
}

bool FilterField::event(QEvent* event)
{
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    const int key = isKey ? static_cast<QKeyEvent*>(event)->key() : 0;
    // The window may have a shortcut for Escape.
    if (event->type() == QEvent::ShortcutOverride && key == Qt::Key_Escape)
        event->accept();
    if (event->type() == QEvent::KeyPress && key == Qt::Key_Tab && isOffering())
        return take(std::max(m_completer->popup()->currentIndex().row(), 0));
    return QLineEdit::event(event);
}

/// The list gets the keys that the field ignores.
void FilterField::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (isOffering())
            event->ignore();
        else
            Q_EMIT abandoned();
        break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isOffering() && m_completer->popup()->selectionModel()->hasSelection())
            event->ignore();
        else
            confirm();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

/// Completes a text that cannot be read yet.
void FilterField::confirm()
{
    if (isOffering() && m_warning->isVisible() && take(0))
        return;
    m_completer->popup()->hide();
    Q_EMIT confirmed();
}

void FilterField::offer()
{
    Kelta::guarded(tr("The text cannot be completed"), [this] {
        m_offered = m_source(text(), cursorPosition());
        m_list->clear();
        for (const FilterCompletion& one : m_offered)
            m_list->appendRow(
                new QStandardItem(one.meaning.isEmpty() ? one.text : one.text + QStringLiteral("   ") + one.meaning));
        if (m_offered.empty())
            m_completer->popup()->hide();
        else
            showList();
    });
}

/// A blank after the text begins the next word, for which texts are offered. After the end of a condition there is none, so
/// that the list does not cover what the filter has found.
bool FilterField::take(int row)
{
    const auto place = static_cast<std::size_t>(row);
    if (place >= m_offered.size())
        return false;
    const FilterCompletion chosen = m_offered[place];
    m_completer->popup()->hide();
    const QString rest = text().mid(chosen.begin + chosen.length);
    const bool hasBlank = chosen.next == FilterCompletion::Next::Word && !rest.startsWith(QLatin1Char(' '));
    const QString inserted = hasBlank ? chosen.text + QLatin1Char(' ') : chosen.text;
    setText(text().left(chosen.begin) + inserted + rest);
    setCursorPosition(chosen.begin + inserted.size());
    offer();
    return true;
}

bool FilterField::isOffering() const
{
    return m_completer->popup()->isVisible();
}

} // namespace Gui
