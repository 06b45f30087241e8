#include "CommaLocale.h"
#include "MaterialsTesting.h"
#include "Screenshots.h"

#include "Gui/Translator.h"
#include "cells/ShownNumber.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QToolTip>
#include <QTranslator>
#include <QtTest/QtTestGui>

#include <algorithm>
#include <cstdlib>

namespace {

using Id = vxMat::PropertyId;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using vxMat::eMaterialType;
using vxtest::MessageBoxes;

class ValueCells : public vxtest::Materials
{
protected:
    static MatGui::SheetTableView& tableOf(const MatGui::MaterialView& window)
    {
        return *window.findChild<MatGui::SheetTableView*>(QStringLiteral("tableView"));
    }

    /// Adds a material of the library and opens its editor.
    MatGui::MaterialView& editorOf(eMaterialType type)
    {
        Mat::MaterialObject& object = addMaterial(project, "Material " + std::to_string(static_cast<int>(type)));
        object.setCMaterial(object.getMatMgr().materials.at(static_cast<int>(type)).get());
        return edit(object);
    }

    MatGui::MaterialView& openEditorOf(const Mat::MaterialObject& object) const
    {
        for (Gui::MDIWindow* const each : window->getMdiWindows())
            if (each->getEditedObject() == &object)
                return dynamic_cast<MatGui::MaterialView&>(*each);
        throw std::logic_error("the material has no editor");
    }

    static QModelIndex cell(const MatGui::MaterialView& window, int id)
    {
        const MatGui::SheetTableView& table = tableOf(window);
        return table.model()->index(table.findRow(id), MatGui::SheetTableView::Value);
    }

    /// Returns the open editor of a value; null if the cell is closed.
    static QLineEdit* lineOf(const MatGui::MaterialView& window, int id)
    {
        return qobject_cast<QLineEdit*>(tableOf(window).indexWidget(cell(window, id)));
    }

    /// Opens the cell of a value by the keyboard.
    static QLineEdit& open(MatGui::MaterialView& window, int id)
    {
        EXPECT_TRUE(window.showRow(id));
        QTest::keyClick(&tableOf(window), Qt::Key_F2);
        QLineEdit* const line = lineOf(window, id);
        if (line == nullptr)
            throw std::logic_error("the cell is not open");
        line->selectAll();
        return *line;
    }

    /// Opens the cell of a value and replaces its text by typing.
    static QLineEdit& typeInto(MatGui::MaterialView& window, int id, const QString& text)
    {
        QLineEdit& line = open(window, id);
        QTest::keyClicks(&line, text);
        return line;
    }

    /// Leaves the open cell by clicking the cell of another value.
    static void clickOn(const MatGui::MaterialView& window, int id)
    {
        MatGui::SheetTableView& table = tableOf(window);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(cell(window, id)).center());
    }

    static const QLabel* hintOf(const MatGui::MaterialView& window)
    {
        for (const QLabel* const label : tableOf(window).viewport()->findChildren<QLabel*>("valueHint"))
            if (label->isVisible())
                return label;
        return nullptr;
    }

    /// Returns the text beside the open cell; "no hint" if there is none.
    static std::string hint(const MatGui::MaterialView& window)
    {
        const QLabel* const label = hintOf(window);
        return label != nullptr ? label->text().toStdString() : "no hint";
    }

    static std::string stored(const MatGui::MaterialView& window, int id)
    {
        return shownValue(window, id).toStdString();
    }

    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    MatGui::MaterialView& editor = edit(steel);
    MatGui::SheetTableView& table = tableOf(editor);
};

// --- What is read ---

