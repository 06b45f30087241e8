#pragma once

#include "Gui/GuiExport.h"

#include <QIcon>
#include <QPixmap>

namespace Gui {

/// Finds the pictures of commands, nodes and windows.
class GUI_EXPORT PictureFactory
{
public:
    /// Returns the picture at a resource path, or, for a bare name, ":icons/<name>.svg", sharp at `size` by `size`
    /// pixels. If there is none, returns a plain grey square, which keeps the layout unchanged, and reports it once.
    static QPixmap get_pixmap(const QString& nameOrPath, int size = 32);
    static QPixmap get_pixmap(const char* nameOrPath) { return get_pixmap(QString::fromUtf8(nameOrPath)); }

    /// Returns the same picture as an icon, which is sharp at every size.
    static QIcon getIcon(const QString& nameOrPath);
};

} // namespace Gui
