#include "DataFile.h"
#include "FitTesting.h"
#include "SchemaJudge.h"

#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectStore.h"

#include <QProcess>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

using testing::AllOf;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using vxtest::constantOf;
using vxtest::Fit;
using vxtest::fitJson;
using vxtest::neoHookean;
using vxtest::Outcome;
using vxtest::tensileTest;
using vxtest::vxmat;

constexpr const char* header = "stretch,nominal stress [MPa]\n";

TEST_F(Fit, FindsTheConstantsThatMadeTheData)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const Json::Value json = fitJson({"uniaxial=" + data, "--model", "neo-hooke"});
    ASSERT_EQ(json["fits"].size(), 1U);
    const Json::Value& fit = json["fits"][0];
    EXPECT_EQ(fit["model"].asString(), "neo-hooke");
    EXPECT_EQ(fit["status"].asString(), "done");
    EXPECT_THAT(constantOf(fit, "C10")["value"].asDouble(), DoubleNear(0.3e6, 1.0));
    EXPECT_EQ(constantOf(fit, "C10")["id"].asInt(), 26);
    EXPECT_GT(fit["r_squared"].asDouble(), 0.999999);
    EXPECT_EQ(json["tests"][0]["points"].asInt(), 10);
    EXPECT_EQ(json["tests"][0]["x"]["measure"].asString(), "stretch");
    EXPECT_EQ(json["tests"][0]["y"]["unit"].asString(), "MPa");
    EXPECT_TRUE(json["written"].isNull());
    EXPECT_THAT(
        constantOf(fitJson({data, "--mode", "uniaxial", "--model", "neo-hooke", "--units", "mm-t-s"})["fits"][0],
                   "C10")["value"]
            .asDouble(),
        DoubleNear(0.3, 1e-6));
}

TEST_F(Fit, AloneLoadsTheSolver)
{
    // With this variable, the loader reports each library that it loads.
    const auto loaded = [](const std::string& arguments) {
        const Outcome run = vxtest::shell("LD_DEBUG=files \"$VXMAT\" " + arguments + " 2>&1");
        EXPECT_EQ(run.status, 0);
        return run.out;
    };
    for (const char* const arguments :
         {"--version", "show air", "curve 'Elastomer 2 (Mooney-Rivlin)' --mode uniaxial --at 1,2"})
        EXPECT_THAT(loaded(arguments), AllOf(HasSubstr("libvxMaterialConstitutive"), Not(HasSubstr("glog")),
                                             Not(HasSubstr("LeastSquaresSolver"))));
    const std::string data = file("a.csv", neoHookean(0.3, header));
    EXPECT_THAT(loaded("fit uniaxial=" + data + " --model neo-hooke"), Not(HasSubstr("LeastSquaresSolver"))); // linear
    EXPECT_THAT(loaded("fit uniaxial=" + data + " --model arruda-boyce"), HasSubstr("libvxLeastSquaresSolver.so"));
}

TEST_F(Fit, SaysThatTheLibraryOfTheSolverIsMissing)
{
    const std::string fits = "libvxMaterialConstitutive.so";
    ASSERT_EQ(vxtest::shell("cp \"$(dirname \"$VXMAT\")\"/../lib/" + fits + ".* '" + folder().path("") + "'").status,
              0);
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const Outcome run = vxtest::shell("LD_LIBRARY_PATH='" + folder().path("") + "' \"$VXMAT\" fit uniaxial=" + data +
                                      " --model arruda-boyce");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, AllOf(HasSubstr("Arruda-Boyce: the library of the solver cannot be loaded: "),
                               HasSubstr("libvxLeastSquaresSolver.so")));
}

TEST_F(Fit, PrintsWhatWasUnderstoodAndTheModelsSideBySide)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const Outcome run = vxmat({"fit", "uniaxial=" + data, "--model", "all", "--units", "mm-t-s"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, StartsWith("a.csv: uniaxial tension and compression, 10 points; column \"stretch\" is the "
                                    "stretch in 1, column \"nominal stress\" is the nominal stress in MPa\n"));
    for (const char* const part : {"neo-hooke", "mooney-rivlin", "mooney-rivlin-c11", "arruda-boyce", "C10 [MPa]",
                                   "lm [1]", "residual", "R2", "relative error, ", "stable, equibiaxial"})
        EXPECT_THAT(run.out, HasSubstr(part));
}

