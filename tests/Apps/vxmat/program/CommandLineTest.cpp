#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using vxtest::Outcome;
using vxtest::shell;
using vxtest::vxmat;

TEST(CommandLine, PrintsItsVersion)
{
    const Outcome run = vxmat({"--version"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, StartsWith("vxmat "));
}

TEST(CommandLine, ShowsAnExampleOfEverySubcommand)
{
    for (const char* const command :
         {"library", "catalogue", "show", "new", "import", "export", "cards", "check", "diff", "query"})
    {
        EXPECT_THAT(vxmat({"--help"}).out, HasSubstr("\n  vxmat " + std::string(command)));
        const Outcome run = vxmat({command, "--help"});
        EXPECT_EQ(run.status, 0);
        EXPECT_THAT(run.out, HasSubstr("Example:\n  vxmat " + std::string(command)));
        EXPECT_EQ(run.err, "");
    }
}

TEST(CommandLine, RefusesUnknownSubcommandsAndInvalidArguments)
{
    const Outcome unknown = vxmat({"frobnicate"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.out, "");
    EXPECT_EQ(unknown.err, "vxmat: there is no subcommand \"frobnicate\"; \"vxmat --help\" lists the subcommands\n");
    for (const auto& arguments : std::vector<std::vector<std::string>>{{},
                                                                       {"library", "--frob"},
                                                                       {"show"},
                                                                       {"export", "Air"},
                                                                       {"check"},
                                                                       {"new", "Air"},
                                                                       {"new", "-o", "x"},
                                                                       {"import", "x"},
                                                                       {"import", "-o", "x"},
                                                                       {"diff", "a"},
                                                                       {"diff", "a", "b", "c"},
                                                                       {"query", "a", "b"},
                                                                       {"query", "a", "--project", "x"}})
    {
        const Outcome run = vxmat(arguments);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, StartsWith("vxmat: "));
    }
}

TEST(CommandLine, ReportsThatStandardOutputIsFull)
{
    const Outcome run = shell("\"$VXMAT\" library > /dev/full");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vxmat: standard output: No space left on device\n");
    for (const char* const arguments : {"--help", "--version", "show --help"})
        EXPECT_EQ(shell("\"$VXMAT\" " + std::string(arguments) + " > /dev/full").status, 2) << arguments;
}

TEST(CommandLine, WritesDecimalPointsInEveryLocale)
{
    const Outcome run = shell("LC_ALL=de_DE.UTF-8 \"$VXMAT\" show air && LC_ALL=de_DE.UTF-8 \"$VXMAT\" cards air");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr(" 1.225 "));
    EXPECT_THAT(run.out, HasSubstr(" 0.0242, 1e+06\n"));
}

} // namespace
