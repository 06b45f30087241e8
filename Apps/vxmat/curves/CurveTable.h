#pragma once

#include "curves/CurveSeries.h"
#include "vxUnits/UnitSystem.h"

#include <functional>
#include <string>
#include <vector>

namespace commandline {

/// Takes the next part of a text.
using TextSink = std::function<void(const std::string&)>;

/// Writes curves of the same abscissas as one table of comma-separated values (RFC 4180, lines end in LF): the abscissa,
/// and the other columns of each curve. The header is "stretch [1],nominal stress [Pa]"; if there are several curves,
/// "stretch [1],Frame: nominal stress [Pa]". Numbers have the fewest digits that read back to the same double, and a
/// decimal point. The cell of an absent value is empty. The text comes in parts of some thousand rows.
void writeCsv(const std::vector<CurveSeries>& series, const vxUnits::UnitSystem& system, const TextSink& sink);

/// Writes curves as a document for --json. Absent values are null. The text comes in parts.
void writeCurvesJson(const std::vector<CurveSeries>& series, vxConstitutive::Mode mode,
                     const vxUnits::UnitSystem& system, const TextSink& sink);

/// Returns the name of a column with its parameter in the units of a system: "creep strain at 100 MPa".
std::string nameOfColumn(const vxConstitutive::Column& column, const vxUnits::UnitSystem& system);

} // namespace commandline
