#include "vxMaterial/gui/SheetTableView.h"

#include "CommaLocale.h"
#include "EditorTesting.h"

#include "vxMaterial/gui/ItemDelegates.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest/QtTestGui>
#include <QtTest/qtestmouse.h>
#include <gmock/gmock.h>

#include <cfloat>
#include <limits>
#include <stdexcept>

namespace {

using MatGui::SheetTableDelegate;
using MatGui::SheetTableView;
using MatGui::SheetViewHeader;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A table with the material object of a project.
class Sheet
{
public:
    Sheet() { table.materialObject = &project.object(); }

    QAbstractItemModel& model() { return *table.model(); }
    QString cell(int row, int column) { return model().index(row, column).data().toString(); }
    void setValue(int row, const QString& text) { model().setData(model().index(row, 2), text); }
    std::vector<int> ids()
    {
        std::vector<int> all;
        for (int row = 0; row < model().rowCount(); ++row)
            all.push_back(cell(row, 0).toInt());
        return all;
    }
    /// Returns the values that the column "Value" shows, by id.
    std::map<int, QString> values()
    {
        std::map<int, QString> all;
        for (int row = 0; row < model().rowCount(); ++row)
            all[cell(row, 0).toInt()] = cell(row, 2);
        return all;
    }
    const vxMat::MaterialProperty* catalogued(int id) { return project.database().propertyCatalogue.at(id).get(); }
    void tick(int id) { table.togglePropertyRow(true, catalogued(id)); }
    void untick(int id) { table.togglePropertyRow(false, catalogued(id)); }
    bool show()
    {
        table.resize(800, 400);
        table.show();
        return vxtest::waitUntilActive(&table);
    }

    vxtest::MaterialProject project;
    SheetTableView table;
};

/// Returns the texts of the whole table, cell by cell.
QStringList texts(QAbstractItemModel& model)
{
    QStringList all;
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < model.columnCount(); ++column)
            all << model.index(row, column).data().toString();
    return all;
}

// --- Meta-objects ---

TEST(SheetTableView, HasItsSlotsInTheirOrder)
{
    const QMetaObject& meta = SheetTableView::staticMetaObject;
    EXPECT_STREQ(meta.className(), "MatGui::SheetTableView");
    EXPECT_STREQ(meta.superClass()->className(), "QTableView");
    EXPECT_EQ(vxtest::ownMethods(meta, QMetaMethod::Slot),
              QStringList({"commitData(QWidget*)", "insertRows()", "removeRows()", "insertColumns()", "removeColumns()",
                           "cellProperties()"}));
    EXPECT_THAT(vxtest::ownMethods(meta, QMetaMethod::Signal), IsEmpty());
    EXPECT_EQ(meta.indexOfSlot("cellProperties()") - meta.methodOffset(), 5);
}

TEST(SheetViewHeader, HasTheOneSignal)
{
    const QMetaObject& meta = SheetViewHeader::staticMetaObject;
    EXPECT_STREQ(meta.className(), "MatGui::SheetViewHeader");
    EXPECT_STREQ(meta.superClass()->className(), "QHeaderView");
    EXPECT_EQ(vxtest::ownMethods(meta, QMetaMethod::Signal), QStringList("resizeFinished()"));
    EXPECT_THAT(vxtest::ownMethods(meta, QMetaMethod::Slot), IsEmpty());
}

TEST(SheetTableDelegate, HasTheOneSlot)
{
    const QMetaObject& meta = SheetTableDelegate::staticMetaObject;
    EXPECT_STREQ(meta.className(), "MatGui::SheetTableDelegate");
    EXPECT_STREQ(meta.superClass()->className(), "QItemDelegate");
    EXPECT_EQ(vxtest::ownMethods(meta, QMetaMethod::Slot), QStringList("commitAndCloseEditor()"));
    EXPECT_THAT(vxtest::ownMethods(meta, QMetaMethod::Signal), IsEmpty());
}

// --- Initial state ---

TEST(SheetTableView, HasSixColumnsOfWhichThreeAreHidden)
{
    const SheetTableView table;
    ASSERT_EQ(table.model()->columnCount(), 6);
    const QStringList headers{"enum", "Name", "Value", "Description", "Key", "Unit"};
    const std::vector<bool> hidden{true, false, false, false, true, true};
    for (int column = 0; column < 6; ++column) {
        EXPECT_EQ(table.model()->headerData(column, Qt::Horizontal, Qt::EditRole).toString(), headers[column]);
        EXPECT_EQ(table.isColumnHidden(column), hidden[static_cast<std::size_t>(column)]) << column;
    }
    EXPECT_EQ(table.model()->rowCount(), 0);
    EXPECT_TRUE(table.horizontalHeader()->stretchLastSection());
}

