#include "DecksTesting.h"
#include "ReadingTesting.h"
#include "SampleMaterials.h"

#include "vxDecks/Deck.h"
#include "vxDecks/Mapping.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using Id = vxMat::PropertyId;
using vxDecks::Format;
using vxDecks::Outcome;
using vxtest::MaterialMaker;

/// Returns the relative error of numbers in a format: a deck of keywords has at least 13 digits, a large field of bulk data has
/// ten, and MatML has all.
double toleranceOf(Format format)
{
    if (format == Format::Nastran)
        return 1e-9;
    return format == Format::Matml ? 1e-14 : 1e-12;
}

constexpr int randomMaterials = 300;

constexpr Format readFormats[] = {Format::Calculix, Format::Nastran, Format::Matml};

/// A material, and the same one after writing and reading.
struct Pair
{
    const vxMat::MaterialBase& before;
    const vxMat::MaterialBase& after;
    Format format;

    bool areNear(double one, double other, double size) const
    {
        return std::abs(one - other) <= toleranceOf(format) * size;
    }
    double numberBefore(std::int32_t id) const { return before.hasProperty(id) ? before.findProperty(id)->value : 0.0; }
    double numberAfter(std::int32_t id) const { return after.hasProperty(id) ? after.findProperty(id)->value : NAN; }
};

/// The plastic modulus is the difference of two stresses in the deck.
void compareModulus(const Pair& pair)
{
    const double modulus = pair.numberBefore(Id::PlasticHardeningFactor);
    const double size = modulus + pair.numberBefore(Id::PlasticInitialYieldStress);
    EXPECT_TRUE(pair.areNear(pair.numberAfter(Id::PlasticHardeningFactor), modulus, size)) << modulus;
}

/// The initial yield stress is the first point of a curve in formats that have no other place for it.
void compareInitialYield(const Pair& pair)
{
    const auto& stresses = pair.after.getPropertyValues(Id::PlasticYieldStress);
    const bool isPoint = !pair.after.hasProperty(Id::PlasticInitialYieldStress) && !stresses.empty();
    const double after = isPoint ? stresses.front() : pair.numberAfter(Id::PlasticInitialYieldStress);
    const double before = pair.numberBefore(Id::PlasticInitialYieldStress);
    EXPECT_TRUE(pair.areNear(after, before, before)) << before;
}

/// Returns the largest elastic strain of a curve.
double largestStrain(const Pair& pair)
{
    const auto& stresses = pair.before.getPropertyValues(Id::PlasticYieldStress);
    return *std::max_element(stresses.begin(), stresses.end()) / pair.numberBefore(Id::YoungsModulus);
}

/// A curve has the initial yield stress as its first point if it begins above strain 0.
void compareList(const Pair& pair, std::int32_t id)
{
    const auto& before = pair.before.getPropertyValues(id);
    const auto& after = pair.after.getPropertyValues(id);
    ASSERT_TRUE(after.size() == before.size() || after.size() == before.size() + 1) << id;
    // Bulk data have total strains, less which stress / E leaves an error of their size.
    const double size = id == Id::PlasticStrain && pair.format == Format::Nastran ? largestStrain(pair) : 0.0;
    EXPECT_TRUE(std::equal(before.rbegin(), before.rend(), after.rbegin(), [&pair, size](double one, double other) {
        return pair.areNear(other, one, std::max(std::abs(one), size));
    })) << id;
}

void compareWord(const Pair& pair, const vxDecks::ReportRow& row)
{
    const std::string after = pair.after.getPropertyText(row.slot);
    const std::string before = pair.before.getPropertyText(row.slot);
    // Of some laws, the deck has points. A deck of Mises has no word for an empty one.
    const std::string expected = row.outcome == Outcome::Converted ? "Multilinear" : before.empty() ? after : before;
    EXPECT_TRUE(vxMat::equalIgnoringAsciiCase(expected, after)) << before << ", " << after;
}

void compareNumber(const Pair& pair, std::int32_t id)
{
    const double before = pair.numberBefore(id);
    if (id == Id::MaterialConstantC11 && before == 0.0)
        return; // is not written
    EXPECT_TRUE(pair.areNear(pair.numberAfter(id), before, std::abs(before)))
        << id << ": " << before << ", " << pair.numberAfter(id);
}

/// Compares a quantity that the writer reports as carried or converted.
void compareRow(const Pair& pair, const vxDecks::ReportRow& row)
{
    if (row.slot == Id::PlasticHardeningFactor)
        return compareModulus(pair);
    if (row.slot == Id::PlasticInitialYieldStress)
        return compareInitialYield(pair);
    switch (vxMat::findPropertyRecord(row.slot)->kind) {
    case vxMat::ValueKind::ModelSwitch:
        EXPECT_TRUE(pair.after.hasProperty(row.slot)) << row.name;
        break;
    case vxMat::ValueKind::NumberList:
        compareList(pair, row.slot);
        break;
    case vxMat::ValueKind::Word:
        compareWord(pair, row);
        break;
    default:
        compareNumber(pair, row.slot);
    }
}

