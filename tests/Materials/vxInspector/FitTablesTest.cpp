// Test data, fits and their tables, without the main window.

#include "fit/FitTables.h"

#include "Waiting.h"

#include "fit/FitJob.h"
#include "fit/LoadedTest.h"
#include "vxConstitutive/record/Measurements.h"
#include "vxMaterial/model/PropertyId.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

#include <cmath>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using vxConstitutive::Mode;
using vxInspector::LoadedTest;

/// A tensile test of a Neo-Hookean rubber with C10 = 0.5 MPa.
std::string rubberTable(const std::string& header = "stretch,nominal stress [MPa]\n")
{
    std::string text = header;
    for (int i = 1; i <= 20; ++i) {
        const double stretch = 1.0 + 0.1 * i;
        text += std::to_string(stretch) + ',' + std::to_string(stretch - 1.0 / (stretch * stretch)) + '\n';
    }
    return text;
}

LoadedTest loaded(const std::string& text, Mode mode = Mode::Uniaxial)
{
    LoadedTest test = vxInspector::loadTest(QStringLiteral("a"), text);
    test.mode = mode;
    readAgain(test);
    return test;
}

TEST(LoadedTestText, SaysWhatWasUnderstood)
{
    const std::string text = readingText(loaded(rubberTable())).toStdString();
    EXPECT_THAT(text, HasSubstr("2 columns, 20 rows."));
    EXPECT_THAT(text, HasSubstr("20 points: \"nominal stress\" as nominal stress in MPa against \"stretch\""));
}

TEST(LoadedTestText, AsksForTheTestFirst)
{
    const LoadedTest test = vxInspector::loadTest(QStringLiteral("a"), rubberTable());
    EXPECT_FALSE(test.reading.data);
    EXPECT_THAT(readingText(test).toStdString(), HasSubstr("Choose which test it is."));
}

TEST(LoadedTestText, AsksForTheUnitThatTheHeaderDoesNotTell)
{
    LoadedTest test = loaded(rubberTable("stretch,nominal stress\n"));
    EXPECT_FALSE(test.reading.data);
    EXPECT_THAT(readingText(test).toStdString(), HasSubstr("Enter the unit of the vertical axis."));
    test.request.ordinate.unit = "MPa";
    readAgain(test);
    ASSERT_TRUE(test.reading.data);
    EXPECT_NEAR(test.reading.data->ordinates.back(), (3.0 - 1.0 / 9.0) * 1e6, 1.0);
}

TEST(LoadedTestText, SaysThatATextHasNoNumbers)
{
    const LoadedTest test = loaded("nothing here\n");
    EXPECT_FALSE(test.reading.data);
    EXPECT_THAT(readingText(test).toStdString(), HasSubstr("0 columns"));
}

TEST(LoadedTestText, ShowsAKeptTestOfEachModeAsItIs)
{
    for (const Mode mode : vxInspector::measuredModes()) {
        vxConstitutive::TestData data{"kept", mode, {1.5, 2.0}, {1e6, 2e6}, 0.0, 3.0};
        if (mode == Mode::Creep)
            data.parameter = 5e7;
        LoadedTest test = vxInspector::keptTest(data);
        readAgain(test);
        ASSERT_TRUE(test.reading.data) << readingText(test).toStdString();
        test.reading.data->abscissaColumn.reset(); // now known: a column in SI
        test.reading.data->ordinateColumn.reset();
        EXPECT_EQ(vxConstitutive::writeMeasurements({{*test.reading.data}, {}}),
                  vxConstitutive::writeMeasurements({{data}, {}}));
    }
}

