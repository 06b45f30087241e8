#pragma once

#include "vxUnits/Dimension.h"
#include "vxUnits/Result.h"
#include "vxUnits/Unit.h"
#include "vxUnits/UnitsExport.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// The exponents of a creep law, strain rate = A stress^n time^m. The unit of A depends on them.
struct CreepExponents
{
    std::optional<double> n; ///< absent if the material does not have it; NaN if it has one that cannot be read
    std::optional<double> m;

    bool areBothGiven() const { return n && m; }
};

/// A consistent system of units: units of length, mass, time, temperature and current. All other units are products of
/// them. Six systems that finite-element analysts use are built in; a user can define others. Angles are in degrees in
/// every system.
///
/// Copies are cheap. The built-in systems live as long as the program and need no database.
class UnitSystem
{
public:
    /// Returns SI: m, kg, s, K, A.
    VXUNITS_EXPORT static const UnitSystem& si();

    /// Returns SI, mm-t-s, mm-kg-ms, cm-g-s, ft-slug-s and in-lbf-s, in this order.
    VXUNITS_EXPORT static const std::vector<UnitSystem>& builtIn();

    /// Reads the text of a system: the name of a built-in one, in upper or lower case, or the base units of another one,
    /// "length cm, mass g, time us, temperature K, current A". The default of temperature and current is K and A. A unit is
    /// any text that Unit::parse accepts, with the right dimension: "mass lbf s^2/in".
    VXUNITS_EXPORT static Result<UnitSystem> parse(std::string_view text);

    /// Returns the text for parse(): the name of a built-in system, or the base units of another one.
    const std::string& text() const { return m_text; }
    bool isBuiltIn() const { return m_builtIn; }

    /// Returns the unit of a base quantity: "lbf s^2/in" for the mass in in-lbf-s.
    VXUNITS_EXPORT const std::string& baseUnit(Dimension::Base base) const;

    /// Returns the coherent unit of a dimension, as engineers write it in this system: "MPa", "t/mm^3", "mW/(mm K)".
    VXUNITS_EXPORT Unit unitOf(const Dimension& dimension) const;

    /// Returns the unit of the factor A of a creep law: "1/(MPa^5 s)". Both exponents must be given.
    VXUNITS_EXPORT Unit unitOfCreep(const CreepExponents& exponents) const;

private:
    struct Bases;
    friend class SystemParser;

    UnitSystem() = default;

    std::string m_text;
    bool m_builtIn = false;
    std::shared_ptr<const Bases> m_bases;
};

/// Returns whether two systems have the same text.
inline bool operator==(const UnitSystem& one, const UnitSystem& other)
{
    return one.text() == other.text();
}
inline bool operator!=(const UnitSystem& one, const UnitSystem& other)
{
    return !(one == other);
}

} // namespace vxUnits
