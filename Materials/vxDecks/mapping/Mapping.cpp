#include "vxDecks/Mapping.h"

#include "texts/BulkTexts.h"
#include "texts/DeckTexts.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::MessageText;

constexpr Format calculix = Format::Calculix;
constexpr Format nastran = Format::Nastran;
constexpr Format apdl = Format::Apdl;
constexpr Format lsDyna = Format::LsDyna;
constexpr Format elmer = Format::Elmer;
constexpr Format matml = Format::Matml;
constexpr Transport same = Transport::Same;
constexpr Transport otherForm = Transport::OtherForm;
constexpr Transport approximate = Transport::Approximate;
constexpr Transport none = Transport::None;
constexpr Proof run = Proof::Run;
constexpr Proof read = Proof::Read;
constexpr Proof notRun = Proof::NotRun;

constexpr MessageText plain{"", ""};
constexpr MessageText byCard{"decks.how.by-card", "switched on by the card"};
constexpr MessageText byParameter{"decks.how.by-parameter", "switched on by a parameter of the card"};
constexpr MessageText misesOnly{"decks.how.mises-only", "the card is of the yield criterion of Mises only"};
constexpr MessageText asCurve{"decks.how.as-curve", "as points of the curve of true stress over plastic strain"};
constexpr MessageText compressible{"decks.how.compressible", "0 is written as a bulk modulus of 500 shear moduli"};
constexpr MessageText polynomial{"decks.how.polynomial",
                                 "as polynomial of the second order whose other constants have no effect"};
constexpr MessageText noCard{"decks.lost.no-card", "the format has no card for it"};
constexpr MessageText noViscoelasticity{"decks.lost.no-viscoelasticity", "the solver has no viscoelastic material"};
constexpr MessageText noFriction{"decks.lost.no-friction", "the solver has no plasticity with internal friction"};
constexpr MessageText overstressOnly{"decks.lost.overstress-only",
                                     "the solver has viscoplasticity only as a creep law of the overstress"};
constexpr MessageText heatAnalogy{"decks.lost.heat-analogy",
                                  "the solver computes sound only as an analogy of heat conduction"};
constexpr MessageText domainNeeded{"decks.lost.domain-needed",
                                   "the card also needs the number of a domain, which depends on the model"};
constexpr MessageText noEightChains{"decks.lost.no-eight-chains", "the format has no eight-chain model"};
constexpr MessageText noCohesion{"decks.lost.no-cohesion",
                                 "the card also needs a cohesion, which the catalogue does not have"};
constexpr MessageText noRateExponent{"decks.lost.no-rate-exponent",
                                     "the card needs the exponent of a rate law, which the catalogue does not have"};
constexpr MessageText conductorNeeded{"decks.lost.conductor-needed",
                                      "the card also needs the kind of conductor, which depends on the model"};
constexpr MessageText userFunction{"decks.lost.user-function",
                                   "the solver has it only as a function that the user programs"};
constexpr MessageText otherVolume{"decks.lost.other-volume",
                                  "the solver has neo-Hookean solids only by E and nu, with another energy of volume"};
constexpr MessageText halfBulk{"decks.how.half-bulk",
                               "as half the bulk modulus, 1 / D1; 0 as a bulk modulus of 500 shear moduli"};
constexpr MessageText totalStrain{"decks.how.total-strain", "as total strain, plastic strain + stress / E"};
constexpr MessageText totalCreep{"decks.how.total-creep",
                                 "as the total form, strain = A / (M + 1) stress^N time^(M + 1)"};
constexpr MessageText twiceC10{"decks.how.twice-c10", "in NEO as the initial shear modulus, 2 C10"};
constexpr MessageText tangent{"decks.how.tangent", "as the tangent modulus E H / (E + H)"};
constexpr MessageText resistivity{"decks.how.resistivity", "as the resistivity, its reciprocal"};
constexpr MessageText links{"decks.how.links", "as the number of links, the square of the stretch"};
constexpr MessageText poissonOrBulk{
    "decks.how.poisson-or-bulk",
    "as Poisson's ratio, or as the bulk modulus 2 / D1; 0 as a bulk modulus of 500 shear moduli"};
