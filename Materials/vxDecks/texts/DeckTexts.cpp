#include "texts/DeckTexts.h"

#include "texts/TextTable.h"

#include <array>
#include <utility>

namespace vxDecks {

namespace {

constexpr std::array<vxUnits::MessageText, static_cast<std::size_t>(Text::Count)> texts{{
    {"decks.carried", "carried"},
    {"decks.converted", "converted"},
    {"decks.approximated", "approximated"},
    {"decks.lost", "lost"},
    {"decks.units", "The deck is in the unit system %1."},
    {"decks.units-chosen", "The deck is in %1, because the solver would misread numbers in %2."},
    {"decks.renamed", R"(renamed "%1", because the format does not take the name or has it already)"},
    {"decks.renumbered", "has the number %1 instead of %2"},
    {"decks.other-unit", "in %1 instead of %2"},
    {"decks.two-points", "as two points of the curve, up to a plastic strain of %1"},
    {"decks.first-point-added", "the initial yield stress is the point at plastic strain 0"},
    {"decks.bulk-modulus-limited",
     "the solver has no incompressible solid; the bulk modulus is %1 times the initial shear modulus"},
    {"decks.points-of-curve", "as the points of the curve"},
    {"decks.not-finite", "the number is not finite in the unit system of the deck"},
    {"decks.not-in-catalogue", "the catalogue does not have the quantity"},
    {"decks.needs-another", "the card needs %1 too"},
    {"decks.needs-model", "the model needs linear elasticity"},
    {"decks.value-outside", "%1 = %2 is not possible; the value must be %3"},
    {"decks.not-used-by-model", "the material model does not use it"},
    {"decks.model-replaces", "the hyperelastic model replaces it"},
    {"decks.several-models", "more than one hyperelastic model is switched on"},
    {"decks.no-model", "the model is not switched on"},
    {"decks.yield-type-lost", R"(the format has no card for the yield type "%1" with the quantities of the catalogue)"},
    {"decks.no-hardening-data", R"(the hardening type "%1" needs a curve of yield stresses and plastic strains)"},
    {"decks.combined-shares", "the catalogue does not have the shares of isotropic and kinematic hardening"},
    {"decks.curve-lengths", "there are %1 yield stresses and %2 plastic strains"},
    {"decks.curve-empty", "the curve has no points"},
    {"decks.curve-start", "the first plastic strain is %1, but the solver takes the first stress as the yield stress "
                          "at 0; add a point at 0"},
    {"decks.curve-order", "the plastic strains do not ascend"},
    {"decks.curve-gives-yield", "the curve begins with another yield stress, %1"},
    {"decks.below-floor", "the solver replaces %1 by %2; choose another unit system"},
    {"decks.creep-beside-plasticity", "beside plasticity, the solver applies the law to the overstress only"},
    {"decks.factor-needs-exponents", "the unit of the factor depends on both exponents, of which one is missing"},
    {"decks.no-resistivity", "a conductivity of %1 has no resistivity"},
    {"decks.as-resistivity", "as its reciprocal, the resistivity"},
    {"decks.as-shear-modulus", "as the initial shear modulus, which is twice the constant"},
    {"decks.as-tangent-modulus", "as the tangent modulus E H / (E + H), the slope of stress over total strain"},
    {"decks.as-total-strain", "as total strains, plastic strain + stress / E"},
    {"decks.no-arruda-boyce", "the format has no eight-chain model"},
    {"decks.as-bulk-modulus", "as the bulk modulus 2 / D1"},
    {"decks.as-half-bulk-modulus", "as half the bulk modulus, 1 / D1"},
    {"decks.as-poissons-ratio", "as Poisson's ratio, from the bulk modulus 2 / D1 and the initial shear modulus"},
    {"decks.as-links", "as the number of links of a chain, the square of the stretch"},
    {"decks.solid-has-number",
     "the solid has the number of the material; a fluid with the same number is not possible"},
    {"decks.creep-exponents", "the solver takes only exponents with %1 and %2"},
    {"decks.as-total-creep", "as the total form, strain = A / (M + 1) stress^N time^(M + 1)"},
    {"decks.curve-is-isotropic", "the card hardens isotropically along its curve"},
    {"decks.one-model-only", "another model of the material has its number"},
    {"decks.as-long-term-modulus", "as the long-term shear modulus (1 - g) G"},
    {"decks.as-decay", "as the decay constant, 1 / tau"},
    {"decks.as-parameter", "as a parameter of the yield stress"},
    {"decks.no-card-has-place", "no card of the material has a place for it"},
    {"decks.names-only", "The format has no numbers of materials; the chosen number has no effect."},
    {"decks.rounded-to-field", "rounded to a field of %1 characters"},
    {"decks.creep-factor-small",
     "the solver computes with errors if the factor is below %1; choose another unit system"},
    {"decks.needs-large-strains",
     "the solver computes it right only in steps with large strains; write NLGEOM behind *STEP"},
    {"decks.as-acoustic-bulk", "as the bulk modulus, the density times the square of the speed"},
    {"decks.as-permittivity", "as the permittivity, times that of vacuum"},
    {"decks.as-permeability", "as the permeability, times that of vacuum"},
    {"decks.total-strains-do-not-ascend",
     "the table needs ascending total strains (plastic strain plus stress / E), also in the digits of its fields"},
    {"decks.shortened", R"(the name is shortened to "%1"; the format takes %2 bytes of it)"},
    {"decks.no-word", "the material has no word for it"},
    {"decks.word-assumed", R"(the material has no word for it; written as "%1")"},
    {"decks.other-name", R"(the material names it "%1"; the deck has it under its own name)"},
    {"decks.nothing-written", "no card of the deck has anything of the material"},
    {"decks.several-materials", "%1 materials (%2)"},
    {"decks.example", "for example %1: %2"},
}};

} // namespace

vxUnits::Message makeMessage(Text text, std::vector<std::string> arguments)
{
    return messageOf(texts, text, std::move(arguments));
}

std::vector<vxUnits::MessageText> deckTexts()
{
    return {texts.begin(), texts.end()};
}

} // namespace vxDecks
