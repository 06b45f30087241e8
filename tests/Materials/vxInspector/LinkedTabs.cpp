#include "plugin/InspectorContent.h"
#include "plugin/TabsLibrary.h"

namespace vxInspector {

/// Returns the entry that is linked, so that tests know the classes of the tabs.
MakeContent& loadedTabs()
{
    return vxMakeInspectorContent;
}

} // namespace vxInspector
