#include "texts/DeckTexts.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "writing/DeckWriter.h"
#include "writing/ModelReports.h"
#include "writing/NumberField.h"

#include <initializer_list>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

/// The solver reads at most this many characters of a number and ignores the others without a message.
constexpr std::size_t longestNumber = 20;

/// The solver reads at most 132 characters of a line.
constexpr std::size_t longestComment = 100;

/// A smaller D1 is replaced by 0.1 over the shear modulus, a smaller creep factor by this one.
constexpr double smallestD1 = 1e-10;
constexpr double smallestCreepFactor = 1e-20;

/// The plastic strain of the second point of a bilinear curve. The solver keeps the stress constant beyond it.
constexpr double lastStrain = 10.0;

/// The second D of a polynomial, relative to the first: so large that its term has no effect.
constexpr double secondD = 1e10;

std::string numbers(std::initializer_list<double> values)
{
    std::string text;
    for (const double value : values)
        text += (text.empty() ? "" : ", ") + writeWithin(value, longestNumber);
    return text;
}

void writeNumber(MaterialDeck& deck, const char* card, std::int32_t id)
{
    const auto number = deck.values().number(id);
    if (!number)
        return;
    deck.line(card);
    deck.line(numbers({*number}));
    deck.carry(id);
}

void writeDensity(MaterialDeck& deck)
{
    writeNumber(deck, "*DENSITY", Id::Density);
}

void writeSpecificHeat(MaterialDeck& deck)
{
    writeNumber(deck, "*SPECIFIC HEAT", Id::SpecificHeat);
}

void writeConductivity(MaterialDeck& deck)
{
    writeNumber(deck, "*CONDUCTIVITY", Id::ThermalConductivity);
}

void writeElectricalConductivity(MaterialDeck& deck)
{
    writeNumber(deck, "*ELECTRICAL CONDUCTIVITY", Id::ElectricalConductivity);
}

void writeFluidConstants(MaterialDeck& deck)
{
    const auto viscosity = deck.values().number(Id::DynamicViscosity);
    const auto heat = deck.values().number(Id::SpecificHeat);
    if (viscosity && !heat) {
        const std::string name = vxMat::findPropertyRecord(Id::SpecificHeat)->name;
        deck.refuse({Id::DynamicViscosity}, makeMessage(Text::NeedsAnother, {name}));
    }
    if (!viscosity || !heat)
        return;
    deck.line("*FLUID CONSTANTS");
    deck.line(numbers({*heat, *viscosity}));
    deck.carry(Id::DynamicViscosity);
}

void writeElastic(MaterialDeck& deck)
{
    const auto& model = deck.models().elastic.model;
    if (!model)
        return;
    deck.line("*ELASTIC");
    deck.line(numbers({model->youngsModulus, model->poissonsRatio}));
    reportElastic(deck);
}

void writeConstants(MaterialDeck& deck, const HyperelasticModel& model, double d1)
{
    if (model.kind == HyperelasticKind::NeoHooke) {
        deck.line("*HYPERELASTIC, NEO HOOKE");
        deck.line(numbers({model.c10, d1}));
    } else if (model.kind == HyperelasticKind::ArrudaBoyce) {
        deck.line("*HYPERELASTIC, ARRUDA-BOYCE");
        deck.line(numbers({model.mu, model.stretch, d1}));
    } else if (model.c11 == 0.0) {
        deck.line("*HYPERELASTIC, MOONEY-RIVLIN");
        deck.line(numbers({model.c10, model.c01, d1}));
    } else {
        deck.line("*HYPERELASTIC, POLYNOMIAL, N=2");
        deck.line(numbers({model.c10, model.c01, 0.0, model.c11, 0.0, d1, d1 * secondD}));
    }
}

void writeHyperelastic(MaterialDeck& deck)
{
    const auto& model = deck.models().hyperelastic.model;
    if (!model)
        return;
    if (model->d1.value_or(1.0) < smallestD1 || (!model->d1 && bulkOverShear * model->shear > 2.0 / smallestD1)) {
        deck.refuse(hyperelasticIds(), makeMessage(Text::BelowFloor, {"D1 below 1e-10", "K = 20 mu"}));
        return;
    }
    const double bulk = takeBulkModulus(deck, *model, std::nullopt);
    writeConstants(deck, *model, model->d1.value_or(2.0 / bulk));
    reportConstants(deck, *model);
}

void writeCurve(MaterialDeck& deck, const PlasticModel& model)
{
    if (model.source == HardeningSource::Points) {
        for (std::size_t i = 0; i < model.stresses.size(); ++i)
            deck.line(numbers({model.stresses[i], model.strains[i]}));
        return;
    }
    deck.line(numbers({model.yieldStress, 0.0}));
    if (model.modulus != 0.0)
        deck.line(numbers({model.yieldStress + lastStrain * model.modulus, lastStrain}));
}

void writePlastic(MaterialDeck& deck)
{
    const auto& model = deck.models().plastic.model;
    if (!model)
        return;
    deck.line(model->isKinematic ? "*PLASTIC, HARDENING=KINEMATIC" : "*PLASTIC");
    writeCurve(deck, *model);
    reportPlastic(deck, *model, makeMessage(Text::TwoPoints, {writeWithin(lastStrain, longestNumber)}));
}

void writeCreep(MaterialDeck& deck)
{
    const auto& model = deck.models().creep.model;
    if (!model)
        return;
    if (deck.models().plastic.model)
        deck.refuse(creepIds(), makeMessage(Text::CreepBesidePlasticity));
    else if (model->factor < smallestCreepFactor)
        deck.refuse(creepIds(), makeMessage(Text::BelowFloor, {"A below 1e-20", "1e-20"}));
    else {
        deck.line("*CREEP");
        deck.line(numbers({model->factor, model->n, model->m}));
        carryAll(deck, creepIds());
    }
}

std::string beginDeck(const vxUnits::UnitSystem& units)
{
    return "** Units: " + baseUnits(units) + "\n";
}

void beginMaterial(MaterialDeck& deck)
{
    if (deck.heading().name != deck.userName())
        deck.line("** " + commentText(deck.userName(), longestComment));
    deck.line("*MATERIAL, NAME=" + deck.heading().name);
}

} // namespace

const CardFormat& calculixFormat()
{
    static const CardFormat format{Format::Calculix,
                                   {{80, "_-", "M_"}, 0},
                                   beginDeck,
                                   beginMaterial,
                                   {{"*DENSITY", writeDensity},
                                    {"*SPECIFIC HEAT", writeSpecificHeat},
                                    {"*CONDUCTIVITY", writeConductivity},
                                    {"*FLUID CONSTANTS", writeFluidConstants},
                                    {"*ELASTIC", writeElastic},
                                    {"*HYPERELASTIC", writeHyperelastic},
                                    {"*PLASTIC", writePlastic},
                                    {"*CREEP", writeCreep},
                                    {"*ELECTRICAL CONDUCTIVITY", writeElectricalConductivity}},
                                   nullptr};
    return format;
}

} // namespace vxDecks
