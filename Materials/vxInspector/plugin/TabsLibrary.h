#pragma once

class QLabel;
class QWidget;

namespace vxInspector {

/// Makes the content of the inspector's dock, which takes the hint over. Returns null, with a message in the message log, if
/// it cannot. Does not throw.
using MakeContent = QWidget*(QLabel* hint);

/// The library of the tabs. With the library of the plots, it takes longer to load than the rest of the plug-in, so it is
/// apart, in the same folder, and has this entry.
inline constexpr const char* tabsLibrary = "libvxInspectorTabs.so";
inline constexpr const char* tabsEntry = "vxMakeInspectorContent";

/// Returns the entry of the library of the tabs. The first call loads the library, which stays loaded. Throws
/// std::runtime_error if the library or its entry is missing.
MakeContent& loadedTabs();

} // namespace vxInspector
