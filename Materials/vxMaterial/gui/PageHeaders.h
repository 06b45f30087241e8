#pragma once

class QToolBox;
class QWidget;

/// The page headers of a tool box, which Qt makes for the mouse only.
namespace MatGui {

/// Lets the Tab key visit the headers, each in front of its page, and not the frames around the pages; shows which header
/// has the keyboard. Each page must contain one QListWidget. Returns the last widget of the tab order, which begins behind
/// `before`.
QWidget* makePagesReachable(const QToolBox& box, QWidget* before);

/// Gives the headers the accessible names of their lists. To be called again after the language has changed.
void namePageHeaders(const QToolBox& box);

} // namespace MatGui
