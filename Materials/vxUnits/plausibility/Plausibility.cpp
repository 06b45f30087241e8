#include "vxUnits/Plausibility.h"

#include "plausibility/DoubtTexts.h"
#include "plausibility/KindFit.h"
#include "plausibility/Rules.h"
#include "plausibility/Slips.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>

namespace vxUnits {

namespace {

using Id = vxMat::PropertyId;

// Weights of the evidence against a view of the values, as squares of distances. The explanation with the lowest sum is
// taken.
constexpr double costOfFinding = 8.0;
constexpr double costOfImpossible = 12.0;
constexpr double costOfSlip = 5.0;
constexpr double costOfFurther = 1.0; ///< for a slip of all stresses or of the whole material
constexpr double worthIt = 1.0;       ///< by how much a slip must lower the sum
constexpr double farFromAll = 6.0;    ///< misfit above which no known kind is like the material
constexpr double nearSome = 4.0;      ///< misfit below which some kind is
constexpr int mostRemedies = 3;

/// The values that are trusted. A density that is left over from another material must not hide errors in other values.
enum class Trust
{
    All,
    AllButDensity
};

/// The evidence about the values, after a slip or before.
struct View
{
    std::vector<Finding> findings; ///< about values that are trusted
    KindFit fit;
    double cost = 0.0;
};

bool isAboutDensity(const Finding& finding)
{
    return std::find(finding.ids.begin(), finding.ids.end(), Id::Density) != finding.ids.end();
}

double costOf(const Finding& finding)
{
    return finding.severity == Severity::Impossible ? costOfImpossible : costOfFinding;
}

View viewOf(const MaterialValues& values, Trust trust)
{
    Features features = featuresOf(values);
    View view{applyRules(values), {}, unusualness(values)};
    if (trust == Trust::AllButDensity) {
        features[static_cast<std::size_t>(Feature::Density)] = std::nan("");
        features[static_cast<std::size_t>(Feature::WaveSpeed)] = std::nan("");
        view.findings.erase(std::remove_if(view.findings.begin(), view.findings.end(), isAboutDensity),
                            view.findings.end());
    }
    view.fit = nearestKind(features);
    view.cost += view.fit.cost;
    for (const Finding& finding : view.findings)
        view.cost += costOf(finding);
    return view;
}

bool contains(const std::vector<Finding>& findings, const Finding& finding)
{
    return std::any_of(findings.begin(), findings.end(),
                       [&](const Finding& one) { return one.rule == finding.rule && one.ids == finding.ids; });
}

/// The distance to a known kind that a material must have after a slip.
enum class Demand
{
    NearSomeKind,
    NearerThanBefore
};

/// Returns whether a slip explains the values: there must be no new findings, and either fewer findings, or a known kind
/// that is near where there was none before.
bool explains(const View& before, const View& after, Demand demand)
{
    const bool old = std::all_of(after.findings.begin(), after.findings.end(),
                                 [&](const Finding& finding) { return contains(before.findings, finding); });
    const bool fewer = after.findings.size() < before.findings.size();
    if (demand == Demand::NearerThanBefore)
        return old && fewer && after.fit.misfit < before.fit.misfit;
    return old && after.fit.misfit < nearSome && (fewer || before.fit.misfit > farFromAll);
}

bool changes(const Slip& slip, std::int32_t id)
{
    return std::any_of(slip.changes.begin(), slip.changes.end(), [id](const Change& one) { return one.id == id; });
}

/// A slip that explains findings, and the kind of material after its correction.
struct Explanation
{
    const Slip* slip;
    const MaterialKind* kind;
};

std::optional<Explanation> bestExplanation(const MaterialValues& values, const std::vector<Slip>& slips,
                                           const View& before, Trust trust, Demand demand)
{
    std::optional<Explanation> best;
    double lowest = before.cost - worthIt;
    for (const Slip& slip : slips) {
        if (trust == Trust::AllButDensity && changes(slip, Id::Density))
            continue;
        const View after = viewOf(corrected(values, slip), trust);
        const double several = slip.changes.size() > 1 ? costOfFurther : 0.0;
        const double cost = after.cost + costOfSlip + slip.rareness + several;
        if (cost >= lowest || !explains(before, after, demand))
            continue;
        lowest = cost;
        best = Explanation{&slip, after.fit.kind};
    }
    return best;
}

/// Returns the most likely slip. If none brings the material near to a known kind, the density may be the wrong value. If it
/// is not, a slip that brings the material nearer is enough.
std::optional<Explanation> bestExplanation(const MaterialValues& values, const std::vector<Slip>& slips)
{
    const View before = viewOf(values, Trust::All);
    if (before.findings.empty() && before.fit.misfit <= farFromAll)
        return std::nullopt; // nothing to explain; this saves nearly all the time for sensible materials
    auto best = bestExplanation(values, slips, before, Trust::All, Demand::NearSomeKind);
    if (best || before.findings.empty())
        return best;
    if (values.has(Id::Density) && values.numericIds().size() > 2) {
        const View rest = viewOf(values, Trust::AllButDensity);
        best = bestExplanation(values, slips, rest, Trust::AllButDensity, Demand::NearSomeKind);
        if (best || (rest.findings.empty() && rest.fit.misfit < nearSome))
            return best;
    }
    return bestExplanation(values, slips, before, Trust::All, Demand::NearerThanBefore);
}

/// Returns the quantity that a doubt is about: one that the remedy changes, otherwise the first one of the finding.
std::int32_t blamedBy(const Finding& finding, const Slip& slip)
{
    const auto* const changed = std::find_if(finding.ids.begin(), finding.ids.end(),
                                             [&](std::int32_t id) { return id != 0 && changes(slip, id); });
    return changed == finding.ids.end() ? finding.ids[0] : *changed;
}

/// Makes doubts of findings, with remedies if there are some.
class Check
{
    /// A slip that was taken as an explanation.
    struct Explained
    {
        Slip slip;
        const MaterialKind* kind;
        std::size_t doubts; ///< the number of doubts that it explains
    };

public:
    Check(const MaterialValues& values, const UnitSystem& shown)
        : m_values(values), m_shown(shown), m_slips(possibleSlips(values)), m_rest(values)
    {}

