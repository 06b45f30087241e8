#include "vxMaterial/model/CataloguedMaterial.h"

#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <utility>

namespace vxMat {

std::vector<HeldProperty> propertiesInCatalogueOrder(const MaterialBase& material)
{
    std::vector<HeldProperty> held;
    held.reserve(material.properties.size());
    for (const auto& [slot, property] : material.properties)
        held.push_back({slot, property.get()});
    const auto place = [](const HeldProperty& one) { return std::pair(getCataloguePosition(one.slot), one.slot); };
    std::sort(held.begin(), held.end(),
              [place](const HeldProperty& one, const HeldProperty& other) { return place(one) < place(other); });
    return held;
}

void restoreCatalogueTexts(MaterialBase& material)
{
    for (const auto& [slot, property] : material.properties) {
        const PropertyRecord* const record = findPropertyRecord(property->id);
        if (record == nullptr)
            continue;
        property->name = record->name;
        property->description = record->description;
        property->unit = record->unit;
        property->category = record->category;
    }
}

} // namespace vxMat