TEST(SheetTableView, NeverShowsIdKeyAndUnit)
{
    Sheet sheet;
    SheetTableView& table = sheet.table;
    const auto hidden = [&table] {
        std::vector<int> columns;
        for (int column = 0; column < table.model()->columnCount(); ++column)
            if (table.isColumnHidden(column) && table.columnWidth(column) == 0)
                columns.push_back(column);
        return columns;
    };
    const auto expected = ElementsAre(SheetTableView::Id, SheetTableView::Key, SheetTableView::Unit);
    ASSERT_TRUE(sheet.show());
    EXPECT_THAT(hidden(), expected);
    table.loadMaterialObject();
    EXPECT_THAT(hidden(), expected);
    const auto& database = sheet.project.database();
    table.showMaterial(database.materials.begin()->second.get());
    table.togglePropertyRow(true, database.propertyCatalogue.at(33).get());
    table.togglePropertyRow(false, database.propertyCatalogue.at(33).get());
    EXPECT_THAT(hidden(), expected);
    table.retranslate();
    table.resize(400, 300);
    table.resizeColumnsToContents();
    table.applyToMaterial();
    EXPECT_THAT(hidden(), expected);
}

TEST(SheetTableView, OwnsAStandardModelASelectionOnItAndItsHeaders)
{
    const SheetTableView table;
    EXPECT_NE(qobject_cast<QStandardItemModel*>(table.model()), nullptr);
    EXPECT_EQ(table.model()->parent(), &table);
    EXPECT_EQ(table.selectionModel()->model(), table.model());
    EXPECT_EQ(table.findChildren<QItemSelectionModel*>().count(table.selectionModel()), 1);
    EXPECT_NE(qobject_cast<SheetViewHeader*>(table.horizontalHeader()), nullptr);
    EXPECT_NE(qobject_cast<SheetViewHeader*>(table.verticalHeader()), nullptr);
    EXPECT_EQ(table.horizontalHeader()->orientation(), Qt::Horizontal);
    EXPECT_EQ(table.verticalHeader()->orientation(), Qt::Vertical);
    EXPECT_TRUE(table.horizontalHeader()->sectionsClickable());
    EXPECT_TRUE(table.verticalHeader()->sectionsClickable());
}

TEST(SheetTableView, HasAPlainPanelFrame)
{
    const SheetTableView table;
    EXPECT_EQ(table.frameShape(), QFrame::WinPanel);
    EXPECT_EQ(table.frameShadow(), QFrame::Plain);
}

TEST(SheetTableView, EditsByTheValueDelegateAndKeepsNameDescriptionAndUnitReadOnly)
{
    const SheetTableView table;
    EXPECT_NE(qobject_cast<SheetTableDelegate*>(table.itemDelegate()), nullptr);
    for (const int column : {1, 3, 5})
        EXPECT_NE(qobject_cast<MatGui::NotEditableDelegate*>(table.itemDelegateForColumn(column)), nullptr) << column;
    for (const int column : {0, 2, 4})
        EXPECT_EQ(table.itemDelegateForColumn(column), nullptr) << column;
}

TEST(SheetTableView, IsWhiteWithBlackTextInEveryColourSchemeOfTheProgram)
{
    const SheetTableView table;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_EQ(table.palette().color(group, QPalette::Base), QColor(255, 255, 255));
        EXPECT_EQ(table.palette().color(group, QPalette::Text), QColor(0, 0, 0));
    }
}

/// Returns the contrast of two colours as accessibility guidelines define it, from 1 to 21.
double contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(SheetTableView, HasReadableSelectionsUnderLightAndDarkColours)
{
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Highlight, Qt::white);
    dark.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette& colours : {before, dark}) {
        QApplication::setPalette(colours);
        const SheetTableView table;
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const auto colour = [&](QPalette::ColorRole role) { return table.palette().color(group, role); };
            EXPECT_GE(contrast(colour(QPalette::Highlight), colour(QPalette::HighlightedText)), 4.5);
            EXPECT_GE(contrast(colour(QPalette::Base), colour(QPalette::PlaceholderText)), 4.5);
            EXPECT_GE(contrast(colour(QPalette::AlternateBase), colour(QPalette::Text)), 4.5);
            EXPECT_GE(contrast(colour(QPalette::Base), colour(QPalette::Highlight)), 1.5);
        }
    }
    QApplication::setPalette(before);
}

// --- Menus ---

