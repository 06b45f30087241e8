#include "fits/Fit.h"

#include "fits/FitReport.h"
#include "fits/FitTarget.h"
#include "program/Interruption.h"
#include "units/ShownUnits.h"
#include "vxMaterial/model/NumberText.h"

#include <cmath>
#include <utility>

namespace commandline {

namespace {

using vxConstitutive::FitResult;
using vxConstitutive::FitStatus;

/// Returns the material that gets the constants; absent if none is asked for.
std::optional<FitTarget> targetOf(const FitArguments& arguments)
{
    if (arguments.project.has_value() != arguments.label.has_value())
        throw Failure("--into and --as belong together: the project file, and the label of the material");
    if (!arguments.project)
        return std::nullopt;
    FitTarget target{*arguments.project, *arguments.label};
    requireTarget(target);
    return target;
}

/// Returns what --d1 says.
D1Setting readD1(const FitArguments& arguments)
{
    using vxConstitutive::D1Treatment;
    if (!arguments.d1)
        return {};
    if (!arguments.project)
        throw Failure("--d1 belongs to --into: it says what happens to the D1 of the material");
    if (*arguments.d1 == "keep")
        return {D1Treatment::Keep};
    if (*arguments.d1 == "remove")
        return {D1Treatment::Remove};
    const double ratio = readAmount("--d1", *arguments.d1, "1", vxUnits::UnitSystem::si());
    if (!(ratio > 0.0) || !std::isfinite(ratio))
        throw Failure("--d1: the ratio of bulk to shear modulus must be greater than 0");
    return {D1Treatment::Set, ratio};
}

/// Returns the settings with an amount for Young's modulus of the material; absent for that of the curve.
FitSettings settingsFor(const FitArguments& arguments, const std::optional<FitTarget>& target)
{
    FitSettings settings = arguments.settings;
    if (settings.youngsModulus == "curve")
        settings.youngsModulus.reset();
    if (settings.youngsModulus != "material")
        return settings;
    if (!target)
        throw Failure("--youngs-modulus material: give the material with --into and --as");
    settings.youngsModulus = vxMat::formatNumber(youngsModulusOf(*target)) + " Pa";
    return settings;
}

/// Fits the models; empty if the user ended the fit.
std::optional<std::vector<FitResult>> run(const Fitting& fitting)
{
    const Interruption interruption;
    ProgressLine line;
    vxConstitutive::FitControl control;
    control.cancelled = Interruption::isRequested;
    control.progress = [&line](const vxConstitutive::FitProgress& progress) { line.show(progress); };
    std::vector<FitResult> results = fitting.run(control);
    if (Interruption::isRequested())
        return std::nullopt;
    return results;
}

/// Returns whether a solver can use the constants of a fit.
bool isUsable(const FitResult& result)
{
    return result.status == FitStatus::Done && !hasError(result.findings);
}

Json::Value toJson(const std::optional<FitTarget>& target, const FitResult& best)
{
    if (!target)
        return {};
    Json::Value json;
    json["file"] = target->project;
    json["material"] = target->label;
    json["model"] = keyOf(best);
    return json;
}

} // namespace

Answer fitModels(const FitArguments& arguments, Form form, const ChosenUnits& units, Existing existing)
{
    std::optional<FitTarget> target = targetOf(arguments);
    const D1Setting d1 = readD1(arguments);
    Answer answer;
    const std::vector<MeasuredTest> tests = readTests(arguments.tests, units.system(), answer);
    if (answer.status == Status::Error)
        return answer;
    const Fitting fitting(settingsFor(arguments, target), tests, units.system());
    const auto results = run(fitting);
    if (!results) {
        answer.messages.emplace_back("the fit was ended; nothing is written");
        answer.status = Status::Interrupted;
        return answer;
    }
    answer.add(messagesAbout(*results, units.system()));
    const FitResult& best = results->front();
    if (!isUsable(best)) {
        answer.messages.emplace_back("no model with constants that a solver can use could be fitted");
        answer.status = Status::Findings;
        target.reset();
    }
    if (target)
        writeFit(*target, {&best, &fitting.tests(), fitting.record(best), d1, &units.system()}, existing, answer);
    if (form == Form::Json) {
        Json::Value json = fitToJson(tests, *results, units.system());
        json["written"] = toJson(target, best);
        answer.text = toJsonText(json);
        return answer;
    }
    answer.text = fitText(tests, *results, units.system());
    if (target)
        answer.text +=
            "\n" + printable(target->label) + ": " + keyOf(best) + " written to " + printable(target->project) + "\n";
    return answer;
}

} // namespace commandline
