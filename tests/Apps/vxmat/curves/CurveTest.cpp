#include "DataFile.h"
#include "SchemaJudge.h"
#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>

namespace {

using testing::AllOf;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using vxtest::Folder;
using vxtest::linesOf;
using vxtest::Outcome;
using vxtest::vxmat;
using vxtest::vxmatJson;

constexpr const char* elastomer = "Elastomer 3 (Arruda-Boyce)";
constexpr const char* mooney = "Elastomer 2 (Mooney-Rivlin)";

/// Runs vxmat curve and returns the lines of its output.
std::vector<std::string> curve(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "curve");
    const Outcome run = vxmat(arguments);
    EXPECT_EQ(run.status, 0) << run.err;
    return linesOf(run.out);
}

/// Returns the numbers of a line.
std::vector<double> numbersOf(const std::string& line)
{
    std::vector<double> numbers;
    std::istringstream stream(line);
    stream.imbue(std::locale::classic());
    for (double number = 0.0; stream >> number; stream.ignore())
        numbers.push_back(number);
    return numbers;
}

/// Matches a list of numbers up to rounding.
auto near(const std::vector<double>& numbers)
{
    return testing::Pointwise(testing::DoubleNear(1e-8), numbers);
}

/// A project of one material that the test gives quantities.
class CurveOfProject : public testing::Test
{
protected:
    CurveOfProject() { EXPECT_EQ(vxmat({"new", "--empty", "Rubber", "-o", m_file}).status, 0); }

    void set(const std::string& quantity, const std::string& value) const
    {
        EXPECT_EQ(vxmat({"set", m_file, "Rubber", quantity, value}).status, 0) << quantity;
    }

    void makeNeoHookean() const
    {
        set("Neo-Hookean", "on");
        set("HyperC10", "0.5 MPa");
    }

    const std::string& file() const { return m_file; }
    const Folder& folder() const { return m_folder; }

private:
    Folder m_folder;
    std::string m_file = m_folder.path("p.vxmat");
};

TEST_F(CurveOfProject, HasOneHeaderLineAndFullPrecision)
{
    makeNeoHookean();
    // Incompressible, P = 2 C10 (l - 1/l^2): at 2 it is 2 * 0.5e6 * 1.75.
    const std::vector<std::string> lines = curve({file(), "--mode", "uniaxial", "--at", "1,2"});
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], "stretch [1],nominal stress [Pa],true stress [Pa]");
    EXPECT_EQ(lines[1], "1,0,0");
    EXPECT_THAT(numbersOf(lines[2]), near({2.0, 1750000.0, 3500000.0}));
    const std::string middle = curve({file(), "--mode", "uniaxial", "--from", "1", "--to", "2", "--points", "3"})[2];
    EXPECT_THAT(numbersOf(middle), near({1.5, 1e6 * (1.5 - 1.0 / 2.25), 1.5e6 * (1.5 - 1.0 / 2.25)}));
    EXPECT_GE(middle.size(), std::string("1.5,1055555.555555555,1583333.33333333").size());
}

TEST_F(CurveOfProject, IsInTheUnitsOfTheOption)
{
    makeNeoHookean();
    const std::vector<std::string> lines = curve({file(), "--mode", "uniaxial", "--at", "2", "--units", "mm-t-s"});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], "stretch [1],nominal stress [MPa],true stress [MPa]");
    EXPECT_THAT(numbersOf(lines[1]), near({2.0, 1.75, 3.5}));
}

TEST_F(CurveOfProject, TakesModesAndModelsInUpperCase)
{
    makeNeoHookean();
    const Outcome lower = vxmat({"curve", file(), "--mode", "uniaxial", "--model", "neo-hooke", "--at", "1, 2"});
    const Outcome upper = vxmat({"curve", file(), "--mode", "Uniaxial", "--model", "Neo-Hooke", "--at", "1, 2"});
    EXPECT_EQ(upper.status, 0) << upper.err;
    EXPECT_EQ(upper.out, lower.out);
}

