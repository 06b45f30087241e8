#include "texts/DeckTexts.h"
#include "texts/ReadingTexts.h"
#include "vxDecks/DeckReading.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <string_view>

namespace vxDecks {

namespace {

using vxMat::MaterialFinding;

bool hasText(const Finding& finding, const vxUnits::Message& text)
{
    return std::string_view(finding.message.id) == text.id;
}

/// Returns whether both are about the same two quantities, of which one excludes the other.
bool isSameExclusion(const MaterialFinding& checked, const Finding& told)
{
    return std::equal(checked.arguments.begin(), checked.arguments.end(), told.message.arguments.begin(),
                      told.message.arguments.end(),
                      [](const vxMat::FindingArgument& one, const std::string& other) { return one.text == other; });
}

/// Returns whether a finding is about two quantities, and not about the value of one.
bool isAboutTwo(const MaterialFinding& checked)
{
    using Kind = vxMat::FindingArgument::Kind;
    return std::count_if(checked.arguments.begin(), checked.arguments.end(),
                         [](const vxMat::FindingArgument& one) { return one.kind == Kind::QuantityName; }) == 2;
}

bool isTold(const MaterialFinding& checked, const Finding& told)
{
    static const vxUnits::Message exclusion = makeMessage(ReadText::ModelsExclude);
    static const vxUnits::Message lengths = makeMessage(Text::CurveLengths);
    if (hasText(told, exclusion))
        return isSameExclusion(checked, told);
    if (hasText(told, lengths))
        return checked.slot == vxMat::PropertyId::PlasticYieldStress && isAboutTwo(checked);
    return checked.slot == told.id && !isAboutTwo(checked);
}

} // namespace

std::vector<MaterialFinding> findingsBesides(const MaterialReport& report, const vxMat::MaterialBase& material)
{
    if (material.properties.empty())
        return {}; // a note tells it
    std::vector<MaterialFinding> findings = vxMat::checkMaterial(material);
    const auto isKnown = [&report](const MaterialFinding& one) {
        return std::any_of(report.findings.begin(), report.findings.end(),
                           [&one](const Finding& told) { return isTold(one, told); });
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), isKnown), findings.end());
    return findings;
}

} // namespace vxDecks
