#include "NewProject.h"

#include "Arguments.h"
#include "ChosenUnits.h"
#include "Documents.h"
#include "Files.h"
#include "MaterialNames.h"

#include "projectfile/ExchangeImport.h"
#include "vxMaterial/json/Utf8.h"
#include "vxUnits/SystemFit.h"

#include <QFileInfo>

#include <memory>
#include <set>
#include <utility>

namespace commandline {

namespace {

void requireLabel(const std::string& argument, const std::string& label)
{
    if (label.empty())
        throw Failure(argument + ": the label must not be empty");
    if (vxjson::lengthOfUtf8(label) != label.size())
        throw Failure(argument + ": the label is not UTF-8");
}

/// The materials of a new project, with the numbers 1, 2, ...
class NewMaterials
{
public:
    /// \throws Failure about the argument if the label is invalid or repeated
    void add(const std::string& argument, const std::string& label, std::unique_ptr<vxMat::CMaterial> material)
    {
        requireLabel(argument, label);
        if (!m_labels.insert(label).second)
            throw Failure(argument + ": another material has the label \"" + label +
                          "\" already; NAME=LABEL gives it another");
        projectfile::ImportedMaterial& object = materials.emplace_back();
        object.objectId = static_cast<std::uint32_t>(materials.size());
        object.label = label;
        object.material = std::move(material);
    }

    std::vector<projectfile::ImportedMaterial> materials;

private:
    std::set<std::string> m_labels;
};

/// Returns the name of a project: the name of its file, or "Materials", as in the host, if there is no file name.
std::string projectNameOf(const std::string& path)
{
    if (path == standardStream)
        return "Materials";
    const std::string name = QFileInfo(QString::fromStdString(path)).completeBaseName().toStdString();
    return name.empty() ? "Materials" : name;
}

void write(const std::string& path, std::vector<projectfile::ImportedMaterial> materials, Existing existing,
           Answer& answer)
{
    const auto project = projectfile::makeProject(projectNameOf(path), std::move(materials));
    std::string text;
    try {
        text = projectfile::writeProject(project);
    } catch (const projectfile::ContentError& error) {
        throw Failure(path + ": " + error.what());
    }
    if (path == standardStream)
        answer.text = text;
    else
        writeProjectFile(path, text, existing);
}

using ImportedMaterials = std::vector<projectfile::ImportedMaterial>;

std::string noteOnSystem(const std::string& subject, const std::string& fitting, const vxUnits::UnitSystem& assumed)
{
    return "note: " + subject + ": the numbers look like " + fitting + ", not " + assumed.text() +
           "; --units gives the unit system of the document";
}

std::string titleOf(const projectfile::ImportedMaterial& imported, const std::string& document)
{
    return document + ": " + std::to_string(imported.objectId) + " " + imported.label;
}

/// Returns notes about numbers that look like another system than the assumed one: one note if this system explains most
/// doubts about all materials, otherwise one for each such material.
std::vector<std::string> findOtherSystems(const ImportedMaterials& materials, const vxUnits::UnitSystem& assumed,
                                          const std::string& document)
{
    std::vector<const vxMat::MaterialBase*> all;
    for (const projectfile::ImportedMaterial& imported : materials)
        all.push_back(imported.material.get());
    if (const std::string fitting = vxUnits::betterFittingSystem(all, assumed); !fitting.empty())
        return {noteOnSystem(document, fitting, assumed)};
    std::vector<std::string> notes;
    for (const projectfile::ImportedMaterial& imported : materials) {
        const std::string fitting = vxUnits::betterFittingSystem({imported.material.get()}, assumed);
        if (!fitting.empty())
            notes.push_back(noteOnSystem(titleOf(imported, document), fitting, assumed));
    }
    return notes;
}

/// Converts materials from the given units. Returns notes about numbers that stay unchanged.
std::vector<std::string> convert(ImportedMaterials& materials, const ChosenUnits& units, const std::string& document)
{
    std::vector<std::string> notes;
    for (projectfile::ImportedMaterial& imported : materials)
        if (const std::string note = units.revert(*imported.material); !note.empty())
            notes.push_back("note: " + titleOf(imported, document) + ": " + note);
    return notes;
}

/// Returns the text of a document. The tree of its values, which takes more memory than the text, is not kept.
std::string readText(const std::string& document)
{
    Input input = readInput(document);
    if (input.project)
        throw Failure(document + ": it is a project file, which needs no import");
    return std::move(input.text);
}

} // namespace

Answer newProject(const std::vector<std::string>& materials, const std::vector<std::string>& emptyMaterials,
                  const std::string& path, Existing existing)
{
    if (materials.empty() && emptyMaterials.empty())
        throw Failure("the project needs a material: give the name of a library material, or --empty NAME");
    const MaterialNames names;
    NewMaterials made;
    for (const std::string& argument : materials) {
        // A label may have an equals sign, a library name has none.
        const NameAndValue wanted = splitAt(argument, argument.find('='));
        auto material = std::make_unique<vxMat::CMaterial>();
        material->copyFrom(names.get(wanted.name));
        const std::string label = wanted.value.value_or(material->name);
        made.add(argument, label, std::move(material));
    }
    for (const std::string& label : emptyMaterials)
        made.add(label, label, std::make_unique<vxMat::CMaterial>(label.c_str()));
    Answer answer;
    write(path, std::move(made.materials), existing, answer);
    return answer;
}

Answer importDocument(const std::string& document, const std::string& path, Existing existing, const ChosenUnits& units)
{
    const std::string text = readText(document);
    requireAnotherFile(document, path);
    Answer answer;
    std::vector<std::string> notes;
    try {
        projectfile::ImportedMaterials imported = projectfile::importExchange(text);
        for (const std::string& doubt : imported.doubts)
            answer.messages.push_back(std::string(document).append(": ").append(doubt));
        notes = findOtherSystems(imported.materials, units.system(), document);
        for (std::string& note : convert(imported.materials, units, document))
            notes.push_back(std::move(note));
        write(path, std::move(imported.materials), existing, answer);
    } catch (const projectfile::ContentError& error) {
        throw Failure(document + ": " + error.what());
    }
    answer.status = answer.messages.empty() ? Status::Clean : Status::Findings;
    answer.add(notes);
    return answer;
}

} // namespace commandline
