#include "vxMaterial/exchange/MaterialEntry.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vxCAE {

using vxMat::PropertyId;

MaterialEntry::MaterialEntry() : material(std::make_unique<vxMat::CMaterial>()) {}

std::int32_t MaterialEntry::getId() const
{
    return material->id;
}

void MaterialEntry::setId(std::int32_t id)
{
    material->id = id;
}

const char* MaterialEntry::getName() const
{
    return material->name.c_str();
}

void MaterialEntry::setName(const char* name)
{
    material->name = name;
}

std::string MaterialEntry::getPropertyText(std::int32_t propertyId) const
{
    return material->getPropertyText(propertyId);
}

bool MaterialEntry::classifyKind()
{
    static constexpr std::array<std::pair<std::int32_t, std::int32_t>, 6> kinds{{
        {PropertyId::Plasticity, MaterialKind::Plastic},
        {PropertyId::MooneyRivlin, MaterialKind::MooneyRivlin},
        {PropertyId::ArrudaBoyce, MaterialKind::ArrudaBoyce},
        {PropertyId::NeoHooke, MaterialKind::NeoHooke},
        {PropertyId::ViscoElasticity, MaterialKind::ViscoElastic},
        {PropertyId::Creep, MaterialKind::Creep},
    }};
    const auto* const found = std::find_if(
        kinds.begin(), kinds.end(), [this](const auto& candidate) { return material->hasProperty(candidate.first); });
    kind = found != kinds.end() ? found->second : MaterialKind::Linear;
    return found != kinds.end();
}

MaterialEntry::FoundValue MaterialEntry::getDensity() const
{
    FoundValue density;
    density.found = material->getPropertyValue(PropertyId::Density, density.value);
    return density;
}

bool MaterialEntry::hasThermalData() const
{
    return material->hasProperty(PropertyId::Density) && material->hasProperty(PropertyId::SpecificHeat) &&
           material->hasProperty(PropertyId::ThermalConductivity);
}

std::string MaterialEntry::formatReal(double number)
{
    return vxMat::formatFixed(number);
}

} // namespace vxCAE
