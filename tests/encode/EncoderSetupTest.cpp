#include "runtime/mediacodecs/EncoderSetup.h"

#include "IVXCodecParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/FFmpegCompat.h"
#include "runtime/mediacodecs/FFmpegQuiet.h"
#include "tests/encode/Encoding.h"
#include "tests/encode/Streams.h"

#include <gmock/gmock.h>

namespace Vexlor
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kNoCodec = 999;

/// FFmpeg's complaints are the answer here, not a text on stderr.
class EncoderSetupTest : public testing::Test
{
protected:
    const FFmpegQuiet quiet;
    std::shared_ptr<IVXCodecParameter> picture = Picture(VXCodecID_MPEG2);
    std::shared_ptr<IVXCodecParameter> sound = Sound(VXCodecID_FLAC);

    void SetUp() override { sound->SetBitrate(0); } // FLAC has none to be set
};

TEST_F(EncoderSetupTest, PictureIsAsTheParameterSays)
{
    const auto setup = OpenEncoder(*picture, {});
    ASSERT_TRUE(setup.context);
    EXPECT_EQ(720, setup.context->width);
    EXPECT_EQ(576, setup.context->height);
    EXPECT_EQ(AV_PIX_FMT_YUV420P, setup.context->pix_fmt);
    EXPECT_EQ(4'000'000, setup.context->bit_rate);
    EXPECT_EQ(0, av_cmp_q({25, 1}, setup.context->framerate));
}

TEST_F(EncoderSetupTest, OneTickIsOneFrame)
{
    picture->SetFramePerSecond(IVXRational::MallocRational(30000, 1001));
    EXPECT_EQ(0, av_cmp_q({1001, 30000}, OpenEncoder(*picture, {}).context->time_base));
}

TEST_F(EncoderSetupTest, AspectIsThatOfOneSample)
{
    picture->SetAspectRatio(IVXRational::MallocRational(64, 45));
    EXPECT_EQ(0, av_cmp_q({64, 45}, OpenEncoder(*picture, {}).context->sample_aspect_ratio));
}

TEST_F(EncoderSetupTest, SoundIsAsTheParameterSays)
{
    const auto setup = OpenEncoder(*sound, {});
    ASSERT_TRUE(setup.context);
    EXPECT_EQ(44100, setup.context->sample_rate);
    EXPECT_EQ(AV_SAMPLE_FMT_S16, setup.context->sample_fmt);
    EXPECT_EQ(std::uint64_t{AV_CH_LAYOUT_STEREO}, setup.context->ch_layout.u.mask);
}

TEST_F(EncoderSetupTest, PreferredEncoderIsTakenWhenNoneIsNamed)
{
    EXPECT_STREQ("mpeg2video", OpenEncoder(*picture, {}).context->codec->name);
}

TEST_F(EncoderSetupTest, UnknownCodecIsRefused)
{
    EXPECT_EQ("codec 999 is not known", OpenEncoder(*Picture(kNoCodec), {}).complaint);
}

TEST_F(EncoderSetupTest, EncoderThatIsNotHereIsRefused)
{
    EXPECT_EQ("MPEG-2 has no encoder mpeg2_dreamt here",
              OpenEncoder(*picture, {.encoder = "mpeg2_dreamt"}).complaint);
}

TEST_F(EncoderSetupTest, EncoderOfAnotherCodecIsRefused)
{
    EXPECT_EQ("MPEG-2 has no encoder flac here", OpenEncoder(*picture, {.encoder = "flac"}).complaint);
}

TEST_F(EncoderSetupTest, ParameterThatTheEncoderRefusesIsAComplaint)
{
    picture->SetWidth(0);
    const auto setup = OpenEncoder(*picture, {});
    EXPECT_FALSE(setup.context);
    EXPECT_EQ("mpeg2video: Invalid argument", setup.complaint);
}

TEST_F(EncoderSetupTest, OptionsReachTheEncoder)
{
    EXPECT_EQ(7, OpenEncoder(*picture, {.options = "g=7:threads=1"}).context->gop_size);
}

TEST_F(EncoderSetupTest, OptionThatTheEncoderDoesNotKnowIsRefused)
{
    EXPECT_EQ("mpeg2video: Option not found", OpenEncoder(*picture, {.options = "dream=7"}).complaint);
}

