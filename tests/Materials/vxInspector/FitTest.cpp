// The tab of the fits in the main window, as a user works with it.

#include "InspectorTesting.h"

#include "Gui/FileDialog.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "fit/FitPage.h"
#include "plot/PlotView.h"
#include "table/ContentView.h"
#include "vxConstitutive/record/Measurements.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QtTest/QtTestGui>

#include <sys/stat.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using vxtest::waitFor;

/// A tensile test of a Neo-Hookean rubber with C10 = 0.5 MPa.
QString rubberTable(const char* header = "stretch;nominal stress [MPa]\n")
{
    QString text = QLatin1String(header);
    for (int i = 1; i <= 20; ++i) {
        const double stretch = 1.0 + 0.1 * i;
        text += QString::number(stretch) + ';' + QString::number(stretch - 1.0 / (stretch * stretch), 'g', 10) + '\n';
    }
    return text;
}

class FitTab : public vxtest::InspectorTest
{
protected:
    vxInspector::FitPage& page() const { return *tabs().findChild<vxInspector::FitPage*>(); }

    template <class Widget>
    Widget& control(const char* name) const
    {
        return *page().findChild<Widget*>(QLatin1String(name));
    }

    void press(const char* name) const
    {
        auto& button = control<QPushButton>(name);
        ASSERT_TRUE(button.isVisible() && button.isEnabled()) << name;
        QTest::mouseClick(&button, Qt::LeftButton);
    }

    Mat::MaterialObject& showMaterial() const
    {
        Mat::MaterialObject& seal = addMaterial(newProject(), "Seal", vxMat::eMaterialType::Elastomer1);
        select({&seal});
        turnTo(Fit);
        EXPECT_TRUE(waitFor([this] { return page().isVisible(); }));
        return seal;
    }

    void paste(const QString& text) const
    {
        QApplication::clipboard()->setText(text);
        press("fitPaste");
    }

    void chooseMode(const char* text) const
    {
        auto& mode = control<QComboBox>("fitMode");
        mode.setFocus();
        QTest::keyClicks(&mode, QLatin1String(text));
        ASSERT_EQ(mode.currentText().left(int(qstrlen(text))), QLatin1String(text));
    }

    void tabTo(const char* name) const;

    void fitRubberFor(Mat::MaterialObject& material) const
    {
        select({&material});
        turnTo(Fit);
        ASSERT_TRUE(waitFor([this] { return page().isVisible(); }));
        fitRubber();
    }

    /// The text of a tensile test with three points.
    static std::string keptText(const char* name)
    {
        return vxConstitutive::writeMeasurements(
            {{{name, vxConstitutive::Mode::Uniaxial, {1.5, 2.0, 3.0}, {1e6, 1.75e6, 3e6}}}, {}});
    }

    /// Opens the menu of the button that removes, and clicks the entry that begins with a text.
    void chooseRemoval(const char* beginning) const
    {
        auto& button = control<QPushButton>("fitRemove");
        ASSERT_NE(button.menu(), nullptr);
        QMenu& menu = *button.menu();
        menu.popup(button.mapToGlobal(QPoint()));
        for (QAction* const action : menu.actions())
            if (action->text().startsWith(QLatin1String(beginning)))
                return QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
        menu.close();
        FAIL() << beginning << " is not in the menu";
    }

    std::string applied() const
    {
        const auto& label = control<QLabel>("fitApplied");
        return label.isVisible() ? label.text().toStdString() : std::string();
    }

    void removeQuantity(Mat::MaterialObject& object, int id) const
    {
        vxMat::MaterialBase& material = *object.getCMaterial();
        material.removeProperty(material.findProperty(id));
        object.refreshProperties(true);
        QCoreApplication::processEvents();
    }

    static constexpr const char* setting = vxConstitutive::measurementsSetting;

    std::string preview() const { return control<QLabel>("fitPreview").text().toStdString(); }

    /// Pastes the test of a rubber, fits all models and selects Neo-Hookean.
    void fitRubber() const
    {
        paste(rubberTable());
        chooseMode("uniaxial");
        fitTests();
    }

    /// Fits all models and selects Neo-Hookean.
    void fitTests() const
    {
        press("fitStart");
        ASSERT_TRUE(waitFor([this] { return !page().isFitting() && !page().results().empty(); }));
        auto& models = control<vxInspector::ContentView>("fitModels");
        for (int row = 0; row < models.model()->rowCount(); ++row)
            if (models.model()->index(row, 0).data().toString() == QLatin1String("Neo-Hookean"))
                models.setCurrentIndex(models.model()->index(row, 0));
        QCoreApplication::processEvents();
    }
};

TEST_F(FitTab, SaysWhatToDoWithoutTests)
{
    showMaterial();
    EXPECT_THAT(control<QLabel>("sentence").text().toStdString(), HasSubstr("Load test data from a file"));
    EXPECT_FALSE(control<QPushButton>("fitStart").isVisible());
}

TEST_F(FitTab, AsksForWhatTheHeaderDoesNotTell)
{
    showMaterial();
    paste(rubberTable("stretch;nominal stress\n"));
    EXPECT_THAT(preview(), HasSubstr("Choose which test it is."));
    EXPECT_FALSE(control<QPushButton>("fitStart").isEnabled());
    chooseMode("uniaxial");
    EXPECT_THAT(preview(), HasSubstr("Enter the unit of the vertical axis."));
    EXPECT_FALSE(control<QPushButton>("fitStart").isEnabled());
    auto& unit = control<QLineEdit>("fitYUnit");
    QTest::keyClicks(&unit, "MPa");
    QTest::keyClick(&unit, Qt::Key_Return);
    EXPECT_THAT(preview(), HasSubstr("20 points"));
    EXPECT_TRUE(control<QPushButton>("fitStart").isEnabled());
}

TEST_F(FitTab, LoadsAFile)
{
    showMaterial();
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("tension.csv")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(rubberTable().toUtf8());
    file.close();
    Gui::FileDialog::answerNext(file.fileName());
    press("fitLoad");
    ASSERT_EQ(page().tests().size(), 1U);
    EXPECT_EQ(page().tests()[0].request.name, "tension");
    press("fitRemove");
    EXPECT_TRUE(page().tests().empty());
}

TEST_F(FitTab, RefusesAPipeWhichWouldNeverEnd)
{
    showMaterial();
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe.csv"));
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    for (const QString& path : {pipe, QStringLiteral("/dev/zero")}) {
        Gui::FileDialog::answerNext(path);
        press("fitLoad");
        EXPECT_THAT(Kelta::MessageLog::instance().messages().back().text.toStdString(),
                    AllOf(HasSubstr(path.toStdString()), HasSubstr("this is not a file")));
    }
    EXPECT_TRUE(page().tests().empty());
}

