#include "materials/SetQuantity.h"

#include "program/Suggestions.h"
#include "projectfile/ProjectFile.h"
#include "units/ChosenUnits.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyRules.h"
#include "vxUnits/Filter.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Reading.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace commandline {

namespace {

using projectfile::ObjectRecord;
using projectfile::ProjectRecord;
using vxMat::equalIgnoringAsciiCase;
using vxMat::MaterialProperty;
using vxMat::PropertyRecord;
using vxMat::ValueKind;

/// Returns the letters and digits of a name in upper case: "YOUNGSMODULUS" for "Young's modulus".
std::string lettersOf(std::string_view name)
{
    std::string letters = vxMat::toUpperAscii(name);
    letters.erase(std::remove_if(letters.begin(), letters.end(),
                                 [](char c) { return (c < 'A' || c > 'Z') && (c < '0' || c > '9'); }),
                  letters.end());
    return letters;
}

/// Returns a question for the quantities whose names contain the letters of a text, or are near to it; empty if there are
/// none, or too many.
std::string suggest(const std::string& text)
{
    constexpr std::size_t mostSuggestions = 6;
    const std::string letters = lettersOf(text);
    std::vector<std::string> names;
    for (const PropertyRecord& record : vxMat::propertyRecords()) {
        if (!letters.empty() && lettersOf(record.name).find(letters) != std::string::npos)
            names.emplace_back(record.name);
    }
    if (names.size() > mostSuggestions)
        return {};
    return didYouMean(names.empty() ? vxUnits::nearestQuantityNames(text) : names);
}

const PropertyRecord& findQuantity(const std::string& name)
{
    if (const auto found = vxUnits::findQuantityNamed(name)) {
        if (found->derived == nullptr)
            return *vxMat::findPropertyRecord(found->id);
        throw Failure("\"" + excerpt(name) + "\" is derived and cannot be set: " + found->name() + " = " +
                      found->derived->formula);
    }
    const std::string question = suggest(name);
    throw Failure("no quantity is called \"" + excerpt(name) +
                  (question.empty() ? R"("; "vxmat catalogue" lists them)" : "\"; " + question));
}

[[noreturn]] void refuseMaterial(const Setting& setting, const ProjectRecord& project)
{
    std::vector<std::string> labels;
    for (const ObjectRecord& object : project.objects)
        if (object.material != nullptr)
            labels.push_back(object.label);
    const std::string question = didYouMean(nearestNames(setting.material, labels));
    throw Failure(setting.project + ": no material has the label or number \"" + excerpt(setting.material) + "\"" +
                  (question.empty() ? question : "; " + question));
}

/// Finds a material by its label, otherwise by its number.
ObjectRecord& findMaterial(const Setting& setting, ProjectRecord& project)
{
    std::vector<ObjectRecord*> found;
    for (ObjectRecord& object : project.objects) {
        if (object.material != nullptr && object.label == setting.material)
            found.push_back(&object);
    }
    for (ObjectRecord& object : project.objects) {
        if (found.empty() && object.material != nullptr && std::to_string(object.objectId) == setting.material)
            found.push_back(&object);
    }
    if (found.empty())
        refuseMaterial(setting, project);
    if (found.size() > 1)
        throw Failure(setting.project + ": several materials have the label \"" + excerpt(setting.material) +
                      "\"; give the number");
    return *found.front();
}

[[noreturn]] void refuse(const PropertyRecord& quantity, const std::string& reason)
{
    throw Failure(std::string(quantity.name) + ": " + reason);
}

void requireRule(const PropertyRecord& quantity, const char* fault)
{
    if (fault == nullptr)
        return;
    const std::string reason(vxMat::withoutRowNumber(fault));
    // The reasons of some rules begin with the name.
    if (reason.rfind(quantity.name, 0) == 0)
        throw Failure(reason);
    refuse(quantity, reason);
}

/// A property with the value that was read, and how it was read.
struct ReadValue
{
    std::unique_ptr<MaterialProperty> property;
    std::string understood;
    vxUnits::Message note;
};

ReadValue readSwitch(const PropertyRecord& quantity, const std::string& value)
{
    if (!equalIgnoringAsciiCase(value, "on") && value != "1")
        refuse(quantity, "\"" + excerpt(value) + R"(" is not a value of a switch; give "on")");
    return {quantity.create(), "on", {}};
}

