// The view of the tables of the inspector, with tables of the tests.

#include "table/ContentView.h"

#include <QApplication>
#include <QScrollBar>
#include <QString>
#include <gtest/gtest.h>

#include <vector>

namespace {

using vxInspector::Cell;
using vxInspector::ContentView;
using vxInspector::TableContent;

QString words(int count)
{
    QStringList all;
    for (int i = 0; i < count; ++i)
        all << QStringLiteral("by ten");
    return all.join(QLatin1Char(' '));
}

/// A table of findings: a kind, a long text and a long remedy in each row.
TableContent findings()
{
    TableContent table;
    table.headers = QStringList{QStringLiteral("Kind"), QStringLiteral("Finding"), QStringLiteral("Remedy")};
    for (int row = 0; row < 12; ++row)
        table.rows.push_back({{Cell{QStringLiteral("Doubt")}, Cell{words(20)}, Cell{words(9 + row)}}});
    return table;
}

/// Returns whether a row is lower than its texts in the present widths of their columns.
bool isAnyRowCut(const ContentView& view)
{
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        for (int column = 0; column < view.model()->columnCount(); ++column)
            if (view.rowHeight(row) < view.sizeHintForIndex(view.model()->index(row, column)).height())
                return true;
    }
    return false;
}

/// Returns the widths of all columns, and the heights of all rows.
std::vector<int> sizesOf(const ContentView& view)
{
    std::vector<int> sizes;
    for (int column = 0; column < view.model()->columnCount(); ++column)
        sizes.push_back(view.columnWidth(column));
    for (int row = 0; row < view.model()->rowCount(); ++row)
        sizes.push_back(view.rowHeight(row));
    return sizes;
}

// Otherwise the scroll bar covers the last lines of the last column in the first picture of the table.
TEST(ContentView, LeavesRoomForItsScrollBarBeforeItIsPainted)
{
    for (const int width : {280, 320, 360, 400}) {
        ContentView view;
        view.resize(width, 240);
        view.show();
        QApplication::processEvents();
        view.setContent(findings());
        EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
        EXPECT_FALSE(isAnyRowCut(view)) << width;
        const std::vector<int> sizes = sizesOf(view);
        QApplication::processEvents();
        EXPECT_EQ(sizesOf(view), sizes) << width;
        EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << width;
    }
}

/// A table of values with one row: a name, a value, a unit in one line, and a bar.
TableContent values(const QString& name)
{
    Cell unit{QStringLiteral("kg mm^2 ms^-3 K^-1")};
    unit.isInOneLine = true;
    Cell range;
    range.bar = vxInspector::RangeBar();
    TableContent table;
    table.headers =
        QStringList{QStringLiteral("Name"), QStringLiteral("Value"), QStringLiteral("Unit"), QStringLiteral("Range")};
    table.rows.push_back({{Cell{name}, Cell{QStringLiteral("1.2345")}, unit, range}});
    return table;
}

TEST(ContentView, HasNamesWholeBeforeUnitsInOneLineAndWideBars)
{
    const QString name = QStringLiteral("Longitudinalwellengeschwindigkeit");
    ContentView view;
    const int character = view.fontMetrics().averageCharWidth();
    const int wanted = view.fontMetrics().horizontalAdvance(name);
    view.resize(wanted + 31 * character, 240);
    view.show();
    view.setContent(values(name));
    EXPECT_GT(view.columnWidth(0), wanted) << "a word that is wider than half of the table";
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    EXPECT_GE(view.columnWidth(3), 6 * character);
}

TEST(ContentView, GivesNamesThatAreElidedAllTheWidthThatOthersCanSpare)
{
    const QString name = QStringLiteral("Longitudinalwellengeschwindigkeit");
    ContentView view;
    const int character = view.fontMetrics().averageCharWidth();
    const int wanted = view.fontMetrics().horizontalAdvance(name);
    view.resize(wanted + 12 * character, 240);
    view.show();
    view.setContent(values(name));
    EXPECT_LT(view.columnWidth(0), wanted);
    EXPECT_GT(view.columnWidth(0), wanted / 2);
    EXPECT_LT(view.columnWidth(2), view.fontMetrics().horizontalAdvance(QStringLiteral("kg mm^2 ms^-3")));
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
}

TEST(ContentView, KeepsLongNamesInSightIfItIsScrolled)
{
    const QString name = QStringLiteral("Longitudinalwellengeschwindigkeit");
    TableContent table = values(name);
    for (int i = 0; i < 12; ++i) {
        table.headers << QStringLiteral("Steel");
        table.rows.front().cells.push_back(Cell{QStringLiteral("1.2345678e-11")});
    }
    ContentView view;
    view.resize(view.fontMetrics().horizontalAdvance(name) * 7 / 4, 240);
    view.show();
    view.setContent(table);
    QApplication::processEvents();
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    const auto* const names = view.findChild<QTableView*>(QStringLiteral("frozenColumn"));
    EXPECT_TRUE(names->isVisible());
}

} // namespace
