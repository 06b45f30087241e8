#include "ExchangeTesting.h"

#include "vxMaterial/exchange/CAESet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using vxtest::json;

std::vector<std::unique_ptr<vxCAE::CAEBase>> allSections()
{
    std::vector<std::unique_ptr<vxCAE::CAEBase>> sections;
    sections.push_back(std::make_unique<vxCAE::CAESystem>());
    sections.push_back(std::make_unique<vxCAE::CAEMesh>());
    sections.push_back(std::make_unique<vxCAE::CAEBCS>());
    sections.push_back(std::make_unique<vxCAE::CAEDCS>());
    sections.push_back(std::make_unique<vxCAE::CAEICS>());
    sections.push_back(std::make_unique<vxCAE::CAEMaterials>());
    sections.push_back(std::make_unique<vxCAE::CAESolve>());
    sections.push_back(std::make_unique<vxCAE::CAEResult>());
    return sections;
}

TEST(Section, BearsTheNameOfItsClass)
{
    std::vector<std::string> names;
    for (const auto& section : allSections())
        names.emplace_back(section->typeName());
    EXPECT_THAT(names, testing::ElementsAre("CAESystem", "CAEMesh", "CAEBCS", "CAEDCS", "CAEICS", "CAEMaterials",
                                            "CAESolve", "CAEResult"));
    EXPECT_STREQ(vxCAE::CAEIC().typeName(), "CAEIC");
}

TEST(Section, ReadsADocumentWithoutItsMemberWithoutComplaint)
{
    for (const char* const document : {"{}", "null", "{\"proj_type\": 1}"}) {
        for (const auto& section : allSections())
            EXPECT_NO_THROW(section->readJson(json(document))) << section->typeName() << " " << document;
    }
}

TEST(Section, LeavesTheMembersOfOthersAlone)
{
    for (const auto& section : allSections()) {
        Json::Value document = json(R"({"other": 7})");
        section->writeJson(document);
        EXPECT_EQ(document["other"], 7) << section->typeName();
    }
}

TEST(Section, LeavesTheDocumentThatItReadsAsItWas)
{
    const char* const text = R"({"system": {"dim": 2}})";
    const Json::Value document = json(text);
    for (const auto& section : allSections())
        section->readJson(document);
    EXPECT_EQ(document, json(text));
}

/// Returns a document in which every member for reading is neither 0 nor empty.
Json::Value fullDocument()
{
    return json(R"({
        "system": {"physics_type": 2, "analysis_type": 3, "solver_form": 4, "defrom_type": 1, "dim": 3,
            "has_contact": true, "cal_stress": true, "ambient_temp": 7.5, "study_id": 5, "solution_id": 6,
            "time_inte": "Explicit", "n_eigens": 7, "lcz_tol": 0.5, "lcz_max": 8},
        "solve": {"solver": "s", "solver_method": "m", "n_iterations": 9, "residual_thold": 0.25, "n_load_steps": 1,
            "times": [2.0], "auto_timing": [true], "n_substeps": [3], "time_inc": [4.0], "nl_abs_tol": [0.5],
            "nl_rel_tol": [0.75], "nl_max_its": [6]},
        "mesh": {"obj_id": 1, "lmesh_id": 2, "wmesh_ids": [3], "n_nodes": 4, "n_elem": 5, "n_tet": 6, "n_faces": 7,
            "n_tri": 8, "mesh_src": 9, "mesh_fname": "f", "mesh_dim": 2, "elem_type": 10, "elem_order": "o",
            "elem_family": "g"},
        "result": {"rst_format": 1, "rst_fname": "r", "rst_path": "p", "output_iter_log": true,
            "output_time_log": true, "output_freq": 2, "monitor_trans": true},
        "boundarycondition": {"BCs": [{"obj_id": 1, "type": 2, "name": "b", "steps": [
            {"set_id": 3, "valType": 4, "imposed": [true], "value": [0.5]}]}]},
        "initialcondition": {"ICs": [{"obj_id": 1, "type": "t", "name": "n", "value": 0.5}]},
        "domaincondition": {"DCs": [{"obj_id": 1, "mat_id": 2, "mat_name": "m", "has_bforce": true,
            "bforce": [1.0, 2.0, 3.0], "topo": "Shell", "thickness": 0.5, "n_inte_points": 4}]},
        "connections": {"contacts": [{"obj_id": 1, "contact_type": "c", "friction_coeff": 0.5,
            "friction_stiffness": 2.0, "formulation": "f", "finite_sliding": true}]},
        "material": [{"mat_id": 1, "mat_name": "m", "Props": [
            {"prop_type": 4, "prop_key": "k", "prop_name": "n", "prop_value": 2.5}]}]})");
}

TEST(Section, SetsEachSingleValueToZeroOrEmptyFromADocumentWithoutItsMember)
{
    const Json::Value zeros = json(R"({
        "system": {"physics_type": 0, "analysis_type": 0, "solver_form": 0, "deform_type": 0, "dim": 0,
            "has_contact": false, "cal_stress": false, "ambient_temp": 0.0, "study_id": 0, "solution_id": 0,
            "time_inte": ""},
        "solve": {"solver": "", "solver_method": "", "n_iterations": 0, "residual_thold": 0.0, "n_load_steps": 0},
        "mesh": {"obj_id": 0, "lmesh_id": 0, "wmesh_ids": [3], "n_nodes": 0, "n_elem": 0, "n_tet": 0, "n_faces": 0,
            "n_tri": 0, "mesh_src": 0, "mesh_fname": "", "mesh_dim": 0, "elem_type": 0, "elem_order": "",
            "elem_family": ""},
        "result": {"rst_format": 0, "rst_fname": "", "rst_path": "", "output_iter_log": false,
            "output_time_log": false, "output_freq": 0, "monitor_trans": false}})");
    for (const auto& section : allSections()) {
        section->readJson(fullDocument());
        const std::string before = vxjson::toStyledText(vxtest::written(*section));
        section->readJson(json("{}"));
        const Json::Value after = vxtest::written(*section);
        const std::string member = after.getMemberNames().front();
        if (zeros.isMember(member)) {
            EXPECT_EQ(vxjson::toStyledText(after[member]), vxjson::toStyledText(zeros[member])) << section->typeName();
        } else {
            EXPECT_EQ(vxjson::toStyledText(after), before) << "lists keep what they hold: " << section->typeName();
        }
    }
}

