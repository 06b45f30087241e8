#pragma once

#include "kelta/KeltaShellExport.h"

#include <QString>

#include <functional>
#include <string>

namespace desktop {

/// Called before a project is opened from a file. May ask the user, and may close other projects. Returns whether the
/// project may be opened.
using OpeningGuard = std::function<bool(const QString& path)>;

/// Registers a guard for projects of a class, and of derived classes without a guard of their own. A later guard of a
/// class replaces an earlier one.
KELTA_SHELL_EXPORT void registerOpeningGuard(const std::string& projectClass, OpeningGuard guard);

/// Returns the guard for projects of a class; null if neither the class nor a base class has one.
KELTA_SHELL_EXPORT const OpeningGuard* findOpeningGuard(const std::string& projectClass);

} // namespace desktop
