#include "units/Spelling.h"

#include "units/Reader.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace vxUnits {

namespace {

constexpr std::size_t longestText = 200;
constexpr std::size_t mostCandidates = 8;
constexpr int mostCorrections = 2;

using Terms = std::vector<Term>;

/// A unit that users write for another one.
struct Confusion
{
    const char* written;
    const char* meant;
};
constexpr Confusion massForForce[] = {{"lb", "lbf"}, {"kg", "kgf"}, {"g", "gf"}, {"oz", "ozf"}, {"t", "tf"}};
constexpr Confusion letterForDegree[] = {{"C", "degC"}, {"F", "degF"}};

template <std::size_t Size>
Terms exchanged(Terms terms, const Confusion (&confusions)[Size])
{
    for (Term& term : terms) {
        for (const Confusion& one : confusions) {
            if (term.atom.symbol != one.written)
                continue;
            term.atom = *findBuiltIn(one.meant);
            break;
        }
    }
    return terms;
}

/// Words that users write for a unit, in lower case.
constexpr Confusion phrases[] = {
    {"degrees celsius", "degC"},
    {"degree celsius", "degC"},
    {"degrees fahrenheit", "degF"},
    {"degree fahrenheit", "degF"},
    {"percent iacs", "percentIACS"},
    {"pct", "percent"},
    {"mph", "mi/h"},
    {"kph", "km/h"},
    {"kmh", "km/h"},
};

/// Words for powers, which come before the unit: "square inch".
struct PowerWord
{
    const char* word;
    const char* power;
};
constexpr PowerWord powerWords[] = {{"square", "^2"}, {"sq", "^2"}, {"cubic", "^3"}, {"cu", "^3"}};

bool belongsToWord(const std::string& text, std::size_t at)
{
    return at < text.size() && (isLetter(text[at]) || text[at] == '_');
}

/// Returns the place of a word or phrase in a text, without regard to case; npos if there is none.
std::size_t findPhrase(const std::string& text, const std::string& phrase)
{
    const std::string upper = vxMat::toUpperAscii(text);
    const std::string wanted = vxMat::toUpperAscii(phrase);
    for (std::size_t at = upper.find(wanted); at != std::string::npos; at = upper.find(wanted, at + 1)) {
        if ((at == 0 || !belongsToWord(text, at - 1)) && !belongsToWord(text, at + phrase.size()))
            return at;
    }
    return std::string::npos;
}

/// Returns "pounds per inch^2" for "pounds per square inch".
std::string withPower(std::string text, const PowerWord& power)
{
    const std::size_t at = findPhrase(text, power.word);
    if (at == std::string::npos)
        return text;
    text.erase(at, std::string_view(power.word).size());
    std::size_t end = at;
    while (end < text.size() && (text[end] == ' ' || text[end] == '.'))
        ++end;
    text.erase(at, end - at);
    for (end = at; belongsToWord(text, end);)
        ++end;
    return text.insert(end, power.power);
}

/// Returns a text in the signs of the grammar: brackets as parentheses, words for powers as powers, phrases as units.
std::string inSigns(std::string text)
{
    std::replace(text.begin(), text.end(), '[', '(');
    std::replace(text.begin(), text.end(), ']', ')');
    for (const PowerWord& power : powerWords)
        text = withPower(std::move(text), power);
    for (const Confusion& phrase : phrases) {
        const std::size_t at = findPhrase(text, phrase.written);
        if (at != std::string::npos)
            text.replace(at, std::string_view(phrase.written).size(), phrase.meant);
    }
    return text;
}

/// Returns the terms with a unit that has a prefix read as two units: "m K" for "mK". Absent if there is none.
std::optional<Terms> split(const Terms& terms)
{
    for (std::size_t i = 0; i < terms.size(); ++i) {
        const std::string& symbol = terms[i].atom.symbol;
        auto one = findBuiltIn(symbol.substr(0, 1));
        auto other = symbol.size() > 1 ? findBuiltIn(symbol.substr(1)) : std::nullopt;
        if (!one || !other)
            continue;
        Terms parts = terms;
        parts[i].atom = *std::move(other);
        parts.insert(parts.begin() + static_cast<std::ptrdiff_t>(i), terms[i]);
        parts[i].atom = *std::move(one);
        return parts;
    }
    return std::nullopt;
}

/// Returns the terms with everything after the first "/" in the denominator.
Terms grouped(Terms terms)
{
    for (Term& term : terms)
        term.power = term.behindSlash ? -std::abs(term.power) : term.power;
    return terms;
}

std::optional<Terms> fitted(const Terms& terms, const Dimension& target)
{
    const Terms degrees = exchanged(terms, letterForDegree);
    const Terms forces = exchanged(terms, massForForce);
    for (const Terms& candidate : {terms, grouped(terms), degrees, grouped(degrees), forces, grouped(forces),
                                   grouped(exchanged(degrees, massForForce))})
    {
        if (dimensionOf(candidate) == target)
            return candidate;
    }
    return std::nullopt;
}

/// Returns whether two texts differ by one letter more, less or exchanged, or by two letters swapped.
bool differByOne(std::string_view one, std::string_view other)
{
    if (one.size() < other.size())
        std::swap(one, other);
    if (one.size() > other.size() + 1)
        return false;
    const auto length = static_cast<std::ptrdiff_t>(other.size());
    const std::ptrdiff_t start = std::mismatch(one.begin(), one.begin() + length, other.begin()).first - one.begin();
    const std::string_view restOfOne = one.substr(static_cast<std::size_t>(start));
    const std::string_view restOfOther = other.substr(static_cast<std::size_t>(start));
    if (one.size() > other.size())
        return restOfOne.substr(1) == restOfOther;
    if (restOfOne.empty() || restOfOne.substr(1) == restOfOther.substr(1))
        return true;
    return restOfOne.size() > 1 && restOfOne[0] == restOfOther[1] && restOfOne[1] == restOfOther[0] &&
           restOfOne.substr(2) == restOfOther.substr(2);
}

/// The spellings that may have been meant by an unknown one, the most likely first.
class Candidates
{
public:
    explicit Candidates(std::string_view spelling) : m_spelling(spelling)
    {
        if (const AmbiguousSpelling* const ambiguous = findAmbiguous(spelling))
            add(ambiguous->suggestion);
        addMatches([this](const std::string& one) { return vxMat::equalIgnoringAsciiCase(one, m_spelling); });
        addSplit();
        addMatches([this](const std::string& one) { return differByOne(one, m_spelling); });
    }