/// A fit into a library rubber whose D1 would make the fitted one as compressible as a gas.
class FitIntoSoftRubber : public Fit
{
protected:
    FitIntoSoftRubber() { EXPECT_EQ(vxmat({"new", "Elastomer 2 (Mooney-Rivlin)=Seal", "-o", m_project}).status, 0); }

    Outcome fitInto(std::vector<std::string> more = {}) const
    {
        const std::string data = file("a.csv", neoHookean(0.5, header)); // the shear modulus is 1 MPa
        std::vector<std::string> arguments{"fit",    "uniaxial=" + data, "--model", "neo-hooke",
                                           "--into", m_project,          "--as",    "Seal"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return vxmat(arguments);
    }

    /// Returns the line of D1 that `show` prints; empty if there is none.
    std::string d1() const
    {
        const std::string text = vxmat({"show", m_project}).out;
        const std::size_t at = text.find("Incompressibility Parameter D1");
        return at == std::string::npos ? std::string() : text.substr(at, text.find('\n', at) - at);
    }

    /// Returns the number in the line of D1; 0 if there is none.
    double d1Value() const
    {
        const std::string line = d1();
        const std::size_t at = line.find("D1  ");
        return at == std::string::npos ? 0.0 : std::stod(line.substr(at + 4));
    }

    Outcome check() const { return vxmat({"check", m_project}); }

private:
    std::string m_project = folder().path("soft.vxmat");
};

TEST_F(FitIntoSoftRubber, ReplacesAD1ThatContradictsTheFitAndSaysSo)
{
    ASSERT_THAT(d1(), HasSubstr("0.0789"));
    const Outcome run = fitInto();
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.err, AllOf(HasSubstr("Seal: The fit is incompressible, but the D1 of the material contradicts it"),
                               HasSubstr("2.53e-05 times the shear modulus"),
                               HasSubstr("the bulk modulus is 500 times the shear modulus; --d1 keep")));
    EXPECT_THAT(d1Value(), DoubleNear(4e-9, 1e-14)); // K0 = 500 MPa
}

TEST_F(FitIntoSoftRubber, RemovesD1OnRequestAndSaysThatTheCheckMissesIt)
{
    EXPECT_THAT(fitInto({"--d1", "remove"}).err, HasSubstr("D1 is removed, and the check then reports"));
    EXPECT_EQ(d1(), "");
    EXPECT_THAT(check().out, HasSubstr("Incompressibility Parameter D1"));
}

TEST_F(FitIntoSoftRubber, KeepsOrSetsD1IfTheUserSaysSo)
{
    const Outcome kept = fitInto({"--d1", "keep"});
    EXPECT_EQ(kept.status, 0);
    EXPECT_THAT(kept.err, HasSubstr("D1 is kept"));
    EXPECT_THAT(d1(), HasSubstr("0.0789"));
    EXPECT_EQ(fitInto({"--d1", "100"}).status, 0);
    EXPECT_THAT(d1Value(), DoubleNear(2e-8, 1e-13)); // K0 = 100 MPa
}

/// The shear modulus is 1 MPa, so a bulk modulus of 500 MPa is D1 = 2/K0 = 4e-9 1/Pa.
TEST_F(FitIntoSoftRubber, GivesANewMaterialTheD1ThatTheCheckNeedsAndSaysSo)
{
    ASSERT_EQ(fitInto({"--d1", "remove"}).status, 0);
    ASSERT_EQ(d1(), "");
    const Outcome without = fitInto({"--d1", "keep"});
    EXPECT_THAT(without.err,
                HasSubstr("Seal: The fit is incompressible, and the material has no D1. It stays without D1, "
                          "and the check then reports that D1 is missing"));
    EXPECT_EQ(d1(), "");
    const Outcome usual = fitInto();
    EXPECT_THAT(usual.err,
                HasSubstr("Seal: The fit is incompressible, and the material has no D1. D1 is set such that the "
                          "bulk modulus is 500 times the shear modulus; --d1 RATIO sets another one"));
    EXPECT_THAT(d1Value(), DoubleNear(4e-9, 1e-14));
    EXPECT_THAT(check().out, Not(HasSubstr("Incompressibility Parameter D1")));
}

