#include "vxMaterial/exchange/CAESystem.h"

#include "ExchangeTesting.h"

#include <gtest/gtest.h>

namespace {

using vxCAE::CAESystem;
using vxtest::json;
using vxtest::written;

CAESystem read(const std::string& text)
{
    CAESystem system;
    system.readJson(json(text));
    return system;
}

TEST(CAESystem, WritesItsDefaultsInTheKindsOfItsMembers)
{
    const Json::Value document = written(CAESystem());
    ASSERT_EQ(document.getMemberNames(), Json::Value::Members{"system"});
    const Json::Value& system = document["system"];
    for (const char* const key : {"physics_type", "analysis_type", "solver_form", "deform_type", "dim"}) {
        EXPECT_EQ(system[key].type(), Json::intValue) << key;
        EXPECT_EQ(system[key].asInt(), 0) << key;
    }
    for (const char* const key : {"study_id", "solution_id"}) {
        EXPECT_EQ(system[key].type(), Json::uintValue) << key;
        EXPECT_EQ(system[key].asUInt(), 0U) << key;
    }
    EXPECT_EQ(system["has_contact"], false);
    EXPECT_EQ(system["cal_stress"], false);
    EXPECT_EQ(system["ambient_temp"], 22.3);
    EXPECT_EQ(system["time_inte"], "");
    EXPECT_EQ(system.size(), 11U);
}

TEST(CAESystem, NeverWritesModalOrSpectrumSettings)
{
    for (const int type : {0, 1, 2, 3, 4}) {
        CAESystem system;
        system.setAnalysisType(type);
        const Json::Value document = written(system);
        EXPECT_EQ(document["system"]["analysis_type"], type);
        EXPECT_EQ(document["system"]["ambient_temp"], 22.3);
        EXPECT_EQ(document["system"]["deform_type"], 0);
        for (const char* const key : {"n_eigens", "lcz_tol", "lcz_max", "start_mode", "end_mode"})
            EXPECT_FALSE(document["system"].isMember(key)) << type << " " << key;
    }
}

TEST(CAESystem, ReadsEveryMember)
{
    const CAESystem system = read(R"({"system": {
        "physics_type": 2, "analysis_type": 1, "solver_form": 7, "defrom_type": 1, "dim": -3, "has_contact": true,
        "cal_stress": true, "ambient_temp": -4.5, "study_id": 4294967295, "solution_id": 12,
        "time_inte": "Explicit"}})");
    EXPECT_EQ(system.physics_type, 2);
    EXPECT_EQ(system.analysis_type, 1);
    EXPECT_EQ(system.solver_form, 7);
    EXPECT_EQ(system.deform_type, 1);
    EXPECT_EQ(system.dim, -3);
    EXPECT_TRUE(system.has_contact);
    EXPECT_TRUE(system.cal_stress);
    EXPECT_EQ(system.ambient_temp, -4.5);
    EXPECT_EQ(system.study_id, 4294967295U);
    EXPECT_EQ(system.solution_id, 12U);
    EXPECT_EQ(system.time_inte, "Explicit");
}

TEST(CAESystem, ReadsTheDeformTypeFromItsMisspelledKeyAlone)
{
    EXPECT_EQ(read(R"({"system": {"deform_type": 1}})").deform_type, 0);
    EXPECT_EQ(read(R"({"system": {"defrom_type": 1}})").deform_type, 1);
}

TEST(CAESystem, LosesItsDeformTypeWhenWrittenAndReadBack)
{
    CAESystem system;
    system.deform_type = 1;
    const Json::Value document = written(system);
    EXPECT_EQ(document["system"]["deform_type"], 1);
    system.readJson(document);
    EXPECT_EQ(system.deform_type, 0);
}

/// Returns a system with different settings for modal and spectrum analyses.
CAESystem withSettings()
{
    CAESystem system;
    system.n_eigens = 99;
    system.lcz_tol = 0.5;
    system.lcz_max = 98;
    system.start_mode = 97;
    system.end_mode = 96;
    return system;
}

TEST(CAESystem, ReadsModalSettingsForAModalAnalysisOnly)
{
    CAESystem modal = withSettings();
    modal.readJson(json(R"({"system": {"analysis_type": 3, "n_eigens": 12, "lcz_tol": 2.5, "lcz_max": 13,
                                       "start_mode": 14, "end_mode": 15}})"));
    EXPECT_EQ(modal.n_eigens, 12U);
    EXPECT_EQ(modal.lcz_tol, 2.5);
    EXPECT_EQ(modal.lcz_max, 13U);
    EXPECT_EQ(modal.start_mode, 97U);
    EXPECT_EQ(modal.end_mode, 96U);
}

