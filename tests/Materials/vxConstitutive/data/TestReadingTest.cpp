#include "vxConstitutive/data/TestReading.h"

#include "ConstitutiveTesting.h"

#include "vxConstitutive/data/UnitFactor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

using namespace vxConstitutive;
using vxtest::firstArgument;
using vxtest::has;

namespace {

TestReading take(const std::string& text, const TestReadRequest& request)
{
    return takeTest(readTestTable(text, unitFactor), request, unitFactor);
}

TestReading take(const std::string& text, Mode mode)
{
    TestReadRequest request;
    request.name = "test";
    request.mode = mode;
    return take(text, request);
}

bool asks(const TestReading& reading, QuestionKind kind, Axis axis)
{
    return std::any_of(reading.questions.begin(), reading.questions.end(),
                       [=](const Question& question) { return question.kind == kind && question.axis == axis; });
}

TEST(MeasureVocabulary, RecordsAreInTheOrderOfTheirEnumeration)
{
    for (std::size_t i = 0; i < measureRecords().size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(measureRecords()[i].measure), i);
    EXPECT_TRUE(abscissaMeasures(Mode::Yield).empty());
    EXPECT_TRUE(ordinateMeasures(Mode::Dynamic).empty());
}

TEST(TestColumns, AreFoundByTheirNamesAndConverted)
{
    const TestReading reading =
        take("Time [s];Engineering stress [MPa];Engineering strain [%]\n0;0;0\n1;2.5;50\n", Mode::Uniaxial);
    ASSERT_TRUE(reading.data.has_value());
    EXPECT_EQ(reading.abscissa.column, 2U);
    EXPECT_EQ(reading.abscissa.measure, Measure::EngineeringStrain);
    EXPECT_EQ(reading.ordinate.unit, "MPa");
    EXPECT_EQ(reading.data->abscissas, (std::vector<double>{1.0, 1.5}));
    EXPECT_EQ(reading.data->ordinates, (std::vector<double>{0.0, 2.5e6}));
    EXPECT_FALSE(has(reading.findings, FindingId::MeasureAssumed));
}

TEST(TestColumns, GermanHeadersAreUnderstood)
{
    const TestReading reading = take("Technische Dehnung [%];Techn. Spannung [MPa]\n0;0\n50;2,5\n", Mode::Uniaxial);
    ASSERT_TRUE(reading.data.has_value());
    EXPECT_EQ(reading.data->ordinates[1], 2.5e6);
}

TEST(TestColumns, TrueValuesBecomeNominalOnes)
{
    const TestReading rubber = take("true strain [-],true stress [Pa]\n0.6931471805599453,8\n", Mode::Planar);
    ASSERT_TRUE(rubber.data.has_value());
    EXPECT_NEAR(rubber.data->abscissas[0], 2.0, 1e-14);
    EXPECT_NEAR(rubber.data->ordinates[0], 4.0, 1e-14);
    const TestReading metal = take("true strain [-],Cauchy stress [Pa]\n0.6931471805599453,8\n", Mode::Tensile);
    ASSERT_TRUE(metal.data.has_value());
    EXPECT_NEAR(metal.data->abscissas[0], 1.0, 1e-14);
    EXPECT_NEAR(metal.data->ordinates[0], 4.0, 1e-14);
}

TEST(TestColumns, AHeaderThatDoesNotSayTrueIsReadAsEngineeringWithAFinding)
{
    const TestReading reading = take("strain [-],stress [Pa]\n0.5,8\n", Mode::Uniaxial);
    ASSERT_TRUE(reading.data.has_value());
    EXPECT_EQ(reading.data->ordinates[0], 8.0);
    EXPECT_EQ(firstArgument(reading.findings, FindingId::MeasureAssumed, 1), "engineering strain");
}

TEST(TestColumns, OfTheOtherModes)
{
    const TestReading volume = take("volume ratio;pressure [MPa]\n0.99;20\n", Mode::Volumetric);
    EXPECT_EQ(volume.data.value().abscissas[0], 0.99);
    EXPECT_EQ(volume.data.value().ordinates[0], -20e6);
    const TestReading strain = take("volumetric strain [%];pressure [MPa]\n-1;20\n", Mode::Volumetric);
    EXPECT_NEAR(strain.data.value().abscissas[0], 0.99, 1e-15);
    const TestReading shear = take("shear strain [-];shear stress [kPa]\n1.5;3\n", Mode::SimpleShear);
    EXPECT_EQ(shear.data.value().ordinates[0], 3e3);
    const TestReading plastic = take("plastic strain [-];true stress [MPa]\n0.1;679\n", Mode::Plastic);
    EXPECT_EQ(plastic.data.value().ordinates[0], 679e6);
    const TestReading relaxation = take("time [h];shear modulus [MPa]\n1;5\n", Mode::Relaxation);
    EXPECT_EQ(relaxation.data.value().abscissas[0], 3600.0);
    const TestReading rates = take("stress [MPa];creep rate [1/h]\n100;3.6\n", Mode::CreepRate);
    EXPECT_NEAR(rates.data.value().ordinates[0], 1e-3, 1e-15);
}

TEST(TestQuestions, AMissingUnitIsAQuestionAndNeverGuessed)
{
    const std::string text = "strain,stress\n0.1,2\n";
    TestReading reading = take(text, Mode::Uniaxial);
    EXPECT_FALSE(reading.data.has_value());
    EXPECT_TRUE(asks(reading, QuestionKind::WhichUnit, Axis::Abscissa));
    EXPECT_TRUE(asks(reading, QuestionKind::WhichUnit, Axis::Ordinate));
    EXPECT_EQ(firstArgument(reading.findings, FindingId::UnitNeeded), "strain");

    TestReadRequest request;
    request.abscissa.unit = "%";
    request.ordinate.unit = "MPa";
    reading = take(text, request);
    ASSERT_TRUE(reading.data.has_value());
    EXPECT_NEAR(reading.data->abscissas[0], 1.001, 1e-15);
}

TEST(TestQuestions, AnUnknownUnitOrOneOfAnotherDimensionIsAQuestion)
{
    TestReading reading = take("stretch,stress [furlong]\n1.1,2\n", Mode::Uniaxial);
    EXPECT_TRUE(asks(reading, QuestionKind::WhichUnit, Axis::Ordinate));
    EXPECT_EQ(firstArgument(reading.findings, FindingId::UnitUnknown, 1), "furlong");
    reading = take("stretch,stress [%]\n1.1,2\n", Mode::Uniaxial);
    EXPECT_TRUE(asks(reading, QuestionKind::WhichUnit, Axis::Ordinate));
}

TEST(TestQuestions, AStretchWithoutAUnitIsANumber)
{
    EXPECT_TRUE(take("stretch,stress [Pa]\n1.1,2\n", Mode::Uniaxial).data.has_value());
}

TEST(TestQuestions, TwoColumnsWithoutAHeaderNeedTheirMeaning)
{
    const std::string text = "1.1,2\n1.2,3\n";
    TestReading reading = take(text, Mode::Uniaxial);
    EXPECT_TRUE(asks(reading, QuestionKind::WhichMeasure, Axis::Abscissa));
    EXPECT_TRUE(asks(reading, QuestionKind::WhichMeasure, Axis::Ordinate));
    TestReadRequest request;
    request.abscissa.measure = Measure::Stretch;
    request.ordinate.measure = Measure::TrueStress;
    request.ordinate.unit = "Pa";
    reading = take(text, request);
    ASSERT_TRUE(reading.data.has_value());
    EXPECT_NEAR(reading.data->ordinates[0], 2.0 / 1.1, 1e-15);
}

TEST(TestQuestions, AColumnWithoutAKnownNameIsAQuestion)
{
    const TestReading reading = take("time [s];force [N];stress [Pa]\n1;2;3\n", Mode::Uniaxial);
    EXPECT_TRUE(asks(reading, QuestionKind::WhichColumn, Axis::Abscissa));
    EXPECT_FALSE(asks(reading, QuestionKind::WhichColumn, Axis::Ordinate));
    TestReadRequest request;
    request.abscissa.column = 7;
    EXPECT_TRUE(asks(take("a;b\n1;2\n", request), QuestionKind::WhichColumn, Axis::Abscissa));
    request.abscissa = {std::nullopt, Measure::Time, std::nullopt};
    EXPECT_TRUE(asks(take("1;2\n", request), QuestionKind::WhichMeasure, Axis::Abscissa));
}

TEST(TestQuestions, ACreepCurveNeedsItsStress)
{
    const std::string text = "time [s];creep strain [-]\n1;0.001\n";
    EXPECT_TRUE(asks(take(text, Mode::Creep), QuestionKind::WhichStress, Axis::Ordinate));
    TestReadRequest request;
    request.mode = Mode::Creep;
    request.stress = 1e8;
    ASSERT_TRUE(take(text, request).data.has_value());
    EXPECT_EQ(take(text, request).data->parameter, 1e8);
}

/// Three creep tests in one table; the load of the second one scatters.
const char* const creepTable = "Time [h],Creep strain [%],Stress [MPa]\n"
                               "1,0.1,50\n2,0.2,50\n3,0.3,50\n"
                               "1,0.8,99.5\n2,1.6,100.5\n"
                               "1,2.7,150\n2,5.4,150\n3,8.1,\n";

TestReadRequest creepAt(std::optional<double> stress)
{
    TestReadRequest request;
    request.name = "test";
    request.mode = Mode::Creep;
    request.stress = stress;
    return request;
}

TEST(CreepTable, ItsColumnOfStressesHasATestForEach)
{
    const TestTable table = readTestTable(creepTable, unitFactor);
    EXPECT_EQ(creepStresses(table, unitFactor), (std::vector<double>{50e6, 100e6, 150e6}));
    const TestReading one = takeTest(table, creepAt(100e6), unitFactor);
    ASSERT_TRUE(one.data.has_value());
    EXPECT_EQ(one.stressColumn, 2U);
    EXPECT_EQ(one.data->abscissas, (std::vector<double>{3600.0, 7200.0}));
    EXPECT_EQ(one.data->ordinates, (std::vector<double>{0.008, 0.016}));
    EXPECT_EQ(one.data->parameter, 100e6);
    EXPECT_EQ(one.leftOut, 0U);
    EXPECT_EQ(takeTest(table, creepAt(150e6), unitFactor).data->abscissas.size(), 2U) << "the last row has no stress";
}

TEST(CreepTable, OneStressInTheColumnIsThatOfTheTest)
{
    const TestReading known = take("time [s];creep strain [-];sigma [MPa]\n1;0.1;80\n2;0.2;80\n", creepAt({}));
    ASSERT_TRUE(known.data.has_value());
    EXPECT_EQ(known.data->parameter, 80e6);
    EXPECT_EQ(known.data->abscissas.size(), 2U);
}

TEST(CreepTable, SeveralStressesAreAQuestionForASingleTest)
{
    const TestReading reading = take(creepTable, creepAt({}));
    EXPECT_FALSE(reading.data.has_value());
    EXPECT_TRUE(asks(reading, QuestionKind::WhichStress, Axis::Ordinate));
    EXPECT_EQ(firstArgument(reading.findings, FindingId::SeveralStresses, 1), "3");
    EXPECT_EQ(firstArgument(take(creepTable, creepAt(70e6)).findings, FindingId::StressNotInColumn, 1), "7e+07");
}

TEST(CreepTable, AGivenStressThatIsNotThatOfTheColumnIsDoubted)
{
    const TestReading reading = take("time [s];creep strain [-];stress [MPa]\n1;0.1;80\n2;0.2;80\n", creepAt(90e6));
    ASSERT_TRUE(reading.data.has_value());
    EXPECT_EQ(reading.data->parameter, 90e6);
    EXPECT_EQ(reading.data->abscissas.size(), 2U);
    EXPECT_TRUE(has(reading.findings, FindingId::StressDiffers));
}

TEST(CreepTable, AStressWithoutAUnitIsNeverGuessed)
{
    const std::string text = "time [s];creep strain [-];stress\n1;0.1;80\n2;0.2;80\n";
    const TestReading reading = take(text, creepAt({}));
    EXPECT_EQ(firstArgument(reading.findings, FindingId::StressUnitNeeded), "stress");
    EXPECT_TRUE(asks(reading, QuestionKind::WhichStress, Axis::Ordinate));
    EXPECT_TRUE(creepStresses(readTestTable(text, unitFactor), unitFactor).empty());
    EXPECT_TRUE(take(text, creepAt(80e6)).data.has_value());
}

TEST(CreepTable, AStressThatRisesAllTheTimeIsNoCreepTest)
{
    std::string text = "time [s];creep strain [-];stress [MPa]\n";
    for (int i = 1; i <= 200; ++i)
        text += std::to_string(i) + ";0.1;" + std::to_string(std::pow(1.02, i)) + "\n";
    const TestReading reading = take(text, creepAt({}));
    EXPECT_TRUE(has(reading.findings, FindingId::StressNotConstant));
    EXPECT_TRUE(asks(reading, QuestionKind::WhichStress, Axis::Ordinate));
}

TEST(TestQuestions, AModeWithoutTestDataHasNoColumns)
{
    EXPECT_FALSE(take("stretch,stress [Pa]\n1.1,2\n", Mode::Yield).data.has_value());
}

/// A test that is read from the table of its points has the same points again, and the table is that of the file.
TEST(TableOfTest, HasTheColumnsOfTheFile)
{
    const struct
    {
        const char* text;
        Mode mode;
    } files[] = {
        {"Dehnung [%];wahre Spannung [MPa]\n10;1.1\n50;3\n", Mode::Planar},
        {"true strain [1],nominal stress [kPa]\n-0.5,-20\n0.5,30\n", Mode::Uniaxial},
        {"true strain [%],true stress [GPa]\n1,0.3\n5,0.4\n", Mode::Tensile},
        {"stretch [1],true stress [GPa]\n1.25,0.3\n1.5,0.4\n", Mode::Tensile},
        {"volumetric strain [%],pressure [MPa]\n-1,10\n-2,21\n", Mode::Volumetric},
        {"volume ratio [1],true stress [MPa]\n0.99,-10\n0.98,-21\n", Mode::Volumetric},
        {"amount of shear [%],shear stress [psi]\n10,14.5\n", Mode::SimpleShear},
        {"stress [MPa],strain rate [1/h]\n100,1e-5\n", Mode::CreepRate},
        {"time [h],shear modulus [MPa]\n0,3\n1,2\n", Mode::Relaxation},
    };
    for (const auto& file : files) {
        const TestTable table = readTestTable(file.text, unitFactor);
        TestReadRequest request;
        request.mode = file.mode;
        request.weight = 2.0;
        const TestReading reading = takeTest(table, request, unitFactor);
        ASSERT_TRUE(reading.data.has_value()) << file.text;
        const TableOfTest made = tableOfTest(*reading.data, unitFactor);
        ASSERT_EQ(made.table.columns.size(), 2U);
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_EQ(made.table.columns[i].name, table.columns[i].name) << file.text;
            EXPECT_EQ(made.table.columns[i].unit, table.columns[i].unit) << file.text;
            ASSERT_EQ(made.table.columns[i].cells.size(), table.columns[i].cells.size());
            for (std::size_t row = 0; row < table.rows(); ++row)
                EXPECT_NEAR(made.table.columns[i].cells[row], table.columns[i].cells[row],
                            1e-13 * std::max(1.0, std::fabs(table.columns[i].cells[row])))
                    << file.text;
        }
        const TestReading again = takeTest(made.table, made.request, unitFactor);
        ASSERT_TRUE(again.data.has_value()) << file.text;
        EXPECT_EQ(again.data->weight, 2.0);
        EXPECT_TRUE(again.findings.empty() || !has(again.findings, FindingId::MeasureAssumed));
    }
}

