#pragma once

#include "Gui/Contributions.h"

#include <QWidget>

#include <string>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace Obj {
class Project;
} // namespace Obj

namespace Gui {

class CommandController;

/// What the middle of the main window shows while no document is open: what to do next, and buttons that do it. Modules
/// contribute what they offer; without them, the page says what the host can say.
class WelcomePage : public QWidget
{
    Q_OBJECT

public:
    WelcomePage(CommandController& commands, const Contributions& contributions, QWidget* parent = nullptr);
    ~WelcomePage() override;

    /// Shows what can be done next. `project` is the current one; null if no project is open.
    void refresh(const Obj::Project* project);

private:
    void buildLayout();
    void showTexts(WelcomeStep step, const std::vector<const WelcomeEntry*>& entries);
    void showButtons(WelcomeStep step, const std::vector<const WelcomeEntry*>& entries);
    std::vector<std::string> offeredCommands(WelcomeStep step, const std::vector<const WelcomeEntry*>& entries) const;
    void replaceButtons(const std::vector<std::string>& names);
    void addButton(const std::string& commandName);

    CommandController& m_commands;
    const Contributions& m_contributions;
    QLabel* m_title;
    QLabel* m_text;
    QHBoxLayout* m_buttonRow;
    std::vector<QPushButton*> m_buttons;
};

} // namespace Gui