QStringList actionTexts(const QWidget& widget)
{
    QStringList all;
    for (const QAction* const action : widget.actions())
        all << action->text();
    return all;
}

TEST(SheetTableView, ShowsTheEntriesOfItsContextMenus)
{
    const SheetTableView table;
    EXPECT_EQ(table.horizontalHeader()->contextMenuPolicy(), Qt::ActionsContextMenu);
    EXPECT_EQ(table.verticalHeader()->contextMenuPolicy(), Qt::ActionsContextMenu);
    EXPECT_EQ(table.contextMenuPolicy(), Qt::ActionsContextMenu);
    EXPECT_EQ(actionTexts(*table.horizontalHeader()), QStringList({"Insert columns", "Remove columns"}));
    EXPECT_EQ(actionTexts(*table.verticalHeader()), QStringList({"Insert rows", "Remove rows"}));
    EXPECT_EQ(actionTexts(table), QStringList("Properties..."));
}

TEST(SheetTableView, IsLeftUnchangedByEveryEntryOfItsContextMenus)
{
    Sheet sheet;
    sheet.table.loadMaterialObject();
    ASSERT_TRUE(sheet.show());
    const QStringList before = texts(sheet.model());
    sheet.table.selectRow(1);
    sheet.table.selectionModel()->select(sheet.model().index(3, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    for (QWidget* const owner :
         std::initializer_list<QWidget*>{sheet.table.horizontalHeader(), sheet.table.verticalHeader(), &sheet.table})
        for (QAction* const action : owner->actions())
            action->trigger();
    sheet.table.selectAll();
    for (const char* const slot : {"insertRows", "removeRows", "insertColumns", "removeColumns", "cellProperties"})
        EXPECT_TRUE(QMetaObject::invokeMethod(&sheet.table, slot)) << slot;
    EXPECT_EQ(texts(sheet.model()), before);
    EXPECT_EQ(sheet.model().columnCount(), 6);
}

/// Returns the number of the owner's actions that trigger the slot: a connection exists if it can be removed.
int triggering(const QWidget& owner, const SheetTableView& table, const char* slot)
{
    int count = 0;
    for (const QAction* const action : owner.actions())
        count += QObject::disconnect(action, SIGNAL(triggered()), &table, slot) ? 1 : 0;
    return count;
}

TEST(SheetTableView, TriggersTheSlotOfTheSameNameByEachEntry)
{
    const SheetTableView table;
    EXPECT_EQ(triggering(*table.horizontalHeader(), table, SLOT(insertColumns())), 1);
    EXPECT_EQ(triggering(*table.horizontalHeader(), table, SLOT(removeColumns())), 1);
    EXPECT_EQ(triggering(*table.verticalHeader(), table, SLOT(insertRows())), 1);
    EXPECT_EQ(triggering(*table.verticalHeader(), table, SLOT(removeRows())), 1);
    EXPECT_EQ(triggering(table, table, SLOT(cellProperties())), 1);
}

TEST(SheetViewHeader, ReportsTheReleaseOfTheMouse)
{
    Sheet sheet;
    sheet.table.loadMaterialObject();
    ASSERT_TRUE(sheet.show());
    QSignalSpy finished(sheet.table.horizontalHeader(), SIGNAL(resizeFinished()));
    const int width = sheet.table.columnWidth(1);
    const int edge = sheet.table.horizontalHeader()->sectionViewportPosition(1) + width - 1;
    QWidget* const viewport = sheet.table.horizontalHeader()->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, QPoint(edge, 5));
    QTest::mouseMove(viewport, QPoint(edge + 20, 5));
    EXPECT_EQ(finished.count(), 0);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, QPoint(edge + 20, 5));
    EXPECT_EQ(finished.count(), 1);
}

// --- Filling ---

TEST(SheetTableView, ShowsAPropertyARowWithAllItsTexts)
{
    Sheet sheet;
    sheet.project.material().clearProperties();
    sheet.project.material().setProperty(4, std::make_unique<vxMat::Density>(7850.0));
    sheet.table.loadMaterialObject();
    EXPECT_EQ(texts(sheet.model()), QStringList({"4", "Density", "7850", "Mass density", "rho", "kg/m3"}));
}

TEST(SheetTableView, ShowsNumbersAsTheShortestTextThatReadsBack)
{
    Sheet sheet;
    sheet.table.loadMaterialObject();
    auto values = sheet.values();
    EXPECT_EQ(values[4], "7850");
    EXPECT_EQ(values[5], "2e+11");
    EXPECT_EQ(values[6], "0.3");
    EXPECT_EQ(values[31], "1.7976931348623157e+308");
    EXPECT_EQ(values[301], "4032000");
    EXPECT_EQ(values.size(), 9U);
}

