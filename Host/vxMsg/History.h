#pragma once

#include <QString>
#include <QUndoCommand>
#include <QUndoStack>

#include <cstddef>
#include <memory>
#include <vector>

namespace vxMsg {

/// The undo stack, and the commands that have been carried out but are not on it yet, because they belong to a group that
/// has not ended.
class History
{
public:
    History();
    History(const History&) = delete;
    History& operator=(const History&) = delete;
    ~History();

    QUndoStack& stack() { return m_stack; }

    /// Whether a step is being undone or redone. Nothing can be recorded then.
    static bool isUndoing();

    /// Commands that are recorded between the two become one step. Groups may be nested; the outermost gives the text, or
    /// its first command if the text is empty.
    void beginGroup(const QString& text);
    void endGroup();
    bool isInGroup() const { return m_groupDepth > 0; }

    /// A moment in the history, behind the commands that have been recorded.
    struct Place
    {
        std::size_t index;
        std::size_t endCount; ///< how often the history has ended
    };
    Place place() const { return {m_commands.size(), m_endCount}; }
    /// Records a command that has been carried out. During an undo the history ends instead, and the command is destroyed.
    void record(std::unique_ptr<QUndoCommand> command);
    /// Records a command that was carried out at `place`, in front of the commands that have been recorded since.
    void record(std::unique_ptr<QUndoCommand> command, Place place);

    /// Forgets all that was carried out before the present, or before `place`: it cannot be undone any more.
    void end() { end(place()); }
    void end(Place place);

private:
    void indexChanged(int index);
    void finish();

    QUndoStack m_stack;
    int m_index = 0; ///< that of the stack while no step is at work
    std::vector<std::unique_ptr<QUndoCommand>> m_commands;
    QString m_text;
    int m_groupDepth = 0;
    bool m_ends = false;        ///< the history has ended, and the stack is not up to date
    std::size_t m_endIndex = 0; ///< commands in front of it are forgotten if so
    std::size_t m_endCount = 0;
};

} // namespace vxMsg
