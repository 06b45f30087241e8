#include "documents/Documents.h"

#include "program/Answer.h"
#include "program/Files.h"
#include "vxDecks/DeckReading.h"

#include <algorithm>
#include <array>
#include <utility>

namespace commandline {

namespace {

/// Returns whether an object belongs to another program: it has members, but no member of an exchange document.
bool isForeign(const vxjson::JsonNode& document)
{
    static constexpr std::array<std::string_view, 10> members{
        "proj_type", "material",          "system",           "solve",           "mesh",
        "result",    "boundarycondition", "initialcondition", "domaincondition", "connections"};
    for (std::size_t i = 0; i < document.size(); ++i) {
        if (std::find(members.begin(), members.end(), document.memberName(i)) != members.end())
            return false;
    }
    return document.size() > 0;
}

/// Returns a value without the content of arrays and objects below `levels` levels.
// NOLINTNEXTLINE(misc-no-recursion): as deep as `levels`
Json::Value toJson(const vxjson::JsonNode& node, int levels)
{
    if (!node.isArray() && !node.isObject())
        return node.toJsonValue();
    Json::Value json(node.isArray() ? Json::arrayValue : Json::objectValue);
    const std::size_t size = levels > 0 ? node.size() : 0;
    for (std::size_t i = 0; i < size; ++i) {
        if (node.isArray()) {
            json.append(toJson(node.element(i), levels - 1));
            continue;
        }
        const std::string_view name = node.memberName(i);
        *json.demand(name.data(), name.data() + name.size()) = toJson(node.member(i), levels - 1);
    }
    return json;
}

void requireMaterials(const std::string& path, const Json::Value& document)
{
    const Json::Value& materials = document["material"];
    if (vxCAE::readProjectKind(document) == vxCAE::ProjectKind::Analysis && materials.isNull())
        throw Failure(path + ": an analysis document holds no materials; give the material document");
    if (!materials.isNull() && !materials.isArray())
        throw Failure(path + ": \"material\" is not an array; 'vxmat check' reports all errors");
}

MaterialFile readFromDocument(const Input& input)
{
    const Json::Value document = toDocument(input);
    requireMaterials(input.path, document);
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    readInto(set, input.path, document);
    MaterialFile file;
    file.path = input.path;
    for (auto& [number, entry] : set.materials->entries) {
        entry->classifyKind();
        FileMaterial& material = file.materials.emplace_back();
        material.number = number;
        material.label = entry->material->name;
        material.entry = std::move(entry);
    }
    return file;
}

FileMaterial readFromObject(projectfile::ObjectRecord object)
{
    FileMaterial material;
    material.number = object.objectId;
    material.label = object.label;
    material.entry = std::make_unique<vxCAE::MaterialEntry>();
    material.entry->material->swap(*object.ownMaterial);
    // The name of a material outside its project is the label of its object.
    material.entry->material->name = material.label;
    material.entry->classifyKind();
    material.object = std::move(object);
    return material;
}

MaterialFile readFromProject(Input input)
{
    MaterialFile file;
    file.path = input.path;
    file.source = vxCAE::MaterialSource::Complete;
    if (const auto setting = input.project->settings.find(projectfile::unitSystemSetting);
        setting != input.project->settings.end())
        file.unitSystem = setting->second;
    for (const std::string& doubt : input.project->doubts)
        file.doubts.push_back(input.path + ": " + doubt);
    for (projectfile::ObjectRecord& object : input.project->objects) {
        if (object.material != nullptr)
            file.materials.push_back(readFromObject(std::move(object)));
        else
            file.others.push_back(std::move(object));
    }
    return file;
}

projectfile::ProjectRecord readProject(const Input& input)
{
    try {
        return projectfile::readProject(input.text);
    } catch (const projectfile::ContentError& error) {
        throw Failure(input.path + ": " + error.what());
    }
}

/// Refuses a deck, of which the reader of JSON would only say that its first character is wrong.
void requireNoDeck(const std::string& path, const std::string& text)
{
    const auto format = deckFormatOf(text);
    if (!format)
        return;
    const std::string title = vxDecks::infoOf(*format).title;
    throw Failure(path + ": this is a deck of " + title +
                  (vxDecks::canRead(*format) ? "; 'vxmat import' makes a project of it"
                                             : ", which can be written, but not read"));
}

} // namespace

Input readInput(const std::string& path)
{
    std::string text = readFile(path);
    requireNoDeck(path, text);
    return parseInput(path, std::move(text));
}

Input parseInput(const std::string& path, std::string text)
{
    vxjson::JsonTree tree = parseDocument(path, text);
    Input input{path, std::move(text), std::move(tree), std::nullopt};
    if (projectfile::isProject(input.tree.root()))
        input.project = readProject(input);
    else if (isForeign(input.tree.root()))
        throw Failure(path + ": neither an exchange document nor a project file: it has no member of either format");
    return input;
}

Json::Value toDocument(const Input& document)
{
    // Readers look at five levels: $.domaincondition.DCs[0].bforce[0].
    constexpr int mostLevels = 8;
    return toJson(document.tree.root(), mostLevels);
}

std::vector<vxCAE::Finding> findRepeatedMembers(const Input& input)
{
    std::vector<vxCAE::Finding> findings;
    for (const std::string& path : input.tree.repeatedMembers())
        findings.push_back({path, "occurs more than once; readers use the last one"});
    return findings;
}

void readInto(vxCAE::CAESet& set, const std::string& path, const Json::Value& document)
{
    try {
        set.readJson(document);
    } catch (const Json::Exception& error) {
        throw Failure(path + ": " + error.what() + " 'vxmat check' reports the place.");
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
    Json::Value document;
    if (!input.project) {
        document = toDocument(input);
        requireMaterials(path, document);
        return document;
    }
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    for (FileMaterial& material : readMaterials(std::move(input)).materials)
        set.materials->addMaterial(material.number, std::move(material.entry));
    set.writeJson(document);
    return document;
}

} // namespace commandline
