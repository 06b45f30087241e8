#include "vxPlot/CurvePlot.h"

#include "vxConstitutive/response/FrictionModel.h"
#include "vxConstitutive/response/HyperelasticModel.h"
#include "vxConstitutive/response/NortonModel.h"
#include "vxConstitutive/response/ViscoElasticModel.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using vxConstitutive::Curve;
using vxConstitutive::Mode;
using vxConstitutive::TestData;
using vxPlot::CurvePlotRequest;
using vxPlot::PlotData;
using vxPlot::SeriesKind;

/// Neo-Hookean rubber: the nominal stress of a bar is 2 C10 (l - l^-2).
Curve rubber(Mode mode, const std::vector<double>& abscissas)
{
    vxConstitutive::HyperelasticConstants constants;
    constants.c10 = 0.5e6;
    vxConstitutive::CurveRequest request;
    request.mode = mode;
    request.abscissas = abscissas;
    return vxConstitutive::HyperelasticModel(constants).curve(request);
}

std::vector<std::string> namesOf(const PlotData& plot)
{
    std::vector<std::string> names;
    for (const vxPlot::Series& series : plot.series)
        names.push_back(series.name);
    return names;
}

CurvePlotRequest in(const char* system)
{
    CurvePlotRequest request;
    request.system = *vxUnits::UnitSystem::parse(system);
    return request;
}

TEST(CurvePlot, ShowsStressAgainstStretchInTheChosenUnits)
{
    const Curve curve = rubber(Mode::Uniaxial, {1.0, 2.0});
    CurvePlotRequest request = in("mm-t-s");
    request.curves = {{"Seal", &curve}};
    const PlotData plot = curvePlot(request);
    EXPECT_EQ(plot.x.name, "stretch");
    EXPECT_EQ(plot.y.name, "nominal stress");
    EXPECT_EQ(plot.y.unit, "MPa");
    ASSERT_THAT(namesOf(plot), ElementsAre("Seal"));
    EXPECT_EQ(plot.series[0].kind, SeriesKind::Line);
    EXPECT_THAT(plot.series[0].x, ElementsAre(1.0, 2.0));
    EXPECT_THAT(plot.series[0].y, ElementsAre(DoubleNear(0.0, 1e-12), DoubleNear(1.75, 1e-12)));
}

TEST(CurvePlot, CutsACurveThatIsNotMeasuredFarBeyondTheOthers)
{
    const Curve measured = rubber(Mode::Uniaxial, {1.0, 2.0});
    const Curve other = rubber(Mode::Equibiaxial, {0.3, 1.0, 2.0}); // 2 C10 (l - l^-5): -411 MPa, 0, 1.97 MPa
    CurvePlotRequest request = in("mm-t-s");
    request.curves = {{"Seal", &measured}, {"Seal", &other, false}};
    const PlotData plot = curvePlot(request);
    ASSERT_THAT(namesOf(plot), ElementsAre("uniaxial", "equibiaxial (not measured)"));
    EXPECT_FALSE(plot.series[0].isFaint);
    EXPECT_TRUE(plot.series[1].isFaint);
    EXPECT_TRUE(std::isnan(plot.series[1].y[0]));
    EXPECT_THAT(plot.series[1].y[2], DoubleNear(1.96875, 1e-9));
}

TEST(CurvePlot, ShowsTrueStressIfAskedTo)
{
    const Curve curve = rubber(Mode::Uniaxial, {2.0});
    CurvePlotRequest request = in("SI");
    request.curves = {{"Seal", &curve}};
    request.ordinates = 1;
    const PlotData plot = curvePlot(request);
    EXPECT_EQ(plot.y.name, "true stress");
    EXPECT_EQ(plot.y.unit, "Pa");
    EXPECT_THAT(plot.series.at(0).y, ElementsAre(DoubleNear(3.5e6, 1e-3)));
}

