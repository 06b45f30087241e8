#include "MaterialFiles.h"

#include "MaterialImport.h"

#include "Obj/ContentCodec.h"
#include "kelta/DocumentImport.h"
#include "kelta/FileService.h"
#include "projectfile/MaterialClasses.h"
#include "projectfile/MaterialRecord.h"
#include "vxMaterial/gui/MaterialChange.h"
#include "vxMaterial/project/MaterialObject.h"

namespace desktop {

namespace {

constexpr const char* projectClass = "Mat::DocumentMaterial";
constexpr const char* objectClass = "Mat::MaterialObject";

vxMat::MaterialBase& materialOf(Obj::ProjectObject& object)
{
    return *static_cast<Mat::MaterialObject&>(object).getCMaterial();
}

Json::Value writeContent(const Obj::ProjectObject& object)
{
    return projectfile::writeMaterial(*static_cast<const Mat::MaterialObject&>(object).getCMaterial());
}

void readContent(Obj::ProjectObject& object, const Json::Value& content)
{
    projectfile::readMaterial(materialOf(object), content);
}

void tellFiles(Mat::MaterialObject& object)
{
    if (FileService* const files = FileService::instance())
        files->contentChanged(object);
}

} // namespace

void registerMaterialFiles()
{
    projectfile::registerMaterialClass(objectClass, materialOf);
    Obj::registerContentCodec(objectClass, {writeContent, readContent});
    registerDocumentImport(projectClass, readMaterialDocument);
    MatGui::materialChanged().connect(tellFiles);
}

} // namespace desktop
