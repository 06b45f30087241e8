#pragma once

#include "Gui/GuiExport.h"

#include <QStringList>

#include <functional>

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace Gui {

/// How far an object is ready for use, as the tree shows it.
struct ObjectStatus
{
    enum class Level
    {
        Empty, ///< nothing is defined yet
        WithFindings,
        Ready,
    };
    Level level = Level::Empty;
    QStringList findings = {}; ///< sentences in the language of the user, the first ones if there are many
};

/// Returns the status of an object. Called whenever the tree is painted: must be fast and must not change the object.
using ObjectJudge = std::function<ObjectStatus(const Obj::ProjectObject&)>;

/// Registers the judge of a registered class, and of the classes that descend from it and have no judge. Replaces an
/// earlier judge of the class.
GUI_EXPORT void registerObjectJudge(const char* className, ObjectJudge judge);

/// Returns the status of an object: from the judge of its class, or from the state of the object if there is none.
GUI_EXPORT ObjectStatus statusOf(const Obj::ProjectObject& object);

} // namespace Gui
