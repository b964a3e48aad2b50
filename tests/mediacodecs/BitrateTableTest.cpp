#include "runtime/mediacodecs/BitrateTable.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/CodecTable.h"
#include "runtime/mediacodecs/ProfileFormats.h"
#include "runtime/mediacodecs/ProfileTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <span>
#include <string_view>
#include <tuple>

namespace Vexlor
{

namespace
{

TEST(BitrateTable, EveryCodecHasItsRow)
{
    for (const auto& codec : CodecTable())
    {
        EXPECT_EQ(codec.type == VXCodecTypeVideo, FindVideoBitrate(codec.id) != nullptr) << codec.name;
        EXPECT_EQ(codec.type == VXCodecTypeAudio, FindAudioBitrate(codec.id) != nullptr) << codec.name;
    }
}

TEST(BitrateTable, LaddersRiseWithThePicture)
{
    for (const auto& codec : CodecTable())
        if (const auto* row = FindVideoBitrate(codec.id))
            for (const auto& [points, factor] : row->grades)
            {
                EXPECT_GT(factor, 0.0) << codec.name;
                EXPECT_TRUE(std::ranges::is_sorted(points, std::ranges::less_equal(), &LadderPoint::kbps));
                EXPECT_TRUE(std::ranges::is_sorted(points, std::ranges::less_equal(),
                                                   [](const auto& point)
                                                   { return point.width * point.height; }));
            }
}

/// YouTube's own figures, which go up to 4320p, cost more a pixel at 1440p and at 2160p than below.
bool IsOfYouTube(std::span<const LadderPoint> points) { return points.back().height == 4320; }

void ExpectNoDearerPixels(std::span<const LadderPoint> points, std::string_view codec)
{
    constexpr double kRounding = 1.02; // published figures are whole hundreds
    const auto cost = [](const LadderPoint& point) { return point.kbps / (point.width * point.height); };
    for (std::size_t i = 1; i < points.size(); ++i)
        if (points[i - 1].height >= 720)
        {
            EXPECT_LE(cost(points[i]), cost(points[i - 1]) * kRounding) << codec << ' ' << points[i].height;
        }
}

TEST(BitrateTable, APixelCostsNoMoreInALargerPicture)
{
    for (const auto& codec : CodecTable())
        if (const auto* row = FindVideoBitrate(codec.id))
            for (const auto& ladder : row->grades)
                if (!ladder.points.empty() && !IsOfYouTube(ladder.points))
                    ExpectNoDearerPixels(ladder.points, codec.name);
}

TEST(BitrateTable, NormalIsNotNearHighAt1440p)
{
    const auto at1440p = [](std::span<const LadderPoint> points)
    { return std::ranges::find(points, 1440, &LadderPoint::height)->kbps; };
    for (const int codecID : {VXCodecID_H264, VXCodecID_VP9})
    {
        const auto& grades = FindVideoBitrate(codecID)->grades;
        EXPECT_GE(at1440p(grades.at(2).points), 1.25 * at1440p(grades.at(1).points)) << codecID;
    }
}

TEST(BitrateTable, CodecsWithLaddersHaveOneForEveryGrade)
{
    for (const auto& codec : CodecTable())
        if (const auto* row = FindVideoBitrate(codec.id))
        {
            const bool hasLadders =
                row->kind == VideoBitrateKind::Predicted || row->kind == VideoBitrateKind::Intra;
            for (const auto& ladder : row->grades)
                EXPECT_EQ(hasLadders, !ladder.points.empty()) << codec.name;
        }
}

bool IsProfiled(const CodecRow& codec)
{
    const auto* row = FindVideoBitrate(codec.id);
    return row && row->kind == VideoBitrateKind::Profiled;
}

TEST(BitrateTable, EveryOfferedFormatOfAProfiledCodecHasProfilesThatHoldIt)
{
    for (const auto& codec : CodecTable())
        for (const int format : codec.formats)
        {
            const auto* row = FindGradeProfiles(codec.id, format);
            ASSERT_EQ(IsProfiled(codec), row != nullptr) << codec.name << ' ' << format;
            for (const int profile : row ? row->profiles : std::array<int, kGrades>{})
                EXPECT_TRUE(!row || ProfileHolds(codec.id, profile, format)) << codec.name << ' ' << profile;
        }
}

TEST(BitrateTable, EveryProfileOfAProfiledCodecHasItsLadder)
{
    for (const auto& codec : CodecTable())
        for (const auto& profile : ProfilesOf(codec.id))
            EXPECT_EQ(IsProfiled(codec), FindProfileLadder(codec.id, profile.number) != nullptr)
                << codec.name << ' ' << profile.name;
}

TEST(BitrateTable, ListedBitratesRise)
{
    const auto order = [](const ListedBitrate& row)
    { return std::tuple(row.codecID, row.format, row.size.width * row.size.height, row.frameRate); };
    const auto rows = ListedBitrates();
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        EXPECT_TRUE(std::ranges::is_sorted(rows[i].bitrates));
        for (std::size_t j = i + 1; j < rows.size(); ++j)
            if (rows[j].codecID == rows[i].codecID && rows[j].format == rows[i].format)
            {
                EXPECT_LT(order(rows[i]), order(rows[j]));
            }
    }
}

TEST(BitrateTable, EveryOfferedSizeAndFormatOfAListedCodecHasItsRow)
{
    const auto isListed = [](const CodecRow& codec, PictureSize size, int format)
    {
        return std::ranges::any_of(
            ListedBitrates(), [&](const ListedBitrate& row)
            { return row.codecID == codec.id && row.size == size && row.format == format; });
    };
    for (const auto& codec : CodecTable())
        if (const auto* row = FindVideoBitrate(codec.id); row && row->kind == VideoBitrateKind::Listed)
        {
            for (const auto size : codec.video.sizes)
                for (const int format : codec.formats)
                    EXPECT_TRUE(isListed(codec, size, format)) << codec.name << ' ' << size.width;
        }
}

TEST(BitrateTable, ChannelsOfALossyCodecRiseWithTheGrade)
{
    for (const auto& codec : CodecTable())
        if (const auto* row = FindAudioBitrate(codec.id); row && row->kind == AudioBitrateKind::Lossy)
        {
            EXPECT_TRUE(std::ranges::is_sorted(row->perChannel, std::ranges::less_equal())) << codec.name;
            EXPECT_GT(row->perChannel.front(), 0) << codec.name;
        }
}

TEST(BitrateTable, SpeechModesRiseAndEveryOfferedRateHasThem)
{
    for (const auto& modes : ListedSpeech())
    {
        EXPECT_TRUE(std::ranges::is_sorted(modes.bitrates, std::ranges::less_equal()));
        const auto& offered = FindCodec(modes.codecID)->audio.sampleRates;
        EXPECT_NE(offered.end(), std::ranges::find(offered, modes.sampleRate)) << modes.codecID;
    }
}

TEST(BitrateTable, LegalRatesRise)
{
    for (const int id : {VXCodecID_MP3, VXCodecID_MP2, VXCodecID_AC3, VXCodecID_DTS})
        for (const int rate : {8000, 16000, 44100, 48000})
            for (const auto layout : {kMono, kStereo, kLayout51Side, ~std::uint64_t{0}})
            {
                const auto legal = LegalBitrates(id, rate, layout);
                EXPECT_FALSE(legal.empty());
                EXPECT_TRUE(std::ranges::is_sorted(legal));
            }
}

TEST(BitrateTable, CodecsWithoutATableTakeAnyRate)
{
    EXPECT_TRUE(LegalBitrates(VXCodecID_AAC, 48000, kStereo).empty());
}

} // namespace

} // namespace Vexlor
