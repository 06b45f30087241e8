#include "ProjectFindings.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyRules.h"

#include <cmath>
#include <string>
#include <unordered_map>

namespace commandline {

namespace {

using vxMat::MaterialProperty;

/// Checks one project, in the order of the file.
class ProjectCheck
{
public:
    explicit ProjectCheck(const projectfile::ProjectRecord& project)
    {
        bool hasOthers = false;
        for (const projectfile::ObjectRecord& object : project.objects) {
            m_materials[object.objectId] = object.material;
            hasOthers = hasOthers || object.material == nullptr;
        }
        if (hasOthers)
            note("$.objects", "are objects of other classes, which are not checked");
        for (const std::string& doubt : project.doubts)
            find("$", doubt);
    }

    void checkMaterials(const vxjson::JsonNode& materials);

    vxCAE::CheckReport report;

private:
    void find(const std::string& path, const std::string& message) { report.findings.push_back({path, message}); }
    void note(const std::string& path, const std::string& message) { report.notes.push_back({path, message}); }
    void checkMaterial(const vxMat::MaterialBase& material, const vxjson::JsonNode& properties,
                       const std::string& path);
    void checkProperty(std::int32_t heldAs, const MaterialProperty& property, const std::string& path);
    void checkNumbers(const MaterialProperty& property, const std::string& path);
    void checkRules(std::int32_t id, const MaterialProperty& property, const std::string& path);

    std::unordered_map<std::uint32_t, const vxMat::MaterialBase*> m_materials; ///< null for other objects
};

/// Returns the number under which a material holds a property of the file.
std::int32_t numberUnder(const vxjson::JsonNode& property)
{
    const vxjson::JsonNode heldAs = property["held_as"];
    return static_cast<std::int32_t>((heldAs.isNull() ? property["id"] : heldAs).whole().value_or(0));
}

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

/// Checks a property by the rules for the quantity `id`.
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
    else if (quantity->kind == vxMat::ValueKind::NumberList && property.values.empty())
        find(path + ".values", "is empty; \"" + std::string(quantity->name) + "\" is a list of numbers");
}

void ProjectCheck::checkProperty(std::int32_t heldAs, const MaterialProperty& property, const std::string& path)
{
    checkNumbers(property, path);
    checkRules(property.id, property, path);
    if (heldAs == property.id)
        return;
    // The solver uses the quantity under which the property is held.
    checkRules(heldAs, property, path);
    const auto nameOf = [](std::int32_t id) {
        const vxMat::PropertyRecord* const quantity = vxMat::findPropertyRecord(id);
        return std::to_string(id) + (quantity != nullptr ? " \"" + std::string(quantity->name) + "\"" : "");
    };
    note(path, "is property " + nameOf(property.id) + " but held as " + nameOf(heldAs));
}

void ProjectCheck::checkMaterial(const vxMat::MaterialBase& material, const vxjson::JsonNode& properties,
                                 const std::string& path)
{
    vxMat::CombinationCheck combination;
    for (std::size_t i = 0; i < properties.size(); ++i) {
        const std::int32_t heldAs = numberUnder(properties.element(i));
        checkProperty(heldAs, *material.findProperty(heldAs), path + "[" + std::to_string(i) + "]");
        combination.note(heldAs);
    }
    if (const char* const fault = combination.result())
        find(path, fault);
    if (const auto curve = vxMat::findUnequalCurve(material))
        find(path, "has " + std::to_string(curve->yieldStresses) + " yield stresses and " +
                       std::to_string(curve->plasticStrains) +
                       " plastic strains; both lists must have the same length");
}

void ProjectCheck::checkMaterials(const vxjson::JsonNode& materials)
{
    for (std::size_t i = 0; i < materials.size(); ++i) {
        const vxjson::JsonNode object = materials.element(i);
        const std::string path = "$.materials[" + std::to_string(i) + "].material";
        const vxjson::JsonNode properties = object["material"]["properties"];
        const auto number = static_cast<std::uint32_t>(*object["object_id"].whole());
        checkMaterial(*m_materials.at(number), properties, path + ".properties");
        if (properties.size() == 0)
            note(path, "has no properties");
    }
}

} // namespace

vxCAE::CheckReport checkProject(const Input& input)
{
    // The materials of the record are sorted by number; the tree has them in the order of the file.
    ProjectCheck check(*input.project);
    check.checkMaterials(input.tree.root()["materials"]);
    return std::move(check.report);
}

} // namespace commandline
