#include "MaterialProjects.h"

#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

namespace desktop {

std::vector<Mat::DocumentMaterial*> materialProjects()
{
    std::vector<Mat::DocumentMaterial*> found;
    // Projects of other modules may have the same tag.
    for (Obj::Project* const project : Obj::Application::get_projects(Mat::materialProjectTag))
        if (auto* const materials = dynamic_cast<Mat::DocumentMaterial*>(project))
            found.push_back(materials);
    return found;
}

Mat::DocumentMaterial* currentMaterialProject()
{
    return dynamic_cast<Mat::DocumentMaterial*>(Obj::Application::get_current_project());
}

bool isMaterialSelected()
{
    const Gui::TreeSelectionSingleton& selection = Gui::TreeSelectionSingleton::instance();
    return !selection.get_objects_of_type(Mat::MaterialObject::getClassTypeId()).empty();
}

} // namespace desktop
