#pragma once

#include <QObject>

#include <functional>

namespace Gui {
class MainWindow;
} // namespace Gui

namespace desktop {

/// Shows the window of a program with a user. If the window is an outline, modules are loaded as soon as the first picture
/// is on the screen, or as soon as the user acts on the program, whatever comes first; the input is handled afterwards by
/// the complete window. Otherwise modules are loaded first.
class Start final : public QObject
{
    Q_OBJECT

public:
    /// `window` must outlive this object. `completed` is called once, by the event loop, after the window is complete.
    Start(Gui::MainWindow& window, std::function<void()> completed);
    ~Start() override;

    void show();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void complete();

    Gui::MainWindow& m_window;
    std::function<void()> m_completed;
};

} // namespace desktop
