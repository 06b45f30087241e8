#include "GuiTesting.h"
#include "Mnemonics.h"

#include "Gui/ObjectClipboard.h"
#include "Gui/Translator.h"

#include <QAction>
#include <QClipboard>
#include <QColorDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QTableWidget>

namespace {

using testing::ElementsAre;
using testing::SizeIs;

class StandardCommands : public vxtest::Host
{
protected:
    StandardCommands() { QGuiApplication::clipboard()->clear(); }

    static std::vector<Obj::ProjectObject*> selected()
    {
        return selection().get_objects_of_type(Obj::ProjectObject::getClassTypeId());
    }
    /// Presses the keys of a command while the tree has the keyboard focus.
    void press(const char* command) const
    {
        window->updateCommands();
        QTest::keySequence(&explorer(), commands().findCommand(command)->get_shortcut());
    }
    void addDocument() const { window->add_mdi_window(new Gui::MDIWindow(nullptr, nullptr)); }
};

TEST_F(StandardCommands, HaveTheirStandardKeys)
{
    const auto keyOf = [](const char* name) { return commands().findCommand(name)->get_shortcut(); };
    EXPECT_EQ(keyOf("Std_Undo"), QKeySequence(QKeySequence::Undo));
    EXPECT_EQ(keyOf("Std_Redo"), QKeySequence(QStringLiteral("Ctrl+Y")));
    EXPECT_EQ(keyOf("Std_Copy"), QKeySequence(QKeySequence::Copy));
    EXPECT_EQ(keyOf("Std_Paste"), QKeySequence(QKeySequence::Paste));
    EXPECT_EQ(keyOf("Std_Delete"), QKeySequence(QKeySequence::Delete));
    EXPECT_EQ(keyOf("Std_SelectAll"), QKeySequence(QKeySequence::SelectAll));
    EXPECT_EQ(keyOf("Std_Rename"), QKeySequence(Qt::Key_F2));
    EXPECT_EQ(keyOf("Std_DuplicateSelection"), QKeySequence(QStringLiteral("Ctrl+D")));
    EXPECT_EQ(keyOf("Std_Quit"), QKeySequence(QStringLiteral("Ctrl+Q")));
    EXPECT_EQ(keyOf("Std_CloseWindow"), QKeySequence(QStringLiteral("Ctrl+W")));
}

TEST_F(StandardCommands, HaveDifferentKeysAndMnemonicsInEachMenu)
{
    std::map<QKeySequence, std::string> users;
    for (const Gui::Command* const command : commands().getCommands()) {
        if (command->get_shortcut().isEmpty())
            continue;
        EXPECT_TRUE(users.emplace(command->get_shortcut(), command->getName()).second) << command->getName();
    }
    for (const char* const language : {"de", "zh_CN", "en"}) {
        Gui::Translator::instance()->setLanguage(QLatin1String(language));
        QCoreApplication::processEvents();
        EXPECT_EQ(vxtest::mnemonicClashes(*window->menuBar()), QStringList()) << language;
    }
}

TEST_F(StandardCommands, ApplyToNothingInAnEmptyProgram)
{
    for (const char* const name :
         {"Std_Undo", "Std_Redo", "Std_Copy", "Std_Paste", "Std_DuplicateSelection", "Std_Delete", "Std_CloseProject",
          "Std_Suppress", "Std_Unsuppress", "Std_Rename", "Std_SelectAll", "Std_TileWindows", "Std_CascadeWindows",
          "Std_TabWindows", "Std_CloseWindow", "Std_CloseAllWindows"})
        EXPECT_FALSE(isApplicable(name)) << name;
    for (const char* const name : {"Std_Quit", "Std_About", "Std_ProjectExplorer", "Std_PropertyPanel"})
        EXPECT_TRUE(isApplicable(name)) << name;
}

TEST_F(StandardCommands, AreEnabledInTheMenusAsTheyApply)
{
    vxtest::TestProject& project = makeProject();
    const QAction* const copy = commands().findCommand("Std_Copy")->action();
    const QAction* const undo = commands().findCommand("Std_Undo")->action();
    EXPECT_FALSE(copy->isEnabled());
    select({&addObject(project)});
    EXPECT_TRUE(vxtest::waitFor([&] { return copy->isEnabled() && undo->isEnabled(); }));
    undoStack().undo();
    EXPECT_TRUE(vxtest::waitFor([&] { return !copy->isEnabled() && !undo->isEnabled(); }));
}

TEST_F(StandardCommands, SuppressWhatIsSelectedUndoablyInOneStep)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& a = addObject(project);
    vxtest::TestObject& b = addObject(project);
    vxtest::TestObject& c = addObject(project);
    b.setSuppressed(true);
    undoStack().clear();
    select({&a, &b});
    EXPECT_TRUE(isApplicable("Std_Suppress"));
    EXPECT_TRUE(isApplicable("Std_Unsuppress"));
    EXPECT_TRUE(run("Std_Suppress"));
    EXPECT_TRUE(a.isSuppressed() && b.isSuppressed() && !c.isSuppressed());
    EXPECT_FALSE(isApplicable("Std_Suppress"));
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    // An object that was suppressed before stays suppressed.
    EXPECT_TRUE(!a.isSuppressed() && b.isSuppressed());
    undoStack().redo();
    EXPECT_TRUE(a.isSuppressed());
    EXPECT_TRUE(run("Std_Unsuppress"));
    EXPECT_FALSE(a.isSuppressed() || b.isSuppressed());
    undoStack().undo();
    EXPECT_TRUE(a.isSuppressed() && b.isSuppressed() && !c.isSuppressed());
}

