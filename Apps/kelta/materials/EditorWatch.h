#pragma once

#include <QObject>

namespace Gui {
class MDIWindow;
class MainWindow;
} // namespace Gui

namespace desktop {

class KeptEdits;

/// Completes what material editors apply, makes each Apply one step of the undo stack, and tells the user what it did. A
/// new material gets the name of the library material that the user has picked, unless the user has given it a label.
///
/// Edits the values of the table with units, see ValueCellDelegate. Before an Apply, converts values that have become
/// readable since they were typed, and refuses values that cannot be read and values of which a part would be ignored.
/// After an Apply, takes the names, descriptions, units and categories of the properties from the catalogue, because the
/// table has the names in the user's language and no categories. Restores edits that are not applied if undo or redo
/// restores their material.
class EditorWatch : public QObject
{
    Q_OBJECT

public:
    /// Makes the main window its parent, and watches the editors that are added to the window afterwards.
    explicit EditorWatch(Gui::MainWindow& mainWindow);
    ~EditorWatch() override;

private:
    void watch(Gui::MDIWindow* window);

    KeptEdits* m_kept; ///< a child of this object
};

} // namespace desktop
