#include "DataFile.h"
#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::shell;
using vxtest::vxmat;

TEST(Files, SayWhatIsWrongWithWhatCannotBeRead)
{
    const Folder folder;
    const std::pair<std::string, std::string> cases[] = {
        {folder.path("missing.json"), "No such file or directory"},
        {folder.path(""), "Is a directory"},
        {folder.file("empty.json", ""), "the file is empty"},
        {folder.file("blank.json", " \n"), "the file is empty"},
        {folder.file("list.json", "[1, 2]"), "a JSON object is needed"},
        {folder.file("number.json", "17"), "a JSON object is needed"},
        {folder.file("text.json", "{\n  \"a\": steel}"), "line 2, column 8: Syntax error"},
        {folder.file("cut.json", "{\"material\": [{\"mat_id\": 1"), "line 1, column 27: Missing ',' or '}'"},
        {folder.file("huge.json", "{\"a\": 1e999}"), "line 1, column 7: '1e999' is beyond the range of a double"},
        {folder.file("deep.json", std::string(100000, '[')), "nested more than 1000 levels deep"},
        {folder.file("bytes.json", std::string("\0\x01\xff", 3)), "line 1, column 3: the text is not UTF-8"},
        {"", "the name of a file is empty"},
    };
    for (const auto& [file, reason] : cases) {
        for (const char* const command : {"check", "query", "cards"}) {
            if (file.empty() && std::string(command) == "cards")
                continue; // an empty name of a material
            const Outcome run = vxmat({command, file});
            EXPECT_EQ(run.status, 2) << command << file;
            EXPECT_EQ(run.out, "");
            EXPECT_THAT(run.err, StartsWith("vxmat: " + (file.empty() ? "" : file + ": ")));
            EXPECT_THAT(run.err, HasSubstr(reason));
        }
    }
}

TEST(Files, SayThatAFileIsNotReadable)
{
    // The superuser may read everything, unless that power is taken from the program.
    const Folder folder;
    const std::string file = folder.file("secret.json", "{}");
    const Outcome run = shell("chmod 000 '" + file + "'; drop=; if [ -r '" + file +
                              "' ]; then drop='setpriv --bounding-set -dac_override,-dac_read_search'; fi; "
                              "exec $drop \"$VXMAT\" check '" +
                              file + "'");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("Permission denied"));
}

TEST(Files, ReadStandardInput)
{
    EXPECT_EQ(vxmat({"check", "-"}, R"({"proj_type": 2})").status, 0);
    EXPECT_THAT(vxmat({"check", "-"}, "").err, HasSubstr("the file is empty"));
}

TEST(Files, TakeNamesWithBlanksQuotesAndChinese)
{
    const Folder folder;
    const std::string file = folder.path("\xe6\x9d\x90 'x\" \xc3\xa9.json");
    EXPECT_EQ(vxmat({"export", "Air", "-o", file}).status, 0);
    EXPECT_EQ(vxmat({"check", file}).status, 0);
}

TEST(Files, TakeANameThatBeginsWithAColon)
{
    const Folder folder;
    const Outcome run =
        shell("cd '" + folder.path("") + "' && \"$VXMAT\" export Air -o :air.json && \"$VXMAT\" check :air.json");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(folder.names(), testing::ElementsAre(":air.json"));
}

TEST(Files, RefuseANameThatIsNotUtf8RatherThanUseAnother)
{
    const Folder folder;
    const Outcome run = shell("cd '" + folder.path("") + "' && \"$VXMAT\" export Air -o \"$(printf 'bad\\377.json')\"");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("not a UTF-8 text"));
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

TEST(Files, WriteIntoWhatIsOpenAlreadyWithoutThrowingAwayWhatStandsThere)
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

TEST(Files, WriteIntoAPipe)
{
    const Folder folder;
    const Outcome run =
        shell("cd '" + folder.path("") + "' && mkfifo pipe && (\"$VXMAT\" export Air -o pipe & cat pipe)");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("\"Air\""));
}

} // namespace
