#include "vxMaterial/model/MaterialLibrary.h"

#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>
#include <variant>
#include <vector>

namespace vxMat {

namespace {

using Id = PropertyId;
using Type = eMaterialType;
using Value = std::variant<double, const char*, std::vector<double>>;

/// One property of a built-in material: the quantity and its value.
struct Given
{
    std::int32_t quantity;
    Value value;
    std::int32_t slot = quantity; ///< the slot that holds the property
};

/// One built-in material.
struct MaterialRecord
{
    LibraryEntry entry;
    const char* name;
    std::int32_t libraryGroup;
    std::vector<Given> properties; ///< in the order in which the material makes them
};

template <Type MaterialType>
MaterialRecord builtIn(const char* name, std::int32_t libraryGroup, std::vector<Given> properties)
{
    const auto create = []() -> std::unique_ptr<MaterialBase> {
        return std::make_unique<LibraryMaterial<MaterialType>>();
    };
    return {{MaterialType, create}, name, libraryGroup, std::move(properties)};
}

enum LibraryGroup : std::int32_t
{
    Linear = 1,
    Nonlinear = 2,
    Hyperelastic = 3,
    Fluid = 4,
    Electromagnetic = 6,
    Acoustic = 7
};

constexpr double largest = std::numeric_limits<double>::max();

// Users have run analyses with these values. Entries that look like mistakes (the copper alloys with the conductivities
// of aluminium, the nonlinear structural steel with those of stainless steel, "Electromangetic") must not be changed.
// NOLINTNEXTLINE(readability-function-size): a table of 26 rows
const std::vector<MaterialRecord>& materialRecords()
{
    // clang-format off
    static const std::vector<MaterialRecord> records{
        builtIn<Type::StructuralSteel>("Structural Steel", Linear, {
            {Id::Density, 7850.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 2e11}, {Id::PoissonsRatio, 0.3},
            {Id::SpecificHeat, 490.0}, {Id::ThermalConductivity, 54.0},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 4.032e6}}),
        builtIn<Type::AluminumAlloy>("Aluminum Alloy", Linear, {
            {Id::Density, 2700.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 7.1e10}, {Id::PoissonsRatio, 0.33},
            {Id::SpecificHeat, 900.0}, {Id::ThermalConductivity, 238.0},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 3.774e7}}),
        builtIn<Type::StainlessSteel>("Stainless Steel", Linear, {
            {Id::Density, 7850.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 1.94e11}, {Id::PoissonsRatio, 0.32},
            {Id::SpecificHeat, 475.0}, {Id::ThermalConductivity, 44.5},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 4.032e6}}),
        builtIn<Type::Concrete>("Concrete", Linear, {
            {Id::Density, 2300.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 3e10}, {Id::PoissonsRatio, 0.18},
            {Id::SpecificHeat, 880.0}, {Id::ThermalConductivity, 1.8}}),
        builtIn<Type::CopperAlloy>("Copper Alloy", Linear, {
            {Id::Density, 8300.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 1.1e11}, {Id::PoissonsRatio, 0.34},
            {Id::SpecificHeat, 900.0}, {Id::ThermalConductivity, 238.0},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 3.774e7}}),
        builtIn<Type::CastIron>("Cast Iron", Linear, {
            {Id::Density, 7200.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 1.1e11}, {Id::PoissonsRatio, 0.28},
            {Id::SpecificHeat, 490.0}, {Id::ThermalConductivity, 54.0}}),
        builtIn<Type::TitaniumBeta21S>("Titanium Alloy", Linear, {
            {Id::Density, 4720.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 9.7e10}, {Id::PoissonsRatio, 0.35},
            {Id::SpecificHeat, 710.0}, {Id::ThermalConductivity, 7.5},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 740700.0}}),

        builtIn<Type::StructuralSteelNL>("Nonlinear Structural Steel", Nonlinear, {
            {Id::Density, 7850.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 2e11}, {Id::PoissonsRatio, 0.3},
            {Id::Plasticity, 1.0}, {Id::PlasticYieldType, "Mises"}, {Id::PlasticHardeningType, "Bilinear"},
            {Id::PlasticInitialYieldStress, 2.5e8}, {Id::PlasticHardeningFactor, 1.45e9},
            {Id::SpecificHeat, 475.0}, {Id::ThermalConductivity, 44.5},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 4.032e6}}),
        builtIn<Type::StainlessSteelNL>("Nonlinear Stainless Steel", Nonlinear, {
            {Id::Density, 7850.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 1.93e11}, {Id::PoissonsRatio, 0.31},
            {Id::Plasticity, 1.0}, {Id::PlasticYieldType, "Mises"}, {Id::PlasticHardeningType, "Bilinear"},
            {Id::PlasticInitialYieldStress, 2.2e8}, {Id::PlasticHardeningFactor, 1.8e9},
            {Id::SpecificHeat, 475.0}, {Id::ThermalConductivity, 44.5},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 4.032e6}}),
        builtIn<Type::AluminumAlloyNL>("Nonlinear Aluminum Alloy", Nonlinear, {
            {Id::Density, 2770.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 7.1e10}, {Id::PoissonsRatio, 0.33},
            {Id::Plasticity, 1.0}, {Id::PlasticYieldType, "Mises"}, {Id::PlasticHardeningType, "Bilinear"},
            {Id::PlasticInitialYieldStress, 2.8e8}, {Id::PlasticHardeningFactor, 5e8},
            {Id::SpecificHeat, 900.0}, {Id::ThermalConductivity, 238.0},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 3.774e7}}),
        builtIn<Type::CopperAlloyNL>("Nonlinear Copper Alloy", Nonlinear, {
            {Id::Density, 8300.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 1.1e11}, {Id::PoissonsRatio, 0.33},
            {Id::Plasticity, 1.0}, {Id::PlasticYieldType, "Mises"}, {Id::PlasticHardeningType, "Bilinear"},
            {Id::PlasticInitialYieldStress, 2.8e8}, {Id::PlasticHardeningFactor, 1.15e9},
            {Id::SpecificHeat, 900.0}, {Id::ThermalConductivity, 238.0},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 3.774e7}}),
        builtIn<Type::TitaniumAlloyNL>("Nonlinear Titanium Alloy", Nonlinear, {
            {Id::Density, 4720.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 9.6e10}, {Id::PoissonsRatio, 0.35},
            {Id::Plasticity, 1.0}, {Id::PlasticYieldType, "Mises"}, {Id::PlasticHardeningType, "Bilinear"},
            {Id::PlasticInitialYieldStress, 9.3e8}, {Id::PlasticHardeningFactor, 2.15e9},
            {Id::SpecificHeat, 710.0}, {Id::ThermalConductivity, 7.5},
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 740700.0}}),

        builtIn<Type::PlasticMaterial1>("Plastic Example 1", Nonlinear, {
            {Id::Density, 7850.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 206900.0}, {Id::PoissonsRatio, 0.29},
            {Id::Plasticity, 1.0}, {Id::PlasticYieldType, "Mises"}, {Id::PlasticHardeningType, "Multilinear"},
            {Id::PlasticYieldStress, std::vector{450.0, 608.0, 679.0, 732.0, 752.0, 766.0, 780.0}},
            {Id::PlasticStrain, std::vector{0.0, 0.05, 0.1, 0.2, 0.3, 0.4, 0.5}}}),
        builtIn<Type::PlasticMaterial2>("Plastic Example 2", Nonlinear, {
            {Id::Density, 7850.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 206900.0}, {Id::PoissonsRatio, 0.29},
            {Id::Plasticity, 1.0}, {Id::PlasticYieldType, "DRUCKER-PRAGER"},
            {Id::PlasticViscosity, 500.0}, {Id::PlasticFAI, 20.0}, {Id::PlasticHardeningFactor, 0.0}}),
        builtIn<Type::ViscoElasticMaterial1>("Viscoelastic Example", Nonlinear, {
            {Id::Density, 7850.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 206900.0}, {Id::PoissonsRatio, 0.29},
            {Id::ViscoElasticity, 1.0}, {Id::ShearRelaxationModulus, 0.5}, {Id::RelaxationTime, 1.0}}),
        builtIn<Type::CreepMaterial1>("Creep Example", Nonlinear, {
            {Id::Density, 7850.0}, {Id::IsotropicElasticity, largest}, {Id::YoungsModulus, 206900.0}, {Id::PoissonsRatio, 0.29},
            {Id::Creep, 1.0}, {Id::CreepModulusA, 1e-10}, {Id::CreepModulusN, 5.0}, {Id::CreepModulusM, 0.0}}),

        builtIn<Type::Elastomer1>("Elastomer 1 (Neo-Hookean)", Hyperelastic, {
            {Id::Density, 7850.0}, {Id::NeoHooke, 1.0}, {Id::MaterialConstantC10, 1000.0}, {Id::IncompressibilityParameterD1, 0.001}}),
        builtIn<Type::Elastomer2>("Elastomer 2 (Mooney-Rivlin)", Hyperelastic, {
            {Id::Density, 7850.0}, {Id::MooneyRivlin, 1.0}, {Id::MaterialConstantC10, 0.1486}, {Id::MaterialConstantC01, 0.4849},
            {Id::IncompressibilityParameterD1, 0.0789}}),
        builtIn<Type::Elastomer3>("Elastomer 3 (Arruda-Boyce)", Hyperelastic, {
            {Id::Density, 7850.0}, {Id::ArrudaBoyce, 1.0}, {Id::InitialShearModulusMu, 0.71}, {Id::LimitingNetworkStretch, 1.7029},
            {Id::IncompressibilityParameterD1, 0.1408}}),
        builtIn<Type::NeopreneRubber>("Neoprene Rubber", Hyperelastic, {
            {Id::Density, 7850.0}, {Id::NeoHooke, 1.0}, {Id::MaterialConstantC10, 27015.0}, {Id::IncompressibilityParameterD1, 1.44e-07}}),

        builtIn<Type::Air>("Air", Fluid, {
            {Id::Density, 1.225}, {Id::SpeedOfSound, 343.0}, {Id::SpecificHeat, 1006.4}, {Id::ThermalConductivity, 0.0242},
            {Id::DynamicViscosity, 1.81e-05}, {Id::ElectricalConductivity, 0.0}}),
        builtIn<Type::Water>("Water", Fluid, {
            {Id::Density, 1000.0}, {Id::SpeedOfSound, 1484.0}, {Id::SpecificHeat, 4184.0}, {Id::ThermalConductivity, 0.6},
            {Id::DynamicViscosity, 0.00089}, {Id::ElectricalConductivity, 1e-05}}),

        builtIn<Type::EMMaterial1>("Electromangetic Material 1", Electromagnetic, {
            {Id::RelativePermeability, 1.0}, {Id::RelativePermittivity, 1.0}, {Id::ElectricalConductivity, 4.032e6}}),
        builtIn<Type::EMMaterial2>("Electromangetic Material 2", Electromagnetic, {
            {Id::RelativePermeability, 5.0}, {Id::RelativePermittivity, 0.5}, {Id::ElectricalConductivity, 4.032e6}}),

        // The acoustic materials hold their speed of sound as a second density in the slot of the speed of sound. A
        // lookup by slot finds it; a listing by name shows "Density" twice. Existing documents have it in this form.
        builtIn<Type::AcousticMaterial1>("Acoustic Material 1", Acoustic, {
            {Id::Density, 1000.0}, {Id::Density, 1000.0, Id::SpeedOfSound}}),
        builtIn<Type::AcousticMaterial2>("Acoustic Material 2", Acoustic, {
            {Id::Density, 1.0}, {Id::Density, 400.0, Id::SpeedOfSound}}),
    };
    // clang-format on
    return records;
}

