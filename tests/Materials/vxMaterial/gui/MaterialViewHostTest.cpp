// The interface of the material editor to the application: unapplied edits, vetoes, and showing a row.

#include "EditorTesting.h"
#include "MessageBoxes.h"

#include "vxMaterial/model/CataloguedMaterial.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QUndoStack>
#include <QtTest/QtTestGui>
#include <gmock/gmock.h>
#include <json/json.h>

#include <sstream>

namespace {

using testing::IsEmpty;
using vxtest::Editor;
using vxtest::MessageBoxes;

// --- Edits in progress ---

TEST(MaterialViewHost, EndsAnEditForTheHostAndKeepsTheText)
{
    Editor editor;
    editor.startTyping(5, "123");
    Gui::MDIWindow& window = *editor.view();
    window.finishEditing();
    EXPECT_EQ(editor.cell(editor.rowOf(5), 2), "123");
    EXPECT_EQ(vxtest::openEditor(editor.table()), nullptr);
    EXPECT_TRUE(window.isWindowModified());
}

// --- Unapplied edits ---

TEST(MaterialViewHost, HasNoRecordWithoutEdits)
{
    Editor editor;
    EXPECT_TRUE(editor.view()->unappliedEdits().isNull());
    editor.typeValue(4, "2700");
    EXPECT_FALSE(editor.view()->unappliedEdits().isNull());
    editor.click("btnApply");
    EXPECT_TRUE(editor.view()->unappliedEdits().isNull());
}

TEST(MaterialViewHost, BringsEditsBackIntoANewWindow)
{
    Json::Value record;
    std::vector<int> ids;
    {
        Editor editor;
        editor.doubleClick(editor.item("Acoustic Material 2"));
        editor.tickByMouse(editor.item("Yield stress"));
        editor.typeValue(38, "450, 608 MPa");
        record = editor.view()->unappliedEdits();
        ids = editor.rowIds();
    }
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    ASSERT_TRUE(editor.view()->restoreEdits(record));
    EXPECT_EQ(editor.rowIds(), ids);
    EXPECT_EQ(editor.cell(editor.rowOf(38), 2), "450, 608 MPa");
    EXPECT_EQ(editor.item("Yield stress")->checkState(), Qt::Checked);
    EXPECT_EQ(editor.item("Speed of sound")->checkState(), Qt::Checked);
    EXPECT_EQ(editor.item("Young's modulus")->checkState(), Qt::Unchecked);
    EXPECT_TRUE(editor.view()->isWindowModified());
    EXPECT_EQ(vxtest::contents(editor.material()), before);
    editor.view()->getUndoStack()->undo();
    EXPECT_EQ(editor.rowCount(), 9);
    EXPECT_FALSE(editor.view()->isWindowModified());
}

TEST(MaterialViewHost, RecordsTextThatIsStillBeingTypedAndLeavesTheCellOpen)
{
    Editor editor;
    editor.startTyping(5, "1.5e1");
    const Json::Value record = editor.view()->unappliedEdits();
    EXPECT_NE(vxtest::openEditor(editor.table()), nullptr);
    Editor other;
    ASSERT_TRUE(other.view()->restoreEdits(record));
    EXPECT_EQ(other.cell(other.rowOf(5), 2), "1.5e1");
}

TEST(MaterialViewHost, RecordsEditsWithoutTheLanguage)
{
    Json::Value record;
    {
        const vxtest::TestTranslator translator(vxtest::Translations{
            {"vxMat::PropertyName||Density", "Dichte"}, {"vxMat::PropertyDescription||Mass density", "Massendichte"}});
        Editor editor;
        editor.typeValue(4, "2700");
        EXPECT_EQ(editor.cell(editor.rowOf(4), 1), "Dichte");
        record = editor.view()->unappliedEdits();
    }
    Editor editor;
    ASSERT_TRUE(editor.view()->restoreEdits(record));
    EXPECT_EQ(editor.cell(editor.rowOf(4), 1), "Density");
    EXPECT_EQ(editor.cell(editor.rowOf(4), 3), "Mass density");
    EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "2700");
}