TEST(Section, ReplacesItsMemberWhenWrittenTwiceButTheMaterialsAreAddedTo)
{
    for (const auto& section : allSections()) {
        section->readJson(fullDocument());
        Json::Value document;
        section->writeJson(document);
        const Json::Value once = document;
        for (const std::string& member : once.getMemberNames()) {
            if (document[member].isObject())
                document[member]["stale"] = 1;
        }
        section->writeJson(document);
        if (once.isMember("material"))
            EXPECT_EQ(document["material"].size(), 2U);
        else
            EXPECT_EQ(document, once) << section->typeName();
    }
}

/// Returns the number of elements in the list of a section.
Json::ArrayIndex lengthOf(const vxCAE::CAEBase& section, const char* member, const char* list)
{
    return vxtest::written(section)[member][list].size();
}

TEST(Section, AddsTheElementsOfItsListsToThoseHeld)
{
    const auto second = json(R"({"boundarycondition": {"BCs": [{"obj_id": 2}]},
        "initialcondition": {"ICs": [{"obj_id": 2}]}, "domaincondition": {"DCs": [{"obj_id": 2}]},
        "connections": {"contacts": [{"obj_id": 2}]}})");
    vxCAE::CAEBCS boundary;
    vxCAE::CAEICS initial;
    vxCAE::CAEDCS domains;
    for (const Json::Value& document : {fullDocument(), second}) {
        boundary.readJson(document);
        initial.readJson(document);
        domains.readJson(document);
    }
    EXPECT_EQ(lengthOf(boundary, "boundarycondition", "BCs"), 2U);
    EXPECT_EQ(lengthOf(initial, "initialcondition", "ICs"), 2U);
    EXPECT_EQ(lengthOf(domains, "domaincondition", "DCs"), 2U);
    EXPECT_EQ(lengthOf(domains, "connections", "contacts"), 2U);
}

/// Covers every member that is read as an unsigned number.
TEST(Section, RefusesANegativeNumberWhereAnUnsignedOneIsRead)
{
    const std::pair<const char*, std::vector<const char*>> members[] = {
        {"system",
         {"physics_type", "analysis_type", "solver_form", "defrom_type", "study_id", "solution_id", "n_eigens",
          "lcz_max"}},
        {"solve", {"n_iterations", "n_load_steps"}},
        {"mesh", {"obj_id", "lmesh_id", "n_nodes", "n_elem", "n_tet", "n_faces", "n_tri", "mesh_src", "elem_type"}},
        {"result", {"rst_format", "output_freq"}},
    };
    for (const auto& [member, keys] : members) {
        for (const char* const key : keys) {
            Json::Value document = fullDocument();
            document[member][key] = -1;
            vxCAE::CAESet set(1, vxCAE::ProjectKind::Analysis);
            EXPECT_THROW(set.readJson(document), Json::LogicError) << member << "." << key;
        }
    }
    for (const char* const key : {"n_substeps", "nl_max_its"}) {
        Json::Value document = fullDocument();
        document["solve"][key][0] = -1;
        EXPECT_THROW(vxCAE::CAESolve().readJson(document), Json::LogicError) << key;
    }
    for (const char* const key : {"obj_id", "type"}) {
        Json::Value document = fullDocument();
        document["boundarycondition"]["BCs"][0][key] = -1;
        EXPECT_THROW(vxCAE::CAEBCS().readJson(document), Json::LogicError) << key;
    }
    for (const char* const key : {"set_id", "valType"}) {
        Json::Value document = fullDocument();
        document["boundarycondition"]["BCs"][0]["steps"][0][key] = -1;
        EXPECT_THROW(vxCAE::CAEBCS().readJson(document), Json::LogicError) << key;
    }
}

TEST(Section, ReadsASignedNumberInTheDimensionsAlone)
{
    Json::Value document = fullDocument();
    document["system"]["dim"] = -3;
    document["mesh"]["mesh_dim"] = -2;
    vxCAE::CAESet set(1, vxCAE::ProjectKind::Analysis);
    set.readJson(document);
    EXPECT_EQ(set.system->dim, -3);
    EXPECT_EQ(set.mesh->mesh_dim, -2);
}

// Classes that own their elements are not copied.
static_assert(!std::is_copy_constructible_v<vxCAE::CAEMaterials> && !std::is_copy_constructible_v<vxCAE::CAEBCS>);
static_assert(!std::is_copy_constructible_v<vxCAE::CAEICS> && !std::is_copy_constructible_v<vxCAE::CAEDCS>);
static_assert(!std::is_copy_constructible_v<vxCAE::DomainEntry> && !std::is_copy_constructible_v<vxCAE::CAESet>);

TEST(Section, RefusesADocumentThatIsNoObject)
{
    for (const char* const document : {"[1, 2]", "\"text\"", "17"}) {
        for (const auto& section : allSections()) {
            EXPECT_THROW(section->readJson(json(document)), Json::LogicError) << section->typeName() << document;
        }
    }
}

} // namespace
