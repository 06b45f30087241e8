#pragma once

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QString>

namespace Gui {

/// The pictures of tree nodes, each drawn once.
class NodeIcons
{
public:
    /// Returns the picture of this name from the picture factory, with a dot in its right corner if `dot` is a valid
    /// colour, and a square in its left corner if `square` is one. Returns a null icon for an empty name: a node without
    /// a picture is allowed.
    QIcon get(const QString& pixmapName, const QColor& dot = {}, const QColor& square = {});

private:
    QHash<QString, QIcon> m_icons;
};

} // namespace Gui
