#include "runtime/mediacodecs/BitrateTable.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecTable.h"

#include <gtest/gtest.h>

#include <algorithm>

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
    for (std::size_t grade = 0; grade < kGrades; ++grade)
    {
        const auto ladder = ReferenceLadder(grade);
        EXPECT_TRUE(std::ranges::is_sorted(ladder, {}, &LadderPoint::kbps));
        EXPECT_TRUE(
            std::ranges::is_sorted(ladder, {}, [](const auto& point) { return point.width * point.height; }));
    }
}

TEST(BitrateTable, ChannelsOfALossyCodecRiseWithTheGrade)
{
    for (const auto& codec : CodecTable())
        if (const auto* row = FindAudioBitrate(codec.id); row && row->kind == AudioBitrateKind::Lossy)
        {
            EXPECT_TRUE(std::ranges::is_sorted(row->perChannel)) << codec.name;
            EXPECT_GT(row->perChannel.front(), 0) << codec.name;
        }
}

TEST(BitrateTable, LegalRatesRise)
{
    for (const int id : {VXCodecID_MP3, VXCodecID_MP2, VXCodecID_AC3})
        for (const int rate : {8000, 16000, 44100, 48000})
            for (const int channels : {1, 2, 6, 64})
            {
                const auto legal = LegalKbps(id, rate, channels);
                EXPECT_FALSE(legal.empty());
                EXPECT_TRUE(std::ranges::is_sorted(legal));
            }
}

TEST(BitrateTable, CodecsWithoutATableTakeAnyRate)
{
    EXPECT_TRUE(LegalKbps(VXCodecID_AAC, 48000, 2).empty());
}

} // namespace

} // namespace Vexlor
