#pragma once

#include "vxConstitutive/Curve.h"
#include "vxUnits/UnitSystem.h"

#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// The arguments of `vxmat curve`, as they were typed.
struct CurveArguments
{
    std::vector<std::string> sources;   ///< library materials, projects and documents
    std::vector<std::string> materials; ///< labels or numbers of the materials of files; empty for all of them
    std::string mode;                   ///< the key of a mode
    std::optional<std::string> model;   ///< the key of a model
    std::optional<std::string> from;
    std::optional<std::string> to;
    std::optional<std::string> points;
    std::optional<std::string> at; ///< abscissas, separated by commas or semicolons
    bool logarithmic = false;
    bool incompressible = false;
    bool full = false;
    bool inverseLangevin = false;
    std::optional<std::string> stresses; ///< of creep curves, separated by commas or semicolons
    std::optional<std::string> time;     ///< of creep rates
    std::optional<std::string> cohesion; ///< of yield surfaces
    std::vector<std::string> measured;   ///< files of measured tests whose points a picture shows
    std::string output = "-";            ///< the file to write; "-" for standard output
};

/// The abscissas of a curve if --points is not given.
inline constexpr std::size_t usualPoints = 101;

/// No curve has more abscissas.
inline constexpr std::size_t mostCurvePoints = 1000000;

/// Returns what the arguments ask of a model. Numbers without a unit are in `system`.
/// \throws Failure with the name of the option if a mode or number cannot be read, if options are missing or contradict
/// each other, or if there are too many points
vxConstitutive::CurveRequest readCurveRequest(const CurveArguments& arguments, const vxUnits::UnitSystem& system);

} // namespace commandline