TEST(CAESystem, ReadsSpectrumModesForASpectrumAnalysisOnly)
{
    CAESystem spectrum = withSettings();
    spectrum.readJson(json(R"({"system": {"analysis_type": 4, "start_mode": 2, "end_mode": 8, "n_eigens": 3}})"));
    EXPECT_EQ(spectrum.start_mode, 2U);
    EXPECT_EQ(spectrum.end_mode, 8U);
    EXPECT_EQ(spectrum.n_eigens, 99U);
}

TEST(CAESystem, KeepsItsSettingsWhenAnotherAnalysisIsRead)
{
    for (const char* const type : {"0", "1", "2", "5"}) {
        CAESystem system = withSettings();
        system.readJson(json(R"({"system": {"n_eigens": 12, "lcz_tol": 1, "lcz_max": 2, "start_mode": 9, "end_mode": 9,
                                            "analysis_type": )" +
                             std::string(type) + "}}"));
        EXPECT_EQ(system.n_eigens, 99U) << type;
        EXPECT_EQ(system.lcz_tol, 0.5);
        EXPECT_EQ(system.lcz_max, 98U);
        EXPECT_EQ(system.start_mode, 97U);
        EXPECT_EQ(system.end_mode, 96U);
    }
}

TEST(CAESystem, SetsModalSettingsToZeroFromADocumentOfItsOwn)
{
    CAESystem system;
    system.setAnalysisType(vxCAE::AnalysisType::Modal);
    system.readJson(written(system));
    EXPECT_EQ(system.n_eigens, 0U);
    EXPECT_EQ(system.lcz_tol, 0.0);
    EXPECT_EQ(system.lcz_max, 0U);
}

TEST(CAESystem, IsAllZerosFromADocumentWithoutSystem)
{
    const CAESystem system = read("{}");
    EXPECT_EQ(system.physics_type, 0);
    EXPECT_EQ(system.ambient_temp, 0.0);
    EXPECT_FALSE(system.has_contact);
    EXPECT_EQ(system.time_inte, "");
}

TEST(CAESystem, KeepsWhatItHeldWhenAMemberCannotBeConverted)
{
    CAESystem system;
    system.study_id = 9;
    for (const char* const document :
         {R"({"system": {"study_id": 4, "time_inte": {}}})", R"({"system": {"study_id": 4, "solution_id": -1}})",
          R"({"system": {"study_id": 4, "solution_id": "12"}})", R"({"system": {"study_id": 4, "dim": 1e300}})",
          R"({"system": [1]})", R"({"system": "text"})"})
    {
        EXPECT_THROW(system.readJson(json(document)), Json::LogicError) << document;
        EXPECT_EQ(system.study_id, 9U) << document;
        EXPECT_EQ(system.ambient_temp, 22.3) << document;
    }
}

TEST(CAESystem, FindsPhysicsByTheirWordsInAnyCase)
{
    CAESystem system;
    const std::pair<const char*, int> words[] = {
        {"structural", 1}, {"thermal", 2}, {"ElectroMagnetic", 3}, {"ACOUSTIC", 4}, {"Fluids", 5}};
    for (const auto& [word, type] : words) {
        std::string text = word;
        system.setPhysicsType(text);
        EXPECT_EQ(system.physics_type, type) << word;
    }
}

TEST(CAESystem, TurnsTheWordOfThePhysicsToUpperCaseInPlace)
{
    CAESystem system;
    std::string known = "Thermal";
    system.setPhysicsType(known);
    EXPECT_EQ(known, "THERMAL");
    std::string unknown = "heat 2x\xc3\xa4";
    system.setPhysicsType(unknown);
    EXPECT_EQ(unknown, "HEAT 2X\xc3\xa4");
    EXPECT_EQ(system.physics_type, 2);
}

TEST(CAESystem, KeepsThePhysicsForAnUnknownWord)
{
    CAESystem system;
    system.setPhysicsType(4);
    for (const char* const word : {"thermal ", "", "heat", "thermalx"}) {
        std::string text = word;
        system.setPhysicsType(text);
        EXPECT_EQ(system.physics_type, 4) << word;
    }
}

TEST(CAESystem, SetsPhysicsAndAnalysisTogether)
{
    CAESystem system;
    system.setPhysicsAndAnalysis(2, 3);
    EXPECT_EQ(system.physics_type, 2);
    EXPECT_EQ(system.analysis_type, 3);
    system.setDimension(3);
    EXPECT_EQ(system.getDimension(), 3);
}

TEST(CAESystem, IsNonlinearByContactOrByLargeDeformation)
{
    CAESystem system;
    EXPECT_FALSE(system.isNonlinear());
    system.deform_type = 2;
    EXPECT_FALSE(system.isNonlinear());
    system.deform_type = 1;
    EXPECT_TRUE(system.isNonlinear());
    system.deform_type = 0;
    system.has_contact = true;
    EXPECT_TRUE(system.isNonlinear());
}

} // namespace