TEST_F(StandardCommands, CopyAndPasteInOneStep)
{
    vxtest::TestProject& project = makeProject();
    select({&addObject(project, "A"), &addObject(project, "B")});
    EXPECT_FALSE(isApplicable("Std_Paste"));
    EXPECT_TRUE(run("Std_Copy"));
    EXPECT_TRUE(isApplicable("Std_Paste"));
    undoStack().clear();
    EXPECT_TRUE(run("Std_Paste"));
    ASSERT_THAT(project.getObjects(), SizeIs(4));
    EXPECT_EQ(project.getObjects()[2]->label.getValue(), "A copy");
    ASSERT_THAT(selected(), ElementsAre(project.getObjects()[2], project.getObjects()[3]));
    EXPECT_EQ(undoStack().count(), 1);
    const auto pasted = selected();
    undoStack().undo();
    EXPECT_THAT(project.getObjects(), SizeIs(2));
    undoStack().redo();
    ASSERT_THAT(project.getObjects(), SizeIs(4));
    EXPECT_EQ(project.getObjects()[2], pasted[0]);
    EXPECT_EQ(project.getObjects()[3], pasted[1]);
}

TEST_F(StandardCommands, PasteIntoTheCurrentProject)
{
    vxtest::TestProject& first = makeProject("First");
    select({&addObject(first)});
    EXPECT_TRUE(run("Std_Copy"));
    vxtest::TestProject& second = makeProject("Second");
    EXPECT_TRUE(run("Std_Paste"));
    EXPECT_EQ(second.getObjectCount(), 1U);
    EXPECT_EQ(first.getObjectCount(), 1U);
}

TEST_F(StandardCommands, DuplicateInOneStepAndLeaveTheClipboardAlone)
{
    vxtest::TestProject& project = makeProject();
    select({&addObject(project, "A"), &addObject(project, "B")});
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    undoStack().clear();
    EXPECT_TRUE(run("Std_DuplicateSelection"));
    EXPECT_THAT(project.getObjects(), SizeIs(4));
    EXPECT_EQ(undoStack().count(), 1);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "mine");
    undoStack().undo();
    EXPECT_THAT(project.getObjects(), SizeIs(2));
}

TEST_F(StandardCommands, UndoAndRedo)
{
    vxtest::TestProject& project = makeProject();
    addObject(project);
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_EQ(project.getObjectCount(), 0U);
    EXPECT_FALSE(isApplicable("Std_Undo"));
    EXPECT_TRUE(run("Std_Redo"));
    EXPECT_EQ(project.getObjectCount(), 1U);
    EXPECT_FALSE(isApplicable("Std_Redo"));
}

