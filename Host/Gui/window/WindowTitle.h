#pragma once

#include "Gui/GuiExport.h"

#include <QString>

/// Titles of windows, and texts for widgets that interpret some characters. Qt shows a mark of modification in place of
/// "[*]" in a title, and "[*]" in place of two of them.
namespace Gui {

/// Returns the title of a window that shows `text` as it is, and the mark after it while the window is modified.
GUI_EXPORT QString markedTitle(const QString& text);

/// Returns a text as a part of a title that shows it as it is.
GUI_EXPORT QString escapedForTitle(QString text);

/// Returns the text that a window with this title shows, with "*" in place of the mark if `isModified`.
GUI_EXPORT QString shownTitle(const QString& title, bool isModified = false);

/// Returns a text for a widget that shows "&x" as "x", underlined, such as a tab or a menu, so that the widget shows
/// the text as it is.
GUI_EXPORT QString escapedForMnemonics(QString text);

/// Returns the text that such a widget shows: "x" for "&x", and "&" for "&&".
GUI_EXPORT QString withoutMnemonics(const QString& text);

/// Returns a text for a tool tip, which shows it as it is. A tool tip would interpret markup such as "<b>".
GUI_EXPORT QString escapedForToolTip(const QString& text);

} // namespace Gui
