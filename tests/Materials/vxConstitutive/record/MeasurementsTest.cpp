#include "vxConstitutive/record/Measurements.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace {

using namespace vxConstitutive;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr double infinity = std::numeric_limits<double>::infinity();

Measurements sample()
{
    Measurements measurements;
    measurements.tests.push_back({"tension", Mode::Uniaxial, {1.0, 1.5, 0.1}, {0.0, -0.0, 1e-308}, 0.0, 1.0});
    measurements.tests.back().abscissaColumn = {"Dehnung \"1\"", "%", Measure::EngineeringStrain};
    measurements.tests.back().ordinateColumn = {"", "MPa", Measure::TrueStress};
    measurements.tests.push_back({"Kriechen \"\xC2\xB5\"\n", Mode::Creep, {0.0, 3600.0}, {1e-5, 1.0 / 3.0}, 2e6, 0.5});
    FitRecord& fit = measurements.fits.emplace_back();
    fit.model = "Mooney-Rivlin";
    fit.constants.push_back({26, "C10", "Pa", 1.5e5, 1.0 / 7.0, Determination::Determined});
    fit.constants.push_back({27, "C01", "Pa", -3.0, std::nullopt, Determination::AtBound});
    fit.tests.push_back({"tension", Mode::Uniaxial, 3, 0.1, 0.2, 0.3, 0.999});
    fit.residual = 0.0125;
    fit.residualPerFreedom = 0.0126;
    fit.rSquared = 0.99;
    fit.residualWithoutStability = 0.01;
    fit.error = ErrorMeasure::OfEach;
    fit.stability = StabilityDemand::OverRange;
    fit.stabilityRange = Range{0.5, 7.0};
    fit.stable.push_back({Mode::Planar, {0.5, infinity}, true, false});
    FitRecord& creep = measurements.fits.emplace_back();
    creep.model = "Norton";
    creep.error = ErrorMeasure::Absolute;
    return measurements;
}

/// The text of sample(), as projects keep it.
constexpr const char* sampleText =
    R"({"version": 1, "tests": [)"
    R"({"name": "tension", "mode": "uniaxial", "parameter": 0, "weight": 1, )"
    R"("abscissa_column": {"name": "Dehnung \"1\"", "unit": "%", "measure": "engineering-strain"}, )"
    R"("ordinate_column": {"name": "", "unit": "MPa", "measure": "true-stress"}, )"
    R"("abscissas": [1, 1.5, 0.1], "ordinates": [0, -0.0, 1e-308]}, )"
    "{\"name\": \"Kriechen \\\"\xC2\xB5\\\"\\n\", "
    R"("mode": "creep", "parameter": 2e+06, "weight": 0.5, )"
    R"("abscissas": [0, 3600], "ordinates": [1e-05, 0.3333333333333333]}], )"
    R"("fits": [{"model": "Mooney-Rivlin", "constants": [)"
    R"({"property": 26, "symbol": "C10", "unit": "Pa", "value": 150000, "standard_error": 0.14285714285714285, )"
    R"("determination": "determined"}, )"
    R"({"property": 27, "symbol": "C01", "unit": "Pa", "value": -3, "determination": "at-bound"}], )"
    R"("tests": [{"test": "tension", "mode": "uniaxial", "points": 3, "rms": 0.1, "relative_error": 0.2, )"
    R"("largest_error": 0.3, "r_squared": 0.999}], )"
    R"("residual": 0.0125, "residual_per_freedom": 0.0126, "r_squared": 0.99, "residual_without_stability": 0.01, )"
    R"("error_measure": "of-each", "stability": "over-range", "stability_range": {"from": 0.5, "to": 7}, )"
    R"("stable": [{"mode": "planar", "range": {"from": 0.5, "to": "Infinity"}, "unstable_below": true, )"
    R"("unstable_above": false}]}, )"
    R"({"model": "Norton", "constants": [], "tests": [], "residual": 0, "residual_per_freedom": 0, "r_squared": 0, )"
    R"("error_measure": "absolute", "stable": []}]})";

/// Returns `text` with the first `what` replaced. The test fails if there is none.
std::string changed(std::string text, const std::string& what, const std::string& into)
{
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return at == std::string::npos ? text : text.replace(at, what.size(), into);
}

std::string refusalOf(const std::string& text)
{
    try {
        readMeasurements(text);
    } catch (const MeasurementsError& error) {
        return error.what();
    }
    return "not refused";
}

