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

std::string quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

void addCard(CardSet& set, const char* name, std::string text)
{
    const std::size_t message = text.find("Invalid");
    if (message != std::string::npos) {
        const std::string reason = text.substr(message, text.find('\n', message) - message);
        set.doubts.push_back(std::string("the ") + name + " card lacks a value: " + quoted(reason));
    }
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
            names += (names.empty() ? "" : ", ") + quoted(vxMat::findPropertyRecord(id)->name);
    }
    return names;
}

/// Adds a doubt: the plasticity card lacks the numbers of a list from the position `first` on.
void doubtLeftOut(CardSet& set, const vxMat::CMaterial& material, std::int32_t id, std::size_t first,
                  const std::string& reason)
{
    const std::vector<double>& all = material.getPropertyValues(id);
    if (first >= all.size())
        return;
    const std::vector<double> leftOut(all.begin() + static_cast<std::ptrdiff_t>(first), all.end());
    set.doubts.push_back("the plasticity card leaves out numbers of " + quoted(vxMat::findPropertyRecord(id)->name) +
                         ", " + reason + ": " + vxjson::shortened(vxMat::formatNumberList(leftOut)));
}

/// Adds a doubt if the list is empty, so that the card has no line of its numbers.
void doubtEmptyList(CardSet& set, const vxMat::CMaterial& material, std::int32_t id)
{
    if (material.getPropertyValues(id).empty())
        set.doubts.push_back("the plasticity card has no hardening curve: the material has no numbers of " +
                             quoted(vxMat::findPropertyRecord(id)->name));
}

void doubtListsOfBilinearCard(CardSet& set, const vxMat::CMaterial& material)
{
    for (const std::int32_t id : {PropertyId::PlasticYieldStress, PropertyId::PlasticStrain})
        doubtLeftOut(set, material, id, 0, "which the solver does not use with bilinear hardening");
}

/// Adds doubts about the numbers of a hardening curve that a multilinear card omits or lacks.
void doubtCurve(CardSet& set, const vxMat::CMaterial& material)
{
    doubtEmptyList(set, material, PropertyId::PlasticStrain);
    const std::string yield = material.getPropertyText(PropertyId::PlasticYieldType);
    if (!vxMat::equalIgnoringAsciiCase(yield, "Mises")) {
        doubtLeftOut(set, material, PropertyId::PlasticYieldStress, 0,
                     "which the solver does not use with yield type " + quoted(yield));
        return;
    }
    doubtEmptyList(set, material, PropertyId::PlasticYieldStress);
    const std::size_t stresses = material.getPropertyValues(PropertyId::PlasticYieldStress).size();
    const std::size_t strains = material.getPropertyValues(PropertyId::PlasticStrain).size();
    doubtLeftOut(set, material, PropertyId::PlasticYieldStress, strains, "which have no plastic strain");
    doubtLeftOut(set, material, PropertyId::PlasticStrain, stresses, "which have no yield stress");
}

/// Adds doubts about the lists of the material and the lines of its card, which is not empty.
void doubtLists(CardSet& set, const vxMat::CMaterial& material, const std::string& card)
{
    if (card.find("HARDEN=MULTILINEAR") != std::string::npos)
        doubtCurve(set, material);
    else
        doubtListsOfBilinearCard(set, material);
}

void addPlasticityCard(CardSet& set, const MaterialEntry& entry, MaterialSource source)
{
    const vxMat::CMaterial& material = *entry.material;
    std::string card = entry.getPlasticityCard();
    if (source == MaterialSource::Document) {
        const std::string lost = lostWordsAndLists(material);
        set.doubts.push_back("the plasticity card cannot be complete: exchange documents carry no words and lists" +
                             (lost.empty() ? "" : " (" + lost + ")"));
    } else if (card.empty()) {
        set.doubts.push_back("no plasticity card is written for yield type " +
                             quoted(material.getPropertyText(PropertyId::PlasticYieldType)) + " with hardening type " +
                             quoted(material.getPropertyText(PropertyId::PlasticHardeningType)));
    } else {
        doubtLists(set, material, card);
    }
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
            set.doubts.push_back("no card is written for " + quoted(vxMat::findPropertyRecord(id)->name) +
                                 ": another model of the material takes precedence");
    }
}

/// Adds a doubt for each property with a number that is infinite or not a number.
void doubtNumbersThatAreNotFinite(CardSet& set, const vxMat::CMaterial& material)
{
    const auto isFinite = [](double number) { return std::isfinite(number); };
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material)) {
        const std::vector<double>& list = property->values;
        if (!isFinite(property->value) || !std::all_of(list.begin(), list.end(), isFinite))
            set.doubts.push_back(quoted(property->name) + " has a number that is not finite, which no solver reads");
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
