#include "vxPlot/drawing/PlotItems.h"

#include <QCoreApplication>
#include <QPainter>
#include <QRegularExpression>
#include <qwt_graphic.h>
#include <qwt_painter.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_zoneitem.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <set>
#include <utility>

namespace vxPlot {

namespace {

constexpr double largestDrawn = 1e100; // beyond it, the arithmetic of scales overflows
constexpr double smallestOnLogarithmicScale = 1e-100;

/// Labels with a decimal point.
class NumberScale : public QwtScaleDraw
{
public:
    QwtText label(double value) const override
    {
        constexpr int digits = 8;
        constexpr double rounding = 1e-9;
        const QwtScaleDiv& marks = scaleDiv();
        const bool isZero = std::fabs(value) < rounding * std::fabs(marks.range());
        return {numberText(isZero ? 0.0 : value, digits), QwtText::PlainText};
    }
};

/// A curve with gaps where its points are not finite.
class GapCurve : public QwtPlotCurve
{
public:
    explicit GapCurve(const QwtText& name) : QwtPlotCurve(name) {}

    void setPoints(const QVector<QPointF>& points)
    {
        m_runs.clear();
        QRectF bounds(0.0, 0.0, -1.0, -1.0);
        int from = 0;
        for (int i = 0; i <= points.size(); ++i) {
            if (i < points.size() && std::isfinite(points[i].y())) {
                const QRectF point(points[i], QSizeF(0.0, 0.0));
                bounds = bounds.width() < 0.0 ? point : united(bounds, points[i]);
                continue;
            }
            if (i > from)
                m_runs.emplace_back(from, i - 1);
            from = i + 1;
        }
        m_bounds = bounds;
        setSamples(points);
    }

    QRectF boundingRect() const override { return m_bounds; }

    void drawSeries(QPainter* painter, const QwtScaleMap& x, const QwtScaleMap& y, const QRectF& canvas, int /*from*/,
                    int /*to*/) const override
    {
        // Whole pixels would make steps of a smooth curve.
        const bool wasRounding = QwtPainter::roundingAlignment();
        QwtPainter::setRoundingAlignment(false);
        for (const auto& [first, last] : m_runs)
            QwtPlotCurve::drawSeries(painter, x, y, canvas, first, last);
        QwtPainter::setRoundingAlignment(wasRounding);
    }

private:
    /// QRectF::united ignores rectangles without an area.
    static QRectF united(const QRectF& bounds, const QPointF& point)
    {
        return {QPointF(std::min(bounds.left(), point.x()), std::min(bounds.top(), point.y())),
                QPointF(std::max(bounds.right(), point.x()), std::max(bounds.bottom(), point.y()))};
    }

