#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace vxDecks {

/// The rules of a format for names.
struct NameRules
{
    std::size_t longest = 80;  ///< in bytes; 0 if the format takes any name, any number of times
    const char* signs = "_-";  ///< characters beside letters and digits
    const char* prefix = "M_"; ///< of a name that does not begin with a letter
};

/// Returns the rules of a format that takes any name, any number of times.
inline NameRules anyName()
{
    return {0, "", ""};
}

/// Makes names that a format takes, each of them once. Names that differ in case only are equal.
class Names
{
public:
    explicit Names(NameRules rules) : m_rules(rules) {}

    /// Returns a name that has not been returned before, as near to `name` as possible. Other characters become "_", several of
    /// them one.
    std::string take(const std::string& name);

private:
    std::string clean(const std::string& name) const;

    NameRules m_rules;
    std::set<std::string> m_taken; ///< in capitals
};

/// Returns the numbers of materials in a deck: the wanted ones, or the smallest free number in place of one that is missing,
/// 0, above `largest` or wanted twice; with `first`, ascending numbers from there.
std::vector<std::uint32_t> numberMaterials(const std::vector<std::optional<std::uint32_t>>& wanted,
                                           const std::optional<std::uint32_t>& first, std::uint32_t largest);

} // namespace vxDecks
