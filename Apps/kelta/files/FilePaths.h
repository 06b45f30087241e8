#pragma once

#include <QString>

namespace desktop {

/// Returns the canonical path of a file, the same for all its paths: follows links, also those to a missing file.
QString canonicalPath(const QString& path);

/// Returns a path with the separators of the system, for texts.
QString shownPath(const QString& path);

} // namespace desktop
