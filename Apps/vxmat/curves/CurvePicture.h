#pragma once

#include "curves/CurveSeries.h"
#include "fits/TestFiles.h"
#include "vxUnits/UnitSystem.h"

#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// Returns the format of a picture file by the end of its name, "svg", "png" or "pdf" in any case; absent for other
/// names.
std::optional<std::string> pictureFormatOf(const std::string& path);

/// The spacing of the horizontal axis of a picture.
enum class AbscissaScale
{
    Linear,
    Logarithmic
};

/// Returns the content of a picture file of curves of one mode, with the points of measured tests, which must have the axes of
/// the curves. The library that draws is loaded for it.
/// \throws Failure if the library cannot be loaded or cannot make the picture
std::string makePicture(const std::vector<CurveSeries>& series, const std::vector<MeasuredTest>& tests,
                        vxConstitutive::Mode mode, const vxUnits::UnitSystem& system, AbscissaScale scale,
                        const std::string& format);

} // namespace commandline
