#pragma once

#include <QPointer>
#include <QScrollArea>

namespace Gui {

/// The middle of the main window. It scrolls content that needs more space than there is, because the window must fit
/// into a small screen whatever space a document needs. The widget with the keyboard focus stays visible.
class CenterArea final : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes ownership of `content`.
    explicit CenterArea(QWidget* content);
    ~CenterArea() override;

    /// Follows the place in the focused widget to which a key has led, such as the current cell of a table.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void followFocus(QWidget* focused);
    void showFocus();

    QPointer<QWidget> m_focused; ///< the widget in the content that has the keyboard focus; null if there is none
};

} // namespace Gui
