#include "decks/DeckImport.h"

#include "ImportUnits.h"
#include "MaterialImport.h"
#include "MaterialsTesting.h"

#include "decks/ImportDeckDialog.h"
#include "kelta/Batch.h"
#include "projectfile/ProjectStore.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

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

std::vector<std::string> reportOf(const ImportDeckDialog& dialog)
{
    const QAbstractItemModel& table = *dialog.findChild<QTableView*>(QStringLiteral("deckReport"))->model();
    std::vector<std::string> lines;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells << table.index(row, column).data().toString();
        lines.push_back(cells.join(QLatin1Char('|')).toStdString());
    }
    return lines;
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
    double modulusOfFirst() const { return modulusOf(*Mat::materialsOf(project).front()); }

    Mat::DocumentMaterial& project = newProject();
    desktop::ImportOutcome outcome;
    const QString file = path("model.inp");
};

TEST_F(DeckImport, ProposesTheUnitsThatTheNumbersFitAndConverts)
{
    const auto added = import(model, [](ImportDeckDialog& dialog) {
        EXPECT_THAT(textsOf(dialog), HasSubstr("\"model.inp\" is a deck of CalculiX. Materials: 2"));
        EXPECT_THAT(textsOf(dialog), HasSubstr("which the file does not say. They look like mm-t-s:"));
        EXPECT_EQ(systemsOf(dialog).currentText(), "mm-t-s");
        accept(dialog);
    });
    EXPECT_THAT(added, ElementsAre("Bracket", "Pin"));
    EXPECT_DOUBLE_EQ(modulusOfFirst(), 2.1e11);
}

TEST_F(DeckImport, DoubtsUnitsThatTheNumbersDoNotFitWithoutChangingTheChoice)
{
    import(model, [](ImportDeckDialog& dialog) {
        systemsOf(dialog).setCurrentText(QStringLiteral("SI"));
    EXPECT_THAT(textsOf(dialog), HasSubstr("The numbers look like mm-t-s. In SI, they would be unusual."));
    accept(dialog);
});
EXPECT_DOUBLE_EQ(modulusOfFirst(), 210000.0);
} // namespace

TEST_F(DeckImport, GuessesNoUnitsIfNothingShowsThem)
{
    const std::string text = "*MATERIAL, NAME=A\n*ELASTIC\n2.1e11, 0.3\n*DENSITY\n7850\n";
    import(text, [](ImportDeckDialog& dialog) {
        EXPECT_EQ(systemsOf(dialog).currentText(), "Not chosen yet");
    EXPECT_FALSE(importOf(dialog).isEnabled());
    EXPECT_THAT(textsOf(dialog), HasSubstr("Choose the unit system; then the report is shown."));
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    systemsOf(dialog).setCurrentText(QStringLiteral("SI"));
    accept(dialog);
});
EXPECT_DOUBLE_EQ(modulusOfFirst(), 2.1e11);
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
    projectfile::writeFile(file, "*MATERIAL, NAME=A\n*ELASTIC\nstiff, 0.3\n");
    try {
        readMaterialDocument(file);
        FAIL() << "the deck is read";
    } catch (const std::exception& error) {
        EXPECT_THAT(error.what(), testing::AllOf(StartsWith(file.toStdString()), HasSubstr("line 3")));
    }
}

TEST_F(DeckImport, SaysThatADeckHasNoMaterials)
{
    projectfile::writeFile(file, "*HEADING\nA bracket\n*NODE\n1, 0.0, 0.0, 0.0\n");
    try {
        readMaterialDocument(file);
        FAIL() << "the deck is read";
    } catch (const std::exception& error) {
        EXPECT_THAT(error.what(), testing::EndsWith(": This deck of CalculiX has no materials."));
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