TEST_F(ValueCells, SayAtOnceWhatANumberWithAUnitBecomesAndStoreItInSI)
{
    const MessageBoxes boxes;
    QLineEdit& line = typeInto(editor, modulus, "210 GPa");
    EXPECT_EQ(hint(editor), "210 GPa = 2.1e+11 Pa");
    EXPECT_EQ(line.accessibleDescription(), "210 GPa = 2.1e+11 Pa");
    EXPECT_EQ(line.accessibleName(), "Young's modulus");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(lineOf(editor, modulus), nullptr);
    EXPECT_EQ(hint(editor), "no hint");
    EXPECT_EQ(stored(editor, modulus), "2.1e+11");
    apply(editor);
    EXPECT_EQ(modulusOf(steel), 2.1e11);
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

TEST_F(ValueCells, NameTheUnitOfAPlainNumberFromTheBeginning)
{
    QLineEdit& line = open(editor, modulus);
    EXPECT_EQ(hint(editor), "2e+11 Pa");
    QTest::keyClick(&line, Qt::Key_Backspace);
    EXPECT_EQ(hint(editor), "Type a number in Pa, or with a unit.");
    QTest::keyClicks(&line, "70000000000.0");
    EXPECT_EQ(hint(editor), "7e+10 Pa");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(stored(editor, modulus), "7e+10");
}

TEST_F(ValueCells, StoreTheShortestTextThatReadsBackExactly)
{
    type(editor, density, "7.85 g/cm^3");
    EXPECT_EQ(stored(editor, density), "7850");
    // 30e6 psi are 30e6 * 0.45359237 * 9.80665 / 0.0254^2 Pa.
    type(editor, modulus, "30e6 psi");
    EXPECT_EQ(stored(editor, modulus), "206842718795.05084");
    type(editor, Id::PoissonsRatio, "30 %");
    EXPECT_EQ(stored(editor, Id::PoissonsRatio), "0.3");
}

TEST_F(ValueCells, TakeTheKelvinInAUnitAsADifference)
{
    type(editor, Id::ThermalConductivity, "60 W/(m degC)");
    EXPECT_EQ(stored(editor, Id::ThermalConductivity), "60");
    type(editor, Id::SpecificHeat, "1 kJ/(kg degF)");
    EXPECT_EQ(stored(editor, Id::SpecificHeat), "1800");
}

TEST_F(ValueCells, SayWhichCalorieIsMeant)
{
    typeInto(editor, Id::SpecificHeat, "1 cal/(g K)");
    EXPECT_EQ(hint(editor), "1 cal/(g K) = 4186.8 J/(kg K)\n"
                            "cal is the International Table calorie, 4.1868 J; cal_th is 4.184 J.");
}

TEST_F(ValueCells, OpenedAndClosedChangeNothing)
{
    for (const int id : {density, modulus}) {
        QTest::keyClick(&open(editor, id), Qt::Key_Return);
        EXPECT_EQ(lineOf(editor, id), nullptr);
    }
    EXPECT_EQ(editor.getUndoStack()->count(), 0);
    EXPECT_FALSE(editor.isWindowModified());
}

// --- What is refused ---

TEST_F(ValueCells, StayOpenWithTheReasonAndTheNearestSpelling)
{
    const MessageBoxes boxes;
    QLineEdit& line = typeInto(editor, modulus, "210 GPas");
    const std::string reason = "The unit \"GPas\" is not known. Did you mean \"210 GPa\"?";
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Up, Qt::Key_Down,
                              Qt::Key_PageUp, Qt::Key_PageDown})
    {
        QTest::keyClick(&line, key);
        ASSERT_EQ(lineOf(editor, modulus), &line) << key;
        EXPECT_TRUE(line.hasFocus());
        EXPECT_EQ(line.text(), "210 GPas");
        EXPECT_EQ(hint(editor), reason);
        EXPECT_EQ(line.accessibleDescription().toStdString(), reason);
    }
    EXPECT_EQ(stored(editor, modulus), "2e+11");
    QTest::keyClick(&line, Qt::Key_Backspace);
    EXPECT_EQ(hint(editor), "210 GPa = 2.1e+11 Pa");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(stored(editor, modulus), "2.1e+11");
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

TEST_F(ValueCells, TakeNoNumberThatWouldBeCutAtItsFirstWrongCharacter)
{
    for (const char* const text : {"2,1e11", "7.85x", "12,5", "210 GPa 5", "1e", "0x10", "inf", "nan", "1 000", "5 kg"})
    {
        SCOPED_TRACE(text);
        QLineEdit& line = typeInto(editor, modulus, text);
        QTest::keyClick(&line, Qt::Key_Return);
        EXPECT_EQ(lineOf(editor, modulus), &line);
        QTest::keyClick(&line, Qt::Key_Escape);
        EXPECT_EQ(lineOf(editor, modulus), nullptr);
        EXPECT_EQ(hint(editor), "no hint");
        EXPECT_EQ(stored(editor, modulus), "2e+11");
    }
    EXPECT_EQ(editor.getUndoStack()->count(), 0);
}

TEST_F(ValueCells, StayOpenWithoutAText)
{
    QLineEdit& line = open(editor, modulus);
    QTest::keyClick(&line, Qt::Key_Backspace);
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(lineOf(editor, modulus), &line);
    EXPECT_EQ(hint(editor), "Type a number in Pa, or with a unit.");
}

TEST_F(ValueCells, CloseByTabWithAValueThatIsRead)
{
    QTest::keyClick(&typeInto(editor, modulus, "70 GPa"), Qt::Key_Tab);
    EXPECT_EQ(lineOf(editor, modulus), nullptr);
    EXPECT_EQ(stored(editor, modulus), "7e+10");
}

// --- Leaving a cell in other ways ---

TEST_F(ValueCells, StoreTheNumberWhenTheUserClicksAnotherCell)
{
    typeInto(editor, modulus, "210 GPa");
    clickOn(editor, density);
    EXPECT_EQ(lineOf(editor, modulus), nullptr);
    EXPECT_EQ(stored(editor, modulus), "2.1e+11");
}

