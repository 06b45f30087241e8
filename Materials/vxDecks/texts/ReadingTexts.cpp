#include "texts/ReadingTexts.h"

#include "texts/TextTable.h"

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
    {"decks.reading.other-units-declared", "the deck declares the unit system %1 here, but %2 in a line before; divide "
                                           "it into decks of one unit system each"},
    {"decks.reading.not-of-materials", "Not of materials, and therefore not taken: %1."},
    {"decks.reading.included", R"(The file includes "%1" in line %2, which is not read; read this file too.)"},
    {"decks.reading.other-unit", "from %1 to %2"},
    {"decks.reading.not-finite", "the number is too large or too small in the unit of the catalogue"},
    {"decks.reading.no-quantity", "the catalogue has no quantity for it"},
    {"decks.reading.name-added", "has no name in the deck"},
    {"decks.reading.nothing-read", "no quantity is read; the material is empty"},
    {"decks.reading.at-temperature", "%1: values at temperature %2; the temperature is not kept"},
    {"decks.reading.bad-number", R"("%1" is not a number)"},
    {"decks.reading.too-few-numbers", "%1 has too few numbers; the least is %2"},
    {"decks.reading.too-many-lines", "%1 has more than %2 lines"},
    {"decks.reading.line-too-long", "the line is longer than %1 characters"},
    {"decks.reading.temperature-table", "it is a table over temperature, and the catalogue has no such tables"},
    {"decks.reading.more-than-temperature", "it depends on more than the temperature"},
    {"decks.reading.type-not-isotropic", "%1 is not isotropic"},
    {"decks.reading.no-model-for-kind", "the catalogue has no model for %1"},
    {"decks.reading.no-model-for-terms", "the catalogue has no constants C20 and C02"},
    {"decks.reading.repeated", "the card of line %1 is replaced by another one of the same material in line %2"},
    {"decks.reading.in-another-file", "its numbers are in another file"},
    {"decks.reading.may-go-on-elsewhere",
     "%1 ends where line %2 includes a file. If that file begins with more numbers of the card, they are missing."},
    {"decks.reading.by-parameters", "its numbers are parameters, which are not evaluated"},
    {"decks.reading.unknown-keyword", "the keyword is not known"},
    {"decks.reading.long-number", R"(line %1: CalculiX reads only the first 20 characters of "%2")"},
    {"decks.reading.from-two-points", "from two points of the curve, up to a plastic strain of %1"},
    {"decks.reading.from-one-point", "from one point of the curve: no hardening"},
    {"decks.reading.from-polynomial", "from a polynomial of the strain energy"},
    {"decks.reading.second-order-of-volume", "the term of D2 is not taken"},
    {"decks.reading.incompressible-by-zero",
     "0 is read as incompressible; CalculiX itself takes a bulk modulus of 20 shear moduli"},
    {"decks.reading.value-absent", "the deck has no value; the solver takes 0"},
    {"decks.reading.hardening-of-time",
     "The creep law has no LAW. It is read as time hardening, as CalculiX does; relatives take strain hardening."},
    {"decks.reading.several-terms", "it has %1 terms, and the catalogue has one"},
    {"decks.reading.bulk-relaxes", "the catalogue has no relaxation of the bulk modulus"},
    {"decks.reading.from-long-term", "from the long-term modulus, with a constant bulk modulus"},
    {"decks.reading.relaxes-wholly",
     "the shear modulus relaxes to 0, so that no elasticity of long term belongs to it"},
    {"decks.reading.over-frequency", "only the relaxation over time by a Prony series is read"},
    {"decks.reading.over-strain-rate", "it depends on the strain rate"},
    {"decks.reading.curve-not-from-zero", "the first plastic strain is %1, not 0; check the curve"},
    {"decks.reading.curve-not-ascending", "the plastic strains do not ascend; check the curve"},
    {"decks.reading.from-absolute", "from the absolute value, over that of vacuum"},
    {"decks.reading.from-bulk-modulus", "from the bulk modulus and the density"},
    {"decks.reading.no-speed-of-sound", "the speed of sound needs a bulk modulus and a density above 0"},
    {"decks.reading.more-cards", "%1 more cards are not taken"},
    {"decks.reading.more-included", "The file includes files in %1 more lines, which are not read."},
    {"decks.reading.more-foreign", "%1 more cards are not of materials."},
    {"decks.reading.finding-in-line", "line %1, %2: %3"},
    {"decks.reading.models-exclude", R"("%1" and "%2" exclude each other; remove one of them)"},
    {"decks.reading.other-specific-heat", "its specific heat differs from that of *SPECIFIC HEAT, which is taken"},
    {"decks.reading.parameter-not-read", "the parameter %1 is not evaluated; check the numbers"},
}};

} // namespace

vxUnits::Message makeMessage(ReadText text, std::vector<std::string> arguments)
{
    return messageOf(texts, text, std::move(arguments));
}

std::vector<vxUnits::MessageText> readingTexts()
{
    return {texts.begin(), texts.end()};
}

} // namespace vxDecks
