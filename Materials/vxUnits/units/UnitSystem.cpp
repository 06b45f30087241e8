#include "vxUnits/UnitSystem.h"

#include "units/FoldedText.h"
#include "units/Reader.h"
#include "units/Spelling.h"
#include "units/Texts.h"
#include "units/UnitParser.h"
#include "units/UnitReading.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vxUnits {

namespace d = dimensions;

namespace {

constexpr std::size_t baseUnitCount = 5;

constexpr const char* baseWords[baseUnitCount] = {"length", "mass", "time", "temperature", "current"};
constexpr const char* exampleOfBases = "length cm, mass g, time us";

/// The base units of a built-in system, and the derived units that engineers do not write as products of base units.
struct BuiltInSystem
{
    const char* name = nullptr;
    const char* otherNames = nullptr; ///< separated by commas
    const char* bases[baseUnitCount] = {};
    const char* pressure = nullptr;
    const char* density = nullptr;
    const char* viscosity = nullptr;
    const char* specificHeat = nullptr;
    const char* heatPerVolume = nullptr;
    const char* thermalConductivity = nullptr;
    const char* electricalConductivity = nullptr;
    const char* electricalResistivity = nullptr; ///< null for the reciprocal of the conductivity
};

constexpr BuiltInSystem builtInSystems[] = {
    {"SI",
     "m-kg-s,mks",
     {"m", "kg", "s", "K", "A"},
     "Pa",
     "kg/m^3",
     "Pa s",
     "J/(kg K)",
     "J/(m^3 K)",
     "W/(m K)",
     "S/m",
     "Ohm m"},
    {"mm-t-s",
     "mm-tonne-s,mm-ton-s",
     {"mm", "t", "s", "K", "A"},
     "MPa",
     "t/mm^3",
     "MPa s",
     "mJ/(t K)",
     "mJ/(mm^3 K)",
     "mW/(mm K)",
     "kS/mm",
     "mOhm mm"},
    {"mm-kg-ms",
     "",
     {"mm", "kg", "ms", "K", "A"},
     "GPa",
     "kg/mm^3",
     "GPa ms",
     "J/(kg K)",
     "J/(mm^3 K)",
     "kW/(mm K)",
     "S/m",
     "Ohm m"},
    {"cm-g-s",
     "cgs",
     {"cm", "g", "s", "K", "A"},
     "dyn/cm^2",
     "g/cm^3",
     "P",
     "erg/(g K)",
     "erg/(cm^3 K)",
     "erg/(s cm K)",
     "GS/m",
     "nOhm m"},
    {"ft-slug-s",
     "",
     {"ft", "slug", "s", "degF", "A"},
     "psf",
     "slug/ft^3",
     "lbf s/ft^2",
     "ft lbf/(slug degF)",
     "psf/degF",
     "lbf/(s degF)",
     "A^2 s/(lbf ft^2)"},
    {"in-lbf-s",
     "",
     {"in", "lbf s^2/in", "s", "degF", "A"},
     "psi",
     "lbf s^2/in^4",
     "psi s",
     "in^2/(s^2 degF)",
     "psi/degF",
     "lbf/(s degF)",
     "A^2 s/(lbf in^2)"},
};

/// Returns the terms of a text that is known to be a unit.
std::vector<Term> termsOf(std::string_view text)
{
    return parseUnit(fold(text).text, text).terms;
}

void append(std::vector<Term>& terms, std::vector<Term> others, double power)
{
    for (Term& term : others) {
        term.power *= power;
        terms.push_back(std::move(term));
    }
}

bool isSeparator(char c)
{
    return c == ',' || c == ';';
}

} // namespace

/// Shared by the copies of a system.
struct UnitSystem::Bases
{
    std::array<std::string, baseUnitCount> texts;
    std::array<std::vector<Term>, baseUnitCount> terms;
    std::vector<Unit> named; ///< derived units with names of their own
};

/// Makes unit systems of rows of the table and of texts.
class SystemParser
{
public:
    static UnitSystem make(const BuiltInSystem& row)
    {
        auto bases = std::make_shared<UnitSystem::Bases>();
        for (std::size_t i = 0; i < baseUnitCount; ++i)
            setBase(*bases, i, row.bases[i]);
        for (const char* const name : {row.pressure, row.density, row.viscosity, row.specificHeat, row.heatPerVolume,
                                       row.thermalConductivity, row.electricalConductivity, row.electricalResistivity})
            if (name != nullptr)
                bases->named.push_back(UnitBuilder::build(termsOf(name)).named(name));
        UnitSystem system;
        system.m_text = row.name;
        system.m_builtIn = true;
        system.m_bases = std::move(bases);
        return system;
    }

