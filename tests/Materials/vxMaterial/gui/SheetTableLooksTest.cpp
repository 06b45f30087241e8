// The positions and sizes of the rows and columns of the property table.

#include "EditorTesting.h"

#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QToolBox>
#include <QToolTip>
#include <QtTest/QtTestGui>
#include <QtTest/qtestmouse.h>
#include <gtest/gtest.h>

#include <vector>

namespace {

using vxtest::Editor;

/// Replaces a value as if the user pastes it.
void enter(Editor& editor, int id, const QString& text)
{
    editor.table().setFocus();
    editor.table().setCurrentIndex(editor.table().model()->index(editor.rowOf(id), 2));
    QTest::keyClick(&editor.table(), Qt::Key_F2);
    QLineEdit* const line = vxtest::openEditor(editor.table());
    ASSERT_NE(line, nullptr);
    line->setText(text);
    QTest::keyClick(line, Qt::Key_Return);
}

QString listWithoutBlanks(int count)
{
    QString list = "0";
    for (int i = 1; i < count; ++i)
        list += QString(",%1").arg(12345 + i);
    return list;
}

TEST(SheetTableLooks, GivesEveryEditorTheSameRowHeights)
{
    vxtest::MaterialProject project;
    Mat::MaterialObject& second =
        *static_cast<Mat::MaterialObject*>(project.document().add_object("Mat::MaterialObject", "Second"));
    second.initCMaterial(vxMat::eMaterialType::StructuralSteel);
    Gui::MainWindow mainWindow;
    mainWindow.resize(1000, 800);
    mainWindow.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mainWindow));
    std::vector<std::vector<int>> heights;
    for (Mat::MaterialObject* const object : {&project.object(), &second, &project.object()}) {
        auto* const view = new MatGui::MaterialView(nullptr, object, &mainWindow);
        mainWindow.add_mdi_window(view);
        mainWindow.set_active_mdi_window(view);
        QCoreApplication::processEvents();
        const auto& table = *view->findChild<MatGui::SheetTableView*>();
        heights.emplace_back();
        for (int row = 0; row < table.model()->rowCount(); ++row)
            heights.back().push_back(table.rowHeight(row));
    }
    EXPECT_EQ(heights[1], heights[0]);
    EXPECT_EQ(heights[2], heights[0]);
}

/// A table with a material of many rows, without a window around it.
class Table
{
public:
    explicit Table(int width)
    {
        m_table.materialObject = &m_project.object();
        m_table.showMaterial(m_project.database().materials.at(40).get());
        m_table.show();
        resize(width);
    }
    void resize(int width)
    {
        m_table.resize(width, 300);
        QCoreApplication::processEvents();
    }
    int viewportWidth() const { return m_table.viewport()->width(); }
    /// Returns the widths of the shown columns, and the heights of the rows.
    std::vector<int> sizes() const
    {
        std::vector<int> all{m_table.columnWidth(1), m_table.columnWidth(2), m_table.columnWidth(3)};
        for (int row = 0; row < m_table.model()->rowCount(); ++row)
            all.push_back(m_table.rowHeight(row));
        return all;
    }

private:
    vxtest::MaterialProject m_project;
    MatGui::SheetTableView m_table;
};

TEST(SheetTableLooks, HasTheSizesOfItsWidthAfterAnyEarlierWidth)
{
    for (const int width : {350, 500, 800, 1200}) {
        const std::vector<int> expected = Table(width).sizes();
        for (const int before : {300, 2000}) {
            Table table(before);
            table.resize(width);
            EXPECT_EQ(table.sizes(), expected) << "from " << before << " to " << width;
        }
    }
}

TEST(SheetTableLooks, GivesEachRowTheHeightOfItsTextsAlsoIfTheScrollBarAppears)
{
    Editor editor;
    const QAbstractItemView& view = editor.table();
    const auto rowsFit = [&] {
        for (int row = 0; row < editor.rowCount(); ++row)
            if (editor.table().rowHeight(row) != view.sizeHintForRow(row))
                return false;
        return true;
    };
    QWidget* const frame = editor.view()->parentWidget();
    for (const QSize size : {QSize(1000, 700), QSize(720, 450), QSize(900, 300)}) {
        frame->resize(size);
        for (const char* const material : {"Air", "Nonlinear Structural Steel", "Concrete", "Plastic Example 1"}) {
            editor.doubleClick(editor.item(material));
            // The event loop shows or hides the scroll bar.
            QCoreApplication::processEvents();
            EXPECT_TRUE(QTest::qWaitFor(rowsFit)) << material << " at " << size.width();
        }
    }
}

