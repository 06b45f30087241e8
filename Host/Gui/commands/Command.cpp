#include "Gui/Command.h"

#include "Gui/MainWindow.h"
#include "Gui/PictureFactory.h"
#include "Gui/WindowTitle.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QAction>
#include <QIcon>
#include <QRegularExpression>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace Gui {

namespace {

QString joined(const QString& text, const QString& subject)
{
    return subject.isEmpty() ? text : QCoreApplication::translate("Gui::Command", "%1: %2").arg(text, subject);
}

/// Returns the name of a command in sentences and in the history: the text of its entry without the mnemonic, which some
/// languages add in brackets, and without the dots that announce a dialog.
QString nameOf(QString menuText)
{
    static const QRegularExpression marks(QStringLiteral(R"(\(&\w\)|\s*(\.\.\.|\x{2026})$)"));
    return withoutMnemonics(menuText.remove(marks));
}

} // namespace

CommandBase::~CommandBase()
{
    delete m_action;
}

QAction* CommandBase::new_action(QObject* parent)
{
    m_action = new QAction(parent);
    if (*get_pixmap() != '\0')
        m_action->setIcon(PictureFactory::getIcon(QString::fromUtf8(get_pixmap())));
    m_action->setShortcuts(secondShortcut.isEmpty() ? QList<QKeySequence>{get_shortcut()}
                                                    : QList<QKeySequence>{get_shortcut(), secondShortcut});
    on_language_changed();
    return m_action;
}

void CommandBase::on_language_changed()
{
    if (m_action == nullptr)
        return;
    showTexts();
    m_action->setWhatsThis(translated(whatsThis));
}

void CommandBase::showTexts()
{
    const QString now = subject ? subject() : QString();
    // Behind a single "&", a letter would become the key of the entry.
    m_action->setText(joined(get_menu_info(), escapedForMnemonics(now)));
    m_action->setToolTip(escapedForToolTip(joined(get_tooltip_info(), now)));
    m_action->setStatusTip(joined(get_statustip(), now));
}

void CommandBase::updateAction()
{
    if (m_action == nullptr)
        return;
    m_action->setEnabled(canRun());
    m_action->setCheckable(static_cast<bool>(isChecked));
    m_action->setChecked(isChecked && isChecked());
    if (subject)
        showTexts();
}

const char* CommandBase::getClassName() const
{
    return "CommandBase";
}

QString CommandBase::get_menu_info() const
{
    return translated(menuText);
}

QString CommandBase::get_tooltip_info() const
{
    return translated(toolTip);
}

QString CommandBase::get_statustip() const
{
    return translated(statusTip);
}

const char* CommandBase::get_pixmap() const
{
    return pixmap;
}

QKeySequence CommandBase::get_shortcut() const
{
    return shortcut;
}

void CommandBase::setShortcut(const QKeySequence& key)
{
    shortcut = key;
    if (m_action != nullptr)
        m_action->setShortcut(get_shortcut());
}

bool CommandBase::is_applicable()
{
    return true;
}

Command::~Command() = default;

bool CommandBase::canRun()
{
    return is_applicable() &&
           std::all_of(m_conditions.begin(), m_conditions.end(), [](const auto& condition) { return condition(); });
}

QAction* Command::new_action(QObject* parent)
{
    QAction* const action = CommandBase::new_action(parent);
    action->setObjectName(QString::fromStdString(m_name));
    QObject::connect(action, &QAction::triggered, action, [this] { invoke(); });
    return action;
}

bool Command::invoke(int index)
{
    if (MainWindow* const window = MainWindow::get_main_window_inst()) {
        window->finishEditing();
        // The result of an earlier command is not the result of this one.
        window->statusBar()->clearMessage();
    }
    const QString name = nameOf(get_menu_info());
    bool done = false;
    Kelta::guarded(QCoreApplication::translate("Gui::Command", "The command \"%1\" failed").arg(name), [&] {
        if (!canRun())
            return;
        const vxMsg::MessageProxy::Group oneStep(name);
        runThroughGuards(index);
        done = true;
    });
    return done;
}

void Command::runThroughGuards(int index)
{
    std::function<void()> run = [this, index] { activated(index); };
    for (const CommandGuard& guard : m_guards)
        run = [&guard, guarded = std::move(run)] { guard(guarded); };
    run();
}

std::string Command::get_unique_object_name(const char* stem)
{
    Obj::Project* const project = Obj::Application::get_current_project();
    return project != nullptr ? project->get_unique_object_name(stem) : std::string();
}

QKeySequence Command::get_shortcut_from_keys(QKeySequence::StandardKey key)
{
    return QKeySequence(key);
}

} // namespace Gui
