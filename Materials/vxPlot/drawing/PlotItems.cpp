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
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <numeric>
#include <optional>
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

/// What decides on which pixels the points of a plot are.
struct Projection
{
    Projection(const QwtScaleMap& x, const QwtScaleMap& y, const QRectF& canvas)
        : numbers{x.s1(), x.s2(), x.p1(),        x.p2(),       y.s1(),         y.s2(),
                  y.p1(), y.p2(), canvas.left(), canvas.top(), canvas.width(), canvas.height()},
          scales{x.transformation() != nullptr, y.transformation() != nullptr}
    {}
    bool operator==(const Projection& other) const { return numbers == other.numbers && scales == other.scales; }

    std::array<double, 12> numbers{};
    std::array<bool, 2> scales{};
};

/// The places of points on the canvas of a plot without those that symbols of other points cover.
class Thinning
{
public:
    /// Symbols closer to each other than `distance`, in pixels, are drawn once.
    Thinning(const QRectF& canvas, double distance)
        : m_origin(canvas.topLeft() - QPointF(margin, margin)),
          m_cell(1.0 / distance),
          m_columns(cells(canvas.width(), distance)),
          m_rows(cells(canvas.height(), distance)),
          m_taken(m_columns * m_rows)
    {}

    void add(const QPointF& place)
    {
        const double column = (place.x() - m_origin.x()) * m_cell;
        const double row = (place.y() - m_origin.y()) * m_cell;
        if (!(column >= 0.0 && row >= 0.0 && column < double(m_columns) && row < double(m_rows)))
            return;
        const std::size_t index = static_cast<std::size_t>(row) * m_columns + static_cast<std::size_t>(column);
        if (m_taken[index])
            return;
        m_taken[index] = true;
        m_places.append(place);
    }

    QPolygonF take() { return std::move(m_places); }

private:
    static constexpr double margin = 32.0; // pixels, for symbols whose centre is outside the canvas

    static std::size_t cells(double length, double distance)
    {
        return static_cast<std::size_t>(std::ceil((std::max(length, 0.0) + 2.0 * margin) / distance)) + 1;
    }

    QPointF m_origin;
    double m_cell;
    std::size_t m_columns;
    std::size_t m_rows;
    std::vector<bool> m_taken;
    QPolygonF m_places;
};

/// A curve with gaps where its points are not finite. Of many symbols, it draws only those that are seen, and remembers them
/// until points or axes change.
class GapCurve : public QwtPlotCurve
{
public:
    explicit GapCurve(const QwtText& name) : QwtPlotCurve(name) { setPaintAttribute(FilterPoints); }

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
        m_projection.reset();
        m_points = points;
        setSamples(points);
    }

    QRectF boundingRect() const override { return m_bounds; }

    void drawSeries(QPainter* painter, const QwtScaleMap& x, const QwtScaleMap& y, const QRectF& canvas, int /*from*/,
                    int /*to*/) const override
    {
        if (style() == NoCurve && symbol() != nullptr)
            return drawSeen(painter, x, y, canvas);
        const bool wasRounding = QwtPainter::roundingAlignment();
        const bool wasSplitting = QwtPainter::polylineSplitting();
        // The pattern would begin again in each piece of a split line, and dashes longer than a piece would make a solid line.
        QwtPainter::setPolylineSplitting(wasSplitting && pen().style() == Qt::SolidLine);
        for (const auto& [first, last] : m_runs) {
            // Whole pixels would make steps of a smooth curve. Points on the same pixel are left out of a dense one.
            QwtPainter::setRoundingAlignment(last - first > mostDrawnExactly);
            QwtPlotCurve::drawSeries(painter, x, y, canvas, first, last);
        }
        QwtPainter::setPolylineSplitting(wasSplitting);
        QwtPainter::setRoundingAlignment(wasRounding);
    }