/// Writes a material and reads it again, and compares everything that the deck has. Returns the number of quantities.
int roundTrip(const vxMat::MaterialBase& material, const std::string& units, Format format)
{
    const vxDecks::Deck deck = vxtest::deckOf(format, material, units, material.name);
    SCOPED_TRACE(units + ":\n" + deck.text);
    const vxDecks::ReadDeck read = vxtest::readText(format, deck.text);
    const auto& rows = deck.report.materials[0].rows;
    const auto isLost = [](const vxDecks::ReportRow& row) { return row.outcome == Outcome::Lost; };
    if (format == Format::Nastran && std::all_of(rows.begin(), rows.end(), isLost)) {
        EXPECT_TRUE(read.materials.empty()) << "no entry has the material";
        return 0;
    }
    if (read.materials.size() != 1) {
        ADD_FAILURE() << read.materials.size() << " materials";
        return 0;
    }
    EXPECT_EQ(read.report.units, hasOwnUnits(format) ? std::string() : deck.report.units);
    if (!material.name.empty()) {
        EXPECT_EQ(read.materials[0].name, material.name);
    }
    EXPECT_EQ(countRefused(read.report), 0U) << testing::PrintToString(toLines(read.report));
    int count = 0;
    for (const vxDecks::ReportRow& row : rows) {
        if (row.outcome == Outcome::Lost || row.outcome == Outcome::Approximated)
            continue;
        compareRow({material, *read.materials[0].material, format}, row);
        ++count;
    }
    return count;
}

TEST(ReadingRoundTrip, KeepsAllThatDecksOfTheLibraryHave)
{
    int count = 0;
    for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials())
        for (const vxUnits::UnitSystem& units : vxUnits::UnitSystem::builtIn())
            for (const Format format : readFormats)
                count += roundTrip(*material, units.text(), format);
    EXPECT_GT(count, 3 * 26 * 6);
}

TEST(ReadingRoundTrip, KeepsAllThatDecksOfEachModelHave)
{
    for (const auto& maker :
         {vxtest::steel(), vxtest::bilinear(), vxtest::multilinear(), vxtest::neoHooke(), vxtest::mooney(),
          vxtest::arrudaBoyce(), vxtest::prony(), vxtest::creeping(), vxtest::fluid()})
        for (const char* const units : {"SI", "mm-t-s", "length cm, mass g, time ms"})
            for (const Format format : readFormats)
                roundTrip(maker->get(), units, format);
}

/// Random numbers, the same in every run.
class Numbers
{
public:
    std::size_t below(std::size_t count) { return m_engine() % count; }
    double between(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(m_engine()) / 4294967295.0);
    }
    double ofSize(double low, double high) { return std::exp(between(std::log(low), std::log(high))); }

private:
    std::mt19937 m_engine{19};
};

void addCurve(MaterialMaker& maker, Numbers& numbers)
{
    std::vector<double> stresses{numbers.ofSize(1e5, 1e9), 0.0};
    std::vector<double> strains{0.0, numbers.between(1e-3, 1.0)};
    stresses[1] = stresses[0] * numbers.between(0.5, 2.0);
    for (std::size_t more = numbers.below(20); more > 0; --more) {
        stresses.push_back(stresses.back() * numbers.between(0.9, 1.5));
        strains.push_back(strains.back() + numbers.ofSize(1e-6, 1e-1));
    }
    maker.word(Id::PlasticHardeningType, numbers.below(2) == 0 ? "Multilinear" : "Swift");
    if (numbers.below(3) == 0) {
        maker.number(Id::PlasticInitialYieldStress, stresses[0]);
        strains.erase(strains.begin());
        stresses.erase(stresses.begin());
    }
    maker.list(Id::PlasticYieldStress, stresses).list(Id::PlasticStrain, strains);
}

void addPlasticity(MaterialMaker& maker, Numbers& numbers)
{
    maker.on(Id::Plasticity).word(Id::PlasticYieldType, "Mises");
    if (numbers.below(2) == 0)
        return addCurve(maker, numbers);
    maker.word(Id::PlasticHardeningType, numbers.below(2) == 0 ? "Bilinear" : "Kinematic");
    maker.number(Id::PlasticInitialYieldStress, numbers.ofSize(1e5, 1e9));
    maker.number(Id::PlasticHardeningFactor, numbers.below(4) == 0 ? 0.0 : numbers.ofSize(1e3, 1e11));
}

