#pragma once

class QLabel;
class QWidget;

namespace desktop {

/// Returns a widget with a title above a view, which gets the keyboard by the mnemonic of the title. The widget takes
/// ownership of both. A parent in the window of the view keeps the order of the keyboard.
QWidget* makeTitledView(QLabel* title, QWidget* view, QWidget* parent);

/// Gives a dialog of decks its usual size, or that of its screen if that is smaller, so that its buttons can be seen.
void resizeDeckDialog(QWidget& dialog);

} // namespace desktop