TEST_F(ValueCells, KeepAnUnreadableTextThatApplyRefusesWithTheReason)
{
    typeInto(editor, modulus, "210 GPas");
    clickOn(editor, density);
    EXPECT_EQ(lineOf(editor, modulus), nullptr);
    EXPECT_EQ(stored(editor, modulus), "210 GPas");
    const MessageBoxes boxes;
    apply(editor);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(
        boxes.shown().front().text.toStdString(),
        EndsWith("The value \"210 GPas\" of \"Young's modulus\" cannot be read. The unit \"GPas\" is not known. "
                 "Did you mean \"210 GPa\"?"));
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_EQ(table.currentIndex(), cell(editor, modulus));
}

TEST_F(ValueCells, ApplyRefusesTextsThatTheTableWouldReadAsOtherNumbers)
{
    for (const char* const text : {"inf", "nan", "0x10"}) {
        SCOPED_TRACE(text);
        typeInto(editor, modulus, text);
        clickOn(editor, density);
        const MessageBoxes boxes;
        apply(editor);
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_THAT(boxes.shown().front().text.toStdString(),
                    HasSubstr("The value \"" + std::string(text) + "\" of \"Young's modulus\" cannot be read."));
        EXPECT_EQ(modulusOf(steel), 2e11);
    }
}

TEST_F(ValueCells, ApplyLeavesNumbersThatTheMaterialHeldBefore)
{
    setNumber(steel, Id::ThermalConductivity, std::numeric_limits<double>::infinity());
    table.loadMaterialObject();
    type(editor, modulus, "70 GPa");
    const MessageBoxes boxes;
    apply(editor);
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_EQ(modulusOf(steel), 7e10);
}

TEST_F(ValueCells, MarkAValueThatCannotBeReadAndExplainIt)
{
    typeInto(editor, modulus, "210 <b>GPas");
    clickOn(editor, density);
    const QRect place = table.visualRect(cell(editor, modulus));
    const QImage shown = table.viewport()->grab(place).toImage();
    bool isMarked = false;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            isMarked = isMarked || shown.pixelColor(x, y) == QColor(0xb3, 0x26, 0x1e);
    EXPECT_TRUE(isMarked);
    QHelpEvent help(QEvent::ToolTip, place.center(), table.viewport()->mapToGlobal(place.center()));
    QCoreApplication::sendEvent(table.viewport(), &help);
    EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("&lt;"));
    QToolTip::hideText();
}

TEST_F(ValueCells, ThatCannotBeReadAreLegibleInASelectionWithoutTheKeyboard)
{
    typeInto(editor, modulus, "210 GPas");
    clickOn(editor, density);
    table.setCurrentIndex(cell(editor, modulus));
    table.clearFocus();
    window->findChild<QWidget*>("projectExplorer")->setFocus();
    const QImage shown = table.viewport()->grab(table.visualRect(cell(editor, modulus))).toImage();
    const QRgb background = shown.pixel(shown.width() - 4, 4);
    int darkest = 255;
    for (int y = 4; y < shown.height() - 4; ++y)
        for (int x = 4; x < shown.width() - 4; ++x)
            darkest = std::min(darkest, qGray(shown.pixel(x, y)));
    ASSERT_GT(qGray(background), 150) << "the selection is pale";
    EXPECT_LT(darkest, 110);
}

TEST_F(ValueCells, HaveASignAndExplainItIfTheirValueIsDoubtful)
{
    const auto picture = [&] {
        table.clearSelection();
        return table.viewport()->grab(table.visualRect(cell(editor, modulus))).toImage();
    };
    const auto toolTip = [&] {
        const QPoint place = table.visualRect(cell(editor, modulus)).center();
        QToolTip::hideText();
        QHelpEvent help(QEvent::ToolTip, place, table.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(table.viewport(), &help);
        return QToolTip::text().toStdString();
    };
    const auto yellow = [](const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                count += colour.red() > 180 && colour.green() > 140 && colour.blue() < 100 ? 1 : 0;
            }
        return count;
    };
    EXPECT_EQ(yellow(picture()), 0);
    EXPECT_THAT(toolTip(), Not(HasSubstr("wave speed")));
    type(editor, modulus, "206900");
    EXPECT_GT(yellow(picture()), 10);
    EXPECT_THAT(toolTip(), HasSubstr("gives a wave speed of"));
    type(editor, modulus, "2e11");
    EXPECT_EQ(yellow(picture()), 0);
}

TEST_F(ValueCells, AreMarkedUntilTheirTextCanBeRead)
{
    MatGui::MaterialView& plastic = editorOf(eMaterialType::PlasticMaterial1);
    const auto isMarked = [&plastic] {
        const QRect place = tableOf(plastic).visualRect(cell(plastic, Id::PlasticYieldStress));
        const QImage shown = tableOf(plastic).viewport()->grab(place).toImage();
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixelColor(x, y) == QColor(0xb3, 0x26, 0x1e))
                    return true;
        return false;
    };
    EXPECT_FALSE(isMarked());
    typeInto(plastic, Id::PlasticYieldStress, "250, 300 MPas");
    clickOn(plastic, density);
    EXPECT_TRUE(isMarked());
    EXPECT_TRUE(isMarked()) << "painted again";
    type(plastic, Id::PlasticYieldStress, "250, 300 MPa");
    clickOn(plastic, density);
    EXPECT_FALSE(isMarked());
}

