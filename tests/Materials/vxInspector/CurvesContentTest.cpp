// What the tab of the curves shows, without widgets.

#include "curves/CurvesContent.h"

#include "curves/ConstitutiveTexts.h"
#include "curves/CurveCache.h"
#include "curves/CurveParameter.h"
#include "measured/KeptMeasurements.h"
#include "vxConstitutive/MaterialModels.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxConstitutive::Mode;
using vxInspector::CurvesContent;
using vxInspector::CurveSettings;
using InspectedMaterial = vxInspector::DrawnMaterial;
using Id = vxMat::PropertyId;

using Numbers = std::vector<std::pair<int, std::string>>;

/// A material with the given values of quantities.
InspectedMaterial material(const QString& label, const Numbers& values)
{
    InspectedMaterial inspected;
    inspected.label = label;
    inspected.objectId = static_cast<std::uint32_t>(label.size());
    inspected.material = std::make_unique<vxMat::CMaterial>();
    for (const auto& [id, value] : values)
        inspected.material->addProperty(id, "", value, "", "");
    return inspected;
}

InspectedMaterial rubber(const QString& label = "Seal", const std::string& c10 = "500000")
{
    return material(label, {{Id::NeoHooke, "1"}, {Id::MaterialConstantC10, c10}});
}

InspectedMaterial steel()
{
    return material("Frame", {{Id::IsotropicElasticity, "1"},
                              {Id::YoungsModulus, "2e11"},
                              {Id::PoissonsRatio, "0.3"},
                              {Id::Plasticity, "1"},
                              {Id::PlasticYieldType, "Mises"},
                              {Id::PlasticHardeningType, "Multilinear"},
                              {Id::PlasticYieldStress, "3e8, 4e8, 4.5e8"},
                              {Id::PlasticStrain, "0, 0.033, 0.1"}});
}

CurvesContent drawn(std::vector<InspectedMaterial> materials, const CurveSettings& settings = {},
                    const char* system = "mm-t-s")
{
    return vxInspector::curvesOf(materials, settings, *vxUnits::UnitSystem::parse(system));
}

CurvesContent drawn(InspectedMaterial one, const CurveSettings& settings = {}, const char* system = "mm-t-s")
{
    std::vector<InspectedMaterial> materials;
    materials.push_back(std::move(one));
    return drawn(std::move(materials), settings, system);
}

std::vector<std::string> namesOf(const CurvesContent& content)
{
    std::vector<std::string> names;
    for (const vxPlot::Series& series : content.plot.series)
        names.push_back(series.name);
    return names;
}

double valueAt(const vxPlot::Series& series, double x)
{
    for (std::size_t i = 0; i < series.x.size(); ++i)
        if (std::fabs(series.x[i] - x) < 1e-12)
            return series.y[i];
    return std::nan("");
}

TEST(CurvesContent, ShowsTheThreeTensileModesOfRubber)
{
    const CurvesContent content = drawn(rubber());
    EXPECT_THAT(namesOf(content), ElementsAre("uniaxial", "equibiaxial", "planar"));
    EXPECT_EQ(content.plot.y.unit, "MPa");
    EXPECT_EQ(content.sentence, "\"Seal\".");
    EXPECT_TRUE(content.canBeIncompressible);
}

TEST(CurvesContent, HasTheValuesOfTheModelInTheChosenRange)
{
    CurveSettings settings;
    settings.from = 1.0;
    settings.to = 2.0;
    const CurvesContent content = drawn(rubber(), settings);
    EXPECT_THAT(valueAt(content.plot.series.at(0), 2.0), DoubleNear(2.0 * 0.5 * (2.0 - 0.25), 1e-9));
    EXPECT_EQ(content.plot.series[0].x.size(), 201U);
    std::swap(settings.from, settings.to);
    EXPECT_EQ(drawn(rubber(), settings).range.from, 1.0);
}

TEST(CurvesContent, OffersOnlyTheModesThatTheMaterialsHave)
{
    EXPECT_THAT(drawn(rubber()).modes,
                ElementsAre(Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar, Mode::SimpleShear, Mode::Volumetric));
    EXPECT_THAT(
        drawn(material("Bearing",
                       {{Id::ViscoElasticity, "1"}, {Id::ShearRelaxationModulus, "0.4"}, {Id::RelaxationTime, "2"}}))
            .modes,
        ElementsAre(Mode::Relaxation, Mode::ShearCreep, Mode::Dynamic));
}

