#pragma once

#include "Obj/Application.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace vxtest {

/// A test with an empty material project in the host.
class MaterialProject : public testing::Test
{
protected:
    MaterialProject()
    {
        initMat();
        Mat::registerRequests();
        project = static_cast<Mat::DocumentMaterial*>(
            Obj::Application::instance().createProject("Mat::DocumentMaterial", "Materials"));
    }
    ~MaterialProject() override { Obj::Application::instance().closeAllProjects(); }

    Mat::MaterialObject& addMaterial(const std::string& label) const
    {
        auto* const object = static_cast<Mat::MaterialObject*>(project->add_object("Mat::MaterialObject", "Material"));
        object->label.setValue(label);
        return *object;
    }

    Mat::MaterialObject& addSteel(const std::string& label) const
    {
        Mat::MaterialObject& object = addMaterial(label);
        object.initCMaterial(vxMat::eMaterialType::StructuralSteel);
        return object;
    }

    Mat::DocumentMaterial* project = nullptr;
};

/// Returns records that no project writes, of every kind of JSON.
inline std::vector<Json::Value> recordsOfEveryKind()
{
    Json::Value record;
    record["proj_tag"] = "Other";
    record["proj_id"] = 99;
    record["physics_type"] = "Thermal";
    record["obj_id"] = 98;
    record["class"] = "Obj::ProjectObject";
    record["name_internal"] = "Other";
    record["label"] = "Other";
    record["PhysicsType"] = "Thermal";
    record["objects"] = Json::Value();
    return {Json::Value(), Json::Value(Json::arrayValue), Json::Value("x"), Json::Value(7), Json::Value(true), record};
}

/// The parts of a material that the host and the user see, and all of its quantities.
struct Identity
{
    explicit Identity(Mat::MaterialObject& object)
        : objectId(object.getObjectId()),
          name(object.get_name_in_project()),
          label(object.label.getValue()),
          classLabel(object.classLabel.getValue()),
          state(object.getObjectState()),
          materialName(object.getCMaterial()->name)
    {
        for (const auto& [id, property] : object.getCMaterial()->properties)
            quantities[id] = {property->value, property->text};
    }

    bool operator==(const Identity& other) const
    {
        return objectId == other.objectId && name == other.name && label == other.label &&
               classLabel == other.classLabel && state == other.state && materialName == other.materialName &&
               quantities == other.quantities;
    }

    std::uint32_t objectId;
    std::string name;
    std::string label;
    std::string classLabel;
    Obj::eVXObjectState state;
    std::string materialName;
    std::map<int, std::pair<double, std::string>> quantities;
};

} // namespace vxtest
