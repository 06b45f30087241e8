#include "models/Vacuum.h"
#include "numbers/NumberField.h"
#include "texts/DeckTexts.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "writing/DeckWriter.h"
#include "writing/ModelReports.h"

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
constexpr double smallestCommercialCreepFactor = 1e-27;

/// The plastic strain of the second point of a bilinear curve. The solver keeps the stress constant beyond it.
constexpr double lastStrain = 10.0;

/// The second D of a polynomial, relative to the first: so large that its term has no effect.
constexpr double secondD = 1e10;

/// Adds a line of numbers.
void writeNumbers(MaterialDeck& deck, std::initializer_list<Real> numbers)
{
    std::string text;
    for (const Real& number : numbers)
        text += (text.empty() ? "" : ", ") + deck.written(number, longestNumber);
    deck.line(text);
}

void writeEntry(MaterialDeck& deck, std::string_view card, const Real& number)
{
    deck.line(card);
    writeNumbers(deck, {number});
}

/// Returns the writer of a card that has the number of a quantity.
CardWriter numberCard(std::string_view card, std::int32_t id)
{
    return quantityCard(card, card, id, writeEntry);
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
    writeNumbers(deck, {{*heat, Id::SpecificHeat}, {*viscosity, Id::DynamicViscosity}});
    deck.carry(Id::DynamicViscosity);
}

void writeElastic(MaterialDeck& deck)
{
    const auto& model = deck.models().elastic.model;
    if (!model)
        return;
    // The commercial solver takes the modulus of a viscoelastic solid as the one after a long time, unless told otherwise.
    const bool isViscoelastic = deck.isCommercial() && deck.models().prony.model;
    deck.line(isViscoelastic ? "*ELASTIC, MODULI=INSTANTANEOUS" : "*ELASTIC");
    writeNumbers(deck, {{model->youngsModulus, Id::YoungsModulus}, {model->poissonsRatio, Id::PoissonsRatio}});
    reportElastic(deck);
}

void writeConstants(MaterialDeck& deck, const HyperelasticModel& model, double lastNumber)
{
    const Real c10{model.c10, Id::MaterialConstantC10};
    const Real c01{model.c01, Id::MaterialConstantC01};
    const Real d1{lastNumber, Id::IncompressibilityParameterD1};
    if (model.kind == HyperelasticKind::NeoHooke) {
        deck.line("*HYPERELASTIC, NEO HOOKE");
        writeNumbers(deck, {c10, d1});
    } else if (model.kind == HyperelasticKind::ArrudaBoyce) {
        deck.line("*HYPERELASTIC, ARRUDA-BOYCE");
        writeNumbers(deck, {{model.mu, Id::InitialShearModulusMu}, {model.stretch, Id::LimitingNetworkStretch}, d1});
    } else if (model.c11 == 0.0) {
        deck.line("*HYPERELASTIC, MOONEY-RIVLIN");
        writeNumbers(deck, {c10, c01, d1});
    } else {
        deck.line("*HYPERELASTIC, POLYNOMIAL, N=2");
        writeNumbers(deck, {c10, c01, 0.0, {model.c11, Id::MaterialConstantC11}, 0.0, d1, lastNumber * secondD});
    }
}

void writeHyperelastic(MaterialDeck& deck)
{
    const auto& model = deck.models().hyperelastic.model;
    if (!model)
        return;
    if (deck.isCommercial()) { // which has incompressible solids, with D1 = 0
        writeConstants(deck, *model, model->d1.value_or(0.0));
        deck.carry(Id::IncompressibilityParameterD1);
        reportConstants(deck, *model);
        return;
    }
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
            writeNumbers(deck, {{model.stresses[i], Id::PlasticYieldStress}, {model.strains[i], Id::PlasticStrain}});
        return;
    }
    writeNumbers(deck, {{model.yieldStress, Id::PlasticInitialYieldStress}, 0.0});
    if (model.modulus != 0.0 || (deck.isCommercial() && model.isKinematic)) // which needs two points then
        writeNumbers(deck, {{model.yieldStress + lastStrain * model.modulus, Id::PlasticHardeningFactor}, lastStrain});
}

void writePlastic(MaterialDeck& deck)
{
    const auto& model = deck.models().plastic.model;
    if (!model)
        return;
    // The commercial solver has kinematic hardening along a straight line only.
    const bool isCurved = deck.isCommercial() && model->stresses.size() > 2;
    if (isCurved && model->isKinematic)
        deck.refuse({Id::PlasticHardeningType}, makeMessage(Text::CurveIsIsotropic));
    else if (model->isKinematic && !deck.isCommercial())
        deck.carry(Id::PlasticHardeningType, makeMessage(Text::NeedsLargeStrains));
    deck.line(model->isKinematic && !isCurved ? "*PLASTIC, HARDENING=KINEMATIC" : "*PLASTIC");
    writeCurve(deck, *model);
    reportPlastic(deck, *model, makeMessage(Text::TwoPoints, {writeWithin(lastStrain, longestNumber)}));
}

