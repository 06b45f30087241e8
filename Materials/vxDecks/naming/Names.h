#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// The rules of a format for names.
struct NameRules
{
    std::size_t longest = 80;  ///< in bytes
    const char* signs = "_-";  ///< characters beside letters and digits
    const char* prefix = "M_"; ///< of a name that does not begin with a letter
    bool isText = false;       ///< whether any text is a name, any number of times
    const char* notFirst = ""; ///< characters in front of which a text gets a blank
};

/// Returns the rules of a format that has names in comments or titles only. It takes any text without control characters, any
/// number of times.
inline NameRules anyText(std::size_t longest, const char* notFirst = "")
{
    return {longest, "", "", true, notFirst};
}

/// Returns the rules of the keyword family of CalculiX.
inline NameRules calculixNames()
{
    return {80, "_-", "M_"};
}

/// Returns a text of the user for a comment, of at most `longest` bytes and without control characters, so that it stays on
/// its line.
std::string commentText(std::string_view text, std::size_t longest);

/// Makes names that a format takes, each of them once, or texts. Names that differ in case only are equal.
class Names
{
public:
    explicit Names(NameRules rules) : m_rules(rules) {}

    /// Returns a name that has not been returned before, as near to `name` as possible. Other characters become "_", several of
    /// them one. A text is only cut, and has blanks in place of control characters.
    std::string take(const std::string& name);

private:
    std::string clean(const std::string& name) const;
    std::string textOf(const std::string& name) const;

    NameRules m_rules;
    std::set<std::string> m_taken; ///< in capitals
};

/// Returns the numbers of materials in a deck: the wanted ones, or the smallest free number in place of one that is missing,
/// 0, above `largest` or wanted twice; with `first`, ascending numbers from there.
std::vector<std::uint32_t> numberMaterials(const std::vector<std::optional<std::uint32_t>>& wanted,
                                           const std::optional<std::uint32_t>& first, std::uint32_t largest);

} // namespace vxDecks