TEST_F(EncoderSetupTest, HeadersGoWhereTheContainerWantsThem)
{
    const auto film = Picture(VXCodecID_MPEG4);
    EXPECT_EQ(0, OpenEncoder(*film, {}).context->extradata_size);
    EXPECT_GT(OpenEncoder(*film, {.globalHeader = true}).context->extradata_size, 0);
}

TEST_F(EncoderSetupTest, BoundsAreKeptOverTheBufferOfTheLevel)
{
    picture->SetMaxBitrate(5'000'000);
    picture->SetMinBitrate(3'000'000);
    const auto setup = OpenEncoder(*picture, {});
    EXPECT_EQ(5'000'000, setup.context->rc_max_rate);
    EXPECT_EQ(3'000'000, setup.context->rc_min_rate);
    EXPECT_EQ(1'835'008, setup.context->rc_buffer_size); // Main
}

TEST_F(EncoderSetupTest, BoundsThatLeaveTheBitrateOutFollowIt)
{
    picture->SetMaxBitrate(1'000'000);
    picture->SetMinBitrate(9'000'000);
    const auto setup = OpenEncoder(*picture, {});
    EXPECT_EQ(4'000'000, setup.context->rc_max_rate);
    EXPECT_EQ(4'000'000, setup.context->rc_min_rate);
}

TEST_F(EncoderSetupTest, ConstantBitrateHasItsBoundsThere)
{
    picture->SetBitrateMode(1);
    const auto setup = OpenEncoder(*picture, {});
    EXPECT_EQ(4'000'000, setup.context->rc_max_rate);
    EXPECT_EQ(4'000'000, setup.context->rc_min_rate);
}

TEST_F(EncoderSetupTest, VariableBitrateWithoutBoundsHasNoBuffer)
{
    const auto setup = OpenEncoder(*picture, {});
    EXPECT_EQ(0, setup.context->rc_max_rate);
    EXPECT_EQ(0, setup.context->rc_buffer_size);
}

TEST_F(EncoderSetupTest, ALevelThatIsChosenIsABound)
{
    picture->SetProfile(4);
    picture->SetLevel(8); // Main
    const auto setup = OpenEncoder(*picture, {});
    EXPECT_EQ(15'000'000, setup.context->rc_max_rate);
    EXPECT_EQ(0, setup.context->rc_min_rate);
    EXPECT_EQ(1'835'008, setup.context->rc_buffer_size);
}

TEST_F(EncoderSetupTest, ALevelOfAveragesIsNoBound)
{
    const auto film = Picture(VXCodecID_VP9);
    film->SetLevel(30);
    EXPECT_EQ(0, OpenEncoder(*film, {}).context->rc_max_rate);
}

TEST_F(EncoderSetupTest, ALevelIsNoBoundThatAnEncoderIsSaidToRefuse)
{
    const auto modern = Picture(VXCodecID_AV1);
    modern->SetLevel(8); // 4.0
    const auto setup = OpenEncoder(*modern, {});
    EXPECT_THAT(setup.changes, IsEmpty());
    EncodePictures(*setup.context, 1);
}

TEST_F(EncoderSetupTest, EncoderThatRefusesAConstantBitrateGetsAVariableOne)
{
    const auto modern = Picture(VXCodecID_AV1);
    if (CapabilitiesOf(VXCodecID_AV1)->encoders.front() != "libsvtav1")
        GTEST_SKIP() << "another encoder here";
    modern->SetBitrateMode(1);
    const auto setup = OpenEncoder(*modern, {});
    EXPECT_THAT(setup.changes, ElementsAre("constant bitrate is not taken; a variable one stands in"));
    ASSERT_TRUE(setup.context);
    EncodePictures(*setup.context, 1);
}

// The lowest level for the picture would hold 20 Mb/s.
TEST_F(EncoderSetupTest, BitrateIsWithinTheLevelThatIsChosen)
{
    const auto film = Picture(VXCodecID_H264);
    film->SetWidth(1280);
    film->SetHeight(720);
    film->SetFramePerSecond(IVXRational::MallocRational(50, 1));
    film->SetProfile(100);
    film->SetLevel(41);
    film->SetBitrate(22'000'000);
    const auto setup = OpenEncoder(*film, {});
    EXPECT_THAT(setup.changes, IsEmpty());
    ASSERT_TRUE(setup.context) << setup.complaint;
    EXPECT_EQ(22'000'000, setup.context->bit_rate);
}

