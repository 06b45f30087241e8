#pragma once

#include "vxUnits/MaterialValues.h"
#include "vxUnits/Plausibility.h"

#include <array>
#include <cstdint>
#include <vector>

namespace vxUnits {

/// The rules. DoubtTexts.cpp has their texts in this order.
enum class Rule : std::size_t
{
    NotFinite,
    NotPositive,
    Negative,
    BelowRange,
    AboveRange,
    RatioOutside,      ///< Poisson's ratio beyond -1 and 0.5
    RatioNearHalf,     ///< Poisson's ratio so near 0.5 that elements lock
    RatioOfStiff,      ///< Poisson's ratio near 0.5 of a stiff solid
    WaveSpeed,         ///< of modulus and density
    LightAndStiff,     ///< modulus of a very light solid
    HeatPerVolume,     ///< of density and specific heat
    Diffusivity,       ///< of conductivity, density and specific heat
    LorenzNumber,      ///< of thermal and electrical conductivity of a metal
    SoundInSolid,      ///< speed of sound against moduli and density
    AcousticModulus,   ///< speed of sound and density of a fluid
    WaterViscosity,    ///< viscosity of a fluid that has all else of water
    YieldRatio,        ///< yield stress over modulus
    HardeningRatio,    ///< hardening factor over modulus
    InitialModulus,    ///< of the hyperelastic model against Young's modulus
    BulkOverShear,     ///< of the hyperelastic model
    InitialShear,      ///< of the hyperelastic model, negative
    ListLengths,       ///< of stresses and strains
    StrainStart,       ///< the first plastic strain
    StrainOrder,       ///< of the plastic strains
    HardeningFalls,    ///< a yield stress below the one before it
    CreepRate,         ///< at a thousandth of the modulus after an hour
    UnlikeAnyMaterial, ///< no kind of materials is near; applyRules does not find this
    Count
};

/// A finding of a rule. It has no texts, because a search for remedies makes thousands of findings.
struct Finding
{
    Rule rule = Rule::Count;
    Severity severity = Severity::Unlikely;
    std::array<std::int32_t, 3> ids{}; ///< the quantities of the rule, the most doubtful first; 0 for none
    double value = 0.0;                ///< of the first quantity; of a list the element
    double relation = 0.0;             ///< the value of the relation between them
    double lowest = 0.0;               ///< the bounds of the relation for known materials
    double highest = 0.0;
};

/// Returns all findings about the values.
std::vector<Finding> applyRules(const MaterialValues& values);

/// Returns the square of the distance of relations from usual values; 0 if all are usual. For relations that span many
/// orders of magnitude in known materials, it decides between two remedies.
double unusualness(const MaterialValues& values);

} // namespace vxUnits