std::string refusalOf(const Measurements& measurements)
{
    try {
        writeMeasurements(measurements);
    } catch (const MeasurementsError& error) {
        return error.what();
    }
    return "not refused";
}

TEST(Measurements, AreWrittenAsOneLineOfJson)
{
    EXPECT_EQ(writeMeasurements(sample()), sampleText);
}

TEST(Measurements, ReadBackAsTheyWere)
{
    const Measurements read = readMeasurements(sampleText);
    ASSERT_EQ(read.tests.size(), 2U);
    EXPECT_EQ(read.tests[1].name, "Kriechen \"\xC2\xB5\"\n");
    EXPECT_EQ(read.tests[1].mode, Mode::Creep);
    EXPECT_EQ(read.tests[1].parameter, 2e6);
    EXPECT_EQ(read.tests[1].weight, 0.5);
    EXPECT_THAT(read.tests[1].abscissas, ElementsAre(0.0, 3600.0));
    EXPECT_THAT(read.tests[1].ordinates, ElementsAre(1e-5, 1.0 / 3.0));
    EXPECT_TRUE(std::signbit(read.tests[0].ordinates[1])) << "negative zero stays";
    ASSERT_TRUE(read.tests[0].abscissaColumn && read.tests[0].ordinateColumn);
    EXPECT_EQ(read.tests[0].abscissaColumn->name, "Dehnung \"1\"");
    EXPECT_EQ(read.tests[0].ordinateColumn->unit, "MPa");
    EXPECT_EQ(read.tests[0].ordinateColumn->measure, Measure::TrueStress);
    EXPECT_FALSE(read.tests[1].abscissaColumn) << "of a test whose file is not known";
    ASSERT_EQ(read.fits.size(), 2U);
    const FitRecord& fit = read.fits[0];
    EXPECT_EQ(fit.model, "Mooney-Rivlin");
    ASSERT_EQ(fit.constants.size(), 2U);
    EXPECT_EQ(fit.constants[0].propertyId, 26);
    EXPECT_EQ(fit.constants[0].unit, "Pa");
    EXPECT_EQ(fit.constants[0].standardError, 1.0 / 7.0);
    EXPECT_EQ(fit.constants[1].standardError, std::nullopt);
    EXPECT_EQ(fit.constants[1].determination, Determination::AtBound);
    EXPECT_EQ(fit.tests.at(0).points, 3U);
    EXPECT_EQ(fit.residualWithoutStability, 0.01);
    EXPECT_EQ(fit.error, ErrorMeasure::OfEach);
    EXPECT_EQ(fit.stability, StabilityDemand::OverRange);
    EXPECT_EQ(fit.stabilityRange->to, 7.0);
    EXPECT_EQ(fit.stable.at(0).range.to, infinity);
    EXPECT_TRUE(fit.stable[0].unstableBelow);
    EXPECT_FALSE(read.fits[1].stability.has_value());
    EXPECT_EQ(writeMeasurements(read), sampleText);
}

TEST(Measurements, AreAnEmptyTextIfThereAreNone)
{
    EXPECT_EQ(writeMeasurements({}), "");
    EXPECT_TRUE(readMeasurements("").empty());
    EXPECT_TRUE(readMeasurements(R"({"version": 1, "tests": [], "fits": []})").empty());
}

