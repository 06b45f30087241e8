#include "filter/QuantityNames.h"

#include "filter/FoldedLabel.h"
#include "units/Spelling.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <utility>

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
NameMap mapNames(const std::vector<QuantityName>& names, std::string QuantityName::*spelling)
{
    NameMap map;
    for (const QuantityName& name : names)
        map.emplace(name.*spelling, name.quantity);
    return map;
}

/// Returns whether one text occurs at the start of a word of the other.
bool beginsWord(const std::string& name, const std::string& typed)
{
    const std::size_t at = name.find(typed);
    return at != std::string::npos && (at == 0 || name[at - 1] == ' ');
}

std::size_t mostWords(const std::vector<QuantityName>& names)
{
    std::ptrdiff_t blanks = 0;
    for (const QuantityName& name : names)
        blanks = std::max(blanks, std::count(name.folded.begin(), name.folded.end(), ' '));
    return static_cast<std::size_t>(blanks) + 1;
}

std::optional<FilterQuantity> lookUp(const NameMap& map, const std::string& name)
{
    const auto found = map.find(name);
    return found != map.end() ? std::optional<FilterQuantity>(found->second) : std::nullopt;
}

/// Collects the names that are nearest to a typed text.
class NearestNames
{
public:
    explicit NearestNames(std::string_view typed) : m_typed(foldName(typed.substr(0, mostBytes)))
    {
        m_fewest = m_typed.size() / lettersPerError;
    }

    void compareWith(const std::vector<QuantityName>& names)
    {
        if (m_typed.size() < fewestLetters)
            return;
        for (const QuantityName& name : names) {
            if (name.folded.size() < fewestLetters)
                continue;
            const std::size_t errors =
                beginsWord(name.folded, m_typed) ? std::size_t(1) : editDistance(m_typed, name.folded);
            if (errors <= m_fewest)
                add(name, errors);
        }
    }

    std::vector<std::string> texts() const
    {
        std::vector<std::string> texts;
        for (const QuantityName* const name : m_nearest)
            texts.push_back(name->text);
        return texts;
    }

private:
    static constexpr std::size_t mostBytes = 60;
    static constexpr std::size_t lettersPerError = 3;
    static constexpr std::size_t fewestLetters = 3; ///< shorter texts are near to any symbol
    static constexpr std::size_t mostNames = 3;

    /// Adds a name if it has as few errors as the nearest ones. A quantity keeps its first name.
    void add(const QuantityName& name, std::size_t errors)
    {
        if (errors < m_fewest)
            m_nearest.clear();
        m_fewest = errors;
        const bool isKnown = std::any_of(m_nearest.begin(), m_nearest.end(),
                                         [&name](const QuantityName* one) { return one->quantity == name.quantity; });
        if (!isKnown && m_nearest.size() < mostNames)
            m_nearest.push_back(&name);
    }

    std::string m_typed;
    std::size_t m_fewest = 0; ///< errors of the nearest names; before, the most that are allowed
    std::vector<const QuantityName*> m_nearest;
};

} // namespace

const std::vector<QuantityName>& englishNames()
{
    static const std::vector<QuantityName> names = collectNames();
    return names;
}

QuantityNames::QuantityNames(const FilterNames& added)
{
    static const std::size_t longestEnglish = mostWords(englishNames());
    for (const FilterName& name : added)
        if (std::string folded = foldName(name.text); !folded.empty())
            m_added.push_back({name.quantity, name.text, std::move(folded), false});
    m_exact = mapNames(m_added, &QuantityName::text);
    m_folded = mapNames(m_added, &QuantityName::folded);
    m_longest = std::max(longestEnglish, mostWords(m_added));
}

std::string QuantityNames::nameOf(const FilterQuantity& quantity) const
{
    const auto found = std::find_if(m_added.begin(), m_added.end(),
                                    [&quantity](const QuantityName& name) { return name.quantity == quantity; });
    return found != m_added.end() ? found->text : quantity.name();
}

std::optional<FilterQuantity> QuantityNames::find(std::string_view name) const
{
    static const NameMap exact = mapNames(englishNames(), &QuantityName::text);
    static const NameMap folded = mapNames(englishNames(), &QuantityName::folded);
    constexpr std::size_t longest = 200; // in bytes; no name has as many
    if (name.size() > longest)
        return std::nullopt;
    const std::string text(name);
    if (const auto found = lookUp(exact, text))
        return found;
    if (const auto found = lookUp(m_exact, text))
        return found;
    const std::string simple = foldName(name);
    const auto found = lookUp(folded, simple);
    return found ? found : lookUp(m_folded, simple);
}

std::string QuantityNames::nearest(std::string_view typed) const
{
    NearestNames nearest(typed);
    nearest.compareWith(m_added);
    nearest.compareWith(englishNames());
    const std::vector<std::string> texts = nearest.texts();
    return texts.empty() ? std::string() : texts.front();
}

std::optional<FilterQuantity> findQuantityNamed(std::string_view name)
{
    static const QuantityNames english{FilterNames()};
    return english.find(name);
}

std::vector<std::string> nearestQuantityNames(std::string_view typed)
{
    static const std::vector<QuantityName> catalogue = [] {
        std::vector<QuantityName> names = englishNames();
        const auto isDerived = [](const QuantityName& one) { return one.quantity.derived != nullptr; };
        names.erase(std::remove_if(names.begin(), names.end(), isDerived), names.end());
        return names;
    }();
    NearestNames nearest(typed);
    nearest.compareWith(catalogue);
    return nearest.texts();
}

} // namespace vxUnits
