// The dock of the inspector in the main window, as a user works with it.

#include "InspectorTesting.h"

#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "findings/FindingTable.h"
#include "plugin/InspectorTabs.h"
#include "plugin/TabContents.h"
#include "table/ContentView.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxMsg/MessageProxy.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QToolTip>
#include <QTranslator>
#include <QtTest/QtTestGui>

#include <cmath>
#include <limits>
#include <map>
#include <memory>

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using vxInspector::FindingColumn;
using vxtest::waitFor;

/// Puts a sign before each text of the inspector's tabs, in place of a language.
class SignTranslator : public QTranslator
{
public:
    SignTranslator() { QCoreApplication::installTranslator(this); }
    ~SignTranslator() override { QCoreApplication::removeTranslator(this); }
    SignTranslator(const SignTranslator&) = delete;
    SignTranslator& operator=(const SignTranslator&) = delete;
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*comment*/, int /*n*/) const override
    {
        const bool isOurs = QByteArray(context).startsWith("vxInspector::") || qstrcmp(context, "vxUnits::Word") == 0;
        return isOurs ? QLatin1Char('*') + QString::fromUtf8(text) : QString();
    }
};

class Inspector : public vxtest::InspectorTest
{
protected:
    static constexpr int value = 1;
    static constexpr int unit = 2;

    QComboBox& systems() const { return *window->findChild<QComboBox*>(QStringLiteral("inspectorUnits")); }
    QPushButton& applyButton() const { return *window->findChild<QPushButton*>(QStringLiteral("applyRemedy")); }

    void click(Tab tab, int row, int column) const
    {
        vxInspector::ContentView& table = view(tab);
        const QModelIndex index = table.model()->index(row, column);
        table.scrollTo(index);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(index).center());
    }

    static std::string lastMessage()
    {
        const auto& messages = Kelta::MessageLog::instance().messages();
        return messages.empty() ? std::string() : messages.back().text.toStdString();
    }

    /// Shows the findings of a material whose Young's modulus was typed in MPa, and returns the row of its doubt.
    int showDoubt(Mat::MaterialObject& object) const
    {
        setNumber(object, Id::YoungsModulus, 206900.0);
        select({&object});
        turnTo(Findings);
        EXPECT_TRUE(waitFor([this] { return findRow(Findings, "Doubt") >= 0; }));
        return findRow(Findings, "Doubt");
    }
};

TEST_F(Inspector, ShowsOnlyAHintUntilSomethingIsSelected)
{
    const auto* const dock = window->findChild<QDockWidget*>(QStringLiteral("Inspector"));
    ASSERT_NE(dock, nullptr);
    EXPECT_TRUE(dock->isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(window->findChild<QTabWidget*>(QStringLiteral("inspectorTabs")), nullptr);
}

TEST_F(Inspector, FollowsTheSelectionOfTheExplorer)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    Mat::MaterialObject& water = addMaterial(project, "Water", vxMat::eMaterialType::Water);
    select({&steel});
    EXPECT_TRUE(becomes(Values, "Density", value, "7850"));
    EXPECT_EQ(cell(Values, findRow(Values, "Density"), unit), "kg/m^3");
    select({&water});
    EXPECT_TRUE(says(Values, "Water"));
    Gui::TreeSelectionSingleton::instance().clear();
    EXPECT_TRUE(says(Values, "Select a material in the project explorer, or open its editor."));
}

TEST_F(Inspector, FollowsChangesAndTheDeletionOfTheMaterial)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    select({&steel});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    setNumber(steel, Id::Density, 7000.0);
    steel.refreshProperties(true);
    EXPECT_TRUE(becomes(Values, "Density", value, "7000"));
    vxMsg::MessageProxy::instance().deleteObject("Materials", steel.get_name_in_project());
    EXPECT_TRUE(says(Values, "The project has no materials yet."));
}

TEST_F(Inspector, ShowsTypedTextBeforeItIsApplied)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    MatGui::MaterialView& editor = edit(steel);
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    QLineEdit* const line = startTyping(editor, Id::Density, "8000");
    EXPECT_TRUE(becomes(Values, "Density", value, "8000"));
    EXPECT_TRUE(says(Values, "not applied"));
    line->selectAll();
    QTest::keyClicks(line, "7.9 g/cm^3");
    EXPECT_TRUE(becomes(Values, "Density", value, "7900"));
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_TRUE(becomes(Values, "Density", value, "7850"));
    EXPECT_EQ(numberOf(steel, Id::Density), 7850.0);
}

TEST_F(Inspector, SaysWhichTypedRowCannotBeRead)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    MatGui::MaterialView& editor = edit(steel);
    startTyping(editor, Id::Density, "7,85 g/cm^3");
    EXPECT_TRUE(becomes(Values, "Density", value, "7,85 g/cm^3"));
    EXPECT_THAT(cell(Values, findRow(Values, "Density"), 3), StartsWith("cannot be read: "));
}

