#include "DataFile.h"
#include "SchemaJudge.h"
#include "VxmatTesting.h"

#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectFile.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using testing::HasSubstr;
using vxtest::dataPath;
using vxtest::faultsBySchema;
using vxtest::Folder;
using vxtest::vxmat;

constexpr const char* documents = "exchange-document.schema.json";
constexpr const char* projects = "project-file.schema.json";

std::vector<std::string> libraryNames()
{
    std::vector<std::string> names;
    for (const auto& entry : vxMat::libraryEntries())
        names.push_back(entry.create()->name);
    return names;
}

/// Runs a subcommand of vxmat for each material of the library, and for all of them at once. Returns the written files.
std::vector<std::string> writeLibrary(const Folder& folder, const std::string& command, const std::string& suffix)
{
    std::vector<std::string> files;
    std::vector<std::string> all{command};
    for (const std::string& name : libraryNames()) {
        files.push_back(folder.path(std::to_string(files.size()) + suffix));
        EXPECT_EQ(vxmat({command, name, "-o", files.back()}).status, 0) << name;
        all.push_back(name);
    }
    EXPECT_EQ(files.size(), 26U);
    files.push_back(folder.path("all" + suffix));
    all.insert(all.end(), {"-o", files.back()});
    EXPECT_EQ(vxmat(all).status, 0);
    return files;
}

TEST(Schema, FitsEveryExportOfTheLibrary)
{
    const Folder folder;
    EXPECT_EQ(faultsBySchema(documents, writeLibrary(folder, "export", ".json")), "");
}

TEST(Schema, FitsEveryNewProject)
{
    const Folder folder;
    const std::vector<std::string> files = writeLibrary(folder, "new", ".vxmat");
    EXPECT_EQ(faultsBySchema(projects, files), "");
    const std::string document = folder.path("document.json");
    EXPECT_EQ(vxmat({"export", files.back(), "-o", document}).status, 0);
    EXPECT_EQ(faultsBySchema(documents, {document}), "");
}

TEST(Schema, FitsEveryImport)
{
    const Folder folder;
    std::vector<std::string> files;
    for (const char* const name : {"01-library", "02-two-materials", "04-no-materials", "05-words-and-lists",
                                   "12-unknown-quantities", "13-repeated-numbers"})
    {
        files.push_back(folder.path(std::string(name) + ".vxmat"));
        EXPECT_NE(vxmat({"import", dataPath("documents/" + std::string(name) + ".json"), "-o", files.back()}).status,
                  2);
    }
    EXPECT_EQ(faultsBySchema(projects, files), "");
}

/// Writes an exchange set to a file and returns its path.
std::string writeSet(const Folder& folder, const std::string& name, const vxCAE::CAESet& set)
{
    Json::Value document;
    set.writeJson(document);
    return folder.file(name, vxjson::toStyledText(document));
}

TEST(Schema, FitsTheAnalysesThatTheWriterMakes)
{
    const Folder folder;
    std::vector<std::string> files;
    for (const char* const name : {"03-analysis", "15-domain-without-material", "16-unequal-steps", "17-lost-settings"})
    {
        vxCAE::CAESet set(1, vxCAE::ProjectKind::Analysis);
        set.readJson(
            vxjson::readJsonText(vxtest::readText(dataPath("documents/" + std::string(name) + ".json"))).document);
        files.push_back(writeSet(folder, std::string(name) + ".json", set));
    }
    vxCAE::CAESet set(1, vxCAE::ProjectKind::Analysis);
    files.push_back(writeSet(folder, "fresh.json", set));
    set.solve->n_load_steps = 0;
    set.domainConditions->addContact(4, std::make_unique<vxCAE::ContactEntry>(4));
    files.push_back(writeSet(folder, "without-steps.json", set));
    files.push_back(writeSet(folder, "no-materials.json", vxCAE::CAESet(1, vxCAE::ProjectKind::Material)));
    EXPECT_EQ(faultsBySchema(documents, files), "");
}

