#pragma once

#include "vxMaterial/model/Material.h"

#include <QObject>

#include <map>
#include <memory>

namespace Gui {
class MDIWindow;
class MainWindow;
} // namespace Gui

namespace kelta {

/// Makes a step of the history of what the user applies in a material editor.
///
/// Editors write into the material themselves and tell nobody, so the material is compared with what it was whenever an
/// editor has no changes of its own any more, or a button in it has been pressed.
class EditorWatch : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the main window.
    explicit EditorWatch(Gui::MainWindow& mainWindow);
    ~EditorWatch() override;

    /// Sees editors say that everything has been applied.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(Gui::MDIWindow* window);
    void rememberAll();
    void compare(Gui::MDIWindow* window);

    /// The materials that are being edited, as the history knows them. The windows are not looked into: they may have
    /// been destroyed.
    std::map<QObject*, std::unique_ptr<vxMat::CMaterial>> m_known;
    Gui::MainWindow& m_mainWindow;
};

} // namespace kelta
