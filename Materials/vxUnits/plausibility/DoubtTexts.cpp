#include "plausibility/DoubtTexts.h"

#include "plausibility/KindFit.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Unit.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace vxUnits {

namespace {

constexpr std::size_t othersPlace = 2; ///< the index of %3 in the texts of rules

/// The text of a rule. %1 is the quantity in doubt and %2 its value, %3 the other quantities with their values, %4 the value
/// of the relation, %5 and %6 its bounds, %7 and %8 the materials at the bounds.
struct RuleText
{
    MessageText text;
    const char* unit = ""; ///< the unit of the relation; empty for the unit of the quantity
};

/// In the order of Rule.
constexpr RuleText ruleTexts[] = {
    {{"plausibility.not-finite", "%1 is not a finite number."}, ""},
    {{"plausibility.not-positive", "%1 = %2: the value must be above 0."}, ""},
    {{"plausibility.negative", "%1 = %2: the value must not be negative."}, ""},
    {{"plausibility.below-range", "%1 = %2 is below what known materials have, %5 (%7) to %6 (%8)."}, ""},
    {{"plausibility.above-range", "%1 = %2 is above what known materials have, %5 (%7) to %6 (%8)."}, ""},
    {{"plausibility.ratio-outside", "%1 = %2 is outside -1 to 0.5; such a solid would release energy by itself."}, ""},
    {{"plausibility.ratio-near-half",
      "%1 = %2 is so near 0.5 that elements lock; take a hyperelastic model, or at most %6."},
     ""},
    {{"plausibility.ratio-of-stiff", "%1 = %2 with %3: only rubber and gels are above %6."}, "1"},
    {{"plausibility.wave-speed",
      "%1 = %2 with %3 gives a wave speed of %4; known solids of such a density have %5 to %6."},
     "m/s"},
    {{"plausibility.light-and-stiff", "%1 = %2 with %3: known solids so light have at most %6."}, "Pa"},
    {{"plausibility.heat-per-volume", "%1 = %2 with %3 gives a heat capacity of %4; known matter has %5 to %6."},
     "MJ/(m^3 K)"},
    {{"plausibility.diffusivity", "%1 = %2 with %3 gives a thermal diffusivity of %4; known materials have %5 to %6."},
     "m^2/s"},
    {{"plausibility.lorenz-number", "%1 = %2 with %3 gives a Lorenz number of %4; known metals have %5 to %6."},
     "W Ohm/K^2"},
    {{"plausibility.sound-in-solid", "%1 = %2 with %3: the moduli give speeds from %5 to %6."}, "m/s"},
    {{"plausibility.acoustic-modulus",
      "%1 = %2 with %3 gives a bulk modulus of %4; known fluids of such a density have %5 to %6."},
     "Pa"},
    {{"plausibility.water-viscosity", "%1 = %2 with %3: heat and conductivity are those of water, which has %5 to %6."},
     "Pa s"},
    {{"plausibility.yield-ratio",
      "%1 = %2 with %3 gives a ratio of yield stress to modulus of %4; known solids have %5 to %6."},
     "1"},
    {{"plausibility.hardening-ratio",
      "%1 = %2 with %3 gives a ratio of hardening to modulus of %4; known metals have %5 to %6, or 0."},
     "1"},
    {{"plausibility.initial-modulus",
      "%1 = %2 with %3: the initial modulus of the hyperelastic model is %4 times Young's modulus; %5 to %6 times is "
      "sensible."},
     "1"},
    {{"plausibility.bulk-over-shear", "%1 = %2 with %3: the initial bulk modulus is %4 times the shear modulus; known "
                                      "rubbers and gels have %5 to %6 times."},
     "1"},
    {{"plausibility.initial-shear", "%1 = %2 with %3: the initial shear modulus is %4; it must be above 0."}, "Pa"},
    {{"plausibility.list-lengths", "%1 has %4 numbers and %3; each strain needs one stress."}, "1"},
    {{"plausibility.strain-start", "%1 begins with %4; the first plastic strain is 0, at the first yield."}, "1"},
    {{"plausibility.strain-order", "%1 does not rise from %5 to %4."}, "1"},
    {{"plausibility.hardening-falls", "%1 falls below %5 to %4; hardening does not fall."}, ""},
    {{"plausibility.creep-rate",
      "%1 = %2 with %3 gives a strain rate of %4 at a thousandth of the modulus; %5 to %6 is within reach."},
     "1/s"},
    {{"plausibility.unlike-any-material", "%1 = %2 does not fit the other values."}, ""},
};
static_assert(std::size(ruleTexts) == static_cast<std::size_t>(Rule::Count));

constexpr MessageText anyValue{"plausibility.any-value", "Any of these values may be wrong."};
constexpr MessageText valuesOfKind{"plausibility.values-of-kind",
                                   "The other values are those of %1, which has %2 to %3."};

constexpr MessageText remedyUsual{"plausibility.remedy-usual", "%1 is usual for %2: multiply by %3"};
constexpr MessageText remedyFits{"plausibility.remedy-fits", "%1 would not be doubted: multiply by %2"};
constexpr MessageText remedyPossible{"plausibility.remedy-possible",
                                     "One possibility: %1 is usual for %2; then multiply by %3"};
constexpr MessageText remedyPossiblyFits{"plausibility.remedy-possibly-fits",
                                         "One possibility: %1 would not be doubted; then multiply by %2"};
constexpr MessageText remedyReciprocal{"plausibility.remedy-reciprocal",
                                       "%1 is usual for the resistivity of %2: take the reciprocal"};
constexpr MessageText remedyStresses{"plausibility.remedy-stresses", "The stresses look like %1: convert them"};
constexpr MessageText remedySheet{"plausibility.remedy-sheet",
                                  "The stresses look like %1, and the density like %2: convert them"};
constexpr MessageText remedySheetWithHeat{
    "plausibility.remedy-sheet-with-heat",
    "The stresses look like %1, the density like %2, and the specific heat like %3: convert them"};
constexpr MessageText remedySystem{"plausibility.remedy-system", "The values look like %1: convert the material"};

// The same remedies if the doubt shows the numbers in another unit system than that of the catalogue.
constexpr MessageText remedyStressesInSi{"plausibility.remedy-stresses-in-si",
                                         "The numbers of the stresses look like %1, but are in Pa: convert them"};
constexpr MessageText remedySheetInSi{
    "plausibility.remedy-sheet-in-si",
    "The numbers of the stresses look like %1, that of the density like %2, but they are in SI: convert them"};
constexpr MessageText remedySheetWithHeatInSi{"plausibility.remedy-sheet-with-heat-in-si",
                                              "The numbers of the stresses look like %1, that of the density like %2, "
                                              "that of the specific heat like %3, but they "
                                              "are in SI: convert them"};
constexpr MessageText remedySystemInSi{"plausibility.remedy-system-in-si",
                                       "The numbers look like %1, but are in SI: convert the material"};

std::string nameOf(std::int32_t id)
{
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(id);
    return record != nullptr ? record->name : std::to_string(id);
}

/// Returns a number with six digits, which are enough for a doubt.
double sixDigits(double number)
{
    return std::isfinite(number) ? vxMat::readNumber(vxMat::formatGeneral(number)) : number;
}

/// Returns a number with six digits and its unit. A relation of numbers at the ends of the range may be out of range.
std::string rounded(double number, const std::string& unit)
{
    const std::string text = std::isinf(number) ? "> 1e308" : vxMat::formatNumber(sixDigits(number));
    return text + (unit == "1" || unit.empty() ? "" : " " + unit);
}

/// Returns a number as it was typed. A number with many digits is the result of a conversion, and six of them are enough.
std::string asTyped(double number)
{
    constexpr std::size_t mostTyped = 10;
    std::string text = vxMat::formatNumber(number);
    const std::string mantissa = text.substr(0, text.find('e'));
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string::npos)
        return text;
    const std::size_t digits = mantissa.size() - first - (mantissa.find('.', first) == std::string::npos ? 0 : 1);
    return digits > mostTyped ? vxMat::formatGeneral(number) : text;
}

