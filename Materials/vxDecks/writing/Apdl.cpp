#include "numbers/NumberField.h"
#include "texts/DeckTexts.h"
#include "vxMaterial/model/PropertyId.h"
#include "writing/DeckWriter.h"
#include "writing/ModelReports.h"

#include <cmath>
#include <initializer_list>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

constexpr std::size_t longestNumber = 24; // any number with all its digits
constexpr std::size_t longestComment = 70;

std::string written(double number)
{
    return writeWithin(number, longestNumber);
}

std::string materialOf(const MaterialDeck& deck)
{
    return std::to_string(deck.heading().number);
}

void writeProperty(MaterialDeck& deck, std::string_view label, const Real& number)
{
    deck.line("MP," + std::string(label) + "," + materialOf(deck) + "," + written(number.value));
}

void writeElastic(MaterialDeck& deck)
{
    const auto& model = deck.models().elastic.model;
    if (!model)
        return;
    writeProperty(deck, "EX", model->youngsModulus);
    writeProperty(deck, "PRXY", model->poissonsRatio);
    reportElastic(deck);
}

/// Writes the resistivity. A perfect insulator has none.
void writeResistivity(MaterialDeck& deck)
{
    const auto conductivity = deck.values().number(Id::ElectricalConductivity);
    if (!conductivity)
        return;
    if (!(*conductivity > 0.0) || !std::isfinite(1.0 / *conductivity)) {
        deck.refuse({Id::ElectricalConductivity}, makeMessage(Text::NoResistivity, {written(*conductivity)}));
        return;
    }
    writeProperty(deck, "RSVX", withoutRoundingError(1.0 / *conductivity));
    deck.convert(Id::ElectricalConductivity, makeMessage(Text::AsResistivity));
}

void writeTable(MaterialDeck& deck, const std::string& label, const std::string& rest)
{
    deck.line("TB," + label + "," + materialOf(deck) + "," + rest);
}

void writeData(MaterialDeck& deck, std::initializer_list<double> values)
{
    std::string text = "TBDATA,1";
    for (const double value : values)
        text += "," + written(value);
    deck.line(text);
}

/// Returns D1, and reports it. The solver takes 0 as incompressible.
double takeD1(MaterialDeck& deck, const HyperelasticModel& model)
{
    deck.carry(Id::IncompressibilityParameterD1);
    return model.d1.value_or(0.0);
}

void writeHyperelastic(MaterialDeck& deck)
{
    const auto& model = deck.models().hyperelastic.model;
    if (!model)
        return;
    const double d1 = takeD1(deck, *model);
    if (model->kind == HyperelasticKind::NeoHooke) {
        writeTable(deck, "HYPER", "1,2,NEO");
        writeData(deck, {2.0 * model->c10, d1});
        deck.convert(Id::MaterialConstantC10, makeMessage(Text::AsShearModulus));
    } else if (model->kind == HyperelasticKind::ArrudaBoyce) {
        writeTable(deck, "HYPER", "1,3,BOYCE");
        writeData(deck, {model->mu, model->stretch, d1});
    } else if (model->c11 == 0.0) {
        writeTable(deck, "HYPER", "1,2,MOONEY");
        writeData(deck, {model->c10, model->c01, d1});
    } else {
        writeTable(deck, "HYPER", "1,3,MOONEY");
        writeData(deck, {model->c10, model->c01, model->c11, d1});
    }
    reportConstants(deck, *model);
}

void writePlastic(MaterialDeck& deck)
{
    const auto& model = deck.models().plastic.model;
    if (!model)
        return;
    if (model->source == HardeningSource::Modulus) {
        const double youngs = deck.models().elastic.model->youngsModulus;
        writeTable(deck, model->isKinematic ? "BKIN" : "BISO", "1");
        writeData(deck, {model->yieldStress, youngs * model->modulus / (youngs + model->modulus)});
    } else {
        const std::string count = std::to_string(model->stresses.size());
        writeTable(deck, "PLASTIC", "1," + count + (model->isKinematic ? ",KINH" : ",MISO"));
        for (std::size_t i = 0; i < model->stresses.size(); ++i)
            deck.line("TBPT,DEFI," + written(model->strains[i]) + "," + written(model->stresses[i]));
    }
    reportPlastic(deck, *model, makeMessage(Text::AsTangentModulus));
}

void writeProny(MaterialDeck& deck)
{
    const auto& model = deck.models().prony.model;
    if (!model)
        return;
    writeTable(deck, "PRONY", "1,1,SHEAR");
    writeData(deck, {model->ratio, model->time});
    carryAll(deck, pronyIds());
}

void writeCreep(MaterialDeck& deck)
{
    const auto& model = deck.models().creep.model;
    if (!model)
        return;
    // Option 2: strain rate = C1 stress^C2 time^C3 exp(-C4 / T)
    writeTable(deck, "CREEP", "1,4,2");
    writeData(deck, {model->factor, model->n, model->m, 0.0});
    carryAll(deck, creepIds());
}

std::string beginDeck(const vxUnits::UnitSystem& units)
{
    return "! Units: " + baseUnits(units) + "\n";
}

void beginMaterial(MaterialDeck& deck)
{
    deck.line("! Material " + std::to_string(deck.heading().number) + ": " + deck.heading().name);
}

} // namespace

const CardFormat& apdlFormat()
{
    static const CardFormat format{Format::Apdl,
                                   anyText(longestComment),
                                   beginDeck,
                                   beginMaterial,
                                   {quantityCard("MP,DENS", "DENS", Id::Density, writeProperty),
                                    quantityCard("MP,SONC", "SONC", Id::SpeedOfSound, writeProperty),
                                    quantityCard("MP,C", "C", Id::SpecificHeat, writeProperty),
                                    quantityCard("MP,KXX", "KXX", Id::ThermalConductivity, writeProperty),
                                    quantityCard("MP,VISC", "VISC", Id::DynamicViscosity, writeProperty),
                                    {"MP,EX", writeElastic},
                                    {"TB,HYPER", writeHyperelastic},
                                    {"TB,BISO", writePlastic},
                                    {"TB,PRONY", writeProny},
                                    {"TB,CREEP", writeCreep},
                                    {"MP,RSVX", writeResistivity},
                                    quantityCard("MP,PERX", "PERX", Id::RelativePermittivity, writeProperty),
                                    quantityCard("MP,MURX", "MURX", Id::RelativePermeability, writeProperty)},
                                   nullptr};
    return format;
}

} // namespace vxDecks