    std::vector<Doubt> run()
    {
        const std::vector<Finding> original = applyRules(m_values);
        std::vector<Finding> findings = original;
        for (int i = 0; i < mostRemedies; ++i) {
            const auto best = bestExplanation(m_rest, m_slips);
            if (!best)
                break;
            m_rest = corrected(m_rest, *best->slip);
            std::vector<Finding> left = applyRules(m_rest);
            m_explained.push_back({*best->slip, best->kind, addExplained(findings, left, *best->slip)});
            findings = std::move(left);
            dropSlipsOf(m_explained.back().slip);
        }
        addRemedies();
        for (const Finding& finding : original) {
            if (contains(findings, finding))
                m_doubts.push_back(toDoubt(finding, finding.ids[0], m_values, m_shown));
        }
        std::stable_sort(m_doubts.begin(), m_doubts.end(),
                         [](const Doubt& one, const Doubt& other) { return one.id < other.id; });
        return std::move(m_doubts);
    }

private:
    /// Adds doubts for the findings that an explanation has removed, one for each quantity, because one slip breaks many
    /// relations. If it has removed none, adds the doubt that no material has such a value. Returns the number of doubts.
    std::size_t addExplained(const std::vector<Finding>& before, const std::vector<Finding>& after, const Slip& slip)
    {
        const std::size_t count = m_doubts.size();
        for (const Finding& finding : before) {
            const std::int32_t blamed = blamedBy(finding, slip);
            const bool told = std::any_of(m_doubts.begin() + static_cast<std::ptrdiff_t>(count), m_doubts.end(),
                                          [blamed](const Doubt& doubt) { return doubt.id == blamed; });
            if (!told && !contains(after, finding))
                m_doubts.push_back(toDoubt(finding, blamed, m_values, m_shown));
        }
        if (m_doubts.size() == count) {
            Finding unlike{Rule::UnlikeAnyMaterial};
            unlike.ids[0] = slip.changes.front().id;
            unlike.value = m_values.number(unlike.ids[0]).value_or(0.0);
            m_doubts.push_back(toDoubt(unlike, unlike.ids[0], m_values, m_shown));
        }
        return m_doubts.size() - count;
    }