TEST_F(CurveOfProject, AddsTangentsOnlyIfAsked)
{
    makeNeoHookean();
    // dP/dl = 2 C10 (1 + 2/l^3), lateral stretch 1/sqrt(l)
    const std::vector<std::string> lines = curve({file(), "--mode", "uniaxial", "--at", "4", "--full"});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0],
              "stretch [1],nominal stress [Pa],true stress [Pa],slope [Pa],lateral stretch [1],volume ratio [1]");
    EXPECT_THAT(numbersOf(lines[1]), near({4.0, 3937500.0, 15750000.0, 1031250.0, 0.5, 1.0}));
}

TEST_F(CurveOfProject, HasRoundAbscissasBetweenRoundBounds)
{
    makeNeoHookean();
    const std::vector<std::string> lines =
        curve({file(), "--mode", "uniaxial", "--from", "0.5", "--to", "3", "--points", "6"});
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_THAT(lines[3], StartsWith("1.5,"));
    EXPECT_THAT(lines[4], StartsWith("2,"));
}

TEST_F(CurveOfProject, RefusesCommasThatMayBeDecimalOnes)
{
    makeNeoHookean();
    for (const char* const list : {"1,1 , 2", "1,5; 2", "1, 2,5"}) {
        const Outcome run = vxmat({"curve", file(), "--mode", "uniaxial", "--at", list});
        EXPECT_EQ(run.status, 2);
        EXPECT_THAT(run.err, HasSubstr("--at: \"" + std::string(list) + "\" may have decimal commas"));
    }
    const Outcome twice = vxmat({"curve", file(), "--mode", "uniaxial", "--at", "1,1"});
    EXPECT_EQ(twice.status, 0);
    EXPECT_THAT(twice.err, HasSubstr("note: --at has a number twice in a row"));
    EXPECT_EQ(vxmat({"curve", file(), "--mode", "uniaxial", "--at", "1, 2,3 ,4"}).status, 2);
    EXPECT_EQ(vxmat({"curve", file(), "--mode", "uniaxial", "--at", "1,2,3"}).err, "");
}

TEST_F(CurveOfProject, SaysThatASingleCommaSeparatesTwoNumbers)
{
    makeNeoHookean();
    const Outcome run = vxmat({"curve", file(), "--mode", "uniaxial", "--at", "1,2"});
    EXPECT_EQ(linesOf(run.out).size(), 3U);
    EXPECT_THAT(run.err, HasSubstr("note: --at 1,2: these are two numbers; the decimal sign is a point"));
    for (const char* const clear : {"1, 2", "1;2", "1,2,3", "1.5,2", "2"})
        EXPECT_EQ(vxmat({"curve", file(), "--mode", "uniaxial", "--at", clear}).err, "") << clear;
}

TEST_F(CurveOfProject, HasAnExactZeroInTheMiddleOfItsRange)
{
    makeNeoHookean();
    EXPECT_THAT(curve({file(), "--mode", "simple-shear", "--from", "-0.1", "--to", "0.2", "--points", "4"})[2],
                "0,0,0");
}

