#pragma once

#include <cstdint>

namespace vxMat {

/// The identifiers of the 36 quantities of the catalogue. The id of a quantity is also the number of its slot in a
/// material, and its "prop_type" in documents; the solver cards look values up by it. User interface and solver share
/// the numbers, which never change. No quantity has the numbers in the gaps (40, 201 ...).
struct PropertyId
{
    enum : std::int32_t
    {
        // Mechanics and fluids
        Density = 4,
        YoungsModulus = 5,
        PoissonsRatio = 6,
        DynamicViscosity = 21,

        // Hyperelasticity: constants, then the switches that choose a model
        InitialShearModulusMu = 23,
        IncompressibilityParameterD1 = 25,
        MaterialConstantC10 = 26,
        MaterialConstantC01 = 27,
        NeoHooke = 28,
        MooneyRivlin = 29,
        ArrudaBoyce = 30,

        // Linear elasticity: the switch that governs 5 and 6
        IsotropicElasticity = 31,

        // Plasticity: switch, then its parameters
        Plasticity = 32,
        PlasticYieldType = 33,
        PlasticViscosity = 34,
        PlasticFAI = 35,
        PlasticHardeningFactor = 36,
        PlasticHardeningType = 37,
        PlasticYieldStress = 38,
        PlasticStrain = 39,
        PlasticInitialYieldStress = 41,

        // Visco-elasticity: switch, then its parameters
        ViscoElasticity = 42,
        ShearRelaxationModulus = 43,
        RelaxationTime = 44,

        // Creep: switch, then its parameters
        Creep = 45,
        CreepModulusA = 46,
        CreepModulusN = 47,
        CreepModulusM = 48,

        // Hyperelasticity, continued
        LimitingNetworkStretch = 127,
        MaterialConstantC11 = 128,

        // Heat; 201, thermal expansion, is reserved and has no quantity yet
        SpecificHeat = 202,
        ThermalConductivity = 203,

        // Electromagnetics
        ElectricalConductivity = 301,
        RelativePermittivity = 302,
        RelativePermeability = 303,

        // Acoustics
        SpeedOfSound = 401,
    };
};

} // namespace vxMat
