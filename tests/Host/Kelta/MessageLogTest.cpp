#include "Kelta/MessageLog.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

using Kelta::LogMessage;
using Kelta::MessageLog;
using Severity = LogMessage::Severity;

TEST(MessageLog, KeepsMessagesInTheirOrderWithTheirSeverity)
{
    MessageLog& log = MessageLog::instance();
    log.clear();
    MessageLog::information(QStringLiteral("one"));
    MessageLog::warning(QStringLiteral("two"));
    MessageLog::error(QStringLiteral("three"));
    ASSERT_EQ(log.messages().size(), 3U);
    EXPECT_EQ(log.messages()[0].text, QStringLiteral("one"));
    EXPECT_EQ(log.messages()[0].severity, Severity::Information);
    EXPECT_EQ(log.messages()[1].severity, Severity::Warning);
    EXPECT_EQ(log.messages()[2].severity, Severity::Error);
    EXPECT_EQ(log.messages()[2].text, QStringLiteral("three"));
}

TEST(MessageLog, CountsErrorsAlone)
{
    const std::size_t before = MessageLog::instance().errorCount();
    MessageLog::information(QStringLiteral("one"));
    MessageLog::warning(QStringLiteral("two"));
    EXPECT_EQ(MessageLog::instance().errorCount(), before);
    MessageLog::error(QStringLiteral("three"));
    EXPECT_EQ(MessageLog::instance().errorCount(), before + 1);
    MessageLog::instance().clear();
    EXPECT_EQ(MessageLog::instance().errorCount(), before + 1) << "cleared errors are still counted";
    EXPECT_TRUE(MessageLog::instance().messages().empty());
}

TEST(MessageLog, LetsGoOfTheOldestWhenItIsFull)
{
    MessageLog& log = MessageLog::instance();
    log.clear();
    for (std::size_t i = 0; i < MessageLog::capacity + 5; ++i)
        MessageLog::information(QString::number(i));
    ASSERT_EQ(log.messages().size(), 10000U);
    EXPECT_EQ(log.messages().front().text, QStringLiteral("5"));
    EXPECT_EQ(log.messages().back().text, QStringLiteral("10004"));
}

TEST(MessageLog, TellsListenersWhichMayReportAndClearTheLog)
{
    MessageLog& log = MessageLog::instance();
    log.clear();
    QStringList heard;
    const auto listening = QObject::connect(&log, &MessageLog::reported, [&](const LogMessage& message) {
        log.clear();
        if (message.text == QStringLiteral("first"))
            MessageLog::information(QStringLiteral("second"));
        heard << message.text;
    });
    MessageLog::information(QStringLiteral("first"));
    QObject::disconnect(listening);
    EXPECT_EQ(heard, QStringList({"second", "first"}));
}

TEST(MessageLog, LetsNothingOutThatAListenerThrows)
{
    MessageLog& log = MessageLog::instance();
    log.clear();
    const std::size_t before = log.errorCount();
    const auto listening = QObject::connect(&log, &MessageLog::reported, [](const LogMessage&) {
        throw std::runtime_error("the printer of the log is out of paper");
    });
    EXPECT_NO_THROW(MessageLog::information(QStringLiteral("one")));
    QObject::disconnect(listening);
    ASSERT_EQ(log.messages().size(), 2U);
    EXPECT_EQ(log.messages()[0].text, QStringLiteral("one"));
    EXPECT_EQ(log.messages()[1].text,
              QStringLiteral("A listener of the message log failed: the printer of the log is out of paper"));
    EXPECT_EQ(log.errorCount(), before + 1);
}

} // namespace