TEST_F(Inspector, ShowsTheMaterialOfTheEditorThatGetsTheKeyboard)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project, "Frame");
    Mat::MaterialObject& other = addMaterial(project, "Skin");
    MatGui::MaterialView& editor = edit(steel);
    ASSERT_TRUE(says(Values, "Frame"));
    select({&other});
    ASSERT_TRUE(says(Values, "Skin"));
    startTyping(editor, Id::Density, "1234");
    EXPECT_TRUE(says(Values, "Frame"));
    EXPECT_TRUE(becomes(Values, "Density", value, "1234"));
}

TEST_F(Inspector, ShowsTheUnitSystemOfTheProjectUntilTheUserChoosesAnother)
{
    Mat::DocumentMaterial& project = newProject();
    select({&addMaterial(project)});
    ASSERT_TRUE(becomes(Values, "Young's modulus", value, "2e+11"));
    project.setSetting("unit_system", "mm-t-s");
    EXPECT_TRUE(becomes(Values, "Young's modulus", value, "200000"));
    EXPECT_EQ(systems().currentText(), "As the project (mm-t-s)");
    systems().setCurrentIndex(systems().findText(QStringLiteral("cm-g-s")));
    EXPECT_TRUE(becomes(Values, "Density", value, "7.85"));
    EXPECT_EQ(project.getSetting("unit_system"), "mm-t-s");
}

TEST_F(Inspector, FollowsThePreferredUnitSystem)
{
    select({&addMaterial(newProject())});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    vxInspector::setDefaultSystem(*vxUnits::UnitSystem::parse("cm-g-s"));
    window->updateCommands();
    EXPECT_TRUE(becomes(Values, "Density", value, "7.85"));
    vxInspector::setDefaultSystem(vxUnits::UnitSystem::si());
    window->updateCommands();
    EXPECT_TRUE(becomes(Values, "Density", value, "7850"));
}

TEST_F(Inspector, UpdatesOnlyTheVisibleTab)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    select({&steel});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    turnTo(Cards);
    setNumber(steel, Id::Density, 7000.0);
    steel.refreshProperties(true);
    ASSERT_TRUE(
        waitFor([this] { return cell(Cards, findRow(Cards, "density"), 1).find("7000") != std::string::npos; }));
    EXPECT_EQ(cell(Values, findRow(Values, "Density"), value), "7850");
    turnTo(Values);
    EXPECT_EQ(cell(Values, findRow(Values, "Density"), value), "7000");
}

TEST_F(Inspector, AppliesARemedyAsAStepOfTheHistoryIfNoEditorIsOpen)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    const int row = showDoubt(steel);
    const int steps = history().count();
    click(Findings, row, FindingColumn::Remedy);
    EXPECT_EQ(window->get_active_mdi_window(), nullptr);
    QTest::mouseClick(&applyButton(), Qt::LeftButton);
    EXPECT_EQ(numberOf(steel, Id::YoungsModulus), 2.069e11);
    EXPECT_EQ(history().count(), steps + 1);
    EXPECT_EQ(history().undoText(), "Apply remedy");
    EXPECT_THAT(lastMessage(), HasSubstr("Young's modulus: 206900 becomes 2.069e+11 Pa"));
    EXPECT_TRUE(says(Findings, "Nothing is found."));
    history().undo();
    EXPECT_EQ(numberOf(steel, Id::YoungsModulus), 206900.0);
    EXPECT_TRUE(waitFor([this] { return findRow(Findings, "Doubt") >= 0; }));
}

TEST_F(Inspector, AppliesTheOnlyRemedyWithoutASelection)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    showDoubt(steel);
    EXPECT_TRUE(applyButton().isEnabled());
    QTest::mouseClick(&applyButton(), Qt::LeftButton);
    EXPECT_EQ(numberOf(steel, Id::YoungsModulus), 2.069e11);
}

TEST_F(Inspector, LetsTheUserChooseOneOfSeveralRemedies)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    Mat::MaterialObject& other = addMaterial(project, "Other");
    setNumber(other, Id::YoungsModulus, 206900.0);
    setNumber(steel, Id::YoungsModulus, 206900.0);
    select({&steel, &other});
    turnTo(Findings);
    ASSERT_TRUE(waitFor([this] { return view(Findings).model()->rowCount() == 2; }));
    EXPECT_FALSE(applyButton().isEnabled());
    click(Findings, 1, FindingColumn::Remedy);
    QTest::mouseClick(&applyButton(), Qt::LeftButton);
    EXPECT_EQ(numberOf(other, Id::YoungsModulus), 2.069e11);
    EXPECT_EQ(numberOf(steel, Id::YoungsModulus), 206900.0);
}

TEST_F(Inspector, ShowsFindingsInTheUnitSystemOfTheValues)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    showDoubt(steel);
    systems().setCurrentIndex(systems().findText(QStringLiteral("mm-t-s")));
    EXPECT_TRUE(waitFor([this] {
        return cell(Findings, findRow(Findings, "Doubt"), FindingColumn::Finding).find("0.2069 MPa") !=
               std::string::npos;
    }));
    click(Findings, findRow(Findings, "Doubt"), FindingColumn::Remedy);
    QTest::mouseClick(&applyButton(), Qt::LeftButton);
    EXPECT_EQ(numberOf(steel, Id::YoungsModulus), 2.069e11);
    EXPECT_THAT(lastMessage(), HasSubstr("Young's modulus: 0.2069 becomes 206900 MPa"));
}

