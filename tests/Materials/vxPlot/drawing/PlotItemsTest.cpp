#include "vxPlot/drawing/PlotItems.h"

#include "vxPlot/drawing/Picture.h"

#include <QImage>
#include <QLabel>
#include <gmock/gmock.h>
#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_draw.h>
#include <qwt_text.h>

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

TEST(PlotItems, TakesFewerLabelsInANarrowPlot)
{
    constexpr int width = 250;
    QwtPlot plot;
    PlotItems items(plot, vxPlot::printedLook());
    PlotData data = lines(1, 1.0);
    data.series[0].x = {0.0, 3.6e6}; // an hour of creep in s
    items.show(data);
    const auto need = [&plot] {
        return plot.axisScaleDraw(QwtPlot::xBottom)->minLength(plot.axisFont(QwtPlot::xBottom));
    };
    plot.updateAxes();
    ASSERT_GT(need(), width);
    items.fitLabels(width);
    EXPECT_LE(need(), width);
    items.fitLabels(2000);
    EXPECT_GT(need(), width);
}

TEST(PlotItems, KeepsTheItemsWhileOnlyNamesChange)
{
    QwtPlot plot;
    PlotItems items(plot, vxPlot::printedLook());
    items.show(lines(2, 1.0));
    const auto before = items.curves();
    PlotData renamed = lines(2, 1.0);
    renamed.series[1].name = "Other";
    items.show(renamed);
    EXPECT_EQ(items.curves(), before);
    EXPECT_EQ(items.curves()[1]->title().text(), QStringLiteral("Other"));
}

/// Returns how many symbols a drawing of a cloud of points has.
int symbolsOfCloud(std::size_t count)
{
    PlotData data;
    data.series.push_back({"Cloud", SeriesKind::Symbols, 0, {}, {}});
    for (std::size_t i = 0; i < count; ++i) {
        data.series[0].x.push_back(double(i % 1000));
        data.series[0].y.push_back(double((i * 7919) % 997));
    }
    const QByteArray drawing = vxPlot::pictureFile(data, vxPlot::PictureFormat::Svg, QSize(400, 300));
    return drawing.count("<ellipse") + drawing.count("<circle");
}

TEST(PlotItems, DrawEachOfFewSymbolsAndOfManyOnlyThoseThatAreSeen)
{
    EXPECT_EQ(symbolsOfCloud(1500), 1500);
    // The picture has 30,000 squares of 2 by 2 pixels.
    const int drawn = symbolsOfCloud(300000);
    EXPECT_LT(drawn, 30000);
    EXPECT_GT(drawn, 5000);
}

TEST(PlotItems, SaysHowManyPointsALogarithmicAxisLeavesOut)
{
    QwtPlot plot;
    PlotItems items(plot, vxPlot::printedLook());
    PlotData data = lines(1, 2.0);
    data.series[0].x = {0.5, 1.0, 2.0};
    data.series[0].y = {-3.0, 0.0, 4.0};
    items.show(data);
    EXPECT_EQ(plot.footer().text(), QString());
    data.y.scale = vxPlot::Scale::Logarithmic;
    items.show(data);
    EXPECT_EQ(plot.footer().text(),
              QStringLiteral("Points that are not greater than 0 and missing on a logarithmic axis: 2."));
    data.y.scale = vxPlot::Scale::Linear;
    items.show(data);
    EXPECT_EQ(plot.footer().text(), QString());
}

TEST(PlotItems, FitLogarithmicAxesToTheData)
{
    QwtPlot plot;
    PlotItems items(plot, vxPlot::printedLook());
    PlotData data = lines(1, 2.0);
    data.series[0].x = {0.4, 4.0};
    data.series[0].y = {1.0, 2.0};
    data.x.scale = vxPlot::Scale::Logarithmic;
    items.show(data);
    plot.replot();
    EXPECT_NEAR(plot.axisInterval(QwtPlot::xBottom).minValue(), 0.4, 1e-9);
    EXPECT_NEAR(plot.axisInterval(QwtPlot::xBottom).maxValue(), 4.0, 1e-9);
    const QList<double> labels = plot.axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick);
    ASSERT_EQ(labels.size(), 3);
    EXPECT_NEAR(labels[0], 0.5, 1e-9);
    EXPECT_NEAR(labels[2], 2.0, 1e-9);
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

TEST(PlotItems, ShowTheDashesOfACurveWithManyPointsOnTheScreen)
{
    QwtPlot plot;
    plot.resize(400, 300);
    PlotItems items(plot, vxPlot::printedLook());
    PlotData data = lines(2, 1.0);
    data.series.erase(data.series.begin()); // a solid line
    data.series[0].x.clear();
    data.series[0].y.clear();
    for (int i = 0; i <= 1000; ++i) {
        data.series[0].x.push_back(0.001 * i);
        data.series[0].y.push_back(0.001 * i);
    }
    items.show(data);
    plot.replot();
    const QImage canvas = plot.canvas()->grab().toImage();
    int gaps = 0;
    bool wasLine = false;
    for (int column = 0; column < canvas.width(); ++column) {
        bool isLine = false;
        for (int row = 0; row < canvas.height(); ++row)
            isLine = isLine || canvas.pixelColor(column, row).saturation() > 60;
        gaps += wasLine && !isLine ? 1 : 0;
        wasLine = isLine;
    }
    EXPECT_GT(gaps, 5);
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
