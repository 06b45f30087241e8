#include "decks/DeckExport.h"

#include "MaterialsTesting.h"
#include "UnitChoice.h"

#include "Gui/CommandController.h"
#include "Gui/FileDialog.h"
#include "Gui/GuiApplication.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "decks/DeckDialog.h"
#include "decks/DeckMaking.h"
#include "kelta/Batch.h"
#include "projectfile/ProjectStore.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyId.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTableView>
#include <QTimer>
#include <QtTest/QtTestGui>

namespace {

using desktop::Batch;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Ne;
using testing::Not;
using vxtest::MessageBoxes;
using vxtest::waitFor;

class DeckExport : public vxtest::Materials
{
protected:
    /// Opens the dialog like the menu entry, and waits for the deck.
    desktop::DeckDialog& open()
    {
        EXPECT_TRUE(run("Mat_ExportDeck"));
        waitUntilMade();
        return *dialog();
    }
    desktop::DeckDialog* dialog() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window->findChild<desktop::DeckDialog*>();
    }
    template <class Part>
    Part& part(const char* name) const
    {
        return *dialog()->findChild<Part*>(QLatin1String(name));
    }
    QPushButton& button() const
    {
        for (QAbstractButton* const button : dialog()->findChild<QDialogButtonBox*>()->buttons())
            if (button->text() == QLatin1String("E&xport..."))
                return *qobject_cast<QPushButton*>(button);
        throw std::logic_error("the dialog has no such button");
    }
    void waitUntilMade() const
    {
        ASSERT_NE(dialog(), nullptr);
        ASSERT_TRUE(waitFor([this] { return button().isEnabled(); }));
    }
    void choose(const char* format) const
    {
        part<QComboBox>("deckFormats").setCurrentText(QString::fromLatin1(format));
        waitUntilMade();
    }
    void chooseUnits(const char* system) const
    {
        part<QComboBox>("unitSystems").setCurrentText(QString::fromLatin1(system));
        waitUntilMade();
    }
    /// Presses the button of the export, and gives the file dialog its answer.
    void exportTo(const QString& target) const
    {
        Gui::FileDialog::answerNext(target);
        button().click();
    }
    std::string preview() const { return part<QPlainTextEdit>("deckPreview").toPlainText().toStdString(); }
    std::string summary() const { return part<QLabel>("deckSummary").text().toStdString(); }
    /// Returns the lines of the report, with the cells separated by bars.
    std::vector<std::string> report() const
    {
        const QAbstractItemModel& model = *part<QTableView>("deckReport").model();
        std::vector<std::string> lines;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells << model.index(row, column).data().toString();
            lines.push_back(cells.join(QLatin1Char('|')).toStdString());
        }
        return lines;
    }
    static std::string contentOf(const QString& path) { return projectfile::readFile(path); }
    Mat::MaterialObject& addPlastic(const std::string& label)
    {
        Mat::MaterialObject& object = addMaterial(project, label);
        for (const auto& [type, material] : project.getMatMgr().materials)
            if (material->name == "Plastic Example 1")
                object.setCMaterial(material.get());
        object.label.setValue(label);
        return object;
    }

    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    const QString file = path("a.inp");
};

TEST_F(DeckExport, ShowsTextAndReportBeforeAFileIsWritten)
{
    open();
    EXPECT_THAT(preview(), HasSubstr("*MATERIAL, NAME=Steel\n"));
    EXPECT_THAT(preview(), HasSubstr("*ELASTIC\n2e11, 0.3\n"));
    EXPECT_THAT(report(), Contains(testing::AllOf(testing::StartsWith("Carried|"), HasSubstr("Young's modulus"))));
    EXPECT_THAT(summary(), HasSubstr("Quantities carried: "));
    EXPECT_THAT(summary(), HasSubstr("The deck is in the unit system SI."));
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(project.getSettings().count(desktop::deckFormatSetting), 0U) << "nothing was exported";
}

TEST_F(DeckExport, FitsOnItsScreen)
{
    open();
    const QSize screen = dialog()->screen()->availableSize();
    EXPECT_LE(dialog()->width(), screen.width());
    EXPECT_LE(dialog()->height(), screen.height());
}

