#include "plot/PlotView.h"

#include "Gui/FileDialog.h"
#include "Kelta/Exceptions.h"
#include "vxPlot/PlotTable.h"
#include "vxPlot/drawing/Picture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QSaveFile>
#include <QToolTip>
#include <QWheelEvent>
#include <qwt_legend.h>
#include <qwt_picker_machine.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_picker.h>
#include <qwt_plot_zoneitem.h>
#include <qwt_scale_map.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace vxInspector {

namespace {

using vxPlot::PlotData;

constexpr double zoomStep = 1.25;

/// The cross-hair.
class ValuePicker : public QwtPlotPicker
{
public:
    ValuePicker(QwtPlot& plot, const PlotData& data)
        : QwtPlotPicker(QwtPlot::xBottom, QwtPlot::yLeft, QwtPicker::CrossRubberBand, QwtPicker::ActiveOnly,
                        plot.canvas()),
          m_data(data)
    {
        setStateMachine(new QwtPickerTrackerMachine); // takes ownership
    }

protected:
    QwtText trackerTextF(const QPointF& point) const override
    {
        QwtText text(numberOn(QwtPlot::xBottom, point.x(), m_data.x) + QStringLiteral(", ") +
                         numberOn(QwtPlot::yLeft, point.y(), m_data.y),
                     QwtText::PlainText);
        text.setBackgroundBrush(plot()->palette().color(QPalette::Window));
        text.setColor(plot()->palette().color(QPalette::Text));
        return text;
    }

private:
    /// Rounding errors of the place of a pixel are no value: they are 0.
    QString numberOn(int scale, double number, const vxPlot::Axis& axis) const
    {
        constexpr double rounding = 1e-9;
        const bool isZero = std::fabs(number) < rounding * std::fabs(plot()->axisScaleDiv(scale).range());
        return numberWithUnit(isZero && axis.scale == vxPlot::Scale::Linear ? 0.0 : number, axis);
    }

    static QString numberWithUnit(double number, const vxPlot::Axis& axis)
    {
        constexpr int digits = 4;
        const QString text = vxPlot::numberText(number, digits);
        return axis.unit.empty() || axis.unit == "1" ? text
                                                     : text + QLatin1Char(' ') + QString::fromStdString(axis.unit);
    }

    const PlotData& m_data;
};

bool isSameAxis(const vxPlot::Axis& one, const vxPlot::Axis& other)
{
    return one.name == other.name && one.unit == other.unit && one.scale == other.scale;
}

QByteArray contentOf(const PlotData& plot, const QString& ending)
{
    using vxPlot::PictureFormat;
    if (ending == QLatin1String("csv"))
        return QByteArray::fromStdString(vxPlot::tableText(vxPlot::plotTable(plot), ','));
    if (ending == QLatin1String("svg"))
        return vxPlot::pictureFile(plot, PictureFormat::Svg);
    return vxPlot::pictureFile(plot, ending == QLatin1String("pdf") ? PictureFormat::Pdf : PictureFormat::Png);
}

bool isKnownEnding(const QString& ending)
{
    return QStringList{"png", "svg", "pdf", "csv"}.contains(ending);
}

} // namespace

PlotView::PlotView(QWidget* parent)
    : QwtPlot(parent),
      m_items(std::make_unique<vxPlot::PlotItems>(*this, vxPlot::screenLook(*this))),
      m_copyPicture(new QAction(this)),
      m_copyTable(new QAction(this)),
      m_save(new QAction(this)),
      m_reset(new QAction(this))
{
    setObjectName(QStringLiteral("inspectorPlot"));
    setFocusPolicy(Qt::StrongFocus);
    auto* const legend = new QwtLegend;
    legend->setDefaultItemMode(QwtLegendData::Clickable);
    insertLegend(legend, QwtPlot::BottomLegend); // takes ownership
    connect(legend, &QwtLegend::clicked, this, [this](const QVariant& item) {
        if (const QwtPlotItem* const clicked = infoToItem(item))
            toggle(clicked->title().text().toStdString());
    });
    createActions();
    createPickers();
    canvas()->installEventFilter(this);
    canvas()->setFocusPolicy(Qt::NoFocus); // the keys are those of the plot as a whole
    retranslate();
}

PlotView::~PlotView() = default;