TEST(CurvesContent, ShowsTheHardeningOfAMetalWithItsCorners)
{
    const CurvesContent content = drawn(steel());
    EXPECT_THAT(content.shown, ElementsAre(Mode::Plastic));
    EXPECT_THAT(namesOf(content), ElementsAre("Frame"));
    EXPECT_EQ(content.plot.x.name, "plastic strain");
    EXPECT_THAT(content.range.to, DoubleNear(0.11, 1e-12));
    EXPECT_THAT(valueAt(content.plot.series[0], 0.033), DoubleNear(400.0, 1e-9));
}

TEST(CurvesContent, StopsBeforeTheLimitOfTheChains)
{
    const CurvesContent content = drawn(material(
        "Seal", {{Id::ArrudaBoyce, "1"}, {Id::InitialShearModulusMu, "500000"}, {Id::LimitingNetworkStretch, "1.4"}}));
    EXPECT_LT(content.range.to, 2.5);
    EXPECT_GT(content.range.to, 1.4);
}

TEST(CurvesContent, ShadesAndTellsWhereRubberIsUnstable)
{
    CurveSettings settings;
    settings.to = 3.0;
    const CurvesContent content = drawn(
        material("Seal",
                 {{Id::MooneyRivlin, "1"}, {Id::MaterialConstantC10, "500000"}, {Id::MaterialConstantC01, "-100000"}}),
        settings);
    ASSERT_FALSE(content.plot.bands.empty());
    EXPECT_GT(content.plot.bands[0].range.from, 1.0);
    bool isTold = false;
    for (const vxInspector::Row& row : content.findings.rows)
        isTold = isTold || row.cells[1].copied().contains("unstable");
    EXPECT_TRUE(isTold);
}

TEST(CurvesContent, DrawsSeveralMaterialsOverTheRangeOfAll)
{
    std::vector<InspectedMaterial> materials;
    materials.push_back(rubber("Seal"));
    materials.push_back(rubber("Pad", "1000000"));
    materials.push_back(steel());
    materials.push_back(material("Gas", {{Id::Density, "1.2"}}));
    CurveSettings settings;
    settings.modes = {Mode::Uniaxial};
    const CurvesContent content = drawn(std::move(materials), settings);
    EXPECT_THAT(namesOf(content), ElementsAre("Seal", "Pad", "Frame"));
    EXPECT_EQ(content.sentence, "Materials without a model: 1.");
    EXPECT_THAT(content.findings.headers, ElementsAre("Kind", "Finding", "Material"));
}

TEST(CurvesContent, TellsAFindingOfAMaterialOnce)
{
    InspectedMaterial soft = rubber();
    soft.material->addProperty(Id::IncompressibilityParameterD1, "", "0", "", "");
    const CurvesContent content = drawn(std::move(soft));
    int count = 0;
    for (const vxInspector::Row& row : content.findings.rows)
        count += row.cells[1].copied().contains("D1 is 0") ? 1 : 0;
    EXPECT_EQ(count, 1);
}

TEST(CurvesContent, TellsFindingsInTheUnitSystemOfThePlot)
{
    const auto findingIn = [](const char* system) {
        const CurvesContent content = drawn(material("Seal", {{Id::MooneyRivlin, "1"},
                                                              {Id::MaterialConstantC10, "-500000"},
                                                              {Id::MaterialConstantC01, "-100000"}}),
                                            {}, system);
        return content.findings.rows.empty() ? std::string() : content.findings.rows[0].cells[1].text.toStdString();
    };
    // The initial shear modulus is 2 (C10 + C01).
    EXPECT_THAT(findingIn("SI"), testing::HasSubstr("the initial shear modulus is -1.2e+06 Pa."));
    EXPECT_THAT(findingIn("mm-t-s"), testing::HasSubstr("the initial shear modulus is -1.2 MPa."));
}

TEST(CurvesContent, MarksSuppressedMaterials)
{
    InspectedMaterial suppressed = rubber();
    suppressed.isSuppressed = true;
    CurveSettings settings;
    settings.modes = {Mode::SimpleShear};
    const CurvesContent content = drawn(std::move(suppressed), settings);
    EXPECT_THAT(namesOf(content), ElementsAre("Seal (suppressed)"));
    EXPECT_THAT(content.sentence.toStdString(), HasSubstr("It is suppressed."));
}

TEST(CurvesContent, SaysWhyThereAreNoCurves)
{
    const CurvesContent content = drawn(material("Gas", {{Id::Density, "1.2"}}));
    EXPECT_THAT(content.plot.series, IsEmpty());
    EXPECT_THAT(content.shown, IsEmpty());
    EXPECT_THAT(content.sentence.toStdString(), HasSubstr("It has no constants of a model with curves"));
    const CurvesContent lacking = drawn(material("Seal", {{Id::NeoHooke, "1"}}));
    ASSERT_FALSE(lacking.findings.rows.empty());
    EXPECT_EQ(lacking.findings.rows[0].cells[0].text, "Error");
}