TEST_F(FitTab, LoadsEachChosenFile)
{
    showMaterial();
    const QTemporaryDir folder;
    QStringList paths;
    for (const char* const name : {"a", "b", "c"}) {
        paths << folder.filePath(QLatin1String(name) + QStringLiteral(".csv"));
        QFile file(paths.back());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(rubberTable().toUtf8());
    }
    paths.insert(1, folder.filePath(QStringLiteral("missing.csv")));
    Gui::FileDialog::answerNext(paths.join('\n'));
    press("fitLoad");
    ASSERT_EQ(page().tests().size(), 3U);
    EXPECT_EQ(page().tests()[2].request.name, "c");
    EXPECT_THAT(Kelta::MessageLog::instance().messages().back().text.toStdString(), HasSubstr("missing.csv"));
}

/// A test with so many rows that it is read beside the interface.
QString longRubberTable(int rows = 60000)
{
    QString text = QStringLiteral("stretch;nominal stress [MPa]\n");
    for (int i = 1; i <= rows; ++i) {
        const double stretch = 1.0 + 2.0 * i / rows;
        text += QString::number(stretch, 'g', 8) + ';' + QString::number(stretch - 1.0 / (stretch * stretch), 'g', 8) +
                '\n';
    }
    return text;
}

TEST_F(FitTab, ReadsALongTestBesideTheInterface)
{
    showMaterial();
    paste(longRubberTable());
    EXPECT_TRUE(page().tests().empty());
    EXPECT_THAT(control<QLabel>("sentence").text().toStdString(), HasSubstr("is being read"));
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    chooseMode("uniaxial");
    EXPECT_THAT(preview(), HasSubstr("The test is being read."));
    EXPECT_FALSE(control<QPushButton>("fitStart").isEnabled());
    ASSERT_TRUE(waitFor([this] { return page().tests()[0].reading.data.has_value(); }));
    EXPECT_THAT(preview(), HasSubstr("60000 points"));
    fitTests();
    press("fitApply");
    EXPECT_EQ(page().tests()[0].reading.data->abscissas.size(), 60000U);
}

TEST_F(FitTab, WritesALongTestForApplyBesideTheInterface)
{
    Mat::MaterialObject& seal = showMaterial();
    const int steps = history().count();
    paste(longRubberTable());
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    chooseMode("uniaxial");
    ASSERT_TRUE(waitFor([this] { return page().tests()[0].reading.data.has_value(); }));
    fitTests();
    press("fitApply");
    EXPECT_EQ(applied(), "The tests are being written for the material.");
    EXPECT_FALSE(control<QPushButton>("fitApply").isEnabled());
    EXPECT_EQ(seal.getSetting(setting), "") << "nothing is written before all can be";
    QCoreApplication::processEvents();
    EXPECT_FALSE(control<QLabel>("fitApplied").visibleRegion().isEmpty()) << "the tab scrolls to it";
    ASSERT_TRUE(waitFor([&] { return !seal.getSetting(setting).empty(); }));
    EXPECT_EQ(history().count(), steps + 1);
    EXPECT_THAT(applied(), HasSubstr("Seal"));
    EXPECT_TRUE(page().tests()[0].isKept);
    EXPECT_TRUE(control<QPushButton>("fitApply").isEnabled());
    EXPECT_EQ(vxConstitutive::readMeasurements(seal.getSetting(setting)).tests.at(0).abscissas.size(), 60000U);
    history().undo();
    EXPECT_EQ(seal.getSetting(setting), "");
}

TEST_F(FitTab, AppliesALongTestToTheMaterialOfTheButtonThoughAnotherOneIsSelected)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& seal = addMaterial(project, "Seal", vxMat::eMaterialType::Elastomer1);
    Mat::MaterialObject& pad = addMaterial(project, "Pad", vxMat::eMaterialType::Elastomer1);
    select({&seal});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().isVisible(); }));
    paste(longRubberTable());
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    chooseMode("uniaxial");
    ASSERT_TRUE(waitFor([this] { return page().tests()[0].reading.data.has_value(); }));
    fitTests();
    press("fitApply");
    seal.setSetting(setting, keptText("meanwhile"));
    select({&pad});
    ASSERT_TRUE(waitFor([&] { return seal.getSetting(setting).size() > 100000; }));
    EXPECT_EQ(vxConstitutive::readMeasurements(seal.getSetting(setting)).tests.size(), 2U) << "also those of meanwhile";
    EXPECT_EQ(pad.getSetting(setting), "");
    press("fitApply"); // now to the other one, which goes away
    history().clear();
    Obj::Application::instance().closeAllProjects();
    EXPECT_TRUE(waitFor([this] { return applied().empty(); }));
}

TEST_F(FitTab, DropsTheReadingOfALongTestThatIsRemovedOrChanged)
{
    showMaterial();
    paste(longRubberTable());
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    chooseMode("uniaxial");
    QTest::keyClick(&control<QComboBox>("fitMode"), Qt::Key_Down);
    ASSERT_TRUE(waitFor([this] { return page().tests()[0].reading.data.has_value(); }));
    EXPECT_EQ(page().tests()[0].reading.data->mode, vxConstitutive::Mode::Equibiaxial);
    QTest::keyClick(&control<QComboBox>("fitMode"), Qt::Key_Down);
    press("fitRemove");
    paste(longRubberTable());
    window.reset(); // ends while the table is being read
}

TEST_F(FitTab, AppliesTheConstantsAsOneStepThatCanBeUndone)
{
    Mat::MaterialObject& seal = showMaterial();
    const double before = numberOf(seal, Id::MaterialConstantC10);
    const int steps = history().count();
    fitRubber();
    EXPECT_EQ(control<QPushButton>("fitApply").text(), "&Apply to \"Seal\"");
    EXPECT_EQ(history().count(), steps);
    press("fitApply");
    EXPECT_NEAR(numberOf(seal, Id::MaterialConstantC10), 0.5e6, 500.0);
    EXPECT_TRUE(seal.getCMaterial()->hasProperty(Id::NeoHooke));
    EXPECT_EQ(history().count(), steps + 1);
    history().undo();
    EXPECT_EQ(numberOf(seal, Id::MaterialConstantC10), before);
}

TEST_F(FitTab, AppliesTheConstantsToTheRowsOfAnOpenEditor)
{
    Mat::MaterialObject& seal = showMaterial();
    const double before = numberOf(seal, Id::MaterialConstantC10);
    MatGui::MaterialView& editor = edit(seal);
    fitRubber();
    press("fitApply");
    EXPECT_TRUE(editor.isWindowModified());
    EXPECT_EQ(numberOf(seal, Id::MaterialConstantC10), before);
    ASSERT_EQ(editor.getUndoStack()->count(), 1);
    double written = 0.0;
    for (const MatGui::SheetRow& row : tableOf(editor).rows())
        if (row.id == Id::MaterialConstantC10)
            written = row.value.toDouble();
    EXPECT_NEAR(written, 0.5e6, 500.0);
    editor.getUndoStack()->undo();
    EXPECT_FALSE(editor.isWindowModified());
}

