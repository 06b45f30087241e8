#pragma once

#include "Gui/GuiExport.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace Gui {

class PreferencesPage;
class TreeFilter;

/// A text that is translated when it is shown, and so follows the language of the user. Both strings must outlive
/// the windows, as literals do: {"Probes", QT_TRANSLATE_NOOP("Probes", "No probe is open")}.
struct TranslatableText
{
    const char* context = "";
    const char* source = ""; ///< the English text

    QString translated() const;

    friend bool operator==(const TranslatableText& a, const TranslatableText& b)
    {
        return std::string(a.context) == b.context && std::string(a.source) == b.source;
    }
};

/// A command in a menu or toolbar.
struct CommandPlace
{
    std::string group;   ///< text of the menu, or name of the toolbar, as in the trees of workbenches: "&File", "Edit"
    std::string section; ///< section of the menu or toolbar
    std::string command; ///< name of the command
    /// Registered class of a workbench, if the command is shown only while that workbench or one derived from it is
    /// active; empty for all workbenches.
    std::string workbench = {};

    friend bool operator==(const CommandPlace& a, const CommandPlace& b)
    {
        return a.group == b.group && a.section == b.section && a.command == b.command && a.workbench == b.workbench;
    }
};

/// The situations in which the welcome page is shown.
enum class WelcomeStep
{
    NoProject,    ///< no project is open
    EmptyProject, ///< the current project has no objects
    NoDocument,   ///< the current project has objects, but no document is open
};

/// The texts and commands of the welcome page for one step.
struct WelcomeEntry
{
    WelcomeStep step;
    /// Registered class of the current project, if the entry is limited to that class and its derived classes; empty
    /// for all. Ignored at the step NoProject.
    std::string projectClass;
    TranslatableText title;            ///< plain text
    TranslatableText text;             ///< plain text
    std::vector<std::string> commands; ///< each gets a button if it exists
    /// Returns whether the buttons of `commands` are enabled now; always if empty. For commands that are applicable but
    /// do nothing without a selection.
    std::function<bool()> canRun = {};
};

/// An entry of a list on the welcome page: a button with a text.
struct WelcomeLink
{
    QString text;
    QString toolTip;
    std::function<void()> open;
};

/// A list on the welcome page for one step, such as the recent files, below the buttons.
struct WelcomeList
{
    WelcomeStep step;
    TranslatableText title;
    /// Returns the entries of the list now; without entries the list is not shown.
    std::function<std::vector<WelcomeLink>()> entries;
};

/// The initial place of a dock. Later the layout of the user decides.
enum class DockArea
{
    Left,
    Right,
    Bottom,
};

enum class DockVisibility
{
    ShownAtFirst,
    HiddenAtFirst,
};

/// A docking window. "View" offers to show and hide it; workbenches can request it by its name.
struct DockEntry
{
    std::string name; ///< the dock's object name, which identifies its place in the layout; unique
    TranslatableText title;
    DockArea area;
    /// Makes the content. Called once for each main window; the dock owns the result.
    std::function<QWidget*()> make;
    DockVisibility visibility = DockVisibility::ShownAtFirst;
};

/// A page of the preferences dialog ("Edit > Preferences").
struct PreferencesEntry
{
    std::string name; ///< unique
    TranslatableText title;
    /// Makes the page. Called each time the dialog opens; the dialog owns the result.
    std::function<PreferencesPage*()> make;
};

/// A workbench of a module. If there are several, "View" contains a switch between them.
struct WorkbenchEntry
{
    std::string className; ///< registered class, derived from Gui::StdSimModule
    TranslatableText title;
    /// Registered class of projects. The workbench is chosen if such a project becomes the current project; also for
    /// derived classes. Empty for none.
    std::string projectClass;
};

/// Additions of modules to the window besides those of their workbenches: commands in menus and toolbars, entries of
/// the welcome page, text in the About box, docking windows, pages of the preferences, and the workbenches. The
/// application has one set of contributions. The main window shows them, and shows later additions when the event loop is next idle.
///
/// An entry that exists already is ignored. Entries are shown in the order of their registration. Their functions must
/// be callable as long as the application lives.
///
///     Gui::Contributions& contributions = Gui::GuiApplication::Instance->contributions();
///     contributions.addToMenu("&Project", "Add", "Probe_Add");
class GUI_EXPORT Contributions : public QObject
{
    Q_OBJECT

public:
    Contributions();
    ~Contributions() override;

    /// Adds a command at the end of a section of a menu. A missing menu is made in front of "&Windows". A missing
    /// section is made at the end of the menu, after a line. Texts of menus are translated in the
    /// context "Workbench".
    void addToMenu(const char* menu, const char* section, const char* command, const char* workbench = "");
    /// Adds a command at the end of a section of a toolbar. A missing toolbar is made after the existing ones.
    void addToToolBar(const char* bar, const char* section, const char* command, const char* workbench = "");
    /// Adds a command to the context menu of the empty area of the project explorer.
    void addToTreeMenu(const char* command);
    /// Adds an entry to the welcome page. The page offers the commands of all entries for a step. If the entries have
    /// different titles, the page shows its own title.
    void addWelcomeEntry(WelcomeEntry entry);
    void addWelcomeList(WelcomeList list);
    /// Adds a paragraph, as rich text, to the About box.
    void addAboutText(TranslatableText text);
    void addDock(DockEntry entry);
    void addPreferencesPage(PreferencesEntry entry);
    void addWorkbench(WorkbenchEntry entry);
    /// Gives the field above the project tree its meaning. Replaces the filter of another module.
    void setTreeFilter(std::unique_ptr<TreeFilter> filter);

    const std::vector<CommandPlace>& menuPlaces() const { return m_menuPlaces; }
    const std::vector<CommandPlace>& toolBarPlaces() const { return m_toolBarPlaces; }
    const std::vector<std::string>& treeMenu() const { return m_treeMenu; }
    const std::vector<WelcomeEntry>& welcomeEntries() const { return m_welcomeEntries; }
    const std::vector<WelcomeList>& welcomeLists() const { return m_welcomeLists; }
    const std::vector<TranslatableText>& aboutTexts() const { return m_aboutTexts; }
    const std::vector<DockEntry>& docks() const { return m_docks; }
    const std::vector<PreferencesEntry>& preferencesPages() const { return m_preferencesPages; }
    const std::vector<WorkbenchEntry>& workbenches() const { return m_workbenches; }
    /// Returns the filter of the project tree; null if no module has registered one.
    TreeFilter* treeFilter() const { return m_treeFilter.get(); }

Q_SIGNALS:
    /// Sent after an addition.
    void changed();

private:
    template <typename Entry, typename IsSame>
    void add(std::vector<Entry>& entries, Entry entry, const IsSame& isSame);

    std::vector<CommandPlace> m_menuPlaces;
    std::vector<CommandPlace> m_toolBarPlaces;
    std::vector<std::string> m_treeMenu;
    std::vector<WelcomeEntry> m_welcomeEntries;
    std::vector<WelcomeList> m_welcomeLists;
    std::vector<TranslatableText> m_aboutTexts;
    std::vector<DockEntry> m_docks;
    std::vector<PreferencesEntry> m_preferencesPages;
    std::vector<WorkbenchEntry> m_workbenches;
    std::unique_ptr<TreeFilter> m_treeFilter;
};

} // namespace Gui