/// The order in which a database makes the materials. It differs from the order of the table.
constexpr std::array buildOrder{
    Type::StructuralSteel,
    Type::StainlessSteel,
    Type::AluminumAlloy,
    Type::Concrete,
    Type::CopperAlloy,
    Type::CastIron,
    Type::TitaniumBeta21S,
    Type::StructuralSteelNL,
    Type::StainlessSteelNL,
    Type::AluminumAlloyNL,
    Type::CopperAlloyNL,
    Type::TitaniumAlloyNL,
    Type::PlasticMaterial1,
    Type::PlasticMaterial2,
    Type::ViscoElasticMaterial1,
    Type::CreepMaterial1,
    Type::Elastomer1,
    Type::Elastomer2,
    Type::Elastomer3,
    Type::NeopreneRubber,
    Type::EMMaterial1,
    Type::EMMaterial2,
    Type::AcousticMaterial1,
    Type::AcousticMaterial2,
    Type::Air,
    Type::Water,
};

const MaterialRecord* findRecord(Type type)
{
    const auto& records = materialRecords();
    const std::size_t position = getLibraryPosition(type);
    return position < records.size() ? &records[position] : nullptr;
}

void setValue(MaterialProperty& property, const Value& value)
{
    if (const auto* const number = std::get_if<double>(&value))
        property.value = *number;
    else if (const auto* const word = std::get_if<const char*>(&value))
        property.text = *word;
    else
        property.values = std::get<std::vector<double>>(value);
}

} // namespace

