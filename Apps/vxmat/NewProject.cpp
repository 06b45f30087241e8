#include "NewProject.h"

#include "Arguments.h"
#include "ChosenUnits.h"
#include "Documents.h"
#include "Files.h"
#include "MaterialNames.h"

#include "projectfile/ExchangeImport.h"
#include "vxMaterial/json/Utf8.h"
#include "vxUnits/Plausibility.h"

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

/// Converts materials from the given units. Returns notes about numbers that stay unchanged, and about materials that seem
/// to be in other units.
std::vector<std::string> convert(std::vector<projectfile::ImportedMaterial>& materials, const ChosenUnits& units,
                                 const std::string& document)
{
    std::vector<std::string> notes;
    for (projectfile::ImportedMaterial& imported : materials) {
        const std::string title =
            "note: " + document + ": " + std::to_string(imported.objectId) + " " + imported.label + ": ";
        if (const std::string note = units.revert(*imported.material); !note.empty())
            notes.push_back(title + note);
        if (const std::string system = vxUnits::fittingSystem(*imported.material); !system.empty())
            notes.push_back(std::string(title)
                                .append("the values look like ")
                                .append(system)
                                .append("; --units gives the unit system of the document"));
    }
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
        notes = convert(imported.materials, units, document);
        write(path, std::move(imported.materials), existing, answer);
    } catch (const projectfile::ContentError& error) {
        throw Failure(document + ": " + error.what());
    }
    answer.status = answer.messages.empty() ? Status::Clean : Status::Findings;
    answer.add(notes);
    return answer;
}

} // namespace commandline