void addElastic(MaterialMaker& maker, Numbers& numbers)
{
    maker.on(Id::IsotropicElasticity).number(Id::YoungsModulus, numbers.ofSize(1e3, 1e12));
    maker.number(Id::PoissonsRatio, numbers.between(-0.5, 0.499));
    if (numbers.below(2) == 0)
        addPlasticity(maker, numbers);
    else
        maker.on(Id::Creep)
            .number(Id::CreepModulusA, numbers.ofSize(1e-40, 1e-5))
            .number(Id::CreepModulusN, numbers.between(1.0, 8.0))
            .number(Id::CreepModulusM, numbers.between(-0.9, 0.0));
}

void addRubber(MaterialMaker& maker, Numbers& numbers)
{
    const double size = numbers.ofSize(1e3, 1e8);
    maker.number(Id::IncompressibilityParameterD1, numbers.below(4) == 0 ? 0.0 : numbers.ofSize(1e-3, 1.0) / size);
    const std::size_t kind = numbers.below(3);
    if (kind == 0)
        maker.on(Id::NeoHooke).number(Id::MaterialConstantC10, size);
    else if (kind == 1)
        maker.on(Id::ArrudaBoyce)
            .number(Id::InitialShearModulusMu, size)
            .number(Id::LimitingNetworkStretch, numbers.between(1.1, 10.0));
    else
        maker.on(Id::MooneyRivlin)
            .number(Id::MaterialConstantC10, size)
            .number(Id::MaterialConstantC01, size * numbers.between(-0.5, 2.0))
            .number(Id::MaterialConstantC11, numbers.below(2) == 0 ? 0.0 : size * numbers.between(-0.1, 0.1));
}

void addFields(MaterialMaker& maker, Numbers& numbers)
{
    for (const std::int32_t id :
         {Id::Density, Id::SpecificHeat, Id::ThermalConductivity, Id::DynamicViscosity, Id::ElectricalConductivity})
        if (numbers.below(2) == 0)
            maker.number(id, numbers.ofSize(1e-6, 1e9));
}

TEST(ReadingRoundTrip, KeepsAllThatDecksOfRandomMaterialsHave)
{
    Numbers numbers;
    int count = 0;
    for (int i = 0; i < randomMaterials; ++i) {
        MaterialMaker maker;
        addFields(maker, numbers);
        if (numbers.below(3) == 0)
            addRubber(maker, numbers);
        else
            addElastic(maker, numbers);
        for (const char* const units : {"SI", "mm-t-s"})
            for (const Format format : readFormats)
                count += roundTrip(maker.get(), units, format);
    }
    EXPECT_GT(count, 9 * randomMaterials);
}

TEST(ReadingRoundTrip, GivesTheSameDeckAgainInUnitsOfTheCatalogue)
{
    for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials()) {
        if (material->hasProperty(Id::PlasticHardeningFactor))
            continue; // a modulus that is the difference of two rounded stresses
        const vxDecks::Deck deck = vxtest::deckOf(Format::Calculix, *material, "SI", "M");
        const vxDecks::ReadDeck read = vxtest::readText(Format::Calculix, deck.text);
        ASSERT_EQ(read.materials.size(), 1U);
        EXPECT_EQ(vxtest::deckOf(Format::Calculix, *read.materials[0].material, "SI", "M").text, deck.text);
    }
}

TEST(ReadingRoundTrip, TakesEachQuantityFromTheCardOfTheMappingTable)
{
    std::set<std::int32_t> taken;
    for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials()) {
        const vxDecks::Deck deck = vxtest::deckOf(Format::Calculix, *material, "mm-t-s");
        const vxDecks::ReadDeck read = vxtest::readText(Format::Calculix, deck.text);
        for (const vxDecks::ReportRow& row : read.report.materials.at(0).rows) {
            const vxDecks::Mapping& mapping = *vxDecks::findMapping(Format::Calculix, row.slot);
            const bool isHeatOfFluid = row.slot == Id::SpecificHeat && row.card == "*FLUID CONSTANTS";
            EXPECT_TRUE(row.card == mapping.card || isHeatOfFluid) << row.name << ": " << row.card;
            taken.insert(row.slot);
        }
    }
    for (const vxDecks::Mapping& mapping : vxDecks::mappings()) {
        const bool isCarried = mapping.format == Format::Calculix && mapping.transport != vxDecks::Transport::None;
        const bool isOfLibrary = mapping.id != Id::MaterialConstantC11 && mapping.id != Id::DynamicViscosity;
        EXPECT_TRUE(!isCarried || !isOfLibrary || taken.count(mapping.id) == 1) << mapping.id;
    }
}

} // namespace
