#include "DataFile.h"
#include "VxmatTesting.h"

#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectStore.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using vxtest::dataPath;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::shell;
using vxtest::vxmat;

projectfile::ProjectRecord readProject(const std::string& path)
{
    return projectfile::readProject(vxtest::readText(path));
}

std::vector<std::string> labelsOf(const projectfile::ProjectRecord& project)
{
    std::vector<std::string> labels;
    for (const auto& object : project.objects)
        labels.push_back(std::to_string(object.objectId) + " " + object.label);
    return labels;
}

TEST(New, MakesAProjectOfLibraryMaterials)
{
    const Folder folder;
    const std::string file = folder.path("My parts.vxmat");
    const Outcome run = vxmat({"new", "structural steel=Frame = \xE9\x92\xA2", "Air", "-o", file});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "");
    const auto project = readProject(file);
    EXPECT_EQ(project.name, "My parts");
    EXPECT_EQ(project.nextObjectId, 3U);
    EXPECT_THAT(labelsOf(project), ElementsAre("1 Frame = \xE9\x92\xA2", "2 Air"));
    EXPECT_EQ(project.objects[0].className, "Mat::MaterialObject");
    EXPECT_EQ(project.objects[0].material->name, "Structural Steel");
    EXPECT_EQ(project.objects[1].material->libraryGroup, 0) << "it is the user's own";
    EXPECT_THAT(folder.names(), ElementsAre("My parts.vxmat")) << "no lock file is left";
}

TEST(New, MakesMaterialsWithoutQuantities)
{
    const Folder folder;
    const std::string file = folder.path("p.vxmat");
    const Outcome run = vxmat({"new", "--empty", "Mine", "Air", "--empty", "Air=2", "-o", file});
    EXPECT_EQ(run.status, 0) << run.err;
    const auto project = readProject(file);
    EXPECT_THAT(labelsOf(project), ElementsAre("1 Air", "2 Mine", "3 Air=2"));
    EXPECT_THAT(project.objects[1].material->properties, IsEmpty());
    EXPECT_EQ(project.objects[1].material->name, "Mine");
    EXPECT_THAT(vxmat({"new", "-o", folder.path("q.vxmat")}).err, HasSubstr("the project needs a material"));
    EXPECT_THAT(vxmat({"new", "Air", "--empty", "Air", "-o", "-"}).err, HasSubstr("another material has the label"));
    EXPECT_THAT(vxmat({"new", "--empty", "", "-o", "-"}).err, HasSubstr("the label must not be empty"));
    EXPECT_THAT(folder.names(), ElementsAre("p.vxmat"));
}

TEST(New, KeepsEveryFieldOfTheLibrary)
{
    for (const auto& entry : vxMat::libraryEntries()) {
        const auto original = entry.create();
        SCOPED_TRACE(original->name);
        const auto project = projectfile::readProject(vxmat({"new", original->name, "-o", "-"}).out);
        ASSERT_THAT(project.objects, SizeIs(1));
        const auto& material = *project.objects[0].material;
        ASSERT_EQ(material.properties.size(), original->properties.size());
        for (const auto& [slot, property] : original->properties) {
            const vxMat::MaterialProperty* const kept = material.findProperty(slot);
            ASSERT_NE(kept, nullptr);
            EXPECT_EQ(kept->id, property->id);
            EXPECT_EQ(kept->name, property->name);
            EXPECT_EQ(kept->value, property->value);
            EXPECT_EQ(kept->text, property->text);
            EXPECT_EQ(kept->values, property->values);
            EXPECT_EQ(kept->unit, property->unit);
            EXPECT_EQ(kept->description, property->description);
            EXPECT_EQ(kept->category, property->category);
        }
    }
}

