#include "vxUnits/Filter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

using vxUnits::FaultCode;
using vxUnits::FilterReading;
using vxUnits::readFilter;

/// An expression that is refused, the part that is at fault, and the reason.
struct Refusal
{
    const char* expression;
    FaultCode code;
    std::size_t position;
    const char* part;
    const char* text; ///< the message with its suggestion
};

constexpr FaultCode malformed = FaultCode::MalformedFilter;

const Refusal refusals[] = {
    // Something is missing
    {"E >", malformed, 3, "", "A value is missing after \">\"."},
    {"E > and nu < 1", malformed, 3, "", "A value is missing after \">\"."},
    {"> 5", malformed, 0, ">", "A quantity is missing before \">\"."},
    {"(E > 5) < 3", malformed, 8, "<", "A quantity is missing before \"<\"."},
    {"steel and", malformed, 9, "", "A condition is missing after \"and\"."},
    {"or steel", malformed, 0, "or", "A condition is missing before \"or\"."},
    {"steel and or iron", malformed, 10, "or", "A condition is missing before \"or\"."},
    {"not", malformed, 3, "", "A condition is missing after \"not\"."},
    {"()", malformed, 1, ")", "A condition is missing before \")\"."},
    {"steel has", malformed, 6, "has", "A quantity is missing after \"has\"."},
    {"E 100.. GPa", malformed, 2, "100.. GPa", "The range \"100.. GPa\" needs a number on each side of \"..\"."},
    // Signs in pairs
    {"\"steel", malformed, 0, "\"steel", "A quotation mark is not closed. Did you mean \"\"steel\"\"?"},
    {"(steel", malformed, 0, "(steel", "A parenthesis is not closed."},
    {"steel)", malformed, 5, ")", "A parenthesis is closed but not opened."},
    {"nu < 1 and (k > 10 W/(m K)", malformed, 11, "(k > 10 W/(m K)", "A parenthesis is not closed."},
    // Quantities
    {"densty > 5", FaultCode::UnknownQuantity, 0, "densty",
     "No quantity is called \"densty\". Did you mean \"Density\"?"},
    {"steel and yuongs modulus > 5", FaultCode::UnknownQuantity, 10, "yuongs modulus",
     "No quantity is called \"yuongs modulus\". Did you mean \"Young's modulus\"?"},
    {"colour > 5", FaultCode::UnknownQuantity, 0, "colour", "No quantity is called \"colour\"."},
    {"has creeep", FaultCode::UnknownQuantity, 4, "creeep",
     "No quantity is called \"creeep\". Did you mean \"Creep\"?"},
    {"has colour", FaultCode::UnknownQuantity, 4, "colour", "No quantity is called \"colour\"."},
    {"100 GPa < E", malformed, 0, "100 GPa < E",
     "Write the quantity before the value. Did you mean \"Young's modulus > 100 GPa\"?"},
    // Values
    {"E > 2,1 GPa", FaultCode::DecimalComma, 4, "2,1 GPa",
     "\"2,1 GPa\" has a decimal comma; the decimal sign is a point. Did you mean \"2.1 GPa\"?"},
    {"E > 5 kg", FaultCode::WrongDimension, 4, "5 kg",
     "\"5 kg\" measures mass; Young's modulus needs a unit such as Pa."},
    {"G > 5 kg", FaultCode::WrongDimension, 4, "5 kg",
     "\"5 kg\" measures mass; Shear modulus needs a unit such as Pa."},
    {"E > 5 gpa and nu < 1", FaultCode::UnknownUnit, 4, "5 gpa",
     "The unit \"gpa\" is not known. Did you mean \"5 GPa\"?"},
    {"E > soft", FaultCode::NumberMissing, 4, "soft", "\"soft\" does not begin with a number."},
    {"E > nan", FaultCode::NotFinite, 4, "nan", "\"nan\" is not a finite number."},
    {"E > 1e999", FaultCode::OutOfRange, 4, "1e999", "\"1e999\" is outside the range of numbers, 1e-308 to 1e308."},
    {"1 GPa < E < 5 GPa", malformed, 0, "1 GPa < E < 5 GPa",
     "Write the quantity before the value. Did you mean \"Young's modulus > 1 GPa and Young's modulus < 5 GPa\"?"},
    {"1 GPa < E < ", malformed, 0, "1 GPa < E",
     "Write the quantity before the value. Did you mean \"Young's modulus > 1 GPa\"?"},
    {"E > 5 steel", FaultCode::UnknownUnit, 0, "E > 5 steel",
     R"("steel" is not a known unit; write "and" before another condition. Did you mean "E > 5 and steel"?)"},
    {"E > 100 G", FaultCode::UnknownUnit, 4, "100 G", R"(The unit "G" is not known.)"},
    {"E > 5 GPa old steel", FaultCode::UnknownUnit, 0, "E > 5 GPa old steel",
     R"("old steel" is not a known unit; write "and" before another condition. Did you mean "E > 5 GPa and old steel"?)"},
    {"E > 1 GPa < 5 GPa", malformed, 10, "<", "\"<\" follows a comparison; write \"and\" between two comparisons."},
    {"E > 1 GPa und rho < 3", malformed, 0, "E > 1 GPa und rho",
     "\"<\" follows a comparison; write \"and\" between two comparisons. Did you mean \"E > 1 GPa and rho\"?"},
    {"steel E > 1 GPa || rho < 3", malformed, 6, "E > 1 GPa || rho",
     "\"<\" follows a comparison; write \"and\" between two comparisons. Did you mean \"E > 1 GPa or rho\"?"},
    {"E > 1 GPa, Young's modulus < 3", malformed, 0, "E > 1 GPa, Young's modulus",
     "\"<\" follows a comparison; write \"and\" between two comparisons. Did you mean \"E > 1 GPa and Young's "
     "modulus\"?"},
    {"E > 1 GPa rho < 3", malformed, 0, "E > 1 GPa rho",
     "\"<\" follows a comparison; write \"and\" between two comparisons. Did you mean \"E > 1 GPa and rho\"?"},
    {"E > 1 GPa 或 rho < 3", malformed, 0, "E > 1 GPa 或 rho",
     "\"<\" follows a comparison; write \"and\" between two comparisons. Did you mean \"E > 1 GPa or rho\"?"},
    {"E > 1 GPa oder steel", FaultCode::UnknownUnit, 0, "E > 1 GPa oder steel",
     "\"oder steel\" is not a known unit; write \"and\" before another condition. Did you mean \"E > 1 GPa or "
     "steel\"?"},
    {"E > 100 und rho", FaultCode::UnknownUnit, 0, "E > 100 und rho",
     "\"und rho\" is not a known unit; write \"and\" before another condition. Did you mean \"E > 100 and rho\"?"},
    {"rho 1..2 nu > 0.3", malformed, 12, ">", "\">\" follows a comparison; write \"and\" between two comparisons."},
    {"E > 1..2 GPa", malformed, 4, "1..2 GPa", "\"1..2 GPa\" is a range; only \"=\" and \"!=\" compare it."},
    {"E 1..2 gpa", FaultCode::UnknownUnit, 2, "1..2 gpa",
     "The unit \"gpa\" is not known. Did you mean \"1 .. 2 GPa\"?"},
    // Words and switches
    {"Yield type = Misses", FaultCode::UnknownWord, 13, "Misses",
     "\"Misses\" is not a value of Yield type, which is one of Mises, Mohr-Coulomb, Drucker-Prager. Did you mean "
     "\"Mises\"?"},
    {"Yield type > Mises", FaultCode::TakesNoNumber, 11, ">",
     "Yield type is a word; only \"=\" and \"!=\" compare it. Did you mean \"=\"?"},
    {"steel and creep = 1", FaultCode::TakesNoNumber, 10,
     "creep =", "Creep is a switch and has no value; write \"has\". Did you mean \"has Creep\"?"},
    // The text as a whole
    {"steel \xFF", FaultCode::BadEncoding, 0, "steel \xFF", "The text is not valid UTF-8."},
};

