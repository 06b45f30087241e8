#include "fits/FitModels.h"

#include "program/Answer.h"
#include "units/ShownUnits.h"
#include "vxConstitutive/fit/FitBounds.h"
#include "vxConstitutive/fit/PlasticFit.h"
#include "vxConstitutive/fit/Ranking.h"
#include "vxConstitutive/fit/RateFits.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

namespace commandline {

namespace {

using vxConstitutive::ErrorMeasure;
using vxConstitutive::FitControl;
using vxConstitutive::FitResult;
using vxConstitutive::Mode;
using vxUnits::UnitSystem;

/// What is fixed about a family of models.
struct FamilyRecord
{
    FitFamily family;
    std::vector<Mode> modes;
};

const std::vector<FamilyRecord>& families()
{
    static const std::vector<FamilyRecord> table{
        {FitFamily::Rubber, {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar, Mode::SimpleShear, Mode::Volumetric}},
        {FitFamily::Metal, {Mode::Tensile, Mode::Plastic}},
        {FitFamily::Creep, {Mode::Creep, Mode::CreepRate}},
        {FitFamily::Relaxation, {Mode::Relaxation}},
    };
    return table;
}

FitFamily familyOf(Mode mode)
{
    const auto found = std::find_if(families().begin(), families().end(), [mode](const FamilyRecord& record) {
        return std::find(record.modes.begin(), record.modes.end(), mode) != record.modes.end();
    });
    return found->family; // every measured mode is in the table
}

std::string modesOf(FitFamily family)
{
    std::string keys;
    for (const Mode mode : families()[static_cast<std::size_t>(family)].modes)
        keys += (keys.empty() ? "" : ", ") + std::string(vxConstitutive::modeRecord(mode).key);
    return keys;
}

FitFamily familyOf(const std::vector<MeasuredTest>& tests)
{
    const MeasuredTest& first = tests.front();
    const FitFamily family = familyOf(first.data.mode);
    for (const MeasuredTest& test : tests) {
        if (familyOf(test.data.mode) != family)
            throw Failure(first.data.name + " and " + test.data.name + ": " +
                          vxConstitutive::modeRecord(first.data.mode).key + " and " +
                          vxConstitutive::modeRecord(test.data.mode).key +
                          " tests have no model in common; fit them one after another");
    }
    return family;
}

const FitModelRecord& findModel(const std::string& key)
{
    std::string possible = "all";
    for (const FitModelRecord& record : fitModelRecords()) {
        if (vxMat::equalIgnoringAsciiCase(key, record.key))
            return record;
        possible += ", " + std::string(record.key);
    }
    throw Failure("--model: \"" + key + "\" is not a model that can be fitted; possible are " + possible);
}

std::vector<const FitModelRecord*> readModels(const std::vector<std::string>& keys, FitFamily family)
{
    std::vector<const FitModelRecord*> models;
    for (const FitModelRecord& record : fitModelRecords()) {
        if (record.family == family)
            models.push_back(&record);
    }
    if (std::find(keys.begin(), keys.end(), "all") != keys.end())
        return models;
    std::vector<const FitModelRecord*> chosen;
    for (const std::string& key : keys) {
        const FitModelRecord& model = findModel(key);
        if (model.family != family)
            throw Failure("--model " + key + ": this model is fitted to these tests: " + modesOf(model.family));
        if (std::find(chosen.begin(), chosen.end(), &model) == chosen.end())
            chosen.push_back(&model);
    }
    return chosen;
}

ErrorMeasure readError(const std::string& text)
{
    static const std::vector<std::pair<const char*, ErrorMeasure>> words{
        {"largest", ErrorMeasure::OfLargest}, {"each", ErrorMeasure::OfEach}, {"absolute", ErrorMeasure::Absolute}};
    for (const auto& [word, error] : words) {
        if (text == word)
            return error;
    }
    throw Failure("--error: \"" + text + "\" is not one of largest, each, absolute");
}

vxConstitutive::Range readStretches(const std::string& text)
{
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos)
        throw Failure("--stable: \"" + text + "\" is not one of data, none, FROM:TO");
    const auto read = [](const std::string& number) { return readAmount("--stable", number, "1", UnitSystem::si()); };
    const vxConstitutive::Range range{read(text.substr(0, colon)), read(text.substr(colon + 1))};
    if (!(range.from > 0.0) || !(range.to >= range.from))
        throw Failure("--stable: the stretches must be greater than 0 and rise");
    return range;
}

/// An option that only some families take.
struct OptionOfFamily
{
    const char* option;
    bool given;
    std::vector<FitFamily> families;
};

void requireOptionsOf(FitFamily family, const FitSettings& settings)
{
    const std::vector<FitFamily> metal{FitFamily::Metal};
    const OptionOfFamily options[] = {
        {"--stable", settings.stability.has_value(), {FitFamily::Rubber}},
        {"--error", settings.error.has_value(), {FitFamily::Rubber, FitFamily::Creep, FitFamily::Relaxation}},
        {"--youngs-modulus", settings.youngsModulus.has_value(), metal},
        {"--poissons-ratio", settings.poissonsRatio.has_value(), metal},
        {"--offset", settings.offset.has_value(), metal},
        {"--tolerance", settings.tolerance.has_value(), metal},
    };
    for (const OptionOfFamily& option : options) {
        const auto& able = option.families;
        if (option.given && std::find(able.begin(), able.end(), family) == able.end())
            throw Failure(std::string(option.option) + " has no effect on these models; it belongs to tests such as " +
                          modesOf(able.front()));
    }
}

std::optional<double> readOptional(const char* option, const std::optional<std::string>& text, const char* unit,
                                   const UnitSystem& system, double least, double most)
{
    if (!text)
        return std::nullopt;
    const double value = readAmount(option, *text, unit, system);
    if (!(value > least) || !(value <= most))
        throw Failure(std::string(option) + ": \"" + *text + "\" is out of range");
    return value;
}

} // namespace

