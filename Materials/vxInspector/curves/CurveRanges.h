#pragma once

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Model.h"
#include "vxMaterial/model/Material.h"
#include "vxPlot/PlotData.h"

#include <vector>

namespace vxInspector {

/// The part of the horizontal axis that shows what is typical of a model in a mode, in SI units: up to the rows of a
/// hardening table, to the necking of a bar, to the limit of the chains, around the relaxation time. `material` holds
/// the constants of the model.
vxConstitutive::Range usualRange(const vxConstitutive::Model& model, vxConstitutive::Mode mode,
                                 const vxMat::MaterialBase& material);

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
