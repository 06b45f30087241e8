#include "Kelta/MessageLog.h"

namespace Kelta {

MessageLog& MessageLog::instance()
{
    static MessageLog log;
    return log;
}

void MessageLog::report(LogMessage::Severity severity, const QString& text)
{
    if (m_messages.size() == capacity)
        m_messages.pop_front();
    m_messages.push_back({severity, text});
    if (severity == LogMessage::Severity::Error)
        ++m_errorCount;
    // A copy: who listens may report too, and the log may then let go of this message.
    const LogMessage message = m_messages.back();
    Q_EMIT reported(message);
}

} // namespace Kelta
