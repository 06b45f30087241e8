#include "projectfile/ProjectFile.h"

#include "CaseName.h"
#include "CommaLocale.h"
#include "DataFile.h"
#include "ProjectTesting.h"

#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>

namespace {

using projectfile::ContentError;
using projectfile::ProjectRecord;
using projectfile::readProject;
using projectfile::writeProject;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using vxtest::Dice;
using vxtest::expectSame;
using vxtest::makeLibraryProject;
using vxtest::makeMixedProject;
using vxtest::makeSmallProject;

/// Returns the error message of reading a text. The test fails if the text is read.
std::string refusalOf(const std::string& text)
{
    try {
        readProject(text);
    } catch (const ContentError& error) {
        return error.what();
    }
    ADD_FAILURE() << "it was read";
    return {};
}

/// Returns the error message of writing a project. The test fails if the project is written.
std::string refusalOf(const ProjectRecord& project)
{
    try {
        writeProject(project);
    } catch (const ContentError& error) {
        return error.what();
    }
    ADD_FAILURE() << "it was written";
    return {};
}

/// Returns `text` with the first `from` replaced. The test fails if there is none.
std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

/// A change that makes the text of a project invalid, and the error message.
struct Wrong
{
    const char* from;
    const char* to;
    const char* reason;
};

void PrintTo(const Wrong& wrong, std::ostream* out)
{
    *out << testing::PrintToString(wrong.from) << " -> " << testing::PrintToString(wrong.to);
}

std::string nameOfCase(const testing::TestParamInfo<Wrong>& wrong)
{
    return vxtest::caseName(wrong.index, std::string(wrong.param.from) + " becomes " + wrong.param.to);
}

std::string smallText()
{
    return writeProject(makeSmallProject());
}

// --- The text ---

TEST(ProjectFile, HasALayoutForVersionControl)
{
    EXPECT_EQ(smallText(), R"({
  "format": "vxMaterial project",
  "format_version": 1,
  "name": "Small",
  "next_object_id": 3,
  "database": {
    "objects": {
      "object": [
        {
          "class": "Mat::MaterialObject",
          "label": "Steel",
          "name_internal": "Material1",
          "obj_id": 1
        },
        {
          "class": "Mat::MaterialObject",
          "label": "钢",
          "name_internal": "Material2",
          "obj_id": 2
        }
      ]
    },
    "proj_tag": "Material"
  },
  "materials": [
    {
      "object_id": 1,
      "class": "Mat::MaterialObject",
      "name_internal": "Material1",
      "label": "Steel",
      "suppressed": false,
      "colour": [0.5, 0.25, 0, 1],
      "material": {
        "id": 0,
        "name": "Steel",
        "library_group": 0,
        "properties": [
          {"held_as": 4, "id": 4, "name": "Density", "key": "rho", "value": 7850, "text": "", "values": [], "description": "", "unit": "kg/m3", "category": 0},
          {"held_as": 401, "id": 4, "name": "Density", "key": "rho", "value": -0.0, "text": "", "values": [], "description": "", "unit": "kg/m3", "category": 0}
        ]
      }
    },
    {
      "object_id": 2,
      "class": "Mat::MaterialObject",
      "name_internal": "Material2",
      "label": "钢",
      "suppressed": true,
      "material": {
        "id": 0,
        "name": "钢",
        "library_group": 0,
        "properties": []
      }
    }
  ]
}
)");
}

TEST(ProjectFile, KeepsEveryFieldOfEveryLibraryMaterial)
{
    const ProjectRecord project = makeLibraryProject();
    ASSERT_THAT(project.objects, SizeIs(26));
    const std::string text = writeProject(project);
    const ProjectRecord read = readProject(text);
    expectSame(project, read);
    EXPECT_THAT(read.doubts, IsEmpty());
    EXPECT_EQ(writeProject(read), text);
}