TEST_F(StandardCommands, RedoByEitherOfTheUsualKeys)
{
    vxtest::TestProject& project = makeProject();
    focusExplorer();
    for (const char* const key : {"Ctrl+Y", "Ctrl+Shift+Z"}) {
        addObject(project);
        const std::size_t count = project.getObjectCount();
        EXPECT_TRUE(run("Std_Undo"));
        window->updateCommands();
        QTest::keySequence(&explorer(), QKeySequence(QLatin1String(key)));
        EXPECT_EQ(project.getObjectCount(), count) << key;
    }
}

TEST_F(StandardCommands, NameTheStepThatTheyUndoAndRedo)
{
    vxtest::TestProject& project = makeProject();
    addObject(project, "A & <b>B</b>");
    window->updateCommands();
    const QAction* const undo = commands().findCommand("Std_Undo")->action();
    const QAction* const redo = commands().findCommand("Std_Redo")->action();
    EXPECT_EQ(undo->text(), "&Undo: Add \"A && <b>B</b>\"");
    EXPECT_EQ(undo->statusTip(), "Undo the last change: Add \"A & <b>B</b>\"");
    EXPECT_EQ(undo->toolTip(), "<qt>Undo the last change: Add &quot;A &amp; &lt;b&gt;B&lt;/b&gt;&quot;</qt>");
    EXPECT_EQ(redo->text(), "&Redo");
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_EQ(window->statusBar()->currentMessage(), "Undone: Add \"A & <b>B</b>\"");
    window->updateCommands();
    EXPECT_EQ(undo->text(), "&Undo");
    EXPECT_EQ(redo->text(), "&Redo: Add \"A && <b>B</b>\"");
    EXPECT_TRUE(run("Std_Redo"));
    EXPECT_EQ(window->statusBar()->currentMessage(), "Redone: Add \"A & <b>B</b>\"");
}

TEST_F(StandardCommands, SelectWhatUndoAndRedoChange)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& first = addObject(project, "First");
    vxtest::TestObject& second = addObject(project, "Second");
    select({&first});
    EXPECT_TRUE(run("Std_Suppress"));
    select({&second});
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_THAT(selected(), ElementsAre(&first));
    EXPECT_FALSE(first.isSuppressed());
    EXPECT_TRUE(vxMsg::MessageProxy::instance().deleteObject(project.get_name(), first.get_name_in_project()));
    select({&second});
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_THAT(selected(), ElementsAre(&first));
}

TEST_F(StandardCommands, RemoveTheResultOfTheCommandBefore)
{
    window->statusBar()->showMessage(QStringLiteral("saved"));
    select({&addObject(makeProject())});
    EXPECT_TRUE(run("Std_Suppress"));
    EXPECT_EQ(window->statusBar()->currentMessage(), "");
}

TEST_F(StandardCommands, GiveCopiesLabelsOfTheirOwn)
{
    vxtest::TestProject& project = makeProject();
    select({&addObject(project, "Frame")});
    for (const char* const label : {"Frame copy", "Frame copy 2", "Frame copy 3"}) {
        // The copy of a copy is numbered like a copy of the original.
        EXPECT_TRUE(run("Std_DuplicateSelection"));
        EXPECT_EQ(project.getObjects().back()->label.getValue(), label);
    }
    EXPECT_TRUE(run("Std_Copy"));
    vxtest::TestProject& other = makeProject("Other");
    EXPECT_TRUE(run("Std_Paste"));
    EXPECT_EQ(other.getObjects().back()->label.getValue(), "Frame copy 3");
    EXPECT_TRUE(run("Std_Paste"));
    EXPECT_EQ(other.getObjects().back()->label.getValue(), "Frame copy");
}