void PlotView::createActions()
{
    m_copyPicture->setShortcut(QKeySequence::Copy);
    m_copyPicture->setShortcutContext(Qt::WidgetShortcut);
    for (QAction* const action : {m_copyPicture, m_copyTable, m_save, m_reset})
        addAction(action);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_copyPicture, &QAction::triggered, this, &PlotView::copyPicture);
    connect(m_copyTable, &QAction::triggered, this, &PlotView::copyTable);
    connect(m_save, &QAction::triggered, this, &PlotView::save);
    connect(m_reset, &QAction::triggered, this, &PlotView::resetZoom);
}

void PlotView::createPickers()
{
    new ValuePicker(*this, m_data); // belongs to the canvas
    auto* const zoom =
        new QwtPlotPicker(QwtPlot::xBottom, QwtPlot::yLeft, QwtPicker::RectRubberBand, QwtPicker::AlwaysOff, canvas());
    zoom->setStateMachine(new QwtPickerDragRectMachine);
    connect(zoom, QOverload<const QRectF&>::of(&QwtPlotPicker::selected), this, [this](const QRectF& range) {
        if (range.width() > 0.0 && range.height() > 0.0)
            zoomTo(range);
    });
}

void PlotView::retranslate()
{
    m_copyPicture->setText(tr("&Copy picture"));
    m_copyTable->setText(tr("Copy &table"));
    m_save->setText(tr("&Save as…"));
    m_reset->setText(tr("Show &everything"));
    setAccessibleName(tr("Plot"));
    setToolTip(tr("Drag a rectangle or turn the wheel to zoom; Home shows everything. A click on the legend hides a "
                  "curve."));
}

QSize PlotView::sizeHint() const
{
    const QFontMetrics font = fontMetrics();
    return {font.averageCharWidth() * 50, font.lineSpacing() * m_usualHeight};
}

QSize PlotView::minimumSizeHint() const
{
    const QFontMetrics font = fontMetrics();
    return {font.averageCharWidth() * 20, font.lineSpacing() * 12};
}

void PlotView::setPlot(PlotData plot)
{
    if (isSameAxis(plot.x, m_data.x) && isSameAxis(plot.y, m_data.y)) {
        plot.x.range = m_data.x.range;
        plot.y.range = m_data.y.range;
    }
    const bool wasZoomed = isZoomed();
    m_data = std::move(plot);
    showData();
    if (wasZoomed != isZoomed())
        Q_EMIT zoomChanged();
}

PlotData PlotView::shownPlot() const
{
    PlotData shown = m_data;
    const auto isHiddenOne = [this](const auto& one) { return isHidden(one.name); };
    shown.series.erase(std::remove_if(shown.series.begin(), shown.series.end(), isHiddenOne), shown.series.end());
    shown.bands.erase(std::remove_if(shown.bands.begin(), shown.bands.end(), isHiddenOne), shown.bands.end());
    return shown;
}

void PlotView::showData()
{
    m_items->show(m_data);
    showHidden();
    m_items->fitLabels(canvas()->width());
    replot();
}

/// A tool tip over the curves would hide them.
bool PlotView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !canvas()->geometry().contains(static_cast<QHelpEvent*>(event)->pos()))
        return QwtPlot::event(event);
    QToolTip::hideText();
    return true;
}

void PlotView::resizeEvent(QResizeEvent* event)
{
    QwtPlot::resizeEvent(event);
    m_items->fitLabels(canvas()->width());
    replot();
}

/// Hidden curves stay in the legend, crossed out.
void PlotView::showHidden()
{
    const auto show = [this](QwtPlotItem& item, const std::string& name) {
        const bool hidden = isHidden(name);
        if (item.isVisible() != hidden)
            return;
        item.setVisible(!hidden);
        QwtText title = item.title();
        QFont font = this->font();
        font.setStrikeOut(hidden);
        title.setFont(font);
        item.setTitle(title);
    };
    for (std::size_t i = 0; i < m_data.series.size(); ++i)
        show(*m_items->curves()[i], m_data.series[i].name);
    for (std::size_t i = 0; i < m_data.bands.size(); ++i)
        show(*m_items->bands()[i], m_data.bands[i].name);
}

void PlotView::toggle(const std::string& name)
{
    if (m_hidden.erase(name) == 0)
        m_hidden.insert(name);
    showHidden();
    replot();
}

void PlotView::zoomTo(const QRectF& range)
{
    m_data.x.range = vxPlot::Interval{range.left(), range.right()};
    m_data.y.range = vxPlot::Interval{range.top(), range.bottom()};
    showData();
    Q_EMIT zoomChanged();
}

