#include "DataFile.h"
#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::shell;
using vxtest::vxmat;

/// Returns the text of a valid project file with the first `what` replaced.
std::string projectWith(const std::string& what, const std::string& into)
{
    std::string text = vxmat({"new", "Air", "-o", "-"}).out;
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return at == std::string::npos ? text : text.replace(at, what.size(), into);
}

TEST(Files, AreRefusedWithTheReasonIfTheyAreInvalid)
{
    const Folder folder;
    const std::string sound = folder.file("sound.vxmat", projectWith("", ""));
    const std::string project = vxtest::readText(sound);
    const std::pair<std::string, std::string> cases[] = {
        {folder.path("missing.json"), "No such file or directory"},
        {folder.path(""), "Is a directory"},
        {folder.file("empty.json", ""), "the file is empty"},
        {folder.file("blank.json", " \n"), "the file is empty"},
        {folder.file("list.json", "[1, 2]"), "a JSON object is needed"},
        {folder.file("number.json", "17"), "a JSON object is needed"},
        {folder.file("text.json", "{\n  \"a\": steel}"), "line 2, column 8: 'steel' is not a JSON value"},
        {folder.file("cut.json", "{\"material\": [{\"mat_id\": 1"), "line 1, column 27: the text ends too early"},
        {folder.file("huge.json", "{\"a\": 1e999}"), "line 1, column 7: '1e999' is beyond the range of a double"},
        {folder.file("deep.json", std::string(100000, '[')), "nested more than 1000 levels deep"},
        {folder.file("bytes.json", std::string("\0\x01\xff", 3)), "line 1, column 3: the text is not UTF-8"},
        {folder.file("image.json", std::string("\x89PNG\r\n\x1a\n\0\0", 10)),
         "line 1, column 1: the text is not UTF-8"},
        {folder.file("foreign.json", R"({"name": "package", "version": "1.0.0", "dependencies": {}})"),
         "neither an exchange document nor a project file: it has no member of either format"},
        {folder.file("foreign.vxmat", R"({"format": "another program", "format_version": 1})"),
         "neither an exchange document nor a project file: it has no member of either format"},
        {folder.file("cut.vxmat", project.substr(0, project.size() / 2)), "line "},
        {folder.file("later.vxmat", projectWith("\"format_version\": 1", "\"format_version\": 2")), "later version"},
        {folder.file("latin.vxmat", projectWith("\"label\": \"Air\"", "\"label\": \"L\xfc"
                                                                      "ft\"")),
         "the text is not UTF-8"},
        {folder.file("deep.vxmat", projectWith("\"suppressed\": false", "\"new\": " + std::string(2000, '['))),
         "nested more than 1000 levels deep"},
        {folder.file("kind.vxmat", projectWith("\"value\": 1.225", "\"value\": \"many\"")), "value"},
        {folder.file("twice.vxmat", projectWith("\"name\": \"Materials\"", "\"name\": \"a\", \"name\": \"b\"")),
         "name"},
        {folder.file("range.vxmat", projectWith("\"object_id\": 1", "\"object_id\": 4294967296")), "object_id"},
        {folder.file("other.vxmat", projectWith("\"object_id\": 1", "\"object_id\": 3")), "object"},
        {"", "the name of a file is empty"},
    };
    const std::vector<std::vector<std::string>> commands{
        {"check", "FILE"},
        {"check", vxtest::dataPath("documents/03-analysis.json"), "--materials", "FILE"},
        {"query", "FILE"},
        {"query", vxtest::dataPath("documents/03-analysis.json"), "--materials", "FILE"},
        {"import", "FILE", "-o", folder.path("out")},
        {"diff", "FILE", sound},
        {"diff", sound, "FILE"},
        {"cards", "FILE"},
        {"show", "FILE"},
        {"export", "FILE", "-o", folder.path("out")}};
    for (const auto& [file, reason] : cases) {
        for (std::vector<std::string> command : commands) {
            if (file.empty() && (command[0] == "cards" || command[0] == "show" || command[0] == "export"))
                continue; // these treat an empty argument as a material
            std::replace(command.begin(), command.end(), std::string("FILE"), file);
            const Outcome run = vxmat(command);
            EXPECT_EQ(run.status, 2) << command[0] << " " << file;
            EXPECT_EQ(run.out, "");
            EXPECT_THAT(run.err, StartsWith("vxmat: " + (file.empty() ? "" : file + ": "))) << command[0];
            // These subcommands refuse every project, whether it is valid or not.
            const bool refusesProjects = command[0] == "import" || (command[0] == "query" && command.size() == 2);
            if (!refusesProjects || file.find(".vxmat") == std::string::npos) {
                EXPECT_THAT(run.err, HasSubstr(reason)) << command[0];
            }
        }
    }
    EXPECT_THAT(folder.names(), testing::Not(testing::Contains("out")));
}

