#include "fits/FitReport.h"

#include "fits/FitModels.h"
#include "materials/Findings.h"
#include "program/Files.h"
#include "program/TextTable.h"
#include "units/ShownUnits.h"
#include "vxConstitutive/fit/EstimateText.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Writing.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace commandline {

namespace {

using vxConstitutive::Determination;
using vxConstitutive::Finding;
using vxConstitutive::FitResult;
using vxConstitutive::FitStatus;
using vxConstitutive::FittedConstant;
using vxConstitutive::StableRange;
using vxConstitutive::TestAgreement;
using vxMat::PropertyId;
using vxUnits::UnitSystem;

constexpr const char* absent = "-";

std::string residualText(double residual)
{
    return vxConstitutive::roundedText(residual, vxConstitutive::residualDigits);
}

std::string rounded(double number)
{
    return vxMat::formatGeneral(number);
}

std::string percentOf(double part)
{
    constexpr double percent = 100.0;
    constexpr double digits = 1e4; // of a part: 0.01 %
    return rounded(std::round(part * digits) / digits * percent) + " %";
}

const char* nameOf(FitStatus status)
{
    static constexpr const char* names[] = {"done", "cancelled", "failed"};
    return names[static_cast<std::size_t>(status)];
}

const char* nameOf(Determination determination)
{
    static constexpr const char* names[] = {"determined", "poor", "at-bound", "undetermined", "fixed"};
    return names[static_cast<std::size_t>(determination)];
}

std::optional<vxUnits::CreepExponents> exponentsOf(const FitResult& result)
{
    const FittedConstant* const n = result.find(PropertyId::CreepModulusN);
    const FittedConstant* const m = result.find(PropertyId::CreepModulusM);
    if (n == nullptr || m == nullptr)
        return std::nullopt;
    return vxUnits::CreepExponents{n->value, m->value};
}

/// A number and its standard error in a unit of a system.
struct ShownConstant
{
    double value;
    std::optional<double> standardError;
    std::string unit;
};

ShownConstant show(const FittedConstant& constant, const FitResult& result, const UnitSystem& system)
{
    const auto shownError = [&](const auto& convert) {
        return constant.standardError ? std::optional<double>(convert(*constant.standardError)) : std::nullopt;
    };
    if (constant.propertyId != PropertyId::CreepModulusA) {
        const ShownUnit unit = showIn(system, constant.unit);
        return {unit.convert(constant.value), shownError(unit.convert), unit.text};
    }
    const vxUnits::CreepExponents exponents = exponentsOf(result).value_or(vxUnits::CreepExponents());
    const vxUnits::Unit kept = UnitSystem::si().unitOfCreep(exponents);
    const vxUnits::Unit unit = system.unitOfCreep(exponents);
    const auto convert = [&](double number) { return vxUnits::convertNumber(number, kept, unit); };
    return {convert(constant.value), shownError(convert), unit.text()};
}

/// Returns the constant with a symbol; null if there is none.
const FittedConstant* findConstant(const FitResult& result, const std::string& symbol)
{
    const auto found = std::find_if(result.constants.begin(), result.constants.end(),
                                    [&](const FittedConstant& constant) { return constant.symbol == symbol; });
    return found == result.constants.end() ? nullptr : &*found;
}

/// Returns the findings of a fit; a bound that a constant reached is in the unit of the constant.
std::vector<Finding> shownFindings(const FitResult& result, const UnitSystem& system)
{
    std::vector<Finding> findings = result.findings;
    for (Finding& finding : findings) {
        if (finding.id != vxConstitutive::FindingId::AtBound)
            continue;
        if (const FittedConstant* const constant = findConstant(result, finding.arguments[0])) {
            const ShownConstant bound = show(*constant, result, system);
            finding.arguments[1] = rounded(bound.value) + (bound.unit == "1" ? "" : " " + bound.unit);
        }
    }
    return findings;
}

/// Returns the unit of SI of what is measured in a mode.
const char* ordinateUnitOf(vxConstitutive::Mode mode)
{
    static constexpr const char* units[] = {"1", "Pa", "s", "1/s"};
    const vxConstitutive::Measure measure = vxConstitutive::ordinateMeasures(mode).front();
    return units[static_cast<std::size_t>(vxConstitutive::measureRecord(measure).dimension)];
}

std::string textOf(const ShownConstant& constant, Determination determination)
{
    const std::string value = vxConstitutive::estimateText(constant.value, constant.standardError);
    if (constant.standardError)
        return value + " \xC2\xB1 " + vxConstitutive::roundedText(*constant.standardError, vxConstitutive::errorDigits);
    return determination == Determination::Determined ? value : value + " (" + nameOf(determination) + ")";
}

std::string textOf(const StableRange& range)
{
    constexpr int digits = 4;
    const std::string from = vxConstitutive::roundedText(range.range.from, digits);
    const std::string to = vxConstitutive::roundedText(range.range.to, digits);
    return (range.unstableBelow ? "" : "below ") + from + " to " + (range.unstableAbove ? "" : "above ") + to;
}

/// A table with a column for each model.
class ModelTable
{
public:
    using Cell = std::function<std::string(const FitResult&)>;