TEST_F(FitTab, KeepsTheTestsAndTheFitWithTheMaterialInTheSameStep)
{
    Mat::MaterialObject& seal = showMaterial();
    const int steps = history().count();
    fitRubber();
    EXPECT_EQ(seal.getSetting(setting), "");
    press("fitApply");
    EXPECT_EQ(history().count(), steps + 1);
    const auto kept = vxConstitutive::readMeasurements(seal.getSetting(setting));
    ASSERT_EQ(kept.tests.size(), 1U);
    EXPECT_EQ(kept.tests[0].name, "Test 1");
    EXPECT_EQ(kept.tests[0].mode, vxConstitutive::Mode::Uniaxial);
    EXPECT_DOUBLE_EQ(kept.tests[0].abscissas.at(9), 2.0);
    EXPECT_DOUBLE_EQ(kept.tests[0].ordinates.at(9), 1.75e6);
    ASSERT_EQ(kept.fits.size(), 1U);
    EXPECT_EQ(kept.fits[0].model, "Neo-Hookean");
    EXPECT_EQ(kept.fits[0].stability, vxConstitutive::StabilityDemand::OverData);
    EXPECT_NEAR(kept.fits[0].constants.at(0).value, 0.5e6, 500.0);
    history().undo();
    EXPECT_EQ(seal.getSetting(setting), "");
    history().redo();
    EXPECT_EQ(seal.getSetting(setting), vxConstitutive::writeMeasurements(kept));
}

TEST_F(FitTab, ReplacesAKeptTestOfTheSameNameAndAddsTheFit)
{
    Mat::MaterialObject& seal = addMaterial(newProject(), "Seal", vxMat::eMaterialType::Elastomer1);
    fitRubberFor(seal);
    press("fitApply");
    auto kept = vxConstitutive::readMeasurements(seal.getSetting(setting));
    kept.tests[0].ordinates[0] = 1.0;
    kept.tests.push_back(kept.tests[0]);
    kept.tests[1].name = "other";
    seal.setSetting(setting, vxConstitutive::writeMeasurements(kept));
    press("fitApply");
    const auto now = vxConstitutive::readMeasurements(seal.getSetting(setting));
    ASSERT_EQ(now.tests.size(), 2U);
    EXPECT_GT(now.tests[0].ordinates[0], 1e5);
    EXPECT_EQ(now.tests[1].ordinates[0], 1.0);
    EXPECT_EQ(now.fits.size(), 2U);
}

TEST_F(FitTab, DoesNotOverwriteMeasurementsThatItCannotRead)
{
    Mat::MaterialObject& seal = addMaterial(newProject(), "Seal", vxMat::eMaterialType::Elastomer1);
    seal.setSetting(setting, "{\"version\": 99}");
    fitRubberFor(seal);
    EXPECT_THAT(control<QLabel>("sentence").text().toStdString(), HasSubstr("The kept tests cannot be read"));
    press("fitApply");
    EXPECT_EQ(seal.getSetting(setting), "{\"version\": 99}");
    EXPECT_NEAR(numberOf(seal, Id::MaterialConstantC10), 0.5e6, 500.0);
    const auto& messages = Kelta::MessageLog::instance().messages();
    ASSERT_GE(messages.size(), 2U);
    EXPECT_THAT(messages[messages.size() - 2].text.toStdString(), HasSubstr("The tests are not kept with \"Seal\""));
    EXPECT_THAT(messages.back().text.toStdString(), HasSubstr("The tests are not kept."));
}

TEST_F(FitTab, KeepsTheTestsOfAMaterialWithAnOpenEditor)
{
    Mat::MaterialObject& seal = showMaterial();
    MatGui::MaterialView& editor = edit(seal);
    const int steps = history().count();
    fitRubber();
    press("fitApply");
    EXPECT_EQ(history().count(), steps + 1);
    EXPECT_EQ(vxConstitutive::readMeasurements(seal.getSetting(setting)).tests.size(), 1U);
    EXPECT_TRUE(editor.isWindowModified());
    history().undo();
    EXPECT_EQ(seal.getSetting(setting), "");
    EXPECT_TRUE(editor.isWindowModified());
    editor.getUndoStack()->undo();
}

TEST_F(FitTab, LoadsTheTestsThatAMaterialKeeps)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& seal = addMaterial(project, "Seal", vxMat::eMaterialType::Elastomer1);
    Mat::MaterialObject& pad = addMaterial(project, "Pad", vxMat::eMaterialType::Elastomer1);
    seal.setSetting(setting, keptText("tension"));
    pad.setSetting(setting, keptText("pad test"));
    select({&seal});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    EXPECT_EQ(page().tests()[0].request.name, "tension");
    EXPECT_EQ(page().tests()[0].reading.data->ordinates.back(), 3e6);
    EXPECT_EQ(control<QComboBox>("fitMode").currentText().left(8), "uniaxial");
    EXPECT_THAT(preview(), HasSubstr("3 points: \"nominal stress\" as nominal stress in Pa against \"stretch\""));
    fitTests();
    EXPECT_FALSE(page().results().empty());
    chooseRemoval("Test \"tension\" from this tab");
    EXPECT_TRUE(page().tests().empty());
    EXPECT_EQ(seal.getSetting(setting), keptText("tension"));
    select({&pad});
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    EXPECT_EQ(page().tests()[0].request.name, "pad test");
}

TEST_F(FitTab, KeepsTheTestsOfTheUserWhenAnotherMaterialIsSelected)
{
    Mat::MaterialObject& seal = showMaterial();
    Mat::MaterialObject& pad =
        addMaterial(*dynamic_cast<Mat::DocumentMaterial*>(seal.get_project()), "Pad", vxMat::eMaterialType::Elastomer1);
    pad.setSetting(setting, keptText("pad test"));
    paste(rubberTable());
    select({&pad});
    paste(rubberTable());
    ASSERT_EQ(page().tests().size(), 2U);
    EXPECT_EQ(page().tests()[0].request.name, "Test 1");
}

TEST_F(FitTab, ShowsNoTestsOfAnotherMaterialForOneThatKeepsNone)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& pad = addMaterial(project, "Pad", vxMat::eMaterialType::Elastomer1);
    Mat::MaterialObject& seal = addMaterial(project, "Seal", vxMat::eMaterialType::Elastomer1);
    pad.setSetting(setting, keptText("pad test"));
    select({&pad});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    select({&seal});
    EXPECT_TRUE(waitFor([this] { return page().tests().empty(); }));
}