void PlotView::resetZoom()
{
    if (!isZoomed())
        return;
    m_data.x.range.reset();
    m_data.y.range.reset();
    showData();
    Q_EMIT zoomChanged();
}

/// Works in pixels, so that it is right on logarithmic axes too.
void PlotView::zoomAbout(const QPointF& pixel, double factor)
{
    const auto zoomed = [factor](const QwtScaleMap& map, double about) {
        const double one = map.invTransform(about + (map.p1() - about) * factor);
        const double other = map.invTransform(about + (map.p2() - about) * factor);
        return std::minmax({one, other});
    };
    const auto [left, right] = zoomed(canvasMap(QwtPlot::xBottom), pixel.x());
    const auto [bottom, top] = zoomed(canvasMap(QwtPlot::yLeft), pixel.y());
    const double width = right - left;
    const double height = top - bottom;
    if (std::isfinite(width) && std::isfinite(height) && width > 1e-12 * std::fabs(right) &&
        height > 1e-12 * std::max(std::fabs(top), std::fabs(bottom)))
        zoomTo(QRectF(left, bottom, width, height));
}

void PlotView::keyPressEvent(QKeyEvent* event)
{
    const QPointF middle = QRectF(canvas()->contentsRect()).center();
    if (event->key() == Qt::Key_Home)
        resetZoom();
    else if (event->key() == Qt::Key_Plus)
        zoomAbout(middle, 1.0 / zoomStep);
    else if (event->key() == Qt::Key_Minus)
        zoomAbout(middle, zoomStep);
    else
        QwtPlot::keyPressEvent(event);
}

void PlotView::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120.0;
    const QPointF place = canvas()->mapFrom(this, event->position().toPoint());
    if (!QRectF(canvas()->contentsRect()).contains(place) || event->angleDelta().y() == 0)
        return QwtPlot::wheelEvent(event);
    zoomAbout(place, std::pow(zoomStep, -event->angleDelta().y() / notch));
    event->accept();
}

bool PlotView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == canvas() && event->type() == QEvent::MouseButtonDblClick)
        resetZoom();
    return QwtPlot::eventFilter(watched, event);
}

void PlotView::changeEvent(QEvent* event)
{
    QwtPlot::changeEvent(event);
    // The look itself sets palette and font of this widget.
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ApplicationFontChange ||
        event->type() == QEvent::ParentChange)
        Kelta::guarded(tr("The plot cannot be drawn"), [this] { updateLook(); });
}

void PlotView::updateLook()
{
    if (parentWidget() == nullptr || m_items == nullptr)
        return;
    m_items->setLook(vxPlot::screenLook(*parentWidget()));
    for (QwtPlotPicker* const picker : canvas()->findChildren<QwtPlotPicker*>())
        picker->setRubberBandPen(palette().color(QPalette::Text));
    showHidden();
    replot();
}

void PlotView::copyPicture() const
{
    Kelta::guarded(tr("The picture cannot be copied"),
                   [this] { QApplication::clipboard()->setImage(vxPlot::plotImage(shownPlot())); });
}

void PlotView::copyTable() const
{
    Kelta::guarded(tr("The table cannot be copied"), [this] {
        const vxPlot::PlotTable table = vxPlot::plotTable(shownPlot());
        QApplication::clipboard()->setText(QString::fromStdString(vxPlot::tableText(table, '\t')));
    });
}

void PlotView::save()
{
    Kelta::guarded(tr("The plot cannot be saved"), [this] {
        const QString filters = tr("Picture (*.png);;Drawing (*.svg);;Document (*.pdf);;Table (*.csv)");
        const QString path = Gui::FileDialog::getSaveFileName(this, tr("Save plot"), tr("curves"), filters);
        if (path.isEmpty())
            return;
        const QString ending = QFileInfo(path).suffix().toLower();
        if (!isKnownEnding(ending))
            throw std::runtime_error(tr(R"(The file "%1" is not written: its name must end in png, svg, pdf or csv.)")
                                         .arg(path)
                                         .toStdString());
        const QByteArray content = contentOf(shownPlot(), ending);
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
            throw std::runtime_error(
                tr(R"(The file "%1" cannot be written: %2)").arg(path, file.errorString()).toStdString());
    });
}

} // namespace vxInspector
