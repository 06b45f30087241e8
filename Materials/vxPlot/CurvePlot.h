#pragma once

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/data/TestData.h"
#include "vxPlot/PlotData.h"
#include "vxUnits/Message.h"
#include "vxUnits/UnitSystem.h"

#include <string>
#include <vector>

namespace vxPlot {

/// Quantities of a curve that belong on one vertical axis.
struct Ordinates
{
    const char* name; ///< English, the source of translations: "nominal stress"
    std::vector<vxConstitutive::Quantity> quantities;
};

/// Returns what the curves of a mode can show on the vertical axis, the usual choice first.
const std::vector<Ordinates>& ordinatesOf(vxConstitutive::Mode mode);

/// Returns whether curves of two modes can be in one plot: they have the same abscissa and the same ordinates.
bool fitTogether(vxConstitutive::Mode one, vxConstitutive::Mode other);

/// A curve of a plot.
struct NamedCurve
{
    std::string name; ///< of the material; may be empty
    const vxConstitutive::Curve* curve = nullptr;
    bool isMeasured = true; ///< false if there are tests, but none of the mode of the curve
};

/// Measured points of a plot.
struct NamedTest
{
    std::string name; ///< in the legend
    const vxConstitutive::TestData* test = nullptr;
};

/// What a plot of curves shows. The curves and tests must outlive the call only.
struct CurvePlotRequest
{
    std::string title = {};
    std::vector<NamedCurve> curves = {};
    std::vector<NamedTest> tests = {};
    std::size_t ordinates = 0; ///< a position in ordinatesOf() of the first curve's mode
    Scale horizontal = Scale::Linear;
    Scale vertical = Scale::Linear;
    vxUnits::UnitSystem system = vxUnits::UnitSystem::si();
    vxUnits::Translator translator = {}; ///< contexts "vxConstitutive::Word" and "vxPlot"
};

/// Returns the plot of the curves and tests in the chosen units. The unstable ranges of the curves are its bands, which
/// have the name of the material if there are several. Curves
/// and tests of a mode that does not fit to the first are left out. The name of a series is that of the material, of the
/// mode and of the column, each only if the plot has several. A curve that is not measured is faint, its name says so, and it is
/// cut where its values are far beyond those of the other curves. A true stress of a test is computed as that of an
/// incompressible material.
PlotData curvePlot(const CurvePlotRequest& request);

/// Returns the name of a mode as a legend shows it, "uniaxial", translated with the context "vxPlot".
std::string shortModeName(vxConstitutive::Mode mode, const vxUnits::Translator& translator = {});

} // namespace vxPlot
