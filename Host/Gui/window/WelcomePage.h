#pragma once

#include "Gui/Contributions.h"
#include "window/WindowOutline.h"

#include <QStringList>
#include <QWidget>

#include <string>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace Obj {
class Project;
} // namespace Obj

namespace Gui {

class CommandController;

/// The page in the middle of the main window while no document is open. It shows the next steps, with buttons, and lists
/// such as the recent files. Modules contribute entries; without them, the page shows the entries of the host.
class WelcomePage : public QWidget
{
    Q_OBJECT

public:
    WelcomePage(CommandController& commands, const Contributions& contributions, QWidget* parent = nullptr);
    ~WelcomePage() override;

    /// Shows the possible next steps. `project` is the current project; null if no project is open.
    void refresh(const Obj::Project* project);

    /// Returns the texts that the page has while no project is open.
    PageOutline outline() const;
    /// Shows these texts, and the lists of contributions, as if no project were open. Its buttons do not get the keyboard
    /// focus.
    void showOutline(const PageOutline& outline);
    /// Removes the buttons and lists that showOutline has made. The next refresh makes others.
    void removeOutline();

private:
    void buildLayout();
    PageOutline outlineOf(WelcomeStep step, const std::vector<const WelcomeEntry*>& entries) const;
    void showTexts(const PageOutline& outline);
    void showButtons(const std::vector<PageOutline::Button>& buttons);
    std::vector<std::string> offeredCommands(WelcomeStep step, const std::vector<const WelcomeEntry*>& entries) const;
    void replaceButtons(const std::vector<PageOutline::Button>& buttons);
    void addButton(const QString& commandName);
    void showLists(WelcomeStep step);
    void replaceLinks(const QString& title, const std::vector<WelcomeLink>& links);

    CommandController& m_commands;
    const Contributions& m_contributions;
    QLabel* m_title;
    QLabel* m_text;
    QHBoxLayout* m_buttonRow;
    std::vector<QPushButton*> m_buttons;
    QLabel* m_listTitle;
    QVBoxLayout* m_links;
    QStringList m_shownLinks; ///< title and texts of the links
};

} // namespace Gui
