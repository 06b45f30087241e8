#pragma once

namespace MatGui {

/// Makes the module's icons available under ":icons/" until the library is unloaded. Safe to call more than once.
void registerIcons();
void unregisterIcons();

} // namespace MatGui