TEST_F(DeckExport, FollowsFormatAndUnits)
{
    open();
    choose("Nastran");
    EXPECT_THAT(preview(), HasSubstr("MAT1"));
    choose("CalculiX");
    chooseUnits("mm-t-s");
    EXPECT_THAT(preview(), HasSubstr("*ELASTIC\n2e5, 0.3\n"));
    EXPECT_THAT(report(),
                Contains(testing::AllOf(testing::StartsWith("Converted|"), HasSubstr("in MPa instead of Pa"))));
}

/// Returns the entries of a list.
QStringList entriesOf(const QComboBox& list)
{
    QStringList entries;
    for (int i = 0; i < list.count(); ++i)
        entries << list.itemText(i);
    return entries;
}

TEST_F(DeckExport, OffersTheFormsThatTheFormatHas)
{
    open();
    const QComboBox& forms = part<QComboBox>("deckForms");
    EXPECT_EQ(entriesOf(forms),
              QStringList({"As CalculiX reads it", "As the commercial relative of CalculiX reads it"}));
    choose("Nastran");
    EXPECT_TRUE(forms.isVisible());
    EXPECT_EQ(entriesOf(forms), QStringList({"Fields of 8 characters, of 16 if a number needs them",
                                             "Small fields: 8 characters, numbers are rounded",
                                             "Large fields: 16 characters", "Free fields, separated by commas"}));
    for (const char* const format : {"Mechanical APDL", "LS-DYNA", "Elmer", "MatML"}) {
        choose(format);
        EXPECT_FALSE(forms.isVisible()) << format;
    }
}

TEST(FormsOfDecks, HaveTheNamesOfTheCommandLine)
{
    for (const vxDecks::DialectInfo& dialect : vxDecks::dialects()) {
        if (dialect.dialect == vxDecks::Dialect::Standard)
            continue;
        EXPECT_EQ(vxInspector::deckForm(dialect.format, dialect.name).dialect, dialect.dialect) << dialect.name;
    }
    for (const char* const name : {"small", "large", "free"}) {
        const vxInspector::DeckForm form = vxInspector::deckForm(vxDecks::Format::Nastran, name);
        EXPECT_EQ(form.fields, vxDecks::findFieldForm(name)) << name;
        EXPECT_EQ(form.name, name);
    }
    EXPECT_EQ(vxInspector::deckForm(vxDecks::Format::Elmer, "small").format, vxDecks::Format::Elmer);
}

TEST_F(DeckExport, WritesTheFieldsOfBulkDataInTheChosenForm)
{
    setNumber(steel, modulus, 2.0612345e11);
    open();
    choose("Nastran");
    const auto chooseForm = [this](int index) {
        part<QComboBox>("deckForms").setCurrentIndex(index);
        waitUntilMade();
    };
    EXPECT_THAT(preview(), HasSubstr("\nMAT1*   ")) << "a number needs 16 characters";
    chooseForm(1);
    EXPECT_THAT(preview(), HasSubstr("\nMAT1    1       2.061+11"));
    chooseForm(2);
    EXPECT_THAT(preview(), HasSubstr("\nMAT1*   1               "));
    chooseForm(3);
    EXPECT_THAT(preview(), HasSubstr("\nMAT1*,1,2.0612345+11,"));
}

TEST_F(DeckExport, WritesTheCommercialDialectIfItIsChosen)
{
    steel.getCMaterial()->addProperty(vxMat::PropertyId::RelativePermeability, "Relative permeability", "5", "mu_r",
                                      "");
    open();
    EXPECT_THAT(preview(), Not(HasSubstr("*MAGNETIC PERMEABILITY")));
    part<QComboBox>("deckForms").setCurrentIndex(1);
    waitUntilMade();
    EXPECT_THAT(preview(), HasSubstr("*MAGNETIC PERMEABILITY"));
}