constexpr MessageText decay{"decks.how.decay", "as the decay constant, 1 / tau"};
constexpr MessageText longTerm{"decks.how.long-term", "as the long-term shear modulus, (1 - g) G"};
constexpr MessageText asOn{"decks.how.as-on", "as the text on"};
constexpr MessageText parameter{"decks.how.parameter",
                                "as a parameter of the yield stress, if both lists have the same length"};

const std::vector<Mapping> table{
    // CalculiX
    {calculix, Id::Density, same, "*DENSITY", "number 1", plain, "*DENSITY", run},
    {calculix, Id::SpeedOfSound, none, "", "", heatAnalogy, "Shallow water motion and acoustics", notRun},
    {calculix, Id::SpecificHeat, same, "*SPECIFIC HEAT", "number 1", plain, "*SPECIFIC HEAT", run},
    {calculix, Id::ThermalConductivity, same, "*CONDUCTIVITY", "number 1", plain, "*CONDUCTIVITY", run},
    {calculix, Id::DynamicViscosity, same, "*FLUID CONSTANTS", "number 2, after the specific heat", plain,
     "*FLUID CONSTANTS", read},
    {calculix, Id::IsotropicElasticity, same, "*ELASTIC", "keyword", byCard, "*ELASTIC", run},
    {calculix, Id::YoungsModulus, same, "*ELASTIC", "number 1", plain, "*ELASTIC", run},
    {calculix, Id::PoissonsRatio, same, "*ELASTIC", "number 2", plain, "*ELASTIC", run},
    {calculix, Id::NeoHooke, same, "*HYPERELASTIC", "NEO HOOKE", byParameter, "*HYPERELASTIC", run},
    {calculix, Id::MooneyRivlin, same, "*HYPERELASTIC", "MOONEY-RIVLIN", byParameter, "*HYPERELASTIC", run},
    {calculix, Id::ArrudaBoyce, same, "*HYPERELASTIC", "ARRUDA-BOYCE", byParameter, "*HYPERELASTIC", run},
    {calculix, Id::InitialShearModulusMu, same, "*HYPERELASTIC", "ARRUDA-BOYCE: number 1", plain, "*HYPERELASTIC", run},
    {calculix, Id::MaterialConstantC01, same, "*HYPERELASTIC", "MOONEY-RIVLIN: number 2", plain, "*HYPERELASTIC", run},
    {calculix, Id::MaterialConstantC10, same, "*HYPERELASTIC", "NEO HOOKE, MOONEY-RIVLIN: number 1", plain,
     "*HYPERELASTIC", run},
    {calculix, Id::MaterialConstantC11, otherForm, "*HYPERELASTIC", "POLYNOMIAL, N=2: number 4", polynomial,
     "*HYPERELASTIC", run},
    {calculix, Id::LimitingNetworkStretch, same, "*HYPERELASTIC", "ARRUDA-BOYCE: number 2", plain, "*HYPERELASTIC",
     run},
    {calculix, Id::IncompressibilityParameterD1, approximate, "*HYPERELASTIC", "last number", compressible,
     "*HYPERELASTIC", run},
    {calculix, Id::Plasticity, same, "*PLASTIC", "keyword", byCard, "*PLASTIC", run},
    {calculix, Id::PlasticYieldType, same, "*PLASTIC", "keyword", misesOnly, "*PLASTIC", run},
    {calculix, Id::PlasticHardeningType, same, "*PLASTIC", "HARDENING", byParameter, "*PLASTIC", run},
    {calculix, Id::PlasticViscosity, none, "", "", overstressOnly, "*CREEP", notRun},
    {calculix, Id::PlasticFAI, none, "", "", noFriction, "Materials", notRun},
    {calculix, Id::PlasticHardeningFactor, otherForm, "*PLASTIC", "numbers of both lines", asCurve, "*PLASTIC", run},
    {calculix, Id::PlasticInitialYieldStress, same, "*PLASTIC", "number 1 of line 1", plain, "*PLASTIC", run},
    {calculix, Id::PlasticYieldStress, same, "*PLASTIC", "number 1 of each line", plain, "*PLASTIC", run},
    {calculix, Id::PlasticStrain, same, "*PLASTIC", "number 2 of each line", plain, "*PLASTIC", run},
    {calculix, Id::ViscoElasticity, none, "", "", noViscoelasticity, "Materials", notRun},
    {calculix, Id::RelaxationTime, none, "", "", noViscoelasticity, "Materials", notRun},
    {calculix, Id::ShearRelaxationModulus, none, "", "", noViscoelasticity, "Materials", notRun},
    {calculix, Id::Creep, same, "*CREEP", "keyword", byCard, "*CREEP", run},
    {calculix, Id::CreepModulusA, same, "*CREEP", "number 1", plain, "*CREEP", run},
    {calculix, Id::CreepModulusN, same, "*CREEP", "number 2", plain, "*CREEP", run},
    {calculix, Id::CreepModulusM, same, "*CREEP", "number 3", plain, "*CREEP", run},
    {calculix, Id::ElectricalConductivity, same, "*ELECTRICAL CONDUCTIVITY", "number 1", plain,
     "*ELECTRICAL CONDUCTIVITY", read},
    {calculix, Id::RelativePermittivity, none, "", "", noCard, "Materials", notRun},
    {calculix, Id::RelativePermeability, none, "", "", domainNeeded, "*MAGNETIC PERMEABILITY", notRun},

    // Nastran
    {nastran, Id::Density, same, "MAT1", "RHO; also of MATHP, MAT4 and MAT10", plain, "MAT1", notRun},
    {nastran, Id::SpeedOfSound, same, "MAT10", "C", plain, "MAT10", notRun},
    {nastran, Id::SpecificHeat, same, "MAT4", "CP", plain, "MAT4", notRun},
    {nastran, Id::ThermalConductivity, same, "MAT4", "K", plain, "MAT4", notRun},
    {nastran, Id::DynamicViscosity, same, "MAT4", "mu", plain, "MAT4", notRun},
    {nastran, Id::IsotropicElasticity, same, "MAT1", "entry", byCard, "MAT1", notRun},
    {nastran, Id::YoungsModulus, same, "MAT1", "E", plain, "MAT1", notRun},
    {nastran, Id::PoissonsRatio, same, "MAT1", "NU", plain, "MAT1", notRun},
    {nastran, Id::NeoHooke, same, "MATHP", "entry", byCard, "MATHP", notRun},
    {nastran, Id::MooneyRivlin, same, "MATHP", "entry", byCard, "MATHP", notRun},
    {nastran, Id::ArrudaBoyce, none, "", "", noEightChains, "MATHP", notRun},
    {nastran, Id::InitialShearModulusMu, none, "", "", noEightChains, "MATHP", notRun},
    {nastran, Id::MaterialConstantC01, same, "MATHP", "A01", plain, "MATHP", notRun},
    {nastran, Id::MaterialConstantC10, same, "MATHP", "A10", plain, "MATHP", notRun},
    {nastran, Id::MaterialConstantC11, same, "MATHP", "A11 with NA = 2", plain, "MATHP", notRun},
    {nastran, Id::LimitingNetworkStretch, none, "", "", noEightChains, "MATHP", notRun},
    {nastran, Id::IncompressibilityParameterD1, approximate, "MATHP", "D1", halfBulk, "MATHP", notRun},
    {nastran, Id::Plasticity, same, "MATS1", "TYPE", byParameter, "MATS1", notRun},
    {nastran, Id::PlasticYieldType, same, "MATS1", "YF", misesOnly, "MATS1", notRun},
    {nastran, Id::PlasticHardeningType, same, "MATS1", "HR", byParameter, "MATS1", notRun},
    {nastran, Id::PlasticViscosity, none, "", "", noCard, "Bulk data entries", notRun},
    {nastran, Id::PlasticFAI, none, "", "", noCohesion, "MATS1", notRun},
    {nastran, Id::PlasticHardeningFactor, same, "MATS1", "H", plain, "MATS1", notRun},
    {nastran, Id::PlasticInitialYieldStress, same, "MATS1", "LIMIT1", plain, "MATS1", notRun},
    {nastran, Id::PlasticYieldStress, same, "MATS1", "TABLES1", plain, "MATS1", notRun},
    {nastran, Id::PlasticStrain, otherForm, "MATS1", "TABLES1", totalStrain, "MATS1", notRun},
    {nastran, Id::ViscoElasticity, none, "", "", noCard, "Bulk data entries", notRun},
    {nastran, Id::RelaxationTime, none, "", "", noCard, "Bulk data entries", notRun},
    {nastran, Id::ShearRelaxationModulus, none, "", "", noCard, "Bulk data entries", notRun},
    {nastran, Id::Creep, same, "CREEP", "FORM", byParameter, "CREEP", notRun},
    {nastran, Id::CreepModulusA, otherForm, "CREEP", "a of TYPE 300", totalCreep, "CREEP", notRun},
    {nastran, Id::CreepModulusN, same, "CREEP", "b of TYPE 300", plain, "CREEP", notRun},
    {nastran, Id::CreepModulusM, otherForm, "CREEP", "d of TYPE 300", totalCreep, "CREEP", notRun},
    {nastran, Id::ElectricalConductivity, none, "", "", noCard, "Bulk data entries", notRun},
    {nastran, Id::RelativePermittivity, none, "", "", noCard, "Bulk data entries", notRun},
    {nastran, Id::RelativePermeability, none, "", "", noCard, "Bulk data entries", notRun},

    // Mechanical APDL
    {apdl, Id::Density, same, "MP,DENS", "value", plain, "MP", notRun},
    {apdl, Id::SpeedOfSound, same, "MP,SONC", "value", plain, "MP", notRun},
    {apdl, Id::SpecificHeat, same, "MP,C", "value", plain, "MP", notRun},
    {apdl, Id::ThermalConductivity, same, "MP,KXX", "value", plain, "MP", notRun},
    {apdl, Id::DynamicViscosity, same, "MP,VISC", "value", plain, "MP", notRun},
    {apdl, Id::IsotropicElasticity, same, "MP,EX", "command", byCard, "MP", notRun},
    {apdl, Id::YoungsModulus, same, "MP,EX", "value", plain, "MP", notRun},
    {apdl, Id::PoissonsRatio, same, "MP,EX", "value of MP,PRXY", plain, "MP", notRun},
    {apdl, Id::NeoHooke, same, "TB,HYPER", "NEO", byParameter, "TB,HYPER", notRun},
    {apdl, Id::MooneyRivlin, same, "TB,HYPER", "MOONEY", byParameter, "TB,HYPER", notRun},
    {apdl, Id::ArrudaBoyce, same, "TB,HYPER", "BOYCE", byParameter, "TB,HYPER", notRun},
    {apdl, Id::InitialShearModulusMu, same, "TB,HYPER", "BOYCE: C1", plain, "TB,HYPER", notRun},
    {apdl, Id::MaterialConstantC01, same, "TB,HYPER", "MOONEY: C2", plain, "TB,HYPER", notRun},
    {apdl, Id::MaterialConstantC10, otherForm, "TB,HYPER", "MOONEY: C1; NEO: C1", twiceC10, "TB,HYPER", notRun},
    {apdl, Id::MaterialConstantC11, same, "TB,HYPER", "MOONEY of three parameters: C3", plain, "TB,HYPER", notRun},
    {apdl, Id::LimitingNetworkStretch, same, "TB,HYPER", "BOYCE: C2", plain, "TB,HYPER", notRun},
    {apdl, Id::IncompressibilityParameterD1, same, "TB,HYPER", "last value", plain, "TB,HYPER", notRun},
    {apdl, Id::Plasticity, same, "TB,BISO", "command; also TB,BKIN, TB,PLASTIC", byCard, "TB,BISO; TB,BKIN; TB,PLASTIC",
     notRun},
    {apdl, Id::PlasticYieldType, same, "TB,BISO", "command", misesOnly, "TB,BISO; TB,BKIN; TB,PLASTIC", notRun},
    {apdl, Id::PlasticHardeningType, same, "TB,BISO", "TB,BISO or TB,BKIN; MISO or KINH of TB,PLASTIC", byCard,
     "TB,BISO; TB,BKIN; TB,PLASTIC", notRun},
    {apdl, Id::PlasticViscosity, none, "", "", noRateExponent, "TB,RATE", notRun},
    {apdl, Id::PlasticFAI, none, "", "", noCohesion, "TB,MC", notRun},
    {apdl, Id::PlasticHardeningFactor, otherForm, "TB,BISO", "C2", tangent, "TB,BISO; TB,BKIN; TB,PLASTIC", notRun},
    {apdl, Id::PlasticInitialYieldStress, same, "TB,BISO", "C1", plain, "TB,BISO; TB,BKIN; TB,PLASTIC", notRun},
    {apdl, Id::PlasticYieldStress, same, "TB,PLASTIC", "stress of TBPT", plain, "TB,PLASTIC", notRun},
    {apdl, Id::PlasticStrain, same, "TB,PLASTIC", "plastic strain of TBPT", plain, "TB,PLASTIC", notRun},
    {apdl, Id::ViscoElasticity, same, "TB,PRONY", "SHEAR", byCard, "TB,PRONY", notRun},
    {apdl, Id::RelaxationTime, same, "TB,PRONY", "C2", plain, "TB,PRONY", notRun},
    {apdl, Id::ShearRelaxationModulus, same, "TB,PRONY", "C1", plain, "TB,PRONY", notRun},
    {apdl, Id::Creep, same, "TB,CREEP", "TBOPT 2", byCard, "TB,CREEP", notRun},
    {apdl, Id::CreepModulusA, same, "TB,CREEP", "C1", plain, "TB,CREEP", notRun},
    {apdl, Id::CreepModulusN, same, "TB,CREEP", "C2", plain, "TB,CREEP", notRun},
    {apdl, Id::CreepModulusM, same, "TB,CREEP", "C3", plain, "TB,CREEP", notRun},
    {apdl, Id::ElectricalConductivity, otherForm, "MP,RSVX", "value", resistivity, "MP", notRun},
    {apdl, Id::RelativePermittivity, same, "MP,PERX", "value", plain, "MP", notRun},
    {apdl, Id::RelativePermeability, same, "MP,MURX", "value", plain, "MP", notRun},

    // LS-DYNA
    {lsDyna, Id::Density, same, "*MAT_ELASTIC", "RO; also of every other material", plain, "*MAT_001", notRun},
    {lsDyna, Id::SpeedOfSound, same, "*MAT_ACOUSTIC", "C", plain, "*MAT_090", notRun},
    {lsDyna, Id::SpecificHeat, same, "*MAT_THERMAL_ISOTROPIC", "HC", plain, "*MAT_T01", notRun},
    {lsDyna, Id::ThermalConductivity, same, "*MAT_THERMAL_ISOTROPIC", "TC", plain, "*MAT_T01", notRun},
    {lsDyna, Id::DynamicViscosity, same, "*MAT_NULL", "MU", plain, "*MAT_009", notRun},
    {lsDyna, Id::IsotropicElasticity, same, "*MAT_ELASTIC", "keyword", byCard, "*MAT_001", notRun},
    {lsDyna, Id::YoungsModulus, same, "*MAT_ELASTIC", "E; also of other solids", plain, "*MAT_001", notRun},
    {lsDyna, Id::PoissonsRatio, same, "*MAT_ELASTIC", "PR; also of other solids", plain, "*MAT_001", notRun},
    {lsDyna, Id::NeoHooke, same, "*MAT_MOONEY-RIVLIN_RUBBER", "keyword", byCard, "*MAT_027", notRun},
    {lsDyna, Id::MooneyRivlin, same, "*MAT_MOONEY-RIVLIN_RUBBER", "keyword", byCard, "*MAT_027, *MAT_077_H", notRun},
    {lsDyna, Id::ArrudaBoyce, same, "*MAT_ARRUDA_BOYCE_RUBBER", "keyword", byCard, "*MAT_127", notRun},
    {lsDyna, Id::InitialShearModulusMu, same, "*MAT_ARRUDA_BOYCE_RUBBER", "G", plain, "*MAT_127", notRun},
    {lsDyna, Id::MaterialConstantC01, same, "*MAT_MOONEY-RIVLIN_RUBBER", "B", plain, "*MAT_027, *MAT_077_H", notRun},
    {lsDyna, Id::MaterialConstantC10, same, "*MAT_MOONEY-RIVLIN_RUBBER", "A", plain, "*MAT_027, *MAT_077_H", notRun},
    {lsDyna, Id::MaterialConstantC11, same, "*MAT_HYPERELASTIC_RUBBER", "C11", plain, "*MAT_077_H", notRun},
    {lsDyna, Id::LimitingNetworkStretch, otherForm, "*MAT_ARRUDA_BOYCE_RUBBER", "N", links, "*MAT_127", notRun},
    {lsDyna, Id::IncompressibilityParameterD1, approximate, "*MAT_MOONEY-RIVLIN_RUBBER",
     "PR; *MAT_ARRUDA_BOYCE_RUBBER: K", poissonOrBulk, "*MAT_027, *MAT_077_H, *MAT_127", notRun},
    {lsDyna, Id::Plasticity, same, "*MAT_PLASTIC_KINEMATIC", "keyword", byCard, "*MAT_003, *MAT_024", notRun},
    {lsDyna, Id::PlasticYieldType, same, "*MAT_PLASTIC_KINEMATIC", "keyword", misesOnly, "*MAT_003, *MAT_024", notRun},
    {lsDyna, Id::PlasticHardeningType, same, "*MAT_PLASTIC_KINEMATIC", "BETA; *MAT_PIECEWISE_LINEAR_PLASTICITY",
     byParameter, "*MAT_003, *MAT_024", notRun},
    {lsDyna, Id::PlasticViscosity, none, "", "", noRateExponent, "*MAT_024", notRun},
    {lsDyna, Id::PlasticFAI, none, "", "", noCohesion, "*MAT_173", notRun},
    {lsDyna, Id::PlasticHardeningFactor, otherForm, "*MAT_PLASTIC_KINEMATIC", "ETAN", tangent, "*MAT_003", notRun},
    {lsDyna, Id::PlasticInitialYieldStress, same, "*MAT_PLASTIC_KINEMATIC", "SIGY", plain, "*MAT_003", notRun},
    {lsDyna, Id::PlasticYieldStress, same, "*MAT_PIECEWISE_LINEAR_PLASTICITY", "ordinate of LCSS", plain,
     "*MAT_024, *DEFINE_CURVE", notRun},
    {lsDyna, Id::PlasticStrain, same, "*MAT_PIECEWISE_LINEAR_PLASTICITY", "abscissa of LCSS", plain,
     "*MAT_024, *DEFINE_CURVE", notRun},
    {lsDyna, Id::ViscoElasticity, same, "*MAT_VISCOELASTIC", "keyword", byCard, "*MAT_006", notRun},
    {lsDyna, Id::RelaxationTime, otherForm, "*MAT_VISCOELASTIC", "BETA", decay, "*MAT_006", notRun},
    {lsDyna, Id::ShearRelaxationModulus, otherForm, "*MAT_VISCOELASTIC", "GI", longTerm, "*MAT_006", notRun},
    {lsDyna, Id::Creep, same, "*MAT_UNIFIED_CREEP", "keyword", byCard, "*MAT_115", notRun},
    {lsDyna, Id::CreepModulusA, otherForm, "*MAT_UNIFIED_CREEP", "A", totalCreep, "*MAT_115", notRun},
    {lsDyna, Id::CreepModulusN, same, "*MAT_UNIFIED_CREEP", "N", plain, "*MAT_115", notRun},
    {lsDyna, Id::CreepModulusM, otherForm, "*MAT_UNIFIED_CREEP", "M", totalCreep, "*MAT_115", notRun},
    {lsDyna, Id::ElectricalConductivity, none, "", "", conductorNeeded, "*EM_MAT_001", notRun},
    {lsDyna, Id::RelativePermittivity, none, "", "", noCard, "Volume II", notRun},
    {lsDyna, Id::RelativePermeability, none, "", "", conductorNeeded, "*EM_MAT_002", notRun},

    // Elmer
    {elmer, Id::Density, same, "Density", "value", plain, "Material section: Density", notRun},
    {elmer, Id::SpeedOfSound, same, "Sound Speed", "value", plain, "Material section: Sound Speed", notRun},
    {elmer, Id::SpecificHeat, same, "Heat Capacity", "value", plain, "Material section: Heat Capacity", notRun},
    {elmer, Id::ThermalConductivity, same, "Heat Conductivity", "value", plain, "Material section: Heat Conductivity",
     notRun},
    {elmer, Id::DynamicViscosity, same, "Viscosity", "value", plain, "Material section: Viscosity", notRun},
    {elmer, Id::IsotropicElasticity, same, "Youngs Modulus", "keyword", byCard, "Material section: Youngs Modulus",
     notRun},
    {elmer, Id::YoungsModulus, same, "Youngs Modulus", "value", plain, "Material section: Youngs Modulus", notRun},
    {elmer, Id::PoissonsRatio, same, "Youngs Modulus", "value of Poisson Ratio", plain,
     "Material section: Poisson Ratio", notRun},
    {elmer, Id::NeoHooke, none, "", "", otherVolume, "Nonlinear elasticity", notRun},
    {elmer, Id::MooneyRivlin, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::ArrudaBoyce, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::InitialShearModulusMu, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::MaterialConstantC01, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::MaterialConstantC10, none, "", "", otherVolume, "Nonlinear elasticity", notRun},
    {elmer, Id::MaterialConstantC11, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::LimitingNetworkStretch, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::IncompressibilityParameterD1, none, "", "", otherVolume, "Nonlinear elasticity", notRun},
    {elmer, Id::Plasticity, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::PlasticYieldType, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::PlasticHardeningType, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::PlasticViscosity, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::PlasticFAI, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::PlasticHardeningFactor, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::PlasticInitialYieldStress, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::PlasticYieldStress, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::PlasticStrain, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::ViscoElasticity, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::RelaxationTime, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::ShearRelaxationModulus, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::Creep, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::CreepModulusA, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::CreepModulusN, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::CreepModulusM, none, "", "", userFunction, "Nonlinear elasticity", notRun},
    {elmer, Id::ElectricalConductivity, same, "Electric Conductivity", "value", plain,
     "Material section: Electric Conductivity", notRun},
    {elmer, Id::RelativePermittivity, same, "Relative Permittivity", "value", plain,
     "Material section: Relative Permittivity", notRun},
    {elmer, Id::RelativePermeability, same, "Relative Permeability", "value", plain,
     "Material section: Relative Permeability", notRun},

    // MatML
    {matml, Id::Density, same, "PropertyData", "rho", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::SpeedOfSound, same, "PropertyData", "sspeed", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::SpecificHeat, same, "PropertyData", "speHeat", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::ThermalConductivity, same, "PropertyData", "k", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::DynamicViscosity, same, "PropertyData", "dv", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::IsotropicElasticity, same, "PropertyData", "IsoElastic", asOn, "PropertyData, PropertyDetails", read},
    {matml, Id::YoungsModulus, same, "PropertyData", "E", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::PoissonsRatio, same, "PropertyData", "nu", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::NeoHooke, same, "PropertyData", "NeoHooke", asOn, "PropertyData, PropertyDetails", read},
    {matml, Id::MooneyRivlin, same, "PropertyData", "MooneyRivlin", asOn, "PropertyData, PropertyDetails", read},
    {matml, Id::ArrudaBoyce, same, "PropertyData", "ArrudaBoyce", asOn, "PropertyData, PropertyDetails", read},
    {matml, Id::InitialShearModulusMu, same, "PropertyData", "HyperMu", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::MaterialConstantC01, same, "PropertyData", "HyperC01", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::MaterialConstantC10, same, "PropertyData", "HyperC10", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::MaterialConstantC11, same, "PropertyData", "HyperC11", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::LimitingNetworkStretch, same, "PropertyData", "HyperLNS", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::IncompressibilityParameterD1, same, "PropertyData", "HyperD1", plain, "PropertyData, PropertyDetails",
     read},
    {matml, Id::Plasticity, same, "PropertyData", "Plasticity", asOn, "PropertyData, PropertyDetails", read},
    {matml, Id::PlasticYieldType, same, "PropertyData", "PYield", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::PlasticHardeningType, same, "PropertyData", "PHType", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::PlasticViscosity, same, "PropertyData", "PViscosity", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::PlasticFAI, same, "PropertyData", "PFAI", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::PlasticHardeningFactor, same, "PropertyData", "PHFactor", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::PlasticInitialYieldStress, same, "PropertyData", "PIYStress", plain, "PropertyData, PropertyDetails",
     read},
    {matml, Id::PlasticYieldStress, same, "PropertyData", "PYStress", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::PlasticStrain, otherForm, "PropertyData", "PStrain", parameter, "PropertyData, PropertyDetails", read},
    {matml, Id::ViscoElasticity, same, "PropertyData", "ViscoE", asOn, "PropertyData, PropertyDetails", read},
    {matml, Id::RelaxationTime, same, "PropertyData", "RTime", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::ShearRelaxationModulus, same, "PropertyData", "SRModulus", plain, "PropertyData, PropertyDetails",
     read},
    {matml, Id::Creep, same, "PropertyData", "Creep", asOn, "PropertyData, PropertyDetails", read},
    {matml, Id::CreepModulusA, same, "PropertyData", "CreepA", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::CreepModulusN, same, "PropertyData", "CreepN", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::CreepModulusM, same, "PropertyData", "CreepM", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::ElectricalConductivity, same, "PropertyData", "sigma", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::RelativePermittivity, same, "PropertyData", "epsilonr", plain, "PropertyData, PropertyDetails", read},
    {matml, Id::RelativePermeability, same, "PropertyData", "mur", plain, "PropertyData, PropertyDetails", read},
};

} // namespace

