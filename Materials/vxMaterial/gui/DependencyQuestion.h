#pragma once

class QWidget;

namespace MatGui {

/// Asks whether to delete objects on which other objects depend. Returns true only for Yes. Escape and the close button
/// of the frame mean No, although the question has no No button. Return and Space mean Yes, as in every message box
/// with one button.
bool askAboutDependencies(QWidget* parent);

} // namespace MatGui
