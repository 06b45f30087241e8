#pragma once

#include <QString>
#include <QUndoCommand>
#include <QUndoStack>

#include <cstddef>
#include <memory>
#include <vector>

namespace vxMsg {

/// The undo stack, and the commands that have been carried out but are not on it yet, because they belong to a group
/// that has not ended.
class History
{
public:
    History();
    History(const History&) = delete;
    History& operator=(const History&) = delete;
    ~History();

    QUndoStack& stack() { return m_stack; }

    /// Returns whether a step is being undone or redone. Nothing can be recorded then.
    static bool isUndoing();

    /// Begin and end a group: its commands become one step. Groups may be nested. The outermost group provides the
    /// text, or its first command if the text is empty; a group that only deletes objects gets a text of its own, which
    /// names the object or the number of objects.
    void beginGroup(const QString& text);
    void endGroup();
    /// Makes the first command provide the text of the open group. Does nothing without a group.
    void nameGroupByItsFirstCommand() { m_text.clear(); }
    bool isInGroup() const { return m_groupDepth > 0; }

    /// A position in the history, after the commands that have been recorded.
    struct Place
    {
        std::size_t index;
        std::size_t endCount; ///< the number of times that the history has ended
    };
    Place place() const { return {m_commands.size(), m_endCount}; }
    /// Records a command that has been carried out. During an undo, ends the history and destroys the command instead.
    void record(std::unique_ptr<QUndoCommand> command);
    /// Records a command that was carried out at `place`, before the commands that have been recorded since.
    void record(std::unique_ptr<QUndoCommand> command, Place place);

    /// Forgets all changes before the present, or before `place`: they cannot be undone any more.
    void end() { end(place()); }
    void end(Place place);

private:
    void indexChanged(int index);
    void finish();

    QUndoStack m_stack;
    int m_index = 0; ///< that of the stack while no step is running
    std::vector<std::unique_ptr<QUndoCommand>> m_commands;
    QString m_text;
    int m_groupDepth = 0;
    bool m_ends = false;        ///< the history has ended, and the stack is not updated yet
    std::size_t m_endIndex = 0; ///< if m_ends, commands before it are forgotten
    std::size_t m_endCount = 0;
};

} // namespace vxMsg