TEST_F(FitIntoSoftRubber, RefusesARatioThatIsNoneAndD1WithoutAProject)
{
    EXPECT_EQ(fitInto({"--d1", "0"}).status, 2);
    EXPECT_EQ(fitInto({"--d1", "soft"}).status, 2);
    const std::string data = file("a.csv", neoHookean(0.5, header));
    const Outcome run = vxmat({"fit", "uniaxial=" + data, "--model", "neo-hooke", "--d1", "keep"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("--d1 belongs to --into"));
}

TEST_F(Fit, RanksTheModelsOfPublishedTests)
{
    const auto test = [](const char* mode) {
        return std::string(mode) + "=" + vxtest::dataPath("rubber/treloar-" + std::string(mode) + ".csv");
    };
    const Json::Value json = fitJson({test("uniaxial"), test("equibiaxial"), test("planar"), "--model", "all"});
    ASSERT_EQ(json["fits"].size(), 4U);
    double last = -1e9;
    for (const Json::Value& fit : json["fits"]) {
        EXPECT_GE(fit["criterion"].asDouble(), last);
        last = fit["criterion"].asDouble();
        EXPECT_EQ(fit["tests"].size(), 3U);
    }
    EXPECT_EQ(json["fits"][0]["model"].asString(), "arruda-boyce") << "the only model that stiffens at large stretches";
    // The Gaussian theory of this rubber has a shear modulus of 0.39 MPa, twice C10, at small stretches.
    const auto neoHooke = std::find_if(json["fits"].begin(), json["fits"].end(),
                                       [](const Json::Value& fit) { return fit["model"].asString() == "neo-hooke"; });
    ASSERT_NE(neoHooke, json["fits"].end());
    EXPECT_THAT(constantOf(*neoHooke, "C10")["value"].asDouble(), DoubleNear(0.195e6, 0.02e6));
}

TEST_F(Fit, HasFindingsInTheUnitsOfTheOption)
{
    const std::string data = file("a.csv", neoHookean(0.3, header)); // C10 is 0.3 MPa
    const auto errors = [&](const std::string& system) {
        return vxmat({"fit", "uniaxial=" + data, "--model", "neo-hooke", "--bound", "C10=0:100 kPa", "--units", system})
            .err;
    };
    EXPECT_THAT(errors("SI"), HasSubstr("C10 is at its bound 100000 Pa."));
    EXPECT_THAT(errors("mm-t-s"), HasSubstr("C10 is at its bound 0.1 MPa."));
    const std::string creep = file("creep.csv", "time [s],creep strain [1]\n1,0.1\n2,0.2\n3,0.3\n4,0.4\n");
    EXPECT_THAT(vxmat({"fit", "creep=" + creep, "--model", "norton", "--stress", "5 MPa", "--units", "mm-t-s"}).out,
                HasSubstr("creep.csv: creep at 5 MPa, 4 points"));
}

TEST_F(Fit, SaysWhichOptionGivesWhatTheFileDoesNotTell)
{
    const std::string noUnit = file("unit.csv", neoHookean(0.3, "stretch,nominal stress\n"));
    const Outcome unit = vxmat({"fit", "uniaxial=" + noUnit, "--model", "neo-hooke"});
    EXPECT_EQ(unit.status, 2);
    EXPECT_EQ(unit.out, "");
    EXPECT_THAT(unit.err, AllOf(HasSubstr("Column \"nominal stress\" has no unit"),
                                HasSubstr(noUnit + ": --y-unit gives the unit of the column")));
    for (const std::string& option : {std::string("MPa"), noUnit + "=MPa", std::string("uniaxial=MPa"),
                                      std::string("1=MPa"), "uniaxial=" + noUnit + "=MPa"})
        EXPECT_EQ(vxmat({"fit", "uniaxial=" + noUnit, "--model", "neo-hooke", "--y-unit", option}).status, 0) << option;

    const std::string noHeader = file("header.csv", neoHookean(0.3, ""));
    const Outcome measure = vxmat({"fit", "uniaxial=" + noHeader, "--model", "neo-hooke"});
    EXPECT_EQ(measure.status, 2);
    EXPECT_THAT(measure.err,
                AllOf(HasSubstr("--x-measure gives what is measured: stretch, engineering-strain, true-strain"),
                      HasSubstr("--y-measure gives what is measured: nominal-stress, true-stress")));
    EXPECT_EQ(vxmat({"fit", "uniaxial=" + noHeader, "--model", "neo-hooke", "--x-measure", "stretch", "--y-measure",
                     "nominal-stress", "--y-unit", "MPa"})
                  .status,
              0);

    const std::string odd = file("odd.csv", "a [1],b [MPa],c [MPa]\n1.1,1,2\n1.2,2,3\n1.3,3,4\n");
    const Outcome column = vxmat({"fit", "uniaxial=" + odd, "--model", "neo-hooke"});
    EXPECT_EQ(column.status, 2);
    EXPECT_THAT(column.err, HasSubstr("--x-column gives the column by its name or number: 1 \"a\", 2 \"b\", 3 \"c\""));
    const Json::Value json = fitJson({"uniaxial=" + odd, "--model", "neo-hooke", "--x-column", "A", "--x-measure",
                                      "stretch", "--y-column", "3", "--y-measure", "nominal-stress"});
    EXPECT_EQ(json["tests"][0]["y"]["name"].asString(), "c");

    const std::string creep = file("creep.csv", "time [h],creep strain [%]\n1,0.1\n2,0.2\n3,0.3\n4,0.4\n");
    EXPECT_THAT(vxmat({"fit", "creep=" + creep, "--model", "norton"}).err,
                HasSubstr("--stress gives the stress of the test"));
}

TEST_F(Fit, ReadsDecimalCommas)
{
    const std::string data = file("a.csv", "stretch;nominal stress [MPa]\n1,5;0,633333\n2,0;1,05\n2,5;1,404\n");
    const Json::Value json = fitJson({"uniaxial=" + data, "--model", "neo-hooke"});
    EXPECT_THAT(constantOf(json["fits"][0], "C10")["value"].asDouble(), DoubleNear(0.3e6, 1.0));
    EXPECT_EQ(json["tests"][0]["separator"].asString(), ";");
    EXPECT_EQ(json["tests"][0]["decimal_mark"].asString(), ",");
}

TEST_F(Fit, WritesTheBestModelIntoAMaterial)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const std::string target = project();
    const Outcome run = vxmat({"fit", "uniaxial=" + data, "--model", "neo-hooke", "--into", target, "--as", "Seal"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("\nSeal: neo-hooke written to " + target + "\n"));
    const auto record = projectfile::readProject(vxtest::readText(target));
    ASSERT_EQ(record.objects.size(), 1U);
    const vxMat::MaterialBase& seal = *record.objects[0].material;
    EXPECT_THAT(seal.findProperty(26)->value, DoubleNear(0.3e6, 1.0));
    EXPECT_EQ(seal.findProperty(26)->unit, "Pa");
    EXPECT_TRUE(seal.hasProperty(28)) << "the model is switched on";
    EXPECT_FALSE(seal.hasProperty(31)) << "isotropic elasticity contradicts it";
    EXPECT_TRUE(seal.hasProperty(4)) << "the density stays";
    EXPECT_EQ(vxmat({"cards", target}).status, 0);
}

TEST_F(Fit, KeepsTheTestsAndHowTheModelWasFittedBesideTheMaterial)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const std::string other = file("b.csv", neoHookean(0.4, header));
    const std::string target = project();
    const auto fit = [&](const std::string& test, const char* model) {
        EXPECT_EQ(vxmat({"fit", "uniaxial=" + test, "--model", model, "--into", target, "--as", "Seal"}).status, 0);
        const auto record = projectfile::readProject(vxtest::readText(target));
        return vxjson::readJsonText(record.objects[0].settings.at("measurements")).document;
    };
    const Json::Value first = fit(data, "neo-hooke");
    ASSERT_EQ(first["tests"].size(), 1U);
    EXPECT_EQ(first["tests"][0]["name"].asString(), "a.csv");
    EXPECT_EQ(first["tests"][0]["mode"].asString(), "uniaxial");
    ASSERT_EQ(first["tests"][0]["abscissas"].size(), 10U);
    EXPECT_DOUBLE_EQ(first["tests"][0]["abscissas"][0].asDouble(), 1.1);
    ASSERT_EQ(first["fits"].size(), 1U);
    EXPECT_EQ(first["fits"][0]["model"].asString(), "Neo-Hookean");
    EXPECT_EQ(first["fits"][0]["stability"].asString(), "over-data");
    const Json::Value again = fit(data, "mooney-rivlin");
    EXPECT_EQ(again["tests"].size(), 1U) << "a test of the same name is replaced";
    EXPECT_EQ(again["fits"].size(), 2U);
    const Json::Value more = fit(other, "neo-hooke");
    EXPECT_EQ(more["tests"].size(), 2U);
    EXPECT_EQ(more["fits"].size(), 3U);
}