TEST(TableOfTest, IsInSiIfTheFileIsNotKnownOrHasAnUnknownUnit)
{
    TestData data{"bulk", Mode::Volumetric, {0.98}, {-2e7}};
    data.ordinateColumn = {"Druck", "shekel", Measure::Pressure};
    data.abscissaColumn = {"Zeit", "s", Measure::Time}; // no abscissa of this mode
    const TableOfTest made = tableOfTest(data, unitFactor);
    EXPECT_EQ(made.table.columns[0].cells, std::vector<double>{0.98});
    EXPECT_EQ(made.table.columns[0].unit, "1");
    EXPECT_EQ(made.table.columns[1].cells, std::vector<double>{-2e7}) << "tension is positive";
    EXPECT_EQ(made.table.columns[1].unit, "Pa");
    EXPECT_EQ(made.table.columns[1].name, "");
}

TEST(TestPoints, UnusualPointsAreCounted)
{
    const TestReading reading =
        take("stretch,nominal stress [Pa]\n1.2,3\n1.1,2\n1.1,2\n0.9,-2\n1.3,\n-1,5\n1.4,4\n", Mode::Uniaxial);
    ASSERT_TRUE(reading.data.has_value());
    EXPECT_EQ(reading.data->abscissas, (std::vector<double>{1.2, 1.1, 1.1, 0.9, 1.4}));
    EXPECT_EQ(reading.unsorted, 2U);
    EXPECT_EQ(reading.repeated, 1U);
    EXPECT_EQ(reading.negative, 1U);
    EXPECT_EQ(reading.leftOut, 1U);
    for (const FindingId id :
         {FindingId::PointsUnsorted, FindingId::PointsRepeated, FindingId::PointsNegative, FindingId::PointsOutside})
        EXPECT_TRUE(has(reading.findings, id)) << findingRecord(id).key;
}

