#include "vxPlot/drawing/PlotItems.h"

#include <QLabel>
#include <gmock/gmock.h>
#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>

namespace {

using vxPlot::PlotData;
using vxPlot::PlotItems;
using vxPlot::SeriesKind;

PlotData lines(std::size_t count, double height)
{
    PlotData plot;
    for (std::size_t i = 0; i < count; ++i)
        plot.series.push_back({"Line " + std::to_string(i), SeriesKind::Line, i, {0.0, 1.0}, {0.0, height}});
    return plot;
}

TEST(PlotItems, KeepsTheItemsWhileOnlyPointsChange)
{
    QwtPlot plot;
    PlotItems items(plot, vxPlot::printedLook());
    items.show(lines(2, 1.0));
    const auto before = items.curves();
    items.show(lines(2, 5.0));
    EXPECT_EQ(items.curves(), before);
    EXPECT_EQ(items.curves().front()->boundingRect().bottom(), 5.0);
    items.show(lines(3, 5.0));
    EXPECT_EQ(items.curves().size(), 3U);
    EXPECT_EQ(plot.itemList(QwtPlotItem::Rtti_PlotCurve).size(), 3);
}

TEST(PlotItems, ScalesTheAxesToTheCurvesAndNotToTheBands)
{
    QwtPlot plot;
    PlotItems items(plot, vxPlot::printedLook());
    PlotData data = lines(1, 1.0);
    data.bands = {{"unstable", 0, {0.5, 1000.0}}};
    items.show(data);
    plot.replot();
    EXPECT_LT(plot.axisInterval(QwtPlot::xBottom).maxValue(), 10.0);
    data.x.range = vxPlot::Interval{0.25, 0.5};
    items.show(data);
    plot.replot();
    EXPECT_EQ(plot.axisInterval(QwtPlot::xBottom), QwtInterval(0.25, 0.5));
}

TEST(PlotItems, DistinguishesNeighboursByColourAndDashes)
{
    for (const vxPlot::PlotLook& look : {vxPlot::printedLook(), vxPlot::screenLook(QLabel())})
        for (std::size_t i = 0; i < 27; ++i) {
            EXPECT_NE(look.linePen(i).color(), look.linePen(i + 1).color());
            EXPECT_NE(look.linePen(i).style(), look.linePen(i + 1).style());
            for (std::size_t other = 0; other < i; ++other)
                EXPECT_NE(look.linePen(i), look.linePen(other));
        }
}

/// The ratio of contrast of two colours by the Web Content Accessibility Guidelines 2.1; 3 is enough for lines.
double contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

TEST(PlotItems, HaveColoursThatCanBeSeenOnLightAndDarkGround)
{
    QLabel dark;
    QPalette colours(QColor(53, 53, 53));
    colours.setColor(QPalette::Base, QColor(35, 35, 35));
    dark.setPalette(colours);
    for (const vxPlot::PlotLook& look : {vxPlot::printedLook(), vxPlot::screenLook(dark)})
        for (const QColor& colour : look.series)
            EXPECT_GE(contrast(colour, look.ground), 3.0) << colour.name().toStdString();
}

TEST(PlotItems, WriteNumbersShortAndWithADecimalPoint)
{
    EXPECT_EQ(vxPlot::numberText(0.25, 8), QStringLiteral("0.25"));
    EXPECT_EQ(vxPlot::numberText(2e8 + 1e8, 2), QStringLiteral("3e8"));
    EXPECT_EQ(vxPlot::numberText(1.5e-7, 4), QStringLiteral("1.5e-7"));
    EXPECT_EQ(vxPlot::numberText(1e-100, 4), QStringLiteral("1e-100"));
}

} // namespace
