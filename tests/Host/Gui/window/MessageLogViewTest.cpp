#include "Gui/MessageLogView.h"

#include "GuiTesting.h"

#include <QClipboard>
#include <QStatusBar>

namespace {

class LogView : public vxtest::Host
{
protected:
    LogView() { view().clearMessages(); }

    void focusView() const
    {
        window->showMessages();
        window->activateWindow();
        ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
        view().setFocus();
    }

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
    focusView();
    QTest::keySequence(&view(), QKeySequence(QKeySequence::SelectAll));
    QTest::keySequence(&view(), QKeySequence(QKeySequence::Copy));
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
                testing::MatchesRegex("[0-9][0-9]:[0-9][0-9]:[0-9][0-9]\tone\n[0-9][0-9]:[0-9][0-9]:[0-9][0-9]\ttwo"));
}

TEST_F(LogView, CopiesFromItsContextMenuToo)
{
    Kelta::MessageLog::error(QStringLiteral("one"));
    EXPECT_EQ(view().contextMenuPolicy(), Qt::ActionsContextMenu);
    QStringList entries;
    for (QAction* const action : view().actions())
        entries << action->text();
    ASSERT_EQ(entries, QStringList({"&Copy", "Select &all", "C&lear messages"}));
    view().actions()[1]->trigger();
    view().actions()[0]->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith(QStringLiteral("\tone")));
    view().actions()[2]->trigger();
    EXPECT_EQ(view().count(), 0);
}

TEST_F(LogView, ShowsWhenAMessageCame)
{
    const QDateTime before = QDateTime::currentDateTime();
    Kelta::MessageLog::error(QStringLiteral("one"));
    const QDateTime time = Kelta::MessageLog::instance().messages().back().time;
    EXPECT_LE(before, time);
    EXPECT_LE(time, QDateTime::currentDateTime());
    EXPECT_EQ(view().item(0)->data(Qt::AccessibleTextRole).toString(),
              time.toString(QStringLiteral("hh:mm:ss")) + QStringLiteral(" one"));
}

TEST_F(LogView, LeavesTheClipboardAloneWhenNothingIsSelected)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    focusView();
    view().clearSelection();
    QTest::keySequence(&view(), QKeySequence(QKeySequence::Copy));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "mine");
}

TEST_F(LogView, LeadsToTheObjectOfAMessage)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project);
    addObject(project, "Other");
    Kelta::MessageLog::warning(QStringLiteral("wrong"), {project.getProjectId(), object.getObjectId(), 7});
    Kelta::MessageLog::warning(QStringLiteral("general"));
    EXPECT_FALSE(view().item(0)->toolTip().isEmpty());
    EXPECT_TRUE(view().item(1)->toolTip().isEmpty());
    const auto activate = [this](int row) {
        view().setCurrentRow(row);
        QTest::keyClick(&view(), Qt::Key_Return);
    };
    activate(0);
    EXPECT_TRUE(selection().is_selected(&object, nullptr));
    EXPECT_EQ(selection().getCount(), 1U);
    EXPECT_EQ(nodeOf(object).editModes, std::vector<int>{0});
    selection().clear();
    activate(1);
    EXPECT_EQ(selection().getCount(), 0U);
    ASSERT_TRUE(project.removeObject(object.getObjectId()));
    activate(0);
    EXPECT_EQ(selection().getCount(), 0U);
    EXPECT_EQ(window->statusBar()->currentMessage(), "The object of this message has been deleted or closed.");
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
