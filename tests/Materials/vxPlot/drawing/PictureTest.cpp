#include "vxPlot/drawing/Picture.h"

#include <QApplication>
#include <QSvgRenderer>
#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::Not;
using vxPlot::PictureFormat;
using vxPlot::PlotData;
using vxPlot::SeriesKind;

PlotData parabola()
{
    PlotData plot;
    plot.title = "Seal <b>1</b>";
    plot.x = {"stretch", "1"};
    plot.y = {"nominal stress", "MPa"};
    plot.series = {{"Curve of the seal", SeriesKind::Line, 0, {}, {}},
                   {"Points", SeriesKind::Symbols, 0, {1.5}, {2.0}}};
    for (int i = 0; i <= 100; ++i) {
        plot.series[0].x.push_back(1.0 + 0.01 * i);
        plot.series[0].y.push_back(0.0002 * i * i);
    }
    plot.bands = {{"unstable", 0, {1.8, 2.0}}};
    return plot;
}

std::string svgOf(const PlotData& plot)
{
    return pictureFile(plot, PictureFormat::Svg).toStdString();
}

/// Returns the number of points of an image whose colour is near to the given one.
int countNear(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor point = image.pixelColor(x, y);
            const int distance = std::abs(point.red() - colour.red()) + std::abs(point.green() - colour.green()) +
                                 std::abs(point.blue() - colour.blue());
            count += distance < 30 ? 1 : 0;
        }
    return count;
}

/// Returns the number of dark points in a column of an image.
int darkOn(const QImage& image, int column)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        count += qGray(image.pixel(column, y)) < 60 ? 1 : 0;
    return count;
}

/// Returns the middles of the lines that cross a column of an image: points that are darker than a limit.
std::vector<double> linesAcross(const QImage& image, int column, int darkness)
{
    std::vector<double> middles;
    int begin = -1;
    for (int y = 0; y < image.height(); ++y) {
        const bool isLine = qGray(image.pixel(column, y)) < darkness;
        if (isLine && begin < 0)
            begin = y;
        if (!isLine && begin >= 0)
            middles.push_back(0.5 * (begin + y - 1));
        if (!isLine)
            begin = -1;
    }
    return middles;
}

TEST(Picture, HasTheTicksOfItsAxisAtTheGridAlsoWithALineBelowThePlot)
{
    PlotData plot = parabola();
    plot.bands.clear();
    plot.series.resize(30, plot.series[0]); // more than the legend names, which the line below says
    const QImage image = QImage::fromData(pictureFile(plot, PictureFormat::Png, {900, 600}));
    int axis = 0; // the column with most dark points on the left
    for (int column = 0; column < image.width() / 4; ++column)
        if (darkOn(image, column) > darkOn(image, axis))
            axis = column;
    const std::vector<double> ticks = linesAcross(image, axis - 13, 60); // the short ones end before
    const std::vector<double> grid = linesAcross(image, axis + 30, 240);
    ASSERT_GE(ticks.size(), 3U);
    for (const double tick : ticks) {
        double distance = 1e9;
        for (const double line : grid)
            distance = std::min(distance, std::fabs(line - tick));
        EXPECT_LE(distance, 2.0) << "the tick at " << tick;
    }
}

TEST(Picture, IsAnImageWithTheCurveInItsColour)
{
    const QImage image = QImage::fromData(pictureFile(parabola(), PictureFormat::Png, {600, 400}));
    EXPECT_EQ(image.size(), QSize(1200, 800));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_GT(countNear(image, QColor(0x00, 0x72, 0xb2)), 1000);
}

TEST(Picture, HasTheTextsAsTheyAreInSvg)
{
    const std::string svg = svgOf(parabola());
    EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(svg)).isValid());
    for (const char* const text : {"nominal stress [MPa]", ">stretch<", "<title>Seal &lt;b&gt;1&lt;/b&gt;</title>",
                                   "Curve of the seal", "Points", "unstable", ">1.5<"})
        EXPECT_THAT(svg, HasSubstr(text));
}

TEST(Picture, IsAPdfOfItsSize)
{
    const std::string pdf = pictureFile(parabola(), PictureFormat::Pdf, {960, 480}).toStdString();
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_THAT(pdf, HasSubstr("/MediaBox [0 0 720.000000 360.000000]"));
}

TEST(Picture, DoesNotDependOnPaletteFontAndLocale)
{
    const QByteArray usual = pictureFile(parabola(), PictureFormat::Png);
    const QPalette colours = QApplication::palette();
    const QFont font = QApplication::font();
    QApplication::setPalette(QPalette(QColor(20, 20, 20)));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Serif"), 30));
    QLocale::setDefault(QLocale::German);
    const QByteArray other = pictureFile(parabola(), PictureFormat::Png);
    QLocale::setDefault(QLocale::C);
    QApplication::setFont(font);
    QApplication::setPalette(colours);
    EXPECT_EQ(usual, other);
}

TEST(Picture, LeavesOutNumbersThatALogarithmicAxisCannotShow)
{
    PlotData plot = parabola();
    plot.y.scale = vxPlot::Scale::Logarithmic;
    plot.series[0].y[50] = -1.0;
    plot.series[0].y[60] = 1e300;
    plot.series[0].y[70] = std::nan("");
    const std::string svg = svgOf(plot);
    EXPECT_THAT(svg, HasSubstr(">0.001<"));
    EXPECT_THAT(svg, Not(HasSubstr("nan")));
    EXPECT_THAT(svg, Not(HasSubstr("inf")));
}

TEST(Picture, CanBeMadeOfNothing)
{
    EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(svgOf({}))).isValid());
    PlotData gaps;
    gaps.series = {{"nothing", SeriesKind::Line, 0, {1.0, 2.0}, {std::nan(""), std::nan("")}}};
    gaps.x.scale = vxPlot::Scale::Logarithmic;
    EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(svgOf(gaps))).isValid());
}

TEST(Picture, OfAThousandCurvesHasALegendThatFits)
{
    PlotData plot;
    for (std::size_t i = 0; i < 1000; ++i)
        plot.series.push_back({"Curve " + std::to_string(i), SeriesKind::Line, i, {0.0, 1.0}, {0.0, double(i)}});
    const std::string svg = svgOf(plot);
    EXPECT_THAT(svg, HasSubstr("The legend shows the first 24 of 1000 curves."));
    EXPECT_THAT(svg, HasSubstr("Curve 23"));
    EXPECT_THAT(svg, Not(HasSubstr("Curve 24")));
}

} // namespace