TEST_F(CurveOfProject, LeavesTheCellEmptyWhereThereIsNoValueAndSaysSo)
{
    makeNeoHookean();
    const Outcome run = vxmat({"curve", file(), "--mode", "uniaxial", "--at", "0, 1, -2"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "stretch [1],nominal stress [Pa],true stress [Pa]\n0,,\n1,0,0\n-2,,\n");
    EXPECT_EQ(run.err,
              "vxmat: " + file() +
                  ": 1 Rubber: uniaxial tension and compression: the model has no value at 2 of the points. At "
                  "the first of them, the stretch is 0.\n");
}

TEST_F(CurveOfProject, IsNotWrittenIfNothingCanBeDrawn)
{
    makeNeoHookean();
    const std::string output = folder().path("c.csv");
    const Outcome outside = vxmat({"curve", file(), "--mode", "uniaxial", "--at", "0", "-o", output});
    EXPECT_EQ(outside.status, 1);
    EXPECT_EQ(outside.out, "");
    const Outcome otherMode = vxmat({"curve", file(), "--mode", "creep", "--at", "1 h", "--stress", "1 MPa"});
    EXPECT_EQ(otherMode.status, 1);
    EXPECT_EQ(otherMode.out, "");
    EXPECT_EQ(otherMode.err, "vxmat: " + file() +
                                 ": 1 Rubber: has no model with a curve in the mode creep; it has uniaxial, "
                                 "equibiaxial, planar, simple-shear, volumetric\n");
    EXPECT_THAT(folder().names(), ElementsAre("p.vxmat"));
}

TEST_F(CurveOfProject, NamesTheConstantThatIsMissing)
{
    set("Mooney-Rivlin", "on");
    set("HyperC10", "0.5 MPa");
    const Outcome run = vxmat({"curve", file(), "--mode", "uniaxial", "--at", "2"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, AllOf(HasSubstr("1 Rubber: Mooney-Rivlin: "), HasSubstr("Material Constant C01"),
                               HasSubstr("is missing")));
}

TEST_F(CurveOfProject, TellsWhereItIsUnstableAndThatItIsDrawnIncompressible)
{
    set("Mooney-Rivlin", "on");
    set("HyperC10", "0.5 MPa");
    set("HyperC01", "-0.1 MPa");
    set("HyperD1", "1e-6 1/Pa"); // K = 2 MPa, little more than the shear modulus of 0.8 MPa
    const Outcome run =
        vxmat({"curve", file(), "--mode", "equibiaxial", "--from", "1", "--to", "3", "--incompressible"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.err, AllOf(HasSubstr("the material is unstable "), HasSubstr("The curve is incompressible, but")));
}

TEST_F(CurveOfProject, AsksForTheCohesionOfAYieldSurfaceOnlyIfThereIsNone)
{
    set("Plasticity", "on");
    set("Yield type", "Mohr-Coulomb");
    set("Internal frictional angle", "30");
    std::vector<std::string> arguments{"curve", file(), "--mode", "yield", "--at", "0, 100 kPa"};
    EXPECT_THAT(vxmat(arguments).err, HasSubstr("Give a cohesion with the curve"));
    arguments.insert(arguments.end(), {"--cohesion", "20 kPa"});
    EXPECT_THAT(vxmat(arguments).err,
                AllOf(testing::Not(HasSubstr("Give a cohesion")), HasSubstr("no dilation angle")));
}

TEST_F(CurveOfProject, HasFindingsInTheUnitsOfTheOption)
{
    set("Arruda-Boyce", "on");
    set("HyperMu", "0.25 MPa");
    set("HyperLNS", "4");
    set("HyperD1", "-2 1/MPa");
    const auto findings = [&](const std::string& system) {
        return vxmat({"curve", file(), "--mode", "uniaxial", "--at", "2", "--units", system}).err;
    };
    EXPECT_THAT(findings("SI"),
                AllOf(HasSubstr("the factor of the series, is 250000 Pa."), HasSubstr("D1 is -2e-06 1/Pa.")));
    EXPECT_THAT(findings("mm-t-s"),
                AllOf(HasSubstr("the factor of the series, is 0.25 MPa."), HasSubstr("D1 is -2 1/MPa.")));
    EXPECT_THAT(vxmat({"curve", file(), "--mode", "uniaxial", "--at", "2", "--units", "mm-t-s", "--json"}).out,
                HasSubstr("the factor of the series, is 0.25 MPa."));
}

TEST_F(CurveOfProject, NumbersTheTitlesOfAFileThatIsGivenTwice)
{
    makeNeoHookean();
    EXPECT_EQ(curve({file(), file(), "--mode", "uniaxial", "--at", "1"}).front(),
              "stretch [1],Rubber (1): nominal stress [Pa],Rubber (1): true stress [Pa],Rubber (2): nominal stress "
              "[Pa],Rubber (2): true stress [Pa]");
}

TEST_F(CurveOfProject, DrawsEachModelOfAMaterialThatHasTheMode)
{
    makeNeoHookean();
    set("Isotropic elasticity", "on");
    set("E", "3 MPa");
    set("nu", "0.49");
    EXPECT_THAT(curve({file(), "--mode", "uniaxial", "--at", "1.01"}).front(),
                "stretch [1],Rubber (linear elasticity): nominal stress [Pa],Rubber (linear elasticity): true stress "
                "[Pa],Rubber (Neo-Hookean): nominal stress [Pa],Rubber (Neo-Hookean): true stress [Pa]");
    EXPECT_THAT(curve({file(), "--mode", "uniaxial", "--at", "1.01", "--model", "linear-elasticity"}),
                ElementsAre("stretch [1],nominal stress [Pa],true stress [Pa]", StartsWith("1.01,30000")));
    EXPECT_THAT(vxmat({"curve", file(), "--mode", "uniaxial", "--at", "1.01", "--model", "norton"}).err,
                HasSubstr("has no model norton with a curve in the mode uniaxial"));
}

TEST_F(CurveOfProject, SaysThatASuppressedMaterialIsDrawn)
{
    makeNeoHookean();
    std::string text = vxtest::readText(file());
    const std::string active = "\"suppressed\": false";
    ASSERT_NE(text.find(active), std::string::npos);
    text.replace(text.find(active), active.size(), "\"suppressed\": true");
    const std::string suppressed = folder().file("s.vxmat", text);
    const Outcome run = vxmat({"curve", suppressed, "--mode", "uniaxial", "--at", "2"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "vxmat: note: " + suppressed + ": 1 Rubber: is suppressed, and drawn\n");
}

TEST_F(CurveOfProject, QuotesLabelsInTheHeader)
{
    const std::string odd = folder().path("odd.vxmat");
    ASSERT_EQ(vxmat({"new", std::string(mooney) + "=a \"b\", c", std::string(mooney) + "=d", "-o", odd}).status, 0);
    EXPECT_THAT(curve({odd, "--mode", "planar", "--at", "1"}).front(),
                StartsWith(R"(stretch [1],"a ""b"", c: nominal stress [Pa]",)"));
}

TEST_F(CurveOfProject, IsOfTheChosenMaterials)
{
    const std::string two = folder().path("two.vxmat");
    ASSERT_EQ(vxmat({"new", std::string(mooney) + "=a", std::string(mooney) + "=b", "-o", two}).status, 0);
    const std::vector<std::string> both = curve({two, "--mode", "planar", "--at", "1"});
    EXPECT_EQ(both.front(), "stretch [1],a: nominal stress [Pa],a: true stress [Pa],b: nominal stress [Pa],b: true "
                            "stress [Pa]");
    for (const char* const chosen : {"b", "2"}) {
        EXPECT_EQ(curve({two, "--mode", "planar", "--at", "1", "--material", chosen}).front(),
                  "stretch [1],nominal stress [Pa],true stress [Pa]");
    }
    const Outcome unknown = vxmat({"curve", two, "--mode", "planar", "--at", "1", "--material", "c"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.err, "vxmat: --material: no file has a material with the label or number \"c\"\n");
    const std::string other = folder().path("other.vxmat");
    ASSERT_EQ(vxmat({"new", std::string(mooney) + "=a", "-o", other}).status, 0);
    EXPECT_THAT(
        curve({two, other, "--mode", "planar", "--at", "1", "--material", "a"}).front(),
        AllOf(HasSubstr(",a (" + two + "): nominal stress [Pa]"), HasSubstr(",a (" + other + "): nominal stress [Pa]")))
        << "the same label twice";
}

TEST_F(CurveOfProject, OfAnEmptyProjectIsNothing)
{
    const std::string empty =
        folder().file("empty.vxmat", R"({"format": "vxMaterial project", "format_version": 1, "name": "empty",
                           "next_object_id": 1, "record": null, "database": null, "materials": []})");
    const Outcome run = vxmat({"curve", empty, "--mode", "uniaxial", "--at", "1"});
    EXPECT_EQ(run.status, 1) << run.err;
    EXPECT_EQ(run.err, "vxmat: " + empty + ": holds no materials\n");
}

TEST(Curve, TakesAbscissasWithUnits)
{
    // Relaxation: G = G0 (1 - g + g exp(-t/tau))
    const std::vector<std::string> lines =
        curve({"Viscoelastic Example", "--mode", "relaxation", "--at", "0, 1 min, 1e-3 ks; 2"});
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0], "time [s],relaxation modulus [Pa]");
    EXPECT_THAT(lines[2], StartsWith("60,"));
    EXPECT_THAT(lines[3], StartsWith("1,"));
    EXPECT_THAT(lines[4], StartsWith("2,"));
    EXPECT_THAT(curve({"Viscoelastic Example", "--mode", "relaxation", "--at", "1000, 1 s", "--units", "mm-kg-ms"}),
                ElementsAre("time [ms],relaxation modulus [GPa]", StartsWith("1000,"), StartsWith("1000,")))
        << "numbers without a unit are in the unit system";
    EXPECT_THAT(curve({"Viscoelastic Example", "--mode", "dynamic", "--at", "1 kHz"}).back(), StartsWith("1000,"));
}

TEST(Curve, OfCreepHasAColumnForEachStress)
{
    // Creep Example: A = 1e-10, n = 5, m = 0
    const std::vector<std::string> lines =
        curve({"Creep Example", "--mode", "creep", "--at", "1 h", "--stress", "2e-6 MPa; 3"});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], "time [s],creep strain at 2 Pa [1],creep strain at 3 Pa [1]");
    double time = 0.0;
    double first = 0.0;
    double second = 0.0;
    ASSERT_EQ(std::sscanf(lines[1].c_str(), "%lf,%lf,%lf", &time, &first, &second), 3);
    EXPECT_EQ(time, 3600.0);
    EXPECT_THAT(first, DoubleNear(1e-10 * 32 * 3600, 1e-18));
    EXPECT_THAT(second, DoubleNear(1e-10 * 243 * 3600, 1e-17));
    EXPECT_EQ(curve({"Creep Example", "--mode", "creep", "--at", "1", "--stress", "100", "--units", "mm-t-s"})[0],
              "time [s],creep strain at 100 MPa [1]");
    EXPECT_THAT(curve({"Creep Example", "--mode", "creep-rate", "--at", "1", "--time", "2 min"})[0],
                "stress [Pa],creep strain rate at 120 s [1/s]");
}

