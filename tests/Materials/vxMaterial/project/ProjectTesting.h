#pragma once

#include "Obj/Application.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"

#include <gmock/gmock.h>

#include <string>

namespace vxtest {

/// A test with an empty material project in the host.
class MaterialProject : public testing::Test
{
protected:
    MaterialProject()
    {
        initMat();
        project = static_cast<Mat::DocumentMaterial*>(
            Obj::Application::instance().create_project("Mat::DocumentMaterial", "Materials"));
    }
    ~MaterialProject() override { Obj::Application::instance().close_all_projects(); }

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

} // namespace vxtest