TEST(CurvesContent, SurvivesConstantsThatMakeNoSense)
{
    for (const char* const c10 : {"0", "-1", "nan", "inf", "1e308", "1e-308"})
        for (const Mode mode : {Mode::Uniaxial, Mode::SimpleShear, Mode::Volumetric}) {
            CurveSettings settings;
            settings.modes = {mode};
            settings.from = -1.0;
            settings.to = 1e6;
            const CurvesContent content = drawn(rubber("Seal", c10), settings);
            EXPECT_LE(content.plot.series.size(), 3U) << c10;
        }
}

TEST(CurvesContent, UsesLogarithmicAxesWhereTheyAreUsual)
{
    CurveSettings settings;
    settings.modes = {Mode::CreepRate};
    const InspectedMaterial blade = material(
        "Blade", {{Id::Creep, "1"}, {Id::CreepModulusA, "1e-40"}, {Id::CreepModulusN, "4"}, {Id::CreepModulusM, "0"}});
    std::vector<InspectedMaterial> one;
    one.push_back(material("Blade", {}));
    one[0].material->copyAllFrom(*blade.material);
    const CurvesContent content = drawn(std::move(one), settings);
    EXPECT_EQ(content.plot.x.scale, vxPlot::Scale::Logarithmic);
    EXPECT_EQ(content.plot.y.scale, vxPlot::Scale::Logarithmic);
    const auto& x = content.plot.series.at(0).x;
    EXPECT_THAT(x[1] / x[0], DoubleNear(x[200] / x[199], 1e-9));
}

/// A tensile test of a rubber.
vxConstitutive::TestData tension(Mode mode = Mode::Uniaxial)
{
    return {"tension", mode, {1.5, 2.0}, {1e6, 1.75e6}};
}

InspectedMaterial withTests(InspectedMaterial one, std::vector<vxConstitutive::TestData> tests)
{
    one.kept = std::make_shared<vxInspector::KeptMeasurements>(
        vxInspector::KeptMeasurements{{std::move(tests), {}}, std::nullopt});
    return one;
}

TEST(CurvesContent, ShowsTheKeptTestsOfTheShownModes)
{
    const CurvesContent content = drawn(withTests(rubber(), {tension(), tension(Mode::SimpleShear)}));
    EXPECT_THAT(namesOf(content),
                ElementsAre("uniaxial", "equibiaxial (not measured)", "planar (not measured)", "tension"));
    EXPECT_EQ(content.plot.series[3].kind, vxPlot::SeriesKind::Symbols);
    EXPECT_EQ(content.plot.series[3].style, content.plot.series[0].style);
    EXPECT_THAT(content.plot.series[3].y, ElementsAre(testing::DoubleEq(1.0), testing::DoubleEq(1.75)));
}

TEST(CurvesContent, DrawsEachModeOverItsOwnTestAndTheOthersOverAllTests)
{
    vxConstitutive::TestData balloon{"balloon", Mode::Equibiaxial, {0.8, 1.2, 1.5}, {-1e6, 1e6, 2e6}};
    vxConstitutive::TestData bar{"bar", Mode::Uniaxial, {1.5, 3.0}, {1e6, 3e6}};
    const CurvesContent content = drawn(withTests(rubber(), {balloon, bar}));
    const auto& series = content.plot.series;
    ASSERT_EQ(series.size(), 5U);
    EXPECT_DOUBLE_EQ(series[0].x.front(), 1.0); // a bar begins at stretch 1
    EXPECT_DOUBLE_EQ(series[0].x.back(), 3.2);  // a tenth more than measured
    EXPECT_DOUBLE_EQ(series[1].x.back(), 1.55);
    EXPECT_LT(series[1].x.front(), 0.8);
    EXPECT_GT(series[1].x.front(), 0.7);
    EXPECT_DOUBLE_EQ(series[2].x.front(), 0.8);
    EXPECT_DOUBLE_EQ(series[2].x.back(), 3.0);
    EXPECT_FALSE(series[0].isFaint);
    EXPECT_TRUE(series[2].isFaint);
    EXPECT_DOUBLE_EQ(content.range.to, 3.2);
}

TEST(CurvesContent, DrawsAllModesOverTheRangeOfTheUser)
{
    CurveSettings settings;
    settings.to = 5.0;
    const CurvesContent content = drawn(withTests(rubber(), {tension()}), settings);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_DOUBLE_EQ(content.plot.series.at(i).x.back(), 5.0);
}

