#include "EditorTesting.h"
#include "MessageBoxes.h"

#include <QAction>
#include <QLineEdit>
#include <QStatusBar>
#include <QUndoStack>
#include <QtTest/QtTestGui>
#include <gmock/gmock.h>

#include <set>

namespace {

using testing::IsEmpty;
using vxtest::Editor;

/// The material in the editor: the cells of the table, and the names of the checked quantities.
struct Shown
{
    QStringList cells;
    std::set<QString> checked;
    friend bool operator==(const Shown& one, const Shown& other)
    {
        return one.cells == other.cells && one.checked == other.checked;
    }
};

Shown shown(const Editor& editor)
{
    Shown now;
    for (int row = 0; row < editor.rowCount(); ++row)
        for (int column = 0; column < 6; ++column)
            now.cells << editor.cell(row, column);
    for (const QListWidget* const list : editor.view()->findChildren<QListWidget*>())
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->checkState() == Qt::Checked)
                now.checked.insert(list->item(row)->text());
    return now;
}

/// Presses a key in the widget with the keyboard focus.
void press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
}

void pressUndo()
{
    press(Qt::Key_Z, Qt::ControlModifier);
}

TEST(MaterialViewUndo, UndoesAndRedoesEachKindOfEdit)
{
    const std::vector<std::function<void(Editor&)>> edits{
        [](Editor& editor) { editor.typeValue(5, "7.1e10"); },
        [](Editor& editor) { editor.tickByMouse(editor.item("Dynamic viscosity")); },
        [](Editor& editor) { editor.tickByMouse(editor.item("Poisson's ratio")); },
        [](Editor& editor) { editor.doubleClick(editor.item("Plastic Example 1")); },
        [](Editor& editor) { editor.doubleClick(editor.item("Acoustic Material 2")); },
        [](Editor& editor) { editor.click("btnClear"); },
    };
    for (const auto& edit : edits) {
        Editor editor;
        const Shown before = shown(editor);
        edit(editor);
        const Shown after = shown(editor);
        ASSERT_FALSE(before == after);
        EXPECT_TRUE(editor.view()->isWindowModified());
        editor.table().setFocus();
        pressUndo();
        EXPECT_EQ(shown(editor).cells, before.cells);
        EXPECT_EQ(shown(editor).checked, before.checked);
        EXPECT_FALSE(editor.view()->isWindowModified());
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(shown(editor).cells, after.cells);
        EXPECT_EQ(shown(editor).checked, after.checked);
        EXPECT_TRUE(editor.view()->isWindowModified());
    }
}

TEST(MaterialViewUndo, UndoesManyEditsOneByOne)
{
    Editor editor;
    std::vector<Shown> states{shown(editor)};
    editor.typeValue(4, "2700");
    states.push_back(shown(editor));
    editor.doubleClick(editor.item("Water"));
    states.push_back(shown(editor));
    editor.tickByMouse(editor.item("Dynamic viscosity"));
    states.push_back(shown(editor));
    editor.click("btnClear");
    for (auto state = states.rbegin(); state != states.rend(); ++state) {
        pressUndo();
        EXPECT_TRUE(shown(editor) == *state);
    }
    for (std::size_t step = 1; step < states.size(); ++step) {
        press(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_TRUE(shown(editor) == states[step]);
    }
}

TEST(MaterialViewUndo, NamesTheStepInTheStatusBar)
{
    Editor editor;
    const QStatusBar& status = *Gui::MainWindow::get_main_window_inst()->statusBar();
    editor.typeValue(4, "2700");
    pressUndo();
    EXPECT_EQ(status.currentMessage(), "Undone: Change value");
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(status.currentMessage(), "Redone: Change value");
}

TEST(MaterialViewUndo, IsReachedFromListsTableAndButtons)
{
    for (const char* const widget : {"tableView", "lw_lib_general", "btnOk", "tabWidget"}) {
        Editor editor;
        editor.typeValue(4, "2700");
        editor.view()->findChild<QWidget*>(widget)->setFocus();
        pressUndo();
        EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "7850") << widget;
    }
}

