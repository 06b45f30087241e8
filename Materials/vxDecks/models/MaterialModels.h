#pragma once

#include "vxUnits/MaterialValues.h"
#include "vxUnits/Message.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace vxDecks {

/// A material model with its numbers, or the reason why the material does not have it. Neither is present if the material has
/// no quantity of the model.
template <class Model>
struct Resolved
{
    std::optional<Model> model;
    std::optional<vxUnits::Message> reason;
};

struct ElasticModel
{
    double youngsModulus = 0.0;
    double poissonsRatio = 0.0;
};

enum class HyperelasticKind
{
    NeoHooke,
    MooneyRivlin,
    ArrudaBoyce,
};

/// A hyperelastic model. Constants that the kind does not use are 0.
struct HyperelasticModel
{
    HyperelasticKind kind = HyperelasticKind::NeoHooke;
    double c10 = 0.0;
    double c01 = 0.0;
    double c11 = 0.0;
    double mu = 0.0;
    double stretch = 0.0;                 ///< limiting network stretch
    double shear = 0.0;                   ///< initial shear modulus
    std::optional<double> d1;             ///< absent if the solid is incompressible
    std::vector<std::int32_t> quantities; ///< the quantities of the model, without its switch
};

/// The source of the hardening curve of a plastic model.
enum class HardeningSource
{
    Modulus, ///< initial yield stress and plastic modulus
    Points,  ///< yield stresses and plastic strains
};

/// Plasticity of Mises with isotropic or kinematic hardening.
struct PlasticModel
{
    bool isKinematic = false;
    HardeningSource source = HardeningSource::Modulus;
    double yieldStress = 0.0;     ///< the first one
    double modulus = 0.0;         ///< the plastic modulus; 0 for points
    bool hasAddedPoint = false;   ///< whether the initial yield stress is the first point
    std::vector<double> stresses; ///< true stresses; empty for a modulus
    std::vector<double> strains;  ///< plastic strains, ascending from 0
};

/// Creep strain rate = factor stress^n time^m.
struct CreepModel
{
    double factor = 0.0;
    double n = 0.0;
    double m = 0.0;
};

/// One term of a Prony series of the shear modulus: G(t) / G(0) = 1 - ratio (1 - exp(-t / time)).
struct PronyModel
{
    double ratio = 0.0;
    double time = 0.0;
};

/// The models of a material that solvers can compute.
struct MaterialModels
{
    Resolved<ElasticModel> elastic;
    Resolved<HyperelasticModel> hyperelastic;
    Resolved<PlasticModel> plastic;
    Resolved<CreepModel> creep;
    Resolved<PronyModel> prony;
};

/// Returns the models of a material. The values must be finite, in one consistent unit system. A model whose numbers
/// contradict each other, or with which no solver could compute, has a reason instead.
MaterialModels resolveModels(const vxUnits::MaterialValues& values);

} // namespace vxDecks
