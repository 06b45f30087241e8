#include "decks/DeckImport.h"

#include "ImportUnits.h"
#include "MaterialImport.h"
#include "MaterialsTesting.h"

#include "decks/ImportDeckDialog.h"
#include "kelta/Batch.h"
#include "projectfile/ProjectStore.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <functional>

namespace {

using desktop::ImportDeckDialog;
using desktop::readMaterialDocument;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using vxtest::waitFor;

/// A model with a material in mm-t-s.
constexpr const char* model =
    "*HEADING\nA bracket\n"
    "*NODE\n1, 0.0, 0.0, 0.0\n"
    "*MATERIAL, NAME=Bracket\n*DENSITY\n7.85e-9,\n*ELASTIC\n210000., 0.3\n*DAMPING, ALPHA=0.1\n"
    "*MATERIAL, NAME=Pin\n*ELASTIC\n70000., 0.33\n*DENSITY\n2.7e-9\n";

const std::string impossibleDensity = "line 9, *DENSITY: Density = -7850 is not possible; the value must be above 0";
const std::string impossibleRatio =
    "line 7, *ELASTIC: Poisson's ratio = 0.6 is not possible; the value must be above -1 and below 0.5";

/// Waits for the dialog of the import, and uses it as the user does.
class User : public QObject
{
public:
    using Act = std::function<void(ImportDeckDialog&)>;
    explicit User(Act act) : m_act(std::move(act))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
        m_timer.start(0);
    }
    bool wasAsked() const { return m_wasAsked; }

private:
    void look()
    {
        auto* const dialog = qobject_cast<ImportDeckDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || m_wasAsked)
            return;
        m_wasAsked = true;
        m_timer.stop();
        m_act(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    }

    Act m_act;
    QTimer m_timer;
    bool m_wasAsked = false;
};

QComboBox& systemsOf(const ImportDeckDialog& dialog)
{
    return *dialog.findChild<QComboBox*>(QStringLiteral("unitSystems"));
}

QPushButton& importOf(const ImportDeckDialog& dialog)
{
    for (QAbstractButton* const button : dialog.findChild<QDialogButtonBox*>()->buttons())
        if (button->text() == QLatin1String("&Import"))
            return *qobject_cast<QPushButton*>(button);
    throw std::logic_error("the dialog has no such button");
}

bool waitUntilRead(const ImportDeckDialog& dialog)
{
    return waitFor([&dialog] { return importOf(dialog).isEnabled(); });
}

/// Returns all texts of labels of a dialog.
std::string textsOf(const ImportDeckDialog& dialog)
{
    std::string texts;
    for (const QLabel* const label : dialog.findChildren<QLabel*>())
        texts += label->text().toStdString() + '\n';
    return texts;
}

std::string summaryOf(const ImportDeckDialog& dialog)
{
    return dialog.findChild<QLabel*>(QStringLiteral("deckSummary"))->text().toStdString();
}

/// Returns the rows of a table of the dialog, with the cells separated by bars.
std::vector<std::string> rowsOf(const ImportDeckDialog& dialog, const char* name)
{
    const QAbstractItemModel& table = *dialog.findChild<QTableView*>(QLatin1String(name))->model();
    std::vector<std::string> lines;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells << table.index(row, column).data().toString();
        lines.push_back(cells.join(QLatin1Char('|')).toStdString());
    }
    return lines;
}

std::vector<std::string> reportOf(const ImportDeckDialog& dialog)
{
    return rowsOf(dialog, "deckReport");
}

std::vector<std::string> materialsOf(const ImportDeckDialog& dialog)
{
    return rowsOf(dialog, "materialsOfDeck");
}

std::vector<std::string> headersOf(const ImportDeckDialog& dialog)
{
    const QAbstractItemModel& table = *dialog.findChild<QTableView*>(QStringLiteral("materialsOfDeck"))->model();
    std::vector<std::string> titles;
    for (int column = 0; column < table.columnCount(); ++column)
        titles.push_back(table.headerData(column, Qt::Horizontal).toString().toStdString());
    return titles;
}

/// Returns all findings about a material, which the tool tip shows.
std::string tipOfFindings(const ImportDeckDialog& dialog, int row)
{
    const QAbstractItemModel& table = *dialog.findChild<QTableView*>(QStringLiteral("materialsOfDeck"))->model();
    return table.index(row, table.columnCount() - 1).data(Qt::ToolTipRole).toString().toStdString();
}