TEST_F(FitTab, KeepsTestsWhoseKeepingIsUndone)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& seal = addMaterial(project, "Seal", vxMat::eMaterialType::Elastomer1);
    Mat::MaterialObject& pad = addMaterial(project, "Pad", vxMat::eMaterialType::Elastomer1);
    pad.setSetting(setting, keptText("pad test"));
    fitRubberFor(seal);
    press("fitApply");
    history().undo();
    QCoreApplication::processEvents();
    select({&pad});
    ASSERT_TRUE(waitFor([this] { return control<QPushButton>("fitApply").text().contains("Pad"); }));
    ASSERT_EQ(page().tests().size(), 1U);
    EXPECT_EQ(page().tests()[0].request.name, "Test 1");
}

TEST_F(FitTab, FollowsTheSelectionAgainAfterUndoAndRedoOfApply)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& seal = addMaterial(project, "Seal", vxMat::eMaterialType::Elastomer1);
    Mat::MaterialObject& pad = addMaterial(project, "Pad", vxMat::eMaterialType::Elastomer1);
    fitRubberFor(seal);
    press("fitApply");
    history().undo();
    QCoreApplication::processEvents();
    history().redo();
    QCoreApplication::processEvents();
    select({&pad});
    EXPECT_TRUE(waitFor([this] { return page().tests().empty() && page().results().empty(); }));
}

TEST_F(FitTab, ShowsNoFitOfKeptTestsForAnotherMaterial)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& seal = addMaterial(project, "Seal", vxMat::eMaterialType::Elastomer1);
    Mat::MaterialObject& pad = addMaterial(project, "Pad", vxMat::eMaterialType::Elastomer1);
    seal.setSetting(setting, keptText("tension"));
    select({&seal});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    fitTests();
    select({&pad});
    EXPECT_TRUE(waitFor([this] { return page().tests().empty(); }));
    EXPECT_TRUE(page().results().empty());
    EXPECT_FALSE(control<QPushButton>("fitApply").isVisible());
}

TEST_F(FitTab, ShowsKeptTestsWithTheColumnsAndUnitsOfTheirFile)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& seal = addMaterial(project, "Seal", vxMat::eMaterialType::Elastomer1);
    Mat::MaterialObject& pad = addMaterial(project, "Pad", vxMat::eMaterialType::Elastomer1);
    select({&seal});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().isVisible(); }));
    paste(QStringLiteral("Dehnung;Kraft pro Fläche\n%;MPa\n50;1.1\n100;1.75\n200;2.9\n"));
    chooseMode("uniaxial");
    control<QComboBox>("fitYColumn").setFocus();
    QTest::keyClick(&control<QComboBox>("fitYColumn"), Qt::Key_End);
    QTest::keyClicks(&control<QComboBox>("fitYMeasure"), "nominal");
    const std::string understood = "3 points: \"Kraft pro Fl\xC3\xA4"
                                   "che\" as nominal stress in MPa against \"Dehnung\" as "
                                   "engineering strain in %.";
    ASSERT_THAT(preview(), HasSubstr(understood));
    fitTests();
    press("fitApply");
    select({&pad});
    ASSERT_TRUE(waitFor([this] { return page().tests().empty(); }));
    select({&seal});
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    EXPECT_THAT(preview(), HasSubstr(understood));
    EXPECT_EQ(control<QLineEdit>("fitYUnit").text(), "MPa");
    EXPECT_EQ(page().tests()[0].table->columns[0].cells, (std::vector<double>{50.0, 100.0, 200.0}));
}

TEST_F(FitTab, ShowsTheFitOfKeptTestsAgainAfterALookAtAnotherMaterial)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& seal = addMaterial(project, "Seal", vxMat::eMaterialType::Elastomer1);
    Mat::MaterialObject& pad = addMaterial(project, "Pad", vxMat::eMaterialType::Elastomer1);
    fitRubberFor(seal);
    const std::size_t models = page().results().size();
    press("fitApply");
    select({&pad});
    ASSERT_TRUE(waitFor([this] { return page().tests().empty() && page().results().empty(); }));
    select({&seal});
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    EXPECT_EQ(page().results().size(), models);
    auto& shown = control<vxInspector::ContentView>("fitModels");
    EXPECT_EQ(shown.currentIndex().siblingAtColumn(0).data().toString(), "Neo-Hookean")
        << "the model that was selected";
    EXPECT_TRUE(control<QPushButton>("fitApply").isEnabled());
    EXPECT_EQ(control<QPushButton>("fitApply").text(), "&Apply to \"Seal\"");
    EXPECT_THAT(applied(), HasSubstr("Seal")) << "what Apply has written before";
}

TEST_F(FitTab, TellsTheFitThatAMaterialOfAProjectKeeps)
{
    Mat::MaterialObject& seal = addMaterial(newProject(), "Seal", vxMat::eMaterialType::Elastomer1);
    vxConstitutive::Measurements kept = vxConstitutive::readMeasurements(keptText("tension"));
    vxConstitutive::FitRecord& fit = kept.fits.emplace_back();
    fit.model = "Neo-Hookean";
    fit.constants.push_back({Id::MaterialConstantC10, "C10", "Pa", 406123.4, 1234.0});
    fit.residual = 0.0316;
    fit.rSquared = 0.98765;
    seal.setSetting(setting, vxConstitutive::writeMeasurements(kept));
    select({&seal});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    const auto& sentence = control<QLabel>("sentence");
    EXPECT_EQ(sentence.text(), "The material was fitted to these tests: Neo-Hookean, residual 3.16 %, R² 0.98765.\n"
                               "C10 = 406100 ± 1200 Pa");
    EXPECT_TRUE(sentence.isVisible());
    fitTests();
    EXPECT_FALSE(sentence.isVisible()) << "there is a fit in the tab";
}

TEST_F(FitTab, ShowsAFitAgainIfTheChangeOfItsTestIsTakenBack)
{
    showMaterial();
    fitRubber();
    auto& weight = control<QLineEdit>("fitWeight");
    weight.selectAll();
    QTest::keyClicks(&weight, "3");
    QTest::keyClick(&weight, Qt::Key_Return);
    EXPECT_TRUE(page().results().empty());
    weight.selectAll();
    QTest::keyClicks(&weight, "1");
    QTest::keyClick(&weight, Qt::Key_Return);
    EXPECT_FALSE(page().results().empty());
}

TEST_F(FitTab, RemovesAKeptTestFromTheMaterialAsAStepThatCanBeUndone)
{
    Mat::MaterialObject& seal = showMaterial();
    fitRubber();
    press("fitApply");
    const std::string kept = seal.getSetting(setting);
    const int steps = history().count();
    chooseRemoval("Test \"Test 1\" from the material \"Seal\"");
    EXPECT_EQ(seal.getSetting(setting), ""); // the record of the fit has no test any more
    EXPECT_TRUE(page().tests().empty());
    EXPECT_EQ(history().count(), steps + 1);
    EXPECT_THAT(window->statusBar()->currentMessage().toStdString(),
                HasSubstr("\"Seal\" does not keep the test \"Test 1\" any more."));
    history().undo();
    EXPECT_EQ(seal.getSetting(setting), kept);
    EXPECT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    EXPECT_TRUE(page().tests()[0].isKept);
}