    explicit ModelTable(const std::vector<FitResult>& results) : m_results(results), m_table(headingOf(results)) {}

    /// Adds a row if a model has a value for it.
    void add(const std::string& title, const Cell& cell)
    {
        TextTable::Row row{title};
        for (const FitResult& result : m_results) {
            const std::string text = result.fitted ? cell(result) : std::string();
            row.push_back(text.empty() ? absent : text);
        }
        if (std::any_of(row.begin() + 1, row.end(), [](const std::string& text) { return text != absent; }))
            m_table.add(std::move(row));
    }

    std::string text() const { return m_table.text(); }

private:
    static TextTable::Row headingOf(const std::vector<FitResult>& results)
    {
        TextTable::Row heading{""};
        for (const FitResult& result : results)
            heading.push_back(keyOf(result) + (result.status == FitStatus::Done
                                                   ? std::string()
                                                   : " (" + std::string(nameOf(result.status)) + ")"));
        return heading;
    }

    const std::vector<FitResult>& m_results;
    TextTable m_table;
};

/// Returns the symbols of the constants of all models, each once.
std::vector<std::string> symbolsOf(const std::vector<FitResult>& results)
{
    std::vector<std::string> symbols;
    for (const FitResult& result : results) {
        for (const FittedConstant& constant : result.constants) {
            if (std::find(symbols.begin(), symbols.end(), constant.symbol) == symbols.end())
                symbols.push_back(constant.symbol);
        }
    }
    return symbols;
}

std::string headingOf(const std::string& symbol, const std::vector<FitResult>& results, const UnitSystem& system)
{
    for (const FitResult& result : results) {
        if (const FittedConstant* const constant = findConstant(result, symbol))
            return symbol + " [" + show(*constant, result, system).unit + "]";
    }
    return symbol;
}

void addConstants(ModelTable& table, const std::vector<FitResult>& results, const UnitSystem& system)
{
    for (const std::string& symbol : symbolsOf(results)) {
        table.add(headingOf(symbol, results, system), [&](const FitResult& result) {
            const FittedConstant* const constant = findConstant(result, symbol);
            return constant == nullptr ? std::string()
                                       : textOf(show(*constant, result, system), constant->determination);
        });
    }
}

/// Adds the Young's modulus with which the elastic part of tensile tests was taken off, if it was given.
void addGivenModulus(ModelTable& table, const UnitSystem& system)
{
    const ShownUnit unit = showIn(system, "Pa");
    table.add("E, given [" + unit.text + "]", [&](const FitResult& result) {
        const bool isGiven = result.youngsModulus && findConstant(result, "E") == nullptr;
        return isGiven ? rounded(unit.convert(*result.youngsModulus)) : std::string();
    });
}

const TestAgreement* findAgreement(const FitResult& result, const std::string& test)
{
    const auto found = std::find_if(result.tests.begin(), result.tests.end(),
                                    [&](const TestAgreement& agreement) { return agreement.test == test; });
    return found == result.tests.end() ? nullptr : &*found;
}

void addAgreement(ModelTable& table, const std::vector<MeasuredTest>& tests)
{
    const auto add = [&](const std::string& title, double TestAgreement::*part, const auto& format) {
        for (const MeasuredTest& test : tests) {
            table.add(title + printable(test.data.name), [&](const FitResult& result) {
                const TestAgreement* const agreement = findAgreement(result, test.data.name);
                return agreement == nullptr ? std::string() : format(agreement->*part);
            });
        }
    };
    table.add("residual", [](const FitResult& result) { return residualText(result.residual); });
    table.add("residual without stability", [](const FitResult& result) {
        return result.residualWithoutStability ? residualText(*result.residualWithoutStability) : std::string();
    });
    table.add("residual per freedom", [](const FitResult& result) { return residualText(result.residualPerFreedom); });
    table.add("free constants", [](const FitResult& result) { return std::to_string(result.freeConstants); });
    table.add("criterion", [](const FitResult& result) {
        return std::isfinite(result.criterion) ? residualText(result.criterion) : std::string();
    });
    table.add("R2", [](const FitResult& result) { return rounded(result.rSquared); });
    add("relative error, ", &TestAgreement::relativeError, percentOf);
    add("largest error, ", &TestAgreement::largestError, percentOf);
    add("R2, ", &TestAgreement::rSquared, rounded);
}

void addStability(ModelTable& table)
{
    for (const vxConstitutive::ModeRecord& mode : vxConstitutive::modeRecords()) {
        table.add(std::string("stable, ") + mode.key, [&](const FitResult& result) {
            for (const StableRange& range : result.stable) {
                if (range.mode == mode.mode)
                    return textOf(range);
            }
            return std::string();
        });
    }
}

/// Returns the list that a fit gives to a quantity; null if there is none.
const std::vector<double>* findList(const FitResult& result, std::int32_t propertyId)
{
    for (const vxConstitutive::PropertyValue& value : result.change.set) {
        if (value.propertyId == propertyId && !value.values.empty())
            return &value.values;
    }
    return nullptr;
}

std::string hardeningText(const FitResult& result, const UnitSystem& system)
{
    const auto* const strains = findList(result, PropertyId::PlasticStrain);
    const auto* const stresses = findList(result, PropertyId::PlasticYieldStress);
    if (strains == nullptr || stresses == nullptr)
        return {};
    const ShownUnit unit = showIn(system, "Pa");
    TextTable table({"plastic strain [1]", "yield stress [" + unit.text + "]"});
    for (std::size_t i = 0; i < std::min(strains->size(), stresses->size()); ++i)
        table.add({rounded((*strains)[i]), rounded(unit.convert((*stresses)[i]))});
    return "\n" + result.model + ": " + std::to_string(strains->size()) + " points\n" + table.text();
}

// --- JSON ---

Json::Value toJson(const TestAxis& axis)
{
    Json::Value json;
    json["column"] = static_cast<Json::UInt64>(axis.column + 1);
    json["name"] = axis.name;
    json["measure"] = vxConstitutive::measureRecord(axis.measure).key;
    json["unit"] = axis.unit;
    return json;
}

Json::Value toJson(const MeasuredTest& test, const UnitSystem& system)
{
    Json::Value json;
    json["file"] = test.file;
    json["name"] = test.data.name;
    json["mode"] = vxConstitutive::modeRecord(test.data.mode).key;
    json["points"] = static_cast<Json::UInt64>(test.data.abscissas.size());
    json["left_out"] = static_cast<Json::UInt64>(test.leftOut);
    json["weight"] = test.data.weight;
    json["stress"] = test.data.mode == vxConstitutive::Mode::Creep ? toJsonNumber(test.data.parameter) : Json::Value();
    json["separator"] = std::string(1, test.format.separator);
    json["decimal_mark"] = std::string(1, test.format.decimalMark);
    json["x"] = toJson(test.abscissa);
    json["y"] = toJson(test.ordinate);
    json["stress_column"] = test.stress ? toJson(*test.stress) : Json::Value();
    json["findings"] = findingsToJson(test.findings, system);
    return json;
}

Json::Value toJson(const FittedConstant& constant, const FitResult& result, const UnitSystem& system)
{
    const ShownConstant shown = show(constant, result, system);
    Json::Value json;
    json["id"] = constant.propertyId == 0 ? Json::Value() : Json::Value(constant.propertyId);
    json["symbol"] = constant.symbol;
    json["unit"] = shown.unit;
    json["value"] = toJsonNumber(shown.value);
    json["standard_error"] = shown.standardError ? toJsonNumber(*shown.standardError) : Json::Value();
    json["determination"] = nameOf(constant.determination);
    return json;
}

Json::Value toJson(const TestAgreement& agreement, const UnitSystem& system)
{
    const ShownUnit unit = showIn(system, ordinateUnitOf(agreement.mode));
    Json::Value json;
    json["test"] = agreement.test;
    json["mode"] = vxConstitutive::modeRecord(agreement.mode).key;
    json["points"] = static_cast<Json::UInt64>(agreement.points);
    json["rms"] = toJsonNumber(unit.convert(agreement.rms));
    json["unit"] = unit.text;
    json["relative_error"] = toJsonNumber(agreement.relativeError);
    json["largest_error"] = toJsonNumber(agreement.largestError);
    json["r_squared"] = toJsonNumber(agreement.rSquared);
    return json;
}

Json::Value toJson(const StableRange& range)
{
    Json::Value json;
    json["mode"] = vxConstitutive::modeRecord(range.mode).key;
    json["from"] = toJsonNumber(range.range.from);
    json["to"] = toJsonNumber(range.range.to);
    json["unstable_below"] = range.unstableBelow;
    json["unstable_above"] = range.unstableAbove;
    return json;
}

Json::Value hardeningToJson(const FitResult& result, const UnitSystem& system)
{
    const auto* const strains = findList(result, PropertyId::PlasticStrain);
    const auto* const stresses = findList(result, PropertyId::PlasticYieldStress);
    if (strains == nullptr || stresses == nullptr)
        return {};
    const ShownUnit unit = showIn(system, "Pa");
    Json::Value json;
    json["unit"] = unit.text;
    for (const double strain : *strains)
        json["plastic_strain"].append(strain);
    for (const double stress : *stresses)
        json["yield_stress"].append(unit.convert(stress));
    return json;
}

Json::Value modulusToJson(const FitResult& result, const UnitSystem& system)
{
    if (!result.youngsModulus)
        return {};
    const ShownUnit unit = showIn(system, "Pa");
    Json::Value json;
    json["value"] = toJsonNumber(unit.convert(*result.youngsModulus));
    json["unit"] = unit.text;
    json["from_curve"] = findConstant(result, "E") != nullptr;
    return json;
}

Json::Value toJson(const FitResult& result, const UnitSystem& system)
{
    Json::Value json;
    json["model"] = keyOf(result);
    json["status"] = nameOf(result.status);
    for (const char* const list : {"constants", "tests", "stable"})
        json[list] = Json::arrayValue;
    for (const FittedConstant& constant : result.constants)
        json["constants"].append(toJson(constant, result, system));
    for (const TestAgreement& agreement : result.tests)
        json["tests"].append(toJson(agreement, system));
    for (const StableRange& range : result.stable)
        json["stable"].append(toJson(range));
    const bool isFitted = result.fitted != nullptr;
    json["residual"] = isFitted ? toJsonNumber(result.residual) : Json::Value();
    json["residual_per_freedom"] = isFitted ? toJsonNumber(result.residualPerFreedom) : Json::Value();
    json["free_constants"] = static_cast<Json::UInt64>(result.freeConstants);
    json["criterion"] = std::isfinite(result.criterion) ? toJsonNumber(result.criterion) : Json::Value();
    json["r_squared"] = isFitted ? toJsonNumber(result.rSquared) : Json::Value();
    json["residual_without_stability"] =
        result.residualWithoutStability ? toJsonNumber(*result.residualWithoutStability) : Json::Value();
    json["youngs_modulus"] = modulusToJson(result, system);
    json["hardening"] = hardeningToJson(result, system);
    json["findings"] = findingsToJson(shownFindings(result, system), system);
    return json;
}

} // namespace