TEST(ProjectFile, KeepsEveryFieldOfThousandsOfRandomMaterials)
{
    Dice dice;
    for (int i = 0; i < 40; ++i) {
        SCOPED_TRACE(i);
        const ProjectRecord project = dice.makeProject(100);
        const std::string text = writeProject(project);
        const ProjectRecord read = readProject(text);
        expectSame(project, read);
        EXPECT_EQ(writeProject(read), text);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(ProjectFile, KeepsNumbersInALocaleWithDecimalCommas)
{
    const ProjectRecord project = makeLibraryProject();
    const std::string text = writeProject(project);
    const vxtest::CommaLocale comma;
    EXPECT_EQ(writeProject(project), text);
    expectSame(project, readProject(text));
}

TEST(ProjectFile, MayHaveNoMaterialsAndNoDatabase)
{
    ProjectRecord project;
    project.name = "Empty";
    const std::string text = writeProject(project);
    expectSame(project, readProject(text));
    expectSame(project, readProject(replaced(text, "\"database\": null,", "")));
}

TEST(ProjectFile, KeepsThePathOfTheRecoveredFile)
{
    ProjectRecord project = makeSmallProject();
    EXPECT_EQ(writeProject(project).find("recovered_file"), std::string::npos);
    project.recoveredFile = "/home/anna/\xE9\x92\xA2 \"1\".vxmat";
    EXPECT_EQ(readProject(writeProject(project)).recoveredFile, project.recoveredFile);
    project.recoveredFile = "";
    EXPECT_EQ(readProject(writeProject(project)).recoveredFile, "");
}

TEST(ProjectFile, KeepsTheEditsOfOpenEditors)
{
    ProjectRecord project = makeSmallProject();
    EXPECT_EQ(writeProject(project).find("unapplied_edits"), std::string::npos);
    project.unappliedEdits[0]["object_id"] = 1;
    project.unappliedEdits[0]["edits"]["rows"] = "any";
    EXPECT_EQ(readProject(writeProject(project)).unappliedEdits.toStyledString(),
              project.unappliedEdits.toStyledString());
}

TEST(ProjectFile, KeepsTheLargestObjectNumber)
{
    ProjectRecord project = makeSmallProject();
    project.database = Json::Value();
    project.objects[1].objectId = 4294967295U;
    project.nextObjectId = 4294967296U;
    expectSame(project, readProject(writeProject(project)));
}

TEST(ProjectFile, SortsObjectsByNumber)
{
    ProjectRecord project = makeSmallProject();
    std::swap(project.objects[0], project.objects[1]);
    const ProjectRecord read = readProject(writeProject(project));
    EXPECT_EQ(read.objects[0].objectId, 1U);
    EXPECT_EQ(read.objects[1].objectId, 2U);
}

TEST(ProjectFile, IsReadWithWindowsLineEndsAndAByteOrderMark)
{
    std::string text = "\xEF\xBB\xBF";
    for (const char c : smallText())
        text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    expectSame(makeSmallProject(), readProject(text));
}

TEST(ProjectFile, UsesDefaultsForMissingMembers)
{
    std::string text = replaced(smallText(), "      \"suppressed\": false,\n", "");
    text = replaced(text, "      \"colour\": [0.5, 0.25, 0, 1],\n", "");
    text = replaced(text, "\"held_as\": 4, ", "");
    text = replaced(text, ", \"category\": 0", "");
    const ProjectRecord read = readProject(text);
    EXPECT_FALSE(read.objects[0].suppressed);
    EXPECT_FALSE(read.objects[0].colour);
    const auto* const density = read.objects[0].material->findProperty(4);
    ASSERT_NE(density, nullptr);
    EXPECT_EQ(density->category, vxMat::ePropertyCategory::Undefined);
}

TEST(ProjectFile, IsReadAsItsGuideDescribesIt)
{
    const std::string guide = vxtest::readText(PROJECT_FILE_GUIDE);
    const auto exampleAfter = [&guide](std::size_t from) {
        const std::size_t begin = guide.find("```json\n", from) + 8;
        return guide.substr(begin, guide.find("```", begin) - begin);
    };
    const std::string text = exampleAfter(0);
    EXPECT_EQ(writeProject(readProject(text)), text);

    std::string mixed = replaced(text, "\"next_object_id\": 3", "\"next_object_id\": 5");
    mixed = replaced(mixed, "\n  ]\n}\n", "\n  ],\n" + exampleAfter(guide.find("## An object")) + "}\n");
    const ProjectRecord read = readProject(mixed);
    EXPECT_THAT(read.doubts, IsEmpty());
    EXPECT_EQ(writeProject(read), mixed);
}

// --- Projects and objects of other classes ---

std::string mixedText()
{
    return writeProject(makeMixedProject());
}

TEST(MixedProject, HasTheLayoutOfAMaterialProjectWithFurtherMembers)
{
    const std::string text = mixedText();
    EXPECT_THAT(text, StartsWith(R"({
  "format": "vxMaterial project",
  "format_version": 1,
  "class": "Stub::Project",
  "name": "Small",
  "next_object_id": 5,
  "properties": {
    "Temperature": 293.15
  },
  "record": {
    "runs": [
      7
    ]
  },
  "database": {
)"));
    EXPECT_THAT(text, HasSubstr(R"(
      "colour": [0.5, 0.25, 0, 1],
      "properties": {
        "Batch": "B 12"
      },
      "node": {
        "Expanded": true
      },
      "material": {
)"));
    EXPECT_THAT(text, testing::EndsWith(R"(
        "properties": []
      }
    }
  ],
  "objects": [
    {
      "object_id": 3,
      "class": "Stub::Probe",
      "name_internal": "Other3",
      "label": "Probe A",
      "suppressed": false,
      "properties": {
        "Colour": [
          1
        ],
        "Depth": 0.5
      },
      "node": {
        "Expanded": false
      },
      "content": {
        "samples": [
          1.5
        ]
      }
    },
    {
      "object_id": 4,
      "class": "Obj::ProjectObjectGroup",
      "name_internal": "Other4",
      "label": "Group",
      "suppressed": true,
      "links": [3, 1]
    }
  ]
}
)"));
}

TEST(MixedProject, IsReadAsItWasWritten)
{
    const std::string text = mixedText();
    const ProjectRecord read = readProject(text);
    expectSame(makeMixedProject(), read);
    EXPECT_THAT(read.doubts, IsEmpty());
    EXPECT_EQ(writeProject(read), text);
    EXPECT_EQ(read.objects[2].content["samples"][0], 1.5);
    EXPECT_EQ(read.objects[2].material, nullptr);
    EXPECT_THAT(read.objects[3].links, ElementsAre(3U, 1U));
}

TEST(MixedProject, KeepsEveryFieldOfThousandsOfRandomObjects)
{
    Dice dice;
    for (int i = 0; i < 60; ++i) {
        SCOPED_TRACE(i);
        const ProjectRecord project = dice.makeMixedProject(50);
        const std::string text = writeProject(project);
        const ProjectRecord read = readProject(text);
        expectSame(project, read);
        EXPECT_THAT(read.doubts, IsEmpty());
        EXPECT_EQ(writeProject(read), text);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(MixedProject, SortsMaterialsAndOtherObjectsByNumber)
{
    ProjectRecord project = makeMixedProject();
    std::swap(project.objects[0], project.objects[3]);
    const ProjectRecord read = readProject(writeProject(project));
    for (std::uint32_t i = 0; i < 4; ++i)
        EXPECT_EQ(read.objects[i].objectId, i + 1);
}

TEST(MixedProject, IsAMaterialProjectIfTheFileNamesNoClass)
{
    EXPECT_EQ(readProject(smallText()).className, "Mat::DocumentMaterial");
    EXPECT_EQ(
        readProject(replaced(smallText(), "\"name\"", "\"class\": \"Mat::DocumentMaterial\", \"name\"")).className,
        "Mat::DocumentMaterial");
}

TEST(MixedProject, MayHaveNoMaterials)
{
    ProjectRecord project;
    project.className = "Stub::Project";
    project.nextObjectId = 2;
    projectfile::ObjectRecord& object = project.objects.emplace_back();
    object.objectId = 1;
    object.className = "Stub::Probe";
    object.internalName = "Probe";
    const std::string text = writeProject(project);
    EXPECT_THAT(text, HasSubstr("\"materials\": [],\n  \"objects\": [\n"));
    expectSame(project, readProject(text));
}

TEST(MixedProject, MayHaveAnyDatabaseUnlessItIsAMaterialProject)
{
    ProjectRecord project = makeMixedProject();
    project.database = Json::Value("my own");
    expectSame(project, readProject(writeProject(project)));
    project.className = projectfile::materialProjectClass;
    EXPECT_THAT(refusalOf(project), HasSubstr("\"database\" must be an object"));
}

TEST(MixedProject, MayListItsOtherObjectsInTheDatabaseOfAMaterialProject)
{
    ProjectRecord project = makeMixedProject();
    project.className = projectfile::materialProjectClass;
    expectSame(project, readProject(writeProject(project)));
    Json::Value& record = project.database["objects"]["object"].append(Json::Value());
    record["obj_id"] = 3;
    record["class"] = "Stub::Probe";
    record["name_internal"] = "Other3";
    record["label"] = "Probe A";
    const ProjectRecord read = readProject(writeProject(project));
    expectSame(project, read);
    EXPECT_THAT(read.doubts, IsEmpty());
    record["class"] = "Stub::Sonde";
    EXPECT_THAT(refusalOf(project), HasSubstr("\"database.objects.object[2].class\" is \"Stub::Sonde\""));
}

TEST(MixedProject, WritesBackMembersOfItsObjectsThatItDoesNotKnow)
{
    std::string text = replaced(mixedText(), "\"label\": \"Probe A\",", "\"label\": \"Probe A\", \"later\": [7],");
    text = replaced(text, "\"Depth\": 0.5", "\"Depth\": 0.5, \"Later\": null");
    const ProjectRecord read = readProject(text);
    EXPECT_EQ(read.objects[2].further["object"]["later"][0], 7);
    EXPECT_TRUE(read.objects[2].properties.isMember("Later"));
    const std::string written = writeProject(read);
    EXPECT_THAT(written, HasSubstr("\"later\": [\n        7\n      ]\n    },"));
    EXPECT_THAT(written, HasSubstr("\"Later\": null"));
    expectSame(read, readProject(written));
}

TEST(MixedProject, LosesInvalidLinksWithADoubt)
{
    const ProjectRecord read = readProject(replaced(mixedText(), "\"links\": [3, 1]", "\"links\": [3, 9, 4, 1, 3]"));
    EXPECT_THAT(read.objects[3].links, ElementsAre(3U, 1U));
    EXPECT_THAT(read.doubts,
                ElementsAre(HasSubstr("\"objects[1].links[1]\" is 9"), HasSubstr("\"objects[1].links[2]\" is 4"),
                            HasSubstr("\"objects[1].links[4]\" is 3")));
    ProjectRecord project = makeMixedProject();
    project.objects[0].links = {9};
    EXPECT_THAT(refusalOf(project), HasSubstr("\"materials[0].links[0]\" is 9"));
}

TEST(MixedProject, LosesMembersOfTwoGroupsAndOfCirclesWithADoubt)
{
    const ProjectRecord read = projectfile::readProject(R"({"format": "vxMaterial project", "format_version": 1,
        "class": "Stub::Project", "name": "p", "next_object_id": 9, "materials": [], "objects": [
        {"object_id": 1, "class": "Obj::ProjectObjectGroup", "name_internal": "a", "label": "a", "links": [2, 3]},
        {"object_id": 2, "class": "Obj::ProjectObjectGroup", "name_internal": "b", "label": "b", "links": [4, 1]},
        {"object_id": 3, "class": "Obj::ProjectObjectGroup", "name_internal": "c", "label": "c", "links": [4]},
        {"object_id": 4, "class": "Stub::Probe", "name_internal": "d", "label": "d", "links": [1]}]})");
    EXPECT_THAT(read.doubts, ElementsAre(HasSubstr("\"objects[1].links[1]\" is 1, which is in another group or"),
                                         HasSubstr("\"objects[2].links[0]\" is 4, which is in another group or")));
    EXPECT_THAT(read.objects[1].links, ElementsAre(4U));
    EXPECT_THAT(read.objects[3].links, ElementsAre(1U));
}

/// Returns a project of groups, of which each has the next as its only member, or the one before it.
ProjectRecord nestedGroups(std::uint32_t count, bool isOutermostFirst)
{
    ProjectRecord project;
    project.className = "Stub::Project";
    project.name = "Frame";
    project.nextObjectId = count + 1;
    for (std::uint32_t id = 1; id <= count; ++id) {
        projectfile::ObjectRecord& group = project.objects.emplace_back();
        group.objectId = id;
        group.className = "Obj::ProjectObjectGroup";
        group.internalName = group.label = "Group" + std::to_string(id);
        const std::uint32_t member = isOutermostFirst ? id + 1 : id - 1;
        if (member >= 1 && member <= count)
            group.links = {member};
    }
    return project;
}

TEST(MixedProject, LosesMembersThatAreNestedTooDeeplyWithADoubt)
{
    for (const bool isOutermostFirst : {true, false}) {
        SCOPED_TRACE(isOutermostFirst);
        const auto deepest = static_cast<std::uint32_t>(projectfile::deepestGroups) + 1;
        EXPECT_THAT(readProject(writeProject(nestedGroups(deepest, isOutermostFirst))).doubts, IsEmpty());
        EXPECT_THAT(refusalOf(nestedGroups(deepest + 1, isOutermostFirst)), HasSubstr("nested in too many groups"));
    }
}

TEST(MixedProject, CutsTensOfThousandsOfNestedGroupsIntoParts)
{
    for (const bool isOutermostFirst : {true, false}) {
        SCOPED_TRACE(isOutermostFirst);
        const std::uint32_t count = 50000;
        const ProjectRecord project = nestedGroups(count, isOutermostFirst);
        std::string text =
            R"({"format": "vxMaterial project", "format_version": 1, "class": "Stub::Project", "name": "p",
            "next_object_id": 50001, "materials": [], "objects": [)";
        for (const projectfile::ObjectRecord& group : project.objects)
            text += R"({"object_id": )" + std::to_string(group.objectId) + R"(, "class": ")" + group.className +
                    R"(", "name_internal": ")" + group.internalName + R"(", "label": "g", "links": [)" +
                    (group.links.empty() ? "" : std::to_string(group.links.front())) +
                    (group.objectId < count ? "]}," : "]}]}");
        EXPECT_THAT(readProject(text).doubts, SizeIs(count / (projectfile::deepestGroups + 1)));
    }
}

TEST(MixedProject, LosesASecondLabelWithADoubt)
{
    const ProjectRecord read = projectfile::readProject(replaced(mixedText(), "\"properties\": {\n        \"Batch\"",
                                                                 "\"properties\": {\n \"Label\": \"X\", \"Batch\""));
    EXPECT_FALSE(read.objects[0].properties.isMember("Label"));
    EXPECT_THAT(read.doubts, ElementsAre(HasSubstr("\"materials[0].properties.Label\" is left out")));
}

class WrongMixedProject : public testing::TestWithParam<Wrong>
{};

TEST_P(WrongMixedProject, IsRefusedWithTheReason)
{
    EXPECT_THAT(refusalOf(replaced(mixedText(), GetParam().from, GetParam().to)), HasSubstr(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(
    Content, WrongMixedProject,
    testing::Values(
        Wrong{"\"class\": \"Stub::Project\"", "\"class\": 7", "\"class\" is 7 but must be a text"},
        Wrong{"\"class\": \"Stub::Project\"", "\"class\": \"\"", "\"class\" must not be empty"},
        Wrong{"\"properties\": {\n    \"Temp", "\"properties\": [], \"p\": {\n    \"Temp",
              "\"properties\" is an array but must be an object"},
        Wrong{"\"objects\": [\n    {", "\"objects\": {}, \"o\": [\n    {", "\"objects\" is an object but must be an"},
        Wrong{"      \"object_id\": 3,\n", "", "\"objects[0].object_id\" is missing"},
        Wrong{"\"object_id\": 3", "\"object_id\": 0", "\"objects[0].object_id\" is 0"},
        Wrong{"\"object_id\": 3", "\"object_id\": 2",
              "\"objects[0].object_id\" is 2, which is the number of materials[1]"},
        Wrong{"\"object_id\": 3", "\"object_id\": 4",
              "\"objects[1].object_id\" is 4, which is the number of objects[0]"},
        Wrong{"\"next_object_id\": 5", "\"next_object_id\": 4", "\"next_object_id\" is 4 but must be from 5"},
        Wrong{"      \"class\": \"Stub::Probe\",\n", "", "\"objects[0].class\" is missing"},
        Wrong{"\"class\": \"Stub::Probe\"", "\"class\": \"\"", "\"objects[0].class\" must not be empty"},
        Wrong{"\"class\": \"Stub::Probe\"", R"("class": "Stub\u0000Probe")", "contains a zero character"},
        Wrong{"\"class\": \"Stub::Probe\"", "\"class\": \"Mat::MaterialObject\"",
              "\"objects[0].class\" is \"Mat::MaterialObject\", but objects of this class belong in"},
        Wrong{"\"name_internal\": \"Other3\"", "\"name_internal\": \"Material2\"",
              "\"objects[0].name_internal\" is \"Material2\", which is the name of materials[1]"},
        Wrong{"\"name_internal\": \"Other3\"", "\"name_internal\": \"\"", "\"objects[0].name_internal\" must not be"},
        Wrong{"\"name_internal\": \"Other3\"", R"("name_internal": "Other\u0000")", "contains a zero character"},
        Wrong{"      \"label\": \"Group\",\n", "", "\"objects[1].label\" is missing"},
        Wrong{"\"node\": {\n        \"Expanded\": false", "\"node\": 7, \"n\": {\n        \"Expanded\": false",
              "\"objects[0].node\" is 7 but must be an object"},
        Wrong{"\"properties\": {\n        \"Batch\"", "\"properties\": null, \"p\": {\n        \"Batch\"",
              "\"materials[0].properties\" is null but must be an object"},
        Wrong{"\"links\": [3, 1]", "\"links\": 3", "\"objects[1].links\" is 3 but must be an array"},
        Wrong{"\"links\": [3, 1]", "\"links\": [3, \"x\"]", "\"objects[1].links[1]\" is \"x\""},
        Wrong{"\"links\": [3, 1]", "\"links\": [-1]", "\"objects[1].links[0]\" is -1"}),
    nameOfCase);

TEST(MixedProject, IsNotWrittenIfAnObjectIsInvalid)
{
    ProjectRecord project = makeMixedProject();
    project.objects[2].className.clear();
    EXPECT_THAT(refusalOf(project), HasSubstr("\"objects[0].class\" must not be empty"));
    project = makeMixedProject();
    project.objects[1].internalName.clear();
    EXPECT_THAT(refusalOf(project), HasSubstr("\"materials[1].name_internal\" must not be empty"));
    project = makeMixedProject();
    project.objects[2].properties = Json::Value(7);
    EXPECT_THAT(refusalOf(project), HasSubstr("\"objects[0].properties\" must be an object"));
    project = makeMixedProject();
    project.objects[2].content = Json::Value("\xFF");
    EXPECT_THAT(refusalOf(project), HasSubstr("\"objects[0].content\" is not UTF-8"));
}

// --- Unknown members ---

TEST(ProjectFile, WritesBackMembersThatItDoesNotKnow)
{
    std::string text = replaced(smallText(), "  \"name\": \"Small\",",
                                "  \"origin\": {\"by\": [1, 0.1, null]},\n"
                                "  \"name\": \"Small\",");
    text = replaced(text, "\"suppressed\": false,", "\"suppressed\": false, \"locked\": true,");
    text = replaced(text, "\"library_group\": 0,", "\"library_group\": 0, \"supplier\": \"\xE9\x92\xA2\",");
    text = replaced(text, "\"held_as\": 401, ", "\"held_as\": 401, \"source\": \"table 3\", \"spread\": 2.0, ");

    const ProjectRecord read = readProject(text);
    EXPECT_EQ(read.further["origin"]["by"][1], Json::Value(0.1));
    EXPECT_EQ(read.objects[0].further["object"]["locked"], Json::Value(true));
    EXPECT_EQ(read.objects[0].further["material"]["supplier"], Json::Value("\xE9\x92\xA2"));
    EXPECT_EQ(read.objects[0].further["properties"]["401"]["source"], Json::Value("table 3"));
    EXPECT_TRUE(read.objects[1].further.isNull());

    const std::string written = writeProject(read);
    EXPECT_THAT(written,
                HasSubstr("\"unit\": \"kg/m3\", \"category\": 0, \"source\": \"table 3\", \"spread\": 2.0}\n"));
    EXPECT_THAT(written, HasSubstr("      },\n      \"locked\": true\n    },"));
    EXPECT_THAT(written, HasSubstr("        ],\n        \"supplier\": \"\xE9\x92\xA2\"\n      }"));
    EXPECT_THAT(written,
                HasSubstr("  ],\n  \"origin\": {\n    \"by\": [\n      1,\n      0.1,\n      null\n    ]\n  }\n}"));
    expectSame(read, readProject(written));
    EXPECT_EQ(writeProject(readProject(written)), written);
}

TEST(ProjectFile, KeepsAnyContentOfTheHostsRecord)
{
    ProjectRecord project = makeSmallProject();
    project.database["numbers"].append(Json::Value(-0.0));
    project.database["numbers"].append(Json::Value(Json::Value::maxUInt64));
    project.database["numbers"].append(Json::Value(Json::Value::minInt64));
    project.database["numbers"].append(Json::Value(5e-324));
    project.database["numbers"].append(Json::Value(2.0));
    project.database["empty"][0] = Json::Value(Json::objectValue);
    project.database["empty"][1] = Json::Value(Json::arrayValue);
    project.database["line\nend"] = "\x01";
    const ProjectRecord read = readProject(writeProject(project));
    expectSame(project, read);
    EXPECT_TRUE(std::signbit(read.database["numbers"][0].asDouble()));
}

TEST(ProjectFile, IsRecognisedByItsFormatMember)
{
    const auto isProject = [](const std::string& text) {
        return projectfile::isProject(vxjson::JsonTree::read(text, vxjson::JsonDialect::WithComments).root());
    };
    EXPECT_TRUE(isProject(smallText()));
    EXPECT_TRUE(isProject(R"({"format": "vxMaterial project"})"));
    for (const char* const other : {"{}", "[]", R"({"format": 1})", R"({"format": "vxMaterial"})", R"(["format"])",
                                    "null", R"("vxMaterial project")"})
        EXPECT_FALSE(isProject(other)) << other;
}

// --- Invalid files ---

TEST(ProjectFile, ReportsThePlaceOfAnErrorInItsException)
{
    try {
        readProject(replaced(smallText(), "7850", "\"many\""));
        ADD_FAILURE() << "it was read";
    } catch (const ContentError& error) {
        EXPECT_EQ(error.member(), "materials[0].material.properties[0].value");
        EXPECT_EQ(error.line(), 0);
    }
    try {
        readProject(replaced(smallText(), "7850", "many"));
        ADD_FAILURE() << "it was read";
    } catch (const ContentError& error) {
        EXPECT_EQ(error.member(), "");
        EXPECT_EQ(error.line(), 38);
        EXPECT_EQ(error.column(), 77);
        EXPECT_STREQ(error.what(), "line 38, column 77: 'many' is not a JSON value");
    }
}

TEST(ProjectFile, IsRefusedIfItIsTruncated)
{
    const std::string text = mixedText();
    for (std::size_t length = 0; length + 2 <= text.size(); ++length) {
        SCOPED_TRACE(length);
        EXPECT_THAT(refusalOf(text.substr(0, length)), testing::Not(IsEmpty()));
    }
    // Only the last character, a line feed, may be missing.
    expectSame(makeMixedProject(), readProject(text.substr(0, text.size() - 1)));
}

TEST(ProjectFile, IsRefusedIfABracketQuoteCommaOrColonIsMissing)
{
    // The colons in the names of classes are not part of the format.
    const std::string marks = "{}[]\",:";
    const std::string text = mixedText();
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isInName = text.compare(at, 2, "::") == 0 || (at > 0 && text.compare(at - 1, 2, "::") == 0);
        if (isInName || marks.find(text[at]) == std::string::npos)
            continue;
        SCOPED_TRACE(at);
        std::string damaged = text;
        damaged.erase(at, 1);
        EXPECT_THAT(refusalOf(damaged), testing::Not(IsEmpty()));
    }
}

TEST(ProjectFile, NamesLineAndColumnOfAnError)
{
    EXPECT_THAT(refusalOf("{\n  \"format\": \"vxMaterial project\",\n  \"name\" 7\n}"), StartsWith("line 3, column "));
    EXPECT_THAT(refusalOf(replaced(smallText(), "7850", "78,50")), StartsWith("line 38, column "));
}

TEST(ProjectFile, IsRefusedIfItsVersionIsLater)
{
    const auto isLater = AllOf(HasSubstr("later version"), HasSubstr("up to version 1"));
    EXPECT_THAT(refusalOf(replaced(smallText(), "\"format_version\": 1", "\"format_version\": 2")),
                AllOf(isLater, HasSubstr("version 2")));
    EXPECT_THAT(refusalOf(R"({"materials": {}, "format": "vxMaterial project", "format_version": 5000000000})"),
                isLater);
    EXPECT_THAT(refusalOf(replaced(smallText(), "\"format_version\": 1", "\"format_version\": 1.5")), isLater);
}

TEST(ProjectFile, IsRefusedIfItBelongsToAnotherProgram)
{
    for (const char* const text : {"{}", "[]", R"({"format": "sketch", "format_version": 9})",
                                   R"({"format": ["vxMaterial project"]})", R"({"proj_type": 2, "material": []})"})
        EXPECT_THAT(refusalOf(text), HasSubstr("not a project file")) << text;
    for (const char* const text :
         {"<?xml version=\"1.0\"?>\n<a/>", "PK\x03\x04", "7", "\"vxMaterial project\"", "null"})
        EXPECT_THAT(refusalOf(text), StartsWith("line 1")) << text;
}

TEST(ProjectFile, IsRefusedIfItIsEmpty)
{
    for (const char* const text : {"", " ", "\r\n\n", "\t"})
        EXPECT_EQ(refusalOf(text), "The file is empty.");
    EXPECT_THAT(refusalOf("\xEF\xBB\xBF"), testing::Not(IsEmpty()));
}

TEST(ProjectFile, IsRefusedIfItIsNestedTooDeeply)
{
    const std::string brackets(100000, '[');
    EXPECT_THAT(refusalOf(brackets), HasSubstr("nested more than"));
    EXPECT_THAT(refusalOf(replaced(smallText(),
                                   "\"name\":", "\"deep\": " + brackets + std::string(100000, ']') + ", \"name\":")),
                HasSubstr("nested more than"));
}

TEST(ProjectFile, KeepsATextOfAHundredThousandDigitsButRefusesSuchANumber)
{
    const std::string digits(100000, '7');
    ProjectRecord project = makeSmallProject();
    project.name = digits;
    EXPECT_EQ(readProject(writeProject(project)).name, digits);
    const std::string refusal = refusalOf(replaced(smallText(), "7850", digits));
    EXPECT_THAT(refusal, HasSubstr("beyond the range of a double"));
    EXPECT_LT(refusal.size(), 500U);
    const ProjectRecord read = readProject(replaced(smallText(), "7850", "0." + digits));
    EXPECT_DOUBLE_EQ(read.objects[0].material->findProperty(4)->value, 7.0 / 9.0);
}

class WrongProject : public testing::TestWithParam<Wrong>
{};

TEST_P(WrongProject, IsRefusedWithTheReason)
{
    EXPECT_THAT(refusalOf(replaced(smallText(), GetParam().from, GetParam().to)), HasSubstr(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(
    Syntax, WrongProject,
    testing::Values(Wrong{"\"Small\",", "\"Small\", // a remark\n", "line 4, column 20: a comment"},
                    Wrong{"{", "/* a remark */ {", "line 1, column 1: a comment"},
                    Wrong{"  ]\n}\n", "  ]\n}\n// end", "line 58, column 1: a comment"},
                    Wrong{"7850", "07850", "line 38"}, Wrong{"7850", "-", "line 38"},
                    Wrong{"7850", "1e999", "beyond the range"}, Wrong{"7850", "1e-999", "beyond the range"},
                    Wrong{"7850", "NaN", "line 38"}, Wrong{"7850", "Infinity", "line 38"},
                    Wrong{"\"Small\"", "'Small'", "line 4"}, Wrong{"\"Small\"", "\"\xFF\"", "UTF-8"},
                    Wrong{"\"Small\"", "\"\xC0\x80\"", "UTF-8"}, Wrong{"\"Small\"", "\"\xED\xA0\x80\"", "UTF-8"},
                    Wrong{"\"Small\"", R"("\uD800")", "surrogate"}, Wrong{"\"Small\"", R"("\uDC00")", "surrogate"},
                    Wrong{"\"Small\"", R"("\uD83D\u0041")", "surrogate"}, Wrong{"\"Small\"", R"("\x41")", "line 4"},
                    Wrong{"\"Small\"", R"("\u12")", "line 4"}, Wrong{"  ]\n}\n", "  ]\n}\n}\n", "line 58"},
                    Wrong{"  ]\n}\n", "  ],\n}\n", "line 57"},
                    Wrong{"\"Small\",", "\"Small\", \"name\": \"Other\",", "name"},
                    Wrong{"\"obj_id\": 1", "\"obj_id\": 1, \"obj_id\": 1", "obj_id"},
                    Wrong{"\"unit\": \"kg/m3\"", "\"unit\": \"kg/m3\", \"unit\": \"kg/m3\"", "unit"}),
    nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Content, WrongProject,
    testing::Values(
        Wrong{"\"format_version\": 1", "\"format_version\": 0", "\"format_version\" is 0"},
        Wrong{"\"format_version\": 1", "\"format_version\": -1", "\"format_version\" is -1"},
        Wrong{"\"format_version\": 1", "\"format_version\": \"1\"", "\"format_version\" is \"1\""},
        Wrong{"  \"format_version\": 1,\n", "", "\"format_version\" is missing"},
        Wrong{"  \"name\": \"Small\",\n", "", "\"name\" is missing"},
        Wrong{"  \"next_object_id\": 3,\n", "", "\"next_object_id\" is missing"},
        Wrong{"\"materials\"", "\"substances\"", "\"materials\" is missing"},
        Wrong{"\"name\": \"Small\"", "\"name\": null", "\"name\" is null but must be a text"},
        Wrong{"\"name\": \"Small\",", "\"name\": \"Small\", \"recovered_file\": 7,", "\"recovered_file\" is 7"},
        Wrong{"      \"object_id\": 1,\n", "", "\"materials[0].object_id\" is missing"},
        Wrong{"      \"label\": \"Steel\",\n      \"suppressed\"", "      \"suppressed\"",
              "\"materials[0].label\" is missing"},
        Wrong{"\"material\": {", "\"substance\": {", "\"materials[0].material\" is missing"},
        Wrong{"\"suppressed\": false", "\"suppressed\": 0", "\"materials[0].suppressed\" is 0"},
        Wrong{"[0.5, 0.25, 0, 1]", "[0.5, 0.25, 0]",
              "\"materials[0].colour\" is an array but must be an array of four"},
        Wrong{"[0.5, 0.25, 0, 1]", "[0.5, 0.25, 0, 1, 1]", "\"materials[0].colour\""},
        Wrong{"[0.5, 0.25, 0, 1]", "[0.5, 1.25, 0, 1]", "\"materials[0].colour[1]\" is 1.25"},
        Wrong{"[0.5, 0.25, 0, 1]", "[0.5, -1e-9, 0, 1]", "\"materials[0].colour[1]\""},
        Wrong{"[0.5, 0.25, 0, 1]", "[0.5, \"NaN\", 0, 1]", "\"materials[0].colour[1]\" is \"NaN\""},
        Wrong{"7850", "\"7850\"", "\"materials[0].material.properties[0].value\" is \"7850\" but must be a number"},
        Wrong{"7850", "null", "\"materials[0].material.properties[0].value\" is null"},
        Wrong{"\"values\": []", "\"values\": [1, \"x\"]", "\"materials[0].material.properties[0].values[1]\" is \"x\""},
        Wrong{"\"category\": 0", "\"category\": 10", "\"materials[0].material.properties[0].category\" is 10"},
        Wrong{"\"held_as\": 401", "\"held_as\": 2147483648",
              "\"materials[0].material.properties[1].held_as\" is 2147483648"},
        Wrong{"\"held_as\": 401", "\"held_as\": 4",
              "\"materials[0].material.properties[1].held_as\" is 4, which occurs twice"},
        Wrong{"\"properties\": []", "\"properties\": [7]", "\"materials[1].material.properties[0]\" is 7"},
        Wrong{"\"properties\": []", "\"properties\": {}", "\"materials[1].material.properties\" is an object"}),
    nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Numbers, WrongProject,
    testing::Values(
        Wrong{"\"object_id\": 1", "\"object_id\": 0", "\"materials[0].object_id\" is 0"},
        Wrong{"\"object_id\": 1", "\"object_id\": -1", "\"materials[0].object_id\" is -1"},
        Wrong{"\"object_id\": 1", "\"object_id\": 1.5", "\"materials[0].object_id\" is 1.5"},
        Wrong{"\"object_id\": 1", "\"object_id\": 4294967296", "\"materials[0].object_id\" is 4294967296"},
        Wrong{"\"object_id\": 1", "\"object_id\": 1e300", "\"materials[0].object_id\""},
        Wrong{"\"object_id\": 1", "\"object_id\": 2", "\"materials[1].object_id\" is 2"},
        Wrong{"\"next_object_id\": 3", "\"next_object_id\": 2", "\"next_object_id\" is 2 but must be from 3"},
        Wrong{"\"next_object_id\": 3", "\"next_object_id\": 0", "\"next_object_id\" is 0"},
        Wrong{"\"next_object_id\": 3", "\"next_object_id\": -3", "\"next_object_id\" is -3"},
        Wrong{"\"next_object_id\": 3", "\"next_object_id\": 4294967297", "\"next_object_id\" is 4294967297"},
        Wrong{"\"name_internal\": \"Material2\",\n      \"label\"",
              "\"name_internal\": \"Material1\",\n      \"label\"",
              "\"materials[1].name_internal\" is \"Material1\", which is the name of materials[0] too"}),
    nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Database, WrongProject,
    testing::Values(
        Wrong{"\"obj_id\": 2", "\"obj_id\": 7",
              "\"database.objects.object[1].obj_id\" is 7, but \"materials\" and \"objects\" have no such object"},
        Wrong{"\"obj_id\": 2", "\"obj_id\": 1", "\"database.objects.object[1].obj_id\" is 1, which occurs twice"},
        Wrong{"\"obj_id\": 2", "\"obj_id\": -2", "\"database.objects.object[1].obj_id\" must be"},
        Wrong{"\"obj_id\": 2", "\"obj_id\": \"2\"", "\"database.objects.object[1].obj_id\" must be"},
        Wrong{"\"class\": \"Mat::MaterialObject\",\n          \"label\"",
              "\"class\": \"Obj::Other\",\n          \"label\"",
              "\"database.objects.object[0].class\" is \"Obj::Other\""},
        Wrong{"\"name_internal\": \"Material2\",\n          \"obj_id\"",
              "\"name_internal\": \"Stuff\",\n          \"obj_id\"",
              "\"database.objects.object[1].name_internal\" is \"Stuff\", but the object itself has \"Material2\""},
        Wrong{"\"name_internal\": \"Material2\",\n          \"obj_id\"", "\"obj_id\"",
              "\"database.objects.object[1].name_internal\" must be a text"},
        Wrong{"\"objects\": {", "\"object\": {", "\"materials[0]\" is object 1, which"},
        Wrong{"\"object\": [", "\"object\": [7, ", "\"database.objects.object[0].obj_id\" must be"},
        Wrong{"\"database\": {", "\"database\": 7, \"before\": {", "\"database\" must be an object"},
        Wrong{"\"objects\": {", "\"objects\": [], \"before\": {", "\"database.objects\" must be an object"},
        Wrong{"\"object\": [", "\"object\": {}, \"before\": [", "\"database.objects.object\" must be an array"}),
    nameOfCase);

TEST(ProjectFile, IsRefusedIfAMaterialIsNotInTheDatabase)
{
    ProjectRecord project = makeSmallProject();
    std::string text = writeProject(project);
    const std::size_t begin = text.find(",\n        {\n          \"class\"");
    text.erase(begin, text.find("        }\n      ]", begin) + 9 - begin);
    EXPECT_THAT(refusalOf(text),
                HasSubstr("\"materials[1]\" is object 2, which \"database.objects.object\" does not have"));
}

TEST(ProjectFile, IsReadWithADoubtIfALabelInTheDatabaseDiffers)
{
    const ProjectRecord read = readProject(replaced(smallText(), "\"label\": \"Steel\"", "\"label\": \"Iron\""));
    EXPECT_EQ(read.objects[0].label, "Steel");
    EXPECT_THAT(read.doubts, ElementsAre(AllOf(HasSubstr("\"Steel\""), HasSubstr("\"Iron\""))));
}

// --- Projects that cannot be written ---

TEST(ProjectFile, IsNotWrittenIfATextIsNotUtf8)
{
    for (const char* const text : {"\xFF", "a\xC3", "\xED\xA0\x80", "\xC0\x80", "\xF4\x90\x80\x80"}) {
        ProjectRecord project = makeSmallProject();
        project.objects[1].label = text;
        EXPECT_THAT(refusalOf(project), AllOf(HasSubstr("\"materials[1].label\""), HasSubstr("UTF-8")));
        project = makeSmallProject();
        project.objects[0].ownMaterial->properties.at(401)->unit = text;
        EXPECT_THAT(refusalOf(project), HasSubstr("\"materials[0].material.properties[1].unit\""));
        project = makeSmallProject();
        project.database["a"][0] = "right";
        project.database["a"][1] = text;
        EXPECT_THAT(refusalOf(project), HasSubstr("\"database.a[1]\""));
    }
}

TEST(ProjectFile, IsNotWrittenIfItCouldNotBeReadBack)
{
    ProjectRecord project = makeSmallProject();
    project.objects[1].objectId = 1;
    EXPECT_THAT(refusalOf(project), HasSubstr("\"materials[1].object_id\" is 1"));
    project = makeSmallProject();
    project.nextObjectId = 2;
    EXPECT_THAT(refusalOf(project), HasSubstr("\"next_object_id\""));
    project = makeSmallProject();
    project.objects.pop_back();
    EXPECT_THAT(refusalOf(project), HasSubstr("\"database.objects.object[1].obj_id\" is 2"));
    project = makeSmallProject();
    project.objects[0].colour = {{0.0F, 0.0F, std::numeric_limits<float>::quiet_NaN(), 1.0F}};
    EXPECT_THAT(refusalOf(project), HasSubstr("\"materials[0].colour[2]\""));
    project = makeSmallProject();
    project.database["weight"] = std::numeric_limits<double>::infinity();
    EXPECT_THAT(refusalOf(project), HasSubstr("\"database.weight\""));
}

// --- Settings ---

TEST(ProjectFile, KeepsSettingsOfAnyName)
{
    ProjectRecord project = makeSmallProject();
    project.settings = {{"unit_system", "length cm, mass g, time us"}, {"", "a"}, {"\xE9\x92\xA2 \"\n", "\xC2\xB5m"}};
    const std::string text = writeProject(project);
    EXPECT_THAT(text, HasSubstr("  \"settings\": {\n    \"\": \"a\",\n    \"unit_system\": "
                                "\"length cm, mass g, time us\",\n"));
    expectSame(readProject(text), project);
}

TEST(ProjectFile, WritesNoSettingsIfThereAreNone)
{
    EXPECT_EQ(smallText().find("settings"), std::string::npos);
}

TEST(ProjectFile, KeepsSettingsOfEveryObject)
{
    ProjectRecord project = makeMixedProject();
    project.objects[0].settings = {{"measurements", "{\"version\": 1}"}, {"", std::string("a\0b", 3)}};
    project.objects[2].settings = {{"\xE9\x92\xA2 \"\n", "\xC2\xB5m"}};
    const std::string text = writeProject(project);
    EXPECT_THAT(text, HasSubstr("      \"settings\": {\n        \"\": \"a\\u0000b\",\n        \"measurements\": "
                                "\"{\\\"version\\\": 1}\"\n      },\n      \"material\": {\n"));
    expectSame(readProject(text), project);
    EXPECT_EQ(writeProject(readProject(text)), text);
}

TEST(ProjectFile, RefusesWrongSettingsOfObjects)
{
    ProjectRecord project = makeMixedProject();
    project.objects[0].settings = {{"measurements", "m"}};
    project.objects[2].settings = {{"probe", "p"}};
    const std::string text = writeProject(project);
    const std::string measured = "\"measurements\": \"m\"";
    EXPECT_EQ(refusalOf(replaced(text, measured, "\"measurements\": 3")),
              "\"materials[0].settings.measurements\" is 3 but must be a text");
    EXPECT_EQ(refusalOf(replaced(text, measured, "\"measurements\": null")),
              "\"materials[0].settings.measurements\" is null but must be a text");
    EXPECT_EQ(refusalOf(replaced(text, "\"probe\": \"p\"", "\"probe\": {}")),
              "\"objects[0].settings.probe\" is an object but must be a text");
    EXPECT_THAT(refusalOf(replaced(text, measured, measured + ", " + measured)), HasSubstr("measurements"));
    EXPECT_THAT(
        refusalOf(replaced(text, "\"settings\": {\n        \"measurements\": \"m\"\n      }", "\"settings\": []")),
        HasSubstr("\"materials[0].settings\" is an array but must be an object"));
    project.objects[0].settings["measurements"] = "\xFF";
    EXPECT_THAT(refusalOf(project), HasSubstr("\"materials[0].settings.measurements\""));
}

TEST(ProjectFile, KeepsASettingOfFortyMegabytes)
{
    ProjectRecord project = makeSmallProject();
    std::string& text = project.objects[0].settings["measurements"];
    while (text.size() < 40000000U)
        text += "1.2345678901234567, ";
    expectSame(readProject(writeProject(project)), project);
}

TEST(ProjectFile, RefusesSettingsThatAreNotUtf8)
{
    ProjectRecord project = makeSmallProject();
    project.settings["unit_system"] = "\xFF";
    EXPECT_THAT(refusalOf(project), HasSubstr("settings.unit_system"));
}

} // namespace
