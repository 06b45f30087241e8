#pragma once

#include <QIcon>

#include <functional>

namespace Gui {

/// An icon whose picture is made when it is first drawn, at the size at which it is drawn. Most icons stand in menus
/// that are not open and behind buttons that are not needed; making all of their pictures would delay the start.
/// `makePicture` makes the picture of at most the given size in pixels; what it makes is kept.
QIcon makeLazyIcon(std::function<QPixmap(const QSize&)> makePicture);

} // namespace Gui
