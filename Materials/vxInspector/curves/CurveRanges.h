#pragma once

#include "vxConstitutive/Curve.h"
#include "vxMaterial/model/Material.h"
#include "vxPlot/PlotData.h"

#include <vector>

namespace vxInspector {

/// Whether the curves of a mode are usually drawn on logarithmic axes.
struct UsualScales
{
    vxPlot::Scale horizontal;
    vxPlot::Scale vertical;
};
UsualScales usualScales(vxConstitutive::Mode mode);

/// Returns the abscissas at which a curve is computed: evenly spaced, or by equal factors on a logarithmic axis, and the
/// rows of the hardening table of the material, so that its corners are sharp.
std::vector<double> abscissasOf(vxConstitutive::Mode mode, const vxConstitutive::Range& range, vxPlot::Scale scale,
                                const vxMat::MaterialBase& material);

/// The stresses of creep curves, in Pa.
std::vector<double> creepStresses();

} // namespace vxInspector
