#include "vxMaterial/model/Material.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace vxMat {

MaterialBase::MaterialBase() : name("MaterialBase") {}

MaterialBase::~MaterialBase() = default;

void MaterialBase::addProperty(std::int32_t propertyId, const std::string& displayName, const std::string& valueText,
                               const std::string& key, const std::string& description)
{
    setProperty(propertyId, std::make_unique<MaterialProperty>(propertyId, displayName, valueText, key, description));
}

void MaterialBase::setProperty(std::int32_t slot, std::unique_ptr<MaterialProperty> property)
{
    assert(property != nullptr);
    properties.insert_or_assign(slot, std::move(property));
}

bool MaterialBase::hasProperty(std::int32_t slot) const
{
    return properties.count(slot) != 0;
}

const MaterialProperty* MaterialBase::findProperty(std::int32_t slot) const
{
    const auto found = properties.find(slot);
    return found != properties.end() ? found->second.get() : nullptr;
}

bool MaterialBase::getPropertyValue(std::int32_t slot, double& number) const
{
    const MaterialProperty* const property = findProperty(slot);
    if (property == nullptr)
        return false;
    number = property->value;
    return true;
}

std::string MaterialBase::getPropertyText(std::int32_t slot) const
{
    const MaterialProperty* const property = findProperty(slot);
    return property != nullptr ? property->text : std::string();
}

const std::vector<double>& MaterialBase::getPropertyValues(std::int32_t slot) const
{
    static const std::vector<double> none;
    const MaterialProperty* const property = findProperty(slot);
    return property != nullptr ? property->values : none;
}

void MaterialBase::removeProperty(const MaterialProperty* property)
{
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [property](const auto& entry) { return entry.second.get() == property; });
    if (found != properties.end())
        properties.erase(found);
}

void MaterialBase::clearProperties()
{
    properties.clear();
}

void MaterialBase::copyPropertiesFrom(const MaterialBase& other)
{
    PropertyMap copies;
    copies.reserve(other.properties.size());
    for (const auto& [slot, property] : other.properties)
        copies.emplace(slot, std::make_unique<MaterialProperty>(*property));
    properties = std::move(copies);
}

void MaterialBase::copyAllFrom(const MaterialBase& other)
{
    MaterialBase copy;
    copy.copyPropertiesFrom(other);
    copy.id = other.id;
    copy.name = other.name;
    copy.libraryGroup = other.libraryGroup;
    swap(copy);
}

void MaterialBase::swap(MaterialBase& other) noexcept
{
    std::swap(id, other.id);
    name.swap(other.name);
    std::swap(libraryGroup, other.libraryGroup);
    properties.swap(other.properties);
}

CMaterial::CMaterial() : CMaterial("CMaterial") {}

CMaterial::CMaterial(const char* materialName)
{
    name = materialName;
}

void CMaterial::copyTo(MaterialBase* target) const
{
    if (target == nullptr)
        return;
    std::string copiedName = name;
    target->copyPropertiesFrom(*this);
    target->id = id;
    target->name = std::move(copiedName);
}

void CMaterial::copyFrom(const MaterialBase& source)
{
    std::string copiedName = source.name.substr(0, source.name.find('\0'));
    copyPropertiesFrom(source);
    id = source.id;
    name = std::move(copiedName);
}

} // namespace vxMat
