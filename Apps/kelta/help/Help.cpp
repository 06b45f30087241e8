#include "Help.h"

#include "GuideView.h"
#include "ProjectFiles.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/Contributions.h"
#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"

#include <QDir>

#include <functional>

namespace desktop {

namespace {

constexpr const char* context = "HelpCommand";
constexpr const char* guideDock = "Guide";

bool hasWindow()
{
    return Gui::MainWindow::get_main_window_inst() != nullptr;
}

/// Shows the dock of the guide, and lets `show` choose its content.
void showGuide(const std::function<void(GuideView&)>& show)
{
    Gui::MainWindow& window = *Gui::MainWindow::get_main_window_inst();
    if (auto* const guide = window.findChild<GuideView*>())
        show(*guide);
    window.focusDock(guideDock);
}

/// Shows the guide, or closes it if the user sees it already.
void toggleGuide()
{
    Gui::MainWindow& window = *Gui::MainWindow::get_main_window_inst();
    const auto* const guide = window.findChild<GuideView*>();
    if (guide != nullptr && guide->isGuideVisible())
        window.toggleDock(guideDock);
    else
        showGuide(&GuideView::showGuide);
}

std::vector<Gui::CommandRow> makeRows(ProjectFiles& files)
{
    constexpr int none = Gui::CommandType::none;
    return {
        {"Std_Help", QT_TRANSLATE_NOOP("HelpCommand", "&Guide"),
         QT_TRANSLATE_NOOP("HelpCommand", "Show the guide to the program, or close it"), "", Qt::Key_F1, none,
         toggleGuide, hasWindow},
        {"Std_Keys",
         QT_TRANSLATE_NOOP("HelpCommand", "&Keys"),
         QT_TRANSLATE_NOOP("HelpCommand", "Show the keys of all commands"),
         "",
         {},
         none,
         [] { showGuide(&GuideView::showKeys); },
         hasWindow},
        {"Std_OpenExample",
         QT_TRANSLATE_NOOP("HelpCommand", "Open &example project"),
         QT_TRANSLATE_NOOP("HelpCommand", "Open a copy of the example project"),
         "",
         {},
         none,
         [&files] { files.openCopy(sharedFile(QStringLiteral("vxMaterial/examples/frame.vxmat"))); }},
    };
}

} // namespace

void addHelp(Gui::GuiApplication& application, ProjectFiles& files)
{
    Gui::CommandController& commands = application.get_command_manager();
    Gui::addCommands(commands, context, makeRows(files));
    Gui::Contributions& contributions = application.contributions();
    for (const char* const name : {"Std_Help", "Std_Keys", "Std_OpenExample"})
        contributions.addToMenu("&Help", "Guide", name);
    contributions.addDock({guideDock,
                           {context, QT_TRANSLATE_NOOP("HelpCommand", "Guide")},
                           Gui::DockArea::Right,
                           [&commands] { return new GuideView(commands); },
                           Gui::DockVisibility::HiddenAtFirst});
}

QString sharedFile(const QString& path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" KELTA_SHARED_FOLDER "/") + path);
}

} // namespace desktop
