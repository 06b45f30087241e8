// The tab of the fits in the main window, as a user works with it.

#include "InspectorTesting.h"

#include "Gui/FileDialog.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "fit/FitPage.h"
#include "plot/PlotView.h"
#include "table/ContentView.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest/QtTestGui>

namespace {

using testing::HasSubstr;
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

    std::string preview() const { return control<QLabel>("fitPreview").text().toStdString(); }

    /// Pastes the test of a rubber, fits all models and selects Neo-Hookean.
    void fitRubber() const
    {
        paste(rubberTable());
        chooseMode("uniaxial");
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

TEST_F(FitTab, ShowsTheTestAndTheCurveOfTheSelectedModel)
{
    showMaterial();
    fitRubber();
    const vxPlot::PlotData& plot = page().plot().plot();
    ASSERT_EQ(plot.series.size(), 2U);
    EXPECT_EQ(plot.series[0].name, "Neo-Hookean");
    EXPECT_EQ(plot.series[1].kind, vxPlot::SeriesKind::Symbols);
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
