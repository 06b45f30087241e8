#include "vxMaterial/model/PropertyRules.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using vxMat::checkNumber;
using vxMat::checkRow;
using vxMat::CombinationCheck;

constexpr const char* densityMessage = "Row %1: Mass density must be positive!";
constexpr const char* poissonMessage = "Row %1: Poisson's ratio must be between [0.001, 0.499]!";
constexpr const char* yieldMessage = "Row %1: Yield type must be Mises, Mohr-Coulomb, or Drucker-Prager!";

const char* checkCombination(std::initializer_list<int> ids)
{
    CombinationCheck check;
    for (const int id : ids)
        check.note(id);
    return check.result();
}

TEST(PropertyRules, WantAPositiveDensity)
{
    EXPECT_EQ(checkRow(4, "1e-9"), nullptr);
    EXPECT_EQ(checkRow(4, "7850"), nullptr);
    EXPECT_EQ(checkRow(4, "1e999"), nullptr);
    for (const char* const text : {"0", "-1", "heavy", "", "7850 kg", "1,5", "nan"})
        EXPECT_STREQ(checkRow(4, text), densityMessage) << text;
}

TEST(PropertyRules, WantPoissonsRatioWithinItsBoundsEndsIncluded)
{
    for (const char* const text : {"0.001", "0.499", " 0.3 "})
        EXPECT_EQ(checkRow(6, text), nullptr) << text;
    for (const char* const text : {"0.0009", "0.5", "", "-0.3", "nan"})
        EXPECT_STREQ(checkRow(6, text), poissonMessage) << text;
}

TEST(PropertyRules, TakeAWordInAnyCaseButNoOther)
{
    for (const char* const word : {"Mises", "MISES", "mohr-coulomb", "DRUCKER-PRAGER"})
        EXPECT_EQ(checkRow(33, word), nullptr) << word;
    for (const char* const word : {"von Mises", "Mises ", "", "Tresca"})
        EXPECT_STREQ(checkRow(33, word), yieldMessage) << word;
    for (const char* const word : {"bilinear", "Multilinear", "SWIFT", "Ramberg-Osgood", "Kinematic", "combined"})
        EXPECT_EQ(checkRow(37, word), nullptr) << word;
    EXPECT_NE(checkRow(37, "Linear"), nullptr);
}

TEST(PropertyRules, KeepTheBlanksOfTheHardeningMessage)
{
    const std::string blanks(21, ' ');
    EXPECT_EQ(checkRow(37, "Linear"), "Row %1: Hardening type must be Bilinear, Multilinear, Swift," + blanks +
                                          "Ramberg-Osgood, Kinematic, or Combined!");
}

TEST(PropertyRules, CompareWordsByTheCallersMatch)
{
    const auto german = [](std::string_view allowed, std::string_view typed) {
        return allowed == "Bilinear" && typed == "Bilinear (zweifach)";
    };
    EXPECT_EQ(checkRow(37, "Bilinear (zweifach)", german), nullptr);
    EXPECT_NE(checkRow(37, "Bilinear", german), nullptr);
}

TEST(PropertyRules, LetEveryOtherQuantityPass)
{
    for (const int id : {5, 28, 31, 32, 38, 42, 301, 401, 0, 40, -4}) {
        EXPECT_EQ(checkRow(id, "anything"), nullptr) << id;
        EXPECT_EQ(checkNumber(id, -1.0), nullptr) << id;
    }
}

TEST(PropertyRules, RefuseWhatIsNotANumber)
{
    EXPECT_STREQ(checkNumber(4, std::nan("")), densityMessage);
    EXPECT_STREQ(checkNumber(6, std::nan("")), poissonMessage);
}

TEST(PropertyRules, AcceptEveryMaterialOfTheLibrary)
{
    for (const auto& entry : vxMat::libraryEntries()) {
        const auto material = entry.create();
        CombinationCheck combination;
        for (const auto& [slot, property] : material->properties) {
            combination.note(slot);
            const bool isWord = vxMat::getValueKind(property->id) == vxMat::ValueKind::Word;
            const std::string text = isWord ? property->text : vxMat::formatNumber(property->value);
            EXPECT_EQ(checkRow(property->id, text), nullptr) << material->name << " " << property->name;
        }
        EXPECT_EQ(combination.result(), nullptr) << material->name;
    }
}

TEST(PropertyCombination, ExcludesElasticityWithAHyperelasticModel)
{
    for (const int model : {28, 29, 30})
        EXPECT_STREQ(checkCombination({5, 6, 31, model}), "Elasticity and hyper-elasticy cannot be used togeter!");
    EXPECT_STREQ(checkCombination({31, 28}), "Elasticity and hyper-elasticy cannot be used togeter!");
}

TEST(PropertyCombination, WantsYoungsModulusBeforePoissonsRatio)
{
    EXPECT_STREQ(checkCombination({31}), "Elasticity does not define Young's modulus!");
    EXPECT_STREQ(checkCombination({31, 6}), "Elasticity does not define Young's modulus!");
    EXPECT_STREQ(checkCombination({31, 5}), "Elasticity does not define Poisson's ratio!");
    EXPECT_EQ(checkCombination({31, 5, 6}), nullptr);
}

TEST(PropertyCombination, AsksNothingWithoutElasticity)
{
    EXPECT_EQ(checkCombination({}), nullptr);
    EXPECT_EQ(checkCombination({28}), nullptr);
    EXPECT_EQ(checkCombination({5, 6}), nullptr);
    EXPECT_EQ(checkCombination({28, 29, 5}), nullptr);
}

