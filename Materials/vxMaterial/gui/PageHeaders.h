#pragma once

class QToolBox;
class QWidget;

/// The page headers of a tool box. Qt supports them with the mouse only.
namespace MatGui {

/// Lets the Tab key visit the headers, each in front of its page, and not the frames around the pages. Marks the header
/// that has the keyboard focus. Lets the lists of the pages become small, so that a low page has no scroll bars of its
/// own around them. Each page must contain one QListWidget. Returns the last widget of the tab order, which
/// begins after `before`.
QWidget* makePagesReachable(const QToolBox& box, QWidget* before);

/// Gives the headers the accessible names of their lists, also as tool tips, because a narrow header cuts its text. Must
/// be called again after the language changes.
void namePageHeaders(const QToolBox& box);

} // namespace MatGui