TEST(SheetTableView, ShowsWordsUnchangedAndListsJoinedByCommas)
{
    Sheet sheet;
    vxMat::PlasticMaterial1 plastic;
    sheet.table.showMaterial(&plastic);
    auto values = sheet.values();
    EXPECT_EQ(values[33], "Mises");
    EXPECT_EQ(values[37], "Multilinear");
    EXPECT_EQ(values[38], "450, 608, 679, 732, 752, 766, 780");
    EXPECT_EQ(values[39], "0, 0.05, 0.1, 0.2, 0.3, 0.4, 0.5");
    EXPECT_EQ(values[32], "1");
}

TEST(SheetTableView, WritesDecimalPointsUnderALocaleWithCommas)
{
    const vxtest::CommaLocale locale;
    Sheet sheet;
    sheet.table.loadMaterialObject();
    EXPECT_EQ(sheet.values()[6], "0.3");
    sheet.setValue(0, sheet.cell(0, 2));
    QString message;
    EXPECT_TRUE(sheet.table.validateRows(message));
    sheet.table.applyToMaterial();
    double number = 0.0;
    ASSERT_TRUE(sheet.project.material().getPropertyValue(6, number));
    EXPECT_EQ(number, 0.3);
}

TEST(SheetTableView, ReplacesItsRowsWheneverItIsFilled)
{
    Sheet sheet;
    sheet.table.loadMaterialObject();
    sheet.table.loadMaterialObject();
    EXPECT_EQ(sheet.model().rowCount(), 9);
    vxMat::EMMaterial1 library;
    sheet.table.showMaterial(&library);
    EXPECT_THAT(sheet.ids(), UnorderedElementsAre(301, 302, 303));
}

TEST(SheetTableView, IgnoresANullMaterial)
{
    Sheet sheet;
    sheet.table.loadMaterialObject();
    sheet.table.showMaterial(nullptr);
    EXPECT_EQ(sheet.model().rowCount(), 9);
}

TEST(SheetTableView, ShowsAndTakesNothingWithoutAMaterialObject)
{
    SheetTableView table;
    vxMat::StructuralSteel steel;
    table.loadMaterialObject();
    table.showMaterial(&steel);
    table.applyToMaterial();
    EXPECT_EQ(table.model()->rowCount(), 0);
    EXPECT_FALSE(table.isCatalogued(4));
}

TEST(SheetTableView, HasTheIdsOfTheCatalogue)
{
    Sheet sheet;
    EXPECT_TRUE(sheet.table.isCatalogued(4));
    EXPECT_TRUE(sheet.table.isCatalogued(401));
    EXPECT_FALSE(sheet.table.isCatalogued(40));
    EXPECT_FALSE(sheet.table.isCatalogued(201));
}

TEST(SheetTableView, LeavesOutAPropertyThatTheCatalogueDoesNotKnowAndApplyDropsIt)
{
    Sheet sheet;
    sheet.project.material().setProperty(
        201, std::make_unique<vxMat::MaterialProperty>(201, "Thermal Expansion", "alpha", 1.2e-5));
    sheet.table.loadMaterialObject();
    ASSERT_EQ(sheet.project.material().properties.size(), 10U);
    EXPECT_EQ(sheet.model().rowCount(), 9);
    sheet.table.applyToMaterial();
    EXPECT_EQ(sheet.project.material().properties.size(), 9U);
    EXPECT_FALSE(sheet.project.material().hasProperty(201));
}

TEST(SheetTableView, ShowsAPropertyUnderAForeignKeyByItsOwnId)
{
    Sheet sheet;
    vxMat::AcousticMaterial2 acoustic;
    sheet.table.showMaterial(&acoustic);
    EXPECT_THAT(sheet.ids(), ElementsAre(4, 4));
    const std::vector<QString> values{sheet.cell(0, 2), sheet.cell(1, 2)};
    EXPECT_THAT(values, UnorderedElementsAre(QString("1"), QString("400")));
}

// --- Ticking ---

TEST(SheetTableView, AppendsATickedPropertyWithTheDefaultOfTheCatalogue)
{
    Sheet sheet;
    sheet.table.loadMaterialObject();
    sheet.tick(21);
    sheet.tick(38);
    ASSERT_EQ(sheet.model().rowCount(), 11);
    EXPECT_EQ(sheet.cell(9, 0), "21");
    EXPECT_EQ(sheet.cell(9, 1), "Dynamic viscosity");
    EXPECT_EQ(sheet.cell(9, 2), "1");
    EXPECT_EQ(sheet.cell(9, 5), "Pa.s");
    EXPECT_EQ(sheet.cell(10, 2), "1");
}