private:
    static constexpr int mostDrawnExactly = 20000;
    static constexpr int mostSymbolsDrawnExactly = 2000;

    void drawSeen(QPainter* painter, const QwtScaleMap& x, const QwtScaleMap& y, const QRectF& canvas) const
    {
        const Projection projection(x, y, canvas);
        if (!m_projection || !(projection == *m_projection)) {
            m_projection = projection;
            findSeen(x, y, canvas);
        }
        painter->save();
        symbol()->drawSymbols(painter, m_seen);
        painter->restore();
    }

    void findSeen(const QwtScaleMap& x, const QwtScaleMap& y, const QRectF& canvas) const
    {
        const bool isThinned = m_points.size() > mostSymbolsDrawnExactly;
        const double size = std::max(symbol()->size().width(), 1);
        Thinning thinning(canvas, isThinned ? std::max(size / 4.0, 1.0) : 1.0);
        m_seen.clear();
        for (const auto& [first, last] : m_runs)
            for (int i = first; i <= last; ++i) {
                const QPointF& point = m_points[i];
                const QPointF place(x.transform(point.x()), y.transform(point.y()));
                if (isThinned)
                    thinning.add(place);
                else
                    m_seen.append(place);
            }
        if (isThinned)
            m_seen = thinning.take();
    }

    /// QRectF::united ignores rectangles without an area.
    static QRectF united(const QRectF& bounds, const QPointF& point)
    {
        return {QPointF(std::min(bounds.left(), point.x()), std::min(bounds.top(), point.y())),
                QPointF(std::max(bounds.right(), point.x()), std::max(bounds.bottom(), point.y()))};
    }

    std::vector<std::pair<int, int>> m_runs; ///< the first and last points between gaps
    QRectF m_bounds{0.0, 0.0, -1.0, -1.0};
    QVector<QPointF> m_points;
    mutable std::optional<Projection> m_projection; ///< of m_seen; absent if m_seen is out of date
    mutable QPolygonF m_seen;                       ///< the places of the symbols that are drawn, in pixels
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