    /// Gives each doubt its remedy. The kind of the material is known only when all remedies are applied. If several
    /// remedies lead to no known kind, they contradict each other or the other values, and are not given.
    void addRemedies()
    {
        const bool several = m_explained.size() > 1;
        const KindFit fit = several ? nearestKind(featuresOf(m_rest)) : KindFit();
        if (fit.misfit >= nearSome)
            return;
        const MaterialKind* const kind = fit.kind;
        auto doubt = m_doubts.begin();
        for (const Explained& one : m_explained) {
            const Message message = remedyMessage(one.slip, m_values, several ? kind : one.kind, m_shown);
            for (std::size_t left = one.doubts; left > 0; --left, ++doubt)
                doubt->remedy = Remedy{message, one.slip.changes, one.slip.system};
        }
    }

    /// Removes the slips that change a quantity that a remedy changes already.
    void dropSlipsOf(const Slip& done)
    {
        const auto touches = [&done](const Slip& slip) {
            return std::any_of(done.changes.begin(), done.changes.end(),
                               [&slip](const Change& change) { return changes(slip, change.id); });
        };
        m_slips.erase(std::remove_if(m_slips.begin(), m_slips.end(), touches), m_slips.end());
    }

    const MaterialValues& m_values;
    const UnitSystem& m_shown; ///< the units of the numbers in the texts
    std::vector<Slip> m_slips; ///< that are still possible
    std::vector<Explained> m_explained;
    MaterialValues m_rest; ///< the values with the remedies applied that were found
    std::vector<Doubt> m_doubts;
};

} // namespace

double Change::apply(double number) const
{
    const auto parsed = Unit::parse(unit);
    const double multiplied =
        parsed ? convertNumber(number, *parsed, UnitSystem::si().unitOf(parsed->dimension())) : number * factor;
    return reciprocal ? 1.0 / multiplied : multiplied;
}

std::string Doubt::text(const Translator& translator) const
{
    return remedy ? message.text(translator) + " " + remedy->message.text(translator) + "." : message.text(translator);
}

std::vector<Doubt> checkPlausibility(const MaterialValues& values, const UnitSystem& shown)
{
    return Check(values, shown).run();
}

std::vector<Doubt> checkPlausibility(const vxMat::MaterialBase& material, const UnitSystem& shown)
{
    return checkPlausibility(MaterialValues(material), shown);
}

std::string fittingSystem(const vxMat::MaterialBase& material)
{
    for (const Doubt& doubt : checkPlausibility(material)) {
        if (doubt.remedy && !doubt.remedy->system.empty())
            return doubt.remedy->system;
    }
    return {};
}

void applyRemedy(const Remedy& remedy, vxMat::MaterialBase& material)
{
    for (const Change& change : remedy.changes) {
        const auto found = material.properties.find(change.id);
        if (found == material.properties.end())
            continue;
        vxMat::MaterialProperty& property = *found->second;
        property.value = change.apply(property.value);
        for (double& one : property.values)
            one = change.apply(one);
    }
}

void applyRemedy(const Remedy& remedy, MaterialValues& values)
{
    for (const Change& change : remedy.changes)
        values.transform(change.id, [&change](double number) { return change.apply(number); });
}

} // namespace vxUnits