TEST_F(FitTab, KeepsTheOtherTestsAndTheirFitsIfOneTestIsRemovedFromTheMaterial)
{
    Mat::MaterialObject& seal = addMaterial(newProject(), "Seal", vxMat::eMaterialType::Elastomer1);
    auto kept = vxConstitutive::readMeasurements(keptText("tension"));
    kept.tests.push_back(kept.tests[0]);
    kept.tests[1].name = "other";
    kept.fits.resize(2);
    kept.fits[0].tests.resize(1);
    kept.fits[0].tests[0].test = "tension";
    kept.fits[1].tests = kept.fits[0].tests;
    kept.fits[1].tests.push_back(kept.fits[0].tests[0]);
    kept.fits[1].tests[1].test = "other";
    seal.setSetting(setting, vxConstitutive::writeMeasurements(kept));
    select({&seal});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 2; }));
    chooseRemoval("Test \"tension\" from the material");
    const auto left = vxConstitutive::readMeasurements(seal.getSetting(setting));
    ASSERT_EQ(left.tests.size(), 1U);
    EXPECT_EQ(left.tests[0].name, "other");
    ASSERT_EQ(left.fits.size(), 1U);
    EXPECT_EQ(left.fits[0].tests.size(), 2U);
    QCoreApplication::processEvents();
    ASSERT_EQ(page().tests().size(), 1U);
    EXPECT_TRUE(page().tests()[0].isKept);
}

TEST_F(FitTab, RemovesAllKeptTestsBesideOwnOnesFromAMaterialWhoseFitIsThrownAway)
{
    Mat::MaterialObject& seal = addMaterial(newProject(), "Seal", vxMat::eMaterialType::Elastomer1);
    select({&seal});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().isVisible(); }));
    EXPECT_FALSE(control<QPushButton>("fitRemove").isEnabled());
    fitRubber();
    EXPECT_EQ(control<QPushButton>("fitRemove").menu(), nullptr); // nothing is kept yet
    press("fitApply");
    removeQuantity(seal, Id::NeoHooke);
    paste(rubberTable());
    chooseRemoval("All tests and records of fits from the material \"Seal\"");
    EXPECT_EQ(seal.getSetting(setting), "");
    ASSERT_EQ(page().tests().size(), 1U);
    EXPECT_EQ(page().tests()[0].request.name, "Test 2");
    history().undo();
    EXPECT_EQ(vxConstitutive::readMeasurements(seal.getSetting(setting)).tests.size(), 1U);
}

TEST_F(FitTab, SaysWhatApplyHasWrittenUntilItIsUndone)
{
    Mat::MaterialObject& seal = showMaterial();
    setNumber(seal, Id::IncompressibilityParameterD1, 4e-9); // K0 = 500 MPa
    fitRubber();
    EXPECT_EQ(applied(), "");
    press("fitApply");
    EXPECT_THAT(applied(), AllOf(HasSubstr("Written to \"Seal\": "), HasSubstr("Neo-Hooke"), HasSubstr("C10 = "),
                                 HasSubstr("Pa"), HasSubstr("Kept tests: \"Test 1\".")));
    EXPECT_EQ(window->statusBar()->currentMessage().toStdString(), applied());
    QCoreApplication::processEvents();
    EXPECT_NE(applied(), "");
    history().undo();
    EXPECT_TRUE(waitFor([this] { return applied().empty(); }));
    history().redo();
    EXPECT_TRUE(waitFor([this] { return !applied().empty(); }));
}

TEST_F(FitTab, SaysThatApplyHasChangedTheTableOfAnOpenEditor)
{
    Mat::MaterialObject& seal = showMaterial();
    MatGui::MaterialView& editor = edit(seal);
    fitRubber();
    press("fitApply");
    EXPECT_THAT(applied(), HasSubstr("Written to the table of \"Seal\", which is not applied yet: "));
    editor.getUndoStack()->undo();
    EXPECT_TRUE(waitFor([this] { return applied().empty(); }));
}

TEST_F(FitTab, KnowsThatTheKeepingIsUndoneWhileAnotherMaterialIsSelected)
{
    Mat::MaterialObject& seal = showMaterial();
    Mat::MaterialObject& pad =
        addMaterial(*dynamic_cast<Mat::DocumentMaterial*>(seal.get_project()), "Pad", vxMat::eMaterialType::Elastomer1);
    paste(rubberTable());
    chooseMode("uniaxial");
    paste(rubberTable());
    fitTests();
    const int steps = history().count();
    press("fitApply");
    ASSERT_EQ(history().count(), steps + 1);
    select({&pad});
    ASSERT_TRUE(waitFor([this] { return control<QPushButton>("fitApply").text().contains("Pad"); }));
    EXPECT_TRUE(page().tests().at(0).isKept);
    history().undo();
    EXPECT_TRUE(waitFor([this] { return !page().tests().at(0).isKept; }));
    const vxtest::MessageBoxes boxes(QMessageBox::Cancel);
    EXPECT_FALSE(window->close());
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(boxes.shown()[0].text.toStdString(), HasSubstr("\"Test 1\""));
    history().redo();
    EXPECT_TRUE(waitFor([this] { return page().tests().at(0).isKept; }));
}

TEST_F(FitTab, ReadsLongKeptTestsBesideTheInterface)
{
    Mat::MaterialObject& seal = addMaterial(newProject(), "Seal", vxMat::eMaterialType::Elastomer1);
    vxConstitutive::TestData test{"long", vxConstitutive::Mode::Uniaxial, {}, {}};
    for (int i = 1; i <= 40000; ++i) {
        test.abscissas.push_back(1.0 + i / 3e4);
        test.ordinates.push_back(1e6 * i / 3e4);
    }
    seal.setSetting(setting, vxConstitutive::writeMeasurements({{test}, {}}));
    turnTo(Fit);
    select({&seal});
    ASSERT_TRUE(waitFor([this] { return control<QPushButton>("fitLoad").isVisible(); }));
    const auto& sentence = control<QLabel>("sentence");
    ASSERT_TRUE(waitFor([&] { return sentence.text().contains("is being read"); }));
    EXPECT_TRUE(page().tests().empty());
    ASSERT_TRUE(waitFor([this] { return page().tests().size() == 1; }));
    EXPECT_EQ(page().tests()[0].reading.data->abscissas.size(), 40000U);
    EXPECT_TRUE(page().tests()[0].isKept);
    EXPECT_FALSE(sentence.isVisible());
}