TEST(Files, AreRefusedIfTheyAreNotReadable)
{
    // Root may read every file unless the program runs without that capability.
    const Folder folder;
    const std::string file = folder.file("secret.json", "{}");
    const Outcome run = shell("chmod 000 '" + file + "'; drop=; if [ -r '" + file +
                              "' ]; then drop='setpriv --bounding-set -dac_override,-dac_read_search'; fi; "
                              "exec $drop \"$VXMAT\" check '" +
                              file + "'");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("Permission denied"));
}

TEST(Files, AreProjectsAlsoIfTheFormatMemberIsWrittenWithEscapes)
{
    EXPECT_EQ(vxmat({"cards", "-"}, projectWith("\"format\"", "\"\\u0066ormat\"")).out,
              vxmat({"cards", "-"}, projectWith("", "")).out);
}

TEST(Files, MayBeStandardInput)
{
    EXPECT_EQ(vxmat({"check", "-"}, R"({"proj_type": 2})").status, 0);
    EXPECT_THAT(vxmat({"check", "-"}, "").err, HasSubstr("the file is empty"));
}

TEST(Files, MayHaveNamesWithBlanksQuotesAndChinese)
{
    const Folder folder;
    const std::string file = folder.path("\xe6\x9d\x90 'x\" \xc3\xa9.json");
    EXPECT_EQ(vxmat({"export", "Air", "-o", file}).status, 0);
    EXPECT_EQ(vxmat({"check", file}).status, 0);
}

TEST(Files, MayHaveANameThatBeginsWithAColon)
{
    const Folder folder;
    const Outcome run =
        shell("cd '" + folder.path("") + "' && \"$VXMAT\" export Air -o :air.json && \"$VXMAT\" check :air.json");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(folder.names(), testing::ElementsAre(":air.json"));
}

TEST(Files, AreRefusedIfTheirNameIsNotUtf8)
{
    const Folder folder;
    const Outcome run = shell("cd '" + folder.path("") + "' && \"$VXMAT\" export Air -o \"$(printf 'bad\\377.json')\"");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("the name is not UTF-8"));
    EXPECT_THAT(folder.names(), testing::IsEmpty());
}

TEST(Files, KeepPermissionsAndTheTargetOfALink)
{
    const Folder folder;
    folder.file("target.json", "old");
    const Outcome run = shell("cd '" + folder.path("") +
                              "' && chmod 640 target.json && ln -s target.json link.json && "
                              "\"$VXMAT\" export Air -o link.json && stat -c %a target.json && test -L link.json");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "640\n");
    EXPECT_THAT(vxtest::readText(folder.path("target.json")), HasSubstr("\"Air\""));
}

TEST(Files, KeepTheirContentIfTheyAreOpenAlready)
{
    const Folder folder;
    for (const char* const output : {"-", "/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"}) {
        folder.file("log", "before\n");
        const Outcome run = shell("cd '" + folder.path("") + "' && \"$VXMAT\" export Air -o " + output +
                                  " >> log && echo after >> log");
        EXPECT_EQ(run.status, 0) << output << run.err;
        const std::string log = vxtest::readText(folder.path("log"));
        EXPECT_THAT(log, StartsWith("before\n{\n")) << output;
        EXPECT_THAT(log, HasSubstr("}\nafter\n")) << output;
    }
}

TEST(Files, AreRefusedIfReadingThemWouldNeverBeginOrNeverEnd)
{
    const Folder folder;
    const Outcome pipe = shell("cd '" + folder.path("") + "' && mkfifo pipe && \"$VXMAT\" check pipe");
    EXPECT_EQ(pipe.status, 2);
    EXPECT_EQ(pipe.err, "vxmat: pipe: this is a device or a pipe; a file is needed, or \"-\" for standard input\n");
    EXPECT_EQ(vxmat({"cards", "/dev/zero"}).err,
              "vxmat: /dev/zero: this is a device or a pipe; a file is needed, or \"-\" for standard input\n");
}

TEST(Files, AreReadOnlyAsFarAsTheyCanBeDocuments)
{
    EXPECT_THAT(shell("\"$VXMAT\" check - </dev/zero").err, HasSubstr("line 1, column 1: a zero byte"));
    EXPECT_THAT(shell("yes | \"$VXMAT\" check -").err, HasSubstr("line 1, column 1: 'y' is not a JSON value"));
}

TEST(Files, MayBeReadFromADescriptorThatIsOpen)
{
    for (const char* const path : {"/dev/stdin", "/dev/fd/0", "/proc/self/fd/0"})
        EXPECT_EQ(vxmat({"check", path}, R"({"proj_type": 2})").status, 0) << path;
}

TEST(Files, MayBePipes)
{
    const Folder folder;
    const Outcome run =
        shell("cd '" + folder.path("") + "' && mkfifo pipe && (\"$VXMAT\" export Air -o pipe & cat pipe)");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("\"Air\""));
}

} // namespace
