#pragma once

#include <QStringList>

namespace desktop {

/// The project files last used, which the settings of the user keep.
class RecentFiles
{
public:
    /// Returns the paths, the latest first.
    static QStringList list();
    static void add(const QString& path);
    /// Nothing if the path is not in the list.
    static void remove(const QString& path);
};

} // namespace desktop