const std::vector<LibraryEntry>& libraryEntries()
{
    static const std::vector<LibraryEntry> entries = [] {
        std::vector<LibraryEntry> all;
        all.reserve(std::size(buildOrder));
        for (const Type type : buildOrder)
            all.push_back(findRecord(type)->entry);
        return all;
    }();
    return entries;
}

std::size_t getLibraryPosition(eMaterialType type)
{
    const auto& records = materialRecords();
    const auto found = std::find_if(records.begin(), records.end(),
                                    [type](const MaterialRecord& record) { return record.entry.type == type; });
    return static_cast<std::size_t>(found - records.begin());
}

std::unique_ptr<MaterialBase> createLibraryMaterial(eMaterialType type)
{
    const MaterialRecord* const record = findRecord(type);
    return record != nullptr ? record->entry.create() : nullptr;
}

const char* getLibraryGroupName(std::int32_t libraryGroup)
{
    constexpr std::int32_t ofTheUser = 0;
    switch (libraryGroup) {
    case ofTheUser:
    case Linear:
        return "General Materials";
    case Nonlinear:
        return "Nonlinear Materials";
    case Hyperelastic:
        return "Hyperelastic Materials";
    case Fluid:
        return "Thermal & Fluid Materials";
    case Electromagnetic:
        return "Electromagnetic Materials";
    case Acoustic:
        return "Acoustic Materials";
    default:
        return "";
    }
}

void detail::fillFromLibrary(MaterialBase& material, eMaterialType type)
{
    const MaterialRecord& record = *findRecord(type);
    material.name = record.name;
    material.libraryGroup = record.libraryGroup;
    for (const Given& given : record.properties) {
        auto property = findPropertyRecord(given.quantity)->create();
        setValue(*property, given.value);
        material.setProperty(given.slot, std::move(property));
    }
}

} // namespace vxMat
