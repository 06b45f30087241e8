#include "vxMaterial/project/Requests.h"

#include "Obj/ObjectHomes.h"
#include "vxMsg/CommandCodes.h"

namespace Mat {

void registerRequests()
{
    constexpr const char* projectClass = "Mat::DocumentMaterial";
    constexpr const char* objectClass = "Mat::MaterialObject";
    vxMsg::registerProjectCode(Request::NewMaterialProject, projectClass);
    vxMsg::registerObjectCode(Request::AddMaterial, objectClass);
    Obj::registerHome(objectClass, projectClass);
}

} // namespace Mat
