#pragma once

#include "vxUnits/Filter.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vxUnits {

/// A name of a quantity in filters.
struct QuantityName
{
    FilterQuantity quantity;
    std::string text;      ///< "Young's modulus", "E", "5"
    std::string folded;    ///< for comparison
    bool isSymbol = false; ///< whether it is shorter than the name that the user sees
};

/// Returns all names that filters know without additional ones, those of the catalogue first. The first name of each quantity
/// is its English one.
const std::vector<QuantityName>& englishNames();

/// The names of quantities: those that filters know, and additional ones.
class QuantityNames
{
public:
    explicit QuantityNames(const FilterNames& added);

    /// Returns the additional names.
    const std::vector<QuantityName>& added() const { return m_added; }

    /// Returns the name that the user sees: the first additional one, otherwise the English one.
    std::string nameOf(const FilterQuantity& quantity) const;

    /// The most words that a name has.
    std::size_t longest() const { return m_longest; }

    /// Returns the quantity of a name, key, symbol or id. An exact spelling wins against one that differs in case, and an
    /// English name against an additional one.
    std::optional<FilterQuantity> find(std::string_view name) const;

    /// Returns the name of a quantity that was probably meant; empty if none is near. Looks at the first 60 bytes.
    std::string nearest(std::string_view typed) const;

private:
    using Map = std::unordered_map<std::string, FilterQuantity>;

    std::vector<QuantityName> m_added;
    Map m_exact; ///< of the additional names
    Map m_folded;
    std::size_t m_longest = 0;
};

} // namespace vxUnits