TEST(SheetTableLooks, FitsIntoItsWidthUnlessThatIsVeryNarrow)
{
    for (const int width : {450, 800, 1200}) {
        const Table table(width);
        const std::vector<int> sizes = table.sizes();
        EXPECT_EQ(sizes[0] + sizes[1] + sizes[2], table.viewportWidth()) << width;
    }
}

TEST(SheetTableLooks, KeepsAListWithoutBlanksWithinTheTable)
{
    Editor editor;
    editor.doubleClick(editor.item("Plastic Example 1"));
    const int before = editor.table().columnWidth(2);
    const int height = editor.table().rowHeight(editor.rowOf(38));
    enter(editor, 38, listWithoutBlanks(300));
    const int width = editor.table().columnWidth(2);
    EXPECT_LE(width, editor.table().viewport()->width() * 7 / 10);
    EXPECT_GT(editor.table().rowHeight(editor.rowOf(38)), 3 * editor.table().rowHeight(editor.rowOf(4)));
    enter(editor, 38, "450");
    EXPECT_LE(editor.table().columnWidth(2), before);
    EXPECT_LE(editor.table().rowHeight(editor.rowOf(38)), height);
}

TEST(SheetTableLooks, KeepsOneLongWordWithinTheTable)
{
    Editor editor;
    editor.doubleClick(editor.item("Nonlinear Structural Steel"));
    enter(editor, 33, QString(500, 'x'));
    EXPECT_LE(editor.table().columnWidth(2), editor.table().viewport()->width() * 7 / 10);
    EXPECT_GT(editor.table().rowHeight(editor.rowOf(33)), 2 * editor.table().rowHeight(editor.rowOf(4)));
}

TEST(SheetTableLooks, GivesAVeryLongListTenLines)
{
    Editor editor;
    editor.doubleClick(editor.item("Plastic Example 1"));
    enter(editor, 38, listWithoutBlanks(3000));
    const int line = editor.table().fontMetrics().lineSpacing();
    EXPECT_GE(editor.table().rowHeight(editor.rowOf(38)), 10 * line);
    EXPECT_LE(editor.table().rowHeight(editor.rowOf(38)), 11 * line);
}

/// Returns the number of pixel columns of a picture that are not blank.
int drawnColumns(const QImage& image)
{
    int drawn = 0;
    for (int x = 0; x < image.width(); ++x) {
        bool isDark = false;
        for (int y = 0; y < image.height(); ++y)
            isDark = isDark || qGray(image.pixel(x, y)) < 128;
        drawn += isDark ? 1 : 0;
    }
    return drawn;
}

TEST(SheetTableLooks, DrawsAListOverAllLinesOfItsCell)
{
    const vxtest::MaterialProject project;
    MatGui::SheetTableView table;
    table.materialObject = &project.object();
    table.togglePropertyRow(true, project.database().propertyCatalogue.at(38).get());
    const QModelIndex value = table.model()->index(0, 2);
    table.model()->setData(value, listWithoutBlanks(3000));
    table.resize(600, 400);
    table.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&table));
    table.selectionModel()->clear();
    const QImage picture = table.viewport()->grab().toImage();
    const QRect cell = table.visualRect(value);
    ASSERT_TRUE(picture.rect().contains(cell));
    const int line = table.fontMetrics().lineSpacing();
    int lines = 0;
    for (int top = cell.top(); top + line <= cell.bottom() + 1; top += line, ++lines)
        EXPECT_GT(drawnColumns(picture.copy(cell.left() + 1, top, cell.width() - 3, line)), cell.width() / 3) << top;
    EXPECT_EQ(lines, 10);
}

TEST(SheetTableLooks, KeepsTheWidthThatTheUserHasChosen)
{
    Editor editor;
    QHeaderView& header = *editor.table().horizontalHeader();
    const int edge = header.sectionViewportPosition(1) + header.sectionSize(1) - 1;
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, QPoint(edge, 5));
    QTest::mouseMove(header.viewport(), QPoint(edge + 60, 5));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, QPoint(edge + 60, 5));
    QCoreApplication::processEvents();
    const int chosen = editor.table().columnWidth(1);
    editor.doubleClick(editor.item("Air"));
    editor.typeValue(4, "1.23456789");
    EXPECT_EQ(editor.table().columnWidth(1), chosen);
}