TEST_F(Inspector, CountsTheFindingsInTheTitleOfTheirTabAndMarksTheirRows)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    select({&steel});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    EXPECT_EQ(tabs().tabText(Findings), "Findings");
    const auto hasNoSign = [this](const char* name) {
        const auto* const model = view(Values).model();
        return model->index(findRow(Values, name), 0).data(Qt::DecorationRole).value<QIcon>().isNull();
    };
    EXPECT_TRUE(hasNoSign("Young's modulus"));
    setNumber(steel, Id::YoungsModulus, 206900.0);
    steel.refreshProperties(true);
    EXPECT_TRUE(waitFor([this] { return tabs().tabText(Findings) == QLatin1String("Findings (1)"); }));
    EXPECT_FALSE(hasNoSign("Young's modulus"));
    EXPECT_TRUE(hasNoSign("Density"));
    turnTo(Cards);
    setNumber(steel, Id::YoungsModulus, 2e11);
    steel.refreshProperties(true);
    EXPECT_TRUE(waitFor([this] { return tabs().tabText(Findings) == QLatin1String("Findings"); }));
}

TEST_F(Inspector, AppliesARemedyAsAStepOfAnOpenEditor)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    MatGui::MaterialView& editor = edit(steel);
    turnTo(Findings);
    QLineEdit* const line = startTyping(editor, Id::YoungsModulus, "206900");
    ASSERT_TRUE(waitFor([this] { return findRow(Findings, "Doubt") >= 0; }));
    QTest::keyClick(line, Qt::Key_Return);
    const int steps = editor.getUndoStack()->count();
    const int stepsOfHost = history().count();
    click(Findings, findRow(Findings, "Doubt"), FindingColumn::Remedy);
    QTest::mouseClick(&applyButton(), Qt::LeftButton);
    MatGui::SheetTableView& table = tableOf(editor);
    const auto shown = [&table] {
        return table.model()->index(table.findRow(Id::YoungsModulus), MatGui::SheetTableView::Value).data().toString();
    };
    EXPECT_EQ(shown(), "2.069e+11");
    EXPECT_TRUE(table.hasFocus()) << "Undo undoes the remedy";
    EXPECT_EQ(editor.getUndoStack()->count(), steps + 1);
    EXPECT_EQ(history().count(), stepsOfHost);
    EXPECT_EQ(numberOf(steel, Id::YoungsModulus), 2e11);
    editor.getUndoStack()->undo();
    EXPECT_EQ(shown(), "206900");
}

TEST_F(Inspector, LeadsFromAFindingToItsRowByAClickAndByReturn)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    const int row = showDoubt(steel);
    click(Findings, row, FindingColumn::Finding);
    auto* const editor = qobject_cast<MatGui::MaterialView*>(window->get_active_mdi_window());
    ASSERT_NE(editor, nullptr);
    MatGui::SheetTableView& table = tableOf(*editor);
    EXPECT_EQ(table.currentIndex().row(), table.findRow(Id::YoungsModulus));
    table.setCurrentRow(0);
    view(Findings).setFocus();
    QTest::keyClick(&view(Findings), Qt::Key_Return);
    EXPECT_EQ(table.currentIndex().row(), table.findRow(Id::YoungsModulus));
    EXPECT_TRUE(table.hasFocus());
}

TEST_F(Inspector, DoubtsAModelWhileItsConstantIsTypedAndLeadsToItsRow)
{
    Mat::MaterialObject& rubber = addMaterial(newProject());
    rubber.getCMaterial()->clearProperties();
    for (const auto& [id, number] : std::map<std::int32_t, double>{{Id::Density, 1100.0},
                                                                   {Id::NeoHooke, 1.0},
                                                                   {Id::MaterialConstantC10, 5e5},
                                                                   {Id::InitialShearModulusMu, 1e6},
                                                                   {Id::IncompressibilityParameterD1, 1e-9}})
        rubber.getCMaterial()->setProperty(id, std::make_unique<vxMat::MaterialProperty>(id, "", "", number));
    MatGui::MaterialView& editor = edit(rubber);
    turnTo(Findings);
    EXPECT_EQ(tabs().tabText(Findings), "Findings");
    startTyping(editor, Id::InitialShearModulusMu, "3e6");
    EXPECT_TRUE(waitFor([this] { return tabs().tabText(Findings) == QLatin1String("Findings (1)"); }));
    const int row = findRow(Findings, "Doubt");
    EXPECT_THAT(cell(Findings, row, FindingColumn::Finding),
                HasSubstr("C10 is 500000 Pa, but half of Mu is 1.5e+06 Pa"));
    click(Findings, row, FindingColumn::Finding);
    MatGui::SheetTableView& table = tableOf(editor);
    EXPECT_EQ(table.currentIndex().row(), table.findRow(Id::MaterialConstantC10));
}

