#include "vxUnits/Dimension.h"

#include "units/Words.h"

#include <algorithm>
#include <cmath>

namespace vxUnits {

namespace {

struct NamedDimension
{
    Dimension dimension;
    const char* name = "";
};

constexpr NamedDimension names[] = {
    {dimensions::none, "a pure number"},
    {dimensions::length, "length"},
    {dimensions::area, "area"},
    {dimensions::volume, "volume"},
    {dimensions::mass, "mass"},
    {dimensions::time, "time"},
    {dimensions::temperature, "temperature"},
    {dimensions::current, "electric current"},
    {dimensions::amount, "amount of substance"},
    {dimensions::angle, "angle"},
    {dimensions::speed, "speed"},
    {dimensions::acceleration, "acceleration"},
    {dimensions::force, "force"},
    {dimensions::energy, "energy"},
    {dimensions::power, "power"},
    {dimensions::pressure, "pressure or stress"},
    {dimensions::compressibility, "compressibility"},
    {dimensions::density, "density"},
    {dimensions::dynamicViscosity, "dynamic viscosity"},
    {dimensions::kinematicViscosity, "kinematic viscosity or diffusivity"},
    {dimensions::specificHeat, "specific heat"},
    {dimensions::thermalConductivity, "thermal conductivity"},
    {dimensions::electricalConductivity, "electrical conductivity"},
    {dimensions::electricalResistivity, "electrical resistivity"},
    {dimensions::none / dimensions::time, "frequency"},
    {dimensions::none / dimensions::temperature, "thermal expansion"},
    {dimensions::mass / dimensions::area, "mass per area"},
    {dimensions::mass / dimensions::length, "mass per length"},
    {dimensions::force / dimensions::length, "force per length"},
    {dimensions::force / dimensions::volume, "force per volume"},
    {dimensions::mass / dimensions::time, "mass flow"},
    {dimensions::energy / dimensions::mass, "energy per mass"},
    {dimensions::energy / dimensions::temperature, "heat capacity"},
    {dimensions::power / dimensions::area / dimensions::temperature, "heat transfer coefficient"},
    {dimensions::electricalConductivity * dimensions::length, "electrical conductance"},
    {dimensions::electricalResistivity / dimensions::length, "electrical resistance"},
    {dimensions::current * dimensions::time, "electric charge"},
};

} // namespace

bool Dimension::operator==(const Dimension& other) const
{
    constexpr double tolerance = 1e-9;
    return std::equal(m_exponents.begin(), m_exponents.end(), other.m_exponents.begin(),
                      [](double one, double another) { return std::abs(one - another) <= tolerance; });
}

std::string Dimension::name() const
{
    const auto* const found = std::find_if(std::begin(names), std::end(names),
                                           [this](const NamedDimension& one) { return one.dimension == *this; });
    return found == std::end(names) ? std::string() : found->name;
}

void addDimensionWords(std::vector<std::string>& words)
{
    for (const NamedDimension& one : names)
        words.emplace_back(one.name);
}

} // namespace vxUnits
