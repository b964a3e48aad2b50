#include "apps/host/match/SizeEstimate.h"
#include "apps/host/match/SizePlan.h"

#include "apps/host/Failure.h"
#include "apps/host/match/MediaMatch.h"
#include "tests/apps/Sources.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"

#include <gmock/gmock.h>

#include <array>

namespace Vexlor::Tool
{

namespace
{

using Apps::AudioSource;
using Apps::FileOf;
using Apps::VideoSource;

constexpr double kMinute = 60;

std::shared_ptr<IVXFormatPreset> PresetOf(const char* container)
{
    auto preset = IVXFormatPreset::MallocFormatPreset(container, "");
    preset->SetIndexForVideoCodecPresets(1);
    preset->SetIndexForAudioCodecPresets(1);
    return preset;
}

MediaMatch MatchOf(const IVXFormatPreset& preset, const std::shared_ptr<IVXFormatParameter>& source,
                   double seconds = kMinute)
{
    VXMediaFile media;
    media.parameter = source;
    media.duration = seconds;
    return MatchMedia(media, preset);
}

SizePlan PlanOf(const char* container, const std::shared_ptr<IVXFormatParameter>& source, const char* wanted)
{
    const auto preset = PresetOf(container);
    return PlanSize(MatchOf(*preset, source), *preset, SizeOfText(wanted));
}

std::shared_ptr<IVXFormatParameter> Film() { return FileOf(VideoSource{}, AudioSource{}); }

// Streams of a source end a packet or two apart.
TEST(SizeEstimate, OfStoredSoundIsExactToATenthOfASecond)
{
    const auto match = MatchOf(*PresetOf("WAV"), FileOf(AudioSource{}));
    const auto size = EstimateSize(*match.output, kMinute);
    EXPECT_DOUBLE_EQ(48'000 * 4 * kMinute, size.audio.likely);
    EXPECT_DOUBLE_EQ(48'000 * 4 * (kMinute - 0.1), size.audio.least);
    EXPECT_DOUBLE_EQ(48'000 * 4 * (kMinute + 0.1), size.audio.most);
}

TEST(SizeEstimate, AddsUp)
{
    const auto match = MatchOf(*PresetOf("MP4"), Film());
    const auto size = EstimateSize(*match.output, kMinute);
    EXPECT_GT(size.container, 0);
    EXPECT_DOUBLE_EQ(size.Total().likely, size.video.likely + size.audio.likely + size.container);
    EXPECT_LT(size.Total().least, size.Total().likely);
    EXPECT_LT(size.Total().likely, size.Total().most);
}

TEST(SizeEstimate, GrowsWithTheContainersOwn)
{
    const auto mp4 = MatchOf(*PresetOf("MP4"), Film());
    const auto ts = MatchOf(*PresetOf("TS"), Film());
    EXPECT_GT(EstimateSize(*ts.output, kMinute).container, 3 * EstimateSize(*mp4.output, kMinute).container);
}

TEST(SizePlan, NeverExceedsWhatIsWanted)
{
    for (const char* wanted : {"2MB", "5MB", "10MB", "25MB", "40MB", "80MB"})
    {
        const auto plan = PlanOf("MP4", Film(), wanted);
        EXPECT_TRUE(plan.isPossible) << wanted;
        EXPECT_LE(plan.estimate.Total().most, double(SizeOfText(wanted))) << wanted;
    }
}

TEST(SizePlan, UsesWhatIsWanted)
{
    const auto plan = PlanOf("MP4", Film(), "50MB");
    EXPECT_GT(plan.videoBitrate, 0);
    EXPECT_EQ(0, plan.audioBitrate);
    EXPECT_EQ(0, plan.width);
    EXPECT_GT(plan.estimate.Total().most, 0.999 * 50e6);
}

TEST(SizePlan, TakesTheBestWhereEvenThatIsSmaller)
{
    const auto plan = PlanOf("MP4", Film(), "5GB");
    EXPECT_TRUE(plan.isPossible);
    EXPECT_LT(plan.estimate.Total().most, 1e9);
}

TEST(SizePlan, MakesThePictureSmallerWhereItMust)
{
    const auto plan = PlanOf("MP4", Film(), "10MB");
    EXPECT_TRUE(plan.isPossible);
    EXPECT_LT(plan.height, 1080);
    EXPECT_GT(plan.height, 0);
    EXPECT_NEAR(16.0 / 9, double(plan.width) / plan.height, 0.02);
}

TEST(SizePlan, TellsWhatCannotBeHad)
{
    const auto plan = PlanOf("MP4", Film(), "100kB");
    EXPECT_FALSE(plan.isPossible);
    EXPECT_THAT(plan.reason,
                testing::StartsWith("a file of 100 kB cannot be had: the smallest that suits takes "));
    EXPECT_GT(plan.estimate.Total().most, 100'000);
}

TEST(SizePlan, SolvesSoundAlone)
{
    const auto plan = PlanOf("MP3", FileOf(AudioSource{.bitrate = 320'000}), "1MB");
    EXPECT_TRUE(plan.isPossible);
    EXPECT_EQ(128'000, plan.audioBitrate); // the next that MP3 knows is 144,000
}

TEST(SizePlan, CannotChangeStoredSound)
{
    EXPECT_FALSE(PlanOf("WAV", FileOf(AudioSource{}), "1MB").isPossible);
    const auto enough = PlanOf("WAV", FileOf(AudioSource{}), "12MB");
    EXPECT_TRUE(enough.isPossible);
    EXPECT_EQ(0, enough.audioBitrate);
}

TEST(SizePlan, IsNotMadeForACodecThatIsNotKnown)
{
    const auto preset = PresetOf("MKV");
    preset->InsertVideoCodecPreset(IVXCodecPreset::MallocCodecPreset(999), 0);
    preset->SetIndexForVideoCodecPresets(0);
    const auto plan = PlanSize(MatchOf(*preset, Film()), *preset, SizeOfText("1GB"));
    EXPECT_FALSE(plan.isPossible);
    EXPECT_THAT(plan.reason, testing::HasSubstr("is not known"));
}

TEST(SizePlan, SolvesNoBitrateWhereTheContentDecides)
{
    for (const auto* container : {"GIF", "WEBP"})
    {
        const auto plan = PlanOf(container, Film(), "1MB");
        EXPECT_FALSE(plan.isPossible) << container;
        EXPECT_EQ(0, plan.videoBitrate) << container;
        EXPECT_THAT(plan.reason, testing::HasSubstr("whatever the bitrate"));
    }
}

TEST(SizePlan, StaysWithinThePresetsBounds)
{
    const auto preset = PresetOf("MP4");
    preset->SetMaxVideoBitrate(2'000'000);
    const auto plan = PlanSize(MatchOf(*preset, Film()), *preset, SizeOfText("1GB"));
    EXPECT_TRUE(plan.isPossible);
    EXPECT_DOUBLE_EQ(2'000'000 * kMinute / 8, plan.estimate.video.likely);
}

/// A text and the bytes that it stands for.
struct SizeCase
{
    const char* text;
    std::int64_t bytes;
};

TEST(SizeOfText, TakesUnits)
{
    constexpr std::array kSizes{SizeCase{"3000000", 3'000'000},  SizeCase{"25MB", 25'000'000},
                                SizeCase{"25 mb", 25'000'000},   SizeCase{"1.5GB", 1'500'000'000},
                                SizeCase{"700MiB", 734'003'200}, SizeCase{"64k", 64'000},
                                SizeCase{"2Gi", 2'147'483'648}};
    for (const auto& [text, bytes] : kSizes)
        EXPECT_EQ(bytes, SizeOfText(text)) << text;
}

TEST(SizeOfText, RefusesWhatIsNone)
{
    for (const char* text : {"", "MB", "0", "-5MB", "5 bananas", "nan", "inf", "1e30", "5MBx"})
        EXPECT_THROW(SizeOfText(text), WrongUsage) << text;
}

TEST(SizeOfBytes, IsRounded)
{
    EXPECT_EQ("999 bytes", SizeOfBytes(999));
    EXPECT_EQ("1 kB", SizeOfBytes(1000));
    EXPECT_EQ("1.00 MB", SizeOfBytes(999'900));
    EXPECT_EQ("2.50 GB", SizeOfBytes(2.5e9));
}

} // namespace

} // namespace Vexlor::Tool
