#include "vxMaterial/exchange/CardSet.h"

#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

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

/// The names of the words and lists that the material should have, which a document leaves behind.
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

void doubtUnequalLists(CardSet& set, const vxMat::CMaterial& material)
{
    const std::size_t stresses = material.getPropertyValues(PropertyId::PlasticYieldStress).size();
    const std::size_t strains = material.getPropertyValues(PropertyId::PlasticStrain).size();
    if (stresses > strains)
        set.doubts.push_back("the plasticity card leaves out " + std::to_string(stresses - strains) + " of " +
                             std::to_string(stresses) + " yield stresses, which have no plastic strain");
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
    } else if (card.find("HARDEN=MULTILINEAR") != std::string::npos) {
        doubtUnequalLists(set, material);
    }
    if (!card.empty())
        addCard(set, "plasticity", std::move(card));
}

/// A material has one kind; the models that its order of precedence passes over get no card.
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

    addTable(set, entry, PropertyId::Density, "density", &MaterialEntry::getDensityTable);
    addTable(set, entry, PropertyId::SpecificHeat, "specific heat", &MaterialEntry::getSpecificHeatTable);
    addTable(set, entry, PropertyId::ThermalConductivity, "thermal conductivity",
             &MaterialEntry::getThermalConductivityTable);
    return set;
}

} // namespace vxCAE
