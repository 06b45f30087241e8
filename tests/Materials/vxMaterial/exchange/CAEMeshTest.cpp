#include "vxMaterial/exchange/CAEMesh.h"

#include "ExchangeTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using vxCAE::CAEMesh;
using vxtest::json;
using vxtest::written;

TEST(CAEMesh, WritesItsDefaultsWithoutMeshParts)
{
    const Json::Value document = written(CAEMesh());
    ASSERT_EQ(document.getMemberNames(), Json::Value::Members{"mesh"});
    const Json::Value& mesh = document["mesh"];
    EXPECT_EQ(mesh["mesh_src"], 2);
    EXPECT_EQ(mesh["mesh_dim"], 3);
    EXPECT_EQ(mesh["elem_type"], 0);
    EXPECT_EQ(mesh["elem_order"], "FIRST");
    EXPECT_EQ(mesh["elem_family"], "LAGRANGE");
    EXPECT_EQ(mesh["mesh_fname"], "undefined.vxmsh");
    for (const char* const key : {"n_nodes", "n_elem", "n_tet", "n_faces", "n_tri"}) {
        EXPECT_EQ(mesh[key], 0) << key;
        EXPECT_EQ(mesh[key].type(), Json::intValue) << key;
    }
    for (const char* const key : {"obj_id", "lmesh_id"}) {
        EXPECT_EQ(mesh[key], 0U) << key;
        EXPECT_EQ(mesh[key].type(), Json::uintValue) << key;
    }
    EXPECT_FALSE(mesh.isMember("wmesh_ids"));
    EXPECT_EQ(mesh.size(), 13U);
}

TEST(CAEMesh, WritesMeshPartsOnceInAscendingOrder)
{
    CAEMesh mesh;
    for (const unsigned id : {7U, 3U, 7U})
        mesh.wmesh_ids.insert(id);
    const Json::Value document = written(mesh);
    EXPECT_EQ(document["mesh"]["wmesh_ids"].size(), 2U);
    EXPECT_EQ(document["mesh"]["wmesh_ids"][0], 3U);
    EXPECT_EQ(document["mesh"]["wmesh_ids"][1], 7U);
}

TEST(CAEMesh, ReadsBackWhatItWrote)
{
    CAEMesh mesh;
    mesh.obj_id = 12;
    mesh.lmesh_id = 13;
    mesh.wmesh_ids = {4, 5};
    mesh.mesh_src = 1;
    mesh.mesh_fname = "wing.vxmsh";
    mesh.mesh_dim = -2;
    mesh.elem_type = 6;
    mesh.elem_order = "SECOND";
    mesh.elem_family = "HERMITE";
    mesh.n_nodes = 100;
    mesh.n_elem = 50;
    mesh.n_tet = 40;
    mesh.n_faces = 30;
    mesh.n_tri = 20;
    CAEMesh read;
    read.readJson(written(mesh));
    EXPECT_EQ(written(read), written(mesh));
    EXPECT_EQ(read.mesh_dim, -2);
    EXPECT_EQ(read.n_tri, 20);
}

TEST(CAEMesh, AddsMeshPartsToThoseHeld)
{
    CAEMesh mesh;
    mesh.wmesh_ids = {3};
    mesh.readJson(json(R"({"mesh": {"wmesh_ids": [5, 5, 3]}})"));
    EXPECT_THAT(mesh.wmesh_ids, ElementsAre(3, 5));
}

TEST(CAEMesh, HasNoFileNameFromADocumentWithoutMesh)
{
    CAEMesh mesh;
    mesh.readJson(json("{}"));
    EXPECT_EQ(mesh.mesh_fname, "");
    EXPECT_EQ(mesh.mesh_dim, 0);
    EXPECT_EQ(mesh.elem_order, "");
}

TEST(CAEMesh, KeepsWhatItHeldWhenAMemberCannotBeConverted)
{
    CAEMesh mesh;
    mesh.wmesh_ids = {3};
    for (const char* const document : {R"({"mesh": {"n_nodes": -1}})", R"({"mesh": {"wmesh_ids": [5, "x"]}})",
                                       R"({"mesh": {"wmesh_ids": {"a": 1}}})", R"({"mesh": [1]})"})
        EXPECT_THROW(mesh.readJson(json(document)), Json::LogicError) << document;
    EXPECT_THAT(mesh.wmesh_ids, ElementsAre(3));
    EXPECT_EQ(mesh.mesh_fname, "undefined.vxmsh");
}

TEST(CAEMesh, NamesTheFilesOfItsParts)
{
    CAEMesh mesh;
    mesh.wmesh_ids = {10, 2};
    EXPECT_THAT(mesh.getMeshFileNames(), ElementsAre("sm2.vxmsh", "sm10.vxmsh"));
    EXPECT_THAT(CAEMesh().getMeshFileNames(), testing::IsEmpty());
}

} // namespace