TEST(Curve, HasTheModesOfAllModels)
{
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {mooney, "simple-shear", "0.5", "amount of shear [1],nominal shear stress [Pa],true shear stress [Pa]"},
        {mooney, "volumetric", "0.99", "stretch [1],nominal stress [Pa],true stress [Pa]"},
        {"Plastic Example 1", "plastic", "0.01", "plastic strain [1],true stress [Pa]"},
        {"Plastic Example 1", "tensile", "0.01", "engineering strain [1],nominal stress [Pa],true stress [Pa]"},
        {"Plastic Example 1", "yield", "0", "pressure [Pa],Mises stress [Pa]"},
        {"Viscoelastic Example", "shear-creep", "1", "time [s],creep compliance [1/Pa]"},
        {"Viscoelastic Example", "dynamic", "1",
         "frequency [Hz],storage modulus [Pa],loss modulus [Pa],loss factor [1]"},
    };
    for (const auto& [material, mode, at, header] : cases)
        EXPECT_THAT(curve({material, "--mode", mode, "--at", at}).front(), StartsWith(header)) << mode;
}

TEST(Curve, NamesTheUnitOfAnAbscissaWithoutAValue)
{
    const auto errors = [](const std::string& system) {
        return vxmat({"curve", "Creep Example", "--mode", "creep", "--at", "-1 min", "--stress", "1 Pa", "--units",
                      system})
            .err;
    };
    EXPECT_THAT(errors("SI"), HasSubstr("the time is -60 s."));
    EXPECT_THAT(errors("length mm, mass t, time min"), HasSubstr("the time is -1 min."));
}

