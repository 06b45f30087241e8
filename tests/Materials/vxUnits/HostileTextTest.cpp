#include "LongText.h"
#include "Repetitions.h"

#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Reading.h"
#include "vxUnits/UnitSystem.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

/// Texts that nobody types: each is refused with a message, and none takes more than linear time, which the time limit of
/// the tests would show.
namespace {

using Id = vxMat::PropertyId;
using vxtest::longLength;
using vxtest::repeated;
using vxUnits::readQuantity;
using vxUnits::readQuantityList;
using vxUnits::Unit;
using vxUnits::UnitSystem;

TEST(HostileTexts, OfAHundredThousandCharactersAreRefused)
{
    for (const char* const part :
         {"x", "(",    ")",  "/", "m/", "m ", "m^2 ", "GPa", "5 ",     "1,", "-",  "+",        "^",
          "µ", "\xFF", " 1", ".", "e",  "1e", "_",    "'",   "deg C ", "(m", "m)", "furlong ", "per "})
    {
        const std::string tail = repeated(part);
        std::vector<std::string> texts{"5 " + tail, tail, "5 GPa" + tail};
        texts.resize(vxtest::repetitions<std::size_t>(3, 1));
        for (const std::string& text : texts) {
            const auto reading = readQuantity(Id::YoungsModulus, text);
            EXPECT_FALSE(reading) << part;
            EXPECT_LT(reading.failure().message.text().size(), 300U) << part;
            EXPECT_FALSE(Unit::parse(text)) << part;
            EXPECT_FALSE(UnitSystem::parse(text)) << part;
        }
    }
}

TEST(HostileTexts, ALongNumberIsReadOrOutOfRange)
{
    EXPECT_EQ(readQuantity(Id::Density, "7." + repeated("85"))->value, 7.85858585858585858585858585);
    EXPECT_EQ(readQuantity(Id::Density, "0." + repeated("0") + "1e100001")->value, 1.0);
    EXPECT_EQ(readQuantity(Id::YoungsModulus, "1" + repeated("0") + "e-100000 psi")->value,
              6894.75729316836133672267344534689);
    EXPECT_EQ(readQuantity(Id::Density, repeated("9")).failure().code, vxUnits::FaultCode::OutOfRange);
    EXPECT_EQ(readQuantity(Id::Density, "1e" + repeated("9")).failure().code, vxUnits::FaultCode::OutOfRange);
    EXPECT_EQ(readQuantity(Id::Density, std::string(longLength, ' ') + "5" + std::string(longLength, ' '))->value, 5.0);
}

TEST(HostileTexts, ALongListIsRead)
{
    const auto list = readQuantityList(Id::PlasticYieldStress, repeated("1 MPa, ") + "2 MPa");
    ASSERT_TRUE(list) << list.failure().text();
    EXPECT_GT(list->values.size(), 10000U);
    EXPECT_FALSE(readQuantityList(Id::PlasticYieldStress, repeated(",")));
    EXPECT_FALSE(readQuantityList(Id::PlasticYieldStress, repeated("1 2 ")));
}

TEST(HostileTexts, RandomOnesAreReadOrRefusedAndSuggestionsAreTaken)
{
    const std::vector<std::string> parts = {
        "2",   "1", "0", "10",  ".",   ",",    "e",   "E", "-",  "+",   " ", "GPa", "Pa",           "kg",   "m",
        "s",   "K", "/", "*",   "^",   "(",    ")",   "²", "⁻¹", "deg", "C", "F",   "lb",           "in",   "ft",
        "psi", "µ", "Ω", "%",   "1/",  "per ", "ton", "x", "×",  "nan", "'", "_",   "\xE2\x88\x92", "\xFF", ";",
        "\n",  "W", "J", "btu", "MPA", "h",    "0x",  "D", "°"};
    std::mt19937 random(42);
    const std::int32_t ids[] = {Id::YoungsModulus, Id::Density, Id::ThermalConductivity, Id::PoissonsRatio,
                                Id::PlasticFAI};
    for (int i = 0; i < vxtest::repetitions(20000, 2000); ++i) {
        std::string text;
        for (std::size_t left = random() % 12; left > 0; --left)
            text += parts[random() % parts.size()];
        const std::int32_t id = ids[random() % std::size(ids)];
        const auto reading = readQuantity(id, text);
        if (reading) {
            EXPECT_TRUE(std::isfinite(reading->value)) << text;
            continue;
        }
        const std::string& suggestion = reading.failure().suggestion;
        EXPECT_FALSE(reading.failure().message.text().empty()) << text;
        EXPECT_TRUE(suggestion.empty() || readQuantity(id, suggestion)) << text << " -> " << suggestion;
    }
}

TEST(HostileTexts, AMessageQuotesNoControlCharacters)
{
    const std::string message = readQuantity(Id::Density, std::string("5 \x01\x7F\0kg", 7)).failure().message.text();
    for (const char c : message)
        EXPECT_TRUE(static_cast<unsigned char>(c) >= 0x20 && c != 0x7F) << message;
}

} // namespace