TEST_F(StandardCommands, RenameAProjectUndoably)
{
    vxtest::TestProject& project = makeProject("Project");
    makeProject("Other");
    selection().setSelection({&project}, {});
    focusExplorer();
    EXPECT_TRUE(run("Std_Rename"));
    auto* const line = explorer().viewport()->findChild<QLineEdit*>();
    ASSERT_NE(line, nullptr);
    line->setText(QStringLiteral("Bridge"));
    QTest::keyClick(line, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_STREQ(project.get_name(), "Bridge");
    EXPECT_EQ(model().indexOf(project).data().toString(), "Bridge");
    EXPECT_EQ(undoStack().undoText(), "Rename \"Project\"");
    undoStack().undo();
    EXPECT_STREQ(project.get_name(), "Project");
    undoStack().redo();
    EXPECT_STREQ(project.get_name(), "Bridge");
}

TEST_F(StandardCommands, RefuseNamesOfProjectsThatAreBlankOrTaken)
{
    vxtest::TestProject& project = makeProject("Project");
    makeProject("Other");
    model().synchronize();
    undoStack().clear();
    for (const char* const name : {"", "  ", "Other"}) {
        EXPECT_FALSE(model().setData(model().indexOf(project), QLatin1String(name), Qt::EditRole)) << name;
        EXPECT_STREQ(project.get_name(), "Project");
    }
    EXPECT_EQ(lastMessage(), "Another open project has the name \"Other\"; nothing was changed.");
    EXPECT_TRUE(model().setData(model().indexOf(project), QStringLiteral("Project"), Qt::EditRole));
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(StandardCommands, ShowAndHideTheDocks)
{
    window->showMessages();
    for (const auto& [command, name] :
         {std::pair("Std_ProjectExplorer", "ProjectExplorer"), std::pair("Std_PropertyPanel", "PropertyPanel"),
          std::pair("Std_MessageLog", "MessageLog")})
    {
        const auto* const dock = window->findChild<QDockWidget*>(QLatin1String(name));
        ASSERT_TRUE(dock->isVisible());
        EXPECT_TRUE(run(command));
        EXPECT_FALSE(dock->isVisible());
        EXPECT_TRUE(run(command));
        EXPECT_TRUE(dock->isVisible());
    }
}

TEST_F(StandardCommands, ArrangeTheDocuments)
{
    const auto* const area = window->findChild<QMdiArea*>();
    addDocument();
    addDocument();
    const auto overlap = [area] {
        const QList<QMdiSubWindow*> frames = area->subWindowList();
        return frames[0]->geometry().intersects(frames[1]->geometry());
    };
    EXPECT_EQ(area->viewMode(), QMdiArea::TabbedView);
    EXPECT_TRUE(run("Std_TileWindows"));
    EXPECT_EQ(area->viewMode(), QMdiArea::SubWindowView);
    EXPECT_FALSE(overlap());
    EXPECT_TRUE(run("Std_CascadeWindows"));
    EXPECT_EQ(area->viewMode(), QMdiArea::SubWindowView);
    EXPECT_TRUE(overlap());
    // The title of each window is visible.
    EXPECT_NE(area->subWindowList()[0]->pos(), area->subWindowList()[1]->pos());
    EXPECT_TRUE(run("Std_TabWindows"));
    EXPECT_EQ(area->viewMode(), QMdiArea::TabbedView);
}

TEST_F(StandardCommands, CloseDocuments)
{
    for (int i = 0; i < 3; ++i)
        addDocument();
    EXPECT_TRUE(run("Std_CloseWindow"));
    EXPECT_TRUE(vxtest::waitFor([this] { return window->getMdiWindows().size() == 2; }));
    EXPECT_TRUE(run("Std_CloseAllWindows"));
    EXPECT_TRUE(vxtest::waitFor([this] { return window->getMdiWindows().isEmpty(); }));
    EXPECT_FALSE(isApplicable("Std_CloseWindow"));
}

TEST_F(StandardCommands, BringTheDocumentThatWasUsedBeforeToTheFrontWhenOneIsClosed)
{
    for (int i = 0; i < 5; ++i)
        addDocument();
    const QList<Gui::MDIWindow*> documents = window->getMdiWindows();
    window->set_active_mdi_window(documents[1]);
    window->set_active_mdi_window(documents[4]);
    for (Gui::MDIWindow* const next : {documents[1], documents[3], documents[2]}) {
        const int count = window->getMdiWindows().size();
        ASSERT_TRUE(run("Std_CloseWindow"));
        ASSERT_TRUE(vxtest::waitFor([&] { return window->getMdiWindows().size() == count - 1; }));
        EXPECT_EQ(window->get_active_mdi_window(), next);
    }
}

TEST_F(StandardCommands, RunByTheirKeys)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project, "A");
    focusExplorer();
    select({&object});
    press("Std_Copy");
    press("Std_Paste");
    EXPECT_EQ(project.getObjectCount(), 2U);
    press("Std_DuplicateSelection");
    EXPECT_EQ(project.getObjectCount(), 3U);
    press("Std_Undo");
    EXPECT_EQ(project.getObjectCount(), 2U);
    press("Std_Undo");
    EXPECT_EQ(project.getObjectCount(), 1U);
    press("Std_Redo");
    EXPECT_EQ(project.getObjectCount(), 2U);
    press("Std_SelectAll");
    EXPECT_THAT(selected(), SizeIs(2));
    addDocument();
    press("Std_CloseWindow");
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
}