TEST(Curve, HasAnExampleOfAMaterialOfTheLibrary)
{
    const std::string help = vxmat({"curve", "--help"}).out;
    EXPECT_THAT(help, HasSubstr("\n  vxmat curve \"" + std::string(mooney) + "\" --mode uniaxial "));
}

TEST(Curve, SpacesByEqualFactorsOnRequest)
{
    const std::vector<std::string> lines = curve(
        {"Viscoelastic Example", "--mode", "relaxation", "--from", "1", "--to", "10000", "--points", "3", "--log"});
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_THAT(lines[1], StartsWith("1,"));
    EXPECT_THAT(lines[3], StartsWith("10000,"));
    double middle = 0.0;
    ASSERT_EQ(std::sscanf(lines[2].c_str(), "%lf", &middle), 1);
    EXPECT_NEAR(middle, 100.0, 1e-10);
}

TEST(Curve, RefusesAWrongCommandLine)
{
    const std::vector<std::string> begin{"curve", elastomer, "--mode", "uniaxial"};
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{}, "vxmat: give the points of the curve: --from and --to, or --at"},
        {{"--from", "1"}, "vxmat: give the points of the curve"},
        {{"--at", "1", "--points", "3"}, "vxmat: --at gives all points; --from, --to, --points and --log"},
        {{"--at", "nan"}, "vxmat: --at: "},
        {{"--at", "inf"}, "vxmat: --at: "},
        {{"--at", "1,,2"}, "vxmat: --at: "},
        {{"--at", "1.1 MPa"}, "vxmat: --at: \"1.1 MPa\" measures pressure or stress"},
        {{"--from", "1", "--to", "2", "--points", "0"}, "vxmat: --points: a curve has 1 to 1000000 points"},
        {{"--from", "1", "--to", "2", "--points", "1000001"}, "vxmat: --points: a curve has 1 to 1000000 points"},
        {{"--from", "1", "--to", "2", "--points", "1e9"}, "vxmat: --points: \"1e9\" is not a number"},
        {{"--from", "-1", "--to", "2", "--log"}, "vxmat: --log needs bounds of the same sign"},
        {{"--at", "1", "--stress", "5"}, "vxmat: --stress belongs to --mode creep"},
        {{"--at", "1", "--model", "ogden"}, "vxmat: --model: \"ogden\" is not a model; the models are linear-elast"},
        {{"--at", "1", "--units", "mm"}, "vxmat: --units: "},
        {{"--at", "1", "-o", "c.txt"}, "vxmat: c.txt: the name of the file must end in "},
        {{"--at", "1", "Ruber"}, "vxmat: no material is called \"Ruber\""},
        {{"--at", "1", "/no/such.vxmat"}, "vxmat: /no/such.vxmat: "},
        {{"--at", "1", "/dev/null"}, "vxmat: /dev/null: this is a device or a pipe"},
        {{"--at", "1", "/tmp"}, "vxmat: /tmp: Is a directory"},
    };
    for (const auto& [more, reason] : cases) {
        std::vector<std::string> arguments = begin;
        arguments.insert(arguments.end(), more.begin(), more.end());
        const Outcome run = vxmat(arguments);
        EXPECT_EQ(run.status, 2) << reason;
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, StartsWith(reason));
    }
    EXPECT_THAT(vxmat({"curve", elastomer, "--mode", "uniaxal", "--at", "1"}).err,
                StartsWith("vxmat: --mode: \"uniaxal\" is not a mode; the modes are uniaxial, equibiaxial, planar"));
    EXPECT_EQ(vxmat({"curve", elastomer, "--at", "1"}).status, 2) << "no mode";
    EXPECT_THAT(vxmat({"curve", "Creep Example", "--mode", "creep", "--at", "1"}).err,
                StartsWith("vxmat: --mode creep: give the stress of the curve"));
}

