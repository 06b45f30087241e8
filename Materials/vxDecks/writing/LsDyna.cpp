#include "numbers/NumberField.h"
#include "texts/DeckTexts.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "writing/DeckWriter.h"
#include "writing/ModelReports.h"

#include <algorithm>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

constexpr std::size_t standardWidth = 10;
constexpr std::size_t longWidth = 20;
constexpr std::size_t longestTitle = 70;

using Row = std::vector<Real>;

/// The second line of materials that need one, without effect.
const Row secondRow{0.0, 0.0, 0.0, 0.0};

bool fitsStandard(const Real& number)
{
    return isSameNumber(readWritten(writeWithin(number.value, standardWidth)), number.value);
}

std::string rightAligned(const std::string& text, std::size_t width)
{
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

/// Writes a keyword with its title and rows of numbers, in fields of 10 characters, or if a number would lose digits there, in
/// fields of 20 characters, which the "+" behind the keyword tells.
void writeKeyword(MaterialDeck& deck, const std::string& keyword, const std::string& title, std::uint32_t number,
                  const std::vector<Row>& rows)
{
    const bool isStandard = std::all_of(
        rows.begin(), rows.end(), [](const Row& row) { return std::all_of(row.begin(), row.end(), fitsStandard); });
    const std::size_t width = isStandard ? standardWidth : longWidth;
    deck.line(keyword + (isStandard ? "" : "+"));
    if (!title.empty())
        deck.line(title);
    std::string first = rightAligned(std::to_string(number), width);
    for (const Row& row : rows) {
        for (const Real& one : row)
            first += rightAligned(deck.written(one, width), width);
        deck.line(first);
        first.clear();
    }
}

void writeMaterial(MaterialDeck& deck, const std::string& keyword, const std::vector<Row>& rows)
{
    writeKeyword(deck, keyword + "_TITLE", deck.heading().name, deck.heading().number, rows);
    deck.carry(Id::Density);
}

Real densityOf(const MaterialDeck& deck)
{
    return {deck.values().number(Id::Density).value_or(0.0), Id::Density};
}

/// The numbers that every elastic material begins with: RO, E, PR
Row elasticRow(const MaterialDeck& deck)
{
    const ElasticModel& model = *deck.models().elastic.model;
    return {densityOf(deck), {model.youngsModulus, Id::YoungsModulus}, {model.poissonsRatio, Id::PoissonsRatio}};
}

Row joined(Row row, const Row& more)
{
    row.insert(row.end(), more.begin(), more.end());
    return row;
}

void writeElastic(MaterialDeck& deck)
{
    const MaterialModels& models = deck.models();
    if (!models.elastic.model)
        return;
    if (!models.plastic.model && !models.prony.model && !models.creep.model)
        writeMaterial(deck, "*MAT_ELASTIC", {elasticRow(deck)});
    reportElastic(deck);
}

/// Writes the curve of yield stress over plastic strain, which has the number of the material: LCID, SIDR, SFA, SFO.
void writeCurve(MaterialDeck& deck, const PlasticModel& model)
{
    writeKeyword(deck, "*DEFINE_CURVE", "", deck.heading().number, {{0.0, 1.0, 1.0}});
    for (std::size_t i = 0; i < model.stresses.size(); ++i)
        deck.line(rightAligned(deck.written({model.strains[i], Id::PlasticStrain}, longWidth), longWidth) +
                  rightAligned(deck.written({model.stresses[i], Id::PlasticYieldStress}, longWidth), longWidth));
}

void writeTangent(MaterialDeck& deck, const PlasticModel& model)
{
    const double youngs = deck.models().elastic.model->youngsModulus;
    const double tangent = youngs * model.modulus / (youngs + model.modulus);
    // SIGY, ETAN, BETA: 1 for isotropic hardening, 0 for kinematic hardening
    writeMaterial(deck, "*MAT_PLASTIC_KINEMATIC",
                  {joined(elasticRow(deck), {{model.yieldStress, Id::PlasticInitialYieldStress},
                                             {tangent, Id::PlasticHardeningFactor},
                                             model.isKinematic ? 0.0 : 1.0}),
                   secondRow});
}

void writePlastic(MaterialDeck& deck)
{
    const auto& model = deck.models().plastic.model;
    if (!model)
        return;
    if (model->source == HardeningSource::Modulus) {
        writeTangent(deck, *model);
    } else {
        if (model->isKinematic)
            deck.refuse({Id::PlasticHardeningType}, makeMessage(Text::CurveIsIsotropic));
        const double number = deck.heading().number;
        writeMaterial(deck, "*MAT_PIECEWISE_LINEAR_PLASTICITY",
                      {joined(elasticRow(deck), {{model->yieldStress, Id::PlasticYieldStress}}),
                       {0.0, 0.0, number},
                       {0.0},
                       {0.0}});
        writeCurve(deck, *model);
    }
    reportPlastic(deck, *model, makeMessage(Text::AsTangentModulus));
}

/// The bulk modulus and the shear modulus of linear elasticity.
double bulkModulus(const ElasticModel& model)
{
    return model.youngsModulus / (3.0 * (1.0 - 2.0 * model.poissonsRatio));
}

double shearModulus(const ElasticModel& model)
{
    return model.youngsModulus / (2.0 * (1.0 + model.poissonsRatio));
}

/// *MAT_VISCOELASTIC: RO, BULK, G0, GI, BETA
void writeViscoelastic(MaterialDeck& deck)
{
    const auto& model = deck.models().prony.model;
    if (!model)
        return;
    if (deck.models().plastic.model || deck.models().creep.model) {
        deck.refuse(pronyIds(), makeMessage(Text::OneModelOnly));
        return;
    }
    const ElasticModel& elastic = *deck.models().elastic.model;
    const double shear = shearModulus(elastic);
    writeMaterial(deck, "*MAT_VISCOELASTIC",
                  {{densityOf(deck),
                    bulkModulus(elastic),
                    shear,
                    {(1.0 - model->ratio) * shear, Id::ShearRelaxationModulus},
                    {withoutRoundingError(1.0 / model->time), Id::RelaxationTime}}});
    deck.convert(Id::ShearRelaxationModulus, makeMessage(Text::AsLongTermModulus));
    deck.convert(Id::RelaxationTime, makeMessage(Text::AsDecay));
    carryAll(deck, pronyIds());
}

/// *MAT_UNIFIED_CREEP: RO, E, PR, A, N, M of strain = A stress^N time^M
void writeCreep(MaterialDeck& deck)
{
    const auto& model = deck.models().creep.model;
    if (!model)
        return;
    if (deck.models().plastic.model) {
        deck.refuse(creepIds(), makeMessage(Text::OneModelOnly));
        return;
    }
    const double power = model->m + 1.0;
    writeMaterial(deck, "*MAT_UNIFIED_CREEP",
                  {joined(elasticRow(deck), {{model->factor / power, Id::CreepModulusA},
                                             {model->n, Id::CreepModulusN},
                                             {power, Id::CreepModulusM}})});
    deck.convert(Id::CreepModulusA, makeMessage(Text::AsTotalCreep));
    deck.convert(Id::CreepModulusM, makeMessage(Text::AsTotalCreep));
    carryAll(deck, creepIds());
}

void writeHyperelastic(MaterialDeck& deck)
{
    const auto& model = deck.models().hyperelastic.model;
    if (!model)
        return;
    const bool isArrudaBoyce = model->kind == HyperelasticKind::ArrudaBoyce;
    const double bulk =
        takeBulkModulus(deck, *model, makeMessage(isArrudaBoyce ? Text::AsBulkModulus : Text::AsPoissonsRatio));
    const Real c10{model->c10, Id::MaterialConstantC10};
    const Real c01{model->c01, Id::MaterialConstantC01};
    const Real volume{bulk, Id::IncompressibilityParameterD1};
    const Real poisson{(3.0 * bulk - 2.0 * model->shear) / (6.0 * bulk + 2.0 * model->shear),
                       Id::IncompressibilityParameterD1};
    if (isArrudaBoyce) {
        // RO, K, G, N: the number of links of a chain is the square of its limiting stretch; LCID, TRAMP, NT
        writeMaterial(deck, "*MAT_ARRUDA_BOYCE_RUBBER",
                      {{densityOf(deck),
                        volume,
                        {model->mu, Id::InitialShearModulusMu},
                        {model->stretch * model->stretch, Id::LimitingNetworkStretch}},
                       {0.0, 0.0, 0.0}});
        deck.convert(Id::LimitingNetworkStretch, makeMessage(Text::AsLinks));
    } else if (model->c11 == 0.0) {
        writeMaterial(deck, "*MAT_MOONEY-RIVLIN_RUBBER", {{densityOf(deck), c10, c01, poisson}, secondRow});
    } else {
        // RO, PR, N = 0: the constants are given; C10, C01, C11
        writeMaterial(deck, "*MAT_HYPERELASTIC_RUBBER",
                      {{densityOf(deck), poisson, 0.0}, {c10, c01, {model->c11, Id::MaterialConstantC11}}});
    }
    reportConstants(deck, *model);
}

/// *MAT_ACOUSTIC: RO, C
void writeAcoustic(MaterialDeck& deck)
{
    const auto speed = deck.values().number(Id::SpeedOfSound);
    if (!speed)
        return;
    if (deck.models().elastic.model || deck.models().hyperelastic.model) {
        deck.refuse({Id::SpeedOfSound}, makeMessage(Text::SolidHasNumber));
        return;
    }
    writeMaterial(deck, "*MAT_ACOUSTIC", {{densityOf(deck), {*speed, Id::SpeedOfSound}}, secondRow});
    deck.carry(Id::SpeedOfSound);
}

/// *MAT_NULL: RO, PC, MU
void writeNull(MaterialDeck& deck)
{
    const auto viscosity = deck.values().number(Id::DynamicViscosity);
    if (!viscosity)
        return;
    const MaterialModels& models = deck.models();
    if (models.elastic.model || models.hyperelastic.model || deck.values().has(Id::SpeedOfSound)) {
        deck.refuse({Id::DynamicViscosity}, makeMessage(Text::OneModelOnly));
        return;
    }
    writeMaterial(deck, "*MAT_NULL", {{densityOf(deck), 0.0, {*viscosity, Id::DynamicViscosity}}});
    deck.carry(Id::DynamicViscosity);
}

/// *MAT_THERMAL_ISOTROPIC: TRO, TGRLC, TGMULT, TLAT, HLAT; HC, TC
void writeThermal(MaterialDeck& deck)
{
    const auto heat = deck.values().number(Id::SpecificHeat);
    const auto conductivity = deck.values().number(Id::ThermalConductivity);
    if (!heat && !conductivity)
        return;
    if (!heat || !conductivity) {
        const std::int32_t missing = heat ? Id::ThermalConductivity : Id::SpecificHeat;
        deck.refuse({Id::SpecificHeat, Id::ThermalConductivity},
                    makeMessage(Text::NeedsAnother, {vxMat::findPropertyRecord(missing)->name}));
        return;
    }
    writeMaterial(deck, "*MAT_THERMAL_ISOTROPIC",
                  {{densityOf(deck), 0.0, 0.0}, {{*heat, Id::SpecificHeat}, {*conductivity, Id::ThermalConductivity}}});
    carryAll(deck, {Id::SpecificHeat, Id::ThermalConductivity});
}

std::string beginDeck(const vxUnits::UnitSystem& units)
{
    return "$ Units: " + baseUnits(units) + "\n";
}

} // namespace

const CardFormat& lsDynaFormat()
{
    static const CardFormat format{Format::LsDyna,
                                   anyText(longestTitle, "*$"),
                                   beginDeck,
                                   nullptr,
                                   {{"*MAT_ELASTIC", writeElastic},
                                    {"*MAT_ACOUSTIC", writeAcoustic},
                                    {"*MAT_THERMAL_ISOTROPIC", writeThermal},
                                    {"*MAT_NULL", writeNull},
                                    {"*MAT_MOONEY-RIVLIN_RUBBER", writeHyperelastic},
                                    {"*MAT_PLASTIC_KINEMATIC", writePlastic},
                                    {"*MAT_VISCOELASTIC", writeViscoelastic},
                                    {"*MAT_UNIFIED_CREEP", writeCreep}},
                                   nullptr};
    return format;
}

} // namespace vxDecks
