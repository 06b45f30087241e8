#include "MaterialVerbs.h"

#include "Gui/ObjectClipboard.h"
#include "Kelta/MessageLog.h"
#include "kelta/KeltaBatchExport.h"
#include "projectfile/MaterialRecord.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <exception>

namespace {

/// A material that the user adds begins as structural steel, so that there is something to change.
void fillNewMaterial(Obj::ProjectObject& object)
{
    if (auto* const material = dynamic_cast<Mat::MaterialObject*>(&object))
        material->initCMaterial(vxMat::eMaterialType::StructuralSteel);
}

Json::Value writeContent(const Obj::ProjectObject& object)
{
    return projectfile::writeMaterial(*static_cast<const Mat::MaterialObject&>(object).getCMaterial());
}

void readContent(Obj::ProjectObject& object, const Json::Value& content)
{
    projectfile::readMaterial(*static_cast<Mat::MaterialObject&>(object).getCMaterial(), content);
}

} // namespace

/// The entry by which the program loads this side, after the plug-in. Again changes nothing. Throws nothing; what goes
/// wrong is reported to the message log.
extern "C" __attribute__((visibility("default"))) void initKeltaMaterials()
{
    static bool done = false;
    if (done)
        return;
    try {
        vxMsg::MessageProxy::instance().objectCreated.connect(fillNewMaterial);
        Gui::ObjectClipboard::register_codec("Mat::MaterialObject", {writeContent, readContent});
        kelta::registerMaterialVerbs();
        done = true;
    } catch (const std::exception& exception) {
        Kelta::MessageLog::error(QString::fromUtf8(exception.what()));
    }
}
