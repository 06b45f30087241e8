#include "Gui/MessageLogView.h"

#include "window/LogLinks.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QStringList>
#include <QStyle>

namespace Gui {

MessageLogView::MessageLogView(QWidget* parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("messageLog"));
    setAccessibleName(tr("Messages"));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setWordWrap(true);
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
        setAccessibleName(tr("Messages"));
}

void MessageLogView::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Copy))
        return QListWidget::keyPressEvent(event);
    QStringList texts;
    for (const QListWidgetItem* const item : selectedItems())
        texts << item->text();
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
    addItem(item);
    if (count() > static_cast<int>(Kelta::MessageLog::capacity))
        delete takeItem(0);
    m_scrolling.start(0);
}

} // namespace Gui