TEST_F(Fit, DoesNotReplaceMeasurementsThatItCannotRead)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const std::string target = project();
    projectfile::ProjectRecord record = projectfile::readProject(vxtest::readText(target));
    record.objects[0].settings["measurements"] = "{";
    const std::string text = projectfile::writeProject(record);
    file("p.vxmat", text);
    const Outcome run = vxmat({"fit", "uniaxial=" + data, "--model", "neo-hooke", "--into", target, "--as", "Seal"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("p.vxmat: the measurements of Seal cannot be read: "));
    EXPECT_EQ(vxtest::readText(target), text);
}

TEST_F(Fit, AddsTheMaterialIfTheProjectDoesNotHaveIt)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const std::string target = project();
    const Outcome run = vxmat({"fit", "uniaxial=" + data, "--model", "neo-hooke", "--into", target, "--as", "New"});
    EXPECT_EQ(run.status, 0) << run.err;
    const auto record = projectfile::readProject(vxtest::readText(target));
    ASSERT_EQ(record.objects.size(), 2U);
    EXPECT_EQ(record.objects[1].label, "New");
    EXPECT_EQ(record.objects[1].objectId, 2U);
    EXPECT_EQ(record.nextObjectId, 3U);
    EXPECT_TRUE(record.doubts.empty());
    EXPECT_EQ(record.objects[0].material->hasProperty(26), false) << "other materials stay as they are";
    EXPECT_EQ(vxtest::faultsBySchema("project-file.schema.json", {target}), "");
}

