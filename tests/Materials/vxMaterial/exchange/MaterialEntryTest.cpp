#include "CommaLocale.h"
#include "ExchangeTesting.h"

#include "vxMaterial/exchange/CAEMaterials.h"

#include <gtest/gtest.h>

namespace {

using vxCAE::MaterialEntry;
using vxtest::makeEntry;

TEST(MaterialEntry, StartsLinearWithAnEmptyMaterial)
{
    const MaterialEntry entry;
    EXPECT_EQ(entry.kind, 0);
    EXPECT_STREQ(entry.getName(), "CMaterial");
    EXPECT_EQ(entry.getId(), 0);
    EXPECT_TRUE(entry.material->properties.empty());
}

TEST(MaterialEntry, PassesIdAndNameToItsMaterial)
{
    MaterialEntry entry;
    entry.setId(7);
    entry.setName("Bronze");
    EXPECT_EQ(entry.material->id, 7);
    EXPECT_EQ(entry.getId(), 7);
    EXPECT_EQ(entry.material->name, "Bronze");
}

TEST(MaterialEntry, ClassifiesByTheFirstSwitchOfItsOrder)
{
    const std::pair<int, int> kinds[] = {{32, 12}, {29, 15}, {30, 11}, {28, 16}, {42, 20}, {45, 22}};
    auto entry = makeEntry({});
    EXPECT_FALSE(entry->classifyKind());
    // From the last switch to the first: each takes precedence over the switches before it.
    for (auto switchOf = std::rbegin(kinds); switchOf != std::rend(kinds); ++switchOf) {
        entry->material->setProperty(switchOf->first, vxMat::findPropertyRecord(switchOf->first)->create());
        EXPECT_TRUE(entry->classifyKind());
        EXPECT_EQ(entry->kind, switchOf->second) << switchOf->first;
    }
}

TEST(MaterialEntry, ClassifiesPlasticityBeforeCreep)
{
    EXPECT_EQ(makeEntry({{32, 1.0}, {45, 1.0}})->kind, 12);
}

TEST(MaterialEntry, BecomesLinearAgainWithoutASwitch)
{
    auto entry = makeEntry({{45, 1.0}, {31, 1.0}});
    EXPECT_EQ(entry->kind, 22);
    entry->material->clearProperties();
    EXPECT_FALSE(entry->classifyKind());
    EXPECT_EQ(entry->kind, 0);
}

TEST(MaterialEntry, ReturnsDensityAndWhetherThereIsOne)
{
    EXPECT_TRUE(makeEntry({{4, 0.0}})->getDensity().found);
    EXPECT_EQ(makeEntry({{4, 7850.0}})->getDensity().value, 7850.0);
    EXPECT_FALSE(makeEntry({})->getDensity().found);
    EXPECT_EQ(makeEntry({})->getDensity().value, 0.0);
}

TEST(MaterialEntry, HasThermalDataWithAllThreeQuantitiesOnly)
{
    EXPECT_TRUE(makeEntry({{4, 1.0}, {202, 1.0}, {203, 1.0}})->hasThermalData());
    EXPECT_FALSE(makeEntry({{4, 1.0}, {202, 1.0}})->hasThermalData());
    EXPECT_FALSE(makeEntry({{4, 1.0}, {203, 1.0}})->hasThermalData());
    EXPECT_FALSE(makeEntry({{202, 1.0}, {203, 1.0}})->hasThermalData());
}

TEST(MaterialEntry, ReturnsTheEmptyTextForAMissingProperty)
{
    EXPECT_EQ(makeEntry({})->getPropertyText(33), "");
    EXPECT_EQ(makeEntry({{33, 0.0}})->getPropertyText(33), "Mises");
}

TEST(ElasticLine, HasSixDecimalsAndNoLineEnd)
{
    EXPECT_EQ(makeEntry({{5, 2e11}, {6, 0.3}})->getElasticLine(), " 200000000000.000000, 0.300000");
    EXPECT_EQ(makeEntry({{5, -1.0}, {6, 7.0}})->getElasticLine(), " -1.000000, 7.000000");
}

TEST(ElasticLine, IsAMessageWhenAModulusIsMissing)
{
    EXPECT_EQ(makeEntry({{5, 2e11}})->getElasticLine(), "Invalid young_modulus or poisson_ratio.\n");
    EXPECT_EQ(makeEntry({{6, 0.3}})->getElasticLine(), "Invalid young_modulus or poisson_ratio.\n");
}

TEST(ElasticLine, KeepsThePointUnderACommaLocale)
{
    const vxtest::CommaLocale comma;
    EXPECT_EQ(makeEntry({{5, 2e11}, {6, 0.3}})->getElasticLine(), " 200000000000.000000, 0.300000");
    EXPECT_EQ(MaterialEntry::formatReal(-0.5), "-0.500000");
}

} // namespace
