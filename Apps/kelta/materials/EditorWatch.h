#pragma once

#include <QObject>

namespace Gui {
class MDIWindow;
class MainWindow;
} // namespace Gui

namespace desktop {

class KeptEdits;

/// Completes what material editors apply, and makes each Apply one step of the undo stack.
///
/// Before an Apply it refuses values of which a part would be ignored ("210 GPa"). After an Apply it sets names,
/// descriptions, units and categories of the properties to those of the catalogue, since the table has them in the language
/// of the user or not at all. Edits that are not applied come back with a material that undo or redo brings back.
class EditorWatch : public QObject
{
    Q_OBJECT

public:
    /// Makes the main window its parent, and watches the editors that are added to it from then on.
    explicit EditorWatch(Gui::MainWindow& mainWindow);
    ~EditorWatch() override;

private:
    void watch(Gui::MDIWindow* window);

    KeptEdits* m_kept; ///< a child of this object
};

} // namespace desktop
