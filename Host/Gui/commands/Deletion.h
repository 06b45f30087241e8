#pragma once

namespace vxMsg {
class MessageProxy;
} // namespace vxMsg

namespace Gui {

class TreeSelectionSingleton;

/// Deletes the selected objects of all projects. If objects that are not selected need one of them, asks the user
/// first. Keeps an object if its node refuses the deletion (ViewFeeder::onDelete).
void deleteSelected(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection);

/// Closes the selected projects. If none is selected, closes the projects of the selected objects, or else the current
/// project. Ends at the first project that is kept open.
void closeSelected(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection);

} // namespace Gui