TEST(FilterRefusals, SayTheReasonThePlaceAndTheNearestSpelling)
{
    for (const auto& [expression, code, position, part, text] : refusals) {
        const FilterReading reading = readFilter(expression);
        ASSERT_FALSE(reading) << expression;
        EXPECT_EQ(reading.failure.code, code) << expression;
        EXPECT_EQ(reading.position, position) << expression;
        EXPECT_EQ(std::string(expression).substr(reading.position, reading.length), part) << expression;
        EXPECT_EQ(reading.failure.text(), text) << expression;
    }
}

TEST(FilterRefusals, SuggestWhatIsTakenInPlaceOfTheFault)
{
    for (const char* const expression :
         {"densty > 5", "yuongs modulus < 5 GPa and steel", "E > 2,1 GPa", "100 GPa < E", "Yield type = Misses",
          "Yield type < Mises", "creep = 1", "1 GPa < E < 5 GPa", "E > 5 steel", "E > 5 GPa old steel",
          "has creeep and E > 1", "\"steel", "E 1..2 gpa", "E > 1 GPa und rho < 3 g/cm3", "steel E > 1 GPa; rho < 3",
          "E > 1 GPa oder steel"})
    {
        const FilterReading reading = readFilter(expression);
        ASSERT_FALSE(reading) << expression;
        std::string corrected = expression;
        corrected.replace(reading.position, reading.length, reading.failure.suggestion);
        EXPECT_TRUE(readFilter(corrected)) << corrected;
    }
}

TEST(FilterRefusals, BoundTheDepth)
{
    const auto nested = [](std::size_t depth) { return std::string(depth, '(') + "steel" + std::string(depth, ')'); };
    EXPECT_TRUE(readFilter(nested(vxUnits::deepestFilter)));
    const FilterReading reading = readFilter(nested(vxUnits::deepestFilter + 1));
    ASSERT_FALSE(reading);
    EXPECT_EQ(reading.position, vxUnits::deepestFilter);
    EXPECT_EQ(reading.failure.text(), R"(More than 100 parentheses and "not" are inside each other.)");
    EXPECT_TRUE(readFilter(nested(60) + " and " + nested(60)));
}

TEST(FilterRefusals, OfTheCreepFactorInAnotherSystemSaysWhy)
{
    const vxUnits::UnitSystem system = *vxUnits::UnitSystem::parse("mm-t-s");
    vxUnits::ReadingContext context;
    context.plainNumbers = &system;
    EXPECT_EQ(readFilter("CreepA > 1e-10", context).failure.text(),
              "The unit of Creep Modulus A depends on other values of each material; only numbers in SI compare it.");
    EXPECT_TRUE(readFilter("CreepA > 1e-10"));
}

TEST(FilterRefusals, AreAmongTheTextsForTranslators)
{
    for (const Refusal& refusal : refusals) {
        const std::string id = readFilter(refusal.expression).failure.message.id;
        const auto& texts = vxUnits::messageTexts();
        EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [&id](const auto& text) { return id == text.id; })) << id;
    }
}

} // namespace