TEST_F(DeckExport, KeepsTheFormWithTheProject)
{
    open();
    choose("Nastran");
    part<QComboBox>("deckForms").setCurrentIndex(3);
    waitUntilMade();
    exportTo(path("a.bdf"));
    EXPECT_EQ(project.getSetting(desktop::deckFormSetting), "free");
    open();
    EXPECT_EQ(part<QComboBox>("deckForms").currentText(), "Free fields, separated by commas");
    choose("CalculiX");
    exportTo(path("a.inp"));
    EXPECT_EQ(project.getSetting(desktop::deckFormSetting), "") << "the usual form";
}

TEST_F(DeckExport, BeginsWithTheUsualFormIfTheFormatDoesNotHaveTheKeptOne)
{
    project.setSetting(desktop::deckFormSetting, "free");
    open();
    EXPECT_EQ(part<QComboBox>("deckForms").currentText(), "As CalculiX reads it");
}

TEST_F(DeckExport, ShowsTheBeginningOfLongLinesAndSaysSo)
{
    steel.label.setValue(std::string(5000, 'x'));
    open();
    choose("MatML");
    const auto title = [this] {
        for (const QLabel* const label : dialog()->findChildren<QLabel*>())
            if (label->buddy() == &part<QPlainTextEdit>("deckPreview"))
                return label->text().toStdString();
        return std::string();
    };
    EXPECT_EQ(title(), "&Preview (long lines are cut after 1000 characters):");
    for (const QString& line : part<QPlainTextEdit>("deckPreview").toPlainText().split(QLatin1Char('\n')))
        EXPECT_LE(line.size(), 1001);
    exportTo(path("a.xml"));
    EXPECT_THAT(contentOf(path("a.xml")), HasSubstr(std::string(1500, 'x'))) << "the file has the whole line";
}

TEST(BeginningOfADeck, EndsAfterAsManyLinesAndCharactersAsAViewShows)
{
    const desktop::Beginning whole = desktop::beginningOf("one\ntwo");
    EXPECT_EQ(whole.text, "one\ntwo") << "a last line without an end";
    EXPECT_EQ(whole.lines, 2U);
    EXPECT_EQ(whole.allLines, 2U);
    EXPECT_FALSE(whole.hasCutLines);
    EXPECT_EQ(desktop::beginningOf("").lines, 0U);

    std::string smileys;
    for (int i = 0; i < 600; ++i)
        smileys += "\xF0\x9F\x98\x80"; // two units of UTF-16 each
    const desktop::Beginning cut = desktop::beginningOf("a" + smileys + "\nb\n");
    EXPECT_TRUE(cut.hasCutLines);
    EXPECT_EQ(cut.text, QString::fromStdString("a" + smileys.substr(0, 499 * 4)) + QChar(0x2026) + "\nb\n");

    std::string lines;
    for (int i = 0; i < 10000; ++i)
        lines += std::string(2000, 'y') + '\n';
    const desktop::Beginning beginning = desktop::beginningOf(lines);
    EXPECT_LE(beginning.text.size(), 402000);
    EXPECT_EQ(beginning.allLines, 10000U);
    EXPECT_LT(beginning.lines, 2000U);
}

TEST_F(DeckExport, BeginsWithTheUnitsOfTheProject)
{
    project.setSetting(vxInspector::unitSystemSetting, "mm-t-s");
    open();
    EXPECT_EQ(part<QComboBox>("unitSystems").currentText(), "As the project (mm-t-s)");
    EXPECT_THAT(preview(), HasSubstr("*ELASTIC\n2e5, 0.3\n"));
}

TEST_F(DeckExport, WritesTheDeckThatItShowsAndSaysWhat)
{
    addMaterial(project, "Spare").setSuppressed(true);
    open();
    chooseUnits("mm-t-s");
    const std::string shown = preview();
    exportTo(file);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(contentOf(file), shown);
    EXPECT_THAT(messages().back(),
                testing::StartsWith("Materials written to \"" + file.toStdString() +
                                    "\" for CalculiX in mm-t-s: 2. Suppressed materials among them: 1. Quantities "));
}

