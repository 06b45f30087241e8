#include "vxMaterial/project/DocumentMaterial.h"

#include "Obj/Application.h"
#include "vxCAE/CaeManager.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/project/MaterialObject.h"

#include <boost/signals2/connection.hpp>

#include <algorithm>
#include <fstream>
#include <utility>

namespace Mat {

namespace {

/// Makes the closing of a project destroy its set, from the first call on.
void letGoOfSetsOfClosedProjects()
{
    static const boost::signals2::scoped_connection closing = Obj::Application::instance().projectRemoved.connect(
        [](const Obj::Project& project) { vxCAE::GetCaeManager().setCAE(project.getProjectId(), nullptr); });
}

} // namespace

std::vector<MaterialObject*> materialsOf(const Obj::Project& project)
{
    std::vector<MaterialObject*> materials;
    for (Obj::ProjectObject* const object : project.get_objects_of_type(MaterialObject::getClassTypeId()))
        materials.push_back(static_cast<MaterialObject*>(object));
    return materials;
}

OBJ_REGISTER_CLASS(Mat::DocumentMaterial, Obj::Project)

DocumentMaterial::DocumentMaterial()
{
    documentTag = materialProjectTag;
    id.setValue(0);
    classLabel.setValue("Material Project");
    physicsType.setValue("Structural");
    registerProperty(propertyData, id, "ID", "Info", 1, "Identity of the tree object");
    registerProperty(propertyData, classLabel, "ClassLabel", "Info", 1, "class name");
    registerProperty(propertyData, physicsType, "PhysicsType", "Definition", 9,
                     "Physics type simulated in this project");
    matMgr.initMaterialLibrary();
    matMgr.initPropertyCatalogue();
}

DocumentMaterial::~DocumentMaterial() = default;

const char* DocumentMaterial::get_viewfeeder_name() const
{
    return "MatGui::ViewFeederDocumentMaterial";
}

Obj::eVXObjectState DocumentMaterial::check_input()
{
    return Obj::eVXObjectState::Initial;
}

void DocumentMaterial::collect_frontend_data()
{
    letGoOfSetsOfClosedProjects();
    vxCAE::GetCaeManager().setCAE(getProjectId(), makeCAESet().release());
}

void DocumentMaterial::save_jsonDB(Json::Value& record)
{
    record["proj_tag"] = "Material";
    record["proj_id"] = Json::Value::UInt(getProjectId());
    // Readers of the database expect the kind of the project in this member, not the physics of the property.
    record["physics_type"] = "Material";
    Json::Value objects;
    for (MaterialObject* const material : materialsOf(*this))
        material->save_jsonDB(objects["object"].append(Json::Value()));
    record["objects"] = std::move(objects);
}

void DocumentMaterial::load_jsonDB(Json::Value&) {}

void DocumentMaterial::Save(Kelta::FileWriter&) const {}

void DocumentMaterial::Load(Kelta::XMLFileReader&) {}

bool DocumentMaterial::check_all_materials()
{
    const std::vector<MaterialObject*> materials = materialsOf(*this);
    return std::all_of(materials.begin(), materials.end(),
                       [](MaterialObject* material) { return material->check_input_data(); });
}

bool DocumentMaterial::check_material_input(unsigned int objectId)
{
    Obj::ProjectObject* const object = get_object(objectId);
    return object != nullptr && static_cast<MaterialObject*>(object)->check_input_data();
}

bool DocumentMaterial::exportToFile(const std::string& path, char, char, char)
{
    const std::unique_ptr<vxCAE::CAESet> set = makeCAESet();
    std::ofstream file(path);
    Json::Value document;
    set->writeJson(document);
    file << vxjson::toStyledText(document);
    return true;
}

std::unique_ptr<vxCAE::CAESet> DocumentMaterial::makeCAESet()
{
    auto set = std::make_unique<vxCAE::CAESet>(getProjectId(), vxCAE::ProjectKind::Material);
    load_cae_set(set.get());
    return set;
}

void DocumentMaterial::load_cae_set(vxCAE::CAESet* set)
{
    auto* const materials = static_cast<vxCAE::CAEMaterials*>(set->getSection(vxCAE::SectionIndex::Materials));
    if (materials == nullptr)
        return;
    for (const MaterialObject* const object : materialsOf(*this)) {
        vxMat::CMaterial* const material = object->getCMaterial();
        if (material == nullptr)
            continue;
        material->name = object->label.getValue();
        auto entry = std::make_unique<vxCAE::MaterialEntry>();
        material->copyTo(entry->material.get());
        materials->addMaterial(object->getObjectId(), std::move(entry));
    }
}

} // namespace Mat
