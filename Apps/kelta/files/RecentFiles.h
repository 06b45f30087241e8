#pragma once

#include <QStringList>

namespace desktop {

/// The project files last used, stored in the settings of the user.
class RecentFiles
{
public:
    /// Returns the paths, the latest first.
    static QStringList list();
    /// Puts a path at the front. Of the list, the latest ten are kept.
    static void add(const QString& path);
    /// Removes a path. Does nothing if it is not in the list.
    static void remove(const QString& path);
};

} // namespace desktop
