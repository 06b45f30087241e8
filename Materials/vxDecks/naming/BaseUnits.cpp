#include "naming/BaseUnits.h"

namespace vxDecks {

using vxUnits::Dimension;

std::string baseUnits(const vxUnits::UnitSystem& units)
{
    std::string text;
    for (const auto base :
         {Dimension::Length, Dimension::Mass, Dimension::Time, Dimension::Temperature, Dimension::Current})
        text += (text.empty() ? "" : ", ") + units.baseUnit(base);
    return text;
}

} // namespace vxDecks