TEST(MaterialViewHost, BringsBackUndoneEditsToBeRedone)
{
    Json::Value record;
    {
        Editor editor;
        editor.typeValue(4, "2700");
        editor.typeValue(5, "7e10");
        for (int i = 0; i < 2; ++i)
            editor.view()->getUndoStack()->undo();
        EXPECT_TRUE(editor.view()->unappliedEdits().isNull());
        record = editor.view()->editSteps();
    }
    Editor editor;
    const QString density = editor.cell(editor.rowOf(4), 2);
    ASSERT_TRUE(editor.view()->restoreEdits(record));
    EXPECT_FALSE(editor.view()->isWindowModified());
    EXPECT_EQ(editor.cell(editor.rowOf(4), 2), density);
    editor.view()->getUndoStack()->redo();
    EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "2700");
    EXPECT_TRUE(editor.view()->isWindowModified());
    editor.view()->getUndoStack()->redo();
    EXPECT_EQ(editor.cell(editor.rowOf(5), 2), "7e10");
    EXPECT_FALSE(editor.view()->getUndoStack()->canRedo());
}

TEST(MaterialViewHost, HasNoStepsAfterApply)
{
    Editor editor;
    EXPECT_TRUE(editor.view()->editSteps().isNull());
    editor.typeValue(4, "2700");
    EXPECT_FALSE(editor.view()->editSteps().isNull());
    editor.click("btnApply");
    EXPECT_TRUE(editor.view()->editSteps().isNull());
}

TEST(MaterialViewHost, ShowsNothingOfADamagedRecord)
{
    Editor editor;
    const std::vector<int> before = editor.rowIds();
    const auto step = [](const std::string& rows, const std::string& checked) {
        return R"({"steps": [{"text": "t", "rows": )" + rows + R"(, "checked": )" + checked + R"(}], "done": 1})";
    };
    for (const std::string& text :
         {std::string("null"), std::string("[]"), std::string("7"), std::string("{}"),
          std::string(R"({"steps": [], "done": 0})"), std::string(R"({"steps": [7], "done": 1})"),
          std::string(R"({"steps": [{"text": "t", "rows": [], "checked": []}], "done": 2})"),
          std::string(R"({"steps": [{"text": "t", "rows": [], "checked": []}], "done": -1})"),
          std::string(R"({"steps": [{"text": 1, "rows": [], "checked": []}], "done": 1})"), step("[]", "4"),
          step("{}", "[]"), step("[4]", "[]"), step(R"([{"id": "4"}])", "[]"),
          step(R"([{"id": 4, "name": "n", "value": 1, "description": "", "key": "", "unit": ""}])", "[]"),
          step("[]", R"(["4"])")})
    {
        Json::Value record;
        std::istringstream(text) >> record;
        EXPECT_FALSE(editor.view()->restoreEdits(record)) << text;
    }
    EXPECT_EQ(editor.rowIds(), before);
    EXPECT_FALSE(editor.view()->isWindowModified());
}

// --- Refusing an Apply ---

TEST(MaterialViewHost, IsKeptFromApplyingByTheApplicationWithReasonAndRow)
{
    for (const char* const button : {"btnApply", "btnOk"}) {
        Editor editor;
        const auto before = vxtest::contents(editor.material());
        QObject::connect(editor.view(), &Gui::MDIWindow::applying, [](Gui::ApplyRefusal& refusal) {
            refusal.reason = "Not <b>today</b>.";
            refusal.row = 2;
        });
        bool applied = false;
        QObject::connect(editor.view(), &Gui::MDIWindow::applied, [&applied] { applied = true; });
        editor.typeValue(4, "2700");
        const MessageBoxes boxes;
        editor.click(button);
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown()[0].title, "Invalid material");
        EXPECT_EQ(boxes.shown()[0].text, "Not <b>today</b>.");
        EXPECT_FALSE(applied);
        EXPECT_EQ(vxtest::contents(editor.material()), before);
        ASSERT_NE(editor.view(), nullptr);
        EXPECT_TRUE(editor.view()->isWindowModified());
        EXPECT_EQ(editor.table().currentIndex(), editor.table().model()->index(2, 2));
    }
}

