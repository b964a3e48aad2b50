#include "runtime/mediacodecs/ProfileFormats.h"

#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "tests/mediacodecs/CodecLists.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

class OfferedProfiles : public testing::TestWithParam<int>
{
};

// Or choosing it would always give way.
TEST_P(OfferedProfiles, EachHoldsAnOfferedFormat)
{
    const auto& codec = *CapabilitiesOf(GetParam());
    for (const int profile : codec.profiles)
        EXPECT_TRUE(std::ranges::any_of(codec.formats, [&](int format)
                                        { return ProfileHolds(codec.codec->id, profile, format); }))
            << profile;
}

// Or there would be none to give way to.
TEST_P(OfferedProfiles, EveryOfferedFormatHasOneThatHoldsIt)
{
    const auto& codec = *CapabilitiesOf(GetParam());
    for (const int format : codec.formats)
        EXPECT_TRUE(codec.profiles.empty() ||
                    std::ranges::any_of(codec.profiles, [&](int profile)
                                        { return ProfileHolds(codec.codec->id, profile, format); }))
            << PixFormatName(format);
}

INSTANTIATE_TEST_SUITE_P(Codecs, OfferedProfiles, testing::ValuesIn(CodecIDs(VXCodecTypeVideo)),
                         CodecTestName);

TEST(ProfileFormats, ProfileThatIsNotKnownHoldsEverything)
{
    EXPECT_TRUE(ProfileHolds(VXCodecID_H264, 12345, kPixFormatYUV444P12));
}

TEST(ProfileFormats, VP9TellsChromaByProfile)
{
    EXPECT_TRUE(ProfileHolds(VXCodecID_VP9, 0, VXPixFormat_YUV420P));
    EXPECT_FALSE(ProfileHolds(VXCodecID_VP9, 1, VXPixFormat_YUV420P));
}

} // namespace

} // namespace Vexlor