class DeckImport : public vxtest::Materials
{
protected:
    /// Writes a deck, imports it while the user acts, and returns the labels of the project.
    std::vector<std::string> import(const std::string& text, const User::Act& act)
    {
        projectfile::writeFile(file, text);
        const User user(act);
        if (const desktop::ImportStep step = readMaterialDocument(file))
            outcome = step(project);
        EXPECT_TRUE(user.wasAsked());
        return labels();
    }
    std::vector<std::string> labels() const
    {
        std::vector<std::string> all;
        for (const Mat::MaterialObject* const object : Mat::materialsOf(project))
            all.push_back(object->label.getValue());
        return all;
    }
    static void accept(ImportDeckDialog& dialog)
    {
        EXPECT_TRUE(waitUntilRead(dialog));
        importOf(dialog).click();
    }
    /// Returns the messages that lead to a material, with its label before them.
    std::vector<std::string> linkedMessages() const
    {
        std::vector<std::string> texts;
        for (const Kelta::LogMessage& message : Kelta::MessageLog::instance().messages())
            for (const Mat::MaterialObject* const object : Mat::materialsOf(project))
                if (message.link.projectId == project.getProjectId() && message.link.objectId == object->getObjectId())
                    texts.push_back(object->label.getValue() + (" -> " + message.text.toStdString()));
        return texts;
    }
    double modulusOfFirst() const { return modulusOf(*Mat::materialsOf(project).front()); }

    Mat::DocumentMaterial& project = newProject();
    desktop::ImportOutcome outcome;
    const QString file = path("model.inp");
};

TEST_F(DeckImport, ProposesTheUnitsThatTheNumbersFitAndConverts)
{
    const auto added = import(model, [](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitUntilRead(dialog));
        EXPECT_THAT(textsOf(dialog), HasSubstr("\"model.inp\" is a deck of CalculiX. Materials: 2"));
        EXPECT_THAT(textsOf(dialog), HasSubstr("which the file does not say. They look like mm-t-s:"));
        EXPECT_EQ(systemsOf(dialog).currentText(), "mm-t-s");
        accept(dialog);
    });
    EXPECT_THAT(added, ElementsAre("Bracket", "Pin"));
    EXPECT_DOUBLE_EQ(modulusOfFirst(), 2.1e11);
}

TEST_F(DeckImport, GivesTheReasonForItsProposal)
{
    import(model, [](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_THAT(textsOf(dialog), HasSubstr("In SI, they would be unusual. Bracket: "));
});
} // namespace

TEST_F(DeckImport, ProposesUnitsAlthoughAValueIsWrongInAnyUnitAndGivesAReasonThatIsAboutUnits)
{
    const std::string wrong = "*MATERIAL, NAME=Bracket\n*ELASTIC\n2.1e11, 0.3\n*DENSITY\n7850.\n"
                              "*MATERIAL, NAME=Pin\n*ELASTIC\n7.1e10, 0.33\n*DENSITY\n-1.\n";
    const auto added = import(wrong, [](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitUntilRead(dialog));
        EXPECT_EQ(systemsOf(dialog).currentText(), "SI");
        EXPECT_THAT(textsOf(dialog), HasSubstr("In mm-t-s, they would be unusual. Bracket: "));
        accept(dialog);
    });
    EXPECT_THAT(added, ElementsAre("Bracket", "Pin"));
}

TEST_F(DeckImport, DoubtsUnitsThatTheNumbersDoNotFitWithoutChangingTheChoice)
{
    import(model, [](ImportDeckDialog& dialog) {
        systemsOf(dialog).setCurrentText(QStringLiteral("SI"));
    ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_THAT(textsOf(dialog), HasSubstr("The numbers look like mm-t-s. In SI, they would be unusual. Bracket: "));
    EXPECT_EQ(systemsOf(dialog).currentText(), "SI");
    accept(dialog);
});
EXPECT_DOUBLE_EQ(modulusOfFirst(), 210000.0);
}

TEST_F(DeckImport, KeepsUnitsThatAreChosenBeforeTheFileIsRead)
{
    import(model, [](ImportDeckDialog& dialog) {
        systemsOf(dialog).setCurrentText(QStringLiteral("mm-kg-ms"));
    ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_EQ(systemsOf(dialog).currentText(), "mm-kg-ms");
    EXPECT_THAT(textsOf(dialog), HasSubstr("They look like mm-t-s:"));
});
}