ReadValue readWord(const PropertyRecord& quantity, const std::string& value)
{
    requireRule(quantity, vxMat::checkWord(quantity.id, value));
    ReadValue read{quantity.create(), value, {}};
    for (const std::string& word : vxMat::getAllowedWords(quantity.id)) {
        if (equalIgnoringAsciiCase(word, value))
            read.understood = word;
    }
    read.property->text = read.understood;
    return read;
}

ReadValue readList(const PropertyRecord& quantity, const std::string& value)
{
    const auto reading = vxUnits::readQuantityList(quantity.id, value);
    if (!reading)
        refuse(quantity, reading.failure().text());
    ReadValue read{quantity.create(), reading->understood, reading->note};
    read.property->values = reading->values;
    return read;
}

ReadValue readNumber(const PropertyRecord& quantity, const std::string& value, const vxMat::MaterialBase& material)
{
    const vxUnits::ReadingContext context{nullptr, vxUnits::creepExponents(material)};
    const auto reading = vxUnits::readQuantity(quantity.id, value, context);
    if (!reading)
        refuse(quantity, reading.failure().text());
    requireRule(quantity, vxMat::checkNumber(quantity.id, reading->value));
    ReadValue read{quantity.create(), reading->understood, reading->note};
    read.property->value = reading->value;
    return read;
}

ReadValue readValue(const PropertyRecord& quantity, const std::string& value, const vxMat::MaterialBase& material)
{
    switch (quantity.kind) {
    case ValueKind::ModelSwitch:
        return readSwitch(quantity, value);
    case ValueKind::Word:
        return readWord(quantity, value);
    case ValueKind::NumberList:
        return readList(quantity, value);
    default:
        return readNumber(quantity, value, material);
    }
}

void addDoubts(const PropertyRecord& quantity, const vxMat::MaterialBase& material, Answer& answer)
{
    for (const vxUnits::Doubt& doubt : vxUnits::checkPlausibility(material)) {
        if (doubt.id == quantity.id)
            answer.messages.push_back("doubt: " + doubt.text());
    }
}

/// Sets the quantity of a material, and adds to the answer how the value was read.
void setValue(const Setting& setting, ProjectRecord& project, Answer& answer)
{
    const PropertyRecord& quantity = findQuantity(setting.quantity);
    ObjectRecord& object = findMaterial(setting, project);
    vxMat::MaterialBase& material = *object.ownMaterial;
    ReadValue read = readValue(quantity, *setting.value, material);
    material.setProperty(quantity.id, std::move(read.property));
    answer.text += printable(object.label) + ": " + quantity.name + ": " + printable(read.understood) + "\n";
    if (*read.note.id != '\0')
        answer.messages.push_back("note: " + read.note.text());
    addDoubts(quantity, material, answer);
}

/// Records the unit system in which the project is shown, or removes it if the text is empty.
void setUnits(const std::string& system, ProjectRecord& project, Answer& answer)
{
    if (system.empty()) {
        project.settings.erase(projectfile::unitSystemSetting);
        answer.text += "unit system: none\n";
        return;
    }
    const std::string text = readSystem("--project-units", system).text();
    project.settings[projectfile::unitSystemSetting] = text;
    answer.text += "unit system: " + printable(text) + "\n";
}

bool hasMaterial(const Setting& setting)
{
    const bool isComplete = !setting.material.empty() && !setting.quantity.empty() && setting.value;
    const bool isAbsent = setting.material.empty() && setting.quantity.empty() && !setting.value;
    if (!isComplete && (!isAbsent || !setting.projectUnits))
        throw Failure("give a material, a quantity and a value, or --project-units");
    return isComplete;
}

} // namespace

Answer setQuantity(const Setting& setting, Existing existing)
{
    const bool givesValue = hasMaterial(setting);
    Answer answer;
    const auto change = [&](const std::string& text) {
        ProjectRecord project = projectfile::readProject(text);
        for (const std::string& doubt : project.doubts)
            answer.messages.push_back(setting.project + ": " + doubt);
        if (givesValue)
            setValue(setting, project, answer);
        if (setting.projectUnits)
            setUnits(*setting.projectUnits, project, answer);
        return projectfile::writeProject(project);
    };
    try {
        changeProjectFile(setting.project, change, existing);
    } catch (const projectfile::ContentError& error) {
        throw Failure(setting.project + ": " + error.what());
    }
    return answer;
}

} // namespace commandline