/// Counts the undo and redo calls of the host.
class HostHistory
{
public:
    HostHistory()
    {
        m_undo.setShortcut(QKeySequence::Undo);
        m_redo.setShortcut(QKeySequence::Redo);
        for (QAction* const action : {&m_undo, &m_redo}) {
            QObject::connect(action, &QAction::triggered, [this] { ++count; });
            Gui::MainWindow::get_main_window_inst()->addAction(action);
        }
    }
    int count = 0;

private:
    QAction m_undo;
    QAction m_redo;
};

TEST(MaterialViewUndo, LeavesTheKeyToTheHostOnlyWithoutEdits)
{
    Editor editor;
    HostHistory host;
    editor.table().setFocus();
    pressUndo();
    EXPECT_EQ(host.count, 1);
    editor.typeValue(4, "2700");
    editor.typeValue(4, "2800");
    pressUndo();
    pressUndo();
    EXPECT_EQ(host.count, 1);
    EXPECT_FALSE(editor.view()->isWindowModified());
    // The editor can redo the undone step, so the host must not redo another step.
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(host.count, 1);
    EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "2700");
}

TEST(MaterialViewUndo, DoesNothingInAModifiedEditorWithoutStepsToUndo)
{
    Editor editor;
    HostHistory host;
    // The application marks the window. It may mark the window because of changes outside of it.
    editor.view()->setWindowModified(true);
    const Shown before = shown(editor);
    editor.table().setFocus();
    pressUndo();
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(host.count, 0);
    EXPECT_TRUE(shown(editor) == before);
}

TEST(MaterialViewUndo, DoesNotGoOnToTheHostWhileTheKeyIsHeldDown)
{
    Editor editor;
    HostHistory host;
    editor.typeValue(4, "2700");
    editor.table().setFocus();
    pressUndo();
    for (int repeat = 0; repeat < 3; ++repeat) {
        QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier, QString(), true);
        override.ignore();
        QCoreApplication::sendEvent(&editor.table(), &override);
        EXPECT_TRUE(override.isAccepted());
    }
    EXPECT_EQ(host.count, 0);
}

TEST(MaterialViewUndo, StartsAgainAfterApply)
{
    Editor editor;
    HostHistory host;
    editor.typeValue(4, "2700");
    editor.click("btnApply");
    editor.table().setFocus();
    pressUndo();
    EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "2700");
    EXPECT_EQ(host.count, 1);
}

TEST(MaterialViewUndo, LeavesTheMaterialUnchanged)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    editor.typeValue(4, "2700");
    pressUndo();
    pressUndo();
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(vxtest::contents(editor.material()), before);
}

TEST(MaterialViewUndo, MakesTheRowThatItChangesTheCurrentOne)
{
    Editor editor;
    editor.typeValue(303, "2");
    editor.table().setCurrentIndex(editor.table().model()->index(0, 2));
    pressUndo();
    EXPECT_EQ(editor.table().currentIndex().row(), editor.rowOf(303));
    EXPECT_EQ(editor.table().currentIndex().column(), 2);
}

TEST(MaterialViewUndo, MakesNoStepOfAnEditThatChangesNothing)
{
    Editor editor;
    editor.typeValue(4, "7850");
    EXPECT_FALSE(editor.view()->isWindowModified());
    editor.tickByMouse(editor.item("Creep"));
    editor.tickByMouse(editor.item("Creep"));
    ASSERT_NE(editor.view()->getUndoStack(), nullptr);
    EXPECT_EQ(editor.view()->getUndoStack()->count(), 2);
    editor.doubleClick(editor.item("Structural Steel"));
    EXPECT_EQ(editor.view()->getUndoStack()->count(), 2);
}

TEST(MaterialViewUndo, NamesItsSteps)
{
    Editor editor;
    QUndoStack* const stack = editor.view()->getUndoStack();
    ASSERT_NE(stack, nullptr);
    editor.typeValue(4, "2700");
    EXPECT_EQ(stack->undoText(), "Change value");
    editor.tickByMouse(editor.item("Creep"));
    EXPECT_EQ(stack->undoText(), "Add property");
    editor.tickByMouse(editor.item("Creep"));
    EXPECT_EQ(stack->undoText(), "Remove property");
    editor.doubleClick(editor.item("Water"));
    EXPECT_EQ(stack->undoText(), "Take library material");
    editor.click("btnClear");
    EXPECT_EQ(stack->undoText(), "Clear");
}

} // namespace
