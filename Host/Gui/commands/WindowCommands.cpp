#include "commands/WindowCommands.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/Contributions.h"
#include "Gui/MainWindow.h"
#include "Gui/MessageLogView.h"
#include "Gui/Translator.h"
#include "application/LanguageChoice.h"
#include "preferences/PreferencesDialog.h"

#include <QActionGroup>
#include <QMenu>
#include <QMessageBox>
#include <QToolBar>

namespace Gui {

namespace {

constexpr const char* context = "StandardCommand";

MainWindow* mainWindow()
{
    return MainWindow::get_main_window_inst();
}

bool hasWindow()
{
    return mainWindow() != nullptr;
}

bool hasDocuments()
{
    return hasWindow() && mainWindow()->get_active_mdi_window() != nullptr;
}

bool isShown(const char* dock)
{
    return hasWindow() && mainWindow()->isDockShown(dock);
}

QList<QToolBar*> toolBars()
{
    return mainWindow()->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
}

void listToolBars(QMenu& menu)
{
    for (const QToolBar* const bar : toolBars())
        menu.addAction(bar->toggleViewAction());
}

void showAllToolBars()
{
    for (QToolBar* const bar : toolBars())
        bar->show();
}

void showAbout()
{
    QString text = QStringLiteral("<h3>%1 %2</h3>")
                       .arg(QCoreApplication::applicationName().toHtmlEscaped(),
                            QCoreApplication::applicationVersion().toHtmlEscaped());
    for (const TranslatableText& paragraph : mainWindow()->contributions().aboutTexts())
        text += QStringLiteral("<p>%1</p>").arg(paragraph.translated());
    QMessageBox::about(mainWindow(), QCoreApplication::translate(context, "About"), text);
}

std::vector<CommandRow> dockRows()
{
    return {
        {"Std_ProjectExplorer",
         QT_TRANSLATE_NOOP("StandardCommand", "&Project explorer"),
         QT_TRANSLATE_NOOP("StandardCommand", "Show or hide the project explorer"),
         "",
         {},
         CommandType::none,
         [] { mainWindow()->toggleDock("ProjectExplorer"); },
         hasWindow,
         [] { return isShown("ProjectExplorer"); }},
        {"Std_PropertyPanel",
         QT_TRANSLATE_NOOP("StandardCommand", "P&roperties"),
         QT_TRANSLATE_NOOP("StandardCommand", "Show or hide the properties"),
         "",
         {},
         CommandType::none,
         [] { mainWindow()->toggleDock("PropertyPanel"); },
         hasWindow,
         [] { return isShown("PropertyPanel"); }},
        {"Std_MessageLog",
         QT_TRANSLATE_NOOP("StandardCommand", "&Messages"),
         QT_TRANSLATE_NOOP("StandardCommand", "Show or hide the messages"),
         "",
         {},
         CommandType::none,
         [] { mainWindow()->toggleDock("MessageLog"); },
         hasWindow,
         [] { return isShown("MessageLog"); }},
        {"Std_ClearMessages",
         QT_TRANSLATE_NOOP("StandardCommand", "C&lear messages"),
         QT_TRANSLATE_NOOP("StandardCommand", "Empty the message log"),
         "kelta_clear",
         {},
         CommandType::none,
         [] { mainWindow()->getMessageLog().clearMessages(); },
         hasWindow},
    };
}

std::vector<CommandRow> paneRows()
{
    return {
        {"Std_ToolBars",
         QT_TRANSLATE_NOOP("StandardCommand", "&Toolbars"),
         QT_TRANSLATE_NOOP("StandardCommand", "Show or hide toolbars"),
         "",
         {},
         CommandType::none,
         showAllToolBars,
         hasWindow,
         {},
         listToolBars},
        {"Std_NextPane", QT_TRANSLATE_NOOP("StandardCommand", "&Next pane"),
         QT_TRANSLATE_NOOP("StandardCommand", "Move the keyboard focus to the next part of the window"), "", Qt::Key_F6,
         CommandType::none, [] { mainWindow()->focusNextPane(); }, hasWindow},
        {"Std_PreviousPane", QT_TRANSLATE_NOOP("StandardCommand", "Pre&vious pane"),
         QT_TRANSLATE_NOOP("StandardCommand", "Move the keyboard focus to the previous part of the window"), "",
         Qt::SHIFT + Qt::Key_F6, CommandType::none, [] { mainWindow()->focusPreviousPane(); }, hasWindow},
    };
}

void listLanguages(QMenu& menu)
{
    auto* const group = new QActionGroup(&menu);
    const QString chosen = Translator::chosenLanguage();
    const auto add = [&](const LanguageChoice& choice) {
        QAction* const action = group->addAction(choice.title);
        action->setCheckable(true);
        action->setChecked(choice.language == chosen);
        menu.addAction(action);
        QObject::connect(action, &QAction::triggered,
                         [language = choice.language] { Translator::instance()->chooseLanguage(language); });
    };
    for (const LanguageChoice& choice : languageChoices()) {
        add(choice);
        if (choice.language.isEmpty())
            menu.addSeparator();
    }
}

std::vector<CommandRow> languageRows()
{
    return {
        {"Std_Language",
         QT_TRANSLATE_NOOP("StandardCommand", "Lan&guage"),
         QT_TRANSLATE_NOOP("StandardCommand", "Choose the language of the program"),
         "",
         {},
         CommandType::none,
         [] { Translator::instance()->chooseLanguage({}); },
         hasWindow,
         {},
         listLanguages},
    };
}

std::vector<CommandRow> documentRows()
{
    return {
        {"Std_TileWindows",
         QT_TRANSLATE_NOOP("StandardCommand", "&Tile"),
         QT_TRANSLATE_NOOP("StandardCommand", "Show all document windows side by side"),
         "",
         {},
         CommandType::none,
         [] { mainWindow()->tileWindows(); },
         hasDocuments},
        {"Std_CascadeWindows",
         QT_TRANSLATE_NOOP("StandardCommand", "&Cascade"),
         QT_TRANSLATE_NOOP("StandardCommand", "Show the document windows one behind the other"),
         "",
         {},
         CommandType::none,
         [] { mainWindow()->cascadeWindows(); },
         hasDocuments},
        {"Std_TabWindows",
         QT_TRANSLATE_NOOP("StandardCommand", "Ta&bs"),
         QT_TRANSLATE_NOOP("StandardCommand", "Show the document windows as tabs"),
         "",
         {},
         CommandType::none,
         [] { mainWindow()->tabWindows(); },
         hasDocuments},
        {"Std_CloseWindow", QT_TRANSLATE_NOOP("StandardCommand", "Cl&ose"),
         QT_TRANSLATE_NOOP("StandardCommand", "Close the document window in front"), "", Qt::CTRL + Qt::Key_W,
         CommandType::none, [] { mainWindow()->close_current_window(); }, hasDocuments},
        {"Std_CloseAllWindows",
         QT_TRANSLATE_NOOP("StandardCommand", "Close &all"),
         QT_TRANSLATE_NOOP("StandardCommand", "Close all document windows"),
         "",
         {},
         CommandType::none,
         [] { mainWindow()->closeAllWindows(); },
         hasDocuments},
    };
}

std::vector<CommandRow> programRows()
{
    return {
        {"Std_Preferences", QT_TRANSLATE_NOOP("StandardCommand", "Pr&eferences..."),
         QT_TRANSLATE_NOOP("StandardCommand", "Choose the settings of the program"), "", Qt::CTRL + Qt::Key_Comma,
         CommandType::none, openPreferences, hasWindow},
        {"Std_Quit", QT_TRANSLATE_NOOP("StandardCommand", "&Quit"),
         QT_TRANSLATE_NOOP("StandardCommand", "Close the program"), "", Qt::CTRL + Qt::Key_Q, CommandType::none,
         [] { mainWindow()->close(); }, hasWindow},
        {"Std_About",
         QT_TRANSLATE_NOOP("StandardCommand", "&About"),
         QT_TRANSLATE_NOOP("StandardCommand", "Show information about the program"),
         "",
         {},
         CommandType::none,
         showAbout,
         hasWindow},
    };
}

} // namespace

void addWindowCommands(CommandController& commands)
{
    addCommands(commands, context, dockRows());
    addCommands(commands, context, paneRows());
    addCommands(commands, context, languageRows());
    addCommands(commands, context, documentRows());
    addCommands(commands, context, programRows());
}

} // namespace Gui
