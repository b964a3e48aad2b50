#include "RunTool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Vexlor::Apps
{

namespace
{

struct WrongCase
{
    const char* what;
    std::vector<std::string> arguments;
    const char* reason;
};

void PrintTo(const WrongCase& test, std::ostream* out) { *out << test.what; }

class WrongUsage : public testing::TestWithParam<WrongCase>
{
};

TEST_P(WrongUsage, EndsWithTwoAndOneLine)
{
    const auto run = RunTool(GetParam().arguments);
    EXPECT_EQ(2, run.exitCode);
    EXPECT_EQ("", run.out);
    EXPECT_EQ(std::string("vxpresets: ") + GetParam().reason + "; see vxpresets --help\n", run.err);
}

const std::vector<WrongCase> kWrong{
    {"NoCommand", {}, "A subcommand is required"},
    {"UnknownCommand", {"forest"}, "no command \"forest\""},
    {"UnknownOption", {"--forest"}, "no option \"--forest\""},
    {"UnknownOptionOfACommand", {"tree", "--forest"}, "The following argument was not expected: --forest"},
    {"TooManyArguments", {"tree", "forest"}, "The following argument was not expected: forest"},
    {"ShowWithoutAPreset", {"show"}, "PRESET is required"},
    {"MatchWithoutMedia", {"match", "--preset", "MP4"}, "MEDIA is required"},
    {"MatchWithoutAPreset", {"match", "holiday.mov"}, "--preset is required"},
    {"DocumentWithoutAFile", {"tree", "--document"}, "--document: 1 required FILE missing"},
};

INSTANTIATE_TEST_SUITE_P(Lines, WrongUsage, testing::ValuesIn(kWrong),
                         [](const auto& test) { return test.param.what; });

class Help : public testing::TestWithParam<std::vector<std::string>>
{
};

TEST_P(Help, TellsTheExitCodes)
{
    const auto run = RunTool(GetParam());
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ("", run.err);
    EXPECT_THAT(run.out, testing::HasSubstr("Exit codes: 0 done, 1 failed, 2 wrong usage."));
}

using Arguments = std::vector<std::string>;
INSTANTIATE_TEST_SUITE_P(Usage, Help,
                         testing::Values(Arguments{"--help"}, Arguments{"-h"}, Arguments{"match", "--help"}));

TEST(Usage, HelpOfACommandIsItsOwn)
{
    EXPECT_NE(std::string::npos, RunTool({"match", "--help"}).out.find("MEDIA"));
    EXPECT_NE(std::string::npos, RunTool({"codecs", "--help"}).out.find("CODEC"));
}

TEST(Usage, VersionIsTold) { EXPECT_EQ("vxpresets " VX_VERSION "\n", RunTool({"--version"}).out); }

class FullOutput : public testing::TestWithParam<std::vector<std::string>>
{
};

TEST_P(FullOutput, IsAFailure)
{
    const auto run = RunTool(GetParam(), {.outputFile = "/dev/full"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("vxpresets: standard output: No space left on device\n", run.err);
}

INSTANTIATE_TEST_SUITE_P(Usage, FullOutput,
                         testing::Values(Arguments{"tree"}, Arguments{"tree", "--json"},
                                         Arguments{"--help"}));

} // namespace

} // namespace Vexlor::Apps