TEST_F(Fit, WritesNothingIfTheProjectIsOpenElsewhere)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const std::string target = project();
    const std::string before = vxtest::readText(target);
    projectfile::FileLock lock(QString::fromStdString(target));
    ASSERT_TRUE(lock.tryLock());
    const Outcome run = vxmat({"fit", "uniaxial=" + data, "--model", "neo-hooke", "--into", target, "--as", "Seal"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("another program has it open"));
    EXPECT_EQ(vxtest::readText(target), before);
}

TEST_F(Fit, WritesNothingIfTheConstantsAreOfNoUse)
{
    const std::string data = file("a.csv", "stretch,nominal stress [MPa]\n1.1,-1\n1.2,-2\n1.3,-3\n1.4,-4\n");
    const std::string target = project();
    const std::string before = vxtest::readText(target);
    for (const char* const model : {"mooney-rivlin", "neo-hooke"}) {
        const Outcome run = vxmat({"fit", "uniaxial=" + data, "--model", model, "--into", target, "--as", "Seal"});
        EXPECT_EQ(run.status, 1) << run.out;
        EXPECT_THAT(run.out, Not(HasSubstr("written")));
        EXPECT_THAT(run.err, HasSubstr("vxmat: no model with constants that a solver can use could be fitted\n"));
        EXPECT_EQ(vxtest::readText(target), before);
    }
    const Outcome failed = vxmat({"fit", "uniaxial=" + data, "--model", "mooney-rivlin"});
    EXPECT_THAT(failed.out, HasSubstr("mooney-rivlin (failed)"));
    EXPECT_THAT(failed.err, HasSubstr("no constants of a stable material come near"));
}

TEST_F(Fit, PrintsEstimatesWithTheDigitsThatTheirErrorsJustify)
{
    const std::string data =
        file("a.csv", "amount of shear [1],stress [MPa]\n0.1,0.0602\n0.2,0.1194\n0.3,0.1807\n0.4,0.2389\n");
    const Outcome run = vxmat({"fit", "simple-shear=" + data, "--model", "neo-hooke", "--units", "mm-t-s"});
    // 2 C10 = sum(g tau) / sum(g^2) = 0.179670/0.3, by hand
    EXPECT_THAT(run.out, HasSubstr("0.29945 \xC2\xB1 0.00069"));
    const Json::Value fit = fitJson({"simple-shear=" + data, "--model", "neo-hooke", "--units", "mm-t-s"})["fits"][0];
    EXPECT_THAT(constantOf(fit, "C10")["value"].asDouble(), DoubleNear(0.29945, 1e-10)) << "full precision";
}

