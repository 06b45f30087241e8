#include "Gui/MessageLogView.h"

#include "GuiTesting.h"

#include <QClipboard>

namespace {

class LogView : public vxtest::Host
{
protected:
    LogView() { view().clearMessages(); }

    Gui::MessageLogView& view() const { return window->getMessageLog(); }
};

TEST_F(LogView, ShowsMessagesAsTheyCome)
{
    Kelta::MessageLog::information(QStringLiteral("one"));
    Kelta::MessageLog::warning(QStringLiteral("two"));
    Kelta::MessageLog::error(QStringLiteral("three"));
    ASSERT_EQ(view().count(), 3);
    EXPECT_EQ(view().item(2)->text(), "three");
    EXPECT_NE(view().item(0)->icon().pixmap(16).toImage(), view().item(2)->icon().pixmap(16).toImage());
}

TEST_F(LogView, ShowsMessagesFromBeforeIt)
{
    Kelta::MessageLog::error(QStringLiteral("early"));
    const Gui::MessageLogView late;
    ASSERT_EQ(late.count(), 1);
    EXPECT_EQ(late.item(0)->text(), "early");
}

TEST_F(LogView, CopiesWhatIsSelected)
{
    Kelta::MessageLog::error(QStringLiteral("one"));
    Kelta::MessageLog::error(QStringLiteral("two"));
    view().selectAll();
    QTest::keySequence(&view(), QKeySequence(QKeySequence::Copy));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "one\ntwo");
}

TEST_F(LogView, LeavesTheClipboardAloneWhenNothingIsSelected)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    view().clearSelection();
    QTest::keySequence(&view(), QKeySequence(QKeySequence::Copy));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "mine");
}

TEST_F(LogView, KeepsNoMoreThanTheLog)
{
    for (std::size_t i = 0; i < Kelta::MessageLog::capacity + 5; ++i)
        Kelta::MessageLog::information(QString::number(i));
    EXPECT_EQ(view().count(), static_cast<int>(Kelta::MessageLog::capacity));
    EXPECT_EQ(view().item(0)->text(), "5");
}

TEST_F(LogView, Empties)
{
    Kelta::MessageLog::error(QStringLiteral("one"));
    view().clearMessages();
    EXPECT_EQ(view().count(), 0);
    EXPECT_TRUE(Kelta::MessageLog::instance().messages().empty());
}

} // namespace