TEST_F(ValueCells, MoveToAnotherRowByTheArrowKeysWithAValueThatIsRead)
{
    QTest::keyClick(&typeInto(editor, modulus, "70 GPa"), Qt::Key_Down);
    EXPECT_EQ(lineOf(editor, modulus), nullptr);
    EXPECT_EQ(stored(editor, modulus), "7e+10");
    EXPECT_EQ(table.currentIndex(), cell(editor, Id::PoissonsRatio));
}

TEST_F(ValueCells, RefuseAnUnreadableDensityForTheReasonAloneAndNotAsOneThatIsNotPositive)
{
    typeInto(editor, density, "7,85 g/cm^3");
    clickOn(editor, modulus);
    const MessageBoxes boxes;
    apply(editor);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(boxes.shown().front().text.toStdString(),
                StartsWith("Row 1: The value \"7,85 g/cm^3\" of \"Density\" cannot be read."));
    EXPECT_THAT(boxes.shown().front().text.toStdString(), Not(HasSubstr("positive")));
    EXPECT_EQ(table.currentIndex(), cell(editor, density));
}

TEST_F(ValueCells, EndTheirEditForCommands)
{
    typeInto(editor, modulus, "210 GPa");
    EXPECT_TRUE(run("Mat_Check"));
    EXPECT_EQ(lineOf(editor, modulus), nullptr);
    EXPECT_EQ(stored(editor, modulus), "2.1e+11");
    typeInto(editor, modulus, "70 GPas");
    EXPECT_TRUE(run("Mat_Check"));
    EXPECT_EQ(stored(editor, modulus), "70 GPas");
}

TEST_F(ValueCells, AskAboutATextThatIsBeingTypedWhenTheWindowCloses)
{
    typeInto(editor, modulus, "210 GPa");
    const MessageBoxes boxes(QMessageBox::Apply);
    EXPECT_TRUE(run("Std_CloseWindow"));
    ASSERT_TRUE(vxtest::waitFor([this] { return window->getMdiWindows().isEmpty(); }));
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(modulusOf(steel), 2.1e11);
}

TEST_F(ValueCells, KeepAnUnfinishedTextOpenWhileTheUserIsInAnotherProgram)
{
    QLineEdit& line = typeInto(editor, modulus, "210 G");
    QFocusEvent leave(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&line, &leave);
    ASSERT_EQ(lineOf(editor, modulus), &line);
    EXPECT_EQ(line.text(), "210 G");
    QTest::keyClicks(&line, "Pa");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(stored(editor, modulus), "2.1e+11");
}

TEST_F(ValueCells, KeepAnUnreadableTextOpenWhileTheUserIsInAMenu)
{
    QLineEdit& line = typeInto(editor, modulus, "210 GPas");
    QFocusEvent leave(QEvent::FocusOut, Qt::MenuBarFocusReason);
    QCoreApplication::sendEvent(&line, &leave);
    EXPECT_EQ(lineOf(editor, modulus), &line);
    EXPECT_EQ(stored(editor, modulus), "2e+11");
}

// --- Undo and recovery ---

TEST_F(ValueCells, MakeOneUndoStepOfATypedValue)
{
    type(editor, modulus, "210 GPa");
    EXPECT_EQ(editor.getUndoStack()->count(), 1);
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_EQ(stored(editor, modulus), "2e+11");
    EXPECT_TRUE(run("Std_Redo"));
    EXPECT_EQ(stored(editor, modulus), "2.1e+11");
}

TEST_F(ValueCells, UndoWhatWasTypedInTheOpenCell)
{
    QLineEdit& line = typeInto(editor, modulus, "210 GPa");
    QTest::keyClick(&line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lineOf(editor, modulus), &line);
    EXPECT_EQ(line.text(), "2e+11");
    EXPECT_EQ(hint(editor), "2e+11 Pa");
}

TEST_F(ValueCells, PutTheNumberInSIIntoRecoveryCopies)
{
    typeInto(editor, modulus, "210 GPa");
    const Json::Value edits = editor.unappliedEdits();
    const auto row = static_cast<Json::ArrayIndex>(table.findRow(modulus));
    EXPECT_EQ(edits["steps"][0]["rows"][row]["value"], "2.1e+11");
    EXPECT_NE(lineOf(editor, modulus), nullptr) << "the cell stays open";
}

// --- Paste and drop ---

TEST_F(ValueCells, TakeAPastedValue)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("7.85 g/cm^3\n"));
    QLineEdit& line = open(editor, density);
    QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(hint(editor), "7.85 g/cm^3 = 7850 kg/m^3");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(stored(editor, density), "7850");
}

TEST_F(ValueCells, TakeADroppedValue)
{
    QLineEdit& line = open(editor, density);
    line.clear();
    QMimeData data;
    data.setText(QStringLiteral("7.85 t/m^3"));
    QDragEnterEvent enter(line.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&line, &enter);
    QDropEvent drop(line.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&line, &drop);
    EXPECT_EQ(hint(editor), "7.85 t/m^3 = 7850 kg/m^3");
}