TEST(CurvePlot, NamesTheSeriesByWhatDistinguishesThem)
{
    const Curve bar = rubber(Mode::Uniaxial, {1.0, 2.0});
    const Curve sheet = rubber(Mode::Equibiaxial, {1.0, 2.0});
    CurvePlotRequest request = in("SI");
    request.curves = {{"Seal", &bar}, {"Seal", &sheet}};
    EXPECT_THAT(namesOf(curvePlot(request)), ElementsAre("uniaxial", "equibiaxial"));
    request.curves = {{"Seal", &bar}, {"Pad", &bar}};
    EXPECT_THAT(namesOf(curvePlot(request)), ElementsAre("Seal", "Pad"));
    request.curves = {{"Seal", &bar}, {"Pad", &sheet}};
    EXPECT_THAT(namesOf(curvePlot(request)), ElementsAre("Seal, uniaxial", "Pad, equibiaxial"));
    request.curves = {{"", &bar}};
    EXPECT_THAT(namesOf(curvePlot(request)), ElementsAre("uniaxial"));
}

TEST(CurvePlot, LeavesOutCurvesThatHaveAnotherAbscissaThanTheFirst)
{
    const Curve bar = rubber(Mode::Uniaxial, {1.0, 2.0});
    const Curve shear = rubber(Mode::SimpleShear, {0.0, 1.0});
    CurvePlotRequest request = in("SI");
    request.curves = {{"Seal", &shear}, {"Pad", &bar}};
    const PlotData plot = curvePlot(request);
    EXPECT_EQ(plot.x.name, "amount of shear");
    EXPECT_THAT(namesOf(plot), ElementsAre("Seal"));
    EXPECT_TRUE(vxPlot::fitTogether(Mode::Uniaxial, Mode::Volumetric));
    EXPECT_FALSE(vxPlot::fitTogether(Mode::Creep, Mode::Relaxation));
}

TEST(CurvePlot, ShowsTestsAsPointsInTheColourOfTheirMode)
{
    const Curve bar = rubber(Mode::Uniaxial, {1.0, 2.0});
    const Curve sheet = rubber(Mode::Equibiaxial, {1.0, 2.0});
    const TestData test{"sheet.csv", Mode::Equibiaxial, {2.0}, {3.0e6}};
    CurvePlotRequest request = in("mm-t-s");
    request.curves = {{"Seal", &bar}, {"Seal", &sheet}};
    request.tests = {{"measured", &test}};
    PlotData plot = curvePlot(request);
    ASSERT_THAT(namesOf(plot), ElementsAre("uniaxial", "equibiaxial", "measured"));
    EXPECT_EQ(plot.series[2].kind, SeriesKind::Symbols);
    EXPECT_EQ(plot.series[2].style, plot.series[1].style);
    EXPECT_THAT(plot.series[2].y, ElementsAre(DoubleNear(3.0, 1e-12)));
    request.ordinates = 1;
    plot = curvePlot(request);
    EXPECT_THAT(plot.series[2].y, ElementsAre(DoubleNear(6.0, 1e-12)));
}

TEST(CurvePlot, ShowsVolumeTestsAgainstTheStretch)
{
    const TestData test{"", Mode::Volumetric, {0.512}, {-8.0e6}};
    CurvePlotRequest request = in("SI");
    request.tests = {{"measured", &test}};
    const PlotData plot = curvePlot(request);
    EXPECT_THAT(plot.series.at(0).x, ElementsAre(DoubleNear(0.8, 1e-12)));
    EXPECT_THAT(plot.series.at(0).y, ElementsAre(DoubleNear(-5.12e6, 1e-3)));
}

