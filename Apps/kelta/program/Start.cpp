#include "Start.h"

#include "Startup.h"

#include "Gui/MainWindow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <utility>

namespace desktop {

namespace {

/// A window that is shown where the user does not see it, as on another desktop, is not painted.
constexpr int longestWait = 500; // milliseconds

/// Returns whether an event can come from the user or another program, and acts on what a window contains.
bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::FileOpen:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

Start::Start(Gui::MainWindow& window, std::function<void()> completed)
    : m_window(window), m_completed(std::move(completed))
{}

Start::~Start() = default;

void Start::show()
{
    if (m_window.isComplete()) {
        complete();
    } else {
        QCoreApplication::instance()->installEventFilter(this);
        QTimer::singleShot(longestWait, this, &Start::complete);
        m_window.updateCommands();
    }
    m_window.show();
}

bool Start::eventFilter(QObject* watched, QEvent* event)
{
    if (isInput(event->type()))
        complete();
    // The picture is on the screen when the whole window has been painted.
    else if (event->type() == QEvent::Paint && watched == &m_window)
        QTimer::singleShot(0, this, &Start::complete);
    return false;
}

void Start::complete()
{
    if (!m_completed)
        return;
    QCoreApplication::instance()->removeEventFilter(this);
    // When the event loop is next idle, because it may ask questions.
    QTimer::singleShot(0, &m_window, std::exchange(m_completed, {}));
    bool loaded = false;
    m_window.complete([&] { loaded = loadModules(m_window); });
    // The reason is in the message log, which the user may have hidden.
    if (!loaded)
        m_window.showMessages();
}

} // namespace desktop
