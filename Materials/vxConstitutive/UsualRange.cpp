#include "vxConstitutive/UsualRange.h"

#include "vxConstitutive/response/HyperelasticModel.h"
#include "vxConstitutive/response/PlasticModel.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>

namespace vxConstitutive {

namespace {

using Id = vxMat::PropertyId;

/// The usual ranges of a mode if the constants do not say more.
struct ModeUse
{
    Range ofRubber;
    Range ofOthers;
};

// In the order of Mode. Linear elasticity is for small strains; creep is measured over 1000 hours.
const ModeUse uses[]{
    {{0.4, 4.0}, {0.98, 1.02}},     {{0.7, 3.0}, {0.98, 1.02}},   {{0.5, 4.0}, {0.98, 1.02}},
    {{0.0, 3.0}, {0.0, 0.04}},      {{0.95, 1.05}, {0.98, 1.02}}, {{0.0, 0.2}, {0.0, 0.2}},
    {{0.0, 0.2}, {0.0, 0.2}},       {{-5.0, 10.0}, {-5.0, 10.0}}, {{0.0, 3.6e6}, {0.0, 3.6e6}},
    {{10e6, 300e6}, {10e6, 300e6}}, {{0.0, 10.0}, {0.0, 10.0}},   {{0.0, 10.0}, {0.0, 10.0}},
    {{1e-3, 10.0}, {1e-3, 10.0}},
};

const ModeUse& useOf(Mode mode)
{
    return uses[static_cast<std::size_t>(mode)];
}

/// Returns the largest finite number of a property or of its list; 0 if there is none greater than 0.
double largestOf(const vxMat::MaterialBase& material, std::int32_t id)
{
    const vxMat::MaterialProperty* const property = material.findProperty(id);
    double largest = 0.0;
    if (property == nullptr)
        return largest;
    for (const double value : property->values)
        if (std::isfinite(value))
            largest = std::max(largest, value);
    return property->values.empty() && std::isfinite(property->value) ? std::max(largest, property->value) : largest;
}

Range rubberRange(const HyperelasticModel& model, Mode mode)
{
    constexpr double beforeTheLimit = 0.97;
    Range range = useOf(mode).ofRubber;
    const double limit = model.lockingStretch(mode);
    if (mode != Mode::Volumetric && limit * beforeTheLimit < range.to)
        range.to = std::max(limit * beforeTheLimit, mode == Mode::SimpleShear ? 0.01 : 1.01);
    return range;
}

Range hardeningRange(const PlasticModel& model, Mode mode, const vxMat::MaterialBase& material)
{
    constexpr double beyond = 1.1;
    const double lastRow = largestOf(material, Id::PlasticStrain);
    if (mode == Mode::Yield)
        return {0.0, 2.0 * model.stressAt(0.0)};
    if (mode == Mode::Plastic)
        return {0.0, lastRow > 0.0 ? lastRow * beyond : useOf(mode).ofOthers.to};
    const auto necking = model.necking();
    const double most =
        necking && necking->engineeringStrain > 0.0 ? necking->engineeringStrain * beyond : useOf(mode).ofOthers.to;
    return {0.0, std::min(most, 1.0)};
}

/// Ranges in multiples of the relaxation time.
Range relaxationRange(Mode mode, const vxMat::MaterialBase& material)
{
    constexpr double pi = 3.14159265358979323846;
    const double largest = largestOf(material, Id::RelaxationTime);
    const double time = largest > 0.0 ? largest : 1.0;
    const Range range = useOf(mode).ofOthers;
    const double unit = mode == Mode::Dynamic ? 10.0 / (2.0 * pi * time) : time;
    return {range.from * unit, range.to * unit};
}

} // namespace

Range usualRange(const Model& model, Mode mode, const vxMat::MaterialBase& material)
{
    if (const auto* const rubber = dynamic_cast<const HyperelasticModel*>(&model))
        return rubberRange(*rubber, mode);
    if (const auto* const metal = dynamic_cast<const PlasticModel*>(&model))
        return hardeningRange(*metal, mode, material);
    return model.kind() == ModelKind::ViscoElasticity ? relaxationRange(mode, material) : useOf(mode).ofOthers;
}

} // namespace vxConstitutive