TEST(SheetTableView, RemovesEveryRowOfAnUntickedPropertyAtAnyPosition)
{
    Sheet sheet;
    for (const int id : {4, 21, 4, 5, 4})
        sheet.tick(id);
    EXPECT_THAT(sheet.ids(), ElementsAre(4, 21, 4, 5, 4));
    sheet.untick(4);
    EXPECT_THAT(sheet.ids(), ElementsAre(21, 5));
    sheet.untick(4);
    EXPECT_THAT(sheet.ids(), ElementsAre(21, 5));
}

TEST(SheetTableView, DoesNotTakeAnIdForTheStartOfAnother)
{
    Sheet sheet;
    for (const int id : {401, 4, 41, 44})
        sheet.tick(id);
    sheet.untick(4);
    EXPECT_THAT(sheet.ids(), ElementsAre(401, 41, 44));
}

TEST(SheetTableView, IgnoresANullProperty)
{
    Sheet sheet;
    sheet.table.togglePropertyRow(true, nullptr);
    sheet.table.togglePropertyRow(false, nullptr);
    EXPECT_EQ(sheet.model().rowCount(), 0);
}

// --- Editing ---

TEST(SheetTableView, OpensNoEditorForNameOrDescription)
{
    Sheet sheet;
    sheet.table.loadMaterialObject();
    ASSERT_TRUE(sheet.show());
    for (const int column : {1, 3}) {
        const QModelIndex index = sheet.model().index(0, column);
        const QPoint position = sheet.table.visualRect(index).center();
        QTest::mouseClick(sheet.table.viewport(), Qt::LeftButton, {}, position);
        QTest::mouseDClick(sheet.table.viewport(), Qt::LeftButton, {}, position);
        QTest::keyClick(&sheet.table, Qt::Key_A);
        EXPECT_FALSE(sheet.table.edit(index, QAbstractItemView::AllEditTriggers, nullptr));
        EXPECT_EQ(vxtest::openEditor(sheet.table), nullptr) << column;
        EXPECT_FALSE(index.flags() & Qt::ItemIsEditable) << column;
    }
}

TEST(SheetTableView, CommitsTypedTextOnReturnAndClosesTheEditor)
{
    const vxtest::NoQtWarnings noWarnings;
    Sheet sheet;
    sheet.tick(4);
    ASSERT_TRUE(sheet.show());
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        sheet.table.setCurrentIndex(sheet.model().index(0, 2));
        // Typing replaces the earlier text.
        QTest::keyClicks(&sheet.table, "1");
        QPointer<QLineEdit> editor = vxtest::openEditor(sheet.table);
        ASSERT_NE(editor, nullptr);
        QTest::keyClicks(editor, "234.5");
        QTest::keyClick(editor, key);
        EXPECT_EQ(sheet.cell(0, 2), "1234.5");
        EXPECT_EQ(vxtest::openEditor(sheet.table), nullptr);
        EXPECT_TRUE(vxtest::waitFor([&editor] { return editor == nullptr; }));
        sheet.setValue(0, "1");
    }
}

TEST(SheetTableView, EditsByF2ByDoubleClickAndByTyping)
{
    Sheet sheet;
    sheet.tick(4);
    ASSERT_TRUE(sheet.show());
    const QModelIndex value = sheet.model().index(0, 2);
    const QPoint position = sheet.table.visualRect(value).center();
    const std::vector<std::function<void()>> ways{
        [&] { QTest::keyClick(&sheet.table, Qt::Key_F2); }, [&] { QTest::keyClick(&sheet.table, Qt::Key_9); },
        [&] {
            QTest::mouseClick(sheet.table.viewport(), Qt::LeftButton, {}, position);
            QTest::mouseDClick(sheet.table.viewport(), Qt::LeftButton, {}, position);
        }};
    for (const auto& open : ways) {
        sheet.table.setCurrentIndex(value);
        open();
        QLineEdit* const editor = vxtest::openEditor(sheet.table);
        ASSERT_NE(editor, nullptr);
        QTest::keyClick(editor, Qt::Key_Escape);
        EXPECT_EQ(vxtest::openEditor(sheet.table), nullptr);
        EXPECT_EQ(sheet.cell(0, 2), "1");
    }
}