constexpr std::size_t mostInList = 8;

/// Returns the first numbers of a list, and "..." if there are more.
template <typename Write>
std::string listText(const std::vector<double>& list, const Write& write)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(list.size(), mostInList); ++i)
        text += (i == 0 ? "" : ", ") + write(list[i]);
    return text + (list.size() > mostInList ? ", ..." : "");
}

/// Writes the numbers of a material in the unit system in which a doubt shows them.
class ShownNumbers
{
public:
    ShownNumbers(const MaterialValues& values, const UnitSystem& system) : m_values(values), m_system(system) {}

    /// Returns a number in the unit of a relation with six digits.
    std::string inUnitOf(const char* relation, double number) const
    {
        const auto unit = Unit::parse(relation);
        if (isStored() || !unit || unit->dimension().isNone())
            return rounded(number, relation);
        const Unit shown = m_system.unitOf(unit->dimension());
        return rounded(convertNumber(number, *unit, shown), shown.text());
    }

    /// Returns a number in the unit of a quantity with six digits.
    std::string inUnitOf(std::int32_t id, double number) const
    {
        const Units units = unitsOf(id);
        return rounded(convertNumber(number, units.stored, units.shown), units.shown.text());
    }

    /// Returns the number or the list of a quantity as it was typed.
    std::string value(std::int32_t id) const
    {
        const Units units = unitsOf(id);
        const auto write = [&units](double number) {
            return asTyped(convertNumber(number, units.stored, units.shown));
        };
        const auto& list = m_values.list(id);
        const std::string numbers = list.empty() ? write(m_values.number(id).value_or(0.0)) : listText(list, write);
        return numbers + (units.shown.text() == "1" ? "" : " " + units.shown.text());
    }

private:
    struct Units
    {
        Unit stored;
        Unit shown;
    };

