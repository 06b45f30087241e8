#pragma once

#include "program/Answer.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Model.h"
#include "vxUnits/UnitSystem.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// The curve of one model of a material.
struct CurveSeries
{
    std::string source;                  ///< the file; empty for a library material
    std::optional<std::uint32_t> number; ///< of the material in the file; absent for a library material
    std::string material;                ///< the label
    vxConstitutive::ModelKind model = vxConstitutive::ModelKind::LinearElasticity;
    std::vector<vxConstitutive::Constant> constants;
    std::vector<vxConstitutive::Finding> findings; ///< about the constants and the curve
    vxConstitutive::Curve curve;                   ///< its findings have moved to `findings`
    std::string title; ///< the shortest name that no other curve has: label, model, number, file and position
};

/// Which curves are drawn.
struct CurveChoice
{
    std::vector<std::string> sources;   ///< library materials, projects and documents
    std::vector<std::string> materials; ///< labels or numbers of the materials of files; empty for all of them
    std::optional<vxConstitutive::ModelKind> model;
};

/// Computes a curve of each model of each material that has a response in the mode. Adds to `answer` the findings, and
/// why a material has no curve, with numbers in the units of `system`. Curves without a finite value are left out.
/// \throws Failure for an unknown name, a file that cannot be read, a material that no file has
std::vector<CurveSeries> drawSeries(const CurveChoice& choice, const vxConstitutive::CurveRequest& request,
                                    const vxUnits::UnitSystem& system, Answer& answer);

} // namespace commandline
