#pragma once

#include "vxPlot/PlotData.h"
#include "vxPlot/drawing/PlotItems.h"

#include <QString>
#include <qwt_plot.h>

#include <memory>
#include <set>
#include <string>

class QAction;

namespace vxInspector {

/// A plot of the inspector. A click on an entry of the legend hides and shows its curve. Dragging a rectangle with the
/// mouse, the wheel, and the keys + and - zoom; Home and a double click show everything again. A cross-hair shows the values
/// at the mouse. The plot can be copied as picture and as table, and saved.
class PlotView : public QwtPlot
{
    Q_OBJECT

public:
    explicit PlotView(QWidget* parent = nullptr);
    ~PlotView() override;

    /// Shows a plot. The zoom and the hidden curves stay if the axes have the same names, units and scales as before.
    void setPlot(vxPlot::PlotData plot);
    /// Returns the plot as it is seen: without hidden curves, with the ranges of the zoom.
    vxPlot::PlotData shownPlot() const;
    const vxPlot::PlotData& plot() const { return m_data; }

    bool isZoomed() const { return m_data.x.range.has_value(); }
    void zoomTo(const QRectF& range); ///< in the units of the axes
    void resetZoom();
    bool isHidden(const std::string& name) const { return m_hidden.count(name) != 0; }
    void toggle(const std::string& name); ///< hides or shows a series or band

    void copyPicture() const;
    void copyTable() const;
    /// Asks for a file and writes the plot to it, as its ending says: png, svg, pdf or csv.
    void save();

    void retranslate();
    /// Sets the height that the plot has if there is no more room, in lines of text.
    void setUsualHeight(int lines) { m_usualHeight = lines; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void zoomChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createActions();
    void createPickers();
    void zoomAbout(const QPointF& pixel, double factor);
    void showData();
    void showHidden();
    void updateLook();

    int m_usualHeight = 22; ///< lines of text
    vxPlot::PlotData m_data;
    std::unique_ptr<vxPlot::PlotItems> m_items;
    std::set<std::string> m_hidden;
    QAction* m_copyPicture;
    QAction* m_copyTable;
    QAction* m_save;
    QAction* m_reset;
};

} // namespace vxInspector