TEST_F(FitTab, SetsAD1ForAMaterialThatHasNone)
{
    Mat::MaterialObject& seal = showMaterial();
    removeQuantity(seal, Id::IncompressibilityParameterD1);
    fitRubber();
    auto& treatment = control<QComboBox>("fitD1");
    ASSERT_EQ(treatment.count(), 2);
    EXPECT_EQ(treatment.currentText(), "set the bulk modulus to");
    EXPECT_TRUE(control<QLineEdit>("fitBulkRatio").isVisible());
    const auto sentence = [this] { return control<QLabel>("fitVolume").text().toStdString(); };
    EXPECT_EQ(sentence(), "The fit is incompressible, and the material has no D1.");
    QTest::keyClick(&treatment, Qt::Key_Up);
    EXPECT_EQ(treatment.currentText(), "none: incompressible");
    EXPECT_THAT(sentence(), HasSubstr("The check of materials then reports that D1 is missing."));
    press("fitApply");
    EXPECT_FALSE(seal.getCMaterial()->hasProperty(Id::IncompressibilityParameterD1));
    QTest::keyClick(&treatment, Qt::Key_Down);
    press("fitApply");
    EXPECT_NEAR(numberOf(seal, Id::IncompressibilityParameterD1), 4e-9, 1e-12); // K0 = 500 MPa
}

/// A tensile test of a steel with Young's modulus 180 GPa that yields at 270 MPa.
QString tensileTable()
{
    QString text = QStringLiteral("engineering strain [mm/mm],nominal stress [MPa]\n");
    for (int i = 0; i <= 15; ++i)
        text += QString::number(i * 1e-4, 'g', 10) + ',' + QString::number(i * 18.0) + '\n';
    for (int i = 1; i <= 20; ++i)
        text += QString::number(0.0015 + i * 0.005, 'g', 10) + ',' + QString::number(270.0 + 5.0 * i) + '\n';
    return text;
}

TEST_F(FitTab, AsksWhichYoungsModulusAFitOfAMetalTakes)
{
    Mat::MaterialObject& bar = addMaterial(newProject(), "Bar"); // with 200 GPa
    setNumber(bar, Id::YoungsModulus, 2e11);
    select({&bar});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().isVisible(); }));
    paste(tensileTable());
    chooseMode("tensile");
    press("fitStart");
    const auto isDone = [this] { return !page().isFitting() && !page().results().empty(); };
    ASSERT_TRUE(waitFor(isDone));
    const auto& sentence = control<QLabel>("fitModulus");
    ASSERT_TRUE(sentence.isVisible());
    EXPECT_THAT(sentence.text().toStdString(), AllOf(HasSubstr("(−10 %)"), HasSubstr("with that of the curve")));
    auto& choice = control<QComboBox>("fitModulusChoice");
    EXPECT_THAT(choice.itemText(0).toStdString(), HasSubstr("of the curve: 1"));
    QTest::keyClick(&choice, Qt::Key_Down);
    ASSERT_TRUE(waitFor(isDone));
    EXPECT_THAT(sentence.text().toStdString(), HasSubstr("with that of the material, which keeps it"));
    EXPECT_EQ(choice.currentIndex(), 1);
    press("fitApply");
    EXPECT_EQ(numberOf(bar, Id::YoungsModulus), 2e11);
    QTest::keyClick(&choice, Qt::Key_Up);
    ASSERT_TRUE(waitFor(isDone));
    press("fitApply");
    EXPECT_NEAR(numberOf(bar, Id::YoungsModulus), 1.8e11, 1e6);
    EXPECT_TRUE(waitFor([&] { return !sentence.isVisible(); })); // they are the same now
}

TEST_F(FitTab, SaysThatAnEnteredYoungsModulusIsNotThatOfTheMaterial)
{
    Mat::MaterialObject& bar = addMaterial(newProject(), "Bar");
    setNumber(bar, Id::YoungsModulus, 2e11);
    select({&bar});
    turnTo(Fit);
    ASSERT_TRUE(waitFor([this] { return page().isVisible(); }));
    paste(tensileTable());
    chooseMode("tensile");
    QTest::keyClicks(&control<QLineEdit>("fitYoungsModulus"), "190 GPa");
    press("fitStart");
    ASSERT_TRUE(waitFor([this] { return !page().isFitting() && !page().results().empty(); }));
    const auto& sentence = control<QLabel>("fitModulus");
    ASSERT_TRUE(sentence.isVisible());
    EXPECT_THAT(sentence.text().toStdString(), HasSubstr("(−5 % beside the material)"));
    EXPECT_FALSE(control<QComboBox>("fitModulusChoice").isVisible());
}

TEST_F(FitTab, ReplacesAD1ThatContradictsTheFitAndSaysSoBefore)
{
    Mat::MaterialObject& seal = showMaterial();
    setNumber(seal, Id::IncompressibilityParameterD1, 0.0789);
    fitRubber();
    // K0 = 2/0.0789 Pa beside a shear modulus of 1 MPa
    EXPECT_THAT(control<QLabel>("fitVolume").text().toStdString(),
                AllOf(HasSubstr("the D1 of the material contradicts it"), HasSubstr("e-05 times the shear modulus")));
    ASSERT_TRUE(control<QComboBox>("fitD1").isVisible());
    EXPECT_EQ(control<QComboBox>("fitD1").currentText(), "set the bulk modulus to");
    EXPECT_EQ(control<QLineEdit>("fitBulkRatio").text(), "500");
    press("fitApply");
    EXPECT_NEAR(numberOf(seal, Id::IncompressibilityParameterD1), 4e-9, 1e-12); // K0 = 500 MPa
    EXPECT_TRUE(waitFor([this] { return control<QComboBox>("fitD1").currentText() == QLatin1String("keep"); }));
    history().undo();
    EXPECT_EQ(numberOf(seal, Id::IncompressibilityParameterD1), 0.0789);
}

TEST_F(FitTab, ShowsTheWholeChoiceOfD1AndWhatApplyHasWritten)
{
    Mat::MaterialObject& seal = showMaterial();
    setNumber(seal, Id::IncompressibilityParameterD1, 0.0789);
    fitRubber();
    const auto& treatment = control<QComboBox>("fitD1");
    QStyleOptionComboBox option;
    option.initFrom(&treatment);
    const QRect field =
        treatment.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &treatment);
    EXPECT_GE(field.width(), treatment.fontMetrics().horizontalAdvance(treatment.currentText()));
    press("fitApply");
    const auto& written = control<QLabel>("fitApplied");
    EXPECT_TRUE(waitFor([&written] { return written.visibleRegion().boundingRect() == written.rect(); }));
}

