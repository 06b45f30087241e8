#include "vxMaterial/exchange/ExportCheck.h"

#include <cmath>

namespace vxCAE {

namespace {

bool isCarried(const vxMat::MaterialProperty& property)
{
    const vxMat::ValueKind kind = vxMat::getValueKind(property.id);
    const bool isNumber = kind == vxMat::ValueKind::Number || kind == vxMat::ValueKind::ModelSwitch;
    return isNumber && property.text.empty() && property.values.empty();
}

} // namespace

std::vector<ExportObstacle> findExportObstacles(const vxMat::MaterialBase& material)
{
    std::vector<ExportObstacle> obstacles;
    for (const vxMat::HeldProperty& held : vxMat::propertiesInCatalogueOrder(material)) {
        if (!std::isfinite(held.property->value))
            obstacles.push_back({held, ExportFault::NumberNotFinite});
        if (held.slot < 0)
            obstacles.push_back({held, ExportFault::NegativeSlot});
    }
    return obstacles;
}

std::vector<vxMat::HeldProperty> findLostValues(const vxMat::MaterialBase& material)
{
    std::vector<vxMat::HeldProperty> lost;
    for (const vxMat::HeldProperty& held : vxMat::propertiesInCatalogueOrder(material))
        if (!isCarried(*held.property))
            lost.push_back(held);
    return lost;
}

} // namespace vxCAE