TEST(FitTables, ShowConstantsWithUnitsAndErrors)
{
    const auto results = vxInspector::fitAll(vxInspector::FitOrder{{*loaded(rubberTable()).reading.data}}, {});
    ASSERT_EQ(results.size(), 4U);
    for (const vxConstitutive::FitResult& result : results) {
        if (result.model != "Neo-Hookean")
            continue;
        const auto table = vxInspector::constantTable(result, *vxUnits::UnitSystem::parse("mm-t-s"));
        const auto& cells = table.rows.at(0).cells;
        EXPECT_EQ(cells[0].text, "C10");
        EXPECT_THAT(cells[1].text.toStdString(), testing::StartsWith("0.5"));
        EXPECT_THAT(cells[1].text.toStdString(), HasSubstr(" ± "));
        EXPECT_EQ(cells[2].text, "MPa");
        return;
    }
    FAIL() << "there is no Neo-Hookean model";
}

TEST(FitTables, ShowTheDigitsOfAConstantThatItsStandardErrorJustifies)
{
    vxConstitutive::FitResult result;
    result.constants.push_back({vxMat::PropertyId::MaterialConstantC10, "C10", "Pa", 406123.4, 1234.0});
    result.constants.push_back({0, "lm", "1", 4.729966, 0.0701});
    const auto table = vxInspector::constantTable(result, *vxUnits::UnitSystem::parse("mm-t-s"));
    EXPECT_EQ(table.rows.at(0).cells[1].text, "0.4061 ± 0.0012");
    EXPECT_EQ(table.rows.at(1).cells[1].text, "4.73 ± 0.07");
}

TEST(FitTables, ShowThePointsOfAHardeningCurve)
{
    vxConstitutive::FitResult result;
    result.change.set = {{vxMat::PropertyId::PlasticStrain, 0.0, {}, {0.0, 0.05}},
                         {vxMat::PropertyId::PlasticYieldStress, 0.0, {}, {2.5e8, 4e8}}};
    const auto table = vxInspector::constantTable(result, *vxUnits::UnitSystem::parse("mm-t-s"));
    ASSERT_EQ(table.rows.size(), 2U);
    const auto& cells = table.rows[1].cells;
    EXPECT_EQ(cells[0].text, "Yield stress 2");
    EXPECT_EQ(cells[1].text, "400");
    EXPECT_EQ(cells[2].text, "MPa");
    EXPECT_EQ(cells[3].copied(), "at plastic strain 0.05");
}

TEST(FitTables, HaveFindingsInTheUnitSystem)
{
    vxConstitutive::FitResult result;
    result.findings = {vxConstitutive::makeFinding(vxConstitutive::FindingId::ModulusFromCurve, {2e11})};
    const auto table = vxInspector::constantTable(result, *vxUnits::UnitSystem::parse("mm-t-s"));
    EXPECT_THAT(table.rows.at(0).cells[3].copied().toStdString(), HasSubstr(" 200000 MPa"));
}

// The points scatter around a line by 1 % of the largest stress. The many rows of a table that follows them are not worth it.
TEST(FitTables, RankModelsOfMetalsByResidualAndNumberOfConstants)
{
    std::string text = "plastic strain [1],true stress [MPa]\n";
    for (int i = 0; i <= 20; ++i)
        text += std::to_string(0.01 * i) + ',' + std::to_string(200.0 + 10.0 * i + (i % 2 == 0 ? 4.0 : -4.0)) + '\n';
    const LoadedTest test = loaded(text, Mode::Plastic);
    ASSERT_TRUE(test.reading.data) << readingText(test).toStdString();
    const auto results = vxInspector::fitAll(vxInspector::FitOrder{{*test.reading.data}}, {});
    ASSERT_EQ(results.size(), 2U);
    EXPECT_LE(results[0].criterion, results[1].criterion);
    EXPECT_EQ(results[0].model, "bilinear hardening");
}

TEST(FitTables, RankTheModelsWithTheirResiduals)
{
    const auto results = vxInspector::fitAll(vxInspector::FitOrder{{*loaded(rubberTable()).reading.data}}, {});
    const auto table = vxInspector::modelTable(results);
    ASSERT_EQ(table.rows.size(), 4U);
    EXPECT_EQ(table.headers.size(), 4);
    for (const vxInspector::Row& row : table.rows) {
        EXPECT_THAT(row.cells[1].text.toStdString(), HasSubstr("%"));
        // A Neo-Hookean material is stable everywhere.
        if (row.cells[0].copied() == QStringLiteral("Neo-Hookean")) {
            EXPECT_EQ(row.cells[3].copied().toStdString(), "0.1 to 10 in all tests");
        }
    }
}

