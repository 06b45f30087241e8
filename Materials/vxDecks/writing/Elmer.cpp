#include "vxMaterial/model/PropertyId.h"
#include "writing/DeckWriter.h"
#include "writing/ModelReports.h"
#include "writing/NumberField.h"

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

constexpr std::size_t longestNumber = 24; // any number with all its digits
constexpr std::size_t longestName = 80;

void writeEntry(MaterialDeck& deck, const std::string& keyword, double value)
{
    deck.line("  " + keyword + " = Real " + writeWithin(value, longestNumber));
}

template <std::int32_t Quantity>
void writeQuantity(MaterialDeck& deck, const char* keyword)
{
    if (const auto number = deck.values().number(Quantity)) {
        writeEntry(deck, keyword, *number);
        deck.carry(Quantity);
    }
}

void writeDensity(MaterialDeck& deck)
{
    writeQuantity<Id::Density>(deck, "Density");
}

void writeSoundSpeed(MaterialDeck& deck)
{
    writeQuantity<Id::SpeedOfSound>(deck, "Sound Speed");
}

void writeHeatCapacity(MaterialDeck& deck)
{
    writeQuantity<Id::SpecificHeat>(deck, "Heat Capacity");
}

void writeHeatConductivity(MaterialDeck& deck)
{
    writeQuantity<Id::ThermalConductivity>(deck, "Heat Conductivity");
}

void writeViscosity(MaterialDeck& deck)
{
    writeQuantity<Id::DynamicViscosity>(deck, "Viscosity");
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

void writeElectricConductivity(MaterialDeck& deck)
{
    writeQuantity<Id::ElectricalConductivity>(deck, "Electric Conductivity");
}

void writePermittivity(MaterialDeck& deck)
{
    writeQuantity<Id::RelativePermittivity>(deck, "Relative Permittivity");
}

void writePermeability(MaterialDeck& deck)
{
    writeQuantity<Id::RelativePermeability>(deck, "Relative Permeability");
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
                                   {{longestName, " _-.()", "M_"}, 999999999},
                                   beginDeck,
                                   beginMaterial,
                                   {{"Density", writeDensity},
                                    {"Sound Speed", writeSoundSpeed},
                                    {"Heat Capacity", writeHeatCapacity},
                                    {"Heat Conductivity", writeHeatConductivity},
                                    {"Viscosity", writeViscosity},
                                    {"Youngs Modulus", writeElastic},
                                    {"Electric Conductivity", writeElectricConductivity},
                                    {"Relative Permittivity", writePermittivity},
                                    {"Relative Permeability", writePermeability}},
                                   endMaterial};
    return format;
}

} // namespace vxDecks
