#include "vxUnits/Plausibility.h"

#include "plausibility/DoubtTexts.h"
#include "plausibility/KindFit.h"
#include "plausibility/Rules.h"
#include "plausibility/Slips.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/DerivedValues.h"

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
constexpr double costOfUnknown = 2.0; ///< for a wrong density that no unit explains
constexpr double ruledOut = 1.0; ///< by how much the sum of an unrelated explanation must be higher to be ruled out
constexpr double ruledOutByDecimals = 0.5; ///< the same beside a power of ten, which is the usual factor
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
        removeFrom(features, Id::Density);
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

/// How much the values support an explanation.
enum class Support
{
    Clear,    ///< all other explanations are less likely
    Rivalled, ///< unrelated explanations are about as likely
    Chance,   ///< an error that is no error of units is more likely
};

/// A slip that explains findings, and the kind of material after its correction.
struct Explanation
{
    const Slip* slip;
    const MaterialKind* kind;
    double cost;
    Support support = Support::Clear;

    /// Returns the cost beside rivals. A unit that makes an exotic material of the values is more often a coincidence.
    double costAsCoincidence() const { return cost + (kind != nullptr ? kind->rareness : 0.0); }
};

/// Returns whether two slips have nearly the same effect on the quantities that both change, and change at least one together.
bool areRelated(const Slip& one, const Slip& other)
{
    constexpr double sameFactor = 1.5;
    std::size_t common = 0;
    for (const Change& change : one.changes) {
        for (const Change& second : other.changes) {
            if (change.id != second.id)
                continue;
            const double ratio = change.factor / second.factor;
            if (change.reciprocal != second.reciprocal || ratio > sameFactor || ratio < 1.0 / sameFactor)
                return false;
            ++common;
        }
    }
    return common > 0;
}

bool isDecimal(const Slip& slip)
{
    return std::all_of(slip.changes.begin(), slip.changes.end(), [](const Change& change) {
        const double power = std::log10(change.factor);
        return std::abs(power - std::round(power)) < 1e-9;
    });
}

/// Returns the support of an explanation beside an unrelated one, of the cost `rival`.
Support supportBeside(double rival, bool isUnitError, const Explanation& one)
{
    const double cost = one.costAsCoincidence();
    const bool decimal = isDecimal(*one.slip);
    if (!isUnitError && rival < cost - (decimal ? ruledOut : 0.0))
        return Support::Chance;
    return rival < cost + (decimal ? ruledOutByDecimals : ruledOut) ? Support::Rivalled : Support::Clear;
}

/// Returns the most likely of the explanations. An error of typing is no remedy, but a rival.
std::optional<Explanation> mostLikely(const std::vector<Explanation>& explanations)
{
    std::optional<Explanation> best;
    for (const Explanation& one : explanations) {
        if (!one.slip->isTypingError && (!best || one.cost < best->cost))
            best = one;
    }
    for (const Explanation& one : explanations) {
        if (best && !areRelated(*one.slip, *best->slip))
            best->support =
                std::max(best->support, supportBeside(one.costAsCoincidence(), !one.slip->isTypingError, *best));
    }
    return best;
}