TEST(New, RefusesUnknownNamesAndInvalidLabels)
{
    const Folder folder;
    const std::string file = folder.path("x.vxmat");
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"Watr"}, "no material is called \"Watr\"; did you mean \"Water\"?"},
        {{"Air="}, "Air=: the label must not be empty"},
        {{"Air", "air"}, "air: another material has the label \"Air\" already; NAME=LABEL gives it another"},
        {{"Air=x", "Water=x"}, "Water=x: another material has the label \"x\" already"},
    };
    for (const auto& [names, reason] : cases) {
        std::vector<std::string> arguments{"new"};
        arguments.insert(arguments.end(), names.begin(), names.end());
        arguments.insert(arguments.end(), {"-o", file});
        const Outcome run = vxmat(arguments);
        EXPECT_EQ(run.status, 2) << names[0];
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, StartsWith("vxmat: " + reason));
    }
    EXPECT_THAT(shell("\"$VXMAT\" new \"$(printf 'Air=\\377')\" -o -").err, HasSubstr("the label is not UTF-8"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(New, LeavesTheOldFileUnchangedIfWritingFails)
{
    const Folder folder;
    const std::string file = folder.file("old.vxmat", "old");
    const Outcome full =
        shell("ulimit -f 1; trap '' XFSZ; \"$VXMAT\" new 'Structural Steel' --force -o '" + file + "'");
    EXPECT_EQ(full.status, 2);
    EXPECT_THAT(full.err, StartsWith("vxmat: " + file + ": "));
    EXPECT_EQ(vxtest::readText(file), "old");
    EXPECT_EQ(vxmat({"new", "Air", "-o", folder.path("no/such.vxmat")}).status, 2);
    EXPECT_THAT(vxmat({"new", "Air", "-o", folder.path("")}).err, HasSubstr("Is a directory"));
    EXPECT_THAT(vxmat({"new", "Air", "-o", "/dev/full"}).err, StartsWith("vxmat: /dev/full: No space left on device"));
    EXPECT_THAT(folder.names(), ElementsAre("old.vxmat"));
}

TEST(New, DoesNotWriteToAFileThatAnotherProgramHasOpen)
{
    const Folder folder;
    const std::string file = folder.path("open.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", file}).status, 0);
    const std::string before = vxtest::readText(file);
    {
        projectfile::FileLock lock(QString::fromStdString(file));
        ASSERT_TRUE(lock.tryLock());
        for (const char* const command : {"new", "export"}) {
            const Outcome run = vxmat({command, "Water", "-o", file, "--force"});
            EXPECT_EQ(run.status, 2);
            EXPECT_THAT(run.err, StartsWith("vxmat: " + file + ": another program has it open: "));
            EXPECT_EQ(vxtest::readText(file), before);
        }
    }
    EXPECT_EQ(vxmat({"new", "Water", "-o", file, "--force"}).status, 0);
    EXPECT_NE(vxtest::readText(file), before);
}

TEST(New, ReplacesAProjectOnlyByForce)
{
    const Folder folder;
    const std::string file = folder.path("p.vxmat");
    const std::string document = folder.path("d.json");
    ASSERT_EQ(vxmat({"new", "Air", "-o", file}).status, 0);
    ASSERT_EQ(vxmat({"export", "Water", "-o", document}).status, 0);
    const std::string before = vxtest::readText(file);
    const std::vector<std::vector<std::string>> commands{
        {"new", "Water", "-o", file}, {"import", document, "-o", file}, {"export", "Water", "-o", file}};
    for (const std::vector<std::string>& command : commands) {
        SCOPED_TRACE(command.front());
        const Outcome run = vxmat(command);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err, "vxmat: " + file +
                               ": this file exists already; give another name, or --force to replace "
                               "it\n");
        EXPECT_EQ(vxtest::readText(file), before);
    }
    EXPECT_EQ(vxmat({"export", "Air", "-o", document}).status, 0)
        << "documents are replaced, as they can be made again";
    for (std::vector<std::string> command : commands) {
        command.emplace_back("--force");
        EXPECT_EQ(vxmat(command).status, 0);
        EXPECT_NE(vxtest::readText(file), before);
    }
    EXPECT_THAT(folder.names(), ElementsAre("d.json", "p.vxmat"));
}

TEST(New, TakesOverTheLockOfAnotherComputerByForce)
{
    const Folder folder;
    const std::string file = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", file}).status, 0);
    const std::string before = vxtest::readText(file);
    folder.file(".p.vxmat.lock", "4711\nkelta\nfaraway\n0123456789abcdef\n0123456789abcdef\n");
    const Outcome run = vxmat({"new", "Water", "-o", file});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vxmat: " + file +
                           ": another program has it open: kelta (4711 on faraway); if this program no longer runs, "
                           "--force takes over its lock\n");
    EXPECT_EQ(vxtest::readText(file), before);
    EXPECT_EQ(vxmat({"new", "Water", "-o", file, "--force"}).status, 0);
    EXPECT_NE(vxtest::readText(file), before);
    EXPECT_THAT(folder.names(), ElementsAre("p.vxmat"));
}

TEST(New, RefusesALockFileThatIsAPipe)
{
    const Folder folder;
    const Outcome run = shell("cd '" + folder.path("") + "' && mkfifo .p.vxmat.lock && \"$VXMAT\" new Air -o p.vxmat");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("Its lock file './.p.vxmat.lock' is not a regular file. Remove it."));
}