TEST(Curve, DoesNotReplaceAFileWithoutForce)
{
    const Folder folder;
    const std::string output = folder.file("c.csv", "precious");
    const std::vector<std::string> arguments{"curve", mooney, "--mode", "planar", "--at", "1", "-o", output};
    const Outcome refused = vxmat(arguments);
    EXPECT_EQ(refused.status, 2);
    EXPECT_THAT(refused.err, HasSubstr("c.csv: this file exists already; give another name, or --force"));
    EXPECT_EQ(vxtest::readText(output), "precious");
    std::vector<std::string> forced = arguments;
    forced.emplace_back("--force");
    EXPECT_EQ(vxmat(forced).out, "");
    EXPECT_EQ(vxtest::readText(output), "stretch [1],nominal stress [Pa],true stress [Pa]\n1,0,0\n");
    EXPECT_THAT(folder.names(), ElementsAre("c.csv"));
}

TEST(Curve, IsAPictureIfTheNameOfTheFileSaysSo)
{
    const Folder folder;
    const auto draw = [&](const std::string& name) {
        const std::string path = folder.path(name);
        const Outcome run = vxmat({"curve", mooney, elastomer, "--mode", "uniaxial", "--from", "1", "--to", "2",
                                   "--units", "mm-t-s", "-o", path});
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, testing::Not(HasSubstr("QStandardPaths")));
        return vxtest::readText(path);
    };
    EXPECT_THAT(draw("c.svg"), AllOf(HasSubstr("<svg"), HasSubstr("nominal stress [MPa]"), HasSubstr(mooney)));
    EXPECT_THAT(draw("c.PNG"), StartsWith("\x89PNG\r\n"));
    EXPECT_THAT(draw("c.pdf"), StartsWith("%PDF-"));
    const Outcome again = vxmat({"curve", mooney, "--mode", "uniaxial", "--at", "1,2", "-o", folder.path("c.svg")});
    EXPECT_EQ(again.status, 2);
    EXPECT_THAT(again.err, HasSubstr("this file exists already"));
    const Outcome json =
        vxmat({"curve", mooney, "--mode", "uniaxial", "--at", "1,2", "--json", "-o", folder.path("d.svg")});
    EXPECT_EQ(json.status, 2);
    EXPECT_THAT(json.err, HasSubstr("--json writes no picture"));
}

