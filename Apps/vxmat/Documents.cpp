#include "Documents.h"

#include "Answer.h"
#include "Files.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace vxmat {

namespace {

/// Whether an object has nothing that an exchange document has, but has something: it is another program's.
bool isForeign(const Json::Value& document)
{
    static constexpr std::array members{
        "proj_type", "material",          "system",           "solve",           "mesh",
        "result",    "boundarycondition", "initialcondition", "domaincondition", "connections"};
    return !document.empty() &&
           std::none_of(members.begin(), members.end(), [&](const char* member) { return document.isMember(member); });
}

void requireMaterials(const Input& input)
{
    const Json::Value& materials = input.document["material"];
    if (vxCAE::readProjectKind(input.document) == vxCAE::ProjectKind::Analysis && materials.isNull())
        throw Failure(input.path + ": an analysis document holds no materials; give the material document");
    if (!materials.isNull() && !materials.isArray())
        throw Failure(input.path + ": \"material\" is not an array; 'vxmat check' tells more");
}

MaterialFile readFromDocument(const Input& input)
{
    requireMaterials(input);
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    readInto(set, input.path, input.document);
    MaterialFile file;
    file.path = input.path;
    for (auto& [number, entry] : set.materials->entries) {
        entry->classifyKind();
        FileMaterial material;
        material.number = number;
        material.label = entry->material->name;
        material.entry = std::move(entry);
        file.materials.push_back(std::move(material));
    }
    return file;
}

MaterialFile readFromProject(Input input)
{
    projectfile::ProjectRecord& project = *input.project;
    MaterialFile file;
    file.path = input.path;
    file.source = vxCAE::MaterialSource::Complete;
    for (const std::string& doubt : project.doubts)
        file.doubts.push_back(input.path + ": " + doubt);
    // The materials need not stand in the order of their objects.
    std::unordered_map<const vxMat::MaterialBase*, vxMat::MaterialBase*> materials;
    for (const auto& material : project.materials)
        materials.emplace(material.get(), material.get());
    for (projectfile::ObjectRecord& object : project.objects) {
        FileMaterial material;
        material.number = object.objectId;
        material.label = std::move(object.label);
        material.suppressed = object.suppressed;
        material.colour = object.colour;
        material.entry = std::make_unique<vxCAE::MaterialEntry>();
        material.entry->material->properties = std::move(materials.at(object.material)->properties);
        material.entry->material->id = object.material->id;
        // A material leaves its project under the name that the user sees.
        material.entry->material->name = material.label;
        material.entry->classifyKind();
        file.materials.push_back(std::move(material));
    }
    return file;
}

/// Reads the project in a text that may be one. Answers false when the text is something else.
/// \throws Failure when it is one with which something is wrong
bool readAsProject(Input& input)
{
    try {
        input.project = projectfile::readProject(input.text);
        return true;
    } catch (const projectfile::ProjectFileError& error) {
        if (projectfile::isProject(parseDocument(input.path, input.text)))
            throw Failure(input.path + ": " + error.what());
        return false;
    }
}

} // namespace

Input readInput(const std::string& path)
{
    Input input;
    input.path = path;
    input.text = readFile(path);
    // What most probably is a project need not be read as a document first.
    if (input.text.find("\"format\"") != std::string::npos && readAsProject(input))
        return input;
    input.document = parseDocument(path, input.text);
    if (projectfile::isProject(input.document) && readAsProject(input)) {
        input.document = Json::Value();
        return input;
    }
    if (isForeign(input.document))
        throw Failure(path + ": neither an exchange document nor a project file: it has none of their members");
    return input;
}

void readInto(vxCAE::CAESet& set, const std::string& path, const Json::Value& document)
{
    try {
        set.readJson(document);
    } catch (const Json::Exception& error) {
        throw Failure(path + ": " + error.what() + " 'vxmat check' tells where.");
    }
}

MaterialFile readMaterials(Input input)
{
    return input.project ? readFromProject(std::move(input)) : readFromDocument(input);
}

MaterialFile readMaterials(const std::string& path)
{
    return readMaterials(readInput(path));
}

Json::Value readMaterialDocument(const std::string& path)
{
    Input input = readInput(path);
    if (!input.project) {
        requireMaterials(input);
        return std::move(input.document);
    }
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    for (FileMaterial& material : readMaterials(std::move(input)).materials)
        set.materials->addMaterial(material.number, std::move(material.entry));
    Json::Value document;
    set.writeJson(document);
    return document;
}

} // namespace vxmat