// --- Lists, words, special units ---

TEST_F(ValueCells, TakeListsWithOneUnitForAllNumbers)
{
    MatGui::MaterialView& plastic = editorOf(eMaterialType::PlasticMaterial1);
    QLineEdit& line = typeInto(plastic, Id::PlasticYieldStress, "250, 300 MPa");
    EXPECT_EQ(hint(plastic), "250, 300 MPa = 2.5e+08, 3e+08 Pa");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(stored(plastic, Id::PlasticYieldStress), "2.5e+08, 3e+08");
    type(plastic, Id::PlasticStrain, "0; 0.01");
    EXPECT_EQ(stored(plastic, Id::PlasticStrain), "0, 0.01");
}

TEST_F(ValueCells, StayOpenWithAListWithoutSeparators)
{
    MatGui::MaterialView& plastic = editorOf(eMaterialType::PlasticMaterial1);
    QLineEdit& line = typeInto(plastic, Id::PlasticYieldStress, "250 300");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(lineOf(plastic, Id::PlasticYieldStress), &line);
    EXPECT_THAT(hint(plastic), EndsWith("Did you mean \"250, 300\"?"));
}

TEST_F(ValueCells, CanBeEmptiedIfTheyHoldAList)
{
    MatGui::MaterialView& plastic = editorOf(eMaterialType::PlasticMaterial1);
    QLineEdit& line = open(plastic, Id::PlasticYieldStress);
    QTest::keyClick(&line, Qt::Key_Backspace);
    EXPECT_EQ(hint(plastic), "Type numbers in Pa, or with a unit, separated by commas.");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(stored(plastic, Id::PlasticYieldStress), "");
}

TEST_F(ValueCells, LeaveWordsAndSwitchesAlone)
{
    MatGui::MaterialView& plastic = editorOf(eMaterialType::PlasticMaterial1);
    QLineEdit& word = typeInto(plastic, Id::PlasticYieldType, "Mohr-Coulomb");
    EXPECT_EQ(hint(plastic), "no hint");
    EXPECT_NE(word.completer(), nullptr);
    QTest::keyClick(&word, Qt::Key_Return);
    EXPECT_EQ(stored(plastic, Id::PlasticYieldType), "Mohr-Coulomb");
    QTest::keyClick(&typeInto(plastic, Id::IsotropicElasticity, "on"), Qt::Key_Return);
    EXPECT_EQ(stored(plastic, Id::IsotropicElasticity), "on");
}

TEST_F(ValueCells, NameTheTrueUnitWhereTheCatalogueIsWrong)
{
    MatGui::MaterialView& rubber = editorOf(eMaterialType::Elastomer3);
    QLineEdit& stretch = typeInto(rubber, Id::LimitingNetworkStretch, "2.5");
    EXPECT_EQ(hint(rubber), "2.5 (pure number)");
    QTest::keyClicks(&stretch, " Pa");
    EXPECT_THAT(hint(rubber), HasSubstr("is a pure number"));
    MatGui::MaterialView& copper = editorOf(eMaterialType::EMMaterial1);
    typeInto(copper, Id::ElectricalConductivity, "58 MS/m");
    EXPECT_EQ(hint(copper), "58 MS/m = 5.8e+07 S/m");
}

TEST_F(ValueCells, TakeTheUnitOfTheCreepFactorFromTheExponentsInTheRows)
{
    MatGui::MaterialView& creep = editorOf(eMaterialType::CreepMaterial1);
    type(creep, Id::CreepModulusN, "2");
    QLineEdit& factor = typeInto(creep, Id::CreepModulusA, "3 MPa^-2 h^-1");
    // 3 / (1e6 Pa)^2 / 3600 s
    EXPECT_THAT(hint(creep), HasSubstr(" = 8.333333333333333e-16 1/(Pa^2 s)"));
    QTest::keyClick(&factor, Qt::Key_Return);
    EXPECT_EQ(stored(creep, Id::CreepModulusA), "8.333333333333333e-16");
}

TEST_F(ValueCells, TakeNoUnitForACreepFactorWithoutExponents)
{
    MatGui::MaterialView& creep = editorOf(eMaterialType::CreepMaterial1);
    tableOf(creep).model()->removeRow(tableOf(creep).findRow(Id::CreepModulusN));
    QLineEdit& factor = typeInto(creep, Id::CreepModulusA, "3e-10");
    EXPECT_EQ(hint(creep), "3e-10 Pa^-N s^-(M+1)");
    QTest::keyClicks(&factor, " MPa^-2 h^-1");
    EXPECT_EQ(hint(creep),
              "The unit of Creep Modulus A depends on Creep Modulus N, which is not given; give it first.");
    QTest::keyClick(&factor, Qt::Key_Return);
    EXPECT_EQ(lineOf(creep, Id::CreepModulusA), &factor);
}

