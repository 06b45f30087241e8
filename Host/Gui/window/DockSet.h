#pragma once

#include "Gui/Contributions.h"

#include <cstddef>
#include <string>
#include <vector>

class QDockWidget;
class QMainWindow;

namespace Gui {

class CommandController;

/// The docking windows of a main window.
class DockSet
{
public:
    explicit DockSet(QMainWindow& window) : m_window(window) {}

    /// Makes a dock at its place in the layout of the user, or gives the dock of this name without a content, which stands
    /// in for it, its content. If the content cannot be made, no dock is made, and the reason is reported to the message
    /// log.
    void add(const DockEntry& entry);
    /// Makes the missing docks of modules, each with a command that shows and hides it.
    void addContributed(const Contributions& contributions, CommandController& commands);

    /// Returns the dock with this object name; null if there is none.
    QDockWidget* find(const std::string& name) const;
    /// Shows a dock, in front of docks at the same place. Does nothing if there is no such dock.
    void show(const std::string& name) const;
    /// Shows a hidden dock, or hides a visible dock. Does nothing if there is no such dock.
    void toggle(const std::string& name) const;
    /// Hides the docks at the right of a window that is too narrow for them and documents.
    void makeRoomForDocuments() const;
    /// Sets all titles in the language of the user.
    void retranslate() const;

    /// Returns the name of the command that shows and hides a dock of a module.
    static std::string commandOf(const std::string& dockName) { return "Dock_" + dockName; }

private:
    QMainWindow& m_window;
    std::vector<DockEntry> m_entries;
    std::size_t m_contributedCount = 0; ///< the number of docks of modules that have been made
};

} // namespace Gui
