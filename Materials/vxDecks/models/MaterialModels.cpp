#include "models/MaterialModels.h"

#include "texts/DeckTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/DerivedValues.h"

#include <algorithm>
#include <string>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::MaterialValues;
using vxUnits::Message;

/// A quantity that a model needs, and the range that solvers take, without its ends.
struct Need
{
    std::int32_t id;
    double above;
    double below;
    const char* range;
};

/// The bounds of numbers with which models compute: far outside of physics, so that products and quotients are finite.
constexpr double smallest = 1e-100;
constexpr double unlimited = 1e100;
constexpr const char* positive = "above 0";
constexpr const char* any = "finite";

std::string nameOf(std::int32_t id)
{
    return vxMat::findPropertyRecord(id)->name;
}

/// Returns the reason why a model cannot have its quantities; absent if it can.
std::optional<Message> findFault(const MaterialValues& values, const std::vector<Need>& needs)
{
    for (const Need& need : needs) {
        const auto number = values.number(need.id);
        if (!number)
            return makeMessage(Text::NeedsAnother, {nameOf(need.id)});
        if (*number <= need.above || *number >= need.below)
            return makeMessage(Text::ValueOutside, {nameOf(need.id), vxMat::formatNumber(*number), need.range});
    }
    return std::nullopt;
}

bool hasAny(const MaterialValues& values, const std::vector<std::int32_t>& ids)
{
    return std::any_of(ids.begin(), ids.end(), [&values](std::int32_t id) { return values.has(id); });
}

struct HyperelasticNeeds
{
    std::int32_t modelSwitch;
    HyperelasticKind kind;
    std::vector<Need> needs;
};

const std::vector<HyperelasticNeeds>& hyperelasticKinds()
{
    static const std::vector<HyperelasticNeeds> kinds{
        {Id::NeoHooke, HyperelasticKind::NeoHooke, {{Id::MaterialConstantC10, smallest, unlimited, positive}}},
        {Id::MooneyRivlin,
         HyperelasticKind::MooneyRivlin,
         {{Id::MaterialConstantC10, -unlimited, unlimited, any},
          {Id::MaterialConstantC01, -unlimited, unlimited, any}}},
        {Id::ArrudaBoyce,
         HyperelasticKind::ArrudaBoyce,
         {{Id::InitialShearModulusMu, smallest, unlimited, positive},
          {Id::LimitingNetworkStretch, 1.0, unlimited, "above 1"}}},
    };
    return kinds;
}

HyperelasticModel makeHyperelastic(const MaterialValues& values, const HyperelasticNeeds& kind)
{
    HyperelasticModel model;
    model.kind = kind.kind;
    for (const Need& need : kind.needs)
        model.quantities.push_back(need.id);
    const auto constant = [&](std::int32_t id) {
        const auto& ids = model.quantities;
        const bool isUsed = std::find(ids.begin(), ids.end(), id) != ids.end();
        return isUsed ? values.number(id).value_or(0.0) : 0.0;
    };
    model.c10 = constant(Id::MaterialConstantC10);
    model.c01 = constant(Id::MaterialConstantC01);
    if (kind.kind == HyperelasticKind::MooneyRivlin && values.has(Id::MaterialConstantC11)) {
        model.c11 = values.number(Id::MaterialConstantC11).value_or(0.0);
        model.quantities.push_back(Id::MaterialConstantC11);
    }
    model.mu = constant(Id::InitialShearModulusMu);
    model.stretch = constant(Id::LimitingNetworkStretch);
    if (const auto moduli = vxUnits::initialModuli(values))
        model.shear = moduli->shear;
    if (const double d1 = values.number(Id::IncompressibilityParameterD1).value_or(0.0); d1 != 0.0)
        model.d1 = d1;
    return model;
}

Resolved<HyperelasticModel> resolveHyperelastic(const MaterialValues& values)
{
    const HyperelasticNeeds* chosen = nullptr;
    for (const HyperelasticNeeds& kind : hyperelasticKinds()) {
        if (!values.has(kind.modelSwitch))
            continue;
        if (chosen != nullptr)
            return {std::nullopt, makeMessage(Text::SeveralModels)};
        chosen = &kind;
    }
    if (chosen == nullptr)
        return {std::nullopt, makeMessage(Text::NoModel)};
    std::vector<Need> needs = chosen->needs;
    if (values.number(Id::IncompressibilityParameterD1).value_or(0.0) != 0.0)
        needs.push_back({Id::IncompressibilityParameterD1, smallest, unlimited, "0 or above"});
    if (auto fault = findFault(values, needs))
        return {std::nullopt, fault};
    HyperelasticModel model = makeHyperelastic(values, *chosen);
    if (!(model.shear > smallest))
        return {std::nullopt,
                makeMessage(Text::ValueOutside, {"C10 + C01", vxMat::formatNumber(model.c10 + model.c01), positive})};
    return {std::move(model), std::nullopt};
}

