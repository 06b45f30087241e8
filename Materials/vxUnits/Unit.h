#pragma once

#include "vxUnits/Dimension.h"
#include "vxUnits/Result.h"
#include "vxUnits/UnitsExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// A positive factor with about 31 digits: (high + low) * 10^exponent. Powers of ten are only in the exponent, so that
/// conversions between decimal units are exact.
struct Scale
{
    double high = 1.0;
    double low = 0.0;
    int exponent = 0;
};

/// The meaning of a temperature in degC or degF alone. In a product, "W/(m degC)", it is always a difference.
enum class TemperatureMeaning
{
    Absolute,   ///< a point of the scale: 20 degC is 293.15 K
    Difference, ///< a difference, as the user said: 20 degC is 20 K
    Refused,    ///< a difference, which the user may not know: 20 degC is refused, 20 delta_degC is 20 K
};

/// A unit of measurement: "GPa", "W/(m K)", "lbf s^2/in^4", "Btu/(h ft degF)", "MPa^-4.5 h^-1".
///
/// About a hundred units that engineers use are built in with their exact definitions, each with the usual prefixes,
/// because the database of UDUNITS lacks some of them, rounds others, and takes longer to read than a program to start. Any
/// other name is looked up in this database, which is read at the first such name. Units are multiplied by a blank, ".", "*"
/// or "-" between letters, and divided by "/" or "per", which divide only by the next unit: W/m K is W K/m, and where this is
/// refused, W/(m K) is suggested. Powers: m^2, m2, m-2, m², m**2, MPa^-4.5. The calorie is the International Table
/// calorie of 4.1868 J, the Btu the unit of 1055.05585262 J; cal_th and Btu_th are the thermochemical units.
///
/// The coherent unit of an angle is the degree here, since the catalogue stores degrees.
class Unit
{
public:
    /// The unit of pure numbers, "1".
    VXUNITS_EXPORT Unit();

    /// Reads a unit without a number. "", "-" and "1" are the unit of pure numbers. Takes linear time in the length of the
    /// text. Safe to call from several threads.
    VXUNITS_EXPORT static Result<Unit> parse(std::string_view text);

    /// Returns the text as engineers write it: "W/(m K)".
    const std::string& text() const { return m_text; }
    const Dimension& dimension() const { return m_dimension; }

    /// Returns the size of the unit in coherent SI units (m, kg, s, K, A, mol, cd, and degree): the double next to the exact
    /// value.
    VXUNITS_EXPORT double factor() const;
    const Scale& scale() const { return m_scale; }

    /// Returns whether the unit is degC or degF alone, whose zero is not the absolute zero.
    bool isTemperatureScale() const { return m_zero != 0.0; }
    /// Returns the distance of zero of the scale from the absolute zero: 273.15 for degC, 459.67 for degF, otherwise 0.
    double zero() const { return m_zero; }

    /// Returns a remark about the unit for the user, "cal is the International Table calorie"; its id is empty if there is
    /// none.
    const Message& note() const { return m_note; }

    /// Returns the unit with another text, which must have the same meaning.
    VXUNITS_EXPORT Unit named(std::string text) const;

private:
    friend class UnitBuilder;

    std::string m_text;
    Dimension m_dimension;
    Scale m_scale;
    double m_zero = 0.0;
    Message m_note;
};

/// Returns the built-in units without prefixes, for lists and completion.
VXUNITS_EXPORT const std::vector<Unit>& builtInUnits();

/// Converts numbers from one unit to another as fast as a multiplication. The result is correctly rounded for units that
/// differ by a power of ten up to 10^22. Otherwise its error is at most one unit in the last place.
class Converter
{
public:
    /// The identity.
    Converter() = default;

    double operator()(double number) const { return number * m_factor / m_divisor + m_offset; }

    /// Converts `count` numbers. The arrays may be the same, but must not overlap in another way.
    VXUNITS_EXPORT void convert(const double* from, std::size_t count, double* to) const;

    /// Returns the converter between two units. Fails if their dimensions differ.
    VXUNITS_EXPORT static Result<Converter> between(const Unit& from, const Unit& to,
                                                    TemperatureMeaning meaning = TemperatureMeaning::Difference);

private:
    double m_factor = 1.0;
    double m_divisor = 1.0; ///< 1 or a power of ten; a factor of 1e-9 would be inexact, a divisor of 1e9 is not
    double m_offset = 0.0;
};

/// Returns a number in another unit, rounded once: the number that is read if its decimals are typed with the unit `from`. If a
/// number of at most twelve digits becomes the same number in `from`, returns it, so that 7850 kg/m^3 is 7850 again after a
/// conversion to pounds and back; it differs by no more than one unit in the last place. Takes longer than a Converter. Both
/// units must have the same dimension. A temperature is a difference. The result is infinite if it is out of range.
VXUNITS_EXPORT double convertNumber(double number, const Unit& from, const Unit& to);

/// The state of the database of UDUNITS, which is read at the first unit that is not built in.
enum class DatabaseState
{
    NotRead,
    Read,
    Unreadable
};
VXUNITS_EXPORT DatabaseState databaseState();

} // namespace vxUnits
