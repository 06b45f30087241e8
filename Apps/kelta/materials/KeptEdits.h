#pragma once

#include <QObject>
#include <boost/signals2/connection.hpp>
#include <json/value.h>

#include <cstdint>
#include <map>
#include <utility>

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

/// Keeps edits that are not applied, undone ones included, when undo, redo or a deletion removes their material, which
/// closes its editor. If undo or redo restores the material, opens its editor again and shows the edits. The edits are
/// destroyed when the history ends, because nothing can restore the material afterwards.
class KeptEdits : public QObject
{
    Q_OBJECT

public:
    explicit KeptEdits(QObject* parent);
    ~KeptEdits() override;

    /// Keeps the result of Gui::MDIWindow::editSteps for a material that is being removed from the project. Does
    /// nothing if the edits are null.
    void keep(Obj::Project& project, std::uint32_t objectId, Json::Value edits);

private:
    using Place = std::pair<std::uint32_t, std::uint32_t>; ///< the ids of project and object

    void bringBack(const Place& place);
    void historyMoved();

    std::map<Place, Json::Value> m_edits;
    std::map<std::uint32_t, boost::signals2::scoped_connection> m_connections; ///< to the projects, by their ids
};

} // namespace desktop