std::string fitText(const std::vector<MeasuredTest>& tests, const std::vector<FitResult>& results,
                    const UnitSystem& system)
{
    std::string text;
    for (const MeasuredTest& test : tests)
        text += describe(test, system) + "\n";
    ModelTable table(results);
    addConstants(table, results, system);
    addGivenModulus(table, system);
    addAgreement(table, tests);
    addStability(table);
    text += "\n" + table.text();
    if (results.size() > 1)
        text +=
            "\nThe models are ranked by the criterion, the least first: it adds a price for each free constant to the "
            "residual.\n";
    for (const FitResult& result : results)
        text += hardeningText(result, system);
    return text;
}

Json::Value fitToJson(const std::vector<MeasuredTest>& tests, const std::vector<FitResult>& results,
                      const UnitSystem& system)
{
    Json::Value json;
    json["units"] = system.text();
    json["tests"] = Json::arrayValue;
    json["fits"] = Json::arrayValue;
    for (const MeasuredTest& test : tests)
        json["tests"].append(toJson(test, system));
    for (const FitResult& result : results)
        json["fits"].append(toJson(result, system));
    return json;
}

std::vector<std::string> messagesAbout(const std::vector<FitResult>& results, const UnitSystem& system)
{
    struct Shared
    {
        Finding finding;
        std::string models;
    };
    std::vector<Shared> all;
    for (const FitResult& result : results) {
        for (const Finding& finding : shownFindings(result, system)) {
            const auto same = std::find_if(all.begin(), all.end(), [&](const Shared& one) {
                return one.finding.id == finding.id && one.finding.arguments == finding.arguments;
            });
            if (same == all.end())
                all.push_back({finding, keyOf(result)});
            else if (same->models != keyOf(result))
                same->models += std::string(", ") + keyOf(result);
        }
    }
    std::vector<std::string> messages;
    for (const Shared& one : all) {
        const std::vector<std::string> text = messagesAbout(one.models, {one.finding}, system);
        messages.insert(messages.end(), text.begin(), text.end());
    }
    return messages;
}

} // namespace commandline