TEST(SheetTableView, TakesOverWhatIsStillBeingTyped)
{
    const vxtest::NoQtWarnings noWarnings;
    Sheet sheet;
    sheet.tick(4);
    sheet.tick(5);
    ASSERT_TRUE(sheet.show());
    sheet.table.setCurrentIndex(sheet.model().index(1, 2));
    QTest::keyClicks(&sheet.table, "3");
    QLineEdit* const editor = vxtest::openEditor(sheet.table);
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, "5");
    sheet.table.finishEditing();
    EXPECT_EQ(sheet.cell(1, 2), "35");
    EXPECT_EQ(vxtest::openEditor(sheet.table), nullptr);
}

TEST(SheetTableView, LetsTabLeaveIt)
{
    QWidget window;
    Sheet sheet;
    sheet.tick(4);
    auto* const before = new QLineEdit(&window);
    sheet.table.setParent(&window);
    auto* const after = new QLineEdit(&window);
    window.show();
    ASSERT_TRUE(vxtest::waitUntilActive(&window));
    before->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &sheet.table);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), after);
    sheet.table.setParent(nullptr);
}

TEST(SheetTableDelegate, AsksForNoSizeAndEditsInALine)
{
    SheetTableDelegate delegate;
    QStandardItemModel model(1, 1);
    QWidget parent;
    EXPECT_FALSE(delegate.sizeHint({}, model.index(0, 0)).isValid());
    model.setData(model.index(0, 0), "12");
    QWidget* const editor = delegate.createEditor(&parent, {}, model.index(0, 0));
    auto* const line = qobject_cast<QLineEdit*>(editor);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->parent(), &parent);
    delegate.setEditorData(line, model.index(0, 0));
    EXPECT_EQ(line->text(), "12");
    line->setText("13");
    delegate.setModelData(line, &model, model.index(0, 0));
    EXPECT_EQ(model.index(0, 0).data(Qt::EditRole).toString(), "13");
}

TEST(SheetTableDelegate, LeavesEditorsOfOthersAlone)
{
    SheetTableDelegate delegate;
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), "12");
    QWidget other;
    delegate.setEditorData(&other, model.index(0, 0));
    delegate.setModelData(&other, &model, model.index(0, 0));
    EXPECT_EQ(model.index(0, 0).data().toString(), "12");
    QSignalSpy committed(&delegate, SIGNAL(commitData(QWidget*)));
    EXPECT_TRUE(QMetaObject::invokeMethod(&delegate, "commitAndCloseEditor"));
    EXPECT_EQ(committed.count(), 0);
}

TEST(SheetTableDelegate, CommitsAndThenClosesWithoutAHintOnReturnPressed)
{
    SheetTableDelegate delegate;
    QStandardItemModel model(1, 1);
    QWidget parent;
    auto* const line = qobject_cast<QLineEdit*>(delegate.createEditor(&parent, {}, model.index(0, 0)));
    ASSERT_NE(line, nullptr);
    QStringList order;
    QObject::connect(&delegate, &QAbstractItemDelegate::commitData, [&](QWidget* editor) {
        EXPECT_EQ(editor, line);
        order << "commit";
    });
    QObject::connect(&delegate, &QAbstractItemDelegate::closeEditor,
                     [&](QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
                         EXPECT_EQ(editor, line);
                         EXPECT_EQ(hint, QAbstractItemDelegate::NoHint);
                         order << "close";
                     });
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(order, QStringList({"commit", "close"}));
}

// --- Looks ---

TEST(SheetTableView, IsAsWideAsItsContentsWhenItIsFirstShown)
{
    Sheet sheet;
    sheet.table.loadMaterialObject();
    ASSERT_TRUE(sheet.show());
    for (const int column : {1, 2})
        for (int row = 0; row < sheet.model().rowCount(); ++row)
            EXPECT_GT(sheet.table.columnWidth(column),
                      sheet.table.fontMetrics().horizontalAdvance(sheet.cell(row, column)))
                << sheet.cell(row, column).toStdString();
    EXPECT_LT(sheet.table.columnWidth(2), 2 * sheet.table.fontMetrics().horizontalAdvance("1.7976931348623157e+308"));
}

TEST(SheetTableView, GrowsRowsInWhichALongTextWraps)
{
    Sheet sheet;
    sheet.tick(4);
    sheet.tick(37);
    ASSERT_TRUE(sheet.show());
    EXPECT_GT(sheet.table.rowHeight(1), sheet.table.rowHeight(0));
    QString list = "1";
    for (int i = 0; i < 60; ++i)
        list += ", 12345";
    sheet.tick(38);
    const int before = sheet.table.rowHeight(2);
    sheet.table.setCurrentIndex(sheet.model().index(2, 2));
    QTest::keyClick(&sheet.table, Qt::Key_F2);
    QLineEdit* const editor = vxtest::openEditor(sheet.table);
    ASSERT_NE(editor, nullptr);
    editor->setText(list);
    sheet.table.finishEditing();
    EXPECT_GT(sheet.table.rowHeight(2), 3 * before);
}

