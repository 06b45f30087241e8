#pragma once

#include "vxPlot/PlotData.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace vxPlot {

/// The file formats of pictures.
enum class PictureFormat
{
    Png,
    Svg,
    Pdf
};

/// The size of a picture in pixels of 1/96 inch.
inline constexpr QSize usualPictureSize{900, 600};

/// Returns a plot as an image of `size`, with twice as many pixels in each direction. Null if the memory does not suffice.
/// Needs a QApplication and its thread, as the other functions do.
QImage plotImage(const PlotData& plot, const QSize& size = usualPictureSize);

/// Returns the content of a picture file; empty if it cannot be made. Pictures are dark on white, in English or in the
/// language of the data, and do not depend on the palette, the font and the screen of the user.
QByteArray pictureFile(const PlotData& plot, PictureFormat format, const QSize& size = usualPictureSize);

} // namespace vxPlot
