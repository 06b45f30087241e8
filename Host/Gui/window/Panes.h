#pragma once

#include <vector>

class QMainWindow;
class QWidget;

namespace Gui {

/// The panes of a main window: its central widget and its docks. The user moves between them by keys.
class Panes
{
public:
    explicit Panes(const QMainWindow& window) : m_window(window) {}

    /// The direction of a move.
    enum class Step
    {
        Next,
        Previous,
    };
    /// Gives the keyboard focus to the next or previous visible pane, at the place where the pane had it last. The
    /// order is from left to right, with the docks below the documents at the end; it is circular.
    void move(Step step) const;

    /// Gives the keyboard focus to a pane, at the place where the pane had it last.
    static void focus(QWidget& pane);

private:
    std::vector<QWidget*> visiblePanes() const;
    int placeOf(QWidget& pane) const;

    const QMainWindow& m_window;
};

} // namespace Gui
