#pragma once

#include "Kelta/KeltaExport.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <cstdint>
#include <deque>

namespace Kelta {

/// The object that a message is about, and a part of it, to which the log window leads the user.
struct LogLink
{
    std::uint32_t projectId = 0; ///< 0 for a message that is not about an object
    std::uint32_t objectId = 0;
    int part = 0; ///< the number by which the editor of the object knows the part; 0 for the whole object

    bool isSet() const { return projectId != 0; }
};

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
    LogLink link = {};
    QDateTime time = {}; ///< when the message was reported
};

/// The messages of the program that need no reply. The log window shows them; a program without windows
/// writes them to standard error. Both listen to reported().
///
///     Kelta::MessageLog::error(tr("The class \"%1\" is not known.").arg(name));
class KELTA_EXPORT MessageLog : public QObject
{
    Q_OBJECT

public:
    static MessageLog& instance();

    static void information(const QString& text, const LogLink& link = {})
    {
        instance().report(LogMessage::Severity::Information, text, link);
    }
    static void warning(const QString& text, const LogLink& link = {})
    {
        instance().report(LogMessage::Severity::Warning, text, link);
    }
    static void error(const QString& text) { instance().report(LogMessage::Severity::Error, text); }

    /// Adds a message and notifies the listeners. Exceptions of listeners do not pass through: they become errors in
    /// the log, which are not sent to the listeners.
    void report(LogMessage::Severity severity, const QString& text, const LogLink& link = {});

    /// Returns the latest messages, the oldest first, at most `capacity` of them.
    const std::deque<LogMessage>& messages() const { return m_messages; }
    static constexpr std::size_t capacity = 10000;

    /// Returns the number of errors since the program began, for comparison before and after an operation.
    std::size_t errorCount() const { return m_errorCount; }
    void clear() { m_messages.clear(); }

Q_SIGNALS:
    void reported(const Kelta::LogMessage& message);

private:
    void add(const LogMessage& message);

    std::deque<LogMessage> m_messages;
    std::size_t m_errorCount = 0;
};

} // namespace Kelta