TEST_F(DeckExport, KeepsFormatAndUnitsWithTheProjectOutsideTheHistory)
{
    const int steps = history().count();
    open();
    choose("LS-DYNA");
    chooseUnits("mm-kg-ms");
    exportTo(path("a.k"));
    EXPECT_EQ(project.getSetting(desktop::deckFormatSetting), "lsdyna");
    EXPECT_EQ(project.getSetting(desktop::deckUnitsSetting), "mm-kg-ms");
    EXPECT_EQ(history().count(), steps);
    open();
    EXPECT_EQ(part<QComboBox>("deckFormats").currentText(), "LS-DYNA");
    EXPECT_EQ(part<QComboBox>("unitSystems").currentText(), "mm-kg-ms");
}

TEST_F(DeckExport, BeginsWithTheFirstFormatIfTheKeptOneIsUnknown)
{
    project.setSetting(desktop::deckFormatSetting, "other");
    project.setSetting(desktop::deckUnitsSetting, "furlongs");
    EXPECT_TRUE(run("Mat_ExportDeck"));
    EXPECT_EQ(part<QComboBox>("deckFormats").currentText(), "CalculiX");
    EXPECT_EQ(part<QLineEdit>("baseUnits").text(), "furlongs");
    EXPECT_FALSE(button().isEnabled());
    EXPECT_EQ(summary(), "The base units cannot be read.");
    chooseUnits("SI");
    EXPECT_THAT(preview(), HasSubstr("*ELASTIC"));
}

TEST_F(DeckExport, TakesOnlyTheSelectedMaterialsIfTheUserWants)
{
    Mat::MaterialObject& skin = addMaterial(project, "Skin");
    select({&skin});
    open();
    EXPECT_EQ(part<QRadioButton>("allMaterials").text(), "&All materials of the project (2)");
    EXPECT_EQ(part<QRadioButton>("selectedMaterials").text(), "Only the &selected ones (1)");
    EXPECT_TRUE(part<QRadioButton>("allMaterials").isChecked());
    part<QRadioButton>("selectedMaterials").click();
    waitUntilMade();
    EXPECT_THAT(preview(), HasSubstr("NAME=Skin\n"));
    EXPECT_THAT(preview(), Not(HasSubstr("NAME=Steel\n")));
}

TEST_F(DeckExport, OffersNoSelectionIfNoMaterialIsSelected)
{
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
    open();
    EXPECT_FALSE(part<QRadioButton>("selectedMaterials").isEnabled());
}

TEST_F(DeckExport, NamesWhatIsLostFirstAndReportsItAfterwards)
{
    addPlastic("Shaft");
    steel.setSetting("measurements", "[1, 2]");
    open();
    choose("Elmer");
    ASSERT_THAT(report(), Not(IsEmpty()));
    EXPECT_THAT(report().front(), testing::StartsWith("Lost|"));
    EXPECT_THAT(report(), Contains(testing::AllOf(testing::StartsWith("Lost|"), HasSubstr("Yield stress"),
                                                  testing::EndsWith("|Shaft"))));
    EXPECT_THAT(summary(), HasSubstr("A deck carries no data that a project keeps beside its materials. Not written: "
                                     "measurements."));
    exportTo(path("a.sif"));
    EXPECT_THAT(messages(), Contains(testing::AllOf(testing::StartsWith("Shaft: Lost: "), HasSubstr("Yield stress"))));
    EXPECT_THAT(messages(), Contains(HasSubstr("Not written: measurements.")));
}

TEST_F(DeckExport, JoinsMaterialsWithTheSameOutcomeInALine)
{
    for (int i = 0; i < 4; ++i)
        addMaterial(project, "Part" + std::to_string(i));
    addPlastic("Shaft");
    open();
    choose("Elmer");
    EXPECT_THAT(report(), Contains(testing::EndsWith("|Steel, Part0, Part1 and 2 more")));
    EXPECT_THAT(report(), Contains(testing::EndsWith("|all 6")));
}

TEST_F(DeckExport, ProposesAFileWithTheNameOfTheProject)
{
    Obj::Application::instance().closeAllProjects();
    addMaterial(newProject("Rig 1/2"));
    open();
    choose("LS-DYNA");
    QString proposed;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&proposed, &timer] {
        auto* const files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (files == nullptr)
            return;
        timer.stop();
        proposed = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        files->reject();
    });
    timer.start(0);
    button().click();
    EXPECT_EQ(proposed, "Rig 1_2.k");
}