TEST(SheetTableView, UnfoldsNamesWhenTheWindowGetsWider)
{
    Sheet sheet;
    sheet.tick(6);
    sheet.table.resize(260, 300);
    sheet.table.show();
    ASSERT_TRUE(vxtest::waitUntilActive(&sheet.table));
    const int narrow = sheet.table.columnWidth(1);
    sheet.table.resize(1200, 300);
    EXPECT_TRUE(vxtest::waitFor(
        [&] { return sheet.table.columnWidth(1) > sheet.table.fontMetrics().horizontalAdvance("Poisson's ratio"); }));
    EXPECT_GT(sheet.table.columnWidth(1), narrow);
}

// --- Apply ---

TEST(SheetTableView, RebuildsTheMaterialFromItsRowsAlone)
{
    Sheet sheet;
    sheet.tick(4);
    sheet.tick(33);
    sheet.setValue(0, "7850");
    sheet.table.applyToMaterial();
    const auto& properties = sheet.project.material().properties;
    ASSERT_EQ(properties.size(), 2U);
    const vxMat::MaterialProperty& density = *properties.at(4);
    EXPECT_EQ(density.id, 4);
    EXPECT_EQ(density.name, "Density");
    EXPECT_EQ(density.key, "rho");
    EXPECT_EQ(density.description, "Mass density");
    EXPECT_EQ(density.value, 7850.0);
    // A property made from a row has no unit and no category.
    EXPECT_EQ(density.unit, "");
    EXPECT_EQ(density.category, vxMat::ePropertyCategory::Undefined);
    EXPECT_EQ(properties.at(33)->text, "Mises");
}

TEST(SheetTableView, EmptiesTheMaterialWhenItHasNoRows)
{
    Sheet sheet;
    sheet.table.applyToMaterial();
    EXPECT_THAT(sheet.project.material().properties, IsEmpty());
}

TEST(SheetTableView, WritesNothingButProperties)
{
    Sheet sheet;
    sheet.project.material().id = 17;
    sheet.project.material().name = "my steel";
    sheet.tick(4);
    sheet.table.applyToMaterial();
    EXPECT_EQ(sheet.project.material().id, 17);
    EXPECT_EQ(sheet.project.material().name, "my steel");
}

TEST(SheetTableView, LetsTheLaterOfTwoRowsOfOneIdStay)
{
    Sheet sheet;
    for (const char* const value : {"1", "2", "3"}) {
        sheet.tick(4);
        sheet.setValue(sheet.model().rowCount() - 1, value);
    }
    sheet.table.applyToMaterial();
    ASSERT_EQ(sheet.project.material().properties.size(), 1U);
    EXPECT_EQ(sheet.project.material().properties.at(4)->value, 3.0);
}

TEST(SheetTableView, TurnsSwitchesIntoOneForAnyText)
{
    Sheet sheet;
    for (const int id : {28, 31, 32}) {
        sheet.tick(id);
        sheet.setValue(sheet.model().rowCount() - 1, "off");
    }
    sheet.table.applyToMaterial();
    for (const int id : {28, 31, 32})
        EXPECT_EQ(sheet.project.material().properties.at(id)->value, 1.0);
}

TEST(SheetTableView, ReadsTheLongestNumberAndListsWithAnySeparators)
{
    Sheet sheet;
    sheet.tick(5);
    sheet.setValue(0, "  7850 kg");
    sheet.tick(38);
    sheet.setValue(1, "450;608 679");
    sheet.tick(39);
    sheet.setValue(2, "none");
    sheet.table.applyToMaterial();
    const auto& properties = sheet.project.material().properties;
    EXPECT_EQ(properties.at(5)->value, 7850.0);
    EXPECT_THAT(properties.at(38)->values, ElementsAre(450.0, 608.0, 679.0));
    EXPECT_THAT(properties.at(39)->values, IsEmpty());
}

TEST(SheetTableView, LeavesTheMaterialAsItWasWhenARowCannotBeRead)
{
    Sheet sheet;
    sheet.tick(4);
    sheet.tick(5);
    const auto before = vxtest::contents(sheet.project.material());
    const vxMat::MaterialProperty* const density = sheet.project.material().findProperty(4);
    sheet.setValue(1, "stiff");
    EXPECT_THROW(sheet.table.applyToMaterial(), std::invalid_argument);
    sheet.setValue(1, "1e999");
    EXPECT_THROW(sheet.table.applyToMaterial(), std::out_of_range);
    EXPECT_EQ(vxtest::contents(sheet.project.material()), before);
    EXPECT_EQ(sheet.project.material().findProperty(4), density);
}

