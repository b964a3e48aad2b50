// What comes out of an encoder beside the bitrate that was shown for it.

#include "tests/encode/Encoding.h"
#include "tests/encode/Streams.h"
#include "tests/encode/TestFrames.h"

#include "IVXCodecs.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateModel.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/EncoderSetup.h"
#include "runtime/mediacodecs/FFmpegQuiet.h"
#include "runtime/mediacodecs/FormatLimits.h"

#include <gtest/gtest.h>

extern "C"
{
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>

namespace Vexlor
{

namespace
{

constexpr double kNear =
    0.15; // libavcodec's ProRes counts bits by the macroblock, in four tiers of picture sizes
constexpr int kFilmGrain = 40; // of 255

/// Grain on every plane of a picture of 16-bit samples, as far as the samples go.
void AddGrain(AVFrame& frame)
{
    const auto& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const int most = (1 << format.comp[0].depth) - 1;
    const int grain = kFilmGrain * most / 255;
    std::minstd_rand random; // the same picture at each run
    std::uniform_int_distribution<int> step(-grain, grain);
    for (const auto* plane : frame.buf)
        if (plane)
            std::ranges::for_each(
                reinterpret_cast<std::uint16_t*>(plane->data),
                reinterpret_cast<std::uint16_t*>(plane->data) + plane->size / 2,
                [&](std::uint16_t& sample)
                { sample = static_cast<std::uint16_t>(std::clamp(int{sample} + step(random), 0, most)); });
}

/// Bytes of the first packet of a stream of one frame.
int BytesOf(AVCodecContext& encoder, const AVFrame& frame)
{
    const Packet packet(av_packet_alloc());
    if (avcodec_send_frame(&encoder, &frame) < 0 || avcodec_send_frame(&encoder, nullptr) < 0)
        return -1;
    return avcodec_receive_packet(&encoder, packet.get()) == 0 ? packet->size : -1;
}

struct Grain
{
    const char* name;
    int codecID;
    int format;
};

/// A codec whose profile decides what a frame takes, at each grade.
class BitrateOfAGrade : public testing::TestWithParam<std::tuple<Grain, int>>
{
protected:
    const FFmpegQuiet quiet;
    const Grain grain = std::get<0>(GetParam());
    std::shared_ptr<IVXCodecParameter> stream = Picture(grain.codecID);
};

TEST_P(BitrateOfAGrade, IsWhatIsMade)
{
    stream->SetFormat(grain.format);
    stream->SetBitrate(VideoBitrate(*CapabilitiesOf(grain.codecID), PictureOf(*stream, grain.format),
                                    IVXCodecs::QualityLevel{std::get<1>(GetParam())}));
    const auto setup = OpenEncoder(*stream, {});
    ASSERT_TRUE(setup.context) << setup.complaint;
    const auto frame = PictureFrame(*setup.context, 0);
    if (BitDepthOf(grain.format) > 8)
        AddGrain(*frame);
    const double made = 8.0 * BytesOf(*setup.context, *frame) * 25;
    EXPECT_NEAR(1.0, made / stream->GetBitrate(), kNear) << made << " for " << stream->GetBitrate();
}

constexpr Grain kGrains[] = {
    {"ProRes422", VXCodecID_ProRes, kPixFormatYUV422P10},
    {"ProRes444", VXCodecID_ProRes, kPixFormatYUV444P10},
    {"DNxHR422", VXCodecID_DNxHR, kPixFormatYUV422P},
    {"DNxHR422TenBits", VXCodecID_DNxHR, kPixFormatYUV422P10},
    {"DNxHR444", VXCodecID_DNxHR, kPixFormatYUV444P10},
};

INSTANTIATE_TEST_SUITE_P(Codecs, BitrateOfAGrade,
                         testing::Combine(testing::ValuesIn(kGrains), testing::Range(0, 4)),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).name) + "AtGrade" +
                                    std::to_string(std::get<1>(test.param));
                         });

/// Coarse grain, another in each picture.
void FillWithGrain(AVFrame& frame, std::minstd_rand& random)
{
    for (const auto* plane : frame.buf)
        if (plane)
            std::ranges::generate(plane->data, plane->data + plane->size,
                                  [&] { return static_cast<std::uint8_t>(96 + random() % 64); });
}

/// Bits of what an encoder has ready, frame by frame.
void AppendBits(std::vector<std::int64_t>& bits, AVCodecContext& encoder)
{
    const Packet packet(av_packet_alloc());
    while (avcodec_receive_packet(&encoder, packet.get()) == 0)
    {
        bits.push_back(std::int64_t{8} * packet->size);
        av_packet_unref(packet.get());
    }
}

/// Bits of a second of still pictures and a second of grain, frame by frame.
std::vector<std::int64_t> BitsOfStillsAndGrain(AVCodecContext& encoder)
{
    std::minstd_rand random; // the same grain at each run
    std::vector<std::int64_t> bits;
    for (int i = 0; i < 50; ++i)
    {
        const auto frame = PictureFrame(encoder, i < 25 ? 0 : i);
        frame->pts = i;
        if (i >= 25)
            FillWithGrain(*frame, random);
        avcodec_send_frame(&encoder, frame.get());
        AppendBits(bits, encoder);
    }
    avcodec_send_frame(&encoder, nullptr);
    AppendBits(bits, encoder);
    return bits;
}

TEST(EncodedBitrate, OfASecondOnDVDIsWithinWhatItsPlayersTake)
{
    const FFmpegQuiet quiet;
    const auto stream = Picture(VXCodecID_MPEG2);
    stream->SetBitrate(8'000'000);
    FitIntoContainer(*stream, "VOB");
    const auto setup = OpenEncoder(*stream, {.options = "bf=0"});
    ASSERT_TRUE(setup.context) << setup.complaint;
    const auto bits = BitsOfStillsAndGrain(*setup.context);
    ASSERT_EQ(50U, bits.size());
    EXPECT_LE(std::accumulate(bits.end() - 25, bits.end(), std::int64_t{0}),
              9'800'000 + setup.context->rc_buffer_size);
}

TEST(EncodedBitrate, OfAnimatedWebPRisesWithTheGrade)
{
    const FFmpegQuiet quiet;
    const auto& codec = *CapabilitiesOf(VXCodecID_WebP);
    if (codec.encoders.empty())
        GTEST_SKIP() << "no encoder here";
    const auto stream = Picture(VXCodecID_WebP);
    std::vector<int> sizes;
    for (const int grade : {0, 1, 2, 3})
    {
        stream->SetBitrate(VideoBitrate(codec, PictureOf(*stream, 0), IVXCodecs::QualityLevel{grade}));
        const auto setup = OpenEncoder(*stream, {});
        ASSERT_TRUE(setup.context) << setup.complaint;
        sizes.push_back(EncodePictures(*setup.context, 1).packets.at(0)->size);
    }
    EXPECT_TRUE(std::ranges::is_sorted(sizes, std::ranges::less_equal()));
}

TEST(EncodedBitrate, OfAnimatedWebPIsThatOfAQualityThatIsWishedFor)
{
    const FFmpegQuiet quiet;
    if (CapabilitiesOf(VXCodecID_WebP)->encoders.empty())
        GTEST_SKIP() << "no encoder here";
    EXPECT_EQ("", OpenEncoder(*Picture(VXCodecID_WebP), {.options = "quality=33"}).complaint);
}

} // namespace

} // namespace Vexlor
