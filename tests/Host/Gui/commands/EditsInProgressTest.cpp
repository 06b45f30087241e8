#include "GuiTesting.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QUndoCommand>

#include <cstdint>
#include <stdexcept>

namespace {

/// A document window with a line of text. The document takes the text when the edit is finished, as a step of the
/// document's own undo stack.
class TextDocument final : public Gui::MDIWindow
{
public:
    TextDocument() : MDIWindow(nullptr, nullptr) { setCentralWidget(&line); }

    void finishEditing() override
    {
        if (fails)
            throw std::runtime_error("the pen is dry");
        if (line.text() != text)
            stack.push(new Step(*this));
    }
    QUndoStack* getUndoStack() override { return &stack; }

    QString text;
    QUndoStack stack;
    QLineEdit line;
    bool fails = false;

private:
    class Step final : public QUndoCommand
    {
    public:
        explicit Step(TextDocument& document) : m_document(document), m_old(document.text), m_new(document.line.text())
        {}
        void redo() override { m_document.show(m_new); }
        void undo() override { m_document.show(m_old); }

    private:
        TextDocument& m_document;
        QString m_old;
        QString m_new;
    };

    void show(const QString& value)
    {
        text = value;
        line.setText(value);
    }
};

class EditsInProgress : public vxtest::Host
{
protected:
    EditsInProgress() : project(makeProject()), object(addObject(project, "Beam"))
    {
        focusExplorer();
        select({&object});
        panel().showSelection();
        undoStack().clear();
        // The application owns the command.
        if (commands().findCommand("Test_Look") == nullptr)
            commands().new_command(new vxtest::TestCommand(
                "Test_Look", [] { look(); }, Gui::CommandType::none, QKeySequence(QStringLiteral("Ctrl+Shift+K"))));
        look = [] {};
        window->setWorkbench("Gui::StdSimModule");
    }
    ~EditsInProgress() override
    {
        look = [] {};
    }

    TextDocument* addDocument() const
    {
        auto* const document = new TextDocument;
        window->add_mdi_window(document);
        document->line.setFocus();
        return document;
    }
    /// Types a label for the object into the explorer, without finishing the edit.
    QLineEdit* typeLabel(const char* label) const
    {
        EXPECT_TRUE(explorer().renameSelected());
        auto* const line = explorer().viewport()->findChild<QLineEdit*>();
        line->selectAll();
        QTest::keyClicks(line, label);
        return line;
    }
    /// Types a count for the object into the property panel, without finishing the edit.
    void typeCount(const char* count) const
    {
        panel().editItem(panel().findItems(QStringLiteral("Count"), Qt::MatchExactly | Qt::MatchRecursive).first(), 1);
        auto* const line = panel().viewport()->findChild<QLineEdit*>();
        line->selectAll();
        QTest::keyClicks(line, count);
    }

    static inline std::function<void()> look; ///< the function that the command "Test_Look" runs
    vxtest::TestProject& project;
    vxtest::TestObject& object;
};

TEST_F(EditsInProgress, InADocumentAreCompletedBeforeACommandRuns)
{
    TextDocument* const document = addDocument();
    QTest::keyClicks(&document->line, "steel");
    ASSERT_EQ(document->text, "");
    QString seen;
    look = [&] { seen = document->text; };
    EXPECT_TRUE(run("Test_Look"));
    EXPECT_EQ(seen, "steel");
}

TEST_F(EditsInProgress, InAllDocumentsAreCompleted)
{
    TextDocument* const behind = addDocument();
    QTest::keyClicks(&behind->line, "behind");
    addDocument();
    EXPECT_TRUE(run("Test_Look"));
    EXPECT_EQ(behind->text, "behind");
}

TEST_F(EditsInProgress, OfALabelAreCompletedBeforeACommandRuns)
{
    typeLabel("Plate");
    std::string seen;
    look = [&] { seen = object.label.getValue(); };
    EXPECT_TRUE(run("Test_Look"));
    EXPECT_EQ(seen, "Plate");
    EXPECT_FALSE(explorer().viewport()->findChild<QLineEdit*>()->isVisible());
    // The label is a separate step, which Undo reverts alone.
    EXPECT_EQ(undoStack().count(), 1);
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_EQ(object.label.getValue(), "Beam");
}

TEST_F(EditsInProgress, OfALabelAreCompletedBeforeAKeyRunsACommand)
{
    QLineEdit* const line = typeLabel("Plate");
    std::string seen;
    look = [&] { seen = object.label.getValue(); };
    QTest::keySequence(line, QKeySequence(QStringLiteral("Ctrl+Shift+K")));
    EXPECT_EQ(seen, "Plate");
}

TEST_F(EditsInProgress, OfAPropertyAreCompletedBeforeACommandRuns)
{
    typeCount("7");
    std::int64_t seen = 0;
    look = [&] { seen = object.count.getValue(); };
    EXPECT_TRUE(run("Test_Look"));
    EXPECT_EQ(seen, 7);
    EXPECT_EQ(undoStack().count(), 1);
}

TEST_F(EditsInProgress, OfAPropertyThatAreNoValueAreReportedAndTheCommandRuns)
{
    typeCount("many");
    bool ran = false;
    look = [&] { ran = true; };
    EXPECT_TRUE(run("Test_Look"));
    EXPECT_TRUE(ran);
    EXPECT_EQ(object.count.getValue(), 3);
    EXPECT_EQ(lastMessage(), "The property \"Count\" cannot be \"many\"; nothing was changed.");
}

TEST_F(EditsInProgress, InTheDockOfAModuleAreCompletedBeforeACommandRuns)
{
    auto* const list = new QListWidget;
    auto* const item = new QListWidgetItem(QStringLiteral("probe"), list);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    contributions.addDock({"Probes", {"", "Probes"}, Gui::DockArea::Right, [list] { return list; }});
    ASSERT_TRUE(vxtest::waitFor([this] { return window->hasDock("Probes"); }));
    list->setCurrentItem(item);
    list->editItem(item);
    auto* const line = list->viewport()->findChild<QLineEdit*>();
    ASSERT_NE(line, nullptr);
    line->setText(QStringLiteral("sensor"));
    EXPECT_TRUE(run("Test_Look"));
    EXPECT_EQ(item->text(), "sensor");
}

TEST_F(EditsInProgress, AreCompletedBeforeTheProgramEnds)
{
    TextDocument* const document = addDocument();
    QTest::keyClicks(&document->line, "steel");
    typeLabel("Plate");
    QString text;
    std::string label;
    QObject::connect(window.get(), &Gui::MainWindow::closing, [&](bool&) {
        text = document->text;
        label = object.label.getValue();
    });
    EXPECT_TRUE(window->close());
    EXPECT_EQ(text, "steel");
    EXPECT_EQ(label, "Plate");
}

TEST_F(EditsInProgress, AreCompletedBeforeTheirDocumentCloses)
{
    TextDocument* const document = addDocument();
    QTest::keyClicks(&document->line, "steel");
    QString text;
    const QObject whileInScope;
    QObject::connect(&document->stack, &QUndoStack::indexChanged, &whileInScope, [&] { text = document->text; });
    window->close_current_window();
    EXPECT_EQ(text, "steel");
}

TEST_F(EditsInProgress, ThatFailAreReportedAndStopNothing)
{
    TextDocument* const document = addDocument();
    document->setWindowTitle(QStringLiteral("Letter[*]"));
    document->fails = true;
    typeLabel("Plate");
    bool ran = false;
    look = [&] { ran = true; };
    EXPECT_TRUE(run("Test_Look"));
    EXPECT_TRUE(ran);
    EXPECT_EQ(object.label.getValue(), "Plate");
    EXPECT_EQ(lastMessage(), "An edit in \"Letter\" cannot be completed: the pen is dry");
    window->close_current_window();
    EXPECT_TRUE(vxtest::waitFor([this] { return window->getMdiWindows().isEmpty(); }));
}

/// Undo and Redo while a document has its own edits. One change of the object can be undone too.
class DocumentUndo : public EditsInProgress
{
protected:
    DocumentUndo()
    {
        EXPECT_TRUE(run("Std_Suppress"));
        document = addDocument();
        QTest::keyClicks(&document->line, "steel");
        document->finishEditing();
    }