TEST_F(Inspector, ShowsTheCardsOfTypedText)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    MatGui::MaterialView& editor = edit(steel);
    turnTo(Cards);
    startTyping(editor, Id::PoissonsRatio, "0.25");
    EXPECT_TRUE(waitFor([this] {
        return cell(Cards, findRow(Cards, "elasticity"), 1).find("200000000000.000000, 0.250000") != std::string::npos;
    }));
}

/// The tab of the cards with the deck of a solver.
class DeckCards : public vxtest::InspectorTest
{
protected:
    QComboBox& formats() const { return *tabs().findChild<QComboBox*>(QStringLiteral("cardFormats")); }
    /// Chooses a format with the keyboard.
    void choose(const char* title) const
    {
        formats().setFocus();
        QTest::keyClick(&formats(), Qt::Key_Home);
        for (int i = 0; i < formats().count() && formats().currentText() != QLatin1String(title); ++i)
            QTest::keyClick(&formats(), Qt::Key_Down);
        EXPECT_EQ(formats().currentText(), title);
    }
    std::string deck() const { return cell(Cards, findRow(Cards, "Deck"), 1); }
};

TEST_F(DeckCards, AreTheCardsOfTheProgramFirst)
{
    select({&addMaterial(newProject())});
    turnTo(Cards);
    EXPECT_EQ(formats().currentText(), "The solver of this program");
    QStringList titles;
    for (int i = 1; i < formats().count(); ++i)
        titles << formats().itemText(i);
    EXPECT_EQ(titles, QStringList({"CalculiX", "Nastran", "Mechanical APDL", "LS-DYNA", "Elmer", "MatML"}));
    EXPECT_GE(findRow(Cards, "elasticity"), 0);
}

TEST_F(DeckCards, FollowTheFormatAndTheUnitsOfTheInspector)
{
    select({&addMaterial(newProject())});
    turnTo(Cards);
    choose("CalculiX");
    EXPECT_TRUE(waitFor([this] { return deck().find("*ELASTIC\n2e11, 0.3") != std::string::npos; })) << deck();
    window->findChild<QComboBox*>(QStringLiteral("inspectorUnits"))->setCurrentText(QStringLiteral("mm-t-s"));
    EXPECT_TRUE(waitFor([this] { return deck().find("*ELASTIC\n2e5, 0.3") != std::string::npos; })) << deck();
    EXPECT_THAT(sentence(Cards), HasSubstr("mm-t-s"));
    choose("Nastran");
    EXPECT_TRUE(waitFor([this] { return deck().find("MAT1") != std::string::npos; })) << deck();
    choose("The solver of this program");
    EXPECT_TRUE(waitFor([this] { return findRow(Cards, "elasticity") >= 0; }));
}

TEST_F(DeckCards, FollowTypedTextAndNameTheRowThatCannotBeRead)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    MatGui::MaterialView& editor = edit(steel);
    turnTo(Cards);
    choose("CalculiX");
    QLineEdit* const line = startTyping(editor, Id::PoissonsRatio, "0.25");
    EXPECT_TRUE(waitFor([this] { return deck().find("*ELASTIC\n2e11, 0.25") != std::string::npos; })) << deck();
    QTest::keyClicks(line, "x");
    EXPECT_TRUE(waitFor([this] { return findRow(Cards, "Missing") >= 0; }));
    EXPECT_LT(findRow(Cards, "Deck"), findRow(Cards, "Missing"));
}

TEST_F(DeckCards, SayWhatTheSolverDoesNotTake)
{
    select({&addMaterial(newProject(), "Shaft", vxMat::eMaterialType::PlasticMaterial1)});
    turnTo(Cards);
    choose("Elmer");
    ASSERT_TRUE(waitFor([this] { return findRow(Cards, "Lost") >= 0; }));
    EXPECT_LT(findRow(Cards, "Deck"), findRow(Cards, "Lost"));
    EXPECT_THAT(cell(Cards, findRow(Cards, "Lost"), 1), HasSubstr("Yield stress"));
    EXPECT_EQ(findRow(Cards, "Carried"), -1);
}

TEST_F(DeckCards, FollowTheFormOfTheFormat)
{
    select({&addMaterial(newProject())});
    turnTo(Cards);
    auto& forms = *tabs().findChild<QComboBox*>(QStringLiteral("cardForms"));
    EXPECT_FALSE(forms.isVisible());
    choose("Nastran");
    EXPECT_TRUE(forms.isVisible());
    EXPECT_EQ(forms.currentText(), "Fields of 8 characters, of 16 if a number needs them");
    EXPECT_TRUE(waitFor([this] { return deck().find("\nMAT1    1") != std::string::npos; })) << deck();
    forms.setFocus();
    QTest::keyClick(&forms, Qt::Key_End);
    EXPECT_TRUE(waitFor([this] { return deck().find("\nMAT1,1,2.+11") != std::string::npos; })) << deck();
    choose("Elmer");
    EXPECT_FALSE(forms.isVisible());
}

