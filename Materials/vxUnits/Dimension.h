#pragma once

#include "vxUnits/UnitsExport.h"

#include <array>
#include <cstddef>
#include <string>

namespace vxUnits {

/// The physical dimension of a number: the exponents of the base quantities. The dimension of a pressure is mass / (length
/// time^2). Exponents need not be whole: the factor of a creep law has the dimension pressure^-n time^-(m+1).
///
/// The plane angle is a base quantity here, so that "30 %" is not accepted as an angle.
class Dimension
{
public:
    enum Base : std::size_t
    {
        Length,
        Mass,
        Time,
        Temperature,
        Current,
        Amount,
        LuminousIntensity,
        Angle,
        BaseCount
    };

    /// The dimension of pure numbers.
    constexpr Dimension() = default;
    constexpr Dimension(double length, double mass, double time, double temperature = 0, double current = 0)
        : m_exponents{length, mass, time, temperature, current, 0, 0, 0}
    {}
    /// The dimension of a base quantity.
    constexpr Dimension(Base base) { m_exponents[base] = 1; }

    constexpr double exponent(Base base) const { return m_exponents[base]; }

    friend constexpr Dimension operator*(Dimension one, const Dimension& other)
    {
        for (std::size_t i = 0; i < BaseCount; ++i)
            one.m_exponents[i] += other.m_exponents[i];
        return one;
    }
    friend constexpr Dimension operator/(Dimension one, const Dimension& other)
    {
        for (std::size_t i = 0; i < BaseCount; ++i)
            one.m_exponents[i] -= other.m_exponents[i];
        return one;
    }
    constexpr Dimension power(double exponent) const
    {
        Dimension result = *this;
        for (double& one : result.m_exponents)
            one *= exponent;
        return result;
    }

    /// Returns whether all exponents are equal, apart from errors of rounding.
    VXUNITS_EXPORT bool operator==(const Dimension& other) const;
    bool operator!=(const Dimension& other) const { return !(*this == other); }

    bool isNone() const { return *this == Dimension(); }

    /// Returns the name, "pressure or stress" or "density", one of wordTexts(); empty if there is no usual name.
    VXUNITS_EXPORT std::string name() const;

private:
    std::array<double, BaseCount> m_exponents{};
};

/// The dimensions of the quantities of the catalogue, and other dimensions that users type.
namespace dimensions {

inline constexpr Dimension none{};
inline constexpr Dimension length{1, 0, 0};
inline constexpr Dimension area{2, 0, 0};
inline constexpr Dimension volume{3, 0, 0};
inline constexpr Dimension mass{0, 1, 0};
inline constexpr Dimension time{0, 0, 1};
inline constexpr Dimension temperature{0, 0, 0, 1};
inline constexpr Dimension current{0, 0, 0, 0, 1};
inline constexpr Dimension amount{Dimension::Amount};
inline constexpr Dimension angle{Dimension::Angle};
inline constexpr Dimension speed{1, 0, -1};
inline constexpr Dimension acceleration{1, 0, -2};
inline constexpr Dimension force{1, 1, -2};
inline constexpr Dimension energy{2, 1, -2};
inline constexpr Dimension power{2, 1, -3};
inline constexpr Dimension pressure{-1, 1, -2};
inline constexpr Dimension compressibility{1, -1, 2};
inline constexpr Dimension density{-3, 1, 0};
inline constexpr Dimension dynamicViscosity{-1, 1, -1};
inline constexpr Dimension kinematicViscosity{2, 0, -1}; ///< and diffusivity
inline constexpr Dimension specificHeat{2, 0, -2, -1};
inline constexpr Dimension thermalConductivity{1, 1, -3, -1};
inline constexpr Dimension electricalConductivity{-3, -1, 3, 0, 2};
inline constexpr Dimension electricalResistivity{3, 1, -3, 0, -2};

} // namespace dimensions

} // namespace vxUnits
