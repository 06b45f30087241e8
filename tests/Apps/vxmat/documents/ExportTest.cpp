#include "DataFile.h"
#include "VxmatTesting.h"

#include "projectfile/ProjectFile.h"
#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::shell;
using vxtest::vxmat;

std::map<unsigned, std::string> numbersAndNames(const std::string& text)
{
    std::map<unsigned, std::string> materials;
    const auto reading = vxjson::readJsonText(text);
    EXPECT_FALSE(reading.error);
    EXPECT_EQ(reading.document["proj_type"], 2);
    for (const Json::Value& material : reading.document["material"])
        materials[material["mat_id"].asUInt()] = material["mat_name"].asString();
    return materials;
}

using Materials = std::map<unsigned, std::string>;

TEST(Export, NumbersMaterialsFromOne)
{
    const Folder folder;
    const Outcome run = vxmat({"export", "air", "Water", "-o", folder.path("out.json")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(numbersAndNames(vxtest::readText(folder.path("out.json"))), (Materials{{1, "Air"}, {2, "Water"}}));
}

TEST(Export, UsesGivenNumbersAndSkipsThemForOtherMaterials)
{
    const Outcome run = vxmat({"export", "Air", "Water=1", "Concrete", "Cast Iron=4294967295", "Air=0", "-o", "-"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(numbersAndNames(run.out),
              (Materials{{0, "Air"}, {1, "Water"}, {2, "Air"}, {3, "Concrete"}, {4294967295U, "Cast Iron"}}));
}

TEST(Export, WritesTheFormatOfTheStyledWriter)
{
    const std::string text = vxmat({"export", "Air", "Acoustic Material 2=9", "-o", "-"}).out;
    EXPECT_EQ(text, vxjson::toStyledText(vxjson::readJsonText(text).document));
    EXPECT_EQ(text.substr(0, 49), "{\n   \"material\" : [\n      {\n         \"Props\" : [\n");
}

TEST(Export, RefusesInvalidAndRepeatedNumbers)
{
    for (const char* const argument : {"Air=x", "Air=", "Air=-1", "Air=4294967296", "Air=1.5", "Air= 1"}) {
        const Outcome run = vxmat({"export", argument, "-o", "-"});
        EXPECT_EQ(run.status, 2) << argument;
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr("a whole number from 0 to 4294967295 is needed"));
    }
    const Outcome twice = vxmat({"export", "Air=1", "Water=1", "-o", "-"});
    EXPECT_EQ(twice.status, 2);
    EXPECT_EQ(twice.err, "vxmat: Water=1: another material has this number already\n");
}

TEST(Export, WritesNothingForAnUnknownName)
{
    const Folder folder;
    const Outcome run = vxmat({"export", "Air", "Wather", "-o", folder.path("out.json")});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("did you mean \"Water\"?"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(Export, NotesTheWordsAndListsThatAreLost)
{
    const Outcome run = vxmat({"export", "Plastic Example 1", "-o", "-"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err,
              "vxmat: note: Plastic Example 1: exchange documents carry no words and lists; lost: \"Yield type\", "
              "\"Hardening type\", \"Yield stress\", \"Plastic strain\"\n");
}

TEST(Export, KeepsTheOldFileIfWritingFails)
{
    const Folder folder;
    const std::string file = folder.file("old.json", "old");
    // Root may write to every folder, so a limit of one block for the size of files simulates a full disk.
    const Outcome run =
        shell("ulimit -f 1; trap '' XFSZ; \"$VXMAT\" export 'Structural Steel' Air Water Concrete -o '" + file + "'");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("vxmat: " + file + ": "));
    EXPECT_EQ(vxtest::readText(file), "old");
    EXPECT_THAT(folder.names(), ElementsAre("old.json"));
}

TEST(Export, ReportsWhyAFileCannotBeWritten)
{
    const Folder folder;
    const Outcome missing = vxmat({"export", "Air", "-o", folder.path("no/such/folder.json")});
    EXPECT_EQ(missing.status, 2);
    EXPECT_THAT(missing.err, HasSubstr("folder.json: No such file or directory"));
    const Outcome isFolder = vxmat({"export", "Air", "-o", folder.path("")});
    EXPECT_EQ(isFolder.status, 2);
    EXPECT_THAT(isFolder.err, HasSubstr(": Is a directory"));
    const Outcome full = vxmat({"export", "Air", "-o", "/dev/full"});
    EXPECT_EQ(full.status, 2);
    EXPECT_THAT(full.err, HasSubstr("vxmat: /dev/full: No space left on device"));
}

TEST(Export, WritesTheMaterialsOfAProjectWithTheirNumbersAndLabels)
{
    const Folder folder;
    const std::string document = folder.path("d.json");
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"export", "Air=7", "Water=3", "-o", document}).status, 0);
    ASSERT_EQ(vxmat({"import", document, "-o", project}).status, 0);
    const Outcome again = vxmat({"export", project, "-o", "-"});
    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(numbersAndNames(again.out), (Materials{{3, "Water"}, {7, "Air"}}));
    // The texts may differ in the order of the properties, which has no meaning.
    EXPECT_EQ(vxmat({"diff", "-", document}, again.out).status, 0);
    EXPECT_EQ(vxmat({"export", "-", "-o", "-"}, vxtest::readText(project)).out, again.out);

    ASSERT_EQ(vxmat({"new", "Air=Wind", "-o", project, "--force"}).status, 0);
    const Outcome run = vxmat({"export", "Water", project, "Concrete=9", "-o", "-"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(numbersAndNames(run.out), (Materials{{1, "Wind"}, {2, "Water"}, {9, "Concrete"}}));
    EXPECT_EQ(vxmat({"export", "Water=1", project, "-o", "-"}).err,
              "vxmat: " + project + ": Wind: another material has this number already\n");
}

TEST(Export, NotesTheWordsAndListsOfAProjectThatAreLost)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Plastic Example 2=Clay", "-o", project}).status, 0);
    const Outcome run = vxmat({"export", project, "-o", "-"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "vxmat: note: Clay: exchange documents carry no words and lists; lost: \"Yield type\"\n");
}

TEST(Export, NotesWhatAProjectKeepsBesideAMaterial)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", project}).status, 0);
    projectfile::ProjectRecord record = projectfile::readProject(vxtest::readText(project));
    record.objects.at(0).settings = {{"later", "l"}, {"measurements", "m"}};
    folder.file("p.vxmat", projectfile::writeProject(record));
    const Outcome run = vxmat({"export", project, "-o", "-"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "vxmat: note: Air: exchange documents carry no data that a project keeps beside a material; "
                       "left out: \"later\", \"measurements\"\n");
    EXPECT_EQ(run.out.find("measurements"), std::string::npos);
}

TEST(Export, PrefersALibraryMaterialToAFileWithTheSameName)
{
    const Folder folder;
    ASSERT_EQ(vxmat({"new", "Water", "-o", folder.path("Air")}).status, 0);
    const Outcome name = shell("cd '" + folder.path("") + "' && \"$VXMAT\" export Air -o -");
    EXPECT_EQ(numbersAndNames(name.out), (Materials{{1, "Air"}}));
    const Outcome file = shell("cd '" + folder.path("") + "' && \"$VXMAT\" export ./Air -o -");
    EXPECT_EQ(numbersAndNames(file.out), (Materials{{1, "Water"}}));
}

TEST(Export, AcceptsAProjectWithAnEqualsSignInItsName)
{
    const Folder folder;
    const std::string project = folder.path("a=b=1.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", project}).status, 0);
    EXPECT_EQ(numbersAndNames(vxmat({"export", project, "-o", "-"}).out), (Materials{{1, "Air"}}));
}

TEST(Export, RefusesFilesThatAreNotProjects)
{
    const Folder folder;
    const std::string document = folder.path("d.json");
    ASSERT_EQ(vxmat({"export", "Air", "-o", document}).status, 0);
    const Outcome run = vxmat({"export", document, "-o", folder.path("e.json")});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vxmat: " + document + ": not a project file; give library materials or project files\n");
    EXPECT_THAT(vxmat({"export", "./missing", "-o", "-"}).err, HasSubstr("vxmat: ./missing: No such file"));
    EXPECT_THAT(vxmat({"export", "missing", "-o", "-"}).err,
                HasSubstr(R"("vxmat library" lists them. There is no file of that name either.)"));
    EXPECT_THAT(vxmat({"export", "Concret", "-o", "-"}).err,
                HasSubstr(R"(did you mean "Concrete"? There is no file of that name either.)"));
    EXPECT_THAT(folder.names(), ElementsAre("d.json"));
}

TEST(Export, DoesNotWriteOverTheProjectThatItReads)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", project}).status, 0);
    const std::string before = vxtest::readText(project);
    const Outcome run = vxmat({"export", project, "-o", project});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("this file is an input too and would be overwritten"));
    EXPECT_EQ(vxtest::readText(project), before);
}

TEST(Export, RefusesValuesThatReadersRefuse)
{
    const auto projectOf = [](const std::string& property) {
        return R"({"format": "vxMaterial project", "format_version": 1, "name": "p", "next_object_id": 2, "materials":
            [{"object_id": 1, "class": "Mat::MaterialObject", "name_internal": "m", "label": "M", "material":
            {"properties": [)" +
               property + "]}}]}";
    };
    const Outcome infinite = vxmat({"export", "-", "-o", "-"}, projectOf(R"({"id": 4, "value": "Infinity"})"));
    EXPECT_EQ(infinite.status, 2);
    EXPECT_EQ(infinite.out, "");
    EXPECT_EQ(infinite.err, "vxmat: -: M: property 4 \"\" is inf; exchange documents carry only finite numbers\n");
    const Outcome below = vxmat({"export", "-", "-o", "-"}, projectOf(R"({"held_as": -1, "name": "x", "value": 1})"));
    EXPECT_EQ(below.status, 2);
    EXPECT_THAT(below.err, HasSubstr("property -1 \"x\" has an id below 0"));
}

} // namespace