    TextDocument* document;
};

TEST_F(DocumentUndo, ComesFirstWhileTheUserWorksThere)
{
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_EQ(document->text, "");
    EXPECT_TRUE(object.isSuppressed());
    EXPECT_TRUE(run("Std_Redo"));
    EXPECT_EQ(document->text, "steel");
    EXPECT_TRUE(run("Std_Undo"));
    // Older changes follow.
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_FALSE(object.isSuppressed());
}

TEST_F(DocumentUndo, MakesNoOlderChangeAgainUnderneathEdits)
{
    undoStack().undo();
    ASSERT_TRUE(undoStack().canRedo());
    EXPECT_FALSE(isApplicable("Std_Redo"));
    document->stack.clear();
    EXPECT_TRUE(isApplicable("Std_Redo"));
    EXPECT_TRUE(run("Std_Redo"));
    EXPECT_TRUE(object.isSuppressed());
}

TEST_F(DocumentUndo, RevertsTextThatIsBeingTyped)
{
    document->line.setFocus();
    QTest::keyClicks(&document->line, " and wood");
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_EQ(document->line.text(), "steel");
    EXPECT_TRUE(object.isSuppressed());
}

TEST_F(DocumentUndo, IsLeftAloneWhileTheKeyboardIsInTheExplorer)
{
    explorer().setFocus();
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_EQ(document->text, "steel");
    EXPECT_FALSE(object.isSuppressed());
    EXPECT_FALSE(isApplicable("Std_Undo"));
    window->set_active_mdi_window(document);
    EXPECT_TRUE(isApplicable("Std_Undo"));
}

TEST_F(DocumentUndo, StaysWithTheDocumentWhileTheMenusHaveTheKeyboard)
{
    window->menuBar()->setFocus();
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_EQ(document->text, "");
    EXPECT_TRUE(object.isSuppressed());
    explorer().setFocus();
    window->menuBar()->setFocus();
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_FALSE(object.isSuppressed());
}

TEST_F(DocumentUndo, IsOfferedInTheMenusAsItApplies)
{
    undoStack().clear();
    const QAction* const undo = commands().findCommand("Std_Undo")->action();
    EXPECT_TRUE(vxtest::waitFor([undo] { return undo->isEnabled(); }));
    document->stack.undo();
    EXPECT_TRUE(vxtest::waitFor([undo] { return !undo->isEnabled(); }));
    document->stack.redo();
    explorer().setFocus();
    EXPECT_TRUE(vxtest::waitFor([undo] { return !undo->isEnabled(); }));
    document->line.setFocus();
    EXPECT_TRUE(vxtest::waitFor([undo] { return undo->isEnabled(); }));
}

TEST_F(DocumentUndo, EndsWithTheDocument)
{
    window->remove_mdi_window(document);
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_FALSE(object.isSuppressed());
}

} // namespace