TEST_F(FitTab, SaysThatTheCheckMissesAD1ThatIsRemoved)
{
    Mat::MaterialObject& seal = showMaterial();
    setNumber(seal, Id::IncompressibilityParameterD1, 0.0789);
    fitRubber();
    const auto sentence = [this] { return control<QLabel>("fitVolume").text().toStdString(); };
    EXPECT_THAT(sentence(), Not(HasSubstr("D1 is missing")));
    QTest::keyClick(&control<QComboBox>("fitD1"), Qt::Key_Up);
    ASSERT_EQ(control<QComboBox>("fitD1").currentText(), "remove: incompressible");
    EXPECT_THAT(sentence(), HasSubstr("The check of materials then reports that D1 is missing."));
    press("fitApply");
    EXPECT_FALSE(seal.getCMaterial()->hasProperty(Id::IncompressibilityParameterD1));
}

TEST_F(FitTab, SetsD1ByTheRatioOfBulkToShearModulus)
{
    Mat::MaterialObject& seal = showMaterial();
    fitRubber();
    QTest::keyClick(&control<QComboBox>("fitD1"), Qt::Key_End);
    auto& ratio = control<QLineEdit>("fitBulkRatio");
    ASSERT_TRUE(ratio.isVisible());
    ratio.selectAll();
    QTest::keyClicks(&ratio, "-");
    EXPECT_FALSE(control<QPushButton>("fitApply").isEnabled());
    ratio.selectAll();
    QTest::keyClicks(&ratio, "200");
    press("fitApply");
    EXPECT_NEAR(numberOf(seal, Id::IncompressibilityParameterD1), 1e-8, 1e-11); // K0 = 200 MPa
}

TEST_F(FitTab, KeepsAD1ThatFitsUnlessItIsChanged)
{
    Mat::MaterialObject& seal = showMaterial();
    setNumber(seal, Id::IncompressibilityParameterD1, 4e-9); // K0 = 500 MPa
    fitRubber();
    EXPECT_EQ(control<QComboBox>("fitD1").currentText(), "keep");
    EXPECT_THAT(control<QLabel>("fitVolume").text().toStdString(), HasSubstr("With the D1 of the material"));
    press("fitApply");
    EXPECT_EQ(numberOf(seal, Id::IncompressibilityParameterD1), 4e-9);
}

TEST_F(FitTab, GivesEachTestANameOfItsOwn)
{
    showMaterial();
    page().addTest(vxInspector::loadTest(QStringLiteral("tension"), rubberTable().toStdString()));
    page().addTest(vxInspector::loadTest(QStringLiteral("tension"), rubberTable().toStdString()));
    EXPECT_EQ(page().tests().at(1).request.name, "tension (2)");
}

TEST_F(FitTab, ShowsTheTestAndTheCurvesOfTheSelectedModel)
{
    showMaterial();
    fitRubber();
    const vxPlot::PlotData& plot = page().plot().plot();
    ASSERT_EQ(plot.series.size(), 4U);
    EXPECT_EQ(plot.series[0].name, "uniaxial");
    EXPECT_EQ(plot.series[1].name, "equibiaxial (not measured)");
    EXPECT_EQ(plot.series[3].kind, vxPlot::SeriesKind::Symbols);
    auto& constants = control<vxInspector::ContentView>("fitConstants");
    EXPECT_EQ(constants.model()->index(0, 0).data().toString(), "C10");
}

TEST_F(FitTab, DropsTheResultsOfOtherTests)
{
    showMaterial();
    fitRubber();
    paste(rubberTable());
    EXPECT_TRUE(page().results().empty());
    EXPECT_FALSE(control<QPushButton>("fitApply").isVisible());
}

TEST_F(FitTab, SurvivesThatMaterialAndWindowGoAwayDuringAFit)
{
    showMaterial();
    paste(rubberTable());
    chooseMode("uniaxial");
    press("fitStart");
    history().clear();
    Obj::Application::instance().closeAllProjects();
    EXPECT_TRUE(waitFor([this] { return !page().isFitting(); }));
    EXPECT_TRUE(waitFor([this] { return !control<QPushButton>("fitApply").isEnabled(); }));
    press("fitStart");
    window.reset();
}

TEST_F(FitTab, DropsKeptTestsAndTheirFitWhenTheProjectIsClosedDuringTheFit)
{
    Mat::MaterialObject& seal = showMaterial();
    fitRubber();
    press("fitApply");
    press("fitStart");
    history().clear();
    EXPECT_TRUE(Obj::Application::instance().closeProject(*seal.get_project()));
    EXPECT_TRUE(waitFor([this] { return !page().isFitting(); }));
    EXPECT_TRUE(waitFor([this] { return !control<QPushButton>("fitApply").isEnabled(); }));
    EXPECT_EQ(control<QPushButton>("fitApply").text(), "&Apply");
}

/// Presses Tab until a control has the keyboard.
void FitTab::tabTo(const char* name) const
{
    for (int presses = 0; presses < 60; ++presses) {
        const QWidget* const focused = QApplication::focusWidget();
        if (focused != nullptr && focused->objectName() == QLatin1String(name))
            return;
        QTest::keyClick(focused != nullptr ? QApplication::focusWidget() : &page(), Qt::Key_Tab);
    }
    FAIL() << name << " cannot be reached with the Tab key";
}

TEST_F(FitTab, CanBeUsedWithTheKeyboardAlone)
{
    Mat::MaterialObject& seal = showMaterial();
    window->activateWindow();
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    QApplication::clipboard()->setText(rubberTable("stretch;nominal stress\n"));
    control<QPushButton>("fitLoad").setFocus();
    tabTo("fitPaste");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    tabTo("fitMode");
    QTest::keyClicks(QApplication::focusWidget(), "uniaxial");
    tabTo("fitYUnit");
    QTest::keyClicks(QApplication::focusWidget(), "MPa");
    tabTo("fitBounds");
    QTest::keyClicks(QApplication::focusWidget(), "C10=0:10 MPa");
    tabTo("fitStart");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    ASSERT_TRUE(waitFor([this] { return !page().isFitting() && !page().results().empty(); }));
    tabTo("fitModels");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    tabTo("fitD1");
    tabTo("fitApply");
    const int steps = history().count();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(history().count(), steps + 1);
    EXPECT_NE(seal.getSetting(setting), "");
}

