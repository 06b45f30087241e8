#include "units/UnitDefinitions.h"

#include "units/ScaleArithmetic.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <sstream>
#include <unordered_map>

namespace vxUnits {

namespace {

namespace d = dimensions;

constexpr const char* all = "YZEPTGMkhDdcmunpfazy";
constexpr const char* thousands = "TGMkmun";
constexpr const char* large = "kM";
constexpr const char* small = "mcdu";

// Numerators of several units: the pound in 1e-8 kg, and the pound-force, the pound times 9.80665 m/s2, in 1e-13 N.
constexpr std::uint64_t pound = 45359237;
constexpr std::uint64_t poundForce = pound * 980665;
constexpr std::uint64_t squareInch = std::uint64_t{254} * 254;   // 1e-8 m2
constexpr std::uint64_t squareFoot = std::uint64_t{3048} * 3048; // 1e-8 m2
constexpr std::uint64_t cubicInch = squareInch * 254;            // 1e-12 m3
constexpr std::uint64_t cubicFoot = squareFoot * 3048;           // 1e-12 m3

constexpr UnitDefinition definitions[] = {
    // Length, area and volume
    {"m", "meter meters metre metres", all, 1, 1, 0, d::length},
    {"in", "inch inches", "u", 254, 1, -4, d::length},
    {"ft", "foot feet", "", 3048, 1, -4, d::length},
    {"yd", "yard yards", "", 9144, 1, -4, d::length},
    {"mi", "mile miles", "", 1609344, 1, -3, d::length},
    {"mil thou", "mils", "", 254, 1, -7, d::length},
    {"micron", "microns", "", 1, 1, -6, d::length},
    {"angstrom", "angstroms", "", 1, 1, -10, d::length},
    {"L l", "liter liters litre litres", "mcdhku", 1, 1, -3, d::volume},
    {"cc ccm", "", "", 1, 1, -6, d::volume},
    {"gal", "gallon gallons", "", 231 * cubicInch, 1, -12, d::volume, 0.0, Text::NoteGallon},

    // Mass
    {"g", "gram grams gramme grammes", all, 1, 1, -3, d::mass},
    {"t", "tonne tonnes metric_ton metric_tons", large, 1, 1, 3, d::mass},
    {"lb lbs lbm", "pound pounds", "", pound, 1, -8, d::mass},
    {"oz", "ounce ounces", "", pound, 16, -8, d::mass, 0.0, Text::NoteOunce},
    {"slug slugs", "", "", poundForce, 3048, -9, d::mass},
    {"slinch blob", "", "", poundForce, 254, -9, d::mass},
    {"grain", "grains", "", 6479891, 1, -11, d::mass},
    {"short_ton", "short_tons", "", pound * 2000, 1, -8, d::mass},
    {"long_ton", "long_tons", "", pound * 2240, 1, -8, d::mass},

    // Time
    {"s sec", "second seconds secs", all, 1, 1, 0, d::time},
    {"min", "minute minutes", "", 60, 1, 0, d::time},
    {"h hr hrs", "hour hours", "", 3600, 1, 0, d::time},
    {"d", "day days", "", 86400, 1, 0, d::time},
    {"week", "weeks", "", 604800, 1, 0, d::time},
    {"yr a", "year years", "", 31557600, 1, 0, d::time, 0.0, Text::NoteYear},
    {"Hz", "hertz", "TGMk", 1, 1, 0, d::none / d::time},

    // Temperature. In a product a degree is a difference; alone it is a point of its scale.
    {"K degK deg_K delta_K", "kelvin kelvins", "mun", 1, 1, 0, d::temperature},
    {"degC deg_C", "celsius degree_celsius degrees_celsius degreec centigrade", "", 1, 1, 0, d::temperature, 273.15},
    {"degF deg_F", "fahrenheit degree_fahrenheit degrees_fahrenheit degreef", "", 5, 9, 0, d::temperature, 459.67},
    {"degR deg_R", "rankine degree_rankine degrees_rankine", "", 5, 9, 0, d::temperature},
    {"delta_degC delta_C", "", "", 1, 1, 0, d::temperature},
    {"delta_degF delta_F", "", "", 5, 9, 0, d::temperature},

    // Angle: the degree is the coherent unit
    {"deg", "degree degrees arc_degree", "", 1, 1, 0, d::angle},
    {"rad", "radian radians", "m", 180, 1, 0, d::angle, 0.0, Text::Count, true},
    {"gon grad", "gradian gradians", "", 9, 1, -1, d::angle},
    {"arcmin", "arc_minute arc_minutes", "", 1, 60, 0, d::angle},
    {"arcsec", "arc_second arc_seconds", "", 1, 3600, 0, d::angle},
    {"rev", "revolution revolutions turn turns", "", 360, 1, 0, d::angle},

    // Force
    {"N", "newton newtons", all, 1, 1, 0, d::force},
    {"dyn", "dyne dynes", large, 1, 1, -5, d::force},
    {"kgf kp", "kilopond kiloponds kilogram_force", "M", 980665, 1, -5, d::force},
    {"gf", "gram_force", "", 980665, 1, -8, d::force},
    {"tf", "tonne_force", "", 980665, 1, -2, d::force},
    {"lbf lbsf", "pound_force pounds_force", large, poundForce, 1, -13, d::force},
    {"ozf", "ounce_force", "", poundForce, 16, -13, d::force},
    {"kip kips", "", "", poundForce, 1, -10, d::force},
    {"pdl", "poundal poundals", "", pound * 3048, 1, -12, d::force},

    // Pressure and stress
    {"Pa", "pascal pascals", all, 1, 1, 0, d::pressure},
    {"psi PSI", "", large, poundForce, squareInch, -5, d::pressure},
    {"ksi KSI", "", "", poundForce, squareInch, -2, d::pressure},
    {"Msi", "", "", poundForce, squareInch, 1, d::pressure},
    {"psf PSF", "", "", poundForce, squareFoot, -5, d::pressure},
    {"ksf KSF", "", "", poundForce, squareFoot, -2, d::pressure},
    {"bar", "bar bars", "GMkmu", 1, 1, 5, d::pressure},
    {"atm", "atmosphere atmospheres", "", 101325, 1, 0, d::pressure},
    {"at", "technical_atmosphere", "", 980665, 1, -1, d::pressure},
    {"Torr torr", "", "mu", 101325, 760, 0, d::pressure},
    {"mmHg", "", "", 133322387415, 1, -9, d::pressure},
    {"inHg", "", "", 133322387415 * 254, 1, -10, d::pressure},
    {"mmH2O", "", "", 980665, 1, -5, d::pressure},
    {"inH2O", "", "", std::uint64_t{980665} * 254, 1, -6, d::pressure},
    {"Ba", "barye baryes", "", 1, 1, -1, d::pressure},

    // Density, as engineers abbreviate it
    {"pcf", "", "", pound, cubicFoot, 4, d::density},

    // Energy and power
    {"J", "joule joules", all, 1, 1, 0, d::energy},
    {"erg", "ergs", "", 1, 1, -7, d::energy},
    {"cal", "calorie calories", "k", 41868, 1, -4, d::energy, 0.0, Text::NoteCalorie},
    {"cal_IT", "", "k", 41868, 1, -4, d::energy},
    {"cal_th", "thermochemical_calorie", "k", 4184, 1, -3, d::energy},
    {"Btu BTU btu", "", "k", 105505585262, 1, -8, d::energy, 0.0, Text::NoteBtu},
    {"Btu_IT", "", "k", 105505585262, 1, -8, d::energy},
    {"Btu_th", "", "k", 4184 * pound, 18, -7, d::energy},
    {"eV", "electronvolt electronvolts", "GMkm", 1602176634, 1, -28, d::energy},
    {"Wh", "", "TGMk", 36, 1, 2, d::energy},
    {"W", "watt watts", all, 1, 1, 0, d::power},
    {"hp", "horsepower", "", std::uint64_t{55} * 3048 * poundForce, 1, -16, d::power, 0.0, Text::NoteHorsepower},
    {"PS", "metric_horsepower", "", 73549875, 1, -5, d::power},

    // Viscosity
    {"P", "poise", small, 1, 1, -1, d::dynamicViscosity},
    {"reyn", "reyns", "mu", poundForce, squareInch, -5, d::dynamicViscosity},
    {"St", "stokes", "cm", 1, 1, -4, d::kinematicViscosity},

    // Electricity and magnetism
    {"A", "ampere amperes amp amps", thousands, 1, 1, 0, d::current},
    {"C", "coulomb coulombs", thousands, 1, 1, 0, d::current* d::time},
    {"V", "volt volts", thousands, 1, 1, 0, d::power / d::current},
    {"Ohm ohm", "ohm ohms", thousands, 1, 1, 0, d::power / d::current / d::current},
    {"S", "siemens", thousands, 1, 1, 0, d::current* d::current / d::power},
    {"mho", "mho mhos", "mu", 1, 1, 0, d::current* d::current / d::power},
    {"F", "farad farads", "munp", 1, 1, 0, d::current* d::current* d::time / d::power},
    {"H", "henry henries", "mun", 1, 1, 0, d::power* d::time / d::current / d::current},
    {"Wb", "weber webers", "mu", 1, 1, 0, d::power* d::time / d::current},
    {"T", "tesla teslas", "mu", 1, 1, 0, d::power* d::time / d::current / d::area},
    {"percentIACS", "", "", 58, 1, 4, d::electricalConductivity, 0.0, Text::NoteConductivityOfCopper},

    // Amount of substance, light
    {"mol", "mole moles", "kmun", 1, 1, 0, d::amount},
    {"cd", "candela candelas", "mk", 1, 1, 0, Dimension(Dimension::LuminousIntensity)},

    // Pure numbers
    {"percent", "", "", 1, 1, -2, d::none},
    {"permil", "", "", 1, 1, -3, d::none},
    {"ppm", "", "", 1, 1, -6, d::none},
    {"ppb", "", "", 1, 1, -9, d::none},
    {"strain", "strain strains", "mu", 1, 1, 0, d::none},
};

struct Prefix
{
    char letter; ///< in UnitDefinition::prefixes
    const char* symbol;
    const char* name;
    int exponent;
};

/// Deca is before deci, because its symbol begins with that of deci.
constexpr Prefix prefixes[] = {
    {'Y', "Y", "yotta", 24},  {'Z', "Z", "zetta", 21}, {'E', "E", "exa", 18},    {'P', "P", "peta", 15},
    {'T', "T", "tera", 12},   {'G', "G", "giga", 9},   {'M', "M", "mega", 6},    {'k', "k", "kilo", 3},
    {'h', "h", "hecto", 2},   {'D', "da", "deca", 1},  {'d', "d", "deci", -1},   {'c', "c", "centi", -2},
    {'m', "m", "milli", -3},  {'u', "u", "micro", -6}, {'n', "n", "nano", -9},   {'p', "p", "pico", -12},
    {'f', "f", "femto", -15}, {'a', "a", "atto", -18}, {'z', "z", "zepto", -21}, {'y', "y", "yocto", -24},
};

constexpr AmbiguousSpelling ambiguousSpellings[] = {
    {"ton", "t (1000 kg), short_ton (2000 lb) or long_ton (2240 lb)", "t"},
    {"tons", "t (1000 kg), short_ton (2000 lb) or long_ton (2240 lb)", "t"},
    {"gr", "g (gram) or grain", "g"},
    {"tonf", "tf (1000 kgf) or kip (1000 lbf)", "tf"},
    {"mt", "t (1000 kg) or kg", "t"},
};

std::vector<std::string> split(const char* words)
{
    std::istringstream stream(words);
    std::vector<std::string> parts;
    for (std::string word; stream >> word;)
        parts.push_back(word);
    return parts;
}

/// Finds definitions by symbol, with regard to case, and by name in lower case.
struct Index
{
    std::unordered_map<std::string, const UnitDefinition*> symbols;
    std::unordered_map<std::string, const UnitDefinition*> names;

