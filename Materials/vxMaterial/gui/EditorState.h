#pragma once

#include "vxMaterial/gui/SheetRow.h"

#include <QUndoStack>
#include <json/value.h>

#include <functional>
#include <optional>
#include <set>
#include <vector>

namespace MatGui {

/// The state of a material editor that the user changes.
struct EditorState
{
    std::vector<SheetRow> rows;
    std::set<int> checked; ///< the ids of the quantities that are checked on the Build tab
    QString picked;        ///< the name of the library material of the rows, before they were edited; empty for none

    /// Compares what the user sees; the same rows may have been taken from the library or not.
    friend bool operator==(const EditorState& one, const EditorState& other)
    {
        return one.rows == other.rows && one.checked == other.checked;
    }
};

/// Returns a state as a record: {"rows": [{"id": 4, "name": ..., "value": ...}, ...], "checked": [4, ...]}, and
/// with "picked" if it is not empty.
Json::Value toJson(const EditorState& state);

/// Returns the state in a record; absent if the value is not a valid record.
std::optional<EditorState> toEditorState(const Json::Value& record);

/// A step of a material editor's undo stack.
struct EditorStep
{
    QString text;
    EditorState state; ///< after the step
};

/// The steps of a material editor's undo stack.
struct EditorSteps
{
    std::vector<EditorStep> steps;
    int done = 0; ///< the number of steps that are not undone; from 0 to the number of steps
};

/// Returns steps as a record: {"steps": [{"text": ..., "rows": ..., "checked": ...}, ...], "done": 1}.
Json::Value toJson(const EditorSteps& steps);

/// Returns the steps in a record; absent if the value is not a valid record, or if it has no steps.
std::optional<EditorSteps> toEditorSteps(const Json::Value& record);

/// The edits of a material editor that are not applied, as an undo stack.
class EditorHistory
{
public:
    /// `show` shows a state in the editor; undo and redo call it.
    explicit EditorHistory(std::function<void(const EditorState&)> show);

    QUndoStack& stack() { return m_stack; }

    /// Removes all steps and starts at `state`, which is the state of the material.
    void restart(EditorState state);

    /// Adds a step from the last state to `state`, unless they are the same.
    void note(EditorState state, const QString& text);

    EditorSteps steps() const;
    /// Adds steps at the end, and shows the state after those that are done. The user can redo the others.
    void add(const EditorSteps& added);

private:
    void push(EditorState state, const QString& text);

    std::function<void(const EditorState&)> m_show;
    EditorState m_last;
    QUndoStack m_stack;
};

} // namespace MatGui
