#include "Gui/MessageLogView.h"

#include "window/LogLinks.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QPainter>
#include <QStringList>
#include <QStyle>
#include <QStyledItemDelegate>

namespace Gui {

namespace {

constexpr int timeRole = Qt::UserRole + 1;

QString timeOf(const QModelIndex& index)
{
    return index.data(timeRole).toString();
}

/// Draws the messages, with their times in a column in front of them.
class MessageDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem time = option;
        time.rect.setWidth(timeWidth(option));
        const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &time, painter, option.widget);
        const bool isSelected = (option.state & QStyle::State_Selected) != 0;
        const QPalette::ColorGroup group =
            (option.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
        painter->setPen(option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(time.rect.adjusted(margin, margin, -margin, -margin), Qt::AlignLeft | Qt::AlignTop,
                          timeOf(index));
        QStyledItemDelegate::paint(painter, besideTime(option), index);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize message = QStyledItemDelegate::sizeHint(besideTime(option), index);
        return {message.width() + timeWidth(option), message.height()};
    }

private:
    static constexpr int margin = 3;

    static int timeWidth(const QStyleOptionViewItem& option)
    {
        return option.fontMetrics.horizontalAdvance(QStringLiteral("00:00:00 ")) + 2 * margin;
    }

    static QStyleOptionViewItem besideTime(const QStyleOptionViewItem& option)
    {
        QStyleOptionViewItem message = option;
        message.rect.setLeft(option.rect.left() + timeWidth(option));
        return message;
    }
};

} // namespace

MessageLogView::MessageLogView(QWidget* parent)
    : QListWidget(parent), m_copy(new QAction(this)), m_selectAll(new QAction(this)), m_clear(new QAction(this))
{
    setObjectName(QStringLiteral("messageLog"));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setWordWrap(true);
    setResizeMode(QListView::Adjust);
    setItemDelegate(new MessageDelegate(this));
    createActions();
    retranslate();
    // Scrolling lays out all messages, which must not happen for each of thousands of messages.
    m_scrolling.setSingleShot(true);
    connect(&m_scrolling, &QTimer::timeout, this, &QListWidget::scrollToBottom);
    followLinksOf(*this);
    for (const Kelta::LogMessage& message : Kelta::MessageLog::instance().messages())
        add(message);
    connect(&Kelta::MessageLog::instance(), &Kelta::MessageLog::reported, this, &MessageLogView::add);
}

MessageLogView::~MessageLogView() = default;

void MessageLogView::clearMessages()
{
    Kelta::MessageLog::instance().clear();
    clear();
}

void MessageLogView::changeEvent(QEvent* event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void MessageLogView::focusInEvent(QFocusEvent* event)
{
    // The base class makes the first message of all current, even if it is not visible.
    const bool hadCurrent = currentIndex().isValid();
    QListWidget::focusInEvent(event);
    const bool isTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (isTab && selectedItems().isEmpty())
        setCurrentIndex(hadCurrent ? currentIndex() : indexAt(viewport()->rect().topLeft()));
}

void MessageLogView::createActions()
{
    m_copy->setShortcut(QKeySequence::Copy);
    m_selectAll->setShortcut(QKeySequence::SelectAll);
    for (QAction* const action : {m_copy, m_selectAll, m_clear}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        addAction(action);
    }
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_copy, &QAction::triggered, this, &MessageLogView::copy);
    connect(m_selectAll, &QAction::triggered, this, &MessageLogView::selectAll);
    connect(m_clear, &QAction::triggered, this, &MessageLogView::clearMessages);
}

void MessageLogView::retranslate()
{
    setAccessibleName(tr("Messages"));
    m_copy->setText(tr("&Copy"));
    m_selectAll->setText(tr("Select &all"));
    m_clear->setText(tr("C&lear messages"));
}

void MessageLogView::copy() const
{
    QStringList texts;
    for (int row = 0; row < count(); ++row)
        if (item(row)->isSelected())
            texts << item(row)->data(timeRole).toString() + QLatin1Char('\t') + item(row)->text();
    if (!texts.isEmpty())
        QGuiApplication::clipboard()->setText(texts.join(QLatin1Char('\n')));
}

void MessageLogView::add(const Kelta::LogMessage& message)
{
    using Severity = Kelta::LogMessage::Severity;
    QStyle::StandardPixmap icon = QStyle::SP_MessageBoxInformation;
    if (message.severity != Severity::Information)
        icon = message.severity == Severity::Error ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxWarning;
    auto* const item = new QListWidgetItem(style()->standardIcon(icon), message.text);
    setLink(*item, message.link);
    const QString time = message.time.toString(QStringLiteral("hh:mm:ss"));
    item->setData(timeRole, time);
    item->setData(Qt::AccessibleTextRole, time + QLatin1Char(' ') + message.text);
    addItem(item);
    if (count() > static_cast<int>(Kelta::MessageLog::capacity))
        delete takeItem(0);
    m_scrolling.start(0);
}

} // namespace Gui