TEST_F(DeckImport, ShowsTheMaterialsWithTheirValuesInTheChosenUnits)
{
    import(model, [](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_THAT(headersOf(dialog),
                ElementsAre("Material", "Young's modulus", "Poisson's ratio", "Density", "Findings"));
    EXPECT_THAT(materialsOf(dialog),
                ElementsAre("Bracket|210000 MPa|0.3|7.85e-09 t/mm^3|", "Pin|70000 MPa|0.33|2.7e-09 t/mm^3|"));
    systemsOf(dialog).setCurrentText(QStringLiteral("SI"));
    ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_THAT(materialsOf(dialog).front(), StartsWith("Bracket|210000 Pa|0.3|7.85e-09 kg/m^3|"));
    EXPECT_THAT(materialsOf(dialog).front(), testing::Not(testing::EndsWith("|"))) << "a doubt";
});
}

TEST_F(DeckImport, NamesTheMaterialThatIsInOtherUnitsThanTheOthers)
{
    const std::string text = "*MATERIAL, NAME=A\n*ELASTIC\n2.1e11, 0.3\n*DENSITY\n7850\n"
                             "*MATERIAL, NAME=B\n*ELASTIC\n7e10, 0.33\n*DENSITY\n2700\n"
                             "*MATERIAL, NAME=C\n*ELASTIC\n1.1e11, 0.34\n*DENSITY\n8900\n"
                             "*MATERIAL, NAME=Odd\n*ELASTIC\n210000, 0.3\n*DENSITY\n7.85e-9\n";
    import(text, [](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_EQ(systemsOf(dialog).currentText(), "SI") << "proposed, because most numbers fit it";
    const auto materials = materialsOf(dialog);
    ASSERT_EQ(materials.size(), 4U);
    EXPECT_THAT(materials[0], testing::EndsWith("|"));
    EXPECT_THAT(materials[3], testing::AllOf(StartsWith("Odd|210000 Pa|"), testing::Not(testing::EndsWith("|"))));
    EXPECT_THAT(textsOf(dialog), HasSubstr("Materials with doubts: 1."));
    EXPECT_THAT(textsOf(dialog), testing::Not(HasSubstr("Materials with findings")));
    accept(dialog);
});
EXPECT_THAT(linkedMessages(), Contains(StartsWith("Odd -> \"Odd\": ")));
}

TEST_F(DeckImport, TellsImpossibleValuesBeforeAndAfterTheImport)
{
    const std::string text = "*MATERIAL, NAME=Good\n*ELASTIC\n2.1e11, 0.3\n*DENSITY\n7850\n"
                             "*MATERIAL, NAME=Bad\n*ELASTIC\n2.1e11, 0.6\n*DENSITY\n-7850\n";
    import(text, [](ImportDeckDialog& dialog) {
        systemsOf(dialog).setCurrentText(QStringLiteral("SI"));
    ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_THAT(materialsOf(dialog)[0], testing::EndsWith("|"));
    EXPECT_THAT(materialsOf(dialog)[1], testing::EndsWith("|Findings: 2"));
    EXPECT_EQ(tipOfFindings(dialog, 1), impossibleDensity + "\n" + impossibleRatio);
    EXPECT_THAT(textsOf(dialog), HasSubstr("Materials with findings: 1."));
    const auto report = reportOf(dialog);
    ASSERT_GE(report.size(), 2U);
    EXPECT_EQ(report[0], "Finding||" + impossibleDensity + "|Bad");
    EXPECT_EQ(report[1], "Finding||" + impossibleRatio + "|Bad");
    EXPECT_EQ(std::count_if(report.begin(), report.end(),
                            [](const std::string& line) { return line.find("-7850") != std::string::npos; }),
              1)
        << "it is told once";
    accept(dialog);
});
EXPECT_THAT(linkedMessages(),
            ElementsAre("Bad -> \"Bad\": " + impossibleDensity, "Bad -> \"Bad\": " + impossibleRatio));
}

TEST_F(DeckImport, TellsWhatAMaterialLacksBesidesItsImpossibleValues)
{
    import("*MATERIAL, NAME=Seal\n*DENSITY\n-1000.\n*ELASTIC\n2.1e11\n", [](ImportDeckDialog& dialog) {
        systemsOf(dialog).setCurrentText(QStringLiteral("SI"));
    ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_THAT(reportOf(dialog), Contains("Finding||\"Poisson's ratio\" is 0; it must be from 0.001 to 0.499.|Seal"));
    accept(dialog);
});
EXPECT_THAT(linkedMessages(),
            ElementsAre(HasSubstr("line 2, *DENSITY: Density = -1000"), HasSubstr("\"Poisson's ratio\" is 0")));
}

