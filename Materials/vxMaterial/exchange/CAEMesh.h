#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace vxCAE {

/// The mesh that the solver loads, and its contents. A field has the name of its JSON member. The solver numbers mesh
/// sources and element types; the section does not interpret the numbers.
class VXCAE_EXPORT CAEMesh : public CAEBase
{
public:
    const char* typeName() const override;
    void writeJson(Json::Value& document) const override;
    /// Adds the mesh parts in the document to the mesh parts of the section.
    void readJson(const Json::Value& document) override;

    /// Returns the names of the files of the mesh parts, by ascending id: "sm2.vxmsh", "sm10.vxmsh".
    std::vector<std::string> getMeshFileNames() const;

    std::uint32_t obj_id = 0;          ///< the mesh object in the host's project
    std::uint32_t lmesh_id = 0;        ///< local mesh
    std::set<std::uint32_t> wmesh_ids; ///< mesh parts
    std::int32_t mesh_src = 2;
    std::string mesh_fname = "undefined.vxmsh";
    std::int32_t mesh_dim = 3;
    std::int32_t elem_type = 0;
    std::string elem_order = "FIRST";
    std::string elem_family = "LAGRANGE";
    std::int32_t n_nodes = 0;
    std::int32_t n_elem = 0;
    std::int32_t n_tet = 0;
    std::int32_t n_faces = 0;
    std::int32_t n_tri = 0;
};

} // namespace vxCAE