TEST(SheetTableLooks, OpensAValueOverTheFirstLineOfAHighCell)
{
    Editor editor;
    editor.doubleClick(editor.item("Plastic Example 1"));
    enter(editor, 38, listWithoutBlanks(300));
    const QModelIndex value = editor.table().model()->index(editor.rowOf(38), 2);
    editor.table().setCurrentIndex(value);
    QTest::keyClick(&editor.table(), Qt::Key_F2);
    QLineEdit* const line = vxtest::openEditor(editor.table());
    ASSERT_NE(line, nullptr);
    const QRect cell = editor.table().visualRect(value);
    EXPECT_EQ(line->geometry().topLeft(), cell.topLeft());
    EXPECT_EQ(line->width(), cell.width());
    EXPECT_LT(line->height(), cell.height() / 2);
}

TEST(SheetTableLooks, FollowsTheOrderOfTheCatalogueHoweverAMaterialWasMade)
{
    const std::vector<int> expected{4, 202, 203, 31, 5, 6, 301, 302, 303};
    Editor editor;
    EXPECT_EQ(editor.rowIds(), expected);
    editor.tickByMouse(editor.item("Density"));
    editor.tickByMouse(editor.item("Density"));
    EXPECT_EQ(editor.rowIds().back(), 4);
    editor.click("btnApply");
    EXPECT_EQ(editor.rowIds(), expected);
}

// --- Page headers ---

TEST(PageHeader, ShowsThatItHasTheKeyboard)
{
    Editor editor;
    auto& box = editor.child<QToolBox>("toolBoxLibrary");
    const auto headers = box.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    QAbstractButton* const header = headers[2];
    const QImage without = header->grab().toImage();
    header->setFocus(Qt::TabFocusReason);
    const QImage with = header->grab().toImage();
    EXPECT_NE(with, without);
    const QColor frame = with.pixelColor(with.width() / 2, 0);
    EXPECT_EQ(frame, header->palette().color(QPalette::Highlight));
    headers[3]->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(header->grab().toImage(), without);
}

TEST(PageHeader, TurnsItsPageByAClickAsBefore)
{
    Editor editor;
    auto& box = editor.child<QToolBox>("toolBoxLibrary");
    const auto headers = box.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    headers[2]->setFocus(Qt::TabFocusReason);
    QWidget* const target = headers[2]->childAt(headers[2]->rect().center());
    EXPECT_EQ(target, nullptr) << "the frame must be transparent for the mouse";
    QTest::mouseClick(headers[2], Qt::LeftButton);
    EXPECT_EQ(box.currentIndex(), 2);
}

/// Shows the value of a row in a column of this width.
void narrow(Editor& editor, int width)
{
    editor.table().horizontalHeader()->setMinimumSectionSize(10);
    editor.table().setColumnWidth(MatGui::SheetTableView::Value, width);
    QCoreApplication::processEvents();
}

TEST(SheetTableLooks, ShowsANumberThatIsWiderThanItsCellInTheToolTip)
{
    const QString number = "1.7976931348623157e+308";
    Editor editor;
    enter(editor, 5, number);
    narrow(editor, 70);
    const QRect cell = editor.table().visualRect(editor.table().model()->index(editor.rowOf(5), 2));
    QHelpEvent help(QEvent::ToolTip, cell.center(), editor.table().viewport()->mapToGlobal(cell.center()));
    QCoreApplication::sendEvent(editor.table().viewport(), &help);
    EXPECT_TRUE(QToolTip::text().contains(number)) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

TEST(SheetTableLooks, ShowsNoToolTipForACellThatShowsItsWholeText)
{
    Editor editor;
    const QRect cell = editor.table().visualRect(editor.table().model()->index(0, 2));
    QHelpEvent help(QEvent::ToolTip, cell.center(), editor.table().viewport()->mapToGlobal(cell.center()));
    QCoreApplication::sendEvent(editor.table().viewport(), &help);
    EXPECT_EQ(QToolTip::text(), QString());
}

TEST(SheetTableLooks, DrawsTheSelectionPalerWhereTheKeyboardDoesNotAct)
{
    Editor editor;
    MatGui::SheetTableView& table = editor.table();
    table.setFocus();
    table.setCurrentRow(1);
    const auto colour = [&table] {
        const QRect cell = table.visualRect(table.model()->index(1, 1));
        return table.viewport()->grab().toImage().pixelColor(cell.right() - 2, cell.bottom() - 2);
    };
    const QColor strong = colour();
    EXPECT_LT(strong.lightness(), 128);
    editor.list("lw_lib_general").setFocus();
    EXPECT_GT(colour().lightness(), 180);
    EXPECT_NE(colour(), QColor(Qt::white));
}

} // namespace
