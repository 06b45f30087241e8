#include "ProjectTesting.h"

#include "Kelta/MessageLog.h"

#include <QStringList>

#include <stdexcept>

namespace {

using Kelta::LogMessage;
using Kelta::MessageLog;

class CheckWithoutWindows : public vxtest::MaterialProject
{
protected:
    static void SetUpTestSuite() { Obj::initObj(); }
    ~CheckWithoutWindows() override { QObject::disconnect(listening); }

    QMetaObject::Connection listening;
};

TEST_F(CheckWithoutWindows, ReportsToTheMessageLog)
{
    QStringList texts;
    listening = QObject::connect(&MessageLog::instance(), &MessageLog::reported,
                                 [&texts](const LogMessage& message) { texts << message.text; });
    EXPECT_FALSE(addMaterial("Frame").check_input_data());
    EXPECT_EQ(texts, QStringList("Input check: No property is defined in 'Frame'."));
}

TEST_F(CheckWithoutWindows, LetsNothingOutThatAListenerOfTheLogThrows)
{
    listening = QObject::connect(&MessageLog::instance(), &MessageLog::reported,
                                 [](const LogMessage&) { throw std::runtime_error("the log cannot be written"); });
    Mat::MaterialObject& frame = addMaterial("Frame");
    EXPECT_NO_THROW(EXPECT_FALSE(frame.check_input_data()));
    EXPECT_NO_THROW(EXPECT_FALSE(project->check_all_materials()));
    const auto& messages = MessageLog::instance().messages();
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.back().text, QStringLiteral("A listener of the message log failed: the log cannot be written"));
}

} // namespace
