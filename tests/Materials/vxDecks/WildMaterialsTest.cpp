#include "DecksTesting.h"

#include "vxDecks/Mapping.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Quantity.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using Id = vxMat::PropertyId;
using vxDecks::Deck;
using vxDecks::Mapping;
using vxDecks::Outcome;
using vxDecks::ReportRow;
using vxDecks::Transport;
using vxtest::MaterialMaker;

constexpr int materialCount = 500;

/// Numbers, lists and words as no sensible material has them, the same in every run.
class Wild
{
public:
    std::size_t below(std::size_t count) { return m_engine() % count; }

    double number()
    {
        static const std::vector<double> numbers{0.0,
                                                 -0.0,
                                                 -1.0,
                                                 0.5,
                                                 1.0,
                                                 2e11,
                                                 1e-300,
                                                 1e300,
                                                 1e-320,
                                                 -1e-20,
                                                 1e-25,
                                                 1e308,
                                                 7850.0,
                                                 1.0e-9,
                                                 0.3,
                                                 5.0,
                                                 std::numeric_limits<double>::infinity(),
                                                 std::numeric_limits<double>::quiet_NaN()};
        return numbers[below(numbers.size())];
    }

    std::vector<double> list()
    {
        std::vector<double> numbers(below(4));
        for (double& one : numbers)
            one = number();
        return numbers;
    }

    std::string word()
    {
        static const std::vector<std::string> words{"", "Mises", "KINEMATIC", "Swift", "Bilinear", "x\n*STEP", "<a&b>"};
        return words[below(words.size())];
    }

private:
    std::mt19937 m_engine{7};
};

void addQuantity(MaterialMaker& maker, const vxUnits::Quantity& quantity, Wild& wild)
{
    if (quantity.form == vxUnits::QuantityForm::Number)
        maker.number(quantity.id, wild.number());
    else if (quantity.form == vxUnits::QuantityForm::NumberList)
        maker.list(quantity.id, wild.list());
    else if (quantity.form == vxUnits::QuantityForm::Word)
        maker.word(quantity.id, wild.word());
    else
        maker.on(quantity.id);
}

void check(vxDecks::Format format, const Deck& deck, const vxMat::MaterialBase& material)
{
    const auto& rows = deck.report.materials.at(0).rows;
    // A deck may need a bulk modulus that the material does not have.
    const auto isAssumed = [&material](const ReportRow& row) { return !material.hasProperty(row.slot); };
    const auto assumed = std::count_if(rows.begin(), rows.end(), isAssumed);
    EXPECT_EQ(rows.size(), material.properties.size() + static_cast<std::size_t>(assumed));
    EXPECT_TRUE(assumed == 0 || (assumed == 1 && rows.back().slot == Id::IncompressibilityParameterD1));
    for (const ReportRow& row : rows) {
        const Mapping& mapping = *vxDecks::findMapping(format, row.slot);
        EXPECT_EQ(row.outcome == Outcome::Lost, row.card.empty()) << row.name;
        EXPECT_TRUE(row.outcome != Outcome::Lost || !row.how.empty()) << row.name << " is lost without a reason";
        EXPECT_TRUE(row.outcome == Outcome::Lost || mapping.transport != Transport::None) << row.name;
    }
    for (const char* const wrong : {"nan", "inf\n", "inf,", "inf ", "\x1b"})
        EXPECT_EQ(deck.text.find(wrong), std::string::npos) << deck.text;
    EXPECT_EQ(deck.text.find("\n*STEP"), std::string::npos) << deck.text;
}

TEST(WildMaterials, HaveAReasonForEachQuantityThatIsNotWritten)
{
    Wild wild;
    for (int i = 0; i < materialCount; ++i) {
        MaterialMaker maker;
        for (const vxUnits::Quantity& quantity : vxUnits::quantities()) {
            if (wild.below(2) == 0)
                addQuantity(maker, quantity, wild);
        }
        const auto& systems = vxUnits::UnitSystem::builtIn();
        const std::string units = systems[wild.below(systems.size())].text();
        for (const vxDecks::FormatInfo& format : vxDecks::formats()) {
            SCOPED_TRACE(format.name);
            check(format.format, vxtest::deckOf(format.format, maker.get(), units), maker.get());
        }
    }
}

} // namespace
