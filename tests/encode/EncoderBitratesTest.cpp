// Bitrates that are nobody's offer: a user's own, and those between bounds.

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateSnapping.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/EncoderSetup.h"
#include "runtime/mediacodecs/FFmpegQuiet.h"
#include "runtime/mediacodecs/Snapping.h"
#include "tests/encode/Encoding.h"
#include "tests/encode/Streams.h"
#include "tests/mediacodecs/CodecLists.h"

#include <gmock/gmock.h>

#include <climits>

namespace Vexlor
{

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

constexpr int kVariable = 0;
constexpr int kConstant = 1;
constexpr int kWanted[] = {INT_MIN, -7, 1, 999, 9'001, 170'666, 2'345'678, 100'000'001, INT_MAX};

/// A stream of the codec's first format near the usual one, as matching would have it.
std::shared_ptr<IVXCodecParameter> StreamOf(int codecID)
{
    const auto& codec = *CapabilitiesOf(codecID);
    if (codec.codec->type == VXCodecTypeVideo)
    {
        const auto picture = Picture(codecID);
        const auto size = SnapSize({640, 480}, codec.codec->video, codec.block);
        const auto rate = SnapFrameRate({25, 1}, codec.codec->video);
        picture->SetWidth(size.width);
        picture->SetHeight(size.height);
        picture->SetFramePerSecond(IVXRational::MallocRational(rate.num, rate.den));
        picture->SetFormat(codec.formats.front());
        return picture;
    }
    const auto sound = Sound(codecID);
    sound->SetSampleRate(codec.sampleRates.front());
    sound->SetChannelLayout(codec.layouts.front());
    sound->SetFormat(codec.formats.front());
    return sound;
}

std::vector<int> AllCodecIDs()
{
    auto ids = CodecIDs(VXCodecTypeVideo);
    std::ranges::copy(CodecIDs(VXCodecTypeAudio), std::back_inserter(ids));
    return ids;
}

class AnyBitrate : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        if (CapabilitiesOf(GetParam())->encoders.empty())
            GTEST_SKIP() << "no encoder here";
    }
    /// Encodes a frame, so that what only then refuses is seen too; the complaint.
    std::string Complaint(const EncoderSetup& setup) const
    {
        if (!setup.context)
            return setup.complaint;
        return stream->GetCodecType() == VXCodecTypeVideo ? EncodePictures(*setup.context, 1).complaint
                                                          : EncodeSound(*setup.context).complaint;
    }
    int Nearest(int wanted) const
    {
        const auto& codec = *CapabilitiesOf(GetParam());
        if (codec.codec->type == VXCodecTypeAudio)
            return NearestBitrate(codec, SoundOf(*stream, stream->GetFormat()), wanted);
        return NearestBitrate(codec, PictureOf(*stream, stream->GetFormat()), IVXCodecs::VXProfileUnknown,
                              wanted);
    }
    const FFmpegQuiet quiet;
    std::shared_ptr<IVXCodecParameter> stream = StreamOf(GetParam());
};

TEST_P(AnyBitrate, OpensAtTheNearestThatTheCodecHas)
{
    for (const int wanted : kWanted)
    {
        stream->SetBitrate(wanted);
        const auto setup = OpenEncoder(*stream, {});
        EXPECT_EQ("", Complaint(setup)) << wanted;
        EXPECT_EQ(Nearest(wanted) == wanted, setup.changes.empty()) << wanted;
    }
}

TEST(ConstantBitrate, OfH261IsNotFilledUpWherePicturesTakeLess)
{
    const FFmpegQuiet quiet;
    const auto stream = StreamOf(VXCodecID_H261);
    stream->SetFramePerSecond(IVXRational::MallocRational(8, 1));
    stream->SetBitrateMode(kConstant);
    stream->SetBitrate(1'234'567);
    const auto setup = OpenEncoder(*stream, {});
    ASSERT_TRUE(setup.context) << setup.complaint;
    EXPECT_EQ("", EncodePictures(*setup.context, 10).complaint);
    EXPECT_EQ(std::vector<std::string>{"constant bitrate is not filled up where pictures take less"},
              setup.changes);
}