    Result<UnitSystem> parse(const std::string& folded)
    {
        for (std::size_t begin = 0; begin <= folded.size();) {
            const auto* const from = folded.data() + begin;
            const auto* const end = std::find_if(from, folded.data() + folded.size(), isSeparator);
            if (!readBase(trimmed({from, static_cast<std::size_t>(end - from)})))
                return m_hasBase ? std::move(m_failure) : unknownName(folded);
            begin = static_cast<std::size_t>(end - folded.data()) + 1;
        }
        return complete();
    }

private:
    static void setBase(UnitSystem::Bases& bases, std::size_t base, std::string_view unit)
    {
        bases.terms[base] = termsOf(unit);
        bases.texts[base] = UnitBuilder::build(bases.terms[base]).text();
    }

    static Failure unknownName(const std::string& text)
    {
        return makeFailure(FaultCode::MalformedUnitSystem, Text::SystemUnknown, {excerpt(text), exampleOfBases});
    }

    bool refuse(Text text, std::vector<std::string> arguments)
    {
        m_failure = makeFailure(FaultCode::MalformedUnitSystem, text, std::move(arguments));
        return false;
    }

    /// "mass lbf s^2/in"
    bool readBase(std::string_view text)
    {
        Reader reader(text);
        const std::string word(reader.takeWhile(isLetter));
        const auto* const found = std::find_if(std::begin(baseWords), std::end(baseWords), [&](const char* one) {
            return vxMat::equalIgnoringAsciiCase(one, word);
        });
        if (found == std::end(baseWords))
            return refuse(Text::SystemBaseUnknown, {excerpt(text)});
        m_hasBase = true;
        const auto base = static_cast<std::size_t>(found - std::begin(baseWords));
        if (!m_bases->texts[base].empty())
            return refuse(Text::SystemBaseRepeated, {*found});
        return readUnit(base, trimmed(reader.rest()));
    }

    bool readUnit(std::size_t base, std::string_view text)
    {
        const auto wanted = static_cast<Dimension::Base>(base);
        const std::string& usual = UnitSystem::si().baseUnit(wanted);
        if (text.empty())
            return refuse(Text::SystemUnitMissing, {baseWords[base], usual});
        if (isDigit(text[std::min(text.find_first_not_of("+-."), text.size() - 1)]))
            return refuse(Text::SystemUnitWithNumber, {excerpt(text), baseWords[base], usual});
        const ParsedUnit parsed = parseUnit(text, text);
        const Dimension dimension(wanted);
        const Dimension given = dimensionOf(parsed.terms);
        if (parsed.valid && given == dimension) {
            setBase(*m_bases, base, text);
            return true;
        }
        m_failure = parsed.failure;
        if (parsed.valid)
            m_failure = makeFailure(FaultCode::WrongDimension, Text::WrongDimensionOf,
                                    {excerpt(text), measureOf(given), usual, baseWords[base]});
        else
            m_failure.suggestion = suggestUnit(text, &dimension);
        return false;
    }

    Result<UnitSystem> complete()
    {
        for (const Dimension::Base base : {Dimension::Temperature, Dimension::Current}) {
            if (m_bases->texts[base].empty())
                setBase(*m_bases, base, UnitSystem::si().baseUnit(base));
        }
        UnitSystem system;
        for (std::size_t i = 0; i < baseUnitCount; ++i) {
            if (m_bases->texts[i].empty())
                return makeFailure(FaultCode::MalformedUnitSystem, Text::SystemBaseMissing, {baseWords[i]});
            system.m_text += std::string(i > 0 ? ", " : "") + baseWords[i] + " " + m_bases->texts[i];
        }
        system.m_bases = std::move(m_bases);
        return system;
    }

    std::shared_ptr<UnitSystem::Bases> m_bases = std::make_shared<UnitSystem::Bases>();
    Failure m_failure;
    bool m_hasBase = false; ///< whether a word for a base unit was read
};