TEST(SheetTableView, FindsTheFirstRowThatCannotBeRead)
{
    using Reason = MatGui::UnreadableRow::Reason;
    Sheet sheet;
    for (const int id : {4, 42, 38})
        sheet.tick(id);
    EXPECT_FALSE(sheet.table.findUnreadableRow());
    sheet.setValue(2, "1, 1e999");
    auto row = sheet.table.findUnreadableRow();
    ASSERT_TRUE(row);
    EXPECT_EQ(row->number, 3);
    EXPECT_EQ(row->reason, Reason::OutOfRange);
    sheet.setValue(1, "on");
    row = sheet.table.findUnreadableRow();
    ASSERT_TRUE(row);
    EXPECT_EQ(row->number, 2);
    EXPECT_EQ(row->name, "Visco-elasticity");
    EXPECT_EQ(row->value, "on");
    EXPECT_EQ(row->reason, Reason::NoNumber);
}

TEST(SheetTableView, ChangesNoNumberByShowingAndApplyingIt)
{
    Sheet sheet;
    std::vector<double> hard{0.1,
                             1.0 / 3.0,
                             -0.0,
                             DBL_MIN,
                             DBL_MAX,
                             -DBL_MAX,
                             5e-324,
                             1e23,
                             9007199254740993.0,
                             123456789012345680.0,
                             2e11,
                             1.44e-07,
                             1e-10,
                             std::numeric_limits<double>::infinity()};
    for (const double number : hard) {
        sheet.project.material().clearProperties();
        sheet.project.material().setProperty(5, std::make_unique<vxMat::YoungsModulus>(number));
        sheet.project.material().setProperty(38, std::make_unique<vxMat::PlasticYieldStress>(
                                                     std::vector<double>{std::isinf(number) ? 1.0 : number, 2.0}));
        const auto before = vxtest::contents(sheet.project.material());
        sheet.table.loadMaterialObject();
        sheet.table.applyToMaterial();
        EXPECT_EQ(vxtest::contents(sheet.project.material()), before) << number;
        EXPECT_EQ(std::signbit(sheet.project.material().properties.at(5)->value), std::signbit(number));
    }
}

TEST(SheetTableView, ChangesNoWordByShowingAndApplyingIt)
{
    Sheet sheet;
    using namespace std::string_literals;
    for (const std::string& word : {" Mises"s, "DRUCKER-PRAGER"s, "Größe 100 % %1"s, "two\nlines"s, "zero\0byte"s, ""s})
    {
        sheet.project.material().clearProperties();
        auto yieldType = std::make_unique<vxMat::PlasticYieldType>("");
        yieldType->text = word;
        sheet.project.material().setProperty(33, std::move(yieldType));
        sheet.table.loadMaterialObject();
        sheet.table.applyToMaterial();
        EXPECT_EQ(sheet.project.material().getPropertyText(33), word);
    }
}

// --- Languages ---

TEST(SheetTableView, PassesTheTextsOfARowThroughTheTranslator)
{
    const vxtest::TestTranslator translator(
        vxtest::Translations{{"vxMat::PropertyName||Density", "Dichte"},
                             {"vxMat::PropertyValue||1", "eins"},
                             {"vxMat::PropertyDescription||Mass density", "Massendichte"},
                             {"vxMat::PropertyKey||rho", "r"},
                             {"vxMat::PropertyUnit||kg/m3", "Kilo"},
                             {"MatGui::SheetTableView||Name", "Bezeichnung"}});
    Sheet sheet;
    sheet.tick(4);
    EXPECT_EQ(texts(sheet.model()), QStringList({"4", "Dichte", "eins", "Massendichte", "r", "Kilo"}));
    EXPECT_EQ(sheet.model().headerData(1, Qt::Horizontal).toString(), "Bezeichnung");
}

TEST(SheetTableView, DoesNotTakeAKeyForANameThatReadsAlike)
{
    const vxtest::TestTranslator translator(vxtest::Translations{{"vxMat::PropertyName||Plasticity", "Plastizität"}});
    Sheet sheet;
    sheet.tick(32);
    EXPECT_EQ(sheet.cell(0, 1), QString::fromUtf8("Plastizität"));
    EXPECT_EQ(sheet.cell(0, 4), "Plasticity");
}

} // namespace
