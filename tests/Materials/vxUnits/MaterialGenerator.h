#pragma once

#include "vxUnits/MaterialValues.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace vxtest {

/// A material as published, or a variation of one within the scatter of its kind.
struct SampleMaterial
{
    std::string group; ///< "metal", "liquid" ...
    std::string name;
    vxUnits::MaterialValues values;
};

/// The materials of tests/data/units/materials.tsv, and `variations` of each: values that scatter together as they do in
/// nature (a denser foam is stiffer), with plasticity, visco-elasticity and creep where they are usual. The same ones at
/// each call.
std::vector<SampleMaterial> makeMaterials(int variations);

/// A value that somebody typed in another unit than that of the catalogue.
struct SampleSlip
{
    std::int32_t id;
    std::string unit;
    double factor;   ///< what the wrong number must be multiplied by
    bool reciprocal; ///< whether the reciprocal must be taken besides
    bool visible;    ///< whether the other values of the material can tell
};

/// The slips that are realistic for a material.
std::vector<SampleSlip> slipsOf(const SampleMaterial& material);

/// The values of a material as numbers of another unit system, by the definitions of its units.
vxUnits::MaterialValues inSystem(const vxUnits::MaterialValues& values, const std::string& system);

/// The values with the slip made.
vxUnits::MaterialValues withSlip(const vxUnits::MaterialValues& values, const SampleSlip& slip);

} // namespace vxtest