TEST_F(DeckCards, AreCopiedAsText)
{
    select({&addMaterial(newProject())});
    turnTo(Cards);
    choose("CalculiX");
    auto* const copy = tabs().findChild<QPushButton*>(QStringLiteral("copyCards"));
    ASSERT_TRUE(waitFor([this] { return deck().find("*MATERIAL") != std::string::npos; }));
    QTest::keyClick(&formats(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // past the forms
    EXPECT_TRUE(copy->hasFocus());
    QTest::keyClick(copy, Qt::Key_Space);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), deck() + '\n');
}

TEST_F(DeckCards, AreNotOfferedWithoutAMaterial)
{
    Mat::DocumentMaterial& project = newProject();
    addMaterial(project);
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
    turnTo(Cards);
    EXPECT_TRUE(says(Cards, "Select a material to see its cards."));
    EXPECT_FALSE(formats().isVisible());
}

TEST_F(Inspector, ComparesTheSelectedMaterials)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project, "Frame");
    Mat::MaterialObject& other = addMaterial(project, "Skin", vxMat::eMaterialType::AluminumAlloy);
    select({&steel});
    turnTo(Compare);
    EXPECT_TRUE(says(Compare, "Select two or more materials to compare them."));
    select({&steel, &other});
    EXPECT_TRUE(becomes(Compare, "Density", 3, "7850"));
    EXPECT_EQ(cell(Compare, findRow(Compare, "Density"), 2), "\u2260");
    turnTo(Values);
    EXPECT_THAT(sentence(Values), StartsWith("2 materials are selected; this is the first."));
}

TEST_F(Inspector, CountsTheMaterialsOfAProject)
{
    Mat::DocumentMaterial& project = newProject();
    addMaterial(project, "Frame");
    setNumber(addMaterial(project, "Soft"), Id::YoungsModulus, 206900.0);
    Mat::MaterialObject& broken = addMaterial(project, "Broken");
    setNumber(broken, Id::PoissonsRatio, 0.7);
    broken.setSuppressed(true);
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
    EXPECT_TRUE(becomes(Values, "In the project", 1, "3"));
    EXPECT_EQ(cell(Values, findRow(Values, "Suppressed"), 1), "1");
    EXPECT_EQ(cell(Values, findRow(Values, "Not ready"), 1), "1");
    turnTo(Findings);
    EXPECT_EQ(cell(Findings, findRow(Findings, "Error"), FindingColumn::Material), "Broken");
    turnTo(Cards);
    EXPECT_EQ(sentence(Cards), "Select a material to see its cards.");
}

TEST_F(Inspector, SaysThatAMaterialIsSuppressed)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    steel.setSuppressed(true);
    select({&steel});
    EXPECT_TRUE(says(Values, "It is suppressed."));
    EXPECT_EQ(cell(Values, findRow(Values, "Density"), value), "7850");
}

TEST_F(Inspector, LimitsWhatItShowsOfTenThousandMaterialsAndSaysSo)
{
    constexpr int count = 10000;
    Mat::DocumentMaterial& project = newProject();
    std::vector<Mat::MaterialObject*> all;
    for (int i = 0; i < count; ++i)
        all.push_back(&addMaterial(project, "Steel"));
    select(all);
    EXPECT_TRUE(says(Values, "10000 materials are selected; this is the first."));
    turnTo(Findings);
    EXPECT_THAT(sentence(Findings), HasSubstr("Only the first 200 of 10000 materials are checked."));
    turnTo(Compare);
    EXPECT_THAT(sentence(Compare), HasSubstr("Only the first 20 of 10000 materials are compared."));
    EXPECT_EQ(view(Compare).model()->columnCount(), 3 + 20);
}

TEST_F(Inspector, ShowsNumbersInOneLineAfterTheTableOfAProject)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
    ASSERT_TRUE(becomes(Values, "In the project", 1, "1"));
    select({&steel});
    ASSERT_TRUE(becomes(Values, "Shear modulus", value, "7.6923e+10"));
    QCoreApplication::processEvents();
    const vxInspector::ContentView& table = view(Values);
    EXPECT_GT(table.columnWidth(value), table.fontMetrics().horizontalAdvance(QStringLiteral("7.6923e+10")));
}

TEST_F(Inspector, ShowsAllItsTabsInANarrowDock)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    setNumber(steel, Id::YoungsModulus, 206900.0);
    select({&steel});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    const vxInspector::NarrowTabBar& bar = dynamic_cast<vxInspector::InspectorTabs&>(tabs()).bar();
    for (const int characters : {60, 45}) {
        bar.parentWidget()->setFixedWidth(characters * bar.parentWidget()->fontMetrics().averageCharWidth());
        QCoreApplication::processEvents();
        EXPECT_EQ(bar.tabToolTip(Findings), "Findings (1)");
        for (int tab = 0; tab < bar.count(); ++tab) {
            EXPECT_TRUE(bar.rect().contains(bar.placeOf(tab))) << tab << ", " << characters;
            EXPECT_GT(bar.placeOf(tab).width(), bar.fontMetrics().horizontalAdvance(bar.tabText(tab)));
        }
    }
}

