#include "writing/ModelReports.h"

#include "texts/DeckTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::Message;

/// Reports a word as carried, or as assumed if the material has none, as in exchange documents.
void reportWord(MaterialDeck& deck, std::int32_t id, const char* assumed)
{
    if (deck.values().word(id).empty())
        deck.approximate(id, makeMessage(Text::WordAssumed, {assumed}));
    else
        deck.carry(id);
}

/// Reports the hardening type. The types of which formats have only the curve are converted.
void reportHardeningType(MaterialDeck& deck, const PlasticModel& model)
{
    const std::string type = vxMat::toUpperAscii(deck.values().word(Id::PlasticHardeningType));
    const bool hasOwnForm = type != "SWIFT" && type != "RAMBERG-OSGOOD";
    const bool isModulus = model.source == HardeningSource::Modulus;
    if (hasOwnForm || isModulus)
        reportWord(deck, Id::PlasticHardeningType, isModulus ? "Bilinear" : "Multilinear");
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
                    makeMessage(Text::CurveGivesYield, {vxMat::formatNumber(model.yieldStress)}));
}

void carryOrConvert(MaterialDeck& deck, std::int32_t id, const std::optional<Message>& form)
{
    if (form)
        deck.convert(id, *form);
    else
        deck.carry(id);
}

} // namespace

void carryAll(MaterialDeck& deck, const std::vector<std::int32_t>& ids)
{
    for (const std::int32_t id : ids)
        deck.carry(id);
}

void reportElastic(MaterialDeck& deck)
{
    carryAll(deck, {Id::IsotropicElasticity, Id::YoungsModulus, Id::PoissonsRatio});
}

void reportPlastic(MaterialDeck& deck, const PlasticModel& model, const std::optional<Message>& modulusForm)
{
    deck.carry(Id::Plasticity);
    reportWord(deck, Id::PlasticYieldType, "Mises");
    reportHardeningType(deck, model);
    reportInitialYield(deck, model);
    if (model.source == HardeningSource::Modulus)
        carryOrConvert(deck, Id::PlasticHardeningFactor, modulusForm);
    else
        carryAll(deck, {Id::PlasticYieldStress, Id::PlasticStrain});
}

void reportConstants(MaterialDeck& deck, const HyperelasticModel& model)
{
    carryAll(deck, {Id::NeoHooke, Id::MooneyRivlin, Id::ArrudaBoyce});
    carryAll(deck, model.quantities);
}

double takeBulkModulus(MaterialDeck& deck, const HyperelasticModel& model, const std::optional<Message>& form)
{
    if (model.d1) {
        carryOrConvert(deck, Id::IncompressibilityParameterD1, form);
        return 2.0 / *model.d1;
    }
    deck.assume(Id::IncompressibilityParameterD1,
                makeMessage(Text::BulkModulusLimited, {vxMat::formatNumber(bulkOverShear)}));
    return bulkOverShear * model.shear;
}

} // namespace vxDecks
