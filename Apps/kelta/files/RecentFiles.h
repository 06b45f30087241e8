#pragma once

#include <QStringList>

namespace desktop {

/// The project files last used, stored in the settings of the user.
class RecentFiles
{
public:
    /// Returns the paths, the latest first.
    static QStringList list();
    /// Puts a path at the front. Keeps the latest ten paths of the list.
    static void add(const QString& path);
    /// Removes a path. Does nothing if it is not in the list.
    static void remove(const QString& path);
};

} // namespace desktop