TEST(CurvesContent, NamesTheMaterialOfATestIfThereAreSeveral)
{
    std::vector<InspectedMaterial> materials;
    materials.push_back(withTests(rubber("Seal"), {tension()}));
    materials.push_back(withTests(rubber("Pad"), {tension()}));
    CurveSettings settings;
    settings.modes = {Mode::Uniaxial};
    EXPECT_THAT(namesOf(drawn(std::move(materials), settings)),
                ElementsAre("Seal", "Pad", "Seal, tension", "Pad, tension"));
}

TEST(CurvesContent, ShowsTestsOfAMaterialWithoutAModel)
{
    const CurvesContent content = drawn(withTests(material("New", {{Id::Density, "1200"}}), {tension()}));
    EXPECT_THAT(content.shown, ElementsAre(Mode::Uniaxial));
    EXPECT_THAT(namesOf(content), ElementsAre("tension"));
    EXPECT_EQ(content.range.to, 2.0);
}

TEST(CurvesContent, ShowsTheModeInWhichAMetalWasTested)
{
    vxConstitutive::TestData test{"bar", Mode::Tensile, {0.01, 0.05}, {3e8, 4e8}};
    EXPECT_THAT(drawn(withTests(steel(), {test})).shown, ElementsAre(Mode::Tensile));
}

TEST(CurvesContent, DrawsCreepAtTheStressesOfTheTests)
{
    InspectedMaterial blade = material(
        "Blade", {{Id::Creep, "1"}, {Id::CreepModulusA, "1e-40"}, {Id::CreepModulusN, "4"}, {Id::CreepModulusM, "0"}});
    const CurvesContent content =
        drawn(withTests(std::move(blade), {{"slow", Mode::Creep, {1.0, 1e6}, {1e-9, 1e-3}, 7e7}}));
    EXPECT_EQ(content.plot.series.size(), 2U);
    EXPECT_NEAR(content.plot.series.at(0).y.back() / content.plot.series[0].x.back(), 1e-40 * std::pow(7e7, 4.0),
                1e-12);
}

TEST(MeasurementsCache, ReadsATextOnce)
{
    vxInspector::MeasurementsCache cache;
    EXPECT_EQ(cache.read(""), nullptr);
    const std::string text = vxConstitutive::writeMeasurements({{tension()}, {}});
    const auto first = cache.read(text);
    ASSERT_EQ(first->measurements.tests.size(), 1U);
    EXPECT_TRUE(cache.read("{")->fault);
    EXPECT_EQ(cache.read(text), first);
    for (int i = 0; i < 20; ++i)
        cache.read(std::string(static_cast<std::size_t>(i), ' ') + '{');
    EXPECT_NE(cache.read(text), first);
}

TEST(CurvesContent, PutsTheArgumentsIntoTheTextsOfFindings)
{
    using namespace vxConstitutive;
    const QString text = vxInspector::translated(
        makeFinding(FindingId::ConstantNotPositive, {std::string("Neo-Hookean"), std::string("%2"), -1.0}));
    EXPECT_EQ(text, "Neo-Hookean: the constant %2 is -1 in SI units. It must be greater than 0.");
}

InspectedMaterial creeping()
{
    return material(
        "Pipe", {{Id::Creep, "1"}, {Id::CreepModulusA, "1e-44"}, {Id::CreepModulusN, "4"}, {Id::CreepModulusM, "0"}});
}

TEST(CurvesContent, DrawsCreepAtTheStressesOfTheUser)
{
    CurveSettings settings;
    settings.stresses = {1e8, 3e8};
    const CurvesContent content = drawn(creeping(), settings);
    EXPECT_EQ(content.parameter, vxInspector::CurveParameter::Stresses);
    EXPECT_THAT(content.usedParameter, ElementsAre(1e8, 3e8));
    ASSERT_EQ(content.plot.series.size(), 2U);
    // 1e-44 * (3e8)^4 * 3.6e6 = 2.916e-4
    EXPECT_NEAR(content.plot.series[1].y.back(), 2.916e-4, 1e-12);
    EXPECT_THAT(drawn(creeping()).usedParameter, ElementsAre(50e6, 100e6, 200e6));
}

