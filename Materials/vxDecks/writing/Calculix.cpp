#include "texts/DeckTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "writing/NumberField.h"
#include "writing/Writers.h"

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

/// The bulk modulus of an incompressible solid over its shear modulus; Poisson's ratio is then 0.499.
constexpr double bulkOverShear = 500.0;

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
    for (const std::int32_t id : {Id::IsotropicElasticity, Id::YoungsModulus, Id::PoissonsRatio})
        deck.carry(id);
}

/// Returns D1 of a model, and reports it. An incompressible solid gets a small one.
double takeD1(MaterialDeck& deck, const HyperelasticModel& model)
{
    if (model.d1) {
        deck.carry(Id::IncompressibilityParameterD1);
        return *model.d1;
    }
    deck.approximate(Id::IncompressibilityParameterD1,
                     makeMessage(Text::BulkModulusLimited, {writeWithin(bulkOverShear, longestNumber)}));
    return 2.0 / (bulkOverShear * model.shear);
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

const std::vector<std::int32_t>& hyperelasticIds()
{
    static const std::vector<std::int32_t> ids{Id::NeoHooke,
                                               Id::MooneyRivlin,
                                               Id::ArrudaBoyce,
                                               Id::InitialShearModulusMu,
                                               Id::LimitingNetworkStretch,
                                               Id::MaterialConstantC01,
                                               Id::MaterialConstantC10,
                                               Id::MaterialConstantC11,
                                               Id::IncompressibilityParameterD1};
    return ids;
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
    writeConstants(deck, *model, takeD1(deck, *model));
    for (const std::int32_t id : {Id::NeoHooke, Id::MooneyRivlin, Id::ArrudaBoyce})
        deck.carry(id);
    for (const std::int32_t id : model->quantities)
        deck.carry(id);
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

/// Reports the hardening type. The types of which the card has only the curve are converted.
void reportHardeningType(MaterialDeck& deck, const PlasticModel& model)
{
    const std::string type = vxMat::toUpperAscii(deck.values().word(Id::PlasticHardeningType));
    const bool hasOwnForm = type != "SWIFT" && type != "RAMBERG-OSGOOD";
    if (hasOwnForm || model.source == HardeningSource::Modulus)
        deck.carry(Id::PlasticHardeningType);
    else
        deck.convert(Id::PlasticHardeningType, makeMessage(Text::PointsOfCurve));
}

/// Reports an initial yield stress beside a curve, which begins with its own one.
void reportInitialYield(MaterialDeck& deck, const PlasticModel& model)
{
    const auto initial = deck.values().number(Id::PlasticInitialYieldStress);
    if (!initial)
        return;
    if (model.hasAddedPoint)
        deck.convert(Id::PlasticInitialYieldStress, makeMessage(Text::FirstPointAdded));
    else if (*initial == model.yieldStress)
        deck.carry(Id::PlasticInitialYieldStress);
    else
        deck.refuse({Id::PlasticInitialYieldStress},
                    makeMessage(Text::CurveGivesYield, {writeWithin(model.yieldStress, longestNumber)}));
}

void writePlastic(MaterialDeck& deck)
{
    const auto& model = deck.models().plastic.model;
    if (!model)
        return;
    deck.line(model->isKinematic ? "*PLASTIC, HARDENING=KINEMATIC" : "*PLASTIC");
    writeCurve(deck, *model);
    deck.carry(Id::Plasticity);
    deck.carry(Id::PlasticYieldType);
    reportHardeningType(deck, *model);
    reportInitialYield(deck, *model);
    if (model->source == HardeningSource::Modulus) {
        deck.convert(Id::PlasticHardeningFactor,
                     makeMessage(Text::TwoPoints, {writeWithin(lastStrain, longestNumber)}));
        return;
    }
    deck.carry(Id::PlasticYieldStress);
    deck.carry(Id::PlasticStrain);
}

void writeCreep(MaterialDeck& deck)
{
    const auto& model = deck.models().creep.model;
    if (!model)
        return;
    const std::vector<std::int32_t> ids{Id::Creep, Id::CreepModulusA, Id::CreepModulusN, Id::CreepModulusM};
    if (deck.models().plastic.model)
        deck.refuse(ids, makeMessage(Text::CreepBesidePlasticity));
    else if (model->factor < smallestCreepFactor)
        deck.refuse(ids, makeMessage(Text::BelowFloor, {"A below 1e-20", "1e-20"}));
    else {
        deck.line("*CREEP");
        deck.line(numbers({model->factor, model->n, model->m}));
        for (const std::int32_t id : ids)
            deck.carry(id);
    }
}

std::string beginDeck(const vxUnits::UnitSystem& units)
{
    return "** Units: " + baseUnits(units) + "\n";
}

void beginMaterial(MaterialDeck& deck, const Heading& heading, const std::string& userName)
{
    if (heading.name != userName)
        deck.line("** " + commentText(userName, longestComment));
    deck.line("*MATERIAL, NAME=" + heading.name);
}

} // namespace

const FormatWriter& calculixWriter()
{
    static const FormatWriter writer{{80, "_-", "M_"},
                                     0,
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
                                      {"*ELECTRICAL CONDUCTIVITY", writeElectricalConductivity}}};
    return writer;
}

} // namespace vxDecks