/// Tabs with the titles of the inspector in a language, in a dock.
class Titles : public testing::Test
{
protected:
    static QStringList german() { return {"Werte", "Befunde (12)", "Karten", "Vergleich", "Kurven", "Anpassung"}; }

    Titles()
    {
        for (int tab = 0; tab < 6; ++tab)
            pages.addTab(new QWidget, QString());
        pages.show();
    }

    void set(const QStringList& titles, int width)
    {
        pages.resize(width, 300);
        for (int tab = 0; tab < titles.size(); ++tab)
            pages.setTitle(tab, titles[tab]);
        QCoreApplication::processEvents();
    }

    void setPixelSize(int size)
    {
        QFont font = pages.font();
        font.setPixelSize(size);
        pages.setFont(font);
    }

    bool areWhole() const
    {
        const vxInspector::NarrowTabBar& bar = pages.bar();
        for (int tab = 0; tab < bar.count(); ++tab)
            if (bar.placeOf(tab).width() <= bar.fontMetrics().horizontalAdvance(bar.tabText(tab)) ||
                !bar.rect().contains(bar.placeOf(tab)))
                return false;
        return true;
    }

    int rows() const { return pages.bar().placeOf(5).top() == pages.bar().placeOf(0).top() ? 1 : 2; }

    vxInspector::InspectorTabs pages;
};

TEST_F(Titles, AreWholeInEachLanguageAndAtEachFontInADockOfTheFirstWidth)
{
    const QStringList languages[] = {{"Values", "Findings (120)", "Cards", "Compare", "Curves", "Fit"},
                                     german(),
                                     {QString::fromUtf8("\u503c"), QString::fromUtf8("\u7ed3\u679c\uff08120\uff09"),
                                      QString::fromUtf8("\u5361\u7247"), QString::fromUtf8("\u6bd4\u8f83"),
                                      QString::fromUtf8("\u66f2\u7ebf"), QString::fromUtf8("\u62df\u5408")}};
    for (const int size : {11, 13, 16, 18})
        for (const QStringList& titles : languages) {
            setPixelSize(size);
            set(titles, 370);
            EXPECT_TRUE(areWhole()) << size << ' ' << titles[1].toStdString();
            EXPECT_GE(pages.bar().fontInfo().pixelSize(), 0.85 * size - 1) << "readable";
        }
}

TEST_F(Titles, AreInTwoRowsOnlyIfOneRowIsTooNarrow)
{
    setPixelSize(16);
    set(german(), 370);
    EXPECT_EQ(rows(), 2);
    const int height = pages.bar().height();
    QTest::mouseClick(&pages.bar(), Qt::LeftButton, {}, pages.bar().placeOf(4).center());
    EXPECT_EQ(pages.currentIndex(), 4);
    EXPECT_GE(pages.currentWidget()->mapTo(&pages, QPoint()).y(), height) << "the page is below both rows";
    set(german(), 700);
    EXPECT_EQ(rows(), 1);
    EXPECT_LT(pages.bar().height(), height);
    EXPECT_EQ(pages.bar().fontInfo().pixelSize(), 16);
    QTest::mouseClick(&pages.bar(), Qt::LeftButton, {}, pages.bar().placeOf(1).center());
    EXPECT_EQ(pages.currentIndex(), 1);
    QTest::keyClick(&pages.bar(), Qt::Key_Right);
    EXPECT_EQ(pages.currentIndex(), 2);
}

TEST_F(Titles, HaveToolTipsInBothRows)
{
    setPixelSize(16);
    set(german(), 370);
    QHelpEvent help(QEvent::ToolTip, pages.bar().placeOf(5).center(), QPoint(5, 5));
    QApplication::sendEvent(&pages.bar(), &help);
    EXPECT_EQ(QToolTip::text().toStdString(), "Anpassung");
    QToolTip::hideText();
}

TEST_F(Inspector, FitsItsColumnsAfterTheMouseHasShownTheirTab)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    setNumber(steel, Id::Density, 1.2345678901e-21);
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
    ASSERT_TRUE(becomes(Values, "In the project", 1, "1"));
    turnTo(Findings);
    select({&steel});
    ASSERT_TRUE(waitFor([this] { return findRow(Findings, "Doubt") >= 0; }));
    // The header gives the second column its earlier width when it is no longer the last one, while the button is down.
    vxInspector::NarrowTabBar& bar = dynamic_cast<vxInspector::InspectorTabs&>(tabs()).bar();
    QTest::mousePress(&bar, Qt::LeftButton, {}, bar.placeOf(Values).center());
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, bar.placeOf(Values).center());
    ASSERT_TRUE(becomes(Values, "Density", value, "1.2345679e-21"));
    const vxInspector::ContentView& table = view(Values);
    EXPECT_GT(table.columnWidth(value), table.fontMetrics().horizontalAdvance(QStringLiteral("1.2345679e-21")));
}