TEST(PropertyRules, ReportTheFirstRowThatFailsAndNoOther)
{
    const auto failure = vxMat::checkRows({{6, "0.7"}, {5, "x"}, {4, "0"}});
    ASSERT_TRUE(failure);
    EXPECT_STREQ(failure->message, poissonMessage);
    EXPECT_EQ(failure->row, 1U);
    const auto last = vxMat::checkRows({{6, "0.3"}, {5, "x"}, {4, "0"}});
    ASSERT_TRUE(last);
    EXPECT_EQ(last->row, 3U);
}

TEST(PropertyRules, CheckTheRowsBeforeTheirCombination)
{
    const auto badDensity = vxMat::checkRows({{31, "1"}, {28, "1"}, {4, "0"}});
    ASSERT_TRUE(badDensity);
    EXPECT_STREQ(badDensity->message, densityMessage);
    EXPECT_EQ(badDensity->row, 3U);
    const auto badCombination = vxMat::checkRows({{31, "1"}, {28, "1"}, {4, "1"}, {5, "1"}, {6, "0.3"}});
    ASSERT_TRUE(badCombination);
    EXPECT_STREQ(badCombination->message, "Elasticity and hyper-elasticy cannot be used togeter!");
    EXPECT_EQ(badCombination->row, 0U);
}

TEST(PropertyRules, AcceptATableWithoutRowsAndCheckEachOfTwoRowsOfOneQuantity)
{
    EXPECT_FALSE(vxMat::checkRows({}));
    EXPECT_FALSE(vxMat::checkRows({{4, "1"}, {4, "2"}}));
    const auto second = vxMat::checkRows({{4, "1"}, {4, "0"}});
    ASSERT_TRUE(second);
    EXPECT_EQ(second->row, 2U);
}

TEST(PropertyRules, TakeNoHexadecimalNumbers)
{
    EXPECT_STREQ(checkRow(4, "0x10"), densityMessage);
    EXPECT_STREQ(checkRow(6, "0x.4"), poissonMessage);
    EXPECT_STREQ(checkRow(4, "infinity"), densityMessage);
    EXPECT_EQ(checkRow(4, "inf"), nullptr);
}

/// Returns the ignored text and the value that is read, as "ignored|read"; empty if nothing is ignored.
std::string ignored(int id, std::string_view text)
{
    const auto found = vxMat::findIgnoredText(id, text);
    return found ? found->text + '|' + found->readAs : "";
}

TEST(IgnoredText, IsTheTextAfterANumber)
{
    EXPECT_EQ(ignored(5, "210 GPa"), "GPa|210");
    EXPECT_EQ(ignored(5, "2,1e11"), ",1e11|2");
    EXPECT_EQ(ignored(4, " 7.85x "), "x|7.85");
    EXPECT_EQ(ignored(5, "2e11 Pa steel"), "Pa steel|2e+11");
    EXPECT_EQ(ignored(6, "0.3."), ".|0.3");
    EXPECT_EQ(ignored(45, "1 on"), "on|1");
}

TEST(IgnoredText, IsAbsentWhenAllIsReadOrNothingCanBe)
{
    for (const char* const text : {"210", " 2.1e11\t", "-.5", "0x10", "inf", "", "stiff", "1e999", "1e999 Pa"})
        EXPECT_EQ(ignored(5, text), "") << text;
    EXPECT_EQ(ignored(31, "on"), "");
    EXPECT_EQ(ignored(33, "7 Mises"), "");
}

TEST(IgnoredText, OfAListIsTheFirstPartThatIsNotOneNumber)
{
    EXPECT_EQ(ignored(38, "450 MPa, 608 MPa"), "MPa|450, 608");
    EXPECT_EQ(ignored(38, "450, 608MPa"), "608MPa|450, 608");
    EXPECT_EQ(ignored(38, "450-608"), "450-608|450, -608");
    EXPECT_EQ(ignored(39, "1e, 2"), "1e|1, 2");
    EXPECT_EQ(ignored(39, "none"), "none|");
    EXPECT_EQ(ignored(39, "1, inf"), "inf|1");
    EXPECT_EQ(ignored(39, "1 2,,;3;\n-.5e-3,"), "");
    EXPECT_EQ(ignored(39, ""), "");
    EXPECT_EQ(ignored(39, "1, 1e999, x"), "");
}

TEST(UnequalCurve, IsFoundInAMaterialThatHoldsBothLists)
{
    vxMat::CMaterial material;
    EXPECT_FALSE(vxMat::findUnequalCurve(material));
    material.setProperty(38, std::make_unique<vxMat::PlasticYieldStress>(std::vector{450.0, 608.0}));
    EXPECT_FALSE(vxMat::findUnequalCurve(material));
    material.setProperty(39, std::make_unique<vxMat::PlasticStrain>(std::vector{0.0}));
    const auto curve = vxMat::findUnequalCurve(material);
    ASSERT_TRUE(curve);
    EXPECT_EQ(curve->yieldStresses, 2U);
    EXPECT_EQ(curve->plasticStrains, 1U);
    material.setProperty(39, std::make_unique<vxMat::PlasticStrain>(std::vector{0.0, 0.1}));
    EXPECT_FALSE(vxMat::findUnequalCurve(material));
}

TEST(WithoutRowNumber, DropsTheRowAndNothingElse)
{
    EXPECT_EQ(vxMat::withoutRowNumber(densityMessage), "Mass density must be positive!");
    EXPECT_EQ(vxMat::withoutRowNumber("Elasticity"), "Elasticity");
}

} // namespace