    Index()
    {
        for (const UnitDefinition& one : definitions) {
            for (const std::string& symbol : split(one.symbols))
                symbols.emplace(symbol, &one);
            for (const std::string& name : split(one.names))
                names.emplace(name, &one);
        }
    }
};

const Index& index()
{
    static const Index built;
    return built;
}

const UnitDefinition* find(const std::unordered_map<std::string, const UnitDefinition*>& map, std::string_view key)
{
    const auto found = map.find(std::string(key));
    return found == map.end() ? nullptr : found->second;
}

Scale scaleOf(const UnitDefinition& definition)
{
    const Scale scale = makeScale(definition.numerator, definition.denominator, definition.exponent);
    constexpr Scale pi{3.141592653589793116, 1.224646799147353207e-16, 0};
    return definition.perPi ? scale / pi : scale;
}

/// Returns the symbol for output, with the usual sign for a percent.
std::string writtenSymbol(const UnitDefinition& definition)
{
    const std::string symbol = split(definition.symbols).front();
    if (symbol == "percent")
        return "%";
    return symbol == "percentIACS" ? "%IACS" : symbol;
}

Atom makeAtom(const UnitDefinition& definition, const char* prefix, int exponent)
{
    Atom atom;
    atom.symbol = prefix + writtenSymbol(definition);
    atom.scale = scaleOf(definition);
    atom.scale.exponent += exponent;
    atom.dimension = definition.dimension;
    atom.zero = definition.zero;
    if (definition.note != Text::Count)
        atom.note = makeMessage(definition.note);
    return atom;
}

std::string lowered(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool takes(const UnitDefinition& definition, const Prefix& prefix)
{
    return std::string_view(definition.prefixes).find(prefix.letter) != std::string_view::npos;
}

std::optional<Atom> findWithPrefix(std::string_view spelling, const std::string& lower)
{
    for (const Prefix& prefix : prefixes) {
        const UnitDefinition* unit = nullptr;
        if (startsWith(spelling, prefix.symbol))
            unit = find(index().symbols, spelling.substr(std::string_view(prefix.symbol).size()));
        if (unit == nullptr && startsWith(lower, prefix.name))
            unit = find(index().names, std::string_view(lower).substr(std::string_view(prefix.name).size()));
        if (unit != nullptr && takes(*unit, prefix))
            return makeAtom(*unit, prefix.symbol, prefix.exponent);
    }
    return std::nullopt;
}

} // namespace

std::optional<Atom> findBuiltIn(std::string_view spelling)
{
    if (const UnitDefinition* const unit = find(index().symbols, spelling))
        return makeAtom(*unit, "", 0);
    const std::string lower = lowered(spelling);
    if (const UnitDefinition* const unit = find(index().names, lower))
        return makeAtom(*unit, "", 0);
    return findWithPrefix(spelling, lower);
}

std::vector<Atom> builtInAtoms()
{
    std::vector<Atom> atoms;
    for (const UnitDefinition& one : definitions)
        atoms.push_back(makeAtom(one, "", 0));
    return atoms;
}

const AmbiguousSpelling* findAmbiguous(std::string_view spelling)
{
    const auto* const found = std::find_if(
        std::begin(ambiguousSpellings), std::end(ambiguousSpellings),
        [spelling](const AmbiguousSpelling& one) { return vxMat::equalIgnoringAsciiCase(one.spelling, spelling); });
    return found == std::end(ambiguousSpellings) ? nullptr : found;
}

const std::vector<std::string>& commonSpellings()
{
    static const std::vector<std::string> spellings = [] {
        std::vector<std::string> collected = split(
            "Pa MPa GPa kPa hPa mPa mm cm m km um nm kg g mg t N kN MN mN J kJ MJ mJ W kW mW MW s ms us ns K degC "
            "degF psi ksi Msi kpsi lbf lb in ft h min d cP P kcal cal_th bar mbar kbar dyn daN Ohm mOhm uOhm kOhm "
            "S mS uS MS percent deg rad kgf Btu");
        for (const UnitDefinition& one : definitions) {
            for (const std::string& symbol : split(one.symbols))
                collected.push_back(symbol);
            for (const std::string& name : split(one.names))
                collected.push_back(name);
        }
        return collected;
    }();
    return spellings;
}

} // namespace vxUnits
