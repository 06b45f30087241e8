#include "EditorWatch.h"

#include "MaterialChange.h"

#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QAbstractButton>
#include <QEvent>

#include <utility>

namespace kelta {

namespace {

Mat::MaterialObject* materialOf(const Gui::MDIWindow& window)
{
    return dynamic_cast<Mat::MaterialObject*>(window.get_edited_object());
}

} // namespace

EditorWatch::EditorWatch(Gui::MainWindow& mainWindow) : QObject(&mainWindow), m_mainWindow(mainWindow)
{
    connect(&mainWindow, &Gui::MainWindow::mdi_window_added, this, &EditorWatch::watch);
    // What is undone or done by command while the editor is open is not the editor's doing.
    connect(&vxMsg::MessageProxy::instance().undoStack(), &QUndoStack::indexChanged, this, &EditorWatch::rememberAll);
}

EditorWatch::~EditorWatch() = default;

void EditorWatch::watch(Gui::MDIWindow* window)
{
    const Mat::MaterialObject* const object = materialOf(*window);
    if (object == nullptr)
        return;
    m_known[window] = copyOf(*object->getCMaterial());
    window->installEventFilter(this);
    connect(window, &QObject::destroyed, this, [this](QObject* gone) { m_known.erase(gone); });
    for (QAbstractButton* const button : window->findChildren<QAbstractButton*>())
        connect(button, &QAbstractButton::clicked, this, [this, window] { compare(window); });
}

bool EditorWatch::eventFilter(QObject* watched, QEvent* event)
{
    auto* const window = qobject_cast<Gui::MDIWindow*>(watched);
    if (event->type() == QEvent::ModifiedChange && window != nullptr && !window->isWindowModified())
        compare(window);
    return QObject::eventFilter(watched, event);
}

void EditorWatch::rememberAll()
{
    for (Gui::MDIWindow* const window : m_mainWindow.get_mdi_windows()) {
        const auto known = m_known.find(window);
        const Mat::MaterialObject* const object = known != m_known.end() ? materialOf(*window) : nullptr;
        if (object != nullptr && !areSame(*known->second, *object->getCMaterial()))
            known->second = copyOf(*object->getCMaterial());
    }
}

void EditorWatch::compare(Gui::MDIWindow* window)
{
    Kelta::guarded(tr("What was changed in an editor cannot be recorded"), [&] {
        const auto known = m_known.find(window);
        Mat::MaterialObject* const object = known != m_known.end() ? materialOf(*window) : nullptr;
        if (object == nullptr || object->get_project() == nullptr)
            return;
        // An export gives the material the name by which the user knows it; that is no change of the user's.
        auto before = copyOf(*known->second);
        before->name = object->getCMaterial()->name;
        recordChange(*object, std::move(before));
    });
}

} // namespace kelta
