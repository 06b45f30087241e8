#pragma once

#include <QString>

namespace Mat {

/// Shows a message box with one OK button on the main window until the user closes it. The text is not interpreted as
/// markup. In a program without windows, writes the text to the message log. The details, if there are any, follow the
/// text.
void showCritical(const QString& title, const QString& text, const QString& details = {});
void showWarning(const QString& title, const QString& text);

} // namespace Mat
