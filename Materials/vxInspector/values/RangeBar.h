#pragma once

#include "vxUnits/Quantity.h"
#include "vxUnits/UnitSystem.h"

#include <QString>

#include <optional>
#include <vector>

namespace vxInspector {

/// The place of the values of a quantity in the range of known materials, for a picture: 0 is the lowest and 1 the
/// highest value of any known material.
struct RangeBar
{
    /// The states of matter that have a range of their own.
    enum class Matter
    {
        Solids,
        Liquids,
        Gases,
    };
    struct Span
    {
        Matter matter;
        double from;
        double to;
    };
    enum class Side
    {
        Inside,
        Below,
        Above,
    };
    struct Mark
    {
        double position; ///< from 0 to 1; at an end for a value beyond it
        Side side;
    };

    std::vector<Span> spans;
    std::vector<Mark> marks; ///< of a number one; of a list those of its lowest and highest number
    bool isLogarithmic = false;
};

/// Returns the bar for values of a quantity, in the unit of the catalogue. Absent if no range is known, and without
/// finite values. The scale is logarithmic if the range spans more than two decades and does not contain 0.
std::optional<RangeBar> rangeBar(const vxUnits::Quantity& quantity, const std::vector<double>& values);

/// Returns the bar in words: "within the known range", "below the known range".
QString rangeText(const RangeBar& bar);

/// Returns the ranges of a quantity in a unit system, with the materials at their ends and the source.
QString rangeToolTip(const vxUnits::Quantity& quantity, const vxUnits::UnitSystem& system);

} // namespace vxInspector