TEST_F(EncoderSetupTest, BitrateIsBoundedByTheHighestLevelWhereNoneIsChosen)
{
    const auto film = Picture(VXCodecID_H264); // level 3, whose most is 10 Mb/s
    film->SetBitrate(60'000'000);
    EXPECT_THAT(OpenEncoder(*film, {}).changes, IsEmpty());
}

TEST_F(EncoderSetupTest, PixelFormatThatTheEncoderLacksGivesWay)
{
    picture->SetFormat(kPixFormatYUV444P);
    const auto setup = OpenEncoder(*picture, {});
    EXPECT_EQ(AV_PIX_FMT_YUV420P, setup.context->pix_fmt);
    EXPECT_THAT(setup.changes, ElementsAre("pixel format YUV 4:4:4 is not taken; YUV 4:2:0 stands in"));
}

TEST_F(EncoderSetupTest, PlanarSamplesStandInForTheSameInterleavedOnes)
{
    auto music = Sound(VXCodecID_AC3);
    music->SetFormat(VXSampleFormat_FLT);
    const auto setup = OpenEncoder(*music, {});
    EXPECT_EQ(AV_SAMPLE_FMT_FLTP, setup.context->sample_fmt);
    EXPECT_THAT(setup.changes, IsEmpty());
}

TEST_F(EncoderSetupTest, SampleFormatThatTheEncoderLacksGivesWay)
{
    sound->SetFormat(VXSampleFormat_FLT);
    const auto setup = OpenEncoder(*sound, {});
    EXPECT_EQ(AV_SAMPLE_FMT_S16, setup.context->sample_fmt);
    EXPECT_THAT(setup.changes, ElementsAre("sample format 32-bit float is not taken; 16-bit stands in"));
}

TEST_F(EncoderSetupTest, SamplesOf24BitsAreEncodedAsSuch)
{
    sound->SetFormat(kSampleFormatS24);
    const auto setup = OpenEncoder(*sound, {});
    EXPECT_EQ(AV_SAMPLE_FMT_S32, setup.context->sample_fmt);
    EXPECT_EQ(24, setup.context->bits_per_raw_sample);
    EXPECT_THAT(setup.changes, IsEmpty());
}

TEST_F(EncoderSetupTest, ProfileAndLevelAreLibavcodecsNumbers)
{
    picture->SetProfile(4); // Main
    picture->SetLevel(8);   // Main
    const auto setup = OpenEncoder(*picture, {});
    EXPECT_EQ(VX_AV_PROFILE(MPEG2_MAIN), setup.context->profile);
    EXPECT_EQ(8, setup.context->level);
    EXPECT_THAT(setup.changes, IsEmpty());
}

TEST_F(EncoderSetupTest, LevelsOf422AreCountedAnew)
{
    picture->SetFormat(kPixFormatYUV422P);
    picture->SetProfile(128);
    picture->SetLevel(8); // Main
    EXPECT_EQ(5, OpenEncoder(*picture, {}).context->level);
}

int LevelOfSmallMPEG4(int profile, int level)
{
    const auto film = Picture(VXCodecID_MPEG4);
    film->SetWidth(176);
    film->SetHeight(144);
    film->SetFramePerSecond(IVXRational::MallocRational(15, 1));
    film->SetBitrate(60'000);
    film->SetProfile(profile);
    film->SetLevel(level);
    return OpenEncoder(*film, {}).context->level;
}

TEST_F(EncoderSetupTest, LevelZeroOfMPEG4SimpleHasANumberOfItsOwn)
{
    EXPECT_EQ(8, LevelOfSmallMPEG4(0, 0));
    EXPECT_EQ(8, LevelOfSmallMPEG4(-99, 0));
    EXPECT_EQ(0, LevelOfSmallMPEG4(15, 0)); // Advanced Simple
    EXPECT_EQ(1, LevelOfSmallMPEG4(0, 1));
}

} // namespace

} // namespace Vexlor