/// The commands while a table of a document has the keyboard focus, and an object is selected in the tree.
class CommandsInADocument : public StandardCommands
{
protected:
    CommandsInADocument()
    {
        auto* const document = new Gui::MDIWindow(nullptr, nullptr);
        document->setCentralWidget(table);
        window->add_mdi_window(document);
        table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("7850")));
        table->setCurrentCell(0, 0);
        select({&object});
        table->setFocus();
        EXPECT_TRUE(vxtest::waitFor([this] { return table->hasFocus(); }));
        window->updateCommands();
    }

    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project, "Beam");
    QTableWidget* table = new QTableWidget(1, 1);
};

TEST_F(CommandsInADocument, DoNotDeleteOrDuplicateTheSelectedObject)
{
    for (const char* const command : {"Std_Delete", "Std_DuplicateSelection"}) {
        EXPECT_FALSE(commands().findCommand(command)->action()->isEnabled()) << command;
        run(command);
        EXPECT_THAT(project.getObjects(), ElementsAre(&object)) << command;
    }
    focusExplorer();
    for (const char* const command : {"Std_Delete", "Std_DuplicateSelection"})
        EXPECT_TRUE(isApplicable(command)) << command;
}

TEST_F(CommandsInADocument, CopyTheCell)
{
    EXPECT_TRUE(commands().findCommand("Std_Copy")->action()->isEnabled());
    EXPECT_TRUE(run("Std_Copy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "7850");
    focusExplorer();
    EXPECT_TRUE(run("Std_Copy"));
    EXPECT_TRUE(isApplicable("Std_Paste"));
}

TEST_F(CommandsInADocument, CopyNothingWithoutACell)
{
    table->setCurrentItem(nullptr);
    EXPECT_FALSE(isApplicable("Std_Copy"));
}

TEST_F(CommandsInADocument, ActOnTheTreeAfterTheDocumentIsClosed)
{
    EXPECT_TRUE(run("Std_CloseWindow"));
    EXPECT_TRUE(vxtest::waitFor([] { return isApplicable("Std_Delete"); }));
}

TEST_F(StandardCommands, RenameOneObjectAlone)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& a = addObject(project, "A");
    vxtest::TestObject& b = addObject(project, "B");
    select({&a});
    EXPECT_TRUE(isApplicable("Std_Rename"));
    select({&a, &b});
    EXPECT_FALSE(isApplicable("Std_Rename"));
    selection().setSelection({&project}, {&a});
    EXPECT_FALSE(isApplicable("Std_Rename"));
    selection().setSelection({&project}, {});
    EXPECT_TRUE(isApplicable("Std_Rename"));
}

TEST_F(StandardCommands, RenameInTheTreeAlsoWhenItIsHidden)
{
    select({&addObject(makeProject(), "A")});
    auto* const dock = window->findChild<QDockWidget*>(QStringLiteral("ProjectExplorer"));
    dock->hide();
    EXPECT_TRUE(run("Std_Rename"));
    EXPECT_TRUE(dock->isVisible());
    EXPECT_TRUE(vxtest::waitFor([this] { return explorer().viewport()->findChild<QLineEdit*>() != nullptr; }));
}

TEST_F(StandardCommands, DuplicatePassesOverObjectsThatAListenerDeletes)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& a = addObject(project, "A");
    vxtest::TestObject& b = addObject(project, "B");
    select({&a, &b});
    bool isFirst = true;
    const boost::signals2::scoped_connection connection = project.objectAdded.connect([&](Obj::ProjectObject&) {
        if (std::exchange(isFirst, false))
            vxMsg::MessageProxy::instance().deleteObject(project.get_name(), b.get_name_in_project());
    });
    EXPECT_TRUE(run("Std_DuplicateSelection"));
    ASSERT_THAT(project.getObjects(), SizeIs(2));
    EXPECT_THAT(selected(), ElementsAre(project.getObjects()[1]));
}

