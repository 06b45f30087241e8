#include "vxMaterial/exchange/MaterialEntry.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

namespace vxCAE {

using vxMat::formatGeneral;
using vxMat::PropertyId;

namespace {

/// Returns the numbers of a material under some ids, in the order of the ids; absent if one is missing.
std::optional<std::vector<double>> findNumbers(const vxMat::CMaterial& material,
                                               std::initializer_list<std::int32_t> ids)
{
    std::vector<double> numbers;
    for (const std::int32_t id : ids) {
        double number = 0.0;
        if (!material.getPropertyValue(id, number))
            return std::nullopt;
        numbers.push_back(number);
    }
    return numbers;
}

std::string joined(const std::vector<double>& numbers)
{
    std::string text;
    for (const double number : numbers) {
        if (!text.empty())
            text += ", ";
        text += formatGeneral(number);
    }
    return text;
}

std::string dataLine(const std::vector<double>& numbers)
{
    return " " + joined(numbers) + "\n";
}

/// Returns a card of one data line, or of a message in its place. The message of a plasticity card begins with the
/// blank of the data line; the messages of the other cards do not.
std::string oneLineCard(const std::string& header, const std::optional<std::vector<double>>& numbers,
                        const char* message)
{
    return header + (numbers ? dataLine(*numbers) : message);
}

std::string table(double value)
{
    return dataLine({value, 0.0}) + dataLine({value, 1e6});
}

std::string tableOrMessage(const vxMat::CMaterial& material, std::int32_t id, const char* message)
{
    double value = 0.0;
    return material.getPropertyValue(id, value) ? table(value) : message;
}

bool isBilinear(const std::string& hardening)
{
    return hardening == "BILINEAR" || hardening.empty();
}

std::string misesBilinear(const vxMat::CMaterial& material)
{
    const auto numbers =
        findNumbers(material, {PropertyId::PlasticInitialYieldStress, PropertyId::PlasticHardeningFactor});
    return oneLineCard("!PLASTIC, YIELD=MISES, HARDEN=BILINEAR\n", numbers, " Invalid dIniYStress and dHFactor\n");
}

std::string misesMultilinear(const vxMat::CMaterial& material)
{
    std::string card = "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n";
    const auto& stresses = material.getPropertyValues(PropertyId::PlasticYieldStress);
    const auto& strains = material.getPropertyValues(PropertyId::PlasticStrain);
    const std::size_t pairs = std::min(stresses.size(), strains.size());
    for (std::size_t i = 0; i < pairs; ++i)
        card += dataLine({stresses[i], strains[i]});
    return card;
}

std::string pressureDependentBilinear(const vxMat::CMaterial& material, const std::string& yield)
{
    const auto numbers = findNumbers(
        material, {PropertyId::PlasticViscosity, PropertyId::PlasticFAI, PropertyId::PlasticHardeningFactor});
    return oneLineCard("!PLASTIC, YIELD=" + yield + ", HARDEN=BILINEAR\n", numbers,
                       " Invalid dViscosity, dFAI, and dHFactor.\n");
}

/// Returns a card whose header contains MISES too. The friction angle is in front of the first line, and the yield
/// stresses are not used.
std::string pressureDependentMultilinear(const vxMat::CMaterial& material)
{
    std::string card = "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n";
    const auto numbers = findNumbers(material, {PropertyId::PlasticFAI, PropertyId::PlasticViscosity});
    if (!numbers)
        return card + "Invalid dFAI and dViscosity.\n";
    const double frictionAngle = numbers->front();
    const double viscosity = numbers->back();
    card += " " + formatGeneral(frictionAngle);
    for (const double strain : material.getPropertyValues(PropertyId::PlasticStrain))
        card += dataLine({strain, viscosity});
    return card;
}

} // namespace

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

std::string MaterialEntry::getElasticLine() const
{
    const auto numbers = findNumbers(*material, {PropertyId::YoungsModulus, PropertyId::PoissonsRatio});
    if (!numbers)
        return "Invalid young_modulus or poisson_ratio.\n";
    return " " + formatReal(numbers->front()) + ", " + formatReal(numbers->back());
}

std::string MaterialEntry::formatReal(double number)
{
    return vxMat::formatFixed(number);
}

std::string MaterialEntry::getPlasticityCard() const
{
    if (kind != MaterialKind::Plastic)
        return {};
    const std::string yield = vxMat::toUpperAscii(getPropertyText(PropertyId::PlasticYieldType));
    const std::string hardening = vxMat::toUpperAscii(getPropertyText(PropertyId::PlasticHardeningType));
    const bool mises = yield == "MISES";
    const bool pressureDependent = yield == "DRUCKER-PRAGER" || yield == "MOHR-COULOMB";

    if (mises && isBilinear(hardening))
        return misesBilinear(*material);
    if (mises && hardening == "MULTILINEAR")
        return misesMultilinear(*material);
    if (pressureDependent && isBilinear(hardening))
        return pressureDependentBilinear(*material, yield);
    if (pressureDependent && hardening == "MULTILINEAR")
        return pressureDependentMultilinear(*material);
    return {};
}

std::string MaterialEntry::getViscoElasticCard() const
{
    if (kind != MaterialKind::ViscoElastic)
        return {};
    return oneLineCard("!VISCOELASTIC\n",
                       findNumbers(*material, {PropertyId::ShearRelaxationModulus, PropertyId::RelaxationTime}),
                       "Invalid dShearRelaxation or dRelaxationTime.\n");
}

std::string MaterialEntry::getCreepCard() const
{
    if (kind != MaterialKind::Creep)
        return {};
    return oneLineCard(
        "!CREEP, TYPE=NORTON\n",
        findNumbers(*material, {PropertyId::CreepModulusA, PropertyId::CreepModulusN, PropertyId::CreepModulusM}),
        "Invalid dModulusA, dModulusN, or dModulusM.\n");
}

std::string MaterialEntry::getDensityTable() const
{
    return table(getDensity().value);
}

std::string MaterialEntry::getSpecificHeatTable() const
{
    return tableOrMessage(*material, PropertyId::SpecificHeat, "Invalid dSpecificHeat.\n");
}

std::string MaterialEntry::getThermalConductivityTable() const
{
    return tableOrMessage(*material, PropertyId::ThermalConductivity, "Invalid dThermalConduct.\n");
}

} // namespace vxCAE
