#pragma once

#include "Gui/GuiExport.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QPointer>
#include <QString>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Gui {

/// Flags of commands; a command may have several.
struct CommandType
{
    static constexpr int none = 0;
    /// The command acts on the selection in the project tree. Its shortcut works only while the tree has the keyboard
    /// focus. If several such commands have the same shortcut, it runs the command that was registered first.
    static constexpr int onTree = 8;
};

/// The texts and picture of a command in menus and toolbars. Derived classes set the fields in their constructors.
/// Texts are English; menus and toolbars translate them in the context of the class name.
class GUI_EXPORT CommandBase
{
public:
    CommandBase() = default;
    CommandBase(const CommandBase&) = delete;
    CommandBase& operator=(const CommandBase&) = delete;
    virtual ~CommandBase();

    /// Makes the action that menus and toolbars share. The parent owns it.
    virtual QAction* new_action(QObject* parent);
    /// Sets the texts of the action in the language of the user.
    virtual void on_language_changed();
    virtual const char* getClassName() const;
    virtual QString get_menu_info() const;    ///< translated menu text
    virtual QString get_tooltip_info() const; ///< translated tool tip
    virtual QString get_statustip() const;    ///< translated status tip
    virtual const char* get_pixmap() const;   ///< name for the picture factory; empty for none
    virtual QKeySequence get_shortcut() const;
    /// Gives the command another key, such as a key that a program adds to the command of a module.
    void setShortcut(const QKeySequence& key);
    /// Carries the command out. `index` is the chosen entry of a command that has several.
    virtual void activated(int index) = 0;
    /// Returns whether the command is applicable now.
    virtual bool is_applicable();

    /// Returns whether the command can be run now: it is applicable, and all added conditions are true.
    bool canRun();
    /// Adds a condition of the application around the command.
    void addCondition(std::function<bool()> condition) { m_conditions.push_back(std::move(condition)); }

    /// Returns the action; null before new_action, and after its parent was destroyed.
    QAction* action() const { return m_action; }
    /// Enables the action if the command is applicable now, sets its check mark, and shows what the command acts on. Does
    /// nothing without an action.
    void updateAction();
    int getTypeFlags() const { return typeFlags; }

protected:
    QString translated(const char* text) const { return QCoreApplication::translate(getClassName(), text); }

    const char* menuText = "";
    const char* toolTip = "";
    const char* statusTip = "";
    const char* whatsThis = "";
    const char* pixmap = "";
    const char* module = "";
    const char* group = "Standard";
    QKeySequence shortcut;
    QKeySequence secondShortcut; ///< runs the command too; menus show the first one
    int typeFlags = CommandType::none;
    /// Returns whether the entry of the command has a check mark now. An entry without this function never has one.
    std::function<bool()> isChecked;
    /// Returns what the command acts on now, in the language of the user; the texts of the action show it. A command
    /// without this function, or for which it returns an empty text, shows its own texts alone.
    std::function<QString()> subject;

private:
    void showTexts();

    QPointer<QAction> m_action;
    std::vector<std::function<bool()>> m_conditions;
};

/// Runs in place of a command. It calls `run` to run the command, or does not call it. It may ask the user before and
/// show a result afterwards.
using CommandGuard = std::function<void(const std::function<void()>& run)>;

/// A command, identified by its name. The command manager owns it.
class GUI_EXPORT Command : public CommandBase
{
public:
    explicit Command(const char* name) : m_name(name) {}
    ~Command() override;

    const std::string& getName() const { return m_name; }
    QAction* new_action(QObject* parent) override;

    /// Ends all edits in progress (MainWindow::finishEditing), and then runs the command, through its guards, if it is
    /// applicable. All requests of the command and its guards are undone in one step. Throws nothing: an exception is
    /// reported to the message log. Returns true if the command and its guards finished without an exception, also if a
    /// guard did not run the command.
    bool invoke(int index = 0);

    /// Adds a guard of the command. The guard that was added last is called first.
    void addGuard(CommandGuard guard) { m_guards.push_back(std::move(guard)); }

    /// Returns a name that no object of the current project has or had; an empty text if there is no project.
    static std::string get_unique_object_name(const char* stem);
    static QKeySequence get_shortcut_from_keys(QKeySequence::StandardKey key);

private:
    void runThroughGuards(int index);

    std::string m_name;
    std::vector<CommandGuard> m_guards;
};

} // namespace Gui
