#include "Gui/CommandController.h"

#include "Kelta/MessageLog.h"

#include <utility>

namespace Gui {

CommandController::CommandController() = default;

CommandController::~CommandController() = default;

void CommandController::new_command(Command* command)
{
    std::unique_ptr<Command> owned(command);
    if (owned == nullptr || findCommand(owned->getName()) != nullptr)
        return;
    m_order.push_back(owned.get());
    std::string name = owned->getName();
    m_commands.emplace(std::move(name), std::move(owned));
}

Command* CommandController::findCommand(std::string_view name) const
{
    const auto found = m_commands.find(name);
    return found != m_commands.end() ? found->second.get() : nullptr;
}

bool CommandController::runCommand(std::string_view name)
{
    if (Command* const command = findCommand(name))
        return command->invoke();
    Kelta::MessageLog::error(QCoreApplication::translate("Gui::Command", "There is no command \"%1\".")
                                 .arg(QString::fromUtf8(name.data(), static_cast<int>(name.size()))));
    return false;
}

bool CommandController::addGuard(std::string_view name, CommandGuard guard)
{
    Command* const command = findCommand(name);
    if (command == nullptr)
        return false;
    command->addGuard(std::move(guard));
    return true;
}

bool CommandController::addCondition(std::string_view name, std::function<bool()> condition)
{
    Command* const command = findCommand(name);
    if (command == nullptr)
        return false;
    command->addCondition(std::move(condition));
    return true;
}

void CommandController::updateActions()
{
    for (Command* const command : m_order)
        command->updateAction();
}

void CommandController::on_language_changed()
{
    for (Command* const command : m_order)
        command->on_language_changed();
}

} // namespace Gui