TEST_F(FitTab, FitsWithTheOptionsOfTheUser)
{
    showMaterial();
    paste(rubberTable());
    chooseMode("uniaxial");
    EXPECT_FALSE(control<QLineEdit>("fitOffset").isVisible());
    auto& bounds = control<QLineEdit>("fitBounds");
    QTest::keyClicks(&bounds, "C10=1 kg");
    EXPECT_TRUE(control<QLabel>("fitOptionsProblem").isVisible());
    EXPECT_THAT(control<QLabel>("fitOptionsProblem").text().toStdString(), HasSubstr("Bounds: C10: "));
    EXPECT_FALSE(control<QPushButton>("fitStart").isEnabled());
    bounds.selectAll();
    QTest::keyClicks(&bounds, "C10=0.4 MPa");
    auto& range = control<QLineEdit>("fitStableRange");
    QTest::keyClicks(&range, "3:1");
    EXPECT_FALSE(control<QPushButton>("fitStart").isEnabled());
    range.selectAll();
    QTest::keyClicks(&range, "0.5:4");
    auto& error = control<QComboBox>("fitError");
    QTest::keyClick(&error, Qt::Key_End);
    EXPECT_EQ(error.currentText(), "absolute");
    fitTests();
    press("fitApply");
    const auto kept = vxConstitutive::readMeasurements(
        dynamic_cast<Mat::MaterialObject&>(*Obj::Application::get_current_project()->getObjects().front())
            .getSetting(setting));
    ASSERT_EQ(kept.fits.size(), 1U);
    EXPECT_EQ(kept.fits[0].error, vxConstitutive::ErrorMeasure::Absolute);
    EXPECT_EQ(kept.fits[0].stability, vxConstitutive::StabilityDemand::OverRange);
    EXPECT_NEAR(kept.fits[0].constants.at(0).value, 0.4e6, 1e-6);
}

TEST_F(FitTab, ShowsTheOptionsOfMetalsForATensileTest)
{
    showMaterial();
    paste("engineering strain,nominal stress [MPa]\n0,0\n0.001,200\n0.01,250\n0.05,300\n");
    chooseMode("tensile");
    EXPECT_TRUE(control<QLineEdit>("fitOffset").isVisible());
    EXPECT_TRUE(control<QLineEdit>("fitYoungsModulus").isVisible());
    EXPECT_FALSE(control<QComboBox>("fitError").isVisible());
    QTest::keyClicks(&control<QLineEdit>("fitOffset"), "2");
    EXPECT_THAT(control<QLabel>("fitOptionsProblem").text().toStdString(), HasSubstr("The offset strain must be"));
}

TEST_F(FitTab, ShowsTheResultsAfterAFit)
{
    window->resize(1024, 600);
    showMaterial();
    fitRubber();
    const auto& models = control<vxInspector::ContentView>("fitModels");
    EXPECT_TRUE(waitFor([&models] { return !models.visibleRegion().isEmpty(); }));
}

TEST_F(FitTab, AsksBeforeTheProgramClosesWithTestsThatAreNotKept)
{
    showMaterial();
    paste(rubberTable());
    {
        const vxtest::MessageBoxes boxes(QMessageBox::Cancel);
        EXPECT_FALSE(window->close());
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_THAT(boxes.shown()[0].text.toStdString(), HasSubstr("\"Test 1\""));
    }
    const vxtest::MessageBoxes boxes(QMessageBox::Discard);
    EXPECT_TRUE(window->close());
}

TEST_F(FitTab, DoesNotAskBeforeClosingIfTheTestsAreKept)
{
    showMaterial();
    fitRubber();
    press("fitApply");
    const vxtest::MessageBoxes boxes(QMessageBox::Cancel);
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(FitTab, NamesTheTestsThatAFitLeavesOut)
{
    showMaterial();
    const auto& line = control<QLabel>("fitLeftOut");
    paste(rubberTable());
    EXPECT_FALSE(line.isVisible()); // nothing can be fitted
    chooseMode("uniaxial");
    EXPECT_FALSE(line.isVisible());
    paste(rubberTable());
    ASSERT_TRUE(line.isVisible());
    EXPECT_THAT(line.text().toStdString(), AllOf(HasSubstr("The fit leaves out these tests"), HasSubstr("\"Test 2\""),
                                                 Not(HasSubstr("\"Test 1\""))));
    press("fitRemove"); // the second test
    EXPECT_FALSE(line.isVisible());
    EXPECT_EQ(page().tests().size(), 1U);
}

TEST_F(FitTab, KeepsTheTestsThatTheFitHasLeftOutAsOwnTestsAfterApply)
{
    Mat::MaterialObject& seal = showMaterial();
    Mat::MaterialObject& pad =
        addMaterial(*dynamic_cast<Mat::DocumentMaterial*>(seal.get_project()), "Pad", vxMat::eMaterialType::Elastomer1);
    pad.setSetting(setting, keptText("pad test"));
    paste(rubberTable());
    chooseMode("uniaxial");
    paste(rubberTable());
    fitTests();
    press("fitApply");
    select({&pad});
    ASSERT_TRUE(waitFor([this] { return control<QPushButton>("fitApply").text().contains("Pad"); }));
    select({&seal});
    ASSERT_TRUE(waitFor([this] { return control<QPushButton>("fitApply").text().contains("Seal"); }));
    ASSERT_EQ(page().tests().size(), 2U);
    EXPECT_TRUE(page().tests()[0].isKept);
    EXPECT_EQ(page().tests()[1].request.name, "Test 2");
    const vxtest::MessageBoxes boxes(QMessageBox::Cancel);
    EXPECT_FALSE(window->close());
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(boxes.shown()[0].text.toStdString(), AllOf(HasSubstr("\"Test 2\""), Not(HasSubstr("\"Test 1\""))));
}

TEST_F(FitTab, AsksForAKeptTestAgainIfItsKeepingIsUndoneBesideOwnTests)
{
    showMaterial();
    paste(rubberTable());
    chooseMode("uniaxial");
    paste(rubberTable());
    fitTests();
    press("fitApply");
    history().undo();
    QCoreApplication::processEvents();
    EXPECT_FALSE(page().tests()[0].isKept);
    history().redo();
    QCoreApplication::processEvents();
    EXPECT_TRUE(page().tests()[0].isKept);
    EXPECT_FALSE(page().tests()[1].isKept);
}

/// Turns the wheel downwards over the middle of a widget.
void turnWheel(QWidget& widget)
{
    const QPoint middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    // Only events of the system go on to the parents of a widget.
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&widget, &event);
}

TEST_F(FitTab, ScrollsWithTheWheelOverListsThatDoNotHaveTheKeyboard)
{
    showMaterial();
    fitRubber();
    auto& mode = control<QComboBox>("fitMode");
    control<QPushButton>("fitStart").setFocus();
    QScrollBar& bar = *page().findChild<QScrollArea*>()->verticalScrollBar();
    bar.setValue(0);
    turnWheel(mode);
    EXPECT_EQ(mode.currentText().left(8), "uniaxial");
    EXPECT_FALSE(page().results().empty()) << "a changed test drops its results";
    EXPECT_GT(bar.value(), 0);
}

TEST_F(FitTab, EndsWithCancel)
{
    showMaterial();
    paste(rubberTable());
    chooseMode("uniaxial");
    press("fitStart");
    if (page().isFitting())
        press("fitCancel");
    EXPECT_TRUE(waitFor([this] { return !page().isFitting(); }));
    EXPECT_FALSE(control<QPushButton>("fitCancel").isVisible());
    EXPECT_TRUE(control<QPushButton>("fitStart").isEnabled());
}

} // namespace
