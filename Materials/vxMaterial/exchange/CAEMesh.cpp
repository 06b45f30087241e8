#include "vxMaterial/exchange/CAEMesh.h"

#include "SectionMembers.h"

#include <utility>

namespace vxCAE {

const char* CAEMesh::typeName() const
{
    return "CAEMesh";
}

void CAEMesh::writeJson(Json::Value& document) const
{
    Json::Value mesh(Json::objectValue);
    detail::writeMembers(*this, detail::meshMembers, mesh);
    if (!wmesh_ids.empty())
        mesh["wmesh_ids"] = detail::toArray(wmesh_ids);
    document["mesh"] = std::move(mesh);
}

void CAEMesh::readJson(const Json::Value& document)
{
    const Json::Value& mesh = document["mesh"];
    CAEMesh read;
    detail::readMembers(read, detail::meshMembers, mesh);
    detail::forEachElement(mesh["wmesh_ids"], [&read](const Json::Value& id) { read.wmesh_ids.insert(id.asUInt()); });
    read.wmesh_ids.merge(wmesh_ids);
    *this = std::move(read);
}

std::vector<std::string> CAEMesh::getMeshFileNames() const
{
    std::vector<std::string> names;
    names.reserve(wmesh_ids.size());
    for (const std::uint32_t id : wmesh_ids)
        names.push_back("sm" + std::to_string(id) + ".vxmsh");
    return names;
}

} // namespace vxCAE
