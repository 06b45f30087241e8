#pragma once

#include <QString>

namespace desktop {

/// Returns the one path of a file that all ways to it share: links are followed, those to a missing file too.
QString canonicalPath(const QString& path);

/// Returns a path as the user reads it.
QString shownPath(const QString& path);

} // namespace desktop
