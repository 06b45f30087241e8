#include "vxPlot/PlotTable.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using testing::ElementsAre;
using vxPlot::PlotData;
using vxPlot::SeriesKind;

constexpr double gap = std::numeric_limits<double>::quiet_NaN();

PlotData twoCurvesAndPoints()
{
    PlotData plot;
    plot.x = {"stretch", "1"};
    plot.y = {"nominal stress", "MPa"};
    plot.series = {{"Seal, dry", SeriesKind::Line, 0, {1.0, 1.5, 2.0}, {0.0, 0.1, gap}},
                   {"Pad", SeriesKind::Line, 1, {1.0, 1.5, 2.0}, {0.0, 1e-7, 3e21}},
                   {"Test", SeriesKind::Symbols, 1, {1.25}, {0.3}}};
    return plot;
}

TEST(PlotTable, SharesTheAbscissasOfCurvesThatHaveTheSame)
{
    const vxPlot::PlotTable table = plotTable(twoCurvesAndPoints());
    EXPECT_THAT(table.headers, ElementsAre("stretch [1]", "Seal, dry: nominal stress [MPa]",
                                           "Pad: nominal stress [MPa]", "stretch [1]", "Test: nominal stress [MPa]"));
    EXPECT_EQ(table.rows(), 3U);
}

TEST(PlotTable, WritesNumbersInFullAndGapsAsEmptyCells)
{
    const std::string text = tableText(plotTable(twoCurvesAndPoints()), ',');
    EXPECT_EQ(text, "stretch [1],\"Seal, dry: nominal stress [MPa]\",Pad: nominal stress [MPa],stretch [1],"
                    "Test: nominal stress [MPa]\n"
                    "1,0,0,1.25,0.3\n"
                    "1.5,0.1,1e-07,,\n"
                    "2,,3e+21,,\n");
}

TEST(PlotTable, KeepsEachCellInOneCellOfASpreadsheet)
{
    PlotData plot;
    plot.x = {"time", "s"};
    plot.y = {"strain", ""};
    plot.series = {{"a\tb\n\"c\"", SeriesKind::Line, 0, {1.0}, {2.0}}};
    EXPECT_EQ(tableText(plotTable(plot), '\t'), "time [s]\ta b \"c\": strain [1]\n1\t2\n");
    EXPECT_EQ(tableText(plotTable(plot), ','), "time [s],\"a\tb\n\"\"c\"\": strain [1]\"\n1,2\n");
}

TEST(PlotTable, OfAPlotWithoutSeriesIsAnEmptyLine)
{
    EXPECT_EQ(tableText(vxPlot::plotTable({}), ','), "\n");
}

} // namespace
