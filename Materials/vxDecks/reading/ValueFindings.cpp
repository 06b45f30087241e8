#include "reading/ValueFindings.h"

#include "texts/DeckTexts.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <string>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

constexpr double unlimited = std::numeric_limits<double>::infinity();
constexpr double below0 = -std::numeric_limits<double>::denorm_min(); // 0 itself is possible

/// The possible numbers of a quantity, without the ends of the range.
struct PossibleRange
{
    std::int32_t id;
    double above;
    double below;
    const char* text;
};

constexpr PossibleRange ranges[] = {
    {Id::Density, 0.0, unlimited, "above 0"},
    {Id::SpeedOfSound, 0.0, unlimited, "above 0"},
    {Id::SpecificHeat, 0.0, unlimited, "above 0"},
    {Id::ThermalConductivity, below0, unlimited, "0 or above"},
    {Id::DynamicViscosity, below0, unlimited, "0 or above"},
    {Id::YoungsModulus, 0.0, unlimited, "above 0"},
    {Id::PoissonsRatio, -1.0, 0.5, "above -1 and below 0.5"},
    {Id::InitialShearModulusMu, 0.0, unlimited, "above 0"},
    {Id::LimitingNetworkStretch, 1.0, unlimited, "above 1"},
    {Id::IncompressibilityParameterD1, below0, unlimited, "0 or above"},
    {Id::PlasticHardeningFactor, below0, unlimited, "0 or above"},
    {Id::PlasticInitialYieldStress, 0.0, unlimited, "above 0"},
    {Id::PlasticYieldStress, 0.0, unlimited, "above 0"},
    {Id::PlasticStrain, below0, unlimited, "0 or above"},
    {Id::RelaxationTime, 0.0, unlimited, "above 0"},
    {Id::ShearRelaxationModulus, 0.0, 1.0 + std::numeric_limits<double>::epsilon(), "above 0 and at most 1"},
    {Id::CreepModulusA, below0, unlimited, "0 or above"},
    {Id::CreepModulusN, 0.0, unlimited, "above 0"},
    {Id::CreepModulusM, -1.0, unlimited, "above -1"},
    {Id::ElectricalConductivity, below0, unlimited, "0 or above"},
    {Id::RelativePermittivity, 0.0, unlimited, "above 0"},
    {Id::RelativePermeability, 0.0, unlimited, "above 0"},
};

std::string nameOf(std::int32_t id)
{
    return vxMat::findPropertyRecord(id)->name;
}

/// Returns the numbers of a quantity; empty if the material does not have it.
std::vector<double> numbersOf(const vxMat::MaterialBase& material, std::int32_t id)
{
    const vxMat::MaterialProperty* const property = material.findProperty(id);
    if (property == nullptr)
        return {};
    const bool isList = vxMat::findPropertyRecord(id)->kind == vxMat::ValueKind::NumberList;
    return isList ? property->values : std::vector<double>{property->value};
}

void findOutside(const vxMat::MaterialBase& material, std::vector<ValueFault>& faults)
{
    for (const PossibleRange& range : ranges) {
        const std::vector<double> numbers = numbersOf(material, range.id);
        const auto outside = std::find_if(numbers.begin(), numbers.end(), [&range](double number) {
            return std::isfinite(number) && (number <= range.above || number >= range.below);
        });
        if (outside != numbers.end())
            faults.push_back({range.id, makeMessage(Text::ValueOutside,
                                                    {nameOf(range.id), vxMat::formatNumber(*outside), range.text})});
    }
}

void findCurveFaults(const vxMat::MaterialBase& material, std::vector<ValueFault>& faults)
{
    const std::vector<double>& strains = material.getPropertyValues(Id::PlasticStrain);
    const std::vector<double>& stresses = material.getPropertyValues(Id::PlasticYieldStress);
    if (std::adjacent_find(strains.begin(), strains.end(), std::greater_equal<>()) != strains.end())
        faults.push_back({Id::PlasticStrain, makeMessage(ReadText::CurveNotAscending)});
    if (strains.size() != stresses.size())
        faults.push_back({Id::PlasticStrain, makeMessage(Text::CurveLengths, {std::to_string(stresses.size()),
                                                                              std::to_string(strains.size())})});
}

/// Finds an initial shear modulus that is not above 0.
void findShearFault(const vxMat::MaterialBase& material, std::vector<ValueFault>& faults)
{
    const bool isMooney = material.hasProperty(Id::MooneyRivlin);
    if (!isMooney && !material.hasProperty(Id::NeoHooke))
        return;
    double sum = 0.0;
    double c01 = 0.0;
    if (!material.getPropertyValue(Id::MaterialConstantC10, sum))
        return;
    if (isMooney && material.getPropertyValue(Id::MaterialConstantC01, c01))
        sum += c01;
    if (!(sum > 0.0))
        faults.push_back(
            {Id::MaterialConstantC10,
             makeMessage(Text::ValueOutside, {isMooney ? "C10 + C01" : "C10", vxMat::formatNumber(sum), "above 0"})});
}

/// Finds models of which a solver can compute only one.
void findExclusions(const vxMat::MaterialBase& material, std::vector<ValueFault>& faults)
{
    std::int32_t first = 0;
    for (const std::int32_t id : {Id::IsotropicElasticity, Id::NeoHooke, Id::MooneyRivlin, Id::ArrudaBoyce}) {
        if (!material.hasProperty(id))
            continue;
        if (first == 0)
            first = id;
        else
            faults.push_back({id, makeMessage(ReadText::ModelsExclude, {nameOf(first), nameOf(id)})});
    }
}

} // namespace

std::vector<ValueFault> findImpossibleValues(const vxMat::MaterialBase& material)
{
    std::vector<ValueFault> faults;
    findOutside(material, faults);
    findCurveFaults(material, faults);
    findShearFault(material, faults);
    findExclusions(material, faults);
    return faults;
}

} // namespace vxDecks