TEST_F(Fit, FindsNortonsConstantsFromRates)
{
    // rate = 1e-20 s^3 in Pa and s
    const std::string data = file("rates.csv", "stress [MPa],strain rate [1/s]\n10,10\n20,80\n30,270\n40,640\n");
    const Json::Value json = fitJson({"creep-rate=" + data, "--model", "norton", "--units", "mm-t-s"});
    EXPECT_THAT(constantOf(json["fits"][0], "n")["value"].asDouble(), DoubleNear(3.0, 1e-6));
    EXPECT_THAT(constantOf(json["fits"][0], "A")["value"].asDouble(), DoubleNear(1e-2, 1e-7));
    EXPECT_THAT(constantOf(json["fits"][0], "A")["unit"].asString(), HasSubstr("MPa"));
}

TEST_F(Fit, ReadsCreepCurvesAtSeveralStressesFromOneFile)
{
    // strain = 1e-9 (s/MPa)^3 t in h
    std::string table = "Time [h],Strain [1],Stress [MPa]\n";
    for (const int stress : {50, 100}) {
        for (int hours = 0; hours <= 4; ++hours)
            table += std::to_string(hours) + "," + std::to_string(1e-9 * stress * stress * stress * hours) + "," +
                     std::to_string(stress) + "\n";
    }
    const std::string data = file("creep.csv", table);
    const Outcome run = vxmat({"fit", "creep=" + data, "--model", "norton", "--bound", "m=0", "--units", "mm-t-s"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_THAT(run.out,
                HasSubstr("creep.csv (50 MPa): creep at 50 MPa, 5 points; column \"Time\" is the time in h, column "
                          "\"Strain\" is the creep strain in 1, column \"Stress\" is the stress in MPa\n"
                          "creep.csv (100 MPa): creep at 100 MPa, 5 points"));
    const Json::Value json = fitJson({"creep=" + data, "--model", "norton", "--bound", "m=0"});
    EXPECT_THAT(constantOf(json["fits"][0], "n")["value"].asDouble(), DoubleNear(3.0, 1e-3));
    ASSERT_EQ(json["tests"].size(), 2U);
    EXPECT_EQ(json["tests"][1]["stress"].asDouble(), 1e8);
    EXPECT_EQ(json["tests"][1]["stress_column"]["name"].asString(), "Stress");
    const Json::Value one = fitJson({"creep=" + data, "--model", "norton", "--stress", "100 MPa", "--bound", "n=3"});
    ASSERT_EQ(one["tests"].size(), 1U);
    EXPECT_EQ(one["tests"][0]["points"].asInt(), 5);
}

TEST_F(Fit, FindsRelaxation)
{
    std::string text = "time [s],modulus [MPa]\n";
    for (int i = 0; i <= 20; ++i)
        text += std::to_string(i) + "," + std::to_string(2.0 * (0.6 + 0.4 * std::exp(-i / 5.0))) + "\n";
    const Json::Value json = fitJson({"relaxation=" + file("r.csv", text), "--model", "visco-elasticity"});
    EXPECT_THAT(constantOf(json["fits"][0], "g")["value"].asDouble(), DoubleNear(0.4, 1e-5));
    EXPECT_THAT(constantOf(json["fits"][0], "tau")["value"].asDouble(), DoubleNear(5.0, 1e-3));
    EXPECT_TRUE(constantOf(json["fits"][0], "G0")["id"].isNull());
}

TEST_F(Fit, HoldsAConstantAtItsBounds)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const Json::Value fixed =
        fitJson({"uniaxial=" + data, "--model", "mooney-rivlin", "--bound", "C01=0.05 MPa"})["fits"][0];
    EXPECT_THAT(constantOf(fixed, "C01")["value"].asDouble(), DoubleNear(5e4, 1e-3));
    EXPECT_EQ(constantOf(fixed, "C01")["determination"].asString(), "fixed");
    const Json::Value bounded =
        fitJson({"uniaxial=" + data, "--model", "neo-hooke", "--bound", "C10=0:0.2 MPa"})["fits"][0];
    EXPECT_THAT(constantOf(bounded, "C10")["value"].asDouble(), DoubleNear(2e5, 1.0));
    EXPECT_EQ(constantOf(bounded, "C10")["determination"].asString(), "at-bound");
}

TEST_F(Fit, RefusesAWrongCommandLine)
{
    const std::string data = file("a.csv", neoHookean(0.3, header));
    const std::string uniaxial = "uniaxial=" + data;
    const std::string text = file("t.csv", "a\nb\n");
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{data, "--model", "all"}, data + ": say which test this is: --mode MODE or MODE=" + data},
        {{data, "--mode", "torsion", "--model", "all"}, "--mode: \"torsion\" is not a test; the tests are uniaxial"},
        {{"dynamic=" + data, "--model", "all"}, "dynamic=" + data + ": \"dynamic\" is not a test"},
        {{"uniaxal=" + data, "--model", "all"}, "uniaxal=" + data + ": \"uniaxal\" is not a test"},
        {{uniaxial, "--model", "ogden"}, "--model: \"ogden\" is not a model that can be fitted; possible are all, neo"},
        {{uniaxial, "--model", "norton"}, "--model norton: this model is fitted to these tests: creep, creep-rate"},
        {{uniaxial, "relaxation=" + data, "--model", "all", "--x-measure", "relaxation=time", "--y-measure",
          "relaxation=modulus", "--x-unit", "relaxation=s", "--y-unit", "MPa", "--x-column", "relaxation=1",
          "--y-column", "relaxation=2"},
         "uniaxial and relaxation tests have no model in common"},
        {{uniaxial, "--model", "all", "--stable", "always"}, "--stable: \"always\" is not one of data, none, FROM:TO"},
        {{uniaxial, "--model", "all", "--stable", "2:1"}, "--stable: the stretches must be greater than 0 and rise"},
        {{uniaxial, "--model", "all", "--error", "small"}, "--error: \"small\" is not one of largest, each, absolute"},
        {{uniaxial, "--model", "all", "--bound", "C10"}, "--bound: \"C10\" must have the form"},
        {{uniaxial, "--model", "all", "--bound", "n=3"},
         "--bound: \"n\" is not a constant of these models; they have C10"},
        {{uniaxial, "--model", "all", "--bound", "C10=2:1"}, "--bound: C10: the lower bound is above the upper one"},
        {{uniaxial, "--model", "all", "--bound", "C10=1 kg"}, "--bound: C10: "},
        {{uniaxial, "--model", "all", "--offset", "0.1"}, "--offset has no effect on these models"},
        {{uniaxial, "--model", "all", "--weight", "-1"}, "--weight: a weight is at least 0"},
        {{"creep=" + data, "creep=" + data, "--model", "norton", "--stress", "50 MPa", "--stress", "80 MPa"},
         "--stress: \"50 MPa\" and \"80 MPa\" are both for all tests; say for which test each is, such as --stress "
         "\"1="},
        {{uniaxial, "--model", "all", "--y-unit", "MPa", "--y-unit", "kPa"}, "--y-unit: \"MPa\" and \"kPa\" are both"},
        {{uniaxial, "--model", "all", "--separator", "dot"}, "--separator: \"dot\" is not one of comma, semicolon"},
        {{uniaxial, "--model", "all", "--x-column", "7"},
         "--x-column: there is no column \"7\"; the columns are 1 \"str"},
        {{uniaxial, "--model", "all", "--x-measure", "time"}, "--x-measure: \"time\" is not measured in this test"},
        {{uniaxial, "--model", "all", "--into", "x.vxmat"}, "--into and --as belong together"},
        {{uniaxial, "--model", "all", "--into", "/no/x.vxmat", "--as", "a"}, "/no/x.vxmat: No such file or directory"},
        {{uniaxial, "--model", "all", "--into", data, "--as", "a"}, data + ": is not a project file"},
        {{"uniaxial=/tmp", "--model", "all"}, "/tmp: Is a directory"},
        {{"uniaxial=/dev/null", "--model", "all"}, "/dev/null: this is a device or a pipe"},
        {{"uniaxial=/no/a.csv", "--model", "all"}, "/no/a.csv: No such file or directory"},
        {{"uniaxial=" + text, "--model", "all"}, "two numbers"},
    };
    for (const auto& [more, reason] : cases) {
        std::vector<std::string> arguments{"fit"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        const Outcome run = vxmat(arguments);
        EXPECT_EQ(run.status, 2) << reason;
        EXPECT_EQ(run.out, "") << reason;
        EXPECT_THAT(run.err, AllOf(StartsWith("vxmat: "), HasSubstr(reason)));
    }
}