namespace {

/// Returns whether a text is one of the names of a row.
bool isNameOf(const BuiltInSystem& row, std::string_view text)
{
    if (vxMat::equalIgnoringAsciiCase(row.name, text))
        return true;
    const std::string_view others = row.otherNames;
    for (std::size_t begin = 0; begin < others.size();) {
        const std::size_t end = std::min(others.find(',', begin), others.size());
        if (vxMat::equalIgnoringAsciiCase(others.substr(begin, end - begin), text))
            return true;
        begin = end + 1;
    }
    return false;
}

/// Returns a text in lower case, with one "-" for each separator of units: "mm-t-s" for "mm, T, s".
std::string hyphenated(const std::string& text)
{
    std::string hyphens;
    for (const char c : text) {
        const bool separates = isSeparator(c) || c == ' ' || c == '-' || c == '/';
        if (!separates)
            hyphens += 'A' <= c && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        else if (!hyphens.empty() && hyphens.back() != '-')
            hyphens += '-';
    }
    return hyphens;
}

/// Returns the name of the built-in system that differs from a text by at most two letters; empty if there is none.
std::string nearestSystem(const std::string& text)
{
    constexpr std::size_t longest = 12;
    constexpr std::size_t mostErrors = 2;
    constexpr std::size_t shortest = 4; // "SI" is near to every short text
    std::string nearest;
    std::size_t fewest = mostErrors + 1;
    if (text.size() < shortest || text.size() > longest)
        return nearest;
    const std::string typed = hyphenated(text);
    for (const BuiltInSystem& row : builtInSystems) {
        const std::size_t errors = editDistance(typed, hyphenated(row.name));
        if (errors < fewest) {
            fewest = errors;
            nearest = row.name;
        }
    }
    return nearest;
}

/// Returns the text with a comma before each word for a base unit that only a blank separates; empty if there is none.
std::string withCommasBeforeBases(std::string text)
{
    bool changed = false;
    for (const char* const word : baseWords) {
        const std::string apart = std::string(" ") + word + " ";
        const std::size_t at = text.find(apart);
        if (at == std::string::npos || at == 0 || isSeparator(text[at - 1]))
            continue;
        text.insert(at, ",");
        changed = true;
    }
    return changed ? text : std::string();
}

std::string builtInNames()
{
    std::string names;
    for (const BuiltInSystem& row : builtInSystems)
        names += std::string(names.empty() ? "" : ", ") + row.name;
    return names;
}

} // namespace

const UnitSystem& UnitSystem::si()
{
    return builtIn().front();
}

const std::vector<UnitSystem>& UnitSystem::builtIn()
{
    static const std::vector<UnitSystem> systems = [] {
        std::vector<UnitSystem> made;
        for (const BuiltInSystem& row : builtInSystems)
            made.push_back(SystemParser::make(row));
        return made;
    }();
    return systems;
}

Result<UnitSystem> UnitSystem::parse(std::string_view text)
{
    const FoldedText folded = fold(text);
    if (folded.fault != FoldedText::Fault::None)
        return failureOf(folded, text);
    if (folded.text.empty())
        return makeFailure(FaultCode::MalformedUnitSystem, Text::SystemEmpty, {builtInNames(), exampleOfBases});
    const auto* const row = std::find_if(std::begin(builtInSystems), std::end(builtInSystems),
                                         [&](const BuiltInSystem& one) { return isNameOf(one, folded.text); });
    if (row != std::end(builtInSystems))
        return builtIn()[static_cast<std::size_t>(row - std::begin(builtInSystems))];
    auto system = SystemParser().parse(folded.text);
    if (system)
        return system;
    Failure failure = system.failure();
    const std::string separated = withCommasBeforeBases(folded.text);
    if (!separated.empty() && SystemParser().parse(separated))
        failure.suggestion = separated;
    else if (failure.suggestion.empty())
        failure.suggestion = nearestSystem(folded.text);
    return failure;
}

const std::string& UnitSystem::baseUnit(Dimension::Base base) const
{
    static const std::string degree = "deg";
    static const std::string none;
    if (base == Dimension::Angle)
        return degree;
    return base < baseUnitCount ? m_bases->texts[base] : none;
}

Unit UnitSystem::unitOf(const Dimension& dimension) const
{
    const auto named = std::find_if(m_bases->named.begin(), m_bases->named.end(),
                                    [&](const Unit& one) { return one.dimension() == dimension; });
    if (named != m_bases->named.end())
        return *named;
    // 1/MPa rather than mm s^2/t
    const Dimension inverse = d::none / dimension;
    const auto reciprocal = std::find_if(m_bases->named.begin(), m_bases->named.end(),
                                         [&](const Unit& one) { return one.dimension() == inverse; });
    std::vector<Term> terms;
    if (reciprocal != m_bases->named.end()) {
        append(terms, termsOf(reciprocal->text()), -1.0);
        return UnitBuilder::build(terms);
    }
    for (const Dimension::Base base :
         {Dimension::Mass, Dimension::Length, Dimension::Time, Dimension::Temperature, Dimension::Current})
        append(terms, m_bases->terms[base], dimension.exponent(base));
    append(terms, termsOf("deg"), dimension.exponent(Dimension::Angle));
    append(terms, termsOf("mol"), dimension.exponent(Dimension::Amount));
    append(terms, termsOf("cd"), dimension.exponent(Dimension::LuminousIntensity));
    return UnitBuilder::build(terms);
}

Unit UnitSystem::unitOfCreep(const CreepExponents& exponents) const
{
    std::vector<Term> terms;
    append(terms, termsOf(unitOf(d::pressure).text()), -exponents.n.value());
    append(terms, m_bases->terms[Dimension::Time], -(exponents.m.value() + 1.0));
    return UnitBuilder::build(terms);
}

} // namespace vxUnits
