#include "commands/HistoryCommands.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/MainWindow.h"
#include "commands/ChangedObjects.h"

#include <QUndoStack>

namespace Gui {

namespace {

constexpr const char* context = "StandardCommand";

/// Returns the undo stack of the document in which the user works; null if there is none.
QUndoStack* documentStack()
{
    const MainWindow* const window = MainWindow::get_main_window_inst();
    return window != nullptr ? window->documentUndoStack() : nullptr;
}

/// The unapplied edits of a document are the latest changes.
QUndoStack& stackToUndo(QUndoStack& history)
{
    QUndoStack* const document = documentStack();
    return document != nullptr && document->canUndo() ? *document : history;
}

/// While a document has unapplied edits, older changes must not be redone.
QUndoStack& stackToRedo(QUndoStack& history)
{
    QUndoStack* const document = documentStack();
    return document != nullptr && document->count() != 0 ? *document : history;
}

void undo(QUndoStack& history, TreeSelectionSingleton& selection)
{
    const ChangedObjects changed;
    MainWindow::undoStep(stackToUndo(history));
    changed.select(selection);
}

void redo(QUndoStack& history, TreeSelectionSingleton& selection)
{
    const ChangedObjects changed;
    MainWindow::redoStep(stackToRedo(history));
    changed.select(selection);
}

} // namespace

void addHistoryCommands(CommandController& commands, QUndoStack& history, TreeSelectionSingleton& selection)
{
    CommandRow undoRow{"Std_Undo",
                       QT_TRANSLATE_NOOP("StandardCommand", "&Undo"),
                       QT_TRANSLATE_NOOP("StandardCommand", "Undo the last change"),
                       "kelta_undo",
                       QKeySequence::Undo,
                       CommandType::none,
                       [&history, &selection] { undo(history, selection); },
                       [&history] { return stackToUndo(history).canUndo(); }};
    undoRow.subject = [&history] { return stackToUndo(history).undoText(); };
    CommandRow redoRow{"Std_Redo",
                       QT_TRANSLATE_NOOP("StandardCommand", "&Redo"),
                       QT_TRANSLATE_NOOP("StandardCommand", "Redo the change that was undone last"),
                       "kelta_redo",
                       Qt::CTRL + Qt::Key_Y,
                       CommandType::none,
                       [&history, &selection] { redo(history, selection); },
                       [&history] { return stackToRedo(history).canRedo(); }};
    redoRow.subject = [&history] { return stackToRedo(history).redoText(); };
    // The standard key of redoing depends on the desktop; users know both keys. The menu shows the first on every desktop,
    // as the guide does.
    redoRow.secondShortcut = Qt::CTRL + Qt::SHIFT + Qt::Key_Z;
    addCommands(commands, context, {std::move(undoRow), std::move(redoRow)});
}

} // namespace Gui
