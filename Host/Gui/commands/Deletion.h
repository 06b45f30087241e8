#pragma once

namespace vxMsg {
class MessageProxy;
} // namespace vxMsg

namespace Gui {

class TreeSelectionSingleton;

/// Deletes the selected objects of all projects. If objects that are not selected need one of them, the user is asked
/// first. An object stays if its node refuses (ViewFeeder::onDelete).
void deleteSelected(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection);

/// Closes the selected projects; without one the projects of the selected objects; else the current project. Ends at the
/// first project that is kept open.
void closeSelected(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection);

} // namespace Gui
