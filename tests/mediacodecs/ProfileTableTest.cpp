#include "runtime/mediacodecs/ProfileTable.h"
#include "Columns.h"
#include "IVXCodecs.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecTable.h"
#include "runtime/mediacodecs/FFmpegCompat.h"
#include "runtime/mediacodecs/Lookup.h"
#include "runtime/mediacodecs/ProfileFormats.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

TEST(ProfileTable, NumbersAndNamesAreGivenOnceACodec)
{
    for (const auto& codec : CodecTable())
    {
        const auto profiles = ProfilesOf(codec.id);
        EXPECT_EQ(profiles.size(), DifferentValues(profiles, &ProfileRow::number)) << codec.name;
        EXPECT_EQ(profiles.size(), DifferentValues(profiles, &ProfileRow::name)) << codec.name;
    }
}

TEST(ProfileTable, EncodersOfAProfileAreEncodersOfItsCodec)
{
    for (const auto& codec : CodecTable())
        for (const auto& profile : ProfilesOf(codec.id))
            ForEachWord(profile.encoders, [&](std::string_view encoder)
                        { EXPECT_TRUE(HasWord(codec.encoders, encoder)) << codec.name << ' ' << encoder; });
}

TEST(ProfileTable, NoNumberStandsForUnknown)
{
    for (const auto& codec : CodecTable())
        EXPECT_EQ(IVXCodecs::VXProfileUnknown, ProfileNumberOf(codec.id, -99)) << codec.name;
}

TEST(ProfileTable, ReadsTheProfilesOfLibavcodec)
{
    EXPECT_EQ(100, ProfileNumberOf(VXCodecID_H264, VX_AV_PROFILE(H264_HIGH)));
    EXPECT_EQ(1066, ProfileNumberOf(VXCodecID_H264, VX_AV_PROFILE(H264_CONSTRAINED_BASELINE)));
    EXPECT_EQ(2, ProfileNumberOf(VXCodecID_HEVC, VX_AV_PROFILE(HEVC_MAIN_10)));
    EXPECT_EQ(4, ProfileNumberOf(VXCodecID_HEVC, VX_AV_PROFILE(HEVC_REXT)));
    EXPECT_EQ(2, ProfileNumberOf(VXCodecID_AAC, VX_AV_PROFILE(AAC_LOW)));
    EXPECT_EQ(128, ProfileNumberOf(VXCodecID_MPEG2, VX_AV_PROFILE(MPEG2_422)));
    EXPECT_EQ(15, ProfileNumberOf(VXCodecID_DIVX, VX_AV_PROFILE(MPEG4_ADVANCED_SIMPLE)));
}

// Or a host could not set one where none is chosen.
TEST(ProfileTable, ACodecThatNeedsAProfileHasOneForEveryFormat)
{
    for (const auto& codec : CodecTable())
    {
        const auto profiles = ProfilesOf(codec.id);
        if (!codec.needsProfile || codec.type != VXCodecTypeVideo)
            continue;
        for (const int format : codec.formats)
            EXPECT_TRUE(std::ranges::any_of(profiles, [&](const ProfileRow& profile)
                                            { return ProfileHolds(codec.id, profile.number, format); }))
                << codec.name << ' ' << PixFormatName(format);
    }
}

TEST(ProfileTable, ReadsTheProfilesOfStudioCodecs)
{
    EXPECT_EQ(3, ProfileNumberOf(VXCodecID_ProRes, VX_AV_PROFILE(PRORES_HQ)));
    EXPECT_EQ(4, ProfileNumberOf(VXCodecID_DNxHR, VX_AV_PROFILE(DNXHR_HQX)));
    EXPECT_EQ(29, ProfileNumberOf(VXCodecID_HEAAC, VX_AV_PROFILE(AAC_HE_V2)));
}

TEST(ProfileTable, WhatIsMadeWithoutAChoiceIsForViewing)
{
    EXPECT_EQ("Standard", ProfilesOf(VXCodecID_ProRes).front().name);
    EXPECT_EQ("SQ", ProfilesOf(VXCodecID_DNxHR).front().name);
}

TEST(ProfileTable, ACodecWithoutProfilesHasNone)
{
    EXPECT_TRUE(ProfilesOf(VXCodecID_VP8).empty());
    EXPECT_TRUE(ProfilesOf(-1).empty());
}

} // namespace

} // namespace Vexlor