const std::vector<Mapping>& mappings()
{
    return table;
}

const Mapping* findMapping(Format format, std::int32_t id)
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [format, id](const Mapping& row) { return row.format == format && row.id == id; });
    return found == table.end() ? nullptr : &*found;
}

const char* nameOf(Proof proof)
{
    static constexpr const char* names[] = {"run", "read by another program", "not run"};
    return names[static_cast<std::size_t>(proof)];
}

const std::vector<MessageText>& messageTexts()
{
    static const std::vector<MessageText> all = [] {
        std::vector<MessageText> collected = deckTexts();
        const std::vector<MessageText> ofReading = readingTexts();
        collected.insert(collected.end(), ofReading.begin(), ofReading.end());
        const std::vector<MessageText> ofBulk = bulkTexts();
        collected.insert(collected.end(), ofBulk.begin(), ofBulk.end());
        std::vector<Mapping> rows = table;
        rows.insert(rows.end(), mappings(Dialect::Commercial).begin(), mappings(Dialect::Commercial).end());
        for (const Mapping& row : rows) {
            const bool known = std::any_of(collected.begin(), collected.end(), [&row](const MessageText& one) {
                return std::string_view(one.id) == row.how.id;
            });
            if (*row.how.id != '\0' && !known)
                collected.push_back(row.how);
        }
        return collected;
    }();
    return all;
}

} // namespace vxDecks
