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

    friend bool operator==(const EditorState& one, const EditorState& other)
    {
        return one.rows == other.rows && one.checked == other.checked;
    }
};

/// Returns a state as a record: {"rows": [{"id": 4, "name": ..., "value": ...}, ...], "checked": [4, ...]}.
Json::Value toJson(const EditorState& state);

/// Returns the state in a record; absent if the value is not a valid record.
std::optional<EditorState> toEditorState(const Json::Value& record);

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

private:
    std::function<void(const EditorState&)> m_show;
    EditorState m_last;
    QUndoStack m_stack;
};

} // namespace MatGui
