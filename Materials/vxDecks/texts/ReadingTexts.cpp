#include "texts/ReadingTexts.h"

#include <array>
#include <utility>

namespace vxDecks {

namespace {

constexpr std::array<vxUnits::MessageText, static_cast<std::size_t>(ReadText::Count)> texts{{
    {"decks.reading.error-in-line", "line %1: %2"},
    {"decks.reading.units-needed", "the deck does not say in which units its numbers are; give the unit system"},
    {"decks.reading.units-needed-fitting",
     "the deck does not say in which units its numbers are; give the unit system; the numbers look like %1"},
    {"decks.reading.written-only", "decks of %1 can be written, but not read"},
    {"decks.reading.binary", "the content is binary"},
    {"decks.reading.stream-failed", "the file cannot be read to its end"},
    {"decks.reading.units", "The numbers of the deck are read in the unit system %1."},
    {"decks.reading.units-declared", "The deck declares the unit system %1."},
    {"decks.reading.units-overridden", "The deck declares the unit system %1, but is read in %2, which was chosen."},
    {"decks.reading.not-of-materials", "Not of materials, and therefore not taken: %1."},
    {"decks.reading.more-kinds", "and other keywords"},
    {"decks.reading.included", R"(The file includes "%1" in line %2, which is not read; read this file too.)"},
    {"decks.reading.other-unit", "from %1 to %2"},
    {"decks.reading.not-finite", "the number is too large or too small in the unit of the catalogue"},
    {"decks.reading.no-quantity", "the catalogue has no quantity for it"},
    {"decks.reading.name-added", "has no name in the deck"},
}};

} // namespace

vxUnits::Message makeMessage(ReadText text, std::vector<std::string> arguments)
{
    const vxUnits::MessageText& one = texts[static_cast<std::size_t>(text)];
    return {one.id, one.english, std::move(arguments)};
}

std::vector<vxUnits::MessageText> readingTexts()
{
    return {texts.begin(), texts.end()};
}

} // namespace vxDecks
