#pragma once

#include "Gui/GuiExport.h"

#include <QIcon>
#include <QPixmap>

namespace Gui {

/// Finds the pictures of commands, nodes and windows.
class GUI_EXPORT PictureFactory
{
public:
    /// The picture at a resource path, or under a bare name that of ":icons/<name>.svg", sharp at `size` by `size`
    /// pixels. A plain grey square when there is none, so that what shows it keeps its place; reported once.
    static QPixmap get_pixmap(const QString& nameOrPath, int size = 32);
    static QPixmap get_pixmap(const char* nameOrPath) { return get_pixmap(QString::fromUtf8(nameOrPath)); }

    /// The same picture as an icon, which is drawn when it is first seen and sharp at every size.
    static QIcon get_icon(const QString& nameOrPath);
};

} // namespace Gui