TEST_F(ValueCells, AreConvertedByApplyIfTheyHaveBecomeReadable)
{
    MatGui::MaterialView& creep = editorOf(eMaterialType::CreepMaterial1);
    typeInto(creep, Id::CreepModulusN, "4,5");
    clickOn(creep, density);
    typeInto(creep, Id::CreepModulusA, "1e-10 MPa^-4.5 s^-1");
    clickOn(creep, density);
    EXPECT_EQ(stored(creep, Id::CreepModulusA), "1e-10 MPa^-4.5 s^-1") << "N cannot be read yet";
    type(creep, Id::CreepModulusN, "4.5");
    const MessageBoxes boxes;
    apply(creep);
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_EQ(stored(creep, Id::CreepModulusA), "1e-37"); // 1e-10 / (1e6 Pa)^4.5 / s
    EXPECT_EQ(creep.getMaterialObject()->getCMaterial()->findProperty(Id::CreepModulusA)->value, 1e-37);
}

// --- Locales, languages, files that are missing, long texts ---

TEST_F(ValueCells, ReadAndWriteADecimalPointInEveryLocale)
{
    const vxtest::CommaLocale locale;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    type(editor, density, "7.85 g/cm^3");
    EXPECT_EQ(stored(editor, density), "7850");
    type(editor, Id::PoissonsRatio, "0.29");
    EXPECT_EQ(stored(editor, Id::PoissonsRatio), "0.29");
    QLineEdit& line = typeInto(editor, modulus, "2,1 GPa");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(lineOf(editor, modulus), &line);
    EXPECT_THAT(hint(editor), EndsWith("Did you mean \"2.1 GPa\"?"));
    QLocale::setDefault(QLocale::c());
}

TEST_F(ValueCells, ReadTheSameInGerman)
{
    Gui::Translator::instance()->setLanguage(QStringLiteral("de"));
    QCoreApplication::processEvents();
    QLineEdit& line = typeInto(editor, modulus, "210 GPa");
    EXPECT_EQ(line.accessibleName(), "Elastizitätsmodul");
    EXPECT_EQ(hint(editor), "210 GPa = 2.1e+11 Pa");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(stored(editor, modulus), "2.1e+11");
    MatGui::MaterialView& creep = editorOf(eMaterialType::CreepMaterial1);
    type(creep, Id::CreepModulusN, "2.5");
    QLineEdit& factor = typeInto(creep, Id::CreepModulusA, "1 MPas");
    EXPECT_THAT(hint(creep), HasSubstr("Die Einheit „MPas“ ist nicht bekannt."));
    QTest::keyClick(&factor, Qt::Key_Escape);
    typeInto(creep, density, "5 m");
    EXPECT_THAT(hint(creep), HasSubstr("Dichte"));
    EXPECT_THAT(hint(creep), Not(HasSubstr("Density")));
    Gui::Translator::instance()->setLanguage(QStringLiteral("en"));
    QCoreApplication::processEvents();
}

