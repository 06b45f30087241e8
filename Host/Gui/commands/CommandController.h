#pragma once

#include "Gui/Command.h"
#include "Gui/GuiExport.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Gui {

/// All commands of the program, host's and modules', by their names. It owns them.
class GUI_EXPORT CommandController
{
public:
    CommandController();
    CommandController(const CommandController&) = delete;
    CommandController& operator=(const CommandController&) = delete;
    ~CommandController();

    /// Takes ownership of `command`; null is ignored. A command whose name is taken is destroyed: the first one stays.
    void new_command(Command* command);

    /// Null when there is none; the controller keeps what it answers.
    Command* find_command(std::string_view name) const;
    /// Runs a command as Command::invoke does; false also when there is none of this name, which is reported.
    bool run_command(std::string_view name);
    /// In the order in which they came.
    const std::vector<Command*>& get_commands() const { return m_order; }

    /// Enables the actions of the commands that are applicable now, and disables the others.
    void update_actions();
    void on_language_changed();

private:
    std::map<std::string, std::unique_ptr<Command>, std::less<>> m_commands;
    std::vector<Command*> m_order;
};

} // namespace Gui
