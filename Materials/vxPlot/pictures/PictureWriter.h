#pragma once

#include "vxPlot/PlotData.h"

#include <string>

namespace vxPlot {

/// A library without windows that loads libvxPlotPictures with QLibrary makes pictures of plots with it:
///
///     QLibrary library(folder + QLatin1String(vxPlot::picturesLibrary));
///     const auto writePicture = reinterpret_cast<vxPlot::WritePicture*>(library.resolve(vxPlot::picturesEntry));
///
/// The library is beside the plug-ins of the programs: in "../lib/vxMaterial" of an installed copy, in "../lib" of the
/// build tree.
inline constexpr const char* picturesLibrary = "libvxPlotPictures";
inline constexpr const char* picturesEntry = "vxWritePicture";

/// The result of the entry.
enum PictureResult : int
{
    PictureMade = 0,
    PictureFailed = 1,
};

/// Writes the content of a picture file to `bytes`. The format is "png", "svg" or "pdf"; the size is in pixels of 1/96
/// inch, from 100 to 10000. Returns PictureFailed with a message in English in `error` if the format or the size is
/// another one, or the picture cannot be made. Does not throw.
///
/// Pictures are the same whatever the palette, fonts, screen and locale of the user. If the program has no application
/// object, the call makes a QApplication without a display and deletes it again, and restores the locale; otherwise the
/// application must be a QApplication and the call must be in its thread.
extern "C" {
using WritePicture = int(const PlotData& plot, const char* format, int width, int height, std::string& bytes,
                         std::string& error) noexcept;
}

} // namespace vxPlot