TEST_F(StandardCommands, Quit)
{
    EXPECT_TRUE(run("Std_Quit"));
    EXPECT_FALSE(window->isVisible());
}

TEST_F(StandardCommands, ShowInformationAboutTheProgram)
{
    const vxtest::MessageBoxes boxes;
    EXPECT_TRUE(run("Std_About"));
    ASSERT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_EQ(boxes.shown()[0].title, "About");
    EXPECT_TRUE(boxes.shown()[0].text.startsWith("<h3>" + QCoreApplication::applicationName()));
}

TEST_F(StandardCommands, HandTheCurrentProjectOverToTheSolver)
{
    EXPECT_FALSE(isApplicable("Std_Collect"));
    vxtest::TestProject& other = makeProject("Other");
    vxtest::TestProject& project = makeProject("Bridge");
    EXPECT_TRUE(run("Std_Collect"));
    EXPECT_EQ(project.collections, 1);
    EXPECT_EQ(other.collections, 0);
    EXPECT_EQ(lastMessage(), "\"Bridge\" was handed over to the solver.");
    EXPECT_EQ(window->statusBar()->currentMessage(), "\"Bridge\" was handed over to the solver.");
}

TEST_F(StandardCommands, HandAProjectOverWithoutAWindowToo)
{
    window.reset();
    vxtest::TestProject& project = makeProject();
    EXPECT_TRUE(run("Std_Collect"));
    EXPECT_EQ(project.collections, 1);
}

TEST_F(StandardCommands, SayThatHandingOverFailed)
{
    vxtest::TestProject& project = makeProject();
    project.collectFails = true;
    EXPECT_TRUE(run("Std_Collect"));
    EXPECT_EQ(lastMessage(), "The project \"Project\" cannot be handed over: no solver");
    EXPECT_EQ(window->statusBar()->currentMessage(), "");
}

TEST_F(StandardCommands, ClearTheMessages)
{
    Kelta::MessageLog::information(QStringLiteral("hello"));
    EXPECT_TRUE(run("Std_ClearMessages"));
    EXPECT_TRUE(Kelta::MessageLog::instance().messages().empty());
}

TEST_F(StandardCommands, ChooseOneColorForAllSelectedObjectsInOneStep)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& first = addObject(project);
    vxtest::TestObject& second = addObject(project);
    EXPECT_FALSE(isApplicable("Std_Color"));
    select({&first, &second});
    undoStack().clear();
    ASSERT_TRUE(isApplicable("Std_Color"));
    EXPECT_TRUE(run("Std_Color"));
    auto* const dialog = window->findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(QColor(0, 255, 0));
    dialog->accept();
    EXPECT_EQ(nodeOf(first).color.getValue(), (Obj::Color{0.0F, 1.0F, 0.0F, 0.0F}));
    EXPECT_EQ(nodeOf(second).color.getValue(), nodeOf(first).color.getValue());
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(nodeOf(second).color.getValue(), (Obj::Color{0.5F, 0.25F, 1.0F, 0.0F}));
}

} // namespace
