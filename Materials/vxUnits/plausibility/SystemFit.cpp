#include "vxUnits/SystemFit.h"

#include "plausibility/KindFit.h"
#include "plausibility/Rules.h"
#include "vxUnits/MaterialValues.h"

#include <algorithm>
#include <iterator>

namespace vxUnits {

namespace {

using Materials = std::vector<const vxMat::MaterialBase*>;

// The evidence against a system, as squares of distances from known materials.
constexpr double costOfFinding = 8.0;
constexpr double farFromAll = 6.0; ///< misfit above which no known kind is like a material
constexpr double mostOfOne = 40.0; ///< so that one material cannot outweigh the others
constexpr double worthIt = 3.0;    ///< by how much another system must be better

/// The evidence against a system in which numbers are taken to be.
struct Evidence
{
    std::size_t doubted = 0; ///< materials that break a rule or are like no known kind
    double cost = 0.0;
};

/// Returns whether a finding is about units. A value that is wrong in any unit, such as a negative density, says nothing about
/// the system of the others.
bool isAboutUnits(const Finding& finding)
{
    constexpr Rule ofAnyUnit[] = {Rule::NotFinite,     Rule::NotPositive,   Rule::Negative,      Rule::RatioOutside,
                                  Rule::RatioNearHalf, Rule::BulkOverShear, Rule::InitialShear,  Rule::ListLengths,
                                  Rule::StrainStart,   Rule::StrainOrder,   Rule::HardeningFalls};
    return std::find(std::begin(ofAnyUnit), std::end(ofAnyUnit), finding.rule) == std::end(ofAnyUnit);
}

MaterialValues toSi(const UnitSystem& system, const vxMat::MaterialBase& material)
{
    vxMat::MaterialBase converted;
    converted.copyAllFrom(material);
    convertMaterial(converted, system, UnitSystem::si());
    return MaterialValues(converted);
}

Evidence evidenceAgainst(const UnitSystem& system, const Materials& materials)
{
    Evidence evidence;
    for (const vxMat::MaterialBase* const material : materials) {
        const MaterialValues values = toSi(system, *material);
        const std::vector<Finding> all = applyRules(values);
        const auto findings = std::count_if(all.begin(), all.end(), isAboutUnits);
        const KindFit fit = nearestKind(featuresOf(values));
        const bool isDoubted = findings > 0 || fit.misfit > farFromAll;
        evidence.doubted += isDoubted ? 1 : 0;
        evidence.cost += std::min(fit.cost + costOfFinding * static_cast<double>(findings), mostOfOne);
    }
    return evidence;
}

} // namespace

std::vector<Doubt> checkPlausibilityIn(const UnitSystem& system, const vxMat::MaterialBase& material)
{
    return checkPlausibility(toSi(system, material));
}

std::string betterFittingSystem(const std::vector<const vxMat::MaterialBase*>& materials, const UnitSystem& assumed)
{
    const Evidence now = evidenceAgainst(assumed, materials);
    if (now.doubted == 0)
        return {};
    double lowest = now.cost - worthIt;
    std::string best;
    for (const UnitSystem& system : UnitSystem::builtIn()) {
        const Evidence evidence = evidenceAgainst(system, materials);
        if (evidence.doubted >= now.doubted || evidence.cost >= lowest)
            continue;
        lowest = evidence.cost;
        best = system.text();
    }
    return best;
}

} // namespace vxUnits