Resolved<ElasticModel> resolveElastic(const MaterialValues& values)
{
    if (!hasAny(values, {Id::IsotropicElasticity, Id::YoungsModulus, Id::PoissonsRatio}))
        return {};
    if (hasAny(values, {Id::NeoHooke, Id::MooneyRivlin, Id::ArrudaBoyce}))
        return {std::nullopt, makeMessage(Text::ModelReplaces)};
    if (auto fault = findFault(values, {{Id::YoungsModulus, smallest, unlimited, positive},
                                        {Id::PoissonsRatio, -1.0, 0.5, "above -1 and below 0.5"}}))
        return {std::nullopt, fault};
    return {ElasticModel{*values.number(Id::YoungsModulus), *values.number(Id::PoissonsRatio)}, std::nullopt};
}

/// Returns the reason why the points are no hardening curve; absent if they are.
std::optional<Message> findFaultOfPoints(const std::vector<double>& stresses, const std::vector<double>& strains)
{
    if (stresses.empty())
        return makeMessage(Text::CurveEmpty);
    if (stresses.size() != strains.size())
        return makeMessage(Text::CurveLengths, {std::to_string(stresses.size()), std::to_string(strains.size())});
    if (strains.front() != 0.0)
        return makeMessage(Text::CurveStart, {vxMat::formatNumber(strains.front())});
    if (std::adjacent_find(strains.begin(), strains.end(), std::greater_equal<>()) != strains.end())
        return makeMessage(Text::CurveOrder);
    if (strains.back() >= unlimited)
        return makeMessage(Text::ValueOutside,
                           {nameOf(Id::PlasticStrain), vxMat::formatNumber(strains.back()), "a logarithmic strain"});
    const auto isOutside = [](double stress) { return stress <= smallest || stress >= unlimited; };
    const auto outside = std::find_if(stresses.begin(), stresses.end(), isOutside);
    if (outside != stresses.end())
        return makeMessage(Text::ValueOutside,
                           {nameOf(Id::PlasticYieldStress), vxMat::formatNumber(*outside), positive});
    return std::nullopt;
}

/// Makes a model of a curve. If the curve begins above strain 0, the initial yield stress is its first point.
Resolved<PlasticModel> resolvePoints(const MaterialValues& values, PlasticModel model)
{
    model.source = HardeningSource::Points;
    model.stresses = values.list(Id::PlasticYieldStress);
    model.strains = values.list(Id::PlasticStrain);
    const auto initial = values.number(Id::PlasticInitialYieldStress);
    if (initial && model.stresses.size() == model.strains.size() && !model.strains.empty() && model.strains[0] > 0.0) {
        model.stresses.insert(model.stresses.begin(), *initial);
        model.strains.insert(model.strains.begin(), 0.0);
        model.hasAddedPoint = true;
    }
    if (auto fault = findFaultOfPoints(model.stresses, model.strains))
        return {std::nullopt, fault};
    model.yieldStress = model.stresses.front();
    return {std::move(model), std::nullopt};
}

Resolved<PlasticModel> resolveModulus(const MaterialValues& values, PlasticModel model)
{
    if (auto fault = findFault(values, {{Id::PlasticInitialYieldStress, smallest, unlimited, positive},
                                        {Id::PlasticHardeningFactor, -unlimited, unlimited, any}}))
        return {std::nullopt, fault};
    model.yieldStress = *values.number(Id::PlasticInitialYieldStress);
    model.modulus = *values.number(Id::PlasticHardeningFactor);
    if (model.modulus < 0.0)
        return {std::nullopt, makeMessage(Text::ValueOutside, {nameOf(Id::PlasticHardeningFactor),
                                                               vxMat::formatNumber(model.modulus), "0 or above"})};
    return {std::move(model), std::nullopt};
}