TEST_P(AnyBitrate, OpensAsAConstantOneAndBetweenBounds)
{
    for (const int mode : {kVariable, kConstant})
        for (const int wanted : {1, 170'666, 2'345'678})
            for (const int least : {0, wanted, INT_MAX})
            {
                stream->SetBitrateMode(mode);
                stream->SetBitrate(wanted);
                stream->SetMaxBitrate(wanted);
                stream->SetMinBitrate(least);
                EXPECT_EQ("", Complaint(OpenEncoder(*stream, {}))) << mode << ' ' << wanted << ' ' << least;
            }
}

TEST_P(AnyBitrate, OfAGradeIsTakenAsItIs)
{
    const auto codecs = stream->GetCodecs(true);
    for (const int grade : {0, 1, 2, 3})
    {
        const auto level = IVXCodecs::QualityLevel{grade};
        stream->SetBitrate(stream->GetCodecType() == VXCodecTypeVideo
                               ? codecs->BestBitrateFor(stream->GetWidth(), stream->GetHeight(),
                                                        stream->GetFrameRate(), stream->GetFormat(), level,
                                                        "")
                               : codecs->BestBitrateFor(stream->GetSampleRate(), stream->GetChannelLayout(),
                                                        stream->GetFormat(), level, ""));
        const auto setup = OpenEncoder(*stream, {});
        EXPECT_EQ("", Complaint(setup)) << grade;
        EXPECT_THAT(setup.changes, IsEmpty()) << grade;
    }
}

INSTANTIATE_TEST_SUITE_P(Codecs, AnyBitrate, testing::ValuesIn(AllCodecIDs()), CodecTestName);

class BitrateOfSound : public AnyBitrate
{
};

TEST_P(BitrateOfSound, OpensInEveryLayoutAtEverySampleRate)
{
    const auto& codec = *CapabilitiesOf(GetParam());
    for (const int rate : codec.sampleRates)
        for (const auto layout : codec.layouts)
            for (const int wanted : {1, INT_MAX})
            {
                stream->SetSampleRate(rate);
                stream->SetChannelLayout(layout);
                stream->SetBitrate(wanted);
                EXPECT_EQ("", OpenEncoder(*stream, {}).complaint)
                    << rate << ' ' << VXChannelLayoutName(layout) << ' ' << wanted;
            }
}

INSTANTIATE_TEST_SUITE_P(Codecs, BitrateOfSound, testing::ValuesIn(CodecIDs(VXCodecTypeAudio)),
                         CodecTestName);

/// A bitrate that is asked for, and the one that is taken.
struct NearestCase
{
    const char* name;
    int codecID;
    int wanted;
    int taken;
};

class NearestBitrateTo : public testing::TestWithParam<NearestCase>
{
};

TEST_P(NearestBitrateTo, IsTakenAndTold)
{
    const auto& [name, codecID, wanted, taken] = GetParam();
    if (CapabilitiesOf(codecID)->encoders.empty())
        GTEST_SKIP() << "no encoder here";
    const FFmpegQuiet quiet;
    const auto stream = StreamOf(codecID);
    stream->SetBitrate(wanted);
    const auto setup = OpenEncoder(*stream, {});
    ASSERT_TRUE(setup.context) << setup.complaint;
    EXPECT_EQ(taken, setup.context->bit_rate);
    EXPECT_THAT(setup.changes, ElementsAre("bitrate " + std::to_string(wanted) + " is not taken; " +
                                           std::to_string(taken) + " stands in"));
}

constexpr NearestCase kNearest[] = {
    {"MP2", VXCodecID_MP2, 170'666, 160'000},
    {"MP3", VXCodecID_MP3, 1'000'000, 320'000},
    {"AC3", VXCodecID_AC3, 300'000, 320'000},
    {"PCM", VXCodecID_PCM16, 192'000, 1'536'000},
    {"FLAC", VXCodecID_FLAC, 192'000, 921'600},
    {"Opus", VXCodecID_Opus, 600'000, 510'000},
    {"WMA", VXCodecID_WMA2, 500'000, 192'000},
    {"DV", VXCodecID_DV, 4'000'000, 28'800'000},
    {"DNxHD", VXCodecID_DNxHD, 65'000'000, 60'000'000},
    {"H261", VXCodecID_H261, 4'000'000, 1'920'000},
    {"H264", VXCodecID_H264, 1, 1'000},
};
INSTANTIATE_TEST_SUITE_P(Codecs, NearestBitrateTo, testing::ValuesIn(kNearest),
                         [](const auto& test) { return test.param.name; });

// No encoder makes the High tier, and SVT-AV1 takes 100 Mb/s at most.
TEST(EncoderBitrates, TheGradesOfTheLargestAV1AreTaken)
{
    const auto& codec = *CapabilitiesOf(VXCodecID_AV1);
    const auto best = [&](PictureSize size, int frameRate)
    {
        return VideoBitrate(codec, {size.width, size.height, double(frameRate), VXPixFormat_YUV420P},
                            IVXCodecs::QualityLevelBest);
    };
    EXPECT_EQ(30'000'000, best({3840, 2160}, 30));
    EXPECT_EQ(60'000'000, best({7680, 4320}, 30));
    EXPECT_EQ(100'000'000, best({7680, 4320}, 60));
    const bool isSVT = !codec.encoders.empty() && codec.encoders.front() == "libsvtav1";
    EXPECT_LE(best({7680, 4320}, 120), isSVT ? 100'000'000 : 160'000'000);
}

TEST(EncoderBitrates, AProfileThatIsAskedForHasItsOwn)
{
    const FFmpegQuiet quiet;
    const auto stream = Picture(VXCodecID_DNxHR);
    stream->SetFormat(kPixFormatYUV422P);
    stream->SetProfile(3); // HQ
    EXPECT_THAT(OpenEncoder(*stream, {}).changes, Contains(StartsWith("bitrate 4000000 is not taken; ")));
}

TEST(EncoderBitrates, AnUntoldOneIsTheEncodersOwn)
{
    const FFmpegQuiet quiet;
    const auto stream = Picture(VXCodecID_MPEG2);
    stream->SetBitrate(0);
    const auto setup = OpenEncoder(*stream, {});
    EXPECT_EQ(0, setup.context->bit_rate);
    EXPECT_THAT(setup.changes, IsEmpty());
}

} // namespace

} // namespace Vexlor
