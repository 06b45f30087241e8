#pragma once

class QWidget;

namespace MatGui {

/// Asks whether to delete objects on which others depend. True for Yes alone: a question that is closed is answered with
/// No, though it has no such button. Return and Space mean Yes, as on any message box with one button.
bool askAboutDependencies(QWidget* parent);

} // namespace MatGui