TEST_F(Fit, ReadsALongTableFromStandardInput)
{
    std::string text = header;
    for (int i = 0; i < 100000; ++i)
        text += "1.5,0.633333333333\n2.0,1.05\n";
    const Outcome run = vxmat({"fit", "-", "--mode", "uniaxial", "--model", "neo-hooke", "--json"}, text);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(vxjson::readJsonText(run.out).document["tests"][0]["points"].asInt(), 200000);
}

TEST_F(Fit, PrintsJsonThatFitsItsSchema)
{
    const std::string rubber = file("a.csv", neoHookean(0.3, header));
    const std::string metal = file("b.csv", tensileTest());
    const std::string rates = file("c.csv", "stress [MPa],strain rate [1/h]\n10,1e-6\n20,8e-6\n30,2.7e-5\n40,6.4e-5\n");
    const std::string creep =
        file("d.csv", "time [h],strain [%],stress [MPa]\n1,0.1,10\n2,0.2,10\n1,0.8,20\n2,1.6,20\n");
    const std::string target = project();
    std::vector<std::string> files;
    for (const std::vector<std::string>& run : std::vector<std::vector<std::string>>{
             {"uniaxial=" + rubber, "--model", "all"},
             {"uniaxial=" + rubber, "--model", "neo-hooke", "--into", target, "--as", "Seal"},
             {"tensile=" + metal, "--model", "all", "--youngs-modulus", "200 GPa"},
             {"creep-rate=" + rates, "--model", "all"},
             {"creep=" + creep, "--model", "all"}})
    {
        std::vector<std::string> arguments{"fit"};
        arguments.insert(arguments.end(), run.begin(), run.end());
        arguments.emplace_back("--json");
        const Outcome outcome = vxmat(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        files.push_back(file("out" + std::to_string(files.size()) + ".json", outcome.out));
    }
    EXPECT_EQ(vxtest::faultsBySchema("fit.schema.json", files), "");
}

/// A terminal that a program can use as its standard error.
class Terminal
{
public:
    Terminal() : m_master(posix_openpt(O_RDWR | O_NOCTTY))
    {
        EXPECT_EQ(grantpt(m_master), 0);
        EXPECT_EQ(unlockpt(m_master), 0);
        m_slave = open(ptsname(m_master), O_RDWR | O_NOCTTY); // keeps the terminal open before and after the program
    }
    ~Terminal()
    {
        close(m_slave);
        close(m_master);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    QString path() const { return QString::fromLocal8Bit(ptsname(m_master)); }

    /// Waits until the program has written something.
    std::string read() const
    {
        std::string text(4096, '\0');
        const ssize_t count = ::read(m_master, text.data(), text.size());
        text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
        return text;
    }

private:
    int m_master;
    int m_slave = -1;
};

TEST_F(Fit, ShowsProgressOnATerminalAndEndsOnCtrlCWithoutWriting)
{
    // Tests of many points, and models that start from many places: this takes much longer than a signal.
    const std::string data = file("a.csv", [] {
        std::string text = header;
        for (int i = 0; i < 4000; ++i) {
            const double stretch = 1.0 + 0.001 * i;
            text += std::to_string(stretch) + "," + std::to_string(std::sin(40.0 * stretch) + stretch) + "\n";
        }
        return text;
    }());
    const std::string target = project();
    const std::string before = vxtest::readText(target);
    QStringList arguments{QStringLiteral("fit")};
    for (int i = 0; i < 40; ++i)
        arguments << QString::fromStdString("uniaxial=" + data);
    arguments << QStringLiteral("--model") << QStringLiteral("all") << QStringLiteral("--into")
              << QString::fromStdString(target) << QStringLiteral("--as") << QStringLiteral("Seal");

    const Terminal terminal;
    QProcess process;
    process.setStandardErrorFile(terminal.path());
    process.start(QStringLiteral(VXMAT_PROGRAM), arguments);
    ASSERT_TRUE(process.waitForStarted());
    std::string shown;
    while (shown.find(" %") == std::string::npos)
        shown += terminal.read();
    EXPECT_THAT(shown, HasSubstr("Neo-Hookean: 0 %"));
    ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    ASSERT_TRUE(process.waitForFinished(120000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 130);
    EXPECT_EQ(process.readAllStandardOutput().toStdString(), "");
    EXPECT_EQ(vxtest::readText(target), before);
}

} // namespace
