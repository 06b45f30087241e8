#include "vxMaterial/exchange/CardSet.h"

#include "vxMaterial/json/Utf8.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace vxCAE {

namespace {

using vxMat::PropertyId;

using Argument = vxMat::FindingArgument;

/// The doubts, sources of translations in vxMat::findingContext.
namespace doubt {
constexpr const char* lacksValue = R"(the %1 card lacks a value: "%2")";
constexpr const char* documentLoses =
    "the plasticity card cannot be complete: exchange documents carry no words and lists";
constexpr const char* documentLosesThese =
    "the plasticity card cannot be complete: exchange documents carry no words and lists (%1)";
constexpr const char* noPlasticity = R"(no plasticity card is written for yield type "%1" with hardening type "%2")";
constexpr const char* noCurve = R"(the plasticity card has no hardening curve: the material has no numbers of "%1")";
constexpr const char* unusedIfBilinear = R"(the plasticity card leaves out numbers of "%1", which the solver does not )"
                                         "use with bilinear hardening: %2";
constexpr const char* unusedWithYieldType =
    R"(the plasticity card leaves out numbers of "%1", which the solver does not use with yield type "%3": %2)";
constexpr const char* withoutStrain =
    R"(the plasticity card leaves out numbers of "%1", which have no plastic strain: %2)";
constexpr const char* withoutStress =
    R"(the plasticity card leaves out numbers of "%1", which have no yield stress: %2)";
constexpr const char* passedOver = R"(no card is written for "%1": another model of the material takes precedence)";
constexpr const char* notFinite = R"("%1" has a number that is not finite, which no solver reads)";
} // namespace doubt

void addDoubt(CardSet& set, std::int32_t slot, const char* message, std::vector<Argument> arguments)
{
    set.doubts.push_back({slot, vxMat::FindingSeverity::Warning, message, std::move(arguments)});
}

Argument textArgument(std::string text)
{
    return {Argument::Kind::Text, std::move(text)};
}

Argument nameArgument(std::int32_t id)
{
    return {Argument::Kind::QuantityName, vxMat::findPropertyRecord(id)->name};
}

Argument wordArgument(const vxMat::CMaterial& material, std::int32_t id)
{
    return {Argument::Kind::Word, material.getPropertyText(id)};
}

void addCard(CardSet& set, const char* name, std::string text)
{
    const std::size_t message = text.find("Invalid");
    if (message != std::string::npos)
        addDoubt(
            set, 0, doubt::lacksValue,
            {{Argument::Kind::CardName, name}, textArgument(text.substr(message, text.find('\n', message) - message))});
    set.cards.push_back({name, std::move(text)});
}

/// Returns the names of the words and lists that the material should have and a document does not contain.
std::string lostWordsAndLists(const vxMat::CMaterial& material)
{
    std::string names;
    for (const std::int32_t id : {PropertyId::PlasticYieldType, PropertyId::PlasticHardeningType,
                                  PropertyId::PlasticYieldStress, PropertyId::PlasticStrain})
    {
        if (material.hasProperty(id))
            names += std::string(names.empty() ? "" : ", ") + '"' + vxMat::findPropertyRecord(id)->name + '"';
    }
    return names;
}

/// Adds a doubt: the plasticity card lacks the numbers of a list from the position `first` on. The message has the places
/// of the name of the list and its numbers, and of `more`.
void doubtLeftOut(CardSet& set, const vxMat::CMaterial& material, std::int32_t id, std::size_t first,
                  const char* message, const std::vector<Argument>& more = {})
{
    const std::vector<double>& all = material.getPropertyValues(id);
    if (first >= all.size())
        return;
    const std::vector<double> leftOut(all.begin() + static_cast<std::ptrdiff_t>(first), all.end());
    std::vector<Argument> arguments{nameArgument(id),
                                    textArgument(vxjson::shortened(vxMat::formatNumberList(leftOut)))};
    arguments.insert(arguments.end(), more.begin(), more.end());
    addDoubt(set, id, message, std::move(arguments));
}

/// Adds a doubt if the list is empty, so that the card has no line of its numbers.
void doubtEmptyList(CardSet& set, const vxMat::CMaterial& material, std::int32_t id)
{
    if (material.getPropertyValues(id).empty())
        addDoubt(set, id, doubt::noCurve, {nameArgument(id)});
}

void doubtListsOfBilinearCard(CardSet& set, const vxMat::CMaterial& material)
{
    for (const std::int32_t id : {PropertyId::PlasticYieldStress, PropertyId::PlasticStrain})
        doubtLeftOut(set, material, id, 0, doubt::unusedIfBilinear);
}

/// Adds doubts about the numbers of a hardening curve that a multilinear card omits or lacks.
void doubtCurve(CardSet& set, const vxMat::CMaterial& material)
{
    doubtEmptyList(set, material, PropertyId::PlasticStrain);
    const Argument yield = wordArgument(material, PropertyId::PlasticYieldType);
    if (!vxMat::equalIgnoringAsciiCase(yield.text, "Mises")) {
        doubtLeftOut(set, material, PropertyId::PlasticYieldStress, 0, doubt::unusedWithYieldType, {yield});
        return;
    }
    doubtEmptyList(set, material, PropertyId::PlasticYieldStress);
    const std::size_t stresses = material.getPropertyValues(PropertyId::PlasticYieldStress).size();
    const std::size_t strains = material.getPropertyValues(PropertyId::PlasticStrain).size();
    doubtLeftOut(set, material, PropertyId::PlasticYieldStress, strains, doubt::withoutStrain);
    doubtLeftOut(set, material, PropertyId::PlasticStrain, stresses, doubt::withoutStress);
}

/// Adds doubts about the lists of the material and the lines of its card, which is not empty.
void doubtLists(CardSet& set, const vxMat::CMaterial& material, const std::string& card)
{
    if (card.find("HARDEN=MULTILINEAR") != std::string::npos)
        doubtCurve(set, material);
    else
        doubtListsOfBilinearCard(set, material);
}

void doubtPlasticityOfDocument(CardSet& set, const vxMat::CMaterial& material)
{
    const std::string lost = lostWordsAndLists(material);
    if (lost.empty())
        addDoubt(set, PropertyId::Plasticity, doubt::documentLoses, {});
    else
        addDoubt(set, PropertyId::Plasticity, doubt::documentLosesThese, {textArgument(lost)});
}

void addPlasticityCard(CardSet& set, const MaterialEntry& entry, MaterialSource source)
{
    const vxMat::CMaterial& material = *entry.material;
    std::string card = entry.getPlasticityCard();
    if (source == MaterialSource::Document)
        doubtPlasticityOfDocument(set, material);
    else if (card.empty())
        addDoubt(set, PropertyId::PlasticYieldType, doubt::noPlasticity,
                 {wordArgument(material, PropertyId::PlasticYieldType),
                  wordArgument(material, PropertyId::PlasticHardeningType)});
    else
        doubtLists(set, material, card);
    if (!card.empty())
        addCard(set, "plasticity", std::move(card));
}

/// Adds doubts about the models of the material that get no card, since a material has only one kind.
void doubtPassedOverModels(CardSet& set, const MaterialEntry& entry)
{
    for (const auto& [id, kind] : {std::pair(PropertyId::ViscoElasticity, MaterialKind::ViscoElastic),
                                   std::pair(PropertyId::Creep, MaterialKind::Creep)})
    {
        if (entry.material->hasProperty(id) && entry.kind != kind)
            addDoubt(set, id, doubt::passedOver, {nameArgument(id)});
    }
}

/// Adds a doubt for each property with a number that is infinite or not a number.
void doubtNumbersThatAreNotFinite(CardSet& set, const vxMat::CMaterial& material)
{
    const auto isFinite = [](double number) { return std::isfinite(number); };
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material)) {
        const std::vector<double>& list = property->values;
        if (!isFinite(property->value) || !std::all_of(list.begin(), list.end(), isFinite))
            addDoubt(set, slot, doubt::notFinite, {{Argument::Kind::QuantityName, property->name}});
    }
}