TEST_F(Inspector, KeepsTheWidthOfAColumnThatTheUserHasDragged)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    select({&steel});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    vxInspector::ContentView& table = view(Values);
    QWidget* const header = table.horizontalHeader()->viewport();
    const QPoint edge(table.columnViewportPosition(value) - 1, header->height() / 2);
    const int before = table.columnWidth(0);
    QTest::mousePress(header, Qt::LeftButton, {}, edge);
    QTest::mouseMove(header, edge + QPoint(10, 0));
    QMouseEvent move(QEvent::MouseMove, edge + QPoint(25, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(header, &move);
    QTest::mouseRelease(header, Qt::LeftButton, {}, edge + QPoint(25, 0));
    const int dragged = table.columnWidth(0);
    EXPECT_GT(dragged, before);
    setNumber(steel, Id::Density, 7000.0);
    steel.refreshProperties(true);
    ASSERT_TRUE(becomes(Values, "Density", value, "7000"));
    EXPECT_EQ(table.columnWidth(0), dragged);
}

TEST_F(Inspector, ElidesNamesBeforeNumbersAndBarsIfTheTableIsNarrow)
{
    select({&addMaterial(newProject(), "Shaft", vxMat::eMaterialType::PlasticMaterial1)});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    vxInspector::ContentView& table = view(Values);
    const QFontMetrics font = table.fontMetrics();
    for (const int characters : {60, 50}) {
        table.setFixedWidth(characters * font.averageCharWidth());
        QCoreApplication::processEvents();
        const QModelIndex shear = table.model()->index(findRow(Values, "Shear modulus"), value);
        EXPECT_GT(table.columnWidth(value), font.horizontalAdvance(shear.data().toString())) << characters;
        const int bars = table.columnViewportPosition(3);
        EXPECT_LE(bars + 6 * font.averageCharWidth(), table.viewport()->width()) << characters;
        EXPECT_LT(table.columnWidth(0), font.horizontalAdvance(QStringLiteral("Shear modulus (derived)")));
        EXPECT_EQ(table.horizontalScrollBar()->maximum(), 0) << characters;
    }
}

TEST_F(Inspector, BreaksNoNameInsideAWord)
{
    select({&addMaterial(newProject())});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    vxInspector::ContentView& table = view(Values);
    const QFontMetrics font = table.fontMetrics();
    table.setFixedWidth(40 * font.averageCharWidth());
    QCoreApplication::processEvents();
    // A word in a column that is too narrow for it has one line, which is elided.
    const int row = findRow(Values, "Density");
    table.horizontalHeader()->resizeSection(0, 4 * font.averageCharWidth());
    EXPECT_EQ(table.sizeHintForIndex(table.model()->index(row, 0)).height(),
              table.sizeHintForIndex(table.model()->index(row, unit)).height());
    QHelpEvent help(QEvent::ToolTip, table.visualRect(table.model()->index(row, 0)).center(), QPoint());
    QApplication::sendEvent(table.viewport(), &help);
    EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("Density"));
    QToolTip::hideText();
}

TEST_F(Inspector, KeepsTheNamesOfTheComparedQuantitiesInSight)
{
    Mat::DocumentMaterial& project = newProject();
    std::vector<Mat::MaterialObject*> all;
    for (int i = 0; i < 12; ++i)
        all.push_back(&addMaterial(project, "Steel " + std::to_string(i)));
    select(all);
    turnTo(Compare);
    ASSERT_TRUE(becomes(Compare, "Density", 3, "7850"));
    vxInspector::ContentView& table = view(Compare);
    const auto* const frozen = table.findChild<QTableView*>(QStringLiteral("frozenColumn"));
    ASSERT_NE(frozen, nullptr);
    EXPECT_FALSE(frozen->isVisible());
    EXPECT_GT(table.columnWidth(0), table.fontMetrics().horizontalAdvance(QStringLiteral("conductivity")))
        << "names are whole in a table that is scrolled anyway";
    const int row = findRow(Compare, "Density");
    table.setFocus();
    table.setCurrentIndex(table.model()->index(row, 0));
    for (int i = 1; i < table.model()->columnCount(); ++i)
        QTest::keyClick(&table, Qt::Key_Right);
    ASSERT_GT(table.horizontalScrollBar()->value(), 0);
    EXPECT_TRUE(frozen->isVisible());
    EXPECT_EQ(frozen->width(), table.columnWidth(0));
    EXPECT_EQ(frozen->rowViewportPosition(row), table.rowViewportPosition(row));
    EXPECT_EQ(frozen->rowHeight(row), table.rowHeight(row));
    EXPECT_FALSE(frozen->isColumnHidden(0));
    EXPECT_TRUE(frozen->isColumnHidden(3));
    QTest::keyClick(&table, Qt::Key_Left);
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(&table, Qt::Key_Left);
    const QRect current = table.visualRect(table.currentIndex());
    EXPECT_GE(current.left(), frozen->width()) << "the column does not cover the current cell";
    table.horizontalScrollBar()->setValue(0);
    EXPECT_FALSE(frozen->isVisible());
}

