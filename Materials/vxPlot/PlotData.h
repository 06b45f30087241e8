#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Plots as plain data, and the curves of materials as plots.
namespace vxPlot {

enum class Scale
{
    Linear,
    Logarithmic ///< values that are not greater than 0 are not drawn
};

/// An interval on an axis; `from` < `to`.
struct Interval
{
    double from = 0.0;
    double to = 0.0;
};

struct Axis
{
    std::string name; ///< "stretch"
    std::string unit; ///< "MPa"; "1" or empty for pure numbers
    Scale scale = Scale::Linear;
    std::optional<Interval> range = std::nullopt; ///< the shown part; absent for all points
};

/// The way in which the points of a series are drawn.
enum class SeriesKind
{
    Line,
    Symbols
};

/// A curve, or measured points.
struct Series
{
    std::string name; ///< in the legend
    SeriesKind kind = SeriesKind::Line;
    std::size_t style = 0; ///< the number of colour, dashes and symbol; series of one style belong together
    std::vector<double> x;
    std::vector<double> y; ///< as many as `x`; NaN is a gap
    bool isFaint = false;  ///< a line that is thin and dotted, because no measured points belong to it
};

/// A shaded range of the horizontal axis.
struct Band
{
    std::string name; ///< in the legend; bands of the same name have one entry
    std::size_t style = 0;
    Interval range;
};

/// All that a plot shows. Texts are UTF-8 and plain; numbers are in the units of the axes.
struct PlotData
{
    std::string title; ///< empty for none
    Axis x;
    Axis y;
    std::vector<Series> series;
    std::vector<Band> bands;
};

} // namespace vxPlot
