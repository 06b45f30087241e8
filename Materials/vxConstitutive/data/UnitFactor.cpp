#include "vxConstitutive/data/UnitFactor.h"

#include "vxUnits/Unit.h"

#include <array>

namespace vxConstitutive {

namespace {

// In the order of Dimension.
constexpr std::array<vxUnits::Dimension, 4> physicalDimensions{
    vxUnits::dimensions::none,
    vxUnits::dimensions::pressure,
    vxUnits::dimensions::time,
    vxUnits::Dimension(0, 0, -1),
};

} // namespace

std::optional<double> unitFactor(std::string_view unit, Dimension dimension)
{
    const vxUnits::Result<vxUnits::Unit> parsed = vxUnits::Unit::parse(unit);
    if (!parsed || parsed->dimension() != physicalDimensions[static_cast<std::size_t>(dimension)])
        return std::nullopt;
    return parsed->factor();
}

} // namespace vxConstitutive
