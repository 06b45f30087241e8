#include "vxPlot/drawing/Picture.h"

#include "vxPlot/drawing/PlotItems.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_renderer.h>

namespace vxPlot {

namespace {

constexpr double metresInInch = 0.0254;
constexpr int pointsInInch = 72;
constexpr int pixelsInInch = 96;

/// A plot widget that is never shown, and paints itself on anything.
class PrintedPlot
{
public:
    PrintedPlot(const PlotData& data, const QSize& size) : m_items(m_plot, printedLook())
    {
        auto* const legend = new QwtLegend;
        m_plot.insertLegend(legend, QwtPlot::BottomLegend); // takes ownership
        legend->setFont(printedLook().font);
        m_items.show(data);
        // The renderer takes the distances of an axis to its labels from the size that the widget has.
        m_plot.resize(size);
        m_plot.updateLayout();
        m_plot.replot();
    }

    /// The dots in an inch of the widget, which depend on the screen.
    int dotsInInch() const { return m_plot.logicalDpiX(); }

    void paint(QPainter& painter, const QRectF& place)
    {
        QwtPlotRenderer renderer;
        renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
        renderer.setLayoutFlag(QwtPlotRenderer::FrameWithScales, false);
        painter.fillRect(place, Qt::white);
        const QRectF inner = place.adjusted(place.width() * margin, place.height() * margin, -place.width() * margin,
                                            -place.height() * margin);
        renderer.render(&m_plot, &painter, inner);
    }

private:
    static constexpr double margin = 0.01;

    QwtPlot m_plot;
    PlotItems m_items;
};

QImage image(PrintedPlot& plot, const QSize& size)
{
    constexpr int scale = 2;
    QImage image(size * scale, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    const int dots = qRound(plot.dotsInInch() * scale / metresInInch);
    image.setDotsPerMeterX(dots);
    image.setDotsPerMeterY(dots);
    QPainter painter(&image);
    plot.paint(painter, QRectF(QPointF(), image.size()));
    painter.end();
    // What the file says about its size does not depend on the screen.
    const int written = qRound(pixelsInInch * scale / metresInInch);
    image.setDotsPerMeterX(written);
    image.setDotsPerMeterY(written);
    return image;
}

void writeSvg(PrintedPlot& plot, const PlotData& data, const QSize& size, QBuffer& file)
{
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setTitle(QString::fromStdString(data.title).toHtmlEscaped()); // the generator writes it as it is
    svg.setSize(size);
    svg.setViewBox(QRect(QPoint(), size));
    svg.setResolution(plot.dotsInInch());
    QPainter painter(&svg);
    plot.paint(painter, QRectF(QPointF(), size));
}

void writePdf(PrintedPlot& plot, const PlotData& data, const QSize& size, QBuffer& file)
{
    constexpr int resolution = 1200;
    QPdfWriter pdf(&file);
    pdf.setTitle(QString::fromStdString(data.title));
    pdf.setResolution(resolution);
    pdf.setPageSize(QPageSize(QSizeF(size) * pointsInInch / pixelsInInch, QPageSize::Point));
    pdf.setPageMargins(QMarginsF());
    QPainter painter(&pdf);
    plot.paint(painter, QRectF(0.0, 0.0, pdf.width(), pdf.height()));
}

} // namespace

QImage plotImage(const PlotData& plot, const QSize& size)
{
    PrintedPlot printed(plot, size);
    return image(printed, size);
}

QByteArray pictureFile(const PlotData& plot, PictureFormat format, const QSize& size)
{
    PrintedPlot printed(plot, size);
    QByteArray bytes;
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    if (format == PictureFormat::Png)
        image(printed, size).save(&file, "PNG");
    else if (format == PictureFormat::Svg)
        writeSvg(printed, plot, size, file);
    else
        writePdf(printed, plot, size, file);
    return bytes;
}

} // namespace vxPlot
