#include "materials/ProjectFindings.h"

#include "documents/Measured.h"
#include "vxConstitutive/record/Measurements.h"
#include "vxMaterial/model/MaterialCheck.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/UnitSystem.h"

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
        checkUnitSystem(project);
    }

    void checkMaterials(const vxjson::JsonNode& materials);

    vxCAE::CheckReport report;

private:
    void find(const std::string& path, const std::string& message) { report.find(path, message); }
    void note(const std::string& path, const std::string& message) { report.note(path, message); }
    void checkUnitSystem(const projectfile::ProjectRecord& project);
    void checkMeasurements(const vxjson::JsonNode& settings, const std::string& path);
    void checkMaterial(const vxMat::MaterialBase& material, const vxjson::JsonNode& properties,
                       const std::string& path);
    void noteSlot(std::int32_t slot, const MaterialProperty& property, const std::string& path);

    std::unordered_map<std::uint32_t, const vxMat::MaterialBase*> m_materials; ///< null for other objects
};

/// Returns the slot in which a material holds a property of the file.
std::int32_t slotOf(const vxjson::JsonNode& property)
{
    const vxjson::JsonNode heldAs = property["held_as"];
    return static_cast<std::int32_t>((heldAs.isNull() ? property["id"] : heldAs).whole().value_or(0));
}

std::string nameOf(std::int32_t id)
{
    const vxMat::PropertyRecord* const quantity = vxMat::findPropertyRecord(id);
    return std::to_string(id) + (quantity != nullptr ? " \"" + std::string(quantity->name) + "\"" : "");
}

void ProjectCheck::checkUnitSystem(const projectfile::ProjectRecord& project)
{
    const auto setting = project.settings.find(projectfile::unitSystemSetting);
    if (setting == project.settings.end() || setting->second.empty())
        return;
    if (const auto system = vxUnits::UnitSystem::parse(setting->second); !system)
        find(std::string("$.settings.") + projectfile::unitSystemSetting, system.failure().text() + " SI is used.");
}

void ProjectCheck::checkMeasurements(const vxjson::JsonNode& settings, const std::string& path)
{
    const auto measured = summariseMeasurements(settings[vxConstitutive::measurementsSetting].text());
    if (measured && !measured->fault.empty())
        find(path + "." + vxConstitutive::measurementsSetting, "is unreadable: " + measured->fault);
}

void ProjectCheck::noteSlot(std::int32_t slot, const MaterialProperty& property, const std::string& path)
{
    if (slot != property.id)
        note(path, "is property " + nameOf(property.id) + " but held as " + nameOf(slot));
}

void ProjectCheck::checkMaterial(const vxMat::MaterialBase& material, const vxjson::JsonNode& properties,
                                 const std::string& path)
{
    std::unordered_map<std::int32_t, std::string> paths; // of the properties, by slot
    for (std::size_t i = 0; i < properties.size(); ++i) {
        const std::int32_t slot = slotOf(properties.element(i));
        const std::string& property = paths[slot] = path + ".properties[" + std::to_string(i) + "]";
        noteSlot(slot, *material.findProperty(slot), property);
    }
    for (const vxMat::MaterialFinding& finding : vxMat::checkMaterial(material)) {
        const auto found = paths.find(finding.slot);
        find(found != paths.end() ? found->second : path, vxMat::toText(finding));
    }
}

void ProjectCheck::checkMaterials(const vxjson::JsonNode& materials)
{
    for (std::size_t i = 0; i < materials.size(); ++i) {
        const vxjson::JsonNode object = materials.element(i);
        const auto number = static_cast<std::uint32_t>(*object["object_id"].whole());
        const std::string path = "$.materials[" + std::to_string(i) + "]";
        checkMeasurements(object["settings"], path + ".settings");
        checkMaterial(*m_materials.at(number), object["material"]["properties"], path + ".material");
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