std::optional<Explanation> bestExplanation(const MaterialValues& values, const std::vector<Slip>& slips,
                                           const View& before, Trust trust, Demand demand)
{
    std::vector<Explanation> explanations;
    for (const Slip& slip : slips) {
        if (trust == Trust::AllButDensity && changes(slip, Id::Density))
            continue;
        const View after = viewOf(corrected(values, slip), trust);
        const double several = slip.changes.size() > 1 ? costOfFurther : 0.0;
        const double cost = after.cost + costOfSlip + slip.rareness + several;
        if (cost < before.cost - worthIt && explains(before, after, demand))
            explanations.push_back({&slip, after.fit.kind, cost});
    }
    auto best = mostLikely(explanations);
    if (best && demand == Demand::NearerThanBefore)
        best->support = std::max(best->support, Support::Rivalled);
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
    const bool hasRest = values.has(Id::Density) && (values.numericIds().size() > 2 || initialModuli(values));
    const View rest = viewOf(values, Trust::AllButDensity);
    const bool isRestRight = values.has(Id::Density) && rest.findings.empty() && rest.fit.misfit < nearSome;
    if (best && isRestRight && !changes(*best->slip, Id::Density))
        best->support = std::max(best->support, supportBeside(rest.cost + costOfSlip + costOfUnknown, false, *best));
    if (best || before.findings.empty() || (hasRest && isRestRight))
        return best;
    if (hasRest) {
        best = bestExplanation(values, slips, rest, Trust::AllButDensity, Demand::NearSomeKind);
        if (best && !isDecimal(*best->slip)) // is more often a coincidence; the density may be right
            best->support = std::max(best->support, Support::Rivalled);
        if (best)
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

/// Returns whether a rule compares quantities that distinguish kinds of materials, so that the kind tells which is wrong.
bool comparesFeatures(Rule rule)
{
    switch (rule) {
    case Rule::WaveSpeed:
    case Rule::LightAndStiff:
    case Rule::HeatPerVolume:
    case Rule::Diffusivity:
    case Rule::LorenzNumber:
    case Rule::AcousticModulus:
    case Rule::YieldRatio:
        return true;
    default:
        return false;
    }
}

/// The value of a finding that is wrong by the other values of the material.
struct Blame
{
    std::int32_t id = 0;
    const MaterialKind* kind = nullptr; ///< of the other values; null if it is not clear which value is wrong
};

/// Returns the quantity of a relation without which the other values are those of a kind of material.
Blame blameFor(const Finding& finding, const MaterialValues& values)
{
    Blame best{finding.ids[0], nullptr};
    double lowest = nearSome;
    double second = HUGE_VAL;
    for (const std::int32_t id : finding.ids) {
        if (id == 0)
            continue;
        Features features = featuresOf(values);
        removeFrom(features, id);
        const KindFit fit = nearestKind(features);
        if (fit.cost < lowest) {
            second = lowest < nearSome ? lowest : second;
            lowest = fit.cost;
            best = {id, fit.kind};
        } else {
            second = std::min(second, fit.cost);
        }
    }
    return second - lowest > ruledOut ? best : Blame{finding.ids[0], nullptr};
}

/// Makes doubts of findings, with remedies if there are some.
class Check
{
    /// A slip that was taken as an explanation.
    struct Explained
    {
        Slip slip;
        const MaterialKind* kind;
        Support support;
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
            if (best->support == Support::Chance) {
                if (findings.empty())
                    addUnlike(*best->slip);
                break;
            }
            m_rest = corrected(m_rest, *best->slip);
            std::vector<Finding> left = applyRules(m_rest);
            m_explained.push_back({*best->slip, best->kind, best->support, addExplained(findings, left, *best->slip)});
            findings = std::move(left);
            dropSlipsOf(m_explained.back().slip);
        }
        addRemedies();
        for (const Finding& finding : original) {
            if (contains(findings, finding))
                m_doubts.push_back(unexplained(finding));
        }
        std::stable_sort(m_doubts.begin(), m_doubts.end(),
                         [](const Doubt& one, const Doubt& other) { return one.id < other.id; });
        return std::move(m_doubts);
    }

private:
    /// Returns the doubt for a finding without remedy, which tells the value that is wrong.
    Doubt unexplained(const Finding& finding) const
    {
        if (!comparesFeatures(finding.rule))
            return toDoubt(finding, finding.ids[0], m_values, m_shown);
        const Blame blame = blameFor(finding, m_rest);
        Doubt doubt = toDoubt(finding, blame.id, m_values, m_shown);
        if (auto hint = blameMessage(blame.id, blame.kind, m_shown))
            doubt.message.further.push_back(*std::move(hint));
        return doubt;
    }

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
        if (m_doubts.size() == count)
            addUnlike(slip);
        return m_doubts.size() - count;
    }

    /// Adds the doubt that no known material has the value that a slip changes.
    void addUnlike(const Slip& slip)
    {
        Finding unlike{Rule::UnlikeAnyMaterial};
        unlike.ids[0] = slip.changes.front().id;
        unlike.value = m_values.number(unlike.ids[0]).value_or(0.0);
        m_doubts.push_back(toDoubt(unlike, unlike.ids[0], m_values, m_shown));
    }

    /// Gives each doubt its remedy. The kind of the material is known only when all remedies are applied. If several
    /// remedies lead to no known kind, they contradict each other or the other values, and are not given; otherwise they
    /// support each other.
    void addRemedies()
    {
        const bool several = m_explained.size() > 1;
        const KindFit fit = several ? nearestKind(featuresOf(m_rest)) : KindFit();
        if (fit.misfit >= nearSome)
            return;
        const MaterialKind* const kind = fit.kind;
        auto doubt = m_doubts.begin();
        for (const Explained& one : m_explained) {
            const bool isLikely = several || one.support == Support::Clear;
            const Message message = remedyMessage(one.slip, isLikely ? Certainty::Likely : Certainty::Possible,
                                                  m_values, several ? kind : one.kind, m_shown);
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
