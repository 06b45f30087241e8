#pragma once

#include <QColor>
#include <QFont>
#include <QPen>

#include <cstddef>
#include <vector>

class QWidget;

namespace vxPlot {

/// The colours, the font and the widths of a plot. The colours of the series are those that people with any colour vision
/// tell apart (M. Okabe, K. Ito, "Color Universal Design", 2008), darker on a light ground and without the ones that are
/// too near to the ground; dashes and symbols differ too.
struct PlotLook
{
    QColor ground;   ///< behind the curves
    QColor surround; ///< behind axes and legend
    QColor text;
    QColor grid;
    std::vector<QColor> series;
    QFont font;
    double lineWidth = 2.0;
    double symbolSize = 8.0;

    QColor colour(std::size_t style) const { return series[style % series.size()]; }
    QPen linePen(std::size_t style) const;
    /// Returns the pen of a line to which no measured points belong: thin and dotted.
    QPen faintPen(std::size_t style) const;
};

/// Returns the look of pictures: black on white, whatever the colours and the screen of the user.
PlotLook printedLook();

/// Returns the look that fits to the palette and the font of a widget.
PlotLook screenLook(const QWidget& widget);

} // namespace vxPlot
