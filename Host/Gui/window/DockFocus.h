#pragma once

#include <QObject>
#include <QPointer>

class QDockWidget;
class QMainWindow;
class QWidget;

namespace Gui {

/// Gives the keyboard focus back when a dock that has it is hidden: to the dock from which it came, otherwise to the
/// document in front. Qt would give it to any widget, and so bring another document to the front.
class DockFocus final : public QObject
{
    Q_OBJECT

public:
    /// The dock owns the object. `window` is the main window of the dock.
    DockFocus(QDockWidget& dock, const QMainWindow& window);
    ~DockFocus() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWidget* before, const QWidget* now);
    void giveBack() const;

    const QDockWidget& m_dock;
    const QMainWindow& m_window;
    QPointer<QWidget> m_before; ///< the widget that had the focus before a widget in the dock
};

} // namespace Gui
