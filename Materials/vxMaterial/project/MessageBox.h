#pragma once

#include <QString>

namespace Mat {

/// Shows a message box with one OK button on the main window and waits for the answer. The text is shown as it stands,
/// never as markup. A program without windows writes it to the message log instead.
void showCritical(const QString& title, const QString& text);
void showWarning(const QString& title, const QString& text);

} // namespace Mat
