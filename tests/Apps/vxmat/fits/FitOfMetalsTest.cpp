#include "DataFile.h"
#include "FitTesting.h"

#include "projectfile/ProjectFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::AllOf;
using testing::DoubleNear;
using testing::HasSubstr;
using testing::Not;
using vxtest::constantOf;
using vxtest::Fit;
using vxtest::fitJson;
using vxtest::Outcome;
using vxtest::tensileTest;
using vxtest::vxmat;

TEST_F(Fit, MakesHardeningCurvesOfATensileTest)
{
    const std::string data = file("pull.csv", tensileTest());
    const Json::Value json =
        fitJson({"tensile=" + data, "--model", "all", "--youngs-modulus", "200 GPa", "--units", "mm-t-s"});
    ASSERT_EQ(json["fits"].size(), 2U);
    for (const Json::Value& fit : json["fits"]) {
        if (fit["model"].asString() == "bilinear") {
            EXPECT_THAT(constantOf(fit, "sigma0")["value"].asDouble(), DoubleNear(200.0, 3.0));
            EXPECT_THAT(constantOf(fit, "H")["value"].asDouble(), DoubleNear(1000.0, 60.0));
        } else {
            EXPECT_EQ(fit["hardening"]["unit"].asString(), "MPa");
            EXPECT_EQ(fit["hardening"]["plastic_strain"].size(), fit["hardening"]["yield_stress"].size());
            EXPECT_EQ(fit["hardening"]["plastic_strain"][0].asDouble(), 0.0);
        }
    }
    const std::string target = project();
    const Outcome run = vxmat({"fit", "tensile=" + data, "--model", "multilinear", "--youngs-modulus", "200 GPa",
                               "--into", target, "--as", "Seal"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("plastic strain [1]  yield stress [Pa]"));
    const auto record = projectfile::readProject(vxtest::readText(target));
    EXPECT_EQ(record.objects[0].material->getPropertyText(37), "Multilinear");
    EXPECT_EQ(record.objects[0].material->getPropertyText(33), "Mises");
    EXPECT_GE(record.objects[0].material->getPropertyValues(38).size(), 2U);
}

/// A fit of a tensile test, whose Young's modulus is 200 GPa, into a project with a material whose modulus is 210 GPa.
class FitIntoStiffSteel : public Fit
{
protected:
    FitIntoStiffSteel() { EXPECT_EQ(vxmat({"set", m_project, "Seal", "E", "210 GPa"}).status, 0); }

    Outcome fitInto(std::vector<std::string> more = {}) const
    {
        std::vector<std::string> arguments{"fit",     "tensile=" + file("pull.csv", tensileTest(0.00005)),
                                           "--model", "bilinear",
                                           "--into",  m_project,
                                           "--as",    "Seal",
                                           "--units", "mm-t-s"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return vxmat(arguments);
    }

    double modulus() const
    {
        const auto record = projectfile::readProject(vxtest::readText(m_project));
        return record.objects.at(0).material->findProperty(5)->value;
    }

private:
    std::string m_project = project();
};

TEST_F(FitIntoStiffSteel, SaysThatAnotherModulusReplacesThatOfTheMaterial)
{
    const Outcome run = fitInto();
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.err,
                AllOf(HasSubstr("Seal: Young's modulus becomes "),
                      HasSubstr(" MPa, with which the elastic part was taken off; that of the material was 210000 "
                                "MPa (-4."),
                      HasSubstr("--youngs-modulus material")));
    EXPECT_THAT(modulus(), DoubleNear(200e9, 5e8));
    EXPECT_THAT(fitInto({"--youngs-modulus", "curve"}).err, Not(HasSubstr("becomes"))) << "it is that of the curve now";
}

TEST_F(FitIntoStiffSteel, TakesTheElasticPartOffWithTheModulusOfTheMaterialOnRequest)
{
    const Outcome run = fitInto({"--youngs-modulus", "material"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(modulus(), 210e9);
    EXPECT_THAT(run.err, AllOf(HasSubstr(" % from the given 210000 MPa, with which the elastic part is taken off."),
                               Not(HasSubstr("becomes"))));
    EXPECT_THAT(run.out, HasSubstr("E, given [MPa]"));
}

TEST_F(FitIntoStiffSteel, RefusesTheModulusOfNoMaterial)
{
    const std::string data = "tensile=" + file("pull.csv", tensileTest(0.00005));
    const Outcome none = vxmat({"fit", data, "--model", "bilinear", "--youngs-modulus", "material"});
    EXPECT_EQ(none.status, 2);
    EXPECT_THAT(none.err, HasSubstr("--youngs-modulus material: give the material with --into and --as"));
    const std::string air = folder().path("air.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", air}).status, 0);
    const Outcome lacking =
        vxmat({"fit", data, "--model", "bilinear", "--youngs-modulus", "material", "--into", air, "--as", "Air"});
    EXPECT_EQ(lacking.status, 2);
    EXPECT_THAT(lacking.err, HasSubstr("no material \"Air\" with a Young's modulus"));
}

} // namespace
