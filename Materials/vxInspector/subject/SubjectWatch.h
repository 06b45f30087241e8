#pragma once

#include "subject/Subject.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <boost/signals2/connection.hpp>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

class QWidget;

namespace Gui {
class MDIWindow;
} // namespace Gui

namespace MatGui {
class MaterialView;
} // namespace MatGui

namespace Obj {
class Project;
} // namespace Obj

namespace vxInspector {

/// Follows the selection of the project explorer and the editors of materials. The later of both decides: the inspector
/// shows the new selection, and the material of the editor that comes to the front or gets the keyboard focus.
class SubjectWatch : public QObject
{
    Q_OBJECT

public:
    explicit SubjectWatch(QObject* parent);
    ~SubjectWatch() override;

    Subject current() const;

    /// Returns the open editor of a material; null if there is none.
    static MatGui::MaterialView* editorOf(const Mat::MaterialObject& object);

    /// Sends changed() when a project of the materials, or a row or the typed text of their editors, changes. Forgets the editors of the
    /// last call.
    void follow(const Subject& subject);

Q_SIGNALS:
    /// Sent when the event loop is next idle, once for all changes before.
    void changed();

private:
    void noteLater();
    void watchHost();
    void followWindow();
    void followFocus(QWidget* before, QWidget* now);
    void followSelection();
    void watchEditor(const Gui::MDIWindow& editor);
    void watchProject(Obj::Project& project);
    Subject ofSelection() const;

    QPointer<MatGui::MaterialView> m_editor; ///< whose material is shown; null if the selection decides
    QPointer<QWidget> m_front;               ///< the document in front at the last update of the main window
    std::string m_preferredSystem;           ///< the unit system of the user's preferences at that time
    std::vector<QMetaObject::Connection> m_editorConnections;
    std::map<std::uint32_t, std::vector<boost::signals2::scoped_connection>> m_projects; ///< by project id
    boost::signals2::scoped_connection m_projectRemoved;
    QTimer m_note;
};

} // namespace vxInspector