TEST_F(DeckImport, GuessesNoUnitsIfNothingShowsThem)
{
    const std::string text = "*MATERIAL, NAME=A\n*CONDUCTIVITY\n1.5\n";
    import(text, [](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitFor([&] { return materialsOf(dialog).size() == 1;
}));
EXPECT_THAT(materialsOf(dialog), ElementsAre("A|1.5|")) << "without a unit";
EXPECT_EQ(systemsOf(dialog).currentText(), "Not chosen yet");
EXPECT_FALSE(importOf(dialog).isEnabled());
EXPECT_THAT(textsOf(dialog), HasSubstr("The numbers are usual in several unit systems"));
EXPECT_THAT(textsOf(dialog), HasSubstr("Choose the unit system; then the report is shown."));
QTest::keyClick(&dialog, Qt::Key_Return);
EXPECT_TRUE(dialog.isVisible());
systemsOf(dialog).setCurrentText(QStringLiteral("SI"));
accept(dialog);
});
EXPECT_THAT(labels(), ElementsAre("A"));
}

TEST_F(DeckImport, TakesTheUnitsThatTheFileDeclares)
{
    import(std::string("** Units: mm, t, s, K, A\n") + model, [](ImportDeckDialog& dialog) {
        EXPECT_THAT(textsOf(dialog), HasSubstr("which the file declares:"));
    EXPECT_EQ(systemsOf(dialog).currentText(), "mm-t-s");
    accept(dialog);
});
EXPECT_DOUBLE_EQ(modulusOfFirst(), 2.1e11);
}

TEST_F(DeckImport, ShowsTheReportBeforeAnythingIsAdded)
{
    import(model, [this](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitUntilRead(dialog));
    EXPECT_THAT(reportOf(dialog), Contains(testing::AllOf(HasSubstr("*DAMPING"), testing::EndsWith("|Bracket"))));
    EXPECT_THAT(reportOf(dialog), Contains(StartsWith("Converted|")));
    EXPECT_THAT(textsOf(dialog), HasSubstr("Not of materials, and therefore not taken: *HEADING (1), *NODE (1)"));
    EXPECT_THAT(labels(), IsEmpty());
});
EXPECT_THAT(labels(), IsEmpty()) << "the user has closed the dialog";
}

TEST_F(DeckImport, ReadsAFileAgainThatHasChangedSinceItWasShown)
{
    const auto added = import(model, [this](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitUntilRead(dialog));
        projectfile::writeFile(file, std::string(model) + "*MATERIAL, NAME=Nut\n*DENSITY\n8.e-9\n");
        importOf(dialog).click();
        EXPECT_TRUE(dialog.isVisible()) << "the user has not seen the new content yet";
        ASSERT_TRUE(waitUntilRead(dialog));
        EXPECT_THAT(textsOf(dialog), HasSubstr("The file has changed and was read again."));
        EXPECT_EQ(materialsOf(dialog).size(), 3U);
        importOf(dialog).click();
    });
    EXPECT_THAT(added, ElementsAre("Bracket", "Pin", "Nut"));
}

TEST_F(DeckImport, SaysThatTheFileHasGone)
{
    import(model, [this](ImportDeckDialog& dialog) {
        ASSERT_TRUE(waitUntilRead(dialog));
    QFile::remove(file);
    importOf(dialog).click();
    EXPECT_TRUE(waitFor([&] { return textsOf(dialog).find("The file cannot be opened.") != std::string::npos; }));
    EXPECT_FALSE(importOf(dialog).isEnabled());
});
EXPECT_THAT(labels(), IsEmpty());
}

/// A deck with many cards that are not of materials.
std::string longDeck()
{
    std::string text = std::string(model) + "*NODE\n";
    for (int i = 0; i < 500000; ++i)
        text += std::to_string(i) + ", 0.123456789, 0.123456789, 0.123456789\n";
    return text;
}

TEST_F(DeckImport, CanBeClosedWhileALongFileIsRead)
{
    import(longDeck(), [](ImportDeckDialog& dialog) {
        EXPECT_FALSE(importOf(dialog).isEnabled()) << "the window is alive before the file is read";
    EXPECT_EQ(summaryOf(dialog), "The deck is being read...");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
});
EXPECT_TRUE(QThreadPool::globalInstance()->waitForDone(vxtest::patience));
EXPECT_THAT(labels(), IsEmpty());
}

TEST_F(DeckImport, StopsReadingIfNobodyWantsTheResult)
{
    projectfile::writeFile(file, model);
    const auto deck = desktop::recogniseDeck(file);
    ASSERT_TRUE(deck);
    std::atomic<bool> isStopped = false;
    EXPECT_EQ(desktop::surveyDeck(*deck, isStopped)->asIs.materials.size(), 2U);
    isStopped = true;
    EXPECT_THROW(desktop::surveyDeck(*deck, isStopped), std::runtime_error);
    EXPECT_THROW(desktop::readDeckFile(*deck, vxUnits::UnitSystem::si(), &isStopped), std::runtime_error);
}