/// Translates sentences to the same sentences in brackets, and leaves names and words.
class Brackets : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* /*comment*/, int /*n*/) const override
    {
        const std::string place = context;
        const bool isSentence = place == "desktop::CellReading" || place == "vxUnits::Message";
        return isSentence ? QStringLiteral("[%1]").arg(QString::fromUtf8(text)) : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST_F(ValueCells, SayEverythingInTheLanguageOfTheUser)
{
    Brackets translator;
    QCoreApplication::installTranslator(&translator);
    QLineEdit& line = open(editor, modulus);
    QTest::keyClick(&line, Qt::Key_Backspace);
    EXPECT_EQ(hint(editor), "[Type a number in Pa, or with a unit.]");
    QTest::keyClicks(&line, "210 GPas");
    EXPECT_EQ(hint(editor), "[The unit \"GPas\" is not known.] [Did you mean \"210 GPa\"?]");
    line.setText(QStringLiteral("5 cal/m^3"));
    EXPECT_THAT(hint(editor), HasSubstr("[cal is the International Table calorie"));
    line.clear();
    QCoreApplication::removeTranslator(&translator);
}

TEST_F(ValueCells, TakeBuiltInUnitsIfTheDatabaseOfUnitsIsMissing)
{
    setenv("UDUNITS2_XML_PATH", "/nowhere/udunits2.xml", 1);
    QLineEdit& line = typeInto(editor, modulus, "5 N/furlong^2");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(lineOf(editor, modulus), &line);
    EXPECT_THAT(hint(editor),
                HasSubstr("the database of units cannot be read: /nowhere/udunits2.xml cannot be opened"));
    QTest::keyClick(&line, Qt::Key_Escape);
    type(editor, modulus, "70 GPa");
    EXPECT_EQ(stored(editor, modulus), "7e+10");
    type(editor, modulus, "8e10");
    EXPECT_EQ(stored(editor, modulus), "8e+10");
}

TEST_F(ValueCells, TakeListsOfAHundredThousandCharactersAndSayTheirEnds)
{
    MatGui::MaterialView& plastic = editorOf(eMaterialType::PlasticMaterial1);
    QGuiApplication::clipboard()->setText(QStringLiteral("250, ").repeated(20000) + QStringLiteral("300 MPa"));
    QLineEdit& line = open(plastic, Id::PlasticYieldStress);
    QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(hint(plastic), "20001 numbers: 2.5e+08, ..., 3e+08 Pa");
    QTest::keyClicks(&line, "s");
    EXPECT_LT(hint(plastic).size(), 400U);
    EXPECT_THAT(hint(plastic), EndsWith("300 MPa\"?")) << "the end of the spelling that is accepted";
    QTest::keyClick(&line, Qt::Key_Backspace);
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(vxMat::readNumberList(stored(plastic, Id::PlasticYieldStress)).size(), 20001U);
}

TEST_F(ValueCells, RefuseNumbersOfAHundredThousandCharactersInAFewLines)
{
    const MessageBoxes boxes;
    QLineEdit& line = open(editor, modulus);
    for (const QString& text : {QString(100000, 'x'), QString(100000, '1') + "x", "1 " + QString(100000, 'm'),
                                "1 " + QString("m/").repeated(50000), "1 " + QString(100000, '(')})
    {
        line.setText(text);
        QTest::keyClick(&line, Qt::Key_Return);
        ASSERT_EQ(lineOf(editor, modulus), &line);
        EXPECT_LT(hint(editor).size(), 500U);
        EXPECT_LT(line.accessibleDescription().size(), 500);
    }
    clickOn(editor, density);
    apply(editor);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_LT(boxes.shown().front().text.size(), 1000);
    EXPECT_EQ(modulusOf(steel), 2e11);
}

// --- Two editors ---

TEST_F(ValueCells, OfTwoEditorsAreReadEachForItself)
{
    Mat::MaterialObject& other = addMaterial(project, "Other");
    typeInto(editor, modulus, "210 GPas");
    MatGui::MaterialView& second = edit(other);
    type(second, modulus, "70 GPa");
    EXPECT_EQ(stored(editor, modulus), "210 GPas");
    EXPECT_EQ(stored(second, modulus), "7e+10");
    apply(second);
    EXPECT_EQ(modulusOf(other), 7e10);
    edit(steel);
    type(editor, modulus, "210 GPa");
    apply(editor);
    EXPECT_EQ(modulusOf(steel), 2.1e11);
    // Each Apply is a step of the history. An editor without unapplied changes is opened again with the restored material.
    history().undo();
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_EQ(stored(openEditorOf(steel), modulus), "2e+11");
    history().undo();
    EXPECT_EQ(modulusOf(other), 2e11);
    EXPECT_EQ(stored(openEditorOf(other), modulus), "2e+11");
    history().redo();
    EXPECT_EQ(stored(openEditorOf(other), modulus), "7e+10");
    typeInto(openEditorOf(other), modulus, "71 GPa");
    EXPECT_EQ(hint(openEditorOf(other)), "71 GPa = 7.1e+10 Pa");
    EXPECT_EQ(stored(openEditorOf(steel), modulus), "2e+11");
}

// --- The place of the hint ---

TEST_F(ValueCells, HaveTheirHintBesideThemInTheTable)
{
    for (const QSize size : {QSize(1024, 700), QSize(700, 420), QSize(600, 320)}) {
        window->resize(size);
        QCoreApplication::processEvents();
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            const int id = table.model()->index(row, MatGui::SheetTableView::Id).data().toInt();
            if (id == Id::IsotropicElasticity)
                continue;
            for (const char* const text : {"5", "5 kg/furlongs"}) {
                QLineEdit& line = typeInto(editor, id, text);
                ASSERT_NE(hintOf(editor), nullptr);
                const QLabel& label = *hintOf(editor);
                EXPECT_FALSE(label.geometry().intersects(line.geometry())) << id << ' ' << size.width();
                EXPECT_TRUE(table.viewport()->rect().contains(label.geometry())) << id << ' ' << size.width();
                EXPECT_TRUE(line.hasFocus());
                EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
                QTest::keyClick(&line, Qt::Key_Escape);
            }
        }
    }
}

TEST_F(ValueCells, HaveTheirHintInTheVisiblePartOfAnEditorThatIsWiderThanItsArea)
{
    auto* const sub = qobject_cast<QMdiSubWindow*>(editor.parentWidget());
    ASSERT_NE(sub, nullptr);
    QWidget& area = *sub->parentWidget();
    sub->showNormal();
    sub->setGeometry(0, 0, area.width() * 3 / 2, area.height());
    QCoreApplication::processEvents();
    for (const char* const text : {"5", "7,85 g/cm^3"}) {
        QLineEdit& line = typeInto(editor, density, text);
        ASSERT_NE(hintOf(editor), nullptr);
        const QLabel& label = *hintOf(editor);
        const QRect shown(label.mapTo(&area, QPoint()), label.size());
        EXPECT_TRUE(area.rect().contains(shown)) << text << ' ' << shown.right();
        EXPECT_GE(label.height(), label.heightForWidth(label.width())) << "the whole text is visible";
        QTest::keyClick(&line, Qt::Key_Escape);
    }
}

