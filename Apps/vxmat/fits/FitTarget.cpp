#include "fits/FitTarget.h"

#include "projectfile/ProjectFile.h"
#include "units/ShownUnits.h"
#include "vxConstitutive/fit/EstimateText.h"
#include "vxMaterial/json/Utf8.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Plausibility.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace commandline {

namespace {

using projectfile::ObjectRecord;
using projectfile::ProjectRecord;

/// Returns the material with a label; null if there is none.
ObjectRecord* findMaterial(const FitTarget& target, ProjectRecord& project)
{
    ObjectRecord* found = nullptr;
    for (ObjectRecord& object : project.objects) {
        if (object.material == nullptr || object.label != target.label)
            continue;
        if (found != nullptr)
            throw Failure(target.project + ": several materials have the label \"" + target.label +
                          "\"; give one of them another label");
        found = &object;
    }
    return found;
}

/// Returns the first internal name of a new material that no object has.
std::string freeInternalName(const ProjectRecord& project)
{
    std::set<std::string> names;
    for (const ObjectRecord& object : project.objects)
        names.insert(object.internalName);
    const std::string base = "Material";
    std::string name = base;
    for (std::size_t number = 1; names.count(name) > 0; ++number)
        name = base + std::to_string(number);
    return name;
}

/// Adds the record of an object to the database of the host, if the project has one.
void addToDatabase(const ObjectRecord& object, ProjectRecord& project)
{
    if (!project.database.isObject())
        return;
    Json::Value record;
    record["obj_id"] = object.objectId;
    record["class"] = object.className;
    record["name_internal"] = object.internalName;
    record["label"] = object.label;
    project.database["objects"]["object"].append(std::move(record));
}

ObjectRecord& addMaterial(const FitTarget& target, ProjectRecord& project)
{
    if (project.className != projectfile::materialProjectClass)
        throw Failure(target.project +
                      ": materials can only be added to a material project; this is a project of the "
                      "class " +
                      project.className);
    if (project.nextObjectId > std::numeric_limits<std::uint32_t>::max())
        throw Failure(target.project + ": the project has no number left for another material");
    ObjectRecord object;
    object.objectId = static_cast<std::uint32_t>(project.nextObjectId++);
    object.className = projectfile::materialClass;
    object.internalName = freeInternalName(project);
    object.label = target.label;
    object.ownMaterial = std::make_unique<vxMat::CMaterial>(target.label.c_str());
    object.material = object.ownMaterial.get();
    addToDatabase(object, project);
    return project.objects.emplace_back(std::move(object));
}

ObjectRecord& findOrAdd(const FitTarget& target, ProjectRecord& project)
{
    if (target.label.empty() || vxjson::lengthOfUtf8(target.label) != target.label.size())
        throw Failure("--as: a label that is UTF-8 and not empty is needed");
    ObjectRecord* const object = findMaterial(target, project);
    return object != nullptr ? *object : addMaterial(target, project);
}

void setValue(const vxConstitutive::PropertyValue& value, vxMat::MaterialBase& material)
{
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(value.propertyId);
    auto property = record->create();
    if (record->kind == vxMat::ValueKind::Word)
        property->text = value.text;
    else if (record->kind == vxMat::ValueKind::NumberList)
        property->values = value.values;
    else if (record->kind != vxMat::ValueKind::ModelSwitch)
        property->value = value.value;
    material.setProperty(value.propertyId, std::move(property));
}

void applyChange(const vxConstitutive::MaterialChange& change, vxMat::MaterialBase& material)
{
    for (const std::int32_t propertyId : change.remove)
        material.removeProperty(material.findProperty(propertyId));
    for (const vxConstitutive::PropertyValue& value : change.set)
        setValue(value, material);
}

vxConstitutive::Measurements readMeasurements(const FitTarget& target, const ObjectRecord& object)
{
    const auto setting = object.settings.find(vxConstitutive::measurementsSetting);
    if (setting == object.settings.end())
        return {};
    try {
        return vxConstitutive::readMeasurements(setting->second);
    } catch (const vxConstitutive::MeasurementsError& error) {
        throw Failure(target.project + ": the measurements of " + object.label + " cannot be read: " + error.what());
    }
}

/// Keeps the tests and the record of a fit beside the material.
void keepMeasurements(const FitTarget& target, const KeptFit& fit, ObjectRecord& object)
{
    vxConstitutive::Measurements kept = readMeasurements(target, object);
    kept.addFit(*fit.tests, fit.record);
    try {
        object.settings[vxConstitutive::measurementsSetting] = writeMeasurements(kept);
    } catch (const vxConstitutive::MeasurementsError& error) {
        throw Failure(target.project + ": the tests cannot be kept: " + error.what());
    }
}

/// Returns what a material without D1 gets.
std::string outcomeWithoutD1(vxConstitutive::D1Treatment treatment, double bulkRatio)
{
    if (treatment == vxConstitutive::D1Treatment::Set)
        return "D1 is set such that the bulk modulus is " + vxMat::formatNumber(bulkRatio) +
               " times the shear modulus; --d1 RATIO sets another one, and --d1 remove leaves the material "
               "incompressible";
    return "It stays without D1, and the check then reports that D1 is missing; --d1 RATIO sets it";
}

/// Returns what happens to the D1 of a material.
std::string outcomeOf(vxConstitutive::D1Treatment treatment, double bulkRatio)
{
    if (treatment == vxConstitutive::D1Treatment::Keep)
        return "D1 is kept; --d1 remove or --d1 RATIO changes it";
    if (treatment == vxConstitutive::D1Treatment::Remove)
        return "D1 is removed, and the check then reports that it is missing; --d1 keep keeps it, and --d1 RATIO sets "
               "it";
    return "D1 is set such that the bulk modulus is " + vxMat::formatNumber(bulkRatio) +
           " times the shear modulus; --d1 keep, --d1 remove or --d1 RATIO changes this";
}

/// Returns the change of a material to a fit and to the D1 of the setting. Adds a message about D1.
vxConstitutive::MaterialChange changeOf(const KeptFit& fit, const vxMat::MaterialBase& material,
                                        const std::string& label, Answer& answer)
{
    const auto volume = fittedVolume(*fit.result, material);
    if (!volume) {
        if (fit.d1.treatment)
            answer.messages.emplace_back("--d1 has no effect: the fit determines D1 itself, or its model has none");
        return fit.result->change;
    }
    const vxConstitutive::D1Treatment treatment = fit.d1.treatment.value_or(volume->usualTreatment());
    answer.messages.push_back(label + ": " +
                              (volume->finding
                                   ? describe(*volume->finding) + " " + outcomeOf(treatment, fit.d1.bulkRatio)
                                   : "The fit is incompressible, and the material has no D1. " +
                                         outcomeWithoutD1(treatment, fit.d1.bulkRatio)));
    return changeOf(*fit.result, *volume, treatment, fit.d1.bulkRatio);
}

/// Adds a message if Young's modulus of a fit replaces another one of the material.
void noteModulus(const KeptFit& fit, const vxMat::MaterialBase& material, const std::string& label, Answer& answer)
{
    const vxMat::MaterialProperty* const kept = material.findProperty(vxMat::PropertyId::YoungsModulus);
    if (!fit.result->youngsModulus || kept == nullptr || !(kept->value > 0.0))
        return;
    constexpr double percent = 100.0;
    constexpr double close = 1e-6;
    const double fitted = *fit.result->youngsModulus;
    const double difference = fitted / kept->value - 1.0;
    if (!(std::fabs(difference) > close))
        return;
    const vxConstitutive::FittedConstant* const measured = fit.result->find(vxMat::PropertyId::YoungsModulus);
    const ShownUnit unit = showIn(*fit.system, "Pa");
    std::optional<double> error;
    if (measured != nullptr && measured->standardError)
        error = unit.convert(*measured->standardError);
    answer.messages.push_back(
        label + ": Young's modulus becomes " + vxConstitutive::estimateText(unit.convert(fitted), error) + " " +
        unit.text + ", with which the elastic part was taken off; that of the material was " +
        vxMat::formatGeneral(unit.convert(kept->value)) + " " + unit.text + " (" +
        vxConstitutive::roundedText(percent * difference, vxConstitutive::errorDigits) +
        " %). --youngs-modulus material takes the elastic part off with that of the material, and keeps it");
}

void addDoubts(const vxConstitutive::MaterialChange& change, const vxMat::MaterialBase& material, Answer& answer)
{
    for (const vxUnits::Doubt& doubt : vxUnits::checkPlausibility(material)) {
        if (std::any_of(change.set.begin(), change.set.end(),
                        [&](const vxConstitutive::PropertyValue& value) { return value.propertyId == doubt.id; }))
            answer.messages.push_back("doubt: " + doubt.text());
    }
}

ProjectRecord readProject(const FitTarget& target, const std::string& text)
{
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    if (start == std::string::npos || text[start] != '{')
        throw Failure(target.project + ": is not a project file; --into needs one, such as those of \"vxmat new\"");
    try {
        return projectfile::readProject(text);
    } catch (const projectfile::ContentError& error) {
        throw Failure(target.project + ": " + error.what());
    }
}

} // namespace