TEST(MaterialViewHost, IsAskedAboutRowsThatItAcceptsOnly)
{
    Editor editor;
    int asked = 0;
    QObject::connect(editor.view(), &Gui::MDIWindow::applying, [&asked](Gui::ApplyRefusal&) { ++asked; });
    const MessageBoxes boxes;
    editor.typeValue(4, "-1");
    editor.click("btnApply");
    editor.typeValue(4, "1");
    editor.typeValue(5, "stiff");
    editor.click("btnApply");
    EXPECT_EQ(asked, 0);
    editor.typeValue(5, "1");
    editor.click("btnApply");
    EXPECT_EQ(asked, 1);
}

TEST(MaterialViewHost, FindsValuesOfWhichAPartWouldBeIgnored)
{
    Editor editor;
    EXPECT_FALSE(editor.view()->findIgnoredText());
    editor.typeValue(5, "210 GPa");
    const auto refusal = editor.view()->findIgnoredText();
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->row, editor.rowOf(5));
    EXPECT_EQ(refusal->reason,
              QString("Row %1: The value \"210 GPa\" of \"Young's modulus\" would be read as \"210\": \"GPa\" is not "
                      "part of the number. Type the value in Pa, without a unit.")
                  .arg(editor.rowOf(5) + 1));
    editor.typeValue(5, "2e11");
    editor.typeValue(6, "0.3 or so");
    ASSERT_TRUE(editor.view()->findIgnoredText());
    EXPECT_TRUE(editor.view()->findIgnoredText()->reason.endsWith(
        "\"or so\" is not part of the number. Type the value without it."));
}

TEST(MaterialViewHost, SaysThatTextBehindANumberIsTheReasonOfARefusal)
{
    Editor editor;
    editor.typeValue(4, "210 GPa");
    QString text;
    QString details;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        text = box->text();
        details = box->informativeText();
        box->accept();
    });
    editor.click("btnApply");
    const int row = editor.rowOf(4) + 1;
    EXPECT_EQ(text, QString("Row %1: Mass density must be positive!").arg(row));
    EXPECT_EQ(details,
              QString("Row %1: The value \"210 GPa\" of \"Density\" would be read as \"210\": \"GPa\" is not part "
                      "of the number. Type the value in kg/m3, without a unit.")
                  .arg(row));
}

TEST(MaterialViewHost, ShortensLongValuesInItsReasons)
{
    Editor editor;
    editor.doubleClick(editor.item("Plastic Example 1"));
    const QModelIndex value = editor.table().model()->index(editor.rowOf(38), 2);
    editor.table().model()->setData(value, QString("450, ").repeated(10000) + "x");
    const auto refusal = editor.view()->findIgnoredText();
    ASSERT_TRUE(refusal);
    EXPECT_LT(refusal->reason.size(), 400);
    EXPECT_TRUE(refusal->reason.contains("450, 450, "));
}

TEST(MaterialViewHost, AppliesThemIfNoListenerRefuses)
{
    Editor editor;
    editor.typeValue(5, "210 GPa");
    const MessageBoxes boxes;
    editor.click("btnApply");
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_EQ(editor.material().properties.at(5)->value, 210.0);
    EXPECT_EQ(editor.cell(editor.rowOf(5), 2), "210");
}

// --- After Apply ---

TEST(MaterialViewHost, ShowsWhatTheMaterialHoldsAfterApply)
{
    Editor editor;
    editor.typeValue(4, "0210");
    editor.typeValue(31, "off");
    editor.tickByMouse(editor.item("Yield stress"));
    editor.typeValue(38, "450;608 , 679");
    editor.tickByMouse(editor.item("Speed of sound"));
    editor.click("btnApply");
    EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "210");
    EXPECT_EQ(editor.cell(editor.rowOf(31), 2), "1");
    EXPECT_EQ(editor.cell(editor.rowOf(38), 2), "450, 608, 679");
    EXPECT_EQ(editor.rowIds(), (std::vector<int>{4, 401, 202, 203, 31, 5, 6, 38, 301, 302, 303}));
}