bool isWord(const std::string& word, const char* expected)
{
    return vxMat::equalIgnoringAsciiCase(word, expected);
}

Resolved<PlasticModel> resolveHardening(const MaterialValues& values)
{
    const std::string type = values.word(Id::PlasticHardeningType);
    // A curve without points is a lack too, unless a modulus can take its place.
    const bool hasPoints = !values.list(Id::PlasticYieldStress).empty() ||
                           (values.has(Id::PlasticYieldStress) && !values.has(Id::PlasticInitialYieldStress));
    PlasticModel model;
    model.isKinematic = isWord(type, "Kinematic");
    if (isWord(type, "Combined"))
        return {std::nullopt, makeMessage(Text::CombinedShares)};
    if (isWord(type, "Bilinear"))
        return resolveModulus(values, std::move(model));
    if (isWord(type, "Multilinear") || hasPoints)
        return resolvePoints(values, std::move(model));
    if (type.empty() || model.isKinematic)
        return resolveModulus(values, std::move(model));
    return {std::nullopt, makeMessage(Text::NoHardeningData, {type})};
}

const std::vector<std::int32_t>& plasticIds()
{
    static const std::vector<std::int32_t> ids{
        Id::Plasticity,         Id::PlasticYieldType,          Id::PlasticHardeningType, Id::PlasticHardeningFactor,
        Id::PlasticYieldStress, Id::PlasticInitialYieldStress, Id::PlasticStrain};
    return ids;
}

Resolved<PlasticModel> resolvePlastic(const MaterialValues& values, bool isElastic)
{
    if (!hasAny(values, plasticIds()))
        return {};
    if (!values.has(Id::Plasticity))
        return {std::nullopt, makeMessage(Text::NoModel)};
    const std::string yieldType = values.word(Id::PlasticYieldType);
    if (!yieldType.empty() && !isWord(yieldType, "Mises"))
        return {std::nullopt, makeMessage(Text::YieldTypeLost, {yieldType})};
    if (!isElastic)
        return {std::nullopt, makeMessage(Text::NeedsModel)};
    return resolveHardening(values);
}

Resolved<CreepModel> resolveCreep(const MaterialValues& values, bool isElastic)
{
    if (!hasAny(values, {Id::Creep, Id::CreepModulusA, Id::CreepModulusN, Id::CreepModulusM}))
        return {};
    if (!values.has(Id::Creep))
        return {std::nullopt, makeMessage(Text::NoModel)};
    if (!isElastic)
        return {std::nullopt, makeMessage(Text::NeedsModel)};
    if (auto fault = findFault(values, {{Id::CreepModulusA, 0.0, unlimited, positive},
                                        {Id::CreepModulusN, 0.0, unlimited, positive},
                                        {Id::CreepModulusM, -1.0, unlimited, "above -1"}}))
        return {std::nullopt, fault};
    return {CreepModel{*values.number(Id::CreepModulusA), *values.number(Id::CreepModulusN),
                       *values.number(Id::CreepModulusM)},
            std::nullopt};
}

Resolved<PronyModel> resolveProny(const MaterialValues& values, bool isElastic)
{
    if (!hasAny(values, {Id::ViscoElasticity, Id::ShearRelaxationModulus, Id::RelaxationTime}))
        return {};
    if (!values.has(Id::ViscoElasticity))
        return {std::nullopt, makeMessage(Text::NoModel)};
    if (!isElastic)
        return {std::nullopt, makeMessage(Text::NeedsModel)};
    constexpr double beyondOne = 1.0000000000000002; // 1 itself is possible
    if (auto fault = findFault(values, {{Id::ShearRelaxationModulus, 0.0, beyondOne, "above 0 and at most 1"},
                                        {Id::RelaxationTime, smallest, unlimited, positive}}))
        return {std::nullopt, fault};
    return {PronyModel{*values.number(Id::ShearRelaxationModulus), *values.number(Id::RelaxationTime)}, std::nullopt};
}

} // namespace

MaterialModels resolveModels(const MaterialValues& values)
{
    MaterialModels models;
    models.elastic = resolveElastic(values);
    models.hyperelastic = resolveHyperelastic(values);
    const bool isElastic = models.elastic.model.has_value();
    models.plastic = resolvePlastic(values, isElastic);
    models.creep = resolveCreep(values, isElastic);
    models.prony = resolveProny(values, isElastic);
    return models;
}

} // namespace vxDecks