TEST_F(DeckExport, StaysOpenIfTheUserChoosesNoFile)
{
    open();
    exportTo(QString());
    EXPECT_NE(dialog(), nullptr);
    EXPECT_TRUE(button().isEnabled());
}

TEST_F(DeckExport, SaysThatAFileCannotBeWrittenAndStaysOpen)
{
    open();
    const MessageBoxes boxes;
    exportTo(path("no/such/folder.inp"));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(boxes.shown().front().text.toStdString(), HasSubstr("folder.inp\" cannot be written: "));
    EXPECT_EQ(boxes.shown().front().parent, dialog());
    EXPECT_NE(dialog(), nullptr);
}

TEST_F(DeckExport, AsksBeforeItReplacesAProjectFile)
{
    const std::string text = R"({"format": "vxMaterial project"})";
    projectfile::writeFile(file, text);
    open();
    const MessageBoxes boxes(QMessageBox::Cancel);
    exportTo(file);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().text, "\"" + file + "\" is a project file. Replace it by a deck?");
    EXPECT_EQ(contentOf(file), text);
    EXPECT_NE(dialog(), nullptr);
}

TEST_F(DeckExport, AppliesEditsBeforeItOpensIfTheUserWants)
{
    type(edit(steel), modulus, "7e10");
    const MessageBoxes boxes(QMessageBox::Apply);
    open();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().title, "Export for solver");
    EXPECT_THAT(preview(), HasSubstr("*ELASTIC\n7e10, 0.3\n"));
}

