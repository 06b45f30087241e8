#pragma once

class QLabel;
class QWidget;

namespace desktop {

/// Returns a widget with a title above a view, which gets the keyboard by the mnemonic of the title. The widget takes
/// ownership of both.
QWidget* makeTitledView(QLabel* title, QWidget* view);

} // namespace desktop
