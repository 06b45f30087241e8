#pragma once

#include "Gui/Command.h"
#include "Gui/GuiExport.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Gui {

/// All commands of the host and of modules, by their names. The controller owns them.
class GUI_EXPORT CommandController
{
public:
    CommandController();
    CommandController(const CommandController&) = delete;
    CommandController& operator=(const CommandController&) = delete;
    ~CommandController();

    /// Takes ownership of `command`; null is ignored. If the name is taken, keeps the earlier command, and `command` is
    /// destroyed.
    void new_command(Command* command);

    /// Returns the command with this name; null if there is none. The controller owns the command.
    Command* findCommand(std::string_view name) const;
    /// Runs a command as Command::invoke does. If there is no command with this name, reports that to the message log
    /// and returns false.
    bool runCommand(std::string_view name);
    /// Adds a guard of a command, as Command::addGuard does. Returns false if there is no command with this name.
    bool addGuard(std::string_view name, CommandGuard guard);
    /// Adds a condition of a command, as Command::addCondition does. Returns false if there is no command with this name.
    bool addCondition(std::string_view name, std::function<bool()> condition);
    /// Returns all commands in the order of their registration.
    const std::vector<Command*>& getCommands() const { return m_order; }

    /// Updates the actions of all commands: enables the applicable commands, and sets the check marks.
    void updateActions();
    /// Sets the texts of all actions in the language of the user.
    void on_language_changed();

private:
    std::map<std::string, std::unique_ptr<Command>, std::less<>> m_commands;
    std::vector<Command*> m_order;
};

} // namespace Gui