    bool isStored() const { return m_system == UnitSystem::si(); }

    /// Returns the units of a quantity; those of pure numbers if they are not known.
    Units unitsOf(std::int32_t id) const
    {
        const auto exponents = m_values.creepExponents();
        const auto stored = unitOfQuantity(id, UnitSystem::si(), exponents);
        const auto shown = unitOfQuantity(id, m_system, exponents);
        return stored && shown ? Units{*stored, *shown} : Units();
    }

    const MaterialValues& m_values;
    const UnitSystem& m_system;
};

/// Returns the number or the list of a quantity with six digits, in the unit that a remedy assumes.
std::string typedText(const Change& change, const MaterialValues& values)
{
    const std::vector<double>& list = values.list(change.id);
    if (list.empty())
        return rounded(values.number(change.id).value_or(0.0), change.unit);
    return listText(list, [](double number) { return vxMat::formatNumber(sixDigits(number)); }) + " " + change.unit;
}

/// Returns the quantities of a finding beside the one in doubt, with their values: "Density", " = 7850 kg/m^3", ", ",
/// "Specific heat", and so on.
std::vector<std::string> partsOfOthers(const Finding& finding, std::int32_t blamed, const ShownNumbers& numbers)
{
    std::vector<std::string> parts;
    for (const std::int32_t id : finding.ids) {
        if (id == 0 || id == blamed)
            continue;
        if (!parts.empty())
            parts.emplace_back(", ");
        parts.push_back(nameOf(id));
        parts.push_back(" = " + numbers.value(id));
    }
    return parts;
}

/// Returns a factor as it is usually typed: 1e6 instead of 1e+06.
std::string factorText(double factor)
{
    std::string text = vxMat::formatGeneral(factor);
    const std::size_t exponent = text.find('e');
    if (exponent == std::string::npos)
        return text;
    const std::size_t sign = text[exponent + 1] == '-' ? 2 : 1;
    text.erase(text.begin() + static_cast<std::ptrdiff_t>(exponent + sign),
               text.begin() + static_cast<std::ptrdiff_t>(text.find_first_not_of("+-0", exponent + 1)));
    return text;
}

/// Returns the material at a bound of the range of a quantity.
std::string landmark(std::int32_t id, double bound)
{
    const Quantity* const quantity = findQuantity(id);
    for (const auto* const range : {&quantity->solids, &quantity->liquids, &quantity->gases}) {
        if (*range && (*range)->lowest == bound)
            return (*range)->lowestIs;
        if (*range && (*range)->highest == bound)
            return (*range)->highestIs;
    }
    return {};
}

} // namespace