TEST_F(DeckImport, IsOneStepAndReportsWhatIsNotTaken)
{
    import(model, accept);
    EXPECT_THAT(outcome.doubts, Contains(HasSubstr("*DAMPING")));
    EXPECT_THAT(messages(), Contains(HasSubstr("Quantities carried: ")));
    EXPECT_EQ(history().count(), 2) << "the project, and the import";
    history().undo();
    EXPECT_THAT(labels(), IsEmpty());
    history().redo();
    EXPECT_THAT(labels(), ElementsAre("Bracket", "Pin"));
}

TEST_F(DeckImport, ReadsWhatTheExportHasWritten)
{
    addMaterial(project, "Steel");
    ASSERT_EQ(desktop::Batch::runCommand("Mat_ExportDeck", {"calculix", file, "mm-t-s"}), std::nullopt);
    const auto added = import(projectfile::readFile(file), accept);
    EXPECT_THAT(added, ElementsAre("Steel", "Steel copy"));
    EXPECT_DOUBLE_EQ(modulusOf(*Mat::materialsOf(project).back()), 2e11);
}

TEST_F(DeckImport, SaysWhereADeckIsWrong)
{
    import("*MATERIAL, NAME=A\n*ELASTIC\nstiff, 0.3\n", [this](ImportDeckDialog& dialog) {
        EXPECT_TRUE(waitFor([&] { return summaryOf(dialog) != "The deck is being read...";
}));
EXPECT_THAT(summaryOf(dialog), testing::AllOf(StartsWith(file.toStdString()), HasSubstr("line 3")));
EXPECT_FALSE(importOf(dialog).isEnabled());
});
EXPECT_THAT(labels(), IsEmpty());
}

TEST_F(DeckImport, SaysThatADeckHasNoMaterials)
{
    import("*HEADING\nA bracket\n*NODE\n1, 0.0, 0.0, 0.0\n", [](ImportDeckDialog& dialog) {
        EXPECT_TRUE(waitFor([&] { return summaryOf(dialog) != "The deck is being read...";
}));
EXPECT_THAT(summaryOf(dialog), testing::EndsWith(": This deck of CalculiX has no materials."));
EXPECT_FALSE(importOf(dialog).isEnabled());
});
}

TEST_F(DeckImport, FailsWithoutADialogIfNobodyCanBeAsked)
{
    projectfile::writeFile(file, "*MATERIAL, NAME=A\n*ELASTIC\nstiff, 0.3\n");
    const desktop::UnaskedImport unasked(vxUnits::UnitSystem::si());
    try {
        readMaterialDocument(file);
        FAIL() << "the deck is read";
    } catch (const std::exception& error) {
        EXPECT_THAT(error.what(), testing::AllOf(StartsWith(file.toStdString()), HasSubstr("line 3")));
    }
}

TEST_F(DeckImport, StillTakesAnExchangeDocumentForOne)
{
    projectfile::writeFile(file, R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "Beams"}]})");
    EXPECT_FALSE(desktop::recogniseDeck(file));
    const desktop::UnaskedImport unasked(std::nullopt);
    readMaterialDocument(file)(project);
    EXPECT_THAT(labels(), ElementsAre("Beams"));
}

TEST_F(DeckImport, NeedsUnitsInListsIfTheFileDoesNotDeclareThem)
{
    projectfile::writeFile(file, model);
    {
        const desktop::UnaskedImport unasked(std::nullopt);
        try {
            readMaterialDocument(file);
            FAIL() << "the units are guessed";
        } catch (const std::exception& error) {
            EXPECT_THAT(error.what(), HasSubstr("the numbers look like mm-t-s"));
        }
    }
    const desktop::UnaskedImport unasked(*vxUnits::UnitSystem::parse("mm-t-s"));
    readMaterialDocument(file)(project);
    EXPECT_DOUBLE_EQ(modulusOfFirst(), 2.1e11);
}

TEST_F(DeckImport, DoubtsUnitsInListsThatTheNumbersDoNotFit)
{
    projectfile::writeFile(file, model);
    const desktop::UnaskedImport unasked(vxUnits::UnitSystem::si());
    EXPECT_THAT(readMaterialDocument(file)(project).doubts, Contains("The numbers look like mm-t-s, not SI."));
}

TEST_F(DeckImport, OffersTheNamesOfTheFormatsThatCanBeRead)
{
    const QStringList patterns = desktop::deckPatterns().split(QLatin1Char(' '));
    EXPECT_TRUE(patterns.contains(QStringLiteral("*.inp")));
    EXPECT_FALSE(patterns.contains(QString()));
}

} // namespace