TEST(TestPoints, ATestMayHaveNoUsablePoint)
{
    const TestReading reading = take("stretch,stress [Pa]\n-1,2\n0,3\n", Mode::Uniaxial);
    ASSERT_TRUE(reading.data.has_value());
    EXPECT_TRUE(reading.data->abscissas.empty());
    EXPECT_TRUE(has(reading.findings, FindingId::NoPoints));
}

TEST(TestPoints, AFactorThatOverflowsLeavesPointsOut)
{
    TestReadRequest request;
    const TestTable table = readTestTable("stretch,stress [MPa]\n1.1,1e305\n1.2,2\n", unitFactor);
    EXPECT_EQ(takeTest(table, request, unitFactor).leftOut, 1U);
}

TEST(TestDomain, DependsOnTheMode)
{
    EXPECT_TRUE(isInDomain(Mode::SimpleShear, -3.0, 1.0));
    EXPECT_FALSE(isInDomain(Mode::Uniaxial, 0.0, 1.0));
    EXPECT_TRUE(isInDomain(Mode::Tensile, -0.9, 1.0));
    EXPECT_FALSE(isInDomain(Mode::Tensile, -1.0, 1.0));
    EXPECT_TRUE(isInDomain(Mode::Creep, 0.0, 1.0));
    EXPECT_FALSE(isInDomain(Mode::Creep, -1.0, 1.0));
    EXPECT_FALSE(isInDomain(Mode::SimpleShear, 1.0, std::nan("")));
    EXPECT_FALSE(isInDomain(Mode::SimpleShear, std::numeric_limits<double>::infinity(), 1.0));
}

} // namespace
