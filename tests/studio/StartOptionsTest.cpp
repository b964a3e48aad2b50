#include "apps/studio/window/StartOptions.h"

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor::Studio;

StartResult Read(QStringList arguments)
{
    arguments.prepend("vxpresetstudio");
    return StartLine::Read(arguments);
}

TEST(StartOptions, AreWhatTheCommandLineSays)
{
    const auto options =
        Read({"--preset", "Video/MP4", "--theme", "dark", "--size", "800x600", "mine.json"}).options;
    ASSERT_TRUE(options);
    EXPECT_EQ("mine.json", options->document);
    EXPECT_EQ("Video/MP4", options->preset);
    EXPECT_EQ("dark", options->theme);
    EXPECT_EQ(QSize(800, 600), options->size);
    EXPECT_FALSE(options->checks);
}

TEST(StartOptions, AreNoneForHelpAndVersion)
{
    EXPECT_FALSE(Read({"--help"}).options);
    EXPECT_TRUE(Read({"--help"}).text.contains("--screenshot"));
    EXPECT_EQ(0, Read({"--version"}).exitCode);
}

TEST(StartOptions, RefuseWhatIsUnknown)
{
    EXPECT_EQ(2, Read({"--no-such-option"}).exitCode);
    EXPECT_EQ(2, Read({"one.json", "two.json"}).exitCode);
}

TEST(StartOptions, NameTheChoicesWhereOneIsNone)
{
    EXPECT_TRUE(Read({"--theme", "pink"}).text.contains("light, dark and system"));
    EXPECT_EQ(2, Read({"--theme", "pink"}).exitCode);
    EXPECT_TRUE(Read({"--language", "fr"}).text.contains("en and de"));
    EXPECT_EQ(2, Read({"--language", "fr"}).exitCode);
}

TEST(StartOptions, TellTheLanguageEvenWhereTheProgramEndsAtOnce)
{
    EXPECT_EQ("de", StartLine::LanguageIn({"vxpresetstudio", "--help", "--language", "de"}));
    EXPECT_EQ("de", StartLine::LanguageIn({"vxpresetstudio", "--language=de"}));
    EXPECT_EQ("", StartLine::LanguageIn({"vxpresetstudio", "--language"}));
}

class StartSize : public testing::TestWithParam<const char*>
{
};

TEST_P(StartSize, IsRefused) { EXPECT_EQ(2, Read({"--size", GetParam()}).exitCode); }

INSTANTIATE_TEST_SUITE_P(Wrong, StartSize,
                         testing::Values("wide", "800", "0x600", "800x-1", "99999x10", "1x2x3"));

} // namespace