void addTable(CardSet& set, const MaterialEntry& entry, std::int32_t id, const char* name,
              std::string (MaterialEntry::*table)() const)
{
    if (entry.material->hasProperty(id))
        addCard(set, name, (entry.*table)());
}

} // namespace

CardSet makeCardSet(const MaterialEntry& entry, MaterialSource source)
{
    CardSet set;
    const vxMat::CMaterial& material = *entry.material;
    if (material.hasProperty(PropertyId::IsotropicElasticity) || material.hasProperty(PropertyId::YoungsModulus) ||
        material.hasProperty(PropertyId::PoissonsRatio))
        addCard(set, "elasticity", entry.getElasticLine());

    if (entry.kind == MaterialKind::Plastic)
        addPlasticityCard(set, entry, source);
    else if (entry.kind == MaterialKind::ViscoElastic)
        addCard(set, "visco-elasticity", entry.getViscoElasticCard());
    else if (entry.kind == MaterialKind::Creep)
        addCard(set, "creep", entry.getCreepCard());
    doubtPassedOverModels(set, entry);

    doubtNumbersThatAreNotFinite(set, material);

    addTable(set, entry, PropertyId::Density, "density", &MaterialEntry::getDensityTable);
    addTable(set, entry, PropertyId::SpecificHeat, "specific heat", &MaterialEntry::getSpecificHeatTable);
    addTable(set, entry, PropertyId::ThermalConductivity, "thermal conductivity",
             &MaterialEntry::getThermalConductivityTable);
    return set;
}

} // namespace vxCAE
