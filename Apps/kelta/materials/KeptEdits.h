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

/// Keeps edits that are not applied when their material is removed, which closes its editor: by undo, redo or deletion. If
/// the same material comes back into its project, its editor is opened again and shows the edits.
class KeptEdits : public QObject
{
    Q_OBJECT

public:
    explicit KeptEdits(QObject* parent);
    ~KeptEdits() override;

    /// Keeps what MaterialView::unappliedEdits returned for a material that is being removed from the project. Null is not
    /// kept.
    void keep(Obj::Project& project, std::uint32_t objectId, Json::Value edits);

private:
    using Place = std::pair<std::uint32_t, std::uint32_t>; ///< the ids of project and object

    void bringBack(const Place& place);

    std::map<Place, Json::Value> m_edits;
    std::map<std::uint32_t, boost::signals2::scoped_connection> m_connections; ///< to the projects, by their ids
};

} // namespace desktop