const std::vector<FitModelRecord>& fitModelRecords()
{
    static const std::vector<FitModelRecord> table = [] {
        std::vector<FitModelRecord> records;
        for (const vxConstitutive::HyperelasticForm form : vxConstitutive::hyperelasticForms()) {
            const auto& record = vxConstitutive::hyperelasticFormRecord(form);
            records.push_back({record.key, record.name, FitFamily::Rubber});
        }
        records.push_back({"multilinear", "multilinear hardening", FitFamily::Metal});
        records.push_back({"bilinear", "bilinear hardening", FitFamily::Metal});
        records.push_back({"norton", "Norton creep", FitFamily::Creep});
        records.push_back({"visco-elasticity", "visco-elasticity", FitFamily::Relaxation});
        return records;
    }();
    return table;
}

const char* keyOf(const FitResult& result)
{
    const auto& records = fitModelRecords();
    const auto found = std::find_if(records.begin(), records.end(),
                                    [&](const FitModelRecord& record) { return result.model == record.name; });
    return found == records.end() ? result.model.c_str() : found->key;
}

Fitting::Fitting(const FitSettings& settings, const std::vector<MeasuredTest>& tests, const UnitSystem& system)
    : m_family(familyOf(tests)), m_models(readModels(settings.models, m_family))
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    requireOptionsOf(m_family, settings);
    for (const MeasuredTest& test : tests)
        m_tests.push_back(test.data);
    if (settings.error)
        m_error = readError(*settings.error);
    m_stable = settings.stability != "none";
    if (m_stable && settings.stability && settings.stability != "data")
        m_stableRange = readStretches(*settings.stability);
    for (const std::string& bound : settings.bounds) {
        const std::string problem = vxConstitutive::readBound(bound, tests.front().data.mode, system, m_bounds);
        if (!problem.empty())
            throw Failure("--bound: " + problem);
    }
    m_youngsModulus = readOptional("--youngs-modulus", settings.youngsModulus, "Pa", system, 0.0, infinity);
    m_poissonsRatio = readOptional("--poissons-ratio", settings.poissonsRatio, "1", system, -1.0, 0.5);
    m_offset = readOptional("--offset", settings.offset, "1", system, 0.0, 1.0);
    m_tolerance = readOptional("--tolerance", settings.tolerance, "1", system, 0.0, 1.0);
}

vxConstitutive::HyperelasticFitRequest Fitting::rubberRequest() const
{
    using vxConstitutive::StabilityDemand;
    vxConstitutive::HyperelasticFitRequest request;
    request.tests = m_tests;
    request.error = m_error;
    request.bounds = m_bounds;
    request.stability = m_stable ? StabilityDemand::OverData : StabilityDemand::None;
    if (m_stableRange) {
        request.stability = StabilityDemand::OverRange;
        request.stableRange = *m_stableRange;
    }
    request.forms.clear();
    for (const vxConstitutive::HyperelasticForm form : vxConstitutive::hyperelasticForms()) {
        const std::string_view key = vxConstitutive::hyperelasticFormRecord(form).key;
        if (std::any_of(m_models.begin(), m_models.end(),
                        [key](const FitModelRecord* model) { return key == model->key; }))
            request.forms.push_back(form);
    }
    return request;
}

std::vector<FitResult> Fitting::fitMetal(const FitControl& control) const
{
    vxConstitutive::PlasticFitRequest request;
    request.tests = m_tests;
    request.youngsModulus = m_youngsModulus;
    request.poissonsRatio = m_poissonsRatio.value_or(request.poissonsRatio);
    request.offset = m_offset.value_or(request.offset);
    request.tolerance = m_tolerance.value_or(request.tolerance);
    request.bounds = m_bounds;
    std::vector<FitResult> results;
    for (const FitModelRecord* const model : m_models) {
        const bool isMultilinear = std::string_view(model->key) == "multilinear";
        results.push_back(isMultilinear ? fitMultilinear(request, control) : fitBilinear(request, control));
    }
    rankFits(results);
    return results;
}

vxConstitutive::FitRecord Fitting::record(const FitResult& result) const
{
    return m_family == FitFamily::Rubber ? recordFit(result, rubberRequest()) : recordFit(result, m_error);
}

std::vector<FitResult> Fitting::run(const FitControl& control) const
{
    switch (m_family) {
    case FitFamily::Rubber:
        return vxConstitutive::fitHyperelastic(rubberRequest(), control);
    case FitFamily::Metal:
        return fitMetal(control);
    case FitFamily::Creep:
        return {vxConstitutive::fitNorton({m_tests, m_error, m_bounds}, control)};
    case FitFamily::Relaxation:
        break;
    }
    return {vxConstitutive::fitRelaxation({m_tests, m_error, m_bounds}, control)};
}

} // namespace commandline