TEST(Curve, OfAPictureHasMeasuredPointsBesideIt)
{
    const Folder folder;
    const std::string data = folder.file("pull.csv", "stretch [1],nominal stress [MPa]\n1.2,0.1\n1.5,0.3\n");
    const std::string picture = folder.path("c.svg");
    const auto run = [&](const std::string& measured) {
        return vxmat({"curve", mooney, "--mode", "uniaxial", "--from", "1", "--to", "2", "--measured", measured, "-o",
                      picture, "--force"});
    };
    EXPECT_EQ(run(data).status, 0);
    const std::string drawn = vxtest::readText(picture);
    EXPECT_THAT(drawn, HasSubstr("pull.csv"));
    EXPECT_EQ(drawn.find(mooney), drawn.rfind(mooney)); // in the legend, and not in the title too
    EXPECT_EQ(run("equibiaxial=" + data).status, 0);
    EXPECT_THAT(run("relaxation=" + data).err, HasSubstr("pull.csv"));
    EXPECT_EQ(run("relaxation=" + data).status, 2);

    const Outcome unclear = run(folder.file("b.csv", "stretch,stress\n1.2,0.1\n1.5,0.3\n"));
    EXPECT_EQ(unclear.status, 2);
    EXPECT_THAT(unclear.err, HasSubstr("--measured needs columns and units in the header"));
    const Outcome table = vxmat({"curve", mooney, "--mode", "uniaxial", "--at", "1, 2", "--measured", data});
    EXPECT_EQ(table.status, 2);
    EXPECT_THAT(table.err, HasSubstr("--measured: only a picture shows measured points"));
}

