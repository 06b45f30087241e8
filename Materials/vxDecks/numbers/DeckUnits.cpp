#include "numbers/DeckUnits.h"

#include "vxMaterial/model/PropertyId.h"

namespace vxDecks {

using vxUnits::CreepExponents;
using vxUnits::UnitSystem;

UnitPair DeckUnits::lookUp(std::int32_t id, const std::optional<CreepExponents>& creep) const
{
    const auto stored = vxUnits::unitOfQuantity(id, UnitSystem::si(), creep);
    const auto written = vxUnits::unitOfQuantity(id, m_system, creep);
    UnitPair pair;
    if (stored)
        pair.stored = *stored;
    if (written)
        pair.written = *written;
    return pair;
}

const UnitPair& DeckUnits::of(std::int32_t id, const std::optional<CreepExponents>& creep)
{
    if (id == vxMat::PropertyId::CreepModulusA)
        return m_known[id] = lookUp(id, creep);
    const auto known = m_known.find(id);
    return known != m_known.end() ? known->second : m_known.emplace(id, lookUp(id, creep)).first->second;
}

void DeckUnits::convertToDeck(vxMat::MaterialBase& material)
{
    convert(material, &UnitPair::stored, &UnitPair::written);
}

void DeckUnits::convertToCatalogue(vxMat::MaterialBase& material)
{
    convert(material, &UnitPair::written, &UnitPair::stored);
}

void DeckUnits::convert(vxMat::MaterialBase& material, Side from, Side to)
{
    if (m_system == UnitSystem::si())
        return;
    const auto creep = vxUnits::creepExponents(material);
    for (const auto& [key, property] : material.properties) {
        const UnitPair& units = of(key, creep);
        if (!units.areBothKnown())
            continue;
        property->value = vxUnits::convertNumber(property->value, *(units.*from), *(units.*to));
        for (double& number : property->values)
            number = vxUnits::convertNumber(number, *(units.*from), *(units.*to));
    }
}

} // namespace vxDecks
