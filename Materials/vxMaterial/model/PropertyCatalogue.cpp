#include "vxMaterial/model/PropertyCatalogue.h"

#include <cassert>
#include <limits>

namespace vxMat {

namespace {

using Category = ePropertyCategory;
using Kind = ValueKind;

constexpr double largest = std::numeric_limits<double>::max();

constexpr const char* excludesElasticity = "Mutual exclusion to \"Isotropic elasticity\"";
constexpr const char* excludesHyperelasticity = "Mutually exclusive to hyper-elastic properties";
constexpr const char* yieldWords = R"(Input "Mises", "Mohr-Coulomb", or "Drucker-Prager")";
constexpr const char* hardeningWords = "Input \"Bilinear\", \"Multilinear\", \"Swift\", \"Ramberg-Osgood\", "
                                       "\"Kinematic\", or \"Combined\"";
constexpr const char* commaList = "Vector; values are separated by comma";

template <class Property>
std::unique_ptr<MaterialProperty> create()
{
    return std::make_unique<Property>();
}

// The solver and all existing documents share these names, keys, units and descriptions. Entries that look like
// mistakes ("Pa" of a stretch, "speHeat", "1/(Wm)") must not be changed.
// clang-format off
constexpr std::array<PropertyRecord, catalogueSize> records{{
    // id                                     name                              key             unit        description               category                 kind               default  class
    {PropertyId::Density,                      "Density",                        "rho",          "kg/m3",    "Mass density",           Category::Basic,         Kind::Number,      1.0,     create<Density>},
    {PropertyId::SpeedOfSound,                 "Speed of sound",                 "sspeed",       "m/s",      "",                       Category::Basic,         Kind::Number,      1.0,     create<SpeedOfSound>},
    {PropertyId::SpecificHeat,                 "Specific heat",                  "speHeat",      "J/(kg*K)", "",                       Category::Basic,         Kind::Number,      1.0,     create<SpecificHeat>},
    {PropertyId::ThermalConductivity,          "Thermal conductivity",           "k",            "W/(m*K)",  "",                       Category::Basic,         Kind::Number,      1.0,     create<ThermalConductivity>},
    {PropertyId::DynamicViscosity,             "Dynamic viscosity",              "dv",           "Pa.s",     "",                       Category::Basic,         Kind::Number,      1.0,     create<DynamicViscosity>},
    {PropertyId::IsotropicElasticity,          "Isotropic elasticity",           "IsoElastic",   "-",        excludesHyperelasticity,  Category::LinearElastic, Kind::ModelSwitch, largest, create<IsotropicElasticity>},
    {PropertyId::YoungsModulus,                "Young's modulus",                "E",            "Pa",       "",                       Category::LinearElastic, Kind::Number,      1.0,     create<YoungsModulus>},
    {PropertyId::PoissonsRatio,                "Poisson's ratio",                "nu",           "-",        "Between [0.001, 0.499]", Category::LinearElastic, Kind::Number,      0.3,     create<PoissonsRatio>},
    {PropertyId::NeoHooke,                     "Neo-Hookean",                    "NeoHooke",     "-",        excludesElasticity,       Category::Hyperelastic,  Kind::ModelSwitch, 1.0,     create<NeoHooke>},
    {PropertyId::MooneyRivlin,                 "Mooney-Rivlin",                  "MooneyRivlin", "-",        excludesElasticity,       Category::Hyperelastic,  Kind::ModelSwitch, 1.0,     create<MooneyRivlin>},
    {PropertyId::ArrudaBoyce,                  "Arruda-Boyce",                   "ArrudaBoyce",  "-",        excludesElasticity,       Category::Hyperelastic,  Kind::ModelSwitch, 1.0,     create<ArrudaBoyce>},
    {PropertyId::InitialShearModulusMu,        "Initial Shear Modulus Mu",       "HyperMu",      "Pa",       "",                       Category::Hyperelastic,  Kind::Number,      1.0,     create<InitialShearModulusMu>},
    {PropertyId::MaterialConstantC01,          "Material Constant C01",          "HyperC01",     "Pa",       "",                       Category::Hyperelastic,  Kind::Number,      1.0,     create<MaterialConstantC01>},
    {PropertyId::MaterialConstantC10,          "Material Constant C10",          "HyperC10",     "Pa",       "",                       Category::Hyperelastic,  Kind::Number,      1.0,     create<MaterialConstantC10>},
    {PropertyId::MaterialConstantC11,          "Material Constant C11",          "HyperC11",     "Pa",       "",                       Category::Hyperelastic,  Kind::Number,      1.0,     create<MaterialConstantC11>},
    {PropertyId::LimitingNetworkStretch,       "Limiting Network Stretch",       "HyperLNS",     "Pa",       "",                       Category::Hyperelastic,  Kind::Number,      1.0,     create<LimitingNetworkStretch>},
    {PropertyId::IncompressibilityParameterD1, "Incompressibility Parameter D1", "HyperD1",      "1/Pa",     "",                       Category::Hyperelastic,  Kind::Number,      1.0,     create<IncompressibilityParameterD1>},
    {PropertyId::Plasticity,                   "Plasticity",                     "Plasticity",   "-",        "",                       Category::Plastic,       Kind::ModelSwitch, 1.0,     create<Plasticity>},
    {PropertyId::PlasticYieldType,             "Yield type",                     "PYield",       "-",        yieldWords,               Category::Plastic,       Kind::Word,        0.0,     create<PlasticYieldType>},
    {PropertyId::PlasticHardeningType,         "Hardening type",                 "PHType",       "-",        hardeningWords,           Category::Plastic,       Kind::Word,        0.0,     create<PlasticHardeningType>},
    {PropertyId::PlasticViscosity,             "Plastic viscosity",              "PViscosity",   "-",        "",                       Category::Plastic,       Kind::Number,      1.0,     create<PlasticViscosity>},
    {PropertyId::PlasticFAI,                   "Internal frictional angle",      "PFAI",         "-",        "",                       Category::Plastic,       Kind::Number,      1.0,     create<PlasticFAI>},
    {PropertyId::PlasticHardeningFactor,       "Hardening factor",               "PHFactor",     "-",        "",                       Category::Plastic,       Kind::Number,      1.0,     create<PlasticHardeningFactor>},
    {PropertyId::PlasticInitialYieldStress,    "Initial yield stress",           "PIYStress",    "-",        "",                       Category::Plastic,       Kind::Number,      1.0,     create<PlasticInitialYieldStress>},
    {PropertyId::PlasticYieldStress,           "Yield stress",                   "PYStress",     "-",        commaList,                Category::Plastic,       Kind::NumberList,  1.0,     create<PlasticYieldStress>},
    {PropertyId::PlasticStrain,                "Plastic strain",                 "PStrain",      "-",        commaList,                Category::Plastic,       Kind::NumberList,  1.0,     create<PlasticStrain>},
    {PropertyId::ViscoElasticity,              "Visco-elasticity",               "ViscoE",       "-",        "",                       Category::Viscoelastic,  Kind::ModelSwitch, 1.0,     create<ViscoElasticity>},
    {PropertyId::RelaxationTime,               "Relaxation time",                "RTime",        "-",        "",                       Category::Viscoelastic,  Kind::Number,      1.0,     create<RelaxationTime>},
    {PropertyId::ShearRelaxationModulus,       "Shear relaxation modulus",       "SRModulus",    "-",        "",                       Category::Viscoelastic,  Kind::Number,      1.0,     create<ShearRelaxationModulus>},
    {PropertyId::Creep,                        "Creep",                          "Creep",        "-",        "",                       Category::Creep,         Kind::ModelSwitch, 1.0,     create<Creep>},
    {PropertyId::CreepModulusA,                "Creep Modulus A",                "CreepA",       "-",        "",                       Category::Creep,         Kind::Number,      1.0,     create<CreepModulusA>},
    {PropertyId::CreepModulusN,                "Creep Modulus N",                "CreepN",       "-",        "",                       Category::Creep,         Kind::Number,      1.0,     create<CreepModulusN>},
    {PropertyId::CreepModulusM,                "Creep Modulus M",                "CreepM",       "-",        "",                       Category::Creep,         Kind::Number,      1.0,     create<CreepModulusM>},
    {PropertyId::ElectricalConductivity,       "Electrical conductivity",        "sigma",        "1/(Wm)",   "",                       Category::Electric,      Kind::Number,      0.0,     create<ElectricalConductivity>},
    {PropertyId::RelativePermittivity,         "Relative permittivity",          "epsilonr",     "-",        "",                       Category::Electric,      Kind::Number,      1.0,     create<RelativePermittivity>},
    {PropertyId::RelativePermeability,         "Relative permeability",          "mur",          "-",        "",                       Category::Electric,      Kind::Number,      1.0,     create<RelativePermeability>},
}};
// clang-format on

constexpr std::size_t idLimit = PropertyId::SpeedOfSound + 1;

/// The position of each id in the catalogue; catalogueSize for an id without a quantity.
constexpr std::array<std::size_t, idLimit> positions = [] {
    std::array<std::size_t, idLimit> all{};
    for (std::size_t& position : all)
        position = catalogueSize;
    for (std::size_t i = 0; i < catalogueSize; ++i)
        all[static_cast<std::size_t>(records[i].id)] = i;
    return all;
}();

} // namespace

const std::array<PropertyRecord, catalogueSize>& propertyRecords()
{
    return records;
}

const PropertyRecord* findPropertyRecord(std::int32_t id)
{
    const std::size_t position = getCataloguePosition(id);
    return position < catalogueSize ? &records[position] : nullptr;
}

std::size_t getCataloguePosition(std::int32_t id)
{
    const bool mayBeKnown = id >= 0 && static_cast<std::size_t>(id) < idLimit;
    return mayBeKnown ? positions[static_cast<std::size_t>(id)] : catalogueSize;
}

const std::vector<std::string>& getAllowedWords(std::int32_t id)
{
    static const std::vector<std::string> yieldTypes{"Mises", "Mohr-Coulomb", "Drucker-Prager"};
    static const std::vector<std::string> hardeningTypes{"Bilinear",       "Multilinear", "Swift",
                                                         "Ramberg-Osgood", "Kinematic",   "Combined"};
    static const std::vector<std::string> none;
    switch (id) {
    case PropertyId::PlasticYieldType:
        return yieldTypes;
    case PropertyId::PlasticHardeningType:
        return hardeningTypes;
    default:
        return none;
    }
}

void detail::describe(MaterialProperty& property, std::int32_t id)
{
    assert(findPropertyRecord(id) != nullptr);
    const PropertyRecord& record = *findPropertyRecord(id);
    property.name = record.name;
    property.key = record.key;
    property.unit = record.unit;
    if (*record.description != '\0')
        property.description = record.description;
    property.category = record.category;
    property.id = record.id;
}

RelativePermittivity::RelativePermittivity()
    : RelativePermittivity(findPropertyRecord(PropertyId::RelativePermittivity)->defaultNumber)
{}

RelativePermittivity::RelativePermittivity(double number)
{
    detail::describe(*this, PropertyId::RelativePermittivity);
    value = number;
}

} // namespace vxMat