TEST(FitTables, NameTheTestsInWhichAModelIsUnstable)
{
    vxConstitutive::FitResult result;
    result.stable = {{Mode::Uniaxial, {0.5, 10.0}, true, false}, {Mode::Planar, {0.1, 10.0}, false, false}};
    EXPECT_EQ(vxInspector::modelTable({result}).rows[0].cells[3].copied().toStdString(),
              "uniaxial 0.5 to \u2265 10; otherwise 0.1 to 10");
    result.residualWithoutStability = 0.01;
    EXPECT_EQ(vxInspector::modelTable({result}).rows[0].cells[3].copied().toStdString(), "1 %");
}

TEST(FitTables, PlotTheTestBesideTheFittedCurve)
{
    const auto test = *loaded(rubberTable()).reading.data;
    const auto results = vxInspector::fitAll(vxInspector::FitOrder{{test}}, {});
    const auto plot = vxInspector::fitPlot({&test}, {&results[0], &results[1]}, *vxUnits::UnitSystem::parse("mm-t-s"));
    ASSERT_EQ(plot.series.size(), 7U); // two models in three modes, and the test
    EXPECT_EQ(plot.series[6].kind, vxPlot::SeriesKind::Symbols);
    EXPECT_NEAR(plot.series[0].y.back(), 3.0 - 1.0 / 9.0, 1e-3);
    EXPECT_NEAR(plot.series[6].y.back(), 3.0 - 1.0 / 9.0, 1e-5);
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(plot.series[i].isFaint, i >= 2) << plot.series[i].name; // only a bar was tested
    EXPECT_DOUBLE_EQ(plot.series[5].x.back(), 3.0);
}

TEST(FitTables, FitTheModelsOfTheKindOfTheTests)
{
    std::string text = "time [s],strain\n";
    for (int i = 1; i <= 10; ++i)
        text += std::to_string(i * 1000) + ',' + std::to_string(i * 1e-4) + '\n';
    LoadedTest creep = loaded(text, Mode::Creep);
    EXPECT_THAT(readingText(creep).toStdString(), HasSubstr("Enter the stress of the creep test."));
    creep.request.stress = 1e8;
    creep.request.ordinate.unit = "1";
    creep.request.ordinate.measure = vxConstitutive::Measure::CreepStrain;
    readAgain(creep);
    ASSERT_TRUE(creep.reading.data) << readingText(creep).toStdString();
    EXPECT_EQ(vxInspector::fitAll(vxInspector::FitOrder{{*creep.reading.data}}, {}).size(), 1U);
    EXPECT_THAT(vxInspector::fitAll(vxInspector::FitOrder{}, {}), IsEmpty());
}

TEST(FitJob, FitsBesideTheEventLoop)
{
    vxInspector::FitJob job(vxInspector::FitOrder{{*loaded(rubberTable()).reading.data}});
    bool finished = false;
    QObject::connect(&job, &vxInspector::FitJob::finished, [&finished] { finished = true; });
    EXPECT_FALSE(finished);
    ASSERT_TRUE(vxtest::waitFor([&finished] { return finished; }));
    EXPECT_EQ(job.results().size(), 4U);
    EXPECT_EQ(job.failure(), "");
}

TEST(FitJob, MayBeDeletedAtAnyMoment)
{
    const vxConstitutive::TestData test = *loaded(rubberTable()).reading.data;
    for (int round = 0; round < 50; ++round) {
        vxInspector::FitJob job(vxInspector::FitOrder{{test, test, test}});
        if (round % 2 == 0)
            job.cancel();
    }
    QCoreApplication::processEvents();
}

} // namespace