Doubt toDoubt(const Finding& finding, std::int32_t blamed, const MaterialValues& values, const UnitSystem& shown)
{
    const RuleText& rule = ruleTexts[static_cast<std::size_t>(finding.rule)];
    const ShownNumbers numbers(values, shown);
    const auto bound = [&](double number) {
        return *rule.unit == '\0' ? numbers.inUnitOf(blamed, number) : numbers.inUnitOf(rule.unit, number);
    };
    const std::string lowest = bound(finding.lowest);
    const std::string highest = bound(finding.highest);
    Doubt doubt;
    doubt.id = blamed;
    const auto& list = values.list(blamed);
    doubt.value =
        blamed == finding.ids[0] ? finding.value : values.number(blamed).value_or(list.empty() ? 0.0 : list.front());
    if (finding.lowest != finding.highest) {
        doubt.lowest = std::isinf(finding.lowest) ? std::string() : lowest;
        doubt.highest = std::isinf(finding.highest) ? std::string() : highest;
    }
    doubt.severity = finding.severity;
    std::vector<std::string> others = partsOfOthers(finding, blamed, numbers);
    doubt.message = {rule.text.id,
                     rule.text.english,
                     {nameOf(blamed), numbers.value(blamed),
                      std::accumulate(others.begin(), others.end(), std::string()), bound(finding.relation), lowest,
                      highest, landmark(blamed, finding.lowest), landmark(blamed, finding.highest)},
                     {{othersPlace, std::move(others)}}};
    return doubt;
}

std::optional<Message> blameMessage(std::int32_t blamed, const MaterialKind* kind, const UnitSystem& shown)
{
    if (kind == nullptr)
        return Message{anyValue.id, anyValue.english, {}};
    const Feature feature = featureOf(blamed);
    if (feature == Feature::Count || !kind->span(feature).known())
        return std::nullopt;
    const MaterialValues none;
    const ShownNumbers numbers(none, shown);
    const Span& span = kind->span(feature);
    return Message{valuesOfKind.id,
                   valuesOfKind.english,
                   {kind->name, numbers.inUnitOf(blamed, span.lowest), numbers.inUnitOf(blamed, span.highest)}};
}

Message remedyMessage(const Slip& slip, Certainty certainty, const MaterialValues& values, const MaterialKind* kind,
                      const UnitSystem& shown)
{
    const bool isStored = shown == UnitSystem::si();
    const auto message = [isStored](const MessageText& inStored, const MessageText& inOther,
                                    std::vector<std::string> arguments) {
        const MessageText& text = isStored ? inStored : inOther;
        return Message{text.id, text.english, std::move(arguments)};
    };
    if (!slip.system.empty())
        return message(remedySystem, remedySystemInSi, {slip.system});
    const auto heat = std::find_if(slip.changes.begin(), slip.changes.end(),
                                   [](const Change& change) { return change.id == vxMat::PropertyId::SpecificHeat; });
    if (!slip.density.empty() && heat != slip.changes.end())
        return message(remedySheetWithHeat, remedySheetWithHeatInSi, {slip.unit, slip.density, heat->unit});
    if (!slip.density.empty())
        return message(remedySheet, remedySheetInSi, {slip.unit, slip.density});
    if (!slip.unit.empty())
        return message(remedyStresses, remedyStressesInSi, {slip.unit});
    const Change& change = slip.changes.front();
    const std::string typed = typedText(change, values);
    const Feature feature = featureOf(change.id);
    const bool usual = kind != nullptr && feature != Feature::Count && kind->span(feature).known();
    if (change.reciprocal)
        return {remedyReciprocal.id, remedyReciprocal.english, {typed, kind != nullptr ? kind->name : ""}};
    const std::string factor = factorText(change.factor);
    const bool isLikely = certainty == Certainty::Likely;
    const MessageText& text =
        usual ? (isLikely ? remedyUsual : remedyPossible) : (isLikely ? remedyFits : remedyPossiblyFits);
    if (usual)
        return {text.id, text.english, {typed, kind->name, factor}};
    return {text.id, text.english, {typed, factor}};
}

void addDoubtTexts(std::vector<MessageText>& texts)
{
    for (const RuleText& one : ruleTexts)
        texts.push_back(one.text);
    texts.insert(texts.end(), {anyValue, valuesOfKind, remedyUsual, remedyFits, remedyPossible, remedyPossiblyFits,
                               remedyReciprocal, remedyStresses, remedySheet, remedySheetWithHeat, remedySystem,
                               remedyStressesInSi, remedySheetInSi, remedySheetWithHeatInSi, remedySystemInSi});
}

} // namespace vxUnits
