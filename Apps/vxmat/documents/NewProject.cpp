#include "documents/NewProject.h"

#include "documents/MaterialNames.h"
#include "program/Arguments.h"
#include "vxMaterial/json/Utf8.h"

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

} // namespace

void writeNewProject(const std::string& path, std::vector<projectfile::ImportedMaterial> materials, Existing existing,
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
    writeNewProject(path, std::move(made.materials), existing, answer);
    return answer;
}

} // namespace commandline
