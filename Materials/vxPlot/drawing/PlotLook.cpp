#include "vxPlot/drawing/PlotLook.h"

#include <QFontMetricsF>
#include <QWidget>

#include <iterator>

namespace vxPlot {

namespace {

std::vector<QColor> onLightGround()
{
    return {QColor(0x00, 0x72, 0xb2), QColor(0xd5, 0x5e, 0x00), QColor(0x00, 0x8a, 0x65), QColor(0xb0, 0x56, 0x8a),
            QColor(0x20, 0x20, 0x20), QColor(0xa8, 0x72, 0x00), QColor(0x2a, 0x87, 0xc4)};
}

std::vector<QColor> onDarkGround()
{
    return {QColor(0x56, 0xb4, 0xe9), QColor(0xe6, 0x9f, 0x00), QColor(0x2b, 0xc4, 0x9a), QColor(0xe3, 0x9c, 0xc4),
            QColor(0xf0, 0xe4, 0x42), QColor(0xf0, 0x7a, 0x2a), QColor(0xf0, 0xf0, 0xf0)};
}

QColor between(const QColor& one, const QColor& other, double part)
{
    const auto mixed = [part](int from, int to) { return from + static_cast<int>(part * (to - from)); };
    return {mixed(one.red(), other.red()), mixed(one.green(), other.green()), mixed(one.blue(), other.blue())};
}

} // namespace

QPen PlotLook::linePen(std::size_t style) const
{
    constexpr Qt::PenStyle dashes[] = {Qt::SolidLine, Qt::DashLine, Qt::DashDotLine, Qt::DotLine};
    return {colour(style), lineWidth, dashes[style % std::size(dashes)], Qt::FlatCap, Qt::RoundJoin};
}

QPen PlotLook::faintPen(std::size_t style) const
{
    return {colour(style), lineWidth / 2.0, Qt::DotLine, Qt::FlatCap, Qt::RoundJoin};
}

PlotLook printedLook()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(15);
    return {Qt::white, Qt::white, Qt::black, QColor(0xd8, 0xd8, 0xd8), onLightGround(), font};
}

PlotLook screenLook(const QWidget& widget)
{
    constexpr int half = 128;
    constexpr double usualHeight = 16.0; // of a line of text, in pixels
    const QPalette& colours = widget.palette();
    const QColor& ground = colours.color(QPalette::Base);
    const QColor& text = colours.color(QPalette::WindowText);
    const double scale = QFontMetricsF(widget.font()).height() / usualHeight;
    return {ground,
            colours.color(QPalette::Window),
            text,
            between(ground, text, 0.2),
            ground.lightness() < half ? onDarkGround() : onLightGround(),
            widget.font(),
            2.0 * scale,
            8.0 * scale};
}

} // namespace vxPlot
