#include "Properties.h"

#include "vxMaterial/model/PropertyCatalogue.h"

#include <set>

namespace commandline {

std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& material)
{
    return keysOf(material, material);
}

std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& one, const vxMat::MaterialBase& other)
{
    std::vector<std::int32_t> keys;
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
        if (one.hasProperty(record.id) || other.hasProperty(record.id))
            keys.push_back(record.id);
    }
    std::set<std::int32_t> unknown;
    for (const vxMat::MaterialBase* const material : {&one, &other}) {
        for (const auto& [key, property] : material->properties) {
            if (vxMat::findPropertyRecord(key) == nullptr)
                unknown.insert(key);
        }
    }
    keys.insert(keys.end(), unknown.begin(), unknown.end());
    return keys;
}

vxMat::ValueKind kindOf(const vxMat::MaterialProperty& property)
{
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(property.id);
    return record != nullptr ? record->kind : vxMat::ValueKind::Number;
}

} // namespace commandline