TEST(CurvePlot, ShadesWhereACurveIsUnstable)
{
    Curve curve = rubber(Mode::Uniaxial, {0.5, 1.0, 3.0});
    curve.unstable = {{2.5, 3.0}};
    CurvePlotRequest request = in("SI");
    request.curves = {{"Seal", &curve}};
    PlotData plot = curvePlot(request);
    ASSERT_EQ(plot.bands.size(), 1U);
    EXPECT_EQ(plot.bands[0].name, "unstable");
    EXPECT_EQ(plot.bands[0].range.from, 2.5);
    const Curve other = rubber(Mode::Planar, {1.0, 3.0});
    request.curves.push_back({"Seal", &other});
    plot = curvePlot(request);
    ASSERT_EQ(plot.bands.size(), 1U);
    EXPECT_EQ(plot.bands[0].name, "unstable");
    request.curves.push_back({"Mount", &curve});
    plot = curvePlot(request);
    ASSERT_EQ(plot.bands.size(), 2U);
    EXPECT_EQ(plot.bands[0].name, "Seal: unstable");
    EXPECT_EQ(plot.bands[1].name, "Mount: unstable");
}

TEST(CurvePlot, TellsTheStressesOfCreepCurvesInTheChosenUnits)
{
    vxConstitutive::CurveRequest asked;
    asked.mode = Mode::Creep;
    asked.abscissas = {0.0, 10.0};
    asked.stresses = {100e6, 150e6};
    const Curve curve = vxConstitutive::NortonModel(1e-40, 4.0, 0.0).curve(asked);
    CurvePlotRequest request = in("mm-t-s");
    request.curves = {{"Blade", &curve}};
    EXPECT_THAT(namesOf(curvePlot(request)), ElementsAre("creep strain at 100 MPa", "creep strain at 150 MPa"));
}

TEST(CurvePlot, HasOneAxisForStorageAndLossModulus)
{
    vxConstitutive::CurveRequest asked;
    asked.mode = Mode::Dynamic;
    asked.abscissas = {1.0};
    const Curve curve = vxConstitutive::ViscoElasticModel(0.5, 1.0, 2e6).curve(asked);
    CurvePlotRequest request = in("mm-t-s");
    request.curves = {{"Damper", &curve}};
    const PlotData plot = curvePlot(request);
    EXPECT_EQ(plot.y.name, "storage and loss modulus");
    EXPECT_THAT(namesOf(plot), ElementsAre("storage modulus", "loss modulus"));
    EXPECT_EQ(plot.x.unit, "Hz");
}

TEST(CurvePlot, NamesAxesOfMultiplesOfAnUnknownConstant)
{
    vxConstitutive::CurveRequest asked;
    asked.mode = Mode::Yield;
    asked.abscissas = {0.0, 1.0};
    vxConstitutive::FrictionConstants constants;
    constants.frictionAngle = 30.0;
    const Curve curve = vxConstitutive::FrictionModel(constants).curve(asked);
    CurvePlotRequest request = in("mm-t-s");
    request.curves = {{"Soil", &curve}};
    const PlotData plot = curvePlot(request);
    EXPECT_EQ(plot.x.name, "pressure / cohesion");
    EXPECT_EQ(plot.y.name, "Mises stress / cohesion");
    EXPECT_EQ(plot.y.unit, "1");
}

TEST(CurvePlot, OfNothingHasAxesOnly)
{
    const PlotData plot = vxPlot::curvePlot({});
    EXPECT_THAT(plot.series, IsEmpty());
    EXPECT_EQ(plot.x.name, "stretch");
}

TEST(CurvePlot, OfACurveThatAModelRefusesHasNoSeries)
{
    const Curve refused = rubber(Mode::Creep, {1.0});
    CurvePlotRequest request;
    request.curves = {{"Seal", &refused}};
    EXPECT_THAT(curvePlot(request).series, IsEmpty());
}

TEST(CurvePlot, TranslatesNamesOfQuantitiesAndModes)
{
    const Curve bar = rubber(Mode::Uniaxial, {1.0, 2.0});
    CurvePlotRequest request;
    request.curves = {{"", &bar}};
    request.translator = [](const char* context, const char* text) { return std::string(context) + ':' + text; };
    const PlotData plot = curvePlot(request);
    EXPECT_EQ(plot.x.name, "vxConstitutive::Word:stretch");
    EXPECT_THAT(namesOf(plot), ElementsAre("vxPlot:uniaxial"));
}

} // namespace
