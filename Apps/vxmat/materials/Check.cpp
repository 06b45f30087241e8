#include "materials/Check.h"

#include "documents/Documents.h"
#include "materials/ProjectFindings.h"
#include "program/Files.h"
#include "units/ChosenUnits.h"
#include "vxConstitutive/ModelDoubts.h"
#include "vxMaterial/exchange/DocumentCheck.h"
#include "vxMaterial/model/MaterialCheck.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Quantity.h"

#include <cstddef>
#include <set>
#include <utility>
#include <vector>

namespace commandline {

namespace {

Json::Value toJson(const std::vector<vxCAE::Finding>& findings)
{
    Json::Value list(Json::arrayValue);
    for (const vxCAE::Finding& finding : findings) {
        Json::Value json;
        json["path"] = finding.path;
        json["message"] = finding.message;
        list.append(std::move(json));
    }
    return list;
}

/// A doubt about a material of the file.
struct MaterialDoubt
{
    std::uint32_t number;
    std::string label;
    std::int32_t id;
    std::string message;
    std::string text;                 ///< the message, with the remedy if there is one
    std::optional<double> value = {}; ///< in `unit`; absent if a model is doubted
    std::string unit = {};
    bool isImpossible = false;
    std::optional<std::string> remedy = {};
};

/// The doubts about the materials of a file: the first of them, and the number of the others.
struct MaterialDoubts
{
    std::vector<MaterialDoubt> list;
    std::size_t omitted = 0;
    std::string system = vxUnits::UnitSystem::si().text(); ///< the unit system of the numbers
};

/// Returns the slots of a material that an error is about. An error about yield stresses and plastic strains together is in
/// the slot of the stresses.
std::set<std::int32_t> slotsWithErrors(const vxMat::MaterialBase& material)
{
    std::set<std::int32_t> slots;
    for (const vxMat::MaterialFinding& finding : vxMat::checkMaterial(material))
        slots.insert(finding.slot);
    if (slots.count(vxMat::PropertyId::PlasticYieldStress) != 0)
        slots.insert(vxMat::PropertyId::PlasticStrain);
    return slots;
}

MaterialDoubt doubtAbout(const FileMaterial& material, const vxUnits::Doubt& doubt, const ChosenUnits& units)
{
    const vxMat::MaterialBase& values = *material.entry->material;
    const auto unit = vxUnits::unitOfQuantity(doubt.id, units.system(), vxUnits::creepExponents(values));
    MaterialDoubt made{material.number, material.label, doubt.id, doubt.message.text(), doubt.text()};
    made.value = units.convert(doubt.value, doubt.id, values);
    made.unit = unit ? textOf(*unit) : std::string();
    made.isImpossible = doubt.severity == vxUnits::Severity::Impossible;
    if (doubt.remedy)
        made.remedy = doubt.remedy->message.text();
    return made;
}

/// Adds the doubts about a material, first those about values, then those about its models. A doubt about a value that is an
/// error already is only added if it has a remedy.
void addDoubts(const FileMaterial& material, const ChosenUnits& units, MaterialDoubts& doubts)
{
    const auto add = [&doubts](MaterialDoubt doubt) {
        if (doubts.list.size() < vxCAE::mostFindings)
            doubts.list.push_back(std::move(doubt));
        else
            ++doubts.omitted;
    };
    const vxMat::MaterialBase& values = *material.entry->material;
    const std::set<std::int32_t> errors = slotsWithErrors(values);
    for (const vxUnits::Doubt& doubt : vxUnits::checkPlausibility(values, units.system()))
        if (doubt.remedy || errors.count(doubt.id) == 0)
            add(doubtAbout(material, doubt, units));
    for (const vxConstitutive::ModelDoubt& doubt : vxConstitutive::doubtsAboutModels(values)) {
        const std::string text = describe(doubt.finding, {}, units.system());
        if (errors.count(doubt.propertyId) == 0)
            add({material.number, material.label, doubt.propertyId, text, text});
    }
}

/// Returns the doubts about the materials of a file; none if the materials cannot be read.
MaterialDoubts findDoubts(Input input, const ChosenUnits& given)
try {
    Json::Value kind(Json::objectValue);
    kind["proj_type"] = input.tree.root()["proj_type"].toJsonValue();
    if (!input.project && vxCAE::readProjectKind(kind) == vxCAE::ProjectKind::Analysis)
        return {};
    MaterialDoubts doubts;
    const MaterialFile file = readMaterials(std::move(input));
    std::vector<std::string> unreadable; // is among the findings
    const ChosenUnits units = given.orOfProject(file.unitSystem, file.path, unreadable);
    doubts.system = units.system().text();
    for (const FileMaterial& material : file.materials)
        addDoubts(material, units, doubts);
    return doubts;
} catch (const Failure&) {
    return {}; // the findings name the reason
}

Json::Value toJson(const std::vector<MaterialDoubt>& doubts)
{
    Json::Value list(Json::arrayValue);
    for (const MaterialDoubt& one : doubts) {
        Json::Value json;
        json["number"] = one.number;
        json["material"] = one.label;
        json["id"] = one.id;
        json["quantity"] = vxMat::findPropertyRecord(one.id)->name;
        json["value"] = one.value ? toJsonNumber(*one.value) : Json::Value();
        json["unit"] = one.unit;
        json["message"] = one.message;
        json["impossible"] = one.isImpossible;
        json["remedy"] = one.remedy ? Json::Value(*one.remedy) : Json::Value();
        list.append(std::move(json));
    }
    return list;
}

vxCAE::CheckReport check(const Input& input, const std::optional<std::string>& materialsPath)
{
    if (input.project)
        return checkProject(input);
    Json::Value materials;
    if (materialsPath)
        materials = readMaterialDocument(*materialsPath);

    vxCAE::CheckReport report = vxCAE::checkDocument(toDocument(input), materialsPath ? &materials : nullptr);
    const auto repeated = findRepeatedMembers(input);
    report.findings.insert(report.findings.begin(), repeated.begin(), repeated.end());
    return report;
}

/// Adds the number of messages of a kind that are not listed.
void addOmitted(Answer& answer, const std::string& path, const char* kind, std::size_t count)
{
    if (count > 0)
        answer.messages.push_back(path + ": note: further " + kind + " are not listed: " + std::to_string(count));
}

} // namespace

Answer checkFile(const std::string& path, const std::optional<std::string>& materialsPath, Strictness strictness,
                 Form form, const ChosenUnits& units)
{
    Input input = readInput(path);
    const vxCAE::CheckReport report = check(input, materialsPath);
    const MaterialDoubts doubts = findDoubts(std::move(input), units);
    const bool isClean = report.findings.empty() && (doubts.list.empty() || strictness == Strictness::Errors);
    Answer answer;
    answer.status = isClean ? Status::Clean : Status::Findings;
    if (form == Form::Json) {
        Json::Value document;
        document["file"] = path;
        document["units"] = doubts.system;
        document["findings"] = toJson(report.findings);
        document["notes"] = toJson(report.notes);
        document["doubts"] = toJson(doubts.list);
        document["omitted"]["findings"] = Json::UInt64(report.omittedFindings);
        document["omitted"]["notes"] = Json::UInt64(report.omittedNotes);
        document["omitted"]["doubts"] = Json::UInt64(doubts.omitted);
        answer.text = toJsonText(document);
        return answer;
    }
    for (const vxCAE::Finding& finding : report.findings)
        answer.text += path + ": " + printable(finding.path) + ": " + printable(finding.message) + "\n";
    for (const MaterialDoubt& one : doubts.list) {
        answer.text += path + ": doubt: " + std::to_string(one.number) + " " + printable(one.label) + ": " +
                       printable(one.text) + "\n";
    }
    for (const vxCAE::Finding& note : report.notes)
        answer.messages.push_back(path + ": note: " + note.path + ": " + note.message);
    addOmitted(answer, path, "errors", report.omittedFindings);
    addOmitted(answer, path, "doubts", doubts.omitted);
    addOmitted(answer, path, "notes", report.omittedNotes);
    return answer;
}

} // namespace commandline
