#include "vxMaterial/model/PropertyRules.h"

#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <stdexcept>

namespace vxMat {

namespace {

constexpr std::string_view blanks = " \t\n\v\f\r";
constexpr std::string_view listSeparators = " \t\n\v\f\r,;";

std::string_view withoutBlanksAround(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::optional<IgnoredText> ignoredBehindNumber(std::string_view valueText)
{
    const LeadingNumber read = readLeadingNumber(valueText);
    const std::string_view rest = withoutBlanksAround(read.rest);
    if (rest.empty())
        return std::nullopt;
    return IgnoredText{std::string(rest), formatNumber(read.number)};
}

/// Returns the first part of a list that is not one number; empty if there is none.
std::string_view firstStrangePart(std::string_view list)
{
    while (!list.empty()) {
        list.remove_prefix(std::min(list.find_first_not_of(listSeparators), list.size()));
        const std::string_view part = list.substr(0, list.find_first_of(listSeparators));
        // "inf" fills its part like a number, but lists ignore it.
        if (!part.empty() && (!readWholeNumber(part) || readNumberList(part).empty()))
            return part;
        list.remove_prefix(part.size());
    }
    return {};
}

std::optional<IgnoredText> ignoredInList(std::string_view valueText)
{
    const std::string readAs = formatNumberList(readNumberList(valueText));
    const std::string_view part = firstStrangePart(valueText);
    if (part.empty())
        return std::nullopt;
    return IgnoredText{std::string(part), readAs};
}

} // namespace

const char* checkNumber(std::int32_t id, double number)
{
    // Not-a-number must break the rule; the comparisons are written for this.
    switch (id) {
    case PropertyId::Density:
        return number > 0.0 ? nullptr : "Row %1: Mass density must be positive!";
    case PropertyId::PoissonsRatio:
        return number >= 0.001 && number <= 0.499 ? nullptr : "Row %1: Poisson's ratio must be between [0.001, 0.499]!";
    default:
        return nullptr;
    }
}

const char* checkWord(std::int32_t id, std::string_view word, const WordMatch& matches)
{
    const auto& allowed = getAllowedWords(id);
    const bool found = std::any_of(allowed.begin(), allowed.end(), [&](const std::string& one) {
        return matches ? matches(one, word) : equalIgnoringAsciiCase(one, word);
    });
    if (allowed.empty() || found)
        return nullptr;
    return id == PropertyId::PlasticYieldType
               ? "Row %1: Yield type must be Mises, Mohr-Coulomb, or Drucker-Prager!"
               : "Row %1: Hardening type must be Bilinear, Multilinear, Swift,                     "
                 "Ramberg-Osgood, Kinematic, or Combined!";
}

const char* checkRow(std::int32_t id, std::string_view valueText, const WordMatch& matches)
{
    const char* const fault = checkNumber(id, readWholeNumber(valueText).value_or(0.0));
    return fault != nullptr ? fault : checkWord(id, valueText, matches);
}

std::optional<RuleFailure> checkRows(const std::vector<PropertyRow>& rows, const WordMatch& matches)
{
    CombinationCheck combination;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (const char* const fault = checkRow(rows[i].id, rows[i].valueText, matches))
            return RuleFailure{fault, i + 1};
        combination.note(rows[i].id);
    }
    if (const char* const fault = combination.result())
        return RuleFailure{fault, 0};
    return std::nullopt;
}

std::optional<IgnoredText> findIgnoredText(std::int32_t id, std::string_view valueText)
{
    try {
        switch (getValueKind(id)) {
        case ValueKind::Number:
            return ignoredBehindNumber(valueText);
        case ValueKind::NumberList:
            return ignoredInList(valueText);
        default:
            return std::nullopt;
        }
    } catch (const std::logic_error&) { // not a number, or a number that a double cannot hold
        return std::nullopt;
    }
}

std::string_view withoutRowNumber(std::string_view message)
{
    constexpr std::string_view row = "Row %1: ";
    if (message.substr(0, row.size()) == row)
        message.remove_prefix(row.size());
    return message;
}

void CombinationCheck::note(std::int32_t id)
{
    switch (id) {
    case PropertyId::IsotropicElasticity:
        m_elasticity = true;
        break;
    case PropertyId::YoungsModulus:
        m_youngsModulus = true;
        break;
    case PropertyId::PoissonsRatio:
        m_poissonsRatio = true;
        break;
    case PropertyId::NeoHooke:
    case PropertyId::MooneyRivlin:
    case PropertyId::ArrudaBoyce:
        m_hyperelastic = true;
        break;
    default:
        break;
    }
}

const char* CombinationCheck::result() const
{
    if (!m_elasticity)
        return nullptr;
    if (m_hyperelastic)
        return "Elasticity and hyper-elasticy cannot be used togeter!";
    if (!m_youngsModulus)
        return "Elasticity does not define Young's modulus!";
    if (!m_poissonsRatio)
        return "Elasticity does not define Poisson's ratio!";
    return nullptr;
}

std::optional<CurveLengths> findUnequalCurve(const MaterialBase& material)
{
    const MaterialProperty* const stresses = material.findProperty(PropertyId::PlasticYieldStress);
    const MaterialProperty* const strains = material.findProperty(PropertyId::PlasticStrain);
    if (stresses == nullptr || strains == nullptr || stresses->values.size() == strains->values.size())
        return std::nullopt;
    return CurveLengths{stresses->values.size(), strains->values.size()};
}

} // namespace vxMat