TEST_F(ValueCells, KeepTheirHintWhenTheTableIsScrolledAndResized)
{
    window->resize(700, 420);
    QCoreApplication::processEvents();
    const QLineEdit& line = typeInto(editor, density, "5");
    table.setColumnWidth(MatGui::SheetTableView::Name, 60);
    QCoreApplication::processEvents();
    ASSERT_NE(hintOf(editor), nullptr);
    EXPECT_FALSE(hintOf(editor)->geometry().intersects(line.geometry()));
    EXPECT_LE(hintOf(editor)->geometry().left(), line.geometry().right());
}

/// Gives the program dark colours, and the earlier ones when it goes.
class DarkColours
{
public:
    DarkColours() : m_before(QGuiApplication::palette()) { QApplication::setPalette(vxtest::darkColours()); }
    ~DarkColours() { QApplication::setPalette(m_before); }

private:
    QPalette m_before;
};

/// Returns the mean lightness of a picture, from 0 to 255.
int lightnessOf(const QPixmap& picture)
{
    return picture.toImage().scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0).lightness();
}

TEST_F(ValueCells, AreDarkWithBrightTextIfTheProgramIs)
{
    EXPECT_GT(lightnessOf(table.viewport()->grab()), 200);
    {
        const DarkColours dark;
        EXPECT_LT(lightnessOf(table.viewport()->grab()), 80);
        EXPECT_EQ(table.palette().color(QPalette::Text), vxtest::darkColours().color(QPalette::Text));
        QLineEdit& line = typeInto(editor, density, "7.85 g/cm^3");
        EXPECT_LT(lightnessOf(line.grab()), 120);
        ASSERT_NE(hintOf(editor), nullptr);
        EXPECT_LT(lightnessOf(const_cast<QLabel*>(hintOf(editor))->grab()), 128);
        QTest::keyClick(&line, Qt::Key_Escape);
    }
    EXPECT_GT(lightnessOf(table.viewport()->grab()), 200) << "the colours of the program are light again";
}

TEST_F(ValueCells, OfAnEditorThatIsOpenedInDarkColoursAreDark)
{
    const DarkColours dark;
    const MatGui::MaterialView& opened = editorOf(eMaterialType::StructuralSteel);
    EXPECT_LT(lightnessOf(tableOf(opened).viewport()->grab()), 80);
}

TEST_F(ValueCells, MarkAnUnreadableTextReadablyInDarkColours)
{
    const DarkColours dark;
    typeInto(editor, density, "7,85");
    clickOn(editor, modulus);
    int brightest = 0;
    const QImage shown = table.viewport()->grab(table.visualRect(cell(editor, density))).toImage();
    for (int x = 0; x < shown.width(); ++x)
        for (int y = 0; y < shown.height(); ++y)
            if (const QColor pixel = shown.pixelColor(x, y); pixel.red() > pixel.green() + 40)
                brightest = std::max(brightest, pixel.lightness());
    EXPECT_GT(brightest, 180);
}

TEST_F(ValueCells, ShowTheMagnitudeOfALongNumberInANarrowColumn)
{
    using desktop::withMagnitudeInSight;
    const QFontMetrics font = table.fontMetrics();
    const int narrow = font.horizontalAdvance(QString::fromUtf8("2.0684\u2026e+11")) + 1;
    const auto shown = [&](const char* text) {
        return withMagnitudeInSight(QString::fromLatin1(text), font, narrow).toStdString();
    };
    EXPECT_EQ(shown("206842718795.05084"), "2.0684\u2026e+11");
    EXPECT_EQ(shown("2.0684271879505084e+11"), "2.0684\u2026e+11");
    EXPECT_EQ(shown("2e+11"), "2e+11");
    EXPECT_EQ(shown("20000000000000000000"), "2e+19");
    EXPECT_EQ(shown("0.33333333333333331"), "0.33333333333333331") << "its beginning shows its magnitude";
    EXPECT_EQ(shown("Drucker-Prager and other words"), "Drucker-Prager and other words");
    EXPECT_EQ(shown("450000000, 608000000"), "450000000, 608000000") << "lists have several lines";
}

TEST_F(ValueCells, PaintNumbersOfDifferentMagnitudeDifferentlyInANarrowColumn)
{
    const auto pictureOf = [this](const char* number) {
        type(editor, modulus, number);
        const int width = table.fontMetrics().horizontalAdvance(QStringLiteral("2.0684.e+11"));
        table.setColumnWidth(MatGui::SheetTableView::Value, width + 8);
        table.setCurrentIndex({});
        return table.viewport()->grab(table.visualRect(cell(editor, modulus))).toImage();
    };
    EXPECT_NE(pictureOf("206842718795.05084"), pictureOf("20684271879505.084"));
}

} // namespace