TEST(Curve, NeedsNoLibraryOfWindowsForTables)
{
    EXPECT_EQ(vxtest::shell("ldd \"$VXMAT\" | grep -c -e Widgets -e qwt").out, "0\n");
}

TEST(Curve, HasAMillionPoints)
{
    const Outcome run = vxtest::shell("\"$VXMAT\" curve 'Plastic Example 1' --mode plastic --from 0 --to 0.1 --points "
                                      "1000000 2>/dev/null | wc -l");
    EXPECT_EQ(std::stol(run.out), 1000001);
}

TEST(Curve, HasADecimalPointInEveryLocale)
{
    const Outcome run = vxtest::shell("LC_ALL=de_DE.UTF-8 LANG=de_DE.UTF-8 \"$VXMAT\" curve 'Creep Example' --mode "
                                      "creep-rate --at 1.5");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(linesOf(run.out)[1], StartsWith("1.5,"));
}

TEST(Curve, PrintsJsonThatFitsItsSchema)
{
    const Folder folder;
    std::vector<std::string> files;
    const std::vector<std::vector<std::string>> runs{
        {elastomer, mooney, "--mode", "uniaxial", "--at", "0,1,2", "--full", "--units", "mm-t-s"},
        {"Creep Example", "--mode", "creep", "--at", "1", "--stress", "1,2"},
        {"Viscoelastic Example", "--mode", "dynamic", "--at", "1"},
        {"Plastic Example 1", "--mode", "tensile", "--from", "0", "--to", "3"}};
    for (std::vector<std::string> run : runs) {
        files.push_back(folder.path(std::to_string(files.size()) + ".json"));
        run.insert(run.begin(), "curve");
        run.insert(run.end(), {"--json", "-o", files.back()});
        EXPECT_EQ(vxmat(run).status, 0);
    }
    EXPECT_EQ(vxtest::faultsBySchema("curve.schema.json", files), "");
}

TEST(Curve, HasModelConstantsAndFindingsInJson)
{
    const Folder folder;
    const std::string file = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "--empty", "Rubber", "-o", file}).status, 0);
    ASSERT_EQ(vxmat({"set", file, "Rubber", "Neo-Hookean", "on"}).status, 0);
    ASSERT_EQ(vxmat({"set", file, "Rubber", "HyperC10", "0.5 MPa"}).status, 0);
    const Json::Value json =
        vxmatJson({"curve", file, "--mode", "uniaxial", "--at", "2", "--json", "--units", "mm-t-s"});
    EXPECT_EQ(json["mode"].asString(), "uniaxial");
    EXPECT_EQ(json["units"].asString(), "mm-t-s");
    const Json::Value& drawn = json["curves"][0];
    EXPECT_EQ(drawn["material"].asString(), "Rubber");
    EXPECT_EQ(drawn["number"].asUInt(), 1U);
    EXPECT_EQ(drawn["source"].asString(), file);
    EXPECT_EQ(drawn["model"].asString(), "neo-hooke");
    EXPECT_EQ(drawn["columns"][1]["name"].asString(), "nominal stress");
    EXPECT_EQ(drawn["columns"][1]["unit"].asString(), "MPa");
    EXPECT_NEAR(drawn["columns"][1]["values"][0].asDouble(), 1.75, 1e-12);
}

} // namespace
