#pragma once

#include "fit/LoadedTest.h"
#include "table/TableContent.h"
#include "vxConstitutive/fit/Fit.h"
#include "vxConstitutive/record/Measurements.h"
#include "vxPlot/PlotData.h"
#include "vxUnits/UnitSystem.h"

#include <vector>

namespace vxInspector {

/// Returns the loaded tests: name, kind, points, weight.
TableContent testTable(const std::vector<LoadedTest>& tests);

/// Returns the models side by side, in the order of the results: residual, R², the residual without
/// stability if it has a price for a model, stable ranges.
TableContent modelTable(const std::vector<vxConstitutive::FitResult>& results);

/// Returns the constants of a model with units and standard errors, then how well each test is met, then the findings.
TableContent constantTable(const vxConstitutive::FitResult& result, const vxUnits::UnitSystem& system);

/// Returns the plot of the tests of one mode, and the curves of the models in the modes that fit to it.
vxPlot::PlotData fitPlot(const std::vector<const vxConstitutive::TestData*>& tests,
                         const std::vector<const vxConstitutive::FitResult*>& results,
                         const vxUnits::UnitSystem& system);

/// Returns a sentence about a fit that a material keeps: the model, its constants, residual and R².
QString recordText(const vxConstitutive::FitRecord& fit, const vxUnits::UnitSystem& system);

/// Returns the name of a fitted model in the user's language.
QString modelName(const vxConstitutive::FitResult& result);

} // namespace vxInspector
