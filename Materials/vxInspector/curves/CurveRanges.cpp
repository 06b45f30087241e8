#include "curves/CurveRanges.h"

#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>

namespace vxInspector {

namespace {

using vxConstitutive::Mode;
using vxConstitutive::Range;
using vxPlot::Scale;
using Id = vxMat::PropertyId;

// In the order of Mode.
const UsualScales scales[]{
    {Scale::Linear, Scale::Linear},           {Scale::Linear, Scale::Linear}, {Scale::Linear, Scale::Linear},
    {Scale::Linear, Scale::Linear},           {Scale::Linear, Scale::Linear}, {Scale::Linear, Scale::Linear},
    {Scale::Linear, Scale::Linear},           {Scale::Linear, Scale::Linear}, {Scale::Linear, Scale::Linear},
    {Scale::Logarithmic, Scale::Logarithmic}, {Scale::Linear, Scale::Linear}, {Scale::Linear, Scale::Linear},
    {Scale::Logarithmic, Scale::Linear},
};

} // namespace

UsualScales usualScales(Mode mode)
{
    return scales[static_cast<std::size_t>(mode)];
}

std::vector<double> abscissasOf(Mode mode, const Range& range, Scale scale, const vxMat::MaterialBase& material)
{
    constexpr std::size_t count = 201;
    constexpr double decades = 1e-4; // shown of a logarithmic axis that begins at 0
    if (scale == Scale::Logarithmic && range.to > 0.0)
        return vxConstitutive::spacedByFactor(range.from > 0.0 ? range.from : range.to * decades, range.to, count);
    std::vector<double> values = vxConstitutive::evenlySpaced(range.from, range.to, count);
    const vxMat::MaterialProperty* const rows = material.findProperty(Id::PlasticStrain);
    if (mode != Mode::Plastic || rows == nullptr)
        return values;
    for (const double strain : rows->values)
        if (strain > range.from && strain < range.to)
            values.push_back(strain);
    std::sort(values.begin(), values.end());
    return values;
}

std::vector<double> creepStresses()
{
    return {50e6, 100e6, 200e6};
}

} // namespace vxInspector