TEST(Schema, FitsAProjectWithEveryMember)
{
    using Limits = std::numeric_limits<double>;
    vxMat::MaterialBase material;
    material.id = std::numeric_limits<std::int32_t>::min();
    material.name = "\xE9\x92\xA2 \"quoted\"\n\x01";
    std::int32_t slot = -2;
    for (const double number : {Limits::max(), Limits::lowest(), Limits::denorm_min(), -0.0, Limits::infinity(),
                                -Limits::infinity(), Limits::quiet_NaN()})
    {
        auto property = std::make_unique<vxMat::MaterialProperty>();
        property->value = number;
        property->values = {number, 1.0};
        material.setProperty(slot++, std::move(property));
    }
    projectfile::ProjectRecord project;
    project.name = "everything";
    project.nextObjectId = 4294967296U;
    project.recoveredFile = "/somewhere/else.vxmat";
    project.unappliedEdits[0]["object_id"] = 4294967295U;
    project.unappliedEdits[0]["edits"] = "any";
    project.further["later"] = "kept";
    projectfile::ObjectRecord& object = project.objects.emplace_back();
    object.objectId = 4294967295U;
    object.className = "Mat::MaterialObject";
    object.internalName = "Material";
    object.label = "Everything";
    object.suppressed = true;
    object.colour = {0.0F, 0.25F, 1.0F, 0.1F};
    object.material = &material;
    object.settings = {{"measurements", "\n"}, {"later", "kept"}};
    object.further["object"]["later"] = Json::arrayValue;
    const Folder folder;
    EXPECT_EQ(faultsBySchema(projects, {folder.file("everything.vxmat", projectfile::writeProject(project)),
                                        folder.file("empty.vxmat",
                                                    projectfile::writeProject(projectfile::makeProject("empty", {})))}),
              "");
}

/// Returns `text` with the first `what` replaced. The test fails if there is none.
std::string changed(std::string text, const std::string& what, const std::string& into)
{
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return at == std::string::npos ? text : text.replace(at, what.size(), into);
}

TEST(Schema, RefusesInvalidProjects)
{
    const Folder folder;
    const std::string sound = vxmat({"new", "Plastic Example 1", "-o", "-"}).out;
    ASSERT_EQ(faultsBySchema(projects, {folder.file("sound", sound)}), "");
    const std::pair<std::string, std::string> changes[] = {
        {"\"format_version\": 1,", "\"format_version\": 2,"},
        {"\"format\": \"vxMaterial project\"", "\"format\": \"another\""},
        {"\"next_object_id\": 2,", ""},
        {"\"next_object_id\": 2", "\"next_object_id\": 0"},
        {"\"materials\": [", "\"materiel\": ["},
        {"\"object_id\": 1", "\"object_id\": 0"},
        {"\"object_id\": 1", "\"object_id\": 4294967296"},
        {"\"suppressed\": false", "\"suppressed\": 0"},
        {"\"suppressed\": false", "\"suppressed\": false, \"colour\": [0, 0, 2, 1]"},
        {"\"held_as\": 4, ", ""},
        {"\"value\": 7850", "\"value\": \"7850\""},
        {"\"value\": 7850", "\"value\": null"},
        {"\"text\": \"Mises\"", "\"text\": 7"},
        {"\"values\": [450", "\"values\": [\"450\""},
        {"\"category\": 0", "\"category\": 10"},
        {"\"obj_id\": 1", "\"obj_id\": \"1\""},
    };
    for (const auto& [what, into] : changes)
        EXPECT_THAT(faultsBySchema(projects, {folder.file("wrong", changed(sound, what, into))}), HasSubstr("wrong: $"))
            << what << " into " << into;
    EXPECT_EQ(faultsBySchema(projects, {folder.file("further", changed(sound, "\"held_as\": 4",
                                                                       "\"new\": [], "
                                                                       "\"held_as\": 4"))}),
              "")
        << "unknown members are kept";
}

