#pragma once

#include "curves/CurveCache.h"
#include "curves/CurveParameter.h"
#include "measured/KeptMeasurements.h"
#include "subject/InspectedMaterial.h"
#include "table/TableContent.h"
#include "vxConstitutive/Curve.h"
#include "vxPlot/PlotData.h"
#include "vxUnits/UnitSystem.h"

#include <QString>

#include <memory>
#include <optional>
#include <set>
#include <vector>

/// The curves of the selected materials without widgets.
namespace vxInspector {

/// The most materials in a plot.
inline constexpr std::size_t mostDrawn = 20;

/// A material whose curves and tests are drawn.
struct DrawnMaterial : InspectedMaterial
{
    std::shared_ptr<const KeptMeasurements> kept = {}; ///< null if there are none
};

/// What the user has chosen. What is absent is chosen by the materials.
struct CurveSettings
{
    std::set<vxConstitutive::Mode> modes = {}; ///< those that the materials do not have are ignored
    std::size_t ordinates = 0;                 ///< a position in vxPlot::ordinatesOf
    std::optional<double> from = {};           ///< SI; of the horizontal axis
    std::optional<double> to = {};
    std::optional<vxPlot::Scale> horizontal = {};
    std::optional<vxPlot::Scale> vertical = {};
    vxConstitutive::Compressibility compressibility = vxConstitutive::Compressibility::AsGiven;
    vxConstitutive::ChainStatistics chains = vxConstitutive::ChainStatistics::FiveTermSeries;
    std::vector<double> stresses = {};   ///< Pa; of creep curves; empty for those of the tests, or the usual ones
    std::optional<double> time = {};     ///< s; of creep rates
    std::optional<double> cohesion = {}; ///< Pa; of yield surfaces with friction
};

/// The curves of materials.
struct CurvesContent
{
    QString sentence;                             ///< why there are no curves, or of which materials they are
    std::vector<vxConstitutive::Mode> modes = {}; ///< that the materials have models or tests of, in the order of Mode
    std::vector<vxConstitutive::Mode> shown = {}; ///< which fit into one plot
    bool canBeIncompressible = false;             ///< whether a shown curve depends on the compressibility
    bool hasChains = false;                       ///< whether a shown curve depends on the law of the chains
    CurveParameter parameter = CurveParameter::None; ///< what the shown curves need
    std::vector<double> usedParameter = {};          ///< SI; the numbers of the parameter in the plot
    vxConstitutive::Range range = {};                ///< SI
    vxPlot::PlotData plot = {};
    TableContent findings = {};
};

/// Returns the curves and tests of materials in a unit system. Takes unchanged curves from a cache.
CurvesContent curvesOf(const std::vector<DrawnMaterial>& materials, const CurveSettings& settings,
                       const vxUnits::UnitSystem& system, CurveCache& cache);
/// Does the same without a cache.
CurvesContent curvesOf(const std::vector<DrawnMaterial>& materials, const CurveSettings& settings,
                       const vxUnits::UnitSystem& system);

/// Returns the modes that are shown if `chosen` was chosen of `available`: those that fit to the first of them; if there
/// are none, the usual ones.
std::vector<vxConstitutive::Mode> shownModes(const std::vector<vxConstitutive::Mode>& available,
                                             const std::set<vxConstitutive::Mode>& chosen, bool hasRubber);

} // namespace vxInspector