void requireTarget(const FitTarget& target)
{
    ProjectRecord project = readProject(target, readFile(target.project));
    readMeasurements(target, findOrAdd(target, project));
}

double youngsModulusOf(const FitTarget& target)
{
    ProjectRecord project = readProject(target, readFile(target.project));
    const ObjectRecord* const object = findMaterial(target, project);
    const vxMat::MaterialProperty* const modulus =
        object != nullptr ? object->material->findProperty(vxMat::PropertyId::YoungsModulus) : nullptr;
    if (modulus == nullptr || !(modulus->value > 0.0))
        throw Failure("--youngs-modulus material: " + target.project + " has no material \"" + target.label +
                      "\" with a Young's modulus");
    return modulus->value;
}

void writeFit(const FitTarget& target, const KeptFit& fit, Existing existing, Answer& answer)
{
    const auto changed = [&](const std::string& text) {
        ProjectRecord project = readProject(target, text);
        for (const std::string& doubt : project.doubts)
            answer.messages.push_back(target.project + ": " + doubt);
        ObjectRecord& object = findOrAdd(target, project);
        const vxConstitutive::MaterialChange change = changeOf(fit, *object.ownMaterial, target.label, answer);
        noteModulus(fit, *object.ownMaterial, target.label, answer);
        applyChange(change, *object.ownMaterial);
        keepMeasurements(target, fit, object);
        addDoubts(change, *object.ownMaterial, answer);
        try {
            return projectfile::writeProject(project);
        } catch (const projectfile::ContentError& error) {
            throw Failure(target.project + ": " + error.what());
        }
    };
    changeProjectFile(target.project, changed, existing);
}

} // namespace commandline
