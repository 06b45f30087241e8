#pragma once

#include "vxPlot/PlotData.h"
#include "vxPlot/drawing/PlotLook.h"

#include <QSize>
#include <QString>

#include <vector>

class QwtPlot;
class QwtPlotCurve;
class QwtPlotGrid;
class QwtPlotZoneItem;

namespace vxPlot {

/// The most entries of a legend. A line below the plot tells the number of further series.
inline constexpr std::size_t mostInLegend = 24;

/// Shows plot data in a plot widget of Qwt. The items belong to the plot; the plot must outlive this object. Series of the same
/// kinds as before only get new points, and unchanged points stay, so that a plot follows a value while it is dragged. Of
/// more than 2000 symbols of a series, those that others cover are not drawn.
class PlotItems
{
public:
    PlotItems(QwtPlot& plot, PlotLook look);
    ~PlotItems();
    PlotItems(const PlotItems&) = delete;
    PlotItems& operator=(const PlotItems&) = delete;

    /// Makes the plot show the data. The caller replots.
    void show(const PlotData& data);

    void setLook(PlotLook look);

    /// Takes so few labels of the horizontal axis that they do not overlap in a canvas of this width in pixels. The caller
    /// replots.
    void fitLabels(int width);

    /// The items in the order of the series and bands of the shown data.
    const std::vector<QwtPlotCurve*>& curves() const { return m_curves; }
    const std::vector<QwtPlotZoneItem*>& bands() const { return m_bands; }
    const PlotData& data() const { return m_data; }

private:
    bool hasSameKinds(const PlotData& data) const;
    void change(std::size_t i, const Series& series, bool isSameScale);
    void setStyle(QwtPlotCurve& curve, const Series& series) const;
    void makeItems();
    void addCurve(const Series& series, bool isInLegend);
    void setPoints();
    void setPoints(std::size_t i);
    void makeBands();
    QSize legendIconSize() const;
    void setAxes();
    void setFooter();
    void colourPlot();

    QwtPlot& m_plot;
    PlotLook m_look;
    PlotData m_data;
    std::vector<QwtPlotCurve*> m_curves;
    std::vector<QwtPlotZoneItem*> m_bands;
    std::vector<std::size_t> m_leftOut; ///< the points of each series that are missing on logarithmic axes
    QwtPlotGrid* m_grid = nullptr;
};

/// Returns the text of a number on an axis or beside the cross-hair: "0.25", "2e8". It has a decimal point whatever the
/// language of the user.
QString numberText(double number, int digits);

} // namespace vxPlot
