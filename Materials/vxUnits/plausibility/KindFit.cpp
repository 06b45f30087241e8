#include "plausibility/KindFit.h"

#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/DerivedValues.h"

#include <algorithm>
#include <cmath>

namespace vxUnits {

namespace {

using Id = vxMat::PropertyId;

/// The distance from the span of a kind at which a value counts against the kind, in decades, or as a difference for
/// Poisson's ratio. Densities scatter little, conductivities of insulators much.
constexpr std::array<double, featureCount> tolerances{0.05, 0.12, 0.025, 0.22, 0.08, 0.15, 0.4, 0.06, 0.25, 0.06};

constexpr double missing = 0.5;   ///< for a value that a kind does not have
constexpr double otherState = 50; ///< for a modulus of a fluid or the viscosity of a solid
constexpr double otherModel = 9;  ///< for a hyperelastic model of a kind that these models are not made for
constexpr double inside = 0.15;   ///< at the end of a span; 0 in its middle
constexpr double farthest = 36.0; ///< of one value; otherwise one absurd value would choose the kind
constexpr double perDecade = 0.1; ///< so that of two kinds that fit the narrower one is taken

double logarithm(std::optional<double> number)
{
    return number && *number > 0.0 && std::isfinite(*number) ? std::log10(*number) : std::nan("");
}

std::optional<double> firstYield(const MaterialValues& values)
{
    const auto& list = values.list(Id::PlasticYieldStress);
    return list.empty() ? values.number(Id::PlasticInitialYieldStress) : std::optional<double>(list.front());
}

void addInitialModuli(Features& features, const MaterialValues& values)
{
    const auto moduli = initialModuli(values);
    features.hyperelastic = moduli.has_value();
    if (!moduli || values.has(Id::YoungsModulus))
        return;
    features[Feature::YoungsModulus] = logarithm(moduli->youngs());
    if (moduli->bulk)
        features[Feature::PoissonsRatio] =
            (3.0 * *moduli->bulk - 2.0 * moduli->shear) / (6.0 * *moduli->bulk + 2.0 * moduli->shear);
}

/// The span of a feature as in Features; not a number if it is not known.
struct LogSpan
{
    double lowest;
    double highest;