/// A smaller creep factor is replaced by CalculiX; the commercial solver computes with errors then.
bool isBelowFloor(const MaterialDeck& deck, const CreepModel& model)
{
    return model.factor < (deck.isCommercial() ? smallestCommercialCreepFactor : smallestCreepFactor);
}

void writeCreep(MaterialDeck& deck)
{
    const auto& model = deck.models().creep.model;
    if (!model)
        return;
    if (deck.models().plastic.model && !deck.isCommercial())
        deck.refuse(creepIds(), makeMessage(Text::CreepBesidePlasticity));
    else if (isBelowFloor(deck, *model))
        deck.refuse(creepIds(), deck.isCommercial() ? makeMessage(Text::CreepFactorSmall, {"1e-27"})
                                                    : makeMessage(Text::BelowFloor, {"A below 1e-20", "1e-20"}));
    else {
        deck.line(deck.isCommercial() ? "*CREEP, LAW=TIME" : "*CREEP");
        writeNumbers(
            deck, {{model->factor, Id::CreepModulusA}, {model->n, Id::CreepModulusN}, {model->m, Id::CreepModulusM}});
        carryAll(deck, creepIds());
    }
}

/// Writes the ratios of the shear and of the bulk modulus that relax, and the time.
void writeProny(MaterialDeck& deck)
{
    const auto& model = deck.models().prony.model;
    if (!model)
        return;
    deck.line("*VISCOELASTIC, TIME=PRONY");
    writeNumbers(deck, {{model->ratio, Id::ShearRelaxationModulus}, 0.0, {model->time, Id::RelaxationTime}});
    carryAll(deck, pronyIds());
}

void writeAcoustic(MaterialDeck& deck)
{
    const auto speed = deck.values().number(Id::SpeedOfSound);
    const auto density = deck.values().number(Id::Density);
    if (speed && !density)
        deck.refuse({Id::SpeedOfSound},
                    makeMessage(Text::NeedsAnother, {vxMat::findPropertyRecord(Id::Density)->name}));
    if (!speed || !density)
        return;
    writeEntry(deck, "*ACOUSTIC MEDIUM, BULK MODULUS",
               {withoutRoundingError(*density * *speed * *speed), Id::SpeedOfSound});
    deck.convert(Id::SpeedOfSound, makeMessage(Text::AsAcousticBulk));
}

/// Writes a quantity that is relative to that of vacuum as the absolute one.
void writeAbsolute(MaterialDeck& deck, const char* card, std::int32_t id, const VacuumConstant& vacuum, Text how)
{
    const auto relative = deck.values().number(id);
    if (!relative)
        return;
    writeEntry(deck, card, {withoutRoundingError(*relative * vacuum.in(deck.units())), id});
    deck.convert(id, makeMessage(how));
}

void writePermittivity(MaterialDeck& deck)
{
    writeAbsolute(deck, "*DIELECTRIC", Id::RelativePermittivity, vacuumPermittivity(), Text::AsPermittivity);
}

void writePermeability(MaterialDeck& deck)
{
    writeAbsolute(deck, "*MAGNETIC PERMEABILITY", Id::RelativePermeability, vacuumPermeability(), Text::AsPermeability);
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
                                   calculixNames(),
                                   beginDeck,
                                   beginMaterial,
                                   {numberCard("*DENSITY", Id::Density),
                                    numberCard("*SPECIFIC HEAT", Id::SpecificHeat),
                                    numberCard("*CONDUCTIVITY", Id::ThermalConductivity),
                                    {"*FLUID CONSTANTS", writeFluidConstants},
                                    {"*ELASTIC", writeElastic},
                                    {"*HYPERELASTIC", writeHyperelastic},
                                    {"*PLASTIC", writePlastic},
                                    {"*CREEP", writeCreep},
                                    {"*VISCOELASTIC", writeProny},
                                    {"*ACOUSTIC MEDIUM", writeAcoustic},
                                    numberCard("*VISCOSITY", Id::DynamicViscosity),
                                    {"*DIELECTRIC", writePermittivity},
                                    {"*MAGNETIC PERMEABILITY", writePermeability},
                                    numberCard("*ELECTRICAL CONDUCTIVITY", Id::ElectricalConductivity)},
                                   nullptr};
    return format;
}

} // namespace vxDecks