TEST(Import, RestoresDataFromTheCatalogueAndReportsUnknownData)
{
    const Folder folder;
    const std::string document = folder.path("d.json");
    const std::string file = folder.path("parts.vxmat");
    ASSERT_EQ(vxmat({"export", "Plastic Example 2=7", "Air=3", "-o", document}).status, 0);
    const Outcome run = vxmat({"import", document, "-o", file});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "vxmat: " + document +
                           ": material 7 \"Plastic Example 2\": property 33 \"Yield type\": documents carry no words; "
                           "\"Mises\" of the catalogue was taken\n");
    const auto project = readProject(file);
    EXPECT_EQ(project.name, "parts");
    EXPECT_THAT(labelsOf(project), ElementsAre("3 Air", "7 Plastic Example 2"));
    EXPECT_EQ(project.objects[0].material->findProperty(4)->unit, "kg/m3");
    EXPECT_EQ(project.objects[0].material->findProperty(4)->value, 1.225);
    EXPECT_THAT(folder.names(), ElementsAre("d.json", "parts.vxmat"));
}

TEST(Import, PrintsNothingIfTheCatalogueHasAllData)
{
    const Folder folder;
    const std::string document = folder.path("d.json");
    ASSERT_EQ(vxmat({"export", "Structural Steel", "Elastomer 1 (Neo-Hookean)", "-o", document}).status, 0);
    const Outcome run = vxmat({"import", document, "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    const Outcome same = vxmat({"new", "Structural Steel", "Elastomer 1 (Neo-Hookean)", "-o", folder.path("n.vxmat")});
    ASSERT_EQ(same.status, 0);
    EXPECT_EQ(vxmat({"diff", folder.path("p.vxmat"), folder.path("n.vxmat")}).out, "");
}

TEST(Import, PrintsEachDoubtOnOneLine)
{
    const Outcome run = vxmat({"import", "-", "-o", "-"}, R"({"proj_type": 2, "material": [{"mat_id": 1,
        "mat_name": "x\ny", "Props": [{"prop_type": 38, "prop_value": 0}, {"prop_type": 77, "prop_value": 0}]}]})");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, StartsWith("vxmat: -: material 1 \"x\\u000ay\": property 38 "));
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 2);
    EXPECT_EQ(projectfile::readProject(run.out).name, "Materials");
}

TEST(Import, RefusesATextWithHalfOfASurrogatePair)
{
    const Folder folder;
    const std::string file = folder.path("p.vxmat");
    const Outcome run =
        vxmat({"import", "-", "-o", file}, R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "\udc00"}]})");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, StartsWith("vxmat: "));
    EXPECT_THAT(run.err, HasSubstr("half of a surrogate pair"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(Import, ReportsRepeatedMembers)
{
    const Outcome run = vxmat({"import", dataPath("documents/14-repeated-members.json"), "-o", "-"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("14-repeated-members.json: $.material[0].mat_name: occurs more than once"));
}

TEST(Import, RefusesFilesThatAreNotMaterialDocuments)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", project}).status, 0);
    const std::pair<std::string, std::string> cases[] = {
        {project, "it is a project file, which needs no import"},
        {dataPath("documents/03-analysis.json"), "an analysis document holds no materials; give the material document"},
        {dataPath("documents/18-unknown-project-type.json"), "it is not a material document: \"proj_type\" must be 2"},
        {dataPath("documents/10-wrong-kinds.json"), "$.material[0].mat_id: is a text; a number is needed"},
    };
    for (const auto& [file, reason] : cases) {
        const Outcome run = vxmat({"import", file, "-o", folder.path("out.vxmat")});
        EXPECT_EQ(run.status, 2) << file;
        EXPECT_EQ(run.err, std::string("vxmat: ").append(file).append(": ").append(reason).append("\n"));
    }
    EXPECT_THAT(folder.names(), ElementsAre("p.vxmat"));
}

TEST(Import, DoesNotWriteOverTheDocumentThatItReads)
{
    const Folder folder;
    const std::string file = folder.path("d.json");
    ASSERT_EQ(vxmat({"export", "Air", "-o", file}).status, 0);
    const std::string before = vxtest::readText(file);
    const Outcome run =
        shell("cd '" + folder.path("") + "' && ln -s d.json link.vxmat && \"$VXMAT\" import d.json -o link.vxmat");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err,
              "vxmat: link.vxmat: this file is an input too and would be overwritten; give another output file\n");
    EXPECT_EQ(vxtest::readText(file), before);
}

} // namespace