TEST(MaterialViewHost, ShowsOneRowOfTwoWithTheSameIdAfterApply)
{
    Editor editor;
    editor.doubleClick(editor.item("Acoustic Material 2"));
    editor.click("btnApply");
    EXPECT_EQ(editor.rowIds(), std::vector<int>{4});
    EXPECT_EQ(editor.item("Density")->checkState(), Qt::Checked);
    EXPECT_EQ(editor.item("Speed of sound")->checkState(), Qt::Unchecked);
}

TEST(MaterialViewHost, LetsTheApplicationCompleteWhatWasApplied)
{
    Editor editor;
    QObject::connect(editor.view(), &Gui::MDIWindow::applied,
                     [&editor] { vxMat::restoreCatalogueTexts(editor.material()); });
    editor.click("btnApply");
    EXPECT_EQ(editor.material().properties.at(4)->unit, "kg/m3");
    EXPECT_EQ(editor.cell(editor.rowOf(4), 5), "kg/m3");
    EXPECT_FALSE(editor.view()->isWindowModified());
}

TEST(MaterialViewHost, KeepsTheCurrentRowWhenItApplies)
{
    Editor editor;
    editor.table().setCurrentIndex(editor.table().model()->index(editor.rowOf(203), 2));
    editor.click("btnApply");
    EXPECT_EQ(editor.table().currentIndex(), editor.table().model()->index(editor.rowOf(203), 2));
}

// --- Showing a row ---

/// Expects the value in a row to be current, selected and visible, and to have the keyboard focus.
void expectAtRow(Editor& editor, int row)
{
    const QModelIndex value = editor.table().model()->index(row, 2);
    EXPECT_EQ(editor.table().currentIndex(), value);
    EXPECT_TRUE(editor.table().selectionModel()->isSelected(value));
    EXPECT_TRUE(editor.table().viewport()->rect().intersects(editor.table().visualRect(value)));
    // Window managers activate the main window again after a message box.
    Gui::MainWindow::get_main_window_inst()->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&editor] { return QApplication::focusWidget() == &editor.table(); }));
}

TEST(MaterialViewHost, LeadsToARefusedRow)
{
    const std::vector<std::pair<int, QString>> refused{{4, "0"}, {6, "0.7"}, {5, "stiff"}, {33, "Tresca"}};
    for (const auto& [id, value] : refused) {
        SCOPED_TRACE(id);
        Editor editor;
        editor.view()->parentWidget()->resize(600, 250);
        QCoreApplication::processEvents();
        editor.doubleClick(editor.item("Nonlinear Titanium Alloy"));
        editor.typeValue(id, value);
        editor.table().setCurrentIndex(editor.table().model()->index(id == 33 ? 0 : editor.rowCount() - 1, 1));
        const MessageBoxes boxes;
        editor.click("btnApply");
        ASSERT_EQ(boxes.shown().size(), 1U);
        expectAtRow(editor, editor.rowOf(id));
    }
}

TEST(MaterialViewHost, LeadsToTheElasticitySwitchIfTheCombinationOfTheRowsIsRefused)
{
    Editor editor;
    editor.tickByMouse(editor.item("Young's modulus"));
    const MessageBoxes boxes;
    editor.click("btnApply");
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].text, "Elasticity does not define Young's modulus!");
    expectAtRow(editor, editor.rowOf(31));
}

TEST(MaterialViewHost, LeadsToTheRowOfAProperty)
{
    Editor editor;
    editor.view()->parentWidget()->resize(600, 250);
    QCoreApplication::processEvents();
    EXPECT_TRUE(editor.view()->showRow(303));
    expectAtRow(editor, editor.rowOf(303));
    EXPECT_TRUE(editor.view()->showRow(4));
    expectAtRow(editor, editor.rowOf(4));
    EXPECT_FALSE(editor.view()->showRow(48));
    EXPECT_FALSE(editor.view()->showRow(0));
    expectAtRow(editor, editor.rowOf(4));
}

} // namespace
