#include "DataFile.h"
#include "VxmatTesting.h"

#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using vxtest::dataPath;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;

std::string analysisFile()
{
    return dataPath("documents/03-analysis.json");
}

TEST(Query, PrintsThePropertiesThatTheSolverAsksFor)
{
    const Outcome run = vxmat({"query", analysisFile(), "--project", "3"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "Question                   Answer\n"
                       "Analysis label             STATIC\n"
                       "Thermal label              HEAT\n"
                       "Solver family              11\n"
                       "Nonlinear                  no\n"
                       "Creep or viscous material  no\n"
                       "Contacts                   no\n"
                       "Mesh tag                   p3o12\n"
                       "Solution tag               p3o4\n"
                       "\n"
                       "Load step  Substeps  Absolute tolerance  Iteration limit\n"
                       "1          25        1e-08               25\n"
                       "2          50        1e-06               30\n");
    EXPECT_THAT(run.err, HasSubstr("--materials FILE"));
}

TEST(Query, UsesTheModelsOfTheMaterials)
{
    const Folder folder;
    const std::string materials = folder.path("materials.json");
    ASSERT_EQ(vxmat({"export", "Creep Example=7", "Air=9", "-o", materials}).status, 0);
    const Outcome run = vxmat({"query", analysisFile(), "--materials", materials, "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    const auto reading = vxjson::readJsonText(run.out);
    ASSERT_FALSE(reading.error);
    EXPECT_EQ(reading.document["analysis_label"], "NLSTATIC");
    EXPECT_EQ(reading.document["nonlinear"], true);
    EXPECT_EQ(reading.document["creep_or_viscous_material"], true);
    EXPECT_EQ(reading.document["mesh_tag"], "p0o12");
    ASSERT_EQ(reading.document["load_steps"].size(), 2U);
    EXPECT_EQ(reading.document["load_steps"][1]["iteration_limit"], 30);
    EXPECT_EQ(reading.document["load_steps"][1]["absolute_tolerance"], 1e-6);
}

TEST(Query, ReportsAMissingMaterial)
{
    const Folder folder;
    const std::string materials = folder.path("materials.json");
    ASSERT_EQ(vxmat({"export", "Creep Example=7", "-o", materials}).status, 0);
    const Outcome run = vxmat({"query", analysisFile(), "--materials", materials});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("has no material 9, which domain 5 refers to"));
}

TEST(Query, AcceptsOnlyDecimalDigitsAsProjectNumber)
{
    EXPECT_THAT(vxmat({"query", analysisFile(), "--project", "010"}).out, HasSubstr(" p10o12\n"));
    for (const char* const number : {"0x10", "+5", " 5", "-1", "4294967296", ""}) {
        const Outcome run = vxmat({"query", analysisFile(), "--project", number});
        EXPECT_EQ(run.status, 2) << number;
        EXPECT_THAT(run.err, HasSubstr("a whole number from 0 to 4294967295 is needed"));
    }
}

TEST(Query, RefusesAFileWithoutMaterials)
{
    EXPECT_THAT(vxmat({"query", analysisFile(), "--materials", analysisFile()}).err,
                HasSubstr("an analysis document holds no materials"));
    EXPECT_EQ(vxmat({"query", analysisFile(), "--materials", ""}).status, 2);
    EXPECT_EQ(vxmat({"check", analysisFile(), "--materials", ""}).status, 2);
}

TEST(Query, RefusesAMaterialDocument)
{
    const Outcome run = vxmat({"query", "-"}, R"({"proj_type": 2})");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("not an analysis document"));
}

TEST(Query, RefusesADocumentThatCannotBeConverted)
{
    const Outcome run = vxmat({"query", "-"}, R"({"proj_type": 1, "solve": {"n_load_steps": 4294967295}})");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("\"n_load_steps\" is 4294967295"));
}

TEST(Query, UsesTheModelsOfTheMaterialsOfAProject)
{
    const Folder folder;
    const std::string document = folder.path("d.json");
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"export", "Creep Example=7", "Air=9", "-o", document}).status, 0);
    ASSERT_EQ(vxmat({"import", document, "-o", project}).status, 0);
    const Outcome run = vxmat({"query", analysisFile(), "--materials", project});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, vxmat({"query", analysisFile(), "--materials", document}).out);
    EXPECT_THAT(run.out, HasSubstr("Creep or viscous material  yes"));
}

TEST(Query, RefusesAProject)
{
    const Outcome run = vxmat({"query", "-"}, vxmat({"new", "Air", "-o", "-"}).out);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vxmat: -: not an analysis document but a project file\n");
}

} // namespace
