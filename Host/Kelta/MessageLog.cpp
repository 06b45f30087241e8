#include "Kelta/MessageLog.h"

#include "Kelta/Exceptions.h"

#include <QCoreApplication>

namespace Kelta {

MessageLog& MessageLog::instance()
{
    static MessageLog log;
    return log;
}

void MessageLog::report(LogMessage::Severity severity, const QString& text)
{
    add(severity, text);
    try {
        // Sends a separate message: a listener may report too, or clear the log.
        Q_EMIT reported({severity, text});
    } catch (...) {
        // Listeners do not receive this message, since one of them fails.
        add(LogMessage::Severity::Error,
            QCoreApplication::translate("Kelta", "A listener of the message log failed: %1")
                .arg(currentExceptionText()));
    }
}

void MessageLog::add(LogMessage::Severity severity, const QString& text)
{
    if (m_messages.size() == capacity)
        m_messages.pop_front();
    m_messages.push_back({severity, text});
    if (severity == LogMessage::Severity::Error)
        ++m_errorCount;
}

} // namespace Kelta
