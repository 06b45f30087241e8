#pragma once

#include "Gui/Command.h"
#include "Gui/GuiExport.h"

#include <QKeySequence>

#include <functional>
#include <vector>

class QMenu;

namespace Gui {

class CommandController;

/// One command as a row of a table. Texts are English; menus and toolbars translate them in the context of the
/// table. All strings must outlive the command, as literals do.
struct CommandRow
{
    const char* name;
    const char* menuText;
    const char* toolTip;     ///< also the status tip and the what's-this text
    const char* pixmap = ""; ///< name for the picture factory; empty for none
    QKeySequence shortcut = {};
    int typeFlags = CommandType::none;
    std::function<void()> run = {};            ///< carries out the command
    std::function<bool()> isApplicable = {};   ///< whether the command is applicable now; always if empty
    std::function<bool()> isChecked = {};      ///< whether its entry has a check mark now; never if empty
    std::function<void(QMenu&)> fillMenu = {}; ///< makes the entries of a menu that opens beside the command's entry
    std::function<QString()> subject = {};     ///< what the command acts on now, shown after its texts; none if empty
    QKeySequence secondShortcut = {};          ///< runs the command too; menus show the first one
};

/// Makes a command from each row and adds it to the controller. `context` is the translation context of the texts, and
/// the class name of the commands; it must outlive them.
///
///     addCommands(controller, "ProbeCommand",
///                 {{"Probe_Add", QT_TRANSLATE_NOOP("ProbeCommand", "&Add probe"),
///                   QT_TRANSLATE_NOOP("ProbeCommand", "Add a probe to the project"), "", {}, CommandType::none,
///                   [] { addProbe(); }, [] { return hasProject(); }}});
GUI_EXPORT void addCommands(CommandController& controller, const char* context, std::vector<CommandRow> rows);

} // namespace Gui
