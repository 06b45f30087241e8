#pragma once

class QToolBox;
class QWidget;

/// The page headers of a tool box. Qt supports them with the mouse only.
namespace MatGui {

/// Lets the Tab key visit the headers, each in front of its page, and not the frames around the pages. Marks the header
/// that has the keyboard focus. Each page must contain one QListWidget. Returns the last widget of the tab order, which
/// begins after `before`.
QWidget* makePagesReachable(const QToolBox& box, QWidget* before);

/// Gives the headers the accessible names of their lists. Must be called again after the language changes.
void namePageHeaders(const QToolBox& box);

} // namespace MatGui