TEST_F(Inspector, CopiesTheSelectedCellsAsTextAndAsATable)
{
    Mat::MaterialObject& steel = addMaterial(newProject(), "<b>Frame</b>");
    select({&steel});
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    vxInspector::ContentView& table = view(Values);
    const int row = findRow(Values, "Density");
    click(Values, row, value);
    EXPECT_TRUE(table.hasFocus());
    EXPECT_EQ(table.currentIndex().row(), row);
    QCoreApplication::processEvents();
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "7850");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      table.visualRect(table.model()->index(row, unit)).center());
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Value\tUnit\n7850\tkg/m^3");
    EXPECT_THAT(QApplication::clipboard()->mimeData()->html().toStdString(), HasSubstr("<td>7850</td><td>kg/m^3</td>"));
}

TEST_F(Inspector, CopiesTheWholeTableByItsMenu)
{
    Mat::DocumentMaterial& project = newProject();
    select({&addMaterial(project, "<b>Frame</b>"), &addMaterial(project, "Skin")});
    turnTo(Compare);
    ASSERT_TRUE(becomes(Compare, "Density", 3, "7850"));
    for (QAction* const action : view(Compare).actions())
        if (action->text() == QLatin1String("Copy &table"))
            action->trigger();
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(),
                StartsWith("Quantity\tUnit\t\u2260\t<b>Frame</b>\tSkin\n"));
    EXPECT_THAT(QApplication::clipboard()->mimeData()->html().toStdString(),
                HasSubstr("<th>&lt;b&gt;Frame&lt;/b&gt;</th>"));
}

TEST_F(Inspector, ShowsHostileLabelsAsPlainText)
{
    Mat::MaterialObject& steel = addMaterial(newProject(), "<img src=x><h1>" + std::string(100000, 'x'));
    select({&steel});
    EXPECT_TRUE(says(Values, "<img src=x><h1>x"));
    EXPECT_LT(sentence(Values).size(), 300U);
    const QVariant tip = view(Values).model()->index(0, 3).data(Qt::ToolTipRole);
    EXPECT_THAT(tip.toString().toStdString(), StartsWith("<p style="));
}

TEST_F(Inspector, ShowsNumbersThatAreNotFinite)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    setNumber(steel, Id::Density, std::nan(""));
    setNumber(steel, Id::YoungsModulus, std::numeric_limits<double>::infinity());
    select({&steel});
    EXPECT_TRUE(becomes(Values, "Density", value, "nan"));
    turnTo(Findings);
    EXPECT_GE(findRow(Findings, "Error"), 0);
    turnTo(Cards);
    EXPECT_GE(findRow(Cards, "Missing"), 0);
}

TEST_F(Inspector, FollowsAChangeOfTheLanguage)
{
    select({&addMaterial(newProject(), "Frame")});
    ASSERT_TRUE(says(Values, "\"Frame\"."));
    const SignTranslator other;
    EXPECT_TRUE(says(Values, "*\"Frame\"."));
    EXPECT_EQ(tabs().tabText(Compare), "*Compare");
    EXPECT_EQ(systems().currentText(), "*As the project (SI)");
    EXPECT_GE(findRow(Values, "**Shear modulus (derived)"), 0);
    EXPECT_EQ(cell(Values, findRow(Values, "Density"), 3), "*within the known range");
}

TEST_F(Inspector, IsReachedByF6)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    edit(steel);
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    const auto* const dock = window->findChild<QDockWidget*>(QStringLiteral("Inspector"));
    const auto isInside = [dock] { return dock->isAncestorOf(QApplication::focusWidget()); };
    constexpr int most = 8;
    for (int i = 0; i < most && !isInside(); ++i)
        window->focusNextPane();
    EXPECT_TRUE(isInside());
}

TEST_F(Inspector, CanBeHiddenAndShowsThePresentMaterialWhenShownAgain)
{
    Mat::DocumentMaterial& project = newProject();
    select({&addMaterial(project, "Frame")});
    ASSERT_TRUE(says(Values, "Frame"));
    window->toggleDock("Inspector");
    EXPECT_FALSE(window->isDockShown("Inspector"));
    select({&addMaterial(project, "Skin")});
    window->toggleDock("Inspector");
    EXPECT_TRUE(says(Values, "Skin"));
}

TEST_F(Inspector, ShowsTheMaterialOfAnEditorThatWasOpenedBeforeTheInspectorWasFirstShown)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    edit(steel);
    ASSERT_EQ(window->findChild<QTabWidget*>(QStringLiteral("inspectorTabs")), nullptr);
    EXPECT_TRUE(becomes(Values, "Density", value, "7850"));
}

TEST_F(Inspector, SurvivesTheCloseOfItsProjectAndEditor)
{
    Mat::MaterialObject& steel = addMaterial(newProject());
    edit(steel);
    ASSERT_TRUE(becomes(Values, "Density", value, "7850"));
    Obj::Application::instance().closeAllProjects();
    EXPECT_TRUE(says(Values, "Select a material"));
    EXPECT_TRUE(Kelta::MessageLog::instance().messages().empty());
}

} // namespace