TEST(Schema, RefusesInvalidDocuments)
{
    for (const char* const name :
         {"10-wrong-kinds", "11-out-of-range", "14-repeated-members", "18-unknown-project-type",
          "19-sections-of-wrong-kinds", "30-truncated", "31-beyond-a-double"})
        EXPECT_NE(faultsBySchema(documents, {dataPath("documents/" + std::string(name) + ".json")}), "") << name;

    const Folder folder;
    const std::string sound = vxtest::readText(dataPath("documents/03-analysis.json"));
    ASSERT_EQ(faultsBySchema(documents, {folder.file("sound", sound)}), "");
    const std::pair<std::string, std::string> changes[] = {
        {"\"connections\" : null,", ""},
        {"\"connections\" : null", "\"connections\" : []"},
        {"\"has_contact\" : false", "\"has_contact\" : 0"},
        {"\"physics_type\" : 2", "\"physics_type\" : 6"},
        {"\"n_nodes\" : 220", "\"n_nodes\" : -1"},
        {"\"topo\" : \"Solid\"", "\"topo\" : \"shell\""},
        {"[0.0, 0.0, -9.81]", "[0.0, -9.81]"},
        {"\"imposed\" : [true, true, false], ", ""},
        {"\"times\" : [1.0, 2.0]", "\"time\" : [1.0, 2.0]"},
        {"\"obj_id\" : 21,", ""},
    };
    for (const auto& [what, into] : changes)
        EXPECT_THAT(faultsBySchema(documents, {folder.file("wrong", changed(sound, what, into))}),
                    HasSubstr("wrong: $"))
            << what << " into " << into;
}

/// Returns the text of the valid project "02-mixed" of the corpus.
std::string projectFile(const std::string& name)
{
    return dataPath("projects/" + name + ".vxmat");
}

TEST(Schema, FitsProjectsWithObjectsOfOtherClasses)
{
    const Folder folder;
    std::vector<std::string> files;
    for (const char* const name : {"01-materials", "02-mixed", "03-other-class", "04-any-order",
                                   "05-members-of-later-programs", "07-settings", "08-settings-of-objects"})
    {
        const projectfile::ProjectRecord project = projectfile::readProject(vxtest::readText(projectFile(name)));
        files.push_back(projectFile(name));
        files.push_back(folder.file(name, projectfile::writeProject(project)));
    }
    EXPECT_EQ(faultsBySchema(projects, files), "");
}

TEST(Schema, RefusesInvalidObjectsOfOtherClasses)
{
    const Folder folder;
    const std::string sound = vxtest::readText(projectFile("02-mixed"));
    const std::pair<std::string, std::string> changes[] = {
        {"\"format_version\": 1,", "\"format_version\": 1, \"class\": \"\","},
        {"\"format_version\": 1,", "\"format_version\": 1, \"properties\": [],"},
        {"\"format_version\": 1,", R"("format_version": 1, "settings": ["SI"],)"},
        {"\"format_version\": 1,", R"("format_version": 1, "settings": {"unit_system": 3},)"},
        {"\"format_version\": 1,", R"("format_version": 1, "settings": {"later": 3},)"},
        {"\"object_id\": 3", "\"object_id\": 0"},
        {"\"object_id\": 3", R"("object_id": 3, "settings": [])"},
        {"\"object_id\": 3", R"("object_id": 3, "settings": {})"},
        {"\"object_id\": 3", R"("object_id": 3, "settings": {"later": 3})"},
        {"\"class\": \"Stub::Probe\",", ""},
        {"\"class\": \"Stub::Probe\"", R"("class": "Stub\u0000Probe")"},
        {"\"class\": \"Stub::Probe\"", R"("class": "Mat::MaterialObject")"},
        {"\"name_internal\": \"Probe\"", "\"name_internal\": \"\""},
        {"\"label\": \"Probe A\"", "\"label\": 7"},
        {"\"properties\": {\n    \"Depth\": 0.5,", "\"properties\": [], \"more\": {"},
        {"\"node\": {\n    \"Expanded\": false", "\"node\": null, \"more\": {\"a\": 1"},
        {"    3,\n    1\n", "    3,\n    3\n"},
        {"    3,\n    1\n", "    0\n"},
        {"\"objects\": [\n  {\n   \"object_id\"", "\"objects\": [7,\n  {\n   \"object_id\""},
    };
    std::vector<std::string> files;
    for (const auto& [what, into] : changes) {
        files.push_back(folder.file("wrong" + std::to_string(files.size()), changed(sound, what, into)));
    }
    const std::string faults = faultsBySchema(projects, files);
    for (const std::string& file : files)
        EXPECT_THAT(faults, HasSubstr(file + ": $"));
}

} // namespace