    std::vector<std::pair<int, int>> m_runs; ///< the first and last points between gaps
    QRectF m_bounds{0.0, 0.0, -1.0, -1.0};
};

/// A band that does not change the range of the axes.
class Shading : public QwtPlotZoneItem
{
public:
    QRectF boundingRect() const override { return {0.0, 0.0, -1.0, -1.0}; }
    QwtGraphic legendIcon(int /*index*/, const QSizeF& size) const override { return defaultIcon(brush(), size); }
};

QwtText plain(const std::string& text)
{
    return {QString::fromStdString(text), QwtText::PlainText};
}

QString axisTitle(const Axis& axis)
{
    const QString name = QString::fromStdString(axis.name);
    return axis.unit.empty() || axis.unit == "1"
               ? name
               : name + QStringLiteral(" [%1]").arg(QString::fromStdString(axis.unit));
}

bool isDrawn(double value, Scale scale)
{
    return std::fabs(value) <= largestDrawn && (scale == Scale::Linear || value >= smallestOnLogarithmicScale);
}

QVector<QPointF> pointsOf(const Series& series, const PlotData& data)
{
    constexpr double gap = std::numeric_limits<double>::quiet_NaN();
    QVector<QPointF> points;
    const std::size_t count = std::min(series.x.size(), series.y.size());
    points.reserve(static_cast<int>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const bool isInside = isDrawn(series.x[i], data.x.scale) && isDrawn(series.y[i], data.y.scale);
        points.push_back(isInside ? QPointF(series.x[i], series.y[i]) : QPointF(0.0, gap));
    }
    return points;
}

QwtSymbol* makeSymbol(const PlotLook& look, std::size_t style)
{
    constexpr QwtSymbol::Style shapes[] = {QwtSymbol::Ellipse, QwtSymbol::Rect,  QwtSymbol::UTriangle,
                                           QwtSymbol::Diamond, QwtSymbol::Cross, QwtSymbol::DTriangle};
    return new QwtSymbol(shapes[style % std::size(shapes)], QBrush(look.ground),
                         QPen(look.colour(style), look.lineWidth * 0.75),
                         QSizeF(look.symbolSize, look.symbolSize).toSize());
}

void setScale(QwtPlot& plot, int axis, const Axis& data)
{
    const bool isLogarithmic = data.scale == Scale::Logarithmic;
    const bool wasLogarithmic = dynamic_cast<QwtLogScaleEngine*>(plot.axisScaleEngine(axis)) != nullptr;
    if (isLogarithmic != wasLogarithmic)
        plot.setAxisScaleEngine(axis, isLogarithmic ? static_cast<QwtScaleEngine*>(new QwtLogScaleEngine)
                                                    : new QwtLinearScaleEngine);
    if (data.range && data.range->from < data.range->to)
        plot.setAxisScale(axis, data.range->from, data.range->to);
    else
        plot.setAxisAutoScale(axis);
}

} // namespace

QString numberText(double number, int digits)
{
    static const QRegularExpression longExponent(QStringLiteral("e([+-])0*"));
    QString text = QString::number(number, 'g', digits);
    return text.replace(longExponent, QStringLiteral("e\\1")).replace(QLatin1String("e+"), QLatin1String("e"));
}

PlotItems::PlotItems(QwtPlot& plot, PlotLook look) : m_plot(plot), m_look(std::move(look))
{
    m_plot.setAutoReplot(false);
    for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft})
        m_plot.setAxisScaleDraw(axis, new NumberScale);
    if (auto* const canvas = qobject_cast<QwtPlotCanvas*>(m_plot.canvas()))
        canvas->setFrameStyle(QFrame::NoFrame);
    constexpr int room = 6; // for symbols at the ends of the axes
    m_plot.plotLayout()->setAlignCanvasToScales(false);
    m_plot.plotLayout()->setCanvasMargin(room);
    m_grid = new QwtPlotGrid;
    m_grid->attach(&m_plot);
    colourPlot();
}

PlotItems::~PlotItems() = default;

void PlotItems::show(const PlotData& data)
{
    const bool isSame = hasSameItems(data);
    m_data = data;
    setAxes();
    if (!isSame)
        makeItems();
    setPoints();
    makeBands();
}

void PlotItems::setLook(PlotLook look)
{
    m_look = std::move(look);
    colourPlot();
    makeItems();
    setPoints();
    makeBands();
    setAxes();
}

bool PlotItems::hasSameItems(const PlotData& data) const
{
    const auto isSame = [](const Series& one, const Series& other) {
        return one.name == other.name && one.kind == other.kind && one.style == other.style;
    };
    return data.series.size() == m_data.series.size() &&
           std::equal(data.series.begin(), data.series.end(), m_data.series.begin(), isSame);
}

void PlotItems::makeItems()
{
    // The legend lists items in the order in which they are attached: curves first.
    for (QwtPlotCurve* const curve : std::exchange(m_curves, {}))
        delete curve;
    for (QwtPlotZoneItem* const band : std::exchange(m_bands, {}))
        delete band;
    for (const Series& series : m_data.series)
        addCurve(series, m_curves.size() < mostInLegend);
    setFooter();
}