/// A text that is broken into lines where it is too long.
QwtText wrapped(const QString& text)
{
    QwtText lines(text, QwtText::PlainText);
    lines.setRenderFlags(Qt::AlignCenter | Qt::TextWordWrap);
    return lines;
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

/// Returns how many points of a series are missing on logarithmic axes because they are not greater than 0.
std::size_t countLeftOut(const Series& series, const PlotData& data)
{
    const auto isMissing = [](double value, Scale scale) {
        return scale == Scale::Logarithmic && value < smallestOnLogarithmicScale;
    };
    std::size_t missing = 0;
    for (std::size_t i = 0; i < std::min(series.x.size(), series.y.size()); ++i)
        missing += isMissing(series.x[i], data.x.scale) || isMissing(series.y[i], data.y.scale) ? 1 : 0;
    return missing;
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

/// A logarithmic scale that ends where the data end. If it is short, the numbers 2 and 5 of each decade have labels too.
class LogarithmicScale : public QwtLogScaleEngine
{
public:
    LogarithmicScale() { setAttribute(Floating); }

    QwtScaleDiv divideScale(double from, double to, int majorSteps, int minorSteps, double step) const override
    {
        constexpr int fewest = 4; // labels
        constexpr int whole = 10; // minor steps of a decade
        QwtScaleDiv marks = QwtLogScaleEngine::divideScale(from, to, majorSteps, std::max(minorSteps, whole), step);
        QList<double> labels = marks.ticks(QwtScaleDiv::MajorTick);
        if (labels.size() >= fewest || labels.isEmpty())
            return marks;
        QList<double> minor;
        for (const auto type : {QwtScaleDiv::MediumTick, QwtScaleDiv::MinorTick})
            for (const double tick : marks.ticks(type))
                (isLabelled(tick) ? labels : minor).append(tick);
        std::sort(labels.begin(), labels.end());
        marks.setTicks(QwtScaleDiv::MajorTick, labels);
        marks.setTicks(QwtScaleDiv::MediumTick, {});
        marks.setTicks(QwtScaleDiv::MinorTick, minor);
        return marks;
    }

private:
    static bool isLabelled(double tick)
    {
        constexpr double tolerance = 1e-6;
        const double leading = tick / std::pow(10.0, std::floor(std::log10(tick) + tolerance));
        return std::fabs(leading - 2.0) < tolerance || std::fabs(leading - 5.0) < tolerance;
    }
};

void setScale(QwtPlot& plot, int axis, const Axis& data)
{
    const bool isLogarithmic = data.scale == Scale::Logarithmic;
    const bool wasLogarithmic = dynamic_cast<QwtLogScaleEngine*>(plot.axisScaleEngine(axis)) != nullptr;
    if (isLogarithmic != wasLogarithmic)
        plot.setAxisScaleEngine(axis, isLogarithmic ? static_cast<QwtScaleEngine*>(new LogarithmicScale)
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
    const bool hasItems = hasSameKinds(data);
    const bool isSameScale = data.x.scale == m_data.x.scale && data.y.scale == m_data.y.scale;
    m_data.title = data.title;
    m_data.x = data.x;
    m_data.y = data.y;
    m_data.bands = data.bands;
    setAxes();
    if (!hasItems) {
        m_data.series = data.series;
        makeItems();
        setPoints();
    }
    for (std::size_t i = 0; hasItems && i < data.series.size(); ++i)
        change(i, data.series[i], isSameScale);
    setFooter();
    makeBands();
}

/// Changes only what differs: a test may have a million points.
void PlotItems::change(std::size_t i, const Series& series, bool isSameScale)
{
    Series& shown = m_data.series[i];
    QwtPlotCurve& curve = *m_curves[i];
    if (shown.name != series.name) {
        curve.setTitle(plain(series.name));
        curve.setVisible(true);
    }
    const bool hasOtherStyle = shown.style != series.style || shown.isFaint != series.isFaint;
    const bool hasSamePoints = isSameScale && shown.x == series.x && shown.y == series.y;
    shown.name = series.name;
    shown.style = series.style;
    shown.isFaint = series.isFaint;
    if (hasOtherStyle)
        setStyle(curve, series);
    if (hasSamePoints)
        return;
    shown.x = series.x;
    shown.y = series.y;
    setPoints(i);
}

void PlotItems::setLook(PlotLook look)
{
    m_look = std::move(look);
    colourPlot();
    makeItems();
    setPoints();
    setFooter();
    makeBands();
    setAxes();
}

bool PlotItems::hasSameKinds(const PlotData& data) const
{
    const auto isSame = [](const Series& one, const Series& other) { return one.kind == other.kind; };
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
}

void PlotItems::addCurve(const Series& series, bool isInLegend)
{
    auto* const curve = new GapCurve(plain(series.name));
    curve->setItemAttribute(QwtPlotItem::Legend, isInLegend);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowLine, series.kind == SeriesKind::Line);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowSymbol, series.kind == SeriesKind::Symbols);
    curve->setLegendIconSize(legendIconSize());
    setStyle(*curve, series);
    curve->setZ(series.kind == SeriesKind::Symbols ? 30.0 : 20.0);
    curve->attach(&m_plot);
    m_curves.push_back(curve);
}

void PlotItems::setStyle(QwtPlotCurve& curve, const Series& series) const
{
    curve.setPen(series.isFaint ? m_look.faintPen(series.style) : m_look.linePen(series.style));
    if (series.kind != SeriesKind::Symbols)
        return;
    curve.setStyle(QwtPlotCurve::NoCurve);
    curve.setSymbol(makeSymbol(m_look, series.style)); // takes ownership
}

void PlotItems::setPoints()
{
    m_leftOut.assign(m_curves.size(), 0);
    for (std::size_t i = 0; i < m_curves.size(); ++i)
        setPoints(i);
}

void PlotItems::setPoints(std::size_t i)
{
    static_cast<GapCurve*>(m_curves[i])->setPoints(pointsOf(m_data.series[i], m_data));
    m_leftOut[i] = countLeftOut(m_data.series[i], m_data);
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
        QwtText text = wrapped(axisTitle(data));
        text.setFont(m_look.font);
        m_plot.setAxisTitle(axis, text);
    };
    setTitle(QwtPlot::xBottom, m_data.x);
    setTitle(QwtPlot::yLeft, m_data.y);
}

void PlotItems::setFooter()
{
    QStringList sentences;
    if (m_data.series.size() > mostInLegend)
        sentences << QCoreApplication::translate("vxPlot", "The legend shows the first %1 of %2 curves.")
                         .arg(mostInLegend)
                         .arg(m_data.series.size());
    const std::size_t leftOut = std::accumulate(m_leftOut.begin(), m_leftOut.end(), std::size_t(0));
    if (leftOut > 0)
        sentences << QCoreApplication::translate(
                         "vxPlot", "Points that are not greater than 0 and missing on a logarithmic axis: %1.")
                         .arg(leftOut);
    QwtText text = wrapped(sentences.join(QLatin1Char(' ')));
    text.setFont(m_look.font);
    if (text != m_plot.footer())
        m_plot.setFooter(text);
}

void PlotItems::fitLabels(int width)
{
    constexpr int most = 8; // labels, which is what Qwt takes
    constexpr int fewest = 2;
    const int axis = QwtPlot::xBottom;
    for (int labels = most; labels >= fewest; --labels) {
        m_plot.setAxisMaxMajor(axis, labels);
        m_plot.updateAxes();
        if (m_plot.axisScaleDraw(axis)->minLength(m_plot.axisFont(axis)) <= width)
            return;
    }
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
