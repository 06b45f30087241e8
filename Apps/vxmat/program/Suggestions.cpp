#include "program/Suggestions.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <numeric>
#include <sstream>
#include <tuple>
#include <utility>

namespace commandline {

namespace {

constexpr std::size_t longest = 100; ///< beginning of a text that is compared, in bytes

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

std::vector<std::string> nearestNames(const std::string& typed, const std::vector<std::string>& names)
{
    constexpr std::size_t mostSuggestions = 3;
    const std::string letters = vxMat::toUpperAscii(typed.substr(0, longest));
    std::vector<std::pair<Distance, std::string>> candidates;
    candidates.reserve(names.size());
    for (const std::string& name : names)
        candidates.emplace_back(distanceOfName(letters, vxMat::toUpperAscii(name.substr(0, longest))), name);
    std::sort(candidates.begin(), candidates.end());

    // Suggests only names with the fewest typing errors, and only if at most a third of the letters are wrong.
    std::vector<std::string> nearest;
    for (const auto& [far, candidate] : candidates) {
        const bool isNear = far.errors == candidates.front().first.errors && 3 * far.errors <= letters.size();
        if (isNear && nearest.size() < mostSuggestions)
            nearest.push_back(candidate);
    }
    return nearest;
}

std::string didYouMean(const std::vector<std::string>& names)
{
    std::string question;
    for (std::size_t i = 0; i < names.size(); ++i)
        question.append(i == 0 ? "did you mean \"" : i + 1 < names.size() ? ", \"" : " or \"").append(names[i]) += '"';
    return question.empty() ? question : question + "?";
}

} // namespace commandline
