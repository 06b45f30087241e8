#include "numbers/NumberField.h"
#include "vxMaterial/model/PropertyId.h"
#include "writing/DeckWriter.h"
#include "writing/ModelReports.h"

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

constexpr std::size_t longestNumber = 24; // any number with all its digits
constexpr std::size_t longestName = 80;

void writeEntry(MaterialDeck& deck, std::string_view keyword, const Real& number)
{
    deck.line("  " + std::string(keyword) + " = Real " + writeWithin(number.value, longestNumber));
}

void writeElastic(MaterialDeck& deck)
{
    const auto& model = deck.models().elastic.model;
    if (!model)
        return;
    writeEntry(deck, "Youngs Modulus", model->youngsModulus);
    writeEntry(deck, "Poisson Ratio", model->poissonsRatio);
    reportElastic(deck);
}

/// Returns the writer of a card whose name is its keyword.
CardWriter keywordCard(std::string_view keyword, std::int32_t id)
{
    return quantityCard(keyword, keyword, id, writeEntry);
}

std::string beginDeck(const vxUnits::UnitSystem& units)
{
    return "! Units: " + baseUnits(units) + "\n";
}

void beginMaterial(MaterialDeck& deck)
{
    deck.line("");
    if (deck.heading().name != deck.userName())
        deck.line("! " + commentText(deck.userName(), longestName));
    deck.line("Material " + std::to_string(deck.heading().number));
    deck.line("  Name = \"" + deck.heading().name + "\"");
}

void endMaterial(MaterialDeck& deck)
{
    deck.line("End");
}

} // namespace

const CardFormat& elmerFormat()
{
    static const CardFormat format{Format::Elmer,
                                   {longestName, " _-.()", "M_"},
                                   beginDeck,
                                   beginMaterial,
                                   {keywordCard("Density", Id::Density),
                                    keywordCard("Sound Speed", Id::SpeedOfSound),
                                    keywordCard("Heat Capacity", Id::SpecificHeat),
                                    keywordCard("Heat Conductivity", Id::ThermalConductivity),
                                    keywordCard("Viscosity", Id::DynamicViscosity),
                                    {"Youngs Modulus", writeElastic},
                                    keywordCard("Electric Conductivity", Id::ElectricalConductivity),
                                    keywordCard("Relative Permittivity", Id::RelativePermittivity),
                                    keywordCard("Relative Permeability", Id::RelativePermeability)},
                                   endMaterial};
    return format;
}

} // namespace vxDecks