TEST(Measurements, KeepEveryDouble)
{
    std::mt19937_64 engine(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same numbers in each run
    Measurements measurements;
    TestData& test = measurements.tests.emplace_back();
    while (test.abscissas.size() < 20000) {
        const std::uint64_t bits = engine();
        double number = 0.0;
        std::memcpy(&number, &bits, sizeof number);
        if (std::isfinite(number))
            test.abscissas.push_back(number);
    }
    test.ordinates = test.abscissas;
    const Measurements read = readMeasurements(writeMeasurements(measurements));
    EXPECT_EQ(read.tests.at(0).abscissas, test.abscissas);
}

TEST(Measurements, HoldAMillionPoints)
{
    Measurements measurements;
    TestData& test = measurements.tests.emplace_back();
    for (int i = 0; i < 1000000; ++i) {
        test.abscissas.push_back(1.0 + i / 3e5);
        test.ordinates.push_back(std::sqrt(i) * 1e5);
    }
    const std::string text = writeMeasurements(measurements);
    EXPECT_LT(text.size(), 45000000U);
    EXPECT_EQ(readMeasurements(text).tests.at(0).ordinates, test.ordinates);
}

TEST(Measurements, AreRefusedWithTheirPlace)
{
    const std::string sound = sampleText;
    const struct
    {
        const char* what;
        const char* into;
        const char* message;
    } cases[] = {
        {R"("version": 1)", R"("version": 2)", R"("version" must be 1)"},
        {R"("version": 1)", R"("version": 2, "later": [])", R"("version" must be 1)"},
        {R"("version": 1, )", "", R"("version" is missing)"},
        {R"("tests": [{"name")", R"("tests": [7, {"name")", R"("tests[0]" must be an object)"},
        {R"("name": "tension")", R"("name": 7)", R"("tests[0].name" must be a text)"},
        {R"("name": "tension")", R"("name": null)", R"("tests[0].name" must be a text)"},
        {R"("name": "tension", )", "", R"("tests[0].name" is missing)"},
        {R"("name": "tension")", R"("name": "tension", "colour": 1)", R"("tests[0].colour" is not a known member)"},
        {R"("mode": "uniaxial")", R"("mode": "sideways")", R"("tests[0].mode" must be the name of a mode)"},
        {R"("mode": "uniaxial")", R"("mode": 0)", R"("tests[0].mode" must be the name of a mode)"},
        {R"("weight": 1)", R"("weight": "NaN")", R"("tests[0].weight" must be a finite number)"},
        {R"("measure": "true-stress")", R"("measure": "stress")",
         R"("tests[0].ordinate_column.measure" must be the name of a measured quantity)"},
        {R"("unit": "%", )", "", R"("tests[0].abscissa_column.unit" is missing)"},
        {"[1, 1.5, 0.1]", R"([1, "NaN", 0.1])", R"("tests[0].abscissas[1]" must be a finite number)"},
        {"[1, 1.5, 0.1]", "[1, [1.5], 0.1]", R"("tests[0].abscissas[1]" must be a finite number)"},
        {"[1, 1.5, 0.1]", "1", R"("tests[0].abscissas" must be an array)"},
        {"[1, 1.5, 0.1]", "[1, 1.5]", R"("tests[0]" must have as many ordinates as abscissas)"},
        {R"("property": 26)", R"("property": 2147483648)", R"("fits[0].constants[0].property" must be a whole number)"},
        {R"("value": -3)", R"("value": "many")", R"("fits[0].constants[1].value" must be a number)"},
        {R"("standard_error": 0.14285714285714285)", R"("standard_error": null)",
         R"("fits[0].constants[0].standard_error" must be a number)"},
        {R"("determination": "at-bound")", R"("determination": "loose")",
         R"("fits[0].constants[1].determination" is not a word)"},
        {R"("points": 3)", R"("points": -1)", R"("fits[0].tests[0].points" must be a whole number from 0)"},
        {R"("stability": "over-range")", R"("stability": 1)", R"("fits[0].stability" is not a word)"},
        {R"("stability_range": {"from": 0.5, "to": 7})", R"("stability_range": {"from": 0.5})",
         R"("fits[0].stability_range.to" is missing)"},
        {R"("unstable_below": true)", R"("unstable_below": 1)",
         R"("fits[0].stable[0].unstable_below" must be true or false)"},
        {R"("weight": 1,)", R"("weight": 1, "weight": 1,)", "weight"},
        {"1e-308", "1e999", "1e999"},
        {R"("fits": [)", R"("fits": )", "line 1, column"},
    };
    for (const auto& one : cases)
        EXPECT_THAT(refusalOf(changed(sound, one.what, one.into)), HasSubstr(one.message)) << one.into;
    EXPECT_EQ(refusalOf(sound), "not refused");
}

TEST(Measurements, AreRefusedIfTheTextIsNoneOfThem)
{
    for (const char* const text : {" ", "[]", "null", "7", "{}", "tests", "{\"version\": 1}", "\xFF", "{", "[[[["})
        EXPECT_NE(refusalOf(std::string(text)), "not refused") << text;
    EXPECT_THAT(refusalOf(std::string(100000, '[')), HasSubstr("1000 levels"));
    const std::string zero("{\"version\": 1, \"tests\": [], \"fits\": []}\0", 41);
    EXPECT_NE(refusalOf(zero), "not refused");
}

TEST(Measurements, AreNotWrittenIfTheyCouldNotBeReadBack)
{
    Measurements measurements = sample();
    measurements.tests[1].abscissas[1] = std::nan("");
    EXPECT_EQ(refusalOf(measurements), "\"tests[1].abscissas[1]\" is not a finite number");
    measurements = sample();
    measurements.tests[0].weight = infinity;
    EXPECT_EQ(refusalOf(measurements), "\"tests[0].weight\" is not a finite number");
    measurements = sample();
    measurements.tests[0].ordinates.pop_back();
    EXPECT_EQ(refusalOf(measurements), "\"tests[0]\" must have as many ordinates as abscissas");
    measurements = sample();
    measurements.tests[0].name = "\xFF";
    EXPECT_EQ(refusalOf(measurements), "\"tests[0].name\" is not UTF-8");
}

TEST(Measurements, KeepResultsThatAreNotFinite)
{
    Measurements measurements = sample();
    measurements.fits[0].constants[0].standardError = infinity;
    measurements.fits[0].rSquared = std::nan("");
    const Measurements read = readMeasurements(writeMeasurements(measurements));
    EXPECT_EQ(read.fits[0].constants[0].standardError, infinity);
    EXPECT_TRUE(std::isnan(read.fits[0].rSquared));
}

TEST(Measurements, ReplaceATestOfTheSameNameIfAFitIsAdded)
{
    Measurements measurements;
    measurements.tests = {TestData{"tension", Mode::Uniaxial, {1.0}, {0.0}},
                          TestData{"shear", Mode::SimpleShear, {0.1}, {2.0}}};
    FitRecord record;
    record.model = "Neo-Hookean";
    measurements.addFit(
        {TestData{"tension", Mode::Uniaxial, {1.5}, {3.0}}, TestData{"relaxation", Mode::Relaxation, {1.0}, {4.0}}},
        record);
    ASSERT_EQ(measurements.tests.size(), 3U);
    EXPECT_EQ(measurements.tests[0].abscissas, std::vector<double>{1.5});
    EXPECT_EQ(measurements.tests[1].name, "shear");
    EXPECT_EQ(measurements.tests[2].name, "relaxation");
    ASSERT_EQ(measurements.fits.size(), 1U);
    EXPECT_EQ(measurements.fits[0].model, "Neo-Hookean");
}

TEST(Measurements, TellHowAModelWasFitted)
{
    HyperelasticFitRequest request;
    request.tests.push_back({"tension", Mode::Uniaxial, {1.1, 1.5, 2.0, 3.0}, {}, 0.0, 1.0});
    // Nominal stress of an incompressible Neo-Hookean material, 2 C10 (l - 1/l^2) with C10 = 2e5 Pa.
    for (const double stretch : request.tests[0].abscissas)
        request.tests[0].ordinates.push_back(4e5 * (stretch - 1.0 / (stretch * stretch)));
    request.forms = {HyperelasticForm::NeoHooke};
    request.error = ErrorMeasure::OfEach;
    request.stability = StabilityDemand::OverRange;
    request.stableRange = {0.5, 4.0};
    const std::vector<FitResult> results = fitHyperelastic(request);
    ASSERT_EQ(results.size(), 1U);
    const FitRecord record = recordFit(results[0], request);
    EXPECT_EQ(record.model, "Neo-Hookean");
    ASSERT_FALSE(record.constants.empty());
    EXPECT_NEAR(record.constants[0].value, 2e5, 1.0);
    EXPECT_EQ(record.constants[0].unit, "Pa");
    EXPECT_EQ(record.tests.at(0).test, "tension");
    EXPECT_EQ(record.tests[0].points, 4U);
    EXPECT_EQ(record.error, ErrorMeasure::OfEach);
    EXPECT_EQ(record.stability, StabilityDemand::OverRange);
    EXPECT_EQ(record.stabilityRange->from, 0.5);
    const Measurements measurements{request.tests, {record}};
    const std::string text = writeMeasurements(measurements);
    EXPECT_EQ(writeMeasurements({request.tests, {recordFit(fitHyperelastic(request).at(0), request)}}), text)
        << "the same fit gives the same record";
    request.stability = StabilityDemand::None;
    EXPECT_FALSE(recordFit(results[0], request).stabilityRange.has_value());
    EXPECT_FALSE(recordFit(results[0], ErrorMeasure::Absolute).stability.has_value());
}

} // namespace
