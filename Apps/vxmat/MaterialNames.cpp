#include "MaterialNames.h"

#include "Answer.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <numeric>
#include <sstream>
#include <tuple>
#include <utility>

namespace commandline {

namespace {

/// Returns the edit distance of two texts: the number of letters to add, remove or change in the first to get the
/// second.
std::size_t distance(const std::string& one, const std::string& other)
{
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t changed = diagonal + (one[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

/// The distance of a typed text from a name: first the number of typing errors in the name or in its nearest word, then
/// the edit distance from the whole name.
struct Distance
{
    std::size_t errors;
    std::size_t besides;

    bool operator<(const Distance& other) const
    {
        return std::tie(errors, besides) < std::tie(other.errors, other.besides);
    }
};

Distance distanceOfName(const std::string& typed, const std::string& name)
{
    const std::size_t whole = distance(typed, name);
    std::size_t errors = name.find(typed) != std::string::npos ? std::min<std::size_t>(whole, 1) : whole;
    std::istringstream words(name);
    for (std::string word; words >> word;)
        errors = std::min(errors, distance(typed, word));
    return {errors, whole};
}

} // namespace

MaterialNames::MaterialNames()
{
    m_manager.initMaterialLibrary();
}

std::vector<vxMat::eMaterialType> MaterialNames::types() const
{
    std::vector<vxMat::eMaterialType> types;
    for (const auto& [type, material] : m_manager.materials)
        types.push_back(static_cast<vxMat::eMaterialType>(type));
    std::sort(types.begin(), types.end());
    return types;
}

const vxMat::MaterialBase& MaterialNames::get(vxMat::eMaterialType type) const
{
    return *m_manager.materials.at(static_cast<std::int32_t>(type));
}

std::optional<vxMat::eMaterialType> MaterialNames::find(const std::string& name) const
{
    for (const auto& [type, material] : m_manager.materials) {
        if (vxMat::equalIgnoringAsciiCase(material->name, name))
            return static_cast<vxMat::eMaterialType>(type);
    }
    return std::nullopt;
}

const vxMat::MaterialBase& MaterialNames::get(const std::string& name) const
{
    const auto type = find(name);
    if (!type)
        throw Failure(unknown(name));
    return get(*type);
}

std::vector<std::string> MaterialNames::nearest(const std::string& name) const
{
    constexpr std::size_t mostSuggestions = 3;
    const std::string typed = vxMat::toUpperAscii(name.substr(0, 100));
    std::vector<std::pair<Distance, std::string>> candidates;
    for (const auto& [type, material] : m_manager.materials)
        candidates.emplace_back(distanceOfName(typed, vxMat::toUpperAscii(material->name)), material->name);
    std::sort(candidates.begin(), candidates.end());

    // Suggests only names with the fewest typing errors, and only if at most a third of the letters are wrong.
    const std::size_t errors = candidates.front().first.errors;
    std::vector<std::string> names;
    for (const auto& [far, candidate] : candidates) {
        if (names.size() < mostSuggestions && far.errors == errors && 3 * errors <= typed.size())
            names.push_back(candidate);
    }
    return names;
}

std::string MaterialNames::unknown(const std::string& name) const
{
    std::string text = "no material is called \"" + name + "\"; ";
    const auto names = nearest(name);
    for (std::size_t i = 0; i < names.size(); ++i)
        text += (i == 0 ? "did you mean \"" : i + 1 < names.size() ? ", \"" : " or \"") + names[i] + "\"";
    return text + (names.empty() ? "\"vxmat library\" lists them" : "?");
}

std::string MaterialNames::unknownNameOrFile(const std::string& name) const
{
    return unknown(name) + " There is no file of that name either.";
}

} // namespace commandline
