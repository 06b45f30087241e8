#include "filter/QuantityNames.h"

#include "filter/FoldedLabel.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <unordered_map>

namespace vxUnits {

namespace {

using Id = vxMat::PropertyId;

/// A usual symbol or name that the catalogue does not have.
struct Alias
{
    std::int32_t id;
    const char* text;
};
constexpr Alias aliases[] = {
    {Id::Density, "\xCF\x81"},                // rho
    {Id::PoissonsRatio, "\xCE\xBD"},          // nu
    {Id::ElectricalConductivity, "\xCF\x83"}, // sigma
    {Id::DynamicViscosity, "\xCE\xB7"},       // eta
    {Id::DynamicViscosity, "eta"},
    {Id::SpeedOfSound, "c"},
    {Id::SpecificHeat, "cp"},
    {Id::PlasticHardeningFactor, "H"},
    {Id::PlasticFAI, "phi"},
    {Id::PlasticFAI, "\xCF\x86"}, // phi
    {Id::PlasticYieldType, "Yield criterion"},
    {Id::PlasticHardeningType, "Hardening law"},
    {Id::ShearRelaxationModulus, "g"},
    {Id::RelaxationTime, "tau"},
    {Id::RelaxationTime, "\xCF\x84"}, // tau
    {Id::CreepModulusA, "A"},
    {Id::CreepModulusN, "n"},
    {Id::CreepModulusM, "m"},
    {Id::InitialShearModulusMu, "mu"},
    {Id::InitialShearModulusMu, "\xCE\xBC"}, // mu
    {Id::LimitingNetworkStretch, "lm"},
    {Id::IncompressibilityParameterD1, "D1"},
    {Id::MaterialConstantC10, "C10"},
    {Id::MaterialConstantC01, "C01"},
    {Id::MaterialConstantC11, "C11"},
    {Id::RelativePermittivity, "epsr"},
};

std::vector<QuantityName> collectNames()
{
    std::vector<QuantityName> names;
    const auto add = [&names](FilterQuantity quantity, const std::string& text, bool isSymbol) {
        names.push_back({quantity, text, foldName(text), isSymbol});
    };
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
        const FilterQuantity quantity{record.id, nullptr};
        add(quantity, record.name, false);
        add(quantity, record.key, true);
        add(quantity, std::to_string(record.id), true);
    }
    for (const Alias& alias : aliases)
        add({alias.id, nullptr}, alias.text, true);
    for (const DerivedQuantity& derived : derivedQuantities()) {
        add({0, &derived}, derived.name, false);
        add({0, &derived}, derived.symbol, true);
    }
    return names;
}

using NameMap = std::unordered_map<std::string, FilterQuantity>;

/// The first quantity with a name has it.
NameMap mapNames(std::string QuantityName::*spelling)
{
    NameMap map;
    for (const QuantityName& name : quantityNames())
        map.emplace(name.*spelling, name.quantity);
    return map;
}

/// Returns whether one text occurs at the start of a word of the other.
bool beginsWord(const std::string& name, const std::string& typed)
{
    const std::size_t at = name.find(typed);
    return at != std::string::npos && (at == 0 || name[at - 1] == ' ');
}

} // namespace

const std::vector<QuantityName>& quantityNames()
{
    static const std::vector<QuantityName> names = collectNames();
    return names;
}

std::size_t longestQuantityName()
{
    static const std::size_t longest = [] {
        std::ptrdiff_t blanks = 0;
        for (const QuantityName& name : quantityNames())
            blanks = std::max(blanks, std::count(name.folded.begin(), name.folded.end(), ' '));
        return static_cast<std::size_t>(blanks) + 1;
    }();
    return longest;
}

std::optional<FilterQuantity> findQuantityByName(std::string_view name)
{
    static const NameMap exact = mapNames(&QuantityName::text);
    static const NameMap folded = mapNames(&QuantityName::folded);
    constexpr std::size_t longest = 200; // in bytes; no name has as many
    if (name.size() > longest)
        return std::nullopt;
    if (const auto found = exact.find(std::string(name)); found != exact.end())
        return found->second;
    const auto found = folded.find(foldName(name));
    return found != folded.end() ? std::optional<FilterQuantity>(found->second) : std::nullopt;
}

std::string nearestQuantityName(std::string_view typed)
{
    constexpr std::size_t mostBytes = 60;
    constexpr std::size_t fewestLetters = 3; // shorter texts are near to any symbol
    constexpr std::size_t lettersPerError = 3;
    const std::string folded = foldName(typed.substr(0, mostBytes));
    if (folded.size() < fewestLetters)
        return {};
    std::string nearest;
    std::size_t fewest = folded.size() / lettersPerError + 1;
    for (const QuantityName& name : quantityNames()) {
        if (name.folded.size() < fewestLetters)
            continue;
        const std::size_t errors = beginsWord(name.folded, folded) ? std::size_t(1) : editDistance(folded, name.folded);
        if (errors >= fewest)
            continue;
        fewest = errors;
        nearest = name.text;
    }
    return nearest;
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
