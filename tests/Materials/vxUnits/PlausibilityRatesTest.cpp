#include "MaterialGenerator.h"
#include "Repetitions.h"

#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Plausibility.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

/// How well doubts separate sensible materials from slips, over the materials of materials.tsv and variations of them.
/// The rates are printed.
namespace {

using vxtest::inSystem;
using vxtest::makeMaterials;
using vxtest::repetitions;
using vxtest::SampleMaterial;
using vxtest::SampleSlip;
using vxUnits::checkPlausibility;
using vxUnits::Doubt;

std::string textOf(const std::vector<Doubt>& doubts)
{
    std::string text;
    for (const Doubt& doubt : doubts)
        text += "\n    " + doubt.message.text() + (doubt.remedy ? " => " + doubt.remedy->message.text() : "");
    return text;
}

TEST(PlausibilityRates, NoneOfAThousandSensibleMaterialsIsDoubted)
{
    const auto materials = makeMaterials(2);
    ASSERT_GE(materials.size(), 1000U);
    std::size_t doubted = 0;
    for (const SampleMaterial& material : materials) {
        const auto doubts = checkPlausibility(material.values);
        doubted += doubts.empty() ? 0 : 1;
        EXPECT_TRUE(doubts.empty()) << material.name << textOf(doubts);
    }
    std::printf("doubted without reason: %zu of %zu materials\n", doubted, materials.size());
}

/// How often a kind of slip was made, seen, and explained rightly.
struct Rate
{
    int made = 0;
    int doubted = 0;
    int remedied = 0;

    void add(const Rate& other)
    {
        made += other.made;
        doubted += other.doubted;
        remedied += other.remedied;
    }
    void print(const std::string& title) const
    {
        std::printf("%-52s %5d made, %5.1f %% doubted, %5.1f %% with the right remedy\n", title.c_str(), made,
                    100.0 * doubted / made, 100.0 * remedied / made);
    }
};

bool isRemedyFor(const Doubt& doubt, const SampleSlip& slip)
{
    if (!doubt.remedy || doubt.remedy->changes.size() != 1 || doubt.id != slip.id)
        return false;
    const vxUnits::Change& change = doubt.remedy->changes.front();
    return change.id == slip.id && change.reciprocal == slip.reciprocal &&
           std::abs(change.factor / slip.factor - 1.0) < 1e-3;
}

Rate rateOf(const SampleMaterial& material, const SampleSlip& slip)
{
    const auto doubts = checkPlausibility(withSlip(material.values, slip));
    bool right = false;
    for (const Doubt& doubt : doubts)
        right = right || isRemedyFor(doubt, slip);
    return {1, doubts.empty() ? 0 : 1, right ? 1 : 0};
}

TEST(PlausibilityRates, NineInTenSlipsAreExplainedRightly)
{
    std::map<std::string, Rate> visible;
    std::map<std::string, Rate> hidden;
    std::mt19937 random(7);
    constexpr int slipsPerMaterial = repetitions(5, 1);
    for (const SampleMaterial& material : makeMaterials(2)) {
        const auto slips = slipsOf(material);
        for (int i = 0; i < slipsPerMaterial; ++i) {
            const SampleSlip& slip = slips[random() % slips.size()];
            const std::string title = std::string(vxMat::findPropertyRecord(slip.id)->name) + " in " + slip.unit;
            (slip.visible ? visible : hidden)[title].add(rateOf(material, slip));
        }
    }
    Rate all;
    for (const auto& [title, rate] : visible) {
        rate.print(title);
        all.add(rate);
    }
    all.print("all of these");
    std::printf("Slips that the other values cannot show, not counted:\n");
    Rate everything = all;
    for (const auto& [title, rate] : hidden) {
        rate.print(title);
        everything.add(rate);
    }
    everything.print("all slips, with those that are not counted");
    EXPECT_GE(all.doubted, 0.93 * all.made);
    EXPECT_GE(all.remedied, 0.9 * all.made);
}

class PlausibilityRatesOfSystems : public testing::TestWithParam<const char*>
{};

TEST_P(PlausibilityRatesOfSystems, NineInTenMaterialsAreRecognised)
{
    const std::string system = GetParam();
    Rate rate;
    const auto materials = makeMaterials(0);
    constexpr auto step = repetitions<std::size_t>(1, 10);
    for (std::size_t i = 0; i < materials.size(); i += step) {
        const SampleMaterial& material = materials[i];
        const auto doubts = checkPlausibility(inSystem(material.values, system));
        const bool right = !doubts.empty() && doubts.front().remedy && doubts.front().remedy->system == system;
        rate.add({1, doubts.empty() ? 0 : 1, right ? 1 : 0});
    }
    rate.print("whole material in " + system);
    EXPECT_GE(rate.remedied, 0.9 * rate.made);
}

INSTANTIATE_TEST_SUITE_P(All, PlausibilityRatesOfSystems,
                         testing::Values("mm-t-s", "mm-kg-ms", "cm-g-s", "ft-slug-s", "in-lbf-s"));

} // namespace
