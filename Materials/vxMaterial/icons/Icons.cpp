#include "Icons.h"

// Made by the resource compiler from icons.qrc.
int qInitResources_icons();
int qCleanupResources_icons();

namespace MatGui {

void registerIcons()
{
    struct Registration
    {
        Registration() { qInitResources_icons(); }
        Registration(const Registration&) = delete;
        Registration& operator=(const Registration&) = delete;
        ~Registration() { unregisterIcons(); }
    };
    static const Registration registration;
}

void unregisterIcons()
{
    qCleanupResources_icons();
}

} // namespace MatGui
