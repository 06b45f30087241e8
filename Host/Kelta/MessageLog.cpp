#include "Kelta/MessageLog.h"

#include "Kelta/Exceptions.h"

#include <QCoreApplication>

namespace Kelta {

MessageLog& MessageLog::instance()
{
    static MessageLog log;
    return log;
}

void MessageLog::report(LogMessage::Severity severity, const QString& text, const LogLink& link)
{
    // A separate message: a listener may report too, or clear the log.
    const LogMessage message{severity, text, link, QDateTime::currentDateTime()};
    add(message);
    try {
        Q_EMIT reported(message);
    } catch (...) {
        // Listeners do not receive this message, since one of them fails.
        add({LogMessage::Severity::Error,
             QCoreApplication::translate("Kelta", "A listener of the message log failed: %1")
                 .arg(currentExceptionText()),
             {},
             message.time});
    }
}

void MessageLog::add(const LogMessage& message)
{
    if (m_messages.size() == capacity)
        m_messages.pop_front();
    m_messages.push_back(message);
    if (message.severity == LogMessage::Severity::Error)
        ++m_errorCount;
}

} // namespace Kelta
