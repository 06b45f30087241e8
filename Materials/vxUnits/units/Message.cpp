#include "vxUnits/Message.h"

#include "filter/FilterTexts.h"
#include "plausibility/DoubtTexts.h"
#include "units/FoldedText.h"
#include "units/Texts.h"
#include "units/Words.h"
#include "vxUnits/Result.h"

#include <array>
#include <string>
#include <string_view>

namespace vxUnits {

namespace {

constexpr std::array<MessageText, static_cast<std::size_t>(Text::Count)> texts{{
    {"units.did-you-mean", R"(Did you mean "%1"?)"},
    {"units.empty", "Nothing was typed; a number is needed."},
    {"units.bad-encoding", "The text is not valid UTF-8."},
    {"units.number-missing", R"("%1" does not begin with a number.)"},
    {"units.not-finite", R"("%1" is not a finite number.)"},
    {"units.hexadecimal", R"("%1" is a hexadecimal number; write it in decimals.)"},
    {"units.exponent-without-digits", R"(The exponent in "%1" has no digits.)"},
    {"units.exponent-apart", R"(The exponent in "%1" must follow the number without a blank.)"},
    {"units.exponent-not-whole", R"(The exponent in "%1" is not a whole number.)"},
    {"units.exponent-letter", R"(The exponent in "%1" must be written with the letter e.)"},
    {"units.two-points", R"("%1" has more than one decimal point.)"},
    {"units.decimal-comma", R"("%1" has a decimal comma; the decimal sign is a point.)"},
    {"units.comma-not-clear", R"(The comma in "%1" may separate decimals or thousands; write %2 or %3.)"},
    {"units.thousands-separator", R"("%1" has digits in groups; write the number without separators.)"},
    {"units.several-numbers", R"("%1" has more than one number; one number is needed.)"},
    {"units.out-of-range", R"("%1" is outside the range of numbers, 1e-308 to 1e308.)"},
    {"units.illegal-character", R"("%1" contains the character %2, which no number and no unit has.)"},
    {"units.unit-missing", R"(A unit is missing in "%1" after "%2".)"},
    {"units.number-in-unit", R"(The unit "%1" must not contain the number %2.)"},
    {"units.power-missing", R"(A power is missing in the unit "%1".)"},
    {"units.power-too-large", R"(A power in the unit "%1" is not between -50 and 50.)"},
    {"units.power-with-exponent", R"(A power in the unit "%1" has an exponent; write the power as a plain number.)"},
    {"units.parenthesis-not-closed", R"(A parenthesis in the unit "%1" is not closed.)"},
    {"units.parenthesis-not-opened", R"(A parenthesis in the unit "%1" is closed but not opened.)"},
    {"units.unit-too-long", R"(The unit "%1" has more than 40 parts.)"},
    {"units.unit-too-deep", R"(The unit "%1" has more than 20 parentheses inside each other.)"},
    {"units.unknown-unit", R"(The unit "%1" is not known.)"},
    {"units.ambiguous-unit", R"("%1" has more than one meaning; write %2.)"},
    {"units.wrong-dimension", R"("%1" measures %2; a unit such as %3 is needed.)"},
    {"units.wrong-dimension-of", R"("%1" measures %2; %4 needs a unit such as %3.)"},
    {"units.not-pure", R"("%1" measures %2; %3 is a pure number.)"},
    {"units.reciprocal", R"("%1" measures %2; %4 is its reciprocal and needs a unit such as %3.)"},
    {"units.temperature-scale", R"("%1" is a temperature; a difference of temperatures is needed.)"},
    {"units.temperature-difference", R"("%1" is a difference of temperatures; a temperature is needed.)"},
    {"units.below-absolute-zero", R"("%1" is below the absolute zero of temperature.)"},
    {"units.takes-word", "%1 is a word; it takes no number."},
    {"units.takes-switch", "%1 is a switch; it takes no number."},
    {"units.no-quantity", "No quantity has the id %1."},
    {"units.unit-of-creep", "The unit of %1 depends on %2 and %3, which are not given; give them first."},
    {"units.unit-of-creep-part", "The unit of %1 depends on %2, which is not given; give it first."},
    {"units.unit-of-creep-range",
     "The unit of %1 depends on %2, which is not between -50 and 50; convert the number to SI units and write it "
     "without a unit."},
    {"units.unit-of-creep-unread", "The unit of %1 depends on %2, which cannot be read; correct it first."},
    {"units.database-unreadable",
     R"(The unit "%1" is not built in, and the database of units cannot be read: %2. Install the data of UDUNITS-2, or )"
     "have the environment variable UDUNITS2_XML_PATH name the file udunits2.xml."},
    {"units.list-item-empty", "Number %1 of the list is missing."},
    {"units.list-unit-missing",
     R"("%1" has no unit. Give one unit after the last number, or a unit after each number.)"},
    {"units.list-decimal-comma",
     R"("%1" looks like decimals after a comma. The decimal sign is a point; commas separate the numbers of a list.)"},
    {"units.list-comma-not-clear",
     R"(The comma in "%1" may be a decimal sign or separate two numbers; write "%2" or "%3".)"},
    {"units.system-empty", "A unit system needs a name (%1) or its base units (%2)."},
    {"units.system-unknown", R"("%1" is neither the name of a unit system nor base units such as "%2".)"},
    {"units.system-base-unknown", R"("%1" does not begin with one of length, mass, time, temperature and current.)"},
    {"units.system-unit-missing", "The unit of %1 is missing; a unit such as %2 is needed."},
    {"units.system-unit-with-number", R"("%1" begins with a number; %2 needs a unit alone, such as %3.)"},
    {"units.system-base-repeated", "The unit system gives the unit of %1 twice."},
    {"units.system-base-missing", "The unit system gives no unit of %1."},
    {"units.note-calorie", "cal is the International Table calorie, 4.1868 J; cal_th is 4.184 J."},
    {"units.note-btu", "Btu is the International Table unit, 1055.05585262 J; Btu_th is 1054.35026 J."},
    {"units.note-year", "The year has 365.25 days."},
    {"units.note-ounce", "oz is the avoirdupois ounce, 1/16 lb; the ounce of force is ozf."},
    {"units.note-gallon", "The gallon is the gallon of the United States, 231 in^3."},
    {"units.note-horsepower", "hp is 550 ft lbf/s; the metric horsepower is PS."},
    {"units.note-iacs", "100 %IACS is 58 MS/m (IEC 60028)."},
    {"units.note-database", R"("%1" is taken from the database of UDUNITS, with as many digits as it has there.)"},
}};

/// Returns the text with "%1" to "%9" replaced by the arguments. Nothing is replaced in the arguments.
std::string fill(std::string_view text, const std::vector<std::string>& arguments)
{
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool place = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
        const auto number = place ? static_cast<std::size_t>(text[i + 1] - '1') : arguments.size();
        if (number >= arguments.size()) {
            filled += text[i];
            continue;
        }
        filled += arguments[number];
        ++i;
    }
    return filled;
}

/// Returns whether the place of an argument is in quotation marks. What is quoted was typed or read, and may be the same as a
/// word or the name of a quantity.
bool isQuoted(std::string_view english, std::size_t argument)
{
    return english.find("\"%" + std::to_string(argument + 1) + "\"") != std::string_view::npos;
}

/// Returns the translations of the parts of an argument, joined.
std::string translateAll(const std::vector<std::string>& parts, const Translator& translator)
{
    std::string text;
    for (const std::string& part : parts)
        text += translator("vxUnits::Word", part.c_str());
    return text;
}

std::vector<std::string> translatedArguments(const Message& message, const Translator& translator)
{
    std::vector<std::string> translated;
    for (std::size_t i = 0; i < message.arguments.size(); ++i) {
        const std::string& argument = message.arguments[i];
        if (const auto parts = message.parts.find(i); parts != message.parts.end())
            translated.push_back(translateAll(parts->second, translator));
        else
            translated.push_back(isQuoted(message.english, i) ? argument : translateAll({argument}, translator));
    }
    return translated;
}

} // namespace

