#include "History.h"

#include "UndoCommands.h"

#include "Kelta/Exceptions.h"
#include "Obj/Removal.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace vxMsg {

namespace {

using Commands = std::vector<std::unique_ptr<QUndoCommand>>;

int undoingDepth = 0;

/// While an instance lives, a step is being undone or redone.
class Undoing
{
public:
    Undoing() { ++undoingDepth; }
    Undoing(const Undoing&) = delete;
    Undoing& operator=(const Undoing&) = delete;
    ~Undoing() { --undoingDepth; }
};

/// Commands that the user undoes and redoes together.
class Step final : public QUndoCommand
{
public:
    Step(const QString& text, Commands commands) : QUndoCommand(text), m_commands(std::move(commands)) {}

    void undo() override
    {
        forEach(m_commands.rbegin(), m_commands.rend(), [](QUndoCommand& command) { command.undo(); });
    }

    void redo() override
    {
        // The stack calls redo on a pushed command, which has been carried out already.
        if (std::exchange(m_isPushed, true))
            forEach(m_commands.begin(), m_commands.end(), [](QUndoCommand& command) { command.redo(); });
    }

private:
    template <typename Iterator, typename Action>
    static void forEach(Iterator command, Iterator end, const Action& action)
    {
        // A listener may call the stack while it is running.
        if (undoingDepth > 0)
            return;
        const Undoing undoing;
        const Obj::RemovalGuard guard;
        // The stack expects no exception.
        for (; command != end; ++command)
            Kelta::guarded(QCoreApplication::translate("vxMsg", "An undo or redo failed"), [&] { action(**command); });
    }

    Commands m_commands;
    bool m_isPushed = false;
};

bool isDeletion(const std::unique_ptr<QUndoCommand>& command)
{
    const auto* const object = dynamic_cast<const ObjectCommand*>(command.get());
    return object != nullptr && object->isRemoval();
}

/// Returns the text of a step. A step that only deletes objects names its object, or the number of its objects, unless
/// the user has asked to delete one that its text names.
QString textOf(const Commands& commands, const QString& groupText)
{
    const auto isNamed = [&](const std::unique_ptr<QUndoCommand>& command) { return command->text() == groupText; };
    if (!std::all_of(commands.begin(), commands.end(), isDeletion) ||
        std::any_of(commands.begin(), commands.end(), isNamed))
        return groupText.isEmpty() ? commands.front()->text() : groupText;
    return commands.size() == 1 ? commands.front()->text()
                                : QCoreApplication::translate("vxMsg", "Delete %1 objects").arg(commands.size());
}

} // namespace

History::History()
{
    QObject::connect(&m_stack, &QUndoStack::indexChanged, [this](int index) { indexChanged(index); });
}

History::~History()
{
    m_stack.disconnect();
}

bool History::isUndoing()
{
    return undoingDepth > 0;
}

void History::beginGroup(const QString& text)
{
    if (m_groupDepth++ == 0)
        m_text = text;
}

void History::endGroup()
{
    if (--m_groupDepth > 0)
        return;
    finish();
    m_text.clear();
}

void History::record(std::unique_ptr<QUndoCommand> command)
{
    record(std::move(command), place());
}

void History::record(std::unique_ptr<QUndoCommand> command, Place place)
{
    if (isUndoing())
        return end();
    // By convention the first redo of a command that has been carried out does nothing.
    command->redo();
    const std::size_t index = std::min(place.index, m_commands.size());
    m_commands.insert(m_commands.begin() + static_cast<std::ptrdiff_t>(index), std::move(command));
    if (m_ends && place.endCount != m_endCount)
        ++m_endIndex;
    finish();
}

void History::end(Place place)
{
    m_endIndex = m_ends ? std::max(m_endIndex, place.index) : place.index;
    m_ends = true;
    ++m_endCount;
    finish();
}

void History::indexChanged(int index)
{
    if (!isUndoing()) {
        m_index = index;
        finish();
    } else if (index != m_index) {
        // A listener has moved the running stack. Steps ignore the move, and the stack must too.
        m_stack.setIndex(m_index);
    }
}

/// Updates the stack, unless a group or a step is in progress.
void History::finish()
{
    if (m_groupDepth > 0 || isUndoing())
        return;
    Commands commands = std::exchange(m_commands, {});
    if (std::exchange(m_ends, false)) {
        commands.erase(commands.begin(), commands.begin() + static_cast<std::ptrdiff_t>(m_endIndex));
        m_stack.clear();
    }
    if (commands.empty())
        return;
    const QString text = textOf(commands, m_text);
    m_stack.push(new Step(text, std::move(commands))); // takes ownership
}

} // namespace vxMsg
