#include "vxMaterial/model/MaterialProperty.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <array>
#include <utility>

namespace vxMat {

ValueKind getValueKind(std::int32_t id)
{
    switch (id) {
    case PropertyId::NeoHooke:
    case PropertyId::MooneyRivlin:
    case PropertyId::ArrudaBoyce:
    case PropertyId::IsotropicElasticity:
    case PropertyId::Plasticity:
        return ValueKind::ModelSwitch;
    case PropertyId::PlasticYieldType:
    case PropertyId::PlasticHardeningType:
        return ValueKind::Word;
    case PropertyId::PlasticYieldStress:
    case PropertyId::PlasticStrain:
        return ValueKind::NumberList;
    default:
        return ValueKind::Number;
    }
}

const char* getPropertyCategoryName(std::int32_t category)
{
    static constexpr std::array names{"Basic",        "Linear Elastic", "Hyperelastic", "Plastic", "Creep",
                                      "Viscoelastic", "Thermal",        "Electric",     "Acoustic"};
    if (category < 0 || static_cast<std::size_t>(category) >= names.size())
        return "Undefined";
    return names[static_cast<std::size_t>(category)];
}

const char* getPropertyTypeName(std::int32_t id)
{
    constexpr std::int32_t thermalExpansion = 201;
    switch (id) {
    case PropertyId::Density:
        return "Density";
    case thermalExpansion:
        return "Thermal Expansion";
    case PropertyId::ElectricalConductivity:
        return "Electrical Conductivity";
    case PropertyId::RelativePermittivity:
        return "Relative Permittivity";
    case PropertyId::RelativePermeability:
        return "Relative Permeability";
    default:
        return "";
    }
}

ObjectBase::~ObjectBase() = default;

MaterialProperty::MaterialProperty(std::int32_t propertyId, std::string displayName, const std::string& valueText,
                                   std::string shortKey, std::string hint)
    : id(propertyId), name(std::move(displayName)), key(std::move(shortKey)), description(std::move(hint))
{
    switch (getValueKind(propertyId)) {
    case ValueKind::ModelSwitch:
        value = 1.0;
        break;
    case ValueKind::Word:
        text = valueText;
        break;
    case ValueKind::NumberList:
        values = readNumberList(valueText);
        break;
    case ValueKind::Number:
        value = readNumber(valueText);
        break;
    }
}

MaterialProperty::MaterialProperty(std::int32_t propertyId, std::string displayName, std::string shortKey,
                                   double number)
    : id(propertyId), name(std::move(displayName)), key(std::move(shortKey)), value(number), unit("-")
{}

MaterialProperty::MaterialProperty(const MaterialProperty& other)
    : ObjectBase(),
      id(other.id),
      name(other.name),
      key(other.key),
      value(other.value),
      text(other.text),
      values(other.values),
      description(other.description),
      unit(other.unit),
      category(other.category)
{}

MaterialProperty::~MaterialProperty() = default;

void MaterialProperty::initProperty() {}

std::string formatValue(const MaterialProperty& property)
{
    switch (getValueKind(property.id)) {
    case ValueKind::Word:
        return property.text;
    case ValueKind::NumberList:
        return formatNumberList(property.values);
    default:
        return formatNumber(property.value);
    }
}

} // namespace vxMat