void PlotItems::addCurve(const Series& series, bool isInLegend)
{
    auto* const curve = new GapCurve(plain(series.name));
    curve->setItemAttribute(QwtPlotItem::Legend, isInLegend);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowLine, series.kind == SeriesKind::Line);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowSymbol, series.kind == SeriesKind::Symbols);
    curve->setLegendIconSize(legendIconSize());
    curve->setPen(m_look.linePen(series.style));
    if (series.kind == SeriesKind::Symbols) {
        curve->setStyle(QwtPlotCurve::NoCurve);
        curve->setSymbol(makeSymbol(m_look, series.style)); // takes ownership
    }
    curve->setZ(series.kind == SeriesKind::Symbols ? 30.0 : 20.0);
    curve->attach(&m_plot);
    m_curves.push_back(curve);
}

void PlotItems::setPoints()
{
    for (std::size_t i = 0; i < m_curves.size(); ++i)
        static_cast<GapCurve*>(m_curves[i])->setPoints(pointsOf(m_data.series[i], m_data));
}

QSize PlotItems::legendIconSize() const
{
    return {static_cast<int>(m_look.lineWidth * 18.0), static_cast<int>(m_look.symbolSize * 1.25)};
}

void PlotItems::makeBands()
{
    while (m_bands.size() > m_data.bands.size()) {
        delete m_bands.back();
        m_bands.pop_back();
    }
    std::set<std::string> named;
    for (std::size_t i = 0; i < m_data.bands.size(); ++i) {
        const Band& band = m_data.bands[i];
        if (i == m_bands.size()) {
            m_bands.push_back(new Shading);
            m_bands.back()->setZ(5.0);
            m_bands.back()->attach(&m_plot);
        }
        QColor shade = m_look.colour(band.style);
        shade.setAlphaF(0.16F);
        m_bands[i]->setPen(QPen(Qt::NoPen));
        m_bands[i]->setBrush(shade);
        m_bands[i]->setLegendIconSize(QSize(legendIconSize().width() / 2, legendIconSize().height()));
        m_bands[i]->setInterval(band.range.from, band.range.to);
        m_bands[i]->setTitle(plain(band.name));
        const bool isInLegend = named.insert(band.name).second && named.size() <= mostInLegend;
        m_bands[i]->setItemAttribute(QwtPlotItem::Legend, isInLegend);
    }
}

void PlotItems::setAxes()
{
    setScale(m_plot, QwtPlot::xBottom, m_data.x);
    setScale(m_plot, QwtPlot::yLeft, m_data.y);
    QwtText title = plain(m_data.title);
    QFont bold = m_look.font;
    bold.setBold(true);
    title.setFont(bold);
    m_plot.setTitle(title);
    const auto setTitle = [this](int axis, const Axis& data) {
        QwtText text(axisTitle(data), QwtText::PlainText);
        text.setFont(m_look.font);
        m_plot.setAxisTitle(axis, text);
    };
    setTitle(QwtPlot::xBottom, m_data.x);
    setTitle(QwtPlot::yLeft, m_data.y);
}

void PlotItems::setFooter()
{
    QwtText text;
    if (m_data.series.size() > mostInLegend)
        text = QwtText(QCoreApplication::translate("vxPlot", "The legend shows the first %1 of %2 curves.")
                           .arg(mostInLegend)
                           .arg(m_data.series.size()),
                       QwtText::PlainText);
    text.setFont(m_look.font);
    m_plot.setFooter(text);
}

void PlotItems::colourPlot()
{
    QPalette colours = m_plot.palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(role, m_look.text);
    colours.setColor(QPalette::Window, m_look.surround);
    m_plot.setPalette(colours);
    m_plot.setFont(m_look.font);
    m_plot.setCanvasBackground(m_look.ground);
    for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft}) {
        m_plot.axisWidget(axis)->setPalette(colours);
        m_plot.setAxisFont(axis, m_look.font);
    }
    m_grid->setMajorPen(m_look.grid, 0.0, Qt::SolidLine);
}

} // namespace vxPlot
