#pragma once

namespace MatGui {

/// Makes the module's icons available under ":icons/", until the library is unloaded. Again changes nothing.
void registerIcons();
void unregisterIcons();

} // namespace MatGui
