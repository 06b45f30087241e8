// Moving between the panes of the main window by keys.

#include "GuiTesting.h"

#include "Gui/MessageLogView.h"

#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>

namespace {

class PanesTest : public vxtest::Host
{
protected:
    PanesTest()
    {
        Kelta::MessageLog::instance().clear();
        focusExplorer();
    }

    /// Adds a document with a text field, which gets the keyboard focus.
    Gui::MDIWindow* addDocument() const
    {
        auto* const document = new Gui::MDIWindow(nullptr, window.get());
        document->setCentralWidget(new QLineEdit(document));
        document->setFocusProxy(document->centralWidget());
        window->add_mdi_window(document);
        window->set_active_mdi_window(document);
        return document;
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
};

TEST_F(PanesTest, AreVisitedByF6FromLeftToRightAndBackByShiftF6)
{
    addObject(makeProject());
    const Gui::MDIWindow* const document = addDocument();
    window->showMessages();
    focusExplorer();
    const std::vector<const QWidget*> order = {&panel(), document->centralWidget(), &window->getMessageLog(),
                                               &explorer()};
    for (const QWidget* const pane : order) {
        press(Qt::Key_F6);
        EXPECT_EQ(QApplication::focusWidget(), pane);
    }
    for (auto pane = order.rbegin() + 1; pane != order.rend(); ++pane) {
        press(Qt::Key_F6, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget(), *pane);
    }
}

TEST_F(PanesTest, ThatAreHiddenAreLeftOut)
{
    window->findChild<QDockWidget*>(QStringLiteral("PropertyPanel"))->hide();
    const Gui::MDIWindow* const document = addDocument();
    focusExplorer();
    press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), document->centralWidget());
    press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), &explorer());
}

TEST_F(PanesTest, GiveTheFocusBackToTheWidgetThatHadItLast)
{
    auto* const document = new Gui::MDIWindow(nullptr, window.get());
    auto* const fields = new QWidget(document);
    new QLineEdit(fields);
    auto* const second = new QLineEdit(fields);
    document->setCentralWidget(fields);
    window->add_mdi_window(document);
    window->set_active_mdi_window(document);
    second->setFocus();
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &panel());
    press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), second);
}

TEST_F(PanesTest, GiveTheFocusToTheExplorerWhenTheDocumentCloses)
{
    addDocument();
    const QPointer<Gui::MDIWindow> document = addDocument();
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(vxtest::waitFor([this] { return QApplication::focusWidget() == &explorer(); }));
    EXPECT_EQ(window->getMdiWindows().size(), 1);
    EXPECT_TRUE(vxtest::waitFor([&] { return document == nullptr; }));
    window->remove_mdi_window(addDocument());
    EXPECT_TRUE(vxtest::waitFor([this] { return QApplication::focusWidget() == &explorer(); }));
}

TEST_F(PanesTest, GiveTheFocusToTheExplorerWhenTheDocumentClosesDuringAQuestion)
{
    Gui::MDIWindow* const document = addDocument();
    auto* const next = new QDockWidget(window.get());
    next->setWidget(new QLineEdit(next));
    window->addDockWidget(Qt::RightDockWidgetArea, next);
    // The window gives the keyboard to the first widget of this order when it becomes active without a focus.
    QWidget::setTabOrder(next->widget(), &explorer());
    document->setFocus();
    QDialog question(window.get());
    QLineEdit answer(&question);
    question.open();
    answer.setFocus();
    ASSERT_TRUE(vxtest::waitFor([&] { return QApplication::focusWidget() == &answer; }));
    document->parentWidget()->close();
    question.hide();
    window->activateWindow();
    EXPECT_TRUE(vxtest::waitFor([this] { return QApplication::focusWidget() == &explorer(); }));
}

TEST_F(PanesTest, GiveTheFocusOfAHiddenDockBackToTheDocumentInFront)
{
    addDocument();
    const Gui::MDIWindow* const inFront = addDocument();
    addDocument();
    window->set_active_mdi_window(const_cast<Gui::MDIWindow*>(inFront));
    window->showMessages();
    window->getMessageLog().setFocus();
    window->findChild<QDockWidget*>(QStringLiteral("MessageLog"))->close();
    EXPECT_EQ(window->get_active_mdi_window(), inFront);
    EXPECT_EQ(QApplication::focusWidget(), inFront->centralWidget());
}

TEST_F(PanesTest, GiveTheFocusOfAHiddenDockBackToTheDockThatHadIt)
{
    addDocument();
    window->showMessages();
    focusExplorer();
    window->getMessageLog().setFocus();
    window->toggleDock("MessageLog");
    EXPECT_EQ(QApplication::focusWidget(), &explorer());
    // Hiding a dock without the focus does not move it.
    window->showMessages();
    panel().setFocus();
    window->toggleDock("MessageLog");
    EXPECT_EQ(QApplication::focusWidget(), &panel());
}

TEST_F(PanesTest, SelectARowOfTheMessagesWhenTheyGetTheFocus)
{
    for (const char* const text : {"first", "second"})
        Kelta::MessageLog::information(QLatin1String(text));
    window->showMessages();
    Gui::MessageLogView& log = window->getMessageLog();
    ASSERT_TRUE(log.selectedItems().isEmpty());
    press(Qt::Key_F6, Qt::ShiftModifier);
    ASSERT_EQ(QApplication::focusWidget(), &log);
    EXPECT_TRUE(log.item(0)->isSelected());
    EXPECT_EQ(log.currentRow(), 0);
    // A row that the user has chosen stays.
    press(Qt::Key_Down);
    press(Qt::Key_F6);
    press(Qt::Key_F6, Qt::ShiftModifier);
    ASSERT_EQ(QApplication::focusWidget(), &log);
    EXPECT_EQ(log.currentRow(), 1);
    EXPECT_TRUE(log.item(1)->isSelected());
}

TEST_F(PanesTest, SelectTheFirstPropertyWhenThePanelGetsTheFocus)
{
    select({&addObject(makeProject())});
    panel().showSelection();
    press(Qt::Key_F6);
    ASSERT_EQ(QApplication::focusWidget(), &panel());
    ASSERT_NE(panel().currentItem(), nullptr);
    EXPECT_EQ(panel().currentItem(), panel().topLevelItem(0)->child(0)) << "groups cannot be selected";
    EXPECT_TRUE(panel().currentItem()->isSelected());
    EXPECT_EQ(panel().currentColumn(), 1);
    panel().showSelection();
    ASSERT_NE(panel().currentItem(), nullptr) << "an update keeps a current row";
    EXPECT_TRUE(panel().currentItem()->isSelected());
    selection().clear();
    panel().showSelection();
    EXPECT_EQ(panel().currentItem(), nullptr) << "there is nothing to select";
}

TEST_F(PanesTest, KeepTheFocusThatAnotherPaneHasWhenADocumentCloses)
{
    const QPointer<Gui::MDIWindow> document = addDocument();
    window->showMessages();
    window->getMessageLog().setFocus();
    press(Qt::Key_W, Qt::ControlModifier);
    ASSERT_TRUE(vxtest::waitFor([&] { return document == nullptr; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), &window->getMessageLog());
}

} // namespace