TEST_F(DeckExport, DoesNotOpenIfTheUserCancelsTheQuestionAboutEdits)
{
    type(edit(steel), modulus, "7e10");
    const MessageBoxes boxes(QMessageBox::Cancel);
    EXPECT_TRUE(run("Mat_ExportDeck"));
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(DeckExport, IsNotOfferedForAProjectWithoutMaterialsAndSaysWhy)
{
    const QAction& entry =
        *Gui::GuiApplication::Instance->get_command_manager().findCommand("Mat_ExportDeck")->action();
    window->updateCommands();
    EXPECT_TRUE(entry.isEnabled());
    EXPECT_EQ(entry.text(), "&Export for solver...");
    Obj::Application::instance().closeAllProjects();
    newProject("Empty");
    window->updateCommands();
    EXPECT_FALSE(entry.isEnabled());
    EXPECT_EQ(entry.text(), "&Export for solver...: the project has no materials");
    EXPECT_FALSE(run("Mat_ExportDeck"));
    Obj::Application::instance().closeAllProjects();
    window->updateCommands();
    EXPECT_EQ(entry.text(), "&Export for solver...: no material project is open");
}

TEST_F(DeckExport, SaysThatAFolderTakesNoFiles)
{
    const QString folder = path("closed");
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    if (QFileInfo(folder).isWritable())
        GTEST_SKIP() << "the user may write everywhere";
    open();
    const MessageBoxes boxes;
    exportTo(folder + "/a.inp");
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(boxes.shown().front().text.toStdString(), HasSubstr("cannot be written"));
    EXPECT_NE(dialog(), nullptr);
}

TEST_F(DeckExport, ReplacesAnotherDeck)
{
    projectfile::writeFile(file, "*MATERIAL, NAME=Old\n");
    open();
    const MessageBoxes boxes;
    exportTo(file);
    EXPECT_THAT(boxes.shown(), IsEmpty()) << "the dialog of files has asked";
    EXPECT_THAT(contentOf(file), Not(HasSubstr("Old")));
}

TEST_F(DeckExport, IsDroppedIfTheProjectIsClosedMeanwhile)
{
    open();
    Obj::Application::instance().closeAllProjects();
    button().click();
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(DeckExport, IsOfferedOnlyForAMaterialProject)
{
    Obj::Application::instance().closeAllProjects();
    EXPECT_FALSE(run("Mat_ExportDeck"));
}

TEST_F(DeckExport, IsDoneByTheKeyboardAlone)
{
    window->updateCommands();
    QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    waitUntilMade();
    ASSERT_TRUE(vxtest::waitUntilActive(dialog()));
    QStringList order;
    for (int i = 0; i < 9; ++i) {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order.mid(0, 6),
              QStringList({"deckFormats", "deckForms", "allMaterials", "unitSystems", "deckPreview", "deckReport"}));
    part<QComboBox>("deckFormats").setFocus();
    QTest::keyClicks(&part<QComboBox>("deckFormats"), QStringLiteral("Elmer"));
    waitUntilMade();
    Gui::FileDialog::answerNext(path("a.sif"));
    QTest::keyClick(&part<QComboBox>("deckFormats"), Qt::Key_Return);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_THAT(contentOf(path("a.sif")), HasSubstr("Material 1"));
}

TEST_F(DeckExport, ShowsTheBeginningOfALargeDeckAndTheReportOfAllMaterials)
{
    constexpr int count = 3000;
    addMaterials(project, count - 1);
    EXPECT_TRUE(run("Mat_ExportDeck"));
    EXPECT_FALSE(button().isEnabled()) << "the deck is made while the window stays alive";
    EXPECT_EQ(summary(), "The deck is being made...");
    part<QComboBox>("deckFormats").setCurrentText(QStringLiteral("Nastran"));
    part<QComboBox>("deckFormats").setCurrentText(QStringLiteral("Elmer"));
    waitUntilMade();
    EXPECT_EQ(part<QPlainTextEdit>("deckPreview").document()->blockCount(), 2000 + 1);
    EXPECT_THAT(preview(), HasSubstr("Material 1")) << "the last format that was chosen";
    EXPECT_THAT(report(), Contains(testing::EndsWith("|all 3000")));
    exportTo(path("a.sif"));
    EXPECT_THAT(contentOf(path("a.sif")), HasSubstr("Material 3000"));
}

TEST_F(DeckExport, CanBeClosedWhileTheDeckIsBeingMade)
{
    addMaterials(project, 2000);
    EXPECT_TRUE(run("Mat_ExportDeck"));
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(dialog(), nullptr);
}

// --- Lists of commands ---

TEST_F(DeckExport, IsAVerbOfListsInTheUnitsOfTheProject)
{
    project.setSetting(vxInspector::unitSystemSetting, "mm-t-s");
    EXPECT_EQ(Batch::runCommand("Mat_ExportDeck", {"calculix", file}), std::nullopt);
    EXPECT_THAT(contentOf(file), HasSubstr("*ELASTIC\n2e5, 0.3\n"));
    EXPECT_EQ(project.getSettings().count(desktop::deckFormatSetting), 0U) << "the user has chosen nothing";
}

TEST_F(DeckExport, TakesAUnitSystemInLists)
{
    EXPECT_EQ(Batch::runCommand("Mat_ExportDeck", {"CalculiX", file, "mm-t-s"}), std::nullopt);
    EXPECT_THAT(contentOf(file), HasSubstr("*ELASTIC\n2e5, 0.3\n"));
}

TEST_F(DeckExport, FailsInListsWithAReason)
{
    const auto failure = [](const QStringList& arguments) {
        const auto reason = Batch::runCommand("Mat_ExportDeck", arguments);
        return reason ? reason->toStdString() : std::string();
    };
    EXPECT_THAT(failure({"calculix"}), testing::StartsWith("give a solver, the name of the file to write"));
    EXPECT_EQ(failure({"word", file}), "there is no solver \"word\"; the solvers are: calculix, nastran, apdl, lsdyna, "
                                       "elmer, matml");
    EXPECT_THAT(failure({"calculix", file, "furlongs"}), HasSubstr("furlongs"));
    EXPECT_THAT(failure({"calculix", path("no/such/a.inp")}), HasSubstr("cannot be written"));
    projectfile::writeFile(file, R"({"format": "vxMaterial project"})");
    EXPECT_THAT(failure({"calculix", file}), HasSubstr("is a project file."));
    Obj::Application::instance().closeAllProjects();
    EXPECT_EQ(failure({"calculix", file}), "there is no material project");
}

} // namespace
