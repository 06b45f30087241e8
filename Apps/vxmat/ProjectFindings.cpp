#include "ProjectFindings.h"

#include "Files.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyRules.h"

#include <cmath>
#include <string>
#include <unordered_map>

namespace vxmat {

namespace {

using vxMat::MaterialProperty;

/// The checks of one project, whose materials are walked as they stand in the file.
class ProjectCheck
{
public:
    explicit ProjectCheck(const projectfile::ProjectRecord& project)
    {
        for (const projectfile::ObjectRecord& object : project.objects)
            m_objects[object.objectId] = object.material;
        for (const std::string& doubt : project.doubts)
            find("$", doubt);
    }

    void checkMaterials(const Json::Value& materials);

    vxCAE::CheckReport report;

private:
    void find(const std::string& path, const std::string& message) { report.findings.push_back({path, message}); }
    void note(const std::string& path, const std::string& message) { report.notes.push_back({path, message}); }
    void checkMaterial(const vxMat::MaterialBase& material, const Json::Value& properties, const std::string& path);
    void checkProperty(std::int32_t key, const MaterialProperty& property, const std::string& path);
    void checkNumbers(const MaterialProperty& property, const std::string& path);
    void checkRules(std::int32_t id, const MaterialProperty& property, const std::string& path);

    std::unordered_map<std::uint32_t, const vxMat::MaterialBase*> m_objects;
};

void ProjectCheck::checkNumbers(const MaterialProperty& property, const std::string& path)
{
    const auto check = [this](double number, const std::string& where) {
        if (!std::isfinite(number))
            find(where, "is " + vxMat::formatNumber(number) + "; a finite number is needed");
    };
    check(property.value, path + ".value");
    for (std::size_t i = 0; i < property.values.size(); ++i)
        check(property.values[i], path + ".values[" + std::to_string(i) + "]");
}

/// By the rules for the quantity `id`.
void ProjectCheck::checkRules(std::int32_t id, const MaterialProperty& property, const std::string& path)
{
    if (const char* const fault = vxMat::checkNumber(id, property.value))
        find(path + ".value",
             "is " + vxMat::formatNumber(property.value) + ": " + std::string(vxMat::withoutRowNumber(fault)));
    if (const char* const fault = vxMat::checkWord(id, property.text))
        find(path + ".text", "is \"" + property.text + "\": " + std::string(vxMat::withoutRowNumber(fault)));
    const vxMat::PropertyRecord* const quantity = vxMat::findPropertyRecord(id);
    if (quantity == nullptr)
        find(path, "is property " + std::to_string(id) + ", which the catalogue does not know");
    else if (quantity->kind == vxMat::eValueKind::NumberList && property.values.empty())
        find(path + ".values", "is empty; \"" + std::string(quantity->name) + "\" is a list of numbers");
}

void ProjectCheck::checkProperty(std::int32_t key, const MaterialProperty& property, const std::string& path)
{
    checkNumbers(property, path);
    checkRules(property.id, property, path);
    if (key == property.id)
        return;
    // The solver takes it for what it is held under.
    checkRules(key, property, path);
    const auto nameOf = [](std::int32_t id) {
        const vxMat::PropertyRecord* const quantity = vxMat::findPropertyRecord(id);
        return std::to_string(id) + (quantity != nullptr ? " \"" + std::string(quantity->name) + "\"" : "");
    };
    note(path, "is property " + nameOf(property.id) + " but held as " + nameOf(key));
}

void ProjectCheck::checkMaterial(const vxMat::MaterialBase& material, const Json::Value& properties,
                                 const std::string& path)
{
    vxMat::CombinationCheck combination;
    for (Json::ArrayIndex i = 0; i < properties.size(); ++i) {
        const Json::Value& json = properties[i];
        const std::int32_t key = (json.isMember("held_as") ? json["held_as"] : json["id"]).asInt();
        checkProperty(key, *material.findProperty(key), path + "[" + std::to_string(i) + "]");
        combination.note(key);
    }
    if (const char* const fault = combination.result())
        find(path, fault);
}

void ProjectCheck::checkMaterials(const Json::Value& materials)
{
    for (Json::ArrayIndex i = 0; i < materials.size(); ++i) {
        const Json::Value& object = materials[i];
        const std::string path = "$.materials[" + std::to_string(i) + "].material";
        const Json::Value& properties = object["material"]["properties"];
        checkMaterial(*m_objects.at(object["object_id"].asUInt()), properties, path + ".properties");
        if (properties.empty())
            note(path, "has no properties");
    }
}

} // namespace

vxCAE::CheckReport checkProject(const Input& input)
{
    // The record has the materials by number; the document tells where each value stands.
    ProjectCheck check(*input.project);
    check.checkMaterials(parseDocument(input.path, input.text)["materials"]);
    return std::move(check.report);
}

} // namespace vxmat