    const std::vector<std::string>& all() const { return m_all; }

private:
    void add(const std::string& candidate)
    {
        const bool known = std::find(m_all.begin(), m_all.end(), candidate) != m_all.end();
        if (!known && m_all.size() < mostCandidates)
            m_all.push_back(candidate);
    }

    template <class Matches>
    void addMatches(Matches matches)
    {
        for (const std::string& one : commonSpellings()) {
            if (matches(one))
                add(one);
        }
    }

    /// "Pa s" for "Pas".
    void addSplit()
    {
        for (std::size_t at = 1; at < m_spelling.size(); ++at) {
            const std::string one(m_spelling.substr(0, at));
            const std::string other(m_spelling.substr(at));
            if (!findBuiltIn(one) || !findBuiltIn(other))
                continue;
            std::string both = one;
            if (one != other) // "%%" is one sign typed twice
                both.append(" ").append(other);
            add(both);
        }
    }

    std::string_view m_spelling;
    std::vector<std::string> m_all;
};

/// Replaces the unknown spelling in a text by each candidate.
void addCorrections(std::vector<std::string>& corrections, const std::string& text, const Place& place)
{
    const Candidates candidates(std::string_view(text).substr(place.begin, place.length));
    for (const std::string& candidate : candidates.all()) {
        corrections.push_back(text);
        corrections.back().replace(place.begin, place.length, candidate);
    }
}

/// Corrects one spelling after another until a text can be read and has the dimension.
std::optional<Terms> corrected(const std::string& text, const Dimension* target)
{
    std::vector<std::string> texts{text};
    for (int round = 0; round <= mostCorrections; ++round) {
        std::vector<std::string> corrections;
        for (const std::string& one : texts) {
            ParsedUnit unit = parseUnit(one, one);
            auto terms = target == nullptr ? std::optional<Terms>(unit.terms) : fitted(unit.terms, *target);
            if (unit.valid && terms)
                return terms;
            if (!unit.valid && unit.unresolved.length > 0)
                addCorrections(corrections, one, unit.unresolved);
        }
        texts = std::move(corrections);
    }
    return std::nullopt;
}

} // namespace

std::string suggestUnit(std::string_view folded, const Dimension* target)
{
    if (folded.size() > longestText)
        return {};
    folded = folded.substr(0, folded.find_last_not_of(" .,;:") + 1);
    const std::string text = inSigns(std::string(folded));
    const auto opened = std::count(text.begin(), text.end(), '(');
    const auto closed = std::count(text.begin(), text.end(), ')');
    const std::string missing(static_cast<std::size_t>(std::max<std::ptrdiff_t>(opened - closed, 0)), ')');
    const auto terms = corrected(text + missing, target);
    return terms ? UnitBuilder::build(*terms).text() : std::string();
}

std::string suggestTerms(const std::vector<Term>& terms, const Dimension& target)
{
    auto found = fitted(terms, target);
    if (const auto parts = split(terms); !found && parts)
        found = fitted(*parts, target);
    return found ? UnitBuilder::build(*found).text() : std::string();
}

std::size_t editDistance(std::string_view one, std::string_view other)
{
    // Three rows of the table of distances between the beginnings of both texts.
    std::vector<std::size_t> before(other.size() + 1);
    std::vector<std::size_t> above(other.size() + 1);
    std::vector<std::size_t> row(other.size() + 1);
    for (std::size_t j = 0; j <= other.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= one.size(); ++i) {
        before.swap(above);
        above.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const std::size_t exchanged = above[j - 1] + (one[i - 1] == other[j - 1] ? 0 : 1);
            row[j] = std::min({exchanged, above[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row[other.size()];
}

} // namespace vxUnits
