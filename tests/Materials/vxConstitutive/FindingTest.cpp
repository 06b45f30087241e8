#include "vxConstitutive/Finding.h"

#include <gmock/gmock.h>

#include <string>

using namespace vxConstitutive;

namespace {

/// Returns a text with its context, in place of a translation.
std::string marked(const std::string& context, const std::string& english)
{
    return context == "vxConstitutive::Word" ? "<" + english + ">" : "[" + english + "]";
}

TEST(FindingText, ArgumentsTakeTheirPlacesEvenIfTheyLookLikePlaces)
{
    Finding finding =
        makeFinding(FindingId::UnstableFrom, {std::string("uniaxial 100%2"), 1.25, std::string("stretch")});
    EXPECT_EQ(describe(finding),
              "uniaxial 100%2: the material is unstable above the stretch 1.25 by Drucker's criterion. A solver "
              "may fail there.");
    finding.arguments.pop_back();
    EXPECT_NE(describe(finding).find("above the %3 1.25 by"), std::string::npos);
}

TEST(FindingText, PercentSignsThatNameNoArgumentStay)
{
    const Finding finding = makeFinding(FindingId::SeriesFarFromLangevin, {4.0, 10.0, 0.8});
    EXPECT_EQ(describe(finding),
              "At 4, the chains are at 0.8 of their limiting stretch. The five-term series is 10 % below "
              "the inverse Langevin function.");
}

TEST(FindingText, TextAndWordsAreTranslatedInTheirOwnContexts)
{
    const Finding finding = makeFinding(FindingId::ModeNotOfModel, {std::string("simple shear"), std::string("creep")});
    EXPECT_EQ(describe(finding, marked), "[<creep> has no response in the mode <simple shear>.]");
}

TEST(FindingText, TextsOfTheUserAreNotTranslated)
{
    const Finding finding =
        makeFinding(FindingId::MeasureAssumed, {std::string("stress"), std::string("nominal stress")});
    EXPECT_EQ(describe(finding, marked),
              "[Column \"stress\" does not say whether it is true or engineering. It is taken as "
              "<nominal stress>.]");
}

TEST(FindingText, EachWordOfAListIsTranslated)
{
    const Finding finding = makeFinding(FindingId::ColumnNeeded, {std::string("stretch, true strain")});
    EXPECT_EQ(describe(finding, marked), "[No column was found for: <stretch>, <true strain>. Choose a column.]");
}

TEST(FindingText, NumbersAreInTheUnitsOfTheSystem)
{
    const auto system = *vxUnits::UnitSystem::parse("mm-t-s");
    const auto imperial = *vxUnits::UnitSystem::parse("in-lbf-s");
    const Finding moduli = makeFinding(FindingId::InitialModulusDerived, {2.5e5, 4e5});
    EXPECT_EQ(describe(moduli), "Mu, the factor of the series, is 250000 Pa. The initial shear modulus is 400000 Pa.");
    EXPECT_EQ(describe(moduli, {}, system),
              "Mu, the factor of the series, is 0.25 MPa. The initial shear modulus is 0.4 MPa.");
    // 1 psi is 6894.757293168 Pa.
    EXPECT_EQ(describe(makeFinding(FindingId::NoYieldBeyondApex, {-6894757.293168}), {}, imperial),
              "There is no yield surface below the pressure -1000 psi, which is its apex.");
    EXPECT_EQ(describe(makeFinding(FindingId::D1Negative, {std::string("Neo-Hooke"), -2e-6}), {}, system),
              "Neo-Hooke: D1 is -2 1/MPa. A bulk modulus cannot be negative. The curve is incompressible.");
    EXPECT_EQ(describe(moduli, marked, system),
              "[Mu, the factor of the series, is <0.25> MPa. The initial shear modulus is <0.4> MPa.]");
}

TEST(FindingText, AnAbscissaHasItsUnit)
{
    const auto system = *vxUnits::UnitSystem::parse("mm-kg-ms");
    const Finding time = makeFinding(FindingId::AbscissaOutside, {std::string("time"), 0.5, 3.0, std::string("creep")});
    EXPECT_THAT(describe(time), testing::EndsWith("the time is 0.5 s."));
    EXPECT_THAT(describe(time, {}, system), testing::EndsWith("the time is 500 ms."));
}

TEST(FindingText, OnlyErrorsAreErrors)
{
    EXPECT_FALSE(hasError({}));
    EXPECT_FALSE(hasError({makeFinding(FindingId::D1Zero, {std::string("m")})}));
    EXPECT_TRUE(hasError({makeFinding(FindingId::D1Zero, {std::string("m")}), makeFinding(FindingId::NoNumbers)}));
}

} // namespace
