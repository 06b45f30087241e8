#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using vxtest::Outcome;
using vxtest::vxmat;
using vxtest::vxmatJson;

TEST(Units, ListsSystemsAndQuantities)
{
    const Outcome run = vxmat({"units"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr("mm-t-s     mm      t           s     K            A\n"));
    EXPECT_THAT(run.out, HasSubstr("in-lbf-s   in      lbf s^2/in  s     degF         A\n"));
    EXPECT_THAT(run.out,
                ContainsRegex("Density +rho +kg/m\\^3 +t/mm\\^3 +kg/mm\\^3 +g/cm\\^3 +slug/ft\\^3 +lbf s\\^2"));
    EXPECT_THAT(run.out, ContainsRegex("Limiting Network Stretch +HyperLNS +- +-"));
    EXPECT_THAT(run.out, ContainsRegex("Creep Modulus A +CreepA +Pa\\^-N s\\^-\\(M\\+1\\) +MPa\\^-N"));
    EXPECT_THAT(run.out, HasSubstr("(dyn/cm^2)^-N s^-(M+1)"));
    EXPECT_THAT(run.out, testing::Not(HasSubstr("Yield type"))) << "a word has no unit";
}

TEST(Units, ListsASystemOfTheUserToo)
{
    const Outcome run = vxmat({"units", "length cm, mass g, time us"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("own        cm      g           us    K            A\n"));
    const Json::Value json = vxmatJson({"units", "length cm, mass g, time us", "--json"});
    ASSERT_EQ(json["systems"].size(), 7U);
    EXPECT_EQ(json["systems"][6]["system"], "length cm, mass g, time us, temperature K, current A");
    EXPECT_EQ(json["systems"][6]["base"]["time"], "us");
    EXPECT_EQ(json["quantities"][0]["units"]["length cm, mass g, time us, temperature K, current A"], "g/cm^3");
    EXPECT_EQ(json["quantities"][0]["meaning"], "mass per volume");
}

TEST(Units, RefusesATextThatIsNoSystem)
{
    const Outcome run = vxmat({"units", "length kg, mass g, time s"});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("\"kg\" measures mass; length needs a unit such as m."));
}

} // namespace