TEST(CurvesContent, DrawsAYieldSurfaceWithTheCohesionOfTheUser)
{
    const auto soil = [] {
        return material("Clay", {{Id::IsotropicElasticity, "1"},
                                 {Id::Plasticity, "1"},
                                 {Id::PlasticYieldType, "Mohr-Coulomb"},
                                 {Id::PlasticFAI, "30"}});
    };
    CurveSettings settings;
    settings.modes = {Mode::Yield};
    settings.from = 0.0;
    settings.to = 1e6;
    EXPECT_EQ(drawn(soil(), settings).parameter, vxInspector::CurveParameter::Cohesion);
    EXPECT_THAT(drawn(soil(), settings).plot.y.name, HasSubstr("/ cohesion"));
    const auto asks = [](const CurvesContent& content) {
        return std::any_of(content.findings.rows.begin(), content.findings.rows.end(), [](const vxInspector::Row& row) {
            return row.cells[1].copied().contains("Give a cohesion");
        });
    };
    EXPECT_TRUE(asks(drawn(soil(), settings)));
    settings.cohesion = 1e4;
    const CurvesContent content = drawn(soil(), settings);
    EXPECT_FALSE(asks(content)) << "the user has given one";
    EXPECT_THAT(content.plot.y.name, testing::Not(HasSubstr("/ cohesion")));
    EXPECT_EQ(content.plot.y.unit, "MPa");
}

TEST(CurvesContent, DrawsChainsByTheInverseLangevinFunction)
{
    const auto chains = [] {
        return material(
            "Seal", {{Id::ArrudaBoyce, "1"}, {Id::InitialShearModulusMu, "300000"}, {Id::LimitingNetworkStretch, "3"}});
    };
    CurveSettings settings;
    settings.from = 1.0;
    settings.to = 4.5;
    const CurvesContent series = drawn(chains(), settings);
    EXPECT_TRUE(series.hasChains);
    settings.chains = vxConstitutive::ChainStatistics::InverseLangevin;
    EXPECT_GT(drawn(chains(), settings).plot.series[0].y.back(), 1.05 * series.plot.series[0].y.back());
}

TEST(CurvesContent, SaysThatATextIsNoNumberInPlaceOfThatTheConstantIsMissing)
{
    InspectedMaterial seal = material("Seal", {{Id::NeoHooke, "1"}});
    seal.unreadRows.push_back({Id::MaterialConstantC10, 2, "many", "It is not a number."});
    const CurvesContent content = drawn(std::move(seal));
    std::vector<std::string> texts;
    for (const vxInspector::Row& row : content.findings.rows)
        texts.push_back(row.cells[1].copied().toStdString());
    EXPECT_THAT(texts, testing::Contains(HasSubstr("cannot be read: \"many\". It is not a number.")));
    EXPECT_THAT(texts, testing::Not(testing::Contains(HasSubstr("is missing"))));
}

TEST(CurveCache, ComputesOnlyTheCurvesOfMaterialsThatHaveChanged)
{
    vxInspector::CurveCache cache;
    const auto curveOf = [&cache](const InspectedMaterial& one) {
        const auto models = vxConstitutive::modelsOf(*one.material);
        vxConstitutive::CurveRequest request;
        request.abscissas = {1.0, 2.0};
        return cache.curve(*one.material, *models.models.front(), request);
    };
    cache.begin();
    const auto seal = curveOf(rubber("Seal"));
    const auto pad = curveOf(rubber("Pad", "700000"));
    cache.begin();
    EXPECT_EQ(curveOf(rubber("Seal")), seal);
    EXPECT_NE(curveOf(rubber("Pad", "700001")), pad);
    cache.begin();
    cache.begin();
    EXPECT_NE(curveOf(rubber("Seal")), seal); // not asked for by the plot before
}

TEST(CurveParameters, AreReadInTheUnitsOfTheProject)
{
    using vxInspector::CurveParameter;
    using vxInspector::readParameter;
    const vxUnits::UnitSystem system = *vxUnits::UnitSystem::parse("mm-t-s");
    EXPECT_THAT(*readParameter(CurveParameter::Stresses, "50; 1e8 Pa, 0.2 GPa", system),
                ElementsAre(DoubleNear(5e7, 1.0), DoubleNear(1e8, 1.0), DoubleNear(2e8, 1.0)));
    EXPECT_FALSE(readParameter(CurveParameter::Stresses, "50; soft", system));
    EXPECT_FALSE(readParameter(CurveParameter::Time, "1; 2", system));
    EXPECT_FALSE(readParameter(CurveParameter::Cohesion, "-1", system));
    EXPECT_FALSE(readParameter(CurveParameter::Stresses, "", system));
    EXPECT_EQ(parameterText(CurveParameter::Stresses, {5e7, 1e8}, system), "50; 100 MPa");
}

} // namespace
