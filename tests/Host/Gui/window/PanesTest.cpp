// Moving between the panes of the main window by keys.

#include "GuiTesting.h"

#include "Gui/MessageLogView.h"

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
