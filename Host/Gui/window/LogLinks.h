#pragma once

#include "Kelta/MessageLog.h"

class QListWidget;
class QListWidgetItem;

namespace Gui {

/// Makes a line of the message log lead to an object. Does nothing if the link is not set.
void setLink(QListWidgetItem& line, const Kelta::LogLink& link);

/// Lets the user follow the links of a list's lines, by a double click or by Return.
void followLinksOf(QListWidget& list);

/// Selects the object of a link, opens its editor and shows the part there. If the object is deleted, says so in the
/// status bar of the main window.
void followLink(const Kelta::LogLink& link);

} // namespace Gui