// NOLINTNEXTLINE(misc-no-recursion): messages that follow another have none of their own
std::string Message::text(const Translator& translator) const
{
    std::string whole = translator
                            ? fill(translator("vxUnits::Message", english), translatedArguments(*this, translator))
                            : fill(english, arguments);
    for (const Message& message : further)
        whole += " " + message.text(translator);
    return whole;
}

const std::vector<MessageText>& messageTexts()
{
    static const std::vector<MessageText> all = [] {
        std::vector<MessageText> collected(texts.begin(), texts.end());
        addDoubtTexts(collected);
        addFilterTexts(collected);
        return collected;
    }();
    return all;
}

const std::vector<std::string>& wordTexts()
{
    static const std::vector<std::string> all = [] {
        std::vector<std::string> collected;
        addDimensionWords(collected);
        addMaterialWords(collected);
        return collected;
    }();
    return all;
}

std::string Failure::text(const Translator& translator) const
{
    std::string whole = message.text(translator);
    if (!suggestion.empty())
        whole += " " + makeMessage(Text::DidYouMean, {suggestion}).text(translator);
    return whole;
}

Message makeMessage(Text text, std::vector<std::string> arguments)
{
    const MessageText& one = texts[static_cast<std::size_t>(text)];
    return {one.id, one.english, std::move(arguments)};
}

Failure makeFailure(FaultCode code, Text text, std::vector<std::string> arguments, std::string suggestion)
{
    return {code, makeMessage(text, std::move(arguments)), std::move(suggestion)};
}

namespace {

/// Returns false if a character must not be quoted: a control character, a line separator, or a character that changes the
/// direction of the text around it.
bool isShown(std::uint32_t character)
{
    const bool control = character < 0x20 || (character >= 0x7F && character <= 0x9F);
    const bool direction = character == 0x61C || character == 0x200E || character == 0x200F ||
                           (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
    const bool lineEnd = character == 0x2028 || character == 0x2029;
    return !control && !direction && !lineEnd;
}

} // namespace

std::string excerpt(std::string_view text)
{
    constexpr std::size_t longest = 60;
    std::string quoted;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = readCodePoint(text, at);
        if (at + point.length > longest)
            return quoted + "...";
        quoted += !point.valid || !isShown(point.value) ? std::string("?") : std::string(text.substr(at, point.length));
        at += point.length;
    }
    return quoted;
}

} // namespace vxUnits