    bool known() const { return !std::isnan(lowest); }
};

/// Returns the span of the wave speed that follows from those of modulus and density.
LogSpan waveSpeedOf(const MaterialKind& kind)
{
    const Span& modulus = kind.span(Feature::YoungsModulus);
    const Span& density = kind.span(Feature::Density);
    return {0.5 * logarithm(modulus.lowest / density.highest), 0.5 * logarithm(modulus.highest / density.lowest)};
}

/// Returns the spans of the kinds as logarithms, as in Features.
const std::vector<std::array<LogSpan, featureCount>>& logSpans()
{
    static const std::vector<std::array<LogSpan, featureCount>> spans = [] {
        std::vector<std::array<LogSpan, featureCount>> all;
        for (const MaterialKind& kind : materialKinds()) {
            auto& row = all.emplace_back();
            for (std::size_t i = 0; i < featureCount; ++i) {
                const Span& span = kind.spans[i];
                const bool ratio = i == static_cast<std::size_t>(Feature::PoissonsRatio);
                row[i] = ratio && span.known() ? LogSpan{span.lowest, span.highest}
                                               : LogSpan{logarithm(span.lowest), logarithm(span.highest)};
            }
            LogSpan& waveSpeed = row[static_cast<std::size_t>(Feature::WaveSpeed)];
            if (!waveSpeed.known())
                waveSpeed = waveSpeedOf(kind);
        }
        return all;
    }();
    return spans;
}

/// Returns the span of each feature over all kinds.
const std::array<LogSpan, featureCount>& spansOfAll()
{
    static const std::array<LogSpan, featureCount> spans = [] {
        std::array<LogSpan, featureCount> all{};
        all.fill({HUGE_VAL, -HUGE_VAL});
        for (const auto& row : logSpans()) {
            for (std::size_t i = 0; i < featureCount; ++i) {
                if (row[i].known())
                    all[i] = {std::min(all[i].lowest, row[i].lowest), std::max(all[i].highest, row[i].highest)};
            }
        }
        return all;
    }();
    return spans;
}

/// Returns the square of the distance of a value from a span; 0 inside.
double squareBeyond(std::size_t feature, double value, const LogSpan& span)
{
    const double beyond = std::max({span.lowest - value, value - span.highest, 0.0}) / tolerances[feature];
    return std::min(beyond * beyond, farthest);
}

bool isOfFluids(std::size_t feature)
{
    return feature == static_cast<std::size_t>(Feature::Viscosity);
}

bool isOfSolids(std::size_t feature)
{
    return feature >= static_cast<std::size_t>(Feature::YoungsModulus) &&
           feature <= static_cast<std::size_t>(Feature::YieldStress);
}

double misfitOf(std::size_t feature, double value, const MaterialKind& kind, const LogSpan& span)
{
    if (!span.known()) {
        const bool other = kind.isFluid() ? isOfSolids(feature) : isOfFluids(feature);
        // A value that no kind has also contradicts the kinds whose span is not known.
        return other ? otherState : missing + squareBeyond(feature, value, spansOfAll()[feature]);
    }
    if (const double beyond = squareBeyond(feature, value, span); beyond > 0.0)
        return inside + beyond;
    const double width = span.highest - span.lowest;
    const double place = (2.0 * value - span.lowest - span.highest) / width;
    return inside * place * place + perDecade * width;
}

/// Returns whether the initial moduli of hyperelastic models depend on a quantity.
bool isConstantOfModel(std::int32_t id)
{
    return id == Id::MaterialConstantC10 || id == Id::MaterialConstantC01 || id == Id::InitialShearModulusMu ||
           id == Id::LimitingNetworkStretch || id == Id::IncompressibilityParameterD1;
}

} // namespace

Features featuresOf(const MaterialValues& values)
{
    Features features;
    features.values.fill(std::nan(""));
    for (const std::int32_t id : {Id::Density, Id::YoungsModulus, Id::SpecificHeat, Id::ThermalConductivity,
                                  Id::ElectricalConductivity, Id::SpeedOfSound, Id::DynamicViscosity})
        features[featureOf(id)] = logarithm(values.number(id));
    features[Feature::PoissonsRatio] = values.number(Id::PoissonsRatio).value_or(std::nan(""));
    features[Feature::YieldStress] = logarithm(firstYield(values));
    addInitialModuli(features, values);
    features[Feature::WaveSpeed] = 0.5 * (features[Feature::YoungsModulus] - features[Feature::Density]);
    for (double& feature : features.values)
        feature = std::isfinite(feature) ? feature : std::nan("");
    return features;
}

KindFit nearestKind(const Features& features)
{
    std::vector<std::size_t> present;
    for (std::size_t i = 0; i < featureCount; ++i) {
        if (!std::isnan(features.values[i]))
            present.push_back(i);
    }
    const auto& kinds = materialKinds();
    const auto& spans = logSpans();
    KindFit nearest{nullptr, HUGE_VAL, HUGE_VAL};
    for (std::size_t k = 0; k < kinds.size(); ++k) {
        double misfit = features.hyperelastic && !kinds[k].elastomer ? otherModel : 0.0;
        for (std::size_t i = 0; i < present.size() && misfit < nearest.cost; ++i)
            misfit += misfitOf(present[i], features.values[present[i]], kinds[k], spans[k][present[i]]);
        const double cost = misfit + kinds[k].rareness;
        if (cost < nearest.cost) {
            nearest.kind = &kinds[k];
            nearest.cost = cost;
        }
        nearest.misfit = std::min(nearest.misfit, misfit);
    }
    return nearest;
}

void removeFrom(Features& features, std::int32_t id)
{
    const Feature feature = isConstantOfModel(id) ? Feature::YoungsModulus : featureOf(id);
    if (feature == Feature::Count)
        return;
    features[feature] = std::nan("");
    if (feature == Feature::YoungsModulus || feature == Feature::Density)
        features[Feature::WaveSpeed] = std::nan("");
    if (isConstantOfModel(id))
        features[Feature::PoissonsRatio] = std::nan("");
}

Feature featureOf(std::int32_t id)
{
    switch (id) {
    case Id::Density:
        return Feature::Density;
    case Id::YoungsModulus:
        return Feature::YoungsModulus;
    case Id::PoissonsRatio:
        return Feature::PoissonsRatio;
    case Id::PlasticYieldStress:
    case Id::PlasticInitialYieldStress:
        return Feature::YieldStress;
    case Id::SpecificHeat:
        return Feature::SpecificHeat;
    case Id::ThermalConductivity:
        return Feature::ThermalConductivity;
    case Id::ElectricalConductivity:
        return Feature::ElectricalConductivity;
    case Id::SpeedOfSound:
        return Feature::SpeedOfSound;
    case Id::DynamicViscosity:
        return Feature::Viscosity;
    default:
        return Feature::Count;
    }
}

} // namespace vxUnits
