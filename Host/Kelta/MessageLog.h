#pragma once

#include "Kelta/KeltaExport.h"

#include <QObject>
#include <QString>

#include <deque>

namespace Kelta {

/// One line of the message log.
struct LogMessage
{
    enum class Severity
    {
        Information,
        Warning,
        Error
    };
    Severity severity;
    QString text;
};

/// What the program has to say without asking: the user reads it in the log window, a program without windows on
/// standard error, for as long as somebody listens to reported().
///
///     Kelta::MessageLog::error(tr("The class \"%1\" is not known.").arg(name));
class KELTA_EXPORT MessageLog : public QObject
{
    Q_OBJECT

public:
    static MessageLog& instance();

    static void information(const QString& text) { instance().report(LogMessage::Severity::Information, text); }
    static void warning(const QString& text) { instance().report(LogMessage::Severity::Warning, text); }
    static void error(const QString& text) { instance().report(LogMessage::Severity::Error, text); }

    void report(LogMessage::Severity severity, const QString& text);

    /// The latest messages, the oldest first; at most `capacity`.
    const std::deque<LogMessage>& messages() const { return m_messages; }
    static constexpr std::size_t capacity = 10000;

    /// How many errors have been reported since the program began; what starts something compares before and after.
    std::size_t errorCount() const { return m_errorCount; }
    void clear() { m_messages.clear(); }

Q_SIGNALS:
    void reported(const Kelta::LogMessage& message);

private:
    std::deque<LogMessage> m_messages;
    std::size_t m_errorCount = 0;
};

} // namespace Kelta
